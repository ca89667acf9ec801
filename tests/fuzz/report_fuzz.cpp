// Any report file is either refused in words or makes pages, and each page puts something behind it: a report
// over a few rows ends.
#include "platform/dao/database.h"
#include "platform/reports/report.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdint>

namespace
{

constexpr int fewPages = 4;

dao::Database &practice()
{
    static const QTemporaryDir folder("/tmp/fuzz-XXXXXX");
    static dao::Database db;
    if (!db.isOpen()) {
        db.create(folder.filePath("BASE.MDB"), {});
        db.execute(
            "CREATE TABLE Ventas (Grupo TEXT(10), Numero LONG, Nombre TEXT(255), Importe CURRENCY, Fecha DATE)");
        db.execute("INSERT INTO Ventas VALUES ('A', 1, '<Nuñez> & {{Ana}}', 1.5, NULL)");
        db.execute("INSERT INTO Ventas (Grupo, Numero) VALUES ('B', 2)");
    }
    return db;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString content =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    try {
        reports::Report report(reports::parseReportFile(content, "prueba.rpt"), practice(), {}, {});
        QImage image(100, 100, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(0.02, 0.02);
        for (int page = 0; page < fewPages && report.hasPage(page); ++page) {
            report.paint(painter, page);
            report.read(page);
        }
    } catch (const basic::Error &) {
        // Refused in words: as it should be.
    }
    return 0;
}
