// Numbers that are the same on every machine for the same word.
#pragma once

#include <QPointF>
#include <QString>

#include <cstdint>

namespace ostrand::samples {

class Dice {
public:
    explicit Dice(const QString &word) {
        for (const char byte : word.toUtf8()) {
            state_ = (state_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;
        }
    }

    /// A number from 0 to `sides` - 1.
    int Roll(int sides) { return static_cast<int>(Next() >> 33U) % sides; }
    double Between(double low, double high) { return low + (high - low) * Roll(10000) / 9999.0; }

    /// Compilers draw two arguments of one call in an order of their own, so a point draws its parts itself.
    QPointF Point(double left, double right, double top, double bottom) {
        const double x = Between(left, right);
        return {x, Between(top, bottom)};
    }

private:
    std::uint64_t Next() {
        state_ += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31U);
    }

    std::uint64_t state_ = 0xCBF29CE484222325ULL;
};

} // namespace ostrand::samples
