#include "laboratory.h"

#include "clinical/laboratory/analisis.h"
#include "clinical/laboratory/panComparaAnalisis.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int orders = 200;
constexpr double patience = 150; // milliseconds
constexpr double keyRepeat = 33;
constexpr double patienceForComparison = 100;
const QString mark = u"<Medición>"_s;

void addOrders(qint64 patient)
{
    const QStringList tests = laboratorio::estudios();
    dao::Batch together(BaseDatos);
    dao::Recordset table = BaseDatos.openRecordset(u"Analisis"_s);
    for (int i = 0; i < orders; ++i) {
        table.addNew();
        laboratorio::escribirPedido(
            table, patient,
            {basic::Date(QDate(2020, 1, 1).addDays(i)), basic::Date(QTime(8, 0)), {}, mark, tests});
        table.update();
    }
    together.commit();
}

void stepping(forms::DBGrid &grid, const Report &report)
{
    std::vector<double> times;
    for (int i = 1; i < orders; ++i)
        times.push_back(elapsed([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
            QApplication::sendEvent(&grid, &press);
            QApplication::processEvents();
        }));
    if (grid.currentRow() < orders - 1)
        throw std::runtime_error("the list of orders does not follow the arrow keys");
    std::ranges::sort(times);
    report("a step to the next laboratory order, median", times[times.size() / 2], keyRepeat);
    report("a step to the next laboratory order, worst of 199", times.back(), keyRepeat);
}

void browsing(const QString &patient, const Report &report)
{
    QElapsedTimer timer;
    timer.start();
    forms::Form *window = screens::make("panAnalisis").release(); // the area of the child windows owns it
    window->setTag(patient);
    window->showChild();
    window->grab();
    report("panAnalisis, open to first paint", milliseconds(timer), patience);
    QApplication::processEvents();
    auto &grid = in<forms::DBGrid>(*window, "DBGrid1");
    grid.setCurrentRow(0);
    stepping(grid, report);
    window->unload();
}

void comparing(const QString &patient, const Report &report)
{
    panComparaAnalisis window;
    window.setTag(patient);
    const auto compare = [&report](forms::Form &open) {
        auto &tests = in<forms::ListBox>(open, "List1");
        {
            const QSignalBlocker all(tests);
            for (int i = 1; i < tests.count(); ++i)
                tests.item(i)->setCheckState(Qt::Checked);
        }
        report("comparison of all tests of 200 orders", elapsed([&] {
                   tests.item(0)->setCheckState(Qt::Checked);
                   open.grab();
               }),
               patienceForComparison);
        open.unload();
    };
    modally([&] { window.showModal(); }, compare);
}

} // namespace

void laboratory(const Report &report)
{
    const dao::Recordset patients = BaseDatos.openRecordset(u"Select top 1 Numero from Pacientes"_s);
    if (patients.eof()) {
        std::cout << "skipped: laboratory, no patients\n";
        return;
    }
    const QString patient = patients.value(0).text();
    addOrders(patient.toLongLong());
    browsing(patient, report);
    comparing(patient, report);
    BaseDatos.execute(
        u"Delete * from Analisis where paciente = %1 and Descripcion = '%2'"_s.arg(patient, mark));
}

} // namespace bench
