// Whether rows of some tables changed, for whoever keeps what was read from them.
#pragma once

#include <QStringList>

#include <memory>

namespace ostrand::sql {

class ChangeCounter;

/// Tells whether what was read from some tables may be out of date. Certain in one direction: a change is never missed,
/// be it this program's, another one's, or taken back; a change of the file's structure counts for every table.
class TableWatch {
public:
    /// Watches nothing; Changed is true.
    TableWatch() = default;
    TableWatch(const std::shared_ptr<ChangeCounter> &counter, const QStringList &tables);

    /// True as well when the database was closed since. Costs some microseconds. Throws SqlError.
    bool Changed() const;
    /// The database was closed since.
    bool IsOver() const { return counter_.expired(); }

private:
    std::weak_ptr<ChangeCounter> counter_;
    QStringList tables_;
    quint64 count_ = 0;
};

} // namespace ostrand::sql
