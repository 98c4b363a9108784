// The fields of a profile that imports must not overwrite.
#pragma once

#include <QSet>
#include <QString>

namespace ostrand {

struct Session;

class LockSet {
public:
    LockSet() = default;
    /// Reads the locks of a profile or an episode.
    LockSet(Session &session, const QString &id);

    /// Names compare without regard to case.
    bool IsLocked(const QString &name) const { return !names_.isEmpty() && names_.contains(name.toLower()); }

private:
    QSet<QString> names_;
};

} // namespace ostrand
