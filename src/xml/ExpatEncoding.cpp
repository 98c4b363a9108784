#include "xml/ExpatEncoding.h"

#include "base/Text.h"

#include <QStringDecoder>

namespace ostrand {

namespace {

QString Lower(std::string_view name) {
    return QString::fromLatin1(name.data(), qsizetype(name.size())).toLower();
}

bool IsWindows1252(const QString &name) {
    return name == QLatin1String("windows-1252") || name == QLatin1String("cp1252") || name == QLatin1String("ansi");
}

/// Only code pages are asked for: in a multi-byte encoding the meaning of a byte depends on its neighbours.
bool IsEightBitName(const QString &name) {
    static constexpr std::array kStarts = {"windows-125", "cp125", "iso-8859-", "ibm4",     "ibm8",
                                           "cp4",         "cp8",   "koi8-",     "macintosh"};
    return std::any_of(kStarts.begin(), kStarts.end(),
                       [&](const char *start) { return name.startsWith(QLatin1String(start)); });
}

/// The character that a byte stands for, -1 when there is none.
int DecodeByte(QStringDecoder &decoder, unsigned char byte) {
    decoder.resetState();
    const char raw = static_cast<char>(byte);
    const QString text = decoder.decode(QByteArrayView(&raw, 1));
    const bool one = text.size() == 1 && !text[0].isSurrogate() && text[0] != QChar::ReplacementCharacter;
    return one && !decoder.hasError() ? text[0].unicode() : -1;
}

bool KeepsAscii(const std::array<int, 256> &map) {
    for (size_t byte = 0x20; byte < 0x7F; ++byte)
        if (map[byte] != int(byte))
            return false;
    return true;
}

} // namespace

std::optional<std::array<int, 256>> EightBitEncoding(std::string_view name) {
    const QString lower = Lower(name);
    std::array<int, 256> map{};
    if (IsWindows1252(lower)) {
        for (size_t byte = 0; byte < map.size(); ++byte)
            map[byte] = Windows1252ToUnicode(static_cast<unsigned char>(byte));
        return map;
    }
    if (!IsEightBitName(lower))
        return std::nullopt;
    QStringDecoder decoder(lower.toLatin1().constData());
    if (!decoder.isValid())
        return std::nullopt;
    for (size_t byte = 0; byte < map.size(); ++byte)
        map[byte] = DecodeByte(decoder, static_cast<unsigned char>(byte));
    return KeepsAscii(map) ? std::optional(map) : std::nullopt;
}

int XMLCALL UnknownEncodingHandler(void *, const XML_Char *name, XML_Encoding *encoding) {
    const auto map = EightBitEncoding(name);
    if (!map)
        return XML_STATUS_ERROR;
    std::copy(map->begin(), map->end(), encoding->map);
    encoding->data = nullptr;
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
}

} // namespace ostrand
