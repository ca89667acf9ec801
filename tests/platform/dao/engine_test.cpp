#include "fixture.h"

#include "platform/basic/runtime.h"
#include "platform/dao/dialect/functions.h"

#include <QElapsedTimer>

#include <algorithm>

using dao::Error;

TEST_F(DaoTest, nullsComeBeforeEverythingInEveryKindOfRows)
{
    run({"CREATE TABLE T (n LONG, Nombre TEXT(20))", "CREATE INDEX Orden ON T (Nombre)",
         "INSERT INTO T VALUES (1, 'b')", "INSERT INTO T (n) VALUES (2)", "INSERT INTO T VALUES (3, '')",
         "INSERT INTO T VALUES (4, 'a')", "INSERT INTO T (n) VALUES (5)"});
    const auto numbers = [](dao::Recordset rs, bool backwards) {
        QStringList found;
        for (backwards ? rs.moveLast() : rs.moveFirst(); !(backwards ? rs.bof() : rs.eof());
             backwards ? rs.movePrevious() : rs.moveNext())
            found << rs[u"n"].text();
        return found.join(',');
    };
    const auto indexed = [&](bool backwards) {
        auto rs = db.openRecordset("T");
        rs.setIndex(u"Orden");
        return numbers(std::move(rs), backwards);
    };
    EXPECT_EQ(indexed(false), "2,5,3,4,1");
    EXPECT_EQ(indexed(true), "1,4,3,5,2");
    for (const auto kind : {dao::Recordset::Kind::Dynaset, dao::Recordset::Kind::Snapshot}) {
        EXPECT_EQ(numbers(db.openRecordset("Select n from T order by Nombre, n", kind), false), "2,5,3,4,1");
        EXPECT_EQ(numbers(db.openRecordset("Select n from T order by Nombre desc, n desc", kind), false),
                  "1,4,3,5,2");
        EXPECT_EQ(numbers(db.openRecordset("Select n from T order by left(Nombre, 1), n", kind), true),
                  "1,4,3,5,2");
        auto rs = db.openRecordset("Select n, Nombre from T order by Nombre desc, n desc", kind);
        rs.findLast("n > 0");
        EXPECT_EQ(rs[u"n"].integer(), 2);
    }
    EXPECT_EQ(all("Select Nombre, count(*) from T group by Nombre order by Nombre"), "<Null>,2|,1|a,1|b,1");
    EXPECT_EQ(all("Select n from T where n < 3 union Select null from T order by 1"), "<Null>|1|2");
}

TEST_F(DaoTest, aStepOfABatchThatFailsIsUndoneAlone)
{
    run({"CREATE TABLE T (n LONG, Corto TEXT(3), Largo TEXT(10))", "CREATE TABLE Otra (n LONG)"});
    openOther();
    {
        dao::Batch batch(db);
        for (int i = 1; i <= 5; ++i)
            db.execute(QString("INSERT INTO T (n, Largo) VALUES (%1, '%2')").arg(i).arg(QString(i, u'x')));
        // Each of these has changed rows when it meets the one that does not fit.
        EXPECT_EQ(errorOf([&] { db.execute("UPDATE T SET Corto = Largo & ''"); }), Error::TextTooLong);
        EXPECT_EQ(errorOf([&] { db.execute("INSERT INTO Otra Select n * 500000000 from T order by n"); }),
                  Error::ValueOutOfRange);
        EXPECT_EQ(one("Select count(*) from T where Corto is not null").integer(), 0);
        EXPECT_EQ(one("Select count(*) from Otra").integer(), 0);
        // A change of structure that cannot be made leaves the structure as it was.
        db.execute("INSERT INTO T (n) VALUES (1)");
        EXPECT_EQ(errorOf([&] { db.execute("CREATE UNIQUE INDEX N ON T (n)"); }), Error::DuplicateKey);
        db.execute("ALTER TABLE Otra ADD COLUMN Detalle TEXT(5)");
        EXPECT_EQ(errorOf([&] { db.execute("ALTER TABLE Otra ADD COLUMN Detalle LONG"); }),
                  Error::FieldExists);
        db.execute("INSERT INTO Otra VALUES (9, 'queda')");
        EXPECT_EQ(other.openRecordset("Select count(*) from T").value(0).integer(), 0);
        batch.commit();
    }
    EXPECT_EQ(other.openRecordset("Select count(*) from T").value(0).integer(), 6);
    EXPECT_EQ(all("Select * from Otra"), "9,queda");
    EXPECT_EQ(db.tableDef(u"T").index(u"N"), nullptr);
    EXPECT_TRUE(db.check().isEmpty());
}

