#include "browser/ListFilling.h"

#include "browser/Browser.h"
#include "browser/ProfileInfos.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

constexpr double kSortColumnWidth = 0.25;
constexpr int kOptionalColumns[] = {TitleList::Number, TitleList::Year, TitleList::PurchaseDate,
                                    TitleList::ReleaseDate};

/// The column that a sort key stands for.
int SortColumnOf(int sort_key) {
    return sort_key > TitleList::Title && sort_key < kTitleColumns ? sort_key : int(TitleList::SortTitle);
}

} // namespace

void ClearList(Browser &browser) {
    browser.listSeries.Unsort();
    browser.listSeries.Clear();
    browser.listSeries.SetStriping(TitleList::Striping::None);
    browser.current_row = -1;
    browser.filtered_by_tags = false;
}

void BeginList(Browser &browser) {
    ClearList(browser);
    ClearAppearences(browser);
}

void ShowFirstTitle(Browser &browser) {
    if (browser.listSeries.rowCount() > 0) {
        UpdateSeriesList(browser, 0);
    } else {
        Q_EMIT browser.CurrentRowChanged();
    }
}

void ShowTitleOrRow(Browser &browser, const QStringList &keys, int row) {
    const TitleList &list = browser.listSeries;
    if (list.rowCount() == 0) {
        browser.current_row = -1;
        Q_EMIT browser.CurrentRowChanged();
        GetProfileInfos(browser, {}, false, false);
        return;
    }
    for (const QString &key : keys) {
        const int whole = key.isEmpty() ? -1 : list.RowOfKey(key);
        const int held = key.isEmpty() || whole >= 0 ? whole : list.RowOfTitle(ProfileOfKey(key));
        if (held >= 0) {
            UpdateSeriesList(browser, held);
            return;
        }
    }
    UpdateSeriesList(browser, std::clamp(row, 0, list.rowCount() - 1));
}

void ShowSortColumn(TitleList &list, int sort_column) {
    for (const int column : kOptionalColumns) {
        list.SetWidth(column, column == sort_column ? kSortColumnWidth : 0);
    }
}

void SortList(Browser &browser, int sort_key, TitleList::Order order) {
    TitleList &list = browser.listSeries;
    const QPersistentModelIndex current = list.index(browser.current_row, TitleList::Title);
    const int column = SortColumnOf(sort_key);
    ShowSortColumn(list, column);
    list.SortBy(column, order);
    if (current.isValid() && current.row() != browser.current_row) {
        browser.current_row = current.row();
        Q_EMIT browser.CurrentRowChanged();
    }
}

int StoredSortColumn(const Browser &browser) {
    return SortColumnOf(browser.session.view.ProfilesSortKey);
}

TitleList::Order StoredSortOrder(const Browser &browser) {
    return browser.session.view.ProfilesSortOrder == int(TitleList::Order::Descending) ? TitleList::Order::Descending
                                                                                       : TitleList::Order::Ascending;
}

} // namespace ostrand
