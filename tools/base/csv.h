#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// One data file of comma-separated values: a heading row, then rows of texts.
struct CsvTable {
    QStringList headings;
    std::vector<QStringList> rows;

    /// Position of a heading; throws std::runtime_error when it is missing.
    qsizetype column(const QString &heading) const;
};

/// Reads a UTF-8 file, fields quoted with doubled quotation marks inside. Throws std::runtime_error.
CsvTable readCsv(const QString &file);
