// The program dies while many profiles are removed.

#include "browser/ProfileCommands.h"

#include "BrowserFixture.h"
#include "support/DyingChild.h"

#include <random>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProfiles = 40;
constexpr int kDeaths = 12;
constexpr int kStatementsEach = 22;

class RemoveKill : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        browser.hooks.selected_rows = [this] { return selected_; };
        {
            const sql::Database::Bracket quick(*session.Database);
            for (int i = 0; i < kProfiles; ++i) {
                AddTitle(Id(i));
                selected_ += i;
            }
        }
        whole_ = RowsOf(Id(0));
        ASSERT_EQ(whole_, (QStringList{u"40"_s, u"8"_s, u"1"_s}));
        path_ = session.Database->Path();
        session.Database.reset();
        ASSERT_TRUE(QFile::copy(path_, Path(u"whole.mdb"_s)));
    }
    static QString Id(int i) { return QString::number(1000 + i); }
    void AddTitle(const QString &id) {
        AddProfile(id);
        for (int i = 0; i < 40; ++i) {
            Run(u"INSERT INTO CastCrew (ProfileID, Name, Position, IsCast) VALUES ('%1', 'Ada Moss', %2, true)"_s
                    .arg(id)
                    .arg(i));
        }
        for (int i = 0; i < 8; ++i) {
            Run(u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('%1', 'Molehill %2', '')"_s.arg(id).arg(i));
        }
        Run(u"INSERT INTO Reviews (ProfileID, Film) VALUES ('%1', 3)"_s.arg(id));
    }
    /// The rows of a profile in its tables; nothing for a profile that is gone without rest.
    QStringList RowsOf(const QString &id) {
        QStringList counts;
        for (const QString &table : {u"CastCrew"_s, u"Studios"_s, u"Reviews"_s}) {
            counts += Rows(u"SELECT COUNT(*) FROM "_s + table + u" WHERE ProfileID = '"_s + id + u'\'');
        }
        const bool there = !Rows(u"SELECT Title FROM Profiles WHERE ProfileID = '"_s + id + u'\'').isEmpty();
        return there || counts != QStringList{u"0"_s, u"0"_s, u"0"_s} ? counts : QStringList();
    }
    /// Removes all in a process that dies before a DELETE, counted from 1.
    bool RemoveAndDie(int before_statement) {
        for (const char *end : {"", "-wal", "-shm"}) {
            QFile::remove(path_ + QString::fromLatin1(end));
        }
        EXPECT_TRUE(QFile::copy(Path(u"whole.mdb"_s), path_));
        return test::DiesWithin(std::chrono::minutes(1), [&] {
            session.Database = sql::Database::Open(path_);
            int statement = 0;
            session.Database->SetObserver([&](QStringView sql) {
                if (sql.startsWith(u"DELETE") && ++statement == before_statement) {
                    test::Die();
                }
            });
            Movies();
            services.dialogs.ExpectMessage(
                u"Remove all selected profiles and their data from the database?\n\nProfiles: %1"_s.arg(kProfiles),
                MessageAnswer::Yes);
            RemoveSelectedProfiles(browser);
            session.Database.reset();
        });
    }
    /// The number of profiles that are gone, which are the first ones.
    int Gone() {
        session.Database = sql::Database::Open(path_);
        int gone = 0;
        for (int i = 0; i < kProfiles; ++i) {
            const QStringList rows = RowsOf(Id(i));
            EXPECT_TRUE(rows.isEmpty() || rows == whole_) << i << qPrintable(rows.join(u", "));
            EXPECT_FALSE(rows.isEmpty() && gone < i) << i << " before one that is still there";
            gone += rows.isEmpty();
        }
        session.Database.reset();
        return gone;
    }

    QString path_;
    QStringList whole_;
    QList<int> selected_;
};

TEST_F(RemoveKill, EachProfileIsWholeOrGone) {
    EXPECT_FALSE(RemoveAndDie(0));
    EXPECT_EQ(Gone(), kProfiles);
    std::minstd_rand random(20240517);
    for (int i = 0; i < kDeaths; ++i) {
        const int instant = std::uniform_int_distribution<int>(1, kProfiles * kStatementsEach)(random);
        SCOPED_TRACE("killed before statement " + std::to_string(instant));
        ASSERT_TRUE(RemoveAndDie(instant));
        EXPECT_EQ(Gone(), (instant - 1) / kStatementsEach) << "those of before stay gone";
    }
}

} // namespace
} // namespace ostrand
