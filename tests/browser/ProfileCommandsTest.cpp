#include "browser/ProfileCommands.h"

#include "BrowserFixture.h"
#include "browser/Navigation.h"
#include "browser/ProfileInfos.h"
#include "browser/TagFilter.h"
#include "browser/Views.h"
#include "support/FailingStatements.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileCommands : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        browser.hooks.selected_rows = [this] { return selected; };
        session.CoverPath = Path(u"covers/"_s);
        QDir().mkpath(session.CoverPath);
    }
    void AddProfiles(const QStringList &ids) {
        for (const QString &id : ids) {
            AddProfile(id);
        }
    }
    void ExpectRemoval(const QString &title, MessageAnswer answer = MessageAnswer::Yes) {
        Expect(u"Remove this profile and all its data from the database?\n\n"_s + title, u"Remove Profile?"_s,
               MessageIcon::Question, answer);
    }
    void ExpectRemovals(int count, MessageAnswer answer = MessageAnswer::Yes) {
        Expect(u"Remove all selected profiles and their data from the database?\n\nProfiles: %1"_s.arg(count),
               u"Remove Profiles?"_s, MessageIcon::Question, answer);
    }
    void PutCover(const QString &id) {
        QFile file(session.CoverPath + id + u"f.jpg"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QStringList Covers() const { return QDir(session.CoverPath).entryList(QDir::Files, QDir::Name); }
    QStringList Ids() { return Rows(u"SELECT ProfileID FROM Profiles ORDER BY ProfileID"); }
    QStringList Locks() { return Rows(u"SELECT ProfileID, LockName FROM Locks ORDER BY ProfileID"); }

    QList<int> selected;
};

TEST_F(ProfileCommands, TheNextTitleBecomesCurrent) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s});
    Movies();
    UpdateSeriesList(browser, 1);
    ExpectRemoval(u"B"_s, MessageAnswer::No);
    RemoveCurrentProfile(browser);
    EXPECT_EQ(Ids(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    ExpectRemoval(u"B"_s);
    RemoveCurrentProfile(browser);
    EXPECT_EQ(Column(), (QStringList{u"A"_s, u"C"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"C"_s);
    EXPECT_EQ(browser.filter_count, 2);
    ExpectRemoval(u"C"_s);
    RemoveCurrentProfile(browser);
    EXPECT_EQ(session.CurrentProfileID, u"A"_s) << "the last one has none behind it";
    ExpectRemoval(u"A"_s);
    RemoveCurrentProfile(browser);
    EXPECT_EQ(Ids(), QStringList());
    EXPECT_EQ(session.CurrentProfileID, QString());
    EXPECT_EQ(browser.current_row, -1);
    RemoveCurrentProfile(browser); // asks nothing
}

TEST_F(ProfileCommands, ChildrenOfARemovedBoxsetStandAlone) {
    AddProfiles({u"Box"_s, u"Child"_s, u"Dune"_s});
    AddChild(u"Child"_s, u"Box"_s);
    ASSERT_EQ(Movies().size(), 3);
    ExpectRemoval(u"Box"_s);
    RemoveCurrentProfile(browser);
    EXPECT_EQ(Column(), (QStringList{u"Child"_s, u"Dune"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"Child"_s);
}

TEST_F(ProfileCommands, AProfileLeavesAllItsGroups) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s});
    for (const char16_t *genre : {u"('A', 'Drama')", u"('A', 'War')", u"('B', 'War')"}) {
        Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES "_s + QString::fromUtf16(genre));
    }
    ASSERT_EQ(Groups(u"Genre"_s).size(), 5);
    UpdateSeriesList(browser, browser.listSeries.RowOfTitle(u"A"_s));
    ExpectRemoval(u"A"_s);
    RemoveCurrentProfile(browser);
    QStringList titles = Column();
    for (QString &title : titles) {
        title = title.trimmed();
    }
    EXPECT_FALSE(titles.contains(u"Drama"_s)) << "a header of nothing";
    EXPECT_TRUE(titles.contains(u"War"_s));
    EXPECT_FALSE(titles.contains(u"A"_s));
    EXPECT_EQ(browser.filter_count, 1);
    EXPECT_TRUE(browser.SpecialOrder);
    EXPECT_FALSE(browser.listSeries.At(browser.current_row).header);
}

TEST_F(ProfileCommands, AListByTagsStaysSo) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    for (const char16_t *id : {u"A", u"B", u"C"}) {
        Run(u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('"_s + QString::fromUtf16(id) +
            u"', 'Dark', 'Dark')"_s);
    }
    QList<bool> told;
    QObject::connect(&browser, &Browser::TagsChanged, [&](bool other_collection) { told << other_collection; });
    UpdateCollectionList(browser, {.tags = {u"Dark"_s}});
    ASSERT_EQ(Column(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    ExpectRemoval(u"A"_s);
    RemoveCurrentProfile(browser);
    EXPECT_EQ(Column(), (QStringList{u"B"_s, u"C"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"B"_s);
    EXPECT_EQ(browser.filter_count, 2);
    EXPECT_EQ(told, QList<bool>{false}) << "its tags went with it";
    selected = {0, 1};
    ExpectRemovals(2);
    RemoveSelectedProfiles(browser);
    EXPECT_EQ(Column(), QStringList());
    EXPECT_EQ(Ids(), QStringList{u"D"_s});
    EXPECT_EQ(told, (QList<bool>{false, false}));
}

TEST_F(ProfileCommands, HeadersAndSeriesAreNoProfiles) {
    AddProfile(u"1"_s, u"Rating = 'PG'"_s);
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S1', 'Attic', '')");
    Groups(u"Rating"_s);
    ASSERT_TRUE(browser.listSeries.At(0).header);
    UpdateSeriesList(browser, 0);
    RemoveCurrentProfile(browser);
    ToggleProfileLock(browser);
    selected = {0};
    LockSelectedProfiles(browser);
    RemoveSelectedProfiles(browser);
    ChangeMode(browser, false);
    RemoveCurrentProfile(browser);
    ToggleProfileLock(browser);
    LockSelectedProfiles(browser);
    MoveSelectedProfiles(browser);
    EXPECT_EQ(Ids(), QStringList{u"1"_s});
    EXPECT_EQ(Locks(), QStringList());
}

TEST_F(ProfileCommands, HistoryLeadsToTheEmptyViewOfATitleThatIsGone) {
    AddProfiles({u"A"_s, u"B"_s});
    Movies();
    MoveToRow(browser, 1);
    MoveToRow(browser, 0);
    ExpectRemoval(u"A"_s);
    RemoveCurrentProfile(browser);
    MoveBack(browser, 1); // A, which B was reached from
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(browser.caption, browser.base_caption);
}

TEST_F(ProfileCommands, LocksAProfileAndAnEpisode) {
    AddProfile(u"A"_s);
    Movies();
    EXPECT_FALSE(IsProfileLocked(browser));
    ToggleProfileLock(browser);
    EXPECT_TRUE(IsProfileLocked(browser));
    EXPECT_EQ(Locks(), QStringList{u"A|Entire"_s});
    ToggleProfileLock(browser);
    EXPECT_FALSE(IsProfileLocked(browser));
    ToggleEpisodeLock(browser);
    EXPECT_EQ(Locks(), QStringList()) << "no episode is selected";
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S1', 'Attic', '')");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo) VALUES ('E''1', 'S1', '1', '1')");
    ChangeMode(browser, false);
    ToggleEpisodeLock(browser);
    EXPECT_EQ(Locks(), QStringList{u"E'1|Entire"_s});
    EXPECT_TRUE(IsEpisodeLocked(browser));
    ToggleEpisodeLock(browser);
    EXPECT_FALSE(IsEpisodeLocked(browser));
}

TEST_F(ProfileCommands, LocksAllSelectedProfiles) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s});
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('A', 'Entire')");
    Movies();
    selected = {0, 2};
    LockSelectedProfiles(browser);
    EXPECT_EQ(Locks(), (QStringList{u"A|Entire"_s, u"C|Entire"_s}));
    selected = {0, 1};
    UnlockSelectedProfiles(browser);
    EXPECT_EQ(Locks(), QStringList{u"C|Entire"_s});
    EXPECT_TRUE(services.progress.calls.isEmpty()) << "too few for a window";
}

TEST_F(ProfileCommands, RemovesAllSelectedProfiles) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s});
    PutCover(u"A"_s);
    PutCover(u"C"_s);
    PutCover(u"D"_s);
    Movies();
    selected = {0, 2, 4};
    UpdateSeriesList(browser, 2);
    ExpectRemovals(3, MessageAnswer::No);
    RemoveSelectedProfiles(browser);
    EXPECT_EQ(Ids().size(), 5);
    ExpectRemovals(3);
    Expect(u"Delete images from cover path?"_s, u"Delete images?"_s, MessageIcon::Question, MessageAnswer::Yes);
    RemoveSelectedProfiles(browser);
    EXPECT_EQ(Ids(), (QStringList{u"B"_s, u"D"_s}));
    EXPECT_EQ(Covers(), QStringList{u"Df.jpg"_s});
    EXPECT_EQ(session.CurrentProfileID, u"D"_s);
    selected = {0, 1};
    ExpectRemovals(2);
    Expect(u"Delete images from cover path?"_s, u"Delete images?"_s, MessageIcon::Question, MessageAnswer::No);
    RemoveSelectedProfiles(browser);
    EXPECT_EQ(Covers(), QStringList{u"Df.jpg"_s});
    selected = {};
    RemoveSelectedProfiles(browser); // asks nothing
}

