// Changes of the schema.
#pragma once

#include "sql/Ast.h"
#include "sql/Catalogue.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <vector>

namespace ostrand::sql {

class Connection;

/// Runs CREATE, ALTER and DROP. All members throw SqlError and leave the file as it was then; a change is whole or it
/// is not made. The catalogue is up to date and its generation raised after each change, and the row rules follow it.
///
/// Members work within an open transaction or without one. No statement of the connection may be in the midst of its
/// rows.
class Ddl {
public:
    Ddl(Connection &connection, Catalogue &catalogue) : connection_(connection), catalogue_(catalogue) {}

    void CreateTable(const ast::CreateTable &statement);
    void CreateIndex(const ast::CreateIndex &statement);
    void AlterTable(const ast::AlterTable &statement);
    /// A table that another one refers to stays (UsedByReference).
    void DropTable(const ast::DropTable &statement);
    void DropIndex(const ast::DropIndex &statement);
    /// Indexes and references follow the new name.
    void RenameColumn(QStringView table, QStringView column, QStringView new_name);
    void DropColumn(QStringView table, QStringView column);
    /// The table of SELECT .. INTO: no keys; columns without a kind become texts.
    void CreateTableFromColumns(const QString &name, std::vector<ColumnInfo> columns);

private:
    void AddColumn(const TableInfo &table, const ast::ColumnDef &definition);
    void AlterColumn(const TableInfo &table, const ast::ColumnDef &definition);
    void AddConstraint(const TableInfo &table, const ast::TableConstraint &constraint);
    void AddReference(const TableInfo &table, const ReferenceInfo &reference);
    void DropIndexOf(const TableInfo &table, QStringView name);

    const TableInfo &RequireTable(QStringView name) const;
    void RequireNewTable(QStringView name) const;
    void RequireUnreferenced(const TableInfo &table, const IndexInfo &index) const;
    ReferenceInfo ResolveReference(const TableInfo &child, const QStringList &columns, const QString &parent,
                                   const QStringList &parent_columns) const;
    void RequireParents(const TableInfo &child, const ReferenceInfo &reference) const;

    void Run(const std::function<void()> &change);
    void MakeIndex(const TableInfo &table, const IndexInfo &index);
    void RequireFilled(const TableInfo &table, QStringView column, const QString &value) const;
    void CopyRows(const TableInfo &old_table, const TableInfo &new_table, const QString &target);
    void Rebuild(const TableInfo &old_table, const TableInfo &new_table);

    Connection &connection_;
    Catalogue &catalogue_;
};

} // namespace ostrand::sql
