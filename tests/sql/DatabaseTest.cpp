// The open database: statements, cache, brackets, progress, what two of them on one file see.

#include "SqlTestDatabase.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace ostrand::sql {

namespace {

class DatabaseTest : public testing::Test {
protected:
    DatabaseTest() {
        database_->Execute(u"CREATE TABLE T (A varchar PRIMARY KEY, B integer, C yesno)");
        database_->Execute(u"CREATE INDEX byB ON T (B)");
    }

    static QString One(Database &database, const QString &sql) {
        const Recordset rows = database.OpenRecordset(sql);
        return rows.Eof() ? u"none"_s : rows.Text(0);
    }
    QString One(const QString &sql) { return One(*database_, sql); }

    template <class Action>
    static int FaultOf(Action action) {
        try {
            action();
        } catch (const SqlError &error) {
            EXPECT_FALSE(error.Text().isEmpty());
            return error.Number();
        }
        return 0;
    }

    void Fill(int rows) {
        for (int i = 0; i < rows; ++i) {
            database_->Execute(u"INSERT INTO T (A, B) VALUES ('%1', %1)"_s.arg(i));
        }
    }

    /// A statement that takes far longer than a progress waits.
    const QString long_query_ = u"SELECT COUNT(*) FROM T a, T b, T c, T d WHERE a.B + b.B + c.B + d.B = -1"_s;

    test::TestDatabase database_;
};

TEST_F(DatabaseTest, CountsTheRowsOfAChange) {
    EXPECT_EQ(database_->Execute(u"INSERT INTO T (A, B) VALUES ('x', 1)"), 1);
    EXPECT_EQ(database_->Execute(u"INSERT INTO T (A, B) VALUES ('X', 1)"), 0);
    EXPECT_EQ(database_->Execute(u"UPDATE T SET B = 2"), 1);
    EXPECT_EQ(database_->Execute(u"UPDATE T SET B = 2 WHERE A = 'none'"), 0);
    EXPECT_EQ(database_->Execute(u"SELECT * FROM T"), 0);
    EXPECT_EQ(database_->RecordCount(u"t"), 1);
    EXPECT_EQ(database_->Execute(u"DELETE FROM T"), 1);
    EXPECT_EQ(FaultOf([&] { database_->RecordCount(u"None"); }), int(ErrorCode::UnknownTable));
}

TEST_F(DatabaseTest, TellsWhatGivesRows) {
    EXPECT_TRUE(database_->GivesRows(u"SELECT 1"));
    EXPECT_TRUE(database_->GivesRows(u"T"));
    EXPECT_TRUE(database_->GivesRows(u"(SELECT A FROM T) UNION (SELECT A FROM T)"));
    EXPECT_TRUE(database_->GivesRows(u"TRANSFORM COUNT(*) SELECT A FROM T GROUP BY A PIVOT B"));
    EXPECT_FALSE(database_->GivesRows(u"SELECT A INTO New FROM T"));
    EXPECT_FALSE(database_->GivesRows(u"DELETE FROM T"));
    EXPECT_FALSE(database_->GivesRows(u"DROP TABLE T"));
    EXPECT_EQ(FaultOf([&] { database_->GivesRows(u"SELEC 1"); }), int(ErrorCode::InvalidStatement));
}

TEST_F(DatabaseTest, ListsTablesColumnsAndIndexes) {
    const Catalogue &catalogue = database_->GetCatalogue();
    ASSERT_EQ(catalogue.Tables().size(), 1U);
    const TableInfo *table = database_->FindTable(u"t");
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->name, u"T"_s);
    ASSERT_EQ(table->columns.size(), 3U);
    EXPECT_EQ(table->columns[2].kind, Kind::Boolean);
    EXPECT_EQ(table->columns[0].length, 255);
    ASSERT_EQ(table->indexes.size(), 2U);
    EXPECT_TRUE(table->indexes[0].primary);
    EXPECT_EQ(table->indexes[1].name, u"byB"_s);
    EXPECT_EQ(database_->FindTable(u"none"), nullptr);
}

