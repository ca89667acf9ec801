#include "platform/basic/errors.h"
#include "platform/forms/colour.h"
#include "platform/forms/controls.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

QString savedPicture(const QTemporaryDir &folder, QSize size, QColor left, QColor right)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(left);
    for (int y = 0; y < size.height(); ++y)
        for (int x = size.width() / 2; x < size.width(); ++x)
            picture.setPixelColor(x, y, right);
    const QString file = folder.filePath(u"fondo.bmp"_s);
    picture.save(file);
    return file;
}

} // namespace

TEST(PictureBox, twipsLieOnTheBackgroundWhateverItsResolution)
{
    const QTemporaryDir folder;
    forms::PictureBox box(u"Picture1"_s, {3000, 1500});
    EXPECT_EQ(box.sizeHint(), QSize(200, 100));
    box.loadPicture(savedPicture(folder, {800, 400}, Qt::white, Qt::yellow));
    box.drawLine({1500, 300}, {3000, 300}, Qt::red);
    box.drawCircle({750, 750}, 375, Qt::blue);

    const QImage fine = box.image();
    EXPECT_EQ(fine.size(), QSize(800, 400));
    EXPECT_EQ(fine.pixelColor(600, 80), QColor(Qt::red));
    EXPECT_EQ(fine.pixelColor(600, 120), QColor(Qt::yellow));
    EXPECT_EQ(fine.pixelColor(300, 200), QColor(Qt::blue)); // the circle's right edge
    EXPECT_EQ(fine.pixelColor(200, 200), QColor(Qt::white));

    const QImage screen = box.grab().toImage();
    EXPECT_EQ(screen.size(), QSize(200, 100));
    EXPECT_EQ(screen.pixelColor(150, 20), QColor(Qt::red));

    box.clear();
    EXPECT_EQ(box.image().pixelColor(600, 80), QColor(Qt::yellow));
}

TEST(PictureBox, tellsAMissingFileFromOneThatIsNoPicture)
{
    const QTemporaryDir folder;
    forms::PictureBox box(u"Picture1"_s, {3000, 1500});
    QFile text(folder.filePath(u"texto.bmp"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("nada");
    text.close();
    const auto errorOf = [&](const QString &file) {
        try {
            box.loadPicture(file);
        } catch (const basic::Error &error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(errorOf(folder.filePath(u"falta.bmp"_s)), 53);
    EXPECT_EQ(errorOf(text.fileName()), 481);
}

TEST(Colour, numberHasRedInItsLowByte)
{
    EXPECT_EQ(forms::fromColourValue(255), QColor(Qt::red));
    EXPECT_EQ(forms::fromColourValue(65280), QColor(Qt::green));
    EXPECT_EQ(forms::toColourValue(QColor(1, 2, 3)), 1 + 2 * 256 + 3 * 65536);
}
