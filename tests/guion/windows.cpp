#include "guion/windows.h"

#include "platform/forms/form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>

namespace guion
{

namespace
{

/// The window that a widget belongs to: a form even when it is framed in the main window.
const QWidget *windowOf(const QWidget *widget)
{
    while (widget && !widget->isWindow() && !qobject_cast<const forms::Form *>(widget))
        widget = widget->parentWidget();
    return widget;
}

QString nameOf(const QWidget *window)
{
    if (!window->objectName().isEmpty())
        return window->objectName();
    const QString name = QString::fromLatin1(window->metaObject()->className());
    return name.mid(name.lastIndexOf(u':') + 1);
}

QWidgetList visibleWindows()
{
    QWidgetList windows;
    for (forms::Form *form : forms::formsByActivity())
        windows.append(form);
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && !windows.contains(window) && !qobject_cast<QMenu *>(window))
            windows.append(window);
    return windows;
}

QWidget *mainWindow()
{
    if (QMdiArea *area = forms::childArea(); area && area->window()->isVisible())
        return area->window();
    for (QWidget *window : visibleWindows())
        if (window->isWindow() && window->windowType() != Qt::ToolTip)
            return window;
    return nullptr;
}

QString captionOf(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return withoutMnemonic(button->text());
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return withoutMnemonic(group->title());
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->buddy() ? withoutMnemonic(label->text()) : label->text();
    return {};
}

/// A field goes by the caption of its label.
QWidget *labelled(QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label && label->buddy() ? label->buddy() : widget;
}

QWidget *findWidget(QWidget *window, const Address::Part &part)
{
    QWidget *hidden = nullptr;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (windowOf(widget) != window)
            continue;
        const bool fits = part.isCaption ? captionOf(widget) == part.name : widget->objectName() == part.name;
        if (fits && widget->isVisible())
            return part.isCaption ? labelled(widget) : widget;
        if (fits && !hidden)
            hidden = widget;
    }
    return hidden;
}

/// An item that a widget of the window draws itself; one in sight comes before one that is not.
Target findDrawn(QWidget *window, const Address::Part &part)
{
    Target hidden;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        const auto *drawing = dynamic_cast<const forms::Drawn *>(widget);
        if (!drawing || windowOf(widget) != window)
            continue;
        for (const forms::DrawnItem &item : drawing->drawnItems()) {
            if ((part.isCaption ? item.caption : item.name) != part.name)
                continue;
            if (item.visible && widget->isVisible())
                return {widget, item};
            hidden = {widget, item};
        }
    }
    return hidden;
}

/// A widget, an item that one draws, or a part of the window without a face: its data, its timers.
Target findControl(QWidget *window, const Address::Part &part)
{
    if (QWidget *widget = findWidget(window, part))
        return {widget};
    if (Target drawn = findDrawn(window, part))
        return drawn;
    return {part.isCaption ? nullptr : window->findChild<QObject *>(part.name)};
}

Target findInActive(const Address::Part &part)
{
    QWidget *window = activeWindow();
    if (!window)
        return {};
    Target found = findControl(window, part);
    // The bars of the main window stay at hand while a child is active.
    if (!found && !QApplication::activeModalWidget() && mainWindow() && mainWindow() != window)
        found = findControl(mainWindow(), part);
    return found || part.isCaption ? found : Target{findAction(part.name)};
}

QAction *actionOfMenu(const QMenu *menu, const QString &name)
{
    for (QAction *action : menu->actions()) {
        if (action->objectName() == name)
            return action;
        if (action->menu())
            if (QAction *found = actionOfMenu(action->menu(), name))
                return found;
    }
    return nullptr;
}

/// The menu that a button opens.
const QMenu *menuOf(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return button->menu();
    const auto *tool = qobject_cast<const QToolButton *>(widget);
    return tool ? tool->menu() : nullptr;
}

QAction *actionOf(const QWidget *widget, const QString &name)
{
    for (QAction *action : widget->actions())
        if (action->objectName() == name)
            return action;
    const QMenu *menu = menuOf(widget);
    return menu ? actionOfMenu(menu, name) : nullptr;
}

/// An item of the window's menus, or of a menu that one of its controls opens.
QAction *actionIn(const QWidget *window, const QString &name)
{
    if (auto *action = window->findChild<QAction *>(name))
        return action;
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    widgets.prepend(const_cast<QWidget *>(window));
    for (const QWidget *widget : widgets)
        if (QAction *action = actionOf(widget, name))
            return action;
    return nullptr;
}

QString shown(const Address &address)
{
    QStringList names;
    for (const Address::Part &part : address.parts)
        names.append(part.isCaption ? u'"' + part.name + u'"' : part.name);
    return names.join(u'.');
}