TEST_F(DatabaseTest, RenamesAndDropsColumnsAndIndexes) {
    Fill(3);
    database_->RenameColumn(u"T", u"b", u"B_old");
    EXPECT_EQ(One(u"SELECT SUM(B_old) FROM T"_s), u"3"_s);
    EXPECT_EQ(FaultOf([&] { One(u"SELECT B FROM T"_s); }), int(ErrorCode::ParametersExpected));
    EXPECT_EQ(FaultOf([&] { database_->RenameColumn(u"T", u"B_old", u"A"); }), int(ErrorCode::FieldExists));
    EXPECT_EQ(FaultOf([&] { database_->RenameColumn(u"T", u"None", u"X"); }), int(ErrorCode::FieldNotFound));
    EXPECT_EQ(FaultOf([&] { database_->DropColumn(u"T", u"B_old"); }), int(ErrorCode::FieldIndexed));
    database_->DropIndex(u"T", u"BYB");
    database_->DropColumn(u"T", u"B_old");
    EXPECT_EQ(database_->FindTable(u"T")->columns.size(), 2U);
    EXPECT_EQ(FaultOf([&] { database_->DropIndex(u"T", u"byB"); }), int(ErrorCode::IndexNotFound));
}

TEST_F(DatabaseTest, StatementsThatDifferInLiteralsShareTheCache) {
    Fill(20);
    const Database::CacheCounts before = database_->GetCacheCounts();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(One(u"SELECT B FROM T WHERE A = '%1'"_s.arg(i)), QString::number(i));
    }
    const Database::CacheCounts after = database_->GetCacheCounts();
    EXPECT_EQ(after.lookups - before.lookups, 20);
    EXPECT_EQ(after.hits - before.hits, 19);
}

TEST_F(DatabaseTest, DefinitionsMakeCachedStatementsForgotten) {
    Fill(1);
    EXPECT_EQ(database_->OpenRecordset(u"SELECT * FROM T").Fields().size(), 3U);
    database_->Execute(u"ALTER TABLE T ADD COLUMN D memo");
    EXPECT_EQ(database_->OpenRecordset(u"SELECT * FROM T").Fields().size(), 4U);
    database_->Execute(u"ALTER TABLE T DROP COLUMN C");
    EXPECT_EQ(database_->OpenRecordset(u"SELECT * FROM T").Fields().size(), 3U);
    database_->Execute(u"DROP TABLE T");
    EXPECT_EQ(FaultOf([&] { database_->OpenRecordset(u"SELECT * FROM T"); }), int(ErrorCode::UnknownTable));
}

TEST_F(DatabaseTest, ManyStatementsPushOldOnesOutOfTheCache) {
    Fill(1);
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 700; ++i) {
            EXPECT_EQ(One(u"SELECT %1 FROM T"_s.arg(i)), QString::number(i));
        }
    }
}

TEST_F(DatabaseTest, ShowsTheQueryPlan) {
    const QString by_key = database_->QueryPlan(u"SELECT * FROM T WHERE A = 'x'").join(u'\n');
    EXPECT_TRUE(by_key.contains(u"SEARCH"_s)) << by_key.toStdString();
    EXPECT_FALSE(by_key.contains(u"SCAN"_s)) << by_key.toStdString();
    const QString by_range = database_->QueryPlan(u"SELECT A FROM T WHERE B BETWEEN 5 AND 1").join(u'\n');
    EXPECT_TRUE(by_range.contains(u"byB"_s)) << by_range.toStdString();
    const QString in_list = database_->QueryPlan(u"SELECT B FROM T WHERE A IN ('x', 'y')").join(u'\n');
    EXPECT_FALSE(in_list.contains(u"SCAN"_s)) << in_list.toStdString();
    const QString update = database_->QueryPlan(u"UPDATE T SET B = 1 WHERE A = 'x'").join(u'\n');
    EXPECT_FALSE(update.contains(u"SCAN"_s)) << update.toStdString();
    EXPECT_TRUE(database_->QueryPlan(u"SELECT * FROM T WHERE C").join(u'\n').contains(u"SCAN"_s));
}

