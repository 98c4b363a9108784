#include "browser/CollectionTabs.h"

#include "browser/Browser.h"
#include "browser/Credits.h"
#include "browser/ProfileInfos.h"
#include "browser/TitleQueries.h"
#include "browser/Views.h"
#include "shell/Session.h"
#include "shell/Settings.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kClearFilter = "Clear Filter"_L1;
constexpr auto kTagFilter = "Filter Profiles by Tags"_L1;
constexpr auto kEditFilter = "Add/Edit Filter"_L1;
constexpr auto kEditFilterCommand = "mSQLQuery"_L1;

constexpr QStringView kDefaultColTypes[] = {u"Owned", u"Ordered", u"WishList"};

/// The collection types of the profiles, without NULL.
QStringList UsedColTypes(Session &session) {
    QStringList types;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT DISTINCT ColType FROM Profiles ORDER BY ColType");
    for (; !rows.Eof(); rows.MoveNext()) {
        if (!rows.IsNull(0)) {
            types += rows.Text(0);
        }
    }
    return types;
}

void AppendColTypeTabs(Browser &browser) {
    Session &session = browser.session;
    const bool with_defaults = session.view.UseProfilerColTypes;
    if (with_defaults) {
        for (const QStringView type : kDefaultColTypes) {
            browser.tabColList += Translate(session, type.toString());
        }
    }
    for (const QString &type : UsedColTypes(session)) {
        if (!with_defaults || !IsDefaultColType(type)) {
            browser.tabColList += Translate(session, type);
        }
    }
}

void ShowFilterTags(Browser &browser) {
    if (!browser.hooks.ShowFilterTags) {
        return;
    }
    if (browser.session.view.mTVShows) {
        ChangeMode(browser, true);
    }
    browser.hooks.ShowFilterTags();
}

} // namespace

bool IsDefaultColType(const QString &type) {
    return std::any_of(std::begin(kDefaultColTypes), std::end(kDefaultColTypes),
                       [&](QStringView preset) { return sql::Compare(preset, type) == 0; });
}

void LoadTabs(Browser &browser) {
    Session &session = browser.session;
    browser.tabMain = {Translate(session, u"Cast/Crew"_s), Translate(session, u"Details"_s),
                       Translate(session, u"Audio/Video"_s)};
    browser.tabMain_selected = ClampTab(browser.tabMain_selected, int(browser.tabMain.size()));
    if (browser.tabColList.isEmpty()) {
        browser.tabColList.append(QString());
    }
    browser.tabColList.front() = Translate(session, u"All"_s);
    ReloadColTypeTabs(browser);
    Q_EMIT browser.MainTabChanged();
}

void ReloadColTypeTabs(Browser &browser) {
    Session &session = browser.session;
    const QString selected = browser.tabColList.value(browser.tabColList_selected - 1);
    const bool first_selected = browser.tabColList_selected <= 1;
    const bool movies = !session.view.mTVShows;
    browser.tabColList = {Translate(session, movies ? u"All"_s : u"TV"_s)};
    if (movies && session.Database) {
        AppendColTypeTabs(browser);
    }
    // The tab that was selected stays so where it is still there.
    const qsizetype place = first_selected ? 0 : browser.tabColList.indexOf(selected);
    browser.tabColList_selected = int(std::max<qsizetype>(place, 0)) + 1;
    Q_EMIT browser.TabsChanged();
    ApplyFilterLayout(browser);
}

void EnableTab(Browser &browser, int index) {
    const int tab = ClampTab(index, int(browser.tabMain.size()));
    // TV view begins on the first tab without forgetting the one that movie view goes back to.
    if (!browser.session.view.mTVShows) {
        browser.session.view.LastTab = tab;
    }
    if (tab != browser.tabMain_selected) {
        browser.tabMain_selected = tab;
        Q_EMIT browser.MainTabChanged();
    }
}

