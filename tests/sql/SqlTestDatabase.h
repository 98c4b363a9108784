// A database in a folder of its own, for tests of the engine.
#pragma once

#include "sql/Database.h"

#include <QTemporaryDir>

namespace ostrand::sql::test {

/// The clock stands at 2010-01-15 12:00:00 so that Now() can be tested.
inline Environment FixedEnvironment() {
    Environment environment;
    environment.now = [] { return 40193.5; };
    environment.random = [] { return 0.5; };
    return environment;
}

class TestDatabase {
public:
    TestDatabase() : database_(Database::Create(folder_.filePath(QStringLiteral("test.mdb")), FixedEnvironment())) {}

    Database &operator*() { return *database_; }
    Database *operator->() { return database_.get(); }
    QString Path() const { return folder_.filePath(QStringLiteral("test.mdb")); }
    void Close() { database_.reset(); }
    void Reopen() {
        database_.reset();
        database_ = Database::Open(Path(), FixedEnvironment());
    }

private:
    QTemporaryDir folder_;
    std::unique_ptr<Database> database_;
};

} // namespace ostrand::sql::test
