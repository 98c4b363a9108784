#include "browser/FindBox.h"

#include "browser/Attach.h"
#include "browser/BrowserFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/Navigation.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Films with persons, some of them linked to other spellings.
class FindBoxTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        AddProfile(u"A"_s, u"Title = 'Amber Road'"_s);
        AddProfile(u"B"_s, u"Title = 'Die Größe', OriginalTitle = 'Ærlig talt', Locality = 'North'"_s);
        AddProfile(u"C"_s, u"Title = 'Cedar', CustomTitle = 'My Tree', ColType = 'Ordered', Locality = 'South'"_s);
        AddProfile(u"D"_s, u"Title = 'Dune''s End', Locality = 'North'"_s);
        AddCredit(u"A"_s, u"Anna Marsh"_s);
        AddCredit(u"A"_s, u"John Fell"_s);
        AddCredit(u"B"_s, u"Léo Dubois"_s);
        AddCredit(u"B"_s, u"John Smith"_s);
        AddCredit(u"C"_s, u"A. Marsh"_s);
        AddCredit(u"D"_s, u"Anna Reed-Marsh"_s);
        AddCredit(u"D"_s, u"Peter Smith"_s);
        Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('A. Marsh', 'Anna Marsh', 0)");
        Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Annie M.', 'Anna Marsh', 0)");
        session.view.BoxsetView = true;
        SelectTab(u"All"_s);
        GetMovieNames(browser);
    }
    void AddCredit(const QString &id, const QString &name) {
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('%1', '%2', 'Role', %3, True)"_s
                .arg(id, EscapeSql(name))
                .arg(++position_));
    }
    void Finish() {
        while (browser.find.Step()) {
        }
    }
    QStringList Find(const QString &text) {
        browser.find.SetText(text);
        Finish();
        return Keys();
    }
    QString Current() const {
        return browser.current_row < 0 ? QString() : browser.listSeries.At(browser.current_row).key;
    }
    int position_ = 0;
};

TEST_F(FindBoxTest, NarrowsTheListToWhatMatches) {
    struct Case {
        QString typed;
        QStringList keys;
    };
    GetMovieNames(browser);
    const QStringList whole = Keys();
    const Case cases[] = {
        {u""_s, whole},
        {u"amber"_s, {u"A"_s}},
        {u"BER ro"_s, {u"A"_s}},
        {u"road amber"_s, {u"A"_s}},
        {u"grosse"_s, {u"B"_s}},
        {u"GRÖSSE"_s, {u"B"_s}},
        {u"aerlig"_s, {u"B"_s}},
        {u"ærlig"_s, {u"B"_s}},
        {u"dunes"_s, {u"D"_s}},
        {u"dune's"_s, {u"D"_s}},
        {u"my tree"_s, {u"C"_s}},
        {u"leo dubois"_s, {u"B"_s}},
        {u"dubois, léo"_s, {u"B"_s}},
        // Spellings of one person, both ways and beside each other.
        {u"anna marsh"_s, {u"A"_s, u"C"_s, u"D"_s}},
        {u"a. marsh"_s, {u"A"_s, u"C"_s}},
        {u"annie m."_s, {u"A"_s, u"C"_s}},
        // What the title has not, one person has.
        {u"john smith"_s, {u"B"_s}},
        {u"peter john"_s, {}},
        {u"amber fell"_s, {u"A"_s}},
        {u"amber john fell"_s, {u"A"_s}},
        {u"amber smith"_s, {}},
        {u"   "_s, whole},
        {u" , "_s, whole},
        {u"zzz"_s, {}},
        {QString(5000, u'x'), {}},
        {QString(2000, u'a').replace(u"aa"_s, u"a "_s), {u"A"_s, u"B"_s, u"C"_s, u"D"_s}},
        {u""_s, whole},
    };
    for (const Case &row : cases) {
        QStringList keys = Find(row.typed);
        QStringList wanted = row.keys;
        keys.sort();
        wanted.sort();
        EXPECT_EQ(keys, wanted) << qPrintable(row.typed.left(40));
        EXPECT_EQ(browser.labelFilterCount, u"Filtered: %1"_s.arg(wanted.size())) << qPrintable(row.typed.left(40));
    }
    EXPECT_EQ(Keys(), whole);
}

