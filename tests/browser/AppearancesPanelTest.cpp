#include "browser/AppearancesPanel.h"

#include "BrowserFixture.h"

#include "browser/Appearances.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class AppearancesPanelTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        AddProfile(u"P1"_s, u"Title = 'Amber', ProdYear = 2000"_s);
        AddProfile(u"P2"_s, u"Title = 'Birch', ProdYear = 1970"_s);
        Run(u"INSERT INTO TVSeries (SeriesID, OriginalTitle, Title, SortTitle) VALUES ('S1', '', 'Harbour', "
            u"'Harbour')");
        Run(u"INSERT INTO TVSeries (SeriesID, OriginalTitle, Title, SortTitle) VALUES ('S2', '', 'Glade', 'Glade')");
        Episode(u"E1"_s, u"1"_s, u"1"_s, u"Dust"_s);
        Episode(u"E2"_s, u"2"_s, u"1"_s, u"Rain"_s);
        Episode(u"E3"_s, u"2"_s, u"2"_s, u"Snow"_s);
        Credit(u"P1"_s, u"Mara Hale"_s);
        Credit(u"E3"_s, u"Mara Hale"_s);
        GetMovieNames(browser);
    }
    void Episode(const QString &id, const QString &season, const QString &number, const QString &title) {
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('%1', 'S1', '%2', "
            "'%3', '%4')"_s.arg(id, season, number, title));
    }
    void Credit(const QString &id, const QString &name) {
        const bool episode = id.startsWith(u'E');
        Run(u"INSERT INTO %1 (%2, Name, Role, Position, IsCast, BirthYear) VALUES ('%3', '%4', 'R', 1, True, 0)"_s.arg(
            episode ? u"TVCastCrew"_s : u"CastCrew"_s, episode ? u"EpisodeID"_s : u"ProfileID"_s, id, name));
    }
    void Award(const QString &award, int year, const QString &category, const QString &film, const QString &nominee,
               bool won, int movie_year = 0) {
        Run(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Nominee, Won, MovieYear) VALUES ('%1', %2, '%3', "
            "'%4', '%5', %6, %7)"_s.arg(award, QString::number(year), category, film, EscapeSql(nominee),
                                        won ? u"True"_s : u"False"_s,
                                        movie_year == 0 ? u"NULL"_s : QString::number(movie_year)));
    }
    void Find(const QString &name) { GetAppearances(browser, name, u"0"_s, false); }
    ListTable &List() { return browser.appearances.listAppearences; }
    QStringList Titles() {
        QStringList titles;
        for (const ListTableRow &row : List().Rows()) {
            titles += row.texts.value(0);
        }
        return titles;
    }
    QStringList Headers() {
        QStringList headers;
        for (int column = 0; column < List().columnCount(); ++column) {
            headers += List().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        return headers;
    }
    int Mode() const { return int(session.view.panel_mode); }
    QStringList Tree(const QModelIndex &parent = {}, int level = 0) {
        QStringList lines;
        const AwardTree &tree = browser.appearances.treeAwards;
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            const QModelIndex node = tree.index(row, 0, parent);
            EXPECT_EQ(node.parent(), parent);
            lines += QString(level, u' ') + node.data().toString();
            lines += Tree(node, level + 1);
        }
        return lines;
    }
    QModelIndex FirstLeaf() {
        const AwardTree &tree = browser.appearances.treeAwards;
        return tree.index(0, 0, tree.index(0, 0, tree.index(0, 0)));
    }
    QString CurrentTitle() {
        return browser.current_row < 0 ? QString() : browser.listSeries.At(browser.current_row).key;
    }
};

