#include "delivered.h"

#include "practice/cashbook/caja.h"
#include "practice/stock/stock.h"

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

class Money : public DeliveredBase
{
};

const QDate march1(2024, 3, 1), march15(2024, 3, 15);

} // namespace

TEST_F(Money, amountsAreReadAsNumbersOfTheProgramAndSumsAreExact)
{
    EXPECT_EQ(caja::importe(u"1500,50"_s), basic::Currency::fromUnits(15005000));
    EXPECT_EQ(caja::importe(u"1.500,5"_s), basic::Currency::fromUnits(15005000));
    EXPECT_EQ(caja::importe(u"12abc"_s), basic::Currency());
    EXPECT_EQ(caja::importe(u"0.00"_s), basic::Currency());
    dao::Recordset rows = BaseDatos.openRecordset(u"Caja"_s);
    dao::Batch together(BaseDatos);
    for (int i = 0; i < 1000; ++i) {
        rows.addNew();
        caja::escribir(rows,
                       {basic::Date(march15), u"Varios"_s, {}, i % 2 == 0, basic::Currency::fromUnits(1001)});
        rows.update();
    }
    together.commit();
    const auto sums = caja::Consulta().sumas();
    ASSERT_TRUE(sums);
    EXPECT_EQ(sums->entradas.units(), 500500);
    EXPECT_EQ(sums->salidas.units(), 500500);
}

TEST_F(Money, aFilterTakesTheHoursOfItsDaysAndTheAccountWithoutItsBlanks)
{
    run({"INSERT INTO Caja (Fecha, Cuenta, Entrada, Salida) VALUES (cdate('15/03/2024 23:59:59'), ' O''Luz ', 1, "
         "NULL)",
         "INSERT INTO Caja (Fecha, Cuenta, Entrada, Salida) VALUES (cdate('16/03/2024'), 'O''Luz', 2, 0)",
         "INSERT INTO Caja (Fecha, Cuenta, Entrada, Salida) VALUES (cdate('01/03/2024'), 'Otra', 4, 0)"});
    const auto entries = [](const QString &account) {
        const auto sums =
            caja::movimientos(basic::Date(march1), basic::Date(march15), account, u"Cuenta"_s).sumas();
        return sums ? sums->entradas.toDouble() : -1;
    };
    EXPECT_EQ(entries(u"O'Luz"_s), 1);
    EXPECT_EQ(entries(caja::todas), 5);
    EXPECT_EQ(entries(u"Nadie"_s), -1);
}

TEST_F(Money, theMovementsOfTwoStationsAddUp)
{
    run({"INSERT INTO Articulos (idProfesional, Codigo, Descripcion) VALUES (1, 'GA', 'Gasa')",
         "INSERT INTO Articulos (idProfesional, Codigo, Descripcion, StockActual) VALUES (1, 'GA', 'Guantes', 5)"});
    const auto move = [](stock::Sentido sense, double amount) {
        stock::registrar({sense, basic::Date(march15), 1, u"R-1"_s, {{1, amount}}});
    };
    BaseDatos.close();
    const pid_t station = fork();
    BaseDatos.open(folder.filePath(u"BASE.MDB"_s), false, false, MODULE11::conexionDeLaBase());
    if (station == 0) {
        for (int i = 0; i < 50; ++i)
            move(stock::Sentido::Entrada, 2.5);
        _exit(0);
    }
    for (int i = 0; i < 50; ++i)
        move(stock::Sentido::Salida, 1);
    int status = 1;
    waitpid(station, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(column(u"Select StockActual from Articulos order by idArticulo"_s), (QStringList{"75", "5"}));
    EXPECT_EQ(rows(u"Select count(*), sum(Cantidad), min(Cantidad) from MovStock"_s), u"100,75,-1");
    stock::borrarArticulo(2);
    EXPECT_EQ(one(u"Select count(*) from MovStock"_s), u"100");
    EXPECT_EQ(stock::cantidad(u"2,5"_s), 2.5);
    EXPECT_FALSE(stock::cantidad(u"-3"_s) || stock::cantidad(u"dos"_s) || stock::cantidad({}));
}