TEST_F(FindBoxTest, AChildStandsBelowItsParents) {
    AddProfile(u"Inner"_s, u"Title = 'Inner'"_s);
    AddProfile(u"Outer"_s, u"Title = 'Outer'"_s);
    AddChild(u"A"_s, u"Inner"_s);
    AddChild(u"D"_s, u"Inner"_s);
    AddChild(u"Inner"_s, u"Outer"_s);
    GetMovieNames(browser);
    EXPECT_EQ(Find(u"amber"_s), (QStringList{u"Outer"_s, u"Inner"_s, u"A"_s}));
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 3"_s);
    EXPECT_EQ(Find(u"inner"_s), (QStringList{u"Outer"_s, u"Inner"_s}));
    EXPECT_EQ(Find(u"outer"_s), (QStringList{u"Outer"_s}));
    session.view.BoxsetView = false;
    GetMovieNames(browser);
    EXPECT_EQ(Find(u"amber"_s), (QStringList{u"A"_s}));
}

TEST_F(FindBoxTest, HeadersStandAboveRowsAlone) {
    SpecialProfileOrder(browser, u"Locality"_s);
    EXPECT_EQ(Find(u"dune"_s).size(), 2);
    EXPECT_TRUE(browser.listSeries.At(0).header);
    EXPECT_EQ(browser.listSeries.At(0).texts[TitleList::Title], u"North"_s);
    EXPECT_EQ(ProfileOfKey(Keys().last()), u"D"_s);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 1"_s);
    EXPECT_TRUE(Find(u"north"_s).isEmpty()); // a header is no title
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    EXPECT_EQ(Find(u"marsh"_s).size(), 6); // without a locality, North, South: one each
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 3"_s);
    AddProfile(u"Box"_s, u"Title = 'Box', Locality = 'North'"_s);
    AddChild(u"D"_s, u"Box"_s);
    SpecialProfileOrder(browser, u"Locality"_s);
    Finish();
    browser.find.SetText(u"dune"_s);
    EXPECT_EQ(Column(), (QStringList{u"North"_s, u"     Box"_s, u"          Dune's End"_s}));
}

TEST_F(FindBoxTest, NarrowsWhateverFillsTheList) {
    EXPECT_EQ(Find(u"marsh"_s).size(), 3);
    SelectTab(u"Ordered"_s);
    GetMovieNames(browser);
    EXPECT_EQ(Keys(), QStringList{u"C"_s});
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 1"_s);
    EXPECT_EQ(Current(), u"C"_s);
    SelectTab(u"All"_s);
    GetMovieNames(browser);
    ReOrderSeriesList(browser, TitleList::Title, TitleList::Order::Descending);
    EXPECT_EQ(Keys().size(), 3);
    EXPECT_EQ(Find({}).size(), 4);
}

TEST_F(FindBoxTest, TheSelectionStaysOrComesBack) {
    UpdateSeriesList(browser, browser.listSeries.RowOfTitle(u"D"_s));
    EXPECT_EQ(session.CurrentProfileID, u"D"_s);
    Find(u"d"_s);
    EXPECT_EQ(Current(), u"D"_s);
    Find(u"amber"_s);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(session.CurrentProfileID, u"D"_s); // the panels keep what they tell
    EXPECT_EQ(browser.find.HiddenKey(), u"D"_s);
    Find({});
    EXPECT_EQ(Current(), u"D"_s);
    EXPECT_EQ(browser.find.HiddenKey(), QString());
    Find(u"amber"_s);
    UpdateSeriesList(browser, 0);
    Find({});
    EXPECT_EQ(Current(), u"A"_s); // what was chosen meanwhile
}

TEST_F(FindBoxTest, ATitleThatIsGoneToIsShown) {
    Find(u"amber"_s);
    ShowMovie(browser, u"D"_s);
    EXPECT_EQ(browser.find.Text(), QString());
    EXPECT_EQ(Current(), u"D"_s);
    Find(u"marsh"_s);
    ShowMovie(browser, u"A"_s);
    EXPECT_EQ(browser.find.Text(), u"marsh"_s); // it is in the list
    EXPECT_EQ(Current(), u"A"_s);
}

