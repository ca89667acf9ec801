#include "guion/choose.h"
#include "guion/gestures.h"
#include "guion/tables.h"
#include "guion/windows.h"
#include "platform/basic/environment.h"
#include "platform/forms/form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPointer>

namespace guion
{

namespace
{

Target target(const Step &step, std::size_t place = 1)
{
    return findReachable(parseAddress(step.at(place).raw));
}

QWidget *reachable(const Step &step)
{
    return findReachableWidget(parseAddress(step.at(1).raw));
}

bool truth(const Word &word)
{
    if (word.text != u"si" && word.text != u"no")
        throw Failure(QStringLiteral("%1 is neither si nor no").arg(word.text));
    return word.text == u"si";
}

int number(const Word &word)
{
    bool ok = false;
    const int value = word.text.toInt(&ok);
    if (!ok)
        throw Failure(QStringLiteral("%1 is no number").arg(word.text));
    return value;
}

Deed chooseMenu(Stage &, const Step &step)
{
    const QString name = step.at(1).text;
    QAction *action = findAction(name);
    if (!action)
        throw Missing(QStringLiteral("there is no menu item %1").arg(name));
    if (!action->isVisible())
        throw Failure(QStringLiteral("the menu item %1 is not visible").arg(name));
    if (!action->isEnabled())
        throw Failure(QStringLiteral("the menu item %1 is disabled").arg(name));
    return [action] { chooseMenuItem(action); };
}

template <Click kind>
Deed pressMouse(Stage &, const Step &step)
{
    return [pressed = target(step)] { click(pressed, kind); };
}

Deed write(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    const QString text = step.at(2).text;
    return [widget, text] { replaceText(widget, text); };
}

Deed leaveField(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    return [widget] { leave(widget); };
}

Deed chooseEntry(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    const Word entry = step.at(2);
    return [widget, entry] { choose(widget, entry); };
}

Deed addEntry(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    const QString text = step.at(2).text;
    return [widget, text] { addToSelection(widget, text); };
}

Deed setMark(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    if (step.size() == 3)
        return [widget, marked = truth(step.at(2))] { mark(widget, marked); };
    return [widget, text = step.at(2).text, marked = truth(step.at(3))] { markLine(widget, text, marked); };
}

Deed enterDate(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    const QDate date = QDate::fromString(step.at(2).text, Qt::ISODate);
    return [widget, date] { setDate(widget, date); };
}

Deed enterTime(Stage &, const Step &step)
{
    QWidget *widget = reachable(step);
    const QTime time = QTime::fromString(step.at(2).text, Qt::ISODate);
    return [widget, time] { setTime(widget, time); };
}

Deed makeRowCurrent(Stage &, const Step &step)
{
    QWidget *grid = reachable(step);
    return [grid, row = number(step.at(2))] { goToRow(grid, row); };
}

Deed writeCell(Stage &, const Step &step)
{
    QWidget *grid = reachable(step);
    return [grid, row = number(step.at(2)), column = number(step.at(3)), text = step.at(4).text] {
        editCell(grid, row, column, text);
    };
}

Deed strikeKey(Stage &, const Step &step)
{
    return [name = step.at(1).text] { pressKey(name); };
}

Deed dragOnto(Stage &, const Step &step)
{
    const QPointF place(number(step.at(3)), number(step.at(4)));
    return [source = target(step, 1), onto = target(step, 2), place] { drag(source, onto, place); };
}

QWidget *window(const Step &step)
{
    const Address address = parseAddress(step.at(1).raw);
    QWidget *found = address.parts.size() == 1 ? findWindow(address.parts.front()) : nullptr;
    if (!found)
        throw Missing(QStringLiteral("no window %1 is open").arg(step.at(1).text));
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != found)
        throw Missing(QStringLiteral("%1 lies behind a modal window").arg(step.at(1).text));
    return found;
}

Deed bringWindow(Stage &, const Step &step)
{
    QWidget *found = window(step);
    return [found] { bringForward(found); };
}

Deed closeWindow(Stage &, const Step &step)
{
    QWidget *found = window(step);
    auto *frame = qobject_cast<QMdiSubWindow *>(found->parentWidget());
    return [found, frame] { (frame ? frame : found)->close(); };
}

QWidget *box()
{
    QWidget *found = topBox();
    if (!found)
        throw Missing(QStringLiteral("no box is open"));
    return found;
}

Deed answerBox(Stage &, const Step &step)
{
    QStringList captions;
    for (QAbstractButton *button : box()->findChildren<QAbstractButton *>()) {
        if (button->text().isEmpty() || !button->isVisible())
            continue;
        const QString caption = withoutMnemonic(button->text());
        if (caption == withoutMnemonic(step.at(1).text))
            return [button] { click(button, Click::Single); };
        captions.append(caption);
    }
    throw Failure(QStringLiteral("the box has no such button"), step.at(1).text,
                  captions.join(QStringLiteral(" | ")));
}

Deed fillPrompt(Stage &, const Step &step)
{
    QWidget *prompt = box();
    auto *field = qobject_cast<QFileDialog *>(prompt) ? nullptr : prompt->findChild<QLineEdit *>();
    if (!field)
        throw Failure(QStringLiteral("the box takes no text"));
    return [field, text = step.at(1).text] {
        const QPointer<QWidget> self(field);
        replaceText(field, text);
        if (self)
            typeInto(field, QStringLiteral("\n"));
    };
}

Deed chooseFile(Stage &, const Step &step)
{
    auto *dialogue = qobject_cast<QFileDialog *>(box());
    auto *field = dialogue ? dialogue->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")) : nullptr;
    if (!field)
        throw Failure(QStringLiteral("the box on top asks for no file"));
    const QString path =
        QDir(basic::programFolder()).absoluteFilePath(QString(step.at(1).text).replace(u'\\', u'/'));
    return [dialogue, field, path] {
        bringForward(dialogue);
        field->setText(path); // typed, the completer would offer the files below each folder on the way
        QMetaObject::invokeMethod(dialogue, "accept");
    };
}

Deed waitAwhile(Stage &stage, const Step &step)
{
    return [&stage, time = number(step.at(1))] { stage.pause(time); };
}

Deed takePicture(Stage &, const Step &step)
{
    const QString folder = qEnvironmentVariable("GUION_CAPTURAS");
    QWidget *widget = step.size() > 2 ? findWidget(parseAddress(step.at(2).raw)) : activeWindow();
    if (!widget)
        throw Missing(QStringLiteral("no window is open"));
    if (folder.isEmpty())
        return {};
    const QString file = QDir(folder).filePath(step.at(1).text);
    return [widget, file] {
        QDir().mkpath(QFileInfo(file).path());
        if (!widget->grab().save(file))
            throw Failure(QStringLiteral("the picture %1 cannot be written").arg(file));
    };
}

} // namespace

