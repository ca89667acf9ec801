#include "answers.h"
#include "delivered.h"

#include "clinical/catalogues/arbolCIE10.h"
#include "clinical/catalogues/buscaInternet.h"
#include "clinical/catalogues/dosis.h"
#include "clinical/catalogues/eleccion.h"
#include "clinical/catalogues/panCIE10.h"
#include "clinical/catalogues/panTratamientos.h"
#include "platform/settings/settings.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using catalogos::dosisParaElPaciente;
using MODULE11::BaseDatos;

namespace
{

class Catalogues : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"Delete * from Usuarios"});
    }
};

template <class Control>
Control &control(forms::Form &form, const QString &name)
{
    return *form.findChild<Control *>(name);
}
void press(forms::Form &form, const QString &button)
{
    control<QAbstractButton>(form, button).click();
}
void choose(forms::Form &form, const QString &row)
{
    auto &list = control<QListWidget>(form, u"List1"_s);
    list.setCurrentItem(list.findItems(row, Qt::MatchExactly).value(0));
}

QTreeWidgetItem *nodeOf(const forms::TreeView &tree, const QString &text)
{
    return tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}
int countOf(const forms::TreeView &tree, const QString &text)
{
    return static_cast<int>(tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive).size());
}
int nodesOf(const forms::TreeView &tree)
{
    return static_cast<int>(tree.findItems(u"*"_s, Qt::MatchWildcard | Qt::MatchRecursive).size());
}

const QString noDose = u"Sin datos de la dosis para el paciente"_s;

TEST_F(Catalogues, DoseByTheLatestWeight)
{
    BaseDatos.execute(u"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (7, #03/10/2024#, 12500)"_s);
    BaseDatos.execute(u"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (7, #01/10/2023#, 15000)"_s);
    EXPECT_EQ(dosisParaElPaciente(u"7"_s, u"50"_s, u"3"_s), u"Dosis para 12.500 gramos : 208,33 x dosis."_s);
    EXPECT_EQ(dosisParaElPaciente(u"7"_s, u"0,5"_s, basic::Null{}),
              u"Dosis para 12.500 gramos : 6,25 x dosis."_s);
    EXPECT_EQ(dosisParaElPaciente(u"7"_s, u"0.125"_s, u"1"_s), u"Dosis para 12.500 gramos : 1,56 x dosis."_s);
    EXPECT_EQ(dosisParaElPaciente(u"7"_s, u"1e300"_s, u"1e-300"_s), noDose);
    for (const QString &interval : {u"0"_s, u"-"_s, u""_s, u"cada 8 horas"_s})
        EXPECT_EQ(dosisParaElPaciente(u"7"_s, u"50"_s, interval), noDose) << interval.toStdString();
    for (const basic::Value &dose : {basic::Value(u"-"), basic::Value(u""), basic::Value(basic::Null{})})
        EXPECT_EQ(dosisParaElPaciente(u"7"_s, dose, u"1"_s), noDose);
    for (const QString &patient : {u""_s, u"NO"_s, u"0"_s, u"8"_s})
        EXPECT_EQ(dosisParaElPaciente(patient, u"50"_s, u"1"_s), noDose) << patient.toStdString();
}

TEST_F(Catalogues, WeightNotTakenGivesNoDoseButAFigure)
{
    BaseDatos.execute(u"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (7, #03/10/2024#, 12500)"_s);
    BaseDatos.execute(u"INSERT INTO Medidas (Paciente, fecha) VALUES (7, #03/12/2024#)"_s);
    EXPECT_EQ(dosisParaElPaciente(u"7"_s, u"50"_s, u"3"_s), u"Dosis para 0 gramos : 0,00 x dosis."_s);
}

TEST(InternetSearch, AddressTakesTheTextAndNothingElse)
{
    using catalogos::direccionDeBusqueda;
    EXPECT_EQ(direccionDeBusqueda(u"https://x.example/?q=%1&l=es"_s, u" Cólera &  tos "_s),
              u"https://x.example/?q=C%C3%B3lera%20%26%20tos&l=es"_s);
    EXPECT_EQ(direccionDeBusqueda(u"http://x.example/?q="_s, u"100%1"_s), u"http://x.example/?q=100%251"_s);
    for (const QString &address : {u""_s, u"x.example/?q="_s, u"file:///etc/passwd?"_s, u"https://"_s})
        EXPECT_EQ(direccionDeBusqueda(address, u"tos"_s), QString()) << address.toStdString();
}

