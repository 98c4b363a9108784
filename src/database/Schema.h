// The tables and indexes of a collection database, as data.
#pragma once

#include <QString>
#include <QStringView>

#include <span>

namespace ostrand {

/// A table: its name and what stands between the brackets of its CREATE TABLE.
struct TableSpec {
    QStringView name;
    QStringView columns;

    QString CreateStatement() const;
};

struct IndexSpec {
    QStringView name;
    QStringView table;
    QStringView columns; ///< joined by ", "
    bool unique = false;

    QString CreateStatement() const;
};

/// The tables that belong to no profile: those made before the schema version is written, and those behind it.
std::span<const TableSpec> TablesBeforeVersion();
std::span<const TableSpec> TablesAfterVersion();
/// The tables that the import fills, in the order in which they are made.
std::span<const TableSpec> ProfileTables();
/// In the order in which they are made.
std::span<const IndexSpec> SchemaIndexes();

/// A table of the present schema by its exact name; it must exist.
const TableSpec &SchemaTable(QStringView name);
/// An index of the present schema by its exact name; it must exist.
const IndexSpec &SchemaIndex(QStringView name);

} // namespace ostrand
