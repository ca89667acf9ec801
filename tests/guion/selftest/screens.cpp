#include "screens.h"

#include "datos.h"
#include "dibujo.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"
#include "platform/forms/drag.h"
#include "platform/forms/layout.h"
#include "platform/forms/twips.h"
#include "platform/printing/printer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QThread>

using namespace Qt::StringLiterals;

namespace selftest
{

portada::portada() : Form(u"portada"_s), Picture1(u"Picture1"_s, {6000, 3000}), Timer1(u"Timer1"_s, 60000)
{
    setWindowFlags(Qt::FramelessWindowHint | Qt::Dialog);
    forms::setContents(this, Picture1);
    connect(&Picture1, &forms::PictureBox::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Timer1, &QTimer::timeout, this, [this] { answer(u"NO"_s); });
    Timer1.start();
}

panControles::panControles()
    : Form(u"panControles"_s), Label1(u"Label1"_s, u"<Sin Asignar>"_s), Label2(u"Label2"_s, u"Semáforo"_s),
      Text1(u"Text1"_s, 20), Text2(u"Text2"_s), Memo1(u"Memo1"_s),
      Combo1(u"Combo1"_s, {u"VARON"_s, u"MUJER"_s, u"<Sin Asignar>"_s}),
      Combo2(u"Combo2"_s, {u"Rosario"_s, u"Córdoba"_s}, true), List1(u"List1"_s), List2(u"List2"_s),
      List3(u"List3"_s), Check1(u"Check1"_s, u"&Vacunado"_s), Option1(u"Option1"_s),
      DTPicker1(u"DTPicker1"_s), MonthView1(u"MonthView1"_s), TreeView1(u"TreeView1"_s), SSTab1(u"SSTab1"_s),
      Frame1(u"Frame1"_s, u"Datos personales"_s), Picture1(u"Picture1"_s, {4500, 3000}), sello(u"sello"_s),
      Command1(u"Command1"_s, u"&Aceptar"_s), Command2(u"Command2"_s, u"Ca&ncelar"_s),
      Command3(u"Command3"_s, u"Bloqueado"_s)
{
    setWindowTitle(u"Un control de cada clase"_s);
    Option1.add(0, u"&Particular"_s);
    Option1.add(1, u"&Obra social"_s);
    sello.add(0, u"Flecha"_s);
    Hora1.setObjectName(u"Hora1"_s);
    Hora1.setDisplayFormat(u"HH:mm"_s);
    Text2.setToolTip(u"Sólo cifras"_s);
    Command3.setEnabled(false);
    Command1.setDefault(true);
    forms::setBackColor(Label2, forms::fromColourValue(65280));
    fillLists();
    layOut();
    report();
}

void panControles::fillLists()
{
    List1.addItems({u"uno"_s, u"dos"_s, u"tres"_s});
    List2.addItems({u"lunes"_s, u"martes"_s, u"miércoles"_s});
    List2.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const char *line : {"tos", "fiebre"}) {
        auto *item = new QListWidgetItem(QString::fromLatin1(line), &List3);
        item->setCheckState(Qt::Unchecked);
    }
    auto *root = new QTreeWidgetItem(&TreeView1, {u"Respiratorio"_s});
    new QTreeWidgetItem(root, {u"Asma"_s});
    new QTreeWidgetItem(root, {u"Bronquitis"_s});
}

void panControles::layOut()
{
    using namespace forms;
    setContents(
        this,
        Column{
            Expanding(
                Tabs(SSTab1,
                     {
                         {u"&Datos"_s,
                          Column{
                              Group(Frame1, Fields{{u"&Nombre :"_s, Text1},
                                                   {u"Peso :"_s, Text2},
                                                   {u"Sexo :"_s, Combo1},
                                                   {u"Localidad :"_s, Combo2},
                                                   {u"Fecha :"_s, DTPicker1},
                                                   {u"Hora :"_s, Row{Hora1, Stretch()}},
                                                   {u"Cobertura :"_s, Row{Option1(0), Option1(1), Stretch()}},
                                                   {u"Notas :"_s, Memo1}}),
                              Row{Check1, Stretch(), Label2},
                          }},
                         {u"Listas"_s, Grid(2, {List1, List2, List3, TreeView1})},
                         {u"Dibujo"_s, Row{Column{MonthView1, Stretch()},
                                           Column{sello(0), Picture1, Stretch()}, Stretch()}},
                     })),
            Row{Label1, Stretch(), Command1, Command2, Command3},
        });
}

