#include "sql/Batch.h"

#include <sqlite3.h>

namespace ostrand::sql {

namespace {

constexpr int kMostUnkeptStatements = 500;
constexpr qint64 kMostMilliseconds = 300;

void RunOnce(Statement &statement) {
    statement.Step();
    statement.Reset();
}

} // namespace

Batch::Batch(Connection &connection, Clock clock) :
    connection_(connection), clock_(std::move(clock)), begin_(connection.Prepare(u"BEGIN IMMEDIATE")),
    commit_(connection.Prepare(u"COMMIT")) {}

bool Batch::IsLost() const {
    return open_ && sqlite3_get_autocommit(connection_.Handle()) != 0;
}

bool Batch::IsOverdue() const {
    return statements_ > kMostUnkeptStatements || clock_() - started_ > kMostMilliseconds;
}

void Batch::RequireSound() {
    if (IsLost()) {
        const SqlError lost(ErrorCode::DiskError,
                            QStringLiteral("What was written last could not be made durable and is lost."));
        OnError(lost);
        throw lost;
    }
    if (broken_) {
        throw SqlError(*broken_);
    }
}

/// What is written into a file that has no name any more is gone when it is closed.
void Batch::RequirePlace() const {
    if (connection_.HasMoved()) {
        throw SqlError(ErrorCode::CannotOpenDatabase,
                       QStringLiteral("The database file was moved, removed or replaced while it was open. Nothing "
                                      "more is written into it; open the database again."));
    }
}

void Batch::BeforeWrite() {
    RequireSound();
    if (open_) {
        return;
    }
    RequirePlace();
    RunOnce(begin_);
    open_ = true;
    statements_ = 0;
    started_ = clock_();
}

void Batch::AfterWrite() {
    RequireSound();
    ++statements_;
    if (depth_ == 0 && open_ && IsOverdue()) {
        Commit();
    }
}

void Batch::Flush() {
    if (depth_ > 0) {
        return;
    }
    RequireSound();
    if (open_) {
        Commit();
    }
}

void Batch::FlushIfDue() {
    if (open_ && clock_() - started_ > kMostMilliseconds) {
        Flush();
    }
}

void Batch::OnError(const SqlError &error) {
    if (!IsLost()) {
        return;
    }
    open_ = false;
    if (depth_ > 0) {
        broken_ = error;
    }
}

void Batch::Abandon() {
    if (open_ && !IsLost()) {
        connection_.Execute(u"ROLLBACK");
    }
    open_ = false;
    if (depth_ > 0) {
        broken_ = SqlError(ErrorCode::Interrupted, QStringLiteral("What was begun has been taken back."));
    }
}

void Batch::Leave() noexcept {
    if (--depth_ == 0) {
        broken_.reset();
    }
}

void Batch::Commit() {
    try {
        RunOnce(commit_);
        open_ = false;
    } catch (...) {
        // A busy file leaves the transaction open for another try; other faults have ended it.
        open_ = sqlite3_get_autocommit(connection_.Handle()) == 0;
        throw;
    }
}

} // namespace ostrand::sql
