#include "browser/AppearancesPanel.h"

#include "browser/Appearances.h"
#include "browser/Browser.h"
#include "browser/Navigation.h"
#include "browser/ProfileInfos.h"
#include "browser/Titles.h"
#include "database/DatabaseFunctions.h"
#include "shell/Dialogs.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kHiddenSort = int(AppearanceText::Sort);

QStringList ColumnsOf(Session &session, PanelMode mode) {
    const auto translated = [&session](std::initializer_list<const char16_t *> texts) {
        QStringList columns;
        for (const char16_t *text : texts) {
            columns += Translate(session, QString::fromUtf16(text));
        }
        return columns;
    };
    switch (mode) {
    case PanelMode::Appearances:
        return AppearanceColumns(session) + translated({u"Sort"});
    case PanelMode::Profile:
        return translated({u"Series", u"Season", u"Episode Title"});
    case PanelMode::Third:
        return translated({u"Included in Profile"});
    case PanelMode::Fourth:
        return translated({u"Boxset Childs"});
    case PanelMode::None:
        break;
    }
    return {};
}

void EnterMode(Browser &browser, PanelMode mode) {
    PanelMode &current = browser.session.view.panel_mode;
    if (current != mode) {
        current = mode;
        browser.appearances.listAppearences.Rebuild(ColumnsOf(browser.session, mode));
        Q_EMIT browser.appearances.ColumnsChanged();
    }
}

void ShowRows(Browser &browser, std::vector<ListTableRow> rows) {
    AppearancesPanel &panel = browser.appearances;
    panel.listAppearences.Assign(std::move(rows));
    panel.shown_name.clear();
    panel.shown_birth_year.clear();
    panel.current_row = -1;
    panel.sort_column = -1;
    panel.sort_order = Qt::AscendingOrder;
    Q_EMIT panel.SortChanged();
}

std::vector<ListTableRow> ReadProfiles(Browser &browser, const QString &statement, QStringView key) {
    std::vector<ListTableRow> rows;
    sql::Recordset profiles = browser.session.Database->OpenRecordset(statement);
    for (; !profiles.Eof(); profiles.MoveNext()) {
        rows.push_back(
            {{GetTitle(browser.session.view, profiles, false, false)}, profiles.Text(key), ListRowKind::Movie});
    }
    return rows;
}

/// What sorts the children of a boxset.
QString BoxsetSort(const ViewState &view) {
    return u"SWITCH("_s +
           (view.mUseCustomTitle ? u"m.CustomSortTitle<>'', m.CustomSortTitle, m.CustomTitle<>'', m.CustomTitle, "_s
                                 : QString()) +
           (view.mUseOriginalTitle
                ? u"m.OriginalSortTitle<>'', m.OriginalSortTitle, m.OriginalTitle<>'', m.OriginalTitle, "_s
                : QString()) +
           u"m.SortTitle<>'', m.SortTitle, m.Title<>'', m.Title) AS [RealSort]"_s;
}

/// The selected row stays selected.
void Sort(AppearancesPanel &panel, int column, Qt::SortOrder order) {
    const QPersistentModelIndex current = panel.listAppearences.index(panel.current_row, 0);
    panel.sort_column = column;
    panel.sort_order = order;
    panel.listAppearences.sort(column, order);
    panel.current_row = current.row();
    Q_EMIT panel.SortChanged();
}

const ListTableRow *RowAt(const Browser &browser, int row) {
    const auto &rows = browser.appearances.listAppearences.Rows();
    return row < 0 || row >= int(rows.size()) ? nullptr : &rows[size_t(row)];
}

QString AwardsOf(const QString &name, const QString &birth_year) {
    const bool has_year = !birth_year.isEmpty() && birth_year != "0"_L1;
    return u"SELECT * FROM Awards WHERE Nominee LIKE '*"_s + EscapeSql(name) +
           (has_year ? " ("_L1 + birth_year + u')' : QString()) + u"*' ORDER BY Award, Category, Year"_s;
}

/// Whether a film's year is that of a nomination: the one told with it, else about that of the ceremony. Years that are
/// not known fit any other.
bool IsYearOf(int film_year, int movie_year, int award_year) {
    if (film_year == 0 || (movie_year == 0 && award_year == 0)) {
        return true;
    }
    return movie_year != 0 ? film_year == movie_year : award_year >= film_year - 1 && award_year <= film_year + 2;
}

} // namespace

