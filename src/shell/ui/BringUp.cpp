#include "shell/ui/BringUp.h"

#include <QWidget>

namespace ostrand {

void BringUp(QWidget &window) {
    if (window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized); // maximised it may stay
    }
    window.show();
    window.raise();
    window.activateWindow(); // desktops give a tool window no focus of their own
}

} // namespace ostrand
