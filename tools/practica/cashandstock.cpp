#include "cashandstock.h"

#include "core/session/session.h"
#include "practice/cashbook/caja.h"
#include "practice/stock/stock.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

namespace
{

constexpr qint64 owner = 1; // the first professional
constexpr int daysOfCash = 365;
constexpr int weeksOfStock = 26;

struct Expense {
    const char *account, *detail;
    int day; ///< of the month
    int pesos;
};
constexpr Expense expenses[] = {
    {"Alquiler", "Alquiler y expensas", 5, 420000},         {"Servicios", "Luz", 12, 38500},
    {"Servicios", "Internet y teléfono", 15, 29900},        {"Limpieza", "Servicio de limpieza", 28, 96000},
    {"Sueldos y cargas sociales", "Secretaria", 4, 680000}, {"Impuestos y tasas", "Monotributo", 20, 61000},
};
constexpr int feeOfAVisit = 18000;

struct Article {
    const char *code, *name, *group, *unit;
    int minimum, ideal, pesos;
};
constexpr Article articles[] = {
    {"BAJ", "Bajalenguas de madera", "Descartables", "Caja", 2, 6, 5200},
    {"GUA-M", "Guantes de látex medianos", "Descartables", "Caja", 4, 12, 9800},
    {"ROLLO", "Rollo para camilla", "Descartables", "Unidad", 5, 15, 3400},
    {"GAS", "Gasa estéril 10 x 10", "Descartables", "Paquete", 10, 40, 850},
    {"ALC", "Alcohol 70 %", "Limpieza", "Litro", 3, 8, 2900},
    {"JER-5", "Jeringa de 5 ml", "Descartables", "Unidad", 30, 100, 180},
    {"IBU", "Ibuprofeno 2 % jarabe, muestra", "Medicamentos", "Frasco", 5, 20, 0},
    {"OTO", "Conos para otoscopio", "Instrumental", "Paquete", 1, 4, 7600},
};
constexpr const char *suppliers[] = {"Droguería del Parque", "Insumos San Telmo"};

basic::Date day(QDate date)
{
    return basic::Date(date);
}

void addMovement(dao::Recordset &rows, QDate date, const QString &account, const QString &detail, bool in,
                 int pesos)
{
    rows.addNew();
    caja::escribir(rows, {day(date), account, detail, in, basic::Currency::fromUnits(qint64(pesos) * 10000)});
    rows.update();
}

qint64 key(const char *table, const char *column, const QString &name, const char *field = "Descripcion")
{
    dao::Recordset row = BaseDatos.openRecordset(u"Select %1 from %2 where %3 = '%4'"_s.arg(
        QLatin1StringView(column), QLatin1StringView(table), QLatin1StringView(field), name));
    return row[0].integer();
}

void addArticle(const Article &article, const QString &supplier)
{
    dao::Recordset row = BaseDatos.openRecordset(u"Articulos"_s);
    row.addNew();
    row[u"idProfesional"] = owner;
    row[u"Codigo"] = QString::fromUtf8(article.code);
    row[u"Descripcion"] = QString::fromUtf8(article.name);
    row[u"idProveedor"] = key("Proveedores", "idProveedor", supplier, "Empresa");
    row[u"idRubro"] = key("Rubros", "idRubro", QString::fromUtf8(article.group));
    row[u"idUnidadMedida"] = key("UnidadMedidas", "idUnidadMedida", QString::fromUtf8(article.unit));
    row[u"StockActual"] = 0;
    row[u"StockMinimo"] = article.minimum;
    row[u"StockIdeal"] = article.ideal;
    row[u"CostoTotal"] = basic::Currency::fromUnits(qint64(article.pesos) * 10000);
    row.update();
}

/// All are bought once, and used week by week until little is left of some.
void useArticles(QDate today, Dice &dice)
{
    stock::Movimiento bought{stock::Sentido::Entrada,
                             day(today.addDays(-7 * weeksOfStock)),
                             key("TipoMovimientos", "idTipoMovimiento", u"Compra"_s),
                             u"R 0001-00004512"_s,
                             {}};
    qint64 id = 0;
    for (const Article &article : articles)
        bought.renglones.push_back({++id, double(article.ideal)});
    stock::registrar(bought);
    const qint64 used = key("TipoMovimientos", "idTipoMovimiento", u"Consumo"_s);
    std::vector<int> left;
    for (const Article &article : articles)
        left.push_back(article.ideal);
    for (int week = 1; week < weeksOfStock; ++week) {
        const auto which = static_cast<std::size_t>(between(dice, 0, int(std::size(articles)) - 1));
        const int amount = std::min(left[which], std::max(1, articles[which].ideal / 4));
        if (amount == 0)
            continue;
        left[which] -= amount;
        stock::registrar({stock::Sentido::Salida,
                          day(today.addDays(7 * (week - weeksOfStock))),
                          used,
                          u"Semana %1"_s.arg(week),
                          {{qint64(which) + 1, double(amount)}}});
    }
}

} // namespace

void addCash(QDate today, Dice &dice)
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Caja"_s);
    for (QDate date = today.addDays(-daysOfCash); date <= today; date = date.addDays(1)) {
        for (const Expense &expense : expenses)
            if (expense.day == date.day())
                addMovement(rows, date, QString::fromUtf8(expense.account), QString::fromUtf8(expense.detail),
                            false, expense.pesos);
        if (const int visits = date.dayOfWeek() > 5 ? 0 : between(dice, 0, 4); visits > 0)
            addMovement(rows, date, u"Consultas particulares"_s, u"Consultas: %1"_s.arg(visits), true,
                        visits * feeOfAVisit);
    }
}

void addStock(QDate today, Dice &dice)
{
    dao::Recordset rows = BaseDatos.openRecordset(u"Proveedores"_s);
    for (const char *supplier : suppliers) {
        rows.addNew();
        rows[u"Empresa"] = QString::fromUtf8(supplier);
        rows[u"Telefono"] = u"(011) 4555-%1"_s.arg(between(dice, 1000, 9999));
        rows.update();
    }
    for (std::size_t i = 0; i < std::size(articles); ++i)
        addArticle(articles[i], QString::fromUtf8(suppliers[i % std::size(suppliers)]));
    useArticles(today, dice);
}

} // namespace practica
