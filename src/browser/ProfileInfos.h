// The way from a row to what is shown of its title.
#pragma once

#include <QString>

namespace ostrand {

class Browser;
namespace sql {
class Recordset;
}

/// A row of listSeries became current; -1 for none. Lets events run once before the cover is looked for.
void UpdateSeriesList(Browser &browser, int row);
/// Shows a title or an episode as a page where skins are on; false when the panels are to show it.
bool ShowSkin(Browser &browser, const QString &key, bool is_episode);
/// Makes a title or an episode the current one, and reads what the selected tab of tabMain shows of it. With
/// `keep_credits` the credits stay as they are.
void GetProfileInfos(Browser &browser, const QString &id, bool is_episode, bool keep_credits);
/// The panels show no title.
void ClearAllProfileInfos(Browser &browser);
/// The same, and the profile window follows.
void ShowNoTitle(Browser &browser);
/// Reads the panels anew after their language changed.
void RefreshProfileInfos(Browser &browser);
/// What the window's caption tells of a record of `Profiles`, or of one with columns named like those; a column that
/// it does not have counts as empty.
QString MakeWindowCaption(const sql::Recordset &record);
/// The same of a record of `Episodes`.
QString EpisodeCaption(const sql::Recordset &record);
/// Takes the cover of a key as the current one.
void ShowCover(Browser &browser, const QString &key);
/// The other side of the cover.
void FlipCover(Browser &browser);
/// The file of the cover side that is shown; empty when there is none on disk.
QString CurrentCoverFile(Browser &browser);

} // namespace ostrand
