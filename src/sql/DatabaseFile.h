// The file of a database: made, opened, compacted, closed.
#pragma once

#include "sql/Connection.h"

#include <QString>

#include <functional>

namespace ostrand::sql {

/// Registers the collation "dialect" and the functions on a new handle, before anything is read through it.
using Registration = std::function<void(sqlite3 *)>;

/// Makes an empty database. Throws DatabaseExists, ReadOnly (the folder can't be written) or CannotOpenDatabase; what
/// was begun is removed then.
Connection CreateFile(const QString &path, const Registration &registration);

/// Removes a database that was only just made, with what stands beside it. Its connection must be closed.
void RemoveNewFile(const QString &path);

/// Opens a database for reading and writing. Throws CannotOpenDatabase (missing, a folder), NotADatabase, Damaged or
/// ReadOnly, and has not touched the file then. Indexes of a file that another collation version made are built anew.
Connection OpenFile(const QString &path, const Registration &registration);

/// Writes a compact copy of `source` to `target`, which must not exist (DatabaseExists). Faults of `source` are those
/// of OpenFile; a target begun is removed.
void CompactFile(const QString &source, const QString &target, const Registration &registration);

/// Moves the log into the file and closes; unless somebody else holds it, the file stands alone afterwards. Statements
/// of the connection must be gone. Throws nothing: what was made durable stays so in the log.
void CloseFile(Connection connection) noexcept;

} // namespace ostrand::sql
