// Cross-links in files: as text, as XML, and as packed XML. The extension tells which.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Merges the links of a file into the table by the rules of LinkAlias, whose messages appear with `show_messages`. A
/// file that does not exist is passed over.
void ImportAliasFromFile(Session &session, const QString &path, bool show_messages);
/// Writes all links; a fault is shown. True when the file is written.
bool ExportAliasToFile(Session &session, const QString &path);

/// Asks for a file, reads it and says when it is done.
void ChooseAliasFileToImport(Session &session);
/// Asks for a file, writes it and says when it is done.
void ChooseAliasFileToExport(Session &session);

} // namespace ostrand
