#include "datafile.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace practica
{

double DataRow::number(const QString &column) const
{
    bool valid = false;
    const double value = text(column).toDouble(&valid);
    if (!valid)
        throw std::runtime_error(
            u"no number in the column %1: %2"_s.arg(column, row_.join(u',')).toStdString());
    return value;
}

QStringList DataRow::list(const QString &column) const
{
    return text(column).split(u'|', Qt::SkipEmptyParts);
}

Ages DataRow::ages() const
{
    return {number(u"desde"_s), number(u"hasta"_s)};
}

void forEachRow(const QString &file, const std::function<void(const DataRow &)> &work)
{
    const CsvTable table = readCsv(QStringLiteral(PRACTICE_DATA "/") + file);
    for (const QStringList &row : table.rows)
        work(DataRow(table, row));
}

} // namespace practica