void GetAppearances(Browser &browser, const QString &name, const QString &birth_year, bool keep) {
    auto found = GetAppearances(browser.session, name, birth_year.toInt());
    if (!found) {
        return;
    }
    EnterMode(browser, PanelMode::Appearances);
    if (!keep) {
        browser.appearances.appearances_of.clear();
    }
    browser.appearances.appearances_of.append({name, birth_year});
    std::vector<ListTableRow> rows = keep ? browser.appearances.listAppearences.Rows() : std::vector<ListTableRow>();
    const bool merged = !rows.empty();
    rows.insert(rows.end(), std::make_move_iterator(found->begin()), std::make_move_iterator(found->end()));
    ShowRows(browser, std::move(rows));
    if (merged) {
        browser.appearances.listAppearences.sort(kHiddenSort, Qt::AscendingOrder);
    } else {
        browser.appearances.shown_name = name;
        browser.appearances.shown_birth_year = birth_year;
    }
}

void RefreshAppearances(Browser &browser) {
    AppearancesPanel &panel = browser.appearances;
    const QString name = panel.shown_name;
    if (name.isEmpty()) {
        return;
    }
    const ListTableRow *current = RowAt(browser, panel.current_row);
    const ListTableRow before = current ? *current : ListTableRow();
    const int column = panel.sort_column;
    const Qt::SortOrder order = panel.sort_order;
    GetAppearances(browser, name, QString(panel.shown_birth_year), false);
    if (column >= 0) {
        Sort(panel, column, order);
    }
    const auto &rows = panel.listAppearences.Rows();
    const auto same = std::find_if(rows.begin(), rows.end(), [&before](const ListTableRow &row) {
        return row.key == before.key && row.kind == before.kind &&
               row.texts.value(int(AppearanceText::Role)) == before.texts.value(int(AppearanceText::Role));
    });
    if (current && same != rows.end()) {
        panel.current_row = int(same - rows.begin());
        Q_EMIT panel.CurrentRowChanged();
    }
}

void ClearAppearences(Browser &browser) {
    if (browser.appearances.listAppearences.rowCount() > 0) {
        ShowRows(browser, {});
    }
}

bool ShowAssignedEpisodes(Browser &browser, sql::Recordset &episodes) {
    const ViewState &view = browser.session.view;
    std::vector<ListTableRow> rows;
    for (; !episodes.Eof(); episodes.MoveNext()) {
        rows.push_back(
            {{GetTitle(view, episodes, true, false), episodes.Text(u"Season"), GetEpisodeTitle(view, episodes)},
             episodes.Text(u"EpisodeID"),
             ListRowKind::Episode});
    }
    if (rows.empty()) {
        return false;
    }
    EnterMode(browser, PanelMode::Profile);
    ShowRows(browser, std::move(rows));
    return true;
}

void GetEpisodeProfiles(Browser &browser, const QString &episode_id) {
    EnterMode(browser, PanelMode::Third);
    ShowRows(browser,
             ReadProfiles(browser,
                          u"SELECT p.ProfileID, m.Title, m.OriginalTitle, m.CustomTitle FROM Profile2Episodes p, "
                          "Profiles m WHERE p.EpisodeID = '"_s +
                              EscapeSql(episode_id) + u"' AND p.ProfileID = m.ProfileID"_s,
                          u"ProfileID"));
}

void GetBoxsetProfiles(Browser &browser, const QString &profile_id) {
    std::vector<ListTableRow> children =
        ReadProfiles(browser,
                     u"SELECT "_s + BoxsetSort(browser.session.view) +
                         u", b.ChildID, m.Title, m.OriginalTitle, m.CustomTitle FROM Boxset b, Profiles m WHERE "
                         "b.BoxSetID = '"_s +
                         EscapeSql(profile_id) + u"' AND b.ChildID = m.ProfileID ORDER BY 1"_s,
                     u"ChildID");
    if (!children.empty()) {
        EnterMode(browser, PanelMode::Fourth);
        ShowRows(browser, std::move(children));
    }
}

QList<double> AppearanceWidths(const Browser &browser) {
    switch (browser.session.view.panel_mode) {
    case PanelMode::Appearances:
        return {0.3, 0.25, 0.25, 0.2, 0};
    case PanelMode::Profile:
        return {0.35, 0.2, 0.45};
    case PanelMode::Third:
    case PanelMode::Fourth:
        return {0.9};
    case PanelMode::None:
        break;
    }
    return {};
}

void SelectAppearance(Browser &browser, int row) {
    const ListTableRow *found = RowAt(browser, row);
    if (found == nullptr) {
        return;
    }
    const ListTableRow title = *found; // the list may change under it
    switch (browser.session.view.panel_mode) {
    case PanelMode::Appearances:
        ShowCover(browser, title.key);
        GetProfileInfos(browser, title.key, title.kind == ListRowKind::Episode, true);
        break;
    case PanelMode::Third:
    case PanelMode::Fourth:
        ShowMovie(browser, title.key);
        break;
    case PanelMode::Profile:
    case PanelMode::None:
        break;
    }
}