TEST_F(DatabaseTest, ProgressIsCalledAndEndsALongStatement) {
    Fill(300);
    int calls = 0;
    database_->SetProgress([&] { return ++calls == 3; });
    EXPECT_EQ(FaultOf([&] { One(long_query_); }), int(ErrorCode::Interrupted));
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T"_s), u"300"_s) << "the next statement runs";
}

TEST_F(DatabaseTest, InterruptEndsALongStatement) {
    Fill(300);
    database_->SetProgress([&] {
        database_->Interrupt();
        return false;
    });
    EXPECT_EQ(FaultOf([&] { One(long_query_); }), int(ErrorCode::Interrupted));
    database_->Interrupt(); // nothing runs
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T"_s), u"300"_s);
}

TEST_F(DatabaseTest, AnInterruptedChangeLeavesWhatWasBefore) {
    Fill(300);
    int calls = 0;
    database_->SetProgress([&] { return ++calls == 2; });
    EXPECT_EQ(FaultOf([&] {
                  database_->Execute(u"INSERT INTO T (A) SELECT a.A & '-' & b.A & '-' & c.A & '-' & d.A FROM T a, T b, "
                                     "T c, T d WHERE a.B + b.B + c.B + d.B >= 0");
              }),
              int(ErrorCode::Interrupted));
    database_->SetProgress({});
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T"_s), u"300"_s);
    EXPECT_EQ(database_->Execute(u"INSERT INTO T (A) VALUES ('more')"), 1);
    database_.Reopen();
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T"_s), u"301"_s);
}

TEST_F(DatabaseTest, ProgressMayAskTheDatabase) {
    Fill(300);
    int calls = 0;
    QString seen;
    database_->SetProgress([&] {
        ++calls;
        seen = One(u"SELECT COUNT(*) FROM T"_s);
        if (calls == 1) {
            // The same statement as the one that runs, and one that is long itself: progress is not called within it.
            EXPECT_EQ(One(u"SELECT COUNT(*) FROM T a, T b, T c WHERE a.B + b.B + c.B = -1"_s), u"0"_s);
            EXPECT_EQ(calls, 1);
        }
        return calls == 2;
    });
    EXPECT_EQ(FaultOf([&] { One(u"SELECT COUNT(*) FROM T a, T b, T c, T d WHERE a.B + b.B + c.B + d.B = -1"_s); }),
              int(ErrorCode::Interrupted));
    EXPECT_EQ(seen, u"300"_s);
}

TEST_F(DatabaseTest, AnIdleMomentWithinAChangeCommitsNothing) {
    Fill(300);
    int calls = 0;
    database_->SetProgress([&] {
        EXPECT_NO_THROW(database_->FlushIfDue());
        return ++calls == 15; // by then it is due
    });
    EXPECT_EQ(FaultOf([&] {
                  database_->Execute(
                      u"UPDATE T SET B = 1 WHERE (SELECT COUNT(*) FROM T a, T b, T c, T d WHERE a.B + b.B "
                      "+ c.B + d.B = -1) > 0");
              }),
              int(ErrorCode::Interrupted));
    EXPECT_EQ(calls, 15);
}

TEST_F(DatabaseTest, AFaultOfTheProgressEndsTheStatement) {
    Fill(300);
    database_->SetProgress([]() -> bool { throw std::runtime_error("of the caller"); });
    EXPECT_EQ(FaultOf([&] { One(long_query_); }), int(ErrorCode::Interrupted));
}

