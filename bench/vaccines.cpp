#include "vaccines.h"

#include "core/session/screens.h"
#include "core/session/session.h"
#include "paediatrics/vaccines/hojaDeVacunas.h"
#include "paediatrics/vaccines/panVacunasAtrasadas.h"
#include "platform/basic/environment.h"
#include "platform/forms/boxes.h"
#include "platform/forms/controls.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScopeGuard>

#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr double patienceToOpen = 80, patienceToDraw = 20, patienceToMark = 300, patienceForAll = 1500;
constexpr int vaccinesOfTheSheet = 12;

const QString ofTheMeasurement = u"Vacunas where Vacuna >= '<Medición' and Vacuna < '<Mediciónz'"_s;

/// Twelve vaccines at each of the twelve ages.
void fillPlan()
{
    dao::Batch together(BaseDatos);
    BaseDatos.execute(u"Delete * from CalVacunas"_s);
    dao::Recordset rows = BaseDatos.openRecordset(u"CalVacunas"_s);
    int order = 0;
    for (int vaccine = 0; vaccine < vaccinesOfTheSheet; ++vaccine) {
        for (const vacunas::FilaDeEdad &age : vacunas::filasDeEdad()) {
            rows.addNew();
            rows[u"Descripcion"] = u"Vacuna %1"_s.arg(vaccine);
            rows[u"detalle"] = u"Difteria, tétanos, tos convulsa"_s;
            rows[u"Dosis"] = age.clave.toString();
            rows[u"Vacuna"] = u"<Medición %1>"_s.arg(vaccine);
            rows[u"orden"] = ++order;
            rows[u"Tiempo en meses"] = age.meses;
            rows.update();
        }
    }
    together.commit();
}

std::vector<std::vector<basic::Value>> planOfThePractice(dao::Recordset &rows)
{
    std::vector<std::vector<basic::Value>> all;
    for (; !rows.eof(); rows.moveNext()) {
        all.emplace_back();
        for (int i = 0; i < static_cast<int>(rows.fields().size()); ++i)
            all.back().push_back(rows.value(i));
    }
    return all;
}

void restorePlan(const std::vector<std::vector<basic::Value>> &plan)
{
    dao::Batch together(BaseDatos);
    BaseDatos.execute(u"Delete * from CalVacunas"_s);
    BaseDatos.execute(u"Delete * from "_s + ofTheMeasurement);
    dao::Recordset rows = BaseDatos.openRecordset(u"select * from CalVacunas"_s);
    for (const std::vector<basic::Value> &row : plan) {
        rows.addNew();
        for (std::size_t i = 0; i < row.size(); ++i)
            rows.setValue(static_cast<int>(i), row[i]);
        rows.update();
    }
    together.commit();
}

std::size_t noted()
{
    return static_cast<std::size_t>(
        BaseDatos.openRecordset(u"Select count(*) from "_s + ofTheMeasurement)[0].integer());
}

void answerYes()
{
    QTimer::singleShot(0, [] {
        QWidget *box = QApplication::activeModalWidget();
        if (!box || !forms::describeBox(box))
            throw std::runtime_error("the sheet does not ask");
        for (auto *button : box->findChildren<QAbstractButton *>())
            if (button->text().remove(u'&') == u"Sí")
                button->click();
    });
}

void sheet(const QString &patient, const Report &report)
{
    for (const char *work : {"a sheet of 144 markers, open to first paint, first", "the same again"}) {
        const auto form = screens::make("panPlanVacunas");
        form->setTag(patient);
        report(work, untilPainted(*form), patienceToOpen);
    }
    const auto form = screens::make("panPlanVacunas");
    form->setTag(patient);
    modally([&] { form->showModal(); },
            [&](forms::Form &open) {
                auto &canvas = in<vacunas::HojaDeVacunas>(open, "hoja");
                report("the sheet built and drawn anew", elapsed([&] {
                           vacunas::Planilla planilla = vacunas::planilla(vacunas::plan());
                           const vacunas::EdadDelPlan age{500, 41, 8};
                           planilla.ponerEstados(patient.toLongLong(), age);
                           canvas.mostrar(planilla, age);
                           canvas.viewport()->grab();
                       }),
                       patienceToDraw);
                auto &all = in<forms::CommandButton>(open, "Command3");
                answerYes();
                report("a whole plan of 144 doses marked, each row durable", elapsed([&] { all.click(); }),
                       patienceToMark);
                if (noted() != vacunas::filasDeEdad().size() * vaccinesOfTheSheet)
                    throw std::runtime_error("not all doses of the sheet were marked");
                open.unload();
            });
}

void late(const Report &report)
{
    panVacunasAtrasadas window;
    modally([&] { window.showModal(); },
            [&](forms::Form &open) {
                auto &look = in<forms::CommandButton>(open, "Command1");
                for (const char *work : {"all children late for vaccines, first", "the same list again"})
                    report(work, elapsed([&] {
                               look.click();
                               open.grab();
                           }),
                           patienceForAll);
                std::cout << "     of "
                          << BaseDatos.openRecordset(u"Select count(*) from Vacunas"_s)[0].integer()
                          << " doses noted: " << in<forms::Label>(open, "Label1").caption().toStdString()
                          << '\n';
                open.unload();
            });
}

} // namespace

void vaccines(const Report &report)
{
    // An adult: the whole plan is overdue.
    BaseDatos.execute(u"Delete * from Pacientes where Numero = 2147483000"_s);
    BaseDatos.execute(u"INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Fecha de Nacimiento]) "
                      u"VALUES (2147483000, '<Medición>', cdate('01/01/1980'))"_s);
    {
        dao::Recordset rows = BaseDatos.openRecordset(u"select * from CalVacunas order by orden"_s,
                                                      dao::Recordset::Kind::Snapshot);
        const auto plan = planOfThePractice(rows);
        const QScopeGuard restored([&] { restorePlan(plan); });
        fillPlan();
        sheet(u"2147483000"_s, report);
    }
    late(report);
    BaseDatos.execute(u"Delete * from Pacientes where Numero = 2147483000"_s);
}

} // namespace bench
