// Letter case by the simple mappings of Unicode, which keep the length of a text.
#pragma once

#include <QString>
#include <QStringView>

namespace ostrand::sql {

/// The small form of a letter; every other code point stays.
inline char32_t FoldCharacter(char32_t character) {
    if (character < 0x80) {
        return character >= U'A' && character <= U'Z' ? character + 0x20 : character;
    }
    return character <= 0x10FFFF ? char32_t(QChar::toLower(character)) : character;
}

/// Every letter in its small form. The result has as many UTF-16 units as the text.
QString ToLower(QStringView text);
/// Every letter in its capital form, "ß" stays. The result has as many UTF-16 units as the text.
QString ToUpper(QStringView text);

} // namespace ostrand::sql
