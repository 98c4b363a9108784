// The quick link on the list of credits.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Asks for the common name of a person and stores it without the checks of LinkAlias; an emptied name removes the
/// link. True when something was changed.
bool AddAlias(Session &session, const QString &name, int birth_year);

} // namespace ostrand
