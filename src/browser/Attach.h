// The browser as what the window does when a database opens, closes or changes.
#pragma once

namespace ostrand {

class Browser;

/// Shows the tabs, column headers, filters and the count in the language of the open database. It starts from whatever
/// language they are in, and fills no list.
void TranslateBrowser(Browser &browser);

/// Sets the hooks of `Session::window` that the browser answers. The browser must live as long as they are called.
void AttachBrowser(Browser &browser);

/// Empties all lists: no database is open any more.
void ShowNoCollection(Browser &browser);

} // namespace ostrand
