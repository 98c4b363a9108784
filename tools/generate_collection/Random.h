// Random numbers that are the same on every machine for the same seed.
#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace ostrand::generator {

constexpr std::uint64_t Mix(std::uint64_t value) {
    value += 0x9E3779B97F4A7C15ULL;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31U);
}

/// Joins parts that are drawn one after the other. Operands of + would be drawn in an order of the compiler's own.
inline QByteArray Join(std::initializer_list<QByteArray> parts) {
    QByteArray text;
    for (const QByteArray &part : parts) {
        text += part;
    }
    return text;
}

class Random {
public:
    explicit Random(std::uint64_t seed) : state_(Mix(seed)) {}

    std::uint64_t Next() { return Mix(state_ += 0xD1342543DE82EF95ULL); }
    /// From 0 to `limit` - 1.
    std::uint64_t Below(std::uint64_t limit) { return Next() % limit; }
    int Between(int low, int high) { return low + static_cast<int>(Below(static_cast<std::uint64_t>(high - low + 1))); }
    bool Chance(int percent) { return Below(100) < static_cast<std::uint64_t>(percent); }
    /// From 0 inclusive to 1 exclusive.
    double Unit() { return static_cast<double>(Next() >> 11U) * 0x1.0p-53; }

    template <class Table>
    const auto &Pick(const Table &table) {
        return table[static_cast<std::size_t>(Below(table.size()))];
    }

private:
    std::uint64_t state_;
};

} // namespace ostrand::generator