/// A person turns to the page of a tab on which the control is.
void turnPagesTo(QWidget *widget)
{
    for (QWidget *page = widget; page->parentWidget(); page = page->parentWidget())
        if (auto *stack = qobject_cast<QStackedWidget *>(page->parentWidget()))
            if (auto *tabs = qobject_cast<QTabWidget *>(stack->parentWidget()))
                if (const int place = tabs->indexOf(page); place >= 0 && tabs->isTabEnabled(place))
                    tabs->setCurrentIndex(place);
}

} // namespace

QWidget *topBox()
{
    QWidget *modal = QApplication::activeModalWidget();
    return forms::describeBox(modal) ? modal : nullptr;
}

QWidget *activeWindow()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget *child = forms::activeChild())
        return child;
    return mainWindow();
}

QWidget *findWindow(const Address::Part &part)
{
    if (part.isCaption)
        return nullptr;
    for (QWidget *window : visibleWindows())
        if (nameOf(window) == part.name && (part.tag.isEmpty() || forms::tag(window) == part.tag))
            return window;
    return nullptr;
}

QString describeWindows()
{
    QStringList lines;
    for (const QWidget *window : visibleWindows()) {
        const auto box = forms::describeBox(window);
        lines.append(box ? QStringLiteral("box \"%1\" \"%2\"").arg(box->title, box->text)
                         : QStringLiteral("%1 \"%2\"").arg(nameOf(window), window->windowTitle()));
    }
    return lines.isEmpty() ? QStringLiteral("none") : lines.join(QStringLiteral(", "));
}

Target find(const Address &address)
{
    const Address::Part &first = address.parts.front();
    if (address.parts.size() > 2)
        throw Failure(QStringLiteral("%1 is no window and control").arg(shown(address)));
    QWidget *window = findWindow(first);
    Target found;
    if (address.parts.size() == 1)
        found = window ? Target{window} : findInActive(first);
    else if (!window)
        throw Missing(QStringLiteral("no window %1 is open").arg(first.name));
    else
        found = findControl(window, address.parts[1]);
    if (!found && address.parts.size() == 2 && !address.parts[1].isCaption)
        found = {actionIn(window, address.parts[1].name)};
    if (!found)
        throw Missing(QStringLiteral("there is no control %1").arg(shown(address)));
    return found;
}

QWidget *findWidget(const Address &address)
{
    const Target found = find(address);
    auto *widget = qobject_cast<QWidget *>(found.object);
    if (!widget || found.drawn)
        throw Failure(QStringLiteral("%1 is no control").arg(shown(address)));
    return widget;
}

Target findReachable(const Address &address)
{
    const Target found = find(address);
    auto *widget = qobject_cast<QWidget *>(found.object);
    if (!widget)
        throw Failure(QStringLiteral("%1 is a menu item").arg(shown(address)));
    turnPagesTo(widget);
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && widget != modal && !modal->isAncestorOf(widget))
        throw Missing(
            QStringLiteral("%1 lies behind the modal window %2").arg(shown(address), nameOf(modal)));
    if (!widget->isVisible() || (found.drawn && !found.drawn->visible))
        throw Missing(QStringLiteral("%1 is not visible").arg(shown(address)));
    if (!widget->isEnabled() || (found.drawn && !found.drawn->enabled))
        throw Failure(QStringLiteral("%1 is disabled").arg(shown(address)));
    return found;
}

QWidget *findReachableWidget(const Address &address)
{
    const Target found = findReachable(address);
    if (found.drawn)
        throw Failure(QStringLiteral("%1 is drawn and takes no such step").arg(shown(address)));
    return qobject_cast<QWidget *>(found.object);
}

QAction *findAction(const QString &name)
{
    if (auto *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget()))
        if (QAction *action = actionOfMenu(popup, name))
            return action;
    QWidget *window = activeWindow();
    if (QAction *action = window ? actionIn(window, name) : nullptr)
        return action;
    return mainWindow() && !QApplication::activeModalWidget() ? actionIn(mainWindow(), name) : nullptr;
}

QString withoutMnemonic(const QString &caption)
{
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && i + 1 < caption.size())
            ++i;
        text += caption[i];
    }
    return text;
}

void bringForward(QWidget *widget)
{
    QWidget *window = widget->window();
    if (!window->isActiveWindow()) {
        window->activateWindow();
        QApplication::setActiveWindow(window);
    }
    for (QWidget *ancestor = widget; ancestor; ancestor = ancestor->parentWidget())
        if (auto *frame = qobject_cast<QMdiSubWindow *>(ancestor); frame && frame->mdiArea())
            frame->mdiArea()->setActiveSubWindow(frame);
}

} // namespace guion
