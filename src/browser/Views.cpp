#include "browser/Views.h"

#include "browser/AppearancesPanel.h"
#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/ListFilling.h"
#include "browser/ProfileInfos.h"
#include "browser/TitleQueries.h"
#include "browser/Titles.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kTabColList = "TabColList"_L1;

/// No title and no series is the current one, and the lists that follow them are empty.
void ForgetTitle(Browser &browser) {
    browser.session.CurrentProfileID.clear();
    browser.session.CurrentIsEpisode = false;
    browser.current_row = -1;
    browser.current_episode = -1;
    browser.current_season = -1;
    browser.listSeries.Clear();
    browser.listEpisodes.Clear();
    browser.listSeasons.clear();
    Q_EMIT browser.SeasonsChanged();
    Q_EMIT browser.CurrentRowChanged();
}

void ShowMainTab(Browser &browser, int index) {
    browser.tabMain_selected = index;
    EnableTab(browser, index);
    Q_EMIT browser.MainTabChanged();
}

/// ChangeMode, with the tab of tabColList that movie view shows; 0 for the one that ReloadColTypeTabs leaves selected.
void EnterView(Browser &browser, bool movies, int tab) {
    Session &session = browser.session;
    ViewState &view = session.view;
    const QString call = u"ChangeMode("_s + (movies ? u"True"_s : u"False"_s) + u')';
    Trace(session, call, kTraceEntry);
    view.mTVShows = !movies;
    browser.commands.FollowView(movies);
    ForgetTitle(browser); // so that who hears of the mode finds no row of the other one
    Q_EMIT browser.ModeChanged();
    ShowNoTitle(browser);
    browser.history.Clear();
    Q_EMIT browser.HistoryChanged();
    if (movies && view.LastTab != 1) {
        ShowMainTab(browser, view.LastTab);
    }
    ReloadColTypeTabs(browser);
    if (browser.hooks.EnableWebSkin) {
        browser.hooks.EnableWebSkin(view.mSkinEnable);
    }
    if (movies) {
        SelectTab(browser, tab);
    } else {
        if (view.LastTab != 1) {
            ShowMainTab(browser, 1);
            ClearProfileInfos(browser);
        }
        GetProfileInfos(browser, {}, false, false);
    }
    ReloadList(browser);
    Trace(session, call, kTraceExit);
}

void SetEpisode(Browser &browser, int row) {
    browser.current_episode = row;
    Q_EMIT browser.CurrentEpisodeChanged();
}

void ReadSeasons(Browser &browser, const QString &series_id) {
    sql::Recordset rows = browser.session.Database->OpenRecordset(
        u"SELECT DISTINCT Season FROM Episodes WHERE SeriesID = '"_s + EscapeSql(series_id) + u'\'');
    for (; !rows.Eof(); rows.MoveNext()) {
        browser.listSeasons += rows.Text(0);
    }
}

/// "3+4" stands as the third episode.
QString EpisodeNumber(const QString &number) {
    return number.section(u'+', 0, 0).trimmed().rightJustified(3);
}

} // namespace

void ChangeMode(Browser &browser, bool movies) {
    EnterView(browser, movies, 0);
}

void ReloadList(Browser &browser) {
    Session &session = browser.session;
    if (!session.Database) {
        return;
    }
    try {
        if (session.view.mTVShows) {
            UpdateSeriesNames(browser);
        } else {
            GetMovieNames(browser);
            if (browser.listSeries.rowCount() == 0) {
                GetProfileInfos(browser, {}, false, false);
            }
        }
    } catch (const sql::SqlError &error) {
        Trace(session, u"ReloadList: "_s + error.Text(), kTraceError);
        ForgetTitle(browser);
        ShowNoTitle(browser);
        ShowFilterCount(browser, 0);
    }
}

void ShowMovies(Browser &browser) {
    bool ok = false;
    const int tab = ReadDbInfo(browser.session, kTabColList, u"1"_s).toInt(&ok);
    EnterView(browser, true, ok ? tab : 1);
}

void ShowTVShows(Browser &browser) {
    Session &session = browser.session;
    if (!session.view.mTVShows) {
        session.view.TabColList = browser.tabColList_selected;
        WriteDbInfo(session, kTabColList, QString::number(browser.tabColList_selected));
    }
    ChangeMode(browser, false);
    ClearAppearences(browser); // what the first episode of all listed goes again, deliberately
}

