#include "support/BatchProgram.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <csignal>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::BatchProgram;
using test::BatchResult;

class SqlModeTest : public ::testing::Test {
protected:
    BatchResult Create(const QByteArray &statements, const QString &format = u"csv"_s) {
        return program.Run({u"--sql"_s, u"a.mdb"_s, u"--create"_s, u"--format"_s, format}, statements);
    }
    BatchResult Sql(const QByteArray &statements, const QString &format = u"csv"_s) {
        return program.Run({u"--sql"_s, u"a.mdb"_s, u"--format"_s, format}, statements);
    }

    BatchProgram program;
};

const QByteArray kTable = "CREATE TABLE t (k varchar PRIMARY KEY, n integer, d date, b yesno);\n"
                          "INSERT INTO t VALUES ('a', 1, #1/2/2003#, True);\n"
                          "INSERT INTO t VALUES ('b', NULL, NULL, False);\n";

TEST_F(SqlModeTest, MakesAFileAndKeepsIt) {
    BatchResult result = Create(kTable);
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(QFile::exists(program.In(u"a.ldb"_s)));
    EXPECT_FALSE(QFile::exists(program.In(u"a.mdb-wal"_s)));
    result = Sql("SELECT * FROM t;\n");
    EXPECT_EQ(result.output, "k,n,d,b\r\na,1,2003-01-02,True\r\nb,,,False\r\n");
    EXPECT_EQ(result.status, 0);
}

TEST_F(SqlModeTest, Formats) {
    Create(kTable);
    EXPECT_EQ(Sql("SELECT k, n FROM t;", u"text"_s).output, "k  n\n-  -\na  1\nb  \n(2 rows)\n");
    EXPECT_EQ(Sql("SELECT n, d, b FROM t;\nDELETE FROM t;", u"json"_s).output,
              "{\"columns\":[{\"name\":\"n\",\"type\":\"integer\"},{\"name\":\"d\",\"type\":\"date\"},"
              "{\"name\":\"b\",\"type\":\"boolean\"}],\"rows\":[[1,\"2003-01-02 00:00:00\",true],[null,null,false]]}\n"
              "{\"ok\":true}\n");
    EXPECT_EQ(program.Run({u"--sql=a.mdb"_s}, "SELECT COUNT(*) AS c FROM t").output, "c\n-\n0\n(1 row)\n")
        << "text is the format without a choice";
}

TEST_F(SqlModeTest, StatementsEndAtTheEndOfALine) {
    Create(kTable);
    EXPECT_EQ(Sql("SELECT 'x;\ny' AS v FROM t WHERE k = 'a';\n").output, "v\r\n\"x;\ny\"\r\n");
    EXPECT_EQ(Sql("SELECT k FROM t WHERE k = 'a';  \r\nSELECT k\r\nFROM t WHERE k = 'b' ;\r\n").output,
              "k\r\na\r\nk\r\nb\r\n");
    EXPECT_EQ(Sql("SELECT k FROM t WHERE k = 'a'").output, "k\r\na\r\n");
    EXPECT_EQ(Sql(";\n\n;\n").output, "");
    EXPECT_EQ(Sql("").status, 0);
}

TEST_F(SqlModeTest, InputIsUtf8) {
    Create(kTable);
    EXPECT_EQ(Sql("\xEF\xBB\xBFSELECT '\xC3\xA4\xF0\x9F\x98\x80' AS v FROM t WHERE k = 'a';\n").output,
              "v\r\n\xC3\xA4\xF0\x9F\x98\x80\r\n");
}

TEST_F(SqlModeTest, GoesOnAfterAFault) {
    Create(kTable);
    BatchResult result = Sql("SELECT;\nSELECT k FROM t WHERE k = 'a';\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "k\r\na\r\n");
    EXPECT_TRUE(result.errors.startsWith("Error ")) << result.errors.constData();
    result = Sql("SELECT x FROM nowhere;\nSELECT k FROM t WHERE k = 'a';\n", u"json"_s);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "");
    const QList<QByteArray> lines = result.output.split('\n');
    ASSERT_EQ(lines.size(), 3);
    const QJsonObject fault = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_FALSE(fault[u"error"_s].toString().isEmpty());
    EXPECT_TRUE(fault[u"position"_s].isDouble());
    EXPECT_TRUE(lines[1].startsWith("{\"columns\":"));
}

