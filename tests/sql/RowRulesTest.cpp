#include "StorageFixture.h"

#include "sql/RowRules.h"

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

class RowRulesTest : public StorageFixture {
protected:
    RowRulesTest() {
        Create(u"Users"_s, {u"UserID varchar NOT NULL UNIQUE PRIMARY KEY"_s, u"Phone varchar"_s});
        Create(u"Shops"_s, {u"Name varchar PRIMARY KEY"_s});
        Create(u"Events"_s, {u"EventID long PRIMARY KEY NOT NULL"_s, u"U varchar NOT NULL REFERENCES Users(UserID)"_s,
                             u"S varchar REFERENCES Shops(Name)"_s, u"Note varchar"_s});
        Run(u"INSERT INTO Users VALUES ('Ann', '1'), ('Bob', '2'), ('Cy', '3')"_s);
        Run(u"INSERT INTO Shops VALUES ('Corner')"_s);
        Run(u"INSERT INTO Events VALUES (1, 'Ann', 'Corner', ''), (2, 'bob', NULL, '')"_s);
    }

    QString Triggers(const QString &table) {
        return Rows(u"SELECT COUNT(*) FROM sqlite_schema WHERE type = 'trigger' AND tbl_name = '"_s + table + u'\'');
    }
};

TEST_F(RowRulesTest, RowsThatBreakAReferenceAreDroppedAlone) {
    struct Row {
        QString statement;
        QString events;
    };
    const Row rows[] = {
        {u"INSERT INTO Events VALUES (3, 'Nobody', NULL, '')"_s, u"1|Ann|Corner 2|bob|-"_s},
        {u"INSERT INTO Events VALUES (3, 'CY', 'CORNER ', '')"_s, u"1|Ann|Corner 2|bob|- 3|CY|CORNER "_s},
        {u"INSERT INTO Events VALUES (3, 'Cy', '', '')"_s, u"1|Ann|Corner 2|bob|-"_s},
        {u"INSERT INTO Events VALUES (3, 'Nobody', NULL, ''), (4, 'Cy', NULL, '')"_s, u"1|Ann|Corner 2|bob|- 4|Cy|-"_s},
        {u"INSERT INTO Events SELECT rowid + 10, UserID, Phone, '' FROM Users"_s, u"1|Ann|Corner 2|bob|-"_s},
        {u"INSERT OR IGNORE INTO Events VALUES (3, NULL, NULL, '')"_s, u"1|Ann|Corner 2|bob|-"_s},
        {u"UPDATE Events SET U = 'Nobody'"_s, u"1|Ann|Corner 2|bob|-"_s},
        {u"UPDATE Events SET U = CASE EventID WHEN 1 THEN 'Nobody' ELSE 'Cy' END"_s, u"1|Ann|Corner 2|Cy|-"_s},
        {u"UPDATE Events SET S = 'Mall' WHERE EventID = 2"_s, u"1|Ann|Corner 2|bob|-"_s},
        {u"UPDATE Events SET S = NULL"_s, u"1|Ann|- 2|bob|-"_s},
        {u"UPDATE OR IGNORE Events SET U = NULL"_s, u"1|Ann|Corner 2|bob|-"_s},
    };
    for (const Row &row : rows) {
        Run(u"SAVEPOINT t"_s);
        Run(row.statement);
        EXPECT_EQ(Rows(u"SELECT EventID, U, S FROM Events ORDER BY EventID"_s), row.events)
            << row.statement.toStdString();
        Run(u"ROLLBACK TO t; RELEASE t"_s);
    }
}

TEST_F(RowRulesTest, ReferredParentsStay) {
    struct Row {
        QString statement;
        QString users;
    };
    const Row rows[] = {
        {u"DELETE FROM Users"_s, u"Ann Bob"_s},
        {u"UPDATE Users SET UserID = 'Dee' WHERE UserID = 'Ann'"_s, u"Ann Bob Cy"_s},
        {u"UPDATE Users SET UserID = 'Dee' WHERE UserID = 'Cy'"_s, u"Ann Bob Dee"_s},
        {u"UPDATE Users SET UserID = 'ANN' WHERE UserID = 'Ann'"_s, u"ANN Bob Cy"_s},
        {u"UPDATE Users SET UserID = UserID, Phone = '9'"_s, u"Ann Bob Cy"_s},
        {u"UPDATE OR IGNORE Users SET UserID = NULL"_s, u"Ann Bob Cy"_s},
        {u"DELETE FROM Events; DELETE FROM Users"_s, QString()},
    };
    for (const Row &row : rows) {
        Run(u"SAVEPOINT t"_s);
        Run(row.statement);
        EXPECT_EQ(Rows(u"SELECT UserID FROM Users ORDER BY rowid"_s), row.users) << row.statement.toStdString();
        Run(u"ROLLBACK TO t; RELEASE t"_s);
    }
}

TEST_F(RowRulesTest, DroppedRowsDoNotCount) {
    Run(u"DELETE FROM Users"_s);
    EXPECT_EQ(connection_.Changes(), 1);
    Run(u"INSERT INTO Events VALUES (3, 'Nobody', NULL, '')"_s);
    EXPECT_EQ(connection_.Changes(), 0);
}

