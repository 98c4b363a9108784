// Titles that were lent and should be back.
#pragma once

#include "shell/ListTable.h"

namespace ostrand {

struct Session;

/// True when a title is due (`due` is a day count since 1899-12-30) and no return of it by that user is told.
bool IsOverdue(Session &session, double due, const QString &user, const QString &profile_id);
/// The titles that are due, with the columns "Title due", "UPC", "due from", "day(s) overdue".
std::unique_ptr<ListTable> TitlesDue(Session &session);
/// Shows them in a list window (`Session::window.ShowListView`); no window for an empty list.
void ShowTitlesDue(Session &session);

} // namespace ostrand
