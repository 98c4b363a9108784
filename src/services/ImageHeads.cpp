#include "services/NoDesktop.h"

#include <QFile>

namespace ostrand {

namespace {

using ImageSize = std::optional<std::pair<int, int>>;

int BigEndian(const QByteArray &bytes, qsizetype at, int count) {
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i) {
        value = (value << 8) | std::uint8_t(bytes[at + i]);
    }
    return int(value & 0x7FFFFFFF);
}

ImageSize Checked(int width, int height) {
    return width > 0 && height > 0 ? ImageSize({width, height}) : std::nullopt;
}

/// PNG (ISO/IEC 15948): the header chunk comes first.
ImageSize PngSize(const QByteArray &head) {
    if (head.size() < 24 || head.mid(12, 4) != "IHDR") {
        return std::nullopt;
    }
    return Checked(BigEndian(head, 16, 4), BigEndian(head, 20, 4));
}

bool IsFrameHeader(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// JPEG (ISO/IEC 10918-1): segments up to the frame header, which holds the lines before the samples of a line.
ImageSize JpegSize(QFile &file) {
    constexpr int kMostSegments = 1000; // a hostile file must not keep the program reading
    constexpr int kFillByte = 0xFF;
    qint64 at = 2;
    for (int i = 0; i < kMostSegments && file.seek(at); ++i) {
        const QByteArray segment = file.read(9);
        if (segment.size() < 9 || std::uint8_t(segment[0]) != 0xFF) {
            return std::nullopt;
        }
        const int marker = std::uint8_t(segment[1]);
        if (IsFrameHeader(marker)) {
            return Checked(BigEndian(segment, 7, 2), BigEndian(segment, 5, 2));
        }
        at += marker == kFillByte ? 1 : 2 + BigEndian(segment, 2, 2);
    }
    return std::nullopt;
}

} // namespace

ImageSize ImageHeads::Size(const QString &path) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray head = file.peek(24);
    if (head.startsWith("\x89PNG\r\n\x1A\n")) {
        return PngSize(head);
    }
    return head.startsWith("\xFF\xD8") ? JpegSize(file) : std::nullopt;
}

} // namespace ostrand
