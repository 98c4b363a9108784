// Code page 1252, by which Chr and Asc number the characters.
#pragma once

#include <optional>

namespace ostrand::sql {

/// The character of a code from 0 to 255. Codes that the page leaves free give the control character of that number.
char16_t CodePageCharacter(int code);
/// The code of a character, or nothing where the page lacks it.
std::optional<int> CodePageCode(char32_t character);

} // namespace ostrand::sql
