// Brings a database of an earlier schema to the present one.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Runs the steps that a database of `version` lacks on the open database; true when it stands at the present
/// version. A version above the present one is refused with a message. Before data is lost the user is asked, and
/// answering No sets `Session::EndProgram`. A statement that fails throws SqlError.
bool UpgradeDatabase(Session &session, int version);

/// Deletes the indexes of a table that stand for keys told with its columns: those named "Index" and more.
void RemoveAutoIndexes(Session &session, const QString &table);
/// Turns a column of texts into a truth value: true where the text equals `true_value` without regard to case.
void ChangeColumnToYesNo(Session &session, const QString &table, const QString &column, const QString &true_value);

} // namespace ostrand
