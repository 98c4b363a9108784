// What the engine costs over plain SQLite in the same run, on the same files, with the same collation and indexes.
//
//   cached select   A statement that the cache holds, opened and read, against the same prepared statement whose
//   columns
//                   are read as UTF-16 into strings of its own. The scan of the statement's text is measured apart and
//                   taken off: ratio = (engine - scan) / floor.
//   insert texts    One INSERT text for each row, against a prepared INSERT with bound values, in batches of the same
//                   size.
//   cache hits      The share of look-ups that the cache answers in a stream of statements as an import sends it.
//
// Prints a line for each: name, ours, floor, ratio, goal. Ends with 1 where one is worse than twice its goal.
// Arguments: --rows N (of the inserts; 100000), --full (800000).

#include "sql/Database.h"
#include "sql/Functions.h"
#include "sql/Shape.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <limits>

#include <sqlite3.h>

using namespace ostrand::sql;
using namespace Qt::StringLiterals;

namespace {

constexpr int kProfiles = 3000;
constexpr int kSelects = 20'000;
constexpr int kRounds = 5;
constexpr int kBatch = 500;
constexpr int kChunk = 10'000;

/// Prints a measurement; false where it is worse than twice the goal.
bool Report(const char *name, double ours, double floor, double ratio, double goal, const char *unit) {
    std::printf("%-28s ours %9.3f %s  floor %9.3f %s  ratio %5.2f  goal %.2f%s\n", name, ours, unit, floor, unit, ratio,
                goal, ratio > goal ? "  MISSED" : "");
    std::fflush(stdout);
    return ratio <= 2 * goal;
}

/// The quickest of some rounds, in microseconds.
double Quickest(int rounds, const std::function<void()> &work) {
    qint64 best = std::numeric_limits<qint64>::max();
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        work();
        best = std::min(best, clock.nsecsElapsed());
    }
    return double(best) / 1000.0;
}

Environment MakeEnvironment() {
    Environment environment;
    environment.now = [] { return 40193.5; };
    environment.random = [] { return 0.5; };
    return environment;
}

/// A handle on a file of the engine without the engine, set up alike.
class PlainFile {
public:
    explicit PlainFile(const QString &path) : environment_(MakeEnvironment()) {
        sqlite3_open(path.toUtf8().constData(), &handle_);
        RegisterFunctions(handle_, environment_);
        Run("PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA cache_size = -24576; PRAGMA temp_store = "
            "MEMORY");
    }
    ~PlainFile() { sqlite3_close_v2(handle_); }
    PlainFile(const PlainFile &) = delete;
    PlainFile &operator=(const PlainFile &) = delete;

    void Run(const char *sql) {
        char *fault = nullptr;
        if (sqlite3_exec(handle_, sql, nullptr, nullptr, &fault) != SQLITE_OK) {
            std::fprintf(stderr, "%s: %s\n", sql, fault);
            std::exit(2);
        }
    }
    sqlite3_stmt *Prepare(const char *sql) {
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(handle_, sql, -1, &statement, nullptr) != SQLITE_OK) {
            std::fprintf(stderr, "%s: %s\n", sql, sqlite3_errmsg(handle_));
            std::exit(2);
        }
        return statement;
    }

private:
    sqlite3 *handle_ = nullptr;
    Environment environment_;
};

const char *const kProfileTable =
    "CREATE TABLE Profiles (ProfileID varchar NOT NULL UNIQUE PRIMARY KEY, Medium varchar, Title varchar NOT NULL, "
    "OriginalTitle varchar, SortTitle varchar, OriginalSortTitle varchar, CustomTitle varchar, CustomSortTitle "
    "varchar, "
    "Description varchar, ColNo varchar, ColType varchar, UPC varchar, ProfileTimestamp date, Rating varchar, "
    "RatingSystem varchar, RatingDetails varchar, ProdYear integer, Released date, Runtime integer, CaseType varchar, "
    "Overview memo, Notes memo, Eastereggs memo, LastEdited date, WishListPriority integer, DataSource varchar, "
    "Locality "
    "varchar, CountryOfOrigin varchar, CountAs integer, MD5 varchar)";
const char *const kCreditTable =
    "CREATE TABLE CastCrew (Name varchar NOT NULL, Role varchar, ProfileID varchar NOT NULL, Position integer NOT "
    "NULL, "
    "BirthYear integer, IsUncredited yesno, IsVoice yesno, IsCast yesno, IsCreditOnly yesno, PRIMARY KEY (ProfileID, "
    "Name, Position, IsCast))";

QString KeyOf(int profile) {
    return u"Key_%1.%2"_s.arg(4'000'000'000'000LL + profile * 7919LL).arg(profile % 20);
}

