#include "answers.h"
#include "clinical/history/historiaComoTexto.h"
#include "delivered.h"

using namespace Qt::StringLiterals;
using clinical::ContenidoDeHistoria;

namespace
{

class HistoriaTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
        MODULE11::DrActual = u"Dra. O'Higgins"_s;
        run({"INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Fecha de Nacimiento], Sexo) "
             "VALUES (7, 'Núñez Noé', cdate('01/02/2010'), 'Varon')"});
    }

    static QString historia() { return clinical::historiaComoTexto(7, false); }
    static QString lines(const QString &text) { return QString(text).replace(u"\r\n"_s, u"|"_s); }
};

} // namespace

TEST_F(HistoriaTest, tellsThePersonSectionBySection)
{
    EXPECT_EQ(
        lines(historia()),
        u"INFORMACION PERSONAL : |PACIENTE: Núñez Noé|FECHA DE NACIMIENTO : 01/02/2010  SEXO : Varon G.SANG.: |"
        "DOCUMENTO :  OBRA SOCIAL :  Nº AFIL : |DOMICILIO :  LOCALIDAD :  PCIA : |TELEFONOS : |"_s +
            u"- "_s.repeated(47) + u'|');
    // An allergy record is no line of the history, nor is a birth record that was only opened.
    run({"INSERT INTO [Antecedentes Personales] (paciente, AlAl) VALUES (7, True)",
         "INSERT INTO Perinatal (idPaciente) VALUES (7)", "INSERT INTO Gineco (idPaciente) VALUES (8)"});
    EXPECT_FALSE(historia().contains(u"ANTECEDENTES"_s));
    EXPECT_FALSE(historia().contains(u"PERINATAL"_s));

    run({"UPDATE Perinatal SET [Peso al nacer] = 3200, [sufrimiento fetal] = '0', [VDRL] = True, [abdomen anormal] = "
         "True where idPaciente = 7",
         "INSERT INTO Pediatria (numero, [Maniobras especiales estimulo ext]) VALUES (7, True)",
         "INSERT INTO [Antecedentes Personales] (paciente, Antecedente) VALUES (7, 'Asma')",
         "INSERT INTO [Patologias Familiares] (Paciente, Patologia) VALUES (7, 'Diabetes')",
         "INSERT INTO Antecedentes (Paciente, Pariente, Afeccion) VALUES (7, 'Madre', 'HTA')",
         "INSERT INTO SocioEscolar (idPaciente, Signo, Valor) VALUES (7, 'Lee', 'Bien')",
         "INSERT INTO AntecedentesCardiologicos (idPaciente, [Historia familiar de Enfermedad Cardiaca]) VALUES (7, "
         "True)",
         "INSERT INTO Gineco (idPaciente, Menarca) VALUES (7, '12')"});
    const QString told = lines(historia());
    EXPECT_TRUE(told.contains(
        u"|INFORMACION PERINATAL : |PESO AL NACER      : 3200 TALLA : |APGAR TOTAL  1 min :  5 min : |"
        "Presencia de maniobras especiales de estímule ext.|Presencia de Abdomen anormal|DATOS MATERNOS : |"
        "Presencia de VDRL madre|Signos de sufrimiento fetal.|EDAD DE LA MADRE AL NACIMIENTO :  PESO DE LA MADRE : |"
        "ANTECEDENTES PERSONALES : | - Asma|CONDICION FLIAR : | - Diabetes|ANTECEDENTES FAMILIARES : |  - Madre->HTA|"
        "RELACION SOCIO-ESCOLAR : | - Lee : Bien|ANTECEDENTES CARDIOLOGICOS : |"
        "Historia familiar de Enfermedad Cardiaca // |ANTECEDENTES GINECOLOGICOS : |idPaciente : 7 // Menarca : 12 // |"_s))
        << told.toStdString();
}

TEST_F(HistoriaTest, tellsWhatHappenedByDateAndHour)
{
    run({"INSERT INTO Consulta (Paciente, Fecha, Hora, Motivo, [Sintoma 1], [Diagnostico 2]) VALUES (7, "
         "cdate('10/03/2024'), cdate('09:00'), 'tos', 'Fiebre', 'Otitis')",
         "INSERT INTO Vacunas (Paciente, fecha, Vacuna, Dosis, observaciones) VALUES (7, cdate('10/03/2024'), 'BCG', "
         "'1ra', 'INDICADA')",
         "INSERT INTO Medidas (Paciente, fecha, Peso, Talla, Pc) VALUES (7, cdate('09/03/2024'), 12345, 87.1, 48)",
         "INSERT INTO Analisis (Paciente, Fecha, Hora, Hemoglobina) VALUES (7, cdate('10/03/2024'), cdate('08:00'), "
         "'12')",
         "INSERT INTO Consulta (Paciente, Fecha, Motivo) VALUES (7, cdate('10/03/2023'), 'hace más de un año')",
         "INSERT INTO Consulta (Paciente, Fecha, Motivo) VALUES (8, cdate('10/03/2024'), 'de otro')",
         "INSERT INTO TablaTempHC (Dr, Detalles) VALUES ('otro', 'suyo')",
         "INSERT INTO TablaTempHC (Dr, Detalles) VALUES ('Dra. O''Higgins', 'viejo')"});
    const QString told = lines(historia());
    const QStringList marks = {
        u"MEDICIONES : 09/03/2024 : PESO 12.345 gramos. // TALLA : 87,1 cm. // P.C. : 48,0 cm."_s,
        u"INDICACION DE VACUNA :10/03/2024 BCG 1ra"_s, u"LABORATORIO : 10/03/2024"_s,
        u"Motivo : tos|SINTOMAS: Fiebre /|DIAGNOSTICO: Otitis /|TRATAMIENTO: |"_s};
    qsizetype last = -1;
    for (const QString &mark : marks) {
        EXPECT_GT(told.indexOf(mark), last) << mark.toStdString() << "\n" << told.toStdString();
        last = told.indexOf(mark);
    }
    EXPECT_FALSE(told.contains(u"hace más"_s) || told.contains(u"de otro"_s));
    EXPECT_EQ(one(u"Select count(*) from TablaTempHC where Dr = 'Dra. O''Higgins'"_s), u"4"_s);
    EXPECT_EQ(one(u"Select Detalles from TablaTempHC where Dr = 'otro'"_s), u"suyo"_s);
}

TEST_F(HistoriaTest, aSourceThatFailsIsToldOnceAndTheRestGoesOn)
{
    run({"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (7, cdate('09/03/2024'), 1000)",
         "DROP TABLE Vacunas"});
    Answers boxes({u"Aceptar"_s});
    const QString told = historia();
    EXPECT_TRUE(told.contains(u"MEDICIONES"_s));
    EXPECT_TRUE(boxes.last().startsWith(u"Se detectó el siguiente error : "_s));
    EXPECT_TRUE(boxes.last().endsWith(u"El proceso seguirá ejecutándose."_s));
}

TEST_F(HistoriaTest, withoutVisitsNothingDatedIsTold)
{
    run({"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (7, cdate('09/03/2024'), 1000)"});
    ContenidoDeHistoria contenido =
        ContenidoDeHistoria::todo(basic::Date(QDate(2024, 1, 1)), basic::Date(QDate(2024, 12, 31)));
    EXPECT_TRUE(clinical::textoDeHistoria(7, contenido).contains(u"MEDICIONES"_s));
    contenido.poner(ContenidoDeHistoria::Consultas, false);
    EXPECT_FALSE(clinical::textoDeHistoria(7, contenido).contains(u"MEDICIONES"_s));
}
