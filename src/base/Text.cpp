#include "base/Text.h"

namespace ostrand {

namespace {

/// The bytes 0x80 to 0x9F; all others equal their character. 0x81, 0x8D, 0x8F, 0x90 and 0x9D have no character.
constexpr std::array<char16_t, 32> kUpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsControl(char16_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

} // namespace

QString DecodeUserText(QByteArrayView bytes) {
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    return DecodeWindows1252(bytes);
}

QByteArray EncodeUserText(QStringView text) {
    return text.toUtf8();
}

char16_t Windows1252ToUnicode(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80u] : char16_t(byte);
}

int UnicodeToWindows1252(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100))
        return character;
    const auto *found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    return found == kUpperControls.end() ? -1 : int(found - kUpperControls.begin()) + 0x80;
}

QString DecodeWindows1252(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return QChar(Windows1252ToUnicode(static_cast<unsigned char>(byte))); });
    return text;
}

QString SafeFileName(QStringView text) {
    QString name;
    name.reserve(text.size());
    for (const QChar c : text) {
        if (c == u':')
            name += QStringLiteral(" -");
        else if (c == u'"')
            name += u'\'';
        else if (!QStringView(u"?\\/*<>").contains(c) && !IsControl(c.unicode()))
            name += c;
    }
    const bool only_dots = std::all_of(name.begin(), name.end(), [](QChar c) { return c == u'.' || c == u' '; });
    if (only_dots)
        name.replace(u'.', u'_');
    return name;
}

bool EqualsIgnoringCase(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool StartsWithIgnoringCase(QStringView text, QStringView start) {
    return text.startsWith(start, Qt::CaseInsensitive);
}

qsizetype IndexOfIgnoringCase(QStringView text, QStringView part, qsizetype from) {
    return text.indexOf(part, from, Qt::CaseInsensitive);
}

} // namespace ostrand
