#include "delivered.h"

#include "core/services/services.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace
{

TEST(NamesTest, MonthsAndDatesInWords)
{
    EXPECT_EQ(MODULE11::NombreMes(9), u"Setiembre"_s);
    EXPECT_EQ(MODULE11::NombreMesListado(9), u"Septiembre"_s);
    EXPECT_EQ(MODULE11::NombreMesListado(12), MODULE11::NombreMes(12));
    for (const int fuera : {0, 13}) {
        EXPECT_EQ(MODULE11::NombreMes(fuera), QString());
        EXPECT_EQ(MODULE11::NombreMesListado(fuera), QString());
    }
    EXPECT_EQ(MODULE11::NombreDia(8), QString());
    EXPECT_EQ(MODULE11::FechaEnLetras(basic::Date(QDate(2021, 9, 5))), u"Domingo 5 de Setiembre de 2021"_s);
}

class ServiciosTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"CREATE TABLE Ensayos (idRubro LONG, Codigo TEXT(10), Notas MEMO, Alta DATE, Activo BIT,"
             " Precio CURRENCY)",
             "INSERT INTO Ensayos (idRubro, Codigo) VALUES (9, 'b')",
             "INSERT INTO Ensayos (idRubro) VALUES (10)",
             "INSERT INTO Ensayos (idRubro, Codigo) VALUES (2, 'a')"});
    }
};

TEST_F(ServiciosTest, ListsAreReplacedOnlyByRows)
{
    QComboBox lista;
    lista.addItem(u"vieja"_s);
    MODULE11::LlenaLista(lista, u"Select * from Ensayos where idRubro = 77"_s, u"Codigo");
    ASSERT_EQ(lista.count(), 1);
    EXPECT_EQ(lista.itemText(0), u"vieja"_s);
    MODULE11::LlenaLista(lista, u"Select * from Ensayos order by idRubro desc"_s, u"Codigo");
    ASSERT_EQ(lista.count(), 2) << "a Null is left out";
    EXPECT_EQ(lista.itemText(0), u"b"_s);
    MODULE11::LlenaLista(lista, u"Select * from Ensayos where idRubro = 10"_s, u"Codigo");
    EXPECT_EQ(lista.count(), 0) << "a row of Null is a row";
}

TEST_F(ServiciosTest, LookUpsOfOneValue)
{
    EXPECT_EQ(MODULE11::BuscaCampo(u"Select * from Ensayos where idRubro = 9"_s, u"codigo"),
              basic::Value(u"b"));
    EXPECT_TRUE(MODULE11::BuscaCampo(u"Select * from Ensayos where idRubro = 10"_s, u"Codigo").isNull());
    EXPECT_TRUE(MODULE11::BuscaCampo(u"Select * from Ensayos where idRubro = 77"_s, u"Codigo").isNull());
    EXPECT_THROW(MODULE11::BuscaCampo(u"Select * from Ensayos where Nombre = 'D'Angelo'"_s, u"Codigo"),
                 dao::Error);
    EXPECT_EQ(MODULE11::ProximoCodigo({}, u"Ensayos"_s, u"idRubro"_s).integer(), 11);
    run({"DELETE * FROM Ensayos"});
    EXPECT_EQ(MODULE11::ProximoCodigo({}, u"Ensayos"_s, u"idRubro"_s).integer(), 1);
}

TEST_F(ServiciosTest, KindsOfFields)
{
    QString tipos;
    for (QStringView campo : {u"idRubro", u"Codigo", u"Notas", u"alta", u"Activo", u"Precio"})
        tipos += MODULE11::TipoDeCampo(u"Ensayos"_s, campo);
    EXPECT_EQ(tipos, u"NTMDLN"_s);
    EXPECT_THROW(MODULE11::TipoDeCampo(u"Ensayos"_s, u"Nada"), dao::Error);
}

} // namespace
