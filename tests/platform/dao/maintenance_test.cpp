#include "fixture.h"

#include <QFile>

using dao::Error;

namespace
{

class MaintenanceTest : public DaoTest
{
protected:
    void SetUp() override
    {
        DaoTest::SetUp();
        run({"CREATE TABLE Pacientes (Numero LONG, Nombre TEXT(60), Notas MEMO)",
             "CREATE UNIQUE INDEX PrimaryKey ON Pacientes (Numero) WITH PRIMARY",
             "CREATE INDEX Nombre ON Pacientes (Nombre)",
             "CREATE TABLE Turnos (idTurno COUNTER, Paciente LONG)"});
        db.createQuery("Todos", "Select Numero from Pacientes");
        db.beginTrans();
        for (int i = 1; i <= rows; ++i)
            db.execute(QString("INSERT INTO Pacientes VALUES (%1, 'Paciente %1', '%2')")
                           .arg(i)
                           .arg(QString(200, u'x')));
        for (int i = 1; i <= 50; ++i)
            db.execute(QString("INSERT INTO Turnos (Paciente) VALUES (%1)").arg(i));
        db.commitTrans();
        db.execute("Delete * from Turnos where idTurno > 40");
        db.close();
    }

    int opening(const QString &file, const QString &password = "clave0001")
    {
        dao::Database own;
        return errorOf([&] { own.open(file, false, false, ";pwd=" + password); });
    }
    void overwrite(const QString &file, qint64 offset, const QByteArray &bytes)
    {
        QFile raw(file);
        ASSERT_TRUE(raw.open(QIODevice::ReadWrite));
        ASSERT_TRUE(raw.seek(offset));
        ASSERT_EQ(raw.write(bytes), bytes.size());
    }
    QByteArray contents(const QString &file)
    {
        QFile raw(file);
        EXPECT_TRUE(raw.open(QIODevice::ReadOnly));
        return raw.readAll();
    }
    QString writeFile(const QString &name, const QByteArray &bytes)
    {
        QFile raw(path(name));
        EXPECT_TRUE(raw.open(QIODevice::WriteOnly));
        raw.write(bytes);
        return path(name);
    }

    static constexpr int rows = 2000;
};

} // namespace

TEST_F(MaintenanceTest, whatCannotBeOpenedSaysWhyAndStaysAsItWas)
{
    const QByteArray before = contents(path());
    EXPECT_FALSE(before.contains("Paciente 7")) << "nothing lies in the file in the clear";
    EXPECT_EQ(opening(path("no está.MDB")), Error::FileNotFound);
    EXPECT_FALSE(QFile::exists(path("no está.MDB")));
    EXPECT_EQ(opening(path(), "otra"), Error::WrongPassword);
    EXPECT_EQ(opening(path(), ""), Error::WrongPassword);
    EXPECT_EQ(opening(writeFile("vacio.MDB", {})), Error::NotADatabase);
    EXPECT_EQ(opening(writeFile("texto.MDB", QByteArray("Historia clínica\n").repeated(700))),
              Error::NotADatabase);
    EXPECT_EQ(opening(writeFile("zip.MDB", "PK\x03\x04" + before.mid(4))), Error::NotADatabase);
    EXPECT_EQ(opening(writeFile("mitad.MDB", before.first(before.size() / 8192 * 4096))), Error::FileDamaged);
    EXPECT_EQ(opening(writeFile("cortado.MDB", before.first(10000))), Error::FileDamaged);
    EXPECT_EQ(opening(path()), 0);
    EXPECT_EQ(contents(path()), before);

    try {
        dao::Database own;
        own.open(path(), false, false, "PWD=muysecreta;");
        FAIL();
    } catch (const Error &error) {
        EXPECT_FALSE(error.description().contains("muysecreta"));
    }
}

TEST_F(MaintenanceTest, readOnlyReadsAndRefusesToWrite)
{
    db.open(path(), false, true, "PWD=clave0001;");
    auto rs = db.openRecordset("Pacientes");
    EXPECT_EQ(rs[u"Numero"].integer(), 1);
    EXPECT_FALSE(rs.updatable());
    EXPECT_EQ(errorOf([&] { rs.addNew(); }), Error::ReadOnly);
    EXPECT_EQ(errorOf([&] { db.execute("Delete * from Turnos"); }), Error::ReadOnly);
    EXPECT_EQ(errorOf([&] { db.execute("CREATE TABLE X (a LONG)"); }), Error::ReadOnly);
    EXPECT_EQ(all("Select * from Todos where Numero = 3"), "3");
}

