#include "shell/ui/WindowPlace.h"

#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "shell/ui/Twips.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kReach = 40;       ///< pixels of the upper edge that must lie on a screen to be caught with the mouse
constexpr int kLargest = 100000; ///< pixels; nothing beyond it is a place

std::optional<int> Stored(const Session &session, const QString &section, const QString &key) {
    bool ok = false;
    // Programs of other languages wrote fractions.
    const double twips = GetINIString(session, section, key, {}).trimmed().toDouble(&ok);
    if (!ok || std::abs(twips) > kLargest * kTwipsPerPixel) {
        return std::nullopt;
    }
    return FromTwips(int(twips));
}

qint64 Distance(const QRect &screen, const QPoint &point) {
    const qint64 x = std::max({0, screen.left() - point.x(), point.x() - screen.right()});
    const qint64 y = std::max({0, screen.top() - point.y(), point.y() - screen.bottom()});
    return x * x + y * y;
}

QList<QRect> Screens() {
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        screens += screen->availableGeometry();
    }
    return screens;
}

/// The window stands where it was put: showing it again, or a page in it for which the system's window is made anew,
/// must not let the desktop find it a place.
void Settle(QWidget &window) {
    window.setAttribute(Qt::WA_Moved);
    if (QWindow *handle = window.windowHandle()) {
        handle->setPosition(handle->position());
    }
}

} // namespace

QRect OntoScreens(const QRect &place, const QList<QRect> &screens) {
    const QRect edge(place.left(), place.top(), std::max(place.width(), kReach), kReach / 2);
    const auto reached = [&](const QRect &screen) {
        const QRect seen = screen.intersected(edge);
        return seen.width() >= kReach && seen.height() >= edge.height();
    };
    if (screens.isEmpty() || std::any_of(screens.begin(), screens.end(), reached)) {
        return place;
    }
    const QRect screen = *std::min_element(screens.begin(), screens.end(), [&](const QRect &a, const QRect &b) {
        return Distance(a, place.center()) < Distance(b, place.center());
    });
    const QSize size = place.size().boundedTo(screen.size());
    return {QPoint(std::clamp(place.left(), screen.left(), screen.right() + 1 - size.width()),
                   std::clamp(place.top(), screen.top(), screen.bottom() + 1 - size.height())),
            size};
}

bool HasWindowPositions() {
    return !QGuiApplication::platformName().startsWith("wayland"_L1);
}

void ReadWindowPlace(const Session &session, const QString &section, QWidget &window, QSize design) {
    const auto positive = [](std::optional<int> pixels, int preset) {
        return pixels && *pixels > 0 ? *pixels : preset;
    };
    const QSize size(positive(Stored(session, section, u"Width"_s), design.width()),
                     positive(Stored(session, section, u"Height"_s), design.height()));
    const std::optional<int> left = Stored(session, section, u"Left"_s);
    const std::optional<int> top = Stored(session, section, u"Top"_s);
    if (!left || !top || !HasWindowPositions()) {
        window.resize(size);
        return;
    }
    const QRect place = OntoScreens({QPoint(*left, *top), size}, Screens());
    window.resize(place.size());
    window.move(place.topLeft());
}

void WriteWindowPlace(const Session &session, const QString &section, const QWidget &window) {
    if (window.isMinimized()) {
        return;
    }
    const bool changed = window.isMaximized() || window.isFullScreen();
    const QSize size = changed ? window.normalGeometry().size() : window.size();
    // A place is moved to by the corner of its frame, while the normal geometry is that of what lies within.
    const QPoint frame = window.geometry().topLeft() - window.pos();
    const QPoint corner = changed ? window.normalGeometry().topLeft() - frame : window.pos();
    const auto write = [&](const QString &key, int pixels) {
        WriteINIString(session, section, key, QString::number(ToTwips(pixels)));
    };
    write(u"Height"_s, size.height());
    write(u"Width"_s, size.width());
    if (HasWindowPositions()) {
        write(u"Top"_s, corner.y());
        write(u"Left"_s, corner.x());
    }
}

WindowPlace::WindowPlace(const Session &session, QString section, QWidget *window, QSize design) :
    QObject(window), session_(session), section_(std::move(section)), window_(window) {
    Q_ASSERT(IsWindowSection(section_));
    const QSize room = window->screen()->availableSize() * 9 / 10; // leaves some for the frame
    ReadWindowPlace(session_, section_, *window_, design.boundedTo(room));
    window_->installEventFilter(this);
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event) {
    // Closing hides the window, by whatever way it comes about; the system's own hiding is minimising.
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        WriteWindowPlace(session_, section_, *window_);
    }
    if (event->type() == QEvent::Move && window_->isVisible() && window_->windowState() == Qt::WindowNoState) {
        Settle(*window_);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ostrand
