#include "database/RecordOperations.h"

#include "CollectionFixture.h"
#include "sql/SqlError.h"

#ifdef Q_OS_UNIX
#include "sql/ForkedChild.h"

#include <sys/resource.h>
#endif

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class RecordOperations : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.CoverPath = Path(u"covers/"_s);
        QDir().mkpath(session.CoverPath);
        Run(u"INSERT INTO Users (UserID) VALUES ('Nora')");
    }
    /// A title with a row in every table that holds rows of titles of its kind.
    void AddTitle(const QString &id, bool is_episode) {
        const QString key = EscapeSql(id);
        const auto run = [&](const QString &statement) {
            ASSERT_EQ(Run(statement.arg(key)), 1) << qPrintable(statement);
        };
        run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('%1', 'Drama')"_s);
        run(u"INSERT INTO VideoFormat (ProfileID, AspectRatio) VALUES ('%1', '1.85')"_s);
        run(u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language) VALUES ('%1', 1, 'Humming')"_s);
        run(u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('%1', 'Signs')"_s);
        run(u"INSERT INTO Tags (ProfileID, TagName) VALUES ('%1', 'Blue')"_s);
        run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName) VALUES ('%1', 'IMDb')"_s);
        run(u"INSERT INTO MetaInfo (ProfileID, InfoName) VALUES ('%1', 'RatingAge')"_s);
        run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('%1', 'Cast')"_s);
        run(u"INSERT INTO Features (ProfileID, Feature) VALUES ('%1', 'Digging')"_s);
        run(u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('%1', 'Molehill', '')"_s);
        run(u"INSERT INTO Events (EventID, ProfileID, UserID) VALUES ("_s + QString::number(++events_) +
            u", '%1', 'Nora')"_s);
        run(u"INSERT INTO Reviews (ProfileID, Film) VALUES ('%1', 3)"_s);
        if (is_episode) {
            run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle) VALUES ('%1', 'S1', 'Dust')"_s);
            run(u"INSERT INTO TVCastCrew (EpisodeID, Name, Position, IsCast) VALUES ('%1', 'Ada Moss', 1, true)"_s);
            run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('holder', '%1')"_s);
            return;
        }
        run(u"INSERT INTO Profiles (ProfileID, Title, ColType) VALUES ('%1', 'Amber', 'Owned')"_s);
        run(u"INSERT INTO CastCrew (ProfileID, Name, Position, IsCast) VALUES ('%1', 'Ada Moss', 1, true)"_s);
        run(u"INSERT INTO Discs (ProfileID, DiscNo) VALUES ('%1', 1)"_s);
        run(u"INSERT INTO Regions (ProfileID, Region) VALUES ('%1', 2)"_s);
        run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('%1', 'Nora')"_s);
        run(u"INSERT INTO PurchaseInfo (ProfileID) VALUES ('%1')"_s);
        run(u"INSERT INTO SRPInfo (ProfileID) VALUES ('%1')"_s);
        run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('%1', 'E')"_s);
    }
    /// How many rows of a title there are, table by table.
    QStringList RowsOf(const QString &id, const QString &column = u"ProfileID"_s) {
        QStringList found;
        for (const QString &table : {u"Genres"_s,         u"CastCrew"_s,         u"VideoFormat"_s,
                                     u"AudioFormats"_s,   u"Subtitles"_s,        u"Tags"_s,
                                     u"AdditionalInfo"_s, u"MetaInfo"_s,         u"Locks"_s,
                                     u"Features"_s,       u"Studios"_s,          u"Discs"_s,
                                     u"Regions"_s,        u"Profiles"_s,         u"Events"_s,
                                     u"LoanInfo"_s,       u"Profile2Episodes"_s, u"PurchaseInfo"_s,
                                     u"SRPInfo"_s,        u"Reviews"_s}) {
            if (!Rows(u"SELECT "_s + column + u" FROM "_s + table + u" WHERE "_s + column + u" = '"_s + EscapeSql(id) +
                      u'\'')
                     .isEmpty()) {
                found += table;
            }
        }
        return found;
    }
    /// The statements that a job sends, with the id cut to "?".
    QStringList Sent(const std::function<void()> &job) {
        QStringList sent;
        session.Database->SetObserver([&](QStringView sql) { sent += sql.toString().replace(u"'O''1'"_s, u"?"_s); });
        job();
        session.Database->SetObserver({});
        return sent;
    }
    void PutFile(const QString &name) {
        QFile file(session.CoverPath + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QStringList Files() const { return QDir(session.CoverPath).entryList(QDir::Files, QDir::Name); }
    void ExpectQuestion(MessageAnswer answer) {
        Expect(u"Delete images from cover path?"_s, u"Delete images?"_s, MessageIcon::Question, answer);
    }

    int events_ = 0;
};

TEST_F(RecordOperations, AProfileGoesWithItsRowsInTheirOrder) {
    AddTitle(u"O'1"_s, false);
    AddTitle(u"O2"_s, false);
    const QStringList sent = Sent([&] { DeleteProfile(session, u"O'1"_s, true); });
    QStringList expected;
    for (const char16_t *table :
         {u"Genres", u"CastCrew", u"VideoFormat", u"AudioFormats", u"Subtitles", u"Tags", u"AdditionalInfo",
          u"MetaInfo", u"Locks", u"Features", u"Studios", u"Discs", u"Regions", u"Profiles", u"Events", u"LoanInfo"}) {
        expected += u"DELETE FROM %1 WHERE ProfileID = ?"_s.arg(QString::fromUtf16(table));
    }
    expected += {u"DELETE FROM BoxSet WHERE BoxSetID = ?"_s,
                 u"DELETE FROM BoxSet WHERE ChildID = ?"_s,
                 u"DELETE FROM Profile2Episodes WHERE ProfileID = ?"_s,
                 u"DELETE FROM PurchaseInfo WHERE ProfileID = ?"_s,
                 u"DELETE FROM SRPInfo WHERE ProfileID = ?"_s,
                 u"DELETE FROM Reviews WHERE ProfileID = ?"_s};
    EXPECT_EQ(sent, expected);
    EXPECT_EQ(RowsOf(u"O'1"_s), QStringList());
    EXPECT_EQ(RowsOf(u"O2"_s).size(), 20);
}

TEST_F(RecordOperations, ChildrenOfADeletedBoxsetStandAlone) {
    for (const QString &id : {u"Box"_s, u"A"_s, u"B"_s}) {
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('%1', '%1')"_s.arg(id));
    }
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('A', 'Box')");
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('B', 'Box')");
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Box', 'Shelf')");
    DeleteProfile(session, u"B"_s, true);
    EXPECT_EQ(Rows(u"SELECT ChildID FROM BoxSet ORDER BY ChildID"), (QStringList{u"A"_s, u"Box"_s}));
    DeleteProfile(session, u"Box"_s, true);
    EXPECT_EQ(Rows(u"SELECT ChildID FROM BoxSet"), QStringList()) << "neither as a parent nor as a child";
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles"), QStringList{u"A"_s});
}

TEST_F(RecordOperations, TheUserDecidesOnTheImages) {
    const struct {
        const char *name;
        QString id;
        QStringList files;
        std::optional<MessageAnswer> answer; ///< of the question, where there is one
        bool ask;
        QStringList left;
    } cases[] = {
        {"none", u"O1"_s, {u"O11f.jpg"_s}, {}, true, {u"O11f.jpg"_s}},
        {"both, yes", u"O1"_s, {u"O1b.jpg"_s, u"O1f.jpg"_s, u"O1s.jpg"_s}, MessageAnswer::Yes, true, {u"O1s.jpg"_s}},
        {"one, yes", u"O1"_s, {u"O1b.jpg"_s}, MessageAnswer::Yes, true, {}},
        {"no", u"O1"_s, {u"O1b.jpg"_s, u"O1f.jpg"_s}, MessageAnswer::No, true, {u"O1b.jpg"_s, u"O1f.jpg"_s}},
        {"without a question", u"O1"_s, {u"O1b.jpg"_s, u"O1f.jpg"_s}, {}, false, {}},
        {"under the key as it is passed", u"Key_1"_s, {u"1f.jpg"_s}, {}, true, {u"1f.jpg"_s}},
        {"a key that leads elsewhere", u"x/../O1"_s, {u"O1f.jpg"_s}, {}, false, {u"O1f.jpg"_s}},
        {"no key", QString(), {u"f.jpg"_s}, {}, false, {u"f.jpg"_s}},
    };
    for (const auto &c : cases) {
        for (const QString &file : Files()) {
            QFile::remove(session.CoverPath + file);
        }
        for (const QString &file : c.files) {
            PutFile(file);
        }
        if (c.answer) {
            ExpectQuestion(*c.answer);
        }
        DeleteProfile(session, c.id, c.ask);
        EXPECT_EQ(services.dialogs.Pending(), 0u) << c.name;
        EXPECT_EQ(Files(), c.left) << c.name;
    }
}

TEST_F(RecordOperations, TheQuestionComesWhenTheRowsAreGone) {
    AddTitle(u"O1"_s, false);
    PutFile(u"O1f.jpg"_s);
    ExpectQuestion(MessageAnswer::No);
    EXPECT_TRUE(HasCoverImages(session, u"O1"_s));
    DeleteProfile(session, u"O1"_s, CoverImages::Ask);
    EXPECT_EQ(services.dialogs.messages.front().buttons, MessageButtons::YesNo);
    EXPECT_EQ(services.dialogs.messages.front().neutral, MessageAnswer::No);
    EXPECT_EQ(RowsOf(u"O1"_s), QStringList());
    DeleteProfile(session, u"O1"_s, CoverImages::Keep);
    EXPECT_EQ(Files(), QStringList{u"O1f.jpg"_s});
}

TEST_F(RecordOperations, AFaultLeavesTheProfileWhole) {
    AddTitle(u"O1"_s, false);
    Run(u"DROP TABLE Reviews");
    EXPECT_THROW(DeleteProfile(session, u"O1"_s, true), sql::SqlError);
    Run(u"CREATE TABLE Reviews (ProfileID varchar PRIMARY KEY)");
    EXPECT_EQ(RowsOf(u"O1"_s).size(), 19) << "all but the lost table";
}

TEST_F(RecordOperations, AnEpisodeGoesWithItsRowsInTheirOrder) {
    AddTitle(u"O'1"_s, true);
    AddTitle(u"O2"_s, true);
    const QStringList sent = Sent([&] { DeleteEpisode(session, u"O'1"_s); });
    EXPECT_EQ(sent,
              (QStringList{
                  u"DELETE FROM Genres WHERE ProfileID = ?"_s, u"DELETE FROM TVCastCrew WHERE EpisodeID = ?"_s,
                  u"DELETE FROM VideoFormat WHERE ProfileID = ?"_s, u"DELETE FROM AudioFormats WHERE ProfileID = ?"_s,
                  u"DELETE FROM Subtitles WHERE ProfileID = ?"_s, u"DELETE FROM Tags WHERE ProfileID = ?"_s,
                  u"DELETE FROM AdditionalInfo WHERE ProfileID = ?"_s, u"DELETE FROM MetaInfo WHERE ProfileID = ?"_s,
                  u"DELETE FROM Locks WHERE ProfileID = ?"_s, u"DELETE FROM Features WHERE ProfileID = ?"_s,
                  u"DELETE FROM Studios WHERE ProfileID = ?"_s, u"DELETE FROM Episodes WHERE EpisodeID = ?"_s,
                  u"DELETE FROM Events WHERE ProfileID = ?"_s, u"DELETE FROM Profile2Episodes WHERE EpisodeID = ?"_s,
                  u"DELETE FROM Reviews WHERE ProfileID = ?"_s}));
    EXPECT_EQ(RowsOf(u"O'1"_s), QStringList());
    EXPECT_EQ(Rows(u"SELECT EpisodeID FROM Episodes"), QStringList{u"O2"_s});
    EXPECT_EQ(Rows(u"SELECT EpisodeID FROM TVCastCrew"), QStringList{u"O2"_s});
    EXPECT_EQ(Rows(u"SELECT ProfileID, EpisodeID FROM Profile2Episodes"), QStringList{u"holder|O2"_s});
}

TEST_F(RecordOperations, AFaultLeavesTheEpisodeWhole) {
    AddTitle(u"O1"_s, true);
    Run(u"DROP TABLE Reviews");
    EXPECT_THROW(DeleteEpisode(session, u"O1"_s), sql::SqlError);
    EXPECT_EQ(Rows(u"SELECT EpisodeID FROM Episodes"), QStringList{u"O1"_s});
    EXPECT_EQ(Rows(u"SELECT EpisodeID FROM TVCastCrew"), QStringList{u"O1"_s});
    EXPECT_EQ(Rows(u"SELECT EpisodeID FROM Profile2Episodes"), QStringList{u"O1"_s});
}

TEST_F(RecordOperations, AnyFaultTakesBackWhatBelongsTogether) {
    AddTitle(u"O1"_s, false);
    const auto fail = [&] {
        Run(u"DELETE FROM Genres WHERE ProfileID = 'O1'");
        throw std::runtime_error("out of order");
    };
    EXPECT_THROW(WriteTogether(session, fail), std::runtime_error);
    EXPECT_EQ(RowsOf(u"O1"_s).size(), 20);
    WriteTogether(session, [&] { Run(u"DELETE FROM Genres WHERE ProfileID = 'O1'"); });
    EXPECT_EQ(RowsOf(u"O1"_s).size(), 19);
}

TEST_F(RecordOperations, AnEditShowsInTheProfile) {
    Run(u"INSERT INTO Profiles (ProfileID, Title, MD5) VALUES ('O''1', 'Amber', 'abc')");
    Run(u"INSERT INTO Profiles (ProfileID, Title, MD5) VALUES ('O2', 'Birch', 'def')");
    MarkEdited(session, u"O'1"_s);
    EXPECT_EQ(Rows(u"SELECT MD5, LastEdited FROM Profiles ORDER BY Title"),
              (QStringList{u"|2024-05-17 10:20:30"_s, u"def|"_s}));
}

#ifdef Q_OS_UNIX
TEST_F(RecordOperations, AFullDiskIsToldBeforeChangesCountAsDone) {
    AddTitle(u"Key_1"_s, false);
    session.Database->Flush();
    EXPECT_EQ(sql::testing::InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit = {1'000, RLIM_INFINITY}; // no file takes a byte beyond it
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  try {
                      WriteTogether(session, [&] { Run(u"UPDATE Profiles SET Title = 'Beryl'"); });
                      return 1;
                  } catch (const sql::SqlError &) {
                      const QString title = session.Database->OpenRecordset(u"SELECT Title FROM Profiles").Text(0);
                      return title == u"Amber" ? 0 : 2;
                  }
              }),
              0);
}
#endif

} // namespace
} // namespace ostrand
