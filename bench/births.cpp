#include "births.h"

#include "core/session/session.h"
#include "paediatrics/perinatal/panAntPerinatales.h"
#include "paediatrics/pressure/panTension.h"
#include "platform/forms/controls.h"

#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int readings = 1000;
constexpr double patienceToOpen = 120, patienceToStore = 80, patienceForPressures = 80; // milliseconds

/// A patient whose birth is not on record.
QString patientWithoutRecord()
{
    const dao::Recordset patients = BaseDatos.openRecordset(
        u"Select top 1 Numero from Pacientes where Sexo <> '' and Numero not in (Select idPaciente from Perinatal)"_s);
    return patients.eof() ? QString() : patients.value(0).text();
}

void record(const QString &patient, const Report &report)
{
    panAntPerinatales window;
    window.setTag(patient);
    QElapsedTimer opening;
    opening.start();
    modally([&] { window.showModal(); },
            [&](forms::Form &open) {
                open.grab();
                report("panAntPerinatales, open to first paint", milliseconds(opening), patienceToOpen);
                auto &accept = in<forms::CommandButton>(open, "Command1");
                report("panAntPerinatales, stored", elapsed([&] { accept.click(); }), patienceToStore);
            });
    if (window.tag() != u"SI")
        throw std::runtime_error("the birth record was not stored");
}

void pressures(const QString &patient, const Report &report)
{
    {
        dao::Batch together(BaseDatos);
        dao::Recordset table = BaseDatos.openRecordset(u"TomaPresion"_s);
        for (int i = 0; i < readings; ++i) {
            table.addNew();
            table[u"Paciente"] = patient.toLongLong();
            table[u"fecha"] = QDate(2010, 1, 1).addDays(i * 4);
            table[u"maxima"] = 90 + i % 40;
            table[u"minima"] = 50 + i % 30;
            table.update();
        }
        together.commit();
    }
    panTension window;
    window.setTag(patient);
    report("panTension with 1,000 readings, open to first paint", untilPainted(window), patienceForPressures);
}

} // namespace

void births(const Report &report)
{
    const QString patient = patientWithoutRecord();
    if (patient.isEmpty()) {
        std::cout << "skipped: births, no patient without a birth record\n";
        return;
    }
    const QString medidas =
        u"from Medidas where Paciente = %1 and fecha in (Select [Fecha de Nacimiento] from "
        "Pacientes where Numero = %1)"_s.arg(patient);
    const bool measured = BaseDatos.openRecordset(u"Select count(*) "_s + medidas)[0].integer() > 0;
    for (int i = 0; i < 3; ++i)
        record(patient, report);
    pressures(patient, report);
    BaseDatos.execute(u"Delete * from Perinatal where idPaciente = "_s + patient);
    BaseDatos.execute(u"Delete * from TomaPresion where Paciente = "_s + patient);
    if (!measured)
        BaseDatos.execute(u"Delete * "_s + medidas);
}

} // namespace bench
