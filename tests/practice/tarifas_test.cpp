#include "delivered.h"

#include "platform/basic/errors.h"
#include "practice/daybook/libroDiario.h"
#include "practice/tariffs/importaTarifas.h"
#include "practice/tariffs/importe.h"
#include "practice/tariffs/tarifas.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

class Tariffs : public DeliveredBase
{
protected:
    static tarifas::Importacion import(const QString &text)
    {
        return tarifas::importaCsv(BaseDatos, text, {});
    }
    static QString prices()
    {
        return rows(u"Select Codigo, [Honorarios Especialista] from Prestaciones order by Codigo"_s);
    }
    static void price(const QString &price)
    {
        BaseDatos.execute(u"Delete * from Prestaciones"_s);
        BaseDatos.execute(
            u"INSERT INTO Prestaciones (Codigo, [Honorarios Especialista], AlicuotaIva) VALUES ('A', %1, 21)"_s
                .arg(price));
    }
    static QString raised(const QString &from, qint64 hundredths, int step)
    {
        price(from);
        tarifas::aumenta(BaseDatos, {hundredths, step, {u"Honorarios Especialista"_s}});
        return one(u"Select [Honorarios Especialista] from Prestaciones"_s);
    }
};

} // namespace

TEST(Amounts, areReadAsThePracticeWritesThem)
{
    EXPECT_EQ(importes::escrito(u"1500,50")->units(), 15005000);
    EXPECT_EQ(importes::escrito(u"$ 1.234,5678")->units(), 12345678);
    EXPECT_EQ(importes::escrito(u"-3")->units(), -30000);
    for (const QString &text : {u""_s, u"12abc"_s, u"1e300"_s, u"999999999999999999"_s})
        EXPECT_FALSE(importes::escrito(text)) << text.toStdString();
    EXPECT_EQ(importes::paraEditar(basic::Currency::fromUnits(15000)), u"1,50");
    EXPECT_EQ(importes::paraEditar(basic::Currency::fromUnits(12345)), u"1,2345");
    EXPECT_EQ(importes::enMoneda(basic::Null{}), u"$ 0,00");
}

/// To the step that is nearest, a half up; what no binary fraction holds is a half all the same.
TEST_F(Tariffs, areRaisedToTheStep)
{
    EXPECT_EQ(raised(u"1100.05"_s, 1000, 1), u"1210,06");
    EXPECT_EQ(raised(u"1.005"_s, 0, 1), u"1,01");
    EXPECT_EQ(raised(u"333.33"_s, 1050, 100), u"368");
    EXPECT_EQ(raised(u"745"_s, 0, 1000), u"750");
    EXPECT_EQ(raised(u"100"_s, -2500, 1), u"75");
    EXPECT_EQ(raised(u"900000000.01"_s, 1, 1), u"900090000,01");
    EXPECT_EQ(raised(u"Null"_s, 1000, 1), u"<Null>");
    EXPECT_EQ(one(u"Select AlicuotaIva from Prestaciones"_s), u"21");
}

TEST_F(Tariffs, comeFromTheFilesOfOtherPrograms)
{
    price(u"5"_s);
    const tarifas::Importacion done = import(u"DESCRIPCION;codigo;Hon. Especialista;otra cosa\n"
                                             u"\"Consulta; \"\"d'hospital\"\"\";A;1.500,25;x\n"
                                             u"\n"
                                             u"Nueva;B;1500.50;\n"
                                             u"Miles;C;1.500\r\n"
                                             u"Sin código;;3\n"
                                             u";D;4\n"
                                             u"Código largo;12345678901;4\n"
                                             u"Sin precio;E;muchos\n"
                                             u"Entera;F"_s);
    EXPECT_EQ(done.nuevas, 3);
    EXPECT_EQ(done.cambiadas, 1);
    EXPECT_EQ(done.omitidas,
              (QStringList{u"Línea 6: sin código"_s, u"Línea 7: prestación nueva sin descripción"_s,
                           u"Línea 8: el código tiene más de 10 caracteres"_s,
                           u"Línea 9: \"muchos\" no es un número en Hon. Especialista"_s}));
    EXPECT_EQ(prices(), u"A,1500,25|B,1500,5|C,1500|F,0");
    EXPECT_EQ(one(u"Select Descripcion from Prestaciones where Codigo = 'A'"_s), u"Consulta; \"d'hospital\"");
    EXPECT_EQ(one(u"Select AlicuotaIva from Prestaciones where Codigo = 'A'"_s), u"21"); // not in the file
    EXPECT_EQ(import(u"Código,Descripción,Gastos\nA,Otra,7\n"_s).cambiadas, 1);
    EXPECT_THROW(import(u"Código;Precio\nA;7\n"_s), basic::Error);
    EXPECT_THROW(import(QString()), basic::Error);
    EXPECT_EQ(tarifas::textoDeArchivo("\xEF\xBB\xBF"
                                      "a\xC3\xB1o"),
              u"año");
    EXPECT_EQ(tarifas::textoDeArchivo("a\xF1o"), u"año");
}

/// Two of the three kinds are no statement, as ever.
TEST_F(Tariffs, theDayBookAsksForItsPeriod)
{
    run({"INSERT INTO Consulta (Fecha, Hora, Mutual, Dr, Monto) VALUES (cdate('31/12/2023'), cdate('10:00:00'), "
         "'O''Higgins', 'A', 1)",
         "INSERT INTO Consulta (Fecha, Hora, Mutual, Dr, Monto) VALUES (cdate('01/02/2024'), cdate('11:00:00'), "
         "'O''Higgins', 'A', 2.5)",
         "INSERT INTO Consulta (Fecha, Hora, Mutual, Dr, Monto) VALUES (cdate('29/02/2024'), cdate('09:00:00'), "
         "'Otra', 'B', 4)",
         "INSERT INTO Consulta (Fecha, Hora, Mutual, Dr) VALUES (cdate('31/12/2024'), cdate('09:00:00'), 'Otra', "
         "'B')"});
    diario::Pedido asked;
    asked.anio = 2024;
    const auto found = [&] {
        dao::Recordset visits = BaseDatos.openRecordset(asked.consulta());
        return QString::number(visits.rowCount()) + u'/' + one(asked.suma());
    };
    asked.periodo = diario::Periodo::Anio;
    EXPECT_EQ(found(), u"3/6,5");
    asked.obraSocial = u"o'higgins"_s;
    EXPECT_EQ(found(), u"1/2,5");
    asked.profesional = u"B"_s;
    EXPECT_EQ(found(), u"0/<Null>");
    asked.obraSocial = diario::todas;
    asked.periodo = diario::Periodo::Mes;
    asked.mes = 2;
    EXPECT_EQ(found(), u"1/4");
    asked.profesional = diario::todos;
    EXPECT_EQ(column(asked.consulta().replace(u"*"_s, u"Monto"_s)), (QStringList{u"4"_s, u"2,5"_s}));
    asked.periodo = diario::Periodo::Dia;
    asked.dia = basic::Date(QDate(2024, 12, 31));
    EXPECT_EQ(found(), u"1/<Null>");
    for (const auto kind : {diario::Clase::PrimeraVez, diario::Clase::Ulterior}) {
        asked.clase = kind;
        EXPECT_THROW(found(), dao::Error);
    }
}
