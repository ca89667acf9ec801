#include "platform/reports/output.h"

#include "platform/basic/runtime.h"
#include "platform/reports/error.h"

#include <QFile>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QSaveFile>
#include <QTemporaryFile>

#include <xlsxwriter.h>
#include <zip.h>

#include <array>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

constexpr qint64 progressRows = 500;
constexpr qint64 spreadsheetRows = 1'048'575; ///< a sheet holds no more, besides its heads

bool goesOn(const Progress &progress, qint64 done)
{
    return !progress || progress(done);
}

[[noreturn]] void failWriting(const QString &path, const QString &why)
{
    throw Error(Error::Output, u"No se pudo guardar el archivo %1: %2"_s.arg(path, why));
}

/// A cell of the file. A text that a spreadsheet program would run as a formula is told to be a text.
QString csvCell(const basic::Value &value)
{
    QString text = value.text();
    if (value.as<QString>() && !text.isEmpty() && u"=+-@\t\r"_s.contains(text.front()) &&
        !basic::isNumeric(text))
        text.prepend(u'\'');
    if (!text.contains(u';') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r'))
        return text;
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

/// A workbook being written to a file of its own, without keeping its rows.
class Workbook
{
public:
    Workbook(const QString &path, const QString &title)
    {
        lxw_workbook_options options{};
        options.constant_memory = 1;
        QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
        options.tmpdir = folder.data();
        book_ = workbook_new_opt(QFile::encodeName(path).constData(), &options);
        sheet_ = workbook_add_worksheet(book_, nullptr);
        heading_ = workbook_add_format(book_);
        format_set_bold(heading_);
        day_ = numberFormat("dd/mm/yyyy");
        moment_ = numberFormat("dd/mm/yyyy hh:mm");
        hour_ = numberFormat("hh:mm");
        money_ = numberFormat("#,##0.00");
        lxw_doc_properties properties{};
        QByteArray name = title.toUtf8();
        properties.title = name.data();
        workbook_set_properties(book_, &properties);
        worksheet_freeze_panes(sheet_, 1, 0);
    }
    ~Workbook()
    {
        if (book_)
            workbook_close(book_);
    }
    Workbook(const Workbook &) = delete;
    Workbook &operator=(const Workbook &) = delete;

    void heading(int column, const QString &text) { put(0, column, text, heading_); }

    void cell(lxw_row_t row, int column, const basic::Value &value)
    {
        const auto place = static_cast<lxw_col_t>(column);
        if (value.isBlank())
            return;
        if (const auto *date = value.as<basic::Date>())
            worksheet_write_number(sheet_, row, place, date->serial(), dateFormat(*date));
        else if (value.as<basic::Currency>())
            worksheet_write_number(sheet_, row, place, value.number(), money_);
        else if (value.as<qint64>() || value.as<double>())
            worksheet_write_number(sheet_, row, place, value.number(), nullptr);
        else if (const bool *truth = value.as<bool>())
            worksheet_write_boolean(sheet_, row, place, *truth, nullptr);
        else
            put(row, column, value.text(), nullptr);
    }

    /// What went wrong, or nothing.
    QString close()
    {
        const lxw_error error = workbook_close(std::exchange(book_, nullptr));
        return error == LXW_NO_ERROR ? QString() : QString::fromUtf8(lxw_strerror(error));
    }

private:
    static constexpr int longestText = 32767;

    lxw_format *numberFormat(const char *pattern)
    {
        lxw_format *format = workbook_add_format(book_);
        format_set_num_format(format, pattern);
        return format;
    }

    lxw_format *dateFormat(const basic::Date &date) const
    {
        if (date.wholeDays() == 0)
            return hour_;
        return date == date.dateOnly() ? day_ : moment_;
    }

    void put(lxw_row_t row, int column, const QString &text, lxw_format *format)
    {
        worksheet_write_string(sheet_, row, static_cast<lxw_col_t>(column),
                               text.left(longestText).toUtf8().constData(), format);
    }

    lxw_workbook *book_;
    lxw_worksheet *sheet_;
    lxw_format *heading_, *day_, *moment_, *hour_, *money_;
};

/// Whether a workbook has its rows to the last: a disk that filled up while they were written is not told.
bool isWhole(const QString &path)
{
    constexpr QByteArrayView end("</worksheet>");
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    if (!archive)
        return false;
    QByteArray tail;
    if (zip_file_t *sheet = zip_fopen(archive, "xl/worksheets/sheet1.xml", 0)) {
        std::array<char, 65536> part;
        for (zip_int64_t read; (read = zip_fread(sheet, part.data(), part.size())) > 0;)
            tail = tail.append(part.data(), read).right(end.size());
        zip_fclose(sheet);
    }
    zip_discard(archive);
    return tail == end;
}

} // namespace

bool print(Report &report, const printing::Choice &choice, const Progress &progress)
{
    const auto going = [&](int pages) { return goesOn(progress, pages); };
    if (report.tellsPageCount() && !report.layOut(going))
        return false;
    printing::Job job(choice, report.title(), report.pageLayout());
    for (int page = 0; report.hasPage(page); ++page) {
        if (!going(page))
            return false;
        if (page > 0)
            job.newPage();
        QPainter &painter = job.painter();
        painter.save();
        const double scale = job.device().logicalDpiX() / dotsPerInch;
        painter.scale(scale, scale);
        report.paint(painter, page);
        painter.restore();
    }
    job.finish();
    return true;
}

Listing listing(Report &report)
{
    return {report.listTitles(), [&report](qint64 row) { return report.listRow(row); }};
}

Listing listing(const dao::Recordset &rows)
{
    Listing list;
    for (const dao::FieldDef &field : rows.fields())
        list.titles += field.name;
    list.row = [&rows](qint64 row) -> std::optional<std::vector<basic::Value>> {
        if (!rows.hasRow(row))
            return std::nullopt;
        std::vector<basic::Value> values(rows.fields().size());
        for (std::size_t i = 0; i < values.size(); ++i)
            basic::ignoring({dao::Error::RecordDeleted},
                            [&] { values[i] = rows.valueAt(row, static_cast<int>(i)); });
        return values;
    };
    return list;
}

bool writeCsv(const Listing &list, const QString &path, const Progress &progress)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        failWriting(path, file.errorString());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    // The mark by which spreadsheet programs know the letters.
    QString text(QChar::ByteOrderMark);
    const auto putRow = [&](const std::vector<basic::Value> &values) {
        QStringList cells;
        for (const basic::Value &value : values)
            cells += csvCell(value);
        text += cells.join(u';') + u"\r\n"_s;
    };
    putRow({list.titles.begin(), list.titles.end()});
    for (qint64 row = 0;; ++row) {
        const auto values = list.row(row);
        if (values)
            putRow(*values);
        if (!values || row % progressRows == 0) {
            file.write(std::exchange(text, QString()).toUtf8());
            if (!goesOn(progress, row))
                return false;
        }
        if (!values)
            break;
    }
    if (!file.commit())
        failWriting(path, file.errorString());
    return true;
}

