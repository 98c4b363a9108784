// What an import must not change of a title.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Whether a title has the lock of that name. Throws SqlError.
bool IsLocked(Session &session, const QString &id, const QString &lock_name);
/// Sets the lock of a title; one that is there already stays. Throws SqlError.
void SetLock(Session &session, const QString &id, const QString &lock_name);
/// Takes the lock of a title away. Throws SqlError.
void RemoveLock(Session &session, const QString &id, const QString &lock_name);
/// Sets the lock of a title, or takes it away, and tells the audit trail. Throws SqlError.
void ToggleLock(Session &session, const QString &id, const QString &lock_name);

} // namespace ostrand
