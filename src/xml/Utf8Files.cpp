#include "xml/Utf8Files.h"

#include "base/Files.h"
#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

#include <QFile>

namespace ostrand {

namespace {

void AppendUtf8(QByteArray &bytes, unsigned code) {
    if (code < 0x80) {
        bytes += char(code);
    } else if (code < 0x800) {
        bytes += char(0xC0 | code >> 6);
        bytes += char(0x80 | (code & 0x3F));
    } else {
        bytes += char(0xE0 | code >> 12);
        bytes += char(0x80 | (code >> 6 & 0x3F));
        bytes += char(0x80 | (code & 0x3F));
    }
}

/// The value of the sequence of one to three bytes at `at`; nothing for any other.
struct Unit {
    char16_t code = 0;
    int length = 0;
};
Unit UnitAt(QByteArrayView bytes, qsizetype at) {
    const auto byte = [&](qsizetype i) { return unsigned(static_cast<unsigned char>(bytes[i])); };
    const auto follows = [&](qsizetype i) { return i < bytes.size() && (byte(i) & 0xC0) == 0x80; };
    const unsigned lead = byte(at);
    if (lead < 0x80)
        return {char16_t(lead), 1};
    if (lead >= 0xC2 && lead < 0xE0 && follows(at + 1))
        return {char16_t((lead & 0x1F) << 6 | (byte(at + 1) & 0x3F)), 2};
    if ((lead & 0xF0) != 0xE0 || !follows(at + 1) || !follows(at + 2))
        return {};
    const unsigned code = (lead & 0x0F) << 12 | (byte(at + 1) & 0x3F) << 6 | (byte(at + 2) & 0x3F);
    return code >= 0x800 ? Unit{char16_t(code), 3} : Unit{};
}

/// Decodes UTF-8 in which characters beyond the first plane may stand in four bytes or as two surrogates of three.
QString DecodeUtf8(QByteArrayView bytes) {
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    QString text;
    text.reserve(bytes.size());
    qsizetype at = 0;
    while (at < bytes.size()) {
        const Unit unit = UnitAt(bytes, at);
        if (unit.length > 0) {
            text += QChar(unit.code);
            at += unit.length;
            continue;
        }
        const QByteArrayView four = bytes.sliced(at).first(std::min<qsizetype>(4, bytes.size() - at));
        const bool valid =
            four.size() == 4 && (static_cast<unsigned char>(four[0]) & 0xF8) == 0xF0 && four.isValidUtf8();
        text += valid ? QString::fromUtf8(four) : QString(QChar::ReplacementCharacter);
        at += valid ? 4 : 1;
    }
    return text;
}

} // namespace

QByteArray CharToUtf8(char16_t code) {
    QByteArray bytes;
    AppendUtf8(bytes, code);
    return bytes;
}

QByteArray StringToUtf8(QStringView text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text)
        AppendUtf8(bytes, c.unicode());
    return bytes;
}

bool WriteUtf8File(const QString &path, const QString &text) {
    return ReplaceFile(path, "\xEF\xBB\xBF" + StringToUtf8(text));
}

QString ReadUtf8File(const QString &path) {
    const QByteArray bytes = path.isEmpty() ? QByteArray() : ReadFile(path).value_or(QByteArray());
    // Decoding drops a mark of its own accord, so the first character goes before it.
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return DecodeUtf8(QByteArrayView(bytes).sliced(3));
    const QString text = DecodeUtf8(bytes);
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return text.mid(pair ? 2 : 1);
}

bool IsUnicodeFile(const QString &path) {
    QFile file(path);
    char first = 0;
    if (IsEndless(path) || !file.open(QIODevice::ReadOnly) || !file.getChar(&first))
        return false;
    const auto byte = static_cast<unsigned char>(first);
    return byte == 0xFF || byte == 0xEF;
}

QString ReadUnicodeText(const QString &path) {
    pugi::xml_document document;
    if (!XmlLoadFile(path, document, XmlWhitespace::Keep).ok)
        return {};
    return XmlNodeText(document.child("Text"));
}

bool WriteUnicodeText(const QString &text, const QString &path) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Text");
    const QByteArray bytes = XmlUtf8(text);
    if (!bytes.isEmpty())
        root.text().set(bytes.constData());
    return XmlSaveDocument(path, {}, root);
}

} // namespace ostrand