void panControles::report()
{
    const auto say = [this](const QString &text) { Label1.setCaption(text); };
    connect(&Text1, &QLineEdit::textChanged, this,
            [this] { Text2.setText(QString::number(Text1.text().size())); });
    connect(&Text1, &QLineEdit::editingFinished, this, [=] { say(u"dejó Text1"_s); });
    connect(&Combo1, &QComboBox::textActivated, this, [=](const QString &text) { say(u"eligió "_s + text); });
    connect(&List1, &QListWidget::itemClicked, this,
            [=](QListWidgetItem *item) { say(u"fila "_s + item->text()); });
    connect(&List1, &QListWidget::itemDoubleClicked, this,
            [=](QListWidgetItem *item) { say(u"abre "_s + item->text()); });
    connect(&List2, &QListWidget::itemSelectionChanged, this,
            [=, this] { say(u"%1 días"_s.arg(List2.selectedItems().size())); });
    connect(&TreeView1, &QTreeWidget::itemClicked, this,
            [=](QTreeWidgetItem *item) { say(u"nodo "_s + item->text(0)); });
    connect(&MonthView1, &QCalendarWidget::clicked, this,
            [=](QDate date) { say(date.toString(u"dd/MM/yyyy")); });
    connect(&Option1(1), &QAbstractButton::clicked, this, [=] { say(u"obra social"_s); });
    connect(&Picture1, &forms::PictureBox::doubleClicked, this, [this] { Picture1.clear(); });
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { unload(); });
    forms::makeDraggable(sello(0));
    forms::acceptDrops(Picture1, [=, this](const forms::Drop &drop) {
        Picture1.drawCircle(drop.point, 300, Qt::red);
        say(u"%1 en %2;%3"_s.arg(drop.source.objectName()).arg(drop.point.x()).arg(drop.point.y()));
    });
}

panPreguntas::panPreguntas()
    : Form(u"panPreguntas"_s), Label1(u"Label1"_s), Label2(u"Label2"_s), Command1(u"Command1"_s)
{
    setWindowTitle(u"Preguntas"_s);
    const std::pair<const char16_t *, void (panPreguntas::*)()> buttons[] = {
        {u"Preguntas", &panPreguntas::tell},
        {u"Anidada", &panPreguntas::nest},
        {u"Trabajo", &panPreguntas::work},
        {u"Imprimir", &panPreguntas::print},
        {u"Menú", &panPreguntas::popUp}};
    int index = 0;
    for (const auto &[caption, handler] : buttons)
        connect(&Command1.add(index++, QString::fromUtf16(caption)), &QPushButton::clicked, this, handler);
    connect(&Command1.add(index, u"Error"_s), &QPushButton::clicked, this,
            [] { throw basic::Error(3021, u"No hay un registro activo."_s); });
    forms::setContents(this, forms::Column{Label1, Label2,
                                           forms::Grid(3, {Command1(0), Command1(1), Command1(2), Command1(3),
                                                           Command1(4), Command1(5)})});
}

void panPreguntas::activate()
{
    Label2.setCaption(QString::number(++activations_));
}

void panPreguntas::tell()
{
    QStringList answers;
    forms::msgBox(u"Datos <mal> ingresados\nRevise"_s, forms::Icon::Critical, u"E r r o r"_s);
    answers += forms::askBox(u"Sale del sistema"_s, u"Pregunta"_s) ? u"SI"_s : u"NO"_s;
    answers += forms::inputBox(u"Ingrese el nombre"_s, u"Síntomas"_s, u"x"_s).value_or(u"nada"_s);
    answers += forms::inputBox(u"Otro"_s, u"Síntomas"_s).value_or(u"nada"_s);
    answers +=
        QFileInfo(forms::openFileDialog(u"Abrir"_s, basic::programFolder(), u"Texto (*.txt)"_s)).fileName();
    answers +=
        QFileInfo(forms::saveFileDialog(u"Guardar"_s, basic::programFile(u"x.txt"_s), u"Texto (*.txt)"_s))
            .fileName();
    answers += QFileInfo(forms::folderDialog(u"Carpeta"_s, basic::programFolder())).fileName();
    Label1.setCaption(answers.join(u';'));
}

