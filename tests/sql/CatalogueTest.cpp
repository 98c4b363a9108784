#include "StorageFixture.h"

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

using CatalogueTest = StorageFixture;

TEST_F(CatalogueTest, TypesGoThroughTheFileUnchanged) {
    struct Row {
        QString type;
        Kind kind;
        int length;
        QString affinity; // typeof '0123' in such a column
    };
    const Row rows[] = {
        {u"varchar"_s, Kind::Text, 255, u"text"_s},      {u"varchar(4)"_s, Kind::Text, 4, u"text"_s},
        {u"text"_s, Kind::Text, 255, u"text"_s},         {u"NVARCHAR(200)"_s, Kind::Text, 200, u"text"_s},
        {u"char"_s, Kind::Text, 255, u"text"_s},         {u"character"_s, Kind::Text, 255, u"text"_s},
        {u"string"_s, Kind::Text, 255, u"text"_s},       {u"alphanumeric"_s, Kind::Text, 255, u"text"_s},
        {u"memo"_s, Kind::Memo, 0, u"text"_s},           {u"longtext"_s, Kind::Memo, 0, u"text"_s},
        {u"note"_s, Kind::Memo, 0, u"text"_s},           {u"longchar"_s, Kind::Memo, 0, u"text"_s},
        {u"integer"_s, Kind::Integer, 0, u"integer"_s},  {u"LONG"_s, Kind::Integer, 0, u"integer"_s},
        {u"int"_s, Kind::Integer, 0, u"integer"_s},      {u"short"_s, Kind::Integer, 0, u"integer"_s},
        {u"smallint"_s, Kind::Integer, 0, u"integer"_s}, {u"byte"_s, Kind::Integer, 0, u"integer"_s},
        {u"yesno"_s, Kind::Boolean, 0, u"integer"_s},    {u"bit"_s, Kind::Boolean, 0, u"integer"_s},
        {u"logical"_s, Kind::Boolean, 0, u"integer"_s},  {u"boolean"_s, Kind::Boolean, 0, u"integer"_s},
        {u"date"_s, Kind::Date, 0, u"real"_s},           {u"datetime"_s, Kind::Date, 0, u"real"_s},
        {u"time"_s, Kind::Date, 0, u"real"_s},           {u"timestamp"_s, Kind::Date, 0, u"real"_s},
        {u"NUMERIC"_s, Kind::Real, 0, u"real"_s},        {u"double"_s, Kind::Real, 0, u"real"_s},
        {u"float"_s, Kind::Real, 0, u"real"_s},          {u"real"_s, Kind::Real, 0, u"real"_s},
        {u"single"_s, Kind::Real, 0, u"real"_s},         {u"currency"_s, Kind::Real, 0, u"real"_s},
        {u"money"_s, Kind::Real, 0, u"real"_s},          {u"decimal"_s, Kind::Real, 0, u"real"_s},
        {u"number"_s, Kind::Real, 0, u"real"_s},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.type.toStdString());
        Create(u"T"_s, {u"A "_s + row.type});
        Catalogue fresh;
        fresh.Load(connection_);
        const ColumnInfo &column = fresh.FindTable(u"t")->columns.at(0);
        EXPECT_EQ(column.kind, row.kind);
        EXPECT_EQ(column.length, row.length);
        EXPECT_FALSE(column.not_null);
        Run(u"INSERT INTO T (A) VALUES ('0123')"_s);
        EXPECT_EQ(Rows(u"SELECT typeof(A) FROM T"_s), row.affinity);
        ddl_.DropTable({u"T"_s});
    }
}

TEST_F(CatalogueTest, TextColumnsNeverTurnTextIntoNumbersAndCompareInTheirOwnOrder) {
    Create(u"T"_s, {u"A varchar"_s, u"B memo"_s});
    Run(u"INSERT INTO T VALUES ('0123', '1e3')"_s);
    Run(u"INSERT INTO T VALUES (12, 13)"_s);
    EXPECT_EQ(Rows(u"SELECT typeof(A), typeof(B), A, B FROM T"_s), u"text|text|0123|1e3 text|text|12|13"_s);
    Run(u"INSERT INTO T VALUES ('Lamp', 'Road')"_s);
    EXPECT_EQ(Rows(u"SELECT A FROM T WHERE A = 'LAMP ' AND B = 'road'"_s), u"Lamp"_s);
}

TEST_F(CatalogueTest, TruthValueColumnsAreFalseByThemselves) {
    Create(u"T"_s, {u"A varchar"_s, u"B yesno NOT NULL"_s});
    Run(u"INSERT INTO T (A) VALUES ('x')"_s);
    EXPECT_EQ(Rows(u"SELECT B FROM T"_s), u"0"_s);
    EXPECT_FALSE(catalogue_.FindTable(u"T")->columns.at(1).not_null);
    EXPECT_FALSE(catalogue_.FindTable(u"T")->TakesNoNull(u"B"));
}

