#include "platform/settings/settings.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(Settings, eachTitleHasItsOwnAndAMissingKeyIsEmpty)
{
    const QTemporaryDir folder;
    qputenv("SANIRELL_AJUSTES", folder.path().toUtf8());
    settings::saveSetting("Configuracion", "Tamaño Fuente Editor de HC", "12, \"grande\"");
    EXPECT_EQ(settings::getSetting("Configuracion", "Tamaño Fuente Editor de HC"), "12, \"grande\"");
    EXPECT_EQ(settings::getSetting("Configuracion", "Otra"), "");

    settings::setApplicationTitle("Sanirell! Modulo secretaria");
    EXPECT_EQ(settings::getSetting("Configuracion", "Tamaño Fuente Editor de HC"), "");
    settings::saveSetting("Ruta", "Ruta", "x");
    EXPECT_EQ(settings::getSetting("Sanirell!", "Ruta", "Ruta"), "");
    settings::setApplicationTitle("Sanirell!");
    qunsetenv("SANIRELL_AJUSTES");
}
