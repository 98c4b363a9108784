#include "sql/TableWatch.h"

#include "SqlTestDatabase.h"

#include <gtest/gtest.h>

namespace ostrand::sql {

namespace {

class TableWatchTest : public testing::Test {
protected:
    void SetUp() override {
        database->Execute(u"CREATE TABLE T (ID integer PRIMARY KEY, X varchar)");
        database->Execute(u"CREATE TABLE U (ID integer PRIMARY KEY, X varchar)");
        database->Execute(u"INSERT INTO T (ID, X) VALUES (1, 'one')");
        database->Execute(u"INSERT INTO T (ID, X) VALUES (2, 'two')");
    }

    test::TestDatabase database;
};

} // namespace

TEST_F(TableWatchTest, TellsChangesOfItsTablesAlone) {
    struct Case {
        const char16_t *statement;
        bool changes;
    };
    const Case cases[] = {
        {u"SELECT * FROM T", false},
        {u"INSERT INTO U (ID, X) VALUES (1, 'one')", false},
        {u"UPDATE U SET X = 'eins'", false},
        {u"INSERT INTO T (ID, X) VALUES (3, 'three')", true},
        {u"INSERT INTO T (ID, X) VALUES (3, 'again')", false}, // dropped for its key
        {u"UPDATE T SET X = 'drei' WHERE ID = 3", true},
        {u"UPDATE T SET X = 'vier' WHERE ID = 4", false},
        {u"DELETE FROM T WHERE ID = 3", true},
        {u"DELETE FROM T", true},
        {u"DELETE FROM T", false},
        {u"ALTER TABLE T ADD COLUMN Y varchar", true},
        {u"CREATE TABLE V (ID integer)", true},
    };
    for (const Case &row : cases) {
        const TableWatch watch = database->Watch({QStringLiteral("t")});
        EXPECT_FALSE(watch.Changed()) << qPrintable(QString::fromUtf16(row.statement));
        database->Execute(row.statement);
        EXPECT_EQ(watch.Changed(), row.changes) << qPrintable(QString::fromUtf16(row.statement));
    }
}

TEST_F(TableWatchTest, TellsRowsThatAResultSetWrites) {
    const TableWatch watch = database->Watch({QStringLiteral("T")});
    Recordset rows = database->OpenRecordset(u"T");
    EXPECT_FALSE(watch.Changed());
    rows.Edit();
    rows.Set(u"X", Value(QStringLiteral("uno")));
    rows.Update();
    EXPECT_TRUE(watch.Changed());
}

TEST_F(TableWatchTest, TellsAFailedWriteAtMostTooOften) {
    const TableWatch of_other = database->Watch({QStringLiteral("U")});
    Recordset rows = database->OpenRecordset(u"T");
    rows.AddNew();
    rows.Set(u"ID", Value(qint64(1)));
    EXPECT_THROW(rows.Update(), SqlError);
    EXPECT_FALSE(of_other.Changed());
}

TEST_F(TableWatchTest, TellsWhatIsTakenBack) {
    database->Flush();
    Database::Bracket bracket(*database);
    database->Execute(u"INSERT INTO T (ID, X) VALUES (3, 'three')");
    const TableWatch watch = database->Watch({QStringLiteral("T")});
    EXPECT_FALSE(watch.Changed());
    bracket.Abandon();
    EXPECT_TRUE(watch.Changed());
}

TEST_F(TableWatchTest, TellsWhatAnotherConnectionWrites) {
    database->Flush();
    const TableWatch watch = database->Watch({QStringLiteral("T")});
    {
        const auto other = Database::Open(database.Path());
        other->Execute(u"INSERT INTO T (ID, X) VALUES (3, 'three')");
    }
    EXPECT_TRUE(watch.Changed());
}

TEST_F(TableWatchTest, IsOverWithItsDatabase) {
    const TableWatch watch = database->Watch({QStringLiteral("T")});
    EXPECT_FALSE(watch.IsOver());
    database.Reopen();
    EXPECT_TRUE(watch.IsOver());
    EXPECT_TRUE(watch.Changed());
    EXPECT_FALSE(database->Watch({QStringLiteral("T")}).Changed());
}

TEST(TableWatch, OfNothingHasAlwaysChanged) {
    EXPECT_TRUE(TableWatch().Changed());
    EXPECT_TRUE(TableWatch().IsOver());
}

} // namespace ostrand::sql
