#include "sql/ParserState.h"

namespace ostrand::sql {

using ast::BinaryOp;

namespace {

// How tight an operator binds.
constexpr int kNoOperator = 0;
constexpr int kImp = 1;
constexpr int kEqv = 2;
constexpr int kXor = 3;
constexpr int kOr = 4;
constexpr int kAnd = 5;
constexpr int kComparison = 7; // NOT stands between
constexpr int kConcat = 8;
constexpr int kSum = 9;
constexpr int kMod = 10;
constexpr int kIntDivide = 11;
constexpr int kProduct = 12;
constexpr int kPower = 14; // the sign stands between

int LevelOf(TokenType type) {
    switch (type) {
    case TokenType::Equal:
    case TokenType::NotEqual:
    case TokenType::Less:
    case TokenType::LessEqual:
    case TokenType::Greater:
    case TokenType::GreaterEqual:
        return kComparison;
    case TokenType::Ampersand:
        return kConcat;
    case TokenType::Plus:
    case TokenType::Minus:
        return kSum;
    case TokenType::Backslash:
        return kIntDivide;
    case TokenType::Star:
    case TokenType::Slash:
        return kProduct;
    case TokenType::Caret:
        return kPower;
    default:
        return kNoOperator;
    }
}

int LevelOf(Keyword keyword) {
    switch (keyword) {
    case Keyword::Imp:
        return kImp;
    case Keyword::Eqv:
        return kEqv;
    case Keyword::Xor:
        return kXor;
    case Keyword::Or:
        return kOr;
    case Keyword::And:
        return kAnd;
    case Keyword::Mod:
        return kMod;
    case Keyword::Like:
    case Keyword::In:
    case Keyword::Between:
    case Keyword::Is:
        return kComparison;
    default:
        return kNoOperator;
    }
}

BinaryOp OperatorOf(Keyword keyword) {
    switch (keyword) {
    case Keyword::Imp:
        return BinaryOp::Imp;
    case Keyword::Eqv:
        return BinaryOp::Eqv;
    case Keyword::Xor:
        return BinaryOp::Xor;
    case Keyword::Or:
        return BinaryOp::Or;
    case Keyword::And:
        return BinaryOp::And;
    default:
        return BinaryOp::Mod;
    }
}

BinaryOp OperatorOf(TokenType type) {
    switch (type) {
    case TokenType::Equal:
        return BinaryOp::Equal;
    case TokenType::NotEqual:
        return BinaryOp::NotEqual;
    case TokenType::Less:
        return BinaryOp::Less;
    case TokenType::LessEqual:
        return BinaryOp::LessEqual;
    case TokenType::Greater:
        return BinaryOp::Greater;
    case TokenType::GreaterEqual:
        return BinaryOp::GreaterEqual;
    case TokenType::Ampersand:
        return BinaryOp::Concat;
    case TokenType::Plus:
        return BinaryOp::Add;
    case TokenType::Minus:
        return BinaryOp::Subtract;
    case TokenType::Backslash:
        return BinaryOp::IntDivide;
    case TokenType::Star:
        return BinaryOp::Multiply;
    case TokenType::Slash:
        return BinaryOp::Divide;
    default:
        return BinaryOp::Power;
    }
}

bool IsNegatable(Keyword keyword) {
    return keyword == Keyword::Like || keyword == Keyword::In || keyword == Keyword::Between;
}

} // namespace

template <class Node>
Tree Parser::Make(int position, Node node, int height) const {
    auto expr = std::make_unique<ast::Expr>();
    expr->node = std::move(node);
    expr->position = position;
    return {std::move(expr), height};
}

Tree Parser::MakeBinary(Tree left, BinaryOp op, Tree right) const {
    const int position = left.expr->position;
    const int height = Raise(std::max(left.height, right.height));
    return Make(position, ast::Binary{op, std::move(left.expr), std::move(right.expr)}, height);
}

Tree Parser::ParseExpr() {
    const NestingGuard guard(*this);
    return ParseOperators(kImp);
}

/// An expression that a clause stands on; `code` tells what is at fault when there is none.
ast::ExprPtr Parser::ParseClauseExpr(ErrorCode code) {
    if (!StartsExpr()) {
        Fail(code);
    }
    Tree tree = ParseExpr();
    clause_height_ = std::max(clause_height_, tree.height);
    return std::move(tree.expr);
}

/// An expression that ends before a comparison: behind PIVOT an IN begins the headings, behind DEFAULT stands NOT NULL.
ast::ExprPtr Parser::ParseWithoutComparison() {
    return std::move(ParseOperators(kConcat).expr);
}

bool Parser::StartsExpr() const {
    switch (Type()) {
    case TokenType::Word:
        return !AtReserved() || AtWordLiteral() || At(Keyword::Not);
    case TokenType::Name:
    case TokenType::LeftParen:
    case TokenType::Plus:
    case TokenType::Minus:
        return true;
    default:
        return IsLiteral(Type());
    }
}

int Parser::CurrentLevel() const {
    if (At(Keyword::Not)) {
        return IsNegatable(Ahead().keyword) ? kComparison : kNoOperator;
    }
    return At(TokenType::Word) ? LevelOf(Current().keyword) : LevelOf(Type());
}

/// Operands joined by operators that bind at least as tight as `level`.
Tree Parser::ParseOperators(int level) {
    Tree left = ParsePrefix();
    while (true) {
        const int current = CurrentLevel();
        if (current == kNoOperator || current < level) {
            return left;
        }
        if (current == kComparison) {
            left = ParseComparison(std::move(left));
            continue;
        }
        const BinaryOp op = At(TokenType::Word) ? OperatorOf(Current().keyword) : OperatorOf(Type());
        if (current == kAnd || current == kOr) {
            left = ParseChain(std::move(left), op, current);
            continue;
        }
        Advance();
        left = MakeBinary(std::move(left), op, ParseOperators(current + 1));
    }
}

/// A chain of AND or OR may have thousands of members. Grouping does not change its value, so it becomes a balanced
/// tree.
Tree Parser::ParseChain(Tree first, BinaryOp op, int level) {
    const Keyword keyword = Current().keyword;
    std::vector<Tree> members;
    members.push_back(std::move(first));
    while (Accept(keyword)) {
        members.push_back(ParseOperators(level + 1));
    }
    return Balance(members, 0, members.size(), op);
}

Tree Parser::Balance(std::vector<Tree> &members, std::size_t begin, std::size_t end, BinaryOp op) const {
    if (end - begin == 1) {
        return std::move(members[begin]);
    }
    const std::size_t middle = begin + (end - begin + 1) / 2;
    Tree left = Balance(members, begin, middle, op);
    return MakeBinary(std::move(left), op, Balance(members, middle, end, op));
}

Tree Parser::ParseComparison(Tree left) {
    const bool negated = Accept(Keyword::Not);
    switch (Current().keyword) {
    case Keyword::In:
        return ParseIn(std::move(left), negated);
    case Keyword::Between:
        return ParseBetween(std::move(left), negated);
    case Keyword::Is:
        return ParseIsNull(std::move(left));
    case Keyword::Like: {
        Advance();
        Tree pattern = ParseOperators(kConcat);
        const int position = left.expr->position;
        const int height = Raise(std::max(left.height, pattern.height));
        return Make(position, ast::Like{std::move(left.expr), std::move(pattern.expr), negated}, height);
    }
    default:
        break;
    }
    const BinaryOp op = OperatorOf(Type());
    Advance();
    const bool quantified = At(Keyword::All) || At(Keyword::Any) || At(Keyword::Some);
    if (quantified && Ahead().token.type == TokenType::LeftParen && AtQuery(at_ + 2, true)) {
        return ParseQuantified(std::move(left), op);
    }
    return MakeBinary(std::move(left), op, ParseOperators(kConcat));
}

Tree Parser::ParseIn(Tree left, bool negated) {
    Advance();
    ast::In in;
    in.negated = negated;
    int height = left.height;
    if (At(TokenType::LeftParen) && AtQuery(at_ + 1, true)) {
        QueryTree query = ParseQueryInBrackets();
        in.query = std::move(query.query);
        height = std::max(height, query.height);
    } else {
        Expect(TokenType::LeftParen, ErrorCode::Syntax);
        do {
            Tree item = ParseExpr();
            height = std::max(height, item.height);
            in.items.push_back(std::move(item.expr));
        } while (Accept(TokenType::Comma));
        Expect(TokenType::RightParen, ErrorCode::Syntax);
    }
    const int position = left.expr->position;
    in.operand = std::move(left.expr);
    return Make(position, std::move(in), Raise(height));
}

Tree Parser::ParseBetween(Tree left, bool negated) {
    Advance();
    Tree low = ParseOperators(kConcat);
    Expect(Keyword::And, ErrorCode::Syntax);
    Tree high = ParseOperators(kConcat);
    const int position = left.expr->position;
    const int height = Raise(std::max({left.height, low.height, high.height}));
    return Make(position, ast::Between{std::move(left.expr), std::move(low.expr), std::move(high.expr), negated},
                height);
}

Tree Parser::ParseIsNull(Tree left) {
    Advance();
    const bool negated = Accept(Keyword::Not);
    Expect(Keyword::Null, ErrorCode::Syntax);
    const int position = left.expr->position;
    const int height = Raise(left.height);
    return Make(position, ast::IsNull{std::move(left.expr), negated}, height);
}

Tree Parser::ParseQuantified(Tree left, BinaryOp op) {
    const bool all = At(Keyword::All);
    Advance();
    QueryTree query = ParseQueryInBrackets();
    const int position = left.expr->position;
    const int height = Raise(std::max(left.height, query.height));
    return Make(position, ast::Quantified{op, std::move(left.expr), all, std::move(query.query)}, height);
}

Tree Parser::ParsePrefix() {
    ast::UnaryOp op = ast::UnaryOp::Not;
    int level = kComparison;
    if (At(TokenType::Minus) || At(TokenType::Plus)) {
        op = At(TokenType::Minus) ? ast::UnaryOp::Minus : ast::UnaryOp::Plus;
        level = kPower;
    } else if (!At(Keyword::Not)) {
        return ParsePrimary();
    }
    const NestingGuard guard(*this);
    const int position = Position();
    Advance();
    Tree operand = ParseOperators(level);
    const int height = Raise(operand.height);
    return Make(position, ast::Unary{op, std::move(operand.expr)}, height);
}

Tree Parser::ParsePrimary() {
    switch (Type()) {
    case TokenType::Word:
        return ParseWord();
    case TokenType::Name:
        return ParseColumn();
    case TokenType::LeftParen:
        return ParseInBrackets();
    default:
        break;
    }
    if (!IsLiteral(Type())) {
        Fail(ErrorCode::Syntax);
    }
    const int position = Position();
    return Make(position, ParseLiteral(), 1);
}

Tree Parser::ParseInBrackets() {
    const int position = Position();
    if (AtQuery(at_ + 1, false)) {
        QueryTree query = ParseQueryInBrackets();
        return Make(position, ast::Subquery{std::move(query.query)}, Raise(query.height));
    }
    Advance();
    Tree inner = ParseExpr();
    Expect(TokenType::RightParen, ErrorCode::Syntax);
    inner.expr->position = position;
    return inner;
}

bool Parser::AtWordLiteral() const {
    const TokenType after = Ahead().token.type;
    if (after == TokenType::Dot || after == TokenType::Bang) {
        return false;
    }
    switch (Current().keyword) {
    case Keyword::True:
    case Keyword::False:
    case Keyword::Yes:
    case Keyword::No:
    case Keyword::On:
    case Keyword::Off:
    case Keyword::Null:
        return true;
    default:
        return false;
    }
}

/// A literal of any kind; the current token is one.
ast::Literal Parser::ParseLiteral() {
    const Lexeme &lexeme = Current();
    ast::Literal literal;
    literal.index = lexeme.literal;
    literal.number = lexeme.token.number;
    switch (Type()) {
    case TokenType::Text: {
        const QChar quote = text_[lexeme.token.begin];
        literal.kind = Kind::Text;
        literal.text = Content(text_, lexeme.token).toString();
        if (lexeme.token.doubled) {
            literal.text.replace(QString(2, quote), quote);
        }
        break;
    }
    case TokenType::Integer:
        literal.kind = Kind::Integer;
        break;
    case TokenType::Real:
        literal.kind = Kind::Real;
        break;
    case TokenType::Date:
        literal.kind = Kind::Date;
        break;
    default:
        if (!At(Keyword::Null)) {
            literal.kind = Kind::Boolean;
            literal.number = At(Keyword::True) || At(Keyword::Yes) || At(Keyword::On) ? -1 : 0;
        }
        break;
    }
    Advance();
    return literal;
}

Tree Parser::ParseWord() {
    if (AtWordLiteral()) {
        const int position = Position();
        return Make(position, ParseLiteral(), 1);
    }
    const bool before_bracket = Ahead().token.type == TokenType::LeftParen;
    if (At(Keyword::Exists) && before_bracket && AtQuery(at_ + 2, true)) {
        const int position = Position();
        Advance();
        QueryTree query = ParseQueryInBrackets();
        return Make(position, ast::Exists{std::move(query.query)}, Raise(query.height));
    }
    if (AtReserved()) {
        Fail(ErrorCode::Syntax);
    }
    return before_bracket ? ParseCall() : ParseColumn();
}

Tree Parser::ParseColumn() {
    const int position = Position();
    ast::ColumnRef column;
    column.name = ParseName(ErrorCode::Syntax);
    if (Accept(TokenType::Dot) || Accept(TokenType::Bang)) {
        column.table = std::move(column.name);
        column.name = ParseQualifiedName(ErrorCode::Syntax);
    }
    return Make(position, std::move(column), 1);
}

Tree Parser::ParseCall() {
    const int position = Position();
    ast::Call call;
    call.name = ParseName(ErrorCode::Syntax);
    Expect(TokenType::LeftParen, ErrorCode::Syntax);
    int height = 1;
    if (At(TokenType::Star) && call.name.compare(QLatin1String("count"), Qt::CaseInsensitive) == 0) {
        Advance();
        call.star = true;
    } else if (!At(TokenType::RightParen)) {
        do {
            Tree argument = ParseExpr();
            height = std::max(height, argument.height);
            call.arguments.push_back(std::move(argument.expr));
        } while (Accept(TokenType::Comma));
    }
    Expect(TokenType::RightParen, ErrorCode::Syntax);
    return Make(position, std::move(call), Raise(height));
}

} // namespace ostrand::sql
