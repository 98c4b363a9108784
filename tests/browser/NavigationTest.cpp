#include "browser/Navigation.h"

#include "ShelfFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"
#include "shell/ListTable.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class NavigationTest : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        LoadTabs(browser);
        ChangeMode(browser, true);
    }
    void ExpectTitle(const std::optional<QString> &title) {
        services.dialogs.ExpectInput(u"Please enter title:"_s, title, u"Search Title"_s);
    }
    void ExpectShown(const QString &key) {
        EXPECT_EQ(CurrentKey(), key);
        EXPECT_EQ(session.CurrentProfileID, key);
    }
};

TEST_F(NavigationTest, LeavingARowRemembersIt) {
    MoveToRow(browser, 2);
    ExpectShown(u"C1"_s);
    EXPECT_EQ(browser.history.Back(), (QList<HistoryEntry>{{u"A1"_s, u"Amber"_s}}));
    MoveToRow(browser, 0);
    MoveToRow(browser, 1);
    EXPECT_EQ(BackKeys(), (QStringList{u"A1"_s, u"C1"_s})) << "a title visited twice stands once, at the top";
    MoveToRow(browser, 1);
    EXPECT_EQ(BackKeys().size(), 2) << "the row was not left";
    MoveToRow(browser, -1);
    MoveToRow(browser, 5);
    ExpectShown(u"B1"_s);
}

TEST_F(NavigationTest, AMoveClearsWhatLayForward) {
    MoveToRow(browser, 1);
    MoveBack(browser);
    ASSERT_EQ(ForwardKeys(), QStringList{u"B1"_s});
    MoveToRow(browser, 3);
    EXPECT_EQ(ForwardKeys(), QStringList());
    EXPECT_EQ(BackKeys(), QStringList{u"A1"_s});
}

TEST_F(NavigationTest, RowsOfOneTitleInGroupsAreOneEntry) {
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A1', 'Drama')");
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A1', 'Crime')");
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('B1', 'Drama')");
    SpecialProfileOrder(browser, u"Genre"_s);
    ASSERT_EQ(browser.listSeries.rowCount(), 5); // Crime, A1, Drama, A1, B1
    MoveToRow(browser, 1);
    MoveToRow(browser, 3);
    MoveToRow(browser, 4);
    EXPECT_EQ(BackKeys(), QStringList{u"A1"_s}) << "headers are no titles";
    MoveBack(browser);
    EXPECT_EQ(session.CurrentProfileID, u"A1"_s);
    EXPECT_EQ(browser.current_row, 1);
}

TEST_F(NavigationTest, BackAndForwardWalkTheVisitedTitles) {
    for (const int row : {1, 2, 3}) {
        MoveToRow(browser, row);
    }
    int changes = 0;
    QObject::connect(&browser, &Browser::HistoryChanged, [&] { ++changes; });
    MoveBack(browser);
    ExpectShown(u"C1"_s);
    EXPECT_EQ(BackKeys(), (QStringList{u"B1"_s, u"A1"_s}));
    EXPECT_EQ(ForwardKeys(), QStringList{u"Key_D1"_s});
    MoveBack(browser, 1);
    ExpectShown(u"A1"_s);
    EXPECT_EQ(BackKeys(), QStringList());
    EXPECT_EQ(ForwardKeys(), (QStringList{u"B1"_s, u"C1"_s, u"Key_D1"_s}));
    MoveForward(browser, 2);
    ExpectShown(u"Key_D1"_s);
    EXPECT_EQ(BackKeys(), (QStringList{u"C1"_s, u"B1"_s, u"A1"_s}));
    EXPECT_EQ(ForwardKeys(), QStringList());
    EXPECT_EQ(changes, 3);
    MoveForward(browser);
    MoveBack(browser, 3);
    ExpectShown(u"Key_D1"_s);
    EXPECT_EQ(BackKeys().size(), 3);
}

TEST_F(NavigationTest, ARemovedTitleInTheHistoryShowsTheEmptyView) {
    MoveToRow(browser, 1);
    MoveToRow(browser, 2);
    Run(u"DELETE FROM Profiles WHERE ProfileID = 'B1'");
    SelectColTypeTab(browser, 3);
    MoveBack(browser);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(browser.caption, browser.base_caption);
    EXPECT_EQ(browser.cover_stem, QString());
    EXPECT_EQ(BackKeys(), QStringList{u"A1"_s});
    EXPECT_EQ(ForwardKeys(), QStringList{u"C1"_s});
}

