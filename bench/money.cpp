#include "money.h"

#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"
#include "practice/billing/facturacion.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cstdlib>
#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr int tariffs = 10000, lines = 5000, visitsOfAYear = 20000, steps = 100;
const QString mark = u"<Medición> "_s;

qint64 number(const QString &sql)
{
    return BaseDatos.openRecordset(sql).value(0).integer();
}

void key(QWidget &control, int key, const QString &text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&control, &press);
    QApplication::processEvents();
}

void median(std::vector<double> times, const Report &report, const char *work, double limit)
{
    std::ranges::sort(times);
    report((std::string(work) + ", median").c_str(), times[times.size() / 2], limit);
    report((std::string(work) + ", worst").c_str(), times.back(), limit);
}

int yearToShow()
{
    int best = 0;
    qint64 distance = -1;
    const int last =
        BaseDatos.openRecordset(u"Select max(Fecha) from Consulta"_s).value(0).date().date().year();
    for (int year = last; year > last - 20; --year) {
        const qint64 visits =
            number(u"Select count(*) from Consulta where Fecha >= cdate('01/01/%1') and Fecha < "
                   u"cdate('01/01/%2')"_s.arg(year)
                       .arg(year + 1));
        if (distance < 0 || std::llabs(visits - visitsOfAYear) < distance) {
            distance = std::llabs(visits - visitsOfAYear);
            best = year;
        }
    }
    return best;
}

void dayBook(const Report &report)
{
    const QString year = QString::number(yearToShow());
    forms::Form *window = screens::make("panDiario").release(); // the area of the child windows owns it
    window->showChild();
    QApplication::processEvents();
    auto &years = in<forms::ComboBox>(*window, "Combo2");
    auto &grid = in<forms::DBGrid>(*window, "DBGrid1");
    years.setValue(year);
    for (const char *which : {"a year's day book, first", "a year's day book, again"})
        report(which, elapsed([&] {
                   in<forms::CommandButton>(*window, "Command8").click();
                   window->grab();
               }),
               250);
    std::cout << "     visits of " << year.toStdString() << ": " << grid.model()->rowCount() << '\n';
    std::vector<double> times;
    for (int i = 0; i < steps; ++i)
        times.push_back(elapsed([&] { key(grid, Qt::Key_Down); }));
    if (grid.currentRow() < steps)
        throw std::runtime_error("the day book does not follow the arrow keys");
    median(std::move(times), report, "an arrow key in it with its totals", 16);
    window->unload();
}

void addTariffs()
{
    dao::Batch together(BaseDatos, dao::Batch::Long);
    dao::Recordset rows = BaseDatos.openRecordset(u"Prestaciones"_s);
    for (int i = 0; i < tariffs; ++i) {
        rows.addNew();
        rows[u"Codigo"] = u"M%1"_s.arg(i, 6, 10, QChar(u'0'));
        rows[u"Descripcion"] = mark + QString::number((i * 7919) % tariffs);
        rows[u"Honorarios Especialista"] = basic::Currency::fromUnits(i * 10000);
        rows.update();
    }
    together.commit();
}

void priceList(const Report &report)
{
    addTariffs();
    const auto window = screens::make("panPrestaciones");
    report("panPrestaciones with 10,000 tariffs, open to first paint", untilPainted(*window), 80);
    std::vector<double> times;
    const auto again = screens::make("panPrestaciones");
    modally([&] { again->showModal(); },
            [&](forms::Form &open) {
                auto &search = in<forms::SearchBox>(open, "txtBusca");
                search.setFocus();
                for (const QChar letter : u"medición> 999"_s)
                    times.push_back(elapsed([&] {
                        key(search, letter.unicode(), letter);
                        open.grab();
                    }));
                open.unload();
            });
    median(std::move(times), report, "a search key in them", 40);
    BaseDatos.execute(u"Delete * from Prestaciones where Descripcion LIKE '%1*'"_s.arg(mark));
}

/// Of one year: a practice bills every month.
void billing(const Report &report)
{
    const dao::Recordset busiest = BaseDatos.openRecordset(
        u"Select top 1 Dr, Mutual, count(*) as visitas from Consulta where Facturada = 0 and Mutual <> '' group by Dr, "
        u"Mutual order by 3 desc"_s);
    facturacion::Partes parties{1, 1, busiest.value(0).text(), busiest.value(1).text()};
    const int year = yearToShow();
    const basic::Date from(QDate(year, 1, 1)), to(QDate(year, 12, 31));
    number(u"Select count(*) from Caja"_s); // what the deletion of the tariffs left to do is not the sum's
    for (const char *which : {"the pending sum of an insurer, first", "the pending sum of an insurer, again"})
        report(which, elapsed([&] {
                   MODULE11::BuscaCampo(facturacion::sumaDePendientes(parties, from, to), u"Total");
               }),
               40);
    const dao::Recordset pending = BaseDatos.openRecordset(facturacion::pendientes(parties, from, to));
    std::cout << "     visits pending of it: " << pending.rowCount() << '\n';
    BaseDatos.execute(
        u"UPDATE Consulta SET TmpCheck = 'o' WHERE idConsulta IN (SELECT TOP %1 idConsulta FROM Consulta "
        u"WHERE Facturada = 0 ORDER BY idConsulta)"_s.arg(lines));
    QElapsedTimer stroke;
    double longest = 0;
    std::optional<qint64> bill;
    stroke.start();
    report("a bill of 5,000 lines", elapsed([&] {
               bill =
                   facturacion::factura(BaseDatos, parties, {u"M"_s, to, false, false}, [&](qint64, qint64) {
                       longest = std::max(longest, milliseconds(stroke));
                       stroke.restart();
                   });
           }),
           1500);
    report("its longest stroke, for which other stations wait", longest, 300);
    if (!bill ||
        number(u"Select count(*) from DetalleFacturacion where idFactura = %1"_s.arg(*bill)) != lines)
        throw std::runtime_error("the bill does not have its lines");
    BaseDatos.execute(u"UPDATE Consulta SET Facturada = FALSE WHERE idConsulta IN (SELECT idConsulta FROM "
                      u"DetalleFacturacion WHERE idFactura = %1)"_s.arg(*bill));
    BaseDatos.execute(u"Delete * from DetalleFacturacion where idFactura = %1"_s.arg(*bill));
    BaseDatos.execute(u"Delete * from Facturacion where idFacturacion = %1"_s.arg(*bill));
}

} // namespace

void money(const Report &report)
{
    if (number(u"Select count(*) from Consulta"_s) < lines) {
        std::cout << "skipped: money, too few visits\n";
        return;
    }
    dayBook(report);
    priceList(report);
    billing(report);
}

} // namespace bench