TEST_F(Catalogues, DiseaseKeyIsThatOfTheFirstRowOfItsText)
{
    const QString cholera = u"Cólera, no especificado"_s;
    const QString key = one(u"Select idDiagnosticoCIE from Diagnosticos where idDiagnostico = 'A00.9'"_s);
    BaseDatos.execute(
        u"INSERT INTO Diagnosticos (idDiagnostico, idCategoria, descripcion) VALUES ('Z99.Z', 'Z99', '%1')"_s
            .arg(cholera));
    EXPECT_EQ(catalogos::idDiagnosticoCIE(cholera), key);
    EXPECT_EQ(catalogos::idDiagnosticoCIE(u"Cólera"_s), QString());
    EXPECT_EQ(catalogos::idDiagnosticoCIE(u"Mal d'altura"_s), QString());
}

TEST_F(Catalogues, TreeLoadsDiseasesOfACategoryOnce)
{
    forms::TreeView view(u"TreeView1"_s);
    ArbolCIE10 tree(view);
    tree.cargar();
    EXPECT_EQ(countOf(view, u"Cólera, no especificado"_s), 0);
    QTreeWidgetItem *cholera = nodeOf(view, u"Cólera"_s);
    ASSERT_NE(cholera, nullptr);
    EXPECT_EQ(cholera->parent()->text(0), u"Enfermedades infecciosas intestinales (A00-A09)"_s);
    EXPECT_EQ(cholera->childIndicatorPolicy(), QTreeWidgetItem::ShowIndicator);
    for (int times = 0; times < 2; ++times) {
        tree.abrir(*cholera);
        EXPECT_EQ(cholera->childCount(), 3);
    }
    EXPECT_TRUE(ArbolCIE10::esEnfermedad(*cholera->child(0)));
    EXPECT_FALSE(ArbolCIE10::esEnfermedad(*cholera));
    // the places count creation: chapters first, then groups, categories, and what was opened
    EXPECT_EQ(tree.nodo(1), view.topLevelItem(0));
    EXPECT_EQ(tree.nodo(view.topLevelItemCount() + 1), view.topLevelItem(0)->child(0));
    EXPECT_EQ(tree.nodo(0), nullptr);
    EXPECT_EQ(tree.nodo(1'000'000), nullptr);
}

TEST_F(Catalogues, SearchBringsItsHitsAndTheyBlockTheRestOfTheirCategory)
{
    forms::TreeView view(u"TreeView1"_s);
    ArbolCIE10 tree(view);
    tree.cargar();
    QTreeWidgetItem *chosen = tree.buscar(u"o1, biotipo"_s);
    ASSERT_NE(chosen, nullptr);
    EXPECT_EQ(chosen, view.currentItem());
    EXPECT_EQ(chosen->text(0), u"Cólera debido a Vibrio cholerae O1, biotipo El Tor"_s); // the last one
    QTreeWidgetItem *cholera = chosen->parent();
    EXPECT_EQ(cholera->childCount(), 2);
    EXPECT_TRUE(cholera->isExpanded() && cholera->parent()->isExpanded());
    EXPECT_TRUE(chosen->font(0).bold());
    EXPECT_FALSE(cholera->font(0).bold());
    tree.abrir(*cholera);
    EXPECT_EQ(cholera->childCount(), 2);
    tree.buscar(u"O1, BIOTIPO"_s);
    EXPECT_EQ(cholera->childCount(), 2);

    QTreeWidgetItem *measles = nodeOf(view, u"Sarampión"_s);
    tree.abrir(*measles);
    const int before = measles->childCount();
    tree.buscar(u"sarampión"_s);
    EXPECT_EQ(measles->childCount(), before);
    EXPECT_TRUE(measles->font(0).bold());
    EXPECT_FALSE(chosen->font(0).bold());
}

TEST_F(Catalogues, SearchWithoutHitsAndWithBrokenText)
{
    forms::TreeView view(u"TreeView1"_s);
    ArbolCIE10 tree(view);
    tree.cargar();
    const int loaded = nodesOf(view);
    tree.buscar(u"biotipo"_s);
    const int found = nodesOf(view);
    EXPECT_GT(found, loaded);
    for (const QString &text : {u"qwertz"_s, u"d'altura"_s, u"["_s + u"zz"_s, u"#?*"_s}) {
        EXPECT_EQ(tree.buscar(text), nullptr) << text.toStdString();
        EXPECT_EQ(view.currentItem(), nullptr);
        EXPECT_TRUE(view.selectedItems().isEmpty());
        for (int i = 0; i < view.topLevelItemCount(); ++i)
            EXPECT_FALSE(view.topLevelItem(i)->isExpanded());
    }
    EXPECT_EQ(nodesOf(view), found) << "neither more nor what was there taken away";
}

TEST_F(Catalogues, ExpandingAllLoadsEveryDiseaseOfTheCategoriesNotYetOpened)
{
    forms::TreeView view(u"TreeView1"_s);
    ArbolCIE10 tree(view);
    tree.cargar();
    tree.buscar(u"biotipo El Tor"_s); // leaves the category with one disease of three
    tree.expandir();
    EXPECT_EQ(nodeOf(view, u"Cólera"_s)->childCount(), 1);
    EXPECT_EQ(countOf(view, u"Varicela sin complicaciones"_s), 1);
    EXPECT_TRUE(nodeOf(view, u"Varicela"_s)->isExpanded());
    tree.contraer();
    EXPECT_FALSE(nodeOf(view, u"Varicela"_s)->isExpanded());
}

