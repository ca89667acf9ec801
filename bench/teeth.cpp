#include "teeth.h"

#include "core/session/session.h"
#include "platform/forms/controls.h"
#include "specialties/odontology/PannuePractico.h"
#include "specialties/odontology/esquemas.h"
#include "specialties/odontology/presupuestos.h"
#include "specialties/odontology/tooth.h"

#include <QCoreApplication>

#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int schemes = 10, practices = 2000, budgets = 20000;
constexpr double patienceForChart = 200, patienceForScheme = 60, patienceForSaving = 50, patienceForKey = 40,
                 patienceForBudgets = 120; // milliseconds

/// No practice of a real list begins so; what was added is found again by it.
const QString mark = u"zzmedida"_s;

/// A mouth in which every tooth has something, each time something else.
odonto::Esquema mouth(int which)
{
    odonto::Esquema full;
    for (int tooth = 1; tooth <= odonto::piezas; ++tooth) {
        const auto kinds = odonto::clasesDeMarca();
        full.alternarMarca(tooth, kinds[static_cast<std::size_t>(tooth + which) % kinds.size()].tipo,
                           odonto::azul);
        full.ponerLeyenda(tooth, u"pieza %1"_s.arg(which), odonto::rojo);
        full.pintar(odonto::caraDe(tooth, (tooth + which) % odonto::carasPorPieza), odonto::rojo);
    }
    return full;
}

void addAll(qint64 patient)
{
    dao::Batch together(BaseDatos);
    for (int i = 0; i < schemes; ++i) {
        const odonto::Esquema full = mouth(i);
        esquemas::crear(patient, u"Esquema %1"_s.arg(i), {full.string1(), full.string2()});
    }
    for (int i = 0; i < practices; ++i)
        presupuestos::nuevaPractica(u"%1 %2"_s.arg(mark).arg(i), basic::Currency::fromDouble(100));
    dao::Recordset heads = BaseDatos.openRecordset(u"Presupuestos"_s);
    for (int i = 0; i < budgets; ++i) {
        heads.addNew();
        heads[u"codpaciente"] = patient;
        heads[u"fecha"] = QDate(2010, 1, 1).addDays(i / 10);
        heads[u"Descripcion"] = mark;
        heads.update();
    }
    together.commit();
}

void takeAway(qint64 patient)
{
    BaseDatos.execute(u"Delete * from Odontograma where idPaciente = %1"_s.arg(patient));
    BaseDatos.execute(u"Delete * from practicos where detalle LIKE '%1*'"_s.arg(mark));
    BaseDatos.execute(u"Delete * from presupuestos where Descripcion = '%1'"_s.arg(mark));
}

/// Until what was asked for is in sight.
double untilSeen(forms::Form &window, const std::function<void()> &work)
{
    return elapsed([&] {
        work();
        window.grab();
    });
}

void measureChart(const Report &report, qint64 patient)
{
    QElapsedTimer opening;
    opening.start();
    tooth window;
    window.setTag(QString::number(patient));
    const double built = milliseconds(opening);
    opening.start();
    modally(
        [&] { window.showModal(); },
        [&](forms::Form &form) {
            form.grab();
            report("tooth, open to first paint", built + milliseconds(opening), patienceForChart);
            auto &list = in<forms::ComboBox>(form, "Combo1");
            for (const int i : {1, 2, 3})
                report("tooth, another scheme", untilSeen(form, [&] { list.setCurrentIndex(i); }),
                       patienceForScheme);
            emit in<odonto::Odontograma>(form, "Picture1").caraPulsada(odonto::caraDe(1, odonto::Centro));
            in<QToolButton>(form, "SSPanel2(0)").click();
            report("tooth, scheme saved",
                   elapsed([&] { in<forms::CommandButton>(form, "Command1").click(); }), patienceForSaving);
            in<forms::CommandButton>(form, "sMenu(1)").click();
            auto &all = in<forms::CommandButton>(form, "Command22");
            report("tooth, 20,000 budgets listed", untilSeen(form, [&] { all.click(); }), patienceForBudgets);
            form.unload();
        });
}

void measurePrices(const Report &report)
{
    PannuePractico window;
    modally([&] { window.showModal(); },
            [&](forms::Form &form) {
                auto &field = in<forms::SearchBox>(form, "Text1");
                double slowest = 0;
                for (qsizetype typed = 1; typed <= mark.size(); ++typed)
                    slowest = std::max(slowest, untilSeen(form, [&] { field.setText(mark.left(typed)); }));
                report("PannuePractico, a key over 2,000 practices", slowest, patienceForKey);
                form.unload();
            });
}

} // namespace

void teeth(const Report &report)
{
    const dao::Recordset patients = BaseDatos.openRecordset(
        u"Select top 1 Numero from Pacientes where Numero not in (Select IdPaciente from Odontograma)"_s);
    if (patients.eof()) {
        std::cout << "skipped: teeth, no patient without a tooth chart\n";
        return;
    }
    const qint64 patient = patients.value(0).integer();
    addAll(patient);
    for (int i = 0; i < 3; ++i)
        measureChart(report, patient);
    measurePrices(report);
    takeAway(patient);
}

} // namespace bench
