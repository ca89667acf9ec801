// Any formula is either refused in words or becomes one condition that the dialect understands: what it says
// cannot end the statement around it.
#include "platform/dao/dialect/parser.h"
#include "platform/dao/error.h"
#include "platform/reports/error.h"
#include "platform/reports/selection.h"

#include <cstdint>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace
{

/// The statement with the condition in place of a plain one, if it still reads as such a statement.
bool isOneCondition(const QString &condition)
{
    const QString frame = u"SELECT a FROM t WHERE (%1) ORDER BY b"_s;
    const dao::Statement tree = dao::parseStatement(QString(frame).replace(u"%1"_s, condition));
    const auto *select = std::get_if<dao::SelectPtr>(&tree);
    return select && dao::toText(tree).endsWith(u"[b]"_s);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString formula =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QString condition;
    try {
        condition = reports::toDialect(formula);
    } catch (const reports::Error &) {
        return 0;
    }
    try {
        if (!isOneCondition(condition))
            abort();
    } catch (const dao::Error &error) {
        qFatal("%s\n%s", error.what(), qPrintable(condition));
    }
    return 0;
}
