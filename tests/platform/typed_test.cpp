#include "platform/basic/cleantext.h"
#include "platform/basic/runtime.h"
#include "platform/basic/typed.h"
#include "platform/basic/typeddate.h"
#include "platform/dao/dialect/like.h"
#include "platform/dao/sqltext.h"

#include <gtest/gtest.h>

#include <limits>

using basic::cleanText;
using basic::typedDate;

TEST(Typed, findsWithoutAccentsAndHeedsTheEnieThatIsTyped)
{
    struct Search {
        const char16_t *text, *typed;
        bool begins, contains;
    };
    constexpr Search searches[] = {
        {u"Pérez, Ana", u"perez", true, true},
        {u"Pérez, Ana", u"PÉREZ", true, true},
        {u"Perez, Ana", u"pérez", true, true},
        {u"Pérez, Ana", u"ana", false, true},
        {u"Ácido fólico", u"FOLICO", false, true},
        {u"Muñoz", u"munoz", true, true},
        {u"Muñoz", u"muño", true, true},
        {u"Munoz", u"muñoz", false, false},
        {u"Ana Muñoz", u"muñ", false, true},
        {u"Ñandú Núñez", u"nandu nu", true, true},
        {u"Ñandú Núñez", u"nandu nuñ", true, true},
        {u"Pérez", u"", true, true},
        {u"Pe", u"perez", false, false},
        {u"Güiraldes", u"guir", true, true},
        {u"50% [x]", u"% [", false, true},
        {u"que? *", u"? *", false, true},
        {u"#1", u"#", true, true},
        {u"51", u"#", false, false},
        {u"D'Angelo", u"d'a", true, true},
        {u"a!b", u"!", false, true},
    };
    for (const Search &s : searches) {
        const QString typed = QString::fromUtf16(s.typed);
        SCOPED_TRACE(QString::fromUtf16(s.text).toStdString() + " / " + typed.toStdString());
        EXPECT_EQ(basic::beginsWithTyped(s.text, typed), s.begins);
        EXPECT_EQ(basic::containsTyped(s.text, typed), s.contains);
        // The pattern for the engine finds the same.
        const QByteArray text = QString::fromUtf16(s.text).toUtf8();
        const auto pattern = [&](dao::Match where) {
            const QByteArray written = dao::typedPattern(typed, where).toUtf8();
            return dao::LikePattern(written).matches(text);
        };
        EXPECT_EQ(pattern(dao::Match::Beginning), s.begins);
        EXPECT_EQ(pattern(dao::Match::Anywhere), s.contains);
    }
    // A letter and its accent apart, as some keyboards write them.
    EXPECT_TRUE(basic::beginsWithTyped(u"Pérez", QStringView(u"Pe\u0301rez")));
}

TEST(Typed, datesAreReadWholeOrNotAtAll)
{
    const QDate today(2026, 11, 23);
    const QDate day(2022, 3, 5);
    for (const auto *text : {u"5/3/22", u"05/03/2022", u"5-3-2022", u"5.3.22", u"05032022", u"050322",
                             u"5 3 2022", u" 5 / 3 / 22 "})
        EXPECT_EQ(typedDate(text, today), day) << QStringView(text).toString().toStdString();
    EXPECT_EQ(typedDate(u"31122022", today), QDate(2022, 12, 31));
    EXPECT_EQ(typedDate(u"29022024", today), QDate(2024, 2, 29));
    for (const auto *none : {u"", u"29/2/2023", u"31/4/22", u"3/15/2022", u"5/3", u"5/3/202", u"2022-03-05",
                             u"1/1/0001", u"12345", u"hoy", u"5/3/2022x", u"0/1/22", u"1/1/2400"})
        EXPECT_FALSE(typedDate(none, today)) << QStringView(none).toString().toStdString();
    // Two digits of a year mean the one that lies nearest: births behind, appointments ahead.
    EXPECT_EQ(typedDate(u"1/1/46", today), QDate(2046, 1, 1));
    EXPECT_EQ(typedDate(u"1/1/47", today), QDate(1947, 1, 1));
    EXPECT_EQ(typedDate(u"1/1/99", today), QDate(1999, 1, 1));
    EXPECT_EQ(typedDate(u"1/1/05", QDate(2095, 1, 1)), QDate(2105, 1, 1));
}

TEST(CleanText, dropsWhatNobodySeesAndKeepsTheRest)
{
    const auto of = [](std::initializer_list<char16_t> units) {
        return QString(reinterpret_cast<const QChar *>(units.begin()), static_cast<qsizetype>(units.size()));
    };
    EXPECT_EQ(cleanText(of({0xFEFF, u'A', 0, u'n', 0x200B, u'a', 0xFFFE, 0x2060, 0xFDD0, 7, 0x85})), "Ana");
    EXPECT_EQ(cleanText(of({u'x', 0xD83D, u'y', 0xDE00, 0xD83D})), "xy") << "halves of pairs";
    EXPECT_EQ(cleanText(of({0xD83D, 0xDE00})), of({0xD83D, 0xDE00}));
    EXPECT_EQ(cleanText(of({0xD83F, 0xDFFE})), "") << "a noncharacter beyond the first plane";
    EXPECT_EQ(cleanText("Nu\u0301n\u0303ez"), u"Núñez");
    const QString kept = "línea\tcon tabulador\r\ny “comillas” – ñ";
    EXPECT_EQ(cleanText(kept), kept);
}

TEST(NearestWhole, staysWithinItsRange)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    using Whole = std::numeric_limits<qint64>;
    EXPECT_EQ(basic::nearestWhole(2.5), 2);
    EXPECT_EQ(basic::nearestWhole(3.5), 4);
    EXPECT_EQ(basic::nearestWhole(-2.5), -2);
    EXPECT_EQ(basic::nearestWhole(9007199254740993.0), 9007199254740992);
    EXPECT_EQ(basic::nearestWhole(9223372036854774784.0), 9223372036854774784);
    for (const double beyond : {9223372036854775808.0, 1e300, infinity})
        EXPECT_EQ(basic::nearestWhole(beyond), Whole::max());
    for (const double beyond : {-9223372036854775808.0, -1e300, -infinity})
        EXPECT_EQ(basic::nearestWhole(beyond), Whole::min());
    EXPECT_EQ(basic::nearestWhole(std::numeric_limits<double>::quiet_NaN()), 0);
}

/// Numbers that are no dates stand at the edge of the calendar.
TEST(Numbers, thatAreOutOfAllBoundsAreStillShown)
{
    for (const double number : {1e300, -1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN(), 3e6, -7e5}) {
        const QString month = basic::format(number, u"mmmm");
        EXPECT_TRUE(month == u"diciembre" || month == u"enero") << number << ' ' << month.toStdString();
        EXPECT_NE(basic::format(number, u"dddd dd/mm/yyyy HH:MM:SS"), QString());
        EXPECT_NE(basic::format(number, u"0.00"), QString());
        EXPECT_NE(basic::Value(number).text(), QString());
        basic::Value(number).integer();
        basic::Value(number).currency();
        basic::Value(number).date();
    }
    EXPECT_EQ(basic::format(1e300, u"dd/mm/yyyy"), "31/12/9999");
    EXPECT_EQ(basic::format(-1e300, u"dd/mm/yyyy"), "01/01/0100");
}
