// The file that moves saved queries between databases.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Takes the queries of a file in; those of the same names are replaced, others stay. Faults are told; false then, and
/// nothing is changed.
bool ImportSQLFromFile(Session &session, const QString &path);
/// Writes all saved queries. A path with the extension 7z is packed. Faults are told; false then.
bool ExportSQLToFile(Session &session, const QString &path);

} // namespace ostrand
