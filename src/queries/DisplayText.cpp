#include "queries/DisplayText.h"

namespace ostrand {

namespace {

constexpr char16_t kControlPictures = 0x2400; // the pictures of U+0000 to U+001F stand there in order
constexpr char16_t kDeletePicture = 0x2421;
constexpr char16_t kReplacement = 0xFFFD;

bool TurnsDirection(char16_t c) {
    return c == 0x200E || c == 0x200F || c == 0x061C || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

char16_t Harmless(char16_t c) {
    if (c < 0x20) {
        return char16_t(kControlPictures + c);
    }
    if (c == 0x7F) {
        return kDeletePicture;
    }
    const bool breaks_line = c == 0x2028 || c == 0x2029;
    return (c >= 0x80 && c <= 0x9F) || breaks_line || TurnsDirection(c) ? kReplacement : c;
}

struct Range {
    char32_t first, last;
};

// Blocks of East Asian wide and fullwidth characters and of emoji.
constexpr Range kWide[] = {{0x1100, 0x115F},   {0x231A, 0x231B},   {0x2E80, 0x303E},   {0x3041, 0x33FF},
                           {0x3400, 0x4DBF},   {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xA960, 0xA97C},
                           {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},
                           {0xFFE0, 0xFFE6},   {0x17000, 0x18CFF}, {0x1B000, 0x1B2FF}, {0x1F300, 0x1F64F},
                           {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

int CharacterWidth(char32_t c) {
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    const bool wide =
        std::any_of(std::begin(kWide), std::end(kWide), [c](const Range &r) { return c >= r.first && c <= r.last; });
    return wide ? 2 : 1;
}

} // namespace

QString HarmlessText(const QString &text) {
    QString result = text;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const char16_t c = result.at(i).unicode();
        const char16_t shown = Harmless(c);
        if (shown != c) {
            result[i] = QChar(shown);
        }
    }
    return result;
}

int DisplayWidth(QStringView text) {
    int width = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            width += CharacterWidth(QChar::surrogateToUcs4(c, text[++i]));
        } else {
            width += CharacterWidth(c.unicode());
        }
    }
    return width;
}

} // namespace ostrand
