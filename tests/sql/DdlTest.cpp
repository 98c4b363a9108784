#include "StorageFixture.h"

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

class DdlTest : public StorageFixture {
protected:
    int DropIndex(const QString &name, const QString &table) {
        return FaultOf([&] { ddl_.DropIndex({name, table}); });
    }
    int DropTable(const QString &table) {
        return FaultOf([&] { ddl_.DropTable({table}); });
    }
};

TEST_F(DdlTest, InlineKeysMakeIndexesOfTheirOwn) {
    struct Row {
        QStringList columns;
        std::vector<ast::TableConstraint> constraints;
        QString indexes;
    };
    ast::TableConstraint named_unique = PrimaryKeyOf(u"A"_s, u"Mine"_s);
    named_unique.type = ast::TableConstraint::Type::Unique;
    const Row rows[] = {
        {{u"A varchar NOT NULL UNIQUE PRIMARY KEY"_s}, {}, u"Index1(A)up"_s},
        {{u"A varchar UNIQUE"_s, u"B varchar PRIMARY KEY"_s}, {}, u"Index1(A)u Index2(B)up"_s},
        {{u"A varchar"_s, u"B integer"_s}, {PrimaryKeyOf(u"B,a"_s)}, u"Index1(B,A)up"_s},
        {{u"A varchar"_s}, {PrimaryKeyOf(u"A"_s, u"Key"_s), named_unique}, u"Key(A)up Mine(A)u"_s},
        {{u"A varchar"_s}, {}, QString()},
    };
    for (const Row &row : rows) {
        Create(u"T"_s, row.columns, row.constraints);
        EXPECT_EQ(Indexes(u"T"_s), row.indexes);
        ddl_.DropTable({u"T"_s});
    }
}

TEST_F(DdlTest, FaultyCreationsLeaveNothingBehind) {
    struct Row {
        QString table;
        QStringList columns;
        std::vector<ast::TableConstraint> constraints;
        ErrorCode code;
    };
    Create(u"Old"_s, {u"A varchar PRIMARY KEY"_s, u"B varchar"_s});
    ast::TableConstraint orphan;
    orphan.type = ast::TableConstraint::Type::ForeignKey;
    orphan.columns = Names(u"A"_s);
    orphan.references_table = u"Nowhere"_s;
    const Row rows[] = {
        {u"OLD"_s, {u"A varchar"_s}, {}, ErrorCode::TableExists},
        {u"T"_s, {u"A nosuchtype"_s}, {}, ErrorCode::UnknownType},
        {u"T"_s, {u"A counter"_s}, {}, ErrorCode::UnknownType},
        {u"T"_s, {u"A varchar"_s, u"a memo"_s}, {}, ErrorCode::FieldExists},
        {u"T"_s, {u"A varchar"_s}, {PrimaryKeyOf(u"B"_s)}, ErrorCode::FieldNotFound},
        {u"T"_s, {u"A varchar"_s}, {PrimaryKeyOf(u"A,a"_s)}, ErrorCode::FieldExists},
        {u"T"_s, {u"A varchar PRIMARY KEY"_s}, {PrimaryKeyOf(u"A"_s)}, ErrorCode::PrimaryKeyExists},
        {u"T"_s,
         {u"A varchar"_s},
         {PrimaryKeyOf(u"A"_s, u"K"_s),
          [] {
              auto other = PrimaryKeyOf(u"A"_s, u"k"_s);
              other.type = ast::TableConstraint::Type::Unique;
              return other;
          }()},
         ErrorCode::IndexExists},
        {u"T"_s, {u"A varchar REFERENCES Nowhere(X)"_s}, {}, ErrorCode::UnknownTable},
        {u"T"_s, {u"A varchar"_s}, {orphan}, ErrorCode::UnknownTable},
        {u"T"_s, {u"A varchar REFERENCES Old(X)"_s}, {}, ErrorCode::FieldNotFound},
        {u"T"_s, {u"A varchar REFERENCES Old(B)"_s}, {}, ErrorCode::IndexNotFound},
        {u"sqlite_x"_s, {u"A varchar"_s}, {}, ErrorCode::DdlSyntax},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(FaultOf([&] { Create(row.table, row.columns, row.constraints); }), int(row.code))
            << row.columns.join(u',').toStdString();
        EXPECT_EQ(catalogue_.Tables().size(), 1U);
        EXPECT_NE(sqlite3_get_autocommit(connection_.Handle()), 0);
    }
}

