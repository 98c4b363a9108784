// Portraits of invented people.
#pragma once

#include <QImage>
#include <QString>

namespace ostrand::samples {

/// The same name gives the same face; `name` is the name of the picture's file without its ending.
QImage DrawPortrait(const QString &name);

} // namespace ostrand::samples
