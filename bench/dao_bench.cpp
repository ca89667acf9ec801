// What the database layer costs over the bare engine running the same statements on the same file. Each case
// runs both in turn and reports their ratio; the last column says what it may be.
#include "platform/dao/database.h"
#include "platform/dao/dialect/parser.h"
#include "platform/dao/embedded/embeddedengine.h"
#include "platform/dao/embedded/key.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include ENGINE_HEADER

#include <algorithm>
#include <ctime>
#include <functional>
#include <random>

namespace
{

constexpr int patients = 100000;
const QString password = QStringLiteral("clave0001");

/// A practice with 100,000 patients, made once.
class Practice
{
public:
    static Practice &instance()
    {
        static Practice practice;
        return practice;
    }

    dao::Database db;
    QString path() const { return folder_.filePath("BASE.MDB"); }

    /// The engine alone over the same file, set up as the layer sets its own up.
    sqlite3 *bare() { return bare_->handle(); }
    sqlite3_stmt *prepare(const char *sql)
    {
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(bare(), sql, -1, &statement, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(bare()));
        return statement;
    }

private:
    Practice()
    {
        db.create(path(), ";PWD=" + password);
        db.execute(
            "CREATE TABLE Pacientes (Numero LONG, [Apellido y Nombres] TEXT(50), Sexo TEXT(10), "
            "[Fecha de Nacimiento] DATE, Domicilio TEXT(50), Telefono TEXT(30), [Obra Social] TEXT(50), "
            "Saldo CURRENCY, Notas MEMO)");
        db.execute("CREATE UNIQUE INDEX PrimaryKey ON Pacientes (Numero) WITH PRIMARY");
        db.execute("CREATE INDEX Nombre ON Pacientes ([Apellido y Nombres])");
        db.execute(
            "CREATE TABLE Eventos (Usuario TEXT(30), Fecha DATE, Hora TEXT(5), Suceso TEXT(100), Proceso TEXT(50))");
        db.beginTrans(20000);
        auto rs = db.openRecordset("Pacientes");
        for (int i = 0; i < patients; ++i) {
            rs.addNew();
            rs[u"Numero"] = i;
            rs[u"Apellido y Nombres"] = name(i);
            rs[u"Sexo"] = i % 2 ? "Varon" : "Mujer";
            rs[u"Fecha de Nacimiento"] = QDate(2000, 1, 1).addDays(i % 8000);
            rs[u"Domicilio"] = QString("Calle %1").arg(i % 977);
            rs.update();
        }
        db.commitTrans();
        bare_ = dao::openEmbedded(path(), password, {});
    }

public:
    static QString name(int i)
    {
        static const char *surnames[] = {"García",  "Nuñez", "Pérez",  "López",
                                         "Álvarez", "Gómez", "Zárate", "Ibáñez"};
        return QString("%1, %2")
            .arg(QString::fromUtf8(surnames[i % 8]))
            .arg(i * 7919 % patients, 6, 10, QChar(u'0'));
    }

private:
    QTemporaryDir folder_;
    std::unique_ptr<dao::EmbeddedEngine> bare_;
};

/// Of the processor while computing, of the clock while waiting for the disk.
enum class Measure { Processor, Clock };

double milliseconds(const std::function<void()> &work, Measure measure = Measure::Processor)
{
    const clockid_t clock = measure == Measure::Processor ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC;
    const auto now = [clock] {
        timespec moment{};
        clock_gettime(clock, &moment);
        return static_cast<double>(moment.tv_sec) * 1e3 + static_cast<double>(moment.tv_nsec) / 1e6;
    };
    const double start = now();
    work();
    return now() - start;
}

/// The least disturbed of the runs.
double best(const std::vector<double> &values)
{
    return *std::min_element(values.begin(), values.end());
}

bool everythingWithin = true;

/// Runs both sides alternately, so that what disturbs the machine disturbs both.
void compare(benchmark::State &state, double allowed, const std::function<void()> &layer,
             const std::function<void()> &bare, Measure measure = Measure::Processor)
{
    layer();
    bare();
    std::vector<double> own;
    std::vector<double> engine;
    for (auto _ : state) {
        own.push_back(milliseconds(layer, measure));
        engine.push_back(milliseconds(bare, measure));
        state.SetIterationTime(own.back() / 1000.0);
    }
    state.counters["layer_ms"] = best(own);
    state.counters["engine_ms"] = best(engine);
    state.counters["ratio"] = best(own) / best(engine);
    state.counters["allowed"] = allowed;
    everythingWithin = everythingWithin && best(own) <= allowed * best(engine);
}

const QString screenQuery = QStringLiteral(
    "SELECT DetalleFacturacion.idDetFacturacion, Pacientes.[Apellido y Nombres], DetalleFacturacion.NroOrden, "
    "DetalleFacturacion.Importe FROM (Pacientes RIGHT JOIN DetalleFacturacion ON Pacientes.Numero = "
    "DetalleFacturacion.idPaciente) WHERE DetalleFacturacion.idFactura = %1");

void prepareScreenTables()
{
    basic::ignoring({dao::Error::TableExists}, [] {
        Practice::instance().db.execute(
            "CREATE TABLE DetalleFacturacion (idDetFacturacion COUNTER, idFactura LONG, "
            "idPaciente LONG, NroOrden TEXT(30), Importe CURRENCY)");
    });
}

void translateCold(benchmark::State &state)
{
    prepareScreenTables();
    auto &db = Practice::instance().db;
    int key = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(dao::translate(db, screenQuery.arg(++key)));
}

void translateCached(benchmark::State &state)
{
    prepareScreenTables();
    auto &db = Practice::instance().db;
    const QString text = screenQuery.arg(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(dao::translate(db, text));
}

void addRows(benchmark::State &state)
{
    auto &practice = Practice::instance();
    // Ten times, in turn with the bare engine: 10,000 rows a side.
    constexpr int rows = 1000;
    const basic::Date today(QDate(2024, 3, 15));
    compare(
        state, 1.5,
        [&] {
            auto rs = practice.db.openRecordset("Eventos");
            for (int i = 0; i < rows; ++i) {
                rs.addNew();
                rs[u"Usuario"] = "supervisor";
                rs[u"Fecha"] = today;
                rs[u"Hora"] = "10:30";
                rs[u"Suceso"] = "Ingreso al sistema";
                rs[u"Proceso"] = "INGRESO";
                rs.update();
            }
        },
        [&] {
            sqlite3_stmt *s = practice.prepare(
                "INSERT INTO Eventos (Usuario, Fecha, Hora, Suceso, Proceso) VALUES (?, ?, ?, ?, ?)");
            for (int i = 0; i < rows; ++i) {
                sqlite3_bind_text(s, 1, "supervisor", -1, SQLITE_TRANSIENT);
                sqlite3_bind_double(s, 2, today.serial());
                sqlite3_bind_text(s, 3, "10:30", -1, SQLITE_TRANSIENT);
                sqlite3_bind_text(s, 4, "Ingreso al sistema", -1, SQLITE_TRANSIENT);
                sqlite3_bind_text(s, 5, "INGRESO", -1, SQLITE_TRANSIENT);
                sqlite3_step(s);
                sqlite3_reset(s);
            }
            sqlite3_finalize(s);
        },
        Measure::Clock);
}

std::vector<int> shuffled()
{
    std::vector<int> order(patients);
    for (int i = 0; i < patients; ++i)
        order[static_cast<size_t>(i)] = i;
    std::shuffle(order.begin(), order.end(), std::mt19937(7));
    return order;
}

void seekText(benchmark::State &state)
{
    auto &practice = Practice::instance();
    std::vector<QString> names;
    for (int i : shuffled())
        names.push_back(Practice::name(i));
    auto rs = practice.db.openRecordset("Pacientes");
    rs.setIndex(u"Nombre");
    compare(
        state, 2.0,
        [&] {
            for (const QString &name : names) {
                rs.seek(u"=", name);
                if (rs.noMatch())
                    qFatal("lost");
            }
        },
        [&] {
            sqlite3_stmt *s =
                practice.prepare("SELECT _fila FROM Pacientes WHERE \"Apellido y Nombres\" = ? LIMIT 1");
            for (const QString &name : names) {
                const QByteArray text = name.toUtf8();
                sqlite3_bind_text(s, 1, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
                if (sqlite3_step(s) != SQLITE_ROW)
                    qFatal("lost");
                benchmark::DoNotOptimize(sqlite3_column_int64(s, 0));
                sqlite3_reset(s);
            }
            sqlite3_finalize(s);
        });
}

void seekPrimaryKey(benchmark::State &state)
{
    auto &practice = Practice::instance();
    const std::vector<int> order = shuffled();
    auto rs = practice.db.openRecordset("Pacientes");
    rs.setIndex(u"PrimaryKey");
    compare(
        state, 2.0,
        [&] {
            for (int number : order) {
                rs.seek(u"=", number);
                if (rs.noMatch())
                    qFatal("lost");
            }
        },
        [&] {
            sqlite3_stmt *s = practice.prepare("SELECT _fila FROM Pacientes WHERE Numero = ? LIMIT 1");
            for (int number : order) {
                sqlite3_bind_int64(s, 1, number);
                if (sqlite3_step(s) != SQLITE_ROW)
                    qFatal("lost");
                benchmark::DoNotOptimize(sqlite3_column_int64(s, 0));
                sqlite3_reset(s);
            }
            sqlite3_finalize(s);
        });
}

void openAndMoveLast(benchmark::State &state)
{
    auto &practice = Practice::instance();
    compare(
        state, 1.5,
        [&] {
            auto rs = practice.db.openRecordset("Select * from Pacientes order by [Apellido y Nombres]");
            rs.moveLast();
            if (rs.recordCount() != patients)
                qFatal("lost");
        },
        [&] {
            sqlite3_stmt *s =
                practice.prepare("SELECT _fila FROM Pacientes ORDER BY \"Apellido y Nombres\", _fila");
            std::vector<qint64> keys;
            while (sqlite3_step(s) == SQLITE_ROW)
                keys.push_back(sqlite3_column_int64(s, 0));
            benchmark::DoNotOptimize(keys.data());
            sqlite3_finalize(s);
        });
}

void walk(benchmark::State &state)
{
    auto &practice = Practice::instance();
    compare(
        state, 2.0,
        [&] {
            auto rs = practice.db.openRecordset("Select * from Pacientes");
            qsizetype characters = 0;
            for (; !rs.eof(); rs.moveNext()) {
                characters += rs[u"Numero"].integer();
                characters += rs[u"Apellido y Nombres"].text().size();
                characters += rs[u"Sexo"].text().size();
            }
            benchmark::DoNotOptimize(characters);
        },
        [&] {
            sqlite3_stmt *s = practice.prepare("SELECT Numero, \"Apellido y Nombres\", Sexo FROM Pacientes");
            const auto text = [s](int column) {
                return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(s, column)),
                                         sqlite3_column_bytes(s, column));
            };
            qsizetype characters = 0;
            while (sqlite3_step(s) == SQLITE_ROW) {
                characters += sqlite3_column_int64(s, 0);
                characters += text(1).size();
                characters += text(2).size();
            }
            benchmark::DoNotOptimize(characters);
            sqlite3_finalize(s);
        });
}

void findLastHit(benchmark::State &state)
{
    auto &practice = Practice::instance();
    const QString wanted = Practice::name(patients - 1).right(6);
    auto rs = practice.db.openRecordset("Select * from Pacientes");
    rs.moveLast();
    const QString criterion = QString("[Apellido y Nombres] LIKE '*%1*'").arg(wanted);
    compare(
        state, 1.5,
        [&] {
            rs.findFirst(criterion);
            if (rs.noMatch())
                qFatal("lost");
        },
        [&] {
            sqlite3_stmt *s = practice.prepare(
                "SELECT _fila FROM Pacientes WHERE \"Apellido y Nombres\" LIKE ? ORDER BY _fila LIMIT 1");
            const QByteArray pattern = '%' + wanted.toUtf8() + '%';
            sqlite3_bind_text(s, 1, pattern.constData(), -1, SQLITE_TRANSIENT);
            if (sqlite3_step(s) != SQLITE_ROW)
                qFatal("lost");
            sqlite3_finalize(s);
        });
}

void firstRow(benchmark::State &state)
{
    auto &practice = Practice::instance();
    int number = 0;
    for (auto _ : state) {
        auto rs = practice.db.openRecordset(
            QString("Select numero, [Apellido y Nombres] from Pacientes where numero = %1")
                .arg(++number % patients));
        benchmark::DoNotOptimize(rs[u"Apellido y Nombres"].value());
    }
}

void openBigTableToAdd(benchmark::State &state)
{
    auto &practice = Practice::instance();
    for (auto _ : state) {
        auto rs = practice.db.openRecordset("Select * from Pacientes");
        rs.addNew();
        rs[u"Sexo"] = "Varon";
        rs.cancelUpdate();
    }
}

} // namespace

BENCHMARK(translateCold)->Unit(benchmark::kMicrosecond);
BENCHMARK(translateCached)->Unit(benchmark::kMicrosecond);
BENCHMARK(firstRow)->Unit(benchmark::kMicrosecond);
BENCHMARK(openBigTableToAdd)->Unit(benchmark::kMicrosecond);
BENCHMARK(seekText)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(seekPrimaryKey)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(openAndMoveLast)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(walk)->UseManualTime()->Iterations(60)->Unit(benchmark::kMillisecond);
BENCHMARK(findLastHit)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(addRows)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

/// Ends non-zero when the layer took longer than it is allowed to.
int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return everythingWithin ? 0 : 1;
}
