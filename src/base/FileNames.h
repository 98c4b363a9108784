// The names in a folder.
#pragma once

#include <QStringList>

namespace ostrand {

/// The names of the files of a folder, hidden ones too, in no order; none when the folder cannot be read. Several times
/// as fast as asking for what else is known of them, which counts with tens of thousands.
QStringList FileNamesOf(const QString &folder);

} // namespace ostrand