TEST_F(MaintenanceTest, compactingKeepsEverythingUnderTheNewPassword)
{
    dao::compactDatabase(path(), path("COMPACTA.MDB"), ";LANGID=0x0409;CP=1252;COUNTRY=0;pwd=nueva",
                         ";pwd=clave0001");
    EXPECT_EQ(opening(path("COMPACTA.MDB")), Error::WrongPassword);
    EXPECT_EQ(errorOf([&] { dao::compactDatabase(path(), path("COMPACTA.MDB"), "", ";pwd=clave0001"); }),
              Error::FileExists);
    EXPECT_EQ(errorOf([&] { dao::compactDatabase(path(), path("C2.MDB"), "", ";pwd=falsa"); }),
              Error::WrongPassword);
    EXPECT_FALSE(QFile::exists(path("C2.MDB")));
    db.open(path("COMPACTA.MDB"), false, false, ";PWD=nueva");
    EXPECT_EQ(one("Select count(*) from Pacientes").integer(), rows);
    EXPECT_TRUE(db.tableDef(u"Pacientes").index(u"PrimaryKey")->primary);
    EXPECT_EQ(db.queryNames(), QStringList{"Todos"});
    db.execute("INSERT INTO Turnos (Paciente) VALUES (1)");
    EXPECT_EQ(one("Select max(idTurno) from Turnos").integer(), 51) << "numbers of deleted rows stay used";
    EXPECT_TRUE(db.check().isEmpty());
    dao::compactDatabase(path(), path("C3.MDB"), ";LANGID=0x0409", ";pwd=clave0001");
    EXPECT_EQ(opening(path("C3.MDB")), 0) << "without a new password the old one stays";
}

TEST_F(MaintenanceTest, repairKeepsTheRowsOfReadablePages)
{
    const QByteArray sound = contents(path());
    const qint64 pages = sound.size() / 4096;
    // A page amid the rows, whatever it holds, and another one further on.
    overwrite(path(), pages / 3 * 4096 + 100, QByteArray(64, '\x5A'));
    overwrite(path(), pages / 2 * 4096 + 100, QByteArray(64, '\x5A'));
    db.open(path(), false, false, ";PWD=clave0001");
    EXPECT_FALSE(db.check().isEmpty());
    EXPECT_EQ(errorOf([&] { all("Select * from Pacientes"); }), Error::FileDamaged);
    db.close();
    const QByteArray damaged = contents(path());

    dao::repairDatabase(path(), ";pwd=clave0001");
    EXPECT_EQ(contents(path("BASE.MDB.dañada")), damaged);
    db.open(path(), false, false, ";PWD=clave0001");
    EXPECT_TRUE(db.check().isEmpty());
    const qint64 kept = one("Select count(*) from Pacientes").integer();
    EXPECT_LT(kept, rows);
    EXPECT_GT(kept, rows - 60);
    EXPECT_EQ(one("Select count(*) from Pacientes where Nombre = 'Paciente ' & Numero and len(Notas) = 200")
                  .integer(),
              kept);
    EXPECT_EQ(one("Select count(*) from Turnos").integer(), 40);
    db.execute("INSERT INTO Turnos (Paciente) VALUES (1)");
    EXPECT_EQ(one("Select max(idTurno) from Turnos").integer(), 51);
    EXPECT_NE(db.tableDef(u"Pacientes").index(u"Nombre"), nullptr);
}

TEST_F(MaintenanceTest, repairOfASoundFileChangesNoRow)
{
    dao::repairDatabase(path(), ";pwd=clave0001");
    db.open(path(), false, false, ";PWD=clave0001");
    EXPECT_EQ(one("Select count(*) from Pacientes").integer(), rows);
    EXPECT_EQ(db.queryNames(), QStringList{"Todos"});
    db.close();
    overwrite(path(), 0, QByteArray(4096, '\x11'));
    EXPECT_NE(errorOf([&] { dao::repairDatabase(path(), ";pwd=clave0001"); }), 0);
    EXPECT_EQ(contents(path()).first(4096), QByteArray(4096, '\x11')) << "what cannot be mended stays";
}
