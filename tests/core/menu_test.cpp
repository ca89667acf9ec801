#include "core/windows/barraDeMenu.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// Each caption of a menu answers a letter of its own, at best the one that a word begins with.
TEST(Menu, captionsTakeLettersInTurn)
{
    QString taken;
    QStringList captions;
    for (const QString &caption : {u"Tensión Arterial"_s, u"&Inmunización"_s, u"Tratamientos"_s, u"Índice"_s,
                                   u"I.M.C."_s, u"Tabla de tratamientos"_s, u"Ta"_s})
        captions += menu::withMnemonic(caption, taken);
    EXPECT_EQ(
        captions.join(u" | "_s).toStdString(),
        "&Tensión Arterial | &Inmunización | T&ratamientos | Í&ndice | I.&M.C. | Tabla &de tratamientos | T&a");
    EXPECT_EQ(menu::withMnemonic(u"Ta"_s, taken), u"Ta"_s) << "none is left";
}
