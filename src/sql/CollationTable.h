// The weights of single characters in the sort order.
#pragma once

#include <array>
#include <cstdint>

namespace ostrand::sql {

/// A byte that belongs to no UTF-8 sequence is weighed as kInvalidByte plus its value.
inline constexpr std::uint32_t kInvalidByte = 0x110000;

/// The weights of one character. `primary` 0 means that the character does not count at first; `secondary` then tells
/// such characters apart. `second_primary` is above 0 where a character sorts as two letters (æ).
struct CharacterWeight {
    std::uint32_t primary = 0;
    std::uint32_t second_primary = 0;
    std::uint32_t secondary = 0;
};

CharacterWeight WeightOf(std::uint32_t character);

namespace weights {

// The characters that sort before the digits, in their order.
inline constexpr char kPunctuation[] = " !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>";
inline constexpr std::uint8_t kControls = 1; // 0x00-0x1F, 0x7F, then 0x80-0x9F
inline constexpr std::uint8_t kFirstPunctuation = 70;
inline constexpr std::uint8_t kSymbols = 110;
inline constexpr std::uint8_t kDigits = 180;
inline constexpr std::uint8_t kLetters = 190;
inline constexpr std::uint8_t kMicro = kLetters + 26;
inline constexpr std::uint32_t kOthers = 0x1000;

constexpr std::array<std::uint8_t, 128> MakeAscii() {
    std::array<std::uint8_t, 128> table{};
    for (unsigned i = 0; i < 0x20; ++i) {
        table[i] = std::uint8_t(kControls + i);
    }
    table[0x7F] = kControls + 0x20;
    for (unsigned i = 0; kPunctuation[i] != 0; ++i) {
        table[std::uint8_t(kPunctuation[i])] = std::uint8_t(kFirstPunctuation + i);
    }
    for (unsigned i = 0; i < 10; ++i) {
        table['0' + i] = std::uint8_t(kDigits + i);
    }
    for (unsigned i = 0; i < 26; ++i) {
        table['a' + i] = table['A' + i] = std::uint8_t(kLetters + i);
    }
    return table;
}

/// The primary weights of ASCII; 0 for apostrophe and hyphen.
inline constexpr std::array<std::uint8_t, 128> kAscii = MakeAscii();

} // namespace weights
} // namespace ostrand::sql