TEST_F(DatabaseTest, WhatIsWrittenStaysAfterReopening) {
    Fill(700); // more than one transaction
    database_.Reopen();
    EXPECT_EQ(database_->RecordCount(u"T"), 700);
    {
        Database::Bracket outer(*database_);
        const Database::Bracket inner(*database_);
        database_->Execute(u"INSERT INTO T (A) VALUES ('in brackets')");
        database_->Flush(); // without effect here
    }
    database_->Flush();
    database_.Reopen();
    EXPECT_EQ(database_->RecordCount(u"T"), 701);
}

TEST_F(DatabaseTest, TwoOnOneFileSeeEachOther) {
    Fill(2);
    database_->Flush();
    const auto other = Database::Open(database_.Path(), test::FixedEnvironment());
    EXPECT_EQ(One(*other, u"SELECT COUNT(*) FROM T"_s), u"2"_s);
    other->Execute(u"INSERT INTO T (A, B) VALUES ('other', 5)");
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T"_s), u"2"_s) << "not before it is durable";
    other->Flush();
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T"_s), u"3"_s);
    EXPECT_EQ(other->RecordCount(u"T"), 3);
}

TEST_F(DatabaseTest, TwoOnOneFileSeeEachOthersDefinitions) {
    Fill(1);
    database_->Flush();
    const auto other = Database::Open(database_.Path(), test::FixedEnvironment());
    const QString all = u"SELECT * FROM T"_s;
    EXPECT_EQ(other->OpenRecordset(all).Fields().size(), 3U);
    EXPECT_EQ(other->Execute(u"UPDATE T SET C = true"), 1);
    other->Flush();

    database_->Execute(u"ALTER TABLE T ADD COLUMN D varchar(2)");
    database_->Flush();
    EXPECT_EQ(other->OpenRecordset(all).Fields().size(), 4U) << "a cached statement is made anew";
    EXPECT_EQ(other->Execute(u"UPDATE T SET D = 'long'"), 1);
    EXPECT_EQ(One(*other, u"SELECT D FROM T"_s), u"lo"_s);
    other->Flush();

    database_->Execute(u"ALTER TABLE T DROP COLUMN C");
    database_->Execute(u"CREATE TABLE U (A varchar REFERENCES T(A))");
    database_->Flush();
    EXPECT_EQ(other->OpenRecordset(all).Fields().size(), 3U);
    EXPECT_EQ(FaultOf([&] { other->Execute(u"UPDATE T SET C = true"); }), int(ErrorCode::ParametersExpected));
    EXPECT_NE(other->FindTable(u"U"), nullptr);
    EXPECT_EQ(other->Execute(u"INSERT INTO U VALUES ('no parent')"), 0);
    EXPECT_EQ(other->Execute(u"INSERT INTO U VALUES ('0')"), 1);
    other->Flush();

    database_->Execute(u"DROP TABLE U");
    database_->Flush();
    EXPECT_EQ(FaultOf([&] { other->Execute(u"INSERT INTO U VALUES ('0')"); }), int(ErrorCode::UnknownTable));
    EXPECT_EQ(other->FindTable(u"U"), nullptr);
}

TEST_F(DatabaseTest, NestingBeyondReasonIsAFault) {
    const auto deep = [](const QString &open, const QString &middle, const QString &close, int times) {
        return open.repeated(times) + middle + close.repeated(times);
    };
    EXPECT_EQ(One(u"SELECT "_s + deep(u"("_s, u"1"_s, u")"_s, 100)), u"1"_s);
    EXPECT_EQ(FaultOf([&] { One(u"SELECT "_s + deep(u"("_s, u"1"_s, u")"_s, 20000)); }), int(ErrorCode::TooComplex));
    EXPECT_EQ(FaultOf([&] { One(u"SELECT "_s + deep(u"Not "_s, u"1"_s, u""_s, 20000)); }), int(ErrorCode::TooComplex));
    EXPECT_EQ(FaultOf([&] { One(deep(u"SELECT * FROM ("_s, u"SELECT 1"_s, u")"_s, 5000)); }),
              int(ErrorCode::TooComplex));
    EXPECT_EQ(FaultOf([&] { One(u"SELECT 1"_s + u" + 1"_s.repeated(20000)); }), int(ErrorCode::TooComplex));
    EXPECT_EQ(One(u"SELECT 1"_s + u" + 1"_s.repeated(400)), u"401"_s);
    EXPECT_EQ(One(u"SELECT '' "_s + u" & 'a'"_s.repeated(400)).size(), 400);
    EXPECT_EQ(One(u"SELECT Null "_s + u" & (Null)"_s.repeated(400)), QString());
}

