// Expressions: names, literals, operators.

#include "sql/Compiler.h"

namespace ostrand::sql {

namespace {

constexpr qsizetype kLongestFragment = 1'000'000; // aliases of aliases double with each step
constexpr int kLongList = 40; // an IN list beyond this is kept as text, so that it takes no parameters

/// True where one of the values is not NULL; in groups, since SQLite limits the arguments of a call.
QString AnyIsFilled(const QStringList &values) {
    constexpr qsizetype kGroup = 50;
    QStringList groups;
    for (qsizetype i = 0; i < values.size(); i += kGroup) {
        const QStringList group = values.mid(i, kGroup);
        groups.append(group.size() == 1 ? group.front() + QStringLiteral(" IS NOT NULL")
                                        : QStringLiteral("coalesce(%1) IS NOT NULL").arg(group.join(u',')));
    }
    return groups.join(QStringLiteral(" OR "));
}

bool IsDigital(Kind kind) {
    return IsNumber(kind) || kind == Kind::Boolean;
}

} // namespace

QString Compiler::ToValue(const Fragment &fragment) {
    return fragment.condition ? QStringLiteral("(-(%1))").arg(fragment.sql) : fragment.sql;
}

/// The left operand of + and - or of a text joined: long chains of them must not nest brackets, of which SQLite takes
/// few.
QString Compiler::ChainStart(const Fragment &left, bool text) {
    const bool same = left.chain && IsText(left.kind) == text;
    return same ? left.sql.mid(1, left.sql.size() - 2) : text ? ToValue(left) : ToNumber(left);
}

QString Compiler::ToCondition(const Fragment &fragment) {
    if (fragment.condition || fragment.kind == Kind::Boolean || fragment.kind == Kind::Null) {
        return fragment.sql;
    }
    if (IsText(fragment.kind)) {
        return QStringLiteral("(fn_cbool(%1) <> 0)").arg(fragment.sql);
    }
    return QStringLiteral("(%1 <> 0)").arg(fragment.sql);
}

QString Compiler::ToText(const Fragment &fragment) {
    const QString value = ToValue(fragment);
    switch (fragment.kind) {
    case Kind::Text:
    case Kind::Memo:
    case Kind::Null:
        return value;
    case Kind::Integer:
        return QStringLiteral("CAST(%1 AS TEXT)").arg(value);
    case Kind::Real:
        return QStringLiteral("fn__text(%1,'n')").arg(value);
    case Kind::Date:
        return QStringLiteral("fn__text(%1,'d')").arg(value);
    case Kind::Boolean:
        return QStringLiteral("fn__text(%1,'b')").arg(value);
    case Kind::Unknown:
        break;
    }
    return QStringLiteral("fn__text(%1,'?')").arg(value);
}

QString Compiler::ToNumber(const Fragment &fragment) {
    const QString value = ToValue(fragment);
    return IsText(fragment.kind) || fragment.kind == Kind::Unknown ? QStringLiteral("fn_cdbl(%1)").arg(value) : value;
}

QString Compiler::Collated(const Fragment &fragment) {
    const QString value = ToValue(fragment);
    const bool may_be_text = IsText(fragment.kind) || fragment.kind == Kind::Unknown;
    return may_be_text && !fragment.collated ? QStringLiteral("%1 COLLATE dialect").arg(value) : value;
}

void Compiler::CheckComparable(Kind left, Kind right, int position) {
    const auto other = [](Kind kind) { return IsDigital(kind) || kind == Kind::Date; };
    if ((IsText(left) && other(right)) || (IsText(right) && other(left))) {
        throw SqlError(ErrorCode::CriteriaTypeMismatch,
                       QStringLiteral("The types do not match: a text is compared with a number, date or truth value."),
                       position);
    }
}

Kind Compiler::CommonKind(Kind left, Kind right) {
    if (left == right || right == Kind::Null) {
        return left;
    }
    if (left == Kind::Null) {
        return right;
    }
    if (IsText(left) && IsText(right)) {
        return Kind::Memo;
    }
    if (IsNumber(left) && IsNumber(right)) {
        return Kind::Real;
    }
    return Kind::Unknown;
}

QString Compiler::Parameter(const ParameterSlot &slot) {
    auto found = std::find(parameters_.begin(), parameters_.end(), slot);
    if (found == parameters_.end()) {
        parameters_.push_back(slot);
        found = parameters_.end() - 1;
    }
    return u'?' + QString::number(found - parameters_.begin() + 1);
}

Fragment Compiler::EmitLiteral(const ast::Literal &literal) {
    Fragment result;
    result.kind = literal.kind;
    if (literal.kind == Kind::Null) {
        result.sql = QStringLiteral("NULL");
    } else if (literal.kind == Kind::Boolean) {
        result.sql = literal.number != 0 ? QStringLiteral("-1") : QStringLiteral("0");
    } else if (literal.index >= 0 && !bake_) {
        result.sql = Parameter({literal.index, false, literal.kind, 0});
    } else {
        if (literal.kind == Kind::Text) {
            result.sql = QuoteText(literal.text);
        } else if (literal.kind == Kind::Integer) {
            result.sql = QString::number(qint64(literal.number));
        } else {
            result.sql = QString::number(literal.number, 'e', 17);
        }
    }
    return result;
}

const ast::SelectItem *Compiler::FindAlias(const ast::ColumnRef &ref, const Scope &scope) const {
    if (!scope.aliases || !ref.table.isEmpty()) {
        return nullptr;
    }
    for (const ast::SelectItem &item : *scope.aliases) {
        if (item.expr && !item.alias.isEmpty() && item.alias.compare(ref.name, Qt::CaseInsensitive) == 0) {
            return &item;
        }
    }
    return nullptr;
}

Fragment Compiler::EmitAlias(const ast::SelectItem &item, int position, Scope &scope) {
    if (std::find(expanding_.begin(), expanding_.end(), &item) != expanding_.end()) {
        throw SqlError(ErrorCode::CircularAlias, QStringLiteral("The alias '%1' leads back to itself.").arg(item.alias),
                       position);
    }
    expanding_.push_back(&item);
    Fragment result = Emit(*item.expr, scope);
    expanding_.pop_back();
    if (result.sql.size() > kLongestFragment) {
        throw SqlError(ErrorCode::TooComplex, QStringLiteral("The statement is too complex."), position);
    }
    return result;
}

Fragment Compiler::EmitColumn(const ast::ColumnRef &ref, int position, Scope &scope) {
    for (Scope *level = &scope; level; level = const_cast<Scope *>(level->parent)) {
        const ast::SelectItem *alias = FindAlias(ref, *level);
        // `Title AS Title` names the column; any other alias hides a column of its name within the select list.
        const auto *same = alias ? std::get_if<ast::ColumnRef>(&alias->expr->node) : nullptr;
        const bool names_column = same && same->name.compare(ref.name, Qt::CaseInsensitive) == 0;
        if (alias && level->aliases_first && !names_column) {
            return EmitAlias(*alias, position, *level);
        }
        const Scope::Match match = level->Find(ref);
        if (match.ambiguous) {
            throw SqlError(
                ErrorCode::AmbiguousField,
                QStringLiteral("The field '%1' stands in more than one table; name its table.").arg(ref.name),
                position);
        }
        if (match.column) {
            return {match.column->sql, match.column->kind, false, match.column->collated};
        }
        if (alias) {
            return EmitAlias(*alias, position, *level);
        }
    }
    const QString name = ref.table.isEmpty() ? ref.name : ref.table + u'.' + ref.name;
    throw SqlError(ErrorCode::ParametersExpected,
                   QStringLiteral("'%1' is no field here, and a parameter of that name has no value.").arg(name),
                   position);
}

Fragment Compiler::EmitUnary(const ast::Unary &unary, Scope &scope) {
    const Fragment operand = Emit(*unary.operand, scope);
    if (unary.op == ast::UnaryOp::Not) {
        return {QStringLiteral("(NOT %1)").arg(ToCondition(operand)), Kind::Boolean, true, false};
    }
    const Kind kind = operand.kind == Kind::Boolean                           ? Kind::Integer
                      : IsText(operand.kind) || operand.kind == Kind::Unknown ? Kind::Real
                                                                              : operand.kind;
    const QString sign = unary.op == ast::UnaryOp::Minus ? QStringLiteral("-") : QStringLiteral("+");
    return {QStringLiteral("(%1 %2)").arg(sign, ToNumber(operand)), kind, false, false};
}

Fragment Compiler::EmitLogic(ast::BinaryOp op, const Fragment &left, const Fragment &right) {
    const QString a = ToCondition(left);
    const QString b = ToCondition(right);
    QString sql;
    switch (op) {
    case ast::BinaryOp::And:
        sql = QStringLiteral("(%1 AND %2)");
        break;
    case ast::BinaryOp::Or:
        sql = QStringLiteral("(%1 OR %2)");
        break;
    case ast::BinaryOp::Xor:
        sql = QStringLiteral("((NOT %1) <> (NOT %2))");
        break;
    case ast::BinaryOp::Eqv:
        sql = QStringLiteral("((NOT %1) = (NOT %2))");
        break;
    default: // Imp
        sql = QStringLiteral("((NOT %1) OR %2)");
        break;
    }
    return {sql.arg(a, b), Kind::Boolean, true, false};
}

Fragment Compiler::EmitAdd(const Fragment &left, const Fragment &right) {
    const bool text = IsText(left.kind) && IsText(right.kind);
    if (text || (IsText(left.kind) && right.kind == Kind::Null) || (left.kind == Kind::Null && IsText(right.kind))) {
        return {QStringLiteral("(%1 || %2)").arg(ChainStart(left, true), ToValue(right)), Kind::Memo, false, false,
                true};
    }
    const auto mixed = [](Kind kind) { return IsText(kind) || kind == Kind::Unknown; };
    if (mixed(left.kind) || mixed(right.kind)) {
        return {QStringLiteral("fn__add(%1, %2)").arg(ToValue(left), ToValue(right)), Kind::Unknown, false, false};
    }
    Kind kind = CommonKind(left.kind, right.kind);
    if (left.kind == Kind::Date || right.kind == Kind::Date) {
        kind = Kind::Date;
    } else if (kind == Kind::Unknown || kind == Kind::Boolean) {
        kind = left.kind == Kind::Real || right.kind == Kind::Real ? Kind::Real : Kind::Integer;
    }
    return {QStringLiteral("(%1 + %2)").arg(ChainStart(left, false), ToValue(right)), kind, false, false, true};
}

Fragment Compiler::EmitArithmetic(ast::BinaryOp op, const Fragment &left, const Fragment &right) {
    const QString a = ToNumber(left);
    const QString b = ToNumber(right);
    const auto whole = [](Kind kind) { return kind == Kind::Integer || kind == Kind::Boolean || kind == Kind::Null; };
    const Kind number = whole(left.kind) && whole(right.kind) ? Kind::Integer : Kind::Real;
    switch (op) {
    case ast::BinaryOp::Subtract: {
        const bool date = left.kind == Kind::Date && right.kind != Kind::Date;
        return {QStringLiteral("(%1 - %2)").arg(ChainStart(left, false), b), date ? Kind::Date : number, false, false,
                true};
    }
    case ast::BinaryOp::Multiply:
        return {QStringLiteral("(%1 * %2)").arg(a, b), number, false, false};
    case ast::BinaryOp::Divide:
        return {QStringLiteral("fn__divide(%1, %2)").arg(a, b), Kind::Real, false, false};
    case ast::BinaryOp::IntDivide:
        return {QStringLiteral("fn__int_divide(%1, %2)").arg(a, b), Kind::Integer, false, false};
    case ast::BinaryOp::Mod:
        return {QStringLiteral("fn__mod(%1, %2)").arg(a, b), Kind::Integer, false, false};
    default: // Power
        return {QStringLiteral("fn__power(%1, %2)").arg(a, b), Kind::Real, false, false};
    }
}

Fragment Compiler::EmitConcat(const ast::Binary &binary, Scope &scope) {
    // A chain is flattened: its value is NULL only when all its members are.
    std::vector<const ast::Expr *> members{binary.right.get()};
    const ast::Expr *left = binary.left.get();
    while (const auto *inner = std::get_if<ast::Binary>(&left->node)) {
        if (inner->op != ast::BinaryOp::Concat) {
            break;
        }
        members.push_back(inner->right.get());
        left = inner->left.get();
    }
    members.push_back(left);
    QStringList texts;
    QStringList nullable;
    bool never_null = false;
    for (auto member = members.rbegin(); member != members.rend(); ++member) {
        const Fragment fragment = Emit(**member, scope);
        const QString text = ToText(fragment);
        const bool literal = std::holds_alternative<ast::Literal>((*member)->node) && fragment.kind != Kind::Null;
        never_null = never_null || literal;
        nullable.append(text);
        texts.append(literal ? text : QStringLiteral("coalesce(%1, '')").arg(text));
    }
    QString sql = u'(' + texts.join(QStringLiteral(" || ")) + u')';
    if (!never_null) {
        sql = QStringLiteral("(CASE WHEN %1 THEN %2 END)").arg(AnyIsFilled(nullable), sql);
    }
    return {sql, Kind::Memo, false, false};
}

Fragment Compiler::EmitComparison(ast::BinaryOp op, const Fragment &left, const Fragment &right, int position) {
    CheckComparable(left.kind, right.kind, position);
    QString sign;
    switch (op) {
    case ast::BinaryOp::Equal:
        sign = QStringLiteral("=");
        break;
    case ast::BinaryOp::NotEqual:
        sign = QStringLiteral("<>");
        break;
    case ast::BinaryOp::Less:
        sign = QStringLiteral("<");
        break;
    case ast::BinaryOp::LessEqual:
        sign = QStringLiteral("<=");
        break;
    case ast::BinaryOp::Greater:
        sign = QStringLiteral(">");
        break;
    default:
        sign = QStringLiteral(">=");
        break;
    }
    const QString a = right.collated ? ToValue(left) : Collated(left);
    return {QStringLiteral("(%1 %2 %3)").arg(a, sign, ToValue(right)), Kind::Boolean, true, false};
}

Fragment Compiler::EmitBinary(const ast::Binary &binary, int position, Scope &scope) {
    if (binary.op == ast::BinaryOp::Concat) {
        return EmitConcat(binary, scope);
    }
    const Fragment left = Emit(*binary.left, scope);
    const Fragment right = Emit(*binary.right, scope);
    switch (binary.op) {
    case ast::BinaryOp::Imp:
    case ast::BinaryOp::Eqv:
    case ast::BinaryOp::Xor:
    case ast::BinaryOp::Or:
    case ast::BinaryOp::And:
        return EmitLogic(binary.op, left, right);
    case ast::BinaryOp::Equal:
    case ast::BinaryOp::NotEqual:
    case ast::BinaryOp::Less:
    case ast::BinaryOp::LessEqual:
    case ast::BinaryOp::Greater:
    case ast::BinaryOp::GreaterEqual:
        return EmitComparison(binary.op, left, right, position);
    case ast::BinaryOp::Add:
        return EmitAdd(left, right);
    default:
        return EmitArithmetic(binary.op, left, right);
    }
}

Fragment Compiler::EmitLike(const ast::Like &like, Scope &scope) {
    const QString text = ToText(Emit(*like.text, scope));
    const QString pattern = ToText(Emit(*like.pattern, scope));
    const QString form =
        like.negated ? QStringLiteral("(NOT fn__like(%1, %2))") : QStringLiteral("(fn__like(%1, %2) <> 0)");
    return {form.arg(text, pattern), Kind::Boolean, true, false};
}

Fragment Compiler::EmitBetween(const ast::Between &between, int position, Scope &scope) {
    const Fragment operand = Emit(*between.operand, scope);
    const Fragment low = Emit(*between.low, scope);
    const Fragment high = Emit(*between.high, scope);
    CheckComparable(operand.kind, low.kind, position);
    CheckComparable(operand.kind, high.kind, position);
    // The bounds may stand in either order.
    const QString form = QStringLiteral("(%1 %2BETWEEN min(%3, %4) AND max(%3, %4))");
    return {
        form.arg(Collated(operand), between.negated ? QStringLiteral("NOT ") : QString(), Collated(low), ToValue(high)),
        Kind::Boolean, true, false};
}

Fragment Compiler::EmitIn(const ast::In &in, int position, Scope &scope) {
    const Fragment operand = Emit(*in.operand, scope);
    const QString no = in.negated ? QStringLiteral("NOT ") : QString();
    if (in.query) {
        const QueryText query = EmitQuery(*in.query, &scope, false);
        if (query.columns.size() != 1) {
            throw SqlError(ErrorCode::InvalidSubquery, QStringLiteral("The sub-query behind IN must give one field."),
                           position);
        }
        CheckComparable(operand.kind, query.columns.front().value.kind, position);
        return {QStringLiteral("(%1 %2IN (%3))").arg(Collated(operand), no, query.sql), Kind::Boolean, true, false};
    }
    const bool was_baking = bake_;
    bake_ = bake_ || in.items.size() > kLongList;
    QStringList items;
    for (const ast::ExprPtr &item : in.items) {
        const Fragment value = Emit(*item, scope);
        CheckComparable(operand.kind, value.kind, item->position);
        items.append(ToValue(value));
    }
    bake_ = was_baking;
    return {QStringLiteral("(%1 %2IN (%3))").arg(Collated(operand), no, items.join(u',')), Kind::Boolean, true, false};
}

Fragment Compiler::EmitQuantified(const ast::Quantified &quantified, int position, Scope &scope) {
    const Fragment operand = Emit(*quantified.operand, scope);
    const QueryText query = EmitQuery(*quantified.query, &scope, false);
    if (query.columns.size() != 1) {
        throw SqlError(ErrorCode::InvalidSubquery, QStringLiteral("The sub-query must give one field."), position);
    }
    const QString alias = QStringLiteral("q%1").arg(next_alias_++);
    const Fragment value{alias + QStringLiteral(".c0"), query.columns.front().value.kind, false, false};
    const QString comparison = EmitComparison(quantified.op, operand, value, position).sql;
    const QString form = quantified.all ? QStringLiteral("(NOT EXISTS (SELECT 1 FROM (%1) AS %2 WHERE %3 IS NOT TRUE))")
                                        : QStringLiteral("(EXISTS (SELECT 1 FROM (%1) AS %2 WHERE %3))");
    return {form.arg(query.sql, alias, comparison), Kind::Boolean, true, false};
}

Fragment Compiler::EmitSubquery(const ast::Query &query, int position, Scope &scope) {
    const QueryText text = EmitQuery(query, &scope, false);
    if (text.columns.size() != 1) {
        throw SqlError(ErrorCode::InvalidSubquery, QStringLiteral("A sub-query in an expression must give one field."),
                       position);
    }
    const QString form =
        GivesOneRow(query) ? QStringLiteral("(%1)") : QStringLiteral("(SELECT fn__only(c0) FROM (%1))");
    return {form.arg(text.sql), text.columns.front().value.kind, false, false};
}

QString Compiler::EmitCondition(const ast::Expr &expr, Scope &scope) {
    return ToCondition(Emit(expr, scope));
}

Fragment Compiler::Emit(const ast::Expr &expr, Scope &scope) {
    struct Visitor {
        Compiler &compiler;
        const ast::Expr &expr;
        Scope &scope;

        Fragment operator()(const ast::Literal &node) const { return compiler.EmitLiteral(node); }
        Fragment operator()(const ast::ColumnRef &node) const {
            return compiler.EmitColumn(node, expr.position, scope);
        }
        Fragment operator()(const ast::Unary &node) const { return compiler.EmitUnary(node, scope); }
        Fragment operator()(const ast::Binary &node) const { return compiler.EmitBinary(node, expr.position, scope); }
        Fragment operator()(const ast::Like &node) const { return compiler.EmitLike(node, scope); }
        Fragment operator()(const ast::IsNull &node) const {
            const QString value = ToValue(compiler.Emit(*node.operand, scope));
            const QString form = node.negated ? QStringLiteral("(%1 IS NOT NULL)") : QStringLiteral("(%1 IS NULL)");
            return {form.arg(value), Kind::Boolean, true, false};
        }
        Fragment operator()(const ast::Between &node) const { return compiler.EmitBetween(node, expr.position, scope); }
        Fragment operator()(const ast::In &node) const { return compiler.EmitIn(node, expr.position, scope); }
        Fragment operator()(const ast::Exists &node) const {
            const QueryText query = compiler.EmitQuery(*node.query, &scope, false);
            return {QStringLiteral("(EXISTS (%1))").arg(query.sql), Kind::Boolean, true, false};
        }
        Fragment operator()(const ast::Subquery &node) const {
            return compiler.EmitSubquery(*node.query, expr.position, scope);
        }
        Fragment operator()(const ast::Quantified &node) const {
            return compiler.EmitQuantified(node, expr.position, scope);
        }
        Fragment operator()(const ast::Call &node) const { return compiler.EmitCall(node, expr.position, scope); }
    };
    return std::visit(Visitor{*this, expr, scope}, expr.node);
}

} // namespace ostrand::sql
