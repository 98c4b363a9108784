// The scripts that tell which profiles a person is in.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Deletes the scripts of the folder.
void DeleteOldCrossLinkFiles(const QString &folder);
/// Writes the scripts of all persons into the folder, which ends in a separator. Throws SqlError and SiteFault.
void CreateCrossLinkFiles(Session &session, const QString &folder);

/// The file that a page loads to find one person: a name that every system and address can hold.
QString LoadScriptFileName(const QString &cross_link_id);
/// A script's name of a prefix and the first two units of `text`, as letters, digits and "_" only.
QString ScriptFileName(QLatin1String prefix, QStringView text);

} // namespace ostrand
