#include "browser/CollectionTabs.h"

#include "ShelfFixture.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QStringList kProfilerTabs = {u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s, u"Archive"_s, u"Lent out"_s};

using CollectionTabs = ShelfTest;

TEST_F(CollectionTabs, TheDefaultTypesStandFirstWhetherUsedOrNot) {
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList, kProfilerTabs);
    EXPECT_EQ(browser.tabMain, (QStringList{u"Cast/Crew"_s, u"Details"_s, u"Audio/Video"_s}));
}

TEST_F(CollectionTabs, WithoutThemTheUsedTypesStandInTheirOrder) {
    session.view.UseProfilerColTypes = false;
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList, (QStringList{u"All"_s, u"Archive"_s, u"Lent out"_s, u"Ordered"_s, u"Owned"_s}));
}

TEST_F(CollectionTabs, ATypeThatIsNullHasNoTab) {
    Run(u"UPDATE Profiles SET ColType = Null");
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList, kProfilerTabs.first(4));
    session.view.UseProfilerColTypes = false;
    ReloadColTypeTabs(browser);
    EXPECT_EQ(browser.tabColList, QStringList{u"All"_s});
}

TEST_F(CollectionTabs, ADefaultTypeInAnotherCaseHasNoSecondTab) {
    Run(u"UPDATE Profiles SET ColType = 'OWNED' WHERE ColType = 'Owned'");
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList, kProfilerTabs);
}

TEST_F(CollectionTabs, AnEmptyDatabaseHasTheDefaultTabsAndEmptyLists) {
    Run(u"DELETE FROM Profiles");
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList, kProfilerTabs.first(4));
    ChangeMode(browser, true);
    EXPECT_EQ(browser.listSeries.rowCount(), 0);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    session.view.UseProfilerColTypes = false;
    ReloadColTypeTabs(browser);
    EXPECT_EQ(browser.tabColList, QStringList{u"All"_s});
}

TEST_F(CollectionTabs, TVViewHasOneTab) {
    session.view.mTVShows = true;
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList, QStringList{u"TV"_s});
    EXPECT_EQ(browser.tabMain.size(), 3);
}

TEST_F(CollectionTabs, CaptionsAreTranslated) {
    TranslateAs(u"All"_s, u"Alle"_s);
    TranslateAs(u"Owned"_s, u"Eigene"_s);
    TranslateAs(u"Archive"_s, u"Archiv"_s);
    TranslateAs(u"Details"_s, u"Einzelheiten"_s);
    TranslateAs(u"TV"_s, u"Serien"_s);
    LoadTabs(browser);
    EXPECT_EQ(browser.tabColList,
              (QStringList{u"Alle"_s, u"Eigene"_s, u"Ordered"_s, u"WishList"_s, u"Archiv"_s, u"Lent out"_s}));
    EXPECT_EQ(browser.tabMain[1], u"Einzelheiten"_s);
    SelectColTypeTab(browser, 5);
    EXPECT_EQ(SelectedColType(browser), u"Archive"_s);
    EXPECT_EQ(Keys(), QStringList{u"E1"_s});
    session.view.mTVShows = true;
    ReloadColTypeTabs(browser);
    EXPECT_EQ(browser.tabColList, QStringList{u"Serien"_s});
}

TEST_F(CollectionTabs, TheSelectedTabStaysWhereItIsStillThere) {
    LoadTabs(browser);
    ASSERT_TRUE(SelectTab(browser, 6));
    Run(u"UPDATE Profiles SET ColType = 'Basement' WHERE ProfileID = 'C1'");
    ReloadColTypeTabs(browser);
    EXPECT_EQ(browser.tabColList.value(browser.tabColList_selected - 1), u"Lent out"_s);
    EXPECT_EQ(browser.tabColList_selected, 7);
    Run(u"UPDATE Profiles SET ColType = 'Owned' WHERE ColType = 'Lent out'");
    ReloadColTypeTabs(browser);
    EXPECT_EQ(browser.tabColList_selected, 1);
}

