#include "browser/ProfileInfos.h"

#include "browser/Browser.h"
#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileInfosTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.CoverPath = folder_.Path() + u'/';
        browser.base_caption = u"base"_s;
    }
    void Insert(const QString &id, const QString &title, const QString &original, const QString &custom,
                const QString &year, const QString &medium) {
        Run(u"INSERT INTO Profiles (ProfileID, Title, OriginalTitle, CustomTitle, ProdYear, Medium) VALUES ('%1', "
            u"'%2', "
            "'%3', '%4', %5, '%6')"_s.arg(id, title, original, custom, year.isEmpty() ? u"NULL"_s : year, medium));
    }
    QString Caption() {
        sql::Recordset record = session.Database->OpenRecordset(u"SELECT * FROM Profiles");
        return MakeWindowCaption(record);
    }

    Browser browser{session};
};

TEST_F(ProfileInfosTest, TheCaptionTellsTitlesYearAndMedium) {
    const struct {
        const char *name;
        QString title, original, custom, year, medium, caption;
    } cases[] = {
        {"title alone", u"A"_s, {}, {}, {}, {}, u"A"_s},
        {"original", u"A"_s, u"B"_s, {}, {}, {}, u"A/B"_s},
        {"original equal to the title", u"A"_s, u"A"_s, {}, {}, {}, u"A"_s},
        {"custom", u"A"_s, u"B"_s, u"C"_s, {}, {}, u"A/B/C"_s},
        {"custom equal to the original", u"A"_s, u"B"_s, u"B"_s, {}, {}, u"A/B"_s},
        {"custom equal to the title", u"A"_s, u"B"_s, u"A"_s, {}, {}, u"A/B"_s},
        {"custom alone", u"A"_s, {}, u"C"_s, {}, {}, u"A/C"_s},
        {"capital letters tell titles apart", u"A"_s, u"a"_s, {}, {}, {}, u"A/a"_s},
        {"no title", {}, u"B"_s, {}, {}, {}, u"B"_s},
        {"no title, custom", {}, {}, u"C"_s, {}, {}, u"C"_s},
        {"nothing but year and medium", {}, {}, {}, u"1999"_s, u"DVD"_s, u" (1999) - DVD"_s},
        {"year", u"A"_s, {}, {}, u"1999"_s, {}, u"A (1999)"_s},
        {"year nought", u"A"_s, {}, {}, u"0"_s, {}, u"A"_s},
        {"medium", u"A"_s, {}, {}, u"1999"_s, u"DVD"_s, u"A (1999) - DVD"_s},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Profiles");
        Insert(u"Key_1"_s, c.title, c.original, c.custom, c.year, c.medium);
        EXPECT_EQ(Caption(), c.caption) << c.name;
    }
}

TEST_F(ProfileInfosTest, AnEpisodesCaptionTakesTheYearOfItsAirDate) {
    Run(u"INSERT INTO TVSeries (SeriesID, Title) VALUES ('S', 'Series')");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle, AirDate) "
        u"VALUES ('S1', 'S', '1', '1', 'A', 'B', #3/4/2001#)");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, AirDate) "
        u"VALUES ('S2', 'S', '1', '2', 'C', #12/30/1899#)");
    GetProfileInfos(browser, u"S1"_s, true, false);
    EXPECT_EQ(browser.caption, u"A/B (2001)"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    GetProfileInfos(browser, u"S2"_s, true, false);
    EXPECT_EQ(browser.caption, u"C"_s);
}

TEST_F(ProfileInfosTest, ATitleBecomesTheCurrentOne) {
    Insert(u"Key_1"_s, u"A"_s, {}, {}, {}, {});
    int shown = 0;
    QObject::connect(&browser, &Browser::TitleChanged, &browser, [&] { ++shown; });
    GetProfileInfos(browser, u"Key_1|7"_s, false, false);
    EXPECT_EQ(session.CurrentProfileID, u"Key_1"_s) << "what tells rows of one profile apart is cut off";
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(browser.caption, u"A"_s);
    EXPECT_EQ(shown, 1);
}

