// Image files as small as they are shown.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace ostrand {

/// Whether a picture smaller than its place grows.
enum class PictureGrowth { Fit, Never };

/// Loads an image file scaled to fit a place of device pixels keeping its ratio; the toolkit's limit of memory for one
/// picture applies. Decodes no more than needed, as far as the format allows. Null for a broken or missing file and an
/// empty place. May be called from any thread.
QImage ScaledImage(const QString &path, QSize device_place, PictureGrowth growth = PictureGrowth::Fit);
/// Loads an image file scaled to fit `place` (in device-independent pixels) keeping its ratio, with `pixel_ratio`
/// device pixels each, as ScaledImage does.
QPixmap ScaledPicture(const QString &path, QSize place, qreal pixel_ratio, PictureGrowth growth = PictureGrowth::Fit);

} // namespace ostrand
