#include "delivered.h"

#include "specialties/cardiology/calibre.h"
#include "specialties/cardiology/diagramaDeTorax.h"
#include "specialties/cardiology/pesos.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using torax::Elemento;

TEST(DiagramaDeTorax, aRecordHasItsFile)
{
    EXPECT_EQ(torax::archivo(7, basic::Date(QDate(2024, 3, 9)), u".DAT"), u"00000000000709032024.DAT"_s);
    EXPECT_EQ(torax::archivo(123456789012, basic::Date(QDate(2024, 12, 31)), u".RXD"),
              u"12345678901231122024.RXD"_s);
}

TEST(DiagramaDeTorax, linesAreReadByColumn)
{
    const QString flecha = torax::enTexto({{3, QPointF(1200.4, -75), 8}});
    EXPECT_EQ(flecha, u"P03-000750120008"_s + u" "_s.repeated(184) + u"\r\nO_\r\n"_s);
    const QString texto = torax::enTexto({{0, QPointF(-20, 1440), 0, u"  Soplo 'fuerte' en banda ñ "_s}});
    EXPECT_TRUE(texto.startsWith(u"T00+0144000000Soplo 'fuerte' en banda ñ "_s)) << texto.toStdString();

    const std::vector<Elemento> todos{
        {0, QPointF(0, 0), 1}, {99, QPointF(99999, -99999), 5}, {0, QPointF(300, 15), 0, u"O_ no cierra"_s}};
    EXPECT_EQ(torax::deTexto(torax::enTexto(todos)), todos);
    // Lines cut short, symbols of another version and texts without letters are no elements.
    EXPECT_TRUE(
        torax::deTexto(u"P00+00010\nP00+000100001009\nP00+000100001000\nT00+0001000010   \nX\nO_"_s).empty());
    EXPECT_EQ(torax::deTexto(u"P01+0001000020 4\nO_"_s).size(), 1u);
}

TEST(DiagramaDeTorax, theFileIsReplacedWhole)
{
    const QTemporaryDir carpeta;
    const QString archivo = carpeta.filePath(u"x.DAT"_s);
    EXPECT_TRUE(torax::leer(archivo).empty());
    torax::guardar(archivo, {{0, QPointF(15, 30), 2}, {1, QPointF(45, 60), 3}});
    const std::vector<Elemento> uno{{4, QPointF(75, 90), 6}};
    torax::guardar(archivo, uno);
    EXPECT_EQ(torax::leer(archivo), uno);
    EXPECT_THROW(torax::guardar(carpeta.filePath(u"falta/x.DAT"_s), uno), basic::Error);
    EXPECT_THROW(torax::leer(carpeta.path()), basic::Error);
}

class PesosTest : public DeliveredBase
{
};

TEST_F(PesosTest, aPointADayFromBothEndsOfThePeriod)
{
    run({"INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('10/01/2024'), 60000, 170)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('20/01/2024'), 0, 170)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('20/01/2024'), 61000, 170)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('20/01/2024'), 62000, 170)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('31/01/2024'), Null, 170)",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (8, cdate('21/01/2024'), 70000, 170)"});
    const basic::Date primero(QDate(2024, 1, 10)), segundo(QDate(2024, 1, 20)), ultimo(QDate(2024, 1, 31));
    const std::vector<pesos::Punto> dos{{primero, 60000}, {segundo, 61000}};
    EXPECT_EQ(pesos::entre(7, primero, ultimo), dos);
    EXPECT_EQ(pesos::entre(7, primero, segundo), dos);
    EXPECT_TRUE(pesos::entre(7, ultimo, ultimo).empty());
    EXPECT_TRUE(pesos::hayMedidas(7, ultimo, ultimo));
    EXPECT_FALSE(pesos::hayMedidas(7, basic::Date(QDate(2024, 2, 1)), basic::Date(QDate(2024, 3, 1))));
    EXPECT_EQ(pesos::primerDia(7), primero);

    pesos::agregar(7, ultimo, 61.5);
    EXPECT_EQ(pesos::entre(7, ultimo, ultimo), (std::vector<pesos::Punto>{{ultimo, 61500}}));
    EXPECT_EQ(one(u"Select count(*) from Medidas where Paciente = 7 and Talla = 0 and Pc = 0"_s), u"1"_s);
}

TEST(Calibre, tellsNothingWithoutAScaleAndReadsTheSpeedAsItIsWritten)
{
    EXPECT_EQ(calibre::intervalo(480, {}), QString());
    EXPECT_EQ(calibre::amplitud(480, {}), QString());
    EXPECT_EQ(calibre::intervalo(-480, {40, 25}), u"12,0 mm = 480 ms (125 por minuto)"_s);
    EXPECT_EQ(calibre::intervalo(480, {40, 50}), u"12,0 mm = 240 ms (250 por minuto)"_s);
    EXPECT_EQ(calibre::intervalo(0, {40, 25}), u"0,0 mm = 0 ms"_s);
    EXPECT_EQ(calibre::amplitud(-300, {40, 25}), u"7,5 mm = 0,75 mV"_s);
    EXPECT_EQ(calibre::velocidad(u"25 mm/s"_s), 25);
    EXPECT_EQ(calibre::velocidad(u" 12,5 mm/s"_s), 12.5);
    for (const QString &ninguna : {u""_s, u"rápida"_s, u"0"_s, u"-25"_s})
        EXPECT_FALSE(calibre::velocidad(ninguna)) << ninguna.toStdString();
}
