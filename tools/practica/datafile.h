#pragma once

#include "csv.h"

#include <functional>

/// The tables in `datos` that the practice is made from.
namespace practica
{

/// From the one age in months to before the other.
struct Ages {
    double from, to;
    bool holds(double months) const { return months >= from && months < to; }
};

class DataRow
{
public:
    DataRow(const CsvTable &table, const QStringList &row) : table_(table), row_(row) {}
    QString text(const QString &column) const { return row_[table_.column(column)]; }
    double number(const QString &column) const; ///< throws std::runtime_error
    double share(const QString &column) const { return number(column) / 100; }
    QStringList list(const QString &column) const; ///< parted by bars
    Ages ages() const;

private:
    const CsvTable &table_;
    const QStringList &row_;
};

/// Throws std::runtime_error.
void forEachRow(const QString &file, const std::function<void(const DataRow &)> &work);

} // namespace practica