TEST_F(RowRulesTest, APrimaryKeyTakesNoNull) {
    Create(u"Alias"_s, {u"A varchar NOT NULL"_s, u"Y integer"_s}, {PrimaryKeyOf(u"A,Y"_s)});
    Run(u"INSERT INTO Alias (A) VALUES ('x'); INSERT INTO Alias VALUES ('x', 0); UPDATE Alias SET Y = NULL"_s);
    EXPECT_EQ(Rows(u"SELECT * FROM Alias"_s), u"x|0"_s);
    Create(u"Free"_s, {u"A varchar UNIQUE"_s});
    Run(u"INSERT INTO Free VALUES (NULL), (NULL)"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Free"_s), u"2"_s);
    ddl_.DropIndex({u"Index1"_s, u"Alias"_s});
    Run(u"INSERT INTO Alias (A) VALUES ('x')"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Alias"_s), u"2"_s);
}

TEST_F(RowRulesTest, ATableWithoutNeedCarriesNoTrigger) {
    Create(u"CastCrew"_s,
           {u"Name varchar NOT NULL"_s, u"Role varchar"_s, u"ProfileID varchar NOT NULL"_s,
            u"Position integer NOT NULL"_s, u"BirthYear integer"_s, u"IsCast yesno"_s},
           {PrimaryKeyOf(u"ProfileID,Name,Position,IsCast"_s)});
    Index(u"idx_CastCrew_Name"_s, u"CastCrew"_s, u"Name"_s);
    EXPECT_EQ(Triggers(u"CastCrew"_s), u"0"_s);
    EXPECT_EQ(Triggers(u"Users"_s), u"2"_s);
    EXPECT_EQ(Triggers(u"Events"_s), u"3"_s);
}

TEST_F(RowRulesTest, RulesFollowEveryChangeOfTheSchema) {
    Add(u"Users"_s, u"Extra yesno"_s);
    Add(u"Events"_s, u"Extra varchar"_s);
    ddl_.DropColumn(u"Events", u"Note");
    ddl_.DropColumn(u"Users", u"Phone");
    Run(u"DELETE FROM Users; INSERT INTO Events (EventID, U) VALUES (9, 'Nobody')"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Users UNION ALL SELECT COUNT(*) FROM Events"_s), u"2 2"_s);
    ddl_.DropTable({u"Events"_s});
    EXPECT_EQ(Triggers(u"Users"_s), u"0"_s);
    Run(u"DELETE FROM Users"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Users"_s), u"0"_s);
}

TEST_F(RowRulesTest, RightTriggersStayAndOthersAreDropped) {
    const QString before = Rows(u"SELECT rowid FROM sqlite_schema WHERE type = 'trigger' ORDER BY name"_s);
    SyncRowRules(connection_, catalogue_);
    EXPECT_EQ(Rows(u"SELECT rowid FROM sqlite_schema WHERE type = 'trigger' ORDER BY name"_s), before);
    Run(u"CREATE TRIGGER \"rowrule/stale\" BEFORE DELETE ON Shops BEGIN SELECT RAISE(IGNORE); END"_s);
    Run(u"CREATE TRIGGER foreign_one BEFORE DELETE ON Shops BEGIN SELECT 1; END"_s);
    SyncRowRules(connection_, catalogue_);
    EXPECT_EQ(Rows(u"SELECT name FROM sqlite_schema WHERE name IN ('rowrule/stale', 'foreign_one')"_s),
              u"foreign_one"_s);
    DropRowRules(connection_);
    EXPECT_EQ(Rows(u"SELECT name FROM sqlite_schema WHERE type = 'trigger'"_s), u"foreign_one"_s);
}

TEST_F(RowRulesTest, ATableMayReferToItself) {
    Create(u"Tree"_s, {u"Node varchar PRIMARY KEY"_s, u"Up varchar REFERENCES Tree(Node)"_s});
    Run(u"INSERT INTO Tree VALUES ('root', 'ROOT'); INSERT INTO Tree VALUES ('leaf', 'root'); "
        "INSERT INTO Tree VALUES ('lost', 'none')"_s);
    EXPECT_EQ(Rows(u"SELECT Node FROM Tree ORDER BY rowid"_s), u"root leaf"_s);
    Run(u"DELETE FROM Tree WHERE Node = 'root'"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Tree"_s), u"2"_s);
    Run(u"DELETE FROM Tree WHERE Node = 'leaf'; DELETE FROM Tree WHERE Node = 'root'"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM Tree"_s), u"0"_s);
    EXPECT_EQ(FaultOf([&] { ddl_.DropTable({u"Tree"_s}); }), 0);
}

TEST_F(RowRulesTest, KeysOfSeveralColumnsReferTogether) {
    Create(u"P"_s, {u"A varchar"_s, u"B integer"_s}, {PrimaryKeyOf(u"A,B"_s)});
    ast::TableConstraint reference;
    reference.type = ast::TableConstraint::Type::ForeignKey;
    reference.columns = Names(u"X,Y"_s);
    reference.references_table = u"P"_s;
    Create(u"C"_s, {u"X varchar"_s, u"Y integer"_s}, {reference});
    Run(u"INSERT INTO P VALUES ('a', 1); INSERT INTO C VALUES ('A', 1), ('a', 2), ('b', NULL); DELETE FROM P"_s);
    EXPECT_EQ(Rows(u"SELECT * FROM C"_s), u"A|1 b|-"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM P"_s), u"1"_s);
    Run(u"UPDATE P SET B = 7; DELETE FROM C WHERE X = 'a'; UPDATE P SET B = 8"_s);
    EXPECT_EQ(Rows(u"SELECT B FROM P"_s), u"8"_s);
}

} // namespace
} // namespace ostrand::sql::testing