TEST_F(ProfileCommands, ManyShowTheirProgressAndCanBeStopped) {
    for (int i = 10; i < 35; ++i) {
        AddProfile(QString::number(i));
        selected += i - 10;
    }
    Movies();
    const int before = services.pump.Turns();
    services.pump.At(before + 3, [this] { session.progress.Close(); });
    ExpectRemovals(25);
    RemoveSelectedProfiles(browser);
    EXPECT_EQ(Ids().size(), 22);
    EXPECT_EQ(Column().size(), 22);
    EXPECT_TRUE(services.progress.Has(u"opened Removing profiles"_s));
    EXPECT_TRUE(services.progress.Has(u"counter 3/25"_s));
    EXPECT_FALSE(session.progress.IsLoaded());
}

TEST_F(ProfileCommands, AFaultLeavesTheListWithWhatIsStillThere) {
    AddProfiles({u"A"_s, u"B"_s});
    Movies();
    Run(u"DROP TABLE Reviews");
    selected = {0, 1};
    ExpectRemovals(2);
    EXPECT_THROW(RemoveSelectedProfiles(browser), sql::SqlError);
    EXPECT_EQ(Column(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(Ids(), (QStringList{u"A"_s, u"B"_s}));
}

TEST_F(ProfileCommands, AFaultOfMovingShowsWhatWasMoved) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s});
    SelectTab(u"Owned"_s);
    Movies();
    selected = {0, 1};
    services.dialogs.ExpectInput(u"Move the selected profiles to:"_s, u"Attic"_s, u"Collection Type"_s);
    test::FailFrom(*session.Database, u"UPDATE Profiles SET ColType"_s, 2);
    EXPECT_THROW(MoveSelectedProfiles(browser), sql::SqlError);
    session.Database->SetObserver({});
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles WHERE ColType = 'Owned' ORDER BY ProfileID"),
              (QStringList{u"B"_s, u"C"_s}));
    EXPECT_EQ(Column(), (QStringList{u"B"_s, u"C"_s}));
}