TEST_F(NavigationTest, TVViewGoesBackToItsSeries) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    EXPECT_EQ(BackKeys(), QStringList{u"S2"_s});
    MoveBack(browser);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(session.CurrentSeriesID, u"S2"_s);
    EXPECT_EQ(CurrentKey(), u"S2"_s);
    Run(u"DELETE FROM Episodes WHERE SeriesID = 'S1'");
    Run(u"DELETE FROM TVSeries WHERE SeriesID = 'S1'");
    UpdateSeriesNames(browser);
    MoveForward(browser);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(browser.caption, browser.base_caption);
}

TEST_F(NavigationTest, ShowMovieTakesTheRowOfTheList) {
    SelectColTypeTab(browser, 2);
    ShowMovie(browser, u"B1"_s);
    ExpectShown(u"B1"_s);
    EXPECT_EQ(browser.tabColList_selected, 2);
    EXPECT_EQ(BackKeys(), QStringList{u"A1"_s}) << "as a click does";
    ShowMovie(browser, u"a1|17"_s);
    EXPECT_EQ(CurrentKey(), u"A1"_s) << "a key of a group, in another case";
    ShowMovie(browser, {});
    ExpectShown(u"A1"_s);
}

TEST_F(NavigationTest, AClickOnTheCurrentRowShowsItsTitleAgain) {
    LoadEpisode(browser, u"H11"_s);
    ASSERT_TRUE(session.CurrentIsEpisode);
    MoveToRow(browser, 0);
    ExpectShown(u"A1"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(BackKeys(), QStringList()) << "no row was left";
}

TEST_F(NavigationTest, GoingToATitleIsTraced) {
    ShowMovie(browser, u"B1"_s);
    EXPECT_TRUE(LogLines().contains(u"Enter:    ShowMovie(B1)"_s));
}

TEST_F(NavigationTest, ShowMovieLooksOnTheTabOfAllTitles) {
    SelectColTypeTab(browser, 2);
    ShowMovie(browser, u"Key_D1"_s);
    ExpectShown(u"Key_D1"_s);
    EXPECT_EQ(browser.tabColList_selected, 1);
    EXPECT_EQ(browser.listSeries.rowCount(), 5);
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"D1"_s);
}

