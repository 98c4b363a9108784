// The menu commands that move saved queries and translations.
#pragma once

namespace ostrand {

struct Session;

/// Each asks for a file, does its work and says so at the end. Nothing happens when the user cancels.
void ChooseSQLToImport(Session &session);
void ChooseSQLToExport(Session &session);
void ChooseStringsToImport(Session &session);
void ChooseStringsToExport(Session &session);

} // namespace ostrand
