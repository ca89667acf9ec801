#include "platform/dao/dialect/parser.h"

#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/parserbase.h"
#include "platform/dao/dialect/types.h"

namespace dao
{

SelectPtr QueryParser::wholeSelect()
{
    SelectPtr query = select();
    expectEnd();
    return query;
}

SelectPtr QueryParser::select()
{
    SelectPtr query = member();
    while (take(Word::Union)) {
        const bool all = take(Word::All);
        SelectPtr next = member();
        next->unionAll = all;
        query->unions.push_back(std::move(next));
    }
    if (take(Word::Order)) {
        expect(Word::By);
        do {
            OrderItem order{expression()};
            order.descending = take(Word::Desc);
            if (!order.descending)
                take(Word::Asc);
            query->orderBy.push_back(std::move(order));
        } while (take(Symbol::Comma));
    }
    return query;
}

SelectPtr QueryParser::member()
{
    auto query = std::make_unique<Select>();
    expect(Word::Select);
    if (!take(Word::All))
        query->distinct = take(Word::Distinct) || take(Word::Distinctrow);
    if (take(Word::Top))
        query->top = expectWhole();
    do
        query->items.push_back(item());
    while (take(Symbol::Comma));
    if (take(Word::From)) {
        do
            query->from.push_back(joinedTables());
        while (take(Symbol::Comma));
    }
    if (take(Word::Where))
        query->where = expression();
    if (take(Word::Group)) {
        expect(Word::By);
        query->groupBy = expressionList();
    }
    if (take(Word::Having))
        query->having = expression();
    return query;
}

SelectItem QueryParser::item()
{
    SelectItem item;
    if (at(Symbol::Times)) {
        item.expr = std::make_unique<Expr>();
        item.expr->kind = ExprKind::Star;
        item.expr->position = token().position;
        advance();
        return item;
    }
    item.expr = expression();
    if (take(Word::As))
        item.alias = expectName();
    return item;
}

std::unique_ptr<TableRef> QueryParser::joinedTables()
{
    std::unique_ptr<TableRef> left = tableOrJoin();
    while (at(Word::Inner) || at(Word::Left) || at(Word::Right) || at(Word::Join)) {
        countLink();
        auto join = std::make_unique<TableRef>();
        join->position = token().position;
        join->join = at(Word::Left) ? JoinKind::Left : at(Word::Right) ? JoinKind::Right : JoinKind::Inner;
        if (!at(Word::Join))
            advance();
        if (join->join != JoinKind::Inner)
            take(Word::Outer);
        expect(Word::Join);
        join->left = std::move(left);
        join->right = tableOrJoin();
        expect(Word::On);
        join->on = expression();
        left = std::move(join);
    }
    return left;
}

std::unique_ptr<TableRef> QueryParser::tableOrJoin()
{
    if (take(Symbol::Open)) {
        countLink();
        std::unique_ptr<TableRef> inner = joinedTables();
        expect(Symbol::Close);
        return inner;
    }
    auto ref = std::make_unique<TableRef>();
    ref->position = token().position;
    ref->name = expectName();
    if (take(Word::As) || atName())
        ref->alias = expectName();
    return ref;
}

namespace
{

class StatementParser : public QueryParser
{
public:
    using QueryParser::QueryParser;

    Statement statement()
    {
        Statement result = body();
        expectEnd();
        return result;
    }

private:
    Statement body()
    {
        if (at(Word::Select))
            return select();
        if (take(Word::Insert))
            return insert();
        if (take(Word::Update))
            return update();
        if (take(Word::Delete))
            return remove();
        if (takeWord(u"CREATE"))
            return create();
        if (takeWord(u"DROP"))
            return drop();
        if (takeWord(u"ALTER"))
            return alter();
        fail();
    }

    Statement insert()
    {
        Insert insert;
        expect(Word::Into);
        insert.table = expectName();
        if (take(Symbol::Open)) {
            do
                insert.columns.push_back(expectName());
            while (take(Symbol::Comma));
            expect(Symbol::Close);
        }
        if (at(Word::Select)) {
            insert.select = select();
        } else {
            expect(Word::Values);
            expect(Symbol::Open);
            insert.values = expressionList();
            expect(Symbol::Close);
        }
        return insert;
    }

    Statement update()
    {
        Update update;
        update.table = expectName();
        expect(Word::Set);
        do {
            Assignment assignment;
            assignment.column = expectName();
            if (take(Symbol::Point))
                assignment.column = expectName();
            expect(Symbol::Equal);
            assignment.value = expression();
            update.assignments.push_back(std::move(assignment));
        } while (take(Symbol::Comma));
        if (take(Word::Where))
            update.where = expression();
        return update;
    }

    Statement remove()
    {
        Delete remove;
        if (!take(Symbol::Times) && atName()) {
            expectName();
            expect(Symbol::Point);
            expect(Symbol::Times);
        }
        expect(Word::From);
        remove.table = expectName();
        if (take(Word::Where))
            remove.where = expression();
        return remove;
    }

    Statement create()
    {
        if (takeWord(u"TABLE"))
            return createTable();
        CreateIndex create;
        create.index.unique = takeWord(u"UNIQUE");
        expectWord(u"INDEX");
        create.index.name = expectName();
        expect(Word::On);
        create.table = expectName();
        expect(Symbol::Open);
        do {
            create.index.fields << expectName();
            take(Word::Asc);
        } while (take(Symbol::Comma));
        expect(Symbol::Close);
        if (takeWord(u"WITH")) {
            expectWord(u"PRIMARY");
            create.index.primary = create.index.unique = true;
        }
        // The name that every screen seeks the primary key by; it says nothing of being unique.
        if (sameName(create.index.name, u"PrimaryKey"))
            create.index.primary = true;
        return create;
    }

    Statement createTable()
    {
        CreateTable create;
        create.table = expectName();
        expect(Symbol::Open);
        do
            create.columns.push_back(columnDef());
        while (take(Symbol::Comma));
        expect(Symbol::Close);
        return create;
    }

    FieldDef columnDef()
    {
        FieldDef column;
        column.name = expectName();
        const std::optional<FieldType> type = atName() ? typeNamed(token().text) : std::nullopt;
        if (!type)
            fail();
        advance();
        column.type = *type;
        column.size = defaultSize(*type);
        if (*type == FieldType::Text && take(Symbol::Open)) {
            const qint64 size = expectWhole();
            if (size < 1 || size > 255)
                fail();
            column.size = static_cast<int>(size);
            expect(Symbol::Close);
        }
        return column;
    }

    Statement drop()
    {
        if (takeWord(u"TABLE"))
            return DropTable{expectName()};
        expectWord(u"INDEX");
        DropIndex drop;
        drop.index = expectName();
        expect(Word::On);
        drop.table = expectName();
        return drop;
    }

    Statement alter()
    {
        expectWord(u"TABLE");
        const QString table = expectName();
        if (takeWord(u"ADD")) {
            takeWord(u"COLUMN");
            return AddColumn{table, columnDef()};
        }
        expectWord(u"DROP");
        takeWord(u"COLUMN");
        return DropColumn{table, expectName()};
    }
};

} // namespace

Statement parseStatement(const QString &text)
{
    return StatementParser(text).statement();
}

SelectPtr parseSelect(const QString &text)
{
    return QueryParser(text).wholeSelect();
}

ExprPtr parseCriterion(const QString &text)
{
    return QueryParser(text).criterion();
}

} // namespace dao
