// Draws the pictures of all growth charts: charts-maker TABLES FOLDER
#include "gif.h"
#include "painter.h"

#include <QGuiApplication>

#include <cstdio>
#include <stdexcept>

namespace
{

constexpr int jpegQuality = 95;

void save(const QImage &image, const QString &file)
{
    if (file.endsWith(".gif"))
        return saveGif(image, file);
    if (!image.save(file, "JPG", jpegQuality))
        throw std::runtime_error("cannot write " + file.toStdString());
}

void drawAll(const QDir &tables, const QDir &folder)
{
    const auto draw = [&](const Sheet &sheet) { save(paint(sheet, tables), folder.filePath(sheet.file)); };
    if (!folder.mkpath("oms"))
        throw std::runtime_error("cannot create the folder of pictures");
    for (const charts::ClassicalChart &chart : charts::classicalCharts())
        draw(plan(chart, tables));
    for (const charts::WhoChart &chart : charts::whoCharts())
        draw(plan(chart));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: charts-maker TABLES FOLDER\n", stderr);
        return 2;
    }
    try {
        drawAll(QDir(QFile::decodeName(argv[1])), QDir(QFile::decodeName(argv[2])));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "charts-maker: %s\n", error.what());
        return 1;
    }
    return 0;
}
