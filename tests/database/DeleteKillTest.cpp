// The program dies at any instant of a delete.

#include "database/RecordOperations.h"

#include "CollectionFixture.h"
#include "sql/DatabaseFile.h"
#include "sql/Functions.h"
#include "support/DyingChild.h"

#include <QElapsedTimer>
#include <random>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using std::chrono::microseconds;

constexpr int kRows = 1500; // in each table that may hold many of one title
constexpr int kDeathsByClock = 12;
constexpr int kTriesByClock = 200;
constexpr microseconds kLong = std::chrono::minutes(1);

class DeleteKill : public CollectionTest {
protected:
    void SetUp() override {
        Create(u"Whole.mdb"_s);
        session.Database->Execute(u"INSERT INTO Users (UserID) VALUES ('Nora')");
        {
            const sql::Database::Bracket quick(*session.Database);
            for (const QString &id : {u"O1"_s, u"O2"_s}) {
                AddTitle(id);
            }
        }
        whole_ = RowsOf(u"O1"_s);
        ASSERT_EQ(whole_, RowsOf(u"O2"_s));
        ASSERT_GT(whole_.size(), 15);
        session.Database.reset();
    }
    void AddTitle(const QString &id) {
        const auto run = [&](const QString &statement) { ASSERT_EQ(Run(statement), 1) << qPrintable(statement); };
        run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('%1', 'Amber')"_s.arg(id));
        run(u"INSERT INTO VideoFormat (ProfileID, AspectRatio) VALUES ('%1', '1.85')"_s.arg(id));
        run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('%1', 'Nora')"_s.arg(id));
        run(u"INSERT INTO PurchaseInfo (ProfileID) VALUES ('%1')"_s.arg(id));
        run(u"INSERT INTO SRPInfo (ProfileID) VALUES ('%1')"_s.arg(id));
        run(u"INSERT INTO Reviews (ProfileID, Film) VALUES ('%1', 3)"_s.arg(id));
        for (int i = 0; i < kRows; ++i) {
            const auto add = [&](const QString &table, const QString &columns, const QString &values) {
                run(u"INSERT INTO %1 (ProfileID, %2) VALUES ('%3', %4)"_s.arg(
                    table, columns, id, QString(values).replace(u'#', QString::number(i))));
            };
            add(u"CastCrew"_s, u"Name, Role, Position, IsCast"_s, u"'Ada Moss', 'Keeper #', #, true"_s);
            if (i % 10 != 0) {
                continue;
            }
            add(u"Genres"_s, u"Genre"_s, u"'Drama #'"_s);
            add(u"AudioFormats"_s, u"OrderPos, Language"_s, u"#, 'Humming'"_s);
            add(u"Subtitles"_s, u"Subtitle"_s, u"'Signs #'"_s);
            add(u"Tags"_s, u"TagName"_s, u"'Blue #'"_s);
            add(u"AdditionalInfo"_s, u"InfoName"_s, u"'Info #'"_s);
            add(u"Locks"_s, u"LockName"_s, u"'Lock #'"_s);
            add(u"Features"_s, u"Feature"_s, u"'Digging #'"_s);
            add(u"Studios"_s, u"Studio, Type"_s, u"'Molehill #', ''"_s);
            add(u"Discs"_s, u"DiscNo"_s, u"#"_s);
            add(u"Regions"_s, u"Region"_s, u"#"_s);
            add(u"Profile2Episodes"_s, u"EpisodeID"_s, u"'E#'"_s);
            add(u"Events"_s, u"EventID, UserID"_s, QString::number(++events_) + u", 'Nora'"_s);
            run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('C%1%2', '%1')"_s.arg(id).arg(i));
        }
    }
    /// How many rows of a title each table has.
    QStringList RowsOf(const QString &id) {
        QStringList counts;
        for (const sql::TableInfo &table : session.Database->GetCatalogue().Tables()) {
            const QString column = table.FindColumn(u"ProfileID")  ? u"ProfileID"_s
                                   : table.FindColumn(u"BoxSetID") ? u"BoxSetID"_s
                                                                   : QString();
            const QString count =
                column.isEmpty()
                    ? u"0"_s
                    : Rows(u"SELECT COUNT(*) FROM "_s + table.name + u" WHERE "_s + column + u" = '"_s + id + u'\'')
                          .value(0);
            if (count != u"0") {
                counts += table.name + u": "_s + count;
            }
        }
        return counts;
    }
    QString IntegrityOf(const QString &path) const {
        const sql::Environment environment;
        sql::Connection connection =
            sql::OpenFile(path, [&](sqlite3 *handle) { sql::RegisterFunctions(handle, environment); });
        QString told = connection.Single(u"PRAGMA integrity_check").Text();
        sql::CloseFile(std::move(connection));
        return told;
    }
    /// Deletes a profile in a process that dies before a statement, counted from 1, or when the time is over.
    bool DeleteAndDie(int before_statement, microseconds time) {
        for (const char *end : {"", "-wal", "-shm"}) {
            QFile::remove(Path(u"a.mdb"_s + QString::fromLatin1(end)));
        }
        EXPECT_TRUE(QFile::copy(Path(u"Whole.mdb"_s), Path(u"a.mdb"_s)));
        return test::DiesWithin(time, [&] {
            session.Database = sql::Database::Open(Path(u"a.mdb"_s));
            int statement = 0;
            session.Database->SetObserver([&](QStringView) {
                if (++statement == before_statement) {
                    test::Die();
                }
            });
            DeleteProfile(session, u"O1"_s, CoverImages::Keep);
            session.Database.reset();
        });
    }
    enum class Left { Whole, Gone };
    /// What became of the profile.
    Left LookAt() {
        EXPECT_EQ(IntegrityOf(Path(u"a.mdb"_s)), u"ok"_s);
        session.Database = sql::Database::Open(Path(u"a.mdb"_s));
        const QStringList rows = RowsOf(u"O1"_s);
        EXPECT_EQ(RowsOf(u"O2"_s), whole_) << "the other one";
        session.Database.reset();
        EXPECT_TRUE(rows.isEmpty() || rows == whole_) << qPrintable(rows.join(u", "));
        return rows.isEmpty() ? Left::Gone : Left::Whole;
    }

    QStringList whole_;
    int events_ = 0;
};

TEST_F(DeleteKill, AProfileIsWholeUntilItsLastRowIsGone) {
    int statements = 0;
    while (DeleteAndDie(statements + 1, kLong)) {
        ++statements;
        EXPECT_EQ(LookAt(), Left::Whole) << "died before statement " << statements;
    }
    EXPECT_EQ(statements, 22);
    EXPECT_EQ(LookAt(), Left::Gone);
}

TEST_F(DeleteKill, AProfileIsWholeOrGoneWheneverTheProgramDies) {
    QElapsedTimer timer;
    timer.start();
    ASSERT_FALSE(DeleteAndDie(0, kLong));
    qint64 longest = timer.nsecsElapsed() / 1000;
    std::minstd_rand random(20240517);
    int deaths = 0;
    for (int i = 0; i < kTriesByClock && deaths < kDeathsByClock; ++i) {
        const qint64 instant = std::uniform_int_distribution<qint64>(1, longest)(random);
        SCOPED_TRACE("killed after " + std::to_string(instant) + " us");
        if (DeleteAndDie(0, microseconds(instant))) {
            ++deaths;
            LookAt();
        } else {
            EXPECT_EQ(LookAt(), Left::Gone);
            longest = instant;
        }
    }
    EXPECT_EQ(deaths, kDeathsByClock) << "the program was done before it was killed";
}

} // namespace
} // namespace ostrand
