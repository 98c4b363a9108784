#include "platform_qt/JpegMemory.h"

#include <QFile>

namespace ostrand {

namespace {

constexpr uchar kProgressive = 0xC2;
constexpr uchar kStartOfScan = 0xDA;

/// A marker of the file with what stands behind it.
struct Segment {
    uchar marker = 0;
    QByteArray data;

    int At(qsizetype i) const { return i < data.size() ? uchar(data[i]) : 0; }
    int Word(qsizetype i) const { return At(i) << 8 | At(i + 1); }
    bool IsFrame() const {
        const bool table = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
        return marker >= 0xC0 && marker <= 0xCF && !table;
    }
};

/// The next segment, whatever stands before it, as decoders take it; without a marker at the end of the file.
Segment NextSegment(QFile &file) {
    char mark = 0;
    bool told = false;
    for (bool after_ff = false; !told && file.getChar(&mark); after_ff = uchar(mark) == 0xFF) {
        told = after_ff && uchar(mark) != 0xFF && mark != 0;
    }
    if (!told) {
        return {};
    }
    Segment segment{.marker = uchar(mark), .data = file.read(2)};
    segment.data = file.read(std::max(segment.Word(0) - 2, 0));
    return segment;
}

/// The coefficients of all components, two bytes each.
qint64 CoefficientsOf(const Segment &frame) {
    const int components = frame.At(5);
    qint64 most = 1;
    qint64 sum = 0;
    for (int i = 0; i < components; ++i) {
        const int sampling = frame.At(6 + 3 * i + 1);
        const qint64 samples = qint64(sampling >> 4) * (sampling & 15);
        most = std::max(most, samples);
        sum += samples;
    }
    return 2 * qint64(frame.Word(1)) * frame.Word(3) * sum / most;
}

} // namespace

qint64 JpegMemory(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != "\xFF\xD8") {
        return 0;
    }
    Segment frame;
    for (Segment segment = NextSegment(file); segment.marker != 0; segment = NextSegment(file)) {
        if (segment.IsFrame()) {
            frame = segment;
        } else if (segment.marker == kStartOfScan) {
            const bool whole_at_once = frame.marker != kProgressive && segment.At(0) == frame.At(5);
            return whole_at_once ? 0 : CoefficientsOf(frame);
        }
    }
    return 0;
}

} // namespace ostrand
