#include "browser/Navigation.h"

#include "base/Text.h"
#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"
#include "database/DatabaseFunctions.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The current row, or the one that was current before the find box hid it; null for none.
const TitleRow *CurrentRow(const Browser &browser) {
    const TitleList &list = browser.listSeries;
    const int row = browser.current_row;
    if (row >= 0 && row < list.rowCount()) {
        return &list.At(row);
    }
    const QString &hidden = browser.find.HiddenKey();
    return hidden.isEmpty() ? nullptr : list.Held(hidden);
}

/// The row that is left, as an entry of the history; empty for none and for the header of a group.
HistoryEntry CurrentEntry(const Browser &browser) {
    const TitleRow *current = CurrentRow(browser);
    if (current == nullptr || current->header) {
        return {};
    }
    return {ProfileOfKey(current->key), current->texts[TitleList::Title]};
}

/// Remembers the current title, unless it is the one to be shown.
void RecordLeaving(Browser &browser, const QString &next_key) {
    const HistoryEntry left = CurrentEntry(browser);
    if (!left.key.isEmpty() && left.key.compare(ProfileOfKey(next_key), Qt::CaseInsensitive) != 0) {
        browser.history.AddHistoryBack(left.key, left.text, true);
        Q_EMIT browser.HistoryChanged();
    }
}

void ShowNothing(Browser &browser, const QString &key) {
    browser.current_row = -1;
    Q_EMIT browser.CurrentRowChanged();
    GetProfileInfos(browser, key, false, false);
}

/// Shows a title or, in TV view, a series that the list holds; false when it does not.
bool ShowRowOf(Browser &browser, const QString &key) {
    browser.find.GiveWayTo(key);
    const int row = browser.listSeries.RowOfTitle(key);
    if (row >= 0) {
        UpdateSeriesList(browser, row);
    }
    return row >= 0;
}

void ShowProfile(Browser &browser, const QString &key) {
    if (browser.session.view.mTVShows) {
        ChangeMode(browser, true);
    }
    if (ShowRowOf(browser, key)) {
        return;
    }
    SelectColTypeTab(browser, 1);
    if (!ShowRowOf(browser, key)) {
        ShowNothing(browser, key);
    }
}

/// The history of TV view holds series, which stand in that view only.
void ShowEntry(Browser &browser, const HistoryEntry &entry) {
    Q_EMIT browser.HistoryChanged();
    if (entry.key.isEmpty()) {
        return;
    }
    if (!browser.session.view.mTVShows) {
        ShowProfile(browser, entry.key);
    } else if (!ShowRowOf(browser, entry.key)) {
        ShowNothing(browser, entry.key);
    }
}

/// The title by which a profile is offered, as an expression.
QString OfferedTitle(const ViewState &view) {
    return u"switch("_s + (view.mUseCustomTitle ? u"p.CustomTitle <> '', p.CustomTitle, "_s : QString()) +
           (view.mUseOriginalTitle ? u"p.OriginalTitle <> '', p.OriginalTitle, p.Title <> '', p.Title)"_s
                                   : u"p.Title <> '', p.Title)"_s);
}

QString FindOfferedTitle(Session &session, const QString &expression, const QString &title) {
    const QString text = EscapeSql(title);
    sql::Recordset rows = session.Database->OpenRecordset(
        u"SELECT "_s + expression + u"AS [ProfileTitle], ProfileID FROM PROFILES p WHERE CustomTitle = '"_s + text +
        u"' OR OriginalTitle = '"_s + text + u"' OR Title = '"_s + text + u'\'');
    for (; !rows.Eof(); rows.MoveNext()) {
        if (sql::Compare(rows.Text(u"ProfileTitle"), title) == 0) {
            return rows.Text(u"ProfileID");
        }
    }
    return {};
}

/// A cell in a line of text, where tabs and line ends part the cells.
QString CellText(QString text) {
    static constexpr QStringView kParting = u"\t\r\n";
    for (QChar &c : text) {
        if (kParting.contains(c)) {
            c = u' ';
        }
    }
    return text;
}

QList<int> ColumnsToCopy(const Browser &browser, const QAbstractItemModel &list, bool all_columns) {
    QList<int> columns;
    for (int column = 0; column < list.columnCount(); ++column) {
        if (all_columns || &list != &browser.listSeries || browser.listSeries.Width(column) > 0) {
            columns += column;
        }
    }
    return columns;
}

} // namespace

void MoveToRow(Browser &browser, int row) {
    if (row < 0 || row >= browser.listSeries.rowCount()) {
        return;
    }
    if (row != browser.current_row) {
        RecordLeaving(browser, browser.listSeries.At(row).key);
    }
    UpdateSeriesList(browser, row);
}

void MoveIntoList(Browser &browser) {
    const TitleList &list = browser.listSeries;
    if (browser.current_row < 0 && list.rowCount() > 0) {
        const bool below_header = list.At(0).header && list.rowCount() > 1;
        MoveToRow(browser, below_header ? 1 : 0);
    }
}

