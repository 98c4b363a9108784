// Image files as small as they are shown.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace ostrand {

/// Whether a picture smaller than its place, in device-independent pixels, grows.
enum class PictureGrowth { Fit, Never };

/// The size of a picture as it is shown, read from its file's head; empty for a broken or missing file.
QSize PictureSize(const QString &path);

/// Loads an image file scaled to fit `place` (in device-independent pixels) keeping its ratio, with `pixel_ratio`
/// device pixels each. Null for a broken file, and for one whose decoding takes more memory than
/// QImageReader::allocationLimit(). May be called on any thread.
QImage ScaledImage(const QString &path, QSize place, qreal pixel_ratio, PictureGrowth growth = PictureGrowth::Fit);

} // namespace ostrand
