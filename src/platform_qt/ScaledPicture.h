// Image files as small as they are shown.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace ostrand {

/// Whether a picture smaller than its place, in device-independent pixels, grows.
enum class PictureGrowth { Fit, Never };

/// The size of a picture as it is shown, read from its file's head; empty for a broken or missing file.
QSize PictureSize(const QString &path);

/// The image that ScaledPicture shows. May be called on any thread.
QImage ScaledImage(const QString &path, QSize place, qreal pixel_ratio, PictureGrowth growth = PictureGrowth::Fit);

/// Loads an image file scaled to fit `place` (in device-independent pixels) keeping its ratio, with `pixel_ratio`
/// device pixels each, as ScaledImage does.
QPixmap ScaledPicture(const QString &path, QSize place, qreal pixel_ratio, PictureGrowth growth = PictureGrowth::Fit);

} // namespace ostrand
