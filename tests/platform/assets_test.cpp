#include "platform/forms/databar.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace
{

/// The text of every source of the program, each literal as plain "text".
QString sources()
{
    static const QRegularExpression literal(R"re((?:QStringLiteral\(("[^"]*")\)|u("[^"]*")_s))re");
    QString all;
    QDirIterator files(TEST_DATA "/../../src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            all += QString::fromUtf8(file.readAll());
    }
    return all.replace(literal, "\\1\\2");
}

/// The pictures that buttons take as their third argument, after name or index and caption, and those named
/// whole.
QStringList iconsNamed(const QString &text)
{
    static const QRegularExpression button(
        R"re((?:CommandButton \w+\{|\bCommand\d+\(|\b(?:add|command|rowCommand)\()\s*)re"
        R"re((?:"[^"]*"|[\w.:]+),\s*(?:"[^"]*"|[\w.:]+|\{\}),\s*"([^"]+)"|":/icons/([a-z0-9]+)\.svg")re");
    QStringList names;
    for (auto matches = button.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        names << match.captured(1) + match.captured(2);
    }
    return names;
}

} // namespace

TEST(Assets, everyPictureIsInTheProgramAndCanBeDrawn)
{
    QStringList pictures{":/logo.svg", ":/portada.svg"};
    for (const QFileInfo &icon : QDir(":/icons").entryInfoList({"*.svg"}))
        pictures << icon.filePath();
    EXPECT_GE(pictures.size(), 41);
    for (const QString &picture : pictures)
        EXPECT_TRUE(QSvgRenderer(picture).isValid()) << qPrintable(picture);
}

TEST(Assets, everyIconThatAWindowNamesExists)
{
    const QStringList names = iconsNamed(sources());
    EXPECT_GE(names.size(), 100); // else the sources name them in another way by now
    for (const QString &name : names)
        EXPECT_TRUE(QFile::exists(":/icons/" + name + ".svg")) << qPrintable(name);
    forms::Data rows(QStringLiteral("Data1"));
    forms::DataBar bar(rows);
    for (const auto *button : bar.findChildren<QAbstractButton *>())
        EXPECT_FALSE(button->icon().pixmap(16).isNull()) << qPrintable(button->objectName());
}
