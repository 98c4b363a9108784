// The file that holds the program's texts in another language.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Replaces all translations of the database by those of a file: XML (extension xml), packed XML (7z), or lines of
/// text (any other extension). Faults are told; false then, and the table stays as it is.
bool ImportStringsFromFile(Session &session, const QString &path);
/// Writes the translations that are done: those with a text that is not the English one. Faults are told; false then.
bool ExportStringsToFile(Session &session, const QString &path);

} // namespace ostrand