TEST_F(DatabaseTest, LongChainsAndListsRun) {
    Fill(3);
    QStringList either;
    QStringList list;
    for (int i = 0; i < 5000; ++i) {
        either.append(u"A = 'none%1'"_s.arg(i));
        list.append(u"'none%1'"_s.arg(i));
    }
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T WHERE A = '1' OR "_s + either.join(u" OR ")), u"1"_s);
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T WHERE A IN ('2', "_s + list.join(u", ") + u')'), u"1"_s);
    EXPECT_EQ(One(u"SELECT COUNT(*) FROM T WHERE A NOT IN ('2', "_s + list.join(u", ") + u')'), u"2"_s);
    const QString text(1'000'000, u'x');
    database_->Execute(u"ALTER TABLE T ADD COLUMN M memo");
    EXPECT_EQ(database_->Execute(u"UPDATE T SET M = '%1'"_s.arg(text)), 3);
    EXPECT_EQ(One(u"SELECT Len(M) FROM T"_s), u"1000000"_s);
}

TEST_F(DatabaseTest, AliasesOfAliasesThatExplodeAreAFault) {
    QStringList items{u"1 AS a0"_s};
    for (int i = 1; i < 60; ++i) {
        items.append(u"a%1 + a%1 AS a%2"_s.arg(i - 1).arg(i));
    }
    EXPECT_EQ(FaultOf([&] { One(u"SELECT "_s + items.join(u", ")); }), int(ErrorCode::TooComplex));
}

TEST_F(DatabaseTest, FaultsTellTheirPlace) {
    struct Row {
        QString sql;
        int position;
    };
    const Row rows[] = {
        {u"SELECT A FROM T WHERE None = 1"_s, 22},
        {u"SELECT A FROM None"_s, 14},
        {u"SELECT A, NoFunction(B) FROM T"_s, 10},
        {u"SELECT A FROM T WHERE A = 5"_s, 22},
        {u"SELECT A FROM T WHERE"_s, 21},
        {u"UPDATE T SET None = 1"_s, 13},
        {u"SELEC A"_s, 0},
    };
    for (const Row &row : rows) {
        try {
            database_->OpenRecordset(row.sql);
            ADD_FAILURE() << row.sql.toStdString();
        } catch (const SqlError &error) {
            EXPECT_EQ(error.Position(), row.position) << row.sql.toStdString();
        }
    }
}

TEST_F(DatabaseTest, ConvertsTextsByTheDecimalMarkOfTheLocale) {
    Environment comma = test::FixedEnvironment();
    comma.decimal_mark = u',';
    database_->Execute(u"CREATE TABLE P (Price NUMERIC)");
    database_.Close();
    {
        const auto database = Database::Open(database_.Path(), comma);
        database->Execute(u"INSERT INTO P VALUES ('24,5')");
        database->Execute(u"INSERT INTO P VALUES (1.25)");
        EXPECT_EQ(One(*database, u"SELECT SUM(Price) FROM P"_s), u"25.75"_s);
        EXPECT_EQ(One(*database, u"SELECT CDbl('1,5') + 1"_s), u"2.5"_s);
        EXPECT_EQ(One(*database, u"SELECT Price & '' FROM P WHERE Price > 20"_s), u"24,5"_s);
    }
    database_.Reopen();
}

} // namespace

} // namespace ostrand::sql
