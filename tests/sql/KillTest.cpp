// What is left of a file when the process that writes it dies, shares it with another, or finds the disk full.

#include "ForkedChild.h"
#include "SqlTestDatabase.h"

#include "sql/Functions.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <random>
#include <thread>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace ostrand::sql::testing {

namespace {

constexpr int kGroup = 40;

/// A process that runs `body` and ends with 0, or with 1 on a fault.
pid_t Fork(const std::function<void()> &body) {
    const pid_t process = ::fork();
    if (process == 0) {
        try {
            body();
        } catch (...) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    return process;
}

class SharedFile : public ::testing::Test {
protected:
    SharedFile() {
        const auto database = Database::Create(path_, test::FixedEnvironment());
        database->Execute(u"CREATE TABLE T (N long PRIMARY KEY, Word varchar)");
        database->Execute(u"CREATE INDEX byWord ON T (Word)");
        database->Execute(u"CREATE TABLE Groups (G long NOT NULL, K long NOT NULL, PRIMARY KEY (G, K))");
    }

    std::unique_ptr<Database> Open() const { return Database::Open(path_, test::FixedEnvironment()); }

    static qint64 Number(Database &database, const QString &sql) {
        return database.OpenRecordset(sql).Get(0).Integer();
    }

    /// SQLite's own word on the file, "ok" when it is sound.
    QString Integrity() const {
        sqlite3 *handle = nullptr;
        EXPECT_EQ(sqlite3_open(path_.toUtf8().constData(), &handle), SQLITE_OK);
        const Environment environment = test::FixedEnvironment();
        RegisterFunctions(handle, environment);
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle, "PRAGMA integrity_check", -1, &statement, nullptr), SQLITE_OK);
        QString answer = u"no answer"_s;
        if (sqlite3_step(statement) == SQLITE_ROW) {
            answer = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
        }
        sqlite3_finalize(statement);
        sqlite3_close(handle);
        return answer;
    }

    /// Sound, the rows 1 to n without a gap, and no group in part; returns n.
    qint64 RequirePrefix() {
        EXPECT_EQ(Integrity(), u"ok"_s);
        const auto database = Open();
        const qint64 count = Number(*database, u"SELECT COUNT(*) FROM T"_s);
        EXPECT_EQ(Number(*database, u"SELECT Nz(MAX(N), 0) FROM T"_s), count);
        EXPECT_EQ(
            Number(*database,
                   u"SELECT COUNT(*) FROM (SELECT G FROM Groups GROUP BY G HAVING COUNT(*) <> %1) AS q"_s.arg(kGroup)),
            0);
        return count;
    }

    /// Writes rows behind those that are there, and a group in a bracket after every hundred; does not end.
    static void WriteForEver(Database &database) {
        qint64 n = Number(database, u"SELECT Nz(MAX(N), 0) FROM T"_s);
        while (true) {
            ++n;
            database.Execute(u"INSERT INTO T VALUES (%1, 'word %2')"_s.arg(n).arg(n % 97));
            if (n % 100 == 0) {
                const Database::Bracket bracket(database);
                for (int k = 0; k < kGroup; ++k) {
                    database.Execute(u"INSERT INTO Groups VALUES (%1, %2)"_s.arg(n).arg(k));
                }
            }
            if (n % 700 == 0) {
                database.Flush();
            }
        }
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"shared.mdb"_s);
};

TEST_F(SharedFile, SurvivesFiftyKilledWriters) {
    std::mt19937 chance(20091123);
    std::uniform_int_distribution<int> wait(0, 60'000);
    qint64 before = 0;
    int grown = 0;
    for (int round = 0; round < 50; ++round) {
        const pid_t process = Fork([&] { WriteForEver(*Open()); });
        std::this_thread::sleep_for(std::chrono::microseconds(10'000 + wait(chance)));
        ::kill(process, SIGKILL);
        int status = 0;
        ::waitpid(process, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "the writer ended by itself in round " << round;
        const qint64 after = RequirePrefix();
        EXPECT_GE(after, before) << "what was durable stays";
        grown += after > before ? 1 : 0;
        before = after;
    }
    EXPECT_GT(grown, 10);
}

TEST_F(SharedFile, TakesTheRowsOfTwoProcesses) {
    constexpr int kRows = 2000;
    const auto write = [&](int first) {
        Fork([&] {
            const auto database = Open();
            for (int i = 0; i < kRows; ++i) {
                database->Execute(u"INSERT INTO T VALUES (%1, 'x')"_s.arg(first + i));
            }
            database->Flush();
        });
    };
    write(1);
    write(1 + kRows);
    for (int i = 0; i < 2; ++i) {
        int status = 0;
        ::wait(&status);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    EXPECT_EQ(RequirePrefix(), 2 * kRows);
}

TEST_F(SharedFile, AHeldLockIsAFaultAfterAWait) {
    std::unique_ptr<Database> held;
    WaitingChild child([&] {
        held = Open();
        held->Execute(u"INSERT INTO T VALUES (1, 'held')");
    });
    ASSERT_TRUE(child.IsStarted());
    const auto database = Open();
    EXPECT_EQ(Number(*database, u"SELECT COUNT(*) FROM T"_s), 0) << "reading goes on";
    QElapsedTimer clock;
    clock.start();
    try {
        database->Execute(u"INSERT INTO T VALUES (2, 'mine')");
        ADD_FAILURE() << "two wrote at once";
    } catch (const SqlError &error) {
        EXPECT_EQ(error.Code(), ErrorCode::CannotLock);
        EXPECT_FALSE(error.Text().isEmpty());
    }
    EXPECT_GE(clock.elapsed(), 1000);
    child.Kill();
    child.Reap();
    EXPECT_EQ(database->Execute(u"INSERT INTO T VALUES (1, 'mine')"), 1) << "the lock went with its holder";
}

TEST_F(SharedFile, AFullDiskIsAFaultAndLeavesTheFileSound) {
    enum Outcome { kFault = 0, kNoFault = 1, kOtherFault = 2, kUnreadable = 3 };
    const int outcome = InChild([&] {
        const auto database = Open();
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{400'000, 400'000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        int result = kNoFault;
        const QString word(200, u'w');
        try {
            for (int n = 1; n < 20'000; ++n) {
                database->Execute(u"INSERT INTO T VALUES (%1, '%2')"_s.arg(n).arg(word));
            }
            database->Flush();
        } catch (const SqlError &error) {
            const bool clear = error.Code() == ErrorCode::DiskFull || error.Code() == ErrorCode::DiskError;
            result = clear ? int(kFault) : int(kOtherFault);
        }
        try {
            Number(*database, u"SELECT COUNT(*) FROM T"_s);
        } catch (const SqlError &) {
            result = kUnreadable;
        }
        return result;
    });
    EXPECT_EQ(outcome, int(kFault));
    RequirePrefix();
    const auto database = Open();
    EXPECT_EQ(database->Execute(u"INSERT INTO T VALUES (50000, 'again')"), 1);
}

} // namespace

} // namespace ostrand::sql::testing