void ShowMovie(Browser &browser, const QString &key) {
    Trace(browser.session, u"ShowMovie("_s + key + u')', kTraceEntry);
    const QString id = ProfileOfKey(key);
    if (id.isEmpty()) {
        return;
    }
    if (!browser.session.view.mTVShows) {
        RecordLeaving(browser, id);
    }
    ShowProfile(browser, id);
}

void ShowEpisode(Browser &browser, const QString &episode_id) {
    Session &session = browser.session;
    if (!session.Database) {
        return;
    }
    const sql::Recordset episode = session.Database->OpenRecordset(
        u"SELECT SeriesID, Season FROM Episodes WHERE EpisodeID = '"_s + EscapeSql(episode_id) + u'\'');
    if (episode.Eof()) {
        return;
    }
    if (!session.view.mTVShows) {
        ChangeMode(browser, false);
    }
    browser.find.GiveWayTo(episode.Text(0));
    const int series = browser.listSeries.RowOfTitle(episode.Text(0));
    if (series < 0) {
        return;
    }
    MoveToRow(browser, series);
    const auto &seasons = browser.listSeasons;
    const auto season = std::find_if(seasons.begin(), seasons.end(), [&](const QString &candidate) {
        return EqualsIgnoringCase(candidate, episode.Text(1));
    });
    if (const int index = int(season - seasons.begin()); index != browser.current_season) {
        SelectSeason(browser, index);
    }
    LoadEpisode(browser, episode_id);
}

void GetLastSelectedItem(Browser &browser) {
    Trace(browser.session, u"GetLastSelectedItem()"_s, kTraceEntry);
    const QString key = ReadDbInfo(browser.session, u"LastSelectedItem"_s, {});
    const int row = key.isEmpty() ? -1 : browser.listSeries.RowOfTitle(key);
    if (row >= 0) {
        const TitleRow &found = browser.listSeries.At(row);
        browser.history.AddHistoryBack(ProfileOfKey(found.key), found.texts[TitleList::Title], true);
        Q_EMIT browser.HistoryChanged();
        UpdateSeriesList(browser, row);
    }
    Trace(browser.session, u"GetLastSelectedItem()"_s, kTraceExit);
}

void MoveBack(Browser &browser, int index) {
    ShowEntry(browser, browser.history.GoBack(index, CurrentEntry(browser)));
}

void MoveForward(Browser &browser, int index) {
    ShowEntry(browser, browser.history.GoForward(index, CurrentEntry(browser)));
}

void GotoProfile(Browser &browser) {
    Session &session = browser.session;
    if (!session.Database) {
        return;
    }
    const QString expression = OfferedTitle(session.view);
    bool cancelled = false;
    // The dialog knows a statement by this word in lower case.
    const QString title =
        InputCombo(session, Translate(session, u"Please enter title:"_s), Translate(session, u"Search Title"_s),
                   cancelled, u"select "_s + expression + u" FROM PROFILES p ORDER BY 1"_s, {});
    if (cancelled || title.isEmpty()) {
        return;
    }
    try {
        const QString id = FindOfferedTitle(session, expression, title);
        if (!id.isEmpty()) {
            ShowMovie(browser, id);
        }
    } catch (const sql::SqlError &error) {
        Trace(session, u"mGotoProfile_Click(): "_s + error.Text(), kTraceError);
    }
}

void SelectRandom(Browser &browser) {
    // Headers of groups are no titles.
    std::vector<int> rows;
    for (int row = 0; row < browser.listSeries.rowCount(); ++row) {
        if (!browser.listSeries.At(row).header) {
            rows.push_back(row);
        }
    }
    if (!rows.empty()) {
        const auto place = size_t(double(rows.size()) * browser.session.services.random.Next());
        MoveToRow(browser, rows[std::min(place, rows.size() - 1)]);
    }
}

void CopyListToClipboard(Browser &browser, const QAbstractItemModel &list, bool all_columns) {
    const QList<int> columns = ColumnsToCopy(browser, list, all_columns);
    QString text;
    const auto add_line = [&](const auto &cell) {
        QStringList cells;
        for (const int column : columns) {
            cells += CellText(cell(column).toString());
        }
        text += cells.join(u'\t') + "\r\n"_L1;
    };
    add_line([&](int column) { return list.headerData(column, Qt::Horizontal, Qt::DisplayRole); });
    for (int row = 0; row < list.rowCount(); ++row) {
        add_line([&](int column) { return list.index(row, column).data(Qt::DisplayRole); });
    }
    browser.session.services.clipboard.SetText(text);
}

void CopyCoverTag(Browser &browser) {
    const Session &session = browser.session;
    QString id = session.CurrentProfileID;
    id.remove(u"Key_"_s);
    if (session.CurrentIsEpisode || id.isEmpty()) {
        return;
    }
    session.services.clipboard.SetText("[img]"_L1 + CoverHost() + "/mpimages/"_L1 + id.left(2) + u'/' + id +
                                       "f.jpg[/img]"_L1);
}

} // namespace ostrand
