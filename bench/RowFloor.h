// What writing the rows of a collection costs when nothing else is done: plain SQLite, prepared statements, the same
// tables, indexes, sort order, settings and transactions.
#pragma once

#include "sql/DatabaseFile.h"
#include "sql/Functions.h"

#include <QElapsedTimer>
#include <QStringList>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

namespace ostrand::bench {

inline void Require(bool done, sqlite3 *handle) {
    if (!done) {
        std::fprintf(stderr, "bench_import: %s\n", sqlite3_errmsg(handle));
        std::exit(2);
    }
}

class PlainStatement {
public:
    PlainStatement(sqlite3 *handle, const QString &sql) : handle_(handle) {
        Require(sqlite3_prepare_v2(handle, sql.toUtf8().constData(), -1, &statement_, nullptr) == SQLITE_OK, handle);
    }
    ~PlainStatement() { sqlite3_finalize(statement_); }
    PlainStatement(const PlainStatement &) = delete;
    PlainStatement &operator=(const PlainStatement &) = delete;

    sqlite3_stmt *Get() const { return statement_; }
    bool Step() {
        const int result = sqlite3_step(statement_);
        Require(result == SQLITE_ROW || result == SQLITE_DONE, handle_);
        return result == SQLITE_ROW;
    }
    void Run() {
        Step();
        sqlite3_reset(statement_);
    }

private:
    sqlite3 *handle_;
    sqlite3_stmt *statement_ = nullptr;
};

/// The rows of some profiles in the order of their writing, as values that SQLite takes without a conversion.
class RowStore {
public:
    struct Row {
        std::size_t table = 0;
        qint64 profile = 0;
        std::vector<sqlite3_value *> values;
    };

    RowStore() = default;
    RowStore(const RowStore &) = delete;
    RowStore &operator=(const RowStore &) = delete;
    ~RowStore() { Clear(); }

    void Add(std::size_t table, sqlite3_stmt *statement) {
        Row row{.table = table, .profile = sqlite3_column_int64(statement, 0), .values = {}};
        for (int i = 1; i < sqlite3_column_count(statement); ++i) {
            row.values.push_back(sqlite3_value_dup(sqlite3_column_value(statement, i)));
        }
        rows_.push_back(std::move(row));
    }
    /// Rows of a profile come together, those of one table in their order.
    void Sort() {
        std::stable_sort(rows_.begin(), rows_.end(), [](const Row &a, const Row &b) { return a.profile < b.profile; });
    }
    const std::vector<Row> &Rows() const { return rows_; }
    void Clear() {
        for (const Row &row : rows_) {
            for (sqlite3_value *value : row.values) {
                sqlite3_value_free(value);
            }
        }
        rows_.clear();
    }

private:
    std::vector<Row> rows_;
};

/// Copies a collection, profile by profile, and measures the writing alone.
class RowFloor {
public:
    RowFloor(const QString &source, const QString &target) :
        source_(sql::OpenFile(source, Register())), target_(sql::CreateFile(target, Register())) {
        CopySchema();
    }

    /// Seconds of the processor.
    double Run() {
        constexpr qint64 kProfilesAtOnce = 500;
        const qint64 profiles = Number(QStringLiteral("SELECT max(rowid) FROM Profiles"));
        double seconds = 0;
        for (qint64 first = 0; first <= profiles; first += kProfilesAtOnce) {
            Load(first, first + kProfilesAtOnce - 1, profiles);
            seconds += Timed([this] { Write(); });
        }
        seconds += Timed([this] { CloseTarget(); });
        return seconds;
    }
    qint64 RowCount() const { return row_count_; }

private:
    struct Table {
        QString name;
        QString select;
        std::unique_ptr<PlainStatement> insert;
    };

