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
    writeFile("C4.MDB-journal", QByteArray(5000, 'x'));
    dao::compactDatabase(path(), path("C4.MDB"), "", ";pwd=clave0001");
    EXPECT_FALSE(QFile::exists(path("C4.MDB-journal"))) << "an old journal is not of the new file";
    EXPECT_EQ(QDir(folder.path()).entryList({"*.tmp*"}), QStringList());
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

namespace
{

/// As many tables as a practice has: what describes them fills pages of its own, to which the first one
/// leads.
class LostPagesTest : public MaintenanceTest
{
protected:
    void SetUp() override
    {
        MaintenanceTest::SetUp();
        reopen();
        db.beginTrans();
        for (int i = 0; i < tables; ++i) {
            const QString table = QString("Tabla%1").arg(i);
            db.execute(QString("CREATE TABLE %1 (id COUNTER, Nombre TEXT(50), Detalle MEMO, Fecha DATE)")
                           .arg(table));
            db.execute(QString("CREATE INDEX Nombre ON %1 (Nombre)").arg(table));
            db.execute(QString("INSERT INTO %1 (Nombre) VALUES ('fila de %1')").arg(table));
        }
        // Rebuilt tables leave free pages that still describe them as they were.
        for (int i = 0; i < tables; i += 3)
            db.widenText(QString("Tabla%1").arg(i), "Nombre", 60);
        db.commitTrans();
        db.close();
    }

    void reopen() { db.open(path(), false, false, ";PWD=clave0001"); }
    void repairAndExpectAllRows()
    {
        dao::repairDatabase(path(), ";pwd=clave0001");
        reopen();
        EXPECT_TRUE(db.check().isEmpty());
        EXPECT_EQ(one("Select count(*) from Pacientes where Nombre = 'Paciente ' & Numero").integer(), rows);
        EXPECT_EQ(db.queryNames(), QStringList{"Todos"});
        for (int i = 0; i < tables; ++i) {
            const QString table = QString("Tabla%1").arg(i);
            EXPECT_EQ(all("Select id, Nombre from " + table), "1,fila de " + table);
            EXPECT_EQ(db.tableDef(table).field(u"Nombre")->size, i % 3 == 0 ? 60 : 50);
            EXPECT_NE(db.tableDef(table).index(u"Nombre"), nullptr);
        }
        EXPECT_EQ(QDir(folder.path()).entryList({"*.tmp*", "*.cabeza*"}), QStringList());
        db.close();
    }

    static constexpr int tables = 60;
};

} // namespace

TEST_F(LostPagesTest, aLostFirstPageIsMadeAnew)
{
    const QByteArray sound = contents(path());
    overwrite(path(), 2000, QByteArray(16, '\x5A'));
    EXPECT_NE(opening(path()), 0);
    EXPECT_EQ(errorOf([&] { dao::repairDatabase(path(), ";pwd=otra"); }), Error::WrongPassword);
    repairAndExpectAllRows();

    // The salt at its head is lost with it, and the whole first half of the disk's track.
    for (const char filling : {'\0', '\x5A'}) {
        QFile::remove(path());
        writeFile("BASE.MDB", QByteArray(4096, filling) + sound.sliced(4096));
        overwrite(path("BASE.MDB.cola"), 0, sound.first(16));
        repairAndExpectAllRows();
    }
}

TEST_F(LostPagesTest, whatDescribesOnlySomeTablesIsLostWithThemAlone)
{
    const QByteArray sound = contents(path());
    const qint64 pages = sound.size() / 4096;
    int lost = 0;
    for (qint64 page = pages - 1; page > 0 && lost == 0; --page) {
        QFile::remove(path());
        writeFile("BASE.MDB", sound);
        overwrite(path(), page * 4096 + 50, QByteArray(16, '\x5A'));
        dao::Database own;
        if (errorOf([&] { own.open(path(), false, false, ";PWD=clave0001"); }) == 0)
            continue;
        ++lost;
        dao::repairDatabase(path(), ";pwd=clave0001");
        reopen();
        EXPECT_TRUE(db.check().isEmpty());
        EXPECT_GT(db.tableNames().size(), tables / 2);
        EXPECT_LT(db.tableNames().size(), tables + 2);
        for (const QString &table : db.tableNames().filter("Tabla"))
            EXPECT_EQ(all("Select Nombre from " + table), "fila de " + table);
        db.close();
    }
    EXPECT_EQ(lost, 1) << "no page of the catalogue was met";
}

TEST_F(MaintenanceTest, repairTakesFilesThatWereCutOrHaveBytesTooMany)
{
    const QByteArray sound = contents(path());
    for (const qsizetype size : {sound.size() * 9 / 10, sound.size() * 9 / 10 / 4096 * 4096,
                                 sound.size() + 1000, sound.size() + 8192}) {
        SCOPED_TRACE(size);
        QFile::remove(path());
        writeFile("BASE.MDB", sound.first(std::min(size, sound.size())) +
                                  QByteArray(std::max<qsizetype>(size - sound.size(), 0), '\0'));
        dao::repairDatabase(path(), ";pwd=clave0001");
        db.open(path(), false, false, ";PWD=clave0001");
        const qint64 kept = one("Select count(*) from Pacientes where len(Notas) = 200").integer();
        EXPECT_EQ(kept == rows, size >= sound.size());
        EXPECT_GT(kept, rows * 4 / 5);
        EXPECT_TRUE(db.check().isEmpty());
        db.close();
    }
}

TEST_F(MaintenanceTest, oneDamagedPageDoesNotKeepTheRestFromBeingRead)
{
    db.open(path(), false, false, ";PWD=clave0001");
    auto turnos = db.openRecordset("Select * from Turnos");
    overwrite(path(), contents(path()).size() / 4096 / 2 * 4096 + 100, QByteArray(64, '\x5A'));
    other.open(path(), false, false, ";PWD=clave0001");
    for (int again = 0; again < 2; ++again) {
        auto rs = other.openRecordset("Select * from Turnos");
        EXPECT_EQ(errorOf([&] {
                      auto patients = other.openRecordset("Select Notas from Pacientes");
                      for (; !patients.eof(); patients.moveNext())
                          patients.value(0);
                  }),
                  Error::FileDamaged);
        rs.moveLast();
        EXPECT_EQ(rs[u"idTurno"].integer(), 40) << "a recordset that was open goes on";
        EXPECT_EQ(other.openRecordset("Select max(Numero) from Pacientes").value(0).integer(), rows);
        other.execute("UPDATE Turnos SET Paciente = 7 WHERE idTurno = 1");
    }
    EXPECT_EQ(turnos[u"Paciente"].integer(), 7);
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
