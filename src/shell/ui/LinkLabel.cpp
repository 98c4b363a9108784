#include "shell/ui/LinkLabel.h"

#include "shell/LinkTarget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace ostrand {

LinkLabel::LinkLabel(Opener &opener, QWidget *parent) : QLabel(parent), opener_(opener) {
    setTextFormat(Qt::PlainText);
}

void LinkLabel::SetLink(const QString &link, const QString &shown) {
    link_ = link;
    setText(shown.isEmpty() ? link : shown);
    const bool leads = ReadLink(link).kind != LinkKind::None;
    setForegroundRole(leads ? QPalette::Link : QPalette::WindowText);
    QFont underlined = font();
    underlined.setUnderline(leads);
    setFont(underlined);
    setFocusPolicy(leads ? Qt::TabFocus : Qt::NoFocus);
    setToolTip(leads ? link : QString());
    if (leads) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
}

void LinkLabel::Open() {
    OpenLink(opener_, link_);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        Open();
        event->accept();
    } else {
        QLabel::mouseReleaseEvent(event);
    }
}

void LinkLabel::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Open();
        event->accept();
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}

void LinkLabel::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace ostrand
