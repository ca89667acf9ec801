#include "fixture.h"

#include "platform/dao/dialect/collation.h"
#include "platform/dao/dialect/like.h"

#include <algorithm>

using dao::compareSpanish;

TEST(Collation, ordersAsASpanishDictionary)
{
    const QStringList ordered{"",        "1",    "10",    "2",    "abeja", "Ábeja",   "acción",   "alma",
                              "Álvarez", "cama", "caña",  "caño", "cao",   "niño",    "nube",     "Núñez",
                              "nuzco",   "ñ",    "Ñandú", "o",    "pérez", "Pérez y", "perezoso", "zorro"};
    for (qsizetype i = 0; i < ordered.size(); ++i) {
        for (qsizetype j = 0; j < ordered.size(); ++j) {
            const int compared = compareSpanish(ordered[i], ordered[j]);
            EXPECT_EQ(compared < 0, i < j) << ordered[i].toStdString() << " / " << ordered[j].toStdString();
            EXPECT_EQ(compared == 0, i == j) << ordered[i].toStdString() << " / " << ordered[j].toStdString();
        }
    }
}

TEST(Collation, ignoresCaseAndHeedsAccents)
{
    EXPECT_EQ(compareSpanish(u"ÁRBOL de Ñoño ÜÇ", u"árbol DE ñOÑO üç"), 0);
    EXPECT_NE(compareSpanish(u"arbol", u"árbol"), 0);
    EXPECT_NE(compareSpanish(u"Łódź", u"Lodz"), 0);
    EXPECT_EQ(compareSpanish(u"ŁÓDŹ", u"łódź"), 0);
    EXPECT_LT(compareSpanish(u"resumé", u"resumen"), 0) << "letters come before accents";
}

TEST(Collation, isATotalOrderOverAnyBytes)
{
    std::vector<QByteArray> texts{"\xC3", "\xC3\xB1", "\xF0\x9F\x98\x80", "\xFF\xFE",
                                  "n",    "N",        "\xCC\x81",         "a\xCC\x81"};
    std::sort(texts.begin(), texts.end(), [](auto &a, auto &b) { return compareSpanish(a, b) < 0; });
    for (size_t i = 0; i < texts.size(); ++i) {
        for (size_t j = i; j < texts.size(); ++j) {
            EXPECT_LE(compareSpanish(texts[i], texts[j]), 0);
            EXPECT_EQ(compareSpanish(texts[i], texts[j]) == 0, compareSpanish(texts[j], texts[i]) == 0);
        }
    }
}

TEST(Like, matchesAsTheDialectSays)
{
    const auto like = [](const char *text, const char *pattern) {
        return dao::LikePattern(pattern).matches(text);
    };
    EXPECT_TRUE(like("Nuñez, Ana", "*ÑEZ*"));
    EXPECT_FALSE(like("Nunez, Ana", "*ñez*"));
    EXPECT_FALSE(like("Nuñez", "nunez"));
    EXPECT_TRUE(like("ÁLVAREZ", "á*z"));
    EXPECT_TRUE(like("", "*"));
    EXPECT_TRUE(like("", "**"));
    EXPECT_FALSE(like("", "?"));
    EXPECT_TRUE(like("ñ", "?")) << "a character, not a byte";
    EXPECT_TRUE(like("a1b2", "a#b#"));
    EXPECT_FALSE(like("a1b", "a#b#"));
    EXPECT_TRUE(like("aXbXc", "a*b*c"));
    EXPECT_FALSE(like("aXbX", "a*b*c"));
    EXPECT_TRUE(like("casa", "[a-d]asa"));
    EXPECT_FALSE(like("casa", "[!a-d]asa"));
    EXPECT_TRUE(like("*", "[*]"));
    EXPECT_TRUE(like("[x", "[x"));
    EXPECT_TRUE(like("50%_", "50%_")) << "the engine's own wildcards are plain";
    EXPECT_FALSE(like("500", "50%"));
    EXPECT_TRUE(like("aaaaaaaaaaaaaaaaaaaaaaaaaaaaab", "*a*a*a*a*a*a*b"));
    EXPECT_TRUE(like("ab", "ab*"));
    EXPECT_FALSE(like("xab", "ab*"));
    EXPECT_TRUE(like("xab", "*ab"));
    EXPECT_FALSE(like("a", "*abc"));
}

TEST_F(DaoTest, oneOrderServesComparisonGroupingAndIndexes)
{
    run({"CREATE TABLE T (Nombre TEXT(20))", "CREATE UNIQUE INDEX U ON T (Nombre)"});
    for (const char *name : {"Ñandú", "nube", "oca", "Nandu", "árbol", "Arbol"})
        db.execute(QString("INSERT INTO T VALUES ('%1')").arg(name));
    EXPECT_EQ(errorOf([&] { db.execute("INSERT INTO T VALUES ('ÑANDÚ')"); }), dao::Error::DuplicateKey);
    EXPECT_EQ(all("Select Nombre from T order by Nombre"), u"Arbol|árbol|Nandu|nube|Ñandú|oca");
    EXPECT_EQ(all("Select Nombre from T where Nombre > 'NUBE' and Nombre < 'o'"), u"Ñandú");
    run({"CREATE TABLE G (Nombre TEXT(20))", "INSERT INTO G Select Nombre from T",
         "INSERT INTO G VALUES ('ARBOL')"});
    EXPECT_EQ(all("Select count(*) from G group by Nombre having count(*) > 1"), "2");
    EXPECT_EQ(all("Select count(*) from G where left(Nombre, 5) = 'ARBOL'"), "2");
    EXPECT_EQ(db.openRecordset("Select distinct lcase(Nombre) from G").rowCount(), 6);
    auto rs = db.openRecordset("T");
    rs.setIndex(u"U");
    rs.seek(u"=", u"ñandÚ");
    EXPECT_FALSE(rs.noMatch());
    rs.seek(u"=", u"ñandu");
    EXPECT_TRUE(rs.noMatch());
}
