#include "sql/ParserState.h"

namespace ostrand::sql {

/// True where a query begins at a place. Brackets around it may belong to a member of a UNION;
/// with `wrapped` they may also be idle ones around the whole.
bool Parser::AtQuery(std::size_t place, bool wrapped) const {
    for (; place < lexemes_.size(); ++place) {
        const Lexeme &lexeme = lexemes_[place];
        if (lexeme.keyword == Keyword::Select || lexeme.keyword == Keyword::Table) {
            return true;
        }
        if (lexeme.match == 0) {
            return false;
        }
        const Lexeme &after = lexemes_[lexeme.match + 1];
        if (after.keyword == Keyword::Union) {
            return true;
        }
        const bool idle = wrapped && after.token.type == TokenType::RightParen;
        if (!idle && after.keyword != Keyword::Order) {
            return false;
        }
    }
    return false;
}

QueryTree Parser::ParseQueryInBrackets() {
    const ErrorCode trailing = trailing_;
    Expect(TokenType::LeftParen, ErrorCode::Syntax);
    QueryTree query = ParseQuery();
    Expect(TokenType::RightParen, trailing_);
    trailing_ = trailing;
    return query;
}

QueryTree Parser::ParseQuery() {
    const NestingGuard guard(*this);
    const int outer_height = std::exchange(clause_height_, 0);
    auto query = std::make_unique<ast::Query>();
    query->position = Position();
    query->terms.push_back(ParseQueryTerm());
    while (Accept(Keyword::Union)) {
        const bool all = Accept(Keyword::All);
        query->terms.push_back(ParseQueryTerm());
        query->terms.back().all = all;
    }
    if (At(Keyword::Order)) {
        query->order_by = ParseOrderBy();
        trailing_ = ErrorCode::OrderBySyntax;
    }
    const int height = Raise(std::exchange(clause_height_, outer_height));
    auto *idle = std::get_if<ast::QueryPtr>(&query->terms.front().node);
    if (idle != nullptr && query->terms.size() == 1 && query->order_by.empty()) {
        query = ast::QueryPtr(std::move(*idle));
    }
    return {std::move(query), height};
}

ast::QueryTerm Parser::ParseQueryTerm() {
    if (At(TokenType::LeftParen)) {
        QueryTree query = ParseQueryInBrackets();
        clause_height_ = std::max(clause_height_, query.height);
        return {std::move(query.query)};
    }
    if (Accept(Keyword::Table)) {
        const int position = Position();
        return {SelectAll(ParseName(ErrorCode::FromSyntax), position)};
    }
    return {ParseSelect()};
}

/// SELECT * FROM a table.
std::unique_ptr<ast::Select> Parser::SelectAll(QString table, int position) const {
    auto from = std::make_unique<ast::TableRef>();
    from->node = ast::NamedTable{std::move(table), {}};
    from->position = position;
    auto select = std::make_unique<ast::Select>();
    select->items.emplace_back().position = position;
    select->from.push_back(std::move(from));
    return select;
}

std::unique_ptr<ast::Select> Parser::ParseSelect() {
    Expect(Keyword::Select, ErrorCode::SelectSyntax);
    auto select = std::make_unique<ast::Select>();
    ParseSelectModes(*select);
    ParseSelectList(select->items);
    if (Accept(Keyword::Into)) {
        select->into = ParseName(ErrorCode::SelectSyntax);
        trailing_ = ErrorCode::SelectSyntax;
    }
    if (Accept(Keyword::From)) {
        select->from = ParseTables(ErrorCode::FromSyntax);
        trailing_ = ErrorCode::FromSyntax;
    }
    select->where = ParseWhere();
    if (Accept(Keyword::Group)) {
        Expect(Keyword::By, ErrorCode::GroupBySyntax);
        do {
            select->group_by.push_back(ParseClauseExpr(ErrorCode::GroupBySyntax));
        } while (Accept(TokenType::Comma));
        trailing_ = ErrorCode::GroupBySyntax;
    }
    if (Accept(Keyword::Having)) {
        select->having = ParseClauseExpr(ErrorCode::Syntax);
        trailing_ = ErrorCode::Syntax;
    }
    return select;
}

void Parser::ParseSelectModes(ast::Select &select) {
    if (Accept(Keyword::Distinct)) {
        select.distinct = ast::Distinct::Distinct;
    } else if (Accept(Keyword::DistinctRow)) {
        select.distinct = ast::Distinct::DistinctRow;
    } else {
        Accept(Keyword::All);
    }
    if (At(Keyword::Top) && IsLiteral(Ahead().token.type)) {
        ParseTop(select);
    }
}

void Parser::ParseTop(ast::Select &select) {
    Advance();
    if (!At(TokenType::Integer)) {
        Fail(ErrorCode::SelectSyntax);
    }
    select.top = qint64(Current().token.number);
    Advance();
    if (!At(Keyword::Percent)) {
        return;
    }
    const Lexeme &after = Ahead(); // a column may be called Percent
    const TokenType type = after.token.type;
    const bool column = type == TokenType::Comma || type == TokenType::Dot || type == TokenType::Bang ||
                        type == TokenType::End || after.keyword == Keyword::From || after.keyword == Keyword::As;
    if (!column) {
        Advance();
        select.top_percent = true;
    }
}

void Parser::ParseSelectList(std::vector<ast::SelectItem> &items) {
    do {
        items.push_back(ParseSelectItem());
    } while (Accept(TokenType::Comma));
    trailing_ = items.back().expr ? ErrorCode::Syntax : ErrorCode::SelectSyntax;
}

ast::SelectItem Parser::ParseSelectItem() {
    ast::SelectItem item;
    item.position = Position();
    if (Accept(TokenType::Star)) {
        return item;
    }
    const TokenType next = Ahead().token.type;
    const bool qualified = AtName() && (next == TokenType::Dot || next == TokenType::Bang);
    if (qualified && Ahead(2).token.type == TokenType::Star) {
        item.star_table = NameOf(Current());
        Advance();
        Advance();
        Advance();
        return item;
    }
    item.expr = ParseClauseExpr(ErrorCode::SelectSyntax);
    if (Accept(Keyword::As)) {
        item.alias = ParseSelectAlias();
    }
    return item;
}

QString Parser::ParseSelectAlias() {
    if (At(TokenType::Text)) {
        return ParseLiteral().text;
    }
    return ParseName(ErrorCode::SelectSyntax);
}

/// A comma list of join groups.
std::vector<ast::TableRefPtr> Parser::ParseTables(ErrorCode code) {
    std::vector<ast::TableRefPtr> tables;
    do {
        TableTree group = ParseTableGroup(code);
        clause_height_ = std::max(clause_height_, group.height);
        tables.push_back(std::move(group.table));
    } while (Accept(TokenType::Comma));
    return tables;
}

TableTree Parser::ParseTableGroup(ErrorCode code) {
    TableTree group = ParseTable(code);
    while (AtJoin()) {
        group = ParseJoin(std::move(group), code);
    }
    return group;
}

bool Parser::AtJoin() const {
    if (At(Keyword::Inner)) {
        return true;
    }
    const Keyword next = Ahead().keyword; // Left and Right may be names
    return (At(Keyword::Left) || At(Keyword::Right)) && (next == Keyword::Join || next == Keyword::Outer);
}

TableTree Parser::ParseJoin(TableTree left, ErrorCode code) {
    ast::Join join;
    join.type = At(Keyword::Inner)  ? ast::JoinType::Inner
                : At(Keyword::Left) ? ast::JoinType::Left
                                    : ast::JoinType::Right;
    Advance();
    if (join.type != ast::JoinType::Inner) {
        Accept(Keyword::Outer);
    }
    Expect(Keyword::Join, ErrorCode::JoinSyntax);
    TableTree right = ParseTable(code);
    Expect(Keyword::On, ErrorCode::JoinSyntax);
    join.on = ParseClauseExpr(ErrorCode::JoinSyntax);
    join.left = std::move(left.table);
    join.right = std::move(right.table);

    auto table = std::make_unique<ast::TableRef>();
    table->position = join.left->position;
    table->node = std::move(join);
    return {std::move(table), Raise(std::max({left.height, right.height}))};
}

TableTree Parser::ParseTable(ErrorCode code) {
    const NestingGuard guard(*this);
    auto table = std::make_unique<ast::TableRef>();
    table->position = Position();
    if (!At(TokenType::LeftParen)) {
        QString name = ParseName(code);
        table->node = ast::NamedTable{std::move(name), ParseTableAlias(code)};
        return {std::move(table), 1};
    }
    if (AtQuery(at_ + 1, true)) {
        QueryTree query = ParseQueryInBrackets();
        table->node = ast::DerivedTable{std::move(query.query), ParseTableAlias(code)};
        return {std::move(table), Raise(query.height)};
    }
    Advance();
    TableTree group = ParseTableGroup(code);
    Expect(TokenType::RightParen, code);
    return group;
}

QString Parser::ParseTableAlias(ErrorCode code) {
    if (Accept(Keyword::As)) {
        return ParseName(code);
    }
    const bool alias = AtName() && !AtJoin() && !At(Keyword::With, Keyword::OwnerAccess);
    return alias ? ParseName(code) : QString();
}

std::vector<ast::OrderItem> Parser::ParseOrderBy() {
    Expect(Keyword::Order, ErrorCode::OrderBySyntax);
    Expect(Keyword::By, ErrorCode::OrderBySyntax);
    std::vector<ast::OrderItem> items;
    do {
        ast::OrderItem item;
        item.expr = ParseClauseExpr(ErrorCode::OrderBySyntax);
        item.descending = Accept(Keyword::Desc);
        if (!item.descending) {
            Accept(Keyword::Asc);
        }
        items.push_back(std::move(item));
    } while (Accept(TokenType::Comma));
    return items;
}

ast::Transform Parser::ParseTransform() {
    Expect(Keyword::Transform, ErrorCode::Syntax);
    ast::Transform transform;
    transform.value = ParseClauseExpr(ErrorCode::Syntax);
    if (!At(Keyword::Select)) {
        Fail(ErrorCode::SelectSyntax);
    }
    transform.query = ParseQuery().query;
    if (transform.query->terms.size() != 1) {
        Fail(ErrorCode::Syntax);
    }
    Expect(Keyword::Pivot, trailing_);
    transform.pivot = ParseWithoutComparison();
    if (Accept(Keyword::In)) {
        Expect(TokenType::LeftParen, ErrorCode::Syntax);
        do {
            transform.headings.push_back(ParseHeading());
        } while (Accept(TokenType::Comma));
        Expect(TokenType::RightParen, ErrorCode::Syntax);
    }
    trailing_ = ErrorCode::Syntax;
    return transform;
}

ast::Literal Parser::ParseHeading() {
    const bool negative = Accept(TokenType::Minus);
    const bool number = At(TokenType::Integer) || At(TokenType::Real);
    if (negative ? !number : !IsLiteral(Type()) && !AtWordLiteral()) {
        Fail(ErrorCode::Syntax);
    }
    ast::Literal heading = ParseLiteral();
    if (negative) {
        heading.number = -heading.number;
        heading.index = -1; // no longer the value of its token
    }
    return heading;
}

} // namespace ostrand::sql
