// From a value in a panel to the titles that share it.
#pragma once

#include <QString>

namespace ostrand {

class Browser;

/// A value of a category of SpecialProfileOrder was chosen in a panel. listSeries holds the titles that share it; for
/// "Genre" all genres, with the first title of that one (`shown`, as the panel shows it) selected. Nothing in TV view,
/// whose list holds no titles.
void ListTitlesSharing(Browser &browser, const QString &category, const QString &shown);

} // namespace ostrand
