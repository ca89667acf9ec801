#include "platform/forms/form.h"

#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/placement.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>
#include <QWindow>

namespace forms
{

namespace
{

/// What is open. Kept here and not asked of the window system, whose own activation comes late, or never
/// where there is no display.
struct State {
    QList<Form *> all;        // oldest first
    QList<Form *> byActivity; // last active first
    QList<Form *> modals;     // innermost last
    QPointer<QMdiArea> area;
    Form *active = nullptr;
};

State &state()
{
    static State instance;
    return instance;
}

/// The form that is in front once another one has gone.
Form *frontForm()
{
    Form *modal = topModal();
    return modal ? modal : activeChild();
}

/// Runs what the toolkit calls through frames that know no exceptions.
template <class Handler>
void runHandler(Handler &&handler)
{
    try {
        handler();
    } catch (const std::exception &error) {
        showUnhandled(error);
    }
}

constexpr QSize frameAllowance(12, 40); // of a child window

/// What the screen leaves a window with its title.
QSize screenRoom(const QWidget &window)
{
    constexpr int titleBar = 32;
    const QScreen *screen = window.screen();
    return screen ? screen->availableGeometry().size() - QSize(0, titleBar) : QSize(16777215, 16777215);
}

void standInFrontOf(QWidget *window, QWidget *owner)
{
    if (!owner || owner == window)
        return;
    window->winId();
    owner->window()->winId();
    window->windowHandle()->setTransientParent(owner->window()->windowHandle());
}

} // namespace

Form::Form(const QString &name)
{
    setObjectName(name);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    state().all.append(this);
}

Form::~Form()
{
    State &s = state();
    s.all.removeAll(this);
    s.byActivity.removeAll(this);
    s.modals.removeAll(this);
    if (s.active == this)
        s.active = nullptr;
}

void Form::prepare()
{
    if (loaded_)
        return;
    loaded_ = true;
    load();
    restoreColumns(*this);
}

QMdiSubWindow *Form::frame() const
{
    return qobject_cast<QMdiSubWindow *>(parentWidget());
}

void Form::showModal()
{
    const QPointer<Form> self(this);
    prepare();
    const QPointer<QWidget> owner = topModal() ? topModal() : (childArea() ? childArea()->window() : nullptr);
    setWindowModality(Qt::ApplicationModal);
    standInFrontOf(this, owner);
    const QSize room = screenRoom(*this);
    fitInto(*this, room);
    const QSize natural = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    resize(rememberedSize(*this, natural, room)); // what showing it would come to, before it is centred
    if (!testAttribute(Qt::WA_Moved))
        centreOnScreen(this);
    state().modals.append(this);
    show();
    activateWindow();
    activated(this);
    bool programEnds = false;
    if (self && isVisible()) {
        QEventLoop loop;
        loop_ = &loop;
        loop.exec(QEventLoop::DialogExec);
        programEnds = self && isVisible(); // nothing hid the window: all loops are being left
        if (self)
            loop_ = nullptr;
    }
    if (self) {
        state().modals.removeAll(this);
        if (state().active == this)
            state().active = nullptr;
        if (programEnds)
            hide();
    }
    if (programEnds)
        return; // what lies below must not read a database that is closed
    if (owner)
        owner->activateWindow();
    activated(frontForm());
}

void Form::showChild(bool maximised)
{
    if (QMdiSubWindow *sub = frame()) {
        sub->isMinimized() ? sub->showNormal() : sub->show();
        childArea()->setActiveSubWindow(sub);
        activated(this);
        return;
    }
    prepare();
    Q_ASSERT(childArea());
    const QSize room = childArea()->viewport()->size();
    const QSize natural = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    fitInto(*this, room - frameAllowance);
    QMdiSubWindow *sub = childArea()->addSubWindow(this);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->setWindowIcon(windowIcon());
    if (maximised) {
        sub->showMaximized();
    } else {
        sub->show();
        const QSize border = sub->sizeHint() - sizeHint();
        sub->resize((rememberedSize(*this, natural, room - border) + border).boundedTo(room));
        sub->move(placeInside(sub->pos(), sub->size(), room));
    }
    show();
    childArea()->setActiveSubWindow(sub);
    activated(this);
}

void Form::unload()
{
    if (QMdiSubWindow *sub = frame())
        sub->close();
    else
        close();
}

void Form::answer(const QString &tag)
{
    setTag(tag);
    if (QMdiSubWindow *sub = frame())
        sub->close();
    else
        hide();
}

void Form::done(int)
{
    unload();
}

void Form::reject()
{
    escape();
}

void Form::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (isVisible() && QGuiApplication::mouseButtons() != Qt::NoButton)
        sizedByPerson_ = true;
}