TEST_F(CollectionTabs, AClickOnATabFillsTheListForIt) {
    LoadTabs(browser);
    const struct {
        int tab;
        QStringList keys;
    } cases[] = {
        {2, {u"A1"_s, u"B1"_s}},
        {3, {u"C1"_s}},
        {4, {}},
        {6, {u"Key_D1"_s}},
        {1, {u"A1"_s, u"B1"_s, u"C1"_s, u"Key_D1"_s, u"E1"_s}},
    };
    for (const auto &c : cases) {
        browser.comboFilter_text = u"Some filter"_s;
        SelectColTypeTab(browser, c.tab);
        EXPECT_EQ(Keys(), c.keys) << c.tab;
        EXPECT_EQ(browser.tabColList_selected, c.tab);
        EXPECT_EQ(browser.comboFilter_text, u"Some filter"_s) << "the filter stays displayed";
    }
    SelectColTypeTab(browser, 7);
    SelectColTypeTab(browser, 0);
    EXPECT_EQ(browser.tabColList_selected, 1) << "there is no such tab";
}

TEST_F(CollectionTabs, AClickOnTheTabOfTVViewLeavesTheList) {
    LoadTabs(browser);
    ChangeMode(browser, false);
    const QStringList series = Keys();
    SelectColTypeTab(browser, 1);
    EXPECT_EQ(Keys(), series);
    EXPECT_EQ(series.size(), 2);
}

TEST_F(CollectionTabs, ATypeThatBreaksTheStatementLeavesAnEmptyList) {
    Run(u"UPDATE Profiles SET ColType = 'Bob''s' WHERE ProfileID = 'E1'");
    LoadTabs(browser);
    SelectColTypeTab(browser, 2);
    SelectColTypeTab(browser, int(browser.tabColList.indexOf(u"Bob's"_s)) + 1);
    EXPECT_EQ(Keys(), QStringList());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"Error:    GetMovieNames: "_s));
}

TEST_F(CollectionTabs, AMainTabIsRememberedAndShowsTheTitleAgain) {
    LoadTabs(browser);
    ChangeMode(browser, true);
    ASSERT_EQ(session.CurrentProfileID, u"A1"_s);
    int titles = 0;
    int tabs = 0;
    QObject::connect(&browser, &Browser::TitleChanged, [&] { ++titles; });
    QObject::connect(&browser, &Browser::MainTabChanged, [&] { ++tabs; });
    SelectMainTab(browser, 3);
    EXPECT_EQ(browser.tabMain_selected, 3);
    EXPECT_EQ(session.view.LastTab, 3);
    EXPECT_EQ(titles, 1);
    EXPECT_EQ(tabs, 1);
    EXPECT_TRUE(LogLines().last().contains(u"GetProfileInfos(A1, False, True)"_s)) << qPrintable(LogLines().last());
    SelectMainTab(browser, 4);
    EXPECT_EQ(session.view.LastTab, 1) << "there is no such tab";
    EnableTab(browser, 2);
    EXPECT_EQ(browser.tabMain_selected, 2);
    EXPECT_EQ(session.view.LastTab, 2);
}

TEST_F(CollectionTabs, TheFilterShowsInMovieViewWhenItIsWished) {
    const struct {
        bool wished, tv, shown;
    } cases[] = {{true, false, true}, {false, false, false}, {true, true, false}, {false, true, false}};
    for (const auto &c : cases) {
        session.view.mShowFilter = c.wished;
        session.view.mTVShows = c.tv;
        ApplyFilterLayout(browser);
        EXPECT_EQ(browser.filter_shown, c.shown) << c.wished << c.tv;
    }
    session.view.mTVShows = false;
    session.view.mShowFilter = true;
    ReloadColTypeTabs(browser);
    EXPECT_TRUE(browser.filter_shown) << "rebuilding the tabs applies it";
}

