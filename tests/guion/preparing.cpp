#include "guion/database.h"
#include "guion/tables.h"
#include "platform/basic/environment.h"
#include "platform/settings/settings.h"

#include <QDir>

namespace guion
{

namespace
{

void beforeStart(const Stage &stage)
{
    if (stage.started())
        throw Failure(QStringLiteral("the program has started already"));
}

Deed makeFolder(Stage &stage, const Step &step)
{
    beforeStart(stage);
    const QString kind = step.at(1).text;
    if (kind != u"nueva" && kind != u"vacia")
        throw Failure(QStringLiteral("a folder is nueva or vacia"));
    return [&stage, kind] {
        QDir(basic::programFolder()).removeRecursively();
        QDir().mkpath(basic::programFolder());
        stage.program().deliver(basic::programFolder(), kind == u"nueva");
    };
}

Deed setClock(Stage &, const Step &step)
{
    const QString text = step.at(1).text;
    for (const char *form : {"yyyy-MM-dd HH:mm:ss", "yyyy-MM-dd HH:mm", "yyyy-MM-dd"}) {
        const QDateTime moment = QDateTime::fromString(text, QLatin1String(form));
        if (moment.isValid())
            return [moment] { basic::setClock(moment); };
    }
    throw Failure(QStringLiteral("%1 is no moment like 2024-03-15 10:30:00").arg(text));
}

Deed saveSetting(Stage &, const Step &step)
{
    const QString section = step.at(1).text;
    const QString key = step.at(2).text;
    const QString value = step.at(3).text;
    return [=] { settings::saveSetting(section, key, value); };
}

Deed runStatement(Stage &stage, const Step &step)
{
    const QString statement = step.at(1).text;
    return [&stage, statement] { execute(stage.program(), statement); };
}

Deed setTitle(Stage &stage, const Step &step)
{
    beforeStart(stage);
    const QString title = step.at(1).text;
    return [title] { settings::setApplicationTitle(title); };
}

Deed startProgram(Stage &stage, const Step &step)
{
    beforeStart(stage);
    const QString word = step.size() > 1 ? step.at(1).text : QString();
    return [&stage, word] { stage.start(word); };
}

} // namespace

CommandTable preparingSteps()
{
    return {
        {"carpeta", {Kind::Prepare, makeFolder}}, {"reloj", {Kind::Prepare, setClock}},
        {"ajuste", {Kind::Prepare, saveSetting}}, {"sql", {Kind::Prepare, runStatement}},
        {"titulo", {Kind::Prepare, setTitle}},    {"arranca", {Kind::Start, startProgram}},
    };
}

} // namespace guion
