// Any statements, run for good on a small database: each answers or raises SqlError, and the file stays sound.

#include "sql/Database.h"
#include "sql/SqlError.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace ostrand::sql;

namespace {

constexpr qint64 kMostMilliseconds = 60;

const char *const kSchema[] = {
    "CREATE TABLE Users (UserID varchar NOT NULL UNIQUE PRIMARY KEY, Phone varchar(4), IsActive yesno)",
    "CREATE TABLE Films (FilmID long PRIMARY KEY, Title varchar NOT NULL, Notes memo, Price NUMERIC, Seen date)",
    "ALTER TABLE Films ADD COLUMN UserID varchar REFERENCES Users(UserID)",
    "ALTER TABLE Films ADD COLUMN IsCast yesno",
    "CREATE TABLE Tags (FilmID long NOT NULL, Tag varchar, PRIMARY KEY (FilmID, Tag))",
    "CREATE INDEX byTitle ON Films (Title)",
    "INSERT INTO Users VALUES ('Ann', '1', true)",
    "INSERT INTO Users VALUES ('Bob', NULL, false)",
    "INSERT INTO Films VALUES (1, 'Green Lamp', 'a memo', 9.5, '2009-11-23 20:15:00', 'Ann', true)",
    "INSERT INTO Films VALUES (2, 'Ocean''s Road', NULL, NULL, NULL, NULL, false)",
    "INSERT INTO Films VALUES (3, '', '', 0, '1899-12-30', 'Bob', true)",
    "INSERT INTO Tags VALUES (1, 'Rain')",
    "INSERT INTO Tags VALUES (1, 'top')",
    "INSERT INTO Tags VALUES (2, 'Top')",
};

void Require(bool condition, const char *what) {
    if (!condition) {
        std::fprintf(stderr, "violated: %s\n", what);
        std::abort();
    }
}

/// The folder with the database that every input begins with.
class Ground {
public:
    Ground() {
        environment_.now = [] { return 40193.5; };
        environment_.random = [] { return 0.5; };
        const auto database = Database::Create(folder_.filePath(QStringLiteral("first.mdb")), environment_);
        for (const char *statement : kSchema) {
            database->Execute(QString::fromLatin1(statement));
        }
    }

    std::unique_ptr<Database> Fresh() {
        const QString path = folder_.filePath(QStringLiteral("run.mdb"));
        QFile::remove(path);
        Require(QFile::copy(folder_.filePath(QStringLiteral("first.mdb")), path), "the database is copied");
        return Database::Open(path, environment_);
    }

private:
    // In memory where the system has such a folder.
    QTemporaryDir folder_{QFile::exists(QStringLiteral("/dev/shm")) ? QStringLiteral("/dev/shm/ostrand-fuzz-XXXXXX")
                                                                    : QStringLiteral("ostrand-fuzz-XXXXXX")};
    Environment environment_;
};

void ReadAll(Recordset rows) {
    const int columns = int(rows.Fields().size());
    int read = 0;
    for (; !rows.Eof() && read < 1000; rows.MoveNext(), ++read) {
        for (int i = 0; i < columns; ++i) {
            rows.Text(i);
        }
    }
    Require(read == std::min(rows.RecordCount(), 1000), "the rows are as many as they say");
}

void RunOne(Database &database, const QString &sql) {
    QElapsedTimer clock;
    clock.start();
    database.SetProgress([&clock] { return clock.elapsed() > kMostMilliseconds; });
    try {
        ReadAll(database.OpenRecordset(sql));
    } catch (const SqlError &error) {
        Require(!error.Text().isEmpty(), "a fault has a text");
        Require(error.Position() >= -1 && error.Position() <= sql.size(), "a fault lies in the text");
        // SQLite's own words mean that a statement got through that must not.
        if (error.Code() == ErrorCode::Internal) {
            std::fprintf(stderr, "%s\n%s\n", sql.toUtf8().constData(), error.what());
        }
        Require(error.Code() != ErrorCode::Internal, "a fault is named");
        Require(error.Code() != ErrorCode::Damaged, "the file stays sound");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static Ground ground;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto database = ground.Fresh();
    for (const QString &statement : text.split(u'\n').mid(0, 8)) {
        RunOne(*database, statement);
        RunOne(*database, statement); // from the cache
    }
    return 0;
}
