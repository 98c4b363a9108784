// The picture of a title's medium.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand {

class Browser;

/// The key of the image for a medium in any spelling; empty for a medium without one.
QString MediaIconKey(const QString &medium);
/// All keys, in the order of the table.
QStringList MediaIconKeys();
/// What picMedium shows now: the icon of the current title in movie view, while no page stands in place of the panels
/// and the settings ask for it.
QString ShownMediaIcon(const Browser &browser);
/// Whether picMedium has its place in the window, with an icon or without.
bool IsMediaIconShown(const Browser &browser);

} // namespace ostrand
