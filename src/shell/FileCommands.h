// Menu commands that begin with a file dialog.
#pragma once

namespace ostrand {

struct Session;

/// Asks for a command file and runs it.
void ChooseCommandFile(Session &session);
/// Asks for a file of additional infos and takes its entries in.
void ChooseAdditionalInfosToImport(Session &session);
/// Asks for a file and writes all additional infos into it.
void ChooseAdditionalInfosToExport(Session &session);

} // namespace ostrand
