#include "browser/Attach.h"

#include "ShelfFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/Navigation.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"
#include "shell/ListTable.h"
#include "shell/Settings.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class AttachTest : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        AttachBrowser(browser);
    }
    void Store(const QString &key, const QString &value) { WriteDbInfo(session, key, value); }
    bool Reopen() { return OpenCollectionDatabase(session, Path(u"Shelf.mdb"_s)); }
    QStringList Texts() const {
        QStringList texts;
        for (const TitleRow &row : browser.listSeries.Rows()) {
            texts << row.texts[TitleList::Title];
        }
        return texts;
    }
    static QStringList Headers(const QAbstractItemModel &list) {
        QStringList headers;
        for (int i = 0; i < list.columnCount(); ++i) {
            headers << list.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        return headers;
    }
};

TEST_F(AttachTest, AnOpenedDatabaseShowsItsTitles) {
    QStringList told;
    QObject::connect(&browser, &Browser::SettingsChanged, [&] { told << u"settings"_s; });
    QObject::connect(&browser, &Browser::ModeChanged, [&] { told << u"mode"_s; });
    ASSERT_TRUE(Reopen());
    EXPECT_EQ(told, (QStringList{u"settings"_s, u"mode"_s}));
    EXPECT_EQ(Headers(browser.listSeries),
              (QStringList{u"Title"_s, u"#"_s, u"SortTitle"_s, u"Year"_s, u"P.Date"_s, u"Released"_s}));
    EXPECT_EQ(Headers(browser.listEpisodes), (QStringList{u"#"_s, u"Episode Title"_s}));
    EXPECT_EQ(browser.tabMain.size(), 3);
    EXPECT_EQ(browser.tabColList.size(), 6);
    EXPECT_EQ(Keys().size(), 5);
    EXPECT_EQ(browser.comboFilter.size(), 3);
    EXPECT_TRUE(browser.filter_shown);
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 5"_s);
    EXPECT_EQ(CurrentKey(), u"A1"_s);
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"A1"_s);
}

TEST_F(AttachTest, HeadersAreTranslated) {
    TranslateAs(u"Year"_s, u"Jahr"_s);
    TranslateAs(u"Episode Title"_s, u"Folge"_s);
    Store(u"UseUserDefinedStrings"_s, u"1"_s);
    ASSERT_TRUE(Reopen());
    EXPECT_EQ(Headers(browser.listSeries)[3], u"Jahr"_s);
    EXPECT_EQ(Headers(browser.listEpisodes)[1], u"Folge"_s);
}

TEST_F(AttachTest, CaptionsFollowTheLanguageBothWays) {
    TranslateAs(u"All"_s, u"Alle"_s);
    TranslateAs(u"Ordered"_s, u"Bestellt"_s);
    TranslateAs(u"Details"_s, u"Einzelheiten"_s);
    TranslateAs(u"Year"_s, u"Jahr"_s);
    TranslateAs(u"Filtered:"_s, u"Gefiltert:"_s);
    TranslateAs(u"Clear Filter"_s, u"Ohne Filter"_s);
    TranslateAs(u"Television"_s, u"WishList"_s); // no reason to touch a tab of that name
    ASSERT_TRUE(Reopen());
    SelectColTypeTab(browser, 3);
    ChooseFilter(browser, u"Clear Filter"_s);
    for (const bool translated : {true, false, false, true, true, false}) {
        session.UseUserDefinedStrings = translated;
        TranslateBrowser(browser);
        session.window.SettingsStored();
        const auto shown = [translated](const QString &english, const QString &other) {
            return translated ? other : english;
        };
        EXPECT_EQ(browser.tabColList.mid(0, 4), (QStringList{shown(u"All"_s, u"Alle"_s), u"Owned"_s,
                                                             shown(u"Ordered"_s, u"Bestellt"_s), u"WishList"_s}));
        EXPECT_EQ(browser.tabColList_selected, 3);
        EXPECT_EQ(Keys(), QStringList{u"C1"_s});
        EXPECT_EQ(browser.tabMain[1], shown(u"Details"_s, u"Einzelheiten"_s));
        EXPECT_EQ(Headers(browser.listSeries)[3], shown(u"Year"_s, u"Jahr"_s));
        EXPECT_EQ(browser.labelFilterCount, shown(u"Filtered: 1"_s, u"Gefiltert: 1"_s));
        EXPECT_EQ(browser.comboFilter_text, shown(u"Clear Filter"_s, u"Ohne Filter"_s));
        EXPECT_EQ(browser.comboFilter.front(), browser.comboFilter_text);
    }
    ChangeMode(browser, false);
    EXPECT_EQ(browser.tabColList, QStringList{u"TV"_s});
}

