#include "platform/basic/errors.h"
#include "platform/forms/canvas.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

/// A canvas of 20 by 10 cells of 300 twips that keeps what it reports.
class CanvasTest : public testing::Test
{
protected:
    CanvasTest() : canvas(u"lienzo"_s, {6000, 3000})
    {
        canvas.setFrameShape(QFrame::NoFrame);
        QObject::connect(&canvas, &forms::Canvas::clicked,
                         [this](const QString &name) { told += u"click "_s + name; });
        QObject::connect(&canvas, &forms::Canvas::moved, [this](const QString &name, QPointF place) {
            told += u"%1 %2;%3"_s.arg(name).arg(place.x()).arg(place.y());
        });
        QObject::connect(&canvas, &forms::Canvas::backgroundClicked,
                         [this](QPointF twips) { told += u"fondo %1;%2"_s.arg(twips.x()).arg(twips.y()); });
        canvas.resize(canvas.sizeHint());
        canvas.show();
    }

    forms::CanvasItem &box(const QString &name, QPointF place)
    {
        return canvas.add(name, place, forms::polygon(QRectF(0, 0, 600, 600), Qt::yellow));
    }
    void mouse(QEvent::Type type, QPoint pixel)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, pixel, canvas.viewport()->mapToGlobal(pixel), button, held, {});
        QApplication::sendEvent(canvas.viewport(), &event);
    }
    void drag(QPoint from, QPoint to)
    {
        mouse(QEvent::MouseButtonPress, from);
        mouse(QEvent::MouseMove, to);
        mouse(QEvent::MouseButtonRelease, to);
        QApplication::processEvents();
    }
    void key(int code, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, code, modifiers);
        QApplication::sendEvent(&canvas, &event);
        QApplication::processEvents();
    }

    forms::Canvas canvas;
    QStringList told;
};

} // namespace

TEST_F(CanvasTest, topmostItemIsClickedAndInertOnesLetThrough)
{
    box(u"abajo"_s, {300, 300});
    box(u"arriba"_s, {600, 600});
    forms::CanvasItem &line = box(u"marco"_s, {0, 0});
    line.setInert();
    drag({50, 50}, {50, 50});
    drag({25, 25}, {25, 25});
    drag({10, 10}, {10, 10});
    canvas.setZoom(2);
    drag({130, 130}, {130, 130});
    EXPECT_EQ(told, (QStringList{"click arriba", "click abajo", "fondo 150;150", "click arriba"}));
}

TEST_F(CanvasTest, anItemMovedByHandRestsOnTheGridWithinTheCanvas)
{
    forms::CanvasItem &stamp = box(u"sello"_s, {300, 300});
    box(u"fijo"_s, {3000, 300});
    drag({30, 30}, {90, 90}); // not yet to be moved
    stamp.setMovable(true);
    drag({30, 30}, {32, 31}); // a hand that trembles
    canvas.setGrid(250);
    drag({30, 30}, {97, 51});
    drag({90, 50}, {800, -90});
    canvas.setFocus();
    stamp.setFocus();
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Right, Qt::ControlModifier); // it stands at the edge
    drag({210, 30}, {260, 30});
    EXPECT_EQ(told, (QStringList{"click sello", "sello 1250;500", "sello 5400;0", "sello 5400;250"}));
}

TEST_F(CanvasTest, aControlThatStandsOnItKeepsItsPlaceWhenScrolledAndZoomed)
{
    QWidget field;
    canvas.hold(field, QRectF(1500, 600, 3000, 1200));
    EXPECT_EQ(field.geometry(), QRect(100, 40, 200, 80));
    const double points = field.font().pointSizeF();
    canvas.setZoom(2);
    EXPECT_EQ(field.size(), QSize(400, 160));
    EXPECT_EQ(field.font().pointSizeF(), 2 * points);
    canvas.reveal({0, 0});
    const QPoint before = field.pos();
    canvas.reveal({6000, 3000});
    EXPECT_LT(field.x(), before.x());
    EXPECT_EQ(canvas.twipsAt(field.pos()), QPointF(1500, 600));
}

TEST_F(CanvasTest, arrowsLeadToTheNearestItemInTheirDirection)
{
    box(u"a"_s, {300, 300});
    box(u"b"_s, {1500, 450});
    box(u"c"_s, {1500, 2100});
    box(u"oculto"_s, {900, 300}).setVisible(false);
    QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&canvas, &byTab);
    for (const int arrow : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Left}) {
        key(arrow);
        key(Qt::Key_Space);
    }
    EXPECT_EQ(told, (QStringList{"click b", "click c", "click c", "click a"}));
}

