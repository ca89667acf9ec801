// What several stations, and stations that die, do to a practice's file:
//   bench_stations BASE.MDB upgrade|visit|start ROUNDS
//   bench_stations BASE.MDB write SECONDS
// BASE.MDB is a delivered file; the work is done on copies of it in the folder of TMPDIR, which is worth
// naming: on a disk the flushes count. Ends non-zero when something was found half done or a wait was over
// its limit.
#include "measure.h"
#include "samplevisit.h"

#include "core/database/actualiza.h"
#include "core/session/session.h"
#include "core/session/startup.h"

#include <QCoreApplication>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>
#include <span>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

constexpr int stations = 8;
constexpr double longestRow = 2000; // milliseconds
constexpr double longestVisit = 3000;

/// The file that the stations of one process group work on.
class Practice
{
public:
    explicit Practice(const QString &delivered) { renew(delivered); }

    QString path() const { return folder_.filePath(u"BASE.MDB"_s); }
    void renew(const QString &from) const
    {
        for (const QString &file : {path(), path() + u"-journal"_s})
            QFile::remove(file);
        if (!QFile::copy(from, path()) ||
            !QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner))
            throw std::runtime_error("the file cannot be copied");
    }
    void open() const { BaseDatos.open(path(), false, false, MODULE11::conexionDeLaBase()); }
    /// What the file holds now, to begin each round with.
    QString keep(const QString &name) const
    {
        const QString kept = folder_.filePath(name);
        QFile::remove(kept);
        QFile::copy(path(), kept);
        return kept;
    }

private:
    QTemporaryDir folder_;
};

pid_t station(const std::function<void()> &work)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    int status = 0;
    try {
        work();
        BaseDatos.close();
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        status = 1;
    }
    _exit(status);
}

