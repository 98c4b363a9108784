#include "browser/SkinView.h"

#include "ShelfFixture.h"
#include "browser/Attach.h"
#include "browser/CollectionTabs.h"
#include "browser/Navigation.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"
#include "shell/ListTable.h"
#include "shell/Settings.h"
#include "skin/TextConversion.h"
#include "support/ScriptedHtmlView.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SkinViewTest : public ShelfTest {
protected:
    void SetUp() override {
        ShelfTest::SetUp();
        Run(u"INSERT INTO CastCrew (ProfileID, Name, Role, IsCast, BirthYear, Position) VALUES ('B1', 'Ann Oak', "
            u"'Tree', "
            u"-1, 1970, 1)");
        Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('A1', 'H11')");
        WriteSkin(u"Plain"_s, "[<DP NAME=\"TITLE\">]");
        session.CurrentSkin = u"Plain"_s;
        session.window.ShowBlankPage = [this] { html.Navigate(u"about:blank"_s); };
        session.window.ShowListView = [this](std::unique_ptr<ListTable> table) { shown_list = std::move(table); };
        QObject::connect(&browser, &Browser::PageShown, [this] { told += u"page"_s; });
        QObject::connect(&browser, &Browser::TitleChanged, [this] { told += u"panels"_s; });
        QObject::connect(&browser, &Browser::SkinChanged, [this] { told += u"skin"_s; });
        LoadTabs(browser);
        ChangeMode(browser, true);
        html = test::ScriptedHtmlView{};
        view = std::make_unique<SkinView>(browser, html);
        told.clear();
    }

    void WriteSkin(const QString &name, const QByteArray &page) const {
        const QString folder = session.DataFolder + u"/Skins/"_s + name;
        QDir().mkpath(folder);
        QFile file(folder + u"/Skin.html"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(page);
    }
    /// The page that the view was led to last; empty for a blank one.
    QByteArray Page() const {
        if (html.urls.isEmpty() || html.urls.back() == u"about:blank"_s) {
            return {};
        }
        EXPECT_EQ(html.urls.back(), PathToFileUrl(session.TempFolder + u"/Temp.html"_s));
        return test::ReadTestFile(session.TempFolder + u"/Temp.html"_s).mid(3);
    }
    void On() {
        view->EnableWebSkin(true);
        told.clear();
    }
    /// TV view with the season One of a series, whose first episode is "Arrival".
    void ShowSeason() {
        ChangeMode(browser, false);
        Select(u"S1"_s);
        SelectSeason(browser, int(browser.listSeasons.indexOf(u"One"_s)));
    }
    void Select(const QString &key) { UpdateSeriesList(browser, browser.listSeries.RowOfTitle(key)); }
    bool Click(const QString &query) {
        return html.Click(PathToFileUrl(session.TempFolder + u"/blank.html"_s) + query);
    }
    QStringList ListRows() const {
        QStringList rows;
        for (const ListTableRow &row : shown_list ? shown_list->Rows() : std::vector<ListTableRow>()) {
            rows += row.texts[0];
        }
        return rows;
    }

    test::ScriptedHtmlView html;
    std::unique_ptr<SkinView> view;
    std::unique_ptr<ListTable> shown_list;
    QStringList told;
};

TEST_F(SkinViewTest, TheSwitchShowsTheViewAndChecksTheEntry) {
    view->EnableWebSkin(true);
    EXPECT_TRUE(html.visible);
    EXPECT_TRUE(browser.commands.IsChecked(u"mSkinEnable"_s));
    view->EnableWebSkin(false);
    EXPECT_FALSE(html.visible);
    EXPECT_FALSE(browser.commands.IsChecked(u"mSkinEnable"_s));
    EXPECT_EQ(told, (QStringList{u"skin"_s, u"skin"_s}));
}

TEST_F(SkinViewTest, WithoutSkinsTheRowsFillThePanels) {
    Select(u"B1"_s);
    EXPECT_EQ(told, QStringList{u"panels"_s});
    EXPECT_EQ(html.urls, QStringList());
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"B1"_s);
}

TEST_F(SkinViewTest, ATitleIsShownAsAPage) {
    Select(u"A1"_s);
    ASSERT_GT(browser.listEpisodes.rowCount(), 0);
    On();
    Select(u"B1"_s);
    EXPECT_EQ(Page(), "[Birch]");
    EXPECT_EQ(told, QStringList{u"page"_s}) << "the panels are left alone";
    EXPECT_EQ(browser.caption, u"Birch/Bouleau"_s);
    EXPECT_EQ(session.CurrentProfileID, u"B1"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"B1"_s) << "its own window may be open";
    EXPECT_EQ(browser.listEpisodes.rowCount(), 0);
    EXPECT_FALSE(browser.commands.IsEnabled(u"mEditTVEpisode"_s));
}

