#include "sql/Parser.h"

#include "sql/ParserState.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace ostrand::sql {

namespace {

constexpr int kMostNesting = 150;
constexpr int kMostHeight = 500;

QString Describe(ErrorCode code) {
    switch (code) {
    case ErrorCode::FromSyntax:
        return u"Syntax error in the FROM clause"_s;
    case ErrorCode::GroupBySyntax:
        return u"Syntax error in the GROUP BY clause"_s;
    case ErrorCode::InsertSyntax:
        return u"Syntax error in the INSERT INTO statement"_s;
    case ErrorCode::JoinSyntax:
        return u"Syntax error in a JOIN"_s;
    case ErrorCode::OrderBySyntax:
        return u"Syntax error in the ORDER BY clause"_s;
    case ErrorCode::SelectSyntax:
        return u"Syntax error in the list of a SELECT"_s;
    case ErrorCode::TextAfterStatement:
        return u"There is text after the end of the statement"_s;
    case ErrorCode::UpdateSyntax:
        return u"Syntax error in the UPDATE statement"_s;
    case ErrorCode::WhereSyntax:
        return u"Syntax error in the WHERE clause"_s;
    case ErrorCode::DdlSyntax:
        return u"Syntax error in the definition of a table or index"_s;
    case ErrorCode::InvalidStatement:
        return u"The statement begins with no known verb"_s;
    default:
        return u"Syntax error in an expression"_s;
    }
}

QString Describe(LexicalFault fault) {
    switch (fault) {
    case LexicalFault::UnclosedText:
        return u"A text is not closed"_s;
    case LexicalFault::UnclosedName:
        return u"A name in brackets is not closed"_s;
    case LexicalFault::EmptyName:
        return u"A name in brackets is empty"_s;
    case LexicalFault::UnclosedDate:
        return u"A date is not closed"_s;
    case LexicalFault::BadDate:
        return u"A date cannot be read"_s;
    case LexicalFault::BadNumber:
        return u"A number cannot be read"_s;
    default:
        return u"A character has no meaning"_s;
    }
}

/// The token for a message, shortened.
QString Quote(QStringView token) {
    constexpr qsizetype kMostShown = 40;
    return token.size() <= kMostShown ? token.toString() : token.left(kMostShown).toString() + u"..."_s;
}

} // namespace

ast::Statement Parse(QStringView text) {
    return Parser(text).ParseStatement();
}

Parser::Parser(QStringView text) : text_(text) {
    Lexer lexer(text);
    std::vector<std::size_t> open;
    int literals = 0;
    bool more = true;
    while (more) {
        Lexeme lexeme;
        lexeme.token = lexer.Next();
        const TokenType type = lexeme.token.type;
        if (type == TokenType::Word) {
            lexeme.keyword = FindKeyword(TextOf(lexeme));
        } else if (IsLiteral(type)) {
            lexeme.literal = literals++;
        } else if (type == TokenType::LeftParen) {
            open.push_back(lexemes_.size());
        } else if (type == TokenType::RightParen && !open.empty()) {
            lexemes_[open.back()].match = lexemes_.size();
            open.pop_back();
        }
        more = type != TokenType::End && type != TokenType::Bad;
        lexemes_.push_back(lexeme);
    }
}

Parser::NestingGuard::NestingGuard(Parser &parser) : parser_(parser) {
    if (parser_.nesting_ >= kMostNesting) {
        parser_.FailTooComplex();
    }
    ++parser_.nesting_;
}

const Parser::Lexeme &Parser::Ahead(std::size_t count) const {
    return lexemes_[std::min(at_ + count, lexemes_.size() - 1)];
}

QStringView Parser::TextOf(const Lexeme &lexeme) const {
    return text_.mid(lexeme.token.begin, lexeme.token.end - lexeme.token.begin);
}

void Parser::Advance() {
    if (at_ + 1 < lexemes_.size()) {
        ++at_;
    }
}

bool Parser::Accept(TokenType type) {
    if (!At(type)) {
        return false;
    }
    Advance();
    return true;
}

bool Parser::Accept(Keyword keyword) {
    if (!At(keyword)) {
        return false;
    }
    Advance();
    return true;
}

bool Parser::Accept(Keyword first, Keyword second) {
    if (!At(first, second)) {
        return false;
    }
    Advance();
    Advance();
    return true;
}

void Parser::Expect(TokenType type, ErrorCode code) {
    if (!Accept(type)) {
        Fail(code);
    }
}

void Parser::Expect(Keyword keyword, ErrorCode code) {
    if (!Accept(keyword)) {
        Fail(code);
    }
}

