// Which title the profile window shows, and what it reads of it.
#include "SheetFixture.h"

#include "browser/Views.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileSheetTest : public SheetTest {
protected:
    void SetUp() override {
        SheetTest::SetUp();
        Run(u"UPDATE Profiles SET Overview = 'All of it', Notes = 'Mine', EasterEggs = 'Press left', ProdYear = 1999, "
            u"Medium = 'DVD' WHERE ProfileID = 'A1'");
        Run(u"UPDATE Episodes SET Overview = 'A storm', Notes = 'Wet', AirDate = '2001-02-03' WHERE EpisodeID = "
            u"'H110'");
    }
};

TEST_F(ProfileSheetTest, TheTabsInTheirOrder) {
    QStringList captions;
    for (int tab = 1; tab <= kSheetTabs; ++tab) {
        captions += SheetTabCaption(SheetTab(tab));
    }
    EXPECT_EQ(captions, (QStringList{u"Main"_s, u"Overview"_s, u"Notes"_s, u"Easter Eggs"_s, u"Events/Review"_s,
                                     u"Additional Infos"_s, u"Skins"_s}));
}

TEST_F(ProfileSheetTest, AProfileIsShown) {
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(sheet.Title(), (SheetTitle{u"A1"_s, false}));
    EXPECT_EQ(sheet.Caption(), u"Profile Information: Amber (1999) - DVD"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::Overview), u"All of it"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::Notes), u"Mine"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::EasterEggs), u"Press left"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::Main), QString());
    sheet.GetProfileInfo(u"Key_D1"_s);
    EXPECT_EQ(sheet.Caption(), u"Profile Information: Dune's End"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::Overview), QString()) << "null is the empty text";
}

TEST_F(ProfileSheetTest, AnEpisodeIsShown) {
    ProfileSheet sheet(session);
    sheet.GetEpisodeInfo(u"H110"_s);
    EXPECT_EQ(sheet.Title(), (SheetTitle{u"H110"_s, true}));
    EXPECT_EQ(sheet.Caption(), u"Profile Information: Storm/Sturm (2001)"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::Overview), u"A storm"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::Notes), u"Wet"_s);
    EXPECT_EQ(sheet.TextOf(SheetTab::EasterEggs), QString());
}

TEST_F(ProfileSheetTest, ATitleThatIsNowhereGivesTheEmptyView) {
    for (const SheetTitle &title : {SheetTitle{}, SheetTitle{u"gone"_s, false}, SheetTitle{u"A1"_s, true},
                                    SheetTitle{u"H110"_s, false}, SheetTitle{u"it's"_s, false}}) {
        ProfileSheet sheet(session);
        sheet.GetProfileInfo(u"A1"_s);
        sheet.Show(title);
        EXPECT_EQ(sheet.Title(), SheetTitle()) << qPrintable(title.id);
        EXPECT_EQ(sheet.Caption(), u"Profile Information"_s);
        EXPECT_EQ(sheet.TextOf(SheetTab::Overview), QString());
    }
}

