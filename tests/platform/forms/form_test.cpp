#include "answers.h"
#include "platform/forms/boxes.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "platform/forms/style.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

struct Counting : forms::Form {
    explicit Counting(const QString &name) : Form(name) {}
    void load() override { ++loads; }
    void activate() override
    {
        ++activations;
        if (onActivate)
            onActivate();
    }
    bool queryUnload() override { return closes; }

    int loads = 0;
    int activations = 0;
    bool closes = true;
    std::function<void()> onActivate;
};

/// Runs while the modal window that is opened next waits.
void whileWaiting(std::function<void()> work)
{
    QTimer::singleShot(0, qApp, std::move(work));
}

struct MainWindow : QMainWindow {
    MainWindow()
    {
        auto *area = new QMdiArea;
        setCentralWidget(area);
        forms::setChildArea(area);
        resize(600, 400);
        show();
    }
    ~MainWindow() override { forms::setChildArea(nullptr); }
};

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

TEST(Form, modalAnswersThroughItsTagAndLoadsOnce)
{
    Counting form(u"panPrueba"_s);
    for (const QString &answer : {u"SI"_s, u"NO"_s}) {
        whileWaiting([&] { form.answer(answer); });
        form.showModal();
        EXPECT_EQ(form.tag(), answer);
        EXPECT_FALSE(form.isVisible());
    }
    EXPECT_EQ(form.loads, 1);
    EXPECT_EQ(form.activations, 2);
}

TEST(Form, hearsOfItsActivationAfterAnotherFormAndNotAfterABox)
{
    Counting outer(u"panAfuera"_s), inner(u"panAdentro"_s);
    whileWaiting([&] {
        Answers answers({u"Aceptar"_s});
        forms::msgBox(u"texto"_s, forms::Icon::None, u"Aviso"_s);
        EXPECT_EQ(outer.activations, 1);
        whileWaiting([&] { inner.unload(); });
        inner.showModal();
        EXPECT_EQ(outer.activations, 2);
        outer.answer({});
    });
    outer.showModal();
    EXPECT_EQ(inner.activations, 1);
    EXPECT_EQ(outer.activations, 2);
}

TEST(Form, answeringWhileItActivatesReturnsAtOnce)
{
    Counting form(u"panPrueba"_s);
    form.onActivate = [&] { form.answer(u"YA"_s); };
    form.showModal();
    EXPECT_EQ(form.tag(), u"YA"_s);
}

TEST(Form, opensInTheMiddleInTheSizeThatItsContentsNeed)
{
    Counting form(u"panAncha"_s);
    forms::Label wide(u"Label1"_s, QString(45, u'W'));
    forms::setContents(&form, forms::Column{wide});
    form.resize(100, 50);
    whileWaiting([&] {
        const QRect room = form.screen()->availableGeometry();
        EXPECT_GT(form.width(), 400);
        EXPECT_NEAR(form.geometry().center().x(), room.center().x(), 8);
        form.answer(u"SI"_s);
    });
    form.showModal();
}

TEST(Form, refusesToCloseWhileQueryUnloadSaysSo)
{
    Counting form(u"panPrueba"_s);
    form.closes = false;
    whileWaiting([&] {
        form.reject();
        EXPECT_TRUE(form.isVisible());
        form.closes = true;
        form.reject();
    });
    form.showModal();
    EXPECT_FALSE(form.isVisible());
}

TEST(Form, childrenTakeTurnsAndAreDeletedWhenTheyClose)
{
    MainWindow main;
    auto *first = new Counting(u"panUna"_s);
    auto *second = new Counting(u"panOtra"_s);
    const QPointer<Counting> gone(second);
    first->showChild();
    second->showChild();
    settle();
    EXPECT_EQ(forms::activeChild(), second);
    EXPECT_EQ(first->activations, 1);

    Counting dialogue(u"panDialogo"_s);
    whileWaiting([&] { dialogue.unload(); });
    dialogue.showModal();
    settle();
    EXPECT_EQ(first->activations, 1);
    EXPECT_EQ(second->activations, 2);

    second->unload();
    settle();
    EXPECT_TRUE(gone.isNull());
    EXPECT_EQ(forms::activeChild(), first);
    EXPECT_EQ(first->activations, 2);
    EXPECT_EQ(forms::openForms(), (QList<forms::Form *>{first, &dialogue}));
}

