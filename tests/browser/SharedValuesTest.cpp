#include "browser/SharedValues.h"

#include "BrowserFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SharedValuesTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        for (const QString &id : {u"A"_s, u"B"_s, u"C"_s}) {
            AddProfile(id);
        }
        for (const char16_t *statement : {
                 u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A', 'Comedy')",
                 u"INSERT INTO Genres (ProfileID, Genre) VALUES ('B', 'War')",
                 u"INSERT INTO Genres (ProfileID, Genre) VALUES ('C', 'War')",
                 u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('B', 'French')",
                 u"INSERT INTO Features (ProfileID, Feature) VALUES ('C', 'Trailers')",
                 u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language) VALUES ('A', 1, 'Norse')",
                 u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('B', 'Birch''s', '')",
             }) {
            Run(statement);
        }
        browser.hooks.selected_subtitle = [] { return u"French"_s; };
        browser.hooks.selected_feature = [] { return u"Trailers"_s; };
        browser.hooks.selected_audio = [] { return u"Norse"_s; };
        browser.hooks.selected_studio = [] { return u"Birch's"_s; };
    }
    QString Current() const { return ProfileOfKey(browser.listSeries.At(browser.current_row).key); }
};

TEST_F(SharedValuesTest, AValueLeadsToTheTitlesThatShareIt) {
    const struct {
        QString category, shown;
        QStringList titles;
        QString current;
    } cases[] = {
        {u"Subtitle"_s, u"French"_s, {u"B"_s}, u"B"_s},
        {u"Feature"_s, u"Trailers"_s, {u"C"_s}, u"C"_s},
        {u"AudioFormat"_s, u"Norse"_s, {u"A"_s}, u"A"_s},
        {u"Studio"_s, u"Birch's"_s, {u"B"_s}, u"B"_s},
        {u"Genre"_s, u"War"_s, {u"Comedy"_s, u"     A"_s, u"War"_s, u"     B"_s, u"     C"_s}, u"B"_s},
        {u"Genre"_s, u"Comedy"_s, {u"Comedy"_s, u"     A"_s, u"War"_s, u"     B"_s, u"     C"_s}, u"A"_s},
    };
    for (const auto &c : cases) {
        ListTitlesSharing(browser, c.category, c.shown);
        EXPECT_EQ(Column(), c.titles) << qPrintable(c.category);
        EXPECT_EQ(Current(), c.current) << qPrintable(c.category);
        EXPECT_EQ(session.CurrentProfileID, c.current) << qPrintable(c.category);
    }
}

TEST_F(SharedValuesTest, AGenreWithoutTitlesOnTheTabSelectsItsHeader) {
    Run(u"UPDATE Profiles SET ColType = 'Ordered' WHERE ProfileID <> 'A'");
    SelectTab(u"Owned"_s);
    ListTitlesSharing(browser, u"Genre"_s, u"War"_s);
    ASSERT_GE(browser.current_row, 0);
    EXPECT_EQ(browser.listSeries.At(browser.current_row).texts[TitleList::Title], u"War"_s);
}

TEST_F(SharedValuesTest, ATranslatedGenreIsFoundByWhatIsShown) {
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('War', 'Krieg')");
    ListTitlesSharing(browser, u"Genre"_s, u"Krieg"_s);
    EXPECT_EQ(Current(), u"B"_s);
}

TEST_F(SharedValuesTest, NothingHappensWithoutAListOfTitles) {
    Movies();
    ListTitlesSharing(browser, u"Subtitle"_s, {});
    EXPECT_EQ(browser.listSeries.rowCount(), 3) << "nothing is chosen";
    session.view.mTVShows = true;
    ListTitlesSharing(browser, u"Subtitle"_s, u"French"_s);
    EXPECT_EQ(browser.listSeries.rowCount(), 3) << "the list holds series";
    session.view.mTVShows = false;
    session.Database.reset();
    ListTitlesSharing(browser, u"Subtitle"_s, u"French"_s);
    EXPECT_EQ(browser.listSeries.rowCount(), 3) << "no database";
}

} // namespace
} // namespace ostrand