TEST_F(ProfileSheetTest, ClearProfileInfosEmptiesEveryTab) {
    AddTag(u"A1"_s, u"Shelf/Top"_s);
    Run(u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('A1', 1, 'Feature')");
    Run(u"INSERT INTO Events (EventID, ProfileID, UserID, EventType) VALUES (1, 'A1', 'Ada Quill', 'Watched')");
    Run(u"INSERT INTO Reviews (ProfileID, Film) VALUES ('A1', 5)");
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('A1', 'Link', 'x')");
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('A1', 'Title')");
    Run(u"INSERT INTO SRPInfo (ProfileID, SRPValue) VALUES ('A1', 5)");
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    for (const SheetTab tab : {SheetTab::Events, SheetTab::AdditionalInfos, SheetTab::Main}) {
        sheet.EnableTab(tab);
    }
    EXPECT_EQ(sheet.tags.Checked().size(), 1);
    EXPECT_EQ(sheet.listDiscs.rowCount(), 1);
    EXPECT_EQ(sheet.events.listEvents.rowCount(), 1);
    EXPECT_EQ(sheet.review.Film, 5);
    EXPECT_EQ(sheet.listInfos.rowCount(), 1);
    EXPECT_EQ(sheet.listLocks.Checked(), QStringList{u"Title"_s});
    EXPECT_EQ(sheet.prices[0].value, u"5"_s);
    sheet.ClearProfileInfos();
    for (const SheetTab tab : {SheetTab::Events, SheetTab::AdditionalInfos, SheetTab::Main}) {
        sheet.EnableTab(tab);
    }
    EXPECT_EQ(sheet.tags.Checked(), QStringList());
    EXPECT_EQ(sheet.listDiscs.rowCount(), 0);
    EXPECT_EQ(sheet.events.listEvents.rowCount(), 0);
    EXPECT_EQ(sheet.review, Review());
    EXPECT_EQ(sheet.listInfos.rowCount(), 0);
    EXPECT_EQ(sheet.listLocks.Checked(), QStringList());
    EXPECT_EQ(sheet.prices[0].value, QString());
}

TEST_F(ProfileSheetTest, OnlyTheTabThatIsShownIsRead) {
    ProfileSheet sheet(session);
    sheet.EnableTab(SheetTab::Overview);
    QStringList tables;
    session.Database->SetObserver(
        [&](QStringView statement) { tables += statement.toString().section(u"FROM "_s, 1).section(u' ', 0, 0); });
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(tables, QStringList{u"Profiles"_s});
    tables.clear();
    sheet.EnableTab(SheetTab::Events);
    EXPECT_EQ(tables, (QStringList{u"Events"_s, u"Reviews"_s}));
    tables.clear();
    sheet.EnableTab(SheetTab::Overview);
    sheet.EnableTab(SheetTab::Events);
    EXPECT_EQ(tables, QStringList()) << "it was read for this title";
    sheet.GetProfileInfo(u"B1"_s);
    EXPECT_EQ(tables, (QStringList{u"Profiles"_s, u"Events"_s, u"Reviews"_s}));
    tables.clear();
    sheet.EnableTab(SheetTab::Main);
    EXPECT_EQ(tables, (QStringList{u"Locks"_s, u"SRPInfo"_s, u"PurchaseInfo"_s, u"Discs"_s, u"Tags"_s}));
    session.Database->SetObserver({});
}

TEST_F(ProfileSheetTest, TheTabThatIsChosenIsRemembered) {
    ProfileSheet sheet(session);
    sheet.EnableTab(SheetTab::Events);
    EXPECT_EQ(ReadDbInfo(session, u"ProfileInfoLastTab"_s, u"1"_s), u"1"_s);
    sheet.SelectTab(SheetTab::Skins);
    EXPECT_EQ(ReadDbInfo(session, u"ProfileInfoLastTab"_s, u"1"_s), u"7"_s);
    EXPECT_EQ(session.view.ProfileInfoLastTab, 7);
    session.DatabaseTooNew = true;
    sheet.SelectTab(SheetTab::Main);
    sheet.events.TickUser(u"Ada Quill"_s, true);
    EXPECT_EQ(ReadDbInfo(session, u"ProfileInfoLastTab"_s, u"1"_s), u"7"_s) << "of a newer program's database";
    EXPECT_EQ(ReadDbInfo(session, u"SelectedUsers"_s, u"-"_s), u"-"_s);
}

TEST_F(ProfileSheetTest, NoStatementOfATitleScansATable) {
    ProfileSheet sheet(session);
    QStringList statements;
    session.Database->SetObserver([&](QStringView statement) { statements += statement.toString(); });
    for (int tab = 1; tab <= kSheetTabs; ++tab) {
        sheet.EnableTab(SheetTab(tab));
        sheet.GetProfileInfo(u"A1"_s);
    }
    session.Database->SetObserver({});
    EXPECT_GT(statements.size(), 10);
    for (const QString &statement : std::as_const(statements)) {
        for (const QString &step : session.Database->QueryPlan(statement)) {
            EXPECT_FALSE(step.startsWith(u"SCAN"_s)) << qPrintable(statement) << ": " << qPrintable(step);
        }
    }
}

TEST_F(ProfileSheetTest, LocksInTheirOrder) {
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('A1', 'AUDIOTRACKS')");
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('A1', 'CountryOfOrigin')");
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('B1', 'Title')");
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(Texts(sheet.listLocks).size(), 46);
    EXPECT_EQ(Texts(sheet.listLocks).front(), u"Title"_s);
    EXPECT_EQ(Texts(sheet.listLocks).back(), u"Country Of Origin"_s);
    EXPECT_EQ(sheet.listLocks.Checked(), (QStringList{u"AudioTracks"_s, u"CountryOfOrigin"_s}));
    sheet.GetEpisodeInfo(u"H110"_s);
    EXPECT_EQ(Texts(sheet.listLocks).size(), 24) << "an episode has fewer";
    EXPECT_EQ(Texts(sheet.listLocks).back(), u"Episode Number"_s);
    EXPECT_EQ(sheet.listLocks.Checked(), QStringList());
}

TEST_F(ProfileSheetTest, ALockIsShownTranslatedAndStoredAsItIs) {
    TranslateAs(u"Audio Tracks"_s, u"Tonspuren"_s);
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"Key_D1"_s);
    EXPECT_TRUE(Texts(sheet.listLocks).contains(u"Tonspuren"_s));
    sheet.SetLock(u"AudioTracks"_s, true);
    EXPECT_EQ(LocksOf(u"Key_D1"_s), QStringList{u"AudioTracks"_s});
    EXPECT_EQ(sheet.listLocks.Checked(), QStringList{u"AudioTracks"_s});
    EXPECT_EQ(MD5Of(u"Key_D1"_s), QString());
    EXPECT_EQ(MD5Of(u"A1"_s), u"abc"_s);
    sheet.SetLock(u"AudioTracks"_s, true);
    EXPECT_EQ(LocksOf(u"Key_D1"_s), QStringList{u"AudioTracks"_s}) << "it is there already";
    sheet.SetLock(u"AudioTracks"_s, false);
    EXPECT_EQ(LocksOf(u"Key_D1"_s), QStringList());
    EXPECT_EQ(sheet.listLocks.Checked(), QStringList());
}