/// Members may stand in any order: a container that goes first does not take its contents along.
TEST(Form, membersOutliveTheContainersTheyStandIn)
{
    struct Screen : forms::Form {
        Screen() : Form(u"panPrueba"_s)
        {
            using namespace forms;
            stamps.add(0, u"sello"_s).setParent(&picture);
            setContents(
                this,
                Column{Tabs(tabs, {{u"Hoja"_s, Group(frame, Column{text, Group(u"Otro"_s, Row{check})})},
                                   {u"Dibujo"_s, picture}})});
        }
        forms::TextBox text{u"Text1"_s};
        forms::CheckBox check{u"Check1"_s, u"si"_s};
        forms::ControlArray<forms::Label> stamps{u"Image1"_s};
        forms::PictureBox picture{u"Picture1"_s, {1500, 1500}};
        forms::Frame frame{u"Frame1"_s, u"Marco"_s};
        forms::SSTab tabs{u"SSTab1"_s};
    };
    QPointer<QWidget> text;
    {
        Screen screen;
        text = &screen.text;
        EXPECT_EQ(screen.text.window(), &screen);
        EXPECT_EQ(screen.stamps(0).objectName(), u"Image1(0)"_s);
        screen.show();
        screen.text.setFocus();
    }
    EXPECT_TRUE(text.isNull());
}

TEST(Style, wheelTurnsOnlyTheFieldInUse)
{
    forms::Style style;
    forms::ComboBox combo(u"Combo1"_s, {u"uno"_s, u"dos"_s});
    combo.setCurrentIndex(0);
    forms::DTPicker date(u"mFecha"_s);
    date.setDate(QDate(2024, 3, 15));
    for (QWidget *field : {static_cast<QWidget *>(&combo), static_cast<QWidget *>(&date)}) {
        field->setStyle(&style);
        field->ensurePolished();
        QWheelEvent down(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(field, &down);
        EXPECT_FALSE(down.isAccepted());
        EXPECT_FALSE(field->hasFocus());
    }
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_EQ(date.date(), QDate(2024, 3, 15));
}

/// The controls of one-letter names in the order in which Tab reaches them.
std::vector<QString> tabbedFrom(QWidget &first)
{
    std::vector<QString> order;
    QWidget *widget = &first;
    do {
        if (widget->objectName().size() == 1 && widget->focusPolicy() != Qt::NoFocus)
            order.push_back(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != &first);
    return order;
}

TEST(Layout, tabGoesThroughTheControlsAsTheyAreDeclared)
{
    using namespace forms;
    Form form(u"panPrueba"_s);
    TextBox a(u"a"_s), b(u"b"_s), d(u"d"_s);
    Label label(u"l"_s, u"x"_s);
    ComboBox c(u"c"_s, {}, true);
    CommandButton e(u"e"_s, u"E"_s);
    setContents(&form, Column{Row{e, Stretch()}, Fields{{u"&Uno"_s, d}, {u"Dos"_s, Row{c, label, b}}}, a});
    EXPECT_EQ(tabbedFrom(e), (std::vector{u"e"_s, u"d"_s, u"c"_s, u"b"_s, u"a"_s}));
    const auto labels = form.findChildren<QLabel *>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel *l) { return l->buddy() == &d; }));
}

TEST(Layout, tabReachesTheControlsOfThePagesAndThoseBehind)
{
    using namespace forms;
    Form form(u"panPrueba"_s);
    ListBox a(u"a"_s);
    TextBox b(u"b"_s), c(u"c"_s);
    MemoBox d(u"d"_s);
    CommandButton e(u"e"_s, u"E"_s);
    SSTab tabs(u"SSTab1"_s);
    setContents(
        &form,
        Column{Row{a, Tabs(tabs, {{u"&Uno"_s, Fields{{u"B"_s, b}, {u"C"_s, c}}}, {u"&Dos"_s, Column{d}}})},
               Row{e}});
    EXPECT_EQ(tabbedFrom(a), (std::vector{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}));
}