TEST_F(Catalogues, SearchThatEndsWhereTheLastOneDidBringsItBackIntoSight)
{
    forms::TreeView view(u"TreeView1"_s);
    ArbolCIE10 tree(view);
    tree.cargar();
    view.resize(600, 300);
    view.show();
    const auto inSight = [&] {
        return view.viewport()->rect().contains(view.visualItemRect(view.currentItem()));
    };
    for (int times = 0; times < 2; ++times) {
        ASSERT_NE(tree.buscar(u"asma"_s), nullptr);
        EXPECT_TRUE(inSight());
    }
    view.scrollToTop();
    tree.buscar(u"historia familiar de asma"_s);
    view.scrollToTop();
    tree.irAMarca(ArbolCIE10::Siguiente); // the only one
    EXPECT_TRUE(inSight());
}

TEST_F(Catalogues, MarkToMarkWithWhatABranchClosedByHandHides)
{
    forms::TreeView view(u"TreeView1"_s);
    ArbolCIE10 tree(view);
    tree.cargar();
    QTreeWidgetItem *only = tree.buscar(u"varicela sin"_s);
    ASSERT_NE(only, nullptr);
    QTreeWidgetItem *chapter = only->parent()->parent()->parent();
    view.collapseItem(chapter);
    for (const auto sense : {ArbolCIE10::Siguiente, ArbolCIE10::Anterior}) {
        tree.irAMarca(sense);
        EXPECT_EQ(view.currentItem(), only); // no mark is in sight
    }
    view.expandItem(chapter);
    tree.buscar(u"varicela"_s);
    QTreeWidgetItem *varicella = nodeOf(view, u"Varicela"_s);
    view.collapseItem(varicella); // hides the last mark, the current one
    tree.irAMarca(ArbolCIE10::Anterior);
    EXPECT_TRUE(view.currentItem()->font(0).bold());
    EXPECT_NE(view.currentItem()->parent(), varicella);
}

TEST_F(Catalogues, SymptomsAreThoseSelectedInTheListsOrder)
{
    onceOpen([](forms::Form &form) {
        choose(form, u"Tos"_s);
        auto &list = control<QListWidget>(form, u"List1"_s);
        list.findItems(u"Fiebre"_s, Qt::MatchExactly).value(0)->setSelected(true);
        press(form, u"Command1"_s);
    });
    const std::vector<ports::Renglon> chosen = catalogos::eligeSintomas();
    ASSERT_EQ(chosen.size(), 2u);
    EXPECT_EQ(chosen[0].nombre, u"Fiebre"_s);
    EXPECT_EQ(chosen[1].nombre, u"Tos"_s);
    EXPECT_EQ(QString::number(chosen[1].id),
              one(u"Select idSintoma from Sintomas where Descripcion = 'Tos'"_s));
    for (const bool byButton : {true, false}) {
        onceOpen([byButton](forms::Form &form) {
            choose(form, u"Tos"_s);
            byButton ? press(form, u"Command2"_s) : form.reject();
        });
        EXPECT_TRUE(catalogos::eligeSintomas().empty());
    }
}

TEST_F(Catalogues, TreatmentForAPatientAndTheBlankLineOfAClosedWindow)
{
    BaseDatos.execute(u"INSERT INTO Medidas (Paciente, fecha, Peso) VALUES (7, #03/10/2024#, 10000)"_s);
    BaseDatos.execute(
        u"UPDATE Tratamientos SET Dosis = '30', Intervalo = '3' where Descripcion = 'Ibuprofeno'"_s);
    onceOpen([](forms::Form &form) {
        choose(form, u"Ibuprofeno"_s);
        EXPECT_EQ(control<QLabel>(form, u"SSPanel1"_s).text(),
                  u"Dosis para 10.000 gramos : 100,00 x dosis."_s);
        press(form, u"Command1"_s);
    });
    const ports::Renglon chosen = catalogos::eligeTratamiento(u"7"_s);
    EXPECT_EQ(chosen.nombre, u"Ibuprofeno"_s);
    EXPECT_EQ(QString::number(chosen.id),
              one(u"Select idTratamiento from Tratamientos where Descripcion = 'Ibuprofeno'"_s));
    onceOpen([](forms::Form &form) {
        choose(form, u"Ibuprofeno"_s);
        form.reject();
    });
    EXPECT_EQ(catalogos::eligeTratamiento(u"7"_s), ports::Renglon());
    onceOpen([](forms::Form &form) {
        control<QLineEdit>(form, u"mDato(0)"_s).setText(u"Reposo"_s);
        press(form, u"Command1"_s);
    });
    EXPECT_EQ(catalogos::eligeTratamiento(u"7"_s), (ports::Renglon{u"Reposo"_s, 0}));
}

