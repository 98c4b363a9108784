#include "browser/ui/MediumIcon.h"

#include "browser/ui/FieldText.h"
#include "platform_qt/ThemedIcon.h"
#include "shell/ui/FocusFrame.h"

#include <QKeyEvent>
#include <QPainter>

namespace ostrand {

MediumIcon::MediumIcon(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picMedium"));
    setContextMenuPolicy(Qt::CustomContextMenu);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void MediumIcon::ShowIcon(const QString &key, const QString &name) {
    setToolTip(name.toHtmlEscaped());
    setAccessibleDescription(name);
    if (key != key_) {
        key_ = key;
        icon_ = key.isEmpty() ? QIcon() : ThemedIcon(QStringLiteral("medium_") + key);
        update();
    }
}

QSize MediumIcon::sizeHint() const {
    const int side = fontMetrics().height() * 3;
    return {side, side};
}

bool MediumIcon::event(QEvent *event) {
    // As with the texts, the menu entry of F2 stands back.
    if (event->type() == QEvent::ShortcutOverride && AsksForChange(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void MediumIcon::keyPressEvent(QKeyEvent *event) {
    if (AsksForChange(*event)) {
        event->accept();
        Q_EMIT ChangeWanted();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void MediumIcon::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        event->accept();
        Q_EMIT ChangeWanted();
    }
}

void MediumIcon::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (!icon_.isNull()) {
        icon_.paint(&painter, rect());
    }
    DrawFocusFrame(*this, painter);
}

} // namespace ostrand
