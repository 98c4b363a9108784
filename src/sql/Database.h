// One open database file and the statements that run on it.
#pragma once

#include "sql/Catalogue.h"
#include "sql/Recordset.h"
#include "sql/SqlError.h"
#include "sql/TableWatch.h"
#include "sql/Types.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>

namespace ostrand::sql {

/// A database file, opened through the dialect. All members throw SqlError on a fault; a row that breaks a key, a NOT
/// NULL or a reference is no fault of Execute, it is dropped alone.
class Database {
public:
    /// Makes an empty file; throws where one exists or cannot be made.
    static std::unique_ptr<Database> Create(const QString &path, Environment environment = {});
    /// Opens a file for reading and writing; throws where it is missing, no database, damaged or not writable, and
    /// leaves it untouched then.
    static std::unique_ptr<Database> Open(const QString &path, Environment environment = {});
    /// Writes a compact copy of the file `source` to the new file `target`.
    static void Compact(const QString &source, const QString &target);
    /// Makes everything durable and closes; the file stands alone afterwards.
    ~Database();

    const QString &Path() const;
    const Environment &GetEnvironment() const;

    /// Opens the rows of a query or of a bare table name. A statement without rows is executed and gives a result set
    /// without fields.
    Recordset OpenRecordset(QStringView sql);
    /// Runs a statement; the number of rows that it wrote or removed.
    int Execute(QStringView sql);
    /// True where the statement gives rows (SELECT, UNION, TRANSFORM, a bare table name), told by parsing it.
    bool GivesRows(QStringView sql);

    const Catalogue &GetCatalogue();
    const TableInfo *FindTable(QStringView table) { return GetCatalogue().FindTable(table); }
    int RecordCount(QStringView table);
    void RenameColumn(QStringView table, QStringView column, QStringView new_name);
    void DropColumn(QStringView table, QStringView column);
    void DropIndex(QStringView table, QStringView index);

    /// Watches tables from now on.
    TableWatch Watch(const QStringList &tables);

    /// Makes all that was done durable, unless a bracket is open.
    void Flush();
    /// Makes it durable when the time since the first undurable statement is over; for idle moments. Does nothing from
    /// within `SetProgress`.
    void FlushIfDue();
    /// Ends the statement that runs, from within `SetProgress` or from another thread; it throws Interrupted.
    void Interrupt();
    /// Called every few milliseconds of a long statement; true ends it with Interrupted.
    void SetProgress(std::function<bool()> progress);

    /// While one lives, no durable point falls: what is done meanwhile is in the file wholly or not at all, should the
    /// process die. Brackets nest.
    class Bracket {
    public:
        explicit Bracket(Database &database);
        ~Bracket();
        /// Takes back all that is not durable, and thus, when `Flush` came just before the outermost bracket, all that
        /// was done in it. Further writes throw until that is left.
        void Abandon();
        Bracket(const Bracket &) = delete;
        Bracket &operator=(const Bracket &) = delete;

    private:
        Database &database_;
    };

    /// For measurements: look-ups and hits of the statement cache.
    struct CacheCounts {
        qint64 lookups = 0;
        qint64 hits = 0;
    };
    CacheCounts GetCacheCounts() const;
    /// SQLite's query plan of a statement of the dialect, one line a step; for tests of what scans a table.
    QStringList QueryPlan(QStringView sql);
    /// Called with each statement that OpenRecordset and Execute are given, before it runs; for tests of what a job
    /// sends.
    void SetObserver(std::function<void(QStringView)> observer);

    struct Impl;

private:
    friend class Recordset;
    explicit Database(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

} // namespace ostrand::sql
