// The locks that a title can have: what imports and updates must leave as it is.
#pragma once

#include <QString>
#include <QStringView>

#include <span>

namespace ostrand {

/// A lock as lists of locks show it.
struct LockLabel {
    /// English; shown through Translate.
    const char16_t *label;
    /// Episodes have no such lock.
    bool profiles_only;
};

/// All locks in the order in which lists show them: those of every title, then those of profiles only.
std::span<const LockLabel> LockLabels();
/// The locks that an episode can have.
std::span<const LockLabel> EpisodeLockLabels();
/// The name under which a lock is stored: its English label without blanks.
QString LockName(QStringView label);
/// The lock of a whole title.
inline constexpr char16_t kLockEntire[] = u"Entire";

} // namespace ostrand