bool wentWell(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Kills a station at any moment of the next `within` milliseconds.
void killSometime(pid_t child, double within)
{
    usleep(static_cast<useconds_t>(QRandomGenerator::global()->bounded(within * 1000)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

qint64 number(const QString &sql)
{
    return BaseDatos.openRecordset(sql)[0].integer();
}

/// The structure of the whole file, and the rows that the upgrade adds, as one text.
QString structure()
{
    QStringList lines;
    for (const QString &name : BaseDatos.tableNames()) {
        const dao::TableDef table = BaseDatos.tableDef(name);
        lines << name;
        for (const dao::FieldDef &field : table.fields())
            lines << u"  %1 %2 %3"_s.arg(field.name).arg(static_cast<int>(field.type)).arg(field.size);
        for (const dao::IndexDef &index : table.indexes())
            lines << u"  %1 (%2)"_s.arg(index.name, index.fields.join(u','));
        if (name == u"EstadosTurnos")
            lines << u"  %1 states"_s.arg(number(u"Select count(*) from EstadosTurnos"_s));
    }
    return lines.join(u'\n');
}

int verdict(const char *work, int rounds, int faults)
{
    std::cout << (faults == 0 ? "ok   " : "OVER ") << work << ": " << faults << " of " << rounds
              << " (at most 0)\n";
    return faults == 0 ? 0 : 1;
}

/// The delivered file as an older version has it, whose columns the upgrade makes again.
QString olderFile(const Practice &practice)
{
    practice.open();
    const auto again = [](const QString &column, int size) {
        basic::ignoring({dao::Error::FieldNotFound},
                        [&] { BaseDatos.execute(u"ALTER TABLE Turnos DROP COLUMN "_s + column); });
        BaseDatos.execute(u"ALTER TABLE Turnos ADD COLUMN %1 TEXT(%2)"_s.arg(column).arg(size));
    };
    again(u"Motivo"_s, 50);
    again(u"Coseguro"_s, 20);
    BaseDatos.close();
    return practice.keep(u"anterior"_s);
}

int killedUpgrades(const Practice &practice, int rounds)
{
    const QString older = olderFile(practice);
    practice.open();
    const QString before = structure();
    const double whole = bench::elapsed([] { MODULE11::ActualizaBase(); });
    const QString after = structure();
    BaseDatos.close();

    int half = 0;
    int undone = 0;
    for (int round = 0; round < rounds; ++round) {
        practice.renew(older);
        killSometime(station([&] {
                         practice.open();
                         MODULE11::ActualizaBase();
                     }),
                     whole * 1.3);
        practice.open();
        const QString found = structure();
        undone += found == before;
        MODULE11::ActualizaBase();
        if ((found != before && found != after) || structure() != after || !BaseDatos.check().isEmpty())
            ++half;
        BaseDatos.close();
    }
    std::cout << "an upgrade takes " << whole << " ms; " << undone << " of " << rounds
              << " were killed before it was done\n";
    return verdict("upgrades killed that left the file half done", rounds, half);
}

int killedVisits(const Practice &practice, int rounds)
{
    practice.open();
    MODULE11::ActualizaBase();
    BaseDatos.execute(
        u"INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (1, 'Paciente de prueba')"_s);
    const consultas::Visita visit = bench::sampleVisit();
    const double whole = bench::elapsed([&] { registrarConsulta(u"1"_s, visit); });
    BaseDatos.close();

    int half = 0;
    qint64 recorded = 1;
    int lost = 0;
    for (int round = 0; round < rounds; ++round) {
        int acknowledged[2];
        if (pipe(acknowledged) != 0)
            throw std::runtime_error("no pipe");
        const pid_t child = station([&] {
            practice.open();
            for (qint64 n = 0;; ++n) {
                [[maybe_unused]] const auto told = write(acknowledged[1], &n, sizeof n);
                registrarConsulta(u"1"_s, visit);
            }
        });
        ::close(acknowledged[1]);
        qint64 done = 0;
        [[maybe_unused]] const auto begun = read(acknowledged[0], &done, sizeof done);
        killSometime(child, whole * 3);
        while (read(acknowledged[0], &done, sizeof done) == sizeof done)
            ;
        ::close(acknowledged[0]);

        practice.open();
        const qint64 visits = number(u"Select count(*) from Consulta"_s);
        const qint64 items = number(u"Select count(*) from ExFisico"_s);
        const qint64 events = number(u"Select count(*) from Eventos where Proceso = 'NUEVA CONSULTA '"_s);
        lost += visits < recorded + done;
        half += items != visits * static_cast<qint64>(visit.examen.size()) || events != visits;
        recorded = visits;
        BaseDatos.close();
    }
    practice.open();
    half += BaseDatos.check().isEmpty() ? 0 : 1;
    std::cout << "a visit takes " << whole << " ms; " << recorded << " were recorded\n";
    return verdict("visits acknowledged and lost", rounds, lost) +
           verdict("stations killed that left a visit half recorded", rounds, half);
}

int startsAtOnce(const Practice &practice, int rounds)
{
    const QString older = olderFile(practice);
    int faults = 0;
    for (int round = 0; round < rounds; ++round) {
        practice.renew(older);
        const auto start = [&] {
            practice.open();
            MODULE11::ActualizaBase();
        };
        const std::array<pid_t, 2> both{station(start), station(start)};
        const bool well = wentWell(both[0]) & wentWell(both[1]);
        practice.open();
        const qint64 states = number(u"Select count(*) from EstadosTurnos"_s);
        const qint64 names =
            BaseDatos.openRecordset(u"Select distinct Estado from EstadosTurnos"_s).rowCount();
        faults += !well || states != names || !BaseDatos.check().isEmpty();
        BaseDatos.close();
    }
    return verdict("two stations starting at once that failed or doubled a row", rounds, faults);
}

/// The waits of one station, in milliseconds, where its parent reads them.
struct Waits {
    static constexpr int most = 400'000;
    int count = 0;
    std::array<float, most> times;

    void add(double time)
    {
        if (count < most)
            times[static_cast<size_t>(count++)] = static_cast<float>(time);
    }
};

int report(const char *work, std::span<const Waits> waits, double limit)
{
    std::vector<float> all;
    for (const Waits &own : waits)
        all.insert(all.end(), own.times.begin(), own.times.begin() + own.count);
    if (all.empty())
        return 1;
    std::ranges::sort(all);
    const auto at = [&](double part) {
        return all[static_cast<size_t>(static_cast<double>(all.size() - 1) * part)];
    };
    const bool within = all.back() <= limit;
    std::cout << (within ? "ok   " : "OVER ") << work << ", " << all.size() << " times: median " << at(0.5)
              << " ms, 99 of 100 under " << at(0.99) << " ms, worst " << all.back() << " ms (at most "
              << limit << ")\n";
    return within ? 0 : 1;
}

int writingWithoutPause(const Practice &practice, int seconds)
{
    practice.open();
    MODULE11::ActualizaBase();
    for (int patient = 1; patient <= stations; ++patient)
        BaseDatos.execute(
            u"INSERT INTO Pacientes (Numero, [Apellido y Nombres]) VALUES (%1, 'Paciente %1')"_s.arg(
                patient));
    BaseDatos.close();

    // Each station has room for its rows and for its visits.
    constexpr size_t size = sizeof(Waits) * 2 * stations;
    auto *shared = static_cast<Waits *>(
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    if (shared == MAP_FAILED)
        throw std::runtime_error("no memory to share");
    const std::span<Waits> rows(shared, stations);
    const std::span<Waits> visits(shared + stations, stations);
    std::vector<pid_t> children;
    for (size_t i = 0; i < stations; ++i) {
        children.push_back(station([&, i] {
            const QString patient = QString::number(i + 1);
            const consultas::Visita visit = bench::sampleVisit();
            practice.open();
            dao::Recordset measures = BaseDatos.openRecordset(u"Medidas"_s);
            QElapsedTimer running;
            running.start();
            while (running.elapsed() < seconds * 1000) {
                rows[i].add(bench::elapsed([&] {
                    measures.addNew();
                    measures[u"paciente"] = patient;
                    measures[u"fecha"] = basic::today();
                    measures[u"Peso"] = 12800;
                    measures.update();
                }));
                visits[i].add(bench::elapsed([&] { registrarConsulta(patient, visit); }));
            }
        }));
    }
    int failed = 0;
    for (const pid_t child : children)
        failed += !wentWell(child);

    practice.open();
    qint64 recorded = 0;
    for (const Waits &own : visits)
        recorded += own.count;
    failed += number(u"Select count(*) from Consulta"_s) != recorded;
    failed += number(u"Select count(*) from ExFisico"_s) !=
              recorded * static_cast<qint64>(bench::sampleVisit().examen.size());
    failed += !BaseDatos.check().isEmpty();
    return report("a row written among eight stations", rows, longestRow) +
           report("a visit recorded among eight stations", visits, longestVisit) +
           verdict("stations that failed, or rows that are missing", stations, failed);
}

struct Mode {
    QStringView name;
    int (*run)(const Practice &practice, int times);
};
constexpr Mode modes[] = {
    {u"upgrade", killedUpgrades},
    {u"visit", killedVisits},
    {u"start", startsAtOnce},
    {u"write", writingWithoutPause},
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const auto *mode = std::ranges::find_if(
        modes, [&](const Mode &known) { return words.size() == 4 && known.name == words[2]; });
    if (mode == std::end(modes)) {
        std::cerr << "bench_stations BASE.MDB upgrade|visit|start ROUNDS\n"
                     "bench_stations BASE.MDB write SECONDS\n";
        return 2;
    }
    try {
        const QTemporaryDir settings;
        qputenv("SANIRELL_AJUSTES", settings.path().toUtf8());
        MODULE11::valoresIniciales();
        return mode->run(Practice(words[1]), words[3].toInt()) == 0 ? 0 : 1;
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
