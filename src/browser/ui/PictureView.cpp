#include "browser/ui/PictureView.h"

#include "platform_qt/ScaledPicture.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace ostrand {

void PictureView::ShowFile(const QString &path) {
    path_ = path;
    Load();
    setFocusPolicy(path.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

void PictureView::Load() {
    picture_ = path_.isEmpty() ? QPixmap() : ScaledPicture(path_, size(), devicePixelRatioF());
    update();
}

void PictureView::paintEvent(QPaintEvent *) {
    if (picture_.isNull()) {
        return;
    }
    QPainter painter(this);
    const QSizeF extent = picture_.deviceIndependentSize();
    painter.drawPixmap(QPointF((width() - extent.width()) / 2, 0), picture_);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void PictureView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Load();
}

void PictureView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        Q_EMIT Clicked();
    }
}

void PictureView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return) {
        Q_EMIT Clicked();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace ostrand