TEST_F(DaoTest, aBatchThatAnErrorLeavesKeepsWhatWasWrittenBefore)
{
    run({"CREATE TABLE T (n LONG)"});
    openOther();
    other.setPatience(300);
    const auto seen = [&] { return other.openRecordset("Select count(*) from T").value(0).integer(); };
    try {
        dao::Batch outer(db);
        db.execute("INSERT INTO T VALUES (1)");
        {
            dao::Batch inner(db);
            db.execute("INSERT INTO T VALUES (2)");
            inner.commit();
        }
        EXPECT_EQ(seen(), 0) << "the outermost commits";
        QElapsedTimer waiting;
        waiting.start();
        EXPECT_EQ(errorOf([&] { other.execute("INSERT INTO T VALUES (3)"); }), Error::Locked);
        EXPECT_GE(waiting.elapsed(), 280);
        EXPECT_LT(waiting.elapsed(), 580) << "waiting for a turn and for the file is one wait";
        db.execute("INSERT INTO T VALUES (99999999999)");
        FAIL();
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), Error::ValueOutOfRange);
    }
    EXPECT_EQ(seen(), 2);
    other.execute("INSERT INTO T VALUES (3)");
    {
        dao::Batch lookingOnly(db);
        EXPECT_EQ(one("Select count(*) from T").integer(), 3);
        other.execute("INSERT INTO T VALUES (4)"); // a batch that has not written holds nobody up
        lookingOnly.commit();
    }
    {
        dao::Batch job(db, dao::Batch::Long);
        for (int i = 0; i < 2500; ++i)
            db.execute("INSERT INTO T VALUES (5)");
        EXPECT_EQ(seen(), 2004);
        job.commit();
    }
    EXPECT_EQ(seen(), 2504);
}

TEST_F(DaoTest, theEngineKnowsEveryFunctionOfTheDialect)
{
    run({"CREATE TABLE T (n LONG, f DATE, t TEXT(20))", "INSERT INTO T VALUES (1, #1/2/2024#, '1')"});
    for (const dao::FunctionDef &function : dao::functions()) {
        QStringList operands;
        for (int i = 0; i < function.fewest; ++i)
            operands << (function.takes == dao::Takes::Date ? "f" : "n");
        if (function.name.startsWith(u"Date") && function.fewest == 3)
            operands = function.name == u"DateSerial" ? QStringList{"n", "n", "n"}
                       : function.name == u"DateAdd"  ? QStringList{"'d'", "n", "f"}
                                                      : QStringList{"'d'", "f", "f"};
        if (function.name == u"IIf")
            operands[0] = "n = 1";
        if (function.name == u"Left" || function.name == u"Right" || function.name == u"Mid")
            operands[0] = "t";
        const QString sql =
            QString("Select %1(%2) from T").arg(function.name.toString(), operands.join(", "));
        EXPECT_EQ(errorOf([&] { EXPECT_EQ(db.openRecordset(sql).rowCount(), 1); }), 0) << sql.toStdString();
    }
}

/// Whatever numbers and texts a function meets, it gives a value or an error of its own; the sanitizers look
/// on.
TEST_F(DaoTest, aYearOrAMonthIsReadAsARangeOfDates)
{
    run({"CREATE TABLE T (n LONG, Fecha DATE)", "CREATE INDEX Fecha ON T (Fecha)",
         "INSERT INTO T VALUES (1, #2/29/2024 23:59:59#)", "INSERT INTO T VALUES (2, #3/1/2024#)",
         "INSERT INTO T VALUES (3, #3/31/2024 23:59:59#)", "INSERT INTO T VALUES (4, #4/1/2024#)",
         "INSERT INTO T VALUES (5, #12/31/2023 12:00#)", "INSERT INTO T (n) VALUES (6)",
         "INSERT INTO T VALUES (7, #3/5/1899#)"});
    EXPECT_EQ(all("Select n from T where month(fecha) = 3 and year(fecha) = 2024 order by n"), "2|3");
    EXPECT_EQ(all("Select n from T where 2024 = YEAR(T.Fecha) and n > 1 order by n"), "2|3|4");
    EXPECT_EQ(all("Select n from T where year(fecha) = 2023 or month(fecha) = 4 order by n"), "4|5");
    EXPECT_EQ(all("Select n from T where not (year(fecha) = 2024) order by n"), "5|7");
    EXPECT_EQ(all("Select n from T where year(fecha) = 1899"), "7");
    EXPECT_EQ(all("Select n from T where year(fecha) = 2024 and month(fecha) = 13"), "");
    EXPECT_EQ(all("Select n from T as a where year(a.fecha) = 2024 and month(a.fecha) = 2"), "1");
    EXPECT_EQ(all("Select count(*) from T where year(fecha) = 2024 and year(fecha) = 2023"), "0");
    // The plain condition alone cannot be looked up in an index.
    EXPECT_TRUE(dao::translate(db, "Select n from T where year(fecha) = 2024").engineSql.contains(">="));
    EXPECT_FALSE(
        dao::translate(db, "Select n from T where year(fecha) = 2024 or n = 1").engineSql.contains(">="));
}

