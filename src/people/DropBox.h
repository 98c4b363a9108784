// Pictures that the user drops on the program.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Whose name a dropped picture gets.
enum class DropType {
    Person, ///< the person's that the user is asked for
    File,   ///< its own
};

/// The name that a dropped file or text proposes: behind its last separator, without ".jpg".
QString NameOfDrop(const QString &dropped);
/// Keeps a dropped picture as a headshot: `dropped` is a path, a file URL or another text. A text without ".jpg" in it
/// is none. Returns the path of the new file, which is always a copy; empty when nothing was stored. Faults are shown.
QString StoreDrop(Session &session, const QString &dropped, DropType type);

} // namespace ostrand
