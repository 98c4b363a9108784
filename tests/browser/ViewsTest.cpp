#include "browser/Views.h"

#include "ShelfFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/Navigation.h"
#include "browser/ProfileCommands.h"
#include "browser/ProfileInfos.h"
#include "browser/TitleQueries.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ViewsTest : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        LoadTabs(browser);
        ChangeMode(browser, true);
    }
    QStringList Texts() const {
        QStringList texts;
        for (const TitleRow &row : browser.listSeries.Rows()) {
            texts << row.texts[TitleList::Title];
        }
        return texts;
    }
    QStringList Episodes() const {
        QStringList lines;
        for (const EpisodeRow &row : browser.listEpisodes.Rows()) {
            lines << row.key + u'|' + row.number + u'|' + row.title + u'|' + row.tag + u'|' + row.season;
        }
        return lines;
    }
    int Traced(const QString &line) const { return int(LogLines().count(u"Enter:    "_s + line)); }
};

TEST_F(ViewsTest, TheModeIsToldWhereItIsSeen) {
    int changes = 0;
    QObject::connect(&browser, &Browser::ModeChanged, [&] { ++changes; });
    ChangeMode(browser, false);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_TRUE(browser.commands.IsChecked(u"mTVShows"_s));
    EXPECT_FALSE(browser.commands.IsChecked(u"mMovies"_s));
    EXPECT_EQ(browser.tabColList, QStringList{u"TV"_s});
    EXPECT_EQ(browser.tabColList_selected, 1);
    EXPECT_FALSE(browser.filter_shown);
    ChangeMode(browser, true);
    EXPECT_FALSE(session.view.mTVShows);
    EXPECT_TRUE(browser.commands.IsChecked(u"mMovies"_s));
    EXPECT_TRUE(browser.filter_shown);
    EXPECT_EQ(browser.tabColList.front(), u"All"_s);
    EXPECT_EQ(Traced(u"ChangeMode(False)"_s), 1);
    EXPECT_EQ(Traced(u"ChangeMode(True)"_s), 2) << "the first one made the list";
    ShowTVShows(browser);
    ShowMovies(browser);
    EXPECT_EQ(Traced(u"ChangeMode(False)"_s), 2);
    EXPECT_EQ(Traced(u"ChangeMode(True)"_s), 3) << "the menu entries change the mode too";
}

TEST_F(ViewsTest, WhoHearsOfTheModeFindsNoRowOfTheOtherOne) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    ASSERT_GT(browser.listEpisodes.rowCount(), 0);
    int rows = -1;
    QObject::connect(&browser, &Browser::ModeChanged,
                     [&] { rows = browser.listSeries.rowCount() + browser.listEpisodes.rowCount(); });
    ChangeMode(browser, true);
    EXPECT_EQ(rows, 0);
}

TEST_F(ViewsTest, EntriesFollowTheView) {
    const QStringList movies = {u"mProfileInfoContext"_s, u"mAssignEpisodes"_s,      u"mAssignEps"_s,
                                u"mSpecialSorting"_s,     u"mShowFilter"_s,          u"mNewProfile"_s,
                                u"mEditProfile"_s,        u"mRemoveProfileInEdit"_s, u"mEditSelected"_s};
    const QStringList tv = {u"mNewEpisode"_s,    u"mEditSeriesMain"_s,  u"mAddNewSeries"_s,  u"mRemoveTVSeries"_s,
                            u"mAddNewSeason"_s,  u"mRemoveTVSeason"_s,  u"mAddNewEpisode"_s, u"mAddBlankEpisode"_s,
                            u"mRemoveEpisode"_s, u"mDuplicateEpisode"_s};
    EnableDBMenues(browser.commands, true);
    for (const QString &name : movies + tv) {
        browser.commands.Handle(name, [] {});
    }
    for (const bool in_movies : {false, true}) {
        ChangeMode(browser, in_movies);
        for (const QString &name : movies) {
            EXPECT_EQ(browser.commands.IsEnabled(name), in_movies) << qPrintable(name);
        }
        for (const QString &name : tv) {
            EXPECT_EQ(browser.commands.IsEnabled(name), !in_movies) << qPrintable(name);
        }
    }
}

TEST_F(ViewsTest, TheHistoryStartsFreshInEachView) {
    MoveToRow(browser, 1);
    ASSERT_EQ(BackKeys(), QStringList{u"A1"_s});
    ChangeMode(browser, false);
    EXPECT_EQ(BackKeys(), QStringList());
    MoveToRow(browser, 1);
    MoveBack(browser);
    EXPECT_EQ(ForwardKeys(), QStringList{u"S1"_s});
    ChangeMode(browser, true);
    EXPECT_EQ(ForwardKeys(), QStringList());
}

