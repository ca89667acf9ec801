#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

#include <gtest/gtest.h>

using basic::Currency;
using basic::Date;
using basic::format;
using basic::Value;

TEST(Format, numbersWithLocaleMarks)
{
    EXPECT_EQ(format(1234567, u"###,##0"), "1.234.567");
    EXPECT_EQ(format(72.5, u"##,##0.0"), "72,5");
    EXPECT_EQ(format(72.5, u"###.#"), "72,5");
    EXPECT_EQ(format(7, u"0000"), "0007");
    EXPECT_EQ(format(0, u"#####"), "");
    EXPECT_EQ(format(0, u"###0"), "0");
    EXPECT_EQ(format(5, u"##"), "5");
    EXPECT_EQ(format(42, u"000000000"), "000000042");
    EXPECT_EQ(format(0.5, u"##0.00"), "0,50");
    EXPECT_EQ(format(-1234.5, u"###,##0.00"), "-1.234,50");
    EXPECT_EQ(format(-0.001, u"0.00"), "0,00");
    EXPECT_EQ(format(1.005, u"0.00"), "1,01");
    EXPECT_EQ(format(0.125, u"0%"), "13%");
    EXPECT_EQ(format(Currency::fromDouble(1500), u"currency"), "$ 1.500,00");
    EXPECT_EQ(format(basic::Null{}, u"##0"), "");
    EXPECT_EQ(format("12,5", u"0.00"), "12,50");
    EXPECT_EQ(format("doce", u"0.00"), "doce");
}

TEST(Format, datesAndTheTwoMeaningsOfM)
{
    const Date moment(QDate(2024, 3, 5), QTime(9, 7, 3));
    EXPECT_EQ(format(moment, u"dd/mm/yyyy"), "05/03/2024");
    EXPECT_EQ(format(moment, u"d/mm/yyyy"), "5/03/2024");
    EXPECT_EQ(format(moment, u"dd mmm yyyy"), "05 mar 2024");
    EXPECT_EQ(format(moment, u"dddd d  mmmm, yyyy"), "martes 5  marzo, 2024");
    EXPECT_EQ(format(moment, u"d \"de\" mmmm \\de yyyy"), "5 de marzo de 2024");
    EXPECT_EQ(format(moment, u"d \"sin cerrar"), "5 sin cerrar");
    EXPECT_EQ(format(moment, u"HH:MM"), "09:07");
    EXPECT_EQ(format(moment, u"HH:MM:SS"), "09:07:03");
    EXPECT_EQ(format(moment, u"HHMMSS"), "090703");
    EXPECT_EQ(format(moment, u"yyyymmdd"), "20240305");
    EXPECT_EQ(format(moment, u"ddMMyyyy"), "05032024");
    EXPECT_EQ(format(moment, u"h:mm am/pm"), "9:07 a.m.");
    EXPECT_EQ(format("05/03/2024", u"yyyy"), "2024");
}

TEST(Numbers, theLocaleAndTheKeypadPoint)
{
    EXPECT_EQ(basic::toNumber(u"3,5"), 3.5);
    EXPECT_EQ(basic::toNumber(u"3.5"), 3.5);
    EXPECT_EQ(basic::toNumber(u"1.234"), 1234);
    EXPECT_EQ(basic::toNumber(u"0.125"), 0.125);
    EXPECT_EQ(basic::toNumber(u"-0.500"), -0.5);
    EXPECT_EQ(basic::toNumber(u"1.234.567,25"), 1234567.25);
    EXPECT_EQ(basic::toNumber(u" $ -20 "), -20);
    EXPECT_EQ(basic::toNumber(u"(20)"), -20);
    for (const auto *none :
         {u"", u" ", u"12a", u"1,2,3", u"1.23.4", u"0.125.000", u"-", u"inf", u"nan", u"."})
        EXPECT_FALSE(basic::isNumeric(none)) << QStringView(none).toString().toStdString();
    EXPECT_EQ(basic::val(u" 12 3.5kg"), 123.5);
    EXPECT_EQ(basic::val(u"12,5"), 12);
    EXPECT_EQ(basic::val(u"abc"), 0);
    EXPECT_EQ(basic::val(u"2e"), 2);
    EXPECT_EQ(basic::str(5), " 5");
    EXPECT_EQ(basic::str(-5.25), "-5.25");
    EXPECT_EQ(basic::intPart(-2.5), -3);
    EXPECT_EQ(basic::fixPart(-2.5), -2);
}

TEST(Dates, textsThatAreDates)
{
    const auto day = [](const char16_t *text) { return basic::toDate(text).value_or(Date()).date(); };
    for (const auto *text :
         {u"15/3/2024", u"15-03-24", u"2024-03-15", u"3/15/2024", u"15 de marzo de 2024", u"15 mar 2024"})
        EXPECT_EQ(day(text), QDate(2024, 3, 15)) << QStringView(text).toString().toStdString();
    EXPECT_EQ(day(u"1/1/30").year(), 1930);
    EXPECT_EQ(day(u"1/1/29").year(), 2029);
    EXPECT_EQ(basic::toDate(u"15/03/2024 10:30"), Date(QDate(2024, 3, 15), QTime(10, 30)));
    EXPECT_EQ(basic::toDate(u"10:30:15"), Date(QTime(10, 30, 15)));
    EXPECT_EQ(basic::toDate(u"12:05 am"), Date(QTime(0, 5)));
    for (const auto *none : {u"", u"31/02/2024", u"25:00", u"hola", u"15/mesa/2024"})
        EXPECT_FALSE(basic::isDate(none)) << QStringView(none).toString().toStdString();
}

TEST(Dates, serialsGoThereAndBackToTheSecond)
{
    for (int second = 0; second < 86400; second += 7) {
        const Date moment(QDate(2024, 3, 15), QTime(0, 0).addSecs(second));
        ASSERT_EQ(Date::fromSerial(moment.serial()), moment);
    }
    EXPECT_EQ(Date(QDate(1900, 1, 1)).serial(), 2.0);
    EXPECT_EQ(Date::fromSerial(-1.25).date(), QDate(1899, 12, 28));
    EXPECT_EQ(basic::sqlDate(Date(QDate(2024, 3, 5))), "#03/05/2024#");
    EXPECT_EQ(basic::dateText(Date(QTime(10, 30))), "10:30:00");
}

TEST(Dates, intervals)
{
    const Date a(QDate(2023, 12, 31), QTime(23, 59));
    const Date b(QDate(2024, 1, 1), QTime(0, 1));
    for (const auto *interval : {u"d", u"m", u"q", u"yyyy", u"h"})
        EXPECT_EQ(basic::dateDiff(interval, a, b), 1) << QStringView(interval).toString().toStdString();
    EXPECT_EQ(basic::dateDiff(u"n", a, b), 2);
    EXPECT_EQ(basic::dateDiff(u"ww", Date(QDate(2024, 3, 16)), Date(QDate(2024, 3, 17))), 1);
    EXPECT_EQ(basic::dateAdd(u"m", 1, Date(QDate(2024, 1, 31))).date(), QDate(2024, 2, 29));
    EXPECT_EQ(basic::dateAdd(u"h", -1, b), Date(QDate(2023, 12, 31), QTime(23, 1)));
}
