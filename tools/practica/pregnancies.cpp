#include "pregnancies.h"

#include "core/session/session.h"
#include "specialties/gynaecology/marcas.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr int leastAge = 5844; ///< days: sixteen years
constexpr int daysSoFar = 28 * 7;

/// A control, by its week: weight, pressure, uterine height, heart beats of the child.
struct Control {
    int week;
    const char *weight, *pressure, *height, *beats;
};
constexpr Control controls[] = {
    {10, "54 kg", "100/60", "-", "-"},         {14, "55,5 kg", "105/65", "12 cm", "152"},
    {18, "57 kg", "100/60", "16 cm", "148"},   {22, "59,5 kg", "110/70", "20,5 cm", "146"},
    {26, "61,5 kg", "110/70", "25 cm", "144"},
};

void addRecord(qint64 patient, QDate lastPeriod)
{
    dao::Recordset row = BaseDatos.openRecordset(u"Gineco"_s);
    row.addNew();
    row[u"idPaciente"] = patient;
    row[u"Menarca"] = u"12 años"_s;
    row[u"Ciclos Menstruales"] = u"5/28"_s;
    row[u"Gestas"] = u"1"_s;
    row[u"Abortos"] = u"0"_s;
    row[u"DUM"] = lastPeriod;
    row.update();
}

void addColposcopy(qint64 patient, QDate day)
{
    dao::Recordset row = BaseDatos.openRecordset(u"ConsultaGineco"_s);
    row.addNew();
    row[u"idPaciente"] = patient;
    row[u"Fecha"] = day;
    row[u"Examen"] = u"Colposcopía"_s;
    row[u"Detalle"] = u"Unión escamocolumnar visible en toda su extensión."_s;
    row[u"Resultados"] = u"Ectopía con metaplasia; sin imágenes anormales."_s;
    row.update();
    row.setBookmark(row.lastModified());
    constexpr int ectopy = 2, metaplasia = 3;
    gineco::guardarMarcas(row[u"idExamen"].integer(),
                          {{ectopy, {3300, 2300}}, {ectopy, {3700, 2900}}, {metaplasia, {2500, 2700}}});
}

void addControls(qint64 patient, QDate lastPeriod)
{
    dao::Recordset rows = BaseDatos.openRecordset(u"HistoricoGestaciones"_s);
    for (const Control &control : controls) {
        rows.addNew();
        rows[u"idPaciente"] = patient;
        rows[u"Gesta"] = 1;
        rows[u"Fecha"] = lastPeriod.addDays(7 * control.week);
        rows[u"IG"] = QString::number(control.week);
        rows[u"Peso"] = QString::fromUtf8(control.weight);
        rows[u"Presion"] = QString::fromUtf8(control.pressure);
        rows[u"AU"] = QString::fromUtf8(control.height);
        rows[u"BCF"] = QString::fromUtf8(control.beats);
        rows[u"Edema"] = u"No"_s;
        rows.update();
    }
}

} // namespace

void addPregnancy(const std::vector<Patient> &patients, QDate today)
{
    const Patient *eldest = nullptr;
    for (const Patient &patient : patients)
        if (!patient.person.boy && patient.birth.daysTo(today) >= leastAge &&
            (!eldest || patient.birth < eldest->birth))
            eldest = &patient;
    if (!eldest)
        return;
    const QDate lastPeriod = today.addDays(-daysSoFar), scan = lastPeriod.addDays(7 * controls[0].week);
    addRecord(eldest->number, lastPeriod);
    addColposcopy(eldest->number, scan);
    dao::Recordset row = BaseDatos.openRecordset(u"Gestaciones"_s);
    row.addNew();
    row[u"idPaciente"] = eldest->number;
    row[u"Gestacion"] = 1;
    row[u"Altura"] = 158;
    row[u"Peso Inicial"] = 53;
    row[u"Dum"] = lastPeriod;
    row[u"Fecha Eco"] = scan;
    row[u"IG Eco Semanas"] = controls[0].week;
    row[u"IG Eco Dias"] = 2;
    row[u"Detalles"] = u"Embarazo adolescente, con acompañamiento familiar."_s;
    row.update();
    addControls(eldest->number, lastPeriod);
}

} // namespace practica
