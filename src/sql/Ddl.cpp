#include "sql/Ddl.h"

#include "sql/ColumnTypes.h"
#include "sql/Connection.h"
#include "sql/DdlKeys.h"
#include "sql/RowRules.h"

#include <sqlite3.h>

namespace ostrand::sql {

using namespace Qt::StringLiterals;

namespace {

bool SameSet(const QStringList &left, const QStringList &right) {
    return left.size() == right.size() && std::all_of(left.begin(), left.end(), [&](const QString &name) {
               return right.contains(name, Qt::CaseInsensitive);
           });
}

QStringList ToList(const std::vector<QString> &names) {
    return {names.begin(), names.end()};
}

/// The name of a column that must be there.
const ColumnInfo &RequireColumn(const TableInfo &table, QStringView name, int position = -1) {
    const ColumnInfo *column = table.FindColumn(name);
    if (column == nullptr) {
        throw SqlError(ErrorCode::FieldNotFound, QStringLiteral("Table '%1' has no field '%2'.").arg(table.name, name),
                       position);
    }
    return *column;
}

void RequireNewColumn(const TableInfo &table, QStringView name, int position = -1) {
    if (table.FindColumn(name) != nullptr) {
        throw SqlError(ErrorCode::FieldExists,
                       QStringLiteral("Table '%1' has a field '%2' already.").arg(table.name, name), position);
    }
}

[[noreturn]] void RaiseNullNotAllowed(const TableInfo &table, QStringView column) {
    throw SqlError(ErrorCode::NullNotAllowed,
                   QStringLiteral("Field '%1' of table '%2' takes no Null.").arg(column, table.name));
}

bool HasUniqueKey(const TableInfo &table, const QStringList &columns) {
    return std::any_of(table.indexes.begin(), table.indexes.end(),
                       [&](const IndexInfo &index) { return index.unique && SameSet(index.columns, columns); });
}

/// How text is made of a column: the second argument of fn__text.
QString TextKind(Kind kind) {
    switch (kind) {
    case Kind::Boolean:
        return QStringLiteral("'b'");
    case Kind::Date:
        return QStringLiteral("'d'");
    default:
        return QStringLiteral("'n'");
    }
}

QString ToTextColumn(const QString &name, const ColumnInfo &from, const ColumnInfo &to) {
    QString text = name;
    if (!IsText(from.kind)) {
        text = QStringLiteral("fn__text(%1, %2)").arg(name, TextKind(from.kind));
    } else if (to.kind == Kind::Memo || (from.kind == Kind::Text && from.length <= to.length)) {
        return text;
    }
    if (to.kind == Kind::Text) {
        text = QStringLiteral("fn__cut(%1, %2)").arg(text, QString::number(to.length));
    }
    return QStringLiteral("CASE WHEN %1 IS NULL THEN NULL ELSE %2 END").arg(name, text);
}

/// The expression that turns a stored value into one of the column's new kind.
QString Converted(const ColumnInfo &from, const ColumnInfo &to) {
    const QString name = QuoteName(from.name);
    if (IsText(to.kind)) {
        return ToTextColumn(name, from, to);
    }
    if (from.kind == to.kind) {
        return name;
    }
    switch (to.kind) {
    case Kind::Integer:
        return QStringLiteral("fn__to_integer(%1)").arg(name);
    case Kind::Date:
        return QStringLiteral("fn__to_date(%1)").arg(name);
    case Kind::Boolean:
        return QStringLiteral("fn__to_boolean(%1)").arg(name);
    default:
        return QStringLiteral("fn__to_real(%1)").arg(name);
    }
}

} // namespace

const TableInfo &Ddl::RequireTable(QStringView name) const {
    const TableInfo *table = catalogue_.FindTable(name);
    if (table == nullptr) {
        throw SqlError(ErrorCode::UnknownTable, QStringLiteral("There is no table '%1'.").arg(name));
    }
    return *table;
}

void Ddl::RequireNewTable(QStringView name) const {
    if (name.startsWith(u"sqlite_", Qt::CaseInsensitive)) {
        throw SqlError(ErrorCode::DdlSyntax, QStringLiteral("The name '%1' is reserved.").arg(name));
    }
    if (catalogue_.FindTable(name) != nullptr) {
        throw SqlError(ErrorCode::TableExists, QStringLiteral("There is a table '%1' already.").arg(name));
    }
}

ReferenceInfo Ddl::ResolveReference(const TableInfo &child, const QStringList &columns, const QString &parent,
                                    const QStringList &parent_columns) const {
    const TableInfo &table = SameName(parent, child.name) ? child : RequireTable(parent);
    ReferenceInfo reference{RequireColumns(child, columns), table.name, {}};
    if (!parent_columns.isEmpty()) {
        reference.parent_columns = RequireColumns(table, parent_columns);
    } else if (const IndexInfo *key = table.PrimaryKey()) {
        reference.parent_columns = key->columns;
    }
    if (reference.columns.size() != reference.parent_columns.size() || !HasUniqueKey(table, reference.parent_columns)) {
        throw SqlError(
            ErrorCode::IndexNotFound,
            QStringLiteral("Table '%1' has no unique key for the reference from '%2'.").arg(table.name, child.name));
    }
    return reference;
}

void Ddl::RequireParents(const TableInfo &child, const ReferenceInfo &reference) const {
    QStringList filled;
    QStringList equal;
    for (qsizetype i = 0; i < reference.columns.size(); ++i) {
        const QString column = u"child."_s + QuoteName(reference.columns.at(i));
        filled.append(column + u" IS NOT NULL"_s);
        equal.append(u"parent."_s + QuoteName(reference.parent_columns.at(i)) + u" = "_s + column);
    }
    const Value orphan = connection_.Single(
        QStringLiteral(
            "SELECT 1 FROM %1 AS child WHERE %2 AND NOT EXISTS (SELECT 1 FROM %3 AS parent WHERE %4) LIMIT 1")
            .arg(QuoteName(child.name), filled.join(u" AND "), QuoteName(reference.parent_table),
                 equal.join(u" AND ")));
    if (!orphan.IsNull()) {
        throw SqlError(
            ErrorCode::ParentMissing,
            QStringLiteral("Table '%1' has rows without a row in '%2'.").arg(child.name, reference.parent_table));
    }
}

void Ddl::Run(const std::function<void()> &change) {
    connection_.Execute(u"SAVEPOINT ddl");
    try {
        change();
        catalogue_.Load(connection_);
        SyncRowRules(connection_, catalogue_);
        connection_.Execute(u"RELEASE ddl");
    } catch (...) {
        // On a full disk SQLite has given the whole transaction up, and the savepoint with it.
        if (sqlite3_get_autocommit(connection_.Handle()) == 0) {
            sqlite3_exec(connection_.Handle(), "ROLLBACK TO ddl; RELEASE ddl", nullptr, nullptr, nullptr);
        }
        catalogue_.Load(connection_);
        throw;
    }
}

void Ddl::MakeIndex(const TableInfo &table, const IndexInfo &index) {
    if (index.primary) {
        for (const QString &column : index.columns) {
            RequireFilled(table, column, QuoteName(column));
        }
    }
    connection_.Execute(CreateIndexSql(table.name, index));
}

void Ddl::CreateTable(const ast::CreateTable &statement) {
    RequireNewTable(statement.table);
    TableInfo columns;
    columns.name = statement.table;
    for (const ast::ColumnDef &definition : statement.columns) {
        RequireNewColumn(columns, definition.name, definition.position);
        columns.columns.push_back(ColumnOfDefinition(definition));
    }
    DdlKeys keys(columns);
    for (const ast::ColumnDef &definition : statement.columns) {
        keys.AddInline(definition);
    }
    for (const ast::TableConstraint &constraint : statement.constraints) {
        keys.AddConstraint(constraint);
    }
    TableInfo table = keys.Table();
    for (const ast::ColumnDef &definition : statement.columns) {
        if (!definition.references_table.isEmpty()) {
            const QStringList parent_columns =
                definition.references_column.isEmpty() ? QStringList() : QStringList(definition.references_column);
            table.references.push_back(
                ResolveReference(table, {definition.name}, definition.references_table, parent_columns));
        }
    }
    for (const ast::TableConstraint &constraint : statement.constraints) {
        if (constraint.type == ast::TableConstraint::Type::ForeignKey) {
            table.references.push_back(ResolveReference(table, ToList(constraint.columns), constraint.references_table,
                                                        ToList(constraint.references_columns)));
        }
    }
    Run([&] {
        connection_.Execute(CreateTableSql(table.name, table));
        for (const IndexInfo &index : keys.Added()) {
            MakeIndex(table, index);
        }
    });
}

void Ddl::CreateTableFromColumns(const QString &name, std::vector<ColumnInfo> columns) {
    RequireNewTable(name);
    TableInfo table;
    table.name = name;
    for (ColumnInfo &column : columns) {
        RequireNewColumn(table, column.name);
        table.columns.push_back(std::move(column));
    }
    Run([&] { connection_.Execute(CreateTableSql(name, table)); });
}

void Ddl::CreateIndex(const ast::CreateIndex &statement) {
    DdlKeys keys(RequireTable(statement.table));
    keys.Add(statement.name, ToList(statement.columns), statement.unique || statement.primary, statement.primary);
    Run([&] { MakeIndex(keys.Table(), keys.Added().front()); });
}

void Ddl::AlterTable(const ast::AlterTable &statement) {
    // A copy: the catalogue's own goes when the change reads it anew.
    const TableInfo table = RequireTable(statement.table);
    struct Action {
        Ddl &ddl;
        const TableInfo &table;
        void operator()(const ast::AddColumn &action) const { ddl.AddColumn(table, action.column); }
        void operator()(const ast::AlterColumn &action) const { ddl.AlterColumn(table, action.column); }
        void operator()(const ast::DropColumn &action) const { ddl.DropColumn(table.name, action.column); }
        void operator()(const ast::AddConstraint &action) const { ddl.AddConstraint(table, action.constraint); }
        void operator()(const ast::DropConstraint &action) const { ddl.DropIndexOf(table, action.name); }
    };
    std::visit(Action{*this, table}, statement.action);
}

void Ddl::AddColumn(const TableInfo &table, const ast::ColumnDef &definition) {
    RequireNewColumn(table, definition.name, definition.position);
    const ColumnInfo column = ColumnOfDefinition(definition);
    TableInfo grown = table;
    grown.columns.push_back(column);
    DdlKeys keys(grown);
    keys.AddInline(definition);
    QString clause;
    if (!definition.references_table.isEmpty()) {
        const QStringList parent_columns =
            definition.references_column.isEmpty() ? QStringList() : QStringList(definition.references_column);
        clause = u' ' + ReferencesClause(ResolveReference(keys.Table(), {definition.name}, definition.references_table,
                                                          parent_columns));
    }
    if (column.not_null && !connection_.Single(u"SELECT 1 FROM "_s + QuoteName(table.name) + u" LIMIT 1"_s).IsNull()) {
        RaiseNullNotAllowed(table, column.name);
    }
    Run([&] {
        connection_.Execute(
            QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3%4")
                .arg(QuoteName(table.name), QuoteName(column.name), PhysicalColumnType(column), clause));
        for (const IndexInfo &index : keys.Added()) {
            MakeIndex(table, index);
        }
    });
}

void Ddl::AlterColumn(const TableInfo &table, const ast::ColumnDef &definition) {
    const ColumnInfo &old_column = RequireColumn(table, definition.name, definition.position);
    ColumnInfo column = ColumnOfDefinition(definition);
    column.name = old_column.name;
    // What was declared to take no NULL goes on so: the statement has no word for the opposite.
    column.not_null = column.not_null || (old_column.not_null && column.kind != Kind::Boolean);
    TableInfo changed = table;
    changed.columns[size_t(table.IndexOf(definition.name))] = column;
    DdlKeys keys(changed);
    keys.AddInline(definition);
    if (!definition.references_table.isEmpty()) {
        const QStringList parent_columns =
            definition.references_column.isEmpty() ? QStringList() : QStringList(definition.references_column);
        changed.references.push_back(
            ResolveReference(keys.Table(), {definition.name}, definition.references_table, parent_columns));
    }
    Run([&] {
        Rebuild(table, changed);
        for (const IndexInfo &index : keys.Added()) {
            MakeIndex(table, index);
        }
        if (!definition.references_table.isEmpty()) {
            RequireParents(changed, changed.references.back());
        }
    });
}

void Ddl::AddConstraint(const TableInfo &table, const ast::TableConstraint &constraint) {
    if (constraint.type == ast::TableConstraint::Type::ForeignKey) {
        AddReference(table, ResolveReference(table, ToList(constraint.columns), constraint.references_table,
                                             ToList(constraint.references_columns)));
        return;
    }
    DdlKeys keys(table);
    keys.AddConstraint(constraint);
    Run([&] { MakeIndex(table, keys.Added().front()); });
}

void Ddl::AddReference(const TableInfo &table, const ReferenceInfo &reference) {
    RequireParents(table, reference);
    TableInfo changed = table;
    changed.references.push_back(reference);
    Run([&] { Rebuild(table, changed); });
}

void Ddl::RequireFilled(const TableInfo &table, QStringView column, const QString &value) const {
    const Value null_row = connection_.Single(
        QStringLiteral("SELECT 1 FROM %1 WHERE %2 IS NULL LIMIT 1").arg(QuoteName(table.name), value));
    if (!null_row.IsNull()) {
        RaiseNullNotAllowed(table, column);
    }
}

void Ddl::CopyRows(const TableInfo &old_table, const TableInfo &new_table, const QString &target) {
    QStringList names;
    QStringList values;
    if (const QString row_id = old_table.RowIdName(); !row_id.isEmpty()) {
        names.append(row_id);
        values.append(row_id);
    }
    for (size_t i = 0; i < old_table.columns.size(); ++i) {
        const ColumnInfo &column = new_table.columns[i];
        names.append(QuoteName(column.name));
        values.append(Converted(old_table.columns[i], column));
        if (column.not_null && values.last() != names.last()) {
            RequireFilled(old_table, column.name, values.last());
        }
    }
    connection_.Execute(QStringLiteral("INSERT INTO %1 (%2) SELECT %3 FROM %4")
                            .arg(QuoteName(target), names.join(u", "), values.join(u", "), QuoteName(old_table.name)));
}

void Ddl::Rebuild(const TableInfo &old_table, const TableInfo &new_table) {
    const QString temporary = old_table.name + u"/rebuild"_s;
    DropRowRules(connection_);
    connection_.Execute(CreateTableSql(temporary, new_table));
    CopyRows(old_table, new_table, temporary);
    connection_.Execute(u"DROP TABLE "_s + QuoteName(old_table.name));
    connection_.Execute(
        QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(QuoteName(temporary), QuoteName(old_table.name)));
    // With the rows in: quicker, and keys that the conversion made equal show.
    for (const IndexInfo &index : old_table.indexes) {
        MakeIndex(old_table, index);
    }
}

void Ddl::DropTable(const ast::DropTable &statement) {
    const QString name = RequireTable(statement.table).name;
    for (const TableInfo &child : catalogue_.Tables()) {
        for (const ReferenceInfo &reference : child.references) {
            if (SameName(reference.parent_table, name) && !SameName(child.name, name)) {
                throw SqlError(
                    ErrorCode::UsedByReference,
                    QStringLiteral("Table '%1' can't be deleted: table '%2' refers to it.").arg(name, child.name));
            }
        }
    }
    Run([&] {
        DropRowRules(connection_);
        connection_.Execute(u"DROP TABLE "_s + QuoteName(name));
    });
}

void Ddl::DropIndex(const ast::DropIndex &statement) {
    const TableInfo table = RequireTable(statement.table);
    DropIndexOf(table, statement.name);
}

void Ddl::RequireUnreferenced(const TableInfo &table, const IndexInfo &index) const {
    TableInfo rest = table;
    std::erase_if(rest.indexes, [&](const IndexInfo &other) { return SameName(other.name, index.name); });
    for (const TableInfo &child : catalogue_.Tables()) {
        for (const ReferenceInfo &reference : child.references) {
            if (SameName(reference.parent_table, table.name) && !HasUniqueKey(rest, reference.parent_columns)) {
                throw SqlError(ErrorCode::UsedByReference,
                               QStringLiteral("Index '%1' of table '%2' can't be deleted: table '%3' refers to it.")
                                   .arg(index.name, table.name, child.name));
            }
        }
    }
}

void Ddl::DropIndexOf(const TableInfo &table, QStringView name) {
    const IndexInfo *index = table.FindIndex(name);
    if (index == nullptr) {
        throw SqlError(ErrorCode::IndexNotFound, QStringLiteral("Table '%1' has no index '%2'.").arg(table.name, name));
    }
    RequireUnreferenced(table, *index);
    const QString physical = PhysicalIndexName(table.name, index->name, index->primary);
    Run([&] { connection_.Execute(u"DROP INDEX "_s + QuoteName(physical)); });
}

void Ddl::RenameColumn(QStringView table_name, QStringView column_name, QStringView new_name) {
    const TableInfo table = RequireTable(table_name);
    const ColumnInfo &column = RequireColumn(table, column_name);
    if (!SameName(column.name, new_name)) {
        RequireNewColumn(table, new_name);
    }
    Run([&] {
        DropRowRules(connection_);
        connection_.Execute(QStringLiteral("ALTER TABLE %1 RENAME COLUMN %2 TO %3")
                                .arg(QuoteName(table.name), QuoteName(column.name), QuoteName(new_name)));
    });
}

void Ddl::DropColumn(QStringView table_name, QStringView column_name) {
    const TableInfo table = RequireTable(table_name);
    const ColumnInfo &column = RequireColumn(table, column_name);
    const bool indexed = std::any_of(table.indexes.begin(), table.indexes.end(), [&](const IndexInfo &index) {
        return index.columns.contains(column.name, Qt::CaseInsensitive);
    });
    const bool refers = std::any_of(table.references.begin(), table.references.end(), [&](const ReferenceInfo &one) {
        return one.columns.contains(column.name, Qt::CaseInsensitive);
    });
    if (indexed || refers) {
        throw SqlError(ErrorCode::FieldIndexed,
                       QStringLiteral("Field '%1' of table '%2' can't be deleted: it is part of an index or of a "
                                      "reference.")
                           .arg(column.name, table.name));
    }
    if (table.columns.size() == 1) {
        throw SqlError(ErrorCode::DdlSyntax,
                       QStringLiteral("Field '%1' can't be deleted: it is the only one of table '%2'.")
                           .arg(column.name, table.name));
    }
    Run([&] {
        DropRowRules(connection_);
        connection_.Execute(
            QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(QuoteName(table.name), QuoteName(column.name)));
    });
}

} // namespace ostrand::sql
