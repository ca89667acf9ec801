#include "clinical/catalogues/panCIE10.h"

#include "clinical/catalogues/panBuscaInternet.h"
#include "core/reports/informes.h"
#include "core/services/services.h"
#include "platform/forms/layout.h"

#include <QKeyEvent>
#include <QScopeGuard>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;

panCIE10::panCIE10() : Form(u"panCIE10"_s)
{
    setWindowTitle(u"Capturar Diagnóstico según CIE10"_s);
    setContents(this, Column{
                          Fields{{u"B&uscar :"_s, Row{Expanding(Text2), Command7, Command3, Command4}}},
                          Label1,
                          Expanding(TreeView1),
                          Fields{{u"&Diagnóstico :"_s, Text1}},
                          Row{Command6, Command5, Stretch(), Command1, Command2},
                      });
    resize(900, 640);
    connect(&TreeView1, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem *nodo) { arbol_.abrir(*nodo); });
    connect(&TreeView1, &QTreeWidget::currentItemChanged, this, &panCIE10::elegir);
    connect(&TreeView1, &QTreeWidget::itemSelectionChanged, this, &panCIE10::elegir);
    connect(&TreeView1, &QTreeWidget::itemClicked, this, &panCIE10::elegir);
    connect(&TreeView1, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *nodo) {
        if (ArbolCIE10::esEnfermedad(*nodo))
            aceptar();
    });
    connect(&Text2, &QLineEdit::returnPressed, this, &panCIE10::buscar);
    connect(&Command1, &QPushButton::clicked, this, &panCIE10::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panCIE10::expandir);
    connect(&Command4, &QPushButton::clicked, this, [this] { arbol_.contraer(); });
    connect(&Command5, &QPushButton::clicked, this,
            [] { informes::muestra(u"cie10.rpt"_s, u"{Diagnosticos.idDiagnostico} <> ''"_s); });
    connect(&Command6, &QPushButton::clicked, this, [this] { panBuscaInternet(Text1.text()).showModal(); });
    connect(&Command7, &QPushButton::clicked, this, &panCIE10::buscar);
}

void panCIE10::activate()
{
    if (arbol_.cargado())
        return;
    cargar();
    irAlComienzo();
    Text2.setFocus();
}

void panCIE10::cargar()
{
    MODULE11::RelojEspera();
    const auto alSalir = qScopeGuard([this] {
        Label1.hide();
        MODULE11::RelojNormal();
    });
    repaint();
    arbol_.cargar();
}

/// Where the caller says, else at the first chapter; nothing is chosen by that.
void panCIE10::irAlComienzo()
{
    QTreeWidgetItem *pedido = arbol_.nodo(tag().toInt());
    if (pedido)
        arbol_.marcar(*pedido);
    const QSignalBlocker silencio(TreeView1);
    TreeView1.setCurrentItem(pedido ? pedido : arbol_.nodo(1));
}

bool panCIE10::queryUnload()
{
    setTag(u"NO"_s);
    return true;
}

/// From the search the down key leads to what was found. Enter in the tree takes a disease; elsewhere it
/// belongs to the field or button that has the focus.
void panCIE10::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down && Text2.hasFocus()) {
        TreeView1.setFocus();
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_F3)
        arbol_.irAMarca(event->modifiers().testFlag(Qt::ShiftModifier) ? ArbolCIE10::Anterior
                                                                       : ArbolCIE10::Siguiente);
    else if (!enter || !TreeView1.hasFocus())
        Form::keyPressEvent(event);
    else if (const QTreeWidgetItem *nodo = TreeView1.currentItem(); nodo && ArbolCIE10::esEnfermedad(*nodo))
        aceptar();
}

/// A node that the focus alone has made the current one is not chosen.
void panCIE10::elegir()
{
    const QTreeWidgetItem *nodo = TreeView1.currentItem();
    if (!nodo || !nodo->isSelected())
        return;
    Text1.setText(nodo->text(0));
    Text1.setCursorPosition(0);
    forms::setTag(&TreeView1,
                  ArbolCIE10::esEnfermedad(*nodo) ? catalogos::idDiagnosticoCIE(nodo->text(0)) : QString());
}

/// The text may have been written by hand; one that stands for a chapter, group or category is no disease.
void panCIE10::aceptar()
{
    const QString texto = Text1.text();
    if (texto.isEmpty())
        return;
    forms::setTag(&TreeView1, catalogos::idDiagnosticoCIE(texto));
    answer(texto);
}

void panCIE10::buscar()
{
    if (Text2.text().trimmed().isEmpty()) {
        Text2.setFocus();
        return;
    }
    MODULE11::RelojEspera();
    const auto alSalir = qScopeGuard(MODULE11::RelojNormal);
    if (arbol_.buscar(Text2.text())) {
        elegir();
        return;
    }
    Text1.clear(); // with nothing selected there is nothing to accept
    forms::setTag(&TreeView1, {});
}

void panCIE10::expandir()
{
    MODULE11::RelojEspera();
    const auto alSalir = qScopeGuard(MODULE11::RelojNormal);
    arbol_.expandir();
}

#include "moc_panCIE10.cpp"
