// Prepared statements by the shape of their text.
#pragma once

#include "sql/Compiled.h"
#include "sql/Connection.h"
#include "sql/Shape.h"

#include <QHash>
#include <QString>

#include <list>
#include <memory>
#include <vector>

namespace ostrand::sql {

struct CachedStatement {
    Compiled compiled;
    Statement statement;
    std::vector<QString> baked; ///< texts of the baked literals, in the order of `compiled.baked`
    bool busy = false;
    int last_rows = 0; ///< of its last result
};

/// Keeps the statements used last. One shape has an entry for each set of its baked literals.
class StatementCache {
public:
    explicit StatementCache(size_t capacity = 512) : capacity_(capacity) {}

    std::shared_ptr<CachedStatement> Find(const Shape &shape);
    void Insert(const Shape &shape, std::shared_ptr<CachedStatement> statement);
    void Clear();
    qint64 Lookups() const { return lookups_; }
    qint64 Hits() const { return hits_; }

private:
    struct Entry {
        QString key;
        std::shared_ptr<CachedStatement> statement;
    };
    using Position = std::list<Entry>::iterator;

    size_t capacity_;
    std::list<Entry> entries_; // used last comes first
    QHash<QString, std::vector<Position>> by_key_;
    qint64 lookups_ = 0;
    qint64 hits_ = 0;
};

/// Notes which literals of the shape no parameter of the statement takes, and their texts: another content of theirs
/// is another statement.
void NoteBakedLiterals(CachedStatement &cached, const Shape &shape);

} // namespace ostrand::sql
