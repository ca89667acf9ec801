#include "paediatrics/vaccines/calendarios.h"

#include "core/session/session.h"
#include "paediatrics/vaccines/planilla.h"
#include "platform/dao/database.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace vacunas
{

namespace
{

constexpr Calendario todos[] = {
    {"argentina", "Argentina", "Calendario Nacional de Vacunación, 2026"},
    {"uruguay", "Uruguay", "Esquema Nacional de Vacunación, 2026"},
    {"mexico", "México", "Programa de Vacunación Universal, 2026"},
    {"chile", "Chile", "Programa Nacional de Inmunizaciones, 2025"},
    {"espana", "España", "Calendario común de vacunación, 2025"},
};

/// The fields of a line; within quotation marks a comma is one, and a doubled mark is one mark.
QStringList campos(const QString &linea)
{
    QStringList partes(1);
    bool entreComillas = false;
    for (qsizetype i = 0; i < linea.size(); ++i) {
        const QChar letra = linea[i];
        if (letra == u'"' && entreComillas && i + 1 < linea.size() && linea[i + 1] == u'"')
            partes.last() += linea[++i];
        else if (letra == u'"')
            entreComillas = !entreComillas;
        else if (letra == u',' && !entreComillas)
            partes += QString();
        else
            partes.last() += letra;
    }
    return partes;
}

std::optional<int> oNada(const QString &texto)
{
    return texto.isEmpty() ? std::nullopt : std::optional(texto.toInt());
}

bool esDeTodos(const QString &grupo)
{
    return grupo.isEmpty() || grupo.startsWith(u"nacidos ");
}

QString edadEnPalabras(int dias)
{
    const basic::Date origen{QDate(2001, 1, 1)};
    return dias == 0 ? u"al nacer"_s
                     : u"a los "_s + tiempoEnPalabras(origen, basic::Date(origen.date().addDays(dias)));
}

/// What is told of a dose until the practice writes something of its own.
QString informacion(const DosisDeCalendario &una, const Calendario &calendario)
{
    QString texto =
        u"%1: %2."_s.arg(QString::fromUtf8(calendario.nombre), edadEnPalabras(una.edad.recomendada));
    if (una.edad.minima && *una.edad.minima > 0)
        texto += u" No antes de los %1 días de vida."_s.arg(*una.edad.minima);
    if (una.edad.maxima)
        texto += u" No después de los %1 días de vida."_s.arg(*una.edad.maxima);
    if (una.edad.intervalo)
        texto += u" A no menos de %1 días de la dosis anterior."_s.arg(*una.edad.intervalo);
    if (!una.edad.grupo.isEmpty())
        texto += u" Para %1."_s.arg(una.edad.grupo);
    return texto;
}

std::map<std::pair<QString, QString>, QString> informacionDelPlan()
{
    std::map<std::pair<QString, QString>, QString> textos;
    for (dao::Recordset filas =
             MODULE11::BaseDatos.openRecordset(u"select * from CalVacunas"_s, dao::Recordset::Kind::Snapshot);
         !filas.eof(); filas.moveNext())
        textos[{filas[u"Vacuna"].text(), filas[u"Dosis"].text()}] = filas[u"TemasRelacionados"].text();
    return textos;
}

} // namespace

std::span<const Calendario> calendarios()
{
    return todos;
}

std::vector<DosisDeCalendario> leerCalendario(const Calendario &calendario)
{
    QFile archivo(u":/calendarios/%1.csv"_s.arg(QLatin1StringView(calendario.archivo)));
    if (!archivo.open(QIODevice::ReadOnly | QIODevice::Text))
        throw basic::Error(53, u"No se encuentra el calendario %1."_s.arg(archivo.fileName()));
    const QStringList titulos = campos(QString::fromUtf8(archivo.readLine()).trimmed());
    std::vector<DosisDeCalendario> dosis;
    while (!archivo.atEnd()) {
        const QStringList fila = campos(QString::fromUtf8(archivo.readLine()).remove(u'\n'));
        const auto campo = [&](const QString &titulo) { return fila.value(titulos.indexOf(titulo)); };
        if (fila.size() != titulos.size() || !esDeTodos(campo(u"grupo"_s)))
            continue;
        const QString edad = campo(u"Dosis"_s);
        dosis.push_back({{campo(u"Descripcion"_s), campo(u"detalle"_s), edad, campo(u"Vacuna"_s),
                          static_cast<double>(mesesAlAgregar(edad))},
                         campo(u"orden"_s).toInt(),
                         {campo(u"edad_recomendada_dias"_s).toInt(), oNada(campo(u"edad_minima_dias"_s)),
                          oNada(campo(u"edad_maxima_dias"_s)), oNada(campo(u"intervalo_minimo_dias"_s)),
                          campo(u"grupo"_s)}});
    }
    return dosis;
}

void cargarCalendario(const Calendario &calendario)
{
    const std::vector<DosisDeCalendario> nuevas = leerCalendario(calendario);
    auto textos = informacionDelPlan();
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete * from CalVacunas"_s);
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"CalVacunas"_s);
    for (const DosisDeCalendario &una : nuevas) {
        const DosisDelPlan &dosis = una.dosis;
        const QString propio = textos[{dosis.vacuna, dosis.dosis}];
        filas.addNew();
        filas[u"Descripcion"] = dosis.descripcion;
        filas[u"detalle"] = dosis.detalle;
        filas[u"Dosis"] = dosis.dosis;
        filas[u"Vacuna"] = dosis.vacuna;
        filas[u"orden"] = una.orden;
        filas[u"TemasRelacionados"] = propio.isEmpty() ? informacion(una, calendario) : propio;
        filas[u"Tiempo en meses"] = dosis.meses;
        filas.update();
        guardarEdad(dosis.vacuna, dosis.dosis, una.edad);
    }
    juntas.commit();
}

} // namespace vacunas
