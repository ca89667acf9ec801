// Any text either parses or throws a dao::Error; what parses, written back, parses to the same tree, and over
// a small practice it is either run or refused.
#include "platform/dao/database.h"
#include "platform/dao/dialect/ast.h"
#include "platform/dao/dialect/parser.h"

#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace
{

/// Opened once: what is fuzzed must not change it for good, so only queries run.
dao::Database &practice()
{
    static const QTemporaryDir folder("/tmp/fuzz-XXXXXX");
    static dao::Database db;
    if (!db.isOpen()) {
        db.create(folder.filePath("BASE.MDB"), {});
        db.execute(
            "CREATE TABLE Pacientes (Numero LONG, [Apellido y Nombres] TEXT(50), FechaBaja DATE, Saldo CURRENCY, "
            "Activo BIT)");
        db.execute(
            "CREATE TABLE Turnos (idTurno COUNTER, Fecha DATE, Hora DATE, idPaciente LONG, Dr TEXT(50))");
        db.execute("INSERT INTO Pacientes VALUES (1, 'Nuñez, Ana', NULL, 1.5, TRUE)");
        db.createQuery("Consulta1", "Select Numero from Pacientes");
    }
    return db;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    try {
        const dao::Statement tree = dao::parseStatement(text);
        if (!dao::sameStatement(tree, dao::parseStatement(dao::toText(tree))))
            abort();
        if (std::holds_alternative<dao::SelectPtr>(tree)) {
            auto rs = practice().openRecordset(text, dao::Recordset::Kind::Dynaset);
            rs.findFirst("Numero = 1");
        }
    } catch (const dao::Error &) {
        // Refused in words: as it should be.
    }
    return 0;
}
