#include "browser/TitleQueries.h"

#include "browser/BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using Colour = TitleList::Colour;

class TitleQueriesTest : public BrowserTest {
protected:
    void AddBoxset() {
        AddProfile(u"Alpha"_s);
        AddProfile(u"Box"_s);
        AddProfile(u"Two"_s);
        AddProfile(u"One"_s);
        AddProfile(u"Zulu"_s);
        AddChild(u"Two"_s, u"Box"_s);
        AddChild(u"One"_s, u"Box"_s);
    }
    const TitleRow &RowOf(const QString &key) {
        const int row = browser.listSeries.RowOfKey(key);
        EXPECT_GE(row, 0) << key.toStdString();
        static const TitleRow kNone;
        return row < 0 ? kNone : browser.listSeries.At(row);
    }
};

TEST_F(TitleQueriesTest, ListsTheTypeOfTheTab) {
    AddProfile(u"Mill"_s);
    AddProfile(u"Dune Road"_s, u"ColType = 'Ordered'"_s);
    AddProfile(u"Arc"_s, u"ColType = 'WishList'"_s);
    const std::pair<QString, QStringList> rows[] = {
        {u"All"_s, {u"Arc"_s, u"Dune Road"_s, u"Mill"_s}},
        {u"Owned"_s, {u"Mill"_s}},
        {u"Ordered"_s, {u"Dune Road"_s}},
        {u"WishList"_s, {u"Arc"_s}},
    };
    for (const bool boxset_view : {true, false}) {
        for (const auto &[tab, titles] : rows) {
            session.view.BoxsetView = boxset_view;
            SelectTab(tab);
            EXPECT_EQ(Movies(), titles) << tab.toStdString();
            EXPECT_EQ(browser.labelFilterCount, u"Filtered: %1"_s.arg(titles.size()));
        }
    }
}

TEST_F(TitleQueriesTest, TranslatedTabIsTurnedBack) {
    AddProfile(u"Mill"_s);
    AddProfile(u"Arc"_s, u"ColType = 'Ordered'"_s);
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Ordered', 'Bestellt')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Filtered:', 'Gefiltert:')");
    session.UseUserDefinedStrings = true;
    browser.tabColList[2] = u"Bestellt"_s;
    SelectTab(u"Bestellt"_s);
    EXPECT_EQ(Movies(), QStringList{u"Arc"_s});
    EXPECT_EQ(browser.labelFilterCount, u"Gefiltert: 1"_s);
}

TEST_F(TitleQueriesTest, EmptyListIsNormal) {
    int selections = 0;
    QObject::connect(&browser, &Browser::CurrentRowChanged, [&selections] { ++selections; });
    EXPECT_EQ(Movies(), QStringList());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(selections, 1);
}

TEST_F(TitleQueriesTest, WithoutADatabaseTheListIsEmpty) {
    session.Database.reset();
    EXPECT_EQ(Movies(), QStringList());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
}

TEST_F(TitleQueriesTest, FirstTitleBecomesCurrent) {
    AddProfile(u"Mill"_s);
    AddProfile(u"Arc"_s);
    int counts = 0;
    QObject::connect(&browser, &Browser::FilterCountChanged, [&counts] { ++counts; });
    GetMovieNames(browser);
    EXPECT_EQ(browser.current_row, 0);
    EXPECT_EQ(session.CurrentProfileID, u"Arc"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(counts, 1);
}

TEST_F(TitleQueriesTest, RowHoldsItsColumns) {
    session.view.mShowDescription = true;
    AddProfile(u"Key_1.1"_s, u"Title = 'Mill', SortTitle = 'Mill, The', OriginalTitle = 'Muehle', Description = 'Cut', "
                             "ColNo = '17', ProdYear = 1999, Released = '2001-05-14'"_s);
    Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('Key_1.1', '2003-02-01 10:30:00')");
    GetMovieNames(browser);
    const TitleRow &row = RowOf(u"Key_1.1"_s);
    EXPECT_EQ(row.tag, u"Muehle"_s);
    EXPECT_EQ(row.tool_tip, u"Mill: Cut"_s);
    EXPECT_FALSE(row.header);
    const std::array<QString, kTitleColumns> texts = {u"Mill: Cut"_s, u"   17"_s,      u"Mill, The"_s,
                                                      u"1999"_s,      u"2003-02-01"_s, u"2001-05-14"_s};
    EXPECT_EQ(row.texts, texts);
}

TEST_F(TitleQueriesTest, ProfileWithoutValuesStillAppears) {
    AddProfile(u"Mill"_s);
    GetMovieNames(browser);
    const std::array<QString, kTitleColumns> texts = {u"Mill"_s, u"     "_s, u"Mill"_s,
                                                      QString(), QString(),  QString()};
    EXPECT_EQ(RowOf(u"Mill"_s).texts, texts) << "no row of PurchaseInfo, an empty P.Date";
    EXPECT_EQ(RowOf(u"Mill"_s).tag, u"Mill"_s) << "the title stands in for the original one";
}

TEST_F(TitleQueriesTest, NumbersAndDatesOfTopRowsAndChildren) {
    struct {
        QStringView columns;
        TitleList::Column column;
        QStringView top;
        QStringView child;
    } const rows[] = {
        {u"ColNo = '7'", TitleList::Number, u"    7", u"    7"},
        {u"ColNo = '12345'", TitleList::Number, u"12345", u"12345"},
        {u"ColNo = '1234567'", TitleList::Number, u"1234567", u"34567"},
        {u"Released = '1899-12-30'", TitleList::ReleaseDate, u"", u"1899-12-30"},
        {u"Released = '1998-03-04 12:00:00'", TitleList::ReleaseDate, u"1998-03-04", u"1998-03-04"},
        {u"Released = Null", TitleList::ReleaseDate, u"", u""},
    };
    AddProfile(u"Box"_s);
    AddProfile(u"Child"_s);
    AddChild(u"Child"_s, u"Box"_s);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.columns.toString().toStdString());
        Run(u"UPDATE Profiles SET %1"_s.arg(row.columns.toString()));
        GetMovieNames(browser);
        EXPECT_EQ(RowOf(u"Box"_s).texts[row.column], row.top.toString());
        EXPECT_EQ(RowOf(u"Child"_s).texts[row.column], row.child.toString());
    }
}

