#include "guion/paper.h"

#include "guion/script.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

namespace guion
{

namespace
{

QString outputOf(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw Failure(
            QStringLiteral("%1 cannot read the document: %2 %3")
                .arg(tool, process.errorString(), QString::fromUtf8(process.readAllStandardError())));
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

QString lastDocument()
{
    const QDir folder(qEnvironmentVariable("SANIRELL_IMPRESORA"));
    const QStringList documents = folder.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name);
    return documents.isEmpty() ? QString() : folder.filePath(documents.constLast());
}

int pageCount(const QString &document)
{
    static const QRegularExpression pages(QStringLiteral("Pages:\\s+(\\d+)"));
    return pages.match(outputOf(QStringLiteral("pdfinfo"), {document})).captured(1).toInt();
}

QString documentText(const QString &document)
{
    return outputOf(QStringLiteral("pdftotext"), {document, QStringLiteral("-")}).simplified();
}

} // namespace guion