TEST_F(DaoTest, noFunctionIsTakenOutOfItsBounds)
{
    run({"CREATE TABLE T (n DOUBLE, f DATE, t TEXT(20), m CURRENCY)"});
    auto rows = db.openRecordset("T");
    for (const double number : {1e300, -1e300, 9.3e18, -9.3e18, 3e9, -3e9, 0.0, -0.5}) {
        rows.addNew();
        rows[u"n"] = number;
        rows[u"f"] = basic::Date::fromSerial(number);
        rows[u"t"] = basic::format(number, u"0").left(20);
        rows[u"m"] = basic::Currency::fromDouble(std::clamp(number, -9e14, 9e14));
        rows.update();
    }
    rows.addNew();
    rows.update();
    const QStringList columns{"n", "f", "t", "m", "'yyyy'", "'h'", "'q'", QString(400, u'9')};
    int answers = 0;
    const auto ask = [&](const QString &expression) {
        for (const char *row : {"n > 1e200", "n < -1e200", "n > 1e18 and n < 1e19", "n < -1e18 and n > -1e19",
                                "n = 3000000000.0", "n = 0", "n is null"}) {
            answers += errorOf([&] { all(QString("Select %1 from T where %2").arg(expression, row)); }) == 0;
        }
    };
    for (const dao::FunctionDef &function : dao::functions()) {
        const QString call = function.name.toString() + "(%1)";
        for (const QString &a : columns) {
            if (function.fewest <= 1)
                ask(call.arg(a));
            for (const QString &b : columns) {
                if (function.fewest <= 2 && function.most >= 2)
                    ask(call.arg(a + ", " + b));
                if (function.most >= 3)
                    ask(call.arg(a + ", " + b + ", n"));
                if (function.most >= 3)
                    ask(call.arg(a + ", " + b + ", f"));
            }
        }
    }
    for (const char *sign : {"+", "-", "*", "/", "\\", "mod", "^", "&", "=", "<"}) {
        for (const QString &a : columns)
            for (const QString &b : columns)
                ask(QString("%1 %2 %3").arg(a, sign, b));
    }
    EXPECT_GT(answers, 1000);
    EXPECT_EQ(all("Select dateserial(n, 1, 1) from T where n > 1e200"), "31/12/9999");
    EXPECT_EQ(all("Select dateadd('yyyy', n, #1/1/2024#) from T where n > 1e200"), "31/12/9999");
    EXPECT_EQ(all("Select instr(n, 'abc', 'c') from T where n < -1e200"), "3");
}

TEST_F(DaoTest, tablesWithoutColumnsToFillGiveTheirKeysToo)
{
    run({"CREATE TABLE Solo (id COUNTER)", "CREATE TABLE Sin (Nombre TEXT(10))"});
    for (const char *table : {"Solo", "Sin"}) {
        for (const auto kind : {dao::Recordset::Kind::Table, dao::Recordset::Kind::Dynaset}) {
            auto rs = db.openRecordset(table, kind);
            rs.addNew();
            rs.update();
            rs.addNew();
            rs.update();
            const auto last = rs.lastModified();
            rs.setBookmark(last);
            EXPECT_EQ(rs.bookmark(), last);
        }
    }
    EXPECT_EQ(all("Select id from Solo"), "1|2|3|4");
    EXPECT_EQ(all("Select count(*) from Sin"), "4");
}
