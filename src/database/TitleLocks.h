// What an import must not change of a title.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Whether a title has the lock of that name. Throws SqlError.
bool IsLocked(Session &session, const QString &id, const QString &lock_name);
/// Sets the lock of a title, or takes it away. Throws SqlError.
void ToggleLock(Session &session, const QString &id, const QString &lock_name);

} // namespace ostrand
