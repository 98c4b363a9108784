#include "browser/TagFilter.h"

#include "browser/Attach.h"
#include "browser/BrowserFixture.h"
#include "browser/CreditCommands.h"
#include "browser/Views.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using enum TagFilter::Operator;

class TagFilterTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        Log(kTraceError);
        AddProfile(u"Mill"_s);
        AddProfile(u"Arc"_s, u"ColType = 'Ordered'"_s);
        AddProfile(u"Bay"_s, u"SortTitle = 'zz'"_s);
        AddProfile(u"Cove"_s);
        AddTag(u"Mill"_s, u"Mood/Dark"_s);
        AddTag(u"Mill"_s, u"Tom's"_s);
        AddTag(u"Arc"_s, u"Mood/Dark"_s);
        AddTag(u"Bay"_s, u"Tom's"_s);
        GetMovieNames(browser);
    }
    void AddTag(const QString &profile, const QString &tag, const QString &name = {}) {
        Run(u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('%1', '%2', '%3')"_s.arg(
            profile, EscapeSql(name.isEmpty() ? tag : name), EscapeSql(tag)));
    }
    QStringList Filter(const QStringList &tags, TagFilter::Operator combined = Or, bool negated = false) {
        UpdateCollectionList(browser, {.tags = tags, .combined = combined, .negated = negated});
        return Column();
    }
};

TEST_F(TagFilterTest, OperatorsAndTabs) {
    const QStringList dark = {u"Mood/Dark"_s};
    const QStringList both = {u"Mood/Dark"_s, u"Tom's"_s};
    const struct {
        const char *what;
        const char *tab;
        QStringList tags;
        TagFilter::Operator combined;
        bool negated;
        QStringList titles;
    } cases[] = {
        {"no tag", "All", {}, Or, false, {u"Arc"_s, u"Cove"_s, u"Mill"_s, u"Bay"_s}},
        {"no tag, AND", "All", {}, And, false, {u"Arc"_s, u"Cove"_s, u"Mill"_s, u"Bay"_s}},
        {"no tag of a tab", "Owned", {}, Or, false, {u"Cove"_s, u"Mill"_s, u"Bay"_s}},
        {"one tag", "All", dark, Or, false, {u"Arc"_s, u"Mill"_s}},
        {"one tag, AND", "All", dark, And, false, {u"Arc"_s, u"Mill"_s}},
        {"one tag of a tab", "Owned", dark, Or, false, {u"Mill"_s}},
        {"any of two", "All", both, Or, false, {u"Arc"_s, u"Mill"_s, u"Bay"_s}},
        {"all of two", "All", both, And, false, {u"Mill"_s}},
        {"all of two of a tab", "Ordered", both, And, false, {}},
        {"a level that no title has as its tag", "All", {u"Mood"_s}, Or, false, {}},
        {"such a level and a tag, AND", "All", {u"Mood"_s, u"Mood/Dark"_s}, And, false, {}},
        {"such a level and a tag, OR", "All", {u"Mood"_s, u"Mood/Dark"_s}, Or, false, {u"Arc"_s, u"Mill"_s}},
        {"cases are one", "All", {u"MOOD/dark"_s}, Or, false, {u"Arc"_s, u"Mill"_s}},
        {"not, no tag", "All", {}, Or, true, {u"Arc"_s, u"Cove"_s, u"Mill"_s, u"Bay"_s}},
        {"not, no tag of a tab", "Ordered", {}, Or, true, {u"Arc"_s}},
        {"not, one tag", "All", dark, Or, true, {u"Cove"_s, u"Bay"_s}},
        {"not any of two", "All", both, Or, true, {u"Cove"_s}},
        {"not, whatever the operator", "All", both, And, true, {u"Cove"_s}},
        {"not, of a tab", "Owned", dark, And, true, {u"Cove"_s, u"Bay"_s}},
        {"a tab without a title", "WishList", dark, Or, true, {}},
    };
    for (const auto &c : cases) {
        SelectTab(QString::fromLatin1(c.tab));
        EXPECT_EQ(Filter(c.tags, c.combined, c.negated), c.titles) << c.what;
        EXPECT_EQ(browser.labelFilterCount, u"Filtered: %1"_s.arg(c.titles.size())) << c.what;
        EXPECT_EQ(browser.current_row, c.titles.isEmpty() ? -1 : 0) << c.what;
        if (!c.titles.isEmpty()) {
            EXPECT_EQ(session.CurrentProfileID, c.titles.front()) << c.what;
        }
    }
    EXPECT_EQ(LogLines(), QStringList());
}

