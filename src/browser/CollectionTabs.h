// Tabs of collection types and of the panels, and the entries of the filter box.
#pragma once

#include <QString>

namespace ostrand {

class Browser;

/// Rebuilds tabMain, names the first tab of tabColList and reads the others.
void LoadTabs(Browser &browser);
/// Rebuilds tabColList.
void ReloadColTypeTabs(Browser &browser);
/// Shows what belongs to a tab of tabMain, counted from 1.
void EnableTab(Browser &browser, int index);
/// Rebuilds comboFilter.
void UpdateFilters(Browser &browser);
/// Shows or hides comboFilter, as mShowFilter and the view say.
void ApplyFilterLayout(Browser &browser);
/// mShowFilter.
void ToggleFilter(Browser &browser);
/// True for the types that are there without a profile, whatever their case.
bool IsDefaultColType(const QString &type);
/// Selects a tab of tabColList without filling the list; false when there is none of that number.
bool SelectTab(Browser &browser, int index);
/// A click on a tab of tabColList, counted from 1.
void SelectColTypeTab(Browser &browser, int index);
/// A click on a tab of tabMain.
void SelectMainTab(Browser &browser, int index);
/// An entry of comboFilter was chosen.
void ChooseFilter(Browser &browser, const QString &text);
/// The list of comboFilter is about to open.
void OpenFilterList(Browser &browser);
/// False for an entry of comboFilter, counted from 0, whose window does not exist: choosing it does nothing.
bool FilterEntryAvailable(Browser &browser, int index);
/// True when a saved query gives the columns that a filter needs.
bool QualifiesAsFilter(const QString &statement);

} // namespace ostrand
