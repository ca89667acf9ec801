#include "chapters.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <stdexcept>

namespace
{

QString readText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

/// The windows that a marking line names; empty for any other line.
QStringList windowsOf(const QString &line)
{
    static const QRegularExpression mark("^<!-- ventana: (.*) -->$");
    const auto match = mark.match(line);
    return match.hasMatch() ? match.captured(1).split(u' ', Qt::SkipEmptyParts) : QStringList();
}

Chapter readChapter(const QDir &folder, const QString &file)
{
    Chapter chapter;
    chapter.name = file.section(u'-', 1).chopped(3);
    QStringList windows;
    bool explains = false;
    for (const QString &line : readText(folder.filePath(file)).split(u'\n')) {
        if (const QStringList named = windowsOf(line); !named.isEmpty()) {
            windows = named;
            continue;
        }
        if (line.startsWith("# "))
            chapter.title = line.mid(2);
        if (line.startsWith("## ")) {
            explains = !windows.isEmpty();
            if (explains)
                chapter.sections.push_back({windows, {}});
            windows.clear();
        }
        chapter.markdown += line + u'\n';
        if (explains)
            chapter.sections.back().markdown += line + u'\n';
    }
    if (chapter.title.isEmpty() || !windows.isEmpty())
        throw std::runtime_error("no title, or a window without a section, in " + file.toStdString());
    return chapter;
}

void refuseRepeatedWindows(const std::vector<Chapter> &chapters)
{
    QSet<QString> seen;
    for (const Chapter &chapter : chapters)
        for (const Section &section : chapter.sections)
            for (const QString &window : section.windows) {
                if (seen.contains(window))
                    throw std::runtime_error("explained twice: " + window.toStdString());
                seen << window;
            }
}

} // namespace

std::vector<Chapter> readChapters(const QDir &folder)
{
    std::vector<Chapter> chapters;
    for (const QString &file : folder.entryList({"*.md"}, QDir::Files, QDir::Name))
        chapters.push_back(readChapter(folder, file));
    if (chapters.empty())
        throw std::runtime_error("no chapters in " + folder.path().toStdString());
    refuseRepeatedWindows(chapters);
    return chapters;
}
