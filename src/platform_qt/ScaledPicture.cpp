#include "platform_qt/ScaledPicture.h"

#include "platform_qt/JpegMemory.h"

#include <QImageReader>

namespace ostrand {

namespace {

/// The size in device pixels of a picture of `natural` size.
QSize SizeInPlace(QSize natural, QSize place, qreal pixel_ratio, PictureGrowth growth) {
    const QSize own = (QSizeF(natural) * pixel_ratio).toSize();
    if (growth == PictureGrowth::Never && own.width() <= place.width() && own.height() <= place.height()) {
        return own; // as large as on a screen of plain pixels
    }
    return natural.scaled(place, Qt::KeepAspectRatio).expandedTo({1, 1});
}

void Open(QImageReader &reader, const QString &path) {
    reader.setFileName(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
}

bool IsTurned(const QImageReader &reader) {
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

} // namespace

QSize PictureSize(const QString &path) {
    if (path.isEmpty()) {
        return {};
    }
    QImageReader reader;
    Open(reader, path);
    const QSize stored = reader.size();
    if (stored.isEmpty()) {
        return {};
    }
    return IsTurned(reader) ? stored.transposed() : stored;
}

QImage ScaledImage(const QString &path, QSize place, qreal pixel_ratio, PictureGrowth growth) {
    if (path.isEmpty()) {
        return {};
    }
    const QSize device_place = (QSizeF(place) * pixel_ratio).toSize();
    QImageReader reader;
    Open(reader, path);
    const QSize stored = reader.size();
    if (device_place.isEmpty() || stored.isEmpty()) {
        return {};
    }
    constexpr qint64 kMegabyte = 1 << 20;
    if (reader.format() == "jpeg" && JpegMemory(path) > QImageReader::allocationLimit() * kMegabyte) {
        return {};
    }
    // The size to read is that of the stored picture, before it is turned.
    const bool turned = IsTurned(reader);
    const QSize target = SizeInPlace(turned ? stored.transposed() : stored, device_place, pixel_ratio, growth);
    reader.setScaledSize(turned ? target.transposed() : target);
    QImage image = reader.read();
    image.setDevicePixelRatio(pixel_ratio);
    return image;
}

} // namespace ostrand
