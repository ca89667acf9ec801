#include "visits.h"

#include "samplevisit.h"

#include "clinical/visits/consulta.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTreeWidget>

#include <algorithm>
#include <iostream>
#include <numeric>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr double patience = 150; // milliseconds
constexpr double keyRepeat = 33;
constexpr double patienceForTree = 300;
constexpr double patienceForBranch = 50;

std::unique_ptr<forms::Form> screen(screens::Window name)
{
    auto made = screens::make(name);
    if (!made)
        std::cout << "skipped: " << name.text().toStdString() << " is not registered\n";
    return made;
}

void reportAll(const std::string &work, std::vector<double> times, const char *middle, double typical,
               double limit, const Report &report)
{
    report((work + ", " + middle).c_str(), typical, limit);
    report((work + ", worst of " + std::to_string(times.size())).c_str(),
           *std::max_element(times.begin(), times.end()), limit);
}

/// Only what has a later key than any before is taken away again.
void recording(const QString &patient, const Report &report)
{
    const qint64 before = BaseDatos.openRecordset(u"Select max(idConsulta) from Consulta"_s)[0].integer();
    const basic::Value lastVisit = BaseDatos.openRecordset(
        u"Select [Ultima fecha visita] from Pacientes where Numero = "_s + patient)[0];
    const consultas::Visita visit = sampleVisit();
    std::vector<double> times;
    for (int i = 0; i < 20; ++i)
        times.push_back(elapsed([&] { registrarConsulta(patient, visit); }));
    std::sort(times.begin(), times.end());
    reportAll("a visit of 36 rows recorded", times, "median", times[times.size() / 2], patience, report);

    for (const char *table : {"ExFisico", "Consulta"})
        BaseDatos.execute(
            u"Delete * from %1 where idConsulta > %2"_s.arg(QString::fromLatin1(table)).arg(before));
    dao::Recordset register_ =
        BaseDatos.openRecordset(u"Select * from Pacientes where Numero = "_s + patient);
    register_.edit();
    register_[u"Ultima fecha visita"] = lastVisit;
    register_.update();
}

/// From the last visit, on which the window opens, to the first and back.
void stepping(forms::DBGrid &grid, const Report &report)
{
    const int last = grid.currentRow();
    std::vector<double> times;
    const auto steps = [&](Qt::Key key, int towards) {
        while (grid.currentRow() != towards) {
            const int from = grid.currentRow();
            times.push_back(elapsed([&] {
                QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
                QApplication::sendEvent(&grid, &press);
                QApplication::processEvents();
            }));
            if (grid.currentRow() == from)
                throw std::runtime_error("the list of visits does not follow the arrow keys");
        }
    };
    steps(Qt::Key_Up, 0);
    steps(Qt::Key_Down, last);
    if (times.empty())
        throw std::runtime_error("the list of visits holds a single one");
    const double sum = std::accumulate(times.begin(), times.end(), 0.0);
    reportAll("a step to the next visit", times, "mean", sum / static_cast<double>(times.size()), keyRepeat,
              report);
}

void browsing(const QString &patient, const Report &report)
{
    QElapsedTimer timer;
    timer.start();
    auto made = screen("panVisitas");
    if (!made)
        return;
    forms::Form *window = made.release(); // the area of the child windows owns it
    window->setTag(patient);
    window->showChild();
    window->grab();
    report("panVisitas, open to first paint", milliseconds(timer), patience);
    QApplication::processEvents();
    stepping(in<forms::DBGrid>(*window, "DBGrid1"), report);
    window->unload();
}

/// A category that nobody has opened yet shows its diseases.
void branch(forms::Form &window, const Report &report)
{
    auto &tree = in<QTreeWidget>(window, "TreeView1");
    QTreeWidgetItem *category = tree.topLevelItem(0);
    for (int level = 0; level < 2; ++level) {
        category->setExpanded(true);
        category = category->child(0);
    }
    window.grab();
    report("panCIE10: a category opened", elapsed([&] {
               category->setExpanded(true);
               window.grab();
           }),
           patienceForBranch);
    if (category->childCount() == 0)
        throw std::runtime_error("the category opened without its diseases");
}

void searching(forms::Form &window, const Report &report)
{
    for (const char *text : {"INFECCION", "infección", "no especificad"})
        report((std::string("panCIE10: search of ") + text).c_str(), elapsed([&] {
                   in<QLineEdit>(window, "Text2").setText(QString::fromUtf8(text));
                   in<QPushButton>(window, "Command7").click();
                   window.grab();
               }),
               patienceForTree);
}

void classification(const Report &report)
{
    QElapsedTimer timer;
    timer.start();
    const auto made = screen("panCIE10");
    if (!made)
        return;
    modally([&] { made->showModal(); },
            [&](forms::Form &window) {
                window.grab();
                report("panCIE10, open to first paint", milliseconds(timer), patienceForTree);
                branch(window, report);
                searching(window, report);
                window.unload();
            });
}

} // namespace

void visits(const Report &report)
{
    dao::Recordset most = BaseDatos.openRecordset(
        u"Select paciente, count(*) from Consulta group by paciente order by 2 desc, 1"_s);
    if (most.eof() || most[1].integer() < 100) {
        std::cout << "visits skipped: no patient with a hundred of them\n";
        return;
    }
    const QString patient = most[0].text();
    std::cout << "visits of patient " << patient.toStdString() << ": " << most[1].integer() << '\n';
    // A professional sees only his own examination rows.
    MODULE11::DrActual =
        BaseDatos
            .openRecordset(
                u"Select Dr from Consulta where paciente = %1 order by Fecha desc"_s.arg(patient))[0]
            .text();
    recording(patient, report);
    browsing(patient, report);
    classification(report);
}

} // namespace bench
