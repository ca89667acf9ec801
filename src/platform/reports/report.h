#pragma once

#include "platform/dao/database.h"
#include "platform/reports/block.h"
#include "platform/reports/reportfile.h"

#include <QHash>

#include <functional>
#include <optional>
#include <vector>

namespace reports
{

/// A report file run over a database with a selection: pages, laid out as they are asked for. Only where
/// each page begins is kept, so that a report of any length takes little memory.
class Report
{
public:
    /// Opens the query; an empty formula selects all. Throws reports::Error for a formula or an expression
    /// that is not understood, dao::Error when the query does not run.
    Report(ReportFile file, dao::Database &database, const QString &formula, const Parameters &parameters);

    const ReportFile &file() const { return file_; }
    const QString &title() const { return file_.title; }
    const QPageLayout &pageLayout() const { return file_.page; }
    QSizeF pageSize() const; ///< in dots, margins included

    /// Pages are numbered from 0. hasPage() lays out no further than that page.
    bool hasPage(int page);
    int pagesKnown() const { return static_cast<int>(begins_.size()); }
    bool complete() const { return complete_; } ///< pagesKnown() are all there are
    /// Lays out all pages; `goOn` is called after each and stops the work by false. True when complete.
    bool layOut(const std::function<bool(int pages)> &goOn);
    bool tellsPageCount() const { return tellsPageCount_; } ///< some text of each page does

    /// Draws a page whose unit is the dot.
    void paint(QPainter &painter, int page);
    /// What can be read on a page, part by part from top to bottom, with the place of each on the paper.
    struct Reading {
        QString text;
        QRectF place;
    };
    std::vector<Reading> read(int page);

    /// The list itself, for other programs: titles and the columns' values; the query's own without columns.
    QStringList listTitles() const;
    std::optional<std::vector<basic::Value>> listRow(qint64 row); ///< nothing beyond the last

private:
    struct Piece {
        enum Kind {
            Opening,
            Empty,
            Head,
            Foot,
            GroupTotal,
            Headings,
            Line,
            Detail,
            GrandTotal,
            Summary
        } kind;
        std::size_t group = 0;
    };
    /// What the next part of the list is, with all that its texts depend on. The parts below a row's groups
    /// come first, while the totals are still those of the groups that end; then the row is entered.
    struct Place {
        qint64 row = 0;
        bool entered = false;
        std::size_t change = 0; ///< the outermost group that the row begins; the number of groups if none
        std::size_t piece = 0;  ///< of those before or after the entering
        double drawn = 0;       ///< of the piece, on the page before
        QStringList keys;       ///< of the groups that are open
        Totals totals;
    };
    struct Placed {
        BlockPtr block;
        double top, from, height;
    };
    struct Page {
        std::vector<Placed> parts;
        std::optional<Place> next; ///< where the page after it begins
    };

    void open(const QString &formula);
    void bindTexts(const Parameters &parameters);
    Expression resolve(const QString &name, const Parameters &parameters);
    std::optional<Expression> resolveTotal(const QString &name);
    std::optional<Expression> resolveNamed(const QString &name, const Parameters &parameters) const;
    std::size_t totalledColumn(int ordinal);

    bool hasRow(qint64 row) const;
    basic::Value fieldAt(qint64 row, int ordinal) const;
    Scope scopeAt(qint64 row, const Place &place, std::size_t level, int page) const;
    QStringList keysAt(qint64 row) const;
    std::size_t firstChange(const Place &place) const;
    void enterRow(Place &place) const;
    std::vector<Piece> piecesOf(const Place &place) const;
    std::optional<Piece> pieceAt(Place &place) const; ///< goes on to the next row where one is done

    BlockPtr layOutPiece(const Piece &piece, const Place &place, int page) const;
    BlockPtr line(const Place &place) const;
    BlockPtr totalLine(const Text &caption, const Place &place, std::size_t level) const;
    BlockPtr band(const Band &text, const Scope &scope) const;
    BlockPtr headings() const;
    bool staysWithNext(const Piece &piece, Place place, int page, double room) const;

    Page build(int page) const;
    void putTop(Page &built, const Place &begin, const Piece &first, int page, double &top) const;
    const Page &built(int page);
    double width() const { return dots(file_.page.paintRect(QPageLayout::Millimeter).width()); }

    ReportFile file_;
    dao::Database &database_;
    dao::Recordset rows_;       ///< closed for a report without a query, which shows its detail once
    std::vector<int> totalled_; ///< ordinals
    ColumnLayout columns_;
    /// Bands laid out last, by their HTML: heads and feet are measured first and stand on page after page.
    mutable QHash<QString, BlockPtr> bands_;
    std::vector<Place> begins_;
    bool complete_ = false;
    bool tellsPageCount_ = false;
    int builtPage_ = -1;
    Page built_;
};

} // namespace reports
