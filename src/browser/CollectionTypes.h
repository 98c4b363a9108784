// The commands that make, rename and remove a collection type.
#pragma once

namespace ostrand {

class Browser;

/// Asks for a name and adds a tab for it; no row is written until a profile is moved there.
void AddColType(Browser &browser);
/// Asks for a new name of the selected tab's type and gives it to its profiles; nothing for the tab "All".
/// Throws SqlError, with all profiles and the tab as they were.
void RenameCollectionType(Browser &browser);
/// Removes the selected tab, which is neither a default type nor one with profiles: those show a message.
void RemoveColType(Browser &browser);

} // namespace ostrand
