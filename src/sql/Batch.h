// When what was written becomes durable.
#pragma once

#include "sql/Connection.h"

#include <functional>
#include <optional>

namespace ostrand::sql {

/// Joins the statements that write into transactions, since a transaction each would cost ten times as much. A
/// transaction ends after some hundred statements or some hundred milliseconds, never while a bracket is open.
///
/// After a fault (disk full, for one) SQLite may have given the whole transaction up. OnError notices; should it not be
/// called, the next member throws, so that nothing is lost in silence. In a bracket all further writes throw the fault
/// again until the bracket is left: what came before them is gone, and half of a bracket must not reach the file.
class Batch {
public:
    /// Milliseconds of any clock that does not run backwards.
    using Clock = std::function<qint64()>;

    Batch(Connection &connection, Clock clock);

    /// Opens a transaction where none is open. Throws CannotLock while another process writes, and CannotOpenDatabase
    /// when the file is no longer where it was opened.
    void BeforeWrite();
    /// Counts a statement that succeeded, and ends the transaction when it is due.
    void AfterWrite();
    /// Makes all durable, unless a bracket is open.
    void Flush();
    /// The same, if the time since the first undurable statement is over.
    void FlushIfDue();
    /// To be called with the fault of a statement that failed, which the caller throws on.
    void OnError(const SqlError &error);

    /// Takes back all that is not durable yet. In a bracket further writes throw until it is left.
    void Abandon();

    /// Brackets nest. Leaving makes nothing durable by itself, and never throws.
    void Enter() noexcept { ++depth_; }
    void Leave() noexcept;

    /// True while something is not durable.
    bool IsOpen() const { return open_; }

private:
    bool IsLost() const;
    bool IsOverdue() const;
    void RequireSound();
    void RequirePlace() const;
    void Commit();

    Connection &connection_;
    Clock clock_;
    Statement begin_;
    Statement commit_;
    std::optional<SqlError> broken_; // the fault that took the transaction of the present bracket
    qint64 started_ = 0;             // by the clock
    int statements_ = 0;
    int depth_ = 0;
    bool open_ = false;
};

} // namespace ostrand::sql