TEST_F(CanvasTest, tellsWhatTheMousePointsAt)
{
    box(u"a"_s, {300, 300});
    box(u"b"_s, {1500, 300});
    box(u"adorno"_s, {1500, 300}).setInert();
    QObject::connect(&canvas, &forms::Canvas::pointedAt, [this](const QString &name) { told += name; });
    const auto hover = [this](QPoint pixel) {
        QMouseEvent event(QEvent::MouseMove, pixel, canvas.viewport()->mapToGlobal(pixel), Qt::NoButton, {},
                          {});
        QApplication::sendEvent(canvas.viewport(), &event);
    };
    EXPECT_TRUE(canvas.viewport()->hasMouseTracking());
    hover({30, 30});
    hover({110, 30});
    hover({200, 150});
    EXPECT_EQ(told.join(u' '), u"a  b "_s); // from one to the next the mouse leaves the first
    QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&canvas, &byTab);
    told.clear();
    hover({110, 30});
    hover({200, 150});
    EXPECT_EQ(told, (QStringList{u"b"_s, u"a"_s})); // off all of them it is where the keyboard is
}

TEST_F(CanvasTest, aHandlerMayTakeAwayWhatWasClicked)
{
    box(u"a"_s, {300, 300});
    QObject::connect(&canvas, &forms::Canvas::clicked, &canvas,
                     [this](const QString &name) { canvas.remove(name); });
    drag({30, 30}, {30, 30});
    EXPECT_EQ(canvas.item(u"a"_s), nullptr);
}

TEST_F(CanvasTest, printsAtAnySizeAsVectorsWithoutWhatIsHidden)
{
    const QTemporaryDir folder;
    QFile svg(folder.filePath(u"fondo.svg"_s));
    ASSERT_TRUE(svg.open(QIODevice::WriteOnly));
    svg.write(
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 10"><rect width="10" height="10" fill="blue"/></svg>)");
    svg.close();
    canvas.loadBackground(svg.fileName());
    box(u"a"_s, {3300, 300}).setFocus();
    box(u"oculto"_s, {4500, 300}).setVisible(false);

    QImage paper(2000, 1000, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    canvas.paint(painter, paper.rect());
    painter.end();
    EXPECT_EQ(paper.pixelColor(500, 500), QColor(Qt::blue));
    EXPECT_EQ(paper.pixelColor(1200, 200), QColor(Qt::yellow));
    EXPECT_EQ(paper.pixelColor(1600, 200), QColor(Qt::white));

    const auto errorOf = [&](const QString &file) {
        try {
            canvas.loadBackground(file);
        } catch (const basic::Error &error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(errorOf(folder.filePath(u"falta.svg"_s)), 53);
    EXPECT_EQ(errorOf(u"/etc/passwd"_s), 481);
    canvas.grab(); // the background that was there still stands
    EXPECT_EQ(canvas.grab().toImage().pixelColor(100, 100), QColor(Qt::blue));
}

TEST_F(CanvasTest, coveredItemIsTakenHoldOfWhereItShows)
{
    box(u"debajo"_s, {300, 300});
    canvas.add(u"encima"_s, {450, 450}, forms::ellipse({300, 300}, Qt::red));
    for (const forms::DrawnItem &item : canvas.drawnItems()) {
        const QPoint pixel = canvas.reveal(canvas.grip(item));
        drag(pixel, pixel);
    }
    EXPECT_EQ(told, (QStringList{"click debajo", "click encima"}));
}

TEST_F(CanvasTest, screenReadersHearItsItems)
{
    box(u"a"_s, {300, 300}).setToolTip(u"Pieza 11"_s);
    box(u"b"_s, {1500, 300}).setAccessibleName(u"Pieza 12, sana"_s);
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&canvas);
    ASSERT_NE(reader, nullptr);
    ASSERT_EQ(reader->childCount(), 2);
    EXPECT_EQ(reader->child(0)->text(QAccessible::Name), u"Pieza 11"_s);
    EXPECT_EQ(reader->child(1)->text(QAccessible::Name), u"Pieza 12, sana"_s);
    EXPECT_EQ(reader->child(0)->rect().size(), QSize(41, 41)); // 40 pixels, borders included
    EXPECT_EQ(reader->indexOfChild(reader->child(1)), 1);
    EXPECT_EQ(reader->child(1)->parent(), reader);
    canvas.remove(u"a"_s);
    EXPECT_EQ(reader->childCount(), 1);
}