void UpdateFilters(Browser &browser) {
    Session &session = browser.session;
    browser.comboFilter = {Translate(session, kClearFilter), Translate(session, kTagFilter)};
    browser.comboFilter_text.clear();
    if (session.Database) {
        sql::Recordset rows =
            session.Database->OpenRecordset(u"SELECT Name, SQLStatement FROM SQLQueries ORDER BY Name");
        for (; !rows.Eof(); rows.MoveNext()) {
            if (QualifiesAsFilter(rows.Text(1))) {
                browser.comboFilter += rows.Text(0);
            }
        }
    }
    browser.comboFilter += Translate(session, kEditFilter);
    Q_EMIT browser.FilterChanged();
}

void ApplyFilterLayout(Browser &browser) {
    const ViewState &view = browser.session.view;
    const bool shown = view.mShowFilter && !view.mTVShows;
    if (shown != browser.filter_shown) {
        browser.filter_shown = shown;
        Q_EMIT browser.FilterChanged();
    }
}

void ToggleFilter(Browser &browser) {
    bool &shown = browser.session.view.mShowFilter;
    shown = !shown;
    ApplyFilterLayout(browser);
    browser.commands.Refresh();
}

bool SelectTab(Browser &browser, int index) {
    if (index < 1 || index > browser.tabColList.size()) {
        return false;
    }
    browser.tabColList_selected = index;
    Q_EMIT browser.TabsChanged();
    return true;
}

void SelectColTypeTab(Browser &browser, int index) {
    if (SelectTab(browser, index) && SelectedColType(browser) != "TV"_L1) {
        ReloadList(browser);
    }
}

void SelectMainTab(Browser &browser, int index) {
    Session &session = browser.session;
    session.view.LastTab = ClampTab(index, int(browser.tabMain.size()));
    EnableTab(browser, index);
    GetProfileInfos(browser, session.CurrentProfileID, session.CurrentIsEpisode, true);
    if (browser.tabMain_selected == 1) {
        ShowStaleCredits(browser);
    }
}

void ChooseFilter(Browser &browser, const QString &text) {
    const QString entry = ReverseTranslate(browser.session, text);
    browser.comboFilter_text = text;
    Q_EMIT browser.FilterChanged();
    if (entry == kClearFilter) {
        ReloadList(browser);
    } else if (entry == kEditFilter) {
        browser.commands.Run(kEditFilterCommand);
    } else if (entry == kTagFilter) {
        ShowFilterTags(browser);
    } else if (!entry.isEmpty()) {
        SpecialProfileOrder(browser, u"Filter"_s);
    }
}

bool FilterEntryAvailable(Browser &browser, int index) {
    const QString entry = ReverseTranslate(browser.session, browser.comboFilter.value(index));
    if (entry == kEditFilter) {
        return browser.commands.HasHandler(kEditFilterCommand);
    }
    if (entry == kTagFilter) {
        return bool(browser.hooks.ShowFilterTags);
    }
    return !entry.isEmpty();
}

void OpenFilterList(Browser &browser) {
    Session &session = browser.session;
    if (browser.comboFilter.isEmpty()) {
        ShowMessage(session, {.text = Translate(
                                  session, u"No Filter defined! Filters are created through 'Tools->SQL Query'."_s),
                              .title = Translate(session, u"No Filter defined"_s),
                              .icon = MessageIcon::Information});
        return;
    }
    // Queries may have been saved, deleted or imported since the last time.
    const QString chosen = browser.comboFilter_text;
    try {
        UpdateFilters(browser);
    } catch (const sql::SqlError &error) {
        Trace(session, u"OpenFilterList: "_s + error.Text(), kTraceError);
    }
    if (browser.comboFilter.contains(chosen)) {
        browser.comboFilter_text = chosen;
    }
    Q_EMIT browser.FilterChanged();
}

bool QualifiesAsFilter(const QString &statement) {
    const QString lower = statement.toLower();
    const qsizetype end = lower.indexOf("from"_L1);
    const QStringView columns = QStringView(lower).left(std::max<qsizetype>(end, 0));
    static constexpr QStringView kWanted[] = {u"p.title",      u"p.profileid",     u"p.colno",
                                              u"p.sorttitle",  u"p.originaltitle", u"p.originalsorttitle",
                                              u"p.description"};
    return std::all_of(std::begin(kWanted), std::end(kWanted),
                       [&](QStringView column) { return columns.contains(column); });
}

} // namespace ostrand
