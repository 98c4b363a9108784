#include "platform_qt/WindowInUse.h"

#include <QApplication>
#include <QWindow>

namespace ostrand {

WindowInUse::WindowInUse() {
    if (qApp) {
        connect(qApp, &QGuiApplication::focusWindowChanged, this, &WindowInUse::Note);
        Note();
    }
}

void WindowInUse::Note() {
    QWidget *active = QApplication::activeWindow();
    if (!active) {
        return;
    }
    std::erase_if(used_, [active](const QPointer<QWidget> &window) {
        return !window || window == active || !window->isVisible();
    });
    used_.emplace_back(active);
}

QWidget *WindowInUse::Get() const {
    if (QWidget *active = QApplication::activeWindow()) {
        return active;
    }
    if (QWidget *modal = QApplication::activeModalWidget()) {
        return modal;
    }
    const auto shown = std::find_if(used_.rbegin(), used_.rend(),
                                    [](const QPointer<QWidget> &window) { return window && window->isVisible(); });
    return shown == used_.rend() ? nullptr : shown->data();
}

bool WindowInUse::InForeground() const {
    if (QApplication::activeWindow()) {
        return true;
    }
    return !used_.empty() && (!used_.back() || !used_.back()->isVisible());
}

} // namespace ostrand
