// The access layer of the collection database: create, open, compact, settings, quoting.
#pragma once

#include "sql/Types.h"

#include <QString>

namespace ostrand {

struct Session;

inline constexpr int kSchemaVersion = 90;

/// Doubles single quotes, for a value between single quotes of a statement.
QString EscapeSql(QString text);

/// A setting of the open database; `preset` when there is no row, the empty text when there is no such table.
QString ReadDbInfo(Session &session, const QString &name, const QString &preset);
/// Writes a setting; an empty value removes it. False when no database is open.
bool WriteDbInfo(Session &session, const QString &name, const QString &value, const QString &comment = {});
/// A setting read as a truth value: "True" and "1" (and -1) are true, "False" and "0" false, all else is the preset.
bool ReadDbInfoFlag(Session &session, const QString &name, bool preset);

QString ReadAdditionalInfo(Session &session, const QString &id, const QString &name, const QString &preset);
void WriteAdditionalInfo(Session &session, const QString &id, const QString &name, const QString &value,
                         const QString &type = {});
QString ReadMetaInfo(Session &session, const QString &id, const QString &name, const QString &preset);
void WriteMetaInfo(Session &session, const QString &id, const QString &name, const QString &value);

/// The locale, clock and random numbers that statements of this session run with.
sql::Environment DatabaseEnvironment(Session &session);

/// Makes an empty collection and leaves it open; throws SqlError, and leaves no file then.
void CreateCollectionDatabase(Session &session, const QString &path);
void CreateProfileTables(Session &session);
void CreateIndexes(Session &session);
/// A matter of display in table browsers; nothing to do on this engine.
void MarkYesNoColumns(Session &session);
/// Makes a collection, opens it and writes its first settings. Faults are shown, and false returned.
bool NewCollectionDatabase(Session &session, const QString &path);
/// Opens a database, brings it to the present schema and takes its settings over. Faults are shown, and false
/// returned; look at `Session::EndProgram` then.
bool OpenCollectionDatabase(Session &session, const QString &path);
/// Says so and returns true when the file is open in another process that still runs, or in this one.
bool IsDatabaseBusy(Session &session, const QString &path);
/// Rewrites a closed database compactly; at every moment a whole file stands at `path`. Faults are shown, and false
/// returned.
bool CompactCollectionDatabase(Session &session, const QString &path);

} // namespace ostrand
