#include "sql/ChangeCounter.h"

#include "sql/TableWatch.h"

#include <sqlite3.h>

namespace ostrand::sql {

namespace {

qint64 Read(Statement &pragma) {
    const qint64 number = pragma.Step() ? pragma.ColumnInteger(0) : 0;
    pragma.Reset();
    return number;
}

} // namespace

ChangeCounter::ChangeCounter(const Connection &connection) :
    connection_(connection), data_version_(connection.Prepare(u"PRAGMA data_version")),
    schema_version_(connection.Prepare(u"PRAGMA schema_version")),
    known_changes_(unsigned(sqlite3_total_changes(connection.Handle()))) {
    sqlite3_update_hook(connection.Handle(), &ChangeCounter::OnRow, this);
    sqlite3_rollback_hook(connection.Handle(), &ChangeCounter::OnRollback, this);
}

ChangeCounter::~ChangeCounter() {
    sqlite3_update_hook(connection_.Handle(), nullptr, nullptr);
    sqlite3_rollback_hook(connection_.Handle(), nullptr, nullptr);
}

void ChangeCounter::OnRow(void *self, int, const char *, const char *table, long long) {
    static_cast<ChangeCounter *>(self)->CountRow(table);
}

void ChangeCounter::OnRollback(void *self) {
    ++static_cast<ChangeCounter *>(self)->of_all_;
}

void ChangeCounter::CountRow(const char *table) {
    ++told_rows_;
    if (last_ >= counts_.size() || counts_[last_].table != table) {
        const auto known = std::find_if(counts_.begin(), counts_.end(),
                                        [table](const TableCount &candidate) { return candidate.table == table; });
        last_ = size_t(known - counts_.begin());
        if (known == counts_.end()) {
            counts_.push_back({table, 0});
        }
    }
    ++counts_[last_].count;
}

void ChangeCounter::AfterWrite(bool succeeded) {
    const auto changes = unsigned(sqlite3_total_changes(connection_.Handle()));
    // A statement that failed was told row by row before its rows were taken back.
    if (succeeded && changes - known_changes_ != told_rows_) {
        ++of_all_;
    }
    known_changes_ = changes;
    told_rows_ = 0;
}

void ChangeCounter::LookAround() {
    const qint64 data = Read(data_version_);
    const qint64 schema = Read(schema_version_);
    if (std::exchange(known_data_version_, data) != data) {
        ++of_all_;
    }
    if (std::exchange(known_schema_version_, schema) != schema) {
        ++of_all_;
    }
}

quint64 ChangeCounter::CountOf(const QStringList &tables) {
    LookAround();
    quint64 count = of_all_;
    for (const TableCount &table : counts_) {
        if (tables.contains(QString::fromUtf8(table.table), Qt::CaseInsensitive)) {
            count += table.count;
        }
    }
    return count;
}

TableWatch::TableWatch(const std::shared_ptr<ChangeCounter> &counter, const QStringList &tables) :
    counter_(counter), tables_(tables), count_(counter->CountOf(tables)) {}

bool TableWatch::Changed() const {
    const std::shared_ptr<ChangeCounter> counter = counter_.lock();
    return !counter || counter->CountOf(tables_) != count_;
}

} // namespace ostrand::sql