TEST_F(TitleQueriesTest, ChildrenStandBelowTheirParent) {
    AddBoxset();
    EXPECT_EQ(Movies(), QStringList({u"Alpha"_s, u"Box"_s, u"     One"_s, u"     Two"_s, u"Zulu"_s}));
    EXPECT_EQ(Keys(), QStringList({u"Alpha"_s, u"Box"_s, u"One"_s, u"Two"_s, u"Zulu"_s}));
    EXPECT_EQ(RowOf(u"One"_s).texts[TitleList::SortTitle], u"Box - One"_s);
    EXPECT_EQ(RowOf(u"One"_s).tool_tip, u"One"_s);
    EXPECT_EQ(RowOf(u"One"_s).tag, u"One"_s);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 5"_s);
    EXPECT_TRUE(browser.listSeries.IsSorted());
    session.view.BoxsetView = false;
    EXPECT_EQ(Movies(), QStringList({u"Alpha"_s, u"Box"_s, u"One"_s, u"Two"_s, u"Zulu"_s}));
}

TEST_F(TitleQueriesTest, ChildrenStayBehindTheirParentAmongSimilarTitles) {
    for (const QString &title : {u"Mill"_s, u"Mill Road"_s, u"Mill!"_s, u"Mill 2"_s, u"Mill-Wheel"_s}) {
        AddProfile(title);
    }
    AddProfile(u"Zebra"_s);
    AddChild(u"Zebra"_s, u"Mill"_s);
    EXPECT_EQ(Movies().mid(0, 2), QStringList({u"Mill"_s, u"     Zebra"_s}));
}

TEST_F(TitleQueriesTest, BoxsetsNest) {
    for (const QString &title : {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}) {
        AddProfile(title);
    }
    AddChild(u"B"_s, u"A"_s);
    AddChild(u"C"_s, u"B"_s);
    AddChild(u"D"_s, u"C"_s);
    AddChild(u"E"_s, u"A"_s);
    EXPECT_EQ(Movies(), QStringList({u"A"_s, u"     B"_s, u"          C"_s, u"               D"_s, u"     E"_s}));
    EXPECT_EQ(RowOf(u"D"_s).texts[TitleList::SortTitle], u"A - B - C - D"_s);
}

TEST_F(TitleQueriesTest, ChildrenAreTakenWhateverTheirTypeAndSpelling) {
    AddProfile(u"Key_Box"_s, u"Title = 'Box', SortTitle = 'Box'"_s);
    AddProfile(u"Key_Child"_s, u"Title = 'Child', SortTitle = 'Child', ColType = 'WishList'"_s);
    AddChild(u"KEY_CHILD"_s, u"key_box"_s);
    SelectTab(u"Owned"_s);
    EXPECT_EQ(Movies(), QStringList({u"Box"_s, u"     Child"_s}));
    SelectTab(u"WishList"_s);
    EXPECT_EQ(Movies(), QStringList()) << "a child is listed under its parent only";
}

