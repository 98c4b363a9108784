// INSERT, UPDATE, DELETE, TRANSFORM.

#include "sql/Compiler.h"
#include "sql/Conversion.h"

namespace ostrand::sql {

namespace {

QString Literal(const Value &value) {
    switch (value.GetType()) {
    case Value::Type::Null:
        return QStringLiteral("NULL");
    case Value::Type::Integer:
        return QString::number(value.Integer());
    case Value::Type::Real:
        return QString::number(value.Real(), 'e', 17);
    case Value::Type::Text:
        break;
    }
    return QuoteText(value.Text());
}

void RequireFirst(std::vector<const ColumnInfo *> &assigned, const ColumnInfo *column,
                  const ast::Assignment &assignment) {
    if (std::find(assigned.begin(), assigned.end(), column) != assigned.end()) {
        throw SqlError(ErrorCode::DuplicateOutputField,
                       QStringLiteral("The field '%1' is set twice.").arg(column->name), assignment.position);
    }
    assigned.push_back(column);
}

/// The heading of a pivoted value.
QString Heading(const Value &value, Kind kind) {
    if (value.IsNull()) {
        return QStringLiteral("<>");
    }
    if (value.GetType() == Value::Type::Text) {
        return value.Text();
    }
    if (kind == Kind::Date) {
        return DateToText(value.Real());
    }
    return NumberToText(value.Real());
}

} // namespace

const ColumnInfo &Compiler::RequireColumn(const TableInfo &table, const QString &name, int position) {
    const ColumnInfo *column = table.FindColumn(name);
    if (!column) {
        throw SqlError(ErrorCode::ParametersExpected,
                       QStringLiteral("The table '%1' has no field '%2'.").arg(table.name, name), position);
    }
    return *column;
}

QString Compiler::ConvertForColumnSql(const Fragment &fragment, const ColumnInfo &column) {
    const QString value = ToValue(fragment);
    if (fragment.kind == Kind::Null) {
        return column.kind == Kind::Boolean ? QStringLiteral("0") : value;
    }
    switch (column.kind) {
    case Kind::Text: {
        const QString text = ToText(fragment);
        return column.length > 0 ? QStringLiteral("fn__cut(%1, %2)").arg(text, QString::number(column.length)) : text;
    }
    case Kind::Memo:
        return ToText(fragment);
    case Kind::Integer:
        return fragment.kind == Kind::Boolean ? value : QStringLiteral("fn__to_integer(%1)").arg(value);
    case Kind::Real:
        return IsNumber(fragment.kind) || fragment.kind == Kind::Date || fragment.kind == Kind::Boolean
                   ? value
                   : QStringLiteral("fn__to_real(%1)").arg(value);
    case Kind::Date:
        return fragment.kind == Kind::Date ? value : QStringLiteral("fn__to_date(%1)").arg(value);
    default:
        return QStringLiteral("fn__to_boolean(%1)").arg(value);
    }
}

QString Compiler::EmitForColumn(const ast::Expr &expr, const ColumnInfo &column, Scope &scope) {
    const auto *literal = std::get_if<ast::Literal>(&expr.node);
    if (literal && literal->index >= 0) {
        return Parameter({literal->index, true, column.kind, column.length});
    }
    return ConvertForColumnSql(Emit(expr, scope), column);
}

/// Without a list of fields a query fills the fields of its own names; where a name is none, the fields by their place.
std::vector<const ColumnInfo *> Compiler::ColumnsByName(const TableInfo &table, const QueryText &query) {
    std::vector<const ColumnInfo *> columns;
    for (const OutputColumn &output : query.columns) {
        const ColumnInfo *column = table.FindColumn(output.label);
        if (!column || std::find(columns.begin(), columns.end(), column) != columns.end()) {
            return {};
        }
        columns.push_back(column);
    }
    return columns;
}

Compiled Compiler::CompileInsert(const ast::Insert &insert) {
    const TableInfo &table = RequireTable(insert.table, insert.values_position);
    QueryText query;
    std::vector<const ColumnInfo *> columns;
    if (insert.query) {
        query = EmitQuery(*insert.query, nullptr, true);
        columns = insert.columns.empty() ? ColumnsByName(table, query) : columns;
    }
    if (insert.columns.empty() && columns.empty()) {
        for (const ColumnInfo &column : table.columns) {
            columns.push_back(&column);
        }
    }
    for (const QString &name : insert.columns) {
        columns.push_back(&RequireColumn(table, name, insert.values_position));
    }
    QStringList names;
    for (const ColumnInfo *column : columns) {
        if (names.contains(QuoteName(column->name))) {
            throw SqlError(ErrorCode::InsertSyntax, QStringLiteral("The field '%1' stands twice.").arg(column->name),
                           insert.values_position);
        }
        names.append(QuoteName(column->name));
    }
    const auto check_count = [&](size_t count) {
        if (count != columns.size()) {
            throw SqlError(ErrorCode::WrongValueCount,
                           QStringLiteral("There are %1 fields and %2 values.").arg(columns.size()).arg(count),
                           insert.values_position);
        }
    };
    QStringList values;
    Compiled compiled;
    compiled.type = Compiled::Type::Change;
    const QString head = QStringLiteral("INSERT OR IGNORE INTO %1 (%2) ").arg(QuoteName(table.name), names.join(u','));
    if (!insert.query) {
        check_count(insert.values.size());
        Scope scope;
        for (size_t i = 0; i < columns.size(); ++i) {
            values.append(EmitForColumn(*insert.values[i], *columns[i], scope));
        }
        compiled.sql = head + QStringLiteral("VALUES (%1)").arg(values.join(u','));
        return Finish(std::move(compiled));
    }
    check_count(query.columns.size());
    for (size_t i = 0; i < columns.size(); ++i) {
        const Fragment column{QStringLiteral("c%1").arg(i), query.columns[i].value.kind, false, false};
        values.append(ConvertForColumnSql(column, *columns[i]));
    }
    compiled.sql = head + QStringLiteral("SELECT %1 FROM (%2)").arg(values.join(u','), query.sql);
    return Finish(std::move(compiled));
}

Compiled Compiler::CompileUpdate(const ast::Update &update) {
    Scope scope;
    const QString from = EmitFrom(update.tables, scope);
    if (scope.sources.size() != 1) {
        return CompileJoinUpdate(update, scope, from);
    }
    const Source &target = scope.sources.front();
    if (!target.table) {
        throw SqlError(ErrorCode::NotUpdatable, QStringLiteral("A derived table cannot be updated."));
    }
    QStringList assignments;
    std::vector<const ColumnInfo *> assigned;
    for (const ast::Assignment &assignment : update.assignments) {
        if (!assignment.column.table.isEmpty() && !scope.FindSource(assignment.column.table)) {
            throw SqlError(ErrorCode::ParametersExpected,
                           QStringLiteral("There is no table '%1' here.").arg(assignment.column.table),
                           assignment.position);
        }
        const ColumnInfo &column = RequireColumn(*target.table, assignment.column.name, assignment.position);
        RequireFirst(assigned, &column, assignment);
        assignments.append(QuoteName(column.name) + QStringLiteral(" = ") +
                           EmitForColumn(*assignment.value, column, scope));
    }
    Compiled compiled;
    compiled.type = Compiled::Type::Change;
    compiled.sql = QStringLiteral("UPDATE OR IGNORE ") + from + QStringLiteral(" SET ") + assignments.join(u',');
    if (update.where) {
        compiled.sql += QStringLiteral(" WHERE ") + EmitCondition(*update.where, scope);
    }
    return Finish(std::move(compiled));
}

Compiled Compiler::CompileJoinUpdate(const ast::Update &update, Scope &scope, const QString &from) {
    struct Target {
        const Source *source;
        QStringList assignments;
        QStringList values;
        std::vector<const ColumnInfo *> assigned;
    };
    std::vector<Target> targets;
    for (const ast::Assignment &assignment : update.assignments) {
        const Scope::Match match = scope.Find(assignment.column);
        if (!match.column || match.ambiguous) {
            throw SqlError(match.ambiguous ? ErrorCode::AmbiguousField : ErrorCode::ParametersExpected,
                           QStringLiteral("'%1' is no single field here.").arg(assignment.column.name),
                           assignment.position);
        }
        const Source &source = scope.sources[size_t(match.source)];
        if (!source.table) {
            throw SqlError(ErrorCode::NotUpdatable, QStringLiteral("A derived table cannot be updated."),
                           assignment.position);
        }
        auto target =
            std::find_if(targets.begin(), targets.end(), [&](const Target &known) { return known.source == &source; });
        if (target == targets.end()) {
            targets.push_back({&source, {}, {}, {}});
            target = targets.end() - 1;
        }
        const ColumnInfo &column = *source.table->FindColumn(match.column->name);
        RequireFirst(target->assigned, &column, assignment);
        target->values.append(EmitForColumn(*assignment.value, column, scope));
        target->assignments.append(QuoteName(column.name) + QStringLiteral(" = ?") +
                                   QString::number(target->values.size()));
    }
    Compiled compiled;
    compiled.type = Compiled::Type::JoinUpdate;
    QStringList columns;
    for (const Target &target : targets) {
        RowUpdate row;
        row.first_column = int(columns.size());
        row.column_count = int(target.values.size()) + 1;
        row.sql = QStringLiteral("UPDATE OR IGNORE %1 SET %2 WHERE %3 = ?%4")
                      .arg(QuoteName(target.source->table->name), target.assignments.join(u','),
                           target.source->table->RowIdName(), QString::number(row.column_count));
        columns.append(target.values);
        columns.append(target.source->RowId());
        compiled.updates.push_back(row);
    }
    compiled.sql = QStringLiteral("SELECT %1 FROM %2").arg(columns.join(u','), from);
    if (update.where) {
        compiled.sql += QStringLiteral(" WHERE ") + EmitCondition(*update.where, scope);
    }
    return Finish(std::move(compiled));
}

Compiled Compiler::CompileDelete(const ast::Delete &statement) {
    Scope scope;
    const QString from = EmitFrom(statement.from, scope);
    const Source *target = scope.sources.size() == 1 ? &scope.sources.front() : nullptr;
    if (!statement.star_table.isEmpty()) {
        target = scope.FindSource(statement.star_table);
    }
    if (!target || !target->table) {
        throw SqlError(ErrorCode::NotUpdatable,
                       QStringLiteral("Name the table whose rows are to be deleted, as in DELETE t.* FROM .."));
    }
    const QString where =
        statement.where ? QStringLiteral(" WHERE ") + EmitCondition(*statement.where, scope) : QString();
    Compiled compiled;
    compiled.type = Compiled::Type::Change;
    if (scope.sources.size() == 1) {
        compiled.sql = QStringLiteral("DELETE FROM ") + from + where;
    } else {
        const QString name = QuoteName(target->table->name);
        compiled.sql = QStringLiteral("DELETE FROM %1 WHERE %2 IN (SELECT %3 FROM %4%5)")
                           .arg(name, target->table->RowIdName(), target->RowId(), from, where);
    }
    return Finish(std::move(compiled));
}

Compiled Compiler::CompilePivotValues(const ast::Transform &transform) {
    const auto &select = *std::get<std::unique_ptr<ast::Select>>(transform.query->terms.front().node);
    Scope scope;
    const QString from = EmitFrom(select.from, scope);
    bake_ = true;
    const Fragment pivot = Emit(*transform.pivot, scope);
    Compiled compiled;
    compiled.sql = QStringLiteral("SELECT DISTINCT %1 AS c0 FROM %2").arg(Collated(pivot), from);
    if (select.where) {
        compiled.sql += QStringLiteral(" WHERE ") + EmitCondition(*select.where, scope);
    }
    compiled.sql += QStringLiteral(" ORDER BY 1");
    auto result = std::make_shared<ResultShape>();
    result->fields.push_back({QStringLiteral("Pivot"), pivot.kind});
    result->base_columns.emplace_back();
    compiled.result = result;
    return Finish(std::move(compiled));
}

/// True for the rows of a heading; a heading of another kind than the pivoted values compares with their text.
QString Compiler::PivotCondition(const Fragment &pivot, const Value &heading) {
    if (heading.IsNull()) {
        return QStringLiteral("%1 IS NULL").arg(ToValue(pivot));
    }
    const bool text = heading.GetType() == Value::Type::Text;
    if (text == IsText(pivot.kind) || pivot.kind == Kind::Unknown) {
        return QStringLiteral("%1 = %2").arg(Collated(pivot), Literal(heading));
    }
    return QStringLiteral("%1 COLLATE dialect = %2")
        .arg(ToText(pivot), Literal(text ? heading : Value(Heading(heading, Kind::Real))));
}

Compiled Compiler::CompileTransform(const ast::Transform &transform, const std::vector<Value> &headings) {
    const auto &select = *std::get<std::unique_ptr<ast::Select>>(transform.query->terms.front().node);
    Scope scope;
    SelectParts parts = EmitSelectParts(select, transform.query->order_by, scope);
    const QStringList group = parts.group;
    bake_ = true;
    const Fragment pivot = Emit(*transform.pivot, scope);
    aggregates_allowed_ = true;
    if (!HasAggregate(*transform.value)) {
        throw SqlError(ErrorCode::NotInAggregate, QStringLiteral("TRANSFORM needs an aggregate."),
                       transform.value->position);
    }
    for (const Value &heading : headings) {
        aggregate_filter_ = PivotCondition(pivot, heading);
        const Fragment value = Emit(*transform.value, scope);
        OutputColumn column;
        column.label = Heading(heading, pivot.kind);
        // A cell without rows is empty, a count too.
        column.value = value;
        column.value.condition = false;
        column.value.sql = QStringLiteral("(CASE WHEN count(*) FILTER (WHERE %1) > 0 THEN %2 END)")
                               .arg(aggregate_filter_, ToValue(value));
        parts.columns.push_back(std::move(column));
    }
    aggregate_filter_.clear();
    parts.group = group;
    QueryText text;
    text.sql = AssembleSelect(select, parts, scope, true, false);
    text.columns = std::move(parts.columns);
    Compiled compiled;
    compiled.sql = text.sql;
    compiled.result = MakeResult(text);
    return Finish(std::move(compiled));
}

} // namespace ostrand::sql
