#include "StorageFixture.h"

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

using ConnectionTest = StorageFixture;

TEST_F(ConnectionTest, ValuesComeBackAsTheyWere) {
    const Value values[] = {Value(),
                            Value(qint64(1) << 40),
                            Value(-1.5),
                            Value(true),
                            Value(QString()),
                            Value(u""_s),
                            Value(u"Zoë \U0001F3AC 'x'"_s),
                            Value(QString(QChar(u'a')) + QChar(QChar::Null) + u'b')};
    Statement echo = connection_.Prepare(u"SELECT ?1, typeof(?1)");
    for (const Value &value : values) {
        echo.Bind(0, value);
        ASSERT_TRUE(echo.Step());
        const Value back = echo.Column(0);
        EXPECT_EQ(back.GetType(), value.GetType());
        EXPECT_EQ(back.Text(), value.Text());
        EXPECT_EQ(back.Real(), value.Real());
        EXPECT_FALSE(echo.Step());
        echo.Reset();
    }
}

TEST_F(ConnectionTest, HalfSurrogatePairsBecomeReplacementCharacters) {
    const QChar high(0xD83C);
    const QChar low(0xDFAC);
    const QString bad = QString(u'a') + high + u'b' + low + high + low;
    Statement echo = connection_.Prepare(u"SELECT ?");
    echo.Bind(0, bad);
    ASSERT_TRUE(echo.Step());
    EXPECT_EQ(echo.ColumnText(0), u"a\uFFFDb\uFFFD"_s + high + low);
}

TEST_F(ConnectionTest, FaultsHaveTheirNumbers) {
    Run(u"CREATE TABLE T (A NOT NULL, B UNIQUE); INSERT INTO T VALUES (1, 1)"_s);
    EXPECT_EQ(FaultOf([&] { Run(u"INSERT INTO T VALUES (NULL, 2)"_s); }), int(ErrorCode::NullNotAllowed));
    EXPECT_EQ(FaultOf([&] { Run(u"INSERT INTO T VALUES (2, 1)"_s); }), int(ErrorCode::DuplicateKey));
    EXPECT_EQ(FaultOf([&] { Run(u"SELECT"_s); }), int(ErrorCode::Internal));
    EXPECT_EQ(FaultOf([&] { connection_.Prepare(u"SELECT \"nothing\""); }), int(ErrorCode::Internal));
    EXPECT_EQ(FaultOf([] { RaiseSqliteError(nullptr); }), int(ErrorCode::Internal));
    sqlite3_progress_handler(
        connection_.Handle(), 10, [](void *) { return 1; }, nullptr);
    EXPECT_EQ(FaultOf([&] {
                  connection_.Single(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9999) "
                                     "SELECT COUNT(*) FROM n");
              }),
              int(ErrorCode::Interrupted));
    sqlite3_progress_handler(connection_.Handle(), 0, nullptr, nullptr);
    try {
        connection_.Single(u"SELECT fail()");
        FAIL();
    } catch (const SqlError &error) {
        EXPECT_EQ(error.Code(), ErrorCode::DivisionByZero);
        EXPECT_EQ(error.Text(), u"Nothing can be divided by 0."_s);
    }
}

TEST_F(ConnectionTest, AFailedStatementKeepsNoLockAndRunsAgain) {
    Run(u"CREATE TABLE T (A UNIQUE)"_s);
    Statement insert = connection_.Prepare(u"INSERT INTO T VALUES (?)");
    insert.Bind(0, 1);
    EXPECT_FALSE(insert.Step());
    insert.Reset();
    EXPECT_EQ(FaultOf([&] { insert.Step(); }), int(ErrorCode::DuplicateKey));
    EXPECT_NE(sqlite3_get_autocommit(connection_.Handle()), 0);
    insert.Bind(0, 2);
    EXPECT_FALSE(insert.Step());
    EXPECT_EQ(connection_.Changes(), 1);
    EXPECT_EQ(connection_.Single(u"SELECT COUNT(*) FROM T").Integer(), 2);
    EXPECT_TRUE(connection_.Single(u"SELECT A FROM T WHERE A = 9").IsNull());
}

} // namespace
} // namespace ostrand::sql::testing