TEST_F(AppearancesPanelTest, ListsThoseOfAPerson) {
    int rebuilt = 0;
    QObject::connect(&browser.appearances, &AppearancesPanel::ColumnsChanged, [&rebuilt] { ++rebuilt; });
    Find(u"Mara Hale"_s);
    EXPECT_EQ(Mode(), int(PanelMode::Appearances));
    EXPECT_EQ(Headers(), (QStringList{u"Movie/Series"_s, u"Role"_s, u"Episode Title"_s, u"Credited as"_s, u"Sort"_s}));
    EXPECT_EQ(AppearanceWidths(browser).last(), 0) << "the text that sorts is not shown";
    EXPECT_EQ(Titles(), (QStringList{u"Harbour"_s, u"Amber"_s})) << "Amber sorts by its id here";
    Find(u"Mara Hale"_s);
    EXPECT_EQ(rebuilt, 1) << "the columns stay while the mode does";
    Find(u"Nobody"_s);
    EXPECT_EQ(Titles(), QStringList());
}

TEST_F(AppearancesPanelTest, StaysWhereNothingIsAskedFor) {
    Find(u"Mara Hale"_s);
    Find({});
    EXPECT_EQ(Titles().size(), 2);
    session.view.IncludeMovies = session.view.IncludeTV = false;
    Find(u"Nobody"_s);
    EXPECT_EQ(Titles().size(), 2);
}

TEST_F(AppearancesPanelTest, KeepsRowsThatAreToStay) {
    Credit(u"P2"_s, u"Al Roe"_s);
    Run(u"UPDATE Profiles SET SortTitle = 'AA' WHERE ProfileID = 'P2'");
    Find(u"Mara Hale"_s);
    GetAppearances(browser, u"Al Roe"_s, u"0"_s, true);
    EXPECT_EQ(Titles(), (QStringList{u"Birch"_s, u"Harbour"_s, u"Amber"_s})) << "in the order of all of them";
}

TEST_F(AppearancesPanelTest, ShowsTheEpisodesOfATitle) {
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('P1', 'E3')");
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('P1', 'E1')");
    AddChild(u"P2"_s, u"P1"_s);
    GetProfileInfos(browser, u"P1"_s, false, false);
    EXPECT_EQ(Mode(), int(PanelMode::Profile));
    EXPECT_EQ(Headers(), (QStringList{u"Series"_s, u"Season"_s, u"Episode Title"_s}));
    QStringList rows;
    for (const ListTableRow &row : List().Rows()) {
        rows += row.texts.join(u'|') + u'=' + row.key;
    }
    EXPECT_EQ(rows, (QStringList{u"Harbour|1|Dust=E1"_s, u"Harbour|2|Snow=E3"_s}));
    EXPECT_EQ(browser.listEpisodes.rowCount(), 2);
    SelectAppearance(browser, 0);
    EXPECT_EQ(session.CurrentProfileID, u"P1"_s) << "a click leads nowhere";
    GoToAppearance(browser, 1);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(session.CurrentProfileID, u"E3"_s);
}

TEST_F(AppearancesPanelTest, ShowsTheChildrenOfABoxset) {
    AddProfile(u"P3"_s, u"Title = 'Cedar', SortTitle = 'AA', OriginalTitle = 'ZZ', CustomTitle = 'MM'"_s);
    AddChild(u"P2"_s, u"P1"_s);
    AddChild(u"P3"_s, u"P1"_s);
    const struct {
        bool original, custom;
        QStringList titles;
    } cases[] = {
        {false, false, {u"Cedar"_s, u"Birch"_s}},
        {true, false, {u"Birch"_s, u"ZZ"_s}},
        {false, true, {u"MM"_s, u"Birch"_s}},
    };
    for (const auto &c : cases) {
        session.view.mUseOriginalTitle = c.original;
        session.view.mUseCustomTitle = c.custom;
        GetProfileInfos(browser, u"P1"_s, false, false);
        EXPECT_EQ(Mode(), int(PanelMode::Fourth));
        EXPECT_EQ(Headers(), QStringList{u"Boxset Childs"_s});
        EXPECT_EQ(Titles(), c.titles) << c.original << c.custom;
    }
    GetProfileInfos(browser, u"P2"_s, false, false);
    EXPECT_EQ(Titles(), QStringList()) << "a title that is no boxset";
    GetProfileInfos(browser, u"P1"_s, false, false);
    const QString child = List().Rows()[0].key;
    SelectAppearance(browser, 0);
    EXPECT_EQ(session.CurrentProfileID, child) << "a click goes to the child";
}