TEST_F(ViewsTest, TVViewBeginsOnTheFirstTabAndMovieViewComesBackToItsOwn) {
    SelectMainTab(browser, 3);
    ChangeMode(browser, false);
    EXPECT_EQ(browser.tabMain_selected, 1);
    EXPECT_EQ(session.view.LastTab, 3) << "the remembered tab, not the shown one";
    ChangeMode(browser, true);
    EXPECT_EQ(browser.tabMain_selected, 3);
    SelectMainTab(browser, 1);
    ChangeMode(browser, false);
    ChangeMode(browser, true);
    EXPECT_EQ(browser.tabMain_selected, 1);
}

TEST_F(ViewsTest, MovieViewComesBackToItsCollectionTab) {
    SelectColTypeTab(browser, 3);
    ShowTVShows(browser);
    EXPECT_EQ(ReadDbInfo(session, u"TabColList"_s, {}), u"3"_s);
    EXPECT_EQ(browser.tabColList_selected, 1);
    ShowTVShows(browser);
    EXPECT_EQ(ReadDbInfo(session, u"TabColList"_s, {}), u"3"_s) << "TV view has no collection tab to remember";
    ShowMovies(browser);
    EXPECT_EQ(browser.tabColList_selected, 3);
    EXPECT_EQ(Keys(), QStringList{u"C1"_s});
}

TEST_F(ViewsTest, TheEntryOfTVViewLeavesTheAppearancesEmpty) {
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('G11', 'S2', 'One', '1', "
        u"'Dew')");
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('A1', 'G11')");
    ChangeMode(browser, false);
    ASSERT_EQ(browser.appearances.listAppearences.rowCount(), 1) << "the profile that holds the first episode";
    ShowMovies(browser);
    ShowTVShows(browser);
    EXPECT_EQ(session.CurrentProfileID, u"G11"_s);
    EXPECT_EQ(browser.appearances.listAppearences.rowCount(), 0);
}

TEST_F(ViewsTest, ATabThatIsNoLongerThereLeavesTheFirst) {
    for (const QString &stored : {u"9"_s, u"0"_s, u"none"_s, QString()}) {
        ChangeMode(browser, false);
        WriteDbInfo(session, u"TabColList"_s, stored);
        ShowMovies(browser);
        EXPECT_EQ(browser.tabColList_selected, 1) << qPrintable(stored);
        EXPECT_EQ(Keys().size(), 5);
    }
}

TEST_F(ViewsTest, AnEmptyMovieListShowsNoTitle) {
    ASSERT_EQ(session.CurrentProfileID, u"A1"_s);
    SelectColTypeTab(browser, 4);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(session.CurrentProfileID, QString());
    EXPECT_EQ(browser.caption, browser.base_caption);
    EXPECT_EQ(browser.cover_stem, QString());
}

TEST_F(ViewsTest, SeriesStandByTheirSortTitle) {
    ChangeMode(browser, false);
    EXPECT_EQ(Keys(), (QStringList{u"S2"_s, u"S1"_s}));
    EXPECT_EQ(Texts(), (QStringList{u"Glade"_s, u"Harbour"_s}));
    EXPECT_EQ(browser.listSeries.At(0).tag, u"Glade"_s) << "the title stands in for an empty original";
    EXPECT_EQ(browser.listSeries.At(1).tag, u"Hafen"_s);
    EXPECT_EQ(browser.listSeries.At(1).texts[TitleList::SortTitle], u"Harbour"_s);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 2"_s);
    EXPECT_EQ(session.CurrentSeriesID, u"S2"_s);
    EXPECT_EQ(browser.current_row, 0);

    session.view.mUseOriginalTitle = true;
    session.view.mUseCustomTitle = true;
    UpdateSeriesNames(browser);
    EXPECT_EQ(Texts(), (QStringList{u"Hafen"_s, u"Glade"_s}));
    EXPECT_EQ(browser.listSeries.At(0).texts[TitleList::SortTitle], u"Hafen"_s);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
}

TEST_F(ViewsTest, TheSortOfMovieViewEndsInTVView) {
    ReOrderSeriesList(browser, TitleList::Year, TitleList::Order::Descending);
    ASSERT_EQ(browser.listSeries.Width(TitleList::Year), 0.25);
    ChangeMode(browser, false);
    EXPECT_FALSE(browser.listSeries.IsSorted());
    EXPECT_EQ(browser.listSeries.Width(TitleList::Year), 0.0);
    EXPECT_EQ(Keys(), (QStringList{u"S2"_s, u"S1"_s}));
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(ReadDbInfo(session, u"ProfilesSortKey"_s, {}), u"3"_s) << "the sort of TV view is not stored";
}