void UpdateSeriesNames(Browser &browser) {
    Session &session = browser.session;
    const ViewState &view = session.view;
    Trace(session, u"UpdateSeriesNames()"_s, kTraceEntry);
    if (!session.Database) {
        return;
    }
    std::vector<TitleRow> series;
    sql::Recordset rows = session.Database->OpenRecordset(
        u"SELECT * FROM TVSeries ORDER BY "_s + (view.mUseOriginalTitle ? u"OriginalSortTitle"_s : u"SortTitle"_s));
    for (; !rows.Eof(); rows.MoveNext()) {
        TitleRow row;
        row.key = rows.Text(u"SeriesID");
        const QString original = rows.Text(u"OriginalTitle");
        row.tag = original.isEmpty() ? rows.Text(u"Title") : original;
        row.texts[TitleList::Title] = GetTitle(view, rows, true, false);
        row.texts[TitleList::SortTitle] = GetSortTitle(view, rows, true);
        row.tool_tip = row.texts[TitleList::Title];
        series.push_back(std::move(row));
    }
    BeginList(browser);
    ShowSortColumn(browser.listSeries, TitleList::SortTitle);
    browser.listSeries.Assign(std::move(series));
    if (view.mcolorlist) {
        ApplyListColors(browser, false);
    }
    ShowFilterCount(browser, browser.listSeries.rowCount());
    if (browser.listSeries.rowCount() > 0) {
        UpdateSeriesList(browser, 0);
    } else {
        session.CurrentSeriesID.clear();
        UpdateSeasons(browser, {});
        Q_EMIT browser.CurrentRowChanged();
    }
    Trace(session, u"UpdateSeriesNames()"_s, kTraceExit);
}

void UpdateSeasons(Browser &browser, const QString &series_id) {
    Session &session = browser.session;
    Trace(session, u"UpdateSeasons("_s + series_id + u')', kTraceEntry);
    browser.listEpisodes.Clear();
    browser.listSeasons.clear();
    SetEpisode(browser, -1);
    if (session.Database) {
        ReadSeasons(browser, series_id);
    }
    browser.current_season = browser.listSeasons.isEmpty() ? -1 : 0;
    Q_EMIT browser.SeasonsChanged();
    if (browser.current_season == 0) {
        UpdateEpisodes(browser, series_id, browser.listSeasons.front());
    } else if (session.view.mTVShows) {
        GetProfileInfos(browser, {}, false, false);
    }
}

void SelectSeason(Browser &browser, int index) {
    if (index < 0 || index >= browser.listSeasons.size()) {
        return;
    }
    browser.current_season = index;
    Q_EMIT browser.SeasonsChanged();
    UpdateEpisodes(browser, browser.session.CurrentSeriesID, browser.listSeasons[index]);
}

void UpdateEpisodes(Browser &browser, const QString &series_id, const QString &season) {
    Session &session = browser.session;
    Trace(session, u"UpdateEpisodes("_s + series_id + u", "_s + season + u')', kTraceEntry);
    if (!session.Database) {
        return;
    }
    sql::Recordset rows =
        session.Database->OpenRecordset(u"SELECT DISTINCT * FROM Episodes WHERE SeriesID = '"_s + EscapeSql(series_id) +
                                        u"' AND Season = '"_s + EscapeSql(season) + u"' ORDER BY EpisodeNo"_s);
    UpdateEpisodeList(browser, rows);
    if (!session.view.mTVShows) {
        return;
    }
    const QString first = browser.listEpisodes.KeyAt(0);
    if (first.isEmpty()) {
        GetProfileInfos(browser, {}, false, false);
    } else {
        LoadEpisode(browser, first);
    }
}

void UpdateEpisodeList(Browser &browser, sql::Recordset &rows) {
    std::vector<EpisodeRow> episodes;
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString original = rows.Text(u"EpisodeOriginalTitle");
        episodes.push_back({.key = rows.Text(u"EpisodeID"),
                            .number = EpisodeNumber(rows.Text(u"EpisodeNo")),
                            .title = GetEpisodeTitle(browser.session.view, rows),
                            .tag = original.isEmpty() ? rows.Text(u"EpisodeTitle") : original,
                            .season = rows.Text(u"Season")});
    }
    browser.listEpisodes.Assign(std::move(episodes));
    SetEpisode(browser, -1);
}

void LoadEpisode(Browser &browser, const QString &episode_id) {
    Trace(browser.session, u"LoadEpisode("_s + episode_id + u')', kTraceEntry);
    SetEpisode(browser, browser.listEpisodes.RowOfKey(episode_id));
    if (!ShowSkin(browser, episode_id, true)) {
        GetProfileInfos(browser, episode_id, true, false);
    }
}

void Redisplay(Browser &browser) {
    if (!browser.session.view.mTVShows) {
        if (browser.current_row >= 0) {
            UpdateSeriesList(browser, browser.current_row);
        }
        return;
    }
    if (const QString key = browser.listEpisodes.KeyAt(browser.current_episode); !key.isEmpty()) {
        LoadEpisode(browser, key);
    }
}

void SortEpisodes(Browser &browser, int column, Qt::SortOrder order) {
    const QString key = browser.listEpisodes.KeyAt(browser.current_episode);
    browser.listEpisodes.sort(column, order);
    SetEpisode(browser, key.isEmpty() ? -1 : browser.listEpisodes.RowOfKey(key));
}

} // namespace ostrand
