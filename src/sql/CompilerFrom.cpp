// FROM: tables, derived tables, joins, and the names they bring.

#include "sql/Compiler.h"

namespace ostrand::sql {

const TableInfo &Compiler::RequireTable(const QString &name, int position) const {
    const TableInfo *table = catalogue_.FindTable(name);
    if (!table) {
        throw SqlError(ErrorCode::UnknownTable, QStringLiteral("There is no table '%1'.").arg(name), position);
    }
    return *table;
}

QString Compiler::EmitNamedTable(const ast::NamedTable &named, int position, Scope &scope) {
    const TableInfo &table = RequireTable(named.name, position);
    Source source;
    source.name = named.alias.isEmpty() ? named.name : named.alias;
    source.alias = QStringLiteral("t%1").arg(next_alias_++);
    source.table = &table;
    for (const ColumnInfo &column : table.columns) {
        source.columns.push_back(
            {column.name, source.alias + u'.' + QuoteName(column.name), column.kind, IsText(column.kind)});
    }
    const QString sql = QuoteName(table.name) + QStringLiteral(" AS ") + source.alias;
    scope.sources.push_back(std::move(source));
    return sql;
}

QString Compiler::EmitDerivedTable(const ast::DerivedTable &derived, Scope &scope) {
    // A derived table sees what is around the query, not its neighbours.
    const QueryText query = EmitQuery(*derived.query, scope.parent, false);
    Source source;
    source.name = derived.alias;
    source.alias = QStringLiteral("t%1").arg(next_alias_++);
    for (size_t i = 0; i < query.columns.size(); ++i) {
        const OutputColumn &column = query.columns[i];
        source.columns.push_back(
            {column.label, source.alias + QStringLiteral(".c") + QString::number(i), column.value.kind, false});
    }
    const QString sql = u'(' + query.sql + QStringLiteral(") AS ") + source.alias;
    scope.sources.push_back(std::move(source));
    return sql;
}

QString Compiler::EmitJoin(const ast::Join &join, Scope &scope) {
    const int first = int(scope.sources.size());
    QString left = EmitTableRef(*join.left, scope);
    QString right = EmitTableRef(*join.right, scope);
    const ast::TableRef *right_ref = join.right.get();
    QString word = QStringLiteral("INNER JOIN");
    if (join.type != ast::JoinType::Inner) {
        word = QStringLiteral("LEFT JOIN");
    }
    if (join.type == ast::JoinType::Right) {
        std::swap(left, right);
        right_ref = join.left.get();
    }
    if (std::holds_alternative<ast::Join>(right_ref->node)) {
        right = u'(' + right + u')';
    }
    const int outer_first = std::exchange(scope.first, first);
    const int outer_last = std::exchange(scope.last, int(scope.sources.size()));
    const QString on = EmitCondition(*join.on, scope);
    scope.first = outer_first;
    scope.last = outer_last;
    return QStringLiteral("%1 %2 %3 ON %4").arg(left, word, right, on);
}

QString Compiler::EmitTableRef(const ast::TableRef &ref, Scope &scope) {
    if (const auto *named = std::get_if<ast::NamedTable>(&ref.node)) {
        return EmitNamedTable(*named, ref.position, scope);
    }
    if (const auto *derived = std::get_if<ast::DerivedTable>(&ref.node)) {
        return EmitDerivedTable(*derived, scope);
    }
    return EmitJoin(std::get<ast::Join>(ref.node), scope);
}

QString Compiler::EmitFrom(const std::vector<ast::TableRefPtr> &from, Scope &scope) {
    const bool was_baking = std::exchange(bake_, false);
    const bool had_aggregates = std::exchange(aggregates_allowed_, false);
    QStringList members;
    for (const ast::TableRefPtr &ref : from) {
        const bool join = std::holds_alternative<ast::Join>(ref->node);
        const QString sql = EmitTableRef(*ref, scope);
        members.append(join && from.size() > 1 ? u'(' + sql + u')' : sql);
    }
    for (size_t i = 0; i < scope.sources.size(); ++i) {
        for (size_t j = 0; j < i; ++j) {
            if (!scope.sources[i].name.isEmpty() &&
                scope.sources[i].name.compare(scope.sources[j].name, Qt::CaseInsensitive) == 0) {
                throw SqlError(ErrorCode::FromSyntax,
                               QStringLiteral("The name '%1' stands twice in FROM; give one an alias.")
                                   .arg(scope.sources[i].name));
            }
        }
    }
    bake_ = was_baking;
    aggregates_allowed_ = had_aggregates;
    return members.join(QStringLiteral(", "));
}

} // namespace ostrand::sql
