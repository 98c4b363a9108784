#include "sql/DdlKeys.h"

#include "sql/SqlError.h"

namespace ostrand::sql {

namespace {

bool SameNames(const QStringList &left, const QStringList &right) {
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) == 0; });
}

} // namespace

void DdlKeys::AddInline(const ast::ColumnDef &definition) {
    if (definition.primary_key || definition.unique) {
        Add({}, {definition.name}, true, definition.primary_key);
    }
}

void DdlKeys::AddConstraint(const ast::TableConstraint &constraint) {
    if (constraint.type == ast::TableConstraint::Type::ForeignKey) {
        return;
    }
    const bool primary = constraint.type == ast::TableConstraint::Type::PrimaryKey;
    Add(constraint.name, QStringList(constraint.columns.begin(), constraint.columns.end()), true, primary);
}

void DdlKeys::Add(const QString &name, const QStringList &columns, bool unique, bool primary) {
    IndexInfo index{name, RequireColumns(table_, columns), unique, primary};
    if (primary && table_.PrimaryKey() != nullptr) {
        throw SqlError(ErrorCode::PrimaryKeyExists,
                       QStringLiteral("Table '%1' has a primary key already.").arg(table_.name));
    }
    if (!name.isEmpty() && table_.FindIndex(name) != nullptr) {
        throw SqlError(ErrorCode::IndexExists,
                       QStringLiteral("Table '%1' has an index named '%2' already.").arg(table_.name, name));
    }
    const bool same_stands = std::any_of(added_.begin(), added_.end(), [&](const IndexInfo &other) {
        return other.unique && SameNames(other.columns, index.columns);
    });
    if (name.isEmpty() && unique && !primary && same_stands) {
        return;
    }
    if (name.isEmpty()) {
        index.name = FreeName();
    }
    added_.push_back(index);
    table_.indexes.push_back(index);
}

QString DdlKeys::FreeName() const {
    for (int number = 1;; ++number) {
        QString name = QStringLiteral("Index%1").arg(number);
        if (table_.FindIndex(name) == nullptr) {
            return name;
        }
    }
}

QStringList RequireColumns(const TableInfo &table, const QStringList &columns) {
    QStringList found;
    for (const QString &name : columns) {
        const ColumnInfo *column = table.FindColumn(name);
        if (column == nullptr) {
            throw SqlError(ErrorCode::FieldNotFound,
                           QStringLiteral("Table '%1' has no field '%2'.").arg(table.name, name));
        }
        if (found.contains(column->name)) {
            throw SqlError(ErrorCode::FieldExists, QStringLiteral("Field '%1' stands twice in a key.").arg(name));
        }
        found.append(column->name);
    }
    return found;
}

QString QuotedNames(const QStringList &names) {
    QStringList quoted;
    for (const QString &name : names) {
        quoted.append(QuoteName(name));
    }
    return quoted.join(u", ");
}

QString CreateIndexSql(const QString &table, const IndexInfo &index) {
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(),
             QuoteName(PhysicalIndexName(table, index.name, index.primary)), QuoteName(table),
             QuotedNames(index.columns));
}

QString ReferencesClause(const ReferenceInfo &reference) {
    return QStringLiteral("REFERENCES %1 (%2)")
        .arg(QuoteName(reference.parent_table), QuotedNames(reference.parent_columns));
}

QString CreateTableSql(const QString &name, const TableInfo &table) {
    QStringList parts;
    for (const ColumnInfo &column : table.columns) {
        parts.append(QuoteName(column.name) + u' ' + PhysicalColumnType(column));
    }
    for (const ReferenceInfo &reference : table.references) {
        parts.append(
            QStringLiteral("FOREIGN KEY (%1) %2").arg(QuotedNames(reference.columns), ReferencesClause(reference)));
    }
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(QuoteName(name), parts.join(u", "));
}

} // namespace ostrand::sql