void Parser::Fail(ErrorCode code) const {
    if (At(TokenType::Bad)) {
        throw SqlError(ErrorCode::Syntax, u"%1: %2"_s.arg(Describe(Current().token.fault), Quote(TextOf(Current()))),
                       Position());
    }
    if (At(TokenType::End)) {
        throw SqlError(code, u"%1: the statement ends too early."_s.arg(Describe(code)), Position());
    }
    throw SqlError(code, u"%1, near: %2"_s.arg(Describe(code), Quote(TextOf(Current()))), Position());
}

void Parser::FailTooComplex() const {
    throw SqlError(ErrorCode::TooComplex, u"The statement is too complex."_s, Position());
}

int Parser::Raise(int height) const {
    if (height >= kMostHeight) {
        FailTooComplex();
    }
    return height + 1;
}

bool Parser::AtName() const {
    return At(TokenType::Name) || (At(TokenType::Word) && !AtReserved());
}

QString Parser::NameOf(const Lexeme &lexeme) const {
    return (lexeme.token.type == TokenType::Name ? Content(text_, lexeme.token) : TextOf(lexeme)).toString();
}

QString Parser::ParseName(ErrorCode code) {
    if (!AtName()) {
        Fail(code);
    }
    QString name = NameOf(Current());
    Advance();
    return name;
}

/// The name behind a dot, where no word is reserved.
QString Parser::ParseQualifiedName(ErrorCode code) {
    if (!At(TokenType::Name) && !At(TokenType::Word)) {
        Fail(code);
    }
    QString name = NameOf(Current());
    Advance();
    return name;
}

/// Names in round brackets.
std::vector<QString> Parser::ParseNameList(ErrorCode code) {
    std::vector<QString> names;
    Expect(TokenType::LeftParen, code);
    do {
        names.push_back(ParseName(code));
    } while (Accept(TokenType::Comma));
    Expect(TokenType::RightParen, code);
    return names;
}

ast::Statement Parser::ParseStatement() {
    ast::Statement statement;
    if (At(Keyword::Parameters) && (Ahead().token.type == TokenType::Word || Ahead().token.type == TokenType::Name)) {
        ParseParameters(statement);
    }
    statement.position = Position();
    ParseVerb(statement);
    ParseEnd();
    return statement;
}

void Parser::ParseParameters(ast::Statement &statement) {
    Advance();
    do {
        ast::Parameter parameter;
        parameter.name = ParseName(ErrorCode::Syntax);
        QStringList words;
        while (At(TokenType::Word)) {
            words.append(TextOf(Current()).toString());
            Advance();
        }
        if (words.isEmpty()) {
            Fail(ErrorCode::Syntax);
        }
        if (At(TokenType::LeftParen)) {
            ParseSize();
        }
        parameter.type_word = words.join(u' ');
        statement.parameters.push_back(std::move(parameter));
    } while (Accept(TokenType::Comma));
    Expect(TokenType::Semicolon, ErrorCode::Syntax);
}

void Parser::ParseVerb(ast::Statement &statement) {
    const TokenType after = Ahead().token.type;
    if (AtName() && (after == TokenType::End || after == TokenType::Semicolon)) {
        auto query = std::make_unique<ast::Query>();
        query->position = Position();
        query->terms.push_back({SelectAll(NameOf(Current()), Position())});
        Advance();
        statement.node = std::move(query);
        trailing_ = ErrorCode::InvalidStatement;
        return;
    }
    switch (Current().keyword) {
    case Keyword::Select:
    case Keyword::Table:
        statement.node = ParseQuery().query;
        return;
    case Keyword::Transform:
        statement.node = ParseTransform();
        return;
    case Keyword::Insert:
        statement.node = ParseInsert(statement);
        return;
    case Keyword::Update:
        statement.node = ParseUpdate(statement);
        return;
    case Keyword::Delete:
        statement.node = ParseDelete(statement);
        return;
    case Keyword::Create:
        ParseCreate(statement);
        return;
    case Keyword::Alter:
        statement.node = ParseAlter(statement);
        return;
    case Keyword::Drop:
        ParseDrop(statement);
        return;
    default:
        if (!At(TokenType::LeftParen)) {
            Fail(ErrorCode::InvalidStatement);
        }
        statement.node = ParseQuery().query;
        return;
    }
}

void Parser::ParseEnd() {
    if (At(Keyword::With, Keyword::OwnerAccess)) {
        Advance();
        Advance();
        Expect(Keyword::Option, trailing_);
        trailing_ = ErrorCode::TextAfterStatement;
    }
    if (Accept(TokenType::Semicolon)) {
        trailing_ = ErrorCode::TextAfterStatement;
    }
    if (!At(TokenType::End)) {
        Fail(trailing_);
    }
}

} // namespace ostrand::sql
