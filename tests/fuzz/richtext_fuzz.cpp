// Any bytes can be read as a report, and what was read is written and read back as the same text.
#include "platform/richtext/richtext.h"

#include <QGuiApplication>
#include <QTextDocument>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv); // fonts need one
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QTextDocument document;
    richtext::read(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)), document);
    QTextDocument again;
    const richtext::Reading reading = richtext::read(richtext::write(document), again);
    if (!reading.isRichText || !reading.complete || again.toPlainText() != document.toPlainText()) {
        qWarning("%s\n---\n%s", qPrintable(document.toPlainText()), qPrintable(again.toPlainText()));
        abort();
    }
    return 0;
}
