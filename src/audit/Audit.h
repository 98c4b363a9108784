// The audit trail: a record of every change of a profile.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// The trail does not record yet: the calls stand where its operations belong and do nothing.
class Audit {
public:
    static bool Enabled(const Session &) { return false; }
    static void AuditDatabaseOpened(Session &) {}
    static void AuditUpdateProfile(Session &, const QString & /*id*/, const QString & /*message*/) {}
    static void AuditUpdateEpisode(Session &, const QString & /*id*/, const QString & /*message*/) {}
    static void AuditDeleteProfile(Session &, const QString & /*id*/) {}
    static void AuditWriteProfile(Session &, const QString & /*id*/) {}
    static void AuditSync(Session &, const QString & /*message*/) {}
};

} // namespace ostrand
