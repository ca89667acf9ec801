#include "clinical/summary/estados.h"
#include "core/services/hallazgosPerinatales.h"
#include "delivered.h"

using namespace Qt::StringLiterals;
using namespace clinical;

namespace
{

Edad edad(QDate nacimiento, QDate hoy)
{
    return edadDe(basic::Date(nacimiento), basic::Date(hoy));
}

QString contada(QDate nacimiento, QDate hoy)
{
    const Edad e = edad(nacimiento, hoy);
    return u"%1 %2 %3"_s.arg(e.anios).arg(e.meses).arg(e.dias);
}

class ResumenTest : public DeliveredBase
{
protected:
    /// A girl of a hundred months.
    Persona persona{7, u"Mujer"_s, {8, 3, 0, 3039, 100}};

    static std::string dice(const Estado &estado) { return estado ? estado->toStdString() : "verde"; }
};

} // namespace

TEST(Edad, isWalkedDayByDayToYesterday)
{
    EXPECT_EQ(contada({2024, 3, 15}, {2024, 3, 15}), u"0 0 0"_s);
    EXPECT_EQ(contada({2024, 3, 14}, {2024, 3, 15}), u"0 0 0"_s); // yesterday is the last day that counts
    EXPECT_EQ(contada({2024, 2, 15}, {2024, 3, 15}), u"0 0 28"_s);
    EXPECT_EQ(contada({2024, 2, 15}, {2024, 3, 16}), u"0 1 0"_s);
    EXPECT_EQ(contada({2012, 3, 15}, {2024, 3, 16}), u"12 0 0"_s);
    EXPECT_EQ(contada({2024, 1, 31}, {2024, 3, 4}), u"0 1 0"_s);   // February has no 31st: 32 days
    EXPECT_EQ(edad({2024, 1, 1}, {2024, 12, 31}).mesesDeVida, 12); // 365 days
    EXPECT_EQ(edad({2024, 1, 1}, {2024, 1, 31}).mesesDeVida, 0);   // 30 days
    EXPECT_EQ(contada({2030, 1, 1}, {2024, 1, 1}), u"0 0 0"_s);
}

TEST_F(ResumenTest, pressureIsComparedWithTheNearestAgeBelow)
{
    EXPECT_EQ(dice(estadoDePresion(persona)), "verde");
    run({"Delete * from Presion", "INSERT INTO Presion (tipo, Edad, P_5, P_95) VALUES ('M+', 96, 80, 120)",
         "INSERT INTO Presion (tipo, Edad, P_5, P_95) VALUES ('M-', 96, 50, 80)",
         "INSERT INTO Presion (tipo, Edad, P_5, P_95) VALUES ('M+', 108, 80, 90)",
         "INSERT INTO TomaPresion (paciente, fecha, maxima, minima) VALUES (7, cdate('01/01/2024'), 200, 100)",
         "INSERT INTO TomaPresion (paciente, fecha, maxima, minima) VALUES (7, cdate('01/02/2024'), 120, 50)"});
    EXPECT_EQ(dice(estadoDePresion(persona)), "verde");
    run({"UPDATE TomaPresion SET maxima = 121 where fecha = cdate('01/02/2024')"});
    EXPECT_EQ(dice(estadoDePresion(persona)), "Presión máxima de 121, por encima del percentilo 95 (120)");
    run({"UPDATE TomaPresion SET maxima = 100, minima = 49 where fecha = cdate('01/02/2024')"});
    EXPECT_EQ(dice(estadoDePresion(persona)), "Presión mínima de 49, por debajo del percentilo 5 (50)");
    persona.edad.mesesDeVida = 95; // no figures for the age
    EXPECT_EQ(dice(estadoDePresion(persona)), "verde");
}

