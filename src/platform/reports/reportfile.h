#pragma once

#include "platform/reports/text.h"

#include <QFont>
#include <QPageLayout>
#include <QString>

#include <vector>

namespace reports
{

/// A part of a report, written with HTML and expressions; an empty one takes no room.
using Band = Text;
inline Band noBand()
{
    return Band(Text::Kind::Html);
}

struct Column {
    QString title;
    double width = 0; ///< in millimetres; 0 shares what the others leave
    Qt::Alignment alignment = Qt::AlignLeft;
    bool bold = false;
    Total total = Total::None;
    std::size_t totalPlace = 0; ///< among the totalled fields, once a report binds it
    Text text{Text::Kind::Plain};
};

/// Rows that follow one another with the same value of an expression.
struct Group {
    Text key{Text::Kind::Plain};
    Band head = noBand(), foot = noBand();
    Text totalCaption{Text::Kind::Plain}; ///< of the line with the columns' totals; empty: no line
    bool newPage = false;                 ///< each group begins a page
    bool repeated = false;                ///< the head stands again on the pages that the group goes on to
};

/// A report as the practice wrote it: what it reads, and how each part is shown. The format is told in the
/// manual's chapter "Informes".
struct ReportFile {
    QString path;    ///< pictures are looked for beside it
    QString content; ///< as read, to tell where something stands
    QString title;   ///< the document's name
    QPageLayout page;
    QFont font;
    QString style; ///< a style sheet for the bands
    QString query; ///< in the database's dialect, with {{seleccion}} where the condition goes; may be empty
    Band opening = noBand(); ///< once, on the first page
    Band pageHead = noBand(), pageFoot = noBand();
    std::vector<Group> groups; ///< from the outermost
    std::vector<Column> columns;
    bool headingsInGroup = false; ///< the columns' titles follow the innermost group's head
    bool striped = false;
    Text totalCaption{Text::Kind::Plain}; ///< as Group's, for the whole report
    Band detail = noBand(), summary = noBand(), empty = noBand();

    /// All texts with expressions, to be bound to what the query gives.
    std::vector<Text *> texts();
};

/// Reads a report file; throws reports::Error with the line and column of what is wrong.
ReportFile readReportFile(const QString &path);
ReportFile parseReportFile(const QString &content, const QString &path);

/// Refuses an expression of the file, with the line and column where it stands.
[[noreturn]] void failAt(const ReportFile &file, const QString &expression, const QString &what);

} // namespace reports