TEST_F(DdlTest, FaultsTellThePositionOfTheirColumn) {
    ast::CreateTable statement;
    statement.table = u"T"_s;
    statement.columns.push_back(Define(u"A nosuchtype"_s));
    statement.columns[0].position = 17;
    try {
        ddl_.CreateTable(statement);
        FAIL();
    } catch (const SqlError &error) {
        EXPECT_EQ(error.Position(), 17);
    }
}

TEST_F(DdlTest, IndexNamesAreTakenPerTable) {
    Create(u"A"_s, {u"X varchar"_s});
    Create(u"B"_s, {u"X varchar"_s});
    Index(u"idx"_s, u"A"_s, u"X"_s);
    Index(u"idx"_s, u"B"_s, u"X"_s);
    EXPECT_EQ(FaultOf([&] { Index(u"IDX"_s, u"A"_s, u"X"_s); }), int(ErrorCode::IndexExists));
    EXPECT_EQ(FaultOf([&] { Index(u"i2"_s, u"A"_s, u"Y"_s); }), int(ErrorCode::FieldNotFound));
    EXPECT_EQ(FaultOf([&] { Index(u"i2"_s, u"None"_s, u"X"_s); }), int(ErrorCode::UnknownTable));
    EXPECT_EQ(DropIndex(u"idx"_s, u"a"_s), 0);
    EXPECT_EQ(DropIndex(u"idx"_s, u"A"_s), int(ErrorCode::IndexNotFound));
    EXPECT_EQ(DropIndex(u"idx"_s, u"None"_s), int(ErrorCode::UnknownTable));
    EXPECT_EQ(Indexes(u"B"_s), u"idx(X)"_s);
}

