// The side file that moves entries of AdditionalInfo between databases.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Writes the entries of one name, or of all names when `name` is empty. A path with the extension 7z is packed.
void ExportAdditionalInfos(Session &session, const QString &path, const QString &name);
/// Takes the entries of a file in; locked profiles are left alone, and entries of profiles that are not in the
/// database unless the settings say otherwise.
void ImportAdditionalInfos(Session &session, const QString &path);

} // namespace ostrand
