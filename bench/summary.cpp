#include "summary.h"

#include "clinical/family/panArbol.h"
#include "clinical/history/historiaComoTexto.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int eventsOfTheYear = 500, eventsOfALife = 2000;
constexpr double patienceToOpen = 120, patienceToReturn = 60; // milliseconds
constexpr double patienceForAYear = 60, patienceForALife = 300;
constexpr double patienceForTheTree = 80, patienceToHover = 5;
const QString mark = u"<Medición>"_s;

/// Half of them vaccines, half measures, evenly over the days before today.
void addEvents(qint64 patient, int count, int days, int from)
{
    dao::Batch together(BaseDatos);
    dao::Recordset vaccines = BaseDatos.openRecordset(u"Vacunas"_s);
    dao::Recordset measures = BaseDatos.openRecordset(u"Medidas"_s);
    for (int i = 0; i < count; ++i) {
        const basic::Date date = basic::dateAdd(u"d", -(from + i * days / count), basic::today());
        dao::Recordset &table = i % 2 == 0 ? vaccines : measures;
        table.addNew();
        table[u"Paciente"] = patient;
        table[u"fecha"] = date;
        if (i % 2 == 0) {
            table[u"Vacuna"] = mark;
            table[u"Dosis"] = QString::number(from + i);
        } else {
            table[u"Lugar de Consulta"] = mark;
            table[u"Peso"] = 9000 + i;
            table[u"Talla"] = 80;
            table[u"Pc"] = 45;
        }
        table.update();
    }
    together.commit();
}

void opening(const QString &patient, const Report &report)
{
    for (const char *which :
         {"panEstadPaciente, open to first paint, first", "panEstadPaciente, open to first paint, again"}) {
        forms::Form *page = nullptr;
        report(which, elapsed([&] {
                   page =
                       screens::make("panEstadPaciente").release(); // the area of the child windows owns it
                   page->setTag(patient);
                   page->showChild();
                   page->grab();
               }),
               patienceToOpen);
        QApplication::processEvents();
        forms::Form other(u"otra"_s);
        std::vector<double> times;
        for (int i = 0; i < 9; ++i) {
            forms::activated(&other);
            times.push_back(elapsed([&] {
                forms::activated(page);
                page->grab();
            }));
        }
        std::ranges::sort(times);
        report("panEstadPaciente, activated again, median of 9", times[times.size() / 2], patienceToReturn);
        page->unload();
        QApplication::processEvents();
    }
}

void telling(qint64 patient, const Report &report)
{
    report("history as text of a year with 500 events",
           elapsed([&] { clinical::historiaComoTexto(patient, false); }), patienceForAYear);
    addEvents(patient, eventsOfALife - eventsOfTheYear, 3650, 400);
    const auto all = clinical::ContenidoDeHistoria::todo(basic::Date(QDate(1900, 1, 1)), basic::today());
    report("history as text of a life of 2,000 events",
           elapsed([&] { clinical::textoDeHistoria(patient, all); }), patienceForALife);
}

void family(const QString &patient, const Report &report)
{
    panArbol tree;
    tree.setTag(patient);
    report("family tree, open to first paint", untilPainted(tree), patienceForTheTree);

    panArbol pointed;
    pointed.setTag(patient);
    modally([&] { pointed.showModal(); },
            [&](forms::Form &window) {
                window.grab();
                QWidget *surface = in<familia::ArbolFamiliar>(window, "arbol").viewport();
                double worst = 0;
                for (int x = 0; x < surface->width(); x += 20) {
                    const QPointF at(x, surface->height() / 2.0);
                    QMouseEvent move(QEvent::MouseMove, at, surface->mapToGlobal(at), Qt::NoButton,
                                     Qt::NoButton, Qt::NoModifier);
                    worst = std::max(worst, elapsed([&] {
                                         QApplication::sendEvent(surface, &move);
                                         QApplication::processEvents();
                                     }));
                }
                report("family tree: the pointer over a relative, worst", worst, patienceToHover);
                window.unload();
            });
}

} // namespace

void summary(const Report &report)
{
    const dao::Recordset busiest = BaseDatos.openRecordset(
        u"Select top 1 Paciente, count(*) as n from Consulta group by Paciente order by count(*) desc"_s);
    if (busiest.eof()) {
        std::cout << "skipped: the patient's page, no visits\n";
        return;
    }
    const QString patient = busiest.value(0).text();
    const qint64 number = patient.toLongLong();
    addEvents(number, eventsOfTheYear, 364, 0);
    opening(patient, report);
    telling(number, report);
    family(patient, report);
    BaseDatos.execute(u"Delete * from Vacunas where Paciente = %1 and Vacuna = '%2'"_s.arg(patient, mark));
    BaseDatos.execute(
        u"Delete * from Medidas where Paciente = %1 and [Lugar de Consulta] = '%2'"_s.arg(patient, mark));
}

} // namespace bench
