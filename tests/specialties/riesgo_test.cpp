#include "specialties/risk/riesgoCardiaco.h"
#include "specialties/risk/riesgoOperatorio.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>

TEST(RiesgoCardiaco, bandsCloseAtTheirLimit)
{
    using riesgoCardiaco::bandaDe;
    for (const auto &[total, banda] :
         {std::pair{0, 0}, {15, 0}, {16, 1}, {30, 1}, {31, 2}, {60, 2}, {61, 3}, {80, 3}, {81, 4}, {100, 4}})
        EXPECT_EQ(bandaDe(total), banda) << total;
    EXPECT_EQ(bandaDe(101), std::nullopt);
}

TEST(RiesgoCardiaco, aManScoresUpToAHundredAndSix)
{
    int alto = 0;
    std::set<int> botones;
    for (const auto &pregunta : riesgoCardiaco::preguntas()) {
        int mayor = 0;
        for (const auto &respuesta : pregunta.respuestas) {
            mayor = std::max(mayor, respuesta.puntos);
            EXPECT_TRUE(botones.insert(respuesta.boton).second) << respuesta.boton;
        }
        alto += pregunta.numero < riesgoCardiaco::menopausia ? mayor : 0;
    }
    EXPECT_EQ(alto, 106);
    EXPECT_EQ(botones.size(), 44u);
    EXPECT_EQ(*botones.rbegin(), 43);
}

TEST(RiesgoCardiaco, aValuePicksItsBand)
{
    using namespace riesgoCardiaco;
    EXPECT_EQ(respuestaDe(profesion, 3), 7);
    EXPECT_EQ(respuestaDe(profesion, 10), 7);
    EXPECT_EQ(respuestaDe(profesion, 11), 6);
    EXPECT_EQ(respuestaDe(profesion, 80), 5);
    EXPECT_EQ(respuestaDe(estres, 40), 13);  // Embarazo
    EXPECT_EQ(respuestaDe(estres, 100), 17); // Muerte del cónyuge
    EXPECT_EQ(respuestaDe(estres, 101), std::nullopt);
    EXPECT_EQ(profesiones().size(), 23u);
    EXPECT_EQ(situaciones().size(), 34u);
}

TEST(RiesgoOperatorio, classesBeginAtTheirLimit)
{
    using riesgoOperatorio::claseDe;
    for (const auto &[total, clase] :
         {std::pair{0, 0}, {2, 0}, {3, 1}, {5, 1}, {6, 2}, {10, 2}, {11, 3}, {19, 3}, {20, 4}, {90, 4}})
        EXPECT_EQ(claseDe(total), clase) << total;
}

TEST(RiesgoOperatorio, factorsStandRowByRow)
{
    const auto celdas = riesgoOperatorio::celdas();
    EXPECT_EQ(celdas.size(), 57u);
    EXPECT_TRUE(std::ranges::is_sorted(celdas, {},
                                       [](const auto &celda) { return celda.fila * 100 + celda.puntos; }));
    EXPECT_EQ(celdas.back().fila, riesgoOperatorio::filas - 1);
    const auto descompensada = std::ranges::find(celdas, QStringView(u"insuficiencia cardíaca descompensada"),
                                                 &riesgoOperatorio::Celda::texto);
    ASSERT_NE(descompensada, celdas.end());
    EXPECT_EQ(descompensada->puntos, 16);
}