TEST_F(ProfileInfosTest, AKeyThatIsNowhereShowsTheEmptyView) {
    for (const QString &key : {QString(), u"Key_none"_s}) {
        browser.caption = u"old"_s;
        browser.cover_stem = u"old"_s;
        GetProfileInfos(browser, key, false, false);
        EXPECT_EQ(browser.caption, u"base"_s);
        EXPECT_EQ(browser.cover_stem, QString());
    }
}

TEST_F(ProfileInfosTest, TheCoverIsFoundWithoutThePrefixAndInAnySpelling) {
    folder_.Write(u"AB1F.JPG"_s, "front");
    folder_.Write(u"ab1b.jpg"_s, "back");
    ShowCover(browser, u"Key_ab1|3"_s);
    EXPECT_EQ(CurrentCoverFile(browser), Path(u"AB1F.JPG"_s));
    FlipCover(browser);
    EXPECT_FALSE(session.ShowFrontCover);
    EXPECT_EQ(CurrentCoverFile(browser), Path(u"ab1b.jpg"_s));
    ShowCover(browser, u"Key_zz"_s);
    EXPECT_EQ(CurrentCoverFile(browser), QString());
}

TEST_F(ProfileInfosTest, ARowOfTheListShowsItsTitleAndCover) {
    Insert(u"Key_1"_s, u"A"_s, {}, {}, {}, {});
    TitleRow row;
    row.key = u"Key_1|1"_s;
    browser.listSeries.Assign({row});
    UpdateSeriesList(browser, 0);
    EXPECT_EQ(browser.current_row, 0);
    EXPECT_EQ(session.CurrentProfileID, u"Key_1"_s);
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u'1');
    UpdateSeriesList(browser, -1);
    EXPECT_EQ(session.CurrentProfileID, QString());
}

TEST_F(ProfileInfosTest, EventsRunOnceBeforeTheCoverIsLookedFor) {
    Insert(u"Key_1"_s, u"A"_s, {}, {}, {}, {});
    Insert(u"Key_2"_s, u"B"_s, {}, {}, {}, {});
    TitleRow first;
    first.key = u"Key_1"_s;
    TitleRow second;
    second.key = u"Key_2"_s;
    browser.listSeries.Assign({first, second});
    QString caption;
    services.pump.At(1, [&] { caption = browser.caption; });
    UpdateSeriesList(browser, 0);
    EXPECT_EQ(services.pump.Turns(), 1);
    EXPECT_EQ(caption, u"A"_s) << "the title is told by then";
    // Another row that becomes the current one meanwhile stays so, and runs no events within these.
    services.pump.At(2, [&] { UpdateSeriesList(browser, 1); });
    UpdateSeriesList(browser, 0);
    EXPECT_EQ(services.pump.Turns(), 2);
    EXPECT_EQ(session.CurrentProfileID, u"Key_2"_s);
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u'2');
}

TEST_F(ProfileInfosTest, TheWindowWithEverythingFollows) {
    Insert(u"Key_1"_s, u"A"_s, {}, {}, {}, {});
    Run(u"INSERT INTO TVSeries (SeriesID, Title) VALUES ('S', 'Series')");
    Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle) VALUES ('S1', 'S', 'A')");
    QStringList told;
    browser.hooks.ShowProfile = [&](const QString &key, bool is_episode) {
        told << key + (is_episode ? u" as episode"_s : QString());
    };
    GetProfileInfos(browser, u"Key_1|3"_s, false, false);
    GetProfileInfos(browser, u"S1"_s, true, false);
    GetProfileInfos(browser, u"gone"_s, false, false);
    GetProfileInfos(browser, {}, false, false);
    session.view.mSkinEnable = true;
    browser.hooks.ShowSkin = [](const QString &, bool) { return true; };
    ShowSkin(browser, u"Key_1|3"_s, false);
    ShowSkin(browser, u"S1"_s, true);
    browser.hooks.ShowSkin = [](const QString &, bool) { return false; };
    ShowSkin(browser, u"S1"_s, true);
    EXPECT_EQ(told, (QStringList{u"Key_1"_s, u"S1 as episode"_s, {}, {}, u"Key_1"_s, u"S1 as episode"_s}));
}

} // namespace
} // namespace ostrand