bool writeSpreadsheet(const Listing &list, const QString &title, const QString &path,
                      const Progress &progress)
{
    QTemporaryFile beside(path + u".XXXXXX"_s);
    if (!beside.open())
        failWriting(path, beside.errorString());
    Workbook book(beside.fileName(), title);
    for (int column = 0; column < list.titles.size(); ++column)
        book.heading(column, list.titles[column]);
    for (qint64 row = 0; row < spreadsheetRows; ++row) {
        const auto values = list.row(row);
        if (!values)
            break;
        for (std::size_t column = 0; column < values->size(); ++column)
            book.cell(static_cast<lxw_row_t>(row + 1), static_cast<int>(column), (*values)[column]);
        if (row % progressRows == 0 && !goesOn(progress, row))
            return false;
    }
    if (list.row(spreadsheetRows))
        failWriting(path, u"son más filas de las que entran en una planilla."_s);
    if (const QString error = book.close(); !error.isEmpty())
        failWriting(path, error);
    if (!isWhole(beside.fileName()))
        failWriting(path, u"no hay lugar en el disco."_s);
    // Over one of that name only once it is whole.
    if (::rename(QFile::encodeName(beside.fileName()).constData(), QFile::encodeName(path).constData()) != 0)
        failWriting(path, qt_error_string());
    beside.setAutoRemove(false);
    return true;
}

} // namespace reports