/// Only what the person changed: a window that nobody touched follows the program's own measures.
void Form::keepPlacement()
{
    const QMdiSubWindow *sub = frame();
    if (sizedByPerson_ && !isMaximized() && !(sub && sub->isMaximized()))
        rememberSize(*this, size());
    rememberColumns(*this);
}

void Form::closeEvent(QCloseEvent *event)
{
    bool agreed = false;
    runHandler([&] { agreed = queryUnload(); });
    if (agreed)
        keepPlacement();
    event->setAccepted(agreed);
}

void Form::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous())
        keepPlacement();
    if (loop_ && !event->spontaneous())
        loop_->exit();
}

void setChildArea(QMdiArea *area)
{
    state().area = area;
    if (!area)
        return;
    area->setBackground(area->palette().color(QPalette::Button).darker(106));
    QObject::connect(area, &QMdiArea::subWindowActivated, area, [](QMdiSubWindow *sub) {
        auto *form = sub ? qobject_cast<Form *>(sub->widget()) : nullptr;
        if (form && form->isVisible() && !topModal())
            activated(form);
    });
}

QMdiArea *childArea()
{
    return state().area;
}

Form *openChild(const QString &name)
{
    for (Form *form : state().byActivity) {
        const auto *sub = qobject_cast<QMdiSubWindow *>(form->parentWidget());
        if (sub && sub->isVisible() &&
            form->name() == name) // made small, it is visible, its contents are not
            return form;
    }
    return nullptr;
}

void cascade()
{
    QMdiArea *area = childArea();
    if (!area)
        return;
    const QSize room = area->viewport()->size();
    constexpr int step = 28;
    int place = 0;
    for (QMdiSubWindow *sub : area->subWindowList(QMdiArea::StackingOrder)) {
        if (!sub->isVisible())
            continue;
        sub->showNormal();
        sub->resize(sub->size().boundedTo(room));
        const QPoint wanted(place, place);
        sub->move(placeInside(wanted, sub->size(), room));
        place = wanted == sub->pos() ? place + step : 0;
        sub->raise();
    }
}

/// A window that cannot be made as small as its share covers its neighbour, but nothing of it lies outside.
void tile()
{
    QMdiArea *area = childArea();
    if (!area)
        return;
    area->tileSubWindows();
    const QSize room = area->viewport()->size();
    for (QMdiSubWindow *sub : area->subWindowList()) {
        sub->resize(sub->size().boundedTo(room));
        sub->move(placeInside(sub->pos(), sub->size(), room));
    }
}

Form *activeChild()
{
    QMdiArea *area = childArea();
    QMdiSubWindow *sub = area ? area->currentSubWindow() : nullptr;
    auto *form = sub ? qobject_cast<Form *>(sub->widget()) : nullptr;
    return form && form->isVisibleTo(sub) ? form : nullptr;
}

QList<Form *> openForms()
{
    return state().all;
}

QList<Form *> formsByActivity()
{
    QList<Form *> visible;
    for (Form *form : state().byActivity)
        if (form->isVisible())
            visible.append(form);
    return visible;
}

Form *topModal()
{
    const QList<Form *> &modals = state().modals;
    for (auto it = modals.rbegin(); it != modals.rend(); ++it)
        if ((*it)->isVisible())
            return *it;
    return nullptr;
}

void activated(Form *form)
{
    State &s = state();
    if (form == s.active)
        return;
    s.active = form;
    if (!form)
        return;
    s.byActivity.removeAll(form);
    s.byActivity.prepend(form);
    runHandler([&] { form->activate(); });
}

void centreOnScreen(QWidget *window)
{
    const QScreen *screen = window->screen();
    if (!screen)
        return;
    const QRect room = screen->availableGeometry();
    QRect place(QPoint(), window->frameSize());
    place.moveCenter(room.center());
    window->move(qMax(place.left(), room.left()), qMax(place.top(), room.top()));
}

} // namespace forms

#include "moc_form.cpp"