TEST(Filters, QualifyByTheTextBeforeTheFirstFrom) {
    const QString columns =
        u"p.Title, p.ProfileID, p.ColNo, p.SortTitle, p.OriginalTitle, p.OriginalSortTitle, p.Description"_s;
    const struct {
        const char *name;
        QString statement;
        bool qualifies;
    } cases[] = {
        {"all columns", u"SELECT "_s + columns + u" FROM Profiles p"_s, true},
        {"in capitals", (u"select "_s + columns + u" from profiles p"_s).toUpper(), true},
        {"more columns and lines", u"SELECT DISTINCT p.Runtime,\r\n"_s + columns + u"\r\nFROM Profiles p"_s, true},
        {"another alias", u"SELECT "_s + QString(columns).replace(u"p."_s, u"q."_s) + u" FROM Profiles q"_s, false},
        {"a title without its alias",
         u"SELECT "_s + QString(columns).replace(u"p.Title"_s, u"Title"_s) + u" FROM Profiles p"_s, false},
        {"columns behind the table", u"SELECT p.Title FROM Profiles p ORDER BY "_s + columns, false},
        {"no table", u"SELECT "_s + columns, false},
        {"nothing", {}, false},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(QualifiesAsFilter(c.statement), c.qualifies) << c.name;
    }
    for (const QString &column : columns.split(u", "_s)) {
        QStringList others = columns.split(u", "_s);
        others.removeOne(column);
        EXPECT_FALSE(QualifiesAsFilter(u"SELECT "_s + others.join(u", "_s) + u" FROM Profiles p"_s))
            << "without " << qPrintable(column);
    }
}

class FilterBox : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        Save(u"Short titles"_s, Filter(u"WHERE Len(p.Title) < 5 ORDER BY p.SortTitle"_s));
        Save(u"Counts"_s, u"SELECT Count(*) FROM Profiles"_s);
        Save(u"A's"_s, Filter(u"WHERE p.Title LIKE 'A*'"_s));
        LoadTabs(browser);
        ChangeMode(browser, true);
        UpdateFilters(browser);
    }
    static QString Filter(const QString &end) {
        return u"SELECT p.Title, p.ProfileID, p.ColNo, p.SortTitle, p.OriginalTitle, p.OriginalSortTitle, "
               u"p.Description, p.CustomTitle, p.CustomSortTitle FROM Profiles p "_s +
               end;
    }
    void Save(const QString &name, const QString &statement) {
        Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('%1', '%2')"_s.arg(EscapeSql(name),
                                                                                     EscapeSql(statement)));
    }
};

TEST_F(FilterBox, HoldsTheQualifyingQueriesByNameBetweenTheFixedEntries) {
    EXPECT_EQ(browser.comboFilter, (QStringList{u"Clear Filter"_s, u"Filter Profiles by Tags"_s, u"A's"_s,
                                                u"Short titles"_s, u"Add/Edit Filter"_s}));
    TranslateAs(u"Clear Filter"_s, u"Kein Filter"_s);
    TranslateAs(u"Add/Edit Filter"_s, u"Filter bearbeiten"_s);
    UpdateFilters(browser);
    EXPECT_EQ(browser.comboFilter.front(), u"Kein Filter"_s);
    EXPECT_EQ(browser.comboFilter.back(), u"Filter bearbeiten"_s);
}

TEST_F(FilterBox, AFilterFillsTheListUntilItIsCleared) {
    ChooseFilter(browser, u"Short titles"_s);
    EXPECT_EQ(browser.comboFilter_text, u"Short titles"_s);
    EXPECT_EQ(browser.listSeries.rowCount(), 1);
    EXPECT_EQ(session.CurrentProfileID, u"E1"_s);
    ChooseFilter(browser, u"Clear Filter"_s);
    EXPECT_EQ(browser.listSeries.rowCount(), 5);
    EXPECT_EQ(browser.comboFilter_text, u"Clear Filter"_s);
    ChooseFilter(browser, {});
    EXPECT_EQ(browser.listSeries.rowCount(), 5);
}

