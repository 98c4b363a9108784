// The handle of SQLite, kept and closed; faults as SqlError.
#pragma once

#include "sql/SqlError.h"
#include "sql/Value.h"

#include <QString>
#include <QStringView>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace ostrand::sql {

/// A prepared statement of SQLite's own dialect. Parameters and columns count from 0.
class Statement {
public:
    Statement() = default;
    explicit Statement(sqlite3_stmt *handle) : handle_(handle) {}

    explicit operator bool() const { return handle_ != nullptr; }
    sqlite3_stmt *Handle() const { return handle_.get(); }
    void Bind(int parameter, const Value &value);
    /// True while there is a row. Throws on any fault.
    bool Step();
    /// Ready for the next run; keeps no lock.
    void Reset();
    /// True once after SQLite had to compile the statement again, since the schema had changed.
    bool TakeRecompiled();
    int ColumnCount() const;
    Value Column(int column) const;
    QString ColumnText(int column) const;
    qint64 ColumnInteger(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt *handle) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

class Connection {
public:
    Connection() = default;
    /// Takes over an open handle.
    explicit Connection(sqlite3 *handle) : handle_(handle) {}

    sqlite3 *Handle() const { return handle_.get(); }
    /// Prepares one statement of SQLite's dialect; throws SqlError on a fault.
    Statement Prepare(QStringView sql) const;
    /// Runs one or more statements of SQLite's dialect without results.
    void Execute(QStringView sql) const;
    /// The first column of the first row, NULL without a row.
    Value Single(QStringView sql) const;
    /// Rows that the last INSERT, UPDATE or DELETE changed.
    int Changes() const;
    /// True where the file no longer stands under the name that it was opened by.
    bool HasMoved() const;

private:
    struct Closer {
        void operator()(sqlite3 *handle) const;
    };
    std::unique_ptr<sqlite3, Closer> handle_;
};

/// Raises the present fault of a handle as SqlError with our number and a readable text. A text that a function of
/// ours raised (see RaiseInFunction in Functions.h) keeps its number.
[[noreturn]] void RaiseSqliteError(sqlite3 *handle);

} // namespace ostrand::sql
