#include "platform/printing/printer.h"

#include "platform/basic/errors.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

QString output(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

bool hasPages(const QString &file, int pages)
{
    return output(u"pdfinfo"_s, {file}).contains(QRegularExpression(u"Pages:\\s+%1\\n"_s.arg(pages)));
}

} // namespace

TEST(Printer, documentsAreNumberedInTheFolderThatStandsForThePrinter)
{
    const QTemporaryDir folder;
    qputenv("SANIRELL_IMPRESORA", folder.path().toUtf8());
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::darkGreen);
    for (int i = 0; i < 2; ++i) {
        printing::Document document({}, u"Listado"_s);
        for (int line = 0; line < 80; ++line)
            document.print(u"renglón %1"_s.arg(line));
        document.paintPicture(wide, 100000, 25000); // larger than the paper: shrunk to it
        document.endDoc();
    }
    printing::Document({}, u"Vacío"_s).endDoc();
    qunsetenv("SANIRELL_IMPRESORA");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{u"doc_001.pdf"_s, u"doc_002.pdf"_s}));
    const QString file = folder.filePath(u"doc_002.pdf"_s);
    EXPECT_TRUE(hasPages(file, 2)) << output(u"pdfinfo"_s, {file}).toStdString();
    EXPECT_TRUE(output(u"pdftotext"_s, {file, u"-"_s}).contains(u"renglón 79"_s));
}

TEST(Printer, longLinesWrapAndAFullPagePictureTakesItsOwnPage)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"hoja.pdf"_s);
    printing::Document document({{}, file, 1}, u"Hoja"_s, true);
    document.print(QStringLiteral("palabra ").repeated(60).trimmed());
    QImage chart(300, 400, QImage::Format_RGB32);
    chart.fill(Qt::white);
    document.paintPage(chart);
    document.endDoc();
    EXPECT_TRUE(hasPages(file, 2));
    EXPECT_EQ(output(u"pdftotext"_s, {file, u"-"_s}).count(u"palabra"_s), 60);
    EXPECT_TRUE(output(u"pdfinfo"_s, {file}).contains(u"841.89 x 595.276"_s) ||
                output(u"pdfinfo"_s, {file}).contains(u"842 x 595"_s));
}

TEST(Printer, fileThatCannotBeWrittenIsAnError)
{
    EXPECT_THROW(printing::Document({{}, u"/nonexistent/hoja.pdf"_s, 1}, u"Hoja"_s), basic::Error);
}
