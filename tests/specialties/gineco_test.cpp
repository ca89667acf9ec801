#include "delivered.h"

#include "specialties/gynaecology/gestacion.h"
#include "specialties/gynaecology/marcas.h"
#include "specialties/gynaecology/riesgoGestacional.h"

#include <QFile>

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;

TEST(RiesgoGestacional, everyBoxWeighsTheSame)
{
    using namespace riesgoGestacional;
    std::set<int> indices;
    for (const Grupo &grupo : grupos())
        for (const Casilla &casilla : grupo.casillas)
            indices.insert(casilla.indice);
    EXPECT_EQ(indices.size(), std::size_t(casillas));
    EXPECT_EQ(*indices.rbegin(), casillas - 1);
    EXPECT_DOUBLE_EQ(puntaje(14), 33.32);
    EXPECT_DOUBLE_EQ(puntaje(42), 99.96);
    EXPECT_DOUBLE_EQ(lugarDelMarcador(0), 1110);
    // Fourteen are low, fifteen medium, twenty high.
    EXPECT_LT(lugarDelMarcador(puntaje(14)), barra()[1].desde);
    EXPECT_GT(lugarDelMarcador(puntaje(15)), barra()[1].desde);
    EXPECT_LT(lugarDelMarcador(puntaje(15)), barra()[2].desde);
    EXPECT_GT(lugarDelMarcador(puntaje(20)), barra()[2].desde);
}

TEST(RiesgoGestacional, aShorterListLeavesTheRestClear)
{
    const std::vector<bool> marcadas = riesgoGestacional::deTexto(u"_X"_s);
    ASSERT_EQ(marcadas.size(), 42u);
    EXPECT_EQ(std::count(marcadas.begin(), marcadas.end(), true), 1);
    EXPECT_TRUE(marcadas[1]);
    EXPECT_EQ(riesgoGestacional::enTexto(marcadas), u"_X"_s + u"_"_s.repeated(40));
}

TEST(Gestacion, weeksAndBirthByTheCalendar)
{
    using namespace gestacion;
    const QDate fum(2024, 1, 10);
    EXPECT_EQ(diasPorFum(fum, QDate(2024, 4, 6)), 87);
    EXPECT_EQ(enPalabras(87), u"12 semanas y 3 días"_s);
    EXPECT_EQ(enPalabras(8), u"1 semana y 1 día"_s);
    EXPECT_EQ(enPalabras(140), u"20 semanas"_s);
    EXPECT_EQ(diasPorFum(fum, QDate(2024, 1, 9)), std::nullopt);
    EXPECT_EQ(diasPorFum(fum, QDate(2025, 1, 9)), std::nullopt);
    EXPECT_EQ(diasPorFum(QDate(), QDate(2024, 4, 6)), std::nullopt);
    EXPECT_EQ(parto(fum), QDate(2024, 10, 17));
    EXPECT_EQ(partoPorEco(QDate(2024, 4, 6), 12, 3), QDate(2024, 10, 16));
    EXPECT_EQ(diasPorEco(QDate(2024, 4, 6), 12, 3, QDate(2024, 4, 13)), 94);
    EXPECT_EQ(diasPorEco(QDate(2024, 4, 6), 0, 0, QDate(2024, 4, 13)), std::nullopt);
}

TEST(Gestacion, aVisitIsReadAsItWasWritten)
{
    const auto visita =
        gestacion::control(u"20+3"_s, u"19,5 cm"_s, u"64 kg"_s, u"110/70"_s, QDate(), QDate());
    ASSERT_TRUE(visita);
    EXPECT_NEAR(visita->semana, 20.43, 0.01);
    EXPECT_EQ(visita->altura, 19.5);
    EXPECT_EQ(visita->peso, 64);
    EXPECT_EQ(visita->maxima, 110);
    EXPECT_EQ(visita->minima, 70);
    const auto contada =
        gestacion::control({}, u"-"_s, {}, u"normal"_s, QDate(2024, 4, 6), QDate(2024, 1, 13));
    ASSERT_TRUE(contada);
    EXPECT_EQ(contada->semana, 12);
    EXPECT_FALSE(contada->altura || contada->peso || contada->maxima);
    EXPECT_FALSE(gestacion::control({}, u"20"_s, {}, {}, QDate(2024, 4, 6), QDate()));
}

class MarcasTest : public DeliveredBase
{
};

TEST_F(MarcasTest, areRewrittenWholeAndByTheirExamination)
{
    const std::vector<gineco::Marca> unas{{3, QPointF(100, 200)}, {21, QPointF(4000, 1500)}},
        otras{{0, QPointF(7, 8)}};
    gineco::guardarMarcas(1, unas);
    gineco::guardarMarcas(2, otras);
    EXPECT_EQ(gineco::marcasDe(1), unas);
    gineco::guardarMarcas(1, otras);
    EXPECT_EQ(gineco::marcasDe(1), otras);
    EXPECT_EQ(gineco::marcasDe(2), otras);
}

TEST(Marcas, everySymbolHasItsPicture)
{
    EXPECT_EQ(gineco::cuello().paleta.size(), 24u);
    for (const dibujo::Plano *diagrama : {&gineco::cuello(), &gineco::mamas()}) {
        EXPECT_TRUE(QFile::exists(u":/gineco/%1.svg"_s.arg(diagrama->fondo)));
        for (const dibujo::Simbolo &simbolo : diagrama->paleta)
            EXPECT_TRUE(QFile::exists(u":/gineco/%1.svg"_s.arg(simbolo.dibujo)))
                << simbolo.termino.toUtf8().constData();
    }
}