TEST_F(ViewsTest, TheColoursFollowTheirSwitch) {
    for (const bool coloured : {false, true}) {
        session.view.mcolorlist = coloured;
        ChangeMode(browser, false);
        EXPECT_EQ(browser.listSeries.GetStriping() == TitleList::Striping::Rows, coloured);
    }
}

TEST_F(ViewsTest, WithoutSeriesAllIsEmpty) {
    Run(u"DELETE FROM Episodes");
    Run(u"DELETE FROM TVSeries");
    session.CurrentSeriesID = u"S1"_s;
    ChangeMode(browser, false);
    EXPECT_EQ(browser.listSeries.rowCount(), 0);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(session.CurrentSeriesID, QString());
    EXPECT_EQ(session.CurrentProfileID, QString());
    EXPECT_TRUE(browser.listSeasons.isEmpty());
}

TEST_F(ViewsTest, AFaultLeavesAnEmptyList) {
    Run(u"DROP TABLE TVSeries");
    ChangeMode(browser, false);
    EXPECT_EQ(browser.listSeries.rowCount(), 0);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"Error:    ReloadList: "_s));
}

TEST_F(ViewsTest, ASeriesShowsItsFirstSeasonAndEpisode) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
    ASSERT_EQ(browser.listSeasons.size(), 2);
    EXPECT_EQ(QSet<QString>(browser.listSeasons.begin(), browser.listSeasons.end()),
              (QSet<QString>{u"One"_s, u"Captain's cut"_s}));
    EXPECT_EQ(browser.current_season, 0);
    SelectSeason(browser, int(browser.listSeasons.indexOf(u"One"_s)));
    EXPECT_EQ(Episodes(), (QStringList{u"H11|  1|Arrival|Arrival|One"_s, u"H110| 10|Storm|Sturm|One"_s,
                                       u"H13|  3|* Ebbe|Ebbe|One"_s}));
    EXPECT_EQ(browser.current_episode, 0);
    EXPECT_EQ(session.CurrentProfileID, u"H11"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    EXPECT_EQ(browser.caption, u"Arrival"_s);
    browser.listEpisodes.sort(EpisodeList::Number, Qt::AscendingOrder);
    EXPECT_EQ(browser.listEpisodes.Rows()[1].key, u"H13"_s) << "3+4 stands before 10";
}

TEST_F(ViewsTest, ASeasonMayHoldAnApostrophe) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    SelectSeason(browser, int(browser.listSeasons.indexOf(u"Captain's cut"_s)));
    EXPECT_EQ(Episodes(), QStringList{u"H21|  1|Return|Return|Captain's cut"_s});
    EXPECT_EQ(session.CurrentProfileID, u"H21"_s);
    const int season = browser.current_season;
    SelectSeason(browser, 2);
    SelectSeason(browser, -1);
    EXPECT_EQ(browser.current_season, season);
    EXPECT_EQ(Episodes().size(), 1);
}

TEST_F(ViewsTest, ASeriesWithoutEpisodesClearsThePanes) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    ASSERT_FALSE(session.CurrentProfileID.isEmpty());
    MoveToRow(browser, 0);
    EXPECT_TRUE(browser.listSeasons.isEmpty());
    EXPECT_EQ(browser.current_season, -1);
    EXPECT_EQ(browser.current_episode, -1);
    EXPECT_EQ(browser.listEpisodes.rowCount(), 0);
    EXPECT_EQ(session.CurrentProfileID, QString());
    EXPECT_EQ(browser.caption, browser.base_caption);
    EXPECT_TRUE(services.dialogs.messages.empty());
}

TEST_F(ViewsTest, EpisodeNumbersAreJustified) {
    Run(u"DELETE FROM Episodes");
    const struct {
        QString number, shown;
    } cases[] = {{u"1"_s, u"  1"_s},     {u"3+4"_s, u"  3"_s},      {u"10"_s, u" 10"_s}, {u"100"_s, u"100"_s},
                 {u"1000"_s, u"1000"_s}, {u"12+13+14"_s, u" 12"_s}, {u""_s, u"   "_s},   {u"S1"_s, u" S1"_s}};
    for (const auto &c : cases) {
        Run(u"DELETE FROM Episodes");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo) VALUES ('X', 'S1', 'A', '%1')"_s.arg(
            c.number));
        UpdateEpisodes(browser, u"S1"_s, u"A"_s);
        ASSERT_EQ(browser.listEpisodes.rowCount(), 1) << qPrintable(c.number);
        EXPECT_EQ(browser.listEpisodes.Rows()[0].number, c.shown);
    }
}

