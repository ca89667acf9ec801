#include "fixture.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// Runs work in a child process, which never returns into the test program.
pid_t inChild(const std::function<void()> &work)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    int status = 0;
    try {
        work();
    } catch (const dao::Error &error) {
        fprintf(stderr, "%s\n", error.what());
        status = 1;
    }
    _exit(status);
}

/// How often a test by hand repeats what the normal run does a few times.
int fromEnvironment(const char *name, int normally)
{
    const int asked = qEnvironmentVariableIntValue(name);
    return asked > 0 ? asked : normally;
}

} // namespace

TEST_F(DaoTest, fourStationsWriteAtOnceAndNothingIsLost)
{
    run({"CREATE TABLE Turnos (idTurno COUNTER, Puesto LONG, Orden LONG)", "CREATE TABLE Cuenta (n LONG)",
         "INSERT INTO Cuenta VALUES (0)"});
    db.close();
    constexpr int stations = 4;
    const int rows = fromEnvironment("SANIRELL_FILAS", 60);
    std::vector<pid_t> children;
    for (int station = 0; station < stations; ++station) {
        children.push_back(inChild([&, station] {
            dao::Database own;
            own.open(path(), false, false, QString::fromUtf16(connect));
            auto rs = own.openRecordset("Select * from Turnos");
            for (int i = 0; i < rows; ++i) {
                rs.addNew();
                rs[u"Puesto"] = station;
                rs[u"Orden"] = i;
                rs.update();
                own.execute("UPDATE Cuenta SET n = n + 1");
                if (own.openRecordset("Select sum(n) from Cuenta").value(0).integer() < i + 1)
                    throw dao::Error(1, "a read went back in time");
            }
        }));
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    db.open(path(), false, false, QString::fromUtf16(connect));
    EXPECT_EQ(one("Select n from Cuenta").integer(), stations * rows);
    EXPECT_EQ(all("Select Puesto, count(*), max(Orden) from Turnos group by Puesto"),
              QStringLiteral("0,%1,%2|1,%1,%2|2,%1,%2|3,%1,%2").arg(rows).arg(rows - 1));
    EXPECT_EQ(one("Select max(idTurno) from Turnos").integer(), stations * rows);
    EXPECT_TRUE(db.check().isEmpty());
}

TEST_F(DaoTest, aLoopThatReadsTogetherSeesOneStateAndLetsOthersWriteAfterIt)
{
    run({"CREATE TABLE Cuenta (n LONG)", "INSERT INTO Cuenta VALUES (1)"});
    const auto rows = [&] { return db.openRecordset("Select count(*) from Cuenta").value(0).integer(); };
    db.close(); // a child must not inherit what its parent has locked
    int signal[2];
    ASSERT_EQ(pipe(signal), 0);
    const pid_t station = inChild([&] {
        char started = 0;
        [[maybe_unused]] const auto got = read(signal[0], &started, 1);
        dao::Database own;
        own.open(path(), false, false, QString::fromUtf16(connect));
        own.execute("INSERT INTO Cuenta VALUES (2)");
    });
    db.open(path(), false, false, QString::fromUtf16(connect));
    db.readTogether([&] {
        EXPECT_EQ(rows(), 1);
        ASSERT_EQ(write(signal[1], "x", 1), 1);
        usleep(400'000); // the other opens the file in half of that
        db.readTogether([&] { EXPECT_EQ(rows(), 1); });
    });
    int status = 1;
    waitpid(station, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(rows(), 2);
    EXPECT_THROW(db.readTogether([&] { db.openRecordset("Select * from NoEsta"); }), dao::Error);
    run({"INSERT INTO Cuenta VALUES (3)"}); // nothing was left open
    EXPECT_EQ(rows(), 3);
}

TEST_F(DaoTest, aProcessKilledWhileWritingLosesNothingAcknowledged)
{
    run({"CREATE TABLE T (n LONG, Texto MEMO)", "CREATE UNIQUE INDEX PrimaryKey ON T (n) WITH PRIMARY"});
    db.close();
    const int rounds = fromEnvironment("SANIRELL_RONDAS", 12);
    qint64 next = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        int acknowledged[2];
        ASSERT_EQ(pipe(acknowledged), 0);
        const pid_t child = inChild([&] {
            dao::Database own;
            own.open(path(), false, false, QString::fromUtf16(connect));
            auto rs = own.openRecordset("T");
            for (qint64 n = next;; ++n) {
                rs.addNew();
                rs[u"n"] = n;
                rs[u"Texto"] = QString(5000, QChar(static_cast<char16_t>(u'a' + n % 26)));
                rs.update();
                if (write(acknowledged[1], &n, sizeof n) != sizeof n)
                    return;
            }
        });
        ::close(acknowledged[1]);
        qint64 last = next - 1;
        // Killed after so many rows, and a little later each round.
        const qint64 rows = 3 + round % 5;
        while (last < next + rows && read(acknowledged[0], &last, sizeof last) == sizeof last)
            ;
        usleep(static_cast<useconds_t>(round * 137 % 1500));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(acknowledged[0], &last, sizeof last) == sizeof last)
            ;
        ::close(acknowledged[0]);
        db.open(path(), false, false, QString::fromUtf16(connect));
        const qint64 found = one("Select max(n) from T").integer();
        EXPECT_GE(found, last);
        EXPECT_LE(found, last + 1);
        EXPECT_EQ(one("Select count(*) from T").integer(), found + 1);
        EXPECT_EQ(one("Select count(*) from T where len(Texto) <> 5000").integer(), 0);
        EXPECT_TRUE(db.check().isEmpty());
        db.close();
        next = found + 1;
    }
    EXPECT_GT(next, rounds);
}

TEST_F(DaoTest, anExclusiveStationKeepsOthersOut)
{
    run({"CREATE TABLE T (n LONG)"});
    db.close();
    db.open(path(), true, false, QString::fromUtf16(connect));
    constexpr int patience = 300;
    QElapsedTimer timer;
    timer.start();
    const pid_t child = inChild([&] {
        dao::Database own;
        own.setPatience(patience);
        const int error = errorOf([&] { own.open(path(), false, false, QString::fromUtf16(connect)); });
        _exit(error == dao::Error::Locked ? 7 : 1);
    });
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_GE(timer.elapsed(), patience) << "it waits for its turn before it gives up";
    EXPECT_LT(timer.elapsed(), 10 * patience);
    db.close();
    openOther();
    other.execute("INSERT INTO T VALUES (1)");
}
