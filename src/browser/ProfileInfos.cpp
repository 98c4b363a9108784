#include "browser/ProfileInfos.h"

#include "base/FolderIndex.h"
#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/Credits.h"
#include "browser/MediaIcon.h"
#include "browser/SheetTitle.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QScopedValueRollback>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The three titles of a record, each once, with "/" between them.
QString JoinTitles(const QString &title, const QString &original, const QString &custom) {
    QString text = title;
    if (!original.isEmpty() && original != title) {
        text += u'/' + original;
    }
    if (!custom.isEmpty() && custom != title && custom != original) {
        text += u'/' + custom;
    }
    return text.startsWith(u'/') ? text.mid(1) : text;
}

QString WithYear(const QString &text, const QString &year) {
    return year.isEmpty() || year == "0"_L1 ? text : text + " ("_L1 + year + u')';
}

void Remember(Browser &browser, const QString &id, bool is_episode) {
    browser.session.CurrentProfileID = id;
    browser.session.CurrentIsEpisode = is_episode;
}

enum MainTab { kCreditsTab = 1, kDetailsTab, kAVTab };

void TellProfileWindow(Browser &browser, const QString &id, bool is_episode) {
    if (browser.hooks.ShowProfile) {
        browser.hooks.ShowProfile(id, is_episode);
    }
}

/// Lets events run once; false when another title became the current one meanwhile.
bool StaysCurrent(Browser &browser) {
    const QString id = browser.session.CurrentProfileID;
    if (!browser.turning) {
        const QScopedValueRollback<bool> turn(browser.turning, true);
        browser.session.services.pump.Turn();
    }
    return browser.session.CurrentProfileID == id && !browser.session.view.mTVShows;
}

/// listEpisodes holds the episodes on a title's discs.
void ListAssignedEpisodes(Browser &browser, const QString &id) {
    sql::Recordset rows = browser.session.Database->OpenRecordset(
        u"SELECT e.EpisodeTitle, e.EpisodeOriginalTitle, e.SeriesID, e.Season, s.OriginalTitle, e.EpisodeNo, s.Title, "
        "e.EpisodeID FROM Episodes e, Profile2Episodes p, TVSeries s WHERE p.ProfileID = '"_s +
        EscapeSql(id) +
        u"' AND e.EpisodeID = p.EpisodeID AND s.SeriesID = e.SeriesID ORDER BY SortTitle, Season, EpisodeNo"_s);
    UpdateEpisodeList(browser, rows);
    if (browser.listEpisodes.rowCount() > 0) {
        rows.MoveFirst();
        ShowAssignedEpisodes(browser, rows);
    } else {
        GetBoxsetProfiles(browser, id);
    }
}

/// The panels of the credits and below them, for a title that was chosen in one of the lists.
void ShowPeople(Browser &browser, const QString &id, bool is_episode) {
    ClearAwards(browser);
    ShowCredits(browser, id, is_episode);
    if (!is_episode) {
        ClearAppearences(browser);
        ListAssignedEpisodes(browser, id);
    } else if (browser.session.view.mTVShows) {
        GetEpisodeProfiles(browser, id);
    }
}

/// The caption, and what the panels tell in the selected tab.
void FillPanels(Browser &browser, const sql::Recordset &record, const QString &id, bool is_episode, bool keep_credits) {
    FillUPC(browser, record, is_episode);
    browser.caption = is_episode ? EpisodeCaption(record) : MakeWindowCaption(record);
    const QString medium = is_episode ? QString() : record.Text(u"Medium");
    browser.picMedium = MediaIconKey(medium);
    browser.picMedium_tool_tip = Translate(browser.session, medium);
    const int tab = browser.tabMain_selected;
    if (tab == kDetailsTab) {
        FillLinksAndGroups(browser, id);
    }
    if (!keep_credits) {
        ShowPeople(browser, id, is_episode);
    }
    if (tab == kAVTab) {
        FillAV(browser, id);
    } else if (tab == kDetailsTab) {
        FillTexts(browser, record, id, is_episode);
    }
}

} // namespace

void UpdateSeriesList(Browser &browser, int row) {
    Session &session = browser.session;
    Remember(browser, {}, false);
    if (row < 0 || row >= browser.listSeries.rowCount()) {
        return;
    }
    browser.current_row = row;
    Q_EMIT browser.CurrentRowChanged();
    const QString key = browser.listSeries.At(row).key;
    const bool header = browser.listSeries.At(row).header;
    if (session.view.mTVShows) {
        session.CurrentSeriesID = key;
        UpdateSeasons(browser, key);
        return;
    }
    if (header || !ShowSkin(browser, key, false)) {
        GetProfileInfos(browser, key, false, false);
    }
    if (StaysCurrent(browser)) {
        ShowCover(browser, key); // beside a page too: the window of the cover may be open
    }
}

