#include "documents/prescriptions/recetario.h"

#include "answers.h"
#include "core/session/recetario.h"
#include "delivered.h"
#include "documents/prescriptions/panCarElem.h"
#include "documents/prescriptions/panConfigReceta.h"
#include "documents/prescriptions/recetas.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;

namespace
{

const QString tabla = u"POSRECETARIO"_s;
const QString seccion = u"Configuracion"_s, clave = u"Archivo de configuraciones de la receta"_s;

class Recetario : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        basic::setClock(QDateTime(QDate(2024, 3, 5), QTime(9, 4, 7)));
        run({"Delete * from POSRECETARIO",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Obra Social]) VALUES (7, \"D'Angelo Luz\", 'Mutual')"});
    }
};

QString textoDe(const QString &valor, qint64 paciente)
{
    return recetario::rotulo(valor, paciente).texto;
}

} // namespace

TEST_F(Recetario, aLayoutReadsBackAsItWasSaved)
{
    recetario::Diseno diseno;
    diseno.elementos[0] = {u"D'Angelo"_s, {300, 1200}, u"Letra, que no hay"_s, 14, true, false};
    diseno.elementos[31] = {u"<FECHA>"_s, {5000, 45}, u"DejaVu Sans"_s, 9, false, true};
    diseno.imagen = recetario::Imagen{u"logo.png"_s, {60, 75}};
    recetario::guardar(tabla, diseno);
    EXPECT_EQ(recetario::leer(tabla), diseno);
    // the column named X goes down the sheet
    EXPECT_EQ(rows(u"Select Elemento, [Posicion X], [Posicion Y] from POSRECETARIO"_s),
              u"0,1200,300|31,45,5000|9999,75,60"_s);
    // underlining is read and not kept
    run({"UPDATE POSRECETARIO SET Subrayado = true where Elemento = 0"});
    diseno = recetario::leer(tabla);
    EXPECT_TRUE(diseno.elementos[0].subrayado);
    recetario::guardar(tabla, diseno);
    EXPECT_FALSE(recetario::leer(tabla).elementos[0].subrayado);
}

TEST_F(Recetario, rowsThatAreNoPlaceOfTheSheetArePassedOver)
{
    run({"INSERT INTO POSRECETARIO (Elemento, Valor) VALUES (32, 'a')",
         "INSERT INTO POSRECETARIO (Elemento, Valor) VALUES (-1, 'b')",
         "INSERT INTO POSRECETARIO (Valor) VALUES ('c')", "INSERT INTO POSRECETARIO (Elemento) VALUES (5)",
         "INSERT INTO POSRECETARIO (Elemento, [Posicion X]) VALUES (9999, 30)"});
    const recetario::Diseno diseno = recetario::leer(tabla);
    ASSERT_EQ(diseno.elementos.size(), 1);
    EXPECT_EQ(diseno.elementos.at(5), recetario::Elemento());
    EXPECT_EQ(diseno.imagen, (recetario::Imagen{{}, {0, 30}}));
    recetario::guardar(tabla, diseno); // a picture's place alone is not kept
    EXPECT_EQ(one(u"Select count(*) from POSRECETARIO"_s), u"1"_s);
}

TEST_F(Recetario, whatDoesNotFitLeavesTheLayoutAsItWas)
{
    run({"INSERT INTO POSRECETARIO (Elemento, Valor) VALUES (0, 'queda')"});
    recetario::Diseno diseno;
    diseno.elementos[0] = {QString(100, u'x'), {}};
    diseno.imagen = recetario::Imagen{u"/"_s + QString(120, u'y'), {}};
    EXPECT_THROW(recetario::guardar(tabla, diseno), basic::Error);
    diseno.imagen.reset();
    diseno.elementos[1] = {QString(101, u'x'), {}};
    EXPECT_THROW(recetario::guardar(tabla, diseno), basic::Error);
    EXPECT_EQ(rows(u"Select Valor from POSRECETARIO"_s), u"queda"_s);
}

TEST_F(Recetario, fieldsShowTheirDataAndTheirLabelsWhereThereIsNone)
{
    EXPECT_EQ(textoDe(u"<FECHA>"_s, 7), u"Martes 5 de Marzo de 2024"_s);
    EXPECT_EQ(textoDe(u"<HORA>"_s, 7), u"09:04:07"_s);
    EXPECT_EQ(textoDe(u"<NOMBRE>"_s, 7), u"D'Angelo Luz"_s);
    EXPECT_EQ(textoDe(u"<OSOCIAL>"_s, 7), u"Mutual"_s);
    EXPECT_EQ(textoDe(u"<NOAFILIADO>"_s, 7), QString()); // a patient without a number
    EXPECT_EQ(textoDe(u"<NOMBRE>"_s, 8), u"<NOMBRE>"_s); // nobody
    EXPECT_EQ(textoDe(u"<EDAD>"_s, 7), u"<EDAD>"_s);
    EXPECT_EQ(textoDe(u"<OTRA>"_s, 7), u"<OTRA>"_s);
}

