#include "sql/Database.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace ostrand::sql {

namespace {

class StatementCacheOfDatabase : public testing::Test {
protected:
    StatementCacheOfDatabase() { database_->Execute(u"CREATE TABLE T (A varchar PRIMARY KEY, B integer)"); }
    /// True when the statement found its shape in the cache.
    bool Hits(QStringView sql) {
        const qint64 before = database_->GetCacheCounts().hits;
        database_->OpenRecordset(sql);
        return database_->GetCacheCounts().hits > before;
    }

    test::TempDir folder_;
    std::unique_ptr<Database> database_ = Database::Create(folder_ / QStringLiteral("a.mdb"));
};

TEST_F(StatementCacheOfDatabase, TheSameShapeIsPreparedOnce) {
    const qint64 before = database_->GetCacheCounts().hits;
    database_->Execute(u"INSERT INTO T (A, B) VALUES ('a', '1')");
    EXPECT_EQ(database_->GetCacheCounts().hits, before);
    database_->Execute(u"INSERT INTO T (A, B) VALUES ('b', '2')");
    EXPECT_EQ(database_->GetCacheCounts().hits, before + 1);
    EXPECT_FALSE(Hits(u"SELECT * FROM T WHERE A = 'a'"));
    EXPECT_TRUE(Hits(u"select  *  from t where a='b'"));
    EXPECT_EQ(database_->OpenRecordset(u"SELECT B FROM T WHERE A = 'b'").Integer(u"B"), 2);
}

TEST_F(StatementCacheOfDatabase, AChangeOfTheSchemaForgetsAll) {
    Hits(u"SELECT * FROM T");
    database_->Execute(u"ALTER TABLE T ADD COLUMN C integer");
    EXPECT_FALSE(Hits(u"SELECT * FROM T"));
    EXPECT_EQ(database_->OpenRecordset(u"SELECT * FROM T").Fields().size(), 3u);
}

TEST_F(StatementCacheOfDatabase, MoreShapesThanItHoldsAreStillRun) {
    for (int i = 0; i < 600; ++i) {
        const QString text = QStringLiteral("SELECT A AS [N%1] FROM T").arg(i);
        EXPECT_FALSE(Hits(text));
    }
    EXPECT_FALSE(Hits(u"SELECT A AS [N0] FROM T")) << "the one used longest ago went";
    EXPECT_TRUE(Hits(u"SELECT A AS [N599] FROM T"));
}

} // namespace

} // namespace ostrand::sql
