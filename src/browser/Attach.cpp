#include "browser/Attach.h"

#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/Credits.h"
#include "browser/Navigation.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"
#include "database/TitlesDue.h"
#include "shell/Session.h"
#include "shell/Settings.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr double kTitleWidth = 0.78;

QStringList Translated(Session &session, std::initializer_list<const char16_t *> texts) {
    QStringList translated;
    for (const char16_t *text : texts) {
        translated += Translate(session, QString::fromUtf16(text));
    }
    return translated;
}

void ShowHeaders(Browser &browser) {
    Session &session = browser.session;
    browser.listSeries.SetHeaders(Translated(session, {u"Title", u"#", u"SortTitle", u"Year", u"P.Date", u"Released"}));
    browser.listEpisodes.SetHeaders(Translated(session, {u"#", u"Episode Title"}));
    TranslateContent(browser);
    ShowCreditHeaders(browser);
    ShowAppearanceHeaders(browser);
}

void BuildColumns(Browser &browser) {
    browser.listSeries.Clear();
    ShowHeaders(browser);
    for (int column = 1; column < kTitleColumns; ++column) {
        browser.listSeries.SetWidth(column, 0);
    }
}

/// A caption that was made before the language changed, in the new one.
QString InPresentLanguage(Browser &browser, const QString &caption) {
    Session &session = browser.session;
    return Translate(session, browser.translated ? ReverseTranslate(session, caption, true) : caption);
}

void LoadWindowSettings(Browser &browser) {
    ViewState &view = browser.session.view;
    browser.translated = browser.session.UseUserDefinedStrings;
    Q_EMIT browser.SettingsChanged();
    browser.current_row = -1;
    browser.find.Forget();
    BuildColumns(browser);
    browser.tabColList_selected = 1; // captions of another database say nothing here
    LoadTabs(browser);
    view.LastTab = ClampTab(view.LastTab, int(browser.tabMain.size()));
    browser.tabMain_selected = view.LastTab;
    Q_EMIT browser.MainTabChanged();
    if (!view.mTVShows) {
        ReloadColTypeTabs(browser);
        view.TabColList = ClampTab(view.TabColList, int(browser.tabColList.size()));
        SelectTab(browser, view.TabColList);
        ApplyFilterLayout(browser);
    }
    ChangeMode(browser, !view.mTVShows);
    UpdateFilters(browser);
}

/// Lets the settings that are about to be written tell what the browser shows.
void FollowBrowser(Browser &browser) {
    ViewState &view = browser.session.view;
    if (!view.mTVShows) {
        view.TabColList = browser.tabColList_selected;
    }
    const QString key = browser.listSeries.KeyAt(browser.current_row);
    view.LastSelectedItem = key.isEmpty() ? browser.find.HiddenKey() : key;
}

/// The cover folder may have been settled after the current row was shown.
void ShowCoverAgain(Browser &browser) {
    const QString key = browser.listSeries.KeyAt(browser.current_row);
    const Session &session = browser.session;
    // Links of a page can lead from the row to an episode.
    if (!session.view.mTVShows && !session.CurrentIsEpisode && !key.isEmpty()) {
        ShowCover(browser, key);
    }
}

void RestoreSelection(Browser &browser) {
    Q_EMIT browser.DatabaseOpened();
    Q_EMIT browser.TagsChanged(true);
    GetLastSelectedItem(browser);
    ShowCoverAgain(browser);
    browser.listSeries.SetWidth(TitleList::Title, kTitleWidth);
}

/// After an import: the tab that holds every title, and on it the one that was shown.
void ReloadTitles(Browser &browser) {
    Session &session = browser.session;
    const QString key = ProfileOfKey(browser.listSeries.KeyAt(browser.current_row));
    SelectTab(browser, 1);
    ChangeMode(browser, !session.view.mTVShows);
    const int restored = key.isEmpty() ? -1 : browser.listSeries.RowOfTitle(key);
    if (restored > 0) { // the first row is shown already
        UpdateSeriesList(browser, restored);
    }
    Q_EMIT browser.TagsChanged(false);
}

void TakeSettings(Browser &browser) {
    if (!browser.session.view.mTVShows) {
        // The default types may have come or gone, and the one that was selected with them.
        const QString type = SelectedColType(browser);
        ReloadColTypeTabs(browser);
        if (SelectedColType(browser) != type) {
            ReloadList(browser);
        }
    }
    RefreshPeople(browser); // headshots may be marked now, or no longer
    ShowCoverAgain(browser);
    Q_EMIT browser.SettingsChanged();
}

} // namespace

void ShowNoCollection(Browser &browser) {
    Session &session = browser.session;
    session.CurrentProfileID.clear();
    session.CurrentSeriesID.clear();
    session.CurrentIsEpisode = false;
    browser.find.Forget();
    browser.current_row = -1;
    browser.current_episode = -1;
    browser.current_season = -1;
    browser.listSeries.Clear();
    browser.listEpisodes.Clear();
    browser.listSeasons.clear();
    browser.history.Clear();
    Q_EMIT browser.HistoryChanged();
    Q_EMIT browser.SeasonsChanged();
    ReloadColTypeTabs(browser);
    UpdateFilters(browser);
    ShowFilterCount(browser, 0);
    ShowNoTitle(browser);
    Q_EMIT browser.TagsChanged(true);
}

void TranslateBrowser(Browser &browser) {
    Session &session = browser.session;
    ShowHeaders(browser);
    for (QStringList *captions : {&browser.tabMain, &browser.tabColList}) {
        for (QString &caption : *captions) {
            caption = InPresentLanguage(browser, caption);
        }
    }
    const QString filter = InPresentLanguage(browser, browser.comboFilter_text);
    UpdateFilters(browser);
    if (browser.comboFilter.contains(filter)) {
        browser.comboFilter_text = filter;
    }
    browser.translated = session.UseUserDefinedStrings;
    Q_EMIT browser.MainTabChanged();
    Q_EMIT browser.TabsChanged();
    Q_EMIT browser.FilterChanged();
    browser.listSeries.SetHeaderTexts([&session](const QString &group) { return Translate(session, group); });
    ShowFilterCount(browser, browser.filter_count);
    RefreshProfileInfos(browser);
    RefillAppearances(browser);
}

void AttachBrowser(Browser &browser) {
    Session &session = browser.session;
    session.window.LoadDatabaseSettings = [&browser] { LoadWindowSettings(browser); };
    session.window.SaveDatabaseSettings = [&browser] { FollowBrowser(browser); };
    session.window.GetLastSelectedItem = [&browser] { RestoreSelection(browser); };
    session.window.ReloadTitles = [&browser] { ReloadTitles(browser); };
    session.window.SettingsStored = [&browser] { TakeSettings(browser); };
    session.window.ShowTitlesDue = [&session] { ShowTitlesDue(session); };
}

} // namespace ostrand
