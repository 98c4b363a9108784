// The parser behind Parse(): recursive descent over the tokens of one statement.
#pragma once

#include "sql/Ast.h"
#include "sql/Keywords.h"
#include "sql/Lexer.h"
#include "sql/SqlError.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace ostrand::sql {

/// An expression with the height of its tree. Trees are walked and destroyed recursively, so their height is kept
/// within what any stack holds.
struct Tree {
    ast::ExprPtr expr;
    int height = 1;
};
struct QueryTree {
    ast::QueryPtr query;
    int height = 1;
};
struct TableTree {
    ast::TableRefPtr table;
    int height = 1;
};

class Parser {
public:
    explicit Parser(QStringView text);

    ast::Statement ParseStatement();

private:
    struct Lexeme {
        Token token;
        Keyword keyword = Keyword::None;
        int literal = -1;      // counts the literal tokens
        std::size_t match = 0; // of a left bracket: the place of its right one; 0 without one
    };
    class NestingGuard;

    // Tokens
    const Lexeme &Current() const { return lexemes_[at_]; }
    const Lexeme &Ahead(std::size_t count = 1) const;
    TokenType Type() const { return Current().token.type; }
    int Position() const { return int(Current().token.begin); }
    QStringView TextOf(const Lexeme &lexeme) const;
    bool At(TokenType type) const { return Type() == type; }
    bool At(Keyword keyword) const { return Current().keyword == keyword; }
    bool At(Keyword first, Keyword second) const { return At(first) && Ahead().keyword == second; }
    bool AtName() const;
    bool AtReserved() const { return IsReserved(Current().keyword); }
    void Advance();
    bool Accept(TokenType type);
    bool Accept(Keyword keyword);
    bool Accept(Keyword first, Keyword second);
    void Expect(TokenType type, ErrorCode code);
    void Expect(Keyword keyword, ErrorCode code);
    [[noreturn]] void Fail(ErrorCode code) const;
    [[noreturn]] void FailTooComplex() const;
    int Raise(int height) const;

    // Names
    QString NameOf(const Lexeme &lexeme) const;
    QString ParseName(ErrorCode code);
    QString ParseQualifiedName(ErrorCode code);
    std::vector<QString> ParseNameList(ErrorCode code);

    // Expressions
    Tree ParseExpr();
    ast::ExprPtr ParseClauseExpr(ErrorCode code);
    ast::ExprPtr ParseWithoutComparison();
    bool StartsExpr() const;
    int CurrentLevel() const;
    Tree ParseOperators(int level);
    Tree ParseChain(Tree first, ast::BinaryOp op, int level);
    Tree Balance(std::vector<Tree> &members, std::size_t begin, std::size_t end, ast::BinaryOp op) const;
    Tree ParseComparison(Tree left);
    Tree ParseIn(Tree left, bool negated);
    Tree ParseBetween(Tree left, bool negated);
    Tree ParseIsNull(Tree left);
    Tree ParseQuantified(Tree left, ast::BinaryOp op);
    Tree ParsePrefix();
    Tree ParsePrimary();
    Tree ParseWord();
    Tree ParseColumn();
    Tree ParseCall();
    Tree ParseInBrackets();
    ast::Literal ParseLiteral();
    bool AtWordLiteral() const;
    template <class Node>
    Tree Make(int position, Node node, int height) const;
    Tree MakeBinary(Tree left, ast::BinaryOp op, Tree right) const;

    // Queries
    bool AtQuery(std::size_t place, bool wrapped) const;
    QueryTree ParseQuery();
    QueryTree ParseQueryInBrackets();
    ast::QueryTerm ParseQueryTerm();
    std::unique_ptr<ast::Select> ParseSelect();
    std::unique_ptr<ast::Select> SelectAll(QString table, int position) const;
    void ParseSelectModes(ast::Select &select);
    void ParseTop(ast::Select &select);
    void ParseSelectList(std::vector<ast::SelectItem> &items);
    ast::SelectItem ParseSelectItem();
    QString ParseSelectAlias();
    std::vector<ast::TableRefPtr> ParseTables(ErrorCode code);
    TableTree ParseTableGroup(ErrorCode code);
    TableTree ParseJoin(TableTree left, ErrorCode code);
    TableTree ParseTable(ErrorCode code);
    QString ParseTableAlias(ErrorCode code);
    bool AtJoin() const;
    std::vector<ast::OrderItem> ParseOrderBy();
    ast::Transform ParseTransform();
    ast::Literal ParseHeading();

    // Statements that change rows
    ast::Insert ParseInsert(ast::Statement &statement);
    ast::Update ParseUpdate(ast::Statement &statement);
    ast::Assignment ParseAssignment();
    ast::Delete ParseDelete(ast::Statement &statement);
    void ParseDeleteList(ast::Delete &node);
    ast::ExprPtr ParseWhere();

    // Definitions
    void ParseCreate(ast::Statement &statement);
    void ParseDrop(ast::Statement &statement);
    ast::CreateTable ParseCreateTable(ast::Statement &statement);
    ast::CreateIndex ParseCreateIndex(ast::Statement &statement, bool unique);
    ast::AlterTable ParseAlter(ast::Statement &statement);
    bool AtTableConstraint() const;
    ast::TableConstraint ParseTableConstraint();
    ast::ColumnDef ParseColumnDef();
    void ParseType(ast::ColumnDef &column);
    bool ParseColumnConstraint(ast::ColumnDef &column);
    void ParseReferentialActions();
    int ParseSize();

    void ParseParameters(ast::Statement &statement);
    void ParseVerb(ast::Statement &statement);
    void ParseEnd();

    QStringView text_;
    std::vector<Lexeme> lexemes_; // ends with End or Bad
    std::size_t at_ = 0;
    int nesting_ = 0;
    int clause_height_ = 0;                  // of the tallest tree in the query that is being parsed
    ErrorCode trailing_ = ErrorCode::Syntax; // what is at fault when the next token fits nowhere
};

/// Counts how deep the parser has gone down, for as long as it lives.
class Parser::NestingGuard {
public:
    explicit NestingGuard(Parser &parser);
    ~NestingGuard() { --parser_.nesting_; }
    NestingGuard(const NestingGuard &) = delete;
    NestingGuard &operator=(const NestingGuard &) = delete;

private:
    Parser &parser_;
};

} // namespace ostrand::sql