TEST_F(AttachTest, GroupsFollowTheLanguageAroundTheCurrentTitle) {
    struct {
        const char *name;
        QString category;
        QString english;
        QString other;
    } const rows[] = {
        {"a value", u"Rating"_s, u"PG"_s, u"Mit Eltern"_s},
        {"no value", u"CaseType"_s, u"No Case Type specified"_s, u"Ohne Hülle"_s},
    };
    ASSERT_TRUE(Reopen());
    Run(u"UPDATE Profiles SET Rating = 'PG', CaseType = ''");
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        TranslateAs(row.english, row.other);
        SpecialProfileOrder(browser, row.category);
        MoveToRow(browser, 2);
        const QString current = CurrentKey();
        const QStringList titles = Texts().mid(1);
        for (const bool translated : {true, false}) {
            session.UseUserDefinedStrings = translated;
            TranslateBrowser(browser);
            const QString shown = translated ? row.other : row.english;
            EXPECT_EQ(Texts().front(), shown);
            EXPECT_EQ(browser.listSeries.At(0).tool_tip, shown);
            EXPECT_EQ(Texts().mid(1), titles);
            EXPECT_EQ(CurrentKey(), current);
            EXPECT_EQ(browser.current_row, 2);
        }
    }
}

TEST_F(AttachTest, ATabThatTheSettingsTakeAwayGivesItsPlaceToAllTitles) {
    ASSERT_TRUE(Reopen());
    SelectColTypeTab(browser, 4);
    ASSERT_EQ(Keys(), QStringList());
    session.view.UseProfilerColTypes = false;
    session.window.SettingsStored();
    EXPECT_EQ(browser.tabColList_selected, 1);
    EXPECT_EQ(Keys().size(), 5);
    MoveToRow(browser, 2);
    session.window.SettingsStored();
    EXPECT_EQ(CurrentKey(), u"C1"_s) << "the list is filled anew only where its tab went";
}

TEST_F(AttachTest, AnotherCoverFolderShowsTheCoverFromThere) {
    ASSERT_TRUE(Reopen());
    session.CoverPath = Path(u"a/much/longer/folder/for/covers/"_s);
    session.window.SettingsStored();
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"A1"_s);
}

TEST_F(AttachTest, TheTabsOfTheLastRunComeBack) {
    const struct {
        QString main, collection;
        int main_selected, collection_selected;
        QStringList keys;
    } cases[] = {
        {u"3"_s, u"3"_s, 3, 3, {u"C1"_s}},
        {u"0"_s, u"7"_s, 1, 1, {u"A1"_s, u"B1"_s, u"C1"_s, u"Key_D1"_s, u"E1"_s}},
        {u"4"_s, u"6"_s, 1, 6, {u"Key_D1"_s}},
    };
    for (const auto &c : cases) {
        Store(u"LastTab"_s, c.main);
        Store(u"TabColList"_s, c.collection);
        ASSERT_TRUE(Reopen());
        EXPECT_EQ(browser.tabMain_selected, c.main_selected) << qPrintable(c.main);
        EXPECT_EQ(session.view.LastTab, c.main_selected);
        EXPECT_EQ(browser.tabColList_selected, c.collection_selected) << qPrintable(c.collection);
        EXPECT_EQ(session.view.TabColList, c.collection_selected);
        EXPECT_EQ(Keys(), c.keys);
    }
}

TEST_F(AttachTest, TheViewOfTheLastRunComesBack) {
    Store(u"ViewTVShows"_s, u"True"_s);
    Store(u"LastTab"_s, u"2"_s);
    Store(u"TabColList"_s, u"3"_s);
    Store(u"LastSelectedItem"_s, u"S1"_s);
    ASSERT_TRUE(Reopen());
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(browser.tabColList, QStringList{u"TV"_s});
    EXPECT_EQ(browser.tabMain_selected, 1);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
    EXPECT_FALSE(browser.filter_shown);
    SaveDatabaseSettings(session);
    EXPECT_EQ(ReadDbInfo(session, u"LastTab"_s, {}), u"2"_s) << "the remembered tab, not the shown one";
    EXPECT_EQ(ReadDbInfo(session, u"TabColList"_s, {}), u"3"_s);
    EXPECT_EQ(ReadDbInfo(session, u"LastSelectedItem"_s, {}), u"S1"_s);
    ShowMovies(browser);
    EXPECT_EQ(Keys(), QStringList{u"C1"_s});
    EXPECT_EQ(browser.tabMain_selected, 2);
}

TEST_F(AttachTest, TheFirstColumnTakesItsWidth) {
    browser.listSeries.SetWidth(TitleList::Title, 0.3);
    browser.listSeries.SetWidth(TitleList::Year, 0.25);
    ASSERT_TRUE(Reopen());
    EXPECT_EQ(browser.listSeries.Width(TitleList::Title), 0.78);
    EXPECT_EQ(browser.listSeries.Width(TitleList::Year), 0.0);
}

