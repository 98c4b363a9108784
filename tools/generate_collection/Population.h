// The people of a generated collection.
#pragma once

#include "Random.h"

#include <QByteArray>

namespace ostrand::generator {

/// The parts of a name in the file's code page.
struct Person {
    QByteArray first;
    QByteArray middle;
    QByteArray last;
    int birth_year = 0;
    /// Another spelling under which the person is credited now and then; mostly empty.
    QByteArray other_name;
};

/// Hands out people credit by credit. About 70 of 100 people occur once in the whole collection, the others again and
/// again by a power law. Nobody is kept in memory: a person follows from its number.
class Population {
public:
    Population(std::uint64_t seed, int profiles, int credits_per_profile);

    Person Draw(Random &random);

private:
    Person Make(std::uint64_t number) const;

    std::uint64_t seed_;
    std::uint64_t recurring_;
    std::uint64_t next_single_;
};

} // namespace ostrand::generator