TEST_F(AppearancesPanelTest, ShowsTheProfilesOfAnEpisode) {
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('P2', 'E1')");
    ChangeMode(browser, false);
    SelectSeason(browser, 0);
    LoadEpisode(browser, u"E1"_s);
    EXPECT_EQ(Mode(), int(PanelMode::Third));
    EXPECT_EQ(Headers(), QStringList{u"Included in Profile"_s});
    EXPECT_EQ(Titles(), QStringList{u"Birch"_s});
    SelectAppearance(browser, 0);
    EXPECT_FALSE(session.view.mTVShows);
    EXPECT_EQ(session.CurrentProfileID, u"P2"_s);
}

TEST_F(AppearancesPanelTest, ARowsTitleBecomesTheCurrentOne) {
    Credit(u"P2"_s, u"Al Roe"_s);
    GetProfileInfos(browser, u"P2"_s, false, false);
    Find(u"Mara Hale"_s);
    const int before = browser.current_row;
    SelectAppearance(browser, 1);
    EXPECT_EQ(session.CurrentProfileID, u"P1"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_TRUE(browser.cover_stem.endsWith(u"P1"_s));
    EXPECT_EQ(browser.current_row, before);
    EXPECT_EQ(browser.credits.ListCast.rowCount(), 1) << "the credits stay";
    EXPECT_EQ(Titles().size(), 2);
    SelectAppearance(browser, 0);
    EXPECT_EQ(session.CurrentProfileID, u"E3"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    for (const int row : {-1, 2}) {
        SelectAppearance(browser, row);
        GoToAppearance(browser, row);
        EXPECT_EQ(session.CurrentProfileID, u"E3"_s) << row;
    }
}

TEST_F(AppearancesPanelTest, ADoubleClickGoesToTheTitle) {
    Find(u"Mara Hale"_s);
    GoToAppearance(browser, 0);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
    EXPECT_EQ(browser.listSeasons.value(browser.current_season), u"2"_s);
    EXPECT_EQ(browser.listEpisodes.Rows()[size_t(browser.current_episode)].key, u"E3"_s);
    EXPECT_EQ(browser.credits.ListCast.rowCount(), 1);
    Find(u"Mara Hale"_s);
    GoToAppearance(browser, 1);
    EXPECT_FALSE(session.view.mTVShows);
    EXPECT_EQ(CurrentTitle(), u"P1"_s);
    GoToAppearance(browser, 0); // the list is empty now
    EXPECT_EQ(CurrentTitle(), u"P1"_s);
}

TEST_F(AppearancesPanelTest, IsSortedByAClickOnAHeader) {
    Credit(u"P2"_s, u"Mara Hale"_s);
    Find(u"Mara Hale"_s);
    const QStringList ascending = {u"Amber"_s, u"Birch"_s, u"Harbour"_s};
    SortAppearances(browser, 0);
    EXPECT_EQ(Titles(), ascending);
    SortAppearances(browser, 0);
    EXPECT_EQ(Titles(), QStringList(ascending.rbegin(), ascending.rend()));
    SortAppearances(browser, 2);
    EXPECT_EQ(Titles().last(), u"Harbour"_s) << "another column begins ascending";
    Find(u"Mara Hale"_s);
    EXPECT_EQ(Titles(), (QStringList{u"Harbour"_s, u"Amber"_s, u"Birch"_s}));
    EXPECT_EQ(browser.appearances.sort_column, -1);
}

TEST_F(AppearancesPanelTest, IsEmptiedWithTheList) {
    const struct {
        const char *name;
        std::function<void()> change;
    } cases[] = {
        {"another title", [&] { GetProfileInfos(browser, u"P2"_s, false, false); }},
        {"no title", [&] { ClearAllProfileInfos(browser); }},
        {"the titles anew", [&] { GetMovieNames(browser); }},
        {"groups", [&] { SpecialProfileOrder(browser, u"CaseType"_s); }},
        {"the other view", [&] { ShowTVShows(browser); }},
    };
    for (const auto &c : cases) {
        Find(u"Mara Hale"_s);
        ASSERT_EQ(List().rowCount(), 2) << c.name;
        c.change();
        EXPECT_EQ(List().rowCount(), 0) << c.name;
    }
}

TEST_F(AppearancesPanelTest, APersonIsAskedFor) {
    Credit(u"P2"_s, u"Al Roe"_s);
    Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('P2', 'Guests', '[Divider]', 2, "
        u"True)");
    services.dialogs.ExpectInput(u"Find appearences for:"_s, u" Mara Hale "_s, u"Find Appearences"_s);
    FindAppearances(browser, u"Al Roe"_s);
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"Al Roe"_s, u"Mara Hale"_s}))
        << "each name once, no captions";
    EXPECT_EQ(services.dialogs.last_preset, u"Al Roe"_s);
    EXPECT_EQ(Titles().size(), 2);
    for (const std::optional<QString> &answer : {std::optional<QString>(), std::optional(u"  "_s)}) {
        services.dialogs.ExpectInput({}, answer);
        FindAppearances(browser);
        EXPECT_EQ(Titles().size(), 2);
    }
    QStringList captions;
    session.window.ShowListView = [&](std::unique_ptr<ListTable> table) { captions += table->caption; };
    session.view.mSkinEnable = true;
    services.dialogs.ExpectInput({}, u"Mara Hale"_s);
    FindAppearances(browser);
    EXPECT_EQ(captions, QStringList{u"Mara Hale (2 entries)"_s}) << "beside a page they get a window";
    session.Database.reset();
    FindAppearances(browser);
}

