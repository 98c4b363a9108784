// What pages of skins may reach.
#pragma once

#include "platform_qt/WebEnginePlugin.h"

namespace ostrand {

struct Session;

/// An address that is the desktop's to open.
bool LeadsOut(const QUrl &url);

/// Pages load files of the skins, the covers and headshots of the open database, and the program's own images; their
/// links that leave the program go to the system.
WebEngineRules SkinRules(Session &session);

} // namespace ostrand
