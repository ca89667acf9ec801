// How long the reports take on a practice's folder, as a person would wait for them:
//   bench_reports FOLDER
// Ends non-zero when something was over its limit.
#include "measure.h"
#include "onpractice.h"

#include "core/database/actualiza.h"
#include "core/reports/exportaHtml.h"
#include "core/reports/informes.h"
#include "core/reports/panCrystal.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/reports/selection.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <ctime>

using namespace Qt::StringLiterals;

namespace
{

constexpr int manyVisits = 100'000;
constexpr double someMemory = 30; // megabytes

bench::Limits limits;

reports::Report made(const QString &name, const QString &formula = {})
{
    return reports::Report(reports::readReportFile(informes::ruta(name)), MODULE11::BaseDatos, formula,
                           {{u"profesional"_s, MODULE11::DrActual}, {u"usuario"_s, MODULE11::UsuarioActual}});
}

/// The day since which there have been so many visits.
QString sinceManyVisits()
{
    dao::Recordset days =
        MODULE11::BaseDatos.openRecordset(u"Select Fecha from Consulta order by Fecha desc"_s);
    if (!days.hasRow(manyVisits))
        throw std::runtime_error("the practice has too few visits");
    return u"{Consulta.Fecha} >= "_s + reports::literal(*days.valueAt(manyVisits, 0).as<basic::Date>());
}

/// A report with all its rows, which is the longest that anybody can ask for.
void previews()
{
    for (const QString &name : QDir(basic::programFile(u"informes"_s)).entryList({u"*.rpt"_s}, QDir::Files)) {
        const auto open = [&] {
            panCrystal *preview = nullptr;
            const double ready = bench::elapsed([&] { preview = new panCrystal(made(name)); });
            const double painted = bench::untilPainted(*preview);
            delete preview;
            return ready + painted;
        };
        limits.time(("first page of " + name + ", the first time").toStdString(), open(), 500);
        limits.time(("first page of " + name + ", again").toStdString(), open(), 500);
    }
}

/// Runs what tells its progress, watching the memory.
template <class Work>
void watched(const std::string &work, double limit, double memory, Work &&run)
{
    const double before = bench::resident();
    double most = before;
    const std::clock_t began = std::clock();
    const double taken = bench::elapsed([&] {
        run([&](qint64) {
            most = std::max(most, bench::resident());
            return true;
        });
    });
    const double processor = static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC;
    limits.time(work, taken, limit);
    std::cout << "     of that the processor worked " << processor << " s\n";
    limits.check(work + ", memory it took", most - before, " MB", memory);
}

void onPaper(const QString &folder, const QString &visits)
{
    watched("cie10 whole, to PDF", 4000, someMemory, [&](const auto &progress) {
        reports::Report diseases = made(u"cie10.rpt"_s);
        reports::print(diseases, {{}, folder + u"/cie10.pdf"_s}, progress);
    });
    for (const QString &name : {u"consultorio.rpt"_s, u"CONS.RPT"_s})
        watched((u"100,000 visits by %1, to PDF"_s.arg(name)).toStdString(), 25'000, someMemory,
                [&](const auto &progress) {
                    reports::Report list = made(name, visits);
                    reports::print(list, {{}, folder + u"/consultas.pdf"_s}, progress);
                    std::cout << "     " << list.pagesKnown() << " pages\n";
                });
}

void inFiles(const QString &folder, const QString &visits)
{
    watched("100,000 rows to HTML", 10'000, someMemory, [&](const auto &progress) {
        const dao::Recordset rows = MODULE11::BaseDatos.openRecordset(
            u"Select Fecha, Hora, [Nombre del Paciente], Mutual, Motivo, [Diagnostico 1] from Consulta where "_s +
                reports::toDialect(visits),
            dao::Recordset::Kind::Dynaset);
        QFile file(folder + u"/consultas.html"_s);
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("no file for the HTML");
        informes::escribeHtml(file, rows, u"Consultas"_s, 600, std::nullopt, progress);
    });
    watched("100,000 rows to CSV", 5000, someMemory, [&](const auto &progress) {
        reports::Report list = made(u"consultorio.rpt"_s, visits);
        reports::writeCsv(reports::listing(list), folder + u"/consultas.csv"_s, progress);
    });
    watched("100,000 rows to a spreadsheet", 20'000, someMemory, [&](const auto &progress) {
        reports::Report list = made(u"consultorio.rpt"_s, visits);
        reports::writeSpreadsheet(reports::listing(list), list.title(), folder + u"/consultas.xlsx"_s,
                                  progress);
    });
}

void measure()
{
    MODULE11::valoresIniciales();
    MODULE11::BaseDatos.open(basic::programFile(u"BASE.MDB"_s), false, false, MODULE11::conexionDeLaBase());
    MODULE11::ActualizaBase();
    const QTemporaryDir folder;
    const QString visits = sinceManyVisits();
    previews();
    onPaper(folder.path(), visits);
    inFiles(folder.path(), visits);
}

} // namespace

int main(int argc, char **argv)
{
    return bench::onPractice(argc, argv, limits, measure);
}
