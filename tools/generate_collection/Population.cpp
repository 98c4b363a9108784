#include "Population.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ostrand::generator {

namespace {

// Measured over generated collections: these shares leave about 70 % of the people with one credit.
constexpr double kSingleShare = 0.29;
constexpr double kRecurringPerCredit = 0.135;
constexpr double kExponent = 1.7;
// The most frequent people are drawn alike often; without this the first would be in every title.
constexpr double kFlatHead = 40.0;

constexpr std::array<const char *, 40> kSyllables{
    "bra", "del",  "fin", "gar", "hol", "ima",   "jor", "kel",    "lam", "mon",   "nis", "ola", "pen", "qui",
    "ros", "sten", "tor", "ulm", "ver", "wick",  "yar", "zan",    "bel", "cor",   "dun", "eri", "flo", "gul",
    "har", "ing",  "kas", "lor", "mer", "n\xF8", "ort", "\xE9li", "ran", "s\xFC", "tal", "vin"};
constexpr std::array<const char *, 12> kEndings{"son",  "berg", "ley", "ton", "ini", "sky",
                                                "mann", "ford", "eau", "sen", "ez",  "wood"};

void Capitalise(QByteArray &word) {
    const auto first = static_cast<unsigned char>(word.at(0));
    // The code page keeps capitals 32 places below the small letters, accented ones included.
    word[0] = static_cast<char>(first - 32);
}

QByteArray MakeWord(Random &random, int syllables, bool family_name) {
    QByteArray word;
    for (int i = 0; i < syllables; ++i) {
        word += random.Pick(kSyllables);
    }
    if (family_name) {
        word += random.Pick(kEndings);
    }
    Capitalise(word);
    return word;
}

} // namespace

Population::Population(std::uint64_t seed, int profiles, int credits_per_profile) :
    seed_(Mix(seed)),
    recurring_(std::max<std::uint64_t>(
        50, static_cast<std::uint64_t>(kRecurringPerCredit * profiles * static_cast<double>(credits_per_profile)))),
    next_single_(recurring_) {}

Person Population::Draw(Random &random) {
    if (random.Unit() < kSingleShare) {
        return Make(next_single_++);
    }
    const auto pool = static_cast<double>(recurring_);
    const double least = std::pow(kFlatHead / (pool + kFlatHead), 1.0 / kExponent);
    const double place = std::pow(least + (1.0 - least) * random.Unit(), kExponent) * (pool + kFlatHead) - kFlatHead;
    return Make(std::min(recurring_ - 1, static_cast<std::uint64_t>(std::max(0.0, place))));
}

Person Population::Make(std::uint64_t number) const {
    Random random(seed_ ^ Mix(number));
    Person person;
    person.first = MakeWord(random, random.Between(1, 2) + 1, false);
    const int syllables = random.Between(1, 2);
    person.last = MakeWord(random, random.Chance(30) ? syllables + 1 : syllables, true);
    const auto kind = random.Below(100);
    if (kind < 8) {
        person.middle = MakeWord(random, 1, false).left(1) + '.';
    } else if (kind < 12) {
        person.middle = MakeWord(random, 2, false);
    } else if (kind < 13) {
        person.last.clear();
    }
    if (random.Chance(4)) {
        person.birth_year = random.Between(1905, 1998);
    }
    if (random.Chance(3) && !person.last.isEmpty()) {
        person.other_name = person.first.left(1) + ". " + person.last;
    }
    return person;
}

} // namespace ostrand::generator
