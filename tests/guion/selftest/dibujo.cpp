#include "dibujo.h"

#include "platform/forms/layout.h"
#include "platform/forms/tag.h"

#include <QMenu>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace selftest
{

Barras::Barras(const QString &name)
{
    setObjectName(name);
}

void Barras::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    int x = 10;
    for (const forms::ChartValue &bar : chartValues()) {
        const int high = static_cast<int>(bar.value * 5);
        painter.fillRect(x, height() - 15 - high, 40, high, QColor(60, 110, 160));
        painter.drawText(x, height() - 2, bar.label);
        x += 70;
    }
}

panDibujo::panDibujo()
    : Form(u"panDibujo"_s), Label1(u"Label1"_s), lienzo(u"lienzo"_s, {9000, 6000}), Graph1(u"Graph1"_s),
      Slider1(Qt::Horizontal), List1(u"List1"_s), Command1(u"Command1"_s, u"&Imprimir"_s)
{
    setWindowTitle(u"Dibujo"_s);
    Slider1.setObjectName(u"Slider1"_s);
    Slider1.setRange(0, 50);
    List1.addItems({u"uno"_s, u"dos"_s});
    auto *erase = new QAction(u"Quitar"_s, this);
    erase->setObjectName(u"menuQuitar"_s);
    List1.addAction(erase);
    List1.setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(erase, &QAction::triggered, this, [this] { delete List1.currentItem(); });
    using namespace forms;
    setContents(this, Row{Expanding(lienzo), Column{Graph1, Slider1, List1, Command1, Label1}});
    resize(760, 420);
    fillCanvas();
    report();
}

void panDibujo::fillCanvas()
{
    forms::CanvasItem &title =
        lienzo.add(u"titulo"_s, {300, 200}, forms::TextLook{u"Arcada superior"_s, font()});
    title.setInert();
    for (int i = 0; i < 4; ++i) {
        forms::CanvasItem &tooth = lienzo.add(u"diente(%1)"_s.arg(i), {600.0 + 1200 * i, 900},
                                              forms::ellipse({900, 900}, Qt::white));
        tooth.setToolTip(u"Pieza 1%1"_s.arg(i + 1));
        forms::setTag(&tooth, QString::number(11 + i));
    }
    // A face of the first piece lies upon its middle.
    lienzo.add(u"cara(0)"_s, {825, 1125}, forms::ellipse({450, 450}, Qt::yellow));
    lienzo.item(u"diente(3)"_s)->setVisible(false);
    lienzo.setGrid(150);
    lienzo.add(u"sello(0)"_s, {600, 3000}, forms::polygon({{{0, 0}, {600, 300}, {0, 600}}}, Qt::red))
        .setMovable(true);
    lienzo.add(u"lejos"_s, {8000, 5000}, forms::TextLook{u"Borde"_s, font()});
}

void panDibujo::report()
{
    const auto say = [this](const QString &text) { Label1.setCaption(text); };
    connect(&Slider1, &QSlider::valueChanged, this, [=](int value) { say(u"desliza %1"_s.arg(value)); });
    connect(&lienzo, &forms::Canvas::clicked, this, [=, this](const QString &name) {
        say(u"toca "_s + name);
        if (name == u"cara(0)"_s)
            lienzo.item(name)->setFill(QColor(255, 0, 0));
    });
    connect(&lienzo, &forms::Canvas::doubleClicked, this,
            [=](const QString &name) { say(u"abre "_s + name); });
    connect(&lienzo, &forms::Canvas::moved, this, [=](const QString &name, QPointF place) {
        say(u"%1 en %2;%3"_s.arg(name).arg(place.x()).arg(place.y()));
    });
    connect(&lienzo, &forms::Canvas::backgroundClicked, this, [=] { say(u"toca el fondo"_s); });
    connect(&lienzo, &forms::Canvas::contextMenu, this, [this](const QString &name, QPoint screen) {
        QMenu menu;
        menu.addAction(u"Borrar"_s)->setObjectName(u"menuBorrar"_s);
        if (menu.exec(screen))
            lienzo.remove(name);
    });
    connect(&Command1, &QPushButton::clicked, this, &panDibujo::printCanvas);
}

void panDibujo::printCanvas()
{
    QPdfWriter file(qEnvironmentVariable("SANIRELL_IMPRESORA") + u"/0001.pdf"_s);
    QPainter painter(&file);
    lienzo.paint(painter, QRectF(0, 0, file.width(), file.width() * 2.0 / 3));
}

} // namespace selftest

#include "moc_dibujo.cpp"
