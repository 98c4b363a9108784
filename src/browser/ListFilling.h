// The steps that all ways of filling listSeries with titles share.
#pragma once

#include "browser/TitleList.h"

namespace ostrand {

class Browser;
struct Session;

/// Empties the list and turns its automatic sort off.
void ClearList(Browser &browser);
/// The same, and empties listAppearences.
void BeginList(Browser &browser);
/// Makes the first title current; an empty list has no current row.
void ShowFirstTitle(Browser &browser);
/// Makes the first of the keys that the list holds current; without one, the title in that row or, behind the last one,
/// the last. An empty list shows no title.
void ShowTitleOrRow(Browser &browser, const QStringList &keys, int row);
/// Shows the column that sorts, where it is none that always shows or never, and hides the others of its kind.
void ShowSortColumn(TitleList &list, int sort_column);
/// Sorts by one of the columns that sort; any other one stands for the sort key. The current title stays current.
void SortList(Browser &browser, int sort_key, TitleList::Order order);
/// Keeps the sort for the next run.
void StoreSort(Session &session, int sort_column, TitleList::Order order);
/// The column and order that are kept for the next run.
int StoredSortColumn(const Browser &browser);
TitleList::Order StoredSortOrder(const Browser &browser);

/// The list of the filter that is chosen in comboFilter.
void ShowSavedFilter(Browser &browser);

} // namespace ostrand
