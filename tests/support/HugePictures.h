// Picture files that are far larger to look at than on the disk.
#pragma once

#include <QByteArray>
#include <QSize>

namespace ostrand::test {

enum class JpegCoding { Baseline, Progressive };

/// A grey JPEG file.
QByteArray GreyJpeg(QSize size, JpegCoding coding);

enum class PngPixels { Grey = 0, Colour = 2 };

/// A black PNG file with 8 bits a channel.
QByteArray BlackPng(QSize size, PngPixels pixels);

} // namespace ostrand::test
