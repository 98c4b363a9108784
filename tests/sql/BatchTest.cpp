#include "ForkedChild.h"
#include "StorageFixture.h"

#include "sql/Batch.h"

#include <sqlite3.h>

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

class BatchTest : public StorageFixture {
protected:
    BatchTest() { Create(u"T"_s, {u"A varchar PRIMARY KEY"_s, u"B memo"_s}); }

    /// One statement as the engine runs it.
    int Write(const QString &sql) {
        return FaultOf([&] {
            batch_.BeforeWrite();
            try {
                connection_.Execute(sql);
            } catch (const SqlError &error) {
                batch_.OnError(error);
                throw;
            }
            batch_.AfterWrite();
        });
    }
    int Insert(int key) { return Write(u"INSERT INTO T VALUES ('k%1', NULL)"_s.arg(key)); }

    /// Rows that another reader of the file sees.
    qint64 Durable() {
        const Connection other = OpenFile(PathOf(u"own.mdb"_s), RegisterTestFunctions);
        return other.Single(u"SELECT COUNT(*) FROM T").Integer();
    }
    qint64 Seen() { return connection_.Single(u"SELECT COUNT(*) FROM T").Integer(); }

    /// From now on the file takes no further page.
    void FillDisk() {
        const qint64 pages = connection_.Single(u"PRAGMA page_count").Integer();
        connection_.Single(u"PRAGMA max_page_count = %1"_s.arg(pages));
    }
    void FreeDisk() { connection_.Single(u"PRAGMA max_page_count = 1000000"); }
    const QString kHuge = u"INSERT INTO T SELECT 'h' || i, zeroblob(4000) FROM (WITH RECURSIVE n(i) AS (SELECT 1 UNION "
                          "ALL SELECT i + 1 FROM n WHERE i < 200) SELECT i FROM n)"_s;

    qint64 now_ = 1000;
    Batch batch_{connection_, [this] { return now_; }};
};

TEST_F(BatchTest, JoinsStatementsUntilItIsFlushed) {
    EXPECT_FALSE(batch_.IsOpen());
    EXPECT_EQ(Insert(1), 0);
    EXPECT_EQ(Insert(2), 0);
    EXPECT_TRUE(batch_.IsOpen());
    EXPECT_EQ(Seen(), 2);
    EXPECT_EQ(Durable(), 0);
    batch_.Flush();
    EXPECT_FALSE(batch_.IsOpen());
    EXPECT_EQ(Durable(), 2);
    batch_.Flush();
    batch_.FlushIfDue();
}

TEST_F(BatchTest, EndsAfterSomeHundredStatements) {
    for (int i = 0; i < 500; ++i) {
        ASSERT_EQ(Insert(i), 0);
    }
    EXPECT_EQ(Durable(), 0);
    Insert(500);
    EXPECT_FALSE(batch_.IsOpen());
    EXPECT_EQ(Durable(), 501);
}

TEST_F(BatchTest, EndsAfterSomeHundredMilliseconds) {
    Insert(1);
    now_ += 300;
    Insert(2);
    batch_.FlushIfDue();
    EXPECT_EQ(Durable(), 0);
    now_ += 1;
    Insert(3);
    EXPECT_EQ(Durable(), 3);
    Insert(4);
    now_ += 301;
    batch_.FlushIfDue();
    EXPECT_EQ(Durable(), 4);
}

TEST_F(BatchTest, NoDurablePointFallsWithinBrackets) {
    batch_.Enter();
    batch_.Enter();
    for (int i = 0; i < 510; ++i) {
        ASSERT_EQ(Insert(i), 0);
    }
    now_ += 5000;
    Insert(600);
    batch_.Flush();
    batch_.FlushIfDue();
    EXPECT_EQ(Durable(), 0);
    batch_.Leave();
    batch_.Flush();
    EXPECT_EQ(Durable(), 0);
    batch_.Leave();
    EXPECT_EQ(Durable(), 0);
    batch_.FlushIfDue();
    EXPECT_EQ(Durable(), 511);
}

TEST_F(BatchTest, AStatementThatFailsTakesNothingWithIt) {
    Insert(1);
    EXPECT_EQ(Write(u"INSERT INTO T VALUES ('x', NULL), ('k1', NULL)"_s), int(ErrorCode::DuplicateKey));
    EXPECT_EQ(Write(u"INSERT INTO T VALUES (fail(), NULL)"_s), int(ErrorCode::DivisionByZero));
    EXPECT_EQ(Insert(2), 0);
    batch_.Flush();
    EXPECT_EQ(Durable(), 2);
}

TEST_F(BatchTest, ChangesOfTheSchemaAreStatementsLikeOthers) {
    Insert(1);
    batch_.BeforeWrite();
    Change(u"T"_s, u"A memo"_s);
    batch_.AfterWrite();
    EXPECT_EQ(FaultOf([&] {
                  batch_.BeforeWrite();
                  Add(u"T"_s, u"A varchar"_s);
              }),
              int(ErrorCode::FieldExists));
    Insert(2);
    EXPECT_TRUE(batch_.IsOpen());
    batch_.Flush();
    EXPECT_EQ(Durable(), 2);
}

