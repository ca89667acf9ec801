#include "fixture.h"

#include "platform/dao/embedded/embeddedengine.h"

#include <set>

using dao::Error;
using dao::Recordset;
using namespace Qt::StringLiterals;

namespace
{

class RecordsetTest : public DaoTest
{
protected:
    void SetUp() override
    {
        DaoTest::SetUp();
        run({"CREATE TABLE Pacientes (Numero LONG, [Apellido y Nombres] TEXT(50), Sexo TEXT(10), FechaBaja DATE, "
             "Peso DOUBLE, Saldo CURRENCY, Activo BIT, Notas MEMO)",
             "CREATE UNIQUE INDEX PrimaryKey ON Pacientes (Numero) WITH PRIMARY",
             "CREATE INDEX Nombre ON Pacientes ([Apellido y Nombres])",
             "CREATE INDEX SexoNombre ON Pacientes (Sexo, [Apellido y Nombres])",
             "CREATE TABLE Consulta (idConsulta COUNTER, paciente LONG, Motivo TEXT(40))",
             "CREATE INDEX paciente ON Consulta (paciente)"});
        auto rs = db.openRecordset("Pacientes");
        const char *names[] = {"Pérez, Ana", "Nuñez, Luis", "Nuzco, Eva", "Alonso, José", "Zárate, Mía"};
        for (int i = 0; i < 5; ++i) {
            rs.addNew();
            rs[u"Numero"] = (i + 1) * 10;
            rs[u"apellido y NOMBRES"] = names[i];
            rs[u"Sexo"] = i % 2 ? "VARON" : "MUJER";
            rs.update();
        }
        openOther();
    }

    /// One recordset over the five patients in the order of their numbers, of any kind.
    Recordset openKind(const QString &kind)
    {
        if (kind == "tabla") {
            auto rs = db.openRecordset("Pacientes");
            rs.setIndex(u"primarykey");
            rs.moveFirst();
            return rs;
        }
        if (kind == "dynaset")
            return db.openRecordset("Select * from Pacientes order by Numero");
        if (kind == "join")
            return db.openRecordset(
                "Select Pacientes.*, Consulta.Motivo from Pacientes LEFT JOIN Consulta ON "
                "Pacientes.Numero = Consulta.paciente order by Pacientes.Numero");
        if (kind == "snapshot")
            return db.openRecordset("Select * from Pacientes order by Numero", Recordset::Kind::Snapshot);
        return db.openRecordset("Select Numero, [Apellido y Nombres], count(*) from Pacientes "
                                "group by Numero, [Apellido y Nombres] order by Numero");
    }
};

QString numbers(Recordset &rs)
{
    QStringList list;
    for (; !rs.eof(); rs.moveNext())
        list << rs[u"numero"].text();
    return list.join(' ');
}

class EveryKind : public RecordsetTest, public testing::WithParamInterface<const char *>
{
};

} // namespace

