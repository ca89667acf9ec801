#include "delivered.h"
#include "paediatrics/pressure/curvaDePresion.h"

using namespace Qt::StringLiterals;
using namespace presion;

namespace
{

class PresionTest : public DeliveredBase
{
};

constexpr double zDelPercentil(int percentil)
{
    switch (percentil) {
    case 5:
        return -1.644854;
    case 10:
        return -1.281552;
    case 25:
        return -0.674490;
    case 75:
        return 0.674490;
    case 90:
        return 1.281552;
    case 95:
        return 1.644854;
    case 99:
        return 2.326348;
    default:
        return 0;
    }
}

} // namespace

/// The report prints whole numbers, cut off; its own rounding of the coefficients makes the rest.
TEST(Presion, everyPublishedCellIsReached)
{
    QFile csv(QStringLiteral(TEST_DATA "/presion_publicada.csv"));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QByteArrayList titulos = csv.readLine().trimmed().split(',');
    int celdas = 0;
    while (!csv.atEnd()) {
        const QByteArrayList fila = csv.readLine().trimmed().split(',');
        const Cual cual = fila[0][1] == '+' ? Cual::Maxima : Cual::Minima;
        for (qsizetype i = 3; i < fila.size(); ++i, ++celdas) {
            const double talla = zDelPercentil(titulos[i].mid(titulos[i].indexOf('P') + 1).toInt());
            const auto valor =
                valorEn(cual, QChar(fila[0][0]), fila[1].toDouble(), talla, zDelPercentil(fila[2].toInt()));
            ASSERT_TRUE(valor);
            const double resto = *valor - fila[i].toDouble();
            EXPECT_TRUE(resto > -0.0104 && resto < 1.0087) << fila.join(',').toStdString() << " " << *valor;
        }
    }
    EXPECT_EQ(celdas, 1904);
}

TEST(Presion, isToldInWordsByAgeSexAndHeight)
{
    const auto maxima = [](double valor, double anios = 10, std::optional<double> talla = std::nullopt) {
        return enPalabras(Cual::Maxima, u'V', anios, talla, valor).toStdString();
    };
    EXPECT_EQ(maxima(102.2), "P50, z 0,0, normal para talla mediana");
    EXPECT_EQ(maxima(80), "P2, z -2,1, baja para talla mediana");
    EXPECT_EQ(maxima(117), "P92, z +1,4, normal alta para talla mediana");
    EXPECT_EQ(maxima(121), "P96, z +1,8, alta para talla mediana");
    EXPECT_EQ(maxima(121, 10, 1.881), "P91, z +1,4, normal alta para talla P97");
    EXPECT_EQ(maxima(133), "P99,8, z +2,9, muy alta para talla mediana");
    EXPECT_EQ(maxima(120, 17), "P54, z +0,1, normal alta para talla mediana") << "an adult's limit";
    EXPECT_EQ(enPalabras(Cual::Minima, u'M', 10, std::nullopt, 79), "P95, z +1,7, alta para talla mediana");
    for (const double anios : {0.99, 18.0})
        EXPECT_EQ(maxima(100, anios), "sin referencia para la edad");
}

TEST_F(PresionTest, heightIsTheLastOneTakenByTheDay)
{
    const basic::Date nacimiento(QDate(2014, 3, 15)), dia(QDate(2024, 3, 15));
    const auto z = [&](const basic::Date &hasta) { return zDeTalla(7, u"Varon"_s, nacimiento, hasta); };
    EXPECT_EQ(z(dia), std::nullopt);
    run({"INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('14/03/2024'), 30000, 0)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('15/03/2023'), 0, 133.7)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('16/03/2024'), 0, 160)"});
    ASSERT_TRUE(z(dia));
    EXPECT_NEAR(*z(dia), 0, 0.05) << "the median of nine years, at the age it was taken";
    EXPECT_GT(z(basic::Date(QDate(2024, 3, 16))).value_or(0), 3);
    EXPECT_EQ(zDeTalla(7, u"?"_s, nacimiento, dia), std::nullopt);
}

TEST(CurvaDePresion, pointsAndCurvesStandWhereTheyWereDrawn)
{
    const QSizeF tamano(1800, 1000);
    EXPECT_EQ(lugarEnCurva(Cual::Minima, tamano, 90, 100), QPointF(900, 1000 + 1000.0 / 11 - 1000));
    EXPECT_EQ(lugarEnCurva(Cual::Maxima, tamano, 180, 100), QPointF(1800, 1000 + 1000 / 2.00625 - 1000));
    const QPointF minima = lugarDeToma(Cual::Minima, tamano, 5475, 60),
                  maxima = lugarDeToma(Cual::Maxima, tamano, 0, 60);
    EXPECT_NEAR(minima.x(), 1800, 1e-6);
    EXPECT_NEAR(minima.y(), 500, 1e-6);
    EXPECT_NEAR(maxima.x(), 0, 1e-6);
    EXPECT_NEAR(maxima.y(), 900, 1e-6);
}