TEST_F(BatchTest, AFullDiskIsToldAndTheBatchGoesOn) {
    Insert(1);
    batch_.Flush();
    FillDisk();
    Insert(2);
    EXPECT_EQ(Write(kHuge), int(ErrorCode::DiskFull));
    FreeDisk();
    const qint64 left = Seen();
    EXPECT_EQ(Insert(3), 0);
    batch_.Flush();
    EXPECT_EQ(Durable(), left + 1);
    EXPECT_EQ(Rows(u"PRAGMA integrity_check"_s), u"ok"_s);
}

TEST_F(BatchTest, AnInterruptedWriteTakesTheTransactionAndIsNoticed) {
    Insert(1);
    sqlite3_progress_handler(
        connection_.Handle(), 50, [](void *) { return 1; }, nullptr);
    EXPECT_EQ(Write(kHuge), int(ErrorCode::Interrupted));
    sqlite3_progress_handler(connection_.Handle(), 0, nullptr, nullptr);
    EXPECT_FALSE(batch_.IsOpen());
    EXPECT_EQ(Seen(), 0);
    EXPECT_EQ(Insert(2), 0);
    batch_.Flush();
    EXPECT_EQ(Durable(), 1);
}

TEST_F(BatchTest, ATransactionThatVanishedIsNeverPassedOverInSilence) {
    for (int member = 0; member < 3; ++member) {
        Insert(1);
        connection_.Execute(u"ROLLBACK");
        EXPECT_EQ(FaultOf([&] {
                      member == 0 ? batch_.BeforeWrite() : member == 1 ? batch_.AfterWrite() : batch_.Flush();
                  }),
                  int(ErrorCode::DiskError));
        EXPECT_FALSE(batch_.IsOpen());
    }
    EXPECT_EQ(Insert(1), 0);
    batch_.Flush();
    EXPECT_EQ(Durable(), 1);
}

TEST_F(BatchTest, HalfABracketNeverReachesTheFile) {
    batch_.Enter();
    Insert(1);
    connection_.Execute(u"ROLLBACK");
    batch_.OnError(SqlError(ErrorCode::DiskFull, u"full"_s));
    EXPECT_EQ(Insert(2), int(ErrorCode::DiskFull));
    batch_.Enter();
    batch_.Leave();
    EXPECT_EQ(Insert(3), int(ErrorCode::DiskFull));
    batch_.Leave();
    EXPECT_EQ(Insert(4), 0);
    batch_.Flush();
    EXPECT_EQ(Durable(), 1);
}

TEST_F(BatchTest, AnotherWriterIsToldInWords) {
    Connection other = OpenFile(PathOf(u"own.mdb"_s), RegisterTestFunctions);
    other.Execute(u"BEGIN IMMEDIATE");
    sqlite3_busy_timeout(connection_.Handle(), 20);
    EXPECT_EQ(Insert(1), int(ErrorCode::CannotLock));
    EXPECT_FALSE(batch_.IsOpen());
    other.Execute(u"COMMIT");
    EXPECT_EQ(Insert(1), 0);
    EXPECT_TRUE(batch_.IsOpen());
}

#ifdef Q_OS_UNIX
TEST_F(BatchTest, AFileThatIsNotInItsPlaceTakesNothingMore) {
    const QString path = PathOf(u"own.mdb"_s);
    const QString away = PathOf(u"away.mdb"_s);
    EXPECT_EQ(Insert(1), 0);
    batch_.Flush();
    ASSERT_TRUE(QFile::rename(path, away));
    EXPECT_EQ(Insert(2), int(ErrorCode::CannotOpenDatabase));
    ASSERT_TRUE(QFile::copy(away, path)) << "another file of that name is not the one that is open";
    EXPECT_EQ(Insert(2), int(ErrorCode::CannotOpenDatabase));
    EXPECT_FALSE(batch_.IsOpen());
    EXPECT_EQ(Seen(), 1);
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QFile::rename(away, path));
    EXPECT_EQ(Insert(2), 0);
}
#endif

TEST_F(BatchTest, AProcessThatDiesLeavesBracketsWhollyOrNotAtAll) {
    const QString path = PathOf(u"own.mdb"_s);
    {
        WaitingChild child([&] {
            auto *connection = new Connection(OpenFile(path, RegisterTestFunctions));
            auto *batch = new Batch(*connection, [] { return qint64(0); });
            auto insert = [&](const QString &key) {
                batch->BeforeWrite();
                connection->Execute(u"INSERT INTO T VALUES ('%1', NULL)"_s.arg(key));
                batch->AfterWrite();
            };
            batch->Enter();
            insert(u"a"_s);
            insert(u"b"_s);
            batch->Leave();
            batch->Flush();
            batch->Enter();
            insert(u"c"_s);
            batch->Flush();
        });
        ASSERT_TRUE(child.IsStarted());
    }
    EXPECT_EQ(Rows(u"SELECT A FROM T"_s), u"a b"_s);
    EXPECT_EQ(Insert(1), 0);
}

} // namespace
} // namespace ostrand::sql::testing