TEST_F(ProfileCommands, MovesAllSelectedProfiles) {
    AddProfiles({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    Run(u"UPDATE Profiles SET MD5 = 'abc'");
    SelectTab(u"Owned"_s);
    Movies();
    selected = {0, 2};
    const auto answer = [&](const std::optional<QString> &type) {
        services.dialogs.ExpectInput(u"Move the selected profiles to:"_s, type, u"Collection Type"_s);
        MoveSelectedProfiles(browser);
    };
    for (const std::optional<QString> &type :
         {std::optional<QString>(), std::optional(QString()), std::optional(u" all"_s)}) {
        answer(type);
        EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles WHERE ColType = 'Owned'").size(), 4);
    }
    EXPECT_EQ(services.dialogs.last_values, browser.tabColList.mid(1));
    answer(u"Attic"_s);
    EXPECT_EQ(Rows(u"SELECT ProfileID, ColType, MD5, LastEdited FROM Profiles ORDER BY ProfileID"),
              (QStringList{u"A|Attic||2024-05-17 10:20:30"_s, u"B|Owned|abc|"_s, u"C|Attic||2024-05-17 10:20:30"_s,
                           u"D|Owned|abc|"_s}));
    EXPECT_EQ(Column(), (QStringList{u"B"_s, u"D"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"B"_s);
    EXPECT_TRUE(browser.tabColList.contains(u"Attic"_s));
    EXPECT_EQ(Locks(), QStringList());
    session.view.AutoLock = true;
    selected = {1};
    answer(u"Ordered"_s);
    EXPECT_EQ(Locks(), QStringList{u"D|CollectionType"_s});
}

} // namespace
} // namespace ostrand