void FillProfiles(Database &database) {
    database.Execute(QString::fromLatin1(kProfileTable));
    const QString overview = u"A long winter, a quiet mill and two people who do not talk. "_s.repeated(12);
    for (int i = 0; i < kProfiles; ++i) {
        database.Execute(
            u"INSERT INTO Profiles (ProfileID, Medium, Title, SortTitle, Description, ColNo, ColType, UPC, "
            "ProfileTimestamp, Rating, ProdYear, Released, Runtime, CaseType, Overview, LastEdited, "
            "Locality, CountAs, MD5) VALUES ('%1', 'DVD', 'The Quiet Mill %2', 'Quiet Mill %2, The', "
            "'Special Edition', '%2', 'Owned', '0123456789012', '2009-11-23 20:15:00', 'PG', '1999', "
            "'2001-05-14', '101', 'Keep Case', '%3', '2009-11-23 20:15:00', 'Germany', '1', "
            "'0123456789abcdef0123456789abcdef')"_s.arg(KeyOf(i))
                .arg(i)
                .arg(overview));
    }
    database.Flush();
}

/// Reads every column as UTF-16 into a string of its own.
qsizetype ReadRows(sqlite3_stmt *statement) {
    qsizetype units = 0;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        QStringList row;
        row.reserve(columns);
        for (int i = 0; i < columns; ++i) {
            const void *text = sqlite3_column_text16(statement, i);
            row.append(QString(static_cast<const QChar *>(text), sqlite3_column_bytes16(statement, i) / 2));
            units += row.last().size();
        }
    }
    sqlite3_reset(statement);
    return units;
}

bool MeasureSelect(const char *name, Database &database, PlainFile &plain, const QString &columns) {
    QStringList texts;
    QStringList keys;
    for (int i = 0; i < kSelects; ++i) {
        keys.append(KeyOf(int(i * 7919LL % kProfiles)));
        texts.append(u"SELECT %1 FROM Profiles WHERE ProfileID = '%2'"_s.arg(columns, keys.last()));
    }
    qsizetype found = 0;
    const double ours = Quickest(kRounds, [&] {
        found = 0;
        for (const QString &text : texts) {
            found += database.OpenRecordset(text).RecordCount();
        }
    });
    Shape shape;
    qsizetype length = 0;
    const double scan = Quickest(kRounds, [&] {
        length = 0;
        for (const QString &text : texts) {
            ScanShape(text, shape);
            length += text.size();
        }
    });
    sqlite3_stmt *statement =
        plain.Prepare(u"SELECT %1 FROM Profiles WHERE ProfileID = ?"_s.arg(columns).toUtf8().constData());
    qsizetype units = 0;
    const double floor = Quickest(kRounds, [&] {
        for (const QString &key : keys) {
            sqlite3_bind_text16(statement, 1, key.utf16(), int(key.size()) * 2, SQLITE_STATIC);
            units += ReadRows(statement);
        }
    });
    sqlite3_finalize(statement);
    if (found != kSelects || units == 0) {
        std::fprintf(stderr, "a select found nothing\n");
        std::exit(2);
    }
    const bool good = Report(name, ours / kSelects, floor / kSelects, (ours - scan) / floor, 1.5, "us");
    std::printf("%-28s scan of the text %.3f us a statement, %.2f us a kilobyte\n", "", scan / kSelects,
                scan / (double(length) / 1024.0));
    return good;
}

struct Credit {
    QString name;
    QString role;
    QString profile;
    int position = 0;
    int birth_year = 0;
    bool cast = false;
};

