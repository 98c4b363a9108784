#include "xml/MarkupDigest.h"

#include <cstring>

namespace ostrand {

namespace {

constexpr qsizetype kChunk = 4096;
constexpr qsizetype kMixed = 64; // bytes converted at once where other characters than ASCII stand

/// The number of bytes at the start that stand for themselves in any encoding of bytes.
qsizetype AsciiLength(QByteArrayView bytes) {
    constexpr qsizetype kStep = sizeof(std::uint64_t);
    constexpr std::uint64_t kHighBits = 0x8080808080808080u;
    qsizetype length = 0;
    for (; length + kStep <= bytes.size(); length += kStep) {
        std::uint64_t block;
        std::memcpy(&block, bytes.data() + length, sizeof block);
        if ((block & kHighBits) != 0) {
            break;
        }
    }
    while (length < bytes.size() && std::uint8_t(bytes[length]) < 0x80) {
        ++length;
    }
    return length;
}

} // namespace

MarkupEncoding MarkupEncoding::Latin1() {
    MarkupEncoding encoding;
    encoding.form = Form::Bytes;
    for (std::size_t i = 0; i < encoding.low_byte.size(); ++i) {
        encoding.low_byte[i] = char(i);
        encoding.character[i] = char16_t(i);
    }
    return encoding;
}

MarkupDigest::MarkupDigest(const MarkupEncoding &encoding) : encoding_(encoding), hash_(QCryptographicHash::Md5) {}

void MarkupDigest::Reset() {
    hash_.reset();
    pending_ = 0;
    missing_ = 0;
    odd_ = false;
}

void MarkupDigest::Add(QByteArrayView bytes) {
    switch (encoding_.form) {
    case MarkupEncoding::Form::Bytes:
        AddBytes(bytes);
        break;
    case MarkupEncoding::Form::Utf8:
        AddUtf8(bytes);
        break;
    case MarkupEncoding::Form::Utf16LittleEndian:
        AddUtf16(bytes, true);
        break;
    case MarkupEncoding::Form::Utf16BigEndian:
        AddUtf16(bytes, false);
        break;
    }
}

std::array<char, 16> MarkupDigest::Result() const {
    std::array<char, 16> digest{};
    const QByteArray result = hash_.result();
    std::copy_n(result.begin(), digest.size(), digest.begin());
    return digest;
}

qsizetype MarkupDigest::AddAscii(QByteArrayView bytes) {
    const qsizetype length = AsciiLength(bytes);
    if (length > 0) {
        hash_.addData(bytes.first(length));
    }
    return length;
}

void MarkupDigest::AddBytes(QByteArrayView bytes) {
    std::array<char, kMixed> chunk;
    while (true) {
        bytes = bytes.sliced(AddAscii(bytes));
        if (bytes.isEmpty()) {
            return;
        }
        const qsizetype count = std::min(bytes.size(), kMixed);
        for (qsizetype i = 0; i < count; ++i) {
            chunk[std::size_t(i)] = encoding_.low_byte[std::uint8_t(bytes[i])];
        }
        hash_.addData(QByteArrayView(chunk.data(), count));
        bytes = bytes.sliced(count);
    }
}

void MarkupDigest::AddUtf8(QByteArrayView bytes) {
    if (missing_ == 0) {
        bytes = bytes.sliced(AddAscii(bytes));
    }
    std::array<char, kChunk> chunk;
    std::size_t filled = 0;
    for (const char c : bytes) {
        if (filled + 2 > chunk.size()) {
            hash_.addData(QByteArrayView(chunk.data(), qsizetype(filled)));
            filled = 0;
        }
        const auto byte = std::uint8_t(c);
        if (byte < 0x80) {
            chunk[filled++] = c;
        } else if (byte >= 0xC0) {
            missing_ = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : 1;
            pending_ = byte & (0x3Fu >> missing_);
        } else if (missing_ > 0) {
            pending_ = pending_ << 6 | (byte & 0x3Fu);
            if (--missing_ == 0 && pending_ >= 0x10000) {
                chunk[filled++] = char((pending_ - 0x10000) >> 10 & 0xFF);
                chunk[filled++] = char(pending_ & 0xFF);
            } else if (missing_ == 0) {
                chunk[filled++] = char(pending_ & 0xFF);
            }
        }
    }
    hash_.addData(QByteArrayView(chunk.data(), qsizetype(filled)));
}

void MarkupDigest::AddUtf16(QByteArrayView bytes, bool low_first) {
    std::array<char, kChunk> chunk;
    std::size_t filled = 0;
    for (const char c : bytes) {
        if (odd_ != low_first) {
            chunk[filled++] = c;
            if (filled == chunk.size()) {
                hash_.addData(QByteArrayView(chunk.data(), qsizetype(filled)));
                filled = 0;
            }
        }
        odd_ = !odd_;
    }
    hash_.addData(QByteArrayView(chunk.data(), qsizetype(filled)));
}

} // namespace ostrand
