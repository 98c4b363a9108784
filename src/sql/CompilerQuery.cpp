// SELECT and UNION: select lists, labels, grouping, order.

#include "sql/Compiler.h"
#include "sql/Functions.h"

#include <QSet>

namespace ostrand::sql {

namespace {

bool IsAggregateCall(const ast::Expr &expr) {
    const auto *call = std::get_if<ast::Call>(&expr.node);
    const FunctionInfo *function = call ? FindFunction(call->name) : nullptr;
    return function && function->aggregate;
}

/// Calls `visit` for the direct operands of an expression, not for sub-queries.
template <typename Visit>
void ForEachOperand(const ast::Expr &expr, Visit visit) {
    const auto one = [&](const ast::ExprPtr &operand) {
        if (operand) {
            visit(*operand);
        }
    };
    if (const auto *unary = std::get_if<ast::Unary>(&expr.node)) {
        one(unary->operand);
    } else if (const auto *binary = std::get_if<ast::Binary>(&expr.node)) {
        one(binary->left);
        one(binary->right);
    } else if (const auto *like = std::get_if<ast::Like>(&expr.node)) {
        one(like->text);
        one(like->pattern);
    } else if (const auto *is_null = std::get_if<ast::IsNull>(&expr.node)) {
        one(is_null->operand);
    } else if (const auto *between = std::get_if<ast::Between>(&expr.node)) {
        one(between->operand);
        one(between->low);
        one(between->high);
    } else if (const auto *in = std::get_if<ast::In>(&expr.node)) {
        one(in->operand);
        for (const ast::ExprPtr &item : in->items) {
            one(item);
        }
    } else if (const auto *quantified = std::get_if<ast::Quantified>(&expr.node)) {
        one(quantified->operand);
    } else if (const auto *call = std::get_if<ast::Call>(&expr.node)) {
        for (const ast::ExprPtr &argument : call->arguments) {
            one(argument);
        }
    }
}

QString Folded(const QString &name) {
    return name.toCaseFolded();
}

/// A key of ORDER BY or GROUP BY; SQLite takes a bare whole number there for a place in the select list.
QString SortKey(const QString &sql) {
    const bool number =
        std::all_of(sql.begin(), sql.end(), [](QChar c) { return c.isDigit() || QStringView(u"()+- ").contains(c); });
    return number ? QStringLiteral("CAST(%1 AS INTEGER)").arg(sql) : sql;
}

std::optional<int> Ordinal(const ast::OrderItem &item) {
    const auto *literal = std::get_if<ast::Literal>(&item.expr->node);
    if (literal && literal->kind == Kind::Integer) {
        return int(literal->number);
    }
    return std::nullopt;
}

} // namespace

bool Compiler::HasAggregate(const ast::Expr &expr) {
    if (IsAggregateCall(expr)) {
        return true;
    }
    bool found = false;
    ForEachOperand(expr, [&](const ast::Expr &operand) { found = found || HasAggregate(operand); });
    return found;
}

bool Compiler::Aggregates(const ast::Select &select, const std::vector<ast::OrderItem> &order_by) {
    if (!select.group_by.empty() || select.having) {
        return true;
    }
    for (const ast::SelectItem &item : select.items) {
        if (item.expr && HasAggregate(*item.expr)) {
            return true;
        }
    }
    return std::any_of(order_by.begin(), order_by.end(),
                       [](const ast::OrderItem &item) { return HasAggregate(*item.expr); });
}

/// True for an aggregate without GROUP BY.
bool Compiler::GivesOneRow(const ast::Query &query) {
    const auto *select = std::get_if<std::unique_ptr<ast::Select>>(&query.terms.front().node);
    return query.terms.size() == 1 && select && (*select)->group_by.empty() && Aggregates(**select, query.order_by);
}

void Compiler::CheckGrouped(const ast::Expr &expr, const QStringList &group, Scope &scope) {
    if (IsAggregateCall(expr) || std::holds_alternative<ast::Literal>(expr.node)) {
        return;
    }
    const QString sql = ToValue(Emit(expr, scope));
    if (group.contains(sql)) {
        return;
    }
    if (const auto *column = std::get_if<ast::ColumnRef>(&expr.node)) {
        if (const ast::SelectItem *alias = FindAlias(*column, scope); alias && !scope.Find(*column).column) {
            CheckGrouped(*alias->expr, group, scope);
            return;
        }
        if (!scope.Find(*column).column) {
            return; // a field of the query around this one
        }
        throw SqlError(
            ErrorCode::NotInAggregate,
            QStringLiteral("The field '%1' stands beside an aggregate and is not grouped by.").arg(column->name),
            expr.position);
    }
    ForEachOperand(expr, [&](const ast::Expr &operand) { CheckGrouped(operand, group, scope); });
}

void Compiler::AddStar(const ast::SelectItem &item, const Scope &scope, std::vector<OutputColumn> &columns) {
    bool found = false;
    for (const Source &source : scope.sources) {
        if (!item.star_table.isEmpty() && source.name.compare(item.star_table, Qt::CaseInsensitive) != 0) {
            continue;
        }
        found = true;
        for (const SourceColumn &column : source.columns) {
            OutputColumn output;
            output.value = {column.sql, column.kind, false, column.collated};
            output.base_table = source.name;
            output.base_column = column.name;
            columns.push_back(std::move(output));
        }
    }
    if (!found) {
        throw SqlError(ErrorCode::UnknownTable,
                       item.star_table.isEmpty() ? QStringLiteral("'*' needs a FROM.")
                                                 : QStringLiteral("There is no table '%1' here.").arg(item.star_table),
                       item.position);
    }
}

std::vector<Compiler::OutputColumn> Compiler::EmitItems(const std::vector<ast::SelectItem> &items, Scope &scope) {
    scope.aliases = &items;
    scope.aliases_first = true;
    std::vector<OutputColumn> columns;
    for (const ast::SelectItem &item : items) {
        if (!item.expr) {
            AddStar(item, scope, columns);
            continue;
        }
        OutputColumn output;
        // The item's own alias is no way to itself.
        expanding_.push_back(&item);
        output.value = Emit(*item.expr, scope);
        expanding_.pop_back();
        output.label = item.alias;
        if (const auto *column = std::get_if<ast::ColumnRef>(&item.expr->node)) {
            const Scope::Match match = scope.Find(*column);
            if (match.column && match.column->sql == output.value.sql) {
                output.base_table = scope.sources[size_t(match.source)].name;
                output.base_column = match.column->name;
            } else if (item.alias.isEmpty()) {
                output.label = column->name;
            }
        }
        columns.push_back(std::move(output));
    }
    scope.aliases_first = false;
    LabelColumns(columns, items, scope);
    return columns;
}

void Compiler::LabelColumns(std::vector<OutputColumn> &columns, const std::vector<ast::SelectItem> &items,
                            const Scope & /*scope*/) {
    QHash<QString, int> bare;
    QSet<QString> aliases;
    for (const OutputColumn &column : columns) {
        if (column.label.isEmpty() && !column.base_column.isEmpty()) {
            ++bare[Folded(column.base_column)];
        }
    }
    for (const ast::SelectItem &item : items) {
        if (item.alias.isEmpty()) {
            continue;
        }
        if (aliases.contains(Folded(item.alias))) {
            throw SqlError(ErrorCode::DuplicateOutputField,
                           QStringLiteral("The alias '%1' stands twice.").arg(item.alias), item.position);
        }
        aliases.insert(Folded(item.alias));
    }
    int expression = 1000;
    for (OutputColumn &column : columns) {
        if (!column.label.isEmpty()) {
            continue;
        }
        if (column.base_column.isEmpty()) {
            column.label = QStringLiteral("Expr%1").arg(expression++);
            continue;
        }
        const QString folded = Folded(column.base_column);
        const bool twice = bare.value(folded) > 1 || aliases.contains(folded);
        column.label =
            twice && !column.base_table.isEmpty() ? column.base_table + u'.' + column.base_column : column.base_column;
    }
}

void Compiler::EmitOrder(const ast::Select &select, const std::vector<ast::OrderItem> &order_by, SelectParts &parts,
                         Scope &scope) {
    for (const ast::OrderItem &item : order_by) {
        const QString direction = item.descending ? QStringLiteral(" DESC") : QString();
        int place = -1;
        Fragment key;
        if (const std::optional<int> ordinal = Ordinal(item)) {
            if (*ordinal < 1 || *ordinal > int(parts.columns.size())) {
                throw SqlError(ErrorCode::OrderBySyntax,
                               QStringLiteral("ORDER BY %1 names no field of the select list.").arg(*ordinal),
                               item.expr->position);
            }
            place = *ordinal - 1;
            key = parts.columns[size_t(place)].value;
        } else {
            key = Emit(*item.expr, scope);
            if (parts.grouped) {
                CheckGrouped(*item.expr, parts.group, scope);
            }
            for (size_t i = 0; i < parts.columns.size() && place < 0; ++i) {
                if (parts.columns[i].value.sql == key.sql) {
                    place = int(i);
                }
            }
        }
        parts.order.append(SortKey(Collated(key)) + direction);
        if (place >= 0) {
            const bool collate = IsText(key.kind) || key.kind == Kind::Unknown;
            parts.order_positions.append(QStringLiteral("c%1%2").arg(
                QString::number(place), (collate ? QStringLiteral(" COLLATE dialect") : QString()) + direction));
        } else if (select.distinct == ast::Distinct::Distinct) {
            throw SqlError(ErrorCode::OrderBySyntax,
                           QStringLiteral("With DISTINCT, ORDER BY can only name fields of the select list."),
                           item.expr->position);
        }
    }
}

Compiler::SelectParts Compiler::EmitSelectParts(const ast::Select &select, const std::vector<ast::OrderItem> &order_by,
                                                Scope &scope) {
    SelectParts parts;
    parts.from = EmitFrom(select.from, scope);
    parts.grouped = Aggregates(select, order_by);
    const bool was_baking = std::exchange(bake_, true);
    const bool had_aggregates = std::exchange(aggregates_allowed_, false);
    const bool was_in_aggregate = std::exchange(in_aggregate_, false);
    QStringList group; // as the fragments stand, for comparison
    for (const ast::ExprPtr &expr : select.group_by) {
        const Fragment fragment = Emit(*expr, scope);
        parts.group.append(SortKey(Collated(fragment)));
        group.append(ToValue(fragment));
    }
    aggregates_allowed_ = true;
    parts.columns = EmitItems(select.items, scope);
    if (select.having) {
        scope.aliases = nullptr;
        parts.having = EmitCondition(*select.having, scope);
        CheckGrouped(*select.having, group, scope);
        scope.aliases = &select.items;
    }
    QStringList collated_group = std::exchange(parts.group, group);
    EmitOrder(select, order_by, parts, scope);
    if (parts.grouped) {
        for (const ast::SelectItem &item : select.items) {
            if (item.expr) {
                expanding_.push_back(&item);
                CheckGrouped(*item.expr, group, scope);
                expanding_.pop_back();
            } else {
                throw SqlError(ErrorCode::NotInAggregate, QStringLiteral("'*' cannot stand beside an aggregate."),
                               item.position);
            }
        }
    }
    parts.group = collated_group;
    aggregates_allowed_ = false;
    bake_ = false;
    scope.aliases = nullptr;
    if (select.where) {
        parts.where = EmitCondition(*select.where, scope);
    }
    bake_ = was_baking;
    aggregates_allowed_ = had_aggregates;
    in_aggregate_ = was_in_aggregate;
    return parts;
}

QString Compiler::ColumnList(const std::vector<OutputColumn> &columns) {
    QStringList list;
    for (size_t i = 0; i < columns.size(); ++i) {
        list.append(Collated(columns[i].value) + QStringLiteral(" AS c") + QString::number(i));
    }
    return list.join(QStringLiteral(", "));
}

/// DISTINCTROW keeps one row for each combination of rows of the tables that the select list shows.
QString Compiler::DistinctRowGroup(const ast::Select &select, const Scope &scope) const {
    if (select.distinct != ast::Distinct::DistinctRow || scope.sources.size() < 2) {
        return {};
    }
    QStringList keys;
    for (const Source &source : scope.sources) {
        bool shown = false;
        for (const ast::SelectItem &item : select.items) {
            if (!item.expr) {
                shown = shown || item.star_table.isEmpty() ||
                        item.star_table.compare(source.name, Qt::CaseInsensitive) == 0;
                continue;
            }
            std::function<void(const ast::Expr &)> look = [&](const ast::Expr &expr) {
                if (const auto *column = std::get_if<ast::ColumnRef>(&expr.node)) {
                    const Scope::Match match = scope.Find(*column);
                    shown = shown || (match.column && &scope.sources[size_t(match.source)] == &source);
                }
                ForEachOperand(expr, look);
            };
            look(*item.expr);
        }
        if (shown && !source.table) {
            return {}; // a derived table has no rows of its own
        }
        if (shown) {
            keys.append(source.RowId());
        }
    }
    return keys.size() < qsizetype(scope.sources.size()) ? keys.join(u',') : QString();
}

QString Compiler::AssembleTop(const ast::Select &select, const SelectParts &parts, const QString &row_id) {
    // Rows that tie with the last one stay, so the limit is one on ranks.
    QStringList names;
    for (size_t i = 0; i < parts.columns.size(); ++i) {
        names.append(QStringLiteral("c%1").arg(i));
    }
    if (!row_id.isEmpty()) {
        names.append(QStringLiteral("rid"));
    }
    const QString columns = ColumnList(parts.columns);
    const QString source = parts.from + parts.where + parts.group.join(QString()) + parts.having;
    const bool distinct = select.distinct == ast::Distinct::Distinct;
    const QStringList &keys = distinct ? parts.order_positions : parts.order;
    const QString over = keys.isEmpty() ? QStringLiteral("row_number() OVER ()")
                                        : QStringLiteral("rank() OVER (ORDER BY %1)").arg(keys.join(u','));
    QString inner;
    if (distinct) {
        inner = QStringLiteral("SELECT *, %1 AS rk, count(*) OVER () AS rn FROM (SELECT DISTINCT %2%3)")
                    .arg(over, columns, source);
    } else {
        inner = QStringLiteral("SELECT %1%2, %3 AS rk, count(*) OVER () AS rn%4").arg(columns, row_id, over, source);
    }
    const QString top = QString::number(*select.top);
    const QString limit =
        select.top_percent ? QStringLiteral("rk <= (rn * %1 + 99) / 100").arg(top) : QStringLiteral("rk <= ") + top;
    return QStringLiteral("SELECT %1 FROM (%2) WHERE %3 ORDER BY rk").arg(names.join(u','), inner, limit);
}

QString Compiler::AssembleSelect(const ast::Select &select, const SelectParts &emitted, const Scope &scope,
                                 bool top_level, bool with_row_id) {
    SelectParts parts = emitted;
    const QString distinct_rows = DistinctRowGroup(select, scope);
    QStringList group = parts.group;
    if (!distinct_rows.isEmpty()) {
        group = QStringList{distinct_rows};
    }
    parts.from = parts.from.isEmpty() ? QString() : QStringLiteral(" FROM ") + parts.from;
    parts.where = parts.where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + parts.where;
    parts.having = parts.having.isEmpty() ? QString() : QStringLiteral(" HAVING ") + parts.having;
    const QString group_by = group.isEmpty() ? QString() : QStringLiteral(" GROUP BY ") + group.join(u',');
    const QString row_id = with_row_id ? QStringLiteral(", %1 AS rid").arg(scope.sources.front().RowId()) : QString();
    if (select.top) {
        parts.group = QStringList{group_by};
        return AssembleTop(select, parts, row_id);
    }
    const bool distinct = select.distinct == ast::Distinct::Distinct;
    QStringList order = distinct ? parts.order_positions : parts.order;
    if (order.isEmpty() && top_level) {
        // Nothing is promised here, but a sorted result is what its readers are used to.
        if (distinct) {
            for (size_t i = 0; i < parts.columns.size(); ++i) {
                order.append(QString::number(i + 1) + QStringLiteral(" COLLATE dialect"));
            }
        } else if (!emitted.group.isEmpty()) {
            order = emitted.group;
        }
    }
    QString sql = QStringLiteral("SELECT ") + (distinct ? QStringLiteral("DISTINCT ") : QString()) +
                  ColumnList(parts.columns) + row_id + parts.from + parts.where + group_by + parts.having;
    if (!order.isEmpty()) {
        sql += QStringLiteral(" ORDER BY ") + order.join(u',');
    }
    return sql;
}

Compiler::QueryText Compiler::EmitSelect(const ast::Select &select, const std::vector<ast::OrderItem> &order_by,
                                         const Scope *parent, bool top_level) {
    Scope scope;
    scope.parent = parent;
    const QString filter = std::exchange(aggregate_filter_, QString());
    SelectParts parts = EmitSelectParts(select, order_by, scope);
    aggregate_filter_ = filter;
    const bool editable = top_level && scope.sources.size() == 1 && scope.sources.front().table && !parts.grouped &&
                          select.distinct == ast::Distinct::All && !scope.sources.front().table->RowIdName().isEmpty();
    QueryText text;
    text.sql = AssembleSelect(select, parts, scope, top_level, editable);
    text.columns = std::move(parts.columns);
    if (editable) {
        text.row_id_table = scope.sources.front().table->name;
        text.row_id = scope.sources.front().table->RowIdName();
    }
    return text;
}

Compiler::QueryText Compiler::EmitUnion(const ast::Query &query, const Scope *parent, bool top_level) {
    QueryText result;
    bool all = true;
    for (size_t i = 0; i < query.terms.size(); ++i) {
        const ast::QueryTerm &term = query.terms[i];
        QueryText text;
        bool wrap = true;
        if (const auto *select = std::get_if<std::unique_ptr<ast::Select>>(&term.node)) {
            text = EmitSelect(**select, {}, parent, false);
            wrap = (*select)->top.has_value();
        } else {
            text = EmitQuery(*std::get<ast::QueryPtr>(term.node), parent, false);
        }
        const QString sql = wrap ? QStringLiteral("SELECT * FROM (%1)").arg(text.sql) : text.sql;
        if (i == 0) {
            result.sql = sql;
            result.columns = std::move(text.columns);
            continue;
        }
        if (text.columns.size() != result.columns.size()) {
            throw SqlError(ErrorCode::UnionColumnCount,
                           QStringLiteral("The queries of a UNION must have the same number of fields."),
                           query.position);
        }
        all = all && term.all;
        result.sql += (term.all ? QStringLiteral(" UNION ALL ") : QStringLiteral(" UNION ")) + sql;
        for (size_t c = 0; c < result.columns.size(); ++c) {
            Fragment &value = result.columns[c].value;
            value.kind = CommonKind(value.kind, text.columns[c].value.kind);
        }
    }
    for (OutputColumn &column : result.columns) {
        column.base_column.clear();
    }
    QStringList order;
    for (const ast::OrderItem &item : query.order_by) {
        int place = Ordinal(item).value_or(0);
        const auto *name = std::get_if<ast::ColumnRef>(&item.expr->node);
        for (size_t c = 0; name && c < result.columns.size() && place == 0; ++c) {
            const QString &label = result.columns[c].label;
            const bool same = label.compare(name->name, Qt::CaseInsensitive) == 0 ||
                              label.endsWith(u'.' + name->name, Qt::CaseInsensitive);
            place = same ? int(c) + 1 : 0;
        }
        if (place < 1 || place > int(result.columns.size())) {
            throw SqlError(ErrorCode::OrderBySyntax,
                           QStringLiteral("ORDER BY of a UNION can only name fields of its first query."),
                           item.expr->position);
        }
        order.append(QString::number(place) + QStringLiteral(" COLLATE dialect") +
                     (item.descending ? QStringLiteral(" DESC") : QString()));
    }
    for (size_t c = 0; order.size() < qsizetype(result.columns.size()) && query.order_by.empty() && top_level && !all &&
                       c < result.columns.size();
         ++c) {
        order.append(QString::number(c + 1) + QStringLiteral(" COLLATE dialect"));
    }
    if (!order.isEmpty()) {
        result.sql += QStringLiteral(" ORDER BY ") + order.join(u',');
    }
    return result;
}

Compiler::QueryText Compiler::EmitQuery(const ast::Query &query, const Scope *parent, bool top_level) {
    if (query.terms.size() > 1) {
        return EmitUnion(query, parent, top_level);
    }
    if (const auto *select = std::get_if<std::unique_ptr<ast::Select>>(&query.terms.front().node)) {
        return EmitSelect(**select, query.order_by, parent, top_level);
    }
    const ast::QueryPtr &inner = std::get<ast::QueryPtr>(query.terms.front().node);
    if (query.order_by.empty()) {
        return EmitQuery(*inner, parent, top_level);
    }
    return EmitUnion(query, parent, top_level);
}

std::shared_ptr<const ResultShape> Compiler::MakeResult(const QueryText &text) {
    auto result = std::make_shared<ResultShape>();
    for (const OutputColumn &column : text.columns) {
        const Kind kind = column.value.kind;
        result->fields.push_back({column.label, kind});
        result->base_columns.push_back(column.base_column);
    }
    result->table = text.row_id_table;
    result->row_id = text.row_id;
    return result;
}

Compiled Compiler::Finish(Compiled compiled) {
    compiled.parameters = std::move(parameters_);
    return compiled;
}

Compiled Compiler::CompileQuery(const ast::Query &query) {
    const QueryText text = EmitQuery(query, nullptr, true);
    Compiled compiled;
    compiled.sql = text.sql;
    compiled.result = MakeResult(text);
    if (const auto *select = std::get_if<std::unique_ptr<ast::Select>>(&query.terms.front().node);
        select && !(*select)->into.isEmpty()) {
        compiled.type = Compiled::Type::SelectInto;
        compiled.into = (*select)->into;
        if (catalogue_.FindTable(compiled.into)) {
            throw SqlError(ErrorCode::TableExists, QStringLiteral("The table '%1' exists already.").arg(compiled.into),
                           query.position);
        }
    }
    return Finish(std::move(compiled));
}

} // namespace ostrand::sql
