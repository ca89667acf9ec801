#include "platform/reports/report.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/reports/error.h"
#include "platform/reports/selection.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace reports
{

namespace
{

constexpr double leastBelowHead = dots(6); ///< a head is followed by that much of its list on the same page

constexpr qsizetype bandsKept = 32;

struct Aggregate {
    const char16_t *name;
    Total total;
};
constexpr Aggregate aggregates[] = {{u"suma", Total::Sum},
                                    {u"promedio", Total::Mean},
                                    {u"cantidad", Total::Count},
                                    {u"minimo", Total::Least},
                                    {u"maximo", Total::Greatest}};

} // namespace

Report::Report(ReportFile file, dao::Database &database, const QString &formula, const Parameters &parameters)
    : file_(std::move(file)), database_(database),
      columns_(file_, dots(file_.page.paintRect(QPageLayout::Millimeter).width()))
{
    open(formula);
    bindTexts(parameters);
    Place begin;
    begin.totals = Totals(file_.groups.size() + 1, totalled_.size());
    begins_.push_back(begin);
}

QSizeF Report::pageSize() const
{
    const QSizeF size = file_.page.fullRect(QPageLayout::Millimeter).size();
    return {dots(size.width()), dots(size.height())};
}

void Report::open(const QString &formula)
{
    const QString condition = toDialect(formula);
    if (file_.query.isEmpty())
        return;
    QString query = file_.query;
    query.replace(u"{{seleccion}}"_s, u'(' + condition + u')');
    try {
        rows_ = database_.openRecordset(query, dao::Recordset::Kind::Dynaset);
    } catch (const dao::Error &error) {
        if (error.number() != dao::Error::BadParameters && error.number() != dao::Error::SyntaxError)
            throw;
        throw Error(Error::Selection,
                    u"La consulta del informe %1 no se puede hacer con la selección %2\n\n%3"_s.arg(
                        file_.title, formula, error.description()));
    }
}

// --- what the texts mean ---

void Report::bindTexts(const Parameters &parameters)
{
    for (Text *text : file_.texts()) {
        text->bind([&](const QString &name) { return resolve(name, parameters); });
        tellsPageCount_ = tellsPageCount_ || text->uses(Expression::Source::PageCount);
    }
    for (Column &column : file_.columns)
        if (const auto ordinal = column.text.fieldOrdinal(); column.total != Total::None) {
            if (!ordinal)
                failAt(file_, column.text.names().first(), u"solo se totaliza un campo"_s);
            column.totalPlace = totalledColumn(*ordinal);
        }
}

/// An expression is a name, perhaps with the pattern of its value behind a bar.
Expression Report::resolve(const QString &name, const Parameters &parameters)
{
    const QString wanted = name.section(u'|', 0, 0).trimmed();
    std::optional<Expression> meaning = resolveTotal(wanted);
    if (!meaning)
        meaning = resolveNamed(wanted, parameters);
    if (!meaning)
        failAt(file_, name, u"no se conoce «%1»"_s.arg(wanted));
    meaning->pattern = name.contains(u'|') ? name.section(u'|', 1).trimmed() : QString();
    return *meaning;
}

std::optional<Expression> Report::resolveTotal(const QString &name)
{
    static const QRegularExpression call(u"^(\\w+)\\s*\\((.*)\\)$"_s);
    const auto match = call.match(name);
    for (const Aggregate &aggregate : aggregates) {
        if (match.captured(1).compare(QStringView(aggregate.name), Qt::CaseInsensitive) != 0)
            continue;
        const int ordinal = rows_.isOpen() ? rows_.ordinal(match.captured(2).trimmed()) : -1;
        if (ordinal < 0)
            failAt(file_, name, u"no se conoce el campo «%1»"_s.arg(match.captured(2)));
        Expression expression;
        expression.source = Expression::Source::Total;
        expression.index = static_cast<int>(totalledColumn(ordinal));
        expression.total = aggregate.total;
        return expression;
    }
    return std::nullopt;
}

std::optional<Expression> Report::resolveNamed(const QString &name, const Parameters &parameters) const
{
    Expression expression;
    if (name == u"pagina") {
        expression.source = Expression::Source::Page;
    } else if (name == u"paginas") {
        expression.source = Expression::Source::PageCount;
    } else if (name == u"continua") {
        expression.source = Expression::Source::Continued;
    } else if (const int ordinal = rows_.isOpen() ? rows_.ordinal(name) : -1; ordinal >= 0) {
        expression.source = Expression::Source::Field;
        expression.index = ordinal;
    } else if (const auto given = parameters.constFind(name); given != parameters.constEnd()) {
        expression.parameter = *given;
    } else if (name == u"titulo") {
        expression.parameter = file_.title;
    } else if (name == u"hoy") {
        expression.parameter = basic::today();
    } else if (name == u"hora") {
        expression.parameter = basic::time();
    } else {
        return std::nullopt;
    }
    return expression;
}

std::size_t Report::totalledColumn(int ordinal)
{
    const auto known = std::find(totalled_.begin(), totalled_.end(), ordinal);
    const auto place = static_cast<std::size_t>(known - totalled_.begin());
    if (known == totalled_.end())
        totalled_.push_back(ordinal);
    return place;
}

// --- the list, in the order of its parts ---

bool Report::hasRow(qint64 row) const
{
    return rows_.isOpen() ? rows_.hasRow(row) : row == 0;
}

/// What another station deleted meanwhile shows blank.
basic::Value Report::fieldAt(qint64 row, int ordinal) const
{
    basic::Value value;
    basic::ignoring({dao::Error::RecordDeleted}, [&] { value = rows_.valueAt(row, ordinal); });
    return value;
}

Scope Report::scopeAt(qint64 row, const Place &place, std::size_t level, int page) const
{
    Scope scope;
    if (rows_.isOpen() && row >= 0 && hasRow(row))
        scope.field = [this, row](int ordinal) { return fieldAt(row, ordinal); };
    scope.totals = &place.totals;
    scope.level = level;
    scope.page = page + 1;
    scope.pageCount = complete_ ? pagesKnown() : 0;
    return scope;
}

QStringList Report::keysAt(qint64 row) const
{
    QStringList keys;
    Scope scope;
    scope.field = [this, row](int ordinal) { return fieldAt(row, ordinal); };
    for (const Group &group : file_.groups)
        keys += group.key.render(scope);
    return keys;
}

std::size_t Report::firstChange(const Place &place) const
{
    if (place.row == 0 || !hasRow(place.row))
        return 0;
    const QStringList keys = keysAt(place.row);
    std::size_t change = 0;
    while (change < file_.groups.size() &&
           keys[static_cast<qsizetype>(change)] == place.keys[static_cast<qsizetype>(change)])
        ++change;
    return change;
}

void Report::enterRow(Place &place) const
{
    place.keys = keysAt(place.row);
    if (place.change < file_.groups.size())
        place.totals.restart(place.change + 1);
    for (std::size_t i = 0; i < totalled_.size(); ++i)
        place.totals.add(i, fieldAt(place.row, totalled_[i]));
    place.entered = true;
    place.piece = 0;
}

std::vector<Report::Piece> Report::piecesOf(const Place &place) const
{
    std::vector<Piece> pieces;
    const std::size_t groups = file_.groups.size();
    const bool more = hasRow(place.row);
    if (!place.entered) {
        if (place.row == 0)
            return more ? pieces : std::vector<Piece>{{Piece::Opening}, {Piece::Headings}, {Piece::Empty}};
        for (std::size_t group = groups; group-- > place.change;) {
            pieces.push_back({Piece::GroupTotal, group});
            pieces.push_back({Piece::Foot, group});
        }
        if (!more) {
            pieces.push_back({Piece::GrandTotal});
            pieces.push_back({Piece::Summary});
        }
        return pieces;
    }
    if (place.row == 0) {
        pieces.push_back({Piece::Opening});
        if (!file_.headingsInGroup)
            pieces.push_back({Piece::Headings});
    }
    for (std::size_t group = place.change; group < groups; ++group)
        pieces.push_back({Piece::Head, group});
    if (file_.headingsInGroup && place.change < groups)
        pieces.push_back({Piece::Headings});
    pieces.push_back({Piece::Line});
    pieces.push_back({Piece::Detail});
    return pieces;
}

std::optional<Report::Piece> Report::pieceAt(Place &place) const
{
    for (;;) {
        const std::vector<Piece> pieces = piecesOf(place);
        if (place.piece < pieces.size())
            return pieces[place.piece];
        if (!place.entered) {
            if (!hasRow(place.row))
                return std::nullopt;
            enterRow(place);
            continue;
        }
        ++place.row;
        place.entered = false;
        place.piece = 0;
        place.change = firstChange(place);
    }
}

// --- the look of each part ---

BlockPtr Report::band(const Band &text, const Scope &scope) const
{
    if (text.isEmpty())
        return nullptr;
    const QString html = text.render(scope);
    if (const auto known = bands_.constFind(html); known != bands_.constEnd())
        return *known;
    if (bands_.size() == bandsKept)
        bands_.clear();
    return *bands_.insert(html, htmlBlock(html, file_, width()));
}

BlockPtr Report::headings() const
{
    QStringList titles;
    for (const Column &column : file_.columns)
        titles += column.title;
    return titles.join(QString()).isEmpty() ? nullptr : columns_.block(titles, ColumnLayout::Line::Heading);
}

BlockPtr Report::line(const Place &place) const
{
    if (file_.columns.empty())
        return nullptr;
    const Scope scope = scopeAt(place.row, place, 0, 0);
    QStringList texts;
    for (const Column &column : file_.columns)
        texts += column.text.render(scope);
    const bool striped = file_.striped && place.row % 2;
    return columns_.block(texts, striped ? ColumnLayout::Line::Striped : ColumnLayout::Line::Row);
}

/// The caption stands in the first column that has no total.
BlockPtr Report::totalLine(const Text &caption, const Place &place, std::size_t level) const
{
    if (file_.columns.empty() || caption.isEmpty())
        return nullptr;
    QString toSay = caption.render(scopeAt(place.row - 1, place, level, 0));
    QStringList texts;
    for (const Column &column : file_.columns) {
        if (column.total == Total::None) {
            texts += std::exchange(toSay, QString());
            continue;
        }
        const basic::Value total = place.totals.at(level, column.totalPlace).total(column.total);
        const QString pattern = column.total == Total::Count ? QString() : column.text.pattern();
        texts += pattern.isEmpty() ? total.text() : basic::format(total, pattern);
    }
    return columns_.block(texts, ColumnLayout::Line::Total);
}

BlockPtr Report::layOutPiece(const Piece &piece, const Place &place, int page) const
{
    const qint64 above = place.row - 1; // a foot tells of the rows that it follows
    switch (piece.kind) {
    case Piece::Opening:
        return band(file_.opening, scopeAt(place.row, place, 0, page));
    case Piece::Empty:
        return file_.empty.isEmpty()
                   ? htmlBlock(u"<p style=\"margin-top:8px\">Sin datos</p>"_s, file_, width())
                   : band(file_.empty, scopeAt(-1, place, 0, page));
    case Piece::Head:
        return band(file_.groups[piece.group].head, scopeAt(place.row, place, piece.group + 1, page));
    case Piece::Foot:
        return band(file_.groups[piece.group].foot, scopeAt(above, place, piece.group + 1, page));
    case Piece::GroupTotal:
        return totalLine(file_.groups[piece.group].totalCaption, place, piece.group + 1);
    case Piece::Headings:
        return headings();
    case Piece::Line:
        return line(place);
    case Piece::Detail:
        return band(file_.detail, scopeAt(place.row, place, 0, page));
    case Piece::GrandTotal:
        return totalLine(file_.totalCaption, place, 0);
    case Piece::Summary:
        return band(file_.summary, scopeAt(above, place, 0, page));
    }
    return nullptr;
}

// --- pages ---

/// A head, and the columns' titles, are not left alone at the foot of a page.
bool Report::staysWithNext(const Piece &piece, Place place, int page, double room) const
{
    if (piece.kind != Piece::Head && piece.kind != Piece::Headings)
        return true;
    double needed = 0;
    for (std::optional<Piece> next = piece; next; next = pieceAt(place)) {
        const BlockPtr block = layOutPiece(*next, place, page);
        const bool head = next->kind == Piece::Head || next->kind == Piece::Headings;
        if (block)
            needed += head ? block->height() : qMin(block->height(), leastBelowHead);
        if (needed > room)
            return false;
        if (block && !head)
            break;
        ++place.piece;
    }
    return true;
}

/// The page's head, the heads of the groups that go on, and the columns' titles where the first page has
/// them.
void Report::putTop(Page &built, const Place &begin, const Piece &first, int page, double &top) const
{
    const auto put = [&](const BlockPtr &block) {
        if (!block)
            return;
        built.parts.push_back({block, top, 0, block->height()});
        top += block->height();
    };
    put(band(file_.pageHead, scopeAt(begin.row, begin, 0, page)));
    if (page == 0)
        return;
    const bool inside = first.kind == Piece::Line || first.kind == Piece::Detail;
    const bool list =
        first.kind != Piece::Opening && first.kind != Piece::Headings && first.kind != Piece::Summary;
    if (!file_.headingsInGroup && list)
        put(headings());
    for (std::size_t group = 0; group < file_.groups.size(); ++group) {
        const bool goesOn = inside || (first.kind == Piece::Head && group < first.group);
        if (!file_.groups[group].repeated || !goesOn)
            continue;
        Scope scope = scopeAt(begin.row, begin, group + 1, page);
        scope.continued = true;
        put(band(file_.groups[group].head, scope));
    }
    if (file_.headingsInGroup && inside)
        put(headings());
}

Report::Page Report::build(int page) const
{
    Page built;
    Place place = begins_[static_cast<std::size_t>(page)];
    std::optional<Piece> piece = pieceAt(place);
    const double paperHeight = dots(file_.page.paintRect(QPageLayout::Millimeter).height());
    const BlockPtr foot = band(file_.pageFoot, scopeAt(place.row, place, 0, page));
    const double bottom = paperHeight - (foot ? foot->height() : 0);
    double top = 0;
    if (piece)
        putTop(built, place, *piece, page, top);
    const double begin = top;
    const double whole = qMax(bottom - begin, dots(1));

    for (bool fresh = true; piece; piece = pieceAt(place)) {
        const BlockPtr block = layOutPiece(*piece, place, page);
        if (!block) {
            ++place.piece;
            continue;
        }
        const double left = block->height() - place.drawn, room = bottom - top;
        const bool nextPage =
            piece->kind == Piece::Head && file_.groups[piece->group].newPage && place.row > 0;
        if (!fresh && place.drawn == 0 && (nextPage || !staysWithNext(*piece, place, page, room)))
            break;
        double part = block->fitting(place.drawn, room);
        if (part < left) {
            if (!fresh && left <= whole / 2)
                break;
            if (part <= 0 && !fresh)
                break;
            if (part <= 0)
                part = qMin(left, whole); // higher than any page: cut where it must be
        }
        built.parts.push_back({block, top, place.drawn, part});
        top += part;
        fresh = false;
        if (part < left) {
            place.drawn += part;
            break;
        }
        place.drawn = 0;
        ++place.piece;
    }
    if (piece)
        built.next = place;
    if (const BlockPtr ended =
            band(file_.pageFoot, scopeAt(place.row - (place.entered ? 0 : 1), place, 0, page)))
        built.parts.push_back({ended, paperHeight - ended->height(), 0, ended->height()});
    return built;
}

const Report::Page &Report::built(int page)
{
    if (builtPage_ != page) {
        builtPage_ = -1;
        database_.readTogether([&] { built_ = build(page); });
        builtPage_ = page;
    }
    return built_;
}

bool Report::hasPage(int page)
{
    while (page >= pagesKnown() && !complete_) {
        if (const std::optional<Place> &next = built(pagesKnown() - 1).next) {
            begins_.push_back(*next);
            continue;
        }
        complete_ = true;
        if (tellsPageCount_)
            builtPage_ = -1; // it did not know the number
    }
    return page >= 0 && page < pagesKnown();
}

bool Report::layOut(const std::function<bool(int)> &goOn)
{
    while (!complete_) {
        if (!goOn(pagesKnown()))
            return false;
        hasPage(pagesKnown());
    }
    return true;
}

void Report::paint(QPainter &painter, int page)
{
    const QMarginsF margins = file_.page.margins(QPageLayout::Millimeter);
    for (const Placed &placed : built(page).parts)
        placed.block->draw(painter, QPointF(dots(margins.left()), dots(margins.top()) + placed.top),
                           placed.from, placed.height);
}

std::vector<Report::Reading> Report::read(int page)
{
    const QMarginsF margins = file_.page.margins(QPageLayout::Millimeter);
    std::vector<Reading> readings;
    for (const Placed &placed : built(page).parts)
        readings.push_back(
            {placed.block->text(),
             QRectF(dots(margins.left()), dots(margins.top()) + placed.top, width(), placed.height)});
    return readings;
}

QStringList Report::listTitles() const
{
    QStringList titles;
    for (const Column &column : file_.columns)
        titles += column.title;
    if (titles.isEmpty() && rows_.isOpen())
        for (const dao::FieldDef &field : rows_.fields())
            titles += field.name;
    return titles;
}

std::optional<std::vector<basic::Value>> Report::listRow(qint64 row)
{
    if (!rows_.isOpen() || !hasRow(row))
        return std::nullopt;
    std::vector<basic::Value> values;
    Scope scope;
    scope.field = [this, row](int ordinal) { return fieldAt(row, ordinal); };
    for (const Column &column : file_.columns)
        values.push_back(column.text.isSingle() ? column.text.value(scope)
                                                : basic::Value(column.text.render(scope)));
    if (file_.columns.empty())
        for (std::size_t i = 0; i < rows_.fields().size(); ++i)
            values.push_back(fieldAt(row, static_cast<int>(i)));
    return values;
}

} // namespace reports
