// A number as the decimal digits that it shows.
#pragma once

#include <QByteArray>

namespace ostrand::sql {

/// 0.digits times ten to the power of `point`, without the sign. Zero has no digits.
struct Decimal {
    bool is_negative = false;
    QByteArray digits;
    int point = 0;

    /// The fifteen leading digits of a finite number.
    static Decimal From(double number);

    bool IsZero() const { return digits.isEmpty(); }
    /// Rounds to so many places behind the decimal mark, halves away from zero.
    void RoundTo(int places);
    /// The digits in front of the decimal mark, none for a number below 1.
    QByteArray IntegerDigits() const;
    /// Exactly `places` digits behind it.
    QByteArray FractionDigits(int places) const;

private:
    void Trim();
};

} // namespace ostrand::sql
