#include "browser/ui/MediumIcon.h"

#include "platform_qt/ThemedIcon.h"

#include <QPainter>

namespace ostrand {

MediumIcon::MediumIcon(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picMedium"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void MediumIcon::ShowIcon(const QString &key) {
    if (key == key_) {
        return;
    }
    key_ = key;
    icon_ = key.isEmpty() ? QIcon() : ThemedIcon(QStringLiteral("medium_") + key);
    setToolTip(key);
    setAccessibleDescription(key);
    update();
}

QSize MediumIcon::sizeHint() const {
    const int side = fontMetrics().height() * 3;
    return {side, side};
}

void MediumIcon::paintEvent(QPaintEvent *) {
    if (!icon_.isNull()) {
        QPainter painter(this);
        icon_.paint(&painter, rect());
    }
}

} // namespace ostrand
