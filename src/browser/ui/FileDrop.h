// Collection files dropped on a window.
#pragma once

#include <QStringList>

class QMimeData;

namespace ostrand {

/// The local files among what is dragged that may be collection files: `.xml` and `.7z`.
QStringList CollectionFilesIn(const QMimeData &data);

} // namespace ostrand
