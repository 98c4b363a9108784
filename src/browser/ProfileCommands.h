// What the user does with whole titles of the list: remove, move, lock.
#pragma once

class QString;

namespace ostrand {

class Browser;

/// The entries that work on the current profile of listSeries can be used while there is one.
void EnableProfileEntries(Browser &browser);

/// mRemoveProfile: asks, and deletes the current profile of listSeries. The next one becomes current.
void RemoveCurrentProfile(Browser &browser);

/// Whether the current profile of listSeries is locked as a whole, and the switch for it (mLockProfile).
bool IsProfileLocked(Browser &browser);
void ToggleProfileLock(Browser &browser);
/// The same of the episode that is selected in listEpisodes (mLockEpisode).
bool IsEpisodeLocked(Browser &browser);
void ToggleEpisodeLock(Browser &browser);

// What stands in mEditSelected: the profiles whose rows are selected in listSeries. Many of them show the progress
// window, whose cancel leaves the others as they are.

/// Asks, and deletes them.
void RemoveSelectedProfiles(Browser &browser);
/// Asks for a collection type and gives it to them.
void MoveSelectedProfiles(Browser &browser);
void LockSelectedProfiles(Browser &browser);
void UnlockSelectedProfiles(Browser &browser);

/// The current title was changed in the database: the panels and the lists follow.
void ShowChangedTitle(Browser &browser);

} // namespace ostrand