void GoToAppearance(Browser &browser, int row) {
    const ListTableRow *found = RowAt(browser, row);
    if (found == nullptr) {
        return;
    }
    const ListTableRow title = *found;
    if (title.kind == ListRowKind::Episode) {
        ShowEpisode(browser, title.key);
    } else {
        ShowMovie(browser, title.key);
    }
}

void SortAppearances(Browser &browser, int column) {
    AppearancesPanel &panel = browser.appearances;
    const bool again = panel.sort_column == column && panel.sort_order == Qt::AscendingOrder;
    Sort(panel, column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void FindAppearances(Browser &browser, const QString &preset) {
    Session &session = browser.session;
    if (!session.Database) {
        return;
    }
    bool cancelled = false;
    // The dialog knows a statement by this word in lower case.
    const QString name = InputCombo(session, Translate(session, u"Find appearences for:"_s),
                                    Translate(session, u"Find Appearences"_s), cancelled,
                                    u"select Name FROM CastCrew WHERE Role NOT LIKE '?Div*' UNION SELECT Name FROM "
                                    "TVCastCrew WHERE Role NOT LIKE '?Div*' ORDER BY 1"_s,
                                    preset)
                             .trimmed();
    if (cancelled || name.isEmpty()) {
        return;
    }
    if (session.view.mSkinEnable) {
        ShowAppearances(session, name, 0);
    } else {
        GetAppearances(browser, name, u"0"_s, false);
    }
}

void FindAwardsForActor(Browser &browser, const QString &name, const QString &birth_year) {
    Session &session = browser.session;
    AppearancesPanel &panel = browser.appearances;
    QString shown_name = name;
    panel.awards_of = {name, birth_year};
    panel.labelAwards = Translate(session, u"Awards for"_s) + u' ' + shown_name.replace(u'&', "&&"_L1);
    panel.treeAwards.Clear();
    try {
        if (session.Database) {
            sql::Recordset awards = session.Database->OpenRecordset(AwardsOf(name, birth_year));
            panel.treeAwards.ShowAwards(session, awards);
        }
    } catch (const sql::SqlError &error) {
        Trace(session, u"FindAwardsForActor: "_s + error.Text(), kTraceError);
    }
    Q_EMIT panel.AwardsChanged();
}

void ClearAwards(Browser &browser) {
    AppearancesPanel &panel = browser.appearances;
    panel.awards_of = {};
    panel.labelAwards = Translate(browser.session, u"Awards"_s);
    if (panel.treeAwards.rowCount() > 0) {
        panel.treeAwards.Clear();
    }
    Q_EMIT panel.AwardsChanged();
}

void GoToAwardedMovie(Browser &browser, const QModelIndex &nomination) {
    const QString title = nomination.data(AwardTree::MovieTitleRole).toString();
    if (title.isEmpty() || !browser.session.Database) {
        return;
    }
    const QString quoted = u'\'' + EscapeSql(title) + u'\'';
    sql::Recordset films = browser.session.Database->OpenRecordset(
        u"SELECT ProfileID, ProdYear FROM Profiles WHERE OriginalTitle = "_s + quoted + u" OR Title = "_s + quoted +
        u" ORDER BY SortTitle, ProfileID"_s);
    for (; !films.Eof(); films.MoveNext()) {
        if (IsYearOf(int(films.Integer(u"ProdYear")), nomination.data(AwardTree::MovieYearRole).toInt(),
                     nomination.data(AwardTree::AwardYearRole).toInt())) {
            ShowMovie(browser, films.Text(u"ProfileID"));
            return;
        }
    }
}

void ShowAppearanceHeaders(Browser &browser) {
    const PanelMode mode = browser.session.view.panel_mode;
    if (mode != PanelMode::None) {
        browser.appearances.listAppearences.SetColumns(ColumnsOf(browser.session, mode));
    }
}

void RefillAppearances(Browser &browser) {
    AppearancesPanel &panel = browser.appearances;
    const bool of_persons = browser.session.view.panel_mode == PanelMode::Appearances;
    if (of_persons && panel.listAppearences.rowCount() > 0) {
        const int row = panel.current_row;
        const int column = panel.sort_column;
        const Qt::SortOrder order = panel.sort_order;
        bool keep = false;
        for (const auto &[name, birth_year] : QList(panel.appearances_of)) {
            GetAppearances(browser, name, birth_year, keep);
            keep = true;
        }
        if (column >= 0) {
            Sort(panel, column, order);
        }
        if (row >= 0 && row < panel.listAppearences.rowCount()) {
            panel.current_row = row;
            Q_EMIT panel.CurrentRowChanged();
        }
    }
    if (const AppearancesPanel::Person person = panel.awards_of; !person.first.isEmpty()) {
        FindAwardsForActor(browser, person.first, person.second);
    } else {
        ClearAwards(browser);
    }
}

} // namespace ostrand
