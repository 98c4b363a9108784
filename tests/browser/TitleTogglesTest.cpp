#include "browser/BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TitleTogglesTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        AddProfile(u"Arc"_s, u"OriginalTitle = 'Bogen', CustomTitle = 'Curve', Description = 'Cut'"_s);
        AddProfile(u"Zed"_s);
        AddChild(u"Zed"_s, u"Arc"_s);
        GetMovieNames(browser);
        QObject::connect(&browser.commands, &Commands::Changed, [this] { ++refreshed_; });
    }
    QString First() const { return Column().value(0); }
    void ExpectFormat(const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Select Description Format:"_s, answer, u"Description Format"_s);
    }
    int refreshed_ = 0;
};

TEST_F(TitleTogglesTest, BoxsetView) {
    ToggleBoxsetView(browser);
    EXPECT_FALSE(session.view.mBoxsetView);
    EXPECT_FALSE(session.view.BoxsetView);
    EXPECT_EQ(Column(), QStringList({u"Arc"_s, u"Zed"_s}));
    ToggleBoxsetView(browser);
    EXPECT_TRUE(session.view.BoxsetView);
    EXPECT_EQ(Column(), QStringList({u"Arc"_s, u"     Zed"_s}));
    EXPECT_EQ(refreshed_, 2);
}

TEST_F(TitleTogglesTest, BoxsetViewThatIsDroppedAlready) {
    ReOrderSeriesList(browser, 3, TitleList::Order::Ascending);
    browser.listSeries.Clear();
    ToggleBoxsetView(browser);
    EXPECT_FALSE(session.view.mBoxsetView);
    EXPECT_EQ(browser.listSeries.rowCount(), 0) << "nothing to do";
    ToggleBoxsetView(browser);
    EXPECT_TRUE(session.view.mBoxsetView);
    EXPECT_FALSE(session.view.BoxsetView) << "dropped again, since the list is sorted by the year";
    EXPECT_EQ(browser.listSeries.rowCount(), 2);
}

TEST_F(TitleTogglesTest, CustomAndOriginalTitles) {
    ToggleCustomTitle(browser);
    EXPECT_TRUE(session.view.mUseCustomTitle);
    EXPECT_EQ(First(), u"Curve"_s);
    ToggleCustomTitle(browser);
    EXPECT_EQ(First(), u"Arc"_s);
    ToggleOriginalTitle(browser);
    EXPECT_TRUE(session.view.mUseOriginalTitle);
    EXPECT_EQ(First(), u"Bogen"_s);
    ToggleOriginalTitle(browser);
    EXPECT_EQ(First(), u"Arc"_s);
    EXPECT_EQ(refreshed_, 4);
}

TEST_F(TitleTogglesTest, DescriptionInAFormat) {
    const std::pair<QString, QString> formats[] = {
        {u"Title: Description"_s, u"Arc: Cut"_s},
        {u"Title - Description"_s, u"Arc - Cut"_s},
        {u"Title (Description)"_s, u"Arc (Cut)"_s},
    };
    int number = 0;
    for (const auto &[format, title] : formats) {
        ++number;
        ExpectFormat(format);
        ToggleDescription(browser);
        EXPECT_TRUE(session.view.mShowDescription);
        EXPECT_EQ(First(), title);
        EXPECT_EQ(session.view.DescFormat, number);
        EXPECT_EQ(ReadDbInfo(session, u"DescFormat"_s, {}), QString::number(number));
        ToggleDescription(browser);
        EXPECT_FALSE(session.view.mShowDescription);
        EXPECT_EQ(First(), u"Arc"_s);
    }
    EXPECT_EQ(services.dialogs.last_values, QStringList({formats[0].first, formats[1].first, formats[2].first}));
    EXPECT_EQ(services.dialogs.last_preset, formats[1].first) << "the format so far is proposed";
}

TEST_F(TitleTogglesTest, DescriptionCancelled) {
    browser.listSeries.Clear();
    ExpectFormat(std::nullopt);
    ToggleDescription(browser);
    EXPECT_FALSE(session.view.mShowDescription);
    EXPECT_EQ(browser.listSeries.rowCount(), 0) << "the list is not filled anew";
    EXPECT_EQ(ReadDbInfo(session, u"DescFormat"_s, u"-"_s), u"-"_s);
}

TEST_F(TitleTogglesTest, DescriptionWithAnotherTextKeepsTheFormat) {
    session.view.DescFormat = 2;
    ExpectFormat(u"something else"_s);
    ToggleDescription(browser);
    EXPECT_EQ(session.view.DescFormat, 2);
    EXPECT_EQ(First(), u"Arc - Cut"_s);
}

TEST_F(TitleTogglesTest, DescriptionFormatsAreTranslated) {
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Title - Description', 'Titel - Text')");
    session.UseUserDefinedStrings = true;
    ExpectFormat(u"Titel - Text"_s);
    ToggleDescription(browser);
    EXPECT_EQ(session.view.DescFormat, 2);
}

TEST_F(TitleTogglesTest, Colours) {
    using Striping = TitleList::Striping;
    ToggleColours(browser);
    EXPECT_FALSE(session.view.mcolorlist);
    EXPECT_EQ(browser.listSeries.GetStriping(), Striping::Plain);
    ToggleColours(browser);
    EXPECT_EQ(browser.listSeries.GetStriping(), Striping::Rows);
    browser.SpecialOrder = true;
    ToggleColours(browser);
    EXPECT_EQ(browser.listSeries.GetStriping(), Striping::Plain);
    ToggleColours(browser);
    EXPECT_EQ(browser.listSeries.GetStriping(), Striping::KeepBold);
}

TEST_F(TitleTogglesTest, SeriesFollowOnlyTheOriginalTitle) {
    session.view.mTVShows = true;
    Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle, SortTitle) VALUES ('s1', 'Harbour', '', 'Harbour')");
    browser.listSeries.Clear();
    ExpectFormat(u"Title: Description"_s);
    ToggleBoxsetView(browser);
    ToggleCustomTitle(browser);
    ToggleDescription(browser);
    EXPECT_EQ(browser.listSeries.rowCount(), 0);
    ToggleOriginalTitle(browser);
    EXPECT_EQ(Column(), QStringList{u"Harbour"_s});
}

} // namespace
} // namespace ostrand
