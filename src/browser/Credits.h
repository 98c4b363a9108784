// Filling the credits panel.
#pragma once

#include <QString>

namespace ostrand {

class Browser;
namespace sql {
class Recordset;
}

/// The credits of a profile.
void UpdateCredits(Browser &browser, const QString &profile_id);
/// The credits of an episode, by its key or, with an empty one, by its series, season and title.
void UpdateTVCredits(Browser &browser, const QString &series_id, const QString &season, const QString &episode_title,
                     const QString &episode_id);
/// Fills the lists with the credits of a result set; `clear` false adds them to those that are shown. `is_tv` tells
/// that the rows have the column IsRegular.
void UpdateCreditControls(Browser &browser, sql::Recordset &credits, bool clear, bool is_tv);

/// The credits of a title or an episode, with those of a boxset's children and of a profile's episodes where full
/// credits are asked for. While another tab is shown, they come when the tab of the credits is selected.
void ShowCredits(Browser &browser, const QString &id, bool is_episode);
/// The tab of the credits was selected.
void ShowStaleCredits(Browser &browser);
void ClearCredits(Browser &browser);
/// Fills the panel anew after a switch or the credits changed. The selected person stays, if still among them.
void RefillCredits(Browser &browser);
/// Shows people anew after their links, headshots or birth years changed: credits, picture, appearances and awards.
void RefreshPeople(Browser &browser);

/// The captions of the lists, in the present language.
void ShowCreditHeaders(Browser &browser);

} // namespace ostrand