TEST_F(AppearancesPanelTest, AwardsStandInATree) {
    Award(u"Silver Buoy"_s, 2003, u"Voice"_s, u"[no specific film title]"_s, u"Mara Hale"_s, false);
    Award(u"Golden Gull"_s, 2001, u"Actress"_s, u"Amber"_s, u"Mara Hale, Al Roe"_s, true, 2000);
    Award(u"Golden Gull"_s, 1999, u"Actress"_s, u"Birch"_s, u"with Mara Hale"_s, false);
    Award(u"Golden Gull"_s, 2002, u"Actress"_s, u"Birch"_s, u"Mara Hale"_s, false);
    Award(u"Golden Gull"_s, 2002, u"Actress"_s, u"Birch"_s, u"Mara Vale"_s, false);
    FindAwardsForActor(browser, u"Mara Hale"_s, u"0"_s);
    EXPECT_EQ(Tree(), (QStringList{u"Golden Gull"_s, u" Won"_s, u"  Actress (2001) Amber (2000)"_s, u" Nominated"_s,
                                   u"  Actress (1999) Birch"_s, u"  Actress (2002) Birch"_s, u"Silver Buoy"_s,
                                   u" Nominated"_s, u"  Voice (2003) [no specific film title]"_s}));
    const QModelIndex leaf = FirstLeaf();
    EXPECT_TRUE(leaf.data(AwardTree::KeyRole).toString().startsWith(u"Movie|"_s));
    EXPECT_EQ(leaf.data(AwardTree::IconRole).toString(), u"X"_s);
    const AwardTree &tree = browser.appearances.treeAwards;
    EXPECT_EQ(tree.index(1, 0, tree.index(0, 0)).data(AwardTree::IconRole).toString(), u"NX"_s);
}