Credit MakeCredit(int i) {
    const int in_profile = i % 60;
    return {u"Person %1 O'Name"_s.arg(i * 7919LL % 40'000),
            in_profile % 5 == 0 ? QString() : u"Role %1"_s.arg(i % 977),
            KeyOf(i / 60),
            in_profile + 1,
            in_profile % 7 == 0 ? 1970 : 0,
            in_profile < 40};
}

void MakeCreditTable(Database &database) {
    database.Execute(QString::fromLatin1(kCreditTable));
    database.Execute(u"CREATE INDEX idx_CastCrew_ProfileID ON CastCrew (ProfileID)");
    database.Execute(u"CREATE INDEX idx_CastCrew_Name ON CastCrew (Name)");
    database.Flush();
}

QString InsertText(const Credit &credit) {
    QString name = credit.name;
    return u"INSERT INTO CastCrew (Name, Role, ProfileID, Position, BirthYear, IsCast) VALUES ('%1', '%2', '%3', %4, "
           "'%5', %6)"_s.arg(name.replace(u'\'', u"''"_s), credit.role, credit.profile)
               .arg(credit.position)
               .arg(credit.birth_year)
               .arg(credit.cast ? u"true"_s : u"false"_s);
}

/// Microseconds for all rows; the texts and values are made outside of what is measured.
template <class Prepare, class Insert>
double InsertAll(int rows, Prepare prepare, Insert insert) {
    qint64 nanoseconds = 0;
    for (int first = 0; first < rows; first += kChunk) {
        std::vector<decltype(prepare(Credit()))> chunk;
        for (int i = first; i < std::min(rows, first + kChunk); ++i) {
            chunk.push_back(prepare(MakeCredit(i)));
        }
        QElapsedTimer clock;
        clock.start();
        for (const auto &item : chunk) {
            insert(item);
        }
        nanoseconds += clock.nsecsElapsed();
    }
    return double(nanoseconds) / 1000.0;
}

double InsertBound(PlainFile &plain, int rows) {
    sqlite3_stmt *statement =
        plain.Prepare("INSERT OR IGNORE INTO CastCrew (Name, Role, ProfileID, Position, BirthYear, "
                      "IsCast) VALUES (?, ?, ?, ?, ?, ?)");
    int in_batch = 0;
    const auto bind = [&](int place, const QString &text) {
        sqlite3_bind_text16(statement, place, text.utf16(), int(text.size()) * 2, SQLITE_STATIC);
    };
    plain.Run("BEGIN IMMEDIATE");
    const double time = InsertAll(
        rows, [](Credit credit) { return credit; },
        [&](const Credit &credit) {
            bind(1, credit.name);
            bind(2, credit.role);
            bind(3, credit.profile);
            sqlite3_bind_int(statement, 4, credit.position);
            sqlite3_bind_int(statement, 5, credit.birth_year);
            sqlite3_bind_int(statement, 6, credit.cast ? -1 : 0);
            sqlite3_step(statement);
            sqlite3_reset(statement);
            if (++in_batch == kBatch) {
                plain.Run("COMMIT; BEGIN IMMEDIATE");
                in_batch = 0;
            }
        });
    plain.Run("COMMIT");
    sqlite3_finalize(statement);
    return time;
}

bool MeasureInserts(const QTemporaryDir &folder, int rows) {
    double ours = 0;
    {
        const auto database = Database::Create(folder.filePath(u"texts.mdb"_s), MakeEnvironment());
        MakeCreditTable(*database);
        ours = InsertAll(rows, InsertText, [&](const QString &text) { database->Execute(text); });
        database->Flush();
        if (database->RecordCount(u"CastCrew") != rows) {
            std::fprintf(stderr, "rows are missing\n");
            std::exit(2);
        }
    }
    const QString path = folder.filePath(u"bound.mdb"_s);
    MakeCreditTable(*Database::Create(path, MakeEnvironment()));
    PlainFile plain(path);
    const double floor = InsertBound(plain, rows);
    return Report("insert texts", ours / rows, floor / rows, ours / floor, 2.0, "us");
}

/// Statements of one profile's import.
QStringList ImportOf(int profile) {
    const QString key = KeyOf(profile);
    QStringList statements{u"SELECT * FROM Profiles WHERE ProfileID = '%1'"_s.arg(key),
                           u"UPDATE Profiles SET MD5 = '%2' WHERE ProfileID = '%1'"_s.arg(key).arg(profile),
                           u"DELETE FROM CastCrew WHERE ProfileID = '%1' AND IsCast = true"_s.arg(key),
                           u"DELETE FROM CastCrew WHERE ProfileID = '%1' AND IsCast = false"_s.arg(key),
                           u"DELETE * FROM Genres WHERE ProfileID = '%1' AND Genre = 'x'"_s.arg(key),
                           u"DELETE FROM Genres WHERE ProfileID ='%1'"_s.arg(key),
                           u"SELECT Genre FROM Genres WHERE ProfileID = '%1' ORDER BY Genre"_s.arg(key)};
    for (int i = 0; i < 30; ++i) {
        statements.append(InsertText(MakeCredit(profile * 60 + i)));
        statements.append(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Genre %2')"_s.arg(key).arg(i % 4));
    }
    return statements;
}

bool MeasureHits(Database &database) {
    MakeCreditTable(database);
    database.Execute(
        u"CREATE TABLE Genres (ProfileID varchar NOT NULL, Genre varchar, PRIMARY KEY (ProfileID, Genre))");
    const Database::CacheCounts before = database.GetCacheCounts();
    for (int profile = 0; profile < 1000; ++profile) {
        for (const QString &statement : ImportOf(profile)) {
            database.OpenRecordset(statement);
        }
    }
    const Database::CacheCounts after = database.GetCacheCounts();
    const double lookups = double(after.lookups - before.lookups);
    const double rate = double(after.hits - before.hits) / lookups;
    std::printf("%-28s %.4f %% of %.0f look-ups  goal 99.9 %%%s\n", "cache hits", rate * 100, lookups,
                rate < 0.999 ? "  MISSED" : "");
    return rate >= 0.998;
}

int RowsOf(int count, char **arguments) {
    int rows = 100'000;
    for (int i = 1; i < count; ++i) {
        const QString argument = QString::fromLocal8Bit(arguments[i]);
        if (argument == u"--full") {
            rows = 800'000;
        } else if (argument == u"--rows" && i + 1 < count) {
            rows = QString::fromLocal8Bit(arguments[++i]).toInt();
        }
    }
    return rows;
}

} // namespace

int main(int count, char **arguments) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"profiles.mdb"_s);
    bool good = true;
    {
        const auto database = Database::Create(path, MakeEnvironment());
        FillProfiles(*database);
        PlainFile plain(path);
        good = MeasureSelect("cached select, 30 columns", *database, plain, u"*"_s) && good;
        good = MeasureSelect("cached select, 1 column", *database, plain, u"Title"_s) && good;
        good = MeasureHits(*database) && good;
    }
    good = MeasureInserts(folder, RowsOf(count, arguments)) && good;
    return good ? 0 : 1;
}
