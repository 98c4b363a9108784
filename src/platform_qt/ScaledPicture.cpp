#include "platform_qt/ScaledPicture.h"

#include <QImageReader>

namespace ostrand {

namespace {

/// The size in device pixels of a picture of `natural` size.
QSize SizeInPlace(QSize natural, QSize place, PictureGrowth growth) {
    if (growth == PictureGrowth::Never && natural.width() <= place.width() && natural.height() <= place.height()) {
        return natural;
    }
    return natural.scaled(place, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace

QImage ScaledImage(const QString &path, QSize device_place, PictureGrowth growth) {
    if (path.isEmpty()) {
        return {};
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    if (device_place.isEmpty() || stored.isEmpty()) {
        return {};
    }
    // The size to read is that of the stored picture, before it is turned.
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize target = SizeInPlace(turned ? stored.transposed() : stored, device_place, growth);
    reader.setScaledSize(turned ? target.transposed() : target);
    return reader.read();
}

QPixmap ScaledPicture(const QString &path, QSize place, qreal pixel_ratio, PictureGrowth growth) {
    QPixmap picture = QPixmap::fromImage(ScaledImage(path, (QSizeF(place) * pixel_ratio).toSize(), growth));
    picture.setDevicePixelRatio(pixel_ratio);
    return picture;
}

} // namespace ostrand