TEST_F(NavigationTest, ShowMovieChangesToMovies) {
    ShowTVShows(browser);
    ShowMovie(browser, u"E1"_s);
    EXPECT_FALSE(session.view.mTVShows);
    ExpectShown(u"E1"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(BackKeys(), QStringList());
}

TEST_F(NavigationTest, AKeyThatIsNowhereShowsTheEmptyView) {
    for (const bool movies : {true, false}) {
        ChangeMode(browser, movies);
        ShowMovie(browser, u"Nowhere"_s);
        EXPECT_FALSE(session.view.mTVShows);
        EXPECT_EQ(browser.current_row, -1);
        EXPECT_EQ(browser.caption, browser.base_caption);
        EXPECT_EQ(browser.cover_stem, QString());
    }
}

TEST_F(NavigationTest, TheLastSelectedRowIsRestored) {
    int selections = 0;
    QObject::connect(&browser, &Browser::CurrentRowChanged, [&] { ++selections; });
    WriteDbInfo(session, u"LastSelectedItem"_s, u"Key_D1"_s);
    GetLastSelectedItem(browser);
    ExpectShown(u"Key_D1"_s);
    EXPECT_EQ(selections, 1);
    EXPECT_EQ(browser.history.Back(), (QList<HistoryEntry>{{u"Key_D1"_s, u"Dune's End"_s}}));
}

TEST_F(NavigationTest, WithoutTheLastSelectedRowTheFirstStays) {
    for (const QString &key : {QString(), u"Gone"_s}) {
        WriteDbInfo(session, u"LastSelectedItem"_s, key);
        GetLastSelectedItem(browser);
        ExpectShown(u"A1"_s);
        EXPECT_EQ(BackKeys(), QStringList());
    }
    Run(u"DELETE FROM Profiles");
    ChangeMode(browser, true);
    GetLastSelectedItem(browser);
    EXPECT_EQ(browser.current_row, -1);
}

TEST_F(NavigationTest, TheLastSelectedSeriesIsRestored) {
    WriteDbInfo(session, u"LastSelectedItem"_s, u"S1"_s);
    ChangeMode(browser, false);
    GetLastSelectedItem(browser);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
    EXPECT_EQ(browser.listSeasons.size(), 2);
}

TEST_F(NavigationTest, TitlesAreOfferedAsTheyAreShown) {
    const struct {
        const char *name;
        bool custom, original;
        QStringList offered;
    } cases[] = {
        {"titles", false, false, {u"Amber"_s, u"Birch"_s, u"Cedar"_s, u"Dune's End"_s, u"Elm"_s}},
        {"custom titles", true, false, {u"Amber"_s, u"Birch"_s, u"Dune's End"_s, u"Elm"_s, u"My Cedar"_s}},
        {"original titles", false, true, {u"Amber"_s, u"Bouleau"_s, u"Cedar"_s, u"Dune's End"_s, u"Elm"_s}},
        {"both", true, true, {u"Amber"_s, u"Bouleau"_s, u"Dune's End"_s, u"Elm"_s, u"My Cedar"_s}},
    };
    for (const auto &c : cases) {
        session.view.mUseCustomTitle = c.custom;
        session.view.mUseOriginalTitle = c.original;
        ExpectTitle(std::nullopt);
        GotoProfile(browser);
        EXPECT_EQ(services.dialogs.last_values, c.offered) << c.name;
        EXPECT_EQ(services.dialogs.last_preset, QString()) << c.name;
        ExpectShown(u"A1"_s);
    }
}

TEST_F(NavigationTest, GotoProfileShowsTheTitleEntered) {
    const struct {
        const char *name;
        bool custom, original;
        QString title, shown;
    } cases[] = {
        {"a title", false, false, u"Dune's End"_s, u"Key_D1"_s},
        {"in another case", false, false, u"elm"_s, u"E1"_s},
        {"an original title that is not displayed", false, false, u"Bouleau"_s, u"A1"_s},
        {"an original title", false, true, u"Bouleau"_s, u"B1"_s},
        {"a title behind an original title", false, true, u"Birch"_s, u"A1"_s},
        {"a custom title", true, false, u"My Cedar"_s, u"C1"_s},
        {"a custom title that is not displayed", false, false, u"My Cedar"_s, u"A1"_s},
        {"no title of the collection", false, false, u"Willow"_s, u"A1"_s},
        {"nothing", false, false, u""_s, u"A1"_s},
    };
    for (const auto &c : cases) {
        SelectColTypeTab(browser, 2);
        session.view.mUseCustomTitle = c.custom;
        session.view.mUseOriginalTitle = c.original;
        ExpectTitle(c.title);
        GotoProfile(browser);
        EXPECT_EQ(CurrentKey(), c.shown) << c.name;
    }
}

TEST_F(NavigationTest, AFaultOfGotoProfileIsLogged) {
    Run(u"DROP TABLE Profiles");
    services.dialogs.ExpectMessage(u"An Error occured"_s, MessageIcon::Critical);
    ExpectTitle(u"Amber"_s);
    GotoProfile(browser);
    EXPECT_TRUE(LogLines().last().startsWith(u"Error:    mGotoProfile_Click(): "_s)) << qPrintable(LogLines().last());
}

TEST_F(NavigationTest, ARandomTitleIsTakenFromTheRows) {
    const struct {
        double number;
        QString key;
    } cases[] = {{0.0, u"A1"_s}, {0.199, u"A1"_s}, {0.2, u"B1"_s}, {0.5, u"C1"_s}, {0.999, u"E1"_s}};
    for (const auto &c : cases) {
        services.random.numbers = {c.number};
        SelectRandom(browser);
        ExpectShown(c.key);
    }
    SelectColTypeTab(browser, 3);
    for (const double number : {0.0, 0.5, 0.999}) {
        services.random.numbers = {number};
        SelectRandom(browser);
        ExpectShown(u"C1"_s);
    }
    SelectColTypeTab(browser, 4);
    SelectRandom(browser);
    EXPECT_EQ(browser.current_row, -1) << "an empty list has none";
}

TEST_F(NavigationTest, ARandomTitleIsNoHeaderOfAGroup) {
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A1', 'Drama')");
    SpecialProfileOrder(browser, u"Genre"_s);
    for (const double number : {0.0, 0.4, 0.9}) {
        services.random.numbers = {number};
        SelectRandom(browser);
        EXPECT_EQ(session.CurrentProfileID, u"A1"_s);
    }
}

TEST_F(NavigationTest, ARandomSeriesShowsItsSeasons) {
    ChangeMode(browser, false);
    services.random.numbers = {0.9};
    SelectRandom(browser);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
    EXPECT_EQ(browser.listSeasons.size(), 2);
}

TEST_F(NavigationTest, AListIsCopiedAsItIsShown) {
    browser.listSeries.SetHeaders({u"Title"_s, u"#"_s, u"SortTitle"_s, u"Year"_s, u"P.Date"_s, u"Released"_s});
    SelectColTypeTab(browser, 2);
    CopyListToClipboard(browser, browser.listSeries, false);
    EXPECT_EQ(services.clipboard.Text(), u"Title\r\nAmber\r\nBirch\r\n"_s);
    browser.listSeries.SetWidth(TitleList::Number, 0.25);
    CopyListToClipboard(browser, browser.listSeries, false);
    EXPECT_EQ(services.clipboard.Text(), u"Title\t#\r\nAmber\t    1\r\nBirch\t    2\r\n"_s);
    CopyListToClipboard(browser, browser.listSeries, true);
    EXPECT_EQ(services.clipboard.Text(), u"Title\t#\tSortTitle\tYear\tP.Date\tReleased\r\n"
                                         "Amber\t    1\tAmber\t\t\t\r\nBirch\t    2\tBirch\t\t\t\r\n"_s);
}

TEST_F(NavigationTest, OtherListsAreCopiedWhole) {
    ListTable table({}, {u"Name"_s, u"Note"_s});
    table.Assign({{.texts = {u"a\tb"_s, u"two\r\nlines"_s}, .key = {}, .kind = ListRowKind::None}});
    CopyListToClipboard(browser, table, false);
    EXPECT_EQ(services.clipboard.Text(), u"Name\tNote\r\na b\ttwo  lines\r\n"_s);
    table.Assign({});
    CopyListToClipboard(browser, table, true);
    EXPECT_EQ(services.clipboard.Text(), u"Name\tNote\r\n"_s);
}

TEST_F(NavigationTest, AnEpisodeIsShownWithItsSeriesAndSeason) {
    for (const char *from : {"movies", "TV"}) {
        SCOPED_TRACE(from);
        ShowEpisode(browser, u"H21"_s);
        EXPECT_TRUE(session.view.mTVShows);
        EXPECT_EQ(CurrentKey(), u"S1"_s);
        EXPECT_EQ(browser.listSeasons.value(browser.current_season), u"Captain's cut"_s);
        EXPECT_EQ(browser.listEpisodes.RowOfKey(u"H21"_s), browser.current_episode);
        EXPECT_EQ(session.CurrentProfileID, u"H21"_s);
        EXPECT_TRUE(session.CurrentIsEpisode);
    }
    ShowEpisode(browser, u"H110"_s);
    EXPECT_EQ(browser.listSeasons.value(browser.current_season), u"One"_s);
    EXPECT_EQ(session.CurrentProfileID, u"H110"_s);
    ShowEpisode(browser, u"gone"_s);
    EXPECT_EQ(session.CurrentProfileID, u"H110"_s);
    Run(u"DELETE FROM TVSeries WHERE SeriesID = 'S1'");
    ChangeMode(browser, false);
    ShowEpisode(browser, u"H110"_s);
    EXPECT_EQ(CurrentKey(), u"S2"_s) << "a series that is gone cannot be selected";
}

TEST_F(NavigationTest, TheCoverTagNamesTheCurrentFrontCover) {
    const struct {
        const char *name;
        QString id;
        bool episode;
        QString copied;
    } cases[] = {
        {"a profile", u"012345.7"_s, false, u"[img]http://covers.ostrand.example/mpimages/01/012345.7f.jpg[/img]"_s},
        {"with a prefix", u"Key_987"_s, false, u"[img]http://covers.ostrand.example/mpimages/98/987f.jpg[/img]"_s},
        {"short", u"7"_s, false, u"[img]http://covers.ostrand.example/mpimages/7/7f.jpg[/img]"_s},
        {"an episode", u"012345"_s, true, u"before"_s},
        {"no title", {}, false, u"before"_s},
    };
    for (const auto &c : cases) {
        services.clipboard.SetText(u"before"_s);
        session.CurrentProfileID = c.id;
        session.CurrentIsEpisode = c.episode;
        CopyCoverTag(browser);
        EXPECT_EQ(services.clipboard.Text(), c.copied) << c.name;
    }
}

} // namespace
} // namespace ostrand
