#include "core/services/antecedentesPersonales.h"
#include "delivered.h"
#include "paediatrics/control/controlSano.h"
#include "paediatrics/control/ventanasMotoras.h"

using namespace Qt::StringLiterals;
using namespace sano;

namespace
{

class ControlTest : public DeliveredBase
{
};

std::string nombres(const Problemas &problemas)
{
    QStringList todos;
    for (const Problema &problema : problemas)
        todos += problema.nombre + (problema.tabla == Tabla::DiagnosticoRN ? u"*"_s : QString());
    return todos.join(u',').toStdString();
}

} // namespace

TEST(Control, aBandEndsWithItsLastDay)
{
    const std::pair<qint64, const char *> edades[] = {
        {0, "Recien Nacido"},   {30, "Recien Nacido"},   {31, "Lactante"},      {730, "Lactante"},
        {731, "Pre y Escolar"}, {4380, "Pre y Escolar"}, {4381, "Adolescente"}, {36500, "Adolescente"},
    };
    for (const auto &[dias, franja] : edades)
        EXPECT_EQ(rotulo(franjaDe(dias)).toStdString(), franja) << dias;
}

/// Two windows over one list: what the person did here is done to what the other left.
TEST(Control, whatIsWrittenHereSurvivesWhatIsWrittenMeanwhile)
{
    const Problema a{u"a"_s, Tabla::PatologiasFamiliares}, b{u"b"_s, Tabla::PatologiasFamiliares},
        c{u"c"_s, Tabla::PatologiasFamiliares}, aRN{u"a"_s, Tabla::DiagnosticoRN};
    EXPECT_EQ(nombres(conciliar({a, b}, {a, b, c}, {a, b})), "a,b,c");
    EXPECT_EQ(nombres(conciliar({a, b}, {b}, {a, b, c})), "b,c");
    EXPECT_EQ(nombres(conciliar({a, b}, {a, b, c}, {a, c})), "a,c") << "added by both";
    EXPECT_EQ(nombres(conciliar({a, a}, {a}, {a, a})), "a") << "one of two of a name";
    EXPECT_EQ(nombres(conciliar({a, aRN}, {aRN}, {a, aRN})), "a*") << "each table has its own";
}

TEST_F(ControlTest, listsGoBackToTheTableThatTheyCameFrom)
{
    run({"INSERT INTO [Patologias Familiares] (Paciente, Patologia) VALUES (7, 'Asma')",
         "INSERT INTO [diagnostico RN] (paciente, Patologia) VALUES (7, 'Ictericia')",
         "INSERT INTO [diagnostico RN] (paciente, Patologia) VALUES (8, 'de otro')"});
    for (int vez = 0; vez < 2; ++vez)
        guardarListas(7, problemas(7), {u"Soplo d'expulsión"_s});
    EXPECT_EQ(nombres(problemas(7)), "Asma,Ictericia*");
    EXPECT_EQ(datosPositivos(7), QStringList{u"Soplo d'expulsión"_s});
    EXPECT_EQ(one(u"Select Patologia from [diagnostico RN] where paciente = 8"_s), u"de otro"_s);
}

TEST_F(ControlTest, aQuestionHasThreeAnswersAndOneRow)
{
    run({"INSERT INTO Binomio (Paciente, Descripcion, Resultado) VALUES (7, 'Embarazo Aceptado ?', 'NO')"});
    Binomio respuestas = binomio(7);
    EXPECT_EQ(one(u"Select count(*) from Binomio where Paciente = 7"_s), u"4"_s);
    EXPECT_TRUE(respuestas[0].isNull());
    EXPECT_EQ(respuestas[1].text(), u"NO"_s);
    respuestas[0] = u"SI"_s;
    respuestas[1] = basic::Null{};
    guardar(7, respuestas);
    EXPECT_EQ(binomio(7), respuestas);
    EXPECT_EQ(one(u"Select count(*) from Binomio"_s), u"4"_s);

    Screening pruebas = screening(7);
    EXPECT_EQ(one(u"Select count(*) from Perinatal where idPaciente = 7"_s), u"1"_s);
    EXPECT_TRUE(pruebas[0].positiva.isNull()) << "a test that was not made is not negative";
    pruebas[1] = {u"SI"_s, u"12,5"_s};
    guardar(7, pruebas);
    EXPECT_EQ(screening(7), pruebas);
}

TEST_F(ControlTest, maturationIsNotedOnceADay)
{
    const basic::Date ayer(QDate(2024, 3, 14)), hoy(QDate(2024, 3, 15));
    EXPECT_EQ(maduracionSexual(7), QString());
    guardarMaduracionSexual(7, hoy, u"a"_s);
    guardarMaduracionSexual(7, hoy, u"b"_s);
    guardarMaduracionSexual(7, ayer, u"c"_s);
    EXPECT_EQ(maduracionSexual(7), u"b"_s);
    EXPECT_EQ(column(u"Select Resultado from [Maduracion Sexual] order by fecha"_s),
              (QStringList{u"c"_s, u"b"_s}));
}

TEST_F(ControlTest, personalHistoryLeavesTheAllergyRecordAlone)
{
    run({"INSERT INTO [Antecedentes Personales] (paciente, AlAl) VALUES (7, TRUE)",
         "INSERT INTO [Antecedentes Personales] (paciente, Antecedente) VALUES (7, 'Eccema')"});
    services::guardaAntecedentesPersonales(7, {u"Crup d'emblée"_s});
    EXPECT_EQ(services::antecedentesPersonales(7), QStringList{u"Crup d'emblée"_s});
    EXPECT_EQ(one(u"Select AlAl from [Antecedentes Personales] where Antecedente is null"_s), u"Verdadero"_s);
}

TEST(Milestones, aWindowHasBothItsDays)
{
    ASSERT_EQ(hitos().size(), 6U);
    const Hito &sentarse = hitos()[0], &caminar = hitos()[5];
    EXPECT_EQ(momento(sentarse, 115), Momento::Antes);
    EXPECT_EQ(momento(sentarse, 116), Momento::Dentro);
    EXPECT_EQ(momento(sentarse, 280), Momento::Dentro);
    EXPECT_EQ(momento(sentarse, 281), Momento::Despues);
    for (const Hito &hito : hitos()) { // one child of a hundred before half of them before ninety-nine
        EXPECT_LT(hito.mesesPrimero, hito.mesesMedia) << hito.nombre.toStdString();
        EXPECT_LT(hito.mesesMedia, hito.mesesUltimo) << hito.nombre.toStdString();
        EXPECT_NEAR(hito.primero, hito.mesesPrimero * 30.4375, 1);
        EXPECT_NEAR(hito.ultimo, hito.mesesUltimo * 30.4375, 1);
    }
    EXPECT_EQ(caminar.nombre, u"Camina solo"_s);
}
