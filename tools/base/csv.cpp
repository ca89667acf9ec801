#include "csv.h"

#include <QFile>

#include <stdexcept>

namespace
{

std::vector<QStringList> readRows(const QString &text)
{
    std::vector<QStringList> rows;
    QStringList row;
    QString field;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (quoted) {
            if (c == u'"' && i + 1 < text.size() && text[i + 1] == u'"')
                field += text[++i];
            else if (c == u'"')
                quoted = false;
            else
                field += c;
        } else if (c == u'"') {
            quoted = true;
        } else if (c == u',') {
            row += std::exchange(field, {});
        } else if (c == u'\n') {
            row += std::exchange(field, {});
            rows.push_back(std::exchange(row, {}));
        } else if (c != u'\r') {
            field += c;
        }
    }
    if (!field.isEmpty() || !row.isEmpty()) {
        row += field;
        rows.push_back(row);
    }
    return rows;
}

} // namespace

qsizetype CsvTable::column(const QString &heading) const
{
    const qsizetype at = headings.indexOf(heading);
    if (at < 0)
        throw std::runtime_error("no column " + heading.toStdString());
    return at;
}

CsvTable readCsv(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + file.toStdString());
    std::vector<QStringList> rows = readRows(QString::fromUtf8(input.readAll()));
    if (rows.empty())
        throw std::runtime_error("empty file " + file.toStdString());
    CsvTable table{rows.front(), {}};
    table.rows.assign(rows.begin() + 1, rows.end());
    for (const QStringList &row : table.rows)
        if (row.size() != table.headings.size())
            throw std::runtime_error("a row of " + file.toStdString() + " has other fields than its heading");
    return table;
}