TEST_F(CatalogueTest, FindsNamesWithoutCase) {
    Create(u"Profile"_s, {u"Title varchar NOT NULL"_s, u"Größe integer"_s}, {PrimaryKeyOf(u"Größe"_s)});
    const TableInfo *table = catalogue_.FindTable(u"PROFILE");
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->name, u"Profile"_s);
    EXPECT_EQ(table->IndexOf(u"TITLE"), 0);
    EXPECT_EQ(table->IndexOf(u"GRÖßE"), 1);
    EXPECT_EQ(table->IndexOf(u"None"), -1);
    EXPECT_EQ(table->FindColumn(u"None"), nullptr);
    EXPECT_NE(table->FindIndex(u"INDEX1"), nullptr);
    EXPECT_EQ(table->FindIndex(u"Index2"), nullptr);
    EXPECT_TRUE(table->TakesNoNull(u"title"));
    EXPECT_TRUE(table->TakesNoNull(u"größe"));
    EXPECT_EQ(catalogue_.FindTable(u"None"), nullptr);
}

TEST_F(CatalogueTest, TellsIndexesInTheOrderOfTheirMaking) {
    Create(u"T"_s, {u"A varchar PRIMARY KEY"_s, u"B varchar UNIQUE"_s, u"C integer"_s});
    Index(u"zz"_s, u"T"_s, u"C,A"_s);
    Index(u"aa"_s, u"T"_s, u"B"_s, true);
    Catalogue fresh;
    fresh.Load(connection_);
    EXPECT_EQ(Indexes(u"T"_s), u"Index1(A)up Index2(B)u zz(C,A) aa(B)u"_s);
    EXPECT_EQ(fresh.FindTable(u"T")->indexes.size(), 4U);
    EXPECT_EQ(fresh.FindTable(u"T")->PrimaryKey()->name, u"Index1"_s);
}

TEST_F(CatalogueTest, IndexNamesReadBackWhateverTheyAre) {
    for (const QString &name : {u"idx"_s, u"a/primary"_s, u"a/index"_s, u"a/b"_s, u"say \"x\""_s, u"Index"_s}) {
        Create(u"My Table"_s, {u"A varchar PRIMARY KEY"_s, u"B varchar"_s});
        Index(name, u"My Table"_s, u"B"_s);
        Catalogue fresh;
        fresh.Load(connection_);
        const IndexInfo *index = fresh.FindTable(u"My Table")->FindIndex(name);
        ASSERT_NE(index, nullptr) << name.toStdString();
        EXPECT_FALSE(index->primary);
        ddl_.DropTable({u"My Table"_s});
    }
    EXPECT_EQ(PhysicalIndexName(u"T", u"i", false), u"T/i"_s);
    EXPECT_EQ(PhysicalIndexName(u"T", u"i", true), u"T/i/primary"_s);
}

TEST_F(CatalogueTest, TellsReferences) {
    Create(u"Users"_s, {u"UserID varchar PRIMARY KEY"_s});
    Create(u"Shops"_s, {u"Name varchar PRIMARY KEY"_s});
    Create(u"Loans"_s, {u"U varchar REFERENCES users(userid)"_s, u"S varchar REFERENCES Shops"_s});
    Catalogue fresh;
    fresh.Load(connection_);
    const auto &references = fresh.FindTable(u"Loans")->references;
    ASSERT_EQ(references.size(), 2U);
    EXPECT_EQ(references[0].columns, QStringList{u"U"_s});
    EXPECT_EQ(references[0].parent_table, u"Users"_s);
    EXPECT_EQ(references[0].parent_columns, QStringList{u"UserID"_s});
    EXPECT_EQ(references[1].parent_columns, QStringList{u"Name"_s});
}

TEST_F(CatalogueTest, EveryLoadRaisesTheGenerationAndTablesKeepTheirOrder) {
    Create(u"B"_s, {u"X integer"_s});
    const int before = catalogue_.Generation();
    Create(u"A"_s, {u"X integer"_s});
    EXPECT_GT(catalogue_.Generation(), before);
    ASSERT_EQ(catalogue_.Tables().size(), 2U);
    EXPECT_EQ(catalogue_.Tables()[0].name, u"B"_s);
    EXPECT_EQ(catalogue_.Tables()[1].name, u"A"_s);
}

TEST_F(CatalogueTest, TablesOfSqliteItselfDoNotAppear) {
    Run(u"CREATE TABLE own (a INTEGER PRIMARY KEY AUTOINCREMENT)"_s);
    Run(u"ANALYZE"_s);
    catalogue_.Load(connection_);
    ASSERT_EQ(catalogue_.Tables().size(), 1U);
    EXPECT_EQ(catalogue_.Tables()[0].name, u"own"_s);
}

TEST_F(CatalogueTest, RowNumbersKeepANameThatNoColumnHides) {
    Create(u"T"_s, {u"rowid varchar"_s, u"OID varchar"_s});
    EXPECT_EQ(catalogue_.FindTable(u"T")->RowIdName(), u"_rowid_"_s);
    Add(u"T"_s, u"_RowId_ varchar"_s);
    EXPECT_EQ(catalogue_.FindTable(u"T")->RowIdName(), QString());
}

TEST(QuoteNameTest, DoublesQuotes) {
    EXPECT_EQ(QuoteName(u"a\"b"), u"\"a\"\"b\""_s);
}

} // namespace
} // namespace ostrand::sql::testing