TEST_F(FindBoxTest, AnEmptyListComesBackWithATitle) {
    Find(u"zzz"_s);
    SelectTab(u"Ordered"_s);
    ReloadList(browser);
    EXPECT_EQ(session.CurrentProfileID, QString());
    Find({});
    EXPECT_EQ(Current(), u"C"_s);
    EXPECT_EQ(session.CurrentProfileID, u"C"_s);
}

TEST_F(FindBoxTest, FollowsWhatChanges) {
    EXPECT_EQ(Find(u"newcomer"_s), QStringList());
    struct Case {
        const char16_t *statement;
        QString typed;
        QStringList keys;
    };
    const Case cases[] = {
        {u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('B', 'Nora Newcomer', 'R', 90, True)",
         u"newcomer"_s,
         {u"B"_s}},
        {u"UPDATE Profiles SET Title = 'The Newcomer' WHERE ProfileID = 'C'", u"the newcomer"_s, {u"C"_s}},
        {u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Léo Dubois', 'Leonard Wood', 0)",
         u"leonard wood"_s,
         {u"B"_s}},
        {u"DELETE FROM Alias", u"leonard wood"_s, {}},
        {u"DELETE FROM CastCrew WHERE Name = 'Nora Newcomer'", u"newcomer"_s, {u"C"_s}},
    };
    for (const Case &row : cases) {
        Run(row.statement);
        browser.find.Clear();
        EXPECT_EQ(Find(row.typed), row.keys) << qPrintable(QString::fromUtf16(row.statement));
    }
    // The same text, and nobody types.
    AddCredit(u"D"_s, u"Another Newcomer"_s);
    EXPECT_FALSE(browser.find.IsPartial());
    browser.find.FollowChanges();
    EXPECT_TRUE(browser.find.IsPartial());
    Finish();
    EXPECT_EQ(Keys().size(), 2);
}

TEST_F(FindBoxTest, WritesToOtherTablesLeaveTheIndexAlone) {
    Find(u"amber"_s);
    int wanted = 0;
    QObject::connect(&browser.find, &FindBox::WorkWanted, [&wanted] { ++wanted; });
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A', 'Drama')");
    WriteDbInfo(session, u"Anything"_s, u"1"_s);
    browser.find.FollowChanges();
    Find(u"cedar"_s);
    EXPECT_EQ(wanted, 0);
    Run(u"DELETE FROM CastCrew WHERE ProfileID = 'A'");
    browser.find.FollowChanges();
    EXPECT_EQ(wanted, 1);
}

TEST_F(FindBoxTest, ShowsWhatItCanWhileItReads) {
    browser.find.SetText(u"amber"_s);
    EXPECT_TRUE(browser.find.IsPartial());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0…"_s);
    Finish();
    EXPECT_FALSE(browser.find.IsPartial());
    EXPECT_EQ(Keys(), QStringList{u"A"_s});
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 1"_s);
    // The index that was there answers until the next one is made.
    AddCredit(u"D"_s, u"Amber Newcomer"_s);
    browser.find.SetText(u"ambe"_s);
    EXPECT_EQ(Keys(), QStringList{u"A"_s});
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 1…"_s);
    Finish();
    EXPECT_EQ(Keys().size(), 2);
}

TEST_F(FindBoxTest, NothingIsReadBeforeItIsUsed) {
    EXPECT_EQ(browser.find.Index(), nullptr);
    EXPECT_FALSE(browser.find.Step());
    browser.find.SetText(u"  "_s);
    EXPECT_EQ(browser.find.Index(), nullptr);
    browser.find.Prepare();
    Finish();
    ASSERT_TRUE(browser.find.Index());
    EXPECT_EQ(browser.find.Index()->OwnerCount(), 4);
}

