#include "platform/basic/environment.h"

#include <gtest/gtest.h>

TEST(Environment, clockGoesOnFromTheMomentSet)
{
    basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
    EXPECT_EQ(basic::today().date(), QDate(2024, 3, 15));
    EXPECT_LT(basic::now().time(), QTime(10, 31));
    basic::setClock({});
    EXPECT_EQ(basic::today().date(), QDate::currentDate());
}

TEST(Environment, folderNamedByTheEnvironmentHoldsTheFiles)
{
    qputenv("SANIRELL_CARPETA", "/tmp/consultorio");
    EXPECT_EQ(basic::programFile("curvas\\oms\\x.jpg"), QString("/tmp/consultorio/curvas/oms/x.jpg"));
    qunsetenv("SANIRELL_CARPETA");
}
