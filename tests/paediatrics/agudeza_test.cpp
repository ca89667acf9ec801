#include "paediatrics/sight/agudeza.h"
#include "paediatrics/sight/curvaDeAgudeza.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Agudeza, isTheNumberBeforeTheBar)
{
    EXPECT_EQ(agudeza::valor(u"5/10"_s), 5);
    EXPECT_EQ(agudeza::valor(u"10/10"_s), 10);
    for (const QString &nada : {u""_s, u"5"_s, u"bien"_s, u"/10"_s})
        EXPECT_EQ(agudeza::valor(nada), 0) << nada.toStdString();
    EXPECT_EQ(agudeza::promedio({{}, {u"9/10"_s, u"9/10"_s, u"9/10"_s, u"8/10"_s}, {}}), 8)
        << "cut, not rounded";
    EXPECT_EQ(agudeza::promedio({{}, {u"9/10"_s, u"-"_s, u""_s, u"7/10"_s}, {}}), 4);
    EXPECT_EQ(agudeza::valores().first(), u"10/10"_s);
    EXPECT_EQ(agudeza::valores().last(), u"1/10"_s);
}

TEST(CurvaDeAgudeza, tenTenthsStandHalfARowUnderTheTop)
{
    const double fila = agudeza::Curva::lugar(0, 9).y() - agudeza::Curva::lugar(0, 10).y();
    EXPECT_EQ(agudeza::Curva::lugar(0, 10).y(), fila / 2);
    EXPECT_EQ(agudeza::Curva::lugar(0, 0).y(), 10.5 * fila);
    EXPECT_EQ(agudeza::Curva::lugar(8, 0).x(), 2 * agudeza::Curva::lugar(4, 0).x());
}