    sql::Registration Register() {
        return [this](sqlite3 *handle) { sql::RegisterFunctions(handle, environment_); };
    }
    static double Timed(const std::function<void()> &work) {
        const std::clock_t start = std::clock();
        work();
        return double(std::clock() - start) / CLOCKS_PER_SEC;
    }
    qint64 Number(const QString &sql) {
        PlainStatement statement(source_.Handle(), sql);
        return statement.Step() ? sqlite3_column_int64(statement.Get(), 0) : 0;
    }
    QStringList Texts(const QString &sql) {
        QStringList texts;
        PlainStatement statement(source_.Handle(), sql);
        while (statement.Step()) {
            texts += QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement.Get(), 0)));
        }
        return texts;
    }

    /// Tables and indexes, but no triggers: to check references is the work of the program.
    void CopySchema() {
        const QStringList statements = Texts(
            QStringLiteral("SELECT sql FROM sqlite_schema WHERE type IN ('table', 'index') AND sql IS NOT NULL AND "
                           "name NOT LIKE 'sqlite~_%' ESCAPE '~' ORDER BY type DESC, rowid"));
        for (const QString &statement : statements) {
            PlainStatement(target_.Handle(), statement).Run();
        }
        const QStringList names = Texts(QStringLiteral(
            "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite~_%' ESCAPE '~'"));
        for (const QString &name : names) {
            AddTable(name);
        }
    }
    void AddTable(const QString &name) {
        const QStringList columns = Texts(QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(name));
        const QStringList marks(columns.size(), QStringLiteral("?"));
        const QString list = QStringLiteral("\"%1\"").arg(columns.join(QStringLiteral("\",\"")));
        const QString of_rows = QStringLiteral("t.\"%1\"").arg(columns.join(QStringLiteral("\",t.\"")));
        const QString key =
            columns.contains(QStringLiteral("BoxSetID")) ? QStringLiteral("BoxSetID") : QStringLiteral("ProfileID");
        Table table{.name = name, .select = {}, .insert = {}};
        if (columns.contains(key)) {
            table.select = QStringLiteral("SELECT p.rowid, %1 FROM Profiles p JOIN \"%2\" t ON t.%3 = p.ProfileID "
                                          "WHERE p.rowid BETWEEN ?1 AND ?2 ORDER BY p.rowid, t.rowid")
                               .arg(of_rows, name, key);
        } else {
            // Rows that belong to no profile come in even steps between them.
            table.select = QStringLiteral("SELECT t.rowid * ?3 / ?4, %1 FROM \"%2\" t WHERE t.rowid * ?3 / ?4 "
                                          "BETWEEN ?1 AND ?2 ORDER BY t.rowid")
                               .arg(of_rows, name);
        }
        table.insert = std::make_unique<PlainStatement>(
            target_.Handle(), QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)").arg(name, list, marks.join(u',')));
        tables_.push_back(std::move(table));
    }

    void Load(qint64 first, qint64 last, qint64 profiles) {
        store_.Clear();
        for (std::size_t i = 0; i < tables_.size(); ++i) {
            PlainStatement select(source_.Handle(), tables_[i].select);
            sqlite3_bind_int64(select.Get(), 1, first);
            sqlite3_bind_int64(select.Get(), 2, last);
            if (sqlite3_bind_parameter_count(select.Get()) > 2) {
                sqlite3_bind_int64(select.Get(), 3, profiles);
                sqlite3_bind_int64(
                    select.Get(), 4,
                    std::max<qint64>(1, Number(QStringLiteral("SELECT max(rowid) FROM \"%1\"").arg(tables_[i].name))));
            }
            while (select.Step()) {
                store_.Add(i, select.Get());
            }
        }
        store_.Sort();
    }

    void Write() {
        qint64 profile = -1;
        for (const RowStore::Row &row : store_.Rows()) {
            if (row.profile != profile) {
                CommitIfDue();
                profile = row.profile;
            }
            if (!begun_) {
                begin_->Run();
                begun_ = true;
                statements_ = 0;
                since_begin_.start();
            }
            PlainStatement &insert = *tables_[row.table].insert;
            for (std::size_t i = 0; i < row.values.size(); ++i) {
                sqlite3_bind_value(insert.Get(), int(i) + 1, row.values[i]);
            }
            insert.Run();
            ++statements_;
            ++row_count_;
        }
    }
    /// At the end of a profile, as the engine does it.
    void CommitIfDue() {
        constexpr int kMostStatements = 500;
        constexpr qint64 kMostMilliseconds = 300;
        if (begun_ && (statements_ > kMostStatements || since_begin_.elapsed() > kMostMilliseconds)) {
            commit_->Run();
            begun_ = false;
        }
    }
    void CloseTarget() {
        if (begun_) {
            commit_->Run();
        }
        tables_.clear();
        begin_.reset();
        commit_.reset();
        sql::CloseFile(std::move(target_));
    }

    sql::Environment environment_;
    sql::Connection source_;
    sql::Connection target_;
    std::vector<Table> tables_;
    RowStore store_;
    std::unique_ptr<PlainStatement> begin_ =
        std::make_unique<PlainStatement>(target_.Handle(), QStringLiteral("BEGIN IMMEDIATE"));
    std::unique_ptr<PlainStatement> commit_ =
        std::make_unique<PlainStatement>(target_.Handle(), QStringLiteral("COMMIT"));
    QElapsedTimer since_begin_;
    int statements_ = 0;
    qint64 row_count_ = 0;
    bool begun_ = false;
};

} // namespace ostrand::bench
