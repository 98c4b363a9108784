#include "sql/ParserState.h"

#include <QStringList>

namespace ostrand::sql {

namespace {

constexpr ErrorCode kFault = ErrorCode::DdlSyntax;

/// Words that begin a constraint, so that they end the words of a type.
bool BeginsConstraint(Keyword keyword) {
    switch (keyword) {
    case Keyword::Not:
    case Keyword::Null:
    case Keyword::Unique:
    case Keyword::Primary:
    case Keyword::References:
    case Keyword::Constraint:
    case Keyword::Default:
    case Keyword::With:
        return true;
    default:
        return IsReserved(keyword);
    }
}

} // namespace

void Parser::ParseCreate(ast::Statement &statement) {
    Expect(Keyword::Create, kFault);
    if (Accept(Keyword::Table)) {
        statement.node = ParseCreateTable(statement);
    } else {
        const bool unique = Accept(Keyword::Unique);
        Expect(Keyword::Index, kFault);
        statement.node = ParseCreateIndex(statement, unique);
    }
    trailing_ = kFault;
}

ast::CreateTable Parser::ParseCreateTable(ast::Statement &statement) {
    ast::CreateTable create;
    statement.position = Position();
    create.table = ParseName(kFault);
    Expect(TokenType::LeftParen, kFault);
    do {
        if (AtTableConstraint()) {
            create.constraints.push_back(ParseTableConstraint());
        } else {
            create.columns.push_back(ParseColumnDef());
        }
    } while (Accept(TokenType::Comma));
    Expect(TokenType::RightParen, kFault);
    return create;
}

ast::CreateIndex Parser::ParseCreateIndex(ast::Statement &statement, bool unique) {
    ast::CreateIndex create;
    create.unique = unique;
    create.name = ParseName(kFault);
    Expect(Keyword::On, kFault);
    statement.position = Position();
    create.table = ParseName(kFault);
    Expect(TokenType::LeftParen, kFault);
    do {
        create.columns.push_back(ParseName(kFault));
        if (!Accept(Keyword::Desc)) {
            Accept(Keyword::Asc);
        }
    } while (Accept(TokenType::Comma));
    Expect(TokenType::RightParen, kFault);
    if (Accept(Keyword::With)) {
        if (Accept(Keyword::Primary)) {
            create.primary = true;
        } else if (!Accept(Keyword::Disallow, Keyword::Null) && !Accept(Keyword::Ignore, Keyword::Null)) {
            Fail(kFault);
        }
    }
    return create;
}

ast::AlterTable Parser::ParseAlter(ast::Statement &statement) {
    Expect(Keyword::Alter, kFault);
    Expect(Keyword::Table, kFault);
    statement.position = Position();
    ast::AlterTable alter;
    alter.table = ParseName(kFault);
    trailing_ = kFault;
    if (Accept(Keyword::Alter)) {
        Accept(Keyword::Column);
        alter.action = ast::AlterColumn{ParseColumnDef()};
    } else if (Accept(Keyword::Drop)) {
        if (Accept(Keyword::Constraint)) {
            alter.action = ast::DropConstraint{ParseName(kFault)};
        } else {
            Accept(Keyword::Column);
            alter.action = ast::DropColumn{ParseName(kFault)};
        }
    } else {
        Expect(Keyword::Add, kFault);
        if (AtTableConstraint()) {
            alter.action = ast::AddConstraint{ParseTableConstraint()};
        } else {
            Accept(Keyword::Column);
            alter.action = ast::AddColumn{ParseColumnDef()};
        }
    }
    return alter;
}

void Parser::ParseDrop(ast::Statement &statement) {
    Expect(Keyword::Drop, kFault);
    trailing_ = kFault;
    if (Accept(Keyword::Table)) {
        statement.position = Position();
        statement.node = ast::DropTable{ParseName(kFault)};
        return;
    }
    Expect(Keyword::Index, kFault);
    statement.position = Position();
    ast::DropIndex drop;
    drop.name = ParseName(kFault);
    Expect(Keyword::On, kFault);
    drop.table = ParseName(kFault);
    statement.node = std::move(drop);
}

/// Constraint, Primary, Unique and Foreign may also be the names of columns.
bool Parser::AtTableConstraint() const {
    if (At(Keyword::Constraint)) {
        const Keyword third = Ahead(2).keyword;
        return third == Keyword::Primary || third == Keyword::Unique || third == Keyword::Foreign;
    }
    return At(Keyword::Primary, Keyword::Key) || At(Keyword::Foreign, Keyword::Key) ||
           (At(Keyword::Unique) && Ahead().token.type == TokenType::LeftParen);
}

ast::TableConstraint Parser::ParseTableConstraint() {
    ast::TableConstraint constraint;
    if (Accept(Keyword::Constraint)) {
        constraint.name = ParseName(kFault);
    }
    if (Accept(Keyword::Unique)) {
        constraint.type = ast::TableConstraint::Type::Unique;
        constraint.columns = ParseNameList(kFault);
        return constraint;
    }
    if (Accept(Keyword::Primary)) {
        Expect(Keyword::Key, kFault);
        constraint.columns = ParseNameList(kFault);
        return constraint;
    }
    Expect(Keyword::Foreign, kFault);
    Expect(Keyword::Key, kFault);
    constraint.type = ast::TableConstraint::Type::ForeignKey;
    constraint.columns = ParseNameList(kFault);
    Expect(Keyword::References, kFault);
    constraint.references_table = ParseName(kFault);
    if (At(TokenType::LeftParen)) {
        constraint.references_columns = ParseNameList(kFault);
    }
    ParseReferentialActions();
    return constraint;
}

ast::ColumnDef Parser::ParseColumnDef() {
    ast::ColumnDef column;
    column.position = Position();
    column.name = ParseName(kFault);
    ParseType(column);
    while (ParseColumnConstraint(column)) {
    }
    return column;
}

void Parser::ParseType(ast::ColumnDef &column) {
    QStringList words;
    while (At(TokenType::Word) && !BeginsConstraint(Current().keyword)) {
        words.append(TextOf(Current()).toString());
        Advance();
    }
    if (words.isEmpty()) {
        Fail(kFault);
    }
    column.type_word = words.join(u' ');
    if (At(TokenType::LeftParen)) {
        column.length = ParseSize();
    }
}

/// "(n)" or "(n, m)"; the n.
int Parser::ParseSize() {
    Expect(TokenType::LeftParen, kFault);
    const double size = Current().token.number;
    Expect(TokenType::Integer, kFault);
    if (Accept(TokenType::Comma)) {
        Expect(TokenType::Integer, kFault);
    }
    Expect(TokenType::RightParen, kFault);
    return int(size);
}

/// One constraint behind a column's type; false where none stands.
bool Parser::ParseColumnConstraint(ast::ColumnDef &column) {
    const bool named = Accept(Keyword::Constraint);
    if (named) {
        ParseName(kFault);
    }
    if (Accept(Keyword::Not)) {
        Expect(Keyword::Null, kFault);
        column.not_null = true;
    } else if (Accept(Keyword::Unique)) {
        column.unique = true;
    } else if (Accept(Keyword::Primary)) {
        Expect(Keyword::Key, kFault);
        column.primary_key = true;
    } else if (Accept(Keyword::References)) {
        column.references_table = ParseName(kFault);
        if (Accept(TokenType::LeftParen)) {
            column.references_column = ParseName(kFault);
            Expect(TokenType::RightParen, kFault);
        }
        ParseReferentialActions();
    } else if (Accept(Keyword::Default)) {
        ParseWithoutComparison(); // read and without effect
    } else if (At(Keyword::With, Keyword::Compression) || At(Keyword::With, Keyword::Comp)) {
        Advance();
        Advance();
    } else if (!Accept(Keyword::Null)) {
        if (named) {
            Fail(kFault);
        }
        return false;
    }
    return true;
}

/// ON UPDATE and ON DELETE are read and have no effect.
void Parser::ParseReferentialActions() {
    while (Accept(Keyword::On)) {
        if (!Accept(Keyword::Update)) {
            Expect(Keyword::Delete, kFault);
        }
        if (!Accept(Keyword::Cascade) && !Accept(Keyword::Set, Keyword::Null) &&
            !Accept(Keyword::No, Keyword::Action)) {
            Fail(kFault);
        }
    }
}

} // namespace ostrand::sql