TEST_F(Recetario, theTreatmentIsTheFirstOfTodaysVisitWithAProduct)
{
    run({"INSERT INTO Consulta (Paciente, Fecha, [Tratamiento 1]) VALUES (7, cdate('04/03/2024'), \"L'otro\")",
         "INSERT INTO Tratamientos (Descripcion, nombrecomercial, detalles) VALUES (\"L'otro\", 'Marca', 'gotas')"});
    const QString campo = u"<TRATAMIENTO>"_s;
    EXPECT_EQ(textoDe(campo, 7), campo); // yesterday's
    run({"UPDATE Consulta SET Fecha = cdate('05/03/2024')"});
    EXPECT_EQ(textoDe(campo, 7), u"Marca - gotas"_s);
    EXPECT_EQ(recetario::rotulo(campo, 7).tratamiento, u"L'otro"_s);
    EXPECT_EQ(textoDe(campo, 8), campo);
    run({"UPDATE Tratamientos SET nombrecomercial = NULL where Descripcion = \"L'otro\""});
    EXPECT_EQ(textoDe(campo, 7), campo);
}

TEST_F(Recetario, aWorkstationGetsATableOfItsOwnOrTheDefaultOne)
{
    MODULE11::prepararRecetario();
    const QString propia = MODULE11::TablaRecetario;
    EXPECT_TRUE(propia.startsWith(u"TblRec_32647"_s));
    EXPECT_EQ(settings::getSetting(seccion, clave), propia);
    EXPECT_EQ(recetario::leer(propia), recetario::Diseno());
    EXPECT_EQ(recetario::tablas(), (QStringList{tabla, u"POSRECETARIOMEDIA"_s, propia}));

    run({"CREATE TABLE TblRec_1 (a LONG)"}); // a name in other letters is the same table
    settings::saveSetting(seccion, clave, u"tblrec_1"_s);
    MODULE11::TablaRecetario.clear();
    MODULE11::prepararRecetario();
    EXPECT_EQ(MODULE11::TablaRecetario, u"tblrec_1"_s);

    run({"DROP TABLE TblRec_1"});
    const Answers answers({u"Aceptar"_s});
    MODULE11::comprobarRecetario();
    EXPECT_EQ(
        answers.last(),
        u"Error : La tabla tblrec_1 no está creada en la base de datos, se utilizará la tabla POSRECETARIO."_s);
    EXPECT_EQ(MODULE11::TablaRecetario, tabla);
    EXPECT_EQ(settings::getSetting(seccion, clave), tabla);
}

TEST_F(Recetario, theSheetTakesThirtyTwoObjects)
{
    MODULE11::TablaRecetario = tabla;
    onceOpen([](forms::Form &editor) {
        for (int i = 0; i < 40; ++i)
            editor.findChild<QAbstractButton *>(u"Command1"_s)->click();
        editor.findChild<QAbstractButton *>(u"Command3"_s)->click();
    });
    panConfigReceta().showModal();
    EXPECT_EQ(one(u"Select count(*) from POSRECETARIO"_s), u"32"_s);
    EXPECT_EQ(one(u"Select max(Elemento) from POSRECETARIO"_s), u"31"_s);
}

TEST_F(Recetario, propertiesKeepWhatThisMachineDoesNotOffer)
{
    const recetario::Elemento raro{u"<OTRA>"_s, {10, 20}, u"Letra Que No Hay"_s, 72, true, true, true};
    panCarElem propiedades(raro);
    onceOpen([](forms::Form &form) { form.findChild<QAbstractButton *>(u"Command1"_s)->click(); });
    propiedades.showModal();
    EXPECT_EQ(propiedades.tag(), u"SI"_s);
    EXPECT_EQ(propiedades.elemento(), raro);
}

TEST_F(Recetario, aPrescriptionIsRecordedUnderItsOwnKeyAndRepeatedWithoutItsPoint)
{
    EXPECT_FALSE(recetas::ultima(7));
    MODULE11::DrActual = u"Dra. O'Higgins"_s;
    const qint64 primera = recetas::registrar(7, u"Rp/ <l'agua> & {{x}}"_s);
    const qint64 segunda = recetas::registrar(7, u"Otra..."_s);
    const qint64 deNadie = recetas::registrar(99, u"x"_s);
    EXPECT_LT(primera, segunda);
    EXPECT_LT(segunda, deNadie);
    EXPECT_EQ(
        rows(u"Select Paciente, Receta, Dr, idPaciente from Recetario where idReceta = %1"_s.arg(primera)),
        u"D'Angelo Luz,Rp/ <l'agua> & {{x}}.,Dra. O'Higgins,7"_s);
    EXPECT_EQ(one(u"Select Paciente from Recetario where idReceta = %1"_s.arg(deNadie)), u"<Null>"_s);
    EXPECT_EQ(recetas::ultima(7), u"Otra..."_s);
}
