#include "queries/SqlConsole.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace ostrand {
using namespace Qt::StringLiterals;
namespace {

class SqlConsoleTest : public ::testing::Test {
protected:
    void SetUp() override {
        database_ = sql::Database::Create(folder_.filePath(u"console.mdb"_s));
        database_->Execute(u"CREATE TABLE t (k varchar PRIMARY KEY, n integer, r NUMERIC, d date, b yesno, m memo)");
        database_->Execute(u"INSERT INTO t VALUES ('a', '1', '1.5', '2009-11-23 20:15:00', true, 'x,\"y\"')");
        database_->Execute(u"INSERT INTO t (k, n, d, m) VALUES ('bb', '-20', '2010-01-02', '')");
    }

    QByteArray Run(SqlFormat format, const QString &statement) {
        output_.clear();
        errors_.clear();
        SqlConsole console(
            *database_, format,
            [this](const QByteArray &bytes) {
                output_ += bytes;
                return true;
            },
            [this](const QByteArray &bytes) {
                errors_ += bytes;
                return true;
            });
        ok_ = console.Run(statement);
        return output_;
    }

    QTemporaryDir folder_;
    std::unique_ptr<sql::Database> database_;
    QByteArray output_;
    QByteArray errors_;
    bool ok_ = false;
};

const QString kAll = u"SELECT k, n, r, d, b, m FROM t ORDER BY k"_s;

TEST_F(SqlConsoleTest, TextIsAnAlignedTable) {
    EXPECT_EQ(Run(SqlFormat::Text, kAll), "k     n    r  d                    b      m\n"
                                          "--  ---  ---  -------------------  -----  -----\n"
                                          "a     1  1.5  2009-11-23 20:15:00  True   x,\"y\"\n"
                                          "bb  -20       2010-01-02           False  \n"
                                          "(2 rows)\n");
    EXPECT_EQ(Run(SqlFormat::Text, u"SELECT n FROM t WHERE k = 'a'"_s), "n\n-\n1\n(1 row)\n");
    EXPECT_EQ(Run(SqlFormat::Text, u"SELECT n FROM t WHERE k = 'zz'"_s), "n\n-\n(0 rows)\n");
}

TEST_F(SqlConsoleTest, TextKeepsCellsOnTheirLine) {
    EXPECT_EQ(Run(SqlFormat::Text, u"SELECT 'a\nb' AS x FROM t WHERE k = 'a'"_s),
              QStringLiteral("x\n---\na\u240Ab\n(1 row)\n").toUtf8());
}

TEST_F(SqlConsoleTest, TextPadsWideCharacters) {
    EXPECT_EQ(Run(SqlFormat::Text, u"SELECT '漢' AS x, k FROM t ORDER BY k"_s),
              QStringLiteral("x   k\n--  --\n漢  a\n漢  bb\n(2 rows)\n").toUtf8());
}

TEST_F(SqlConsoleTest, CsvQuotesWhatNeedsIt) {
    EXPECT_EQ(Run(SqlFormat::Csv, kAll), "k,n,r,d,b,m\r\n"
                                         "a,1,1.5,2009-11-23 20:15:00,True,\"x,\"\"y\"\"\"\r\n"
                                         "bb,-20,,2010-01-02,False,\"\"\r\n");
    EXPECT_EQ(Run(SqlFormat::Csv, u"SELECT 'a\r\nb' AS x FROM t WHERE k = 'a'"_s), "x\r\n\"a\r\nb\"\r\n");
    EXPECT_EQ(Run(SqlFormat::Csv, u"SELECT k AS [a,b] FROM t WHERE k = 'zz'"_s), "\"a,b\"\r\n");
}

TEST_F(SqlConsoleTest, JsonIsOneObjectALine) {
    EXPECT_EQ(Run(SqlFormat::Json, kAll),
              "{\"columns\":[{\"name\":\"k\",\"type\":\"text\"},{\"name\":\"n\",\"type\":\"integer\"},"
              "{\"name\":\"r\",\"type\":\"real\"},{\"name\":\"d\",\"type\":\"date\"},"
              "{\"name\":\"b\",\"type\":\"boolean\"},{\"name\":\"m\",\"type\":\"text\"}],"
              "\"rows\":[[\"a\",1,1.5,\"2009-11-23 20:15:00\",true,\"x,\\\"y\\\"\"],"
              "[\"bb\",-20,null,\"2010-01-02 00:00:00\",false,\"\"]]}\n");
}

TEST_F(SqlConsoleTest, JsonNumbersReadBackEqual) {
    const double number = 0.1 + 0.2;
    sql::Recordset rows = database_->OpenRecordset(u"SELECT * FROM t WHERE k = 'a'");
    rows.Edit();
    rows.Set(u"r", number);
    rows.Update();
    const QByteArray line = Run(SqlFormat::Json, u"SELECT r FROM t WHERE k = 'a'"_s);
    const QJsonArray read = QJsonDocument::fromJson(line).object()[u"rows"_s].toArray();
    EXPECT_EQ(read.at(0).toArray().at(0).toDouble(), number);
}

TEST_F(SqlConsoleTest, StatementsWithoutRows) {
    const QString insert = u"INSERT INTO t (k) VALUES ('c')"_s;
    EXPECT_EQ(Run(SqlFormat::Text, insert), "OK (1 row changed)\n");
    EXPECT_EQ(Run(SqlFormat::Text, insert), "OK (0 rows changed)\n") << "the key is taken, the row is dropped";
    EXPECT_EQ(Run(SqlFormat::Csv, u"DELETE FROM t WHERE k = 'c'"_s), "");
    EXPECT_EQ(Run(SqlFormat::Json, insert), "{\"ok\":true}\n");
    EXPECT_TRUE(ok_);
}

TEST_F(SqlConsoleTest, FaultsGoWhereTheFormatWantsThem) {
    const QString faulty = u"SELECT nothing_such FROM t"_s;
    EXPECT_EQ(Run(SqlFormat::Csv, faulty), "");
    EXPECT_FALSE(ok_);
    EXPECT_TRUE(errors_.startsWith("Error ")) << errors_.constData();
    EXPECT_EQ(Run(SqlFormat::Text, faulty), "");
    EXPECT_TRUE(errors_.endsWith('\n'));
    const QJsonObject object = QJsonDocument::fromJson(Run(SqlFormat::Json, faulty)).object();
    EXPECT_TRUE(object.contains(u"position"_s));
    EXPECT_FALSE(object[u"error"_s].toString().isEmpty());
    EXPECT_EQ(errors_, "");
}

TEST(JsonText, EscapesWhatJsonWants) {
    EXPECT_EQ(JsonString(u"a\"b\\c\n\r\t\u0001/ä\U0001F600"),
              QStringLiteral("\"a\\\"b\\\\c\\n\\r\\t\\u0001/ä\U0001F600\"").toUtf8());
}

TEST(SqlFormats, AreKnownByName) {
    EXPECT_EQ(ParseSqlFormat(u"text"_s), SqlFormat::Text);
    EXPECT_EQ(ParseSqlFormat(u"csv"_s), SqlFormat::Csv);
    EXPECT_EQ(ParseSqlFormat(u"json"_s), SqlFormat::Json);
    EXPECT_EQ(ParseSqlFormat(u"JSON"_s), std::nullopt);
}

} // namespace
} // namespace ostrand
