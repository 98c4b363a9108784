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
void SelectSeason(Browser &browser, int index);

} // namespace ostrand