TEST_F(FilterBox, ATranslatedEntryIsKnown) {
    TranslateAs(u"Clear Filter"_s, u"Kein Filter"_s);
    ChooseFilter(browser, u"Short titles"_s);
    ChooseFilter(browser, u"Kein Filter"_s);
    EXPECT_EQ(browser.listSeries.rowCount(), 5);
}

TEST_F(FilterBox, AnEntryWithoutItsWindowDoesNothing) {
    EXPECT_TRUE(FilterEntryAvailable(browser, 0));
    EXPECT_FALSE(FilterEntryAvailable(browser, 1));
    EXPECT_TRUE(FilterEntryAvailable(browser, 2));
    EXPECT_FALSE(FilterEntryAvailable(browser, 4));
    EXPECT_FALSE(FilterEntryAvailable(browser, 5));
    ChangeMode(browser, false);
    const QStringList series = Keys();
    ChooseFilter(browser, u"Filter Profiles by Tags"_s);
    ChooseFilter(browser, u"Add/Edit Filter"_s);
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(Keys(), series);
}

TEST_F(FilterBox, OpensTheWindowsThatExist) {
    QStringList opened;
    browser.commands.Handle(u"mSQLQuery"_s, [&] { opened << u"SQL"_s; });
    browser.hooks.ShowFilterTags = [&] { opened << (session.view.mTVShows ? u"tags in TV view"_s : u"tags"_s); };
    EXPECT_TRUE(FilterEntryAvailable(browser, 1));
    EXPECT_TRUE(FilterEntryAvailable(browser, 4));
    ChooseFilter(browser, u"Add/Edit Filter"_s);
    ChooseFilter(browser, u"Filter Profiles by Tags"_s);
    ChangeMode(browser, false);
    ChooseFilter(browser, u"Filter Profiles by Tags"_s);
    EXPECT_EQ(opened, (QStringList{u"SQL"_s, u"tags"_s, u"tags"_s})) << "the view changes to movies first";
    EXPECT_FALSE(session.view.mTVShows);
}

TEST_F(FilterBox, WhatWasSavedMeanwhileIsThereWhenTheListOpens) {
    ChooseFilter(browser, u"Short titles"_s);
    Save(u"Long titles"_s, Filter(u"WHERE Len(p.Title) > 5"_s));
    Run(u"DELETE FROM SQLQueries WHERE Name LIKE 'A*'");
    OpenFilterList(browser);
    EXPECT_EQ(browser.comboFilter, (QStringList{u"Clear Filter"_s, u"Filter Profiles by Tags"_s, u"Long titles"_s,
                                                u"Short titles"_s, u"Add/Edit Filter"_s}));
    EXPECT_EQ(browser.comboFilter_text, u"Short titles"_s) << "still displayed";
    EXPECT_EQ(browser.listSeries.rowCount(), 1);
    Run(u"DELETE FROM SQLQueries WHERE Name = 'Short titles'");
    OpenFilterList(browser);
    EXPECT_EQ(browser.comboFilter_text, QString());
}

TEST_F(FilterBox, AFaultLeavesTheFixedEntries) {
    Run(u"DROP TABLE SQLQueries");
    OpenFilterList(browser);
    EXPECT_TRUE(browser.comboFilter.startsWith(u"Clear Filter"_s));
    EXPECT_TRUE(LogLines().last().startsWith(u"Error:    OpenFilterList: "_s)) << qPrintable(LogLines().last());
}

TEST_F(FilterBox, AnEmptyBoxTellsWhereFiltersComeFrom) {
    OpenFilterList(browser);
    EXPECT_TRUE(services.dialogs.messages.empty());
    browser.comboFilter.clear();
    Expect(u"No Filter defined! Filters are created through 'Tools->SQL Query'."_s, u"No Filter defined"_s,
           MessageIcon::Information);
    OpenFilterList(browser);
    EXPECT_EQ(services.dialogs.messages.size(), 1u);
}

} // namespace
} // namespace ostrand
