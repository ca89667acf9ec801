#include "guion/compare.h"
#include "guion/script.h"

#include <gtest/gtest.h>

using namespace guion;

TEST(Script, wordsKeepTheirQuotesApart)
{
    const auto words = split("  click  panSintomas.\"Mi botón\"  \"uno \\\"dos\\\" \\\\ \\n tres\" <Null>\r");
    ASSERT_EQ(words.size(), 4u);
    EXPECT_EQ(words[1].raw, QString("panSintomas.\"Mi botón\""));
    EXPECT_FALSE(words[1].quoted);
    EXPECT_EQ(words[2].text, QString("uno \"dos\" \\ \n tres"));
    EXPECT_TRUE(words[2].quoted);
    EXPECT_EQ(words[3].text, QString("<Null>"));
}

TEST(Script, backslashBeforeAnotherLetterIsPartOfThePath)
{
    EXPECT_EQ(split("archivo \"curvas\\\\nene.jpg\" existe")[1].text, QString("curvas\\nene.jpg"));
    EXPECT_EQ(split("archivo \"curvas\\oms\" existe")[1].text, QString("curvas\\oms"));
}

TEST(Script, stepsKnowTheirLine)
{
    const auto steps = parse("# nada\n\n   \narranca\n# click X\nresponde \"Sí\"");
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].line, 4);
    EXPECT_EQ(steps[1].line, 6);
    try {
        parse("arranca\nclick \"sin fin");
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_TRUE(failure.text().startsWith("2: "));
    }
}

TEST(Script, addressesOfWindowsControlsAndCaptions)
{
    using Part = Address::Part;
    const auto parts = [](const char *text) { return parseAddress(text).parts; };
    EXPECT_EQ(parts("panTurnos#12.Text3(4).List(2)"),
              (std::vector{Part{"panTurnos", false, "12"}, Part{"Text3(4)", false, ""},
                           Part{"List(2)", false, ""}}));
    EXPECT_EQ(parts("panSintomas.\"Dr. A (b)\""),
              (std::vector{Part{"panSintomas", false, ""}, Part{"Dr. A (b)", true, ""}}));
    EXPECT_EQ(parts("\"Aceptar\".Enabled"),
              (std::vector{Part{"Aceptar", true, ""}, Part{"Enabled", false, ""}}));
    EXPECT_THROW(parts("panTurnos."), Failure);
    EXPECT_EQ(parseProperty("Cell(0, 12)").arguments, (std::vector{0, 12}));
    EXPECT_THROW(parseProperty("List(a)"), Failure);
}

TEST(Script, comparesNumbersAsNumbersAndTextsAsTexts)
{
    const auto check = [](const char *actual, const char *op, const char *expected) {
        return holds(actual, op, split(expected).front());
    };
    EXPECT_TRUE(check("10", ">", "9"));
    EXPECT_FALSE(check("10", ">", "\"9\""));
    EXPECT_TRUE(check("1.50", "==", "1.5"));
    EXPECT_FALSE(check("007", "==", "\"7\""));
    EXPECT_TRUE(check("2024-03-15", "<=", "2024-03-15"));
    EXPECT_TRUE(check("2024-03-15", "<", "2024-11-01"));
    EXPECT_TRUE(check("Pérez, Ana", "contiene", "\"Ana\""));
    EXPECT_FALSE(check("Pérez", "==", "\"PÉREZ\""));
    EXPECT_THROW(check("1", "=", "1"), Failure);
}

TEST(Script, formOfDatabaseValues)
{
    EXPECT_EQ(scriptForm(basic::Value(basic::Date(QDate(2024, 3, 15)))), "2024-03-15");
    EXPECT_EQ(scriptForm(basic::Value(basic::Date(QTime(10, 30)))), "10:30:00");
    EXPECT_EQ(scriptForm(basic::Value(basic::Currency::fromUnits(12345000))), "1234.5");
    EXPECT_EQ(scriptForm(basic::Value(true)), "si");
    EXPECT_EQ(scriptForm(basic::Value(basic::Null{})), "<Null>");
    EXPECT_EQ(scriptForm(basic::Value("")), "");
}
