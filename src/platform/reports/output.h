#pragma once

#include "platform/printing/printer.h"
#include "platform/reports/report.h"

#include <functional>

namespace reports
{

/// Told how far a long work is, in pages or rows; false stops it.
using Progress = std::function<bool(qint64 done)>;

/// Prints all pages to a printer or a PDF file. False when it was stopped: then nothing is left of the file,
/// and the printer is told to forget it. Throws basic::Error when the printer or the file refuses.
bool print(Report &report, const printing::Choice &choice, const Progress &progress = {});

/// What can be read of a list, row by row.
struct Listing {
    QStringList titles;
    std::function<std::optional<std::vector<basic::Value>>(qint64 row)> row; ///< nothing beyond the last
};
Listing listing(Report &report);
Listing listing(const dao::Recordset &rows); ///< must outlive it

/// A list for other programs: text with a separator by the practice's locale (";" where the comma is the
/// decimal sign), and a spreadsheet whose numbers and dates are such. Written row by row beside the file and
/// renamed at the end. False when it was stopped; throws reports::Error.
bool writeCsv(const Listing &list, const QString &path, const Progress &progress = {});
bool writeSpreadsheet(const Listing &list, const QString &title, const QString &path,
                      const Progress &progress = {});

} // namespace reports