CommandTable actingSteps()
{
    return {
        {"menu", {Kind::Act, chooseMenu}},
        {"click", {Kind::Act, pressMouse<Click::Single>}},
        {"dobleclick", {Kind::Act, pressMouse<Click::Double>}},
        {"clickderecho", {Kind::Act, pressMouse<Click::Right>}},
        {"escribe", {Kind::Act, write}},
        {"sale", {Kind::Act, leaveField}},
        {"elige", {Kind::Act, chooseEntry}},
        {"agrega", {Kind::Act, addEntry}},
        {"marca", {Kind::Act, setMark}},
        {"fecha", {Kind::Act, enterDate}},
        {"hora", {Kind::Act, enterTime}},
        {"fila", {Kind::Act, makeRowCurrent}},
        {"celda", {Kind::Act, writeCell}},
        {"tecla", {Kind::Answer, strikeKey}},
        {"arrastra", {Kind::Act, dragOnto}},
        {"activa", {Kind::Act, bringWindow}},
        {"cierra", {Kind::Act, closeWindow}},
        {"responde", {Kind::Answer, answerBox}},
        {"ingresa", {Kind::Answer, fillPrompt}},
        {"elige_archivo", {Kind::Answer, chooseFile}},
        {"espera", {Kind::Prepare, waitAwhile}},
        {"captura", {Kind::Prepare, takePicture}},
    };
}

} // namespace guion