TEST_F(SqlModeTest, FilesThatCannotBeOpened) {
    EXPECT_EQ(Sql("SELECT 1;").status, 2);
    EXPECT_FALSE(QFile::exists(program.In(u"a.mdb"_s)));
    Create(kTable);
    const BatchResult again = Create("DELETE FROM t;");
    EXPECT_EQ(again.status, 2) << "it exists";
    EXPECT_FALSE(again.errors.isEmpty());
    program.folder.Write(u"text.mdb"_s, "This is no database. It is a text of some length, that is all.");
    EXPECT_EQ(program.Run({u"--sql"_s, u"text.mdb"_s}, "SELECT 1;").status, 2);
    EXPECT_EQ(program.folder.Read(u"text.mdb"_s), "This is no database. It is a text of some length, that is all.");
}

TEST_F(SqlModeTest, TheLocaleReadsNumbers) {
    Create("CREATE TABLE p (v NUMERIC);");
    program.Run({u"--sql"_s, u"a.mdb"_s, u"--locale"_s, u"de_DE"_s}, "INSERT INTO p VALUES ('1,5');");
    EXPECT_EQ(Sql("SELECT v FROM p;").output, "v\r\n1.5\r\n");
}

TEST_F(SqlModeTest, LongResultsComeWhole) {
    QByteArray statements = "CREATE TABLE m (i integer, v memo);\n";
    const QByteArray text(2000, 'x');
    for (int i = 0; i < 300; ++i) {
        statements += "INSERT INTO m VALUES (" + QByteArray::number(i) + ", '" + text + "');\n";
    }
    ASSERT_EQ(Create(statements).status, 0);
    const QByteArray output = Sql("SELECT * FROM m ORDER BY i;", u"json"_s).output;
    const QJsonArray rows = QJsonDocument::fromJson(output).object()[u"rows"_s].toArray();
    ASSERT_EQ(rows.size(), 300);
    EXPECT_EQ(rows[299].toArray()[1].toString().toUtf8(), text);
}

TEST_F(SqlModeTest, AnotherProgramSeesWhatAnIdleOneDid) {
    Create(kTable);
    const std::unique_ptr<QProcess> first = program.Start({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"json"_s});
    first->write("INSERT INTO t (k) VALUES ('c');\n");
    ASSERT_TRUE(first->waitForReadyRead(30'000));
    EXPECT_EQ(first->readAllStandardOutput(), "{\"ok\":true}\n");
    QElapsedTimer time;
    time.start();
    QByteArray seen;
    while (seen != "c\r\n3\r\n" && time.elapsed() < 10'000) {
        seen = Sql("SELECT COUNT(*) AS c FROM t;").output;
    }
    EXPECT_EQ(seen, "c\r\n3\r\n");
    EXPECT_EQ(Sql("INSERT INTO t (k) VALUES ('d');").status, 0) << "both may write";
    first->write("SELECT COUNT(*) AS c FROM t;\n");
    first->closeWriteChannel();
    ASSERT_TRUE(first->waitForFinished(30'000));
    EXPECT_TRUE(first->readAllStandardOutput().contains("[[4]]"));
    EXPECT_EQ(first->exitCode(), 0);
}

#ifdef Q_OS_UNIX
TEST_F(SqlModeTest, ASignalEndsItSoundly) {
    for (const int signal : {SIGINT, SIGTERM}) {
        QFile::remove(program.In(u"a.mdb"_s));
        Create(kTable);
        const std::unique_ptr<QProcess> process = program.Start({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"json"_s});
        process->write("INSERT INTO t (k) VALUES ('c');\n");
        ASSERT_TRUE(process->waitForReadyRead(30'000));
        ::kill(pid_t(process->processId()), signal);
        ASSERT_TRUE(process->waitForFinished(30'000));
        EXPECT_EQ(process->exitCode(), 128 + signal);
        EXPECT_FALSE(QFile::exists(program.In(u"a.mdb-wal"_s)));
        EXPECT_EQ(Sql("SELECT COUNT(*) AS c FROM t;").output, "c\r\n3\r\n");
    }
}

TEST_F(SqlModeTest, ASignalInterruptsAStatement) {
    QByteArray statements = "CREATE TABLE n (i integer);\n";
    for (int i = 0; i < 400; ++i) {
        statements += "INSERT INTO n VALUES (" + QByteArray::number(i) + ");\n";
    }
    Create(statements);
    const std::unique_ptr<QProcess> process = program.Start({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"json"_s});
    process->write("SELECT COUNT(*) FROM n;\n");
    ASSERT_TRUE(process->waitForReadyRead(30'000));
    process->write("SELECT COUNT(*) FROM n a, n b, n c, n d WHERE a.i + b.i + c.i + d.i = -1;\n");
    process->waitForBytesWritten(1000);
    EXPECT_FALSE(process->waitForFinished(500)) << "it has years to go";
    ::kill(pid_t(process->processId()), SIGINT);
    ASSERT_TRUE(process->waitForFinished(30'000));
    EXPECT_EQ(process->exitCode(), 130);
}
#endif

} // namespace
} // namespace ostrand
