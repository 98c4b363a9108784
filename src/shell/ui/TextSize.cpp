#include "shell/ui/TextSize.h"

#include <QFontMetrics>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

namespace ostrand {

void ResizeToText(QWidget &window, int letters, int lines) {
    const QFontMetrics font = window.fontMetrics();
    const QSize wanted = QSize(font.averageCharWidth() * letters, font.height() * lines).expandedTo(window.sizeHint());
    const QSize screen = window.screen()->availableSize();
    window.resize(wanted.boundedTo(screen * 9 / 10)); // leaves room for the frame
}

void MakeNarrow(QPushButton &button) {
    button.setMaximumWidth(button.sizeHint().height() * 3 / 2);
}

} // namespace ostrand
