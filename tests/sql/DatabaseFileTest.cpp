#include "ForkedChild.h"
#include "TestFunctions.h"

#include "sql/Collation.h"
#include "sql/DatabaseFile.h"
#include "sql/DatabaseHeader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

namespace ostrand::sql::testing {
namespace {

using namespace Qt::StringLiterals;

QByteArray Read(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void Write(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// The number of the fault of opening, 0 when it opens.
int FaultOfOpening(const QString &path) {
    try {
        CloseFile(OpenFile(path, RegisterTestFunctions));
    } catch (const SqlError &error) {
        return error.Number();
    }
    return 0;
}

class DatabaseFileTest : public ::testing::Test {
protected:
    QString PathOf(const QString &name) const { return directory_.filePath(name); }
    QStringList Files() const { return QDir(directory_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    /// A database with `rows` rows in table T.
    void Make(const QString &path, int rows = 500) {
        Connection connection = CreateFile(path, RegisterTestFunctions);
        connection.Execute(u"CREATE TABLE T (A TEXT COLLATE dialect, B INT); CREATE UNIQUE INDEX i ON T (A)");
        Statement insert = connection.Prepare(u"INSERT INTO T VALUES (?, 7)");
        connection.Execute(u"BEGIN");
        for (int i = 0; i < rows; ++i) {
            insert.Bind(0, u"row number "_s + QString::number(i));
            insert.Step();
            insert.Reset();
        }
        connection.Execute(u"COMMIT");
        insert = Statement();
        CloseFile(std::move(connection));
    }

    qint64 RowsOf(const QString &path) {
        Connection connection = OpenFile(path, RegisterTestFunctions);
        const qint64 rows = connection.Single(u"SELECT COUNT(*) FROM T").Integer();
        CloseFile(std::move(connection));
        return rows;
    }

    QTemporaryDir directory_;
    QString path_ = PathOf(u"own.mdb"_s);
};

TEST_F(DatabaseFileTest, OneFileStaysAfterClosing) {
    Make(path_);
    EXPECT_EQ(Files(), QStringList{u"own.mdb"_s});
    EXPECT_EQ(RowsOf(path_), 500);
    EXPECT_EQ(Files(), QStringList{u"own.mdb"_s});
}

TEST_F(DatabaseFileTest, OpensWithTheSettingsOfTheEngine) {
    Make(path_);
    const Connection connection = OpenFile(path_, RegisterTestFunctions);
    const std::pair<QString, Value> settings[] = {
        {u"journal_mode"_s, Value(u"wal"_s)},
        {u"synchronous"_s, Value(1)},
        {u"foreign_keys"_s, Value(0)},
        {u"recursive_triggers"_s, Value(0)},
        {u"busy_timeout"_s, Value(5000)},
        {u"cache_size"_s, Value(-49152)},
        {u"temp_store"_s, Value(2)},
        {u"page_size"_s, Value(4096)},
        {u"application_id"_s, Value(kApplicationId)},
        {u"user_version"_s, Value(kCollationVersion)},
        {u"trusted_schema"_s, Value(0)},
    };
    for (const auto &[name, value] : settings) {
        EXPECT_EQ(connection.Single(u"PRAGMA "_s + name), value) << name.toStdString();
    }
    EXPECT_THROW(connection.Prepare(u"SELECT \"no such name\" FROM T"), SqlError);
}

TEST_F(DatabaseFileTest, AFileIsNeverMadeOverAnother) {
    struct Row {
        QString name;
        ErrorCode code;
    };
    Write(PathOf(u"taken.mdb"_s), "mine");
    QDir(directory_.path()).mkdir(u"folder.mdb"_s);
    ASSERT_TRUE(QFile::link(PathOf(u"nowhere"_s), PathOf(u"link.mdb"_s)));
    const Row rows[] = {{u"taken.mdb"_s, ErrorCode::DatabaseExists},
                        {u"folder.mdb"_s, ErrorCode::DatabaseExists},
                        {u"link.mdb"_s, ErrorCode::DatabaseExists},
                        {u"none/new.mdb"_s, ErrorCode::CannotOpenDatabase}};
    const QStringList before = Files();
    for (const Row &row : rows) {
        try {
            CreateFile(PathOf(row.name), RegisterTestFunctions);
            ADD_FAILURE() << row.name.toStdString();
        } catch (const SqlError &error) {
            EXPECT_EQ(error.Code(), row.code) << error.what();
        }
    }
    EXPECT_EQ(Read(PathOf(u"taken.mdb"_s)), "mine");
    EXPECT_EQ(Files(), before);
}

TEST_F(DatabaseFileTest, AFailedCreationLeavesNothing) {
    EXPECT_THROW(CreateFile(path_, [](sqlite3 *) { throw SqlError(ErrorCode::Internal, u"no"_s); }), SqlError);
    EXPECT_EQ(Files(), QStringList());
}

#ifdef Q_OS_UNIX
TEST_F(DatabaseFileTest, ADiskWithoutRoomForTheIndexOfTheLogIsFull) {
    Make(path_);
    EXPECT_EQ(InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit = {10'000, RLIM_INFINITY}; // no file takes a byte beyond it
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  try {
                      OpenFile(path_, RegisterTestFunctions);
                      return 1;
                  } catch (const SqlError &error) {
                      return error.Code() == ErrorCode::DiskFull ? 0 : 2;
                  }
              }),
              0);
    EXPECT_EQ(RowsOf(path_), 500);
}
#endif

TEST_F(DatabaseFileTest, FilesThatFailACheckStayAsTheyAre) {
    Make(path_);
    const QByteArray good = Read(path_);
    ASSERT_GT(good.size(), 5 * 4096);
    auto changed = [&](qsizetype at, const QByteArray &bytes) {
        QByteArray copy = good;
        copy.replace(at, bytes.size(), bytes);
        return copy;
    };
    struct Row {
        QString name;
        QByteArray bytes;
        ErrorCode code;
    };
    const Row rows[] = {
        {u"empty"_s, "", ErrorCode::NotADatabase},
        {u"text"_s, QByteArray("no database at all ").repeated(400), ErrorCode::NotADatabase},
        {u"magic alone"_s, good.left(16), ErrorCode::NotADatabase},
        {u"odd page size"_s, changed(16, QByteArray("\x03\x00", 2)), ErrorCode::NotADatabase},
        {u"cut by a byte"_s, good.left(good.size() - 1), ErrorCode::Damaged},
        {u"cut to a page"_s, good.left(4096), ErrorCode::Damaged},
        {u"cut in the first page"_s, good.left(1000), ErrorCode::Damaged},
        {u"another program's"_s, changed(68, QByteArray(4, 1)), ErrorCode::NotADatabase},
        {u"broken schema"_s, changed(100, QByteArray(300, char(0xEE))), ErrorCode::Damaged},
    };
    const QString path = PathOf(u"bad.mdb"_s);
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        Write(path, row.bytes);
        EXPECT_EQ(FaultOfOpening(path), int(row.code));
        EXPECT_EQ(Read(path), row.bytes);
        EXPECT_EQ(Files(), (QStringList{u"bad.mdb"_s, u"own.mdb"_s}));
    }
}

TEST_F(DatabaseFileTest, AnotherProgramsFileWithItsLogStaysAsItIs) {
    const QString copy = PathOf(u"copy.mdb"_s);
    {
        Connection connection = CreateFile(path_, RegisterTestFunctions);
        connection.Execute(u"PRAGMA application_id = 7; PRAGMA wal_checkpoint; CREATE TABLE T (A TEXT)");
        ASSERT_TRUE(QFile::copy(path_, copy));
        ASSERT_TRUE(QFile::copy(path_ + u"-wal"_s, copy + u"-wal"_s));
    }
    const QByteArray file = Read(copy);
    const QByteArray log = Read(copy + u"-wal"_s);
    ASSERT_FALSE(log.isEmpty());
    EXPECT_EQ(FaultOfOpening(copy), int(ErrorCode::NotADatabase));
    EXPECT_EQ(Read(copy), file);
    EXPECT_EQ(Read(copy + u"-wal"_s), log);
}

TEST_F(DatabaseFileTest, MissingFilesAndFoldersDoNotOpen) {
    EXPECT_EQ(FaultOfOpening(path_), int(ErrorCode::CannotOpenDatabase));
    EXPECT_EQ(FaultOfOpening(directory_.path()), int(ErrorCode::CannotOpenDatabase));
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(DatabaseFileTest, ALogBesideTheFileIsReadBack) {
    const QString copy = PathOf(u"copy.mdb"_s);
    {
        Connection connection = CreateFile(path_, RegisterTestFunctions);
        connection.Execute(u"CREATE TABLE T (A TEXT)");
        connection.Execute(u"INSERT INTO T SELECT 'row' FROM (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                           "FROM n WHERE i < 3000) SELECT i FROM n)");
        // As a process that died would leave them.
        ASSERT_TRUE(QFile::copy(path_, copy));
        ASSERT_TRUE(QFile::copy(path_ + u"-wal"_s, copy + u"-wal"_s));
    }
    EXPECT_EQ(RowsOf(copy), 3000);
    EXPECT_FALSE(QFileInfo::exists(copy + u"-wal"_s));
}

TEST_F(DatabaseFileTest, IndexesFollowTheOrderOfTexts) {
    Make(path_, 3);
    {
        Connection connection = OpenFile(path_, RegisterTestFunctions);
        connection.Execute(u"PRAGMA user_version = 99");
        CloseFile(std::move(connection));
    }
    auto register_backwards = [](sqlite3 *handle) {
        sqlite3_create_collation_v2(
            handle, "dialect", SQLITE_UTF8, nullptr,
            [](void *, int left_size, const void *left, int right_size, const void *right) {
                const auto view = [](const void *text, int size) {
                    return std::string_view(static_cast<const char *>(text), size_t(size));
                };
                return CompareUtf8(view(right, right_size), view(left, left_size));
            },
            nullptr);
    };
    Connection connection = OpenFile(path_, register_backwards);
    EXPECT_EQ(connection.Single(u"PRAGMA user_version").Integer(), kCollationVersion);
    EXPECT_EQ(connection.Single(u"SELECT A FROM T ORDER BY A").Text(), u"row number 2"_s);
    EXPECT_EQ(connection.Single(u"PRAGMA integrity_check").Text(), u"ok"_s);
    EXPECT_EQ(connection.Single(u"SELECT COUNT(*) FROM T WHERE A = 'row number 0'").Integer(), 1);
}

TEST_F(DatabaseFileTest, TextsThatBecomeOneKeyStopTheOpeningAndChangeNothing) {
    Make(path_, 3);
    {
        Connection connection = OpenFile(path_, RegisterTestFunctions);
        connection.Execute(u"PRAGMA user_version = 99");
        CloseFile(std::move(connection));
    }
    const QByteArray before = Read(path_);
    auto all_the_same = [](sqlite3 *handle) {
        sqlite3_create_collation_v2(
            handle, "dialect", SQLITE_UTF8, nullptr, [](void *, int, const void *, int, const void *) { return 0; },
            nullptr);
    };
    try {
        OpenFile(path_, all_the_same);
        FAIL();
    } catch (const SqlError &error) {
        EXPECT_EQ(error.Code(), ErrorCode::DuplicateKey);
    }
    EXPECT_EQ(Read(path_), before);
    EXPECT_EQ(Files(), QStringList{u"own.mdb"_s});
}

TEST_F(DatabaseFileTest, CompactingDropsWhatIsUnused) {
    const QString target = PathOf(u"small.mdb"_s);
    Make(path_, 20000);
    {
        Connection connection = OpenFile(path_, RegisterTestFunctions);
        connection.Execute(u"DELETE FROM T WHERE rowid > 10");
        CloseFile(std::move(connection));
    }
    const QByteArray before = Read(path_);
    CompactFile(path_, target, RegisterTestFunctions);
    EXPECT_EQ(Read(path_), before);
    EXPECT_LT(QFileInfo(target).size(), before.size() / 4);
    EXPECT_EQ(Files(), (QStringList{u"own.mdb"_s, u"small.mdb"_s}));
    EXPECT_EQ(RowsOf(target), 10);
}

TEST_F(DatabaseFileTest, CompactingTakesNoTargetThatExistsAndNoBadSource) {
    const QString target = PathOf(u"target.mdb"_s);
    Make(path_, 3);
    Write(target, "mine");
    auto fault = [&](const QString &source, const QString &to) {
        try {
            CompactFile(source, to, RegisterTestFunctions);
        } catch (const SqlError &error) {
            return error.Code();
        }
        return ErrorCode(0);
    };
    EXPECT_EQ(fault(path_, target), ErrorCode::DatabaseExists);
    EXPECT_EQ(Read(target), "mine");
    EXPECT_EQ(fault(target, PathOf(u"new.mdb"_s)), ErrorCode::NotADatabase);
    EXPECT_EQ(fault(PathOf(u"none.mdb"_s), PathOf(u"new.mdb"_s)), ErrorCode::CannotOpenDatabase);
    QByteArray broken = Read(path_);
    broken.replace(100, 300, QByteArray(300, char(0xEE)));
    Write(PathOf(u"broken.mdb"_s), broken);
    EXPECT_EQ(fault(PathOf(u"broken.mdb"_s), PathOf(u"new.mdb"_s)), ErrorCode::Damaged);
    EXPECT_EQ(Files(), (QStringList{u"broken.mdb"_s, u"own.mdb"_s, u"target.mdb"_s}));
}

TEST_F(DatabaseFileTest, ReadOnlyFilesAndFoldersAreTold) {
    Make(path_, 3);
    QDir(directory_.path()).mkdir(u"closed"_s);
    const QString inner = PathOf(u"closed/inner.mdb"_s);
    ASSERT_TRUE(QFile::copy(path_, inner));
    const QByteArray before = Read(path_);
    ::chmod(QFile::encodeName(directory_.path()).constData(), 0777);
    ::chmod(QFile::encodeName(path_).constData(), 0444);
    ::chmod(QFile::encodeName(inner).constData(), 0666);
    ::chmod(QFile::encodeName(PathOf(u"closed"_s)).constData(), 0555);
    EXPECT_EQ(AsNobody([&] { return FaultOfOpening(path_) == int(ErrorCode::ReadOnly) ? 0 : 1; }), 0);
    EXPECT_EQ(AsNobody([&] { return FaultOfOpening(inner) == int(ErrorCode::ReadOnly) ? 0 : 1; }), 0);
    EXPECT_EQ(AsNobody([&] {
                  try {
                      CreateFile(PathOf(u"closed/new.mdb"_s), RegisterTestFunctions);
                  } catch (const SqlError &error) {
                      return error.Code() == ErrorCode::ReadOnly ? 0 : 1;
                  }
                  return 2;
              }),
              0);
    ::chmod(QFile::encodeName(path_).constData(), 0200);
    EXPECT_EQ(AsNobody([&] { return FaultOfOpening(path_) == int(ErrorCode::CannotOpenDatabase) ? 0 : 1; }), 0);
    ::chmod(QFile::encodeName(path_).constData(), 0644);
    ::chmod(QFile::encodeName(PathOf(u"closed"_s)).constData(), 0755);
    EXPECT_EQ(Read(path_), before);
    EXPECT_EQ(Read(inner), before);
    EXPECT_EQ(Files(), QStringList{u"own.mdb"_s});
}

} // namespace
} // namespace ostrand::sql::testing
