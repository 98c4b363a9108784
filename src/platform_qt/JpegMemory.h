// What a JPEG file asks of its decoder.
#pragma once

#include <QString>

namespace ostrand {

/// The bytes that a decoder keeps for a JPEG file, however small it scales the picture: a file with more than one scan
/// is decoded as a whole. 0 for one that is decoded line by line, and for what is no such file.
qint64 JpegMemory(const QString &path);

} // namespace ostrand
