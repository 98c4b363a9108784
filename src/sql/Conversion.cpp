#include "sql/Conversion.h"

#include "sql/Calendar.h"

#include <QByteArray>

#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

constexpr int kMaxDigits = 15;
constexpr int kMaxHexDigits = 8;

/// &H and &O: the 32 bits of a signed number.
std::optional<double> RadixToNumber(QStringView text) {
    const QChar mark = text[1].toLower();
    const int base = mark == u'h' ? 16 : mark == u'o' ? 8 : 0;
    QStringView digits = text.sliced(2);
    if (digits.endsWith(u'&')) {
        digits.chop(1);
    }
    if (base == 0 || digits.isEmpty() || digits.size() > (base == 16 ? kMaxHexDigits : 11)) {
        return std::nullopt;
    }
    bool is_valid = std::all_of(digits.begin(), digits.end(), [](QChar digit) { return digit.isLetterOrNumber(); });
    const qulonglong number = is_valid ? digits.toULongLong(&is_valid, base) : 0;
    if (!is_valid || number > 0xFFFFFFFFULL) {
        return std::nullopt;
    }
    return double(qint32(quint32(number)));
}

/// Copies a decimal number into the form of the C++ library; false where it is none.
bool ReadDecimal(QStringView text, QChar decimal_mark, QByteArray &number) {
    const QChar grouping = decimal_mark == u',' ? u'.' : u',';
    qsizetype i = 0;
    int digits = 0;
    const auto read_digits = [&](bool grouped) {
        for (; i < text.size() && (IsDigit(text[i]) || (grouped && digits > 0 && text[i] == grouping)); ++i) {
            if (text[i] != grouping) {
                number.append(char(text[i].unicode()));
                ++digits;
            }
        }
    };
    read_digits(true);
    if (i < text.size() && text[i] == decimal_mark) {
        number.append('.');
        ++i;
        read_digits(false);
    }
    if (digits == 0) {
        return false;
    }
    if (i < text.size() && (text[i].toLower() == u'e' || text[i].toLower() == u'd')) {
        number.append('e');
        ++i;
        if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) {
            number.append(char(text[i].unicode()));
            ++i;
        }
        digits = 0;
        read_digits(false);
        if (digits == 0) {
            return false;
        }
    }
    return i == text.size();
}

Value Null() {
    return {};
}

std::optional<double> ToNumber(const Value &value, const Environment &environment) {
    switch (value.GetType()) {
    case Value::Type::Null:
        return std::nullopt;
    case Value::Type::Text:
        return TextToNumber(value.Text(), environment.decimal_mark);
    default:
        return std::isnan(value.Real()) ? std::nullopt : std::optional(value.Real());
    }
}

Value ToInteger(const Value &value, const Environment &environment) {
    const std::optional<double> number = ToNumber(value, environment);
    if (!number) {
        return Null();
    }
    const double rounded = std::nearbyint(*number);
    if (rounded < -2147483648.0 || rounded > 2147483647.0) {
        return Null();
    }
    return qint64(rounded);
}

Value ToReal(const Value &value, const Environment &environment) {
    const std::optional<double> number = ToNumber(value, environment);
    return number ? Value(*number) : Null();
}

Value ToDate(const Value &value, const Environment &environment) {
    std::optional<double> date;
    if (value.GetType() == Value::Type::Text) {
        date = TextToDate(value.Text(), environment.decimal_mark);
    } else {
        date = ToNumber(value, environment);
    }
    return date && IsDateInRange(*date) ? Value(*date) : Null();
}

Value ToBoolean(const Value &value, const Environment &environment) {
    bool truth = false;
    if (value.GetType() == Value::Type::Text) {
        truth = TextToBoolean(value.Text(), environment.decimal_mark).value_or(false);
    } else {
        truth = ToNumber(value, environment).value_or(0) != 0;
    }
    return truth;
}

QString ToText(const Value &value, Kind from, const Environment &environment) {
    switch (value.GetType()) {
    case Value::Type::Text:
        return value.Text();
    case Value::Type::Integer:
        return from == Kind::Date ? DateToText(value.Real()) : QString::number(value.Integer());
    case Value::Type::Real:
        return from == Kind::Date ? DateToText(value.Real()) : NumberToText(value.Real(), environment.decimal_mark);
    case Value::Type::Null:
        break;
    }
    return {};
}

} // namespace

std::optional<double> TextToNumber(QStringView text, QChar decimal_mark) {
    text = text.trimmed();
    if (text.size() > 2 && text[0] == u'&') {
        return RadixToNumber(text);
    }
    QByteArray number;
    if (!text.isEmpty() && (text[0] == u'-' || text[0] == u'+')) {
        if (text[0] == u'-') {
            number.append('-');
        }
        text = text.sliced(1).trimmed();
    }
    if (!ReadDecimal(text, decimal_mark, number)) {
        return std::nullopt;
    }
    double result = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), result);
    if (error == std::errc::result_out_of_range) {
        // Too small reads as 0; too large is no number.
        const qsizetype exponent = number.indexOf("e-");
        return exponent >= 0 ? std::optional(0.0) : std::nullopt;
    }
    if (error != std::errc() || end != number.data() + number.size()) {
        return std::nullopt;
    }
    return result;
}

std::optional<bool> TextToBoolean(QStringView text, QChar decimal_mark) {
    const QStringView word = text.trimmed();
    const auto is = [word](QLatin1String other) { return word.compare(other, Qt::CaseInsensitive) == 0; };
    if (is(QLatin1String("true")) || is(QLatin1String("yes")) || is(QLatin1String("on"))) {
        return true;
    }
    if (is(QLatin1String("false")) || is(QLatin1String("no")) || is(QLatin1String("off"))) {
        return false;
    }
    const std::optional<double> number = TextToNumber(word, decimal_mark);
    if (!number) {
        return std::nullopt;
    }
    return *number != 0;
}

QString NumberToText(double number, QChar decimal_mark) {
    if (std::isnan(number)) {
        return u"NaN"_s;
    }
    if (std::isinf(number)) {
        return number < 0 ? u"-Inf"_s : u"Inf"_s;
    }
    if (number == 0) {
        return u"0"_s;
    }
    std::array<char, 40> buffer;
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, kMaxDigits);
    QString text = QString::fromLatin1(buffer.data(), written.ptr - buffer.data()).toUpper();
    if (decimal_mark != u'.') {
        text.replace(u'.', decimal_mark);
    }
    return text;
}

Value ConvertForColumn(const Value &value, Kind from, Kind to, int length, const Environment &environment) {
    if (value.IsNull()) {
        return to == Kind::Boolean ? Value(0) : value;
    }
    switch (to) {
    case Kind::Text:
    case Kind::Memo: {
        QString text = ToText(value, from, environment);
        if (length > 0 && text.size() > length) {
            text.truncate(text[length - 1].isHighSurrogate() ? length - 1 : length);
        }
        return text;
    }
    case Kind::Integer:
        return ToInteger(value, environment);
    case Kind::Real:
        return ToReal(value, environment);
    case Kind::Date:
        return ToDate(value, environment);
    case Kind::Boolean:
        return ToBoolean(value, environment);
    case Kind::Null:
    case Kind::Unknown:
        break;
    }
    return value;
}

} // namespace ostrand::sql
