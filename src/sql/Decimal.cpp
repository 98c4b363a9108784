#include "sql/Decimal.h"

#include <charconv>
#include <cmath>

namespace ostrand::sql {

Decimal Decimal::From(double number) {
    Decimal decimal;
    decimal.is_negative = number < 0;
    if (number == 0 || !std::isfinite(number)) {
        return decimal;
    }
    constexpr int kPlaces = 14;
    std::array<char, 40> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                       std::chars_format::scientific, kPlaces);
    const QByteArray text(buffer.data(), written.ptr - buffer.data());
    const qsizetype exponent = text.indexOf('e');
    decimal.digits = text.left(1) + text.mid(2, exponent - 2);
    decimal.point = text.mid(exponent + 1).toInt() + 1;
    decimal.Trim();
    return decimal;
}

void Decimal::Trim() {
    while (digits.endsWith('0')) {
        digits.chop(1);
    }
}

void Decimal::RoundTo(int places) {
    const int kept = point + places;
    if (kept >= digits.size()) {
        return;
    }
    if (kept < 0) {
        digits.clear();
        return;
    }
    const bool goes_up = digits[kept] >= '5';
    digits.truncate(kept);
    if (goes_up) {
        int i = kept - 1;
        while (i >= 0 && digits[i] == '9') {
            digits[i--] = '0';
        }
        if (i >= 0) {
            digits[i] = char(digits[i] + 1);
        } else {
            digits.prepend('1');
            ++point;
        }
    }
    Trim();
}

QByteArray Decimal::IntegerDigits() const {
    if (IsZero() || point <= 0) {
        return {};
    }
    return digits.left(point).leftJustified(point, '0');
}

QByteArray Decimal::FractionDigits(int places) const {
    QByteArray result;
    for (int i = 0; i < places; ++i) {
        const int place = point + i;
        result.append(place >= 0 && place < digits.size() ? digits[place] : '0');
    }
    return result;
}

} // namespace ostrand::sql
