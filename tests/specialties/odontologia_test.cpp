#include "delivered.h"

#include "specialties/odontology/anatomia.h"
#include "specialties/odontology/esquema.h"
#include "specialties/odontology/presupuestos.h"

#include <gtest/gtest.h>

#include <set>

using namespace Qt::StringLiterals;
using namespace odonto;

TEST(Piezas, eachHasANumberOfItsOwnAndAPlaceWithoutAnother)
{
    std::set<int> numeros;
    for (int pieza = 1; pieza <= piezas; ++pieza) {
        numeros.insert(numeroFdi(pieza));
        EXPECT_TRUE(QRectF(QPointF(), medidaDelOdontograma()).contains(lugarDePieza(pieza))) << pieza;
        for (int otra = 1; otra < pieza; ++otra)
            EXPECT_FALSE(lugarDePieza(pieza).intersects(lugarDePieza(otra))) << pieza << " " << otra;
    }
    EXPECT_EQ(numeros.size(), std::size_t(piezas));
    const std::pair<int, int> esperados[] = {{1, 18},  {8, 11},  {9, 21},  {16, 28}, {17, 48}, {24, 41},
                                             {25, 31}, {32, 38}, {33, 55}, {37, 51}, {38, 61}, {42, 65},
                                             {43, 85}, {47, 81}, {48, 71}, {52, 75}};
    for (const auto &[pieza, numero] : esperados)
        EXPECT_EQ(numeroFdi(pieza), numero);
}

TEST(Piezas, facesAreCalledByJawAndSide)
{
    EXPECT_EQ(nombreDePieza(16), u"tercer molar superior izquierdo"_s);
    EXPECT_EQ(nombreDePieza(43), u"segundo molar temporario inferior derecho"_s);
    // Mesial is towards the middle line: to the right on the patient's right side.
    EXPECT_EQ(nombreDeCara(caraDe(1, Derecha)), u"mesial"_s);
    EXPECT_EQ(nombreDeCara(caraDe(16, Derecha)), u"distal"_s);
    EXPECT_EQ(nombreDeCara(caraDe(8, Abajo)), u"palatina"_s);
    EXPECT_EQ(nombreDeCara(caraDe(24, Abajo)), u"vestibular"_s);
    EXPECT_EQ(nombreDeCara(caraDe(24, Centro)), u"incisal"_s);
    EXPECT_EQ(nombreDeCara(caraDe(33, Centro)), u"oclusal"_s);
}

TEST(Piezas, aPictureStaysInItsPlaceAndClearOfTheFaces)
{
    for (int pieza = 1; pieza <= piezas; ++pieza) {
        const QRectF dibujo = anatomia(pieza).silueta.boundingRect();
        EXPECT_TRUE(lugarDelDibujo(pieza).contains(dibujo)) << numeroFdi(pieza);
        EXPECT_FALSE(cuadroDeCaras(pieza).intersects(dibujo)) << numeroFdi(pieza);
    }
}

TEST(Esquema, isReadAsItWasWritten)
{
    Esquema esquema;
    esquema.pintar(caraDe(1, Abajo), rojo);
    esquema.pintar(caraDe(52, Centro), azul);
    esquema.alternarMarca(16, Corona, azul);
    esquema.ponerLeyenda(16, u"perno; ver|rx"_s, rojo);
    esquema.ponerLeyenda(20, u"sola"_s, azul);
    EXPECT_EQ(esquema.string1(), u"16|3|16711680|perno: ver:rx|255;20|100|0|sola|16711680"_s);
    const QString caras = esquema.string2();
    EXPECT_TRUE(caras.startsWith(u";1|16777215|16777215;2|"_s));
    EXPECT_TRUE(caras.contains(u";7|255|16777215;"_s));
    EXPECT_TRUE(caras.endsWith(u";264|16777215|16711680"_s));
    EXPECT_EQ(caras.count(u';'), ultimaCara);
    EXPECT_EQ(Esquema::deTexto(esquema.string1(), caras), esquema);
    EXPECT_EQ(Esquema().string1(), QString());
}