TEST_F(Catalogues, TreatmentCatalogueOpensAtTheNameInItsTag)
{
    for (const QString &name :
         {u"Aciclovir"_s, u"Ácido valproico"_s, u"Amoxicilina con ácido clavulánico"_s}) {
        onceOpen([](forms::Form &form) { press(form, u"Command1"_s); });
        panTratamientos catalogue;
        catalogue.setTag(name);
        catalogue.showModal();
        EXPECT_EQ(catalogue.tag(), name);
        EXPECT_EQ(catalogue.elegidos().size(), 1u);
    }
}

TEST_F(Catalogues, DiagnosisComesFromTheClassifierOfTheSetting)
{
    onceOpen([](forms::Form &form) {
        choose(form, u"Enfermedad celíaca"_s);
        press(form, u"Command1"_s);
    });
    const auto own = catalogos::eligeDiagnostico();
    ASSERT_TRUE(own);
    EXPECT_EQ(QString::number(own->id),
              one(u"Select idDiagPersonales from DIAGPERSONALES where Descripcion = 'Enfermedad celíaca'"_s));

    settings::saveSetting(u"Configuracion"_s, u"Clasificador patologico"_s, u"CIE10"_s);
    const auto searchFor = [](const QString &text) {
        return [text](forms::Form &form) {
            control<QLineEdit>(form, u"Text2"_s).setText(text);
            press(form, u"Command7"_s);
            press(form, u"Command1"_s);
        };
    };
    onceOpen(searchFor(u"varicela sin complicaciones"_s));
    const auto disease = catalogos::eligeDiagnostico();
    ASSERT_TRUE(disease);
    EXPECT_EQ(disease->nombre, u"Varicela sin complicaciones"_s);
    EXPECT_EQ(QString::number(disease->id),
              one(u"Select idDiagnosticoCIE from Diagnosticos where idDiagnostico = 'B01.9'"_s));

    // a disease is known by its text: a category that bears its only disease's stands for it, no other does
    const auto take = [](const QString &text) {
        return [text](forms::Form &form) {
            auto &tree = control<forms::TreeView>(form, u"TreeView1"_s);
            tree.setCurrentItem(nodeOf(tree, text));
            press(form, u"Command1"_s);
        };
    };
    onceOpen(take(u"Escarlatina"_s));
    const auto only = catalogos::eligeDiagnostico();
    ASSERT_TRUE(only);
    EXPECT_EQ(QString::number(only->id),
              one(u"Select idDiagnosticoCIE from Diagnosticos where idDiagnostico = 'A38'"_s));
    {
        Answers answers({u"Aceptar"_s});
        onceOpen(take(u"Cólera"_s));
        EXPECT_FALSE(catalogos::eligeDiagnostico());
        EXPECT_EQ(answers.last(),
                  u"Seleccione una enfermedad o patología de la última ramificación dentro del CIE10"_s);
    }

    onceOpen([](forms::Form &form) { form.reject(); });
    EXPECT_FALSE(catalogos::eligeDiagnostico());

    BaseDatos.execute(u"INSERT INTO Usuarios (Nombre, Clave, Nivel) VALUES ('Ana', 'a', 9)"_s);
    BaseDatos.execute(u"INSERT INTO Niveles (Nivel, Descripcion) VALUES (9, 'Sin derechos')"_s);
    MODULE11::UsuarioActual = u"Ana"_s;
    MODULE11::NivelActual = 9;
    Answers answers({u"Aceptar"_s});
    EXPECT_FALSE(catalogos::eligeDiagnostico());
    EXPECT_EQ(answers.last(), u"Nivel no permitido para el usuario Ana"_s);
}

TEST_F(Catalogues, ClassificationOpensAtTheNodeOfItsTag)
{
    onceOpen([](forms::Form &form) {
        auto &tree = control<forms::TreeView>(form, u"TreeView1"_s);
        const QTreeWidgetItem *cholera = nodeOf(tree, u"Cólera"_s);
        EXPECT_EQ(tree.currentItem(), cholera);
        EXPECT_TRUE(cholera->isSelected() && cholera->isExpanded() && cholera->font(0).bold());
        EXPECT_EQ(cholera->childCount(), 3);
        form.reject();
    });
    panCIE10 classification;
    const int above =
        one(u"Select count(*) from Clasificacion"_s).toInt() + one(u"Select count(*) from Grupos"_s).toInt();
    classification.setTag(QString::number(above + 1)); // the first category
    classification.showModal();
    EXPECT_EQ(classification.tag(), u"NO"_s);
}

} // namespace
