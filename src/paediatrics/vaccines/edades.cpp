#include "paediatrics/vaccines/edades.h"

#include "core/session/session.h"
#include "platform/dao/database.h"
#include "platform/dao/sqltext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace vacunas
{

namespace
{

constexpr double diasDelMes = 30.4375;
constexpr QStringView desdeElDia = u"nacidos desde ", hastaElDia = u"nacidos hasta ";

std::optional<int> dias(const basic::Value &valor)
{
    return valor.isNull() ? std::nullopt : std::optional(static_cast<int>(valor.integer()));
}

basic::Value oNulo(const std::optional<int> &valor)
{
    return valor ? basic::Value(*valor) : basic::Value(basic::Null{});
}

QString contados(int cuantos, const QString &uno, const QString &muchos)
{
    return u"%1 %2"_s.arg(cuantos).arg(cuantos == 1 ? uno : muchos);
}

} // namespace

bool EdadDeDosis::corresponde(basic::Date nacimiento) const
{
    const QStringView para(grupo);
    const auto dia = [&](QStringView comienzo) {
        return QDate::fromString(para.sliced(comienzo.size()).toString(), Qt::ISODate);
    };
    if (para.startsWith(desdeElDia))
        return nacimiento.date() >= dia(desdeElDia);
    if (para.startsWith(hastaElDia))
        return nacimiento.date() <= dia(hastaElDia);
    return para.isEmpty();
}

std::optional<int> EdadDeDosis::atraso(basic::Date nacimiento, basic::Date dia,
                                       const std::optional<basic::Date> &anterior) const
{
    const qint64 edad = dia.wholeDays() - nacimiento.wholeDays();
    if ((maxima && edad > *maxima) || !corresponde(nacimiento))
        return std::nullopt;
    qint64 toca = nacimiento.wholeDays() + recomendada;
    if (anterior && intervalo)
        toca = std::max(toca, anterior->wholeDays() + *intervalo);
    if (dia.wholeDays() <= toca)
        return std::nullopt;
    return static_cast<int>(dia.wholeDays() - toca);
}

/// A month of the calendar may be some days shorter than the one that the ages are counted in.
QString EdadDeDosis::reparo(basic::Date nacimiento, basic::Date dia) const
{
    constexpr int tolerancia = 4;
    const qint64 edad = dia.wholeDays() - nacimiento.wholeDays();
    if (edad < 0)
        return u"La fecha es anterior al nacimiento."_s;
    if (minima && edad < *minima - tolerancia)
        return u"Antes de la edad mínima de la dosis: %1 días de vida; ese día tenía %2."_s.arg(*minima).arg(
            edad);
    if (maxima && edad > *maxima)
        return u"Después de la edad máxima de la dosis: %1 días de vida; ese día tenía %2."_s.arg(*maxima)
            .arg(edad);
    return {};
}

Edades::Edades()
{
    for (dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"Select * from EdadesVacunas"_s,
                                                                  dao::Recordset::Kind::Snapshot);
         !filas.eof(); filas.moveNext()) {
        if (filas[u"edad_recomendada_dias"].isNull())
            continue;
        guardadas_[{filas[u"Vacuna"].text().toUpper(), filas[u"Dosis"].text().toUpper()}] = {
            static_cast<int>(filas[u"edad_recomendada_dias"].integer()), dias(filas[u"edad_minima_dias"]),
            dias(filas[u"edad_maxima_dias"]), dias(filas[u"intervalo_minimo_dias"]), filas[u"grupo"].text()};
    }
}

const EdadDeDosis *Edades::guardada(const QString &vacuna, const QString &dosis) const
{
    const auto hallada = guardadas_.find({vacuna.toUpper(), dosis.toUpper()});
    return hallada == guardadas_.end() ? nullptr : &hallada->second;
}

EdadDeDosis Edades::de(const DosisDelPlan &dosis) const
{
    if (const EdadDeDosis *propia = guardada(dosis.vacuna, dosis.dosis))
        return *propia;
    EdadDeDosis porFila;
    porFila.recomendada = static_cast<int>(std::lround(dosis.meses * diasDelMes));
    return porFila;
}

void guardarEdad(const QString &vacuna, const QString &dosis, const std::optional<EdadDeDosis> &edad)
{
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete * from EdadesVacunas where Vacuna = %1 and Dosis = %2"_s.arg(
        dao::quoted(vacuna), dao::quoted(dosis)));
    if (edad) {
        dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"EdadesVacunas"_s);
        filas.addNew();
        filas[u"Vacuna"] = vacuna;
        filas[u"Dosis"] = dosis;
        filas[u"edad_recomendada_dias"] = edad->recomendada;
        filas[u"edad_minima_dias"] = oNulo(edad->minima);
        filas[u"edad_maxima_dias"] = oNulo(edad->maxima);
        filas[u"intervalo_minimo_dias"] = oNulo(edad->intervalo);
        filas[u"grupo"] = edad->grupo;
        filas.update();
    }
    juntas.commit();
}

/// By the calendar: a month is complete on the day of the month, or on its last where it has no such day.
QString tiempoEnPalabras(basic::Date desde, basic::Date hasta)
{
    const QDate primero = desde.date(), ultimo = hasta.date();
    int meses = (ultimo.year() - primero.year()) * 12 + ultimo.month() - primero.month();
    if (primero.addMonths(meses) > ultimo)
        --meses;
    if (meses <= 0)
        return contados(static_cast<int>(primero.daysTo(ultimo)), u"día"_s, u"días"_s);
    const int anios = meses / 12, resto = meses % 12;
    const QString enMeses = contados(resto, u"mes"_s, u"meses"_s);
    if (anios == 0)
        return enMeses;
    const QString enAnios = contados(anios, u"año"_s, u"años"_s);
    return resto == 0 ? enAnios : enAnios + u" y "_s + enMeses;
}

} // namespace vacunas