TEST_F(DdlTest, KeysOverRowsThatBreakThemAreRefused) {
    Create(u"T"_s, {u"A varchar"_s, u"B integer"_s});
    Run(u"INSERT INTO T VALUES ('x', 1), ('X', 2), ('y', NULL)"_s);
    EXPECT_EQ(FaultOf([&] { Index(u"i"_s, u"T"_s, u"A"_s, true); }), int(ErrorCode::DuplicateKey));
    EXPECT_EQ(FaultOf([&] { Constrain(u"T"_s, PrimaryKeyOf(u"A"_s)); }), int(ErrorCode::DuplicateKey));
    EXPECT_EQ(FaultOf([&] { Constrain(u"T"_s, PrimaryKeyOf(u"B"_s)); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(Indexes(u"T"_s), QString());
    Index(u"i"_s, u"T"_s, u"B"_s, true);
    EXPECT_EQ(Indexes(u"T"_s), u"i(B)u"_s);
}

TEST_F(DdlTest, APrimaryKeyCanBeDroppedAndMadeAnew) {
    Create(u"T"_s, {u"A varchar NOT NULL"_s, u"B integer"_s, u"C yesno"_s}, {PrimaryKeyOf(u"A"_s)});
    EXPECT_EQ(FaultOf([&] { Constrain(u"T"_s, PrimaryKeyOf(u"B"_s)); }), int(ErrorCode::PrimaryKeyExists));
    EXPECT_EQ(FaultOf([&] {
                  ddl_.CreateIndex({u"k"_s, u"T"_s, Names(u"B"_s), true, true});
              }),
              int(ErrorCode::PrimaryKeyExists));
    EXPECT_EQ(DropIndex(u"Index1"_s, u"T"_s), 0);
    Constrain(u"T"_s, PrimaryKeyOf(u"A,B,C"_s));
    EXPECT_EQ(Indexes(u"T"_s), u"Index1(A,B,C)up"_s);
    ddl_.AlterTable({u"T"_s, ast::DropConstraint{u"Index1"_s}});
    ddl_.CreateIndex({u"k"_s, u"T"_s, Names(u"B"_s), false, true});
    EXPECT_EQ(Indexes(u"T"_s), u"k(B)up"_s);
}

TEST_F(DdlTest, IndexesOfInlineKeysGoFromLastToFirst) {
    Create(u"T"_s, {u"A varchar UNIQUE"_s, u"B varchar UNIQUE"_s, u"C varchar PRIMARY KEY"_s});
    Index(u"idx_T_A"_s, u"T"_s, u"A"_s);
    for (size_t i = catalogue_.FindTable(u"T")->indexes.size(); i-- > 0;) {
        const QString name = catalogue_.FindTable(u"T")->indexes[i].name;
        if (name.startsWith(u"Index")) {
            ASSERT_EQ(DropIndex(name, u"T"_s), 0);
        }
    }
    EXPECT_EQ(Indexes(u"T"_s), u"idx_T_A(A)"_s);
}

TEST_F(DdlTest, AddedColumnsAreNullInOldRows) {
    Create(u"Users"_s, {u"UserID varchar PRIMARY KEY"_s});
    Create(u"T"_s, {u"A varchar"_s});
    Run(u"INSERT INTO T VALUES ('x')"_s);
    Add(u"T"_s, u"B varchar(5)"_s);
    Add(u"T"_s, u"C yesno"_s);
    Add(u"T"_s, u"D date UNIQUE"_s);
    Add(u"T"_s, u"U varchar REFERENCES Users(UserID)"_s);
    EXPECT_EQ(Rows(u"SELECT * FROM T"_s), u"x|-|0|-|-"_s);
    EXPECT_EQ(catalogue_.FindTable(u"T")->FindColumn(u"B")->length, 5);
    EXPECT_EQ(Indexes(u"T"_s), u"Index1(D)u"_s);
    EXPECT_EQ(catalogue_.FindTable(u"T")->references.size(), 1U);
    EXPECT_EQ(FaultOf([&] { Add(u"T"_s, u"b varchar"_s); }), int(ErrorCode::FieldExists));
    EXPECT_EQ(FaultOf([&] { Add(u"T"_s, u"E nosuch"_s); }), int(ErrorCode::UnknownType));
    EXPECT_EQ(FaultOf([&] { Add(u"T"_s, u"E varchar NOT NULL"_s); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(FaultOf([&] { Add(u"T"_s, u"E varchar PRIMARY KEY"_s); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(FaultOf([&] { Add(u"None"_s, u"E varchar"_s); }), int(ErrorCode::UnknownTable));
    EXPECT_EQ(catalogue_.FindTable(u"T")->columns.size(), 5U);
    Run(u"DELETE FROM T"_s);
    Add(u"T"_s, u"E varchar NOT NULL"_s);
    EXPECT_TRUE(catalogue_.FindTable(u"T")->FindColumn(u"E")->not_null);
}

TEST_F(DdlTest, DropsColumnsThatNothingNeeds) {
    Create(u"Users"_s, {u"UserID varchar PRIMARY KEY"_s, u"Phone varchar"_s});
    Create(u"T"_s,
           {u"A varchar PRIMARY KEY"_s, u"B varchar REFERENCES Users(UserID)"_s, u"C varchar"_s, u"D integer"_s});
    Index(u"i"_s, u"T"_s, u"D"_s);
    Run(u"INSERT INTO Users VALUES ('Ann', '1'); INSERT INTO T VALUES ('x', 'Ann', 'gone', 4)"_s);
    for (const QString &column : {u"a"_s, u"B"_s, u"D"_s}) {
        EXPECT_EQ(FaultOf([&] { ddl_.DropColumn(u"T", column); }), int(ErrorCode::FieldIndexed));
    }
    EXPECT_EQ(FaultOf([&] { ddl_.DropColumn(u"Users", u"UserID"); }), int(ErrorCode::FieldIndexed));
    EXPECT_EQ(FaultOf([&] { ddl_.DropColumn(u"T", u"X"); }), int(ErrorCode::FieldNotFound));
    EXPECT_EQ(FaultOf([&] { ddl_.DropColumn(u"None", u"X"); }), int(ErrorCode::UnknownTable));
    ddl_.AlterTable({u"T"_s, ast::DropColumn{u"c"_s}});
    EXPECT_EQ(Rows(u"SELECT * FROM T"_s), u"x|Ann|4"_s);
    Run(u"INSERT OR IGNORE INTO T VALUES ('X', 'Ann', 4); INSERT OR IGNORE INTO T VALUES ('z', 'Bob', 4)"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM T"_s), u"1"_s);
    ddl_.DropColumn(u"Users", u"Phone");
    EXPECT_EQ(FaultOf([&] {
                  Create(u"One"_s, {u"A varchar"_s});
                  ddl_.DropColumn(u"One", u"A");
              }),
              int(ErrorCode::DdlSyntax));
    EXPECT_EQ(catalogue_.FindTable(u"One")->columns.size(), 1U);
}

TEST_F(DdlTest, RenamedColumnsTakeTheirKeysAndReferencesAlong) {
    Create(u"Users"_s, {u"UserID varchar PRIMARY KEY"_s, u"Phone varchar"_s});
    Create(u"T"_s, {u"A varchar PRIMARY KEY"_s, u"U varchar REFERENCES Users(UserID)"_s});
    Run(u"INSERT INTO Users VALUES ('Ann', '1')"_s);
    ddl_.RenameColumn(u"users", u"userid", u"Name");
    ddl_.RenameColumn(u"T", u"U", u"U_old");
    ddl_.RenameColumn(u"T", u"A", u"a");
    const TableInfo *table = catalogue_.FindTable(u"T");
    EXPECT_EQ(table->references.at(0).parent_columns, QStringList{u"Name"_s});
    EXPECT_EQ(table->references.at(0).columns, QStringList{u"U_old"_s});
    EXPECT_EQ(Indexes(u"T"_s), u"Index1(a)up"_s);
    Run(u"INSERT INTO T VALUES ('1', 'Bob'); INSERT INTO T VALUES ('2', 'ANN')"_s);
    EXPECT_EQ(Rows(u"SELECT a FROM T"_s), u"2"_s);
    EXPECT_EQ(FaultOf([&] { ddl_.RenameColumn(u"Users", u"Name", u"PHONE"); }), int(ErrorCode::FieldExists));
    EXPECT_EQ(FaultOf([&] { ddl_.RenameColumn(u"Users", u"X", u"Y"); }), int(ErrorCode::FieldNotFound));
    EXPECT_EQ(FaultOf([&] { ddl_.RenameColumn(u"None", u"X", u"Y"); }), int(ErrorCode::UnknownTable));
}

TEST_F(DdlTest, AColumnOfFlagsTurnsIntoTruthValuesByHand) {
    Create(u"CC"_s, {u"Name varchar NOT NULL"_s, u"IsCast varchar(3)"_s}, {PrimaryKeyOf(u"Name,IsCast"_s)});
    Run(u"INSERT INTO CC VALUES ('A', 'yes'), ('B', 'no')"_s);
    ASSERT_EQ(DropIndex(u"Index1"_s, u"CC"_s), 0);
    ddl_.RenameColumn(u"CC", u"IsCast", u"IsCast_old");
    Add(u"CC"_s, u"IsCast yesno"_s);
    Run(u"UPDATE CC SET IsCast = -1 WHERE IsCast_old = 'YES'"_s);
    ddl_.DropColumn(u"CC", u"IsCast_old");
    Constrain(u"CC"_s, PrimaryKeyOf(u"Name,IsCast"_s));
    EXPECT_EQ(Rows(u"SELECT * FROM CC"_s), u"A|-1 B|0"_s);
}

TEST_F(DdlTest, ChangedColumnsConvertTheirValues) {
    struct Row {
        QString from;
        QString to;
        QString value; // as SQLite's literal
        QString result;
    };
    const Row rows[] = {
        {u"varchar"_s, u"memo"_s, u"'0123'"_s, u"text|0123"_s},
        {u"varchar"_s, u"integer"_s, u"'7'"_s, u"integer|7"_s},
        {u"varchar"_s, u"integer"_s, u"'seven'"_s, u"null|-"_s},
        {u"varchar"_s, u"yesno"_s, u"'True'"_s, u"integer|-1"_s},
        {u"varchar"_s, u"yesno"_s, u"NULL"_s, u"integer|0"_s},
        {u"memo"_s, u"varchar(3)"_s, u"'abcdef'"_s, u"text|abc"_s},
        {u"varchar"_s, u"varchar(3)"_s, u"'abcdef'"_s, u"text|abc"_s},
        {u"varchar(3)"_s, u"varchar(5)"_s, u"'abc'"_s, u"text|abc"_s},
        {u"varchar"_s, u"varchar(3)"_s, u"NULL"_s, u"null|-"_s},
        {u"integer"_s, u"varchar"_s, u"42"_s, u"text|42"_s},
        {u"integer"_s, u"varchar(1)"_s, u"42"_s, u"text|4"_s},
        {u"integer"_s, u"memo"_s, u"NULL"_s, u"null|-"_s},
        {u"yesno"_s, u"varchar"_s, u"-1"_s, u"text|-1"_s},
        {u"date"_s, u"integer"_s, u"40140.75"_s, u"integer|40141"_s},
        {u"varchar"_s, u"date"_s, u"'2.5'"_s, u"real|2.5"_s},
        {u"integer"_s, u"double"_s, u"3"_s, u"real|3.0"_s},
        {u"integer"_s, u"long"_s, u"3"_s, u"integer|3"_s},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE((row.from + u" to "_s + row.to + u' ' + row.value).toStdString());
        Create(u"T"_s, {u"K integer"_s, u"A "_s + row.from, u"Z varchar"_s});
        Run(u"INSERT INTO T VALUES (1, "_s + row.value + u", 'z')"_s);
        Change(u"T"_s, u"A "_s + row.to);
        EXPECT_EQ(Rows(u"SELECT typeof(A), A FROM T WHERE Z = 'Z' AND K = 1"_s), row.result);
        ddl_.DropTable({u"T"_s});
    }
}

TEST_F(DdlTest, ChangedColumnsKeepKeysReferencesAndRows) {
    Create(u"Users"_s, {u"UserID varchar(50) PRIMARY KEY"_s});
    Create(u"T"_s, {u"A varchar NOT NULL"_s, u"B varchar"_s, u"U varchar REFERENCES Users(UserID)"_s},
           {PrimaryKeyOf(u"A"_s)});
    Index(u"i"_s, u"T"_s, u"B"_s);
    Run(u"INSERT INTO Users VALUES ('Ann'); INSERT INTO T (rowid, A, B, U) VALUES (5, 'x', '1', 'Ann'), (2, 'y', '2', "
        "NULL)"_s);
    Change(u"T"_s, u"B integer"_s);
    Change(u"T"_s, u"A memo"_s);
    Change(u"Users"_s, u"UserID varchar(60)"_s);
    EXPECT_EQ(Indexes(u"T"_s), u"Index1(A)up i(B)"_s);
    EXPECT_TRUE(catalogue_.FindTable(u"T")->FindColumn(u"A")->not_null);
    EXPECT_EQ(Rows(u"SELECT rowid, A FROM T ORDER BY rowid"_s), u"2|y 5|x"_s);
    Run(u"INSERT INTO T VALUES ('z', 3, 'Bob'); DELETE FROM Users"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM T UNION ALL SELECT COUNT(*) FROM Users"_s), u"2 1"_s);
    EXPECT_EQ(catalogue_.FindTable(u"T")->references.at(0).parent_table, u"Users"_s);
}

TEST_F(DdlTest, ChangesThatBreakAKeyLeaveTheTableAsItWas) {
    Create(u"T"_s, {u"A varchar PRIMARY KEY"_s, u"B varchar NOT NULL"_s});
    Run(u"INSERT INTO T VALUES ('abc', 'x'), ('abd', 'y')"_s);
    EXPECT_EQ(FaultOf([&] { Change(u"T"_s, u"A varchar(2)"_s); }), int(ErrorCode::DuplicateKey));
    EXPECT_EQ(FaultOf([&] { Change(u"T"_s, u"A integer"_s); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(FaultOf([&] { Change(u"T"_s, u"B integer"_s); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(FaultOf([&] { Change(u"T"_s, u"C integer"_s); }), int(ErrorCode::FieldNotFound));
    EXPECT_EQ(FaultOf([&] { Change(u"T"_s, u"A nosuch"_s); }), int(ErrorCode::UnknownType));
    EXPECT_EQ(Rows(u"SELECT * FROM T"_s), u"abc|x abd|y"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM sqlite_schema WHERE type = 'table'"_s), u"1"_s);
    EXPECT_EQ(Indexes(u"T"_s), u"Index1(A)up"_s);
    EXPECT_EQ(catalogue_.FindTable(u"T")->columns[0].length, 255);
}

TEST_F(DdlTest, ReferencesKeepTheirParents) {
    Create(u"Users"_s, {u"UserID varchar NOT NULL UNIQUE PRIMARY KEY"_s});
    Create(u"Loans"_s, {u"P varchar"_s, u"U varchar REFERENCES Users"_s});
    EXPECT_EQ(DropTable(u"Users"_s), int(ErrorCode::UsedByReference));
    EXPECT_EQ(DropIndex(u"Index1"_s, u"Users"_s), int(ErrorCode::UsedByReference));
    Index(u"idx_Users"_s, u"Users"_s, u"UserID"_s, true);
    EXPECT_EQ(DropIndex(u"Index1"_s, u"Users"_s), 0);
    EXPECT_EQ(DropTable(u"Nobody"_s), int(ErrorCode::UnknownTable));
    EXPECT_EQ(DropTable(u"Loans"_s), 0);
    EXPECT_EQ(DropTable(u"Users"_s), 0);
    EXPECT_TRUE(catalogue_.Tables().empty());
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM sqlite_schema"_s), u"0"_s);
}

TEST_F(DdlTest, ReferencesCanBeAddedOverRowsThatKeepThem) {
    Create(u"Users"_s, {u"UserID varchar PRIMARY KEY"_s});
    Create(u"Loans"_s, {u"U varchar"_s});
    Run(u"INSERT INTO Users VALUES ('Ann'); INSERT INTO Loans VALUES ('Ann'), (NULL), ('Bob')"_s);
    ast::TableConstraint reference;
    reference.type = ast::TableConstraint::Type::ForeignKey;
    reference.columns = Names(u"U"_s);
    reference.references_table = u"Users"_s;
    EXPECT_EQ(FaultOf([&] { Constrain(u"Loans"_s, reference); }), int(ErrorCode::ParentMissing));
    EXPECT_EQ(FaultOf([&] { Change(u"Loans"_s, u"U varchar REFERENCES Users(UserID)"_s); }),
              int(ErrorCode::ParentMissing));
    EXPECT_TRUE(catalogue_.FindTable(u"Loans")->references.empty());
    Run(u"DELETE FROM Loans WHERE U = 'Bob'"_s);
    Constrain(u"Loans"_s, reference);
    Run(u"INSERT INTO Loans VALUES ('Bob')"_s);
    EXPECT_EQ(Rows(u"SELECT U FROM Loans"_s), u"Ann -"_s);
}

TEST_F(DdlTest, MakesTheTableOfAQuery) {
    std::vector<ColumnInfo> columns(3);
    columns[0] = {u"A"_s, Kind::Text, 40, false};
    columns[1] = {u"B"_s, Kind::Null, 0, false};
    columns[2] = {u"C"_s, Kind::Boolean, 0, false};
    ddl_.CreateTableFromColumns(u"Copy"_s, columns);
    const TableInfo *table = catalogue_.FindTable(u"Copy");
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->columns[0].length, 40);
    EXPECT_EQ(table->columns[1].kind, Kind::Text);
    EXPECT_EQ(table->columns[2].kind, Kind::Boolean);
    EXPECT_EQ(FaultOf([&] { ddl_.CreateTableFromColumns(u"copy"_s, columns); }), int(ErrorCode::TableExists));
    columns[1].name = u"a"_s;
    EXPECT_EQ(FaultOf([&] { ddl_.CreateTableFromColumns(u"Copy2"_s, columns); }), int(ErrorCode::FieldExists));
}

TEST_F(DdlTest, WorksWithinATransactionAndGoesWithIt) {
    Run(u"BEGIN IMMEDIATE"_s);
    Create(u"T"_s, {u"A varchar PRIMARY KEY"_s});
    Run(u"INSERT INTO T VALUES ('x')"_s);
    EXPECT_EQ(FaultOf([&] { Constrain(u"T"_s, PrimaryKeyOf(u"A"_s)); }), int(ErrorCode::PrimaryKeyExists));
    EXPECT_EQ(FaultOf([&] { Change(u"T"_s, u"A integer"_s); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(Rows(u"SELECT A FROM T"_s), u"x"_s);
    Run(u"ROLLBACK"_s);
    catalogue_.Load(connection_);
    EXPECT_TRUE(catalogue_.Tables().empty());
}

TEST_F(DdlTest, NamesMayHoldAnything) {
    Create(u"My \"Table\" %1"_s, {u"A%2 varchar PRIMARY KEY"_s});
    Add(u"My \"Table\" %1"_s, u"B'; varchar"_s);
    Index(u"i x"_s, u"My \"Table\" %1"_s, u"B';"_s);
    Change(u"My \"Table\" %1"_s, u"A%2 varchar(3)"_s);
    Run(u"INSERT INTO \"My \"\"Table\"\" %1\" VALUES (NULL, '')"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM \"My \"\"Table\"\" %1\""_s), u"0"_s);
    EXPECT_EQ(Indexes(u"My \"Table\" %1"_s), u"Index1(A%2)up i x(B';)"_s);
}

} // namespace
} // namespace ostrand::sql::testing