TEST_F(TagFilterTest, ATitleWithoutAnyTextTakesNoOtherOutOfTheList) {
    AddProfile(u"Nameless"_s, u"Title = '', SortTitle = ''"_s);
    EXPECT_EQ(Filter({}), (QStringList{QString(), u"Arc"_s, u"Cove"_s, u"Mill"_s, u"Bay"_s}));
    EXPECT_EQ(Filter({u"Mood/Dark"_s}, Or, true), (QStringList{QString(), u"Cove"_s, u"Bay"_s}));
    EXPECT_EQ(LogLines(), QStringList());
}

TEST_F(TagFilterTest, TypesIncludedInOwnedStayOut) {
    session.view.IncludeInOwned = u"Ordered"_s;
    SelectTab(u"Owned"_s);
    EXPECT_EQ(Movies().size(), 4);
    EXPECT_EQ(Filter({u"Mood/Dark"_s}), QStringList{u"Mill"_s});
    EXPECT_EQ(Filter({}), (QStringList{u"Cove"_s, u"Mill"_s, u"Bay"_s}));
    EXPECT_EQ(Filter({u"Mood/Dark"_s}, Or, true), (QStringList{u"Cove"_s, u"Bay"_s}));
}

TEST_F(TagFilterTest, ATagThatATitleHasTwiceCountsTwice) {
    AddTag(u"Arc"_s, u"Mood/Dark"_s, u"Again"_s);
    EXPECT_EQ(Filter({u"Mood/Dark"_s}, And), QStringList{u"Mill"_s}) << "told by the number of rows";
    EXPECT_EQ(Filter({u"Mood/Dark"_s, u"Tom's"_s}, And), (QStringList{u"Arc"_s, u"Mill"_s}));
    EXPECT_EQ(Filter({u"Mood/Dark"_s}, Or), (QStringList{u"Arc"_s, u"Mill"_s}));
}

TEST_F(TagFilterTest, RowsAreThoseOfAFilteredList) {
    Run(u"UPDATE Profiles SET ColNo = '1234567', CustomTitle = 'My Mill', CustomSortTitle = 'mine', OriginalTitle = "
        u"'Moulin', Description = 'Long' WHERE ProfileID = 'Mill'");
    session.view.mUseCustomTitle = true;
    session.view.mShowDescription = true;
    session.view.DescFormat = 1;
    for (const bool negated : {false, true}) {
        Filter({negated ? u"None"_s : u"Mood/Dark"_s}, Or, negated);
        const int row = negated ? 2 : 1;
        ASSERT_GT(browser.listSeries.rowCount(), row);
        const TitleRow &mill = browser.listSeries.At(row);
        EXPECT_EQ(mill.key, u"Mill|0"_s);
        EXPECT_EQ(mill.tag, u"Moulin"_s);
        EXPECT_EQ(mill.texts[TitleList::Title], u"Mill"_s) << "neither custom titles nor descriptions";
        EXPECT_EQ(mill.texts[TitleList::Number], u"34567"_s);
        EXPECT_EQ(mill.texts[TitleList::Year], QString());
        EXPECT_FALSE(mill.header);
    }
    EXPECT_FALSE(browser.SpecialOrder) << "these are no groups";
    EXPECT_FALSE(browser.listSeries.IsSorted());
    EXPECT_EQ(OptionalWidths(), (std::vector<double>{0.25, 0, 0, 0}));
}

