// What the entries of the main window's menus do.
#pragma once

namespace ostrand {

class frmMain;

/// Gives every entry that works its handler.
void HandleCommands(frmMain &main);

} // namespace ostrand
