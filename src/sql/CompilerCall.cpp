// Calls: scalar functions, those that become SQL of their own, aggregates.

#include "sql/Compiler.h"
#include "sql/Functions.h"

namespace ostrand::sql {

namespace {

/// Functions that read their arguments as text, so that a date or truth value shows as such.
bool ReadsText(const QString &name) {
    static const QStringList names{
        QStringLiteral("left"),  QStringLiteral("right"),    QStringLiteral("mid"),        QStringLiteral("len"),
        QStringLiteral("instr"), QStringLiteral("instrrev"), QStringLiteral("ucase"),      QStringLiteral("lcase"),
        QStringLiteral("trim"),  QStringLiteral("ltrim"),    QStringLiteral("rtrim"),      QStringLiteral("asc"),
        QStringLiteral("ascw"),  QStringLiteral("replace"),  QStringLiteral("strreverse"), QStringLiteral("strconv"),
        QStringLiteral("cstr"),  QStringLiteral("val"),      QStringLiteral("strcomp")};
    return names.contains(name);
}

QString Lowered(const QString &call) {
    QString name = call.toLower();
    if (name.endsWith(u'$')) {
        name.chop(1);
    }
    return name;
}

SqlError WrongArguments(const QString &name, int position) {
    return {ErrorCode::Syntax, QStringLiteral("The function '%1' has the wrong number of arguments.").arg(name),
            position};
}

Kind ResultKind(const FunctionInfo &function, const std::vector<Fragment> &arguments) {
    switch (function.result) {
    case ResultRule::Text:
        return Kind::Text;
    case ResultRule::Integer:
        return Kind::Integer;
    case ResultRule::Real:
        return Kind::Real;
    case ResultRule::Date:
        return Kind::Date;
    case ResultRule::Boolean:
        return Kind::Boolean;
    case ResultRule::FirstArgument: {
        const Kind kind = arguments.empty() ? Kind::Real : arguments.front().kind;
        return IsNumber(kind) || kind == Kind::Date || kind == Kind::Null ? kind : Kind::Real;
    }
    case ResultRule::Unknown:
    case ResultRule::Special:
        break;
    }
    return Kind::Unknown;
}

} // namespace

Fragment Compiler::EmitCase(const std::vector<std::pair<QString, Fragment>> &branches, const Fragment *otherwise) {
    Kind kind = otherwise ? otherwise->kind : Kind::Null;
    QString sql = QStringLiteral("(CASE");
    for (const auto &[condition, value] : branches) {
        kind = CommonKind(kind, value.kind);
        sql += QStringLiteral(" WHEN %1 THEN %2").arg(condition, ToValue(value));
    }
    if (otherwise) {
        sql += QStringLiteral(" ELSE ") + ToValue(*otherwise);
    }
    return {sql + QStringLiteral(" END)"), kind, false, false};
}

Fragment Compiler::EmitSpecialCall(const QString &name, const ast::Call &call, int position, Scope &scope) {
    const auto &arguments = call.arguments;
    if (name == u"iif") {
        const QString condition = EmitCondition(*arguments[0], scope);
        const Fragment otherwise =
            arguments.size() > 2 ? Emit(*arguments[2], scope) : Fragment{QStringLiteral("NULL"), Kind::Null};
        return EmitCase({{condition, Emit(*arguments[1], scope)}}, &otherwise);
    }
    if (name == u"switch") {
        if (arguments.size() % 2 != 0) {
            throw WrongArguments(call.name, position);
        }
        std::vector<std::pair<QString, Fragment>> branches;
        for (size_t i = 0; i < arguments.size(); i += 2) {
            const QString condition = EmitCondition(*arguments[i], scope);
            branches.emplace_back(condition, Emit(*arguments[i + 1], scope));
        }
        return EmitCase(branches, nullptr);
    }
    if (name == u"choose") {
        const QString index = QStringLiteral("CAST(%1 AS INTEGER)").arg(ToNumber(Emit(*arguments[0], scope)));
        std::vector<std::pair<QString, Fragment>> branches;
        for (size_t i = 1; i < arguments.size(); ++i) {
            branches.emplace_back(QStringLiteral("%1 = %2").arg(index, QString::number(i)), Emit(*arguments[i], scope));
        }
        return EmitCase(branches, nullptr);
    }
    if (name == u"cvar") {
        return Emit(*arguments[0], scope);
    }
    if (name == u"nz") {
        const Fragment value = Emit(*arguments[0], scope);
        const Fragment otherwise =
            arguments.size() > 1 ? Emit(*arguments[1], scope) : Fragment{QStringLiteral("''"), Kind::Text};
        return {QStringLiteral("coalesce(%1, %2)").arg(ToValue(value), ToValue(otherwise)),
                CommonKind(value.kind, otherwise.kind), false, false};
    }
    if (name == u"isnull") {
        return {QStringLiteral("(%1 IS NULL)").arg(ToValue(Emit(*arguments[0], scope))), Kind::Boolean, true, false};
    }
    throw SqlError(ErrorCode::UndefinedFunction, QStringLiteral("There is no function '%1'.").arg(call.name), position);
}

Fragment Compiler::EmitAggregate(const ast::Call &call, int position, Scope &scope) {
    if (!aggregates_allowed_ || in_aggregate_) {
        throw SqlError(ErrorCode::AggregateInWhere,
                       QStringLiteral("The aggregate '%1' cannot stand here.").arg(call.name), position);
    }
    const QString name = Lowered(call.name);
    const QString filter =
        aggregate_filter_.isEmpty() ? QString() : QStringLiteral(" FILTER (WHERE %1)").arg(aggregate_filter_);
    if (call.star) {
        if (name != u"count") {
            throw WrongArguments(call.name, position);
        }
        return {QStringLiteral("count(*)") + filter, Kind::Integer, false, false};
    }
    if (call.arguments.size() != 1) {
        throw WrongArguments(call.name, position);
    }
    in_aggregate_ = true;
    const Fragment argument = Emit(*call.arguments.front(), scope);
    in_aggregate_ = false;
    const auto make = [&](const QString &function, const QString &value, Kind kind) {
        return Fragment{function + u'(' + value + u')' + filter, kind, false, false};
    };
    if (name == u"count") {
        return make(name, ToValue(argument), Kind::Integer);
    }
    if (name == u"min" || name == u"max") {
        return make(name, Collated(argument), argument.kind);
    }
    if (name == u"first" || name == u"last") {
        return make(QStringLiteral("fn_") + name, ToValue(argument), argument.kind);
    }
    const bool whole = argument.kind == Kind::Integer || argument.kind == Kind::Boolean;
    if (name == u"sum") {
        return make(name, ToNumber(argument), whole ? Kind::Integer : Kind::Real);
    }
    if (name == u"avg") {
        return make(name, ToNumber(argument), Kind::Real);
    }
    return make(QStringLiteral("fn_") + name, ToNumber(argument), Kind::Real);
}

Fragment Compiler::EmitCall(const ast::Call &call, int position, Scope &scope) {
    const FunctionInfo *function = FindFunction(call.name);
    if (!function) {
        throw SqlError(ErrorCode::UndefinedFunction, QStringLiteral("There is no function '%1'.").arg(call.name),
                       position);
    }
    if (function->aggregate) {
        return EmitAggregate(call, position, scope);
    }
    const int count = int(call.arguments.size());
    if (call.star || count < function->min_arguments ||
        (function->max_arguments >= 0 && count > function->max_arguments)) {
        throw WrongArguments(call.name, position);
    }
    const QString name = Lowered(call.name);
    if (function->result == ResultRule::Special) {
        return EmitSpecialCall(name, call, position, scope);
    }
    const bool as_text = ReadsText(name) || ((name == u"format" || name == u"str") && count == 1);
    std::vector<Fragment> arguments;
    QStringList texts;
    for (const ast::ExprPtr &argument : call.arguments) {
        const Fragment fragment = Emit(*argument, scope);
        const bool shown = fragment.kind == Kind::Date || fragment.kind == Kind::Boolean;
        texts.append(as_text && shown ? ToText(fragment) : ToValue(fragment));
        arguments.push_back(fragment);
    }
    const QString sql = QStringLiteral("fn_%1(%2)").arg(name, texts.join(QStringLiteral(", ")));
    return {sql, ResultKind(*function, arguments), false, false};
}

} // namespace ostrand::sql