TEST_F(TagFilterTest, ColoursAsTheyAreOn) {
    session.view.mcolorlist = false;
    Filter({});
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::None);
    session.view.mcolorlist = true;
    Filter({});
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::KeepBold);
}

TEST_F(TagFilterTest, SortingKeepsTheFilter) {
    session.view.BoxsetView = false;
    Filter({u"Mood/Dark"_s});
    ASSERT_EQ(Column(), (QStringList{u"Arc"_s, u"Mill"_s}));
    ReOrderSeriesList(browser, 0, TitleList::Order::Descending);
    EXPECT_EQ(Column(), (QStringList{u"Mill"_s, u"Arc"_s}));
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 2"_s);
    EXPECT_EQ(session.CurrentProfileID, u"Arc"_s);
    EXPECT_EQ(browser.current_row, 1);
    session.view.BoxsetView = true;
    ReOrderSeriesList(browser, 0, TitleList::Order::Descending);
    EXPECT_EQ(Column().size(), 4) << "the boxsets make way for the plain list of the tab";
}

TEST_F(TagFilterTest, GroupsBeforeItAreForgotten) {
    session.view.BoxsetView = false;
    Run(u"UPDATE Profiles SET Rating = 'PG'");
    Groups(u"Rating"_s);
    ASSERT_TRUE(browser.SpecialOrder);
    Filter({u"Mood/Dark"_s});
    EXPECT_TRUE(browser.filtered_by_tags);
    ReOrderSeriesList(browser, 0, TitleList::Order::Ascending);
    EXPECT_EQ(Column(), (QStringList{u"Arc"_s, u"Mill"_s}));
    GetMovieNames(browser);
    EXPECT_FALSE(browser.filtered_by_tags);
}

TEST_F(TagFilterTest, AnEmptyListLeavesTheAppearancesOfThePersonShown) {
    Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('Arc', 'Ada Holm', 'Cat', "
        u"1, True, 0)");
    UpdateCastInfo(browser, u"Ada Holm"_s, u"0"_s);
    ASSERT_EQ(browser.appearances.listAppearences.Rows().size(), 1);
    EXPECT_EQ(Filter({u"Nobody's"_s}), QStringList());
    EXPECT_EQ(browser.appearances.listAppearences.Rows().size(), 1) << "the panels still tell of the title before";
    EXPECT_EQ(Filter({u"Mood/Dark"_s}).size(), 2);
    EXPECT_EQ(browser.appearances.listAppearences.Rows().size(), 0);
}

TEST_F(TagFilterTest, TVViewIsLeftAlone) {
    ChangeMode(browser, false);
    const QString count = browser.labelFilterCount;
    EXPECT_EQ(Filter({u"Mood/Dark"_s}), QStringList());
    EXPECT_EQ(browser.labelFilterCount, count);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_FALSE(browser.SpecialOrder);
}

TEST_F(TagFilterTest, WithoutADatabaseNothingHappens) {
    session.Database.reset();
    EXPECT_EQ(Filter({}).size(), 4) << "as it was";
}

TEST_F(TagFilterTest, ATabThatBreaksTheStatementGivesAnEmptyList) {
    for (const bool negated : {false, true}) {
        browser.tabColList = QStringList{u"All"_s, u"Bob's"_s};
        browser.tabColList_selected = 2;
        EXPECT_EQ(Filter({u"Mood/Dark"_s}, Or, negated), QStringList());
        EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
        EXPECT_EQ(browser.current_row, -1);
    }
    const QStringList lines = LogLines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"Error:    UpdateCollectionList: "_s)) << qPrintable(lines[0]);
}

