// What the small XML files beside a collection have in common.
#pragma once

#include <QString>

#include <functional>
#include <pugixml.hpp>

namespace ostrand {

struct Session;

/// The declaration, and the comments that tell the program's version, `what` was exported, and when.
QString SideFileHeader(Session &session, const QString &what);
/// Lets `write` make a file and packs it where the path has the extension 7z. False when no file came to be, which the
/// user is told.
bool WriteSideFile(Session &session, const QString &path, const std::function<bool(const QString &file)> &write);
/// Loads a file and gives its element `root`. Null where it cannot be read or has no such root: the user is told, with
/// `invalid` (English) and where the fault lies.
pugi::xml_node LoadSideFile(Session &session, const QString &file, const char *root, const QString &invalid,
                            pugi::xml_document &document);
/// Says that no database is open, and returns true, when that is so.
bool TellNoDatabase(Session &session);

} // namespace ostrand
