#include "sql/CaseFold.h"

namespace ostrand::sql {
namespace {

template <class Mapping>
QString Map(QStringView text, Mapping mapping) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool is_pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t character = is_pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        const char32_t mapped = mapping(character);
        if (QChar::requiresSurrogates(mapped) != is_pair) {
            result.append(text.sliced(i, is_pair ? 2 : 1));
        } else if (is_pair) {
            result.append(QChar(QChar::highSurrogate(mapped))).append(QChar(QChar::lowSurrogate(mapped)));
        } else {
            result.append(QChar(char16_t(mapped)));
        }
        i += is_pair ? 1 : 0;
    }
    return result;
}

} // namespace

QString ToLower(QStringView text) {
    return Map(text, FoldCharacter);
}

QString ToUpper(QStringView text) {
    return Map(text, [](char32_t character) { return char32_t(QChar::toUpper(character)); });
}

} // namespace ostrand::sql
