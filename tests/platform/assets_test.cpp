#include <QDir>
#include <QSvgRenderer>

#include <gtest/gtest.h>

TEST(Assets, everyPictureIsInTheProgramAndCanBeDrawn)
{
    QStringList pictures{":/logo.svg", ":/portada.svg"};
    for (const QFileInfo &icon : QDir(":/icons").entryInfoList({"*.svg"}))
        pictures << icon.filePath();
    EXPECT_GE(pictures.size(), 41);
    for (const QString &picture : pictures)
        EXPECT_TRUE(QSvgRenderer(picture).isValid()) << qPrintable(picture);
}
