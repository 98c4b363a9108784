// The digest of a piece of markup, counted in UTF-16 units whatever the file's encoding.
#pragma once

#include <QByteArrayView>
#include <QCryptographicHash>

#include <array>
#include <cstdint>

namespace ostrand {

/// How the bytes of a file become UTF-16 units.
struct MarkupEncoding {
    enum class Form { Bytes, Utf8, Utf16LittleEndian, Utf16BigEndian };

    Form form = Form::Utf8;
    /// For Bytes: the low byte of each byte's character.
    std::array<char, 256> low_byte{};
    /// For Bytes: each byte's character.
    std::array<char16_t, 256> character{};

    static MarkupEncoding Latin1();
};

/// MD5 over the low byte of each UTF-16 unit. Pieces may end within a character.
class MarkupDigest {
public:
    explicit MarkupDigest(const MarkupEncoding &encoding);

    void Reset();
    void Add(QByteArrayView bytes);
    std::array<char, 16> Result() const;

private:
    /// Adds the ASCII at the start, which needs no conversion; its length.
    qsizetype AddAscii(QByteArrayView bytes);
    void AddBytes(QByteArrayView bytes);
    void AddUtf8(QByteArrayView bytes);
    void AddUtf16(QByteArrayView bytes, bool low_first);

    const MarkupEncoding &encoding_;
    QCryptographicHash hash_;
    std::uint32_t pending_ = 0; // code point so far, within a UTF-8 sequence
    int missing_ = 0;           // bytes that the sequence still wants
    bool odd_ = false;          // the next byte is the second of its UTF-16 unit
};

} // namespace ostrand
