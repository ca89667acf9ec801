#include "guion/database.h"

#include "guion/compare.h"
#include "platform/basic/environment.h"
#include "platform/dao/database.h"

namespace guion
{

namespace
{

template <class Work>
auto withDatabase(Program &program, Work work)
{
    try {
        dao::Database database;
        database.open(basic::programFile(program.databaseFile()), false, false, program.connect());
        return work(database);
    } catch (const basic::Error &error) {
        throw Failure(QStringLiteral("error %1: %2").arg(error.number()).arg(error.description()));
    }
}

} // namespace

void execute(Program &program, const QString &statement)
{
    withDatabase(program, [&](dao::Database &database) { return database.execute(statement); });
}

QString firstValue(Program &program, const QString &select)
{
    return withDatabase(program, [&](dao::Database &database) {
        dao::Recordset rows = database.openRecordset(select, dao::Recordset::Kind::Snapshot);
        return rows.eof() ? QStringLiteral("<nada>") : scriptForm(rows.value(0));
    });
}

} // namespace guion
