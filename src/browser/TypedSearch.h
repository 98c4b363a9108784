// Finds a title by the letters that the user types.
#pragma once

#include <QString>

namespace ostrand {

class TitleList;

/// The first row from `from` on, going round at the end, whose title begins with `typed`; case, accents and the indent
/// of boxset children do not count, and neither do the headers of groups. -1 when there is none.
int FindTypedTitle(const TitleList &list, int from, const QString &typed);

} // namespace ostrand
