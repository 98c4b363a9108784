#include "platform_qt/DesktopColours.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr uint kPrefersDark = 1;
QString Service() {
    return u"org.freedesktop.portal.Desktop"_s;
}
QString Path() {
    return u"/org/freedesktop/portal/desktop"_s;
}
QString Interface() {
    return u"org.freedesktop.portal.Settings"_s;
}
QString Space() {
    return u"org.freedesktop.appearance"_s;
}
QString Key() {
    return u"color-scheme"_s;
}

bool IsDark(const QPalette &palette) {
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

/// The portal wraps its answer in a variant, older ones in two.
uint Scheme(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value.toUInt();
}

} // namespace

QPalette DarkPalette() {
    const QColor ground(30, 30, 30);
    const QColor raised(45, 45, 45);
    const QColor text(230, 230, 230);
    const QColor faint(140, 140, 140);
    const QColor chosen(42, 130, 218);
    QPalette palette(raised, ground);
    palette.setColor(QPalette::Window, raised);
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    palette.setColor(QPalette::ToolTipBase, raised);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, text);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 170, 240));
    palette.setColor(QPalette::LinkVisited, QColor(190, 150, 230));
    return palette;
}

DesktopColours::DesktopColours(QObject *parent) : QObject(parent), given_(QApplication::palette()) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    bus.connect(Service(), Path(), Interface(), u"SettingChanged"_s, this,
                SLOT(SettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(Service(), Path(), Interface(), u"Read"_s);
    read.setArguments({Space(), Key()});
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopColours::Answered);
}

void DesktopColours::Answered(QDBusPendingCallWatcher *watcher) {
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (!reply.isError()) {
        Apply(Scheme(QVariant::fromValue(reply.value())));
    }
    watcher->deleteLater();
}

void DesktopColours::SettingChanged(const QString &space, const QString &key, const QDBusVariant &value) {
    if (space == Space() && key == Key()) {
        Apply(Scheme(value.variant()));
    }
}

void DesktopColours::Apply(uint color_scheme) {
    const bool dark = color_scheme == kPrefersDark && !IsDark(given_);
    QApplication::setPalette(dark ? DarkPalette() : given_);
}

} // namespace ostrand
