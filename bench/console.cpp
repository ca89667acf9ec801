#include "console.h"

#include "core/service/vaciado.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/forms/controls.h"
#include "platform/forms/dbgrid.h"

#include <QApplication>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;

namespace bench
{

namespace
{

constexpr double patienceForATable = 100, patienceForAFilter = 1000, patienceForAllCounted = 1500;
constexpr double patienceForTheCounts = 1000, patienceForEmptying = 15000;

/// The rows are in sight; all are counted behind their first paint.
void rowByRow(const Report &report, Form &files)
{
    auto &table = in<ComboBox>(files, "Combo1");
    report("panGArchivos, the visits opened to first paint", elapsed([&] {
               table.setValue(u"Consulta"_s);
               files.grab();
           }),
           patienceForATable);
    report("panGArchivos, all visits counted", elapsed([] { QApplication::processEvents(); }),
           patienceForAllCounted);
    in<ComboBox>(files, "Combo4").setValue(u"Motivo"_s);
    in<ComboBox>(files, "Combo3").setValue(u"LIKE"_s);
    in<TextBox>(files, "Text1").setText(u"no está en ninguna"_s);
    report("panGArchivos, a filter over a column without index", elapsed([&] {
               in<CommandButton>(files, "Command1").click();
               files.grab();
           }),
           patienceForAFilter);
}

/// Of a copy: what is emptied does not come back.
void emptying(const Report &report)
{
    const QString file = BaseDatos.path(), copy = file + u".vaciado"_s;
    BaseDatos.close();
    QFile::remove(copy);
    QFile::copy(file, copy);
    BaseDatos.open(copy, false, false, MODULE11::conexionDeLaBase());
    report("rows of the daily tables counted", elapsed([] { vaciado::cuentas(); }), patienceForTheCounts);
    report("all daily tables emptied",
           elapsed([] { vaciado::vaciar(BaseDatos, [](const QString &) { return true; }); }),
           patienceForEmptying);
    BaseDatos.close();
    QFile::remove(copy);
    QFile::remove(copy + u".cola"_s);
    BaseDatos.open(file, false, false, MODULE11::conexionDeLaBase());
}

} // namespace

void console(const Report &report)
{
    modally([] { screens::showModal("panGArchivos"); },
            [&](Form &files) {
                rowByRow(report, files);
                files.unload();
            });
    emptying(report);
}

} // namespace bench
