#include "sql/CollationTable.h"

#include "sql/CaseFold.h"

#include <QChar>
#include <QString>

#include <string_view>
#include <vector>

namespace ostrand::sql {
namespace {

using namespace weights;

// What does not count at first; the values order them among themselves.
constexpr std::uint32_t kApostrophe = 1;
constexpr std::uint32_t kSoftHyphen = 2;
constexpr std::uint32_t kHyphen = 3;
constexpr std::uint32_t kMarks = 0x100;

// Secondary weights beyond those of the accents.
constexpr std::uint32_t kStroke = 20;
constexpr std::uint32_t kEth = 21;
constexpr std::uint32_t kHook = 22;
constexpr std::uint32_t kRaised = 23;
constexpr std::uint32_t kOtherAccents = 0x100;

// The remaining symbols of code page 1252.
constexpr std::u32string_view kSymbolOrder = U"\u00A0¡¢£¤¥¦§¨©«¬®¯°±´¶·¸»¼½¾¿×÷€‚„…†‡ˆ‰‹‘’“”•–—˜™›";
static_assert(kSymbols + kSymbolOrder.size() <= kDigits);
static_assert(kFirstPunctuation + sizeof(kPunctuation) <= kSymbols);

// The accents from light to heavy: acute, grave, dot, circumflex, diaeresis, caron, breve, macron, tilde, ring,
// ogonek, cedilla.
constexpr std::u32string_view kAccents = U"\u0301\u0300\u0307\u0302\u0308\u030C\u0306\u0304\u0303\u030A\u0328\u0327";

constexpr std::uint32_t Letter(char letter) {
    return kLetters + std::uint32_t(letter - 'a');
}

constexpr std::uint32_t Digit(int digit) {
    return kDigits + std::uint32_t(digit);
}

bool IsMark(char32_t character) {
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

std::uint32_t AccentWeight(std::u32string_view marks, char32_t character) {
    if (marks.size() == 1) {
        const size_t place = kAccents.find(marks[0]);
        if (place != std::u32string_view::npos) {
            return std::uint32_t(place) + 1;
        }
    }
    return kOtherAccents + character;
}

/// Base and marks of a composed letter; empty where it is none.
std::u32string Decompose(char32_t character) {
    std::u32string marks;
    char32_t base = character;
    while (QChar::decompositionTag(base) == QChar::Canonical) {
        const std::u32string parts = QChar::decomposition(base).toStdU32String();
        if (parts.size() < 2) {
            break;
        }
        for (size_t i = 1; i < parts.size(); ++i) {
            if (!IsMark(parts[i])) {
                return {};
            }
        }
        marks.insert(0, parts, 1);
        base = parts[0];
    }
    return marks.empty() ? std::u32string() : base + marks;
}

bool FindSpecial(char32_t folded, CharacterWeight &weight) {
    switch (folded) {
    case U'\'':
        weight = {0, 0, kApostrophe};
        return true;
    case 0x00AD:
        weight = {0, 0, kSoftHyphen};
        return true;
    case U'-':
        weight = {0, 0, kHyphen};
        return true;
    case U'æ':
        weight = {Letter('a'), Letter('e'), 0};
        return true;
    case U'œ':
        weight = {Letter('o'), Letter('e'), 0};
        return true;
    case U'ß':
        weight = {Letter('s'), Letter('s'), 0};
        return true;
    case U'þ':
        weight = {Letter('t'), Letter('h'), 0};
        return true;
    case U'ø':
        weight = {Letter('o'), 0, kStroke};
        return true;
    case U'ð':
        weight = {Letter('d'), 0, kEth};
        return true;
    case U'ƒ':
        weight = {Letter('f'), 0, kHook};
        return true;
    case U'ª':
        weight = {Letter('a'), 0, kRaised};
        return true;
    case U'º':
        weight = {Letter('o'), 0, kRaised};
        return true;
    case U'¹':
        weight = {Digit(1), 0, kRaised};
        return true;
    case U'²':
        weight = {Digit(2), 0, kRaised};
        return true;
    case U'³':
        weight = {Digit(3), 0, kRaised};
        return true;
    case 0x00B5:
        weight = {kMicro, 0, 0};
        return true;
    default:
        return false;
    }
}

CharacterWeight Compute(std::uint32_t character) {
    if (character >= kInvalidByte) {
        return {kOthers + character, 0, 0};
    }
    const char32_t folded = FoldCharacter(character);
    CharacterWeight weight;
    if (FindSpecial(folded, weight)) {
        return weight;
    }
    if (folded < 0x80) {
        return {kAscii[folded], 0, 0};
    }
    if (folded < 0xA0) {
        return {kControls + 0x21 + (folded - 0x80), 0, 0};
    }
    const size_t symbol = kSymbolOrder.find(folded);
    if (symbol != std::u32string_view::npos) {
        return {kSymbols + std::uint32_t(symbol), 0, 0};
    }
    const std::u32string parts = Decompose(folded);
    if (!parts.empty()) {
        weight = Compute(parts[0]);
        weight.secondary = AccentWeight(std::u32string_view(parts).substr(1), folded);
        return weight;
    }
    if (IsMark(folded)) {
        return {0, 0, kMarks + folded};
    }
    return {kOthers + folded, 0, 0};
}

// Latin, Greek and Cyrillic.
constexpr std::uint32_t kTableSize = 0x530;

std::vector<CharacterWeight> MakeTable() {
    std::vector<CharacterWeight> table(kTableSize);
    for (std::uint32_t i = 0; i < kTableSize; ++i) {
        table[i] = Compute(i);
    }
    return table;
}

} // namespace

CharacterWeight WeightOf(std::uint32_t character) {
    if (character < 0x80 && weights::kAscii[character] != 0) {
        return {weights::kAscii[character], 0, 0};
    }
    if (character >= kTableSize) {
        return Compute(character);
    }
    static const std::vector<CharacterWeight> kTable = MakeTable();
    return kTable[character];
}

} // namespace ostrand::sql
