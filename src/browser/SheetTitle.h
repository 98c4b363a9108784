// The title that the profile window tells everything of.
#pragma once

#include <QString>

namespace ostrand {

class Browser;
struct Session;

/// A profile or an episode; no title with an empty id.
struct SheetTitle {
    QString id;
    bool is_episode = false;

    bool operator==(const SheetTitle &) const = default;
};

/// The title that the menu entry shows: that of the selected row of listSeries, in TV view the episode that is selected
/// in listEpisodes.
SheetTitle SelectedTitle(const Browser &browser);
/// The episode that is selected in listEpisodes.
SheetTitle SelectedEpisode(const Browser &browser);

/// The statement for the record of a title.
QString TitleStatement(const SheetTitle &title);
/// "SELECT * FROM `table`" for the rows of a title.
QString RowsOf(QStringView table, const SheetTitle &title);
/// What the audit trail calls a change of that kind, such as "Tags": "Edit Tags", or "Edit Episode Tags".
QString EditText(QStringView kind, const SheetTitle &title);
/// Tells the next import and the audit trail that a title was changed. Throws SqlError.
void MarkEdited(Session &session, const SheetTitle &title, QStringView kind);
/// The next import compares the profile anew; an episode has no such mark. Throws SqlError.
void ClearMD5(Session &session, const SheetTitle &title);

} // namespace ostrand
