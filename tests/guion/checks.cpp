#include "guion/compare.h"
#include "guion/database.h"
#include "guion/paper.h"
#include "guion/probe.h"
#include "guion/tables.h"
#include "guion/windows.h"
#include "platform/basic/environment.h"
#include "platform/settings/settings.h"

#include <QFile>
#include <QFileInfo>

namespace guion
{

namespace
{

void compare(const QString &actual, const Word &op, const Word &expected)
{
    if (!holds(actual, op.text, expected))
        throw Failure(QStringLiteral("the check does not hold"), op.text + u' ' + expected.raw, actual);
}

Deed message(Stage &, const Step &step)
{
    const auto box = forms::describeBox(topBox());
    const QString title = step.at(1).text;
    const QString text = step.at(2).text;
    if (!box)
        throw Missing(QStringLiteral("no box is open"), QStringLiteral("\"%1\" \"%2\"").arg(title, text),
                      QStringLiteral("no box"));
    if (box->title != title || box->text != text)
        throw Failure(QStringLiteral("another box is open"), QStringLiteral("\"%1\" \"%2\"").arg(title, text),
                      QStringLiteral("\"%1\" \"%2\"").arg(box->title, box->text));
    return {};
}

Deed noMessage(Stage &, const Step &)
{
    if (const auto box = forms::describeBox(topBox()))
        throw Failure(QStringLiteral("a box is open"), QStringLiteral("no box"),
                      QStringLiteral("\"%1\" \"%2\"").arg(box->title, box->text));
    return {};
}

Deed windowOpen(Stage &, const Step &step)
{
    if (!findWindow(parseAddress(step.at(1).raw).parts.front()))
        throw Missing(QStringLiteral("the window is not open"), step.at(1).text, describeWindows());
    return {};
}

Deed windowClosed(Stage &, const Step &step)
{
    if (findWindow(parseAddress(step.at(1).raw).parts.front()))
        throw Missing(QStringLiteral("the window is open"), QStringLiteral("no %1").arg(step.at(1).text),
                      describeWindows());
    return {};
}

/// "X.PROP" when the last part is a property's name, else X alone.
std::optional<Property> takeProperty(Address &address)
{
    if (address.parts.size() < 2 || address.parts.back().isCaption)
        return {};
    Property property;
    const QString &name = address.parts.back().name;
    if (!isPropertyName(name.left(name.indexOf(u'('))) && !isPropertyName(name))
        return {};
    property = parseProperty(name);
    address.parts.pop_back();
    return property;
}

Deed see(Stage &, const Step &step)
{
    Address address = parseAddress(step.at(1).raw);
    const auto property = takeProperty(address);
    const Word &op = step.at(2);
    const Word &expected = step.at(3);
    const Target target = find(address);
    const bool readsText = !property || property->name == u"Caption";
    if (readsText && op.text == u"==" && rawText(target) == expected.text)
        return {}; // a caption may be given with its mnemonic's mark
    compare(property ? readProperty(target, *property) : visibleText(target), op, expected);
    return {};
}

Deed query(Stage &stage, const Step &step)
{
    compare(firstValue(stage.program(), step.at(1).text), step.at(2), step.at(3));
    return {};
}

Deed setting(Stage &, const Step &step)
{
    compare(settings::getSetting(step.at(1).text, step.at(2).text), step.at(3), step.at(4));
    return {};
}

Deed fileState(Stage &, const Step &step)
{
    const QString file = basic::programFile(step.at(1).text);
    const QString state = step.at(2).text;
    const bool exists = QFileInfo::exists(file);
    if (state == u"falta") {
        if (exists)
            throw Failure(QStringLiteral("the file exists"));
    } else if (state == u"existe" || state == u"contiene") {
        if (!exists)
            throw Failure(QStringLiteral("the file does not exist"));
    } else {
        throw Failure(QStringLiteral("a file existe, falta or contiene"));
    }
    if (state != u"contiene")
        return {};
    QFile content(file);
    if (!content.open(QIODevice::ReadOnly))
        throw Failure(content.errorString());
    const QByteArray bytes = content.readAll();
    const QString &text = step.at(3).text;
    if (!bytes.contains(text.toUtf8()) && !bytes.contains(text.toLatin1()))
        throw Failure(QStringLiteral("the file does not contain the text"), text,
                      QString::fromUtf8(bytes.left(2000)));
    return {};
}

Deed printed(Stage &, const Step &step)
{
    const QString document = lastDocument();
    if (document.isEmpty())
        throw Missing(QStringLiteral("nothing was printed"));
    if (step.at(1).text == u"paginas")
        compare(QString::number(pageCount(document)), {QStringLiteral("=="), QStringLiteral("=="), false},
                step.at(2));
    else if (step.at(1).text == u"contiene")
        compare(documentText(document), {QStringLiteral("contiene"), QStringLiteral("contiene"), false},
                {step.at(2).raw, step.at(2).text.simplified(), true});
    else
        throw Failure(QStringLiteral("what is printed contiene or has paginas"));
    return {};
}

Deed programEnded(Stage &stage, const Step &)
{
    if (!stage.ended())
        throw Missing(QStringLiteral("the program runs"), QStringLiteral("ended"), describeWindows());
    return {};
}

} // namespace

CommandTable checkingSteps()
{
    return {
        {"mensaje", {Kind::Check, message}},
        {"sin_mensaje", {Kind::Check, noMessage}},
        {"abierta", {Kind::Check, windowOpen}},
        {"cerrada", {Kind::Check, windowClosed}},
        {"ve", {Kind::Check, see}},
        {"consulta", {Kind::Check, query}},
        {"ajuste?", {Kind::Check, setting}},
        {"archivo", {Kind::Check, fileState}},
        {"impreso", {Kind::Check, printed}},
        {"terminado", {Kind::Check, programEnded}},
    };
}

} // namespace guion
