// The rules by which a title reaches the screen.
#pragma once

#include <QString>

namespace ostrand {

namespace sql {
class Recordset;
}
struct ViewState;

/// The title of a record of `Profiles` or `TVSeries`, by the switches for custom and original titles and, where it is
/// asked for, with the description behind it. Fields that the record does not have throw SqlError, as do all below.
QString GetTitle(const ViewState &view, const sql::Recordset &record, bool ignore_custom, bool with_description);
/// The text that sorts a title.
QString GetSortTitle(const ViewState &view, const sql::Recordset &record, bool ignore_custom);
/// The title of a record of `Episodes`; a "* " in front of an original title that stands in for a missing one.
QString GetEpisodeTitle(const ViewState &view, const sql::Recordset &record);

} // namespace ostrand
