// Statements that fail as on a full disk.
#pragma once

#include "sql/Database.h"

namespace ostrand::test {

/// Statements that begin so fail, from the n-th one on, until another observer takes this one's place.
inline void FailFrom(sql::Database &database, const QString &beginning, int number = 1) {
    database.SetObserver([beginning, number](QStringView statement) mutable {
        if (statement.startsWith(beginning) && --number <= 0) {
            throw sql::SqlError(sql::ErrorCode::DiskFull, QStringLiteral("The disk is full."));
        }
    });
}

} // namespace ostrand::test
