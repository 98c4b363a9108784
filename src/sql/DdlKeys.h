// The keys and indexes that a statement adds to a table.
#pragma once

#include "sql/Ast.h"
#include "sql/Catalogue.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace ostrand::sql {

/// Gathers the keys of one statement on a table: checks their columns and names, and gives those without a name one
/// that begins with "Index" and is free in the table.
class DdlKeys {
public:
    /// `table` has all columns that the statement makes, and the indexes that stand already.
    explicit DdlKeys(TableInfo table) : table_(std::move(table)) {}

    /// The UNIQUE and PRIMARY KEY words of a column. Both on one column make one key, since two equal ones would only
    /// cost twice.
    void AddInline(const ast::ColumnDef &definition);
    /// A PRIMARY KEY or UNIQUE constraint; other constraints are none of ours.
    void AddConstraint(const ast::TableConstraint &constraint);
    void Add(const QString &name, const QStringList &columns, bool unique, bool primary);

    /// The indexes to make, in this order.
    const std::vector<IndexInfo> &Added() const { return added_; }
    /// The table as it will be.
    const TableInfo &Table() const { return table_; }

private:
    QString FreeName() const;

    TableInfo table_;
    std::vector<IndexInfo> added_;
};

/// The columns by their declared names. Throws FieldNotFound for an unknown one, FieldExists for one that stands twice.
QStringList RequireColumns(const TableInfo &table, const QStringList &columns);

/// SQLite's statement for an index of a table.
QString CreateIndexSql(const QString &table, const IndexInfo &index);
/// SQLite's statement for a table with its columns and references, without indexes. `name` is the name to give it.
QString CreateTableSql(const QString &name, const TableInfo &table);
/// The REFERENCES clause of a reference, as it stands behind a column.
QString ReferencesClause(const ReferenceInfo &reference);
/// Names in double quotes with commas between them.
QString QuotedNames(const QStringList &names);

} // namespace ostrand::sql