TEST_F(TagFilterTest, ATextThatNoTabHasIsUsedAsAType) {
    browser.tabColList = QStringList{u"Alles"_s};
    browser.tabColList_selected = 1;
    EXPECT_EQ(Filter({}), QStringList());
    EXPECT_EQ(Filter({u"Mood/Dark"_s}), QStringList());
    EXPECT_EQ(Filter({u"Mood/Dark"_s}, Or, true), QStringList());
    EXPECT_EQ(LogLines(), QStringList());
}

TEST_F(TagFilterTest, ATranslatedTabIsTurnedBack) {
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Ordered', 'Bestellt')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Filtered:', 'Gefiltert:')");
    browser.tabColList = QStringList{u"All"_s, u"Bestellt"_s};
    browser.tabColList_selected = 2;
    EXPECT_EQ(Filter({u"Mood/Dark"_s}), QStringList{u"Arc"_s});
    EXPECT_EQ(browser.labelFilterCount, u"Gefiltert: 1"_s);
}

TEST_F(TagFilterTest, StatementsAsAgreed) {
    QStringList statements;
    session.Database->SetObserver([&](QStringView statement) {
        if (statement.contains(u"Profiles p ") && statement.contains(u"p.SortTitle")) {
            statements << statement.toString();
        }
    });
    const auto sent = [&](const char *tab, const QStringList &tags, bool negated) {
        statements.clear();
        SelectTab(QString::fromLatin1(tab));
        Filter(tags, Or, negated);
        return statements.join(u'\n');
    };
    const QString fields =
        u"SELECT p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, p.OriginalSortTitle,p.Description"_s;
    const QString groups = u" GROUP BY p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, "
                           u"p.OriginalSortTitle, p.Description ORDER BY p.SortTitle"_s;
    const QString tagged = fields + u", COUNT(p.ProfileID) as [Count] FROM Profiles p  INNER JOIN Tags t ON "
                                    u"t.ProfileID=p.ProfileID WHERE "_s;
    EXPECT_EQ(sent("All", {}, false), fields + u" FROM Profiles p ORDER BY p.SortTitle"_s);
    EXPECT_EQ(sent("Owned", {}, false), fields + u" FROM Profiles p  WHERE ColType = 'Owned' ORDER BY p.SortTitle"_s);
    EXPECT_EQ(sent("All", {u"Tom's"_s}, false), tagged + u"(t.FullyQualifiedName = 'Tom''s')"_s + groups);
    EXPECT_EQ(sent("Owned", {u"A"_s, u"B/C"_s}, false),
              tagged + u" ColType = 'Owned'  AND (t.FullyQualifiedName = 'A' OR t.FullyQualifiedName = 'B/C')"_s +
                  groups);
    EXPECT_EQ(sent("All", {}, true), u"SELECT * FROM Profiles p  ORDER BY p.SortTitle"_s);
    EXPECT_EQ(sent("Owned", {u"A"_s}, true),
              tagged + u" ColType = 'Owned'  AND (t.FullyQualifiedName = 'A')"_s + groups +
                  u"\nSELECT * FROM Profiles p  WHERE  ColType = 'Owned'  ORDER BY p.SortTitle"_s);
    session.Database->SetObserver({});
}

TEST_F(TagFilterTest, TellsWhenTagsMayHaveChanged) {
    AttachBrowser(browser);
    QList<bool> told;
    QObject::connect(&browser, &Browser::TagsChanged, [&](bool other_collection) { told << other_collection; });
    session.window.ReloadTitles();
    EXPECT_EQ(told, QList<bool>{false}) << "after an import";
    session.window.GetLastSelectedItem();
    EXPECT_EQ(told, (QList<bool>{false, true})) << "another database was opened";
    session.Database.reset();
    ShowNoCollection(browser);
    EXPECT_EQ(told, (QList<bool>{false, true, true})) << "none is open";
}

} // namespace
} // namespace ostrand
