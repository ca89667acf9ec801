#include "specialties/eye/visita.h"

#include "core/services/antecedentesPersonales.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace oftalmo
{

namespace
{

constexpr qsizetype largoDeDiagnostico = 255;

/// One after another in a row: how many cells of an array, and whether they are in pairs of a sign and a
/// value.
struct Grupo {
    QStringView control;
    int porFila;
};
constexpr Grupo grupos[] = {{u"EstrD", 2}, {u"EstrDL", 2}, {u"EstrMed", 1}, {u"EstrIL", 2}, {u"EstrI", 2}};
constexpr QStringView filas[] = {u"TT", u"TL", u"LT"};

std::vector<Celda> armarCeldas()
{
    std::vector<Celda> celdas;
    int fila = 0;
    for (const QStringView letras : filas) {
        int columna = 1;
        for (const Grupo &grupo : grupos)
            for (int i = 0; i < grupo.porFila; ++i)
                celdas.push_back({grupo.control, fila * grupo.porFila + i,
                                  u"Estra_%1%2"_s.arg(letras).arg(columna++), i == 0 ? u"-" : u"0"});
        ++fila;
    }
    return celdas;
}

template <class T>
void poner(dao::Recordset &fila, QStringView campo, const T &valor)
{
    basic::ignoring(dao::valueRefused, [&] { fila[campo] = basic::Value(valor); });
}

/// The row that the rest of the program knows the visit by.
void agregarConsulta(qint64 numero, const records::Valores &visita)
{
    auto hallado = services::paciente(numero);
    if (!hallado)
        return;
    dao::Recordset &paciente = *hallado;
    const QString cobertura = paciente[u"Obra Social"].text();
    const basic::Value precio = MODULE11::BuscaCampo(
        u"Select * from [Obra Social] where Descripcion = "_s + dao::quoted(cobertura), u"Precio Consulta");
    dao::Recordset consultas = BaseDatos.openRecordset(u"Consulta"_s);
    consultas.addNew();
    poner(consultas, u"Fecha", records::valor(visita, u"Fecha"_s));
    poner(consultas, u"Hora", basic::format(basic::time(), u"HH:MM"));
    poner(consultas, u"Lugar de Consulta", u"Consultorio"_s);
    poner(consultas, u"Paciente", numero);
    poner(consultas, u"Nombre del Paciente", paciente[u"Apellido y Nombres"].value());
    poner(consultas, u"Mutual", cobertura.isEmpty() ? u"PART."_s : cobertura);
    if (!precio.isBlank())
        poner(consultas, u"Monto", precio);
    poner(consultas, u"Dr", MODULE11::DrActual);
    poner(consultas, u"Tipo", u"1ra."_s);
    if (const basic::Value nacimiento = paciente[u"Fecha de Nacimiento"]; !nacimiento.isBlank())
        poner(consultas, u"Edad", basic::dateDiff(u"d", nacimiento.date(), basic::today()));
    poner(consultas, u"Motivo", records::valor(visita, u"motivo"_s));
    poner(consultas, u"Diagnostico 1",
          records::valor(visita, u"diagnostico"_s).text().left(largoDeDiagnostico));
    poner(consultas, u"EspecialidadPlus", u"Oftalmología"_s);
    consultas.update();
}

dao::Recordset filaDe(qint64 idConsulta)
{
    return BaseDatos.openRecordset(u"Select * from consultaOftalmo where idConsulta = %1"_s.arg(idConsulta));
}

qint64 escribirFila(qint64 paciente, qint64 idConsulta, const records::Valores &valores)
{
    dao::Recordset fila = idConsulta ? filaDe(idConsulta) : BaseDatos.openRecordset(u"ConsultaOftalmo"_s);
    const auto llenar = [&] {
        fila[u"Paciente"] = paciente;
        for (const auto &[columna, valor] : valores)
            if (columna.compare(u"idConsulta", Qt::CaseInsensitive) != 0)
                fila[columna] = valor;
    };
    if (idConsulta) {
        fila.edit(llenar);
        return idConsulta;
    }
    fila.addNew();
    llenar();
    fila.update();
    fila.setBookmark(fila.lastModified());
    return fila[u"idConsulta"].integer();
}

QString codigo(Textos clase)
{
    return clase == Textos::Motivos ? u"moti"_s : u"rec"_s;
}

} // namespace

const std::vector<Celda> &celdasDeEstrabismo()
{
    static const std::vector<Celda> celdas = armarCeldas();
    return celdas;
}

QString columnaDe(Clase clase)
{
    return clase == Clase::Biomicroscopia ? u"tensgolod"_s : u"tensgoloi"_s;
}

std::optional<records::Valores> leerVisita(qint64 idConsulta)
{
    const dao::Recordset fila = filaDe(idConsulta);
    if (fila.eof())
        return std::nullopt;
    records::Valores valores;
    for (int i = 0; i < static_cast<int>(fila.fields().size()); ++i)
        valores[fila.fields()[static_cast<std::size_t>(i)].name] = fila.value(i);
    return valores;
}

records::Valores visitaNueva(qint64 paciente)
{
    records::Valores valores{{u"Fecha"_s, basic::today()},
                             {u"Antecedentes"_s, services::antecedentesPersonales(paciente).join(u'\n')},
                             {u"testAmsler"_s, u" -"_s}};
    for (const Celda &celda : celdasDeEstrabismo())
        valores[celda.columna] = celda.inicial.toString();
    return valores;
}

/// The eye's own row comes first: what it refuses is refused before there is another.
qint64 guardarVisita(qint64 paciente, qint64 idConsulta, const Visita &visita)
{
    records::Valores valores = visita.valores;
    QStringList nuevos; // drawings that are of nobody unless the visit is written
    qint64 escrita = 0;
    try {
        for (const auto &[clase, dibujo] : visita.dibujos) {
            basic::Value &base = valores[columnaDe(clase)];
            if (base.isBlank()) {
                nuevos += nuevaBase();
                base = nuevos.back();
            }
            guardarDibujo(base.text(), dibujo);
        }
        dao::Batch juntas(BaseDatos);
        escrita = escribirFila(paciente, idConsulta, valores);
        if (!idConsulta)
            agregarConsulta(paciente, valores);
        juntas.commit();
    } catch (const basic::Error &) {
        for (const QString &base : nuevos)
            borrarDibujo(base);
        if (!idConsulta && escrita)
            BaseDatos.execute(u"Delete * from consultaOftalmo where idConsulta = %1"_s.arg(escrita));
        throw;
    }
    return escrita;
}

std::optional<qint64> ultimaVisita(qint64 paciente)
{
    const basic::Value id = MODULE11::BuscaCampo(
        u"Select top 1 idConsulta from consultaOftalmo where paciente = %1 order by fecha desc, idConsulta desc"_s
            .arg(paciente),
        u"idConsulta");
    return id.isBlank() ? std::nullopt : std::optional(id.integer());
}

QString consultaDeTextos(Textos clase)
{
    return u"Select Descripcion from AuxiliarOftalmo where Clase = %1 order by Descripcion"_s.arg(
        dao::quoted(codigo(clase)));
}

void agregarTexto(Textos clase, const QString &texto)
{
    dao::Recordset filas =
        BaseDatos.openRecordset(u"Select * from AuxiliarOftalmo where Clase = %1 and Descripcion = %2"_s.arg(
            dao::quoted(codigo(clase)), dao::quoted(texto)));
    if (!filas.eof())
        return;
    filas.addNew();
    filas[u"Clase"] = codigo(clase);
    filas[u"Descripcion"] = texto;
    filas.update();
}

void quitarTexto(Textos clase, const QString &texto)
{
    BaseDatos.execute(u"Delete * from AuxiliarOftalmo where Clase = %1 and Descripcion = %2"_s.arg(
        dao::quoted(codigo(clase)), dao::quoted(texto)));
}

} // namespace oftalmo
