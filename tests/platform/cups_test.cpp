#include "platform/basic/errors.h"
#include "platform/printing/printer.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace
{

constexpr int patience = 20'000; // milliseconds

constexpr char files[] = "ServerRoot %1/etc\nRequestRoot %1/spool\nStateDir %1/run\nCacheDir %1/cache\n"
                         "TempDir %1/tmp\nAccessLog %1/access\nErrorLog %1/error\nPageLog %1/pages\n"
                         "Printcap %1/printcap\nFileDevice Yes\nSandboxing Relaxed\n";
constexpr char rules[] =
    "Listen %1/sock\nLogLevel info\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
    "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
    "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n";

QString program(const QString &name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? QStandardPaths::findExecutable(name, {u"/usr/sbin"_s, u"/sbin"_s}) : found;
}

/// What a program says; nothing when it fails.
QString output(const QString &name, const QStringList &arguments)
{
    QProcess process;
    process.start(program(name), arguments);
    const bool done = process.waitForFinished() && process.exitCode() == 0;
    return done ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

/// A print server of the test's own, with one queue, "Hoja", whose paper is a file.
class Cups : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const QString &needed : {u"cupsd"_s, u"lpadmin"_s, u"lpstat"_s})
            if (program(needed).isEmpty())
                GTEST_SKIP() << needed.toStdString() << " is not installed";
        if (!QFile::exists(u"/usr/lib/cups/filter/pdftopdf"_s))
            GTEST_SKIP() << "the filters of the print server are not installed";
        start();
        qputenv("CUPS_SERVER", at(u"sock"_s).toUtf8());
        write(u"papel.pdf"_s, "");
        QFile::setPermissions(paper(), QFile::Permissions(0x6666));
        QProcess::execute(program(u"lpadmin"_s),
                          {u"-p"_s, u"Hoja"_s, u"-E"_s, u"-v"_s, u"file://"_s + paper(), u"-P"_s,
                           QStringLiteral(TEST_DATA "/hoja.ppd")});
        ASSERT_TRUE(QPrinterInfo::availablePrinterNames().contains(u"Hoja"_s)) << log().toStdString();
    }

    void TearDown() override
    {
        server_.terminate();
        server_.waitForFinished();
        qunsetenv("CUPS_SERVER");
    }

    QString at(const QString &name) const { return folder_.filePath(name); }
    QString paper() const { return at(u"papel.pdf"_s); }

    void write(const QString &name, const QByteArray &text)
    {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QString log() const
    {
        QFile file(at(u"error"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    /// Prints two pages and waits for them to lie on the paper.
    void print(
        QPageSize::PageSizeId size, const std::function<void()> &meanwhile = [] {})
    {
        write(u"papel.pdf"_s, "");
        printing::Job job({u"Hoja"_s, {}, 1}, u"Página de prueba"_s,
                          QPageLayout(QPageSize(size), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10)));
        job.painter().drawText(QPointF(500, 500), u"primera"_s);
        meanwhile();
        job.newPage();
        job.painter().drawText(QPointF(500, 500), u"segunda"_s);
        job.finish();
        const QDeadlineTimer end(patience);
        while (!output(u"lpstat"_s, {}).isEmpty() && !end.hasExpired())
            QThread::msleep(50);
    }

private:
    void start()
    {
        ASSERT_TRUE(folder_.isValid());
        // The filters run as another person.
        QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755));
        for (const QString &name : {u"etc"_s, u"spool"_s, u"run"_s, u"cache"_s, u"tmp"_s})
            ASSERT_TRUE(QDir(folder_.path()).mkdir(name));
        write(u"cups-files.conf"_s, QString::fromLatin1(files).arg(folder_.path()).toUtf8());
        write(u"cupsd.conf"_s, QString::fromLatin1(rules).arg(folder_.path()).toUtf8());
        server_.start(program(u"cupsd"_s),
                      {u"-f"_s, u"-c"_s, at(u"cupsd.conf"_s), u"-s"_s, at(u"cups-files.conf"_s)});
        const QDeadlineTimer end(patience);
        while (!QFile::exists(at(u"sock"_s)) && !end.hasExpired())
            QThread::msleep(20);
        ASSERT_TRUE(QFile::exists(at(u"sock"_s))) << log().toStdString();
    }

    const QTemporaryDir folder_;
    QProcess server_;
};

} // namespace

// One test: a process asks the print server it found first until its end.
TEST_F(Cups, paperOfEachSizeComesOutAndAPrinterThatVanishesIsTold)
{
    struct Paper {
        QPageSize::PageSizeId size;
        double width, height;
    };
    for (const Paper &each : {Paper{QPageSize::A4, 595, 842}, Paper{QPageSize::A5, 420, 595},
                              Paper{QPageSize::Letter, 612, 792}}) {
        print(each.size);
        const QString info = output(u"pdfinfo"_s, {paper()});
        static const QRegularExpression size(u"Page size:\\s+([\\d.]+) x ([\\d.]+)"_s);
        const auto match = size.match(info);
        EXPECT_NEAR(match.captured(1).toDouble(), each.width, 1.5)
            << info.toStdString() << log().toStdString();
        EXPECT_NEAR(match.captured(2).toDouble(), each.height, 1.5) << info.toStdString();
        EXPECT_TRUE(info.contains(QRegularExpression(u"Pages:\\s+2\\n"_s))) << info.toStdString();
        EXPECT_TRUE(output(u"pdftotext"_s, {paper(), u"-"_s}).contains(u"segunda"_s));
    }
    const auto remove = [] { QProcess::execute(program(u"lpadmin"_s), {u"-x"_s, u"Hoja"_s}); };
    EXPECT_THROW(print(QPageSize::A4, remove), basic::Error);
    EXPECT_THROW(print(QPageSize::A4), basic::Error);
    EXPECT_EQ(QFile(paper()).size(), 0);
}
