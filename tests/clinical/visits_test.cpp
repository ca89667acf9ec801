#include "delivered.h"

#include "clinical/visits/consulta.h"
#include "clinical/visits/examen.h"
#include "platform/basic/errors.h"

#include <set>

using namespace Qt::StringLiterals;
using namespace consultas;

namespace
{

/// A visit as the capture form gives it, with every field of the examination blank but one.
Visita visit()
{
    Visita visit{.fecha = basic::Date(QDate(2024, 3, 15)),
                 .hora = u"10:30"_s,
                 .motivo = u"Fiebre, 'desde ayer'"_s,
                 .peso = u"12.800"_s,
                 .talla = u"89,5"_s,
                 .estadoGeneral = u"Bueno"_s,
                 .pulso = u"110"_s};
    for (const examen::Item &item : examen::items())
        visit.examen.push_back({QString::fromUtf8(item.titulo), QString()});
    visit.examen[3].valor = u"Escoliosis"_s;
    return visit;
}

class Visits : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        MODULE11::DrActual = u"Dra. Uno"_s;
        basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
        run({"INSERT INTO [Obra Social] (Descripcion, [Precio Consulta]) VALUES ('Mutual', 7500.25)",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], Sexo, [Fecha de Nacimiento], [Obra Social]) "
             "VALUES (5, 'Vera Luz', 'Mujer', cdate('29/02/2024'), 'Mutual')",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Obra Social]) VALUES (6, 'Sin Datos', 'No está')",
             "UPDATE Tratamientos SET Dosis = '60', Intervalo = '4' WHERE Descripcion = 'Paracetamol'"});
    }
    static QString ofVisit(const QString &column) { return one(u"Select %1 from Consulta"_s.arg(column)); }
};

} // namespace

TEST_F(Visits, CopyWhatTheyMustNotLoseToALaterChange)
{
    registrarConsulta(u"5"_s, visit());
    run({"UPDATE Pacientes SET [Apellido y Nombres] = 'Otra', [Obra Social] = 'No está' WHERE Numero = 5",
         "UPDATE [Obra Social] SET [Precio Consulta] = 1"});
    EXPECT_EQ(ofVisit(u"[Nombre del paciente]"_s), u"Vera Luz"_s);
    EXPECT_EQ(ofVisit(u"Mutual"_s), u"Mutual"_s);
    EXPECT_EQ(ofVisit(u"Monto"_s), u"7500,25"_s);
    EXPECT_EQ(ofVisit(u"Dr"_s), u"Dra. Uno"_s);
    EXPECT_EQ(ofVisit(u"Peso"_s), u"12800"_s);
    EXPECT_EQ(ofVisit(u"Motivo"_s), u"Fiebre, 'desde ayer'"_s);
}

TEST_F(Visits, EnteredLateRecordTheAgeOfTheDayOfTyping)
{
    Visita late = visit();
    late.fecha = basic::Date(QDate(2024, 3, 1));
    registrarConsulta(u"5"_s, late);
    EXPECT_EQ(ofVisit(u"Edad"_s), u"15"_s);
    registrarConsulta(u"5"_s, visit());
    late.fecha = basic::Date(QDate(2024, 3, 2));
    registrarConsulta(u"5"_s, late);
    EXPECT_EQ(one(u"Select [Ultima fecha visita] from Pacientes where Numero = 5"_s), u"02/03/2024"_s);
}

TEST_F(Visits, OfAPatientWithoutDataAreRecordedAllTheSame)
{
    Visita bare = visit();
    bare.hora = u"25:99"_s;
    bare.talla = u"alta"_s;
    registrarConsulta(u"6"_s, bare);
    EXPECT_EQ(ofVisit(u"Mutual"_s), u"No está"_s);
    for (const QString &column : {u"Monto"_s, u"Edad"_s, u"Hora"_s, u"Talla"_s})
        EXPECT_EQ(ofVisit(column), u"<Null>"_s) << column.toStdString();
    EXPECT_EQ(one(u"Select count(*) from ExFisico where idPaciente = 6"_s), u"35"_s);
    registrarConsulta(u"99"_s, visit()); // deleted at another workstation meanwhile
    EXPECT_EQ(one(u"Select Motivo from Consulta where Paciente = 99"_s), u"Fiebre, 'desde ayer'"_s);
}

TEST_F(Visits, KeepFiveOfEachGroupWithTheirIdsAndDoses)
{
    Visita full = visit();
    const qint64 paracetamol =
        one(u"Select idTratamiento from Tratamientos where Descripcion = 'Paracetamol'"_s).toLongLong();
    full.renglones[Tratamientos] = {{u"Propio"_s, 0}, {},          {u"Paracetamol"_s, paracetamol},
                                    {u"D"_s, 4},      {u"E"_s, 5}, {u"F"_s, 6}};
    full.renglones[Sintomas] = {{u"Fiebre"_s, 11}};
    registrarConsulta(u"5"_s, full);
    EXPECT_EQ(ofVisit(u"[Tratamiento 5]"_s), u"E"_s);
    EXPECT_EQ(ofVisit(u"idTratamiento1"_s), u"0"_s);
    EXPECT_EQ(ofVisit(u"[Tratamiento 2]"_s), QString());
    EXPECT_EQ(ofVisit(u"idTratamiento2"_s), u"<Null>"_s);
    EXPECT_EQ(ofVisit(u"Dosis1"_s), u"<Null>"_s);
    EXPECT_EQ(ofVisit(u"Dosis3 + '/' + Intervalo3"_s), u"60/4"_s);
    EXPECT_EQ(ofVisit(u"idSintoma1"_s), u"11"_s);
    EXPECT_EQ(ofVisit(u"[Sintoma 2]"_s), u"<Null>"_s);
}

TEST_F(Visits, HaveARowForEachItemOfTheExamination)
{
    registrarConsulta(u"5"_s, visit());
    registrarConsulta(u"5"_s, visit());
    const QStringList titles = column(u"Select Titulo from ExFisico where idConsulta = 2"_s);
    EXPECT_EQ(titles.size(), 35);
    EXPECT_EQ(QSet<QString>(titles.begin(), titles.end()).size(), 35);
    EXPECT_EQ(one(u"Select count(*) from ExFisico where Valor = 'Escoliosis' and Dr = 'Dra. Uno'"_s), u"2"_s);
    std::set<int> fields;
    for (const examen::Item &item : examen::items())
        fields.insert(item.indice);
    EXPECT_EQ(*fields.begin(), 5);
    EXPECT_EQ(*fields.rbegin(), 39);
    EXPECT_EQ(fields.size(), 35U);
}

TEST_F(Visits, AreNotLostUnseen)
{
    run({"DROP TABLE ExFisico"});
    EXPECT_NE(registrarConsulta(u"5"_s, visit()).examenSinGuardar, QString());
    EXPECT_EQ(one(u"Select count(*) from Consulta"_s), u"1"_s); // what was written before the failure stays
    EXPECT_EQ(one(u"Select count(*) from Eventos where Proceso = 'NUEVA CONSULTA '"_s), u"1"_s);
    run({"DROP TABLE Consulta"});
    EXPECT_THROW(registrarConsulta(u"5"_s, visit()), basic::Error);
}
