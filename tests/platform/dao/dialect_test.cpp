#include "fixture.h"

#include "platform/basic/environment.h"
#include "platform/dao/dialect/ast.h"
#include "platform/dao/dialect/parser.h"

#include <QFile>

namespace
{

struct Line {
    int number;
    QString category;
    QString statement;
    QString outcome;
};

QList<Line> readLines()
{
    QFile file(TEST_DATA "/dao/dialecto.txt");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QList<Line> lines;
    int number = 0;
    while (!file.atEnd()) {
        ++number;
        QString text = QString::fromUtf8(file.readLine());
        text.chop(text.endsWith('\n'));
        if (text.isEmpty() || text.startsWith('#'))
            continue;
        const qsizetype colon = text.indexOf(": ");
        const QString category = text.first(colon);
        const qsizetype arrow =
            category == "consulta" ? text.indexOf(" = ", colon) : text.lastIndexOf(" => ");
        const qsizetype after = category == "consulta" ? 3 : 4;
        lines << Line{number, category, text.sliced(colon + 2, arrow - colon - 2),
                      text.sliced(arrow + after)};
    }
    return lines;
}

} // namespace

TEST_F(DaoTest, everyStatementOfTheDialectMeansWhatItSays)
{
    basic::setClock(QDateTime(QDate(2024, 3, 15), QTime(10, 30)));
    for (const Line &line : readLines()) {
        SCOPED_TRACE("dialecto.txt:" + std::to_string(line.number) + ": " + line.statement.toStdString());
        if (line.category == "consulta") {
            db.createQuery(line.statement, line.outcome);
            continue;
        }
        QString outcome;
        try {
            if (line.statement.startsWith("select", Qt::CaseInsensitive))
                outcome = all(line.statement);
            else
                outcome = QString::number(db.execute(line.statement));
        } catch (const dao::Error &error) {
            outcome = QString("ERROR:%1").arg(error.number());
            EXPECT_EQ(outcome, line.outcome) << error.description().toStdString();
            continue;
        }
        EXPECT_EQ(outcome, line.outcome);
    }
    EXPECT_TRUE(db.check().isEmpty());
    basic::setClock({});
}

TEST(Dialect, everyTreeWrittenBackParsesToTheSameTree)
{
    int parsed = 0;
    for (const Line &line : readLines()) {
        SCOPED_TRACE("dialecto.txt:" + std::to_string(line.number));
        const QString statement = line.category == "consulta" ? line.outcome : line.statement;
        dao::Statement tree;
        if (!basic::ignoring({dao::Error::SyntaxError}, [&] { tree = dao::parseStatement(statement); })) {
            EXPECT_EQ(line.outcome, "ERROR:3075");
            continue;
        }
        const QString text = dao::toText(tree);
        SCOPED_TRACE(text.toStdString());
        EXPECT_TRUE(dao::sameStatement(tree, dao::parseStatement(text)));
        ++parsed;
    }
    EXPECT_GT(parsed, 150);
}

TEST_F(DaoTest, valuesBecomeParametersOfOneStatement)
{
    run({"CREATE TABLE T (a LONG, b TEXT(10), c CURRENCY)"});
    const auto first = dao::translate(db, "Select a from T where b = 'x' and c > 1.5 and a <> 3");
    const auto second = dao::translate(db, "Select A from [t] where B = 'y''z' and C > 20 and a <> -3");
    EXPECT_NE(first.engineSql, second.engineSql) << "a minus is an operator";
    const auto third = dao::translate(db, "Select A from [t] where B = 'y''z' and C > 20 and a <> 4");
    EXPECT_EQ(first.engineSql, third.engineSql);
    EXPECT_EQ(third.parameters,
              (std::vector<basic::Value>{u"y'z", basic::Currency::fromDouble(20), qint64(4)}));
    EXPECT_EQ(errorOf([&] { dao::translate(db, "Select a from T where b = "); }), dao::Error::SyntaxError);
}

/// A statement deeper than the stack is refused, whatever it is made of.
TEST_F(DaoTest, aStatementWithoutEndIsRefusedAndNotFollowed)
{
    run({"CREATE TABLE T (n LONG, t TEXT(10))"});
    constexpr int times = 20000;
    const auto repeated = [](const char *text) { return QString(text).repeated(times); };
    const QStringList endless{
        "Select n from T where n = 1" + repeated(" + 1"),
        "Select n from T where n = 1" + repeated(" or n = 1"),
        "Select n from T where t = 'a'" + repeated(" & 'b'"),
        "Select n from T where n is null" + repeated(" is null"),
        "Select n from T where n between 1 and 2" + repeated(" between 1 and 2"),
        "Select n from T where t like 'a'" + repeated(" like 'b'"),
        "Select n from T where n in (1)" + repeated(" in (1)"),
        "Select n from T where n = 1" + repeated(" = 1"),
        "Select n from T where n = 2" + repeated(" ^ 2"),
        "Select n from T where " + repeated("not ") + "n = 1",
        "Select n from T where n = " + repeated("- ") + "1",
        "Select n from T where " + repeated("(") + "n = 1" + repeated(")"),
        "Select " + repeated("abs(") + "n" + repeated(")") + " from T",
        "Select n from T where n in " + repeated("(Select n from T where n in ") + "(1)" + repeated(")"),
        "Select n from " + repeated("(") + "T" + repeated(")"),
        "Select T.n from T" + repeated(" inner join T as u on T.n = u.n"),
        "Select n from T" + repeated(", T"),
        "Select n from T" + repeated(" union Select n from T"),
    };
    for (const QString &sql : endless)
        EXPECT_NE(errorOf([&] { db.openRecordset(sql); }), 0) << sql.left(60).toStdString();
    EXPECT_EQ(
        db.openRecordset("Select n from T where n in (1" + QString(", 2").repeated(3000) + ")").rowCount(),
        0);
}
