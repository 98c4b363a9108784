#include "support/HugePictures.h"

namespace ostrand::test {

namespace {

QByteArray Word(int value) {
    return QByteArray().append(char(value >> 8)).append(char(value & 0xFF));
}

QByteArray Segment(int marker, const QByteArray &data) {
    return QByteArray().append(char(0xFF)).append(char(marker)) + Word(int(data.size()) + 2) + data;
}

/// A code table with one code, the bit 0, which stands for 0.
QByteArray OneCode(int table) {
    return QByteArray().append(char(table)).append(char(1)).append(15, char(0)).append(char(0));
}

QByteArray LongWord(quint32 value) {
    return Word(int(value >> 16)) + Word(int(value & 0xFFFF));
}

quint32 Crc(const QByteArray &data) {
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : data) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = crc >> 1 ^ (0xEDB88320 & (0 - (crc & 1)));
        }
    }
    return ~crc;
}

QByteArray Chunk(const QByteArray &name, const QByteArray &data) {
    return LongWord(quint32(data.size())) + name + data + LongWord(Crc(name + data));
}

} // namespace

QByteArray BlackPng(QSize size, PngPixels pixels) {
    const int channels = pixels == PngPixels::Grey ? 1 : 3;
    const QByteArray rows(size.height() * (1 + qsizetype(size.width()) * channels), char(0));
    const QByteArray head = LongWord(quint32(size.width())) + LongWord(quint32(size.height())) +
                            QByteArray(1, char(8)) + QByteArray(1, char(pixels)) + QByteArray(3, char(0));
    constexpr int kLengthBefore = 4; // of what qCompress makes
    return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", head) + Chunk("IDAT", qCompress(rows, 1).mid(kLengthBefore)) +
           Chunk("IEND", {});
}

QByteArray GreyJpeg(QSize size, JpegCoding coding) {
    const bool progressive = coding == JpegCoding::Progressive;
    const qint64 blocks = qint64((size.width() + 7) / 8) * ((size.height() + 7) / 8);
    // Each block is a difference of 0 to the one before and, in the same scan, the end of the block.
    const qint64 bits = blocks * (progressive ? 1 : 2);
    return "\xFF\xD8" + Segment(0xDB, QByteArray(1, char(0)) + QByteArray(64, char(1))) +
           Segment(progressive ? 0xC2 : 0xC0, QByteArray(1, char(8)) + Word(size.height()) + Word(size.width()) +
                                                  QByteArray("\x01\x01\x11\x00", 4)) +
           Segment(0xC4, OneCode(0x00)) + Segment(0xC4, OneCode(0x10)) +
           Segment(0xDA, QByteArray("\x01\x01\x00\x00", 4) + QByteArray(1, char(progressive ? 0 : 63)) +
                             QByteArray(1, char(0))) +
           QByteArray((bits + 7) / 8, char(0)) + "\xFF\xD9";
}

} // namespace ostrand::test
