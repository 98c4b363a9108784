#include "browser/BrowserFixture.h"
#include "browser/ProfileInfos.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using Order = TitleList::Order;

class TitleSortingTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        AddProfile(u"Arc"_s, u"ColNo = '10', ProdYear = 2001, Released = '1999-01-01'"_s);
        AddProfile(u"Bay"_s, u"ColNo = '9', ProdYear = 1987, Released = '2004-05-06'"_s);
        AddProfile(u"Cup"_s, u"ColNo = '100', ProdYear = 1995, Released = '2001-01-01'"_s);
        Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('Arc', '2002-01-01')");
        Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('Cup', '2001-01-01')");
        AddChild(u"Cup"_s, u"Arc"_s);
        GetMovieNames(browser);
    }
    QString Stored() {
        return ReadDbInfo(session, u"ProfilesSortKey"_s, u"-"_s) + u' ' +
               ReadDbInfo(session, u"ProfilesSortOrder"_s, u"-"_s);
    }
    QString Titles() const { return Column().join(u' '); }
};

TEST_F(TitleSortingTest, ColumnsSort) {
    struct {
        int key;
        Order order;
        QString titles;
        QString stored;
        std::vector<double> widths;
    } const rows[] = {
        {0, Order::Ascending, u"Arc Bay Cup"_s, u"2 0"_s, {0, 0, 0, 0}},
        {0, Order::Descending, u"Cup Bay Arc"_s, u"2 1"_s, {0, 0, 0, 0}},
        {1, Order::Ascending, u"Bay Arc Cup"_s, u"1 0"_s, {0.25, 0, 0, 0}},
        {1, Order::Descending, u"Cup Arc Bay"_s, u"1 1"_s, {0.25, 0, 0, 0}},
        {3, Order::Ascending, u"Bay Cup Arc"_s, u"3 0"_s, {0, 0.25, 0, 0}},
        {3, Order::Descending, u"Arc Cup Bay"_s, u"3 1"_s, {0, 0.25, 0, 0}},
        {4, Order::Ascending, u"Bay Cup Arc"_s, u"4 0"_s, {0, 0, 0.25, 0}},
        {4, Order::Descending, u"Arc Cup Bay"_s, u"4 1"_s, {0, 0, 0.25, 0}},
        {5, Order::Ascending, u"Arc Cup Bay"_s, u"5 0"_s, {0, 0, 0, 0.25}},
        {5, Order::Descending, u"Bay Cup Arc"_s, u"5 1"_s, {0, 0, 0, 0.25}},
        {2, Order::Ascending, u"Arc Bay Cup"_s, u"2 0"_s, {0, 0, 0, 0}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.stored.toStdString());
        ReOrderSeriesList(browser, row.key, row.order);
        EXPECT_EQ(Titles(), row.titles);
        EXPECT_EQ(Stored(), row.stored);
        EXPECT_EQ(OptionalWidths(), row.widths);
        EXPECT_EQ(u"%1 %2"_s.arg(session.view.ProfilesSortKey).arg(session.view.ProfilesSortOrder), row.stored);
        EXPECT_FALSE(session.view.BoxsetView);
        EXPECT_TRUE(session.view.mBoxsetView);
        EXPECT_TRUE(browser.listSeries.IsSorted());
        EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::Rows);
    }
}

TEST_F(TitleSortingTest, SortingFlattensGroups) {
    SpecialProfileOrder(browser, u"Medium"_s);
    ASSERT_EQ(browser.listSeries.rowCount(), 4);
    ReOrderSeriesList(browser, 3, Order::Ascending);
    EXPECT_EQ(Titles(), u"Bay Cup Arc"_s);
    EXPECT_FALSE(browser.SpecialOrder);
}

TEST_F(TitleSortingTest, CurrentTitleStaysCurrent) {
    session.view.BoxsetView = false;
    GetMovieNames(browser);
    UpdateSeriesList(browser, 1);
    int selections = 0;
    QObject::connect(&browser, &Browser::CurrentRowChanged, [&selections] { ++selections; });
    ReOrderSeriesList(browser, 3, Order::Ascending);
    EXPECT_EQ(browser.current_row, 0);
    EXPECT_EQ(session.CurrentProfileID, u"Bay"_s);
    EXPECT_EQ(selections, 1);
    ReOrderSeriesList(browser, 3, Order::Ascending);
    EXPECT_EQ(selections, 1);
}

