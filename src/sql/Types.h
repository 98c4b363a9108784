// The column kinds of the dialect and the locale that texts are converted by.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace ostrand::sql {

/// The declared kind of a column or the static type of an expression. Null is the type of the literal NULL, Unknown
/// that of an expression whose kind shows only at run time.
enum class Kind : std::uint8_t { Text, Memo, Integer, Real, Date, Boolean, Null, Unknown };

inline bool IsText(Kind kind) {
    return kind == Kind::Text || kind == Kind::Memo;
}
inline bool IsNumber(Kind kind) {
    return kind == Kind::Integer || kind == Kind::Real;
}

/// What a statement needs of the world outside: the locale of its conversions, the clock of Now, Date and Time, and
/// the random numbers of Rnd.
struct Environment {
    /// The decimal mark that texts are read and written with.
    QChar decimal_mark = u'.';
    /// Local time as a day count since 1899-12-30.
    std::function<double()> now;
    /// A number from 0 to below 1.
    std::function<double()> random;
};

} // namespace ostrand::sql
