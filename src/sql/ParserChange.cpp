#include "sql/ParserState.h"

namespace ostrand::sql {

ast::ExprPtr Parser::ParseWhere() {
    if (!Accept(Keyword::Where)) {
        return nullptr;
    }
    ast::ExprPtr where = ParseClauseExpr(ErrorCode::WhereSyntax);
    trailing_ = ErrorCode::Syntax;
    return where;
}

ast::Insert Parser::ParseInsert(ast::Statement &statement) {
    Expect(Keyword::Insert, ErrorCode::InsertSyntax);
    Expect(Keyword::Into, ErrorCode::InsertSyntax);
    statement.position = Position();
    ast::Insert insert;
    insert.table = ParseName(ErrorCode::InsertSyntax);
    if (At(TokenType::LeftParen) && !AtQuery(at_ + 1, true)) {
        insert.columns = ParseNameList(ErrorCode::InsertSyntax);
    }
    insert.values_position = Position();
    if (Accept(Keyword::Values)) {
        Expect(TokenType::LeftParen, ErrorCode::InsertSyntax);
        do {
            insert.values.push_back(ParseClauseExpr(ErrorCode::InsertSyntax));
        } while (Accept(TokenType::Comma));
        Expect(TokenType::RightParen, At(TokenType::End) ? ErrorCode::InsertSyntax : ErrorCode::Syntax);
        trailing_ = ErrorCode::InsertSyntax;
        return insert;
    }
    if (!AtQuery(At(TokenType::LeftParen) ? at_ + 1 : at_, true)) {
        Fail(ErrorCode::InsertSyntax);
    }
    insert.query = ParseQuery().query;
    return insert;
}

ast::Update Parser::ParseUpdate(ast::Statement &statement) {
    Expect(Keyword::Update, ErrorCode::UpdateSyntax);
    Accept(Keyword::DistinctRow);
    statement.position = Position();
    ast::Update update;
    update.tables = ParseTables(ErrorCode::UpdateSyntax);
    Expect(Keyword::Set, ErrorCode::UpdateSyntax);
    do {
        update.assignments.push_back(ParseAssignment());
    } while (Accept(TokenType::Comma));
    trailing_ = ErrorCode::Syntax;
    update.where = ParseWhere();
    return update;
}

ast::Assignment Parser::ParseAssignment() {
    ast::Assignment assignment;
    assignment.position = Position();
    assignment.column.name = ParseName(ErrorCode::UpdateSyntax);
    if (Accept(TokenType::Dot) || Accept(TokenType::Bang)) {
        assignment.column.table = std::move(assignment.column.name);
        assignment.column.name = ParseQualifiedName(ErrorCode::UpdateSyntax);
    }
    Expect(TokenType::Equal, ErrorCode::UpdateSyntax);
    assignment.value = ParseClauseExpr(ErrorCode::UpdateSyntax);
    return assignment;
}

ast::Delete Parser::ParseDelete(ast::Statement &statement) {
    Expect(Keyword::Delete, ErrorCode::InvalidStatement);
    ast::Delete node;
    node.distinct_row = Accept(Keyword::DistinctRow);
    if (!At(Keyword::From)) {
        ParseDeleteList(node);
    }
    Expect(Keyword::From, ErrorCode::FromSyntax);
    statement.position = Position();
    node.from = ParseTables(ErrorCode::FromSyntax);
    trailing_ = ErrorCode::FromSyntax;
    node.where = ParseWhere();
    return node;
}

/// What stands between DELETE and FROM. Rows are deleted whole, so only the table counts that it names.
void Parser::ParseDeleteList(ast::Delete &node) {
    do {
        const ast::SelectItem item = ParseSelectItem();
        QString table = item.star_table;
        if (item.expr) {
            const auto *column = std::get_if<ast::ColumnRef>(&item.expr->node);
            if (column == nullptr || !item.alias.isEmpty()) {
                Fail(ErrorCode::Syntax);
            }
            table = column->table;
        }
        if (table.isEmpty()) {
            continue;
        }
        if (!node.star_table.isEmpty() && node.star_table.compare(table, Qt::CaseInsensitive) != 0) {
            Fail(ErrorCode::Syntax); // of one table only
        }
        node.star_table = table;
    } while (Accept(TokenType::Comma));
}

} // namespace ostrand::sql
