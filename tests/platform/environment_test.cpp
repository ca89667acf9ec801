#include "platform/basic/environment.h"

#include <gtest/gtest.h>

#include <QThread>

TEST(Environment, clockGoesOnFromTheMomentSet)
{
    const QDateTime moment(QDate(2024, 3, 15), QTime(10, 30));
    basic::setClock(moment);
    EXPECT_EQ(basic::today().date(), moment.date());
    QThread::msleep(1100); // its values know seconds
    const qint64 passed = moment.secsTo(QDateTime(basic::today().date(), basic::now().time()));
    EXPECT_GE(passed, 1);
    EXPECT_LT(passed, 60);
    basic::setClock({});
    EXPECT_EQ(basic::today().date(), QDate::currentDate());
}

TEST(Environment, folderNamedByTheEnvironmentHoldsTheFiles)
{
    qputenv("SANIRELL_CARPETA", "/tmp/consultorio");
    EXPECT_EQ(basic::programFile("curvas\\oms\\x.jpg"), QString("/tmp/consultorio/curvas/oms/x.jpg"));
    qunsetenv("SANIRELL_CARPETA");
}
