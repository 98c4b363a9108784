#include "database/TitleLocks.h"

#include "audit/Audit.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

namespace {

QString OfLock(const QString &id, const QString &lock_name) {
    return QStringLiteral(" FROM Locks WHERE ProfileID = '%1' AND LockName = '%2'")
        .arg(EscapeSql(id), EscapeSql(lock_name));
}

} // namespace

bool IsLocked(Session &session, const QString &id, const QString &lock_name) {
    return !session.Database->OpenRecordset(QStringLiteral("SELECT LockName") + OfLock(id, lock_name)).Eof();
}

void SetLock(Session &session, const QString &id, const QString &lock_name) {
    session.Database->Execute(QStringLiteral("INSERT INTO Locks (ProfileID, LockName) VALUES ('%1', '%2')")
                                  .arg(EscapeSql(id), EscapeSql(lock_name)));
}

void RemoveLock(Session &session, const QString &id, const QString &lock_name) {
    session.Database->Execute(QStringLiteral("DELETE") + OfLock(id, lock_name));
}

void ToggleLock(Session &session, const QString &id, const QString &lock_name) {
    if (IsLocked(session, id, lock_name)) {
        RemoveLock(session, id, lock_name);
    } else {
        SetLock(session, id, lock_name);
    }
    Audit::AuditUpdateProfile(session, id, QStringLiteral("Edit Lock"));
}

} // namespace ostrand
