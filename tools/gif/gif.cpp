#include "gif.h"

#include <QFile>
#include <QHash>

#include <gif_lib.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

namespace
{

void check(int outcome)
{
    if (outcome == GIF_ERROR)
        throw std::runtime_error("cannot write the GIF file");
}

/// The colours of the picture, those of the most pixels first, at most 256. Colours that differ in the last
/// bits only, as along the edge of a smooth curve, count as one.
QList<QRgb> palette(const QImage &image)
{
    constexpr QRgb coarse = 0xfffcfcfc;
    QHash<QRgb, int> uses;
    for (int y = 0; y < image.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            ++uses[row[x] | ~coarse];
    }
    QList<QRgb> colours = uses.keys();
    std::ranges::sort(colours, std::ranges::greater(),
                      [&](QRgb colour) { return std::pair(uses[colour], colour); });
    colours.resize(std::min<qsizetype>(colours.size(), 256));
    return colours;
}

int writeBytes(GifFileType *gif, const GifByteType *bytes, int count)
{
    auto *file = static_cast<QFile *>(gif->UserData);
    return static_cast<int>(file->write(reinterpret_cast<const char *>(bytes), count));
}

struct Close {
    void operator()(GifFileType *gif) const { EGifCloseFile(gif, nullptr); }
};

} // namespace

void saveGif(const QImage &image, const QString &file)
{
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    const QList<QRgb> colours = palette(source);
    const QImage indexed = source.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);

    std::vector<GifColorType> entries(256);
    for (qsizetype i = 0; i < colours.size(); ++i)
        entries[static_cast<std::size_t>(i)] = {static_cast<GifByteType>(qRed(colours[i])),
                                                static_cast<GifByteType>(qGreen(colours[i])),
                                                static_cast<GifByteType>(qBlue(colours[i]))};
    const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
        GifMakeMapObject(static_cast<int>(entries.size()), entries.data()), &GifFreeMapObject);

    QFile device(file);
    int error = 0;
    const bool opened = device.open(QIODevice::WriteOnly);
    const std::unique_ptr<GifFileType, Close> gif(EGifOpen(&device, writeBytes, &error));
    if (!opened || !gif || !map)
        throw std::runtime_error("cannot create the GIF file");
    check(EGifPutScreenDesc(gif.get(), indexed.width(), indexed.height(), 8, 0, map.get()));
    check(EGifPutImageDesc(gif.get(), 0, 0, indexed.width(), indexed.height(), false, nullptr));
    for (int y = 0; y < indexed.height(); ++y) {
        const uchar *row = indexed.constScanLine(y);
        std::vector<GifPixelType> line(row, row + indexed.width());
        check(EGifPutLine(gif.get(), line.data(), indexed.width()));
    }
}
