// What the engine knows of a file's tables: columns with their declared kinds, keys, indexes, references.
#pragma once

#include "sql/Types.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace ostrand::sql {

class Connection;

struct ColumnInfo {
    QString name;
    Kind kind = Kind::Text;
    int length = 0; ///< of a Text column, in UTF-16 units; 0 for all others
    bool not_null = false;
};

struct IndexInfo {
    QString name; ///< as the dialect knows it, unique within its table
    QStringList columns;
    bool unique = false;
    bool primary = false;
};

/// A foreign key of one column list.
struct ReferenceInfo {
    QStringList columns;
    QString parent_table;
    QStringList parent_columns;
};

struct TableInfo {
    QString name;
    std::vector<ColumnInfo> columns;
    std::vector<IndexInfo> indexes; ///< in the order in which they were made
    std::vector<ReferenceInfo> references;

    /// The place of a column, names compared without case; -1 when there is none.
    int IndexOf(QStringView column) const;
    const ColumnInfo *FindColumn(QStringView column) const;
    const IndexInfo *FindIndex(QStringView index) const;
    const IndexInfo *PrimaryKey() const;
    /// True for a column that takes no NULL: declared so, or part of the primary key.
    bool TakesNoNull(QStringView column) const;
    /// A name of SQLite's row number that no column hides; empty where all are hidden.
    QString RowIdName() const;
};

/// The tables of one open file. Nothing is kept beside SQLite's own schema: declared types, keys and references are
/// read from it.
class Catalogue {
public:
    /// Reads the schema anew and raises the generation.
    void Load(Connection &connection);
    const TableInfo *FindTable(QStringView name) const;
    /// In the order in which they were created.
    const std::vector<TableInfo> &Tables() const { return tables_; }
    int Generation() const { return generation_; }

private:
    std::vector<TableInfo> tables_;
    std::vector<QString> definitions_; // of each table and its indexes, to see which have changed
    QHash<QString, int> by_name_;      // folded name to place
    int generation_ = 0;
};

/// SQLite's name of an index of the dialect; index names are per table in the dialect and per file in SQLite.
QString PhysicalIndexName(QStringView table, QStringView index, bool primary);
/// The words that stand behind a column's name in SQLite's CREATE TABLE: a type that gives the right affinity and
/// tells the declared kind and length, the collation of texts, NOT NULL, the default of a truth value.
QString PhysicalColumnType(const ColumnInfo &column);
/// A name in SQLite's double quotes.
QString QuoteName(QStringView name);
/// A text as SQLite's literal; SQLite's SQL cannot hold the character 0, which is left out.
QString QuoteText(QStringView text);

/// Names of tables, columns and indexes ignore case.
inline bool SameName(QStringView left, QStringView right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace ostrand::sql
