// Light or dark, as the desktop has it.
#pragma once

#include <QObject>
#include <QPalette>

class QDBusPendingCallWatcher;
class QDBusVariant;

namespace ostrand {

/// A palette with light text on a dark ground.
QPalette DarkPalette();

/// Follows the desktop's choice between light and dark (the `color-scheme` of org.freedesktop.appearance, told by the
/// settings portal) where the toolkit's theme does not follow it itself. Without a portal nothing changes.
class DesktopColours : public QObject {
    Q_OBJECT
public:
    explicit DesktopColours(QObject *parent = nullptr);

    /// Takes what the portal tells: 1 asks for dark, all else leaves the choice to the toolkit.
    void Apply(uint color_scheme);

private Q_SLOTS:
    void SettingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    void Answered(QDBusPendingCallWatcher *watcher);

    QPalette given_; ///< the palette of the toolkit's theme
};

} // namespace ostrand
