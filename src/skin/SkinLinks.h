// The links of rendered pages into the program.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand {

struct Session;

/// What a navigation of the skin view asks for.
struct SkinLink {
    enum class Kind { Ordinary, Person, Profile, Episode, Unknown };
    Kind kind = Kind::Ordinary;
    /// The value behind the last "=", split at "|".
    QStringList parts;
};

/// A URL of a navigation, all percent escapes undone. Ordinary ones are those that do not lead to the program's own
/// blank page; all others are cancelled.
SkinLink ReadSkinLink(const Session &session, const QString &url);

} // namespace ostrand
