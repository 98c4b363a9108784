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
/// Rebuilds the list as groups: "Genre", "Rating", "Medium", "CaseType", "Locality"; as the titles that share the value
/// selected in a panel: "Subtitle", "Feature", "AudioFormat", "Studio"; or by the filter of comboFilter: "Filter".
/// Throws SqlError on a faulty statement, except for "Filter", which shows a message.
void SpecialProfileOrder(Browser &browser, const QString &category);
/// The row of one title in a grouped list.
TitleRow ListTitle(Browser &browser, const sql::Recordset &record, int number, int indent);
/// Sorts the list by a column; 0 stands for the sort key.
void ReOrderSeriesList(Browser &browser, int sort_key, TitleList::Order order);
/// A click on the header of a column.
void SortByHeader(Browser &browser, int column);
/// Applies the colours to the rows, or takes them away, as `mcolorlist` says.
void ApplyListColors(Browser &browser, bool keep_bold);

} // namespace ostrand