TEST_F(TitleQueriesTest, ChildOfAMissingParentIsNoTopRow) {
    AddProfile(u"Child"_s);
    AddChild(u"Child"_s, u"Gone"_s);
    EXPECT_EQ(Movies(), QStringList());
    session.view.BoxsetView = false;
    EXPECT_EQ(Movies(), QStringList{u"Child"_s});
}

TEST_F(TitleQueriesTest, ChildOfTwoParentsStandsUnderTheFirst) {
    AllowManyParents();
    AddBoxset();
    AddProfile(u"Inner"_s);
    AddChild(u"One"_s, u"Alpha"_s);
    AddChild(u"Inner"_s, u"One"_s);
    EXPECT_EQ(Movies(),
              QStringList({u"Alpha"_s, u"     One"_s, u"          Inner"_s, u"Box"_s, u"     Two"_s, u"Zulu"_s}));
}

TEST_F(TitleQueriesTest, BoxsetsThatContainThemselvesEnd) {
    AllowManyParents();
    for (const QString &title : {u"Top"_s, u"A"_s, u"B"_s, u"Self"_s, u"X"_s, u"Y"_s}) {
        AddProfile(title);
    }
    AddChild(u"A"_s, u"Top"_s);
    AddChild(u"B"_s, u"A"_s);
    AddChild(u"A"_s, u"B"_s);
    AddChild(u"Self"_s, u"Top"_s);
    AddChild(u"Self"_s, u"Self"_s);
    AddChild(u"X"_s, u"Y"_s);
    AddChild(u"Y"_s, u"X"_s);
    EXPECT_EQ(Movies(), QStringList({u"Top"_s, u"     A"_s, u"          B"_s, u"     Self"_s}));
}

TEST_F(TitleQueriesTest, DeepNestingDoesNotOverflow) {
    constexpr int kDepth = 1000;
    AddProfile(u"0"_s);
    for (int i = 1; i <= kDepth; ++i) {
        AddProfile(QString::number(i));
        AddChild(QString::number(i), QString::number(i - 1));
    }
    GetMovieNames(browser);
    ASSERT_EQ(browser.listSeries.rowCount(), kDepth + 1);
    EXPECT_EQ(browser.listSeries.At(kDepth).texts[TitleList::Title].size(), kDepth * 5 + 4);
}

TEST_F(TitleQueriesTest, StatementsDoNotGrowWithTheTitles) {
    AddBoxset();
    int statements = 0;
    session.Database->SetObserver([&statements](QStringView) { ++statements; });
    GetMovieNames(browser);
    const int before = statements;
    for (int i = 0; i < 20; ++i) {
        AddProfile(u"T%1"_s.arg(i));
    }
    statements = 0;
    GetMovieNames(browser);
    EXPECT_EQ(browser.listSeries.rowCount(), 25);
    EXPECT_EQ(statements, before);
    session.Database->SetObserver({});
}

TEST_F(TitleQueriesTest, OwnedIncludesOtherTypes) {
    AddProfile(u"Mill"_s);
    AddProfile(u"Arc"_s, u"ColType = 'Lent'"_s);
    AddProfile(u"Bay"_s, u"ColType = 'Gift'"_s);
    struct {
        QStringView included;
        QStringList titles;
    } const rows[] = {
        {u"", {u"Mill"_s}},
        {u"Lent", {u"Arc"_s, u"Mill"_s}},
        {u"Lent Gift", {u"Arc"_s, u"Bay"_s, u"Mill"_s}},
        {u"Lent|Gift", {u"Mill"_s}},
    };
    SelectTab(u"Owned"_s);
    for (const bool boxset_view : {true, false}) {
        for (const auto &row : rows) {
            session.view.BoxsetView = boxset_view;
            session.view.IncludeInOwned = row.included.toString();
            EXPECT_EQ(Movies(), row.titles) << row.included.toString().toStdString();
        }
    }
    session.view.IncludeInOwned = u"Lent"_s;
    SelectTab(u"Ordered"_s);
    EXPECT_EQ(Movies(), QStringList());
}

TEST_F(TitleQueriesTest, TabWithAQuoteGivesAnEmptyListAndALogLine) {
    AddProfile(u"Mill"_s, u"ColType = 'Kid''s'"_s);
    browser.tabColList << u"Kid's"_s;
    SelectTab(u"Kid's"_s);
    Log(kTraceError);
    EXPECT_EQ(Movies(), QStringList());
    ASSERT_EQ(LogLines().size(), 1);
    EXPECT_TRUE(LogLines()[0].contains(u"GetMovieNames: "_s));
}

TEST_F(TitleQueriesTest, TitleWithoutATitleDoesNotHideTheOthers) {
    AddProfile(u"Mill"_s);
    AddProfile(u"None"_s, u"Title = '', SortTitle = ''"_s);
    EXPECT_EQ(Movies(), QStringList({QString(), u"Mill"_s}));
}

