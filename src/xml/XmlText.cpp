#include "xml/XmlText.h"

#include "base/Text.h"
#include "xml/XmlNodes.h"

namespace ostrand {

namespace {

/// The Windows-1252 codes that pair with a numeric entity of their number. The gaps are part of the format.
bool HasNumericEntity(int code) {
    return (code >= 123 && code <= 126) || code == 128 || (code >= 131 && code <= 140) || code == 142 ||
           (code >= 145 && code <= 149) || (code >= 153 && code <= 156) || code == 158 || (code >= 161 && code <= 255);
}

constexpr char16_t kYDiaeresis = 0x0178;

struct NamedEntity {
    char16_t character;
    const char *entity;
};
constexpr std::array<NamedEntity, 5> kNamed = {
    {{u'&', "&amp;"}, {u'\'', "&apos;"}, {u'"', "&quot;"}, {u'<', "&lt;"}, {u'>', "&gt;"}}};
/// Entities by Unicode number. All are read; only the first is written, the others have a Windows-1252 number too.
constexpr std::array<NamedEntity, 6> kUnicode = {{{kYDiaeresis, "&#376;"},
                                                  {0x0152, "&#338;"},
                                                  {0x0153, "&#339;"},
                                                  {0x0160, "&#352;"},
                                                  {0x0161, "&#353;"},
                                                  {0x0192, "&#402;"}}};

/// The entity of a character, empty when it has none.
QString EntityEncode(char16_t character) {
    for (const NamedEntity &named : kNamed)
        if (named.character == character)
            return QString::fromLatin1(named.entity);
    if (character == kYDiaeresis)
        return QString::fromLatin1(kUnicode[0].entity);
    const int code = UnicodeToWindows1252(character);
    return HasNumericEntity(code) ? QStringLiteral("&#%1;").arg(code) : QString();
}

/// The code in "&#nnn;" without leading zeros, 0 for anything else.
int NumericCode(QStringView entity) {
    if (entity.size() < 4 || entity[1] != u'#' || entity[2] == u'0')
        return 0;
    int code = 0;
    for (const QChar c : entity.mid(2, entity.size() - 3)) {
        if (c < u'0' || c > u'9')
            return 0;
        code = code * 10 + (c.unicode() - u'0');
    }
    return code;
}

/// The character of an entity, empty when the table has none.
QString EntityDecode(QStringView entity) {
    for (const NamedEntity &named : kNamed)
        if (entity == QLatin1String(named.entity))
            return QChar(named.character);
    for (const NamedEntity &known : kUnicode)
        if (entity == QLatin1String(known.entity))
            return QChar(known.character);
    const int code = NumericCode(entity);
    return HasNumericEntity(code) ? QString(QChar(Windows1252ToUnicode(static_cast<unsigned char>(code)))) : QString();
}

QString Tag(const QString &start, const QString &name, int level, bool with_break) {
    return QString(qsizetype(std::max(0, level)) * 2, u' ') + start + name + u'>' +
           (with_break ? QStringLiteral("\r\n") : QString());
}

/// The longest run that is looked up has its semicolon five characters behind the ampersand.
constexpr qsizetype kReach = 6;

} // namespace

QString XmlOpenTag(const QString &name, int level, bool with_break) {
    return Tag(QStringLiteral("<"), name, level, with_break);
}

QString XmlCloseTag(const QString &name, int level, bool with_break) {
    return Tag(QStringLiteral("</"), name, level, with_break);
}

QString XmlTextTag(const QString &name, const QString &value, int level, bool encode, const QString &type,
                   bool with_break) {
    const QString allowed = XmlAllowed(value);
    if (allowed.isEmpty())
        return {};
    const QString attribute = type.isEmpty() ? QString() : QStringLiteral(" Type=\"") + type + u'"';
    return XmlOpenTag(name + attribute, level, false) + (encode ? EncodeEntities(allowed) : allowed) +
           XmlCloseTag(name, 0, with_break);
}

QString EncodeEntities(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const QString entity = EntityEncode(c.unicode());
        if (entity.isEmpty())
            result += c;
        else
            result += entity;
    }
    return result.replace(QStringLiteral("\r\n"), QStringLiteral("&#13;&#10;"));
}

QString DecodeEntities(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const qsizetype length = text[at] == u'&' ? text.mid(at, kReach).indexOf(u';') + 1 : 0;
        if (length > 0) {
            result += EntityDecode(text.mid(at, length));
            at += length - 1;
        } else {
            result += text[at];
        }
    }
    return result;
}

QString ExtractTag(QStringView text, QStringView tag, bool decode) {
    const qsizetype start = IndexOfIgnoringCase(text, u'<' + tag.toString());
    if (start < 0)
        return {};
    const qsizetype open = text.indexOf(u'>', start);
    if (open < 0)
        return {};
    const qsizetype close = IndexOfIgnoringCase(text, QStringLiteral("</") + tag.toString() + u'>', open);
    if (close < 0)
        return {};
    const QStringView content = text.mid(open + 1, close - open - 1);
    return decode ? DecodeEntities(content) : content.toString();
}

} // namespace ostrand