TEST_F(ResumenTest, eachAreaIsGreenUntilSomethingIsFound)
{
    for (const auto estado : {estadoDeAlimentacion, estadoDeMaduracion, estadoDeAlergias, estadoVisual,
                              estadoEscolar, estadoDeAdolescencia})
        EXPECT_EQ(dice(estado(persona)), "verde");
    run({"INSERT INTO Alimentacion (paciente, Alimento, tolerado) VALUES (7, 'Leche', True)",
         "INSERT INTO [Maduracion Neurologica] (paciente, detalle, calificacion) VALUES (7, 'Camina', 'coincide')",
         "INSERT INTO [Antecedentes Personales] (paciente, Antecedente, AlAl) VALUES (7, 'Asma', True)",
         "INSERT INTO Alergia (paciente) VALUES (7)",
         "INSERT INTO Visual (Paciente, [ojo derecho cerca]) VALUES (7, '8/10')",
         "INSERT INTO SocioEscolar (idPaciente, Signo, Valor) VALUES (7, 'Lee', 'BIEN')",
         "INSERT INTO Adolescente (paciente, aspecto, Alarma) VALUES (7, 'Prevencion de ETS', True)"});
    for (const auto estado : {estadoDeAlimentacion, estadoDeMaduracion, estadoDeAlergias, estadoVisual,
                              estadoEscolar, estadoDeAdolescencia})
        EXPECT_EQ(dice(estado(persona)), "verde");
    run({"INSERT INTO Alimentacion (paciente, Alimento, tolerado) VALUES (7, 'Huevo', False)",
         "INSERT INTO [Maduracion Neurologica] (paciente, detalle, calificacion) VALUES (7, 'Habla', 'NoCoincideEdad')",
         "INSERT INTO [Antecedentes Personales] (paciente, AlMed) VALUES (7, True)",
         "INSERT INTO Visual (Paciente, [ojo izquierdo lejos]) VALUES (7, '7/10')",
         "INSERT INTO SocioEscolar (idPaciente, Signo, Valor) VALUES (7, 'Escribe', 'mal')",
         "INSERT INTO Adolescente (paciente, aspecto, Alarma) VALUES (7, 'Mantiene relaciones sexuales', True)"});
    EXPECT_EQ(dice(estadoDeAlimentacion(persona)), "No tolera Huevo");
    EXPECT_EQ(dice(estadoDeMaduracion(persona)), "Maduración que no coincide con la edad: Habla");
    EXPECT_EQ(dice(estadoDeAlergias(persona)), "Alérgico a medicamentos");
    EXPECT_EQ(dice(estadoVisual(persona)), "Agudeza visual de 7/10, ojo izquierdo lejos");
    EXPECT_EQ(dice(estadoEscolar(persona)), "Escribe: mal");
    EXPECT_EQ(dice(estadoDeAdolescencia(persona)), "Mantiene relaciones sexuales sin prevención de embarazo");
    run({"INSERT INTO Adolescente (paciente, aspecto, Alarma) VALUES (7, 'Prevencion de embarazo', True)"});
    EXPECT_EQ(dice(estadoDeAdolescencia(persona)), "verde");
    EXPECT_EQ(dice(estadoDeAlimentacion({8, {}, {}})), "verde");
}

TEST_F(ResumenTest, weightOutsideTheNormalOfTheAgeIsFound)
{
    run({"INSERT INTO Medidas (Paciente, fecha, Peso, Talla) VALUES (7, cdate('01/01/2024'), 25000, 100)"});
    EXPECT_EQ(dice(estadoCardiologicoYPeso(persona, Normal{13, 20})),
              "I.M.C. de 25,0, fuera de lo normal para la edad (13,0 a 20,0)");
    EXPECT_EQ(dice(estadoCardiologicoYPeso(persona, Normal{13, 25})), "verde");
    EXPECT_EQ(dice(estadoCardiologicoYPeso(persona, std::nullopt)), "verde");
    run({"INSERT INTO AntecedentesCardiologicos (idPaciente, [Historia familiar de Enfermedad Cardiaca]) VALUES (7, "
         "True)"});
    EXPECT_EQ(dice(estadoCardiologicoYPeso(persona, std::nullopt)),
              "Historia familiar de Enfermedad Cardiaca");
}

TEST_F(ResumenTest, theBirthRecordSpeaksInSentences)
{
    EXPECT_EQ(services::hallazgosPerinatales(7), QStringList());
    run({"INSERT INTO Perinatal (idPaciente) VALUES (7)"});
    EXPECT_EQ(services::hallazgosPerinatales(7), QStringList());
    run({"UPDATE Perinatal SET [Edad de la madre al nacer] = 38, [Peso anterior de la madre] = 50, [peso al nacer de la "
         "madre] = 60, [Tipo liquido amniotico] = '0', [sufrimiento fetal] = '1', Nacimiento = '0', [Apgar total 1 min] "
         "= 7, [Peso al nacer] = 3200 where idPaciente = 7",
         "INSERT INTO Pediatria (numero, [Maniobras especiales Cardiacas]) VALUES (7, '0')"});
    EXPECT_EQ(services::hallazgosPerinatales(7), QStringList(u"Registro de peso al nacer :3.200 Gramos."_s));
    run({"UPDATE Perinatal SET [Edad de la madre al nacer] = 39, [peso al nacer de la madre] = 60.5, [Tipo liquido "
         "amniotico] = '1', [sufrimiento fetal] = '0', Nacimiento = '1', [Apgar total 1 min] = 6, [Control prenatal] = "
         "True, [nombre drogas parto] = 'Ocitocina', [Tiempo drogas anteparto] = '2 h' where idPaciente = 7",
         "UPDATE Pediatria SET [Maniobras especiales Cardiacas] = '1' where numero = 7"});
    EXPECT_EQ(services::hallazgosPerinatales(7),
              (QStringList{
                  u"Edad de la madre en parto : 39"_s,
                  u"Excesivo aumento de peso de la madre durante embarazo : 10,5"_s,
                  u"Ausencia de control prenatal de la madre."_s, u"Liquido amniotico anormal : Meconial"_s,
                  u"Registro de drogas en parto : Ocitocina // Tiempo anteparto :2 h"_s,
                  u"Registro de sufrimiento fetal."_s, u"Registro de nacimiento gemelar."_s,
                  u"Apgar al min. : 6"_s, u"Registro de maniobras especiales cardíacas : Masaje externo"_s,
                  u"Registro de peso al nacer :3.200 Gramos."_s}));
}