bool ShowSkin(Browser &browser, const QString &key, bool is_episode) {
    const QString id = ProfileOfKey(key);
    if (!browser.session.view.mSkinEnable || !browser.hooks.ShowSkin || id.isEmpty() ||
        !browser.hooks.ShowSkin(id, is_episode)) {
        return false;
    }
    browser.commands.SetEnabled(u"mEditTVEpisode"_s, is_episode);
    TellProfileWindow(browser, id, is_episode);
    return true;
}

void GetProfileInfos(Browser &browser, const QString &key, bool is_episode, bool keep_credits) {
    Session &session = browser.session;
    if (session.trace.Wants(kTraceEntry)) {
        Trace(session,
              u"GetProfileInfos(%1, %2, %3)"_s.arg(key, is_episode ? u"True" : u"False",
                                                   keep_credits ? u"True" : u"False"),
              kTraceEntry);
    }
    EnableTab(browser, browser.tabMain_selected);
    const QString id = ProfileOfKey(key);
    Remember(browser, id, is_episode);
    browser.commands.SetEnabled(u"mEditTVEpisode"_s, is_episode);
    if (id.isEmpty() || !session.Database) {
        ShowNoTitle(browser);
        return;
    }
    const sql::Recordset record = session.Database->OpenRecordset(TitleStatement({id, is_episode}));
    if (record.Eof()) {
        ShowNoTitle(browser);
        return;
    }
    FillPanels(browser, record, id, is_episode, keep_credits);
    Q_EMIT browser.TitleChanged();
    TellProfileWindow(browser, id, is_episode);
}

void RefreshProfileInfos(Browser &browser) {
    const Session &session = browser.session;
    if (session.Database && !session.CurrentProfileID.isEmpty() && !session.view.mSkinEnable) {
        GetProfileInfos(browser, session.CurrentProfileID, session.CurrentIsEpisode, true);
    } else {
        ClearProfileInfos(browser);
        Q_EMIT browser.TitleChanged();
    }
}

void ClearAllProfileInfos(Browser &browser) {
    browser.caption = browser.base_caption;
    browser.picMedium.clear();
    browser.picMedium_tool_tip.clear();
    ClearProfileInfos(browser);
    if (!browser.session.view.mTVShows) {
        browser.listEpisodes.Clear();
    }
    ClearCredits(browser);
    ClearAppearences(browser);
    ClearAwards(browser);
    if (browser.session.view.mSkinEnable && browser.session.window.ShowBlankPage) {
        browser.session.window.ShowBlankPage();
    }
    Q_EMIT browser.TitleChanged();
    if (!browser.cover_stem.isEmpty()) {
        browser.cover_stem.clear();
        Q_EMIT browser.CoverChanged();
    }
}

void ShowNoTitle(Browser &browser) {
    ClearAllProfileInfos(browser);
    TellProfileWindow(browser, {}, false);
}

QString MakeWindowCaption(const sql::Recordset &record) {
    const auto field = [&record](QStringView name) {
        const int ordinal = record.FindOrdinal(name);
        return ordinal < 0 ? QString() : record.Text(ordinal);
    };
    QString text = JoinTitles(field(u"Title"), field(u"OriginalTitle"), field(u"CustomTitle"));
    text = WithYear(text, field(u"ProdYear"));
    const QString medium = field(u"Medium");
    return medium.isEmpty() ? text : text + " - "_L1 + medium;
}

QString EpisodeCaption(const sql::Recordset &record) {
    const QString text = JoinTitles(record.Text(u"EpisodeTitle"), record.Text(u"EpisodeOriginalTitle"), {});
    const QString year = record.Text(u"AirDate").left(4);
    return WithYear(text, year == "1899"_L1 ? QString() : year);
}

void ShowCover(Browser &browser, const QString &key) {
    QString id = ProfileOfKey(key);
    id.remove(u"Key_"_s);
    browser.cover_stem = id.isEmpty() ? QString() : browser.session.CoverPath + id;
    Q_EMIT browser.CoverChanged();
}

void FlipCover(Browser &browser) {
    browser.session.ShowFrontCover = !browser.session.ShowFrontCover;
    Q_EMIT browser.CoverChanged();
}

QString CurrentCoverFile(Browser &browser) {
    if (browser.cover_stem.isEmpty()) {
        return {};
    }
    browser.covers.SetFolder(browser.session.CoverPath);
    return browser.covers.Find(browser.cover_stem.mid(browser.session.CoverPath.size()) +
                               (browser.session.ShowFrontCover ? "f.jpg"_L1 : "b.jpg"_L1));
}

} // namespace ostrand
