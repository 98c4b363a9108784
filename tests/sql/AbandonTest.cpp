// Taking back what is not durable.
#include "sql/Database.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace ostrand::sql {

namespace {

class AbandonTest : public testing::Test {
protected:
    void SetUp() override {
        database = Database::Create(folder.filePath(QStringLiteral("a.mdb")));
        database->Execute(u"CREATE TABLE T (ID integer PRIMARY KEY, X varchar)");
        database->Execute(u"INSERT INTO T (ID, X) VALUES (1, 'one')");
        database->Flush();
    }

    QTemporaryDir folder;
    std::unique_ptr<Database> database;
};

} // namespace

TEST_F(AbandonTest, RowsAndSchemaOfABracketAreTakenBack) {
    {
        Database::Bracket bracket(*database);
        database->Execute(u"INSERT INTO T (ID, X) VALUES (2, 'two')");
        database->Execute(u"ALTER TABLE T ADD COLUMN Y varchar");
        database->Execute(u"CREATE TABLE U (ID integer)");
        bracket.Abandon();
        EXPECT_EQ(database->RecordCount(u"T"), 1);
        EXPECT_FALSE(database->FindTable(u"U"));
        EXPECT_LT(database->FindTable(u"T")->IndexOf(u"Y"), 0);
    }
    database->Execute(u"INSERT INTO T (ID, X) VALUES (3, 'three')");
    EXPECT_EQ(database->RecordCount(u"T"), 2);
}

TEST_F(AbandonTest, WritesThrowUntilTheOutermostBracketIsLeft) {
    {
        const Database::Bracket outer(*database);
        {
            Database::Bracket inner(*database);
            database->Execute(u"INSERT INTO T (ID, X) VALUES (2, 'two')");
            inner.Abandon();
        }
        EXPECT_THROW(database->Execute(u"INSERT INTO T (ID, X) VALUES (3, 'three')"), SqlError);
        EXPECT_EQ(database->OpenRecordset(u"SELECT X FROM T").RecordCount(), 1);
    }
    EXPECT_EQ(database->Execute(u"INSERT INTO T (ID, X) VALUES (3, 'three')"), 1);
}

TEST_F(AbandonTest, WhatWasDurableBeforeStays) {
    {
        Database::Bracket bracket(*database);
        bracket.Abandon();
    }
    const QString path = database->Path();
    database.reset();
    EXPECT_EQ(Database::Open(path)->RecordCount(u"T"), 1);
}

} // namespace ostrand::sql
