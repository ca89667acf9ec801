#include "fixture.h"

using basic::Value;
using dao::Error;
using dao::FieldType;

namespace
{

class TypesTest : public DaoTest
{
protected:
    void SetUp() override
    {
        DaoTest::SetUp();
        run({"CREATE TABLE Todo (Id COUNTER, L Long, I INTEGER, D DOUBLE, C Currency, T TEXT (8), M MEMO, B BIT, F DATE, "
             "H TIME)"});
    }

    Value stored(const char16_t *field, const Value &value)
    {
        auto rs = db.openRecordset("Todo");
        rs.addNew();
        rs[field] = value;
        rs.update();
        rs.setBookmark(rs.lastModified());
        return rs[field].value();
    }
    int refusal(const char16_t *field, const Value &value)
    {
        return errorOf([&] { stored(field, value); });
    }
};

} // namespace

TEST_F(TypesTest, valuesComeBackAsTheyWentIn)
{
    const basic::Date moment(QDate(2024, 2, 29), QTime(23, 59, 59));
    EXPECT_EQ(stored(u"L", qint64(-2147483648)), Value(qint64(-2147483648)));
    EXPECT_EQ(stored(u"D", 0.1), Value(0.1));
    EXPECT_EQ(stored(u"C", basic::Currency::fromUnits(-9'007'199'254'740'993)),
              Value(basic::Currency::fromUnits(-9'007'199'254'740'993)));
    EXPECT_EQ(stored(u"T", u"ñandú ¡…"), Value(u"ñandú ¡…"));
    EXPECT_EQ(stored(u"M", QString(70000, u'ñ')), Value(QString(70000, u'ñ')));
    EXPECT_EQ(stored(u"B", true), Value(true));
    EXPECT_EQ(stored(u"B", -1), Value(true));
    EXPECT_EQ(stored(u"F", moment), Value(moment));
    EXPECT_EQ(stored(u"F", QDate(1899, 12, 25)), Value(QDate(1899, 12, 25)));
    EXPECT_EQ(stored(u"H", basic::Date(QTime(10, 30))), Value(basic::Date(QTime(10, 30))));
    EXPECT_EQ(stored(u"T", u""), Value(u""));
    EXPECT_EQ(stored(u"T", basic::Null()), Value(basic::Null()));
    EXPECT_EQ(stored(u"T", Value()), Value(basic::Null()));
    EXPECT_EQ(stored(u"B", basic::Null()), Value(false));
}

TEST_F(TypesTest, otherKindsAreConvertedOrRefused)
{
    EXPECT_EQ(stored(u"L", u"1.234"), Value(qint64(1234)));
    EXPECT_EQ(stored(u"L", 2.5), Value(qint64(2)));
    EXPECT_EQ(stored(u"C", u"12,3456"), Value(basic::Currency::fromUnits(123456)));
    EXPECT_EQ(stored(u"T", 1.5), Value(u"1,5"));
    EXPECT_EQ(stored(u"F", u"15/03/2024 10:30"), Value(basic::Date(QDate(2024, 3, 15), QTime(10, 30))));
    EXPECT_EQ(stored(u"H", u"9:05"), Value(basic::Date(QTime(9, 5))));
    EXPECT_EQ(refusal(u"L", u"doce"), Error::TypeMismatch);
    EXPECT_EQ(refusal(u"L", u""), Error::TypeMismatch);
    EXPECT_EQ(refusal(u"F", u"31/02/2024"), Error::TypeMismatch);
    EXPECT_EQ(refusal(u"L", 2147483648.0), Error::ValueOutOfRange);
    EXPECT_EQ(refusal(u"I", 32768), Error::ValueOutOfRange);
    EXPECT_EQ(refusal(u"C", 1e15), Error::ValueOutOfRange);
    EXPECT_EQ(refusal(u"T", u"ñandúes!!"), Error::TextTooLong);
    EXPECT_EQ(refusal(u"T", u"ñandúes!"), 0) << "characters count, not bytes";
    EXPECT_EQ(refusal(u"Id", 5), Error::QueryNotUpdatable);
}

TEST_F(TypesTest, moneyHasNoBinaryDrift)
{
    db.beginTrans();
    for (int i = 0; i < 1000; ++i)
        db.execute("INSERT INTO Todo (C) VALUES (0.1)");
    db.commitTrans();
    EXPECT_EQ(one("Select sum(C) from Todo"), Value(basic::Currency::fromUnits(1000000)));
    EXPECT_EQ(one("Select sum(C) from Todo where C = 0.1"), Value(basic::Currency::fromUnits(1000000)));
    EXPECT_EQ(one("Select sum(C * 3) - 0.0001 from Todo"), Value(basic::Currency::fromUnits(2999999)));
    EXPECT_EQ(one("Select count(*) from Todo where C < 0.10001 and C > 0.09999"), Value(qint64(1000)));
}

TEST_F(TypesTest, tableDefsSpeakTheDialect)
{
    const dao::TableDef def = db.tableDef(u"todo");
    EXPECT_EQ(def.name(), "Todo");
    const std::vector<dao::FieldDef> expected{{"Id", FieldType::Counter, 4}, {"L", FieldType::Long, 4},
                                              {"I", FieldType::Integer, 2},  {"D", FieldType::Double, 8},
                                              {"C", FieldType::Currency, 8}, {"T", FieldType::Text, 8},
                                              {"M", FieldType::Memo, 0},     {"B", FieldType::Bit, 1},
                                              {"F", FieldType::Date, 8},     {"H", FieldType::Time, 8}};
    EXPECT_EQ(def.fields(), expected);
    EXPECT_TRUE(def.updatable());
    EXPECT_EQ(errorOf([&] { db.tableDef(u"nada"); }), Error::ItemNotFound);
}

TEST_F(DaoTest, structureChangesAreSeenAndKept)
{
    run({"CREATE TABLE Caja (Fecha DATE, Detalle TEXT(20))", "CREATE INDEX Fecha ON Caja (Fecha)",
         "INSERT INTO Caja (Detalle) VALUES ('uno')", "INSERT INTO Caja (Detalle) VALUES ('dos')",
         "INSERT INTO Caja (Detalle) VALUES ('tres')", "Delete * from Caja where Detalle = 'dos'"});
    openOther();
    EXPECT_EQ(other.tableDef(u"Caja").fields().size(), 2u);
    db.execute("ALTER TABLE CAJA ADD COLUMN idCaja COUNTER");
    EXPECT_EQ(all("Select Detalle, idCaja from Caja"), "uno,1|tres,2") << "rows that exist are numbered";
    EXPECT_EQ(db.tableDef(u"Caja").fields().back().name, "idCaja");
    EXPECT_NE(db.tableDef(u"Caja").index(u"fecha"), nullptr);
    EXPECT_EQ(errorOf([&] { other.execute("ALTER TABLE CAJA ADD COLUMN idCaja COUNTER"); }),
              Error::FieldExists)
        << "what another station did first has taken effect";
    other.execute("INSERT INTO Caja (Detalle) VALUES ('cuatro')");
    run({"Delete * from Caja where idCaja = 3", "INSERT INTO Caja (Detalle) VALUES ('cinco')"});
    EXPECT_EQ(one("Select max(idCaja) from Caja").integer(), 4) << "a number is never given twice";

    dao::TableDef def = db.tableDef(u"caja");
    def.append({"Cuenta", FieldType::Text, 20});
    EXPECT_EQ(def.field(u"CUENTA")->size, 20);
    EXPECT_EQ(errorOf([&] { def.append({"cuenta", FieldType::Long, 4}); }), Error::FieldExists);
    def.deleteField(u"Cuenta");
    EXPECT_EQ(def.field(u"Cuenta"), nullptr);
    EXPECT_EQ(errorOf([&] { def.deleteField(u"Cuenta"); }), Error::FieldNotFound);
    db.execute("ALTER TABLE Caja DROP COLUMN idCaja");
    EXPECT_EQ(all("Select * from Caja"), "<Null>,uno|<Null>,tres|<Null>,cinco");

    run({"CREATE UNIQUE INDEX idX ON Caja (Detalle) WITH PRIMARY"});
    EXPECT_TRUE(db.tableDef(u"Caja").index(u"IDX")->primary);
    EXPECT_EQ(errorOf([&] { db.execute("CREATE UNIQUE INDEX Y ON Caja (Fecha) WITH PRIMARY"); }),
              Error::IndexExists);
    EXPECT_EQ(db.tableNames(), QStringList{"Caja"});
    EXPECT_TRUE(db.check().isEmpty());
}

TEST_F(DaoTest, aBatchCommitsAsItGoes)
{
    run({"CREATE TABLE T (n LONG)"});
    openOther();
    const auto seen = [&] { return other.openRecordset("Select count(*) from T").value(0).integer(); };
    db.beginTrans(10);
    db.beginTrans();
    for (int i = 0; i < 25; ++i)
        db.execute("INSERT INTO T VALUES (1)");
    db.commitTrans();
    EXPECT_EQ(seen(), 20);
    EXPECT_EQ(one("Select count(*) from T").integer(), 25);
    EXPECT_EQ(errorOf([&] { db.execute("INSERT INTO T VALUES (99999999999)"); }), Error::ValueOutOfRange);
    db.commitTrans();
    EXPECT_EQ(seen(), 25);
    EXPECT_NE(errorOf([&] { db.commitTrans(); }), 0);
    db.beginTrans();
    db.execute("INSERT INTO T VALUES (1)");
    db.close();
    EXPECT_EQ(seen(), 26) << "closing commits what a batch holds";
}