TEST_F(ProfileSheetTest, ALockOfAnEpisode) {
    ProfileSheet sheet(session);
    sheet.GetEpisodeInfo(u"H110"_s);
    sheet.SetLock(u"AirDate"_s, true);
    EXPECT_EQ(LocksOf(u"H110"_s), QStringList{u"AirDate"_s});
}

TEST_F(ProfileSheetTest, AnotherWritersLockIsSeen) {
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('A1', 'Cast')");
    sheet.SetLock(u"Cast"_s, true);
    EXPECT_EQ(LocksOf(u"A1"_s), QStringList{u"Cast"_s});
    sheet.SetLock(u"Crew"_s, true);
    EXPECT_EQ(sheet.listLocks.Checked(), (QStringList{u"Cast"_s, u"Crew"_s}));
}

TEST_F(ProfileSheetTest, NothingIsWrittenForATitleThatIsGone) {
    ProfileSheet sheet(session);
    for (const char *change : {"tag", "lock", "event", "review"}) {
        Run(u"DELETE FROM Profiles WHERE ProfileID = 'E1'");
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('E1', 'Elm')");
        sheet.GetProfileInfo(u"E1"_s);
        sheet.events.TickUser(u"Ada Quill"_s, true);
        Run(u"DELETE FROM Profiles WHERE ProfileID = 'E1'");
        const QLatin1String kind(change);
        if (kind == "tag"_L1) {
            sheet.SetTag(u"New"_s, true);
        } else if (kind == "lock"_L1) {
            sheet.SetLock(u"Cast"_s, true);
        } else if (kind == "event"_L1) {
            sheet.AddEvent({u"Watched"_s, sheet.Now(), {}});
        } else {
            sheet.SetReview({5, 5, 5, 5});
        }
        EXPECT_EQ(sheet.Title(), SheetTitle()) << change;
    }
    for (const char *table : {"Tags", "Locks", "Events", "Reviews"}) {
        EXPECT_EQ(Rows(QStringLiteral("SELECT * FROM %1").arg(QLatin1String(table))), QStringList()) << table;
    }
}

TEST_F(ProfileSheetTest, NothingIsWrittenWithoutATitle) {
    ProfileSheet sheet(session);
    sheet.SetTag(u"New"_s, true);
    sheet.SetLock(u"Cast"_s, true);
    sheet.SetReview({1, 1, 1, 1});
    sheet.AddEvent({u"Watched"_s, sheet.Now(), {}});
    for (const char *table : {"Tags", "Locks", "Events", "Reviews"}) {
        EXPECT_EQ(Rows(QStringLiteral("SELECT * FROM %1").arg(QLatin1String(table))), QStringList()) << table;
    }
}

TEST_F(ProfileSheetTest, WithoutADatabaseTheViewIsEmpty) {
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    session.Database.reset();
    sheet.GetProfileInfo(u"B1"_s);
    EXPECT_EQ(sheet.Title(), SheetTitle());
    sheet.SetReview({1, 1, 1, 1});
    sheet.Restart();
    EXPECT_EQ(sheet.review, Review());
    for (int tab = 1; tab <= kSheetTabs; ++tab) {
        sheet.EnableTab(SheetTab(tab));
    }
    EXPECT_EQ(sheet.tags.Checked(), QStringList());
}