TEST_F(ViewsTest, AnEpisodeBecomesTheCurrentTitle) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    SelectSeason(browser, int(browser.listSeasons.indexOf(u"One"_s)));
    LoadEpisode(browser, u"H13"_s);
    EXPECT_EQ(Traced(u"LoadEpisode(H13)"_s), 1);
    EXPECT_EQ(session.CurrentProfileID, u"H13"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    EXPECT_EQ(browser.current_episode, 2);
    EXPECT_EQ(Traced(u"GetProfileInfos(H13, True, False)"_s), 1);
    EXPECT_EQ(Traced(u"UpdateTVCredits(, , , H13)"_s), 1);
}

TEST_F(ViewsTest, EpisodesAreSortedWithTheSelectedOneKept) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    SelectSeason(browser, int(browser.listSeasons.indexOf(u"One"_s)));
    LoadEpisode(browser, u"H110"_s);
    const auto keys = [this] {
        QStringList found;
        for (const EpisodeRow &row : browser.listEpisodes.Rows()) {
            found << row.key;
        }
        return found;
    };
    SortEpisodes(browser, EpisodeList::Number, Qt::AscendingOrder);
    EXPECT_EQ(keys(), (QStringList{u"H11"_s, u"H13"_s, u"H110"_s}));
    EXPECT_EQ(browser.current_episode, 2);
    SortEpisodes(browser, EpisodeList::Title, Qt::DescendingOrder);
    EXPECT_EQ(keys(), (QStringList{u"H110"_s, u"H11"_s, u"H13"_s}));
    EXPECT_EQ(browser.current_episode, 0);
    EXPECT_EQ(session.CurrentProfileID, u"H110"_s);
    SelectSeason(browser, browser.current_season);
    EXPECT_EQ(keys(), (QStringList{u"H11"_s, u"H110"_s, u"H13"_s})) << "other rows stand in the order of their query";
}

TEST_F(ViewsTest, TheLockOfTheSelectedEpisodeIsFound) {
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('H13', 'entire')");
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('H11', 'Title')");
    EXPECT_FALSE(IsEpisodeLocked(browser));
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    SelectSeason(browser, int(browser.listSeasons.indexOf(u"One"_s)));
    EXPECT_FALSE(IsEpisodeLocked(browser)) << "only a part of it is";
    LoadEpisode(browser, u"H13"_s);
    EXPECT_TRUE(IsEpisodeLocked(browser));
}

TEST_F(ViewsTest, RowsThatOutliveTheirDatabaseDoNoHarm) {
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    session.Database.reset();
    SelectSeason(browser, 1);
    LoadEpisode(browser, u"H11"_s);
    SortByHeader(browser, TitleList::Title);
    MoveToRow(browser, 0);
    EXPECT_TRUE(browser.listSeasons.isEmpty());
    EXPECT_EQ(browser.caption, browser.base_caption);
    ToggleOriginalTitle(browser);
    session.view.mTVShows = false;
    MoveToRow(browser, 1);
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(browser.listSeries.rowCount(), 0);
}

TEST_F(ViewsTest, MovieViewFillsEpisodesWithoutChoosingOne) {
    UpdateEpisodes(browser, u"S1"_s, u"One"_s);
    EXPECT_EQ(browser.listEpisodes.rowCount(), 3);
    EXPECT_EQ(browser.current_episode, -1);
    EXPECT_EQ(session.CurrentProfileID, u"A1"_s);
    LoadEpisode(browser, u"H11"_s);
    EXPECT_EQ(session.CurrentProfileID, u"H11"_s);
    EXPECT_EQ(CurrentKey(), u"A1"_s) << "the profile's row stays selected";
}

TEST(ViewsWithoutDatabase, ChangeAndStayEmpty) {
    test::TestServices services;
    Session session(services.services);
    Browser browser(session);
    LoadTabs(browser);
    UpdateFilters(browser);
    for (const bool movies : {false, true}) {
        ChangeMode(browser, movies);
        EXPECT_EQ(session.view.mTVShows, !movies);
        EXPECT_EQ(browser.listSeries.rowCount(), 0);
    }
    ShowTVShows(browser);
    ShowMovies(browser);
    GotoProfile(browser);
    SelectRandom(browser);
    GetLastSelectedItem(browser);
    EXPECT_EQ(browser.comboFilter.size(), 3);
}

} // namespace
} // namespace ostrand
