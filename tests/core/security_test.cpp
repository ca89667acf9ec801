#include "answers.h"
#include "delivered.h"

#include "core/security/alarmas.h"
#include "core/security/eventos.h"
#include "core/security/niveles.h"
#include "core/security/permisos.h"
#include "platform/basic/environment.h"
#include "platform/forms/colour.h"
#include "platform/forms/tag.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace
{

constexpr int amarillo = 65535, rojo = 255, verde = 65280;

class AlarmasTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        for (QLabel *objeto : {&vista, &audicion, &ajeno})
            objeto->setParent(&ventana);
        vista.setObjectName(u"Label1(0)"_s);
        audicion.setObjectName(u"Label1(1)"_s);
        ajeno.setObjectName(u"Label2"_s);
        for (QLabel *objeto : {&vista, &audicion})
            forms::setTag(objeto, u"ALARMA"_s);
    }

    void marcar(QLabel &objeto, qint64 paciente = 5)
    {
        MODULE11::AsignaAlarma(paciente, u"Pediatría"_s, u"Sentidos"_s, objeto);
    }
    static int fondo(const QLabel &objeto) { return forms::toColourValue(forms::backColor(objeto)); }

    QWidget ventana;
    QLabel vista, audicion, ajeno;
};

TEST_F(AlarmasTest, ClicksLeadThroughTheColoursOfOneRow)
{
    for (const int color : {amarillo, rojo, verde, amarillo}) {
        marcar(vista);
        EXPECT_EQ(fondo(vista), color);
        EXPECT_EQ(MODULE11::ColorAlarma(5, u"Pediatría"_s, u"Sentidos"_s, u"Label1(0)"_s), color);
    }
    EXPECT_EQ(rows(u"Select * from Alarmas"_s), u"5,Label1(0),Pediatría,Sentidos,A"_s);
    // another topic or patient is another mark
    EXPECT_EQ(MODULE11::ColorAlarma(5, u"Pediatría"_s, u"Talla"_s, u"Label1(0)"_s), std::nullopt);
    EXPECT_EQ(MODULE11::ColorAlarma(6, u"Pediatría"_s, u"Sentidos"_s, u"Label1(0)"_s), std::nullopt);
}

TEST_F(AlarmasTest, PaintsTheTaggedObjectsThatHaveAMark)
{
    const int limpio = fondo(vista);
    run({"INSERT INTO Alarmas (idPaciente, Objeto, Especialidad, Tema, Color) VALUES (5, 'Label1(1)', 'Pediatría', 'Sentidos', 'R')",
         "INSERT INTO Alarmas (idPaciente, Objeto, Especialidad, Tema, Color) VALUES (5, 'Label2', 'Pediatría', 'Sentidos', 'R')",
         "INSERT INTO Alarmas (idPaciente, Objeto, Especialidad, Tema, Color) VALUES (7, 'Label1(0)', 'Pediatría', 'Sentidos', 'X')"});
    MODULE11::PintaAlarmas(ventana, 6);
    EXPECT_EQ(fondo(audicion), limpio) << "a patient without marks";
    MODULE11::PintaAlarmas(ventana, 5);
    EXPECT_EQ(fondo(vista), limpio);
    EXPECT_EQ(fondo(audicion), rojo);
    EXPECT_EQ(fondo(ajeno), limpio) << "not tagged";
    MODULE11::PintaAlarmas(ventana, 7);
    EXPECT_EQ(fondo(vista), verde) << "any other letter";
}

class AccesoTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"DELETE * FROM Usuarios", "DELETE * FROM Niveles", "DELETE * FROM Profesionales"});
        basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(9, 5, 59)));
    }
};

TEST_F(AccesoTest, EachEventIsARowAndALogThatFailsStopsNobody)
{
    MODULE11::UsuarioActual = u"O'Higgins"_s;
    MODULE11::RegistraEvento(u"AgregarPacientes"_s, u"INGRESO CORRECTO"_s);
    EXPECT_EQ(rows(u"Select * from Eventos"_s),
              u"AgregarPacientes,O'Higgins,15/03/2024,09:05,INGRESO CORRECTO"_s);
    MODULE11::RegistraEvento(u"BAJA"_s, QString(300, u'x'));
    EXPECT_EQ(rows(u"Select len(Suceso) from Eventos where Proceso = 'BAJA'"_s), u"255"_s)
        << "its start is kept";
    run({"DROP TABLE Eventos"});
    EXPECT_NO_THROW(MODULE11::RegistraEvento(u"BAJA"_s, u"x"_s));
}

TEST_F(AccesoTest, ProfessionalsSeeThePatientsThatTheirPolicyAllows)
{
    run({"INSERT INTO Profesionales (idProfesional, Nombre, TipoPermiso) VALUES (1, 'Uno', 'U')",
         "INSERT INTO Profesionales (idProfesional, Nombre, TipoPermiso) VALUES (2, 'Dos', 'T')",
         "INSERT INTO Profesionales (idProfesional, Nombre) VALUES (3, 'Tres')"});
    const auto filtro = [](const QString &nombre) {
        MODULE11::DrActual = nombre;
        return MODULE11::FiltroDePacientes();
    };
    EXPECT_EQ(filtro(u"Uno"_s), u" idProfesional = 1 "_s);
    for (const QString &todos : {u"Dos"_s, u"Nadie"_s, u"Dra. O'Higgins"_s})
        EXPECT_EQ(filtro(todos), u" true "_s) << todos.toStdString();
    Answers answers({u"Aceptar"_s});
    EXPECT_FALSE(filtro(u"Tres"_s));
}

TEST_F(AccesoTest, GatesAskTheColumnOfTheUsersLevel)
{
    EXPECT_TRUE(MODULE11::VerificaNivel(u"BorrarPacientes"_s)) << "no users, no levels";
    EXPECT_EQ(rows(u"Select Usuario, Suceso from Eventos"_s), u"<NADIE>,INGRESO CORRECTO SIN USUARIOS"_s);
    run({"INSERT INTO Niveles (Nivel, Descripcion, BorrarPacientes) VALUES (12, 'Guardia', TRUE)",
         "INSERT INTO Niveles (Nivel, Descripcion, BorrarPacientes) VALUES (3, 'Jefe', TRUE)",
         "INSERT INTO Niveles (Nivel, Descripcion, BorrarPacientes) VALUES (105, 'Pasante', FALSE)"});
    MODULE11::NivelActual = 12;
    MODULE11::UsuarioActual = u"Ana"_s;
    EXPECT_TRUE(MODULE11::VerificaNivel(u"BorrarPacientes"_s));
    EXPECT_EQ(rows(u"Select Proceso from Eventos where Usuario = 'Ana' and Suceso = 'INGRESO CORRECTO'"_s),
              u"BorrarPacientes"_s);
    EXPECT_EQ(MODULE11::entradasDeNivel().join(u'|'), u"03 - Jefe|12 - Guardia|105 - Pasante"_s);
    EXPECT_EQ(MODULE11::nivelDeEntrada(u"03 - Jefe"_s), 3);
    EXPECT_EQ(MODULE11::nivelDeEntrada(u"105 - Pasante"_s), 10) << "why levels are kept under 100";
}

} // namespace