TEST_F(ProfileSheetTest, ADatabaseThatWentTakesItsTitleAlong) {
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('A1', 'Cast')");
    ProfileSheet sheet(session);
    sheet.EnableTab(SheetTab::Skins);
    sheet.GetProfileInfo(u"A1"_s);
    session.Database.reset();
    for (int tab = 1; tab <= kSheetTabs; ++tab) { // nobody told the sheet
        sheet.EnableTab(SheetTab(tab));
    }
    EXPECT_EQ(sheet.listLocks.Checked(), QStringList());
    EXPECT_EQ(sheet.listInfos.rowCount(), 0);
    sheet.Restart();
    EXPECT_EQ(sheet.Title(), SheetTitle());
}

TEST_F(ProfileSheetTest, AdditionalInfos) {
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('A1', 'Shop', 'Corner')");
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('A1', 'IMDb', '0123')");
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('H110', 'Gauge', 'five')");
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    sheet.EnableTab(SheetTab::AdditionalInfos);
    EXPECT_EQ(Headers(sheet.listInfos), QStringList{u"Name"_s});
    EXPECT_EQ(Lines(sheet.listInfos), (QStringList{u"IMDb"_s, u"Shop"_s}));
    EXPECT_EQ(sheet.InfoValue(u"Shop"_s), u"Corner"_s);
    EXPECT_EQ(sheet.InfoValue(u"none"_s), QString());
    sheet.GetEpisodeInfo(u"H110"_s);
    EXPECT_EQ(Lines(sheet.listInfos), QStringList{u"Gauge"_s});
    EXPECT_EQ(sheet.InfoValue(u"Gauge"_s), u"five"_s);
}

TEST_F(ProfileSheetTest, ThePagesHaveTheirNames) {
    EXPECT_EQ(ProfileSheet::PageName(SheetTab::Overview), u"Overview"_s);
    EXPECT_EQ(ProfileSheet::PageName(SheetTab::Notes), u"Notes"_s);
    EXPECT_EQ(ProfileSheet::PageName(SheetTab::EasterEggs), u"EasterEggs"_s);
    EXPECT_EQ(ProfileSheet::PageName(SheetTab::AdditionalInfos), u"InfoValue"_s);
    EXPECT_EQ(ProfileSheet::PageName(SheetTab::Main), QString());
}

TEST_F(ProfileSheetTest, TheLanguageChanges) {
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    TranslateAs(u"Location"_s, u"Ort"_s);
    TranslateAs(u"Purchase Place:"_s, u"Gekauft bei:"_s);
    TranslateAs(u"User"_s, u"Wer"_s);
    TranslateAs(u"Cast"_s, u"Besetzung"_s);
    sheet.Restart();
    EXPECT_EQ(Headers(sheet.listDiscs)[5], u"Ort"_s);
    EXPECT_EQ(Headers(sheet.events.listEvents)[2], u"Wer"_s);
    EXPECT_EQ(sheet.prices[1].label, u"Gekauft bei:"_s);
    EXPECT_TRUE(Texts(sheet.listLocks).contains(u"Besetzung"_s));
}

TEST_F(ProfileSheetTest, TheAuditTrailsWords) {
    const SheetTitle profile = {u"A1"_s, false};
    const SheetTitle episode = {u"H110"_s, true};
    EXPECT_EQ(EditText(u"Tags", profile), u"Edit Tags"_s);
    EXPECT_EQ(EditText(u"Tags", episode), u"Edit Episode Tags"_s);
    EXPECT_EQ(EditText(u"Events", profile), u"Edit Events"_s);
    EXPECT_EQ(EditText(u"Events", episode), u"Edit Episode Events"_s);
    EXPECT_EQ(EditText(u"Reviews", profile), u"Edit Reviews"_s);
    EXPECT_EQ(EditText(u"Reviews", episode), u"Edit Episode Reviews"_s);
}

TEST_F(ProfileSheetTest, TheTitleOfTheSelection) {
    ChangeMode(browser, true);
    EXPECT_EQ(SelectedTitle(browser), (SheetTitle{CurrentKey(), false}));
    EXPECT_EQ(SelectedEpisode(browser).id, QString());
    ChangeMode(browser, false);
    UpdateEpisodes(browser, u"S1"_s, u"One"_s);
    LoadEpisode(browser, u"H13"_s);
    ASSERT_GE(browser.current_episode, 0);
    const SheetTitle episode = {browser.listEpisodes.Rows()[size_t(browser.current_episode)].key, true};
    EXPECT_EQ(SelectedTitle(browser), episode);
    EXPECT_EQ(SelectedEpisode(browser), episode);
    browser.current_episode = -1;
    EXPECT_EQ(SelectedTitle(browser).id, QString());
}

} // namespace
} // namespace ostrand
