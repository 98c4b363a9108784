// What listSeries holds: the titles of a tab, the groups of a category.
#pragma once

#include "browser/TitleList.h"

namespace ostrand {

class Browser;
namespace sql {
class Recordset;
}

/// Rebuilds the list for the selected tab of tabColList and shows its first title.
void GetMovieNames(Browser &browser);
/// Rebuilds the list after its titles changed. The first of the keys that it holds becomes current; without one, the
/// title that stands in the row of the one that was current.
void RefillMovieNames(Browser &browser, const QStringList &keys);
/// Rebuilds the list as groups: "Genre", "Rating", "Medium", "CaseType", "Locality"; as the titles that share the value
/// selected in a panel: "Subtitle", "Feature", "AudioFormat", "Studio"; or by the filter of comboFilter: "Filter".
/// Throws SqlError on a faulty statement, except for "Filter", which shows a message.
void SpecialProfileOrder(Browser &browser, const QString &category);
/// Gives the list the rows of a grouped or filtered list, and tells their count, colours and first title as
/// SpecialProfileOrder does.
void ShowSpecialOrder(Browser &browser, std::vector<TitleRow> rows);
/// The row of one title in a grouped list; for many records take a TitleRowReader.
TitleRow ListTitle(Browser &browser, const sql::Recordset &record, int number, int indent);
/// Sorts the list by a column; 0 stands for the sort key. Children of boxsets and groups give way to the plain list. In
/// movie view the sort is kept for the next run.
void ReOrderSeriesList(Browser &browser, int sort_key, TitleList::Order order);
/// A click on the header of a column.
void SortByHeader(Browser &browser, int column);
/// Applies the colours to the rows, or takes them away, as `mcolorlist` says.
void ApplyListColors(Browser &browser, bool keep_bold);

// The menu entries that change what the list shows; each changes its check state first.
void ToggleBoxsetView(Browser &browser);
void ToggleCustomTitle(Browser &browser);
void ToggleOriginalTitle(Browser &browser);
/// Asks for the format when the descriptions are turned on; the user's cancel turns them off again.
void ToggleDescription(Browser &browser);
void ToggleColours(Browser &browser);

} // namespace ostrand