TEST_F(FindBoxTest, AnotherDatabaseBeginsWithAnEmptyBox) {
    AttachBrowser(browser);
    Find(u"amber"_s);
    session.window.LoadDatabaseSettings();
    EXPECT_EQ(browser.find.Text(), QString());
    EXPECT_EQ(browser.find.Index(), nullptr);
    EXPECT_EQ(Keys().size(), 4);
}

TEST_F(FindBoxTest, ADatabaseThatIsGoneLeavesNothing) {
    Find(u"amber"_s);
    session.Database.reset();
    browser.find.SetText(u"cedar"_s);
    EXPECT_TRUE(Keys().isEmpty());
    EXPECT_FALSE(browser.find.Step());
    EXPECT_EQ(browser.find.Index(), nullptr);
}

TEST_F(FindBoxTest, TheRowThatIsKeptForTheNextRunMayBeHidden) {
    AttachBrowser(browser);
    UpdateSeriesList(browser, browser.listSeries.RowOfTitle(u"D"_s));
    Find(u"amber"_s);
    session.window.SaveDatabaseSettings();
    EXPECT_EQ(session.view.LastSelectedItem, u"D"_s);
}

TEST_F(FindBoxTest, NarrowsSeriesInTVView) {
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle) VALUES ('S1', 'Harbour', 'Hafen', 'H')");
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle) VALUES ('S2', 'Glade', '', 'G')");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeTitle) VALUES ('E1', 'S1', '1', 'Arrival')");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeTitle) VALUES ('E2', 'S2', '1', 'Dawn')");
    Run(u"INSERT INTO TVCastCrew (EpisodeID, Name, Role, Position, IsCast) VALUES ('E2', 'A. Marsh', 'R', 1, True)");
    Find(u"marsh"_s);
    ChangeMode(browser, false);
    Finish();
    EXPECT_EQ(Keys(), QStringList{u"S2"_s}); // the text stays, the list is another one
    EXPECT_EQ(Current(), u"S2"_s);
    EXPECT_EQ(session.CurrentSeriesID, u"S2"_s);
    ChangeMode(browser, true);
    Finish();
    EXPECT_EQ(Current(), Keys().value(0));
    EXPECT_EQ(session.CurrentProfileID, Current());
    ChangeMode(browser, false);
    Finish();
    EXPECT_EQ(Find(u"annie m."_s), QStringList{u"S2"_s});
    EXPECT_EQ(Find(u"hafen"_s), QStringList{u"S1"_s});
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 1"_s);
    EXPECT_EQ(Find(u"amber"_s), QStringList());
    ShowEpisode(browser, u"E1"_s);
    EXPECT_EQ(browser.find.Text(), QString());
    EXPECT_EQ(Current(), u"S1"_s);
    Find(u"glade"_s);
    Find({});
    EXPECT_EQ(Current(), u"S1"_s);
    ChangeMode(browser, true);
    EXPECT_EQ(Find(u"amber"_s), QStringList{u"A"_s});
}

TEST_F(FindBoxTest, ATitleThatWasHiddenIsRememberedWhenItIsLeft) {
    GetMovieNames(browser);
    MoveToRow(browser, browser.listSeries.RowOfTitle(u"D"_s));
    browser.history.Clear();
    Find(u"amber"_s);
    ASSERT_LT(browser.current_row, 0);
    MoveIntoList(browser);
    EXPECT_EQ(Current(), u"A"_s);
    EXPECT_EQ(browser.history.Back(), (QList<HistoryEntry>{{u"D"_s, u"Dune's End"_s}}));
    MoveIntoList(browser);
    EXPECT_EQ(browser.history.Back().size(), 1) << "a row is current";
    Find(u"nothing like it"_s);
    MoveIntoList(browser);
    EXPECT_EQ(browser.current_row, -1);
}

TEST_F(FindBoxTest, GroupsAreEnteredBelowTheirHeader) {
    Run(u"UPDATE Profiles SET Rating = 'PG'");
    SpecialProfileOrder(browser, u"Rating"_s);
    Find(u"dune"_s);
    browser.current_row = -1;
    MoveIntoList(browser);
    EXPECT_EQ(Current(), u"D|1"_s);
}

} // namespace
} // namespace ostrand
