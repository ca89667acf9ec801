#include "platform/reports/error.h"
#include "platform/reports/selection.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

struct Case {
    const char *formula, *dialect;
};

QString failure(const QString &formula)
{
    try {
        return u"translated: "_s + reports::toDialect(formula);
    } catch (const reports::Error &error) {
        return error.description();
    }
}

} // namespace

TEST(SelectionTest, formulasOfThePracticeBecomeConditions)
{
    const Case cases[] = {
        {"", "True"},
        {"{recetario.idReceta} = 12", "[recetario].[idReceta] = 12"},
        {"{consulta.fecha} >= date(2024, 3, 1) and {consulta.fecha} <= date(2024,12,31)",
         "[consulta].[fecha] >= cdate('01/03/2024') AND [consulta].[fecha] <= cdate('31/12/2024')"},
        {"{a.b} = #03/15/2024#", "[a].[b] = cdate('15/03/2024')"},
        {"{Diagnosticos.idDiagnostico} <> ''", "[Diagnosticos].[idDiagnostico] <> ''"},
        {"{Turnos.Fecha} = date(2024,1,2) and TRUE  and  true ",
         "[Turnos].[Fecha] = cdate('02/01/2024') AND True AND True"},
        {"{Consulta.[Nombre del Paciente]} = 'D''Angelo \"Ana\"'",
         "[Consulta].[Nombre del Paciente] = 'D''Angelo \"Ana\"'"},
        {"{Obra Social.Descripcion} = \"O'Brien\"", "[Obra Social].[Descripcion] = 'O''Brien'"},
        {"'<Todas>' = '<Todas>' or {caja.cuenta} = '<Todas>'",
         "'<Todas>' = '<Todas>' OR [caja].[cuenta] = '<Todas>'"},
        {"not ({a.b} = 1 or {a.c}={d.e}) AND MONTH({a.f})>=-3.50",
         "NOT (([a].[b] = 1 OR [a].[c] = [d].[e])) AND MONTH([a].[f]) >= -3.50"},
        {"{Facturacion.Cobrada} = TRUE AND Year({Facturacion.Fecha}) = 2024 AND  TRUE ",
         "[Facturacion].[Cobrada] = True AND YEAR([Facturacion].[Fecha]) = 2024 AND True"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(reports::toDialect(QString::fromUtf8(c.formula)).toLower(),
                  QString::fromUtf8(c.dialect).toLower())
            << c.formula;
}

TEST(SelectionTest, aFormulaThatIsNotUnderstoodTellsWhere)
{
    const Case cases[] = {
        {"{a.b} = ", "lugar 9"},
        {"{a.b} = 'sin cerrar", "lugar 9"},
        {"{a.b", "lugar 1"},
        {"{ab} = 1", "lugar 1"},
        {"{a.b} = 1 2", "lugar 11"},
        {"({a.b} = 1", "lugar 11"},
        {"{a.b} = date(2024,13,1)", "lugar 9"},
        {"{a.b} = 1; delete * from Pacientes", "lugar 10"},
        {"{a.[b] or 1=1 --]} = 1", "lugar 1"},
        {"{a]b.[c]} = 1", "lugar 1"},
        {"{a.b} like 'x'", "lugar 7"},
        {"'x'", "lugar 4"},
        {"{a.b} = format({a.b})", "lugar 9"},
    };
    for (const Case &c : cases)
        EXPECT_TRUE(failure(QString::fromUtf8(c.formula)).contains(QString::fromUtf8(c.dialect) + u':'))
            << c.formula << "\n"
            << failure(QString::fromUtf8(c.formula)).toStdString();
    EXPECT_TRUE(failure(QString(100'000, u'(')).contains(u"paréntesis"_s));
    EXPECT_TRUE(failure(u"{a.b} = "_s + u"month("_s.repeated(100'000)).contains(u"paréntesis"_s));
}

TEST(SelectionTest, literalsComeBackAsTheyWere)
{
    EXPECT_EQ(reports::toDialect(u"{a.b} = "_s + reports::literal(u"x' or 'a' = 'a"_s)),
              u"[a].[b] = 'x'' or ''a'' = ''a'"_s);
    EXPECT_EQ(reports::toDialect(u"{a.b} = "_s + reports::literal(basic::Date(QDate(2024, 2, 29)))),
              u"[a].[b] = cdate('29/02/2024')"_s);
}
