// The program's own icons.
#pragma once

#include <QIcon>

namespace ostrand {

/// A drawing of one colour, which takes the colour of the palette's button text, light or dark, enabled or disabled.
/// Sharp at every size and scale. An unknown name gives an empty icon.
QIcon ThemedIcon(const QString &name);

/// The icon of the program in its own colours.
QIcon ProgramIcon();

} // namespace ostrand