TEST_P(EveryKind, movesOverAllRowsInBothDirections)
{
    auto rs = openKind(GetParam());
    EXPECT_FALSE(rs.bof());
    EXPECT_GT(rs.recordCount(), 0);
    EXPECT_EQ(numbers(rs), "10 20 30 40 50");
    EXPECT_TRUE(rs.eof());
    EXPECT_EQ(errorOf([&] { rs.moveNext(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { rs[u"Numero"].value(); }), Error::NoCurrentRecord);
    rs.moveLast();
    EXPECT_EQ(rs.recordCount(), 5);
    EXPECT_EQ(rs.absolutePosition(), 4);
    QStringList back;
    for (; !rs.bof(); rs.movePrevious())
        back << rs[u"Numero"].text();
    EXPECT_EQ(back.join(' '), "50 40 30 20 10");
    EXPECT_EQ(errorOf([&] { rs.movePrevious(); }), Error::NoCurrentRecord);
    rs.moveNext();
    EXPECT_EQ(rs[u"Numero"].integer(), 10);
    rs.move(3);
    EXPECT_EQ(rs[u"Numero"].integer(), 40);
    const auto mark = rs.bookmark();
    rs.setAbsolutePosition(1);
    EXPECT_EQ(rs[1].text(), u"Nuñez, Luis"_s);
    rs.setBookmark(mark);
    EXPECT_EQ(rs[u"Numero"].integer(), 40);
    EXPECT_EQ(rs.valueAt(2, 0).integer(), 30);
    EXPECT_EQ(rs[u"Numero"].integer(), 40) << "random access leaves the position";
    EXPECT_EQ(errorOf([&] { rs[u"Inexistente"]; }), Error::ItemNotFound);
    rs.close();
    EXPECT_EQ(errorOf([&] { rs.moveFirst(); }), Error::Closed);
}

TEST_P(EveryKind, staysOnItsFeetWhenAnotherStationAddsAndDeletes)
{
    auto rs = openKind(GetParam());
    const bool live =
        QString(GetParam()) == "tabla" || QString(GetParam()) == "dynaset" || QString(GetParam()) == "join";
    EXPECT_EQ(rs[u"Numero"].integer(), 10);
    EXPECT_EQ(other.execute("Delete * from Pacientes where Numero = 10 or Numero = 30"), 2);
    other.execute("INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (35, 'Intruso')");
    if (live) {
        EXPECT_EQ(errorOf([&] { rs[u"Numero"].value(); }), Error::RecordDeleted);
        EXPECT_EQ(errorOf([&] { rs[u"Sexo"].value(); }), Error::RecordDeleted);
    } else {
        EXPECT_EQ(rs[u"Numero"].integer(), 10);
    }
    rs.moveNext();
    EXPECT_EQ(rs[u"Numero"].integer(), 20);
    rs.moveNext();
    if (QString(GetParam()) == "tabla")
        EXPECT_EQ(numbers(rs), "35 40 50") << "a table shows what there is";
    else if (live)
        EXPECT_EQ(errorOf([&] { rs[u"Numero"].value(); }), Error::RecordDeleted)
            << "a dynaset keeps its rows";
    else
        EXPECT_EQ(numbers(rs), "30 40 50");
    rs.requery();
    EXPECT_EQ(numbers(rs), "20 35 40 50");
}

TEST_P(EveryKind, editsAndDeletesWhereItMay)
{
    auto rs = openKind(GetParam());
    if (!rs.updatable()) {
        EXPECT_EQ(errorOf([&] { rs.addNew(); }), Error::ReadOnly);
        EXPECT_EQ(errorOf([&] { rs.deleteRow(); }), Error::ReadOnly);
        return;
    }
    EXPECT_EQ(errorOf([&] { rs[u"Sexo"] = "X"; }), Error::NoEditOpen);
    rs.moveNext();
    other.execute("UPDATE Pacientes SET Notas = 'de la secretaria' where Numero = 20");
    rs.edit();
    rs[u"Sexo"] = "OTRO";
    EXPECT_EQ(rs[u"Sexo"].text(), "OTRO");
    rs.update();
    EXPECT_EQ(one("Select Notas from Pacientes where Numero = 20").text(), "de la secretaria")
        << "only the changed column is written";
    rs.edit();
    rs[u"Sexo"] = "perdido";
    rs.moveNext();
    rs.movePrevious();
    EXPECT_EQ(rs[u"Sexo"].text(), "OTRO") << "moving gives an open edit up";

    rs.moveFirst();
    rs.moveNext();
    rs.deleteRow();
    EXPECT_EQ(errorOf([&] { rs[u"Sexo"].value(); }), Error::RecordDeleted);
    rs.moveNext();
    EXPECT_EQ(rs[u"Numero"].integer(), 30);
    rs.movePrevious();
    EXPECT_EQ(rs[u"Numero"].integer(), 10);
    rs.addNew();
    rs[u"Numero"] = 60;
    EXPECT_TRUE(rs[u"Sexo"].isNull());
    EXPECT_FALSE(rs[u"Activo"].truth());
    rs.update();
    EXPECT_EQ(rs[u"Numero"].integer(), 10) << "the current row stays";
    rs.setBookmark(rs.lastModified());
    EXPECT_EQ(rs[u"Numero"].integer(), 60);
    rs.addNew();
    rs[u"Numero"] = 60;
    EXPECT_EQ(errorOf([&] { rs.update(); }), Error::DuplicateKey);
    EXPECT_EQ(rs.editMode(), Recordset::EditMode::Add) << "the open row survives the failure";
    rs[u"Numero"] = 61;
    rs.update();
    rs.addNew();
    EXPECT_EQ(errorOf([&] { rs.update(); }), Error::NullKey);
    rs.cancelUpdate();
    while (!rs.eof())
        rs.moveNext();
    rs.moveLast();
    EXPECT_EQ(rs[u"Numero"].integer(), 61);
    EXPECT_EQ(rs.recordCount(), 6);
}

INSTANTIATE_TEST_SUITE_P(Recordset, EveryKind,
                         testing::Values("tabla", "dynaset", "join", "snapshot", "agrupado"));

TEST_F(RecordsetTest, findMovesByCriteriaOfTheDialect)
{
    for (const char *kind : {"dynaset", "join", "snapshot", "agrupado"}) {
        SCOPED_TRACE(kind);
        auto rs = openKind(kind);
        rs.findFirst("[Apellido y Nombres] LIKE '*nu*'");
        EXPECT_EQ(rs[u"Numero"].integer(), 20);
        rs.findNext("[apellido y nombres] LIKE '*NU*'");
        EXPECT_EQ(rs[u"Numero"].integer(), 30);
        rs.findNext("[Apellido y Nombres] LIKE '*nu*'");
        EXPECT_TRUE(rs.noMatch());
        EXPECT_EQ(rs[u"Numero"].integer(), 30) << "the position stays on no match";
        rs.findLast("Numero < 45");
        EXPECT_EQ(rs[u"Numero"].integer(), 40);
        rs.findPrevious("Numero < 45 and Numero <> 30");
        EXPECT_EQ(rs[u"Numero"].integer(), 20);
        EXPECT_EQ(errorOf([&] { rs.findFirst("Numero = "); }), Error::SyntaxError);
        EXPECT_EQ(errorOf([&] { rs.findFirst("Nombre = 'x'"); }), Error::BadParameters);
    }
}

TEST_F(RecordsetTest, seekComparesWithCompositeKeysAndNulls)
{
    db.execute("INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (5, 'Sin Sexo')");
    auto rs = db.openRecordset("Pacientes");
    EXPECT_EQ(errorOf([&] { rs.seek(u"=", 10); }), Error::NoIndexSet);
    rs.setIndex(u"sexoNOMBRE");
    EXPECT_EQ(numbers(rs), "5 30 10 50 40 20") << "Nulls first, then by the two columns";
    const auto sought = [&](const char16_t *comparison, std::vector<basic::Value> key) {
        rs.seek(comparison, key);
        return rs.noMatch() ? 0 : rs[u"Numero"].integer();
    };
    EXPECT_EQ(sought(u"=", {"varon", u"NUÑEZ, luis"_s}), 20);
    EXPECT_EQ(sought(u"=", {"varon", "Nunez, Luis"}), 0) << "ñ is a letter of its own";
    EXPECT_EQ(sought(u"=", {"VARON"}), 40);
    EXPECT_EQ(sought(u">=", {"MUJER", "P"}), 10);
    EXPECT_EQ(sought(u">", {"MUJER", u"Zárate, Mía"_s}), 40);
    EXPECT_EQ(sought(u">", {"VARON"}), 0);
    EXPECT_EQ(sought(u"<", {"MUJER", "Nuzco, Eva"}), 5);
    EXPECT_EQ(sought(u"<=", {"MUJER", "Q"}), 10);
    EXPECT_EQ(sought(u"<", {"VARON"}), 50);
    EXPECT_EQ(sought(u"<=", {basic::Null()}), 5);
    EXPECT_EQ(sought(u"=", {basic::Null()}), 5);
    rs.seek(u"=", "MUJER");
    rs.moveNext();
    EXPECT_EQ(rs[u"Numero"].integer(), 10);
    rs.movePrevious();
    rs.movePrevious();
    EXPECT_EQ(rs[u"Numero"].integer(), 5);
    rs.setIndex(u"PrimaryKey");
    EXPECT_EQ(errorOf([&] { rs.seek(u"=", "x"); }), Error::TypeMismatch);
}

TEST_F(RecordsetTest, joinIsEditedByTableAndDeletedOnTheManySide)
{
    run({"INSERT INTO Consulta (paciente, Motivo) VALUES (10, 'Control')",
         "INSERT INTO Consulta (paciente, Motivo) VALUES (10, 'Fiebre')",
         "INSERT INTO Consulta (paciente, Motivo) VALUES (999, 'Sin ficha')"});
    auto rs =
        db.openRecordset("SELECT Pacientes.Numero, Pacientes.Notas, Consulta.Motivo, Consulta.idConsulta "
                         "FROM Pacientes RIGHT JOIN Consulta ON Pacientes.Numero = Consulta.paciente");
    rs.moveLast();
    EXPECT_EQ(rs.recordCount(), 3);
    EXPECT_TRUE(rs[u"Numero"].isNull());
    rs.findFirst("Motivo = 'Fiebre'");
    rs.edit();
    rs[u"Motivo"] = "Tos";
    rs[u"Notas"] = "vista";
    rs.update();
    EXPECT_EQ(one("Select Motivo from Consulta where idConsulta = 2").text(), "Tos");
    EXPECT_EQ(one("Select Notas from Pacientes where Numero = 10").text(), "vista");
    rs.deleteRow();
    EXPECT_EQ(all("Select Motivo from Consulta order by idConsulta"), "Control|Sin ficha");
    EXPECT_EQ(one("Select count(*) from Pacientes").integer(), 5);
}

/// What other programs have left in a file: texts that are none, and those that differ in what nobody sees.
TEST_F(RecordsetTest, aWalkByIndexComesToItsEndWhateverTheTextsAre)
{
    run({"CREATE TABLE Raros (Nombre TEXT(20))", "CREATE INDEX Nombre ON Raros (Nombre)"});
    const std::vector<QByteArray> texts{"Ana",
                                        QByteArray("Ana\0", 4),
                                        "\xEF\xBB\xBF"
                                        "Ana",
                                        "\xFF\xFE",
                                        "\xC3",
                                        "\xED\xA0\x80",
                                        "A\xC3",
                                        "\xEF\xBF\xBE",
                                        "\xE2\x80\x8B",
                                        "",
                                        "zorro",
                                        "\xF0\x9F"};
    {
        const auto engine = dao::openEmbedded(path(), "clave0001", {});
        const auto insert = engine->prepare("INSERT INTO Raros (Nombre) VALUES (?)");
        for (int copy = 0; copy < 2; ++copy) {
            for (const QByteArray &text : texts) {
                insert->bindText(0, text);
                insert->insert();
            }
        }
    }
    auto rs = db.openRecordset("Raros");
    rs.setIndex(u"Nombre");
    const auto most = static_cast<int>(texts.size()) * 2;
    std::vector<dao::Recordset::Bookmark> forwards;
    for (rs.moveFirst(); !rs.eof() && static_cast<int>(forwards.size()) <= most; rs.moveNext())
        forwards.push_back(rs.bookmark());
    EXPECT_EQ(static_cast<int>(forwards.size()), most);
    EXPECT_EQ(std::set(forwards.begin(), forwards.end()).size(), forwards.size());
    std::vector<dao::Recordset::Bookmark> backwards;
    for (rs.moveLast(); !rs.bof() && static_cast<int>(backwards.size()) <= most; rs.movePrevious())
        backwards.insert(backwards.begin(), rs.bookmark());
    EXPECT_EQ(backwards, forwards);
    // What enters through the layer is clean, and found by what was typed.
    rs.addNew();
    rs[u"Nombre"] = QString(QChar(0xFEFF)) + "Bruno" + QChar(0x200B);
    rs.update();
    rs.seek(u"=", u"bruno");
    EXPECT_FALSE(rs.noMatch());
    EXPECT_EQ(rs[u"Nombre"].text(), "Bruno");
}

TEST_F(RecordsetTest, dynasetReadsItsKeysAsFarAsItIsVisited)
{
    db.beginTrans();
    for (int i = 0; i < 300; ++i)
        db.execute(QString("INSERT INTO Consulta (paciente, Motivo) VALUES (%1, 'm%2')").arg(i % 7).arg(i));
    db.commitTrans();
    auto rs = db.openRecordset("Select * from Consulta");
    EXPECT_LT(rs.recordCount(), 300);
    rs.addNew();
    rs[u"Motivo"] = "mío";
    rs.update();
    other.execute("Delete * from Consulta where idConsulta = 3 or idConsulta = 200");
    other.execute("INSERT INTO Consulta (Motivo) VALUES ('ajeno')");
    rs.moveLast();
    EXPECT_EQ(rs[u"Motivo"].text(), u"mío"_s) << "its own new row stands at the end";
    EXPECT_EQ(rs.recordCount(), 301) << "row 3 was known, 200 was gone, the foreign one is there";
    rs.findFirst("paciente = 3 and idConsulta > 100");
    EXPECT_EQ(rs[u"idConsulta"].integer(), 102);
    EXPECT_EQ(one("Select count(*) from Consulta").integer(), 300);
}

TEST_F(RecordsetTest, closingTheDatabaseClosesItsRecordsets)
{
    auto rs = db.openRecordset("Pacientes");
    auto query = db.openRecordset("Select * from Pacientes");
    db.close();
    EXPECT_FALSE(rs.isOpen());
    EXPECT_EQ(errorOf([&] { rs.moveFirst(); }), Error::Closed);
    EXPECT_EQ(errorOf([&] { query[u"Numero"].value(); }), Error::Closed);
    EXPECT_EQ(errorOf([&] { db.execute("Delete * from Pacientes"); }), Error::Closed);
}
