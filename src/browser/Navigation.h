// How the user moves among the titles.
#pragma once

#include <QString>

class QAbstractItemModel;

namespace ostrand {

class Browser;

/// A click or a key left the current row for `row`: the row left is remembered and the new one shown.
void MoveToRow(Browser &browser, int row);
/// A key leads into the list: where no row is current, the first title becomes so.
void MoveIntoList(Browser &browser);
/// Shows a title by its key. In TV view the view changes to movies; where the title is not in the list, the tab "All"
/// is taken. A key that is nowhere shows the empty view.
void ShowMovie(Browser &browser, const QString &key);
/// Shows an episode in TV view, with its series and its season. Nothing for an episode that is nowhere.
void ShowEpisode(Browser &browser, const QString &episode_id);
/// Restores the row that was selected at the end of the last run.
void GetLastSelectedItem(Browser &browser);
/// The entry at an index of the back or forward list; the first is the newest.
void MoveBack(Browser &browser, int index = 0);
void MoveForward(Browser &browser, int index = 0);
/// Asks for a title and shows it.
void GotoProfile(Browser &browser);
void SelectRandom(Browser &browser);
/// Puts a list on the clipboard as text; `all_columns` false takes the visible ones: those that listSeries shows.
void CopyListToClipboard(Browser &browser, const QAbstractItemModel &list, bool all_columns);
/// Puts the bulletin-board image tag of the current cover on the clipboard; nothing for an episode.
void CopyCoverTag(Browser &browser);

} // namespace ostrand