TEST_F(SkinViewTest, AnEpisodeIsShownAsAPage) {
    ShowSeason();
    On();
    LoadEpisode(browser, u"H110"_s);
    EXPECT_EQ(Page(), "[Storm]");
    EXPECT_EQ(session.CurrentProfileID, u"H110"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    EXPECT_EQ(browser.current_episode, browser.listEpisodes.RowOfKey(u"H110"_s));
    EXPECT_EQ(told, QStringList{u"page"_s});
    EXPECT_GT(browser.listEpisodes.rowCount(), 1) << "the list of the season stays";
    Select(u"S1"_s);
    EXPECT_EQ(Page(), "[Return]") << "the first one of the first season";
}

TEST_F(SkinViewTest, TheKeyOfAGroupedTitleIsCut) {
    On();
    EXPECT_TRUE(ShowSkin(browser, u"B1|7"_s, false));
    EXPECT_EQ(Page(), "[Birch]");
    EXPECT_FALSE(ShowSkin(browser, u"|7"_s, false));
}

TEST_F(SkinViewTest, TheHeaderOfAGroupHasNoPage) {
    On();
    Select(u"B1"_s);
    browser.listSeries.Assign({TitleRow{.key = u"1"_s, .header = true}});
    UpdateSeriesList(browser, 0);
    EXPECT_EQ(Page(), QByteArray());
}

TEST_F(SkinViewTest, WithoutATitleThePageIsBlank) {
    On();
    Select(u"B1"_s);
    ClearAllProfileInfos(browser);
    EXPECT_EQ(Page(), QByteArray());
    ShowMovie(browser, u"gone"_s);
    EXPECT_EQ(Page(), QByteArray());
}

TEST_F(SkinViewTest, AMissingSkinGivesWayToThePanels) {
    On();
    session.CurrentSkin = u"Gone"_s;
    Expect(u"Skin Gone does not exist!"_s, u"Skin.html missing"_s, MessageIcon::Warning);
    Select(u"B1"_s);
    EXPECT_FALSE(session.view.mSkinEnable);
    EXPECT_FALSE(html.visible);
    EXPECT_FALSE(browser.commands.IsChecked(u"mSkinEnable"_s));
    EXPECT_EQ(told, (QStringList{u"skin"_s, u"panels"_s}));
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"B1"_s);
    EXPECT_EQ(session.CurrentProfileID, u"B1"_s);
}

TEST_F(SkinViewTest, TheMenuEntryShowsTheSelectionAnew) {
    Select(u"B1"_s);
    view->ToggleSkin();
    EXPECT_TRUE(session.view.mSkinEnable);
    EXPECT_EQ(Page(), "[Birch]");
    html.urls.clear();
    view->ToggleSkin();
    EXPECT_FALSE(session.view.mSkinEnable);
    EXPECT_EQ(html.urls, QStringList{u"about:blank"_s});
    EXPECT_EQ(told.back(), u"panels"_s);
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"B1"_s);
    browser.current_row = -1;
    html.urls.clear();
    view->ToggleSkin();
    EXPECT_EQ(html.urls, QStringList{u"about:blank"_s}) << "nothing is selected";
}

TEST_F(SkinViewTest, TheMenuEntryShowsTheEpisodeAnew) {
    ShowSeason();
    LoadEpisode(browser, u"H110"_s);
    view->ToggleSkin();
    EXPECT_EQ(Page(), "[Storm]");
    view->ToggleSkin();
    EXPECT_EQ(told.back(), u"panels"_s);
    EXPECT_EQ(session.CurrentProfileID, u"H110"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    browser.current_episode = -1;
    view->ToggleSkin();
    EXPECT_EQ(Page(), QByteArray());
}

TEST_F(SkinViewTest, WithoutASelectedSkinTheUserIsAsked) {
    Select(u"B1"_s);
    told.clear();
    session.CurrentSkin.clear();
    services.dialogs.ExpectInput({}, u"Plain"_s, u"Select Skin"_s);
    view->ToggleSkin();
    EXPECT_EQ(Page(), "[Birch]");
    EXPECT_TRUE(session.view.mSkinEnable);
    EXPECT_EQ(told.count(u"panels"_s), 0) << "the page came with the choice";
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"B1"_s);
    session.CurrentSkin.clear();
    services.dialogs.ExpectInput({}, std::nullopt, u"Select Skin"_s);
    Select(u"A1"_s);
    EXPECT_FALSE(session.view.mSkinEnable);
    EXPECT_EQ(told.back(), u"panels"_s);
}

