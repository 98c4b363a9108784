// Counts what changes the rows of each table.
#pragma once

#include "sql/Connection.h"

#include <string>
#include <vector>

namespace ostrand::sql {

/// Hooks into a handle of SQLite, which must outlive it.
class ChangeCounter {
public:
    explicit ChangeCounter(const Connection &connection);
    ~ChangeCounter();
    ChangeCounter(const ChangeCounter &) = delete;
    ChangeCounter &operator=(const ChangeCounter &) = delete;

    /// To be called behind each statement that wrote: SQLite tells nothing of the rows when it empties a table at once.
    void AfterWrite(bool succeeded);
    /// A number that rises whenever rows of the tables may have changed.
    quint64 CountOf(const QStringList &tables);

private:
    struct TableCount {
        std::string table;
        quint64 count = 0;
    };
    static void OnRow(void *self, int operation, const char *schema, const char *table, long long row_id);
    static void OnRollback(void *self);
    void CountRow(const char *table);
    void LookAround();

    const Connection &connection_;
    Statement data_version_;
    Statement schema_version_;
    qint64 known_data_version_ = -1;
    qint64 known_schema_version_ = -1;
    std::vector<TableCount> counts_;
    size_t last_ = 0; ///< a statement writes many rows of one table
    quint64 of_all_ = 0;
    unsigned told_rows_ = 0;     ///< by the hook since `known_changes_`
    unsigned known_changes_ = 0; ///< SQLite's own count, which wraps round
};

} // namespace ostrand::sql
