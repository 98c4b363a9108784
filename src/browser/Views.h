// Movie view and TV view.
#pragma once

#include <QString>

namespace ostrand {

class Browser;
namespace sql {
class Recordset;
}

/// Switches the view and fills its list.
void ChangeMode(Browser &browser, bool movies);
/// Fills listSeries anew for the view and the tab. A fault of the statement is traced and leaves an empty list.
void ReloadList(Browser &browser);
/// The menu entries: they remember and restore the tab.
void ShowMovies(Browser &browser);
void ShowTVShows(Browser &browser);

/// Fills listSeries with the series.
void UpdateSeriesNames(Browser &browser);
void UpdateSeasons(Browser &browser, const QString &series_id);
void UpdateEpisodes(Browser &browser, const QString &series_id, const QString &season);
/// Fills listEpisodes with the rows of a result set, in their order.
void UpdateEpisodeList(Browser &browser, sql::Recordset &rows);
/// An episode's row became current.
void LoadEpisode(Browser &browser, const QString &episode_id);
/// Shows what is selected in the list of the view anew: a title, or an episode in TV view.
void Redisplay(Browser &browser);
/// Sorts the rows of listEpisodes; the selected one stays so.
void SortEpisodes(Browser &browser, int column, Qt::SortOrder order);
void SelectSeason(Browser &browser, int index);

} // namespace ostrand