TEST(Esquema, aToothHasOneMarkAndItsLegendOutlivesIt)
{
    Esquema esquema;
    esquema.ponerLeyenda(5, u"ver"_s, azul);
    esquema.alternarMarca(5, Corona, azul);
    esquema.alternarMarca(5, Ausente, rojo);
    EXPECT_EQ(esquema.string1(), u"5|5|255|ver|16711680"_s);
    esquema.alternarMarca(5, Ausente, rojo);
    EXPECT_EQ(esquema.string1(), u"5|100|0|ver|16711680"_s);
    esquema.ponerLeyenda(5, {}, azul);
    EXPECT_EQ(esquema, Esquema());

    esquema.alternarPieza(5, rojo);
    EXPECT_EQ(enPalabras(esquema, 5), u"pintada toda"_s);
    esquema.alternarPieza(5, azul); // of another colour it is painted over
    EXPECT_EQ(esquema.color(caraDe(5, Centro)), azul);
    esquema.alternarPieza(5, azul);
    EXPECT_EQ(esquema, Esquema());
    EXPECT_FALSE(sePuedeGuardar(u" 100 "_s));
}

TEST(Esquema, whatCannotBeReadIsPassedOverAloneAndKept)
{
    const QString marcas =
        u"veneer;5|5|255||0;99|3|0||0;6|3|rojo||0;7|77|0||0;8|3|0;;9|3|255|100|0;-1|3|0||0"_s;
    const QString caras = u";7|255|16777215;300|1|1;0|5|5;8|x|1;9|1;10|99999999999|0;11|-2147483633|255"_s;
    const Esquema esquema = Esquema::deTexto(marcas, caras);
    EXPECT_EQ(esquema.marca(5).tipo, Ausente);
    EXPECT_EQ(esquema.marca(9).tipo, Corona);
    EXPECT_EQ(esquema.marca(9).leyenda, QString()) << "100 stands for no legend";
    EXPECT_EQ(esquema.color(7), rojo);
    EXPECT_EQ(esquema.color(11), blanco) << "a colour of the system was not painted by anybody";
    EXPECT_EQ(esquema.pintura(11).frente, -2147483633);
    EXPECT_EQ(esquema.sinLeer(), 6 + 5);
    EXPECT_EQ(esquema.string1(),
              u"5|5|255||0;9|3|255||0;veneer;99|3|0||0;6|3|rojo||0;7|77|0||0;8|3|0;-1|3|0||0"_s);
    EXPECT_TRUE(esquema.string2().endsWith(u";300|1|1;0|5|5;8|x|1;9|1;10|99999999999|0"_s));
    EXPECT_EQ(Esquema::deTexto(esquema.string1(), esquema.string2()), esquema);
    // Two items of a tooth are one: neither its mark nor its legend is lost.
    EXPECT_EQ(Esquema::deTexto(u"3|3|255||0;3|100|0|ver|9"_s, {}).string1(), u"3|3|255|ver|9"_s);
}

TEST(Esquema, differencesAreTold)
{
    Esquema uno, otro;
    uno.alternarMarca(16, Corona, rojo);
    otro.alternarMarca(16, Ausente, rojo);
    uno.pintar(caraDe(1, Abajo), rojo);
    otro.pintar(caraDe(1, Abajo), azul);
    const auto distintas = diferencias(uno, otro);
    ASSERT_EQ(distintas.size(), 2u);
    EXPECT_EQ(distintas[0].texto, u"18: pintada palatina (otro color)"_s);
    EXPECT_EQ(distintas[1].texto, u"28: Corona → Ausente"_s);
    EXPECT_TRUE(diferencias(uno, uno).empty());
}

class Presupuestos : public DeliveredBase
{
};

TEST_F(Presupuestos, aLineKeepsItsNameAndPriceAndALineOfOlderVersionsHasTheListsName)
{
    run({"INSERT INTO Presupuestos (codpaciente, fecha) VALUES (1, cdate('15/03/2024'))",
         "INSERT INTO practicos (detalle, precio) VALUES ('Corona', 99.9999)",
         "INSERT INTO RelPractico (codpresupuesto, codpractico, cantidad, precio, subtotal) VALUES (1, 1, 1, 1, 1)"});
    presupuestos::agregar(1, 1, 3);
    run({"UPDATE practicos SET detalle = 'Otra', precio = 5"});
    dao::Recordset lineas = MODULE11::BaseDatos.openRecordset(presupuestos::renglones(1));
    EXPECT_EQ(lineas[u"detalle"].text(), u"Otra"_s);
    lineas.moveNext();
    EXPECT_EQ(lineas[u"detalle"].text(), u"Corona"_s);
    EXPECT_EQ(lineas[u"idpresupuesto"].integer(), 1);
    EXPECT_EQ(lineas[u"subtotal"].value().currency().units(), 2999997);
    EXPECT_TRUE(lineas.updatable());
    EXPECT_EQ(presupuestos::total(1).units(), 3009997);
    EXPECT_EQ(presupuestos::total(2).units(), 0);
    EXPECT_FALSE(presupuestos::subtotal(1e300, basic::Currency::fromUnits(10000)));
}
