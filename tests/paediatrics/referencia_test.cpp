#include "paediatrics/anthropometry/referencia.h"

#include "paediatrics/anthropometry/edadCorregida.h"
#include "paediatrics/anthropometry/imcNormal.h"
#include "paediatrics/anthropometry/tablaLms.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace paediatrics;

namespace
{

constexpr double diasPorMes = 30.4375;

/// A row of the publisher's table of deviations: from -3 to +3, rounded to the tenth that it prints.
struct Publicada {
    Medida medida;
    const char16_t *sexo;
    double dias;
    double porUnidad; ///< of the printed unit in the program's (kilograms in grams)
    double desvios[7];
};

const Publicada publicadas[] = {
    {Medida::Peso, u"Varon", 365, 1000, {6.9, 7.7, 8.6, 9.6, 10.8, 12.0, 13.3}},
    {Medida::Peso, u"Mujer", 365, 1000, {6.3, 7.0, 7.9, 8.9, 10.1, 11.5, 13.1}},
    {Medida::Talla, u"Varon", 731, 1, {78.0, 81.0, 84.1, 87.1, 90.2, 93.2, 96.3}},
    {Medida::PerimetroCefalico, u"Varon", 365, 1, {42.2, 43.5, 44.8, 46.1, 47.4, 48.6, 49.9}},
    {Medida::Imc, u"Varon", 731, 1, {12.9, 13.8, 14.8, 16.0, 17.3, 18.9, 20.6}},
    {Medida::Talla, u"Varon", 120 * diasPorMes, 1, {118.7, 125.0, 131.4, 137.8, 144.2, 150.5, 156.9}},
    {Medida::Imc, u"Varon", 120 * diasPorMes, 1, {12.8, 13.7, 14.9, 16.4, 18.5, 21.4, 26.1}},
    {Medida::Imc, u"Mujer", 120 * diasPorMes, 1, {12.4, 13.5, 14.8, 16.6, 19.0, 22.6, 28.4}},
};

} // namespace

TEST(Referencia, deviationsArePublishedOnes)
{
    for (const Publicada &fila : publicadas)
        for (int desvio = -3; desvio <= 3; ++desvio) {
            const double impreso = fila.desvios[desvio + 3] * fila.porUnidad;
            const double medio = 0.055 * fila.porUnidad; // half of the last digit that is printed, rounded up
            const auto desde = puntajeZ(fila.medida, fila.sexo, fila.dias, impreso - medio);
            const auto hasta = puntajeZ(fila.medida, fila.sexo, fila.dias, impreso + medio);
            ASSERT_TRUE(desde && hasta);
            EXPECT_LE(*desde, desvio) << impreso;
            EXPECT_GE(*hasta, desvio) << impreso;
        }
}

TEST(Referencia, publishedPercentilesComeBackFromTheirParameters)
{
    QFile csv(u":/crecimiento/oms_pc_0_5_mujeres.csv"_s);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QByteArrayList titulos = csv.readLine().trimmed().split(',');
    while (!csv.atEnd()) {
        const QByteArrayList campos = csv.readLine().trimmed().split(',');
        for (qsizetype i = 4; i < campos.size(); ++i) {
            const auto z =
                puntajeZ(Medida::PerimetroCefalico, u"Mujer", campos[0].toDouble(), campos[i].toDouble());
            ASSERT_TRUE(z);
            EXPECT_NEAR(percentilDe(*z), titulos[i].mid(1).toDouble(), 0.2) << titulos[i].constData();
        }
    }
}

TEST(Referencia, beyondThreeDeviationsWeightGoesOnStraight)
{
    const TablaLms::Parametros p = *TablaLms::de(u"oms_peso_0_5", u"Varon")->en(365);
    const double tercero = valorEn(p, 3), paso = tercero - valorEn(p, 2);
    EXPECT_NEAR(*puntajeZ(Medida::Peso, u"Varon", 365, tercero + 2 * paso), 5, 1e-9);
    EXPECT_GT(puntajeZ(p, valorEn(p, -3) - 500), -5); // the curve itself says less
    EXPECT_LT(*puntajeZ(Medida::Peso, u"Varon", 365, valorEn(p, -3) - 700), -3);
}

TEST(Referencia, inWords)
{
    EXPECT_EQ(percentilYPuntaje(0.33), u"P63, z +0,3"_s);
    EXPECT_EQ(percentilYPuntaje(-0.04), u"P48, z 0,0"_s);
    EXPECT_EQ(percentilYPuntaje(-2.5), u"P0,6, z -2,5"_s);
    EXPECT_EQ(percentilYPuntaje(5), u"P>99,9, z +5,0"_s);
    EXPECT_EQ(enPalabras(Medida::Peso, u"Varon", 365, 9646), u"P50, z 0,0, adecuado para la edad"_s);
    EXPECT_EQ(enPalabras(Medida::Talla, u"Varon", 731, 80), u"P1, z -2,3, baja para la edad"_s);
    EXPECT_EQ(enPalabras(Medida::PerimetroCefalico, u"Mujer", 0, 38),
              u"P>99,9, z +3,5, muy grande para la edad"_s);
}

TEST(Referencia, weightForHeightByHowItWasTaken)
{
    // The medians of 80 cm: lying to the 730th day, standing after.
    const double acostado = TablaLms::de(u"oms_peso_longitud", u"Varon")->en(80)->m;
    const double parado = TablaLms::de(u"oms_peso_talla", u"Varon")->en(80)->m;
    ASSERT_GT(parado, acostado);
    EXPECT_EQ(pesoParaTallaEnPalabras(u"Varon", 730, 80, acostado), u"P50, z 0,0, adecuado para la talla"_s);
    EXPECT_EQ(pesoParaTallaEnPalabras(u"Varon", 731, 80, parado), u"P50, z 0,0, adecuado para la talla"_s);
    EXPECT_EQ(pesoParaTallaEnPalabras(u"Varon", 731, 64, parado), QString());
    EXPECT_EQ(pesoParaTallaEnPalabras(u"Varon", 1900, 100, parado), QString());
}

TEST(Referencia, ageOfThePretermIsCorrectedUntilTwoYears)
{
    EXPECT_EQ(edadCorregida(100, 56), 44);
    EXPECT_EQ(edadCorregida(0, 56), -56);
    EXPECT_EQ(edadCorregida(729, 56), 673);
    EXPECT_EQ(edadCorregida(730, 56), 730);
}

TEST(Referencia, whereNothingIsPublishedNothingIsSaid)
{
    EXPECT_EQ(enPalabras(Medida::Peso, u"Varon", 11 * 365.25, 40000), QString());
    EXPECT_EQ(enPalabras(Medida::Peso, u"", 365, 9646), QString());
    EXPECT_EQ(enPalabras(Medida::Talla, u"Mujer", 365, 0), QString());
    EXPECT_EQ(enPalabras(Medida::Talla, u"Mujer", -3, 50), QString());
    EXPECT_TRUE(puntajeZ(Medida::PerimetroCefalico, u"Mujer", 15 * 365.25, 55));
}

TEST(Referencia, bodyMassIndexIsNormalBetweenThePublishedEnds)
{
    const auto ninio = imcNormal(u"Varon"_s, 6940 - 2);
    ASSERT_TRUE(ninio);
    EXPECT_NEAR(ninio->first, 17.78, 0.02);
    EXPECT_NEAR(ninio->second, 29.14, 0.02);
    EXPECT_EQ(imcNormal(u"Varon"_s, 6939), (std::pair{18.5, 25.0}));
}