TEST_F(AppearancesPanelTest, AwardsOfANameAreToldApart) {
    Award(u"A"_s, 2001, u"C"_s, u"F1"_s, u"Al Roe (1950)"_s, true);
    Award(u"A"_s, 2002, u"C"_s, u"F2"_s, u"Al Roe"_s, true);
    Award(u"A"_s, 2003, u"C"_s, u"F3"_s, u"Pat O'Roe"_s, true);
    const struct {
        QString name, year, label;
        qsizetype lines;
    } cases[] = {
        {u"Al Roe"_s, u"1950"_s, u"Awards for Al Roe"_s, 3}, {u"Al Roe"_s, u"0"_s, u"Awards for Al Roe"_s, 4},
        {u"Al Roe"_s, {}, u"Awards for Al Roe"_s, 4},        {u"Pat O'Roe"_s, {}, u"Awards for Pat O'Roe"_s, 3},
        {u"Al & Roe"_s, {}, u"Awards for Al && Roe"_s, 0},
    };
    for (const auto &c : cases) {
        FindAwardsForActor(browser, c.name, c.year);
        EXPECT_EQ(Tree().size(), c.lines) << qPrintable(c.name);
        EXPECT_EQ(browser.appearances.labelAwards, c.label);
    }
    Run(u"DROP TABLE Awards");
    FindAwardsForActor(browser, u"Al Roe"_s, {});
    EXPECT_EQ(Tree(), QStringList());
}

TEST_F(AppearancesPanelTest, AnAwardLeadsToItsFilm) {
    AddProfile(u"Q1"_s, u"Title = 'Amber', ProdYear = 1950"_s);
    AddProfile(u"Q2"_s, u"OriginalTitle = 'Cedar'"_s);
    GetMovieNames(browser);
    const struct {
        const char *name;
        QString film;
        int year, movie_year;
        QString goes_to; // P2 when nowhere
    } cases[] = {
        {"of the film's year", u"Amber"_s, 2010, 1950, u"Q1"_s},
        {"about the year of the ceremony", u"Amber"_s, 2001, 0, u"P1"_s},
        {"of a year that no film has", u"Amber"_s, 2001, 1980, u"P2"_s},
        {"of no year", u"Amber"_s, 0, 0, u"P1"_s},
        {"a film of no year", u"Cedar"_s, 2001, 1980, u"Q2"_s},
        {"of another film", u"Nowhere"_s, 2001, 0, u"P2"_s},
        {"of no film", u"[no specific film title]"_s, 2001, 0, u"P2"_s},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Awards");
        Award(u"A"_s, c.year, u"C"_s, c.film, u"Mara Hale"_s, true, c.movie_year);
        UpdateSeriesList(browser, browser.listSeries.RowOfKey(u"P2"_s));
        FindAwardsForActor(browser, u"Mara Hale"_s, {});
        GoToAwardedMovie(browser, FirstLeaf());
        EXPECT_EQ(CurrentTitle(), c.goes_to) << c.name;
    }
    GoToAwardedMovie(browser, {});
}

TEST_F(AppearancesPanelTest, CaptionsFollowTheLanguage) {
    Find(u"Mara Hale"_s);
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Role', 'Rolle')");
    ShowAppearanceHeaders(browser);
    EXPECT_EQ(Headers()[1], u"Rolle"_s);
    EXPECT_EQ(List().rowCount(), 2);
}

TEST_F(AppearancesPanelTest, TheSelectedRowIsShownAgainInAnotherLanguage) {
    Find(u"Mara Hale"_s);
    browser.appearances.current_row = 1;
    QList<int> told;
    QObject::connect(&browser.appearances, &AppearancesPanel::CurrentRowChanged,
                     [&] { told += browser.appearances.current_row; });
    RefillAppearances(browser);
    EXPECT_EQ(told, QList<int>{1});
}

} // namespace
} // namespace ostrand
