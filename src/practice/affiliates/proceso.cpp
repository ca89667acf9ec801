#include "practice/affiliates/proceso.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "practice/affiliates/lineas.h"

#include <QElapsedTimer>
#include <QSet>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace afiliados
{

namespace
{

/// The other stations write in between.
constexpr int milisegundosEntreAvances = 100;
const QString obraSocial = u"Obra Social"_s;

bool es(const Campo &campo, QStringView columna)
{
    return campo.columna.compare(columna, Qt::CaseInsensitive) == 0;
}

QString conCorchetes(const QString &columna)
{
    return u'[' + columna + u']';
}

/// A look-up by a column without an index reads the whole register.
void indexar(const Campo &clave)
{
    const auto indices = BaseDatos.tableDef(u"Pacientes").indexes();
    const bool hay = std::ranges::any_of(indices, [&clave](const dao::IndexDef &indice) {
        return indice.fields.front().compare(clave.columna, Qt::CaseInsensitive) == 0;
    });
    if (!hay)
        BaseDatos.execute(u"CREATE INDEX %1 ON Pacientes (%2)"_s.arg(
            conCorchetes(u"Importa "_s + clave.columna), conCorchetes(clave.columna)));
}

QString enSentencia(const basic::Value &valor)
{
    if (const auto *dia = valor.as<basic::Date>())
        return dao::cdate(*dia);
    if (const auto *texto = valor.as<QString>())
        return dao::quoted(*texto);
    return basic::sqlNumber(valor.number());
}

/// What a line sets: the columns and their values.
using Valores = std::vector<std::pair<QString, basic::Value>>;

/// Why a line is not taken in.
struct Salteada {
    QString motivo;
};

class Proceso
{
public:
    Proceso(const Pedido &pedido, const Mapa &mapa)
        : pedido_(pedido), mapa_(mapa),
          buscar_(u"Select * from Pacientes where %1 = "_s.arg(conCorchetes(mapa.clave->columna))),
          tieneProfesional_(BaseDatos.tableDef(u"Pacientes").field(u"idProfesional") != nullptr)
    {
    }

    void tomar(const QString &linea, Resumen &resumen)
    {
        const basic::Value clave = leerClave(linea);
        const Valores valores = leerValores(linea, resumen);
        dao::Recordset fila = BaseDatos.openRecordset(buscar_ + enSentencia(clave));
        if (fila.eof() && nuevaEnElEnsayo(clave)) {
            agregar(fila, valores);
            ++resumen.nuevos;
        } else if (!fila.eof() && cambia(fila, valores)) {
            modificar(fila, valores);
            ++resumen.modificados;
        } else {
            ++resumen.iguales;
        }
    }

private:
    basic::Value leerClave(const QString &linea) const
    {
        const Lectura clave = leer(cortar(linea, *mapa_.clave), *mapa_.clave);
        if (!clave.rechazo.isEmpty())
            throw Salteada{u"la clave «%1» %2"_s.arg(mapa_.clave->columna, clave.rechazo)};
        if (clave.valor.isBlank())
            throw Salteada{u"sin clave («%1»)"_s.arg(mapa_.clave->columna)};
        return clave.valor;
    }

    /// The plan chosen goes before one of the roll.
    Valores leerValores(const QString &linea, Resumen &resumen) const
    {
        Valores valores;
        for (const Campo &campo : mapa_.campos) {
            if (es(campo, obraSocial))
                continue;
            Lectura leido = leer(cortar(linea, campo), campo);
            if (!leido.rechazo.isEmpty())
                throw Salteada{u"«%1» %2"_s.arg(campo.columna, leido.rechazo)};
            if (leido.cortado)
                ++resumen.recortados;
            if (!leido.valor.isNull())
                valores.emplace_back(campo.columna, std::move(leido.valor));
        }
        valores.emplace_back(obraSocial, pedido_.obraSocial);
        return valores;
    }

    /// A trial writes nothing: an affiliate who comes twice is new once.
    bool nuevaEnElEnsayo(const basic::Value &clave)
    {
        if (!pedido_.ensayo)
            return true;
        const qsizetype antes = nuevasDelEnsayo_.size();
        nuevasDelEnsayo_.insert(clave.text().toCaseFolded());
        return nuevasDelEnsayo_.size() > antes;
    }

    static bool cambia(dao::Recordset &fila, const Valores &valores)
    {
        return std::ranges::any_of(valores, [&fila](const auto &valor) {
            return !esNumeroDelPaciente(valor.first) && fila[valor.first].text() != valor.second.text();
        });
    }

    /// A patient keeps the number that all records know.
    static bool esNumeroDelPaciente(const QString &columna)
    {
        return columna.compare(u"Numero", Qt::CaseInsensitive) == 0;
    }

    void modificar(dao::Recordset &fila, const Valores &valores) const
    {
        if (pedido_.ensayo)
            return;
        fila.edit([&] {
            for (const auto &[columna, valor] : valores)
                if (!esNumeroDelPaciente(columna))
                    fila[columna] = valor;
        });
    }

    void agregar(dao::Recordset &filas, const Valores &valores) const
    {
        if (pedido_.ensayo)
            return;
        const qint64 numero = proximoNumero();
        filas.addNew();
        filas[u"Numero"] = numero;
        if (tieneProfesional_)
            filas[u"idProfesional"] = 0;
        for (const auto &[columna, valor] : valores)
            filas[columna] = valor;
        const qint64 escrito = filas[u"Numero"].integer(); // the roll may bring its own
        filas.update();
        agregarFicha(escrito);
    }

    static qint64 proximoNumero()
    {
        return BaseDatos.openRecordset(u"Select Max(Numero) from Pacientes"_s)[0].integer() + 1;
    }

    /// A patient deleted by another program may have left its own.
    static void agregarFicha(qint64 numero)
    {
        basic::ignoring({dao::Error::DuplicateKey}, [numero] {
            BaseDatos.execute(u"INSERT INTO Pediatria (numero) VALUES (%1)"_s.arg(numero));
        });
    }

    const Pedido &pedido_;
    const Mapa &mapa_;
    const QString buscar_;
    const bool tieneProfesional_;
    QSet<QString> nuevasDelEnsayo_;
};

/// The lines that were skipped, as they stood: mended there, the file can be taken in again.
class Salteadas
{
public:
    explicit Salteadas(const QString &archivo) : archivo_(archivo + u".salteadas.txt"_s) {}

    void agregar(const QByteArray &linea)
    {
        if (!archivo_.isOpen() && !archivo_.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return;
        archivo_.write(linea + '\n');
    }
    /// Its name; empty when none was skipped or it cannot be written.
    QString nombre() const { return archivo_.isOpen() ? archivo_.fileName() : QString(); }

private:
    QFile archivo_;
};

void saltear(Resumen &resumen, const QString &motivo)
{
    Motivo &cuenta = resumen.salteadas[motivo];
    if (cuenta.lineas++ == 0)
        cuenta.primera = resumen.lineas;
}

/// A line that the table refuses is skipped alone; trouble with the file ends the run.
void tomarOSaltear(Proceso &proceso, const QString &linea, Resumen &resumen)
{
    const auto refusa = [](int numero) {
        return numero == dao::Error::DuplicateKey ||
               std::ranges::find(dao::valueRefused, numero) != dao::valueRefused.end();
    };
    try {
        proceso.tomar(linea, resumen);
    } catch (const Salteada &salteada) {
        saltear(resumen, salteada.motivo);
    } catch (const dao::Error &error) {
        if (!refusa(error.number()))
            throw;
        saltear(resumen, error.description());
    }
}

void abrir(Lineas &lineas, const QString &archivo)
{
    constexpr int noSeLee = 75;
    if (!lineas.abrir(archivo))
        throw basic::Error(noSeLee, u"No se puede leer el archivo %1."_s.arg(archivo));
}

QString conMiles(qint64 cantidad)
{
    return basic::format(cantidad, u"#,##0");
}

} // namespace

qint64 Resumen::cantidadDeSalteadas() const
{
    qint64 cantidad = 0;
    for (const auto &[motivo, cuenta] : salteadas)
        cantidad += cuenta.lineas;
    return cantidad;
}

QString Resumen::texto(bool ensayo) const
{
    QStringList renglones;
    if (detenido)
        renglones += u"Detenido después de %1 líneas."_s.arg(conMiles(lineas));
    if (ensayo)
        renglones += u"Prueba: no se grabó nada."_s;
    renglones += u"Líneas: %1 (%2)"_s.arg(conMiles(lineas), letras);
    renglones += u"Pacientes nuevos: %1"_s.arg(conMiles(nuevos));
    renglones += u"Pacientes modificados: %1"_s.arg(conMiles(modificados));
    renglones += u"Sin cambios: %1"_s.arg(conMiles(iguales));
    renglones += u"Salteadas: %1"_s.arg(conMiles(cantidadDeSalteadas()));
    for (const auto &[motivo, cuenta] : salteadas)
        renglones += u"    %1: %2 (la primera, línea %3)"_s.arg(motivo, conMiles(cuenta.lineas),
                                                                conMiles(cuenta.primera));
    if (recortados > 0)
        renglones += u"Textos recortados: %1"_s.arg(conMiles(recortados));
    if (!desconocidas.isEmpty())
        renglones += u"Columnas que la tabla no tiene: %1"_s.arg(desconocidas.join(u", "_s));
    if (!archivoDeSalteadas.isEmpty())
        renglones += u"Las líneas salteadas están en %1"_s.arg(archivoDeSalteadas);
    return renglones.join(u'\n');
}

Resumen actualizar(const Pedido &pedido, const Mapa &mapa, const Avance &avance)
{
    Lineas lineas;
    abrir(lineas, pedido.archivo);
    Resumen resumen;
    resumen.letras = nombre(lineas.letras());
    resumen.desconocidas = mapa.desconocidas;
    indexar(*mapa.clave);
    Proceso proceso(pedido, mapa);
    Salteadas salteadas(pedido.archivo);
    QElapsedTimer desdeElAvance;
    desdeElAvance.start();
    std::optional<dao::Batch> tanda(std::in_place, BaseDatos);
    while (const auto linea = lineas.siguiente()) {
        ++resumen.lineas;
        const qint64 antes = resumen.cantidadDeSalteadas();
        tomarOSaltear(proceso, lineas.texto(*linea), resumen);
        if (!pedido.ensayo && resumen.cantidadDeSalteadas() > antes)
            salteadas.agregar(*linea);
        if (desdeElAvance.elapsed() < milisegundosEntreAvances)
            continue;
        tanda->commit();
        tanda.emplace(BaseDatos);
        desdeElAvance.restart();
        if (!avance(resumen.lineas, lineas.cantidad())) {
            resumen.detenido = true;
            break;
        }
    }
    tanda->commit();
    avance(resumen.lineas, lineas.cantidad());
    resumen.archivoDeSalteadas = salteadas.nombre();
    return resumen;
}

std::vector<QStringList> primerasLineas(const QString &archivo, const Mapa &mapa, int cantidad)
{
    Lineas lineas;
    abrir(lineas, archivo);
    std::vector<QStringList> filas;
    while (static_cast<int>(filas.size()) < cantidad) {
        const auto linea = lineas.siguiente();
        if (!linea)
            break;
        QStringList &fila = filas.emplace_back();
        for (const Campo &campo : mapa.campos)
            fila += cortar(lineas.texto(*linea), campo);
    }
    return filas;
}

} // namespace afiliados
