#include "platform_qt/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace ostrand {

ElidedLabel::ElidedLabel(QWidget *parent, Qt::TextElideMode mode) : QLabel(parent), mode_(mode) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::IsCutOff() const {
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), mode_, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(QStyle::visualAlignment(layoutDirection(), alignment())),
                          palette(), isEnabled(), shown, foregroundRole());
}

bool ElidedLabel::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip && IsCutOff()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace ostrand
