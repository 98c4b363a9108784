// The settings of the open database, taken into the session and written back.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Reads all settings of the open database into the session and its view state, lets the window take them over
/// (`Session::window.LoadDatabaseSettings`), and makes the image folders.
void LoadDatabaseSettings(Session &session);
/// Reads the cover and the headshot folder, the defaults where none are set, and makes them.
void LoadImageFolders(Session &session);
/// Writes what follows the windows, after they told it (`Session::window.SaveDatabaseSettings`). Does nothing while no
/// database is open, or one of a newer program.
void SaveDatabaseSettings(Session &session);

/// The language of the program for a system language such as "de-AT".
QString LanguageOfSystem(const QString &system_language);
/// A remembered tab: 1 where it is 0 or beyond the count.
int ClampTab(int tab, int count);

/// "True" or "False": how settings store a switch.
QString TruthText(bool value);

/// The reverse of TruthText, in any case.
bool IsTrueText(const QString &text);

} // namespace ostrand
