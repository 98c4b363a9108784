#include "sql/Catalogue.h"

#include "sql/Connection.h"

#include <sqlite3.h>

namespace ostrand::sql {

using namespace Qt::StringLiterals;

namespace {

// Ends of physical index names. The second only marks names that would else read as if they had such an end.
constexpr QStringView kPrimaryEnd = u"/primary";
constexpr QStringView kPlainEnd = u"/index";

QString Fold(QStringView name) {
    return name.toString().toCaseFolded();
}

/// Kind and length behind a type that SQLite keeps; types that we never write are read by SQLite's own rules.
void ReadType(const QString &type, ColumnInfo &column) {
    if (type.startsWith(u"VARTEXT(")) {
        column.kind = Kind::Text;
        column.length = type.mid(8).chopped(1).toInt();
    } else if (type == u"YESNOINT") {
        column.kind = Kind::Boolean;
    } else if (type == u"DATEREAL") {
        column.kind = Kind::Date;
    } else if (type.contains(u"INT", Qt::CaseInsensitive)) {
        column.kind = Kind::Integer;
    } else if (type.contains(u"CHAR", Qt::CaseInsensitive) || type.contains(u"TEXT", Qt::CaseInsensitive) ||
               type.contains(u"CLOB", Qt::CaseInsensitive)) {
        column.kind = Kind::Memo;
    } else {
        column.kind = type.isEmpty() || type.contains(u"BLOB", Qt::CaseInsensitive) ? Kind::Memo : Kind::Real;
    }
}

/// The name of the dialect within a physical index name, and whether it is the primary key.
void ReadIndexName(const QString &table, const QString &physical, IndexInfo &index) {
    index.name = physical;
    if (physical.startsWith(table + u'/', Qt::CaseInsensitive)) {
        index.name = physical.mid(table.size() + 1);
    }
    index.primary = index.name.endsWith(kPrimaryEnd);
    if (index.primary) {
        index.name.chop(kPrimaryEnd.size());
    } else if (index.name.endsWith(kPlainEnd)) {
        index.name.chop(kPlainEnd.size());
    }
}

/// One table of SQLite's schema with its indexes, in the order of their making.
struct SchemaEntry {
    QString table;
    QString definition;
    QStringList physical_indexes;
};

std::vector<SchemaEntry> ReadSchema(const Connection &connection) {
    std::vector<SchemaEntry> entries;
    QHash<QString, qsizetype> places;
    Statement rows = connection.Prepare(u"SELECT type, name, tbl_name, sql FROM sqlite_schema WHERE type IN "
                                        "('table', 'index') AND sql IS NOT NULL ORDER BY rowid");
    while (rows.Step()) {
        const QString name = rows.ColumnText(1);
        const QString table = rows.ColumnText(2);
        if (table.startsWith(u"sqlite_", Qt::CaseInsensitive)) {
            continue;
        }
        if (rows.ColumnText(0) == u"table") {
            places.insert(Fold(table), qsizetype(entries.size()));
            entries.push_back({name, rows.ColumnText(3), {}});
        } else if (auto place = places.constFind(Fold(table)); place != places.constEnd()) {
            SchemaEntry &entry = entries[size_t(*place)];
            entry.physical_indexes.append(name);
            entry.definition += u'\n' + name + u'\n' + rows.ColumnText(3);
        }
    }
    return entries;
}

/// Reads single tables by SQLite's pragmas; keeps its statements from one table to the next.
class TableReader {
public:
    explicit TableReader(const Connection &connection) : connection_(connection) {}

    TableInfo Read(const SchemaEntry &entry) {
        TableInfo table;
        table.name = entry.table;
        ReadColumns(table);
        ReadIndexes(table, entry.physical_indexes);
        ReadReferences(table);
        return table;
    }

private:
    Statement &Start(Statement &statement, QStringView sql, const QString &table) {
        if (!statement) {
            statement = connection_.Prepare(sql);
        }
        statement.Reset();
        statement.Bind(0, table);
        return statement;
    }

    void ReadColumns(TableInfo &table) {
        Statement &rows = Start(columns_, u"SELECT name, type, \"notnull\" FROM pragma_table_info(?)", table.name);
        while (rows.Step()) {
            ColumnInfo column;
            column.name = rows.ColumnText(0);
            ReadType(rows.ColumnText(1), column);
            // A truth value column stands as NOT NULL in SQLite whatever was declared.
            column.not_null = rows.ColumnInteger(2) != 0 && column.kind != Kind::Boolean;
            table.columns.push_back(std::move(column));
        }
    }

    void ReadIndexes(TableInfo &table, const QStringList &physical) {
        table.indexes.resize(size_t(physical.size()));
        for (qsizetype i = 0; i < physical.size(); ++i) {
            ReadIndexName(table.name, physical.at(i), table.indexes[size_t(i)]);
        }
        Statement &rows = Start(indexes_,
                                u"SELECT l.name, l.\"unique\", c.name FROM pragma_index_list(?) l, "
                                "pragma_index_info(l.name) c ORDER BY l.seq, c.seqno",
                                table.name);
        while (rows.Step()) {
            const qsizetype place = physical.indexOf(rows.ColumnText(0));
            if (place >= 0) {
                IndexInfo &index = table.indexes[size_t(place)];
                index.unique = rows.ColumnInteger(1) != 0;
                index.columns.append(rows.ColumnText(2));
            }
        }
    }

