#include "core/database/actualiza.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "measure.h"
#include "onpractice.h"
#include "platform/basic/environment.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"
#include "practice/affiliates/proceso.h"
#include "practice/cashbook/panCaja.h"
#include "practice/stock/panArticulos.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

/// Cashbook, stock and the import of affiliates, on a copy of a practice: what it adds stays there.
namespace
{

bench::Limits limits;

constexpr int movements = 50'000, articles = 5'000, stockMovements = 100'000, affiliates = 100'000;
constexpr int steps = 200;
constexpr qint64 owner = 1;

void fillCash()
{
    dao::Batch together(BaseDatos);
    dao::Recordset rows = BaseDatos.openRecordset(u"Caja"_s);
    for (int i = 0; i < movements; ++i) {
        rows.addNew();
        caja::escribir(rows, {basic::Date(QDate(2010, 1, 1).addDays(i / 10)), u"Varios"_s,
                              u"Movimiento %1"_s.arg(i), i % 3 == 0, basic::Currency::fromUnits(10000 + i)});
        rows.update();
    }
    together.commit();
}

void step(forms::DBGrid &grid)
{
    std::vector<double> times;
    for (int i = 0; i < steps; ++i)
        times.push_back(bench::elapsed([&grid] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
            QApplication::sendEvent(&grid, &press);
            QApplication::processEvents();
        }));
    if (grid.currentRow() != steps)
        throw std::runtime_error("the cashbook does not follow the arrow keys");
    std::ranges::sort(times);
    limits.time("cashbook of 50,000, an arrow key with its totals, median of 200", times[steps / 2], 16);
    limits.time("the same, worst", times.back(), 16);
}

void cash()
{
    fillCash();
    for (const char *which : {"first", "again"}) {
        panCaja window;
        limits.time(std::string("cashbook of 50,000, open to first paint, ") + which,
                    bench::untilPainted(window), 80);
    }
    panCaja window;
    bench::modally([&] { window.showModal(); },
                   [](forms::Form &form) {
                       step(bench::in<forms::DBGrid>(form, "DBGrid1"));
                       form.unload();
                   });
}

void fillStock()
{
    dao::Batch together(BaseDatos);
    dao::Recordset rows = BaseDatos.openRecordset(u"Articulos"_s);
    for (int i = 0; i < articles; ++i) {
        rows.addNew();
        rows[u"idProfesional"] = owner;
        rows[u"Codigo"] = QString::number(i);
        rows[u"Descripcion"] = u"Artículo %1"_s.arg(i);
        rows[u"StockActual"] = 100;
        rows.update();
    }
    dao::Recordset moves = BaseDatos.openRecordset(u"MovStock"_s);
    for (int i = 0; i < stockMovements; ++i) {
        moves.addNew();
        moves[u"idArticulo"] = 1 + i % articles;
        moves[u"Cantidad"] = 1;
        moves[u"Fecha"] = basic::Date(basic::today().date().addDays(-i / 100));
        moves[u"idTipoMovimiento"] = 1;
        moves[u"Comprobante"] = u"R"_s;
        moves.update();
    }
    together.commit();
}

void goods()
{
    fillStock();
    MODULE11::TipoUsuario = u"M"_s;
    MODULE11::DrActual =
        BaseDatos.openRecordset(u"Select Nombre from Profesionales where idProfesional = %1"_s.arg(owner))
            .value(0)
            .text();
    for (const char *which : {"first", "again"}) {
        panArticulos window;
        limits.time(std::string("list of 5,000 articles, open to first paint, ") + which,
                    bench::untilPainted(window), 120);
    }
    std::vector<double> times;
    for (int i = 0; i < 21; ++i)
        times.push_back(bench::elapsed([i] {
            stock::registrar({stock::Sentido::Salida, basic::today(), 1, u"B"_s, {{1 + i, 1}}});
        }));
    std::ranges::sort(times);
    limits.time("a stock movement beside 100,000, median of 21", times[times.size() / 2], 50);
}

QString roll(const QString &folder, int first, int last, const char *street)
{
    QFile file(folder + u"/padron_bench.txt"_s);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("the roll cannot be written");
    QTextStream lines(&file);
    for (int i = first; i < last; ++i)
        lines << u'B' << u"%1"_s.arg(i, 9, 10, QChar(u'0')) << u"Ñandú, Persona %1"_s.arg(i).leftJustified(24)
              << u"F19900315"_s << street << u' ' << i << u'\n';
    return file.fileName();
}

double import(const QString &file, qint64 added, qint64 changed)
{
    const afiliados::Mapa map = afiliados::leerMapa();
    afiliados::Resumen summary;
    const double time = bench::elapsed([&] {
        summary =
            afiliados::actualizar({u"Medición"_s, file, false}, map, [](qint64, qint64) { return true; });
    });
    if (summary.nuevos != added || summary.modificados != changed)
        throw std::runtime_error("the import has not done what the roll says");
    return time;
}

void rollOfAffiliates(const QString &folder)
{
    BaseDatos.execute(u"Delete * from CamposImport"_s);
    for (const char *field :
         {"'Numero de Afiliado', 1, 10, TRUE", "'Apellido y Nombres', 11, 24, FALSE", "'Sexo', 35, 1, FALSE",
          "'Fecha de Nacimiento', 36, 8, FALSE", "'Domicilio', 44, 40, FALSE"})
        BaseDatos.execute(u"INSERT INTO CamposImport VALUES (%1)"_s.arg(QLatin1StringView(field)));
    constexpr int half = affiliates / 2;
    import(roll(folder, 0, half, "Calle"), half, 0);
    const double time = import(roll(folder, 0, affiliates, "Avenida"), half, half);
    limits.time("import of 100,000 affiliates, half of them known (5,000 lines a second)", time,
                affiliates / 5.0);
    const double again = import(roll(folder, 0, affiliates, "Avenida"), 0, 0);
    limits.time("the same roll again, nothing to change", again, affiliates / 5.0);
}

void measure(const QString &folder)
{
    MODULE11::valoresIniciales();
    BaseDatos.open(basic::programFile(u"BASE.MDB"_s), false, false, MODULE11::conexionDeLaBase());
    MODULE11::ActualizaBase();
    cash();
    goods();
    rollOfAffiliates(folder);
}

} // namespace

int main(int argc, char **argv)
{
    return bench::onPractice(argc, argv, limits, [&] { measure(QString::fromLocal8Bit(argv[1])); });
}