TEST_F(AttachTest, WhatTheBrowserShowsIsWritten) {
    ASSERT_TRUE(Reopen());
    SelectMainTab(browser, 2);
    SelectColTypeTab(browser, 2);
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('B1', 'Drama')");
    SpecialProfileOrder(browser, u"Genre"_s);
    MoveToRow(browser, 1);
    SaveDatabaseSettings(session);
    EXPECT_EQ(ReadDbInfo(session, u"LastTab"_s, {}), u"2"_s);
    EXPECT_EQ(ReadDbInfo(session, u"TabColList"_s, {}), u"2"_s);
    EXPECT_EQ(ReadDbInfo(session, u"LastSelectedItem"_s, {}), u"B1"_s) << "cut before the bar";
    ASSERT_TRUE(Reopen());
    EXPECT_EQ(session.CurrentProfileID, u"B1"_s);
    EXPECT_EQ(browser.current_row, 1);
    EXPECT_EQ(BackKeys(), QStringList{u"B1"_s});
    EXPECT_EQ(browser.tabColList_selected, 2);
    EXPECT_EQ(browser.tabMain_selected, 2);
    Run(u"DELETE FROM Profiles");
    ChangeMode(browser, true);
    SaveDatabaseSettings(session);
    EXPECT_EQ(ReadDbInfo(session, u"LastSelectedItem"_s, u"(missing)"_s), u"(missing)"_s);
}

TEST_F(AttachTest, TheCoverIsLookedForInTheFolderFound) {
    Store(u"CoverPath"_s, Path(u"gone"_s));
    ASSERT_TRUE(Reopen());
    const QString covers = QDir::toNativeSeparators(session.DataFolder + u"/Images/Covers/"_s);
    EXPECT_EQ(session.CoverPath, covers);
    EXPECT_EQ(browser.cover_stem, covers + u"A1"_s);
}

TEST_F(AttachTest, ReloadingShowsTheTitleAgainOnTheFirstTab) {
    ASSERT_TRUE(Reopen());
    SelectColTypeTab(browser, 6);
    ASSERT_EQ(session.CurrentProfileID, u"Key_D1"_s);
    Run(u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('N1', 'Aspen', 'Aspen', 'Attic')");
    session.window.ReloadTitles();
    EXPECT_EQ(browser.tabColList_selected, 1);
    EXPECT_TRUE(browser.tabColList.contains(u"Attic"_s));
    EXPECT_EQ(browser.listSeries.rowCount(), 6);
    EXPECT_EQ(CurrentKey(), u"Key_D1"_s);
    EXPECT_EQ(session.CurrentProfileID, u"Key_D1"_s);
    Run(u"DELETE FROM Profiles WHERE ProfileID = 'Key_D1'");
    session.window.ReloadTitles();
    EXPECT_EQ(CurrentKey(), u"A1"_s) << "a title that is gone leaves the first";
}

TEST_F(AttachTest, ReloadingKeepsTheSeriesInTVView) {
    ASSERT_TRUE(Reopen());
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    session.window.ReloadTitles();
    EXPECT_TRUE(session.view.mTVShows);
    EXPECT_EQ(session.CurrentSeriesID, u"S1"_s);
}

TEST_F(AttachTest, TitlesDueAreShownWhenADatabaseOpens) {
    int shown = 0;
    session.window.ShowListView = [&](std::unique_ptr<ListTable>) { ++shown; };
    Run(u"INSERT INTO Users (UserID) VALUES ('Nora')");
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) VALUES ('A1', 'Nora', 45420)");
    ASSERT_TRUE(Reopen());
    EXPECT_EQ(shown, 1);
    Store(u"ShowLoanDueOnStartUp"_s, u"0"_s);
    ASSERT_TRUE(Reopen());
    EXPECT_EQ(shown, 1);
}

TEST_F(AttachTest, AnotherDatabaseTakesTheListsOver) {
    ASSERT_TRUE(Reopen());
    ChangeMode(browser, false);
    MoveToRow(browser, 1);
    ASSERT_TRUE(NewCollectionDatabase(session, Path(u"Empty.mdb"_s)));
    EXPECT_EQ(browser.listSeries.rowCount(), 0);
    EXPECT_EQ(browser.tabColList, (QStringList{u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s}));
    EXPECT_EQ(browser.current_row, -1);
    EXPECT_EQ(session.CurrentProfileID, QString());
    EXPECT_TRUE(browser.listSeasons.isEmpty());
    EXPECT_EQ(BackKeys(), QStringList());
    EXPECT_EQ(browser.labelFilterCount, u"Filtered: 0"_s);
}

TEST_F(AttachTest, WithoutACollectionTheProfileWindowIsEmptyToo) {
    ASSERT_TRUE(Reopen());
    QStringList told;
    browser.hooks.ShowProfile = [&](const QString &key, bool) { told += key; };
    session.Database.reset();
    ShowNoCollection(browser);
    EXPECT_EQ(told, QStringList{QString()});
    EXPECT_EQ(browser.caption, browser.base_caption);
}

} // namespace
} // namespace ostrand