TEST_F(SkinViewTest, AChosenSkinShowsTheSelection) {
    WriteSkin(u"Other"_s, "{<DP NAME=\"TITLE\">}");
    Select(u"B1"_s);
    services.dialogs.ExpectInput({}, u"Other"_s, u"Select Skin"_s);
    view->SelectSkin();
    EXPECT_EQ(session.CurrentSkin, u"Other"_s);
    EXPECT_TRUE(session.view.mSkinEnable);
    EXPECT_EQ(Page(), "{Birch}");
    services.dialogs.ExpectInput({}, std::nullopt, u"Select Skin"_s);
    view->SelectSkin();
    EXPECT_EQ(Page(), "{Birch}");
    EXPECT_TRUE(session.view.mSkinEnable);
}

TEST_F(SkinViewTest, ChangingTheModeAppliesTheState) {
    session.view.mSkinEnable = true;
    html.visible = false;
    ChangeMode(browser, false);
    EXPECT_TRUE(html.visible);
    Select(u"S1"_s);
    EXPECT_EQ(Page(), "[Return]");
    session.view.mSkinEnable = false;
    ChangeMode(browser, true);
    EXPECT_FALSE(html.visible);
}

TEST_F(SkinViewTest, AnOpenedDatabaseBringsItsSkin) {
    AttachBrowser(browser);
    WriteDbInfo(session, u"EnableSkin"_s, u"1"_s);
    WriteDbInfo(session, u"CurrentSkin"_s, u"Plain"_s);
    WriteDbInfo(session, u"LastSelectedItem"_s, u"C1"_s);
    session.CurrentSkin.clear();
    html.visible = false;
    ASSERT_TRUE(OpenCollectionDatabase(session, Path(u"Shelf.mdb"_s)));
    EXPECT_TRUE(html.visible);
    EXPECT_EQ(Page(), "[Cedar]");
    EXPECT_EQ(browser.cover_stem, session.CoverPath + u"C1"_s);
}

TEST_F(SkinViewTest, SettingsShowThePageAnew) {
    AttachBrowser(browser);
    On();
    Select(u"B1"_s);
    html.urls.clear();
    session.window.SettingsStored();
    EXPECT_EQ(Page(), "[Birch]");
}

TEST_F(SkinViewTest, OrdinaryLinksPass) {
    EXPECT_FALSE(html.Click(u"about:blank"_s));
    EXPECT_FALSE(html.Click(u"https://example.invalid/?profileid=B1"_s));
    EXPECT_FALSE(html.Click(PathToFileUrl(session.TempFolder + u"/Temp.html"_s)));
    EXPECT_EQ(html.urls, QStringList());
}

TEST_F(SkinViewTest, OtherKeysAreCancelledAndDoNothing) {
    On();
    Select(u"B1"_s);
    const QStringList urls = html.urls;
    told.clear();
    for (const QString &query : {u"?other=B1"_s, u""_s, u"?ProfileID=A1"_s, u"?profileid"_s}) {
        EXPECT_TRUE(Click(query)) << query.toStdString();
    }
    EXPECT_EQ(html.urls, urls);
    EXPECT_EQ(told, QStringList());
}

TEST_F(SkinViewTest, APersonLeadsToTheirTitles) {
    EXPECT_TRUE(Click(u"?actorid=Ann%20Oak|1970"_s));
    ASSERT_TRUE(shown_list);
    EXPECT_EQ(shown_list->caption, u"Ann Oak (1 entries)"_s);
    EXPECT_EQ(ListRows(), QStringList{u"Birch"_s});
    EXPECT_TRUE(Click(u"?actorid=Ann%20Oak|"_s));
    EXPECT_EQ(ListRows(), QStringList()) << "another person of that name";
}

