#include "shell/ui/PressedLabel.h"

#include "shell/ui/FocusFrame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace ostrand {

PressedLabel::PressedLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void PressedLabel::SetPressable(bool on) {
    pressable_ = on;
    setForegroundRole(on ? QPalette::Link : QPalette::WindowText);
    QFont underlined = font();
    underlined.setUnderline(on);
    setFont(underlined);
    setFocusPolicy(on ? Qt::TabFocus : Qt::NoFocus);
    if (on) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
}

void PressedLabel::mouseReleaseEvent(QMouseEvent *event) {
    if (pressable_ && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        event->accept();
        Q_EMIT Pressed();
    } else {
        QLabel::mouseReleaseEvent(event);
    }
}

void PressedLabel::keyPressEvent(QKeyEvent *event) {
    const bool presses =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (pressable_ && presses) {
        event->accept();
        Q_EMIT Pressed();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void PressedLabel::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    DrawFocusFrame(*this, painter);
}

} // namespace ostrand
