// The language of the main window's commands.
#pragma once

namespace ostrand {

class Commands;
struct Session;

/// Gives every menu entry its caption and tool tip in the language of the open database. It starts from the English
/// texts each time, so that a language can be left for another one. Without a translation the texts are English.
void MenuStrings(Session &session, Commands &commands);

} // namespace ostrand