TEST_F(TitleQueriesTest, CustomAndOriginalTitlesShowAndSort) {
    AddProfile(u"1"_s, u"Title = 'A', SortTitle = 'A', OriginalTitle = 'Y', CustomTitle = 'M'"_s);
    AddProfile(u"2"_s,
               u"Title = 'B', SortTitle = 'B', OriginalTitle = 'X', CustomTitle = 'N', CustomSortTitle = 'L'"_s);
    EXPECT_EQ(Movies(), QStringList({u"A"_s, u"B"_s}));
    session.view.mUseOriginalTitle = true;
    EXPECT_EQ(Movies(), QStringList({u"X"_s, u"Y"_s}));
    session.view.mUseCustomTitle = true;
    EXPECT_EQ(Movies(), QStringList({u"N"_s, u"M"_s}));
}

TEST_F(TitleQueriesTest, BoxsetViewNeedsTheTitleAscending) {
    AddBoxset();
    struct {
        int key;
        int order;
        bool boxset_view;
    } const rows[] = {{2, 0, true}, {2, 1, false}, {1, 0, false}, {3, 0, false}, {4, 1, false}, {5, 0, false}};
    for (const auto &row : rows) {
        session.view.BoxsetView = true;
        session.view.ProfilesSortKey = row.key;
        session.view.ProfilesSortOrder = row.order;
        GetMovieNames(browser);
        EXPECT_EQ(session.view.BoxsetView, row.boxset_view) << row.key << " " << row.order;
        EXPECT_EQ(browser.listSeries.SortColumn(), row.key);
        EXPECT_EQ(int(browser.listSeries.SortOrder()), row.order);
        EXPECT_TRUE(session.view.mBoxsetView);
    }
}

TEST_F(TitleQueriesTest, SortColumnShows) {
    AddProfile(u"Mill"_s);
    const std::pair<int, std::vector<double>> rows[] = {
        {1, {0.25, 0, 0, 0}}, {2, {0, 0, 0, 0}},    {3, {0, 0.25, 0, 0}},
        {4, {0, 0, 0.25, 0}}, {5, {0, 0, 0, 0.25}}, {17, {0, 0, 0, 0}},
    };
    for (const auto &[key, widths] : rows) {
        session.view.ProfilesSortKey = key;
        GetMovieNames(browser);
        EXPECT_EQ(OptionalWidths(), widths) << key;
        EXPECT_EQ(browser.listSeries.Width(TitleList::SortTitle), 0);
        EXPECT_EQ(browser.listSeries.Width(TitleList::Title), 0.78);
    }
}

TEST_F(TitleQueriesTest, RowsAreColouredAsTheSwitchSays) {
    AddProfile(u"Mill"_s);
    GetMovieNames(browser);
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::Rows);
    session.view.mcolorlist = false;
    GetMovieNames(browser);
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::None);
}

TEST_F(TitleQueriesTest, FillingEndsTheSpecialOrder) {
    AddProfile(u"Mill"_s);
    browser.SpecialOrder = true;
    GetMovieNames(browser);
    EXPECT_FALSE(browser.SpecialOrder);
}

TEST_F(TitleQueriesTest, TracesItsEntryAndExit) {
    Log(kTraceEntry | kTraceExit);
    GetMovieNames(browser);
    const QStringList lines = LogLines();
    EXPECT_TRUE(lines.contains(u"Enter:    GetMovieNames()"_s)) << lines.join(u'\n').toStdString();
    EXPECT_TRUE(lines.contains(u"Exit:     GetMovieNames()"_s)) << lines.join(u'\n').toStdString();
}

TEST_F(TitleQueriesTest, WindowsHearWhenTheListIsFilled) {
    AddProfile(u"P1"_s);
    AddProfile(u"P2"_s);
    QStringList heard;
    const auto hear = [&](const QString &what) { heard << what + QString::number(browser.listSeries.rowCount()); };
    QObject::connect(&browser, &Browser::ListFillingBegun, [&] { hear(u"begun "_s); });
    QObject::connect(&browser, &Browser::CurrentRowChanged, [&] { hear(u"row "_s); });
    QObject::connect(&browser, &Browser::ListFillingEnded, [&] { hear(u"ended "_s); });
    GetMovieNames(browser);
    EXPECT_EQ(heard, (QStringList{u"begun 0"_s, u"row 2"_s, u"ended 2"_s}));
    heard.clear();
    browser.tabColList << u"A'B"_s;
    SelectTab(u"A'B"_s);
    GetMovieNames(browser);
    EXPECT_EQ(heard.front(), u"begun 2"_s);
    EXPECT_EQ(heard.back(), u"ended 0"_s) << "a faulty statement ends it too";
}

} // namespace
} // namespace ostrand