TEST_F(SkinViewTest, AProfileIsShownByItsKey) {
    On();
    const struct {
        const char *name;
        QString key;
        QByteArray page;
        QString current;
    } cases[] = {
        {"as it stands", u"B1"_s, "[Birch]", u"B1"_s},
        {"with its prefix", u"Key_D1"_s, "[Dune's End]", u"Key_D1"_s},
        {"without its prefix", u"D1"_s, "[Dune's End]", u"Key_D1"_s},
        {"of nobody", u"Nothing"_s, "", u""_s},
    };
    for (const auto &c : cases) {
        Select(u"A1"_s);
        EXPECT_TRUE(Click(u"?profileid="_s + c.key)) << c.name;
        EXPECT_EQ(Page(), c.page) << c.name;
        EXPECT_EQ(CurrentKey(), c.current) << c.name;
    }
    EXPECT_EQ(BackKeys().front(), u"A1"_s) << "there is a way back";
}

TEST_F(SkinViewTest, AnEpisodeHasAWayBackToItsProfile) {
    On();
    Select(u"A1"_s);
    EXPECT_TRUE(Click(u"?episodeid=H11"_s));
    EXPECT_TRUE(Page().contains("[Arrival]"));
    EXPECT_TRUE(Page().contains("blank.html?profileid=A1'"));
    EXPECT_EQ(session.CurrentProfileID, u"H11"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    EXPECT_TRUE(Click(u"?profileid=A1"_s));
    EXPECT_EQ(Page(), "[Amber]");
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(BackKeys(), QStringList());
}

TEST_F(SkinViewTest, TheWindowWithEverythingFollowsThePages) {
    On();
    QStringList shown;
    browser.hooks.ShowProfile = [&](const QString &key, bool is_episode) {
        shown << key + (is_episode ? u" as episode"_s : QString());
    };
    Select(u"A1"_s);
    EXPECT_TRUE(Click(u"?episodeid=H11"_s));
    EXPECT_TRUE(Click(u"?profileid=B1"_s));
    EXPECT_EQ(shown, (QStringList{u"A1"_s, u"H11 as episode"_s, u"B1"_s}));
}

TEST_F(SkinViewTest, AnEpisodeThatCannotBeShownLeadsToThePanels) {
    On();
    Select(u"A1"_s);
    session.CurrentSkin = u"Gone"_s;
    Expect(u"Skin Gone does not exist!"_s, u"Skin.html missing"_s, MessageIcon::Warning);
    EXPECT_TRUE(Click(u"?episodeid=H11"_s));
    EXPECT_EQ(told.back(), u"panels"_s);
    EXPECT_EQ(session.CurrentProfileID, u"A1"_s);
}

TEST_F(SkinViewTest, ALinkMayBeFollowedLater) {
    std::vector<std::function<void()>> waiting;
    view->later = [&](std::function<void()> action) { waiting.push_back(std::move(action)); };
    On();
    EXPECT_TRUE(Click(u"?profileid=B1"_s));
    EXPECT_EQ(html.urls, QStringList());
    ASSERT_EQ(waiting.size(), 1u);
    waiting.front()();
    EXPECT_EQ(Page(), "[Birch]");
}

TEST_F(SkinViewTest, LinksLeadNowhereWithoutADatabase) {
    session.Database.reset();
    EXPECT_TRUE(Click(u"?profileid=B1"_s));
    EXPECT_TRUE(Click(u"?actorid=Ann Oak|1970"_s));
    EXPECT_FALSE(shown_list);
}

TEST_F(SkinViewTest, AViewWithoutAnEngineIsToldAndLeft) {
    struct Broken : test::ScriptedHtmlView {
        void Navigate(const QString &url) override {
            ScriptedHtmlView::Navigate(url);
            if (url != u"about:blank"_s) {
                failed();
            }
        }
        std::function<void()> failed;
    } broken;
    view.reset();
    view = std::make_unique<SkinView>(browser, broken);
    broken.failed = [this] { view->TellNoEngine(u"no such module"_s); };
    On();
    Expect(u"Pages of skins cannot be shown.\nno such module"_s, u"Select Skin"_s, MessageIcon::Warning);
    Select(u"B1"_s);
    EXPECT_FALSE(session.view.mSkinEnable);
    EXPECT_FALSE(broken.visible);
    EXPECT_EQ(told.back(), u"panels"_s);
    Select(u"A1"_s);
    EXPECT_EQ(services.dialogs.messages.size(), 1u);
    view.reset();
}

TEST_F(SkinViewTest, GoesWithItsHooks) {
    view.reset();
    EXPECT_FALSE(browser.hooks.ShowSkin);
    EXPECT_FALSE(browser.hooks.EnableWebSkin);
    EXPECT_FALSE(html.before_navigate);
    session.view.mSkinEnable = true;
    Select(u"B1"_s);
    EXPECT_EQ(told.back(), u"panels"_s);
}

} // namespace
} // namespace ostrand