void panPreguntas::nest()
{
    panControles inner;
    inner.showModal();
    Label1.setCaption(inner.tag() + u" vuelve"_s);
}

/// A long job that keeps the window alive.
void panPreguntas::work()
{
    for (int i = 0; i < 200; ++i) {
        Label1.setCaption(QString::number(i));
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    Label1.setCaption(u"hecho"_s);
}

void panPreguntas::print()
{
    const auto choice = printing::chooserDialog(u"Prueba"_s, u"Imprime"_s);
    if (!choice)
        return;
    printing::Document document(*choice, choice->name);
    document.print(u"Señor Núñez\nsegunda línea"_s);
    document.newPage();
    document.print(u"otra hoja"_s);
    document.endDoc();
}

void panPreguntas::popUp()
{
    QMenu menu;
    menu.addAction(u"Nada"_s)->setObjectName(u"menuNada"_s);
    QMenu *more = menu.addMenu(u"Más"_s);
    QAction *paint = more->addAction(u"Pintar"_s);
    paint->setObjectName(u"menuPintar"_s);
    Label1.setCaption(menu.exec(mapToGlobal(QPoint(5, 5))) == paint ? u"pinta"_s : u"no pinta"_s);
}

panHija::panHija()
    : Form(u"panHija"_s), Label1(u"Label1"_s), Check1(u"Check1"_s, u"No cerrar"_s),
      Command1(u"Command1"_s, u"Aviso"_s), Command2(u"Command2"_s, u"Modal"_s)
{
    setWindowTitle(u"Hija"_s);
    forms::setContents(this, forms::Column{Label1, Check1, forms::Row{forms::Stretch(), Command1, Command2}});
    connect(&Command1, &QPushButton::clicked, this,
            [] { forms::msgBox(u"Hola"_s, forms::Icon::None, u"Aviso"_s); });
    connect(&Command2, &QPushButton::clicked, this, [] { panControles().showModal(); });
}

void panHija::activate()
{
    Label1.setCaption(QString::number(++activations_));
}

Principal::Principal()
{
    setObjectName(u"Principal"_s);
    setWindowTitle(u"Programa de prueba"_s);
    auto *area = new QMdiArea;
    setCentralWidget(area);
    forms::setChildArea(area);
    QMenu *menu = menuBar()->addMenu(u"&Archivos"_s);
    connect(addItem(menu, u"menuControles"_s, u"&Controles"_s), &QAction::triggered, this, [this] {
        panControles form;
        form.showModal();
        statusBar()->showMessage(u"Tag "_s + form.tag());
    });
    connect(addItem(menu, u"menuPreguntas"_s, u"Preguntas"_s), &QAction::triggered, this,
            [] { panPreguntas().showModal(); });
    connect(addItem(menu, u"menuHija"_s, u"Hija"_s), &QAction::triggered, this, &Principal::openChild);
    connect(addItem(menu, u"menuDatos"_s, u"Datos"_s), &QAction::triggered, this,
            [] { panDatos().showModal(); });
    connect(addItem(menu, u"menuDibujo"_s, u"Dibujo"_s), &QAction::triggered, this,
            [] { panDibujo().showModal(); });
    connect(addItem(menu, u"menuFin"_s, u"Salir"_s), &QAction::triggered, this,
            [] { QCoreApplication::exit(); });
    connect(addItem(menu, u"menuCae"_s, u"Cae"_s), &QAction::triggered, this, [] { std::abort(); });
    addItem(menu, u"menuNada"_s, u"Sin pantalla"_s)->setEnabled(false);
    statusBar()->setObjectName(u"StatusBar1"_s);
    resize(1000, 680);
}

QAction *Principal::addItem(QMenu *menu, const QString &name, const QString &caption)
{
    QAction *action = menu->addAction(caption);
    action->setObjectName(name);
    return action;
}

void Principal::openChild()
{
    auto *child = new panHija;
    child->setTag(QString::number(++children_));
    child->showChild();
}

} // namespace selftest

#include "moc_screens.cpp"