TEST_F(TitleSortingTest, HeaderTogglesTheOrder) {
    struct {
        TitleList::Column column;
        QString titles;
        QString stored;
        bool boxset_view;
    } const rows[] = {
        {TitleList::Title, u"Cup Bay Arc"_s, u"2 1"_s, false},
        {TitleList::Title, u"Arc      Cup Bay"_s, u"2 0"_s, true},
        {TitleList::Year, u"Arc Cup Bay"_s, u"3 1"_s, false},
        {TitleList::Year, u"Bay Cup Arc"_s, u"3 0"_s, false},
        {TitleList::Number, u"Cup Arc Bay"_s, u"1 1"_s, false},
        {TitleList::SortTitle, u"Cup Arc Bay"_s, u"1 1"_s, false},
        {TitleList::PurchaseDate, u"Bay Cup Arc"_s, u"4 0"_s, false},
        {TitleList::ReleaseDate, u"Bay Cup Arc"_s, u"5 1"_s, false},
        {TitleList::Title, u"Arc      Cup Bay"_s, u"2 0"_s, true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.stored.toStdString());
        SortByHeader(browser, row.column);
        EXPECT_EQ(Titles(), row.titles);
        EXPECT_EQ(Stored(), row.stored);
        EXPECT_EQ(session.view.BoxsetView, row.boxset_view);
    }
}

TEST_F(TitleSortingTest, HeaderLeavesTheListFlatWhereTheUserWantsItSo) {
    session.view.mBoxsetView = false;
    SortByHeader(browser, TitleList::Title);
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(Titles(), u"Arc Bay Cup"_s);
    EXPECT_FALSE(session.view.BoxsetView);
}

TEST_F(TitleSortingTest, StoredYearHasNoNestingUntilTheTitleAscends) {
    session.view.BoxsetView = true;
    session.view.ProfilesSortKey = 3;
    GetMovieNames(browser);
    EXPECT_EQ(Titles(), u"Bay Cup Arc"_s);
    EXPECT_TRUE(session.view.mBoxsetView);
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(Titles(), u"Cup Bay Arc"_s);
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(Titles(), u"Arc      Cup Bay"_s);
}

TEST_F(TitleSortingTest, StoredSortThatThereIsNoneOfGivesWay) {
    const std::tuple<int, int, int, int> rows[] = {{0, 0, 2, 0}, {9, 1, 2, 1}, {3, 7, 3, 0}};
    for (const auto &[key, order, kept_key, kept_order] : rows) {
        session.view.ProfilesSortKey = key;
        session.view.ProfilesSortOrder = order;
        GetMovieNames(browser);
        EXPECT_EQ(session.view.ProfilesSortKey, kept_key);
        EXPECT_EQ(session.view.ProfilesSortOrder, kept_order);
        EXPECT_EQ(ReadDbInfo(session, u"ProfilesSortKey"_s, {}), QString::number(kept_key));
        EXPECT_EQ(ReadDbInfo(session, u"ProfilesSortOrder"_s, {}), QString::number(kept_order));
    }
}

TEST_F(TitleSortingTest, SortOfTheSeriesIsNotStored) {
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle) VALUES ('s1', 'Harbour', '', 'Harbour')");
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle) VALUES ('s2', 'Lights', '', 'Lights')");
    ReOrderSeriesList(browser, 1, Order::Ascending);
    session.view.BoxsetView = true;
    session.view.mTVShows = true;
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(Titles(), u"Lights Harbour"_s);
    EXPECT_EQ(browser.current_row, 1) << "the current series stays current";
    SortByHeader(browser, TitleList::Title);
    EXPECT_EQ(Titles(), u"Harbour Lights"_s);
    ReOrderSeriesList(browser, 2, Order::Descending);
    EXPECT_EQ(Titles(), u"Lights Harbour"_s) << "no titles of movies";
    EXPECT_EQ(Stored(), u"1 0"_s);
}

TEST_F(TitleSortingTest, DatabaseOfANewerProgramKeepsItsSettings) {
    session.DatabaseTooNew = true;
    ReOrderSeriesList(browser, 3, Order::Descending);
    EXPECT_EQ(Stored(), u"- -"_s);
    EXPECT_EQ(session.view.ProfilesSortKey, 3);
}

TEST_F(TitleSortingTest, ColoursStayOffWhereTheyAreOff) {
    session.view.mcolorlist = false;
    GetMovieNames(browser);
    ReOrderSeriesList(browser, 3, Order::Descending);
    EXPECT_EQ(browser.listSeries.GetStriping(), TitleList::Striping::None);
}

} // namespace
} // namespace ostrand
