#include "documents/prescriptions/recetario.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using namespace MODULE11;

namespace recetario
{

namespace
{

constexpr int numeroDeLaImagen = 9999;
constexpr int largoDeFuente = 40;

/// The names of the two columns are the other way round: X goes down the sheet.
constexpr QStringView columnaArriba = u"Posicion X", columnaIzquierda = u"Posicion Y";

QPointF lugar(dao::Recordset &fila)
{
    return {fila[columnaIzquierda].number(), fila[columnaArriba].number()};
}

void ponerLugar(dao::Recordset &fila, QPointF lugar)
{
    fila[columnaArriba] = qRound64(lugar.y());
    fila[columnaIzquierda] = qRound64(lugar.x());
}

Elemento elemento(dao::Recordset &fila)
{
    Elemento leido{fila[u"Valor"].text(), lugar(fila), fila[u"Fuente"].text()};
    if (const qint64 cuerpo = fila[u"Tamaño"].integer(); cuerpo > 0)
        leido.cuerpo = static_cast<int>(cuerpo);
    leido.negrita = fila[u"Bold"].truth();
    leido.italica = fila[u"Italic"].truth();
    leido.subrayado = fila[u"Subrayado"].truth();
    return leido;
}

void agregar(dao::Recordset &filas, int numero, const Elemento &elemento)
{
    filas.addNew();
    filas[u"Elemento"] = numero;
    filas[u"Valor"] = elemento.valor;
    ponerLugar(filas, elemento.lugar);
    filas[u"Fuente"] = elemento.fuente;
    filas[u"Tamaño"] = elemento.cuerpo;
    filas[u"Bold"] = elemento.negrita;
    filas[u"Italic"] = elemento.italica;
    filas[u"Fecha"] = false; // the field's label has brackets, and the column is for the one without them
    filas.update();
}

void agregar(dao::Recordset &filas, const Imagen &imagen)
{
    filas.addNew();
    filas[u"Elemento"] = numeroDeLaImagen;
    filas[u"Valor"] = imagen.archivo;
    ponerLugar(filas, imagen.lugar);
    filas.update();
}

/// The table is emptied before it is filled: what a column would refuse is told while the old rows stand.
void comprobar(const Diseno &diseno)
{
    for (const auto &[numero, elemento] : diseno.elementos)
        if (elemento.valor.size() > largoDelValor || elemento.fuente.size() > largoDeFuente)
            throw dao::Error(dao::Error::TextTooLong,
                             u"El texto de un elemento tiene más de %1 letras:\n%2"_s.arg(largoDelValor)
                                 .arg(elemento.valor));
    if (diseno.imagen && diseno.imagen->archivo.size() > largoDelValor)
        throw dao::Error(
            dao::Error::TextTooLong,
            u"La ruta de la imagen tiene más de %1 letras: copie la imagen a la carpeta del programa.\n%2"_s
                .arg(largoDelValor)
                .arg(diseno.imagen->archivo));
}

/// Today's first treatment: its product as the catalogue knows it.
std::optional<Rotulo> tratamientoDeHoy(qint64 paciente)
{
    const basic::Value nombre = BuscaCampo(u"Select * from Consulta where fecha = date() and paciente = "_s +
                                               QString::number(paciente),
                                           u"Tratamiento 1");
    if (nombre.isNull())
        return {};
    dao::Recordset tratamiento = BaseDatos.openRecordset(
        u"Select * from Tratamientos where Descripcion = "_s + dao::quoted(nombre.text()));
    if (tratamiento.eof() || tratamiento[u"nombrecomercial"].isNull())
        return {};
    return Rotulo{tratamiento[u"nombrecomercial"].text() + u" - "_s + tratamiento[u"Detalles"].text(),
                  tratamiento[u"Descripcion"].text()};
}

using Dato = std::optional<Rotulo> (*)(qint64 paciente);

template <const char16_t *columna>
std::optional<Rotulo> delPaciente(qint64 numero)
{
    auto paciente = services::paciente(numero);
    if (!paciente)
        return {};
    return Rotulo{(*paciente)[columna].text()};
}

constexpr char16_t apellidoYNombres[] = u"Apellido y Nombres";
constexpr char16_t obraSocial[] = u"Obra social";
constexpr char16_t numeroDeAfiliado[] = u"Numero de Afiliado";

std::optional<Rotulo> fechaDeHoy(qint64)
{
    return Rotulo{FechaEnLetras(basic::today())};
}

std::optional<Rotulo> horaDeAhora(qint64)
{
    return Rotulo{basic::format(basic::time(), u"HH:MM:SS")};
}

/// The age has no place here: the sheet prints its label as it stands.
const std::map<QString, Dato> &datos()
{
    static const std::map<QString, Dato> tabla{
        {u"<FECHA>"_s, fechaDeHoy},
        {u"<HORA>"_s, horaDeAhora},
        {u"<NOMBRE>"_s, delPaciente<apellidoYNombres>},
        {u"<OSOCIAL>"_s, delPaciente<obraSocial>},
        {u"<NOAFILIADO>"_s, delPaciente<numeroDeAfiliado>},
        {u"<TRATAMIENTO>"_s, tratamientoDeHoy},
    };
    return tabla;
}

} // namespace

Diseno leer(const QString &tabla)
{
    Diseno diseno;
    for (dao::Recordset filas = BaseDatos.openRecordset(u"Select * from [%1]"_s.arg(tabla)); !filas.eof();
         filas.moveNext()) {
        const qint64 numero = filas[u"Elemento"].isNull() ? -1 : filas[u"Elemento"].integer();
        if (numero >= 0 && numero < lugares)
            diseno.elementos[static_cast<int>(numero)] = elemento(filas);
        else if (numero == numeroDeLaImagen && !diseno.imagen)
            diseno.imagen = Imagen{filas[u"Valor"].text(), lugar(filas)};
    }
    return diseno;
}

void guardar(const QString &tabla, const Diseno &diseno)
{
    comprobar(diseno);
    dao::Batch batch(BaseDatos);
    BaseDatos.execute(u"Delete * from [%1]"_s.arg(tabla));
    dao::Recordset filas = BaseDatos.openRecordset(tabla);
    for (const auto &[numero, elemento] : diseno.elementos)
        agregar(filas, numero, elemento);
    if (diseno.imagen && !diseno.imagen->archivo.isEmpty())
        agregar(filas, *diseno.imagen);
    batch.commit();
}

QStringList tablas()
{
    QStringList nombres;
    for (const QString &nombre : BaseDatos.tableNames()) {
        const dao::TableDef tabla = BaseDatos.tableDef(nombre);
        if (tabla.field(u"Elemento") && tabla.field(columnaArriba) && tabla.field(columnaIzquierda))
            nombres += nombre;
    }
    return nombres;
}

std::span<const Campo> campos()
{
    static const Campo todos[] = {
        {u"<FECHA>"_s, u"Fecha ?"_s, u"Miercoles 25 de Mayo de 1810"_s},
        {u"<HORA>"_s, u"Hora ?"_s, u"12:54 pm"_s},
        {u"<NOMBRE>"_s, u"Nombre ?"_s, u"Apellido, Nombre"_s},
        {u"<OSOCIAL>"_s, u"O.Social ?"_s, u"O.B.R.A. S.O.C."_s},
        {u"<NOAFILIADO>"_s, u"Nº de Afiliado ?"_s, u"12345678901234567"_s},
        {u"<EDAD>"_s, u"Edad ?"_s, u"1 año, 5 meses, 3 días"_s},
        {u"<TRATAMIENTO>"_s, u"Prescripción ?"_s, u"AMOXICILINA ORAL"_s},
    };
    return todos;
}

bool esCampo(const QString &valor)
{
    return valor.startsWith(u'<');
}

Rotulo rotulo(const QString &valor, qint64 paciente)
{
    const auto dato = datos().find(valor);
    if (dato == datos().end())
        return {valor};
    return dato->second(paciente).value_or(Rotulo{valor});
}

} // namespace recetario