    void ReadReferences(TableInfo &table) {
        Statement &rows = Start(references_,
                                u"SELECT seq, \"table\", \"from\", \"to\" FROM pragma_foreign_key_list(?) "
                                "ORDER BY id DESC, seq",
                                table.name);
        while (rows.Step()) {
            if (rows.ColumnInteger(0) == 0) {
                table.references.push_back({{}, rows.ColumnText(1), {}});
            }
            table.references.back().columns.append(rows.ColumnText(2));
            table.references.back().parent_columns.append(rows.ColumnText(3));
        }
    }

    const Connection &connection_;
    Statement columns_;
    Statement indexes_;
    Statement references_;
};

} // namespace

int TableInfo::IndexOf(QStringView column) const {
    for (size_t i = 0; i < columns.size(); ++i) {
        if (SameName(columns[i].name, column)) {
            return int(i);
        }
    }
    return -1;
}

const ColumnInfo *TableInfo::FindColumn(QStringView column) const {
    const int place = IndexOf(column);
    return place < 0 ? nullptr : &columns[size_t(place)];
}

const IndexInfo *TableInfo::FindIndex(QStringView index) const {
    for (const IndexInfo &candidate : indexes) {
        if (SameName(candidate.name, index)) {
            return &candidate;
        }
    }
    return nullptr;
}

const IndexInfo *TableInfo::PrimaryKey() const {
    for (const IndexInfo &candidate : indexes) {
        if (candidate.primary) {
            return &candidate;
        }
    }
    return nullptr;
}

bool TableInfo::TakesNoNull(QStringView column) const {
    const ColumnInfo *info = FindColumn(column);
    if (info != nullptr && info->not_null) {
        return true;
    }
    const IndexInfo *key = PrimaryKey();
    return key != nullptr && key->columns.contains(column, Qt::CaseInsensitive);
}

QString TableInfo::RowIdName() const {
    for (const QString &candidate : {u"rowid"_s, u"_rowid_"_s, u"oid"_s}) {
        if (IndexOf(candidate) < 0) {
            return candidate;
        }
    }
    return {};
}

void Catalogue::Load(Connection &connection) {
    std::vector<SchemaEntry> entries = ReadSchema(connection);
    std::vector<TableInfo> tables;
    std::vector<QString> definitions;
    tables.reserve(entries.size());
    definitions.reserve(entries.size());
    TableReader reader(connection);
    for (SchemaEntry &entry : entries) {
        // A file has many tables and a change concerns one of them: what reads as before is as before.
        const auto known = by_name_.constFind(Fold(entry.table));
        if (known != by_name_.constEnd() && definitions_[size_t(*known)] == entry.definition) {
            tables.push_back(tables_[size_t(*known)]);
        } else {
            tables.push_back(reader.Read(entry));
        }
        definitions.push_back(std::move(entry.definition));
    }
    tables_ = std::move(tables);
    definitions_ = std::move(definitions);
    by_name_.clear();
    for (size_t i = 0; i < tables_.size(); ++i) {
        by_name_.insert(Fold(tables_[i].name), int(i));
    }
    ++generation_;
}

const TableInfo *Catalogue::FindTable(QStringView name) const {
    const auto place = by_name_.constFind(Fold(name));
    return place == by_name_.constEnd() ? nullptr : &tables_[size_t(*place)];
}

QString PhysicalIndexName(QStringView table, QStringView index, bool primary) {
    QString name = table.toString() + u'/' + index.toString();
    if (primary) {
        name += kPrimaryEnd;
    } else if (index.endsWith(kPrimaryEnd) || index.endsWith(kPlainEnd)) {
        name += kPlainEnd;
    }
    return name;
}

QString PhysicalColumnType(const ColumnInfo &column) {
    QString type;
    switch (column.kind) {
    case Kind::Text:
    case Kind::Null:
    case Kind::Unknown:
        type = QStringLiteral("VARTEXT(%1) COLLATE dialect").arg(column.length > 0 ? column.length : 255);
        break;
    case Kind::Memo:
        type = QStringLiteral("MEMOTEXT COLLATE dialect");
        break;
    case Kind::Integer:
        type = QStringLiteral("INT32");
        break;
    case Kind::Real:
        type = QStringLiteral("DOUBLE");
        break;
    case Kind::Date:
        type = QStringLiteral("DATEREAL");
        break;
    case Kind::Boolean:
        return QStringLiteral("YESNOINT NOT NULL DEFAULT 0");
    }
    return column.not_null ? type + u" NOT NULL"_s : type;
}

QString QuoteName(QStringView name) {
    return u'"' + name.toString().replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString QuoteText(QStringView text) {
    return u'\'' + text.toString().remove(QChar(0)).replace(u'\'', QStringLiteral("''")) + u'\'';
}

} // namespace ostrand::sql
