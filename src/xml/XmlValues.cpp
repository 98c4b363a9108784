#include "xml/XmlValues.h"

#include "base/Dates.h"

#include <QStringList>

#include <cmath>

namespace ostrand {

namespace {

const QChar kEuro(0x20AC);
constexpr int kMaxDecimals = 5;
constexpr int kMinDecimals = 2;
constexpr int kDigits = 15; // what a number of that size holds in decimal

/// Adds one to the last digit.
void RoundUp(QByteArray &digits) {
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.prepend('1');
}

std::optional<double> AsNumber(const FieldValue &value) {
    if (const auto *number = std::get_if<double>(&value))
        return *number;
    bool ok = false;
    const double number = PlainText(value).toDouble(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

bool IsTrue(const FieldValue &value) {
    if (const auto number = AsNumber(value))
        return *number != 0;
    return PlainText(value).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

QString FormatDate(const FieldValue &value) {
    const auto *number = std::get_if<double>(&value);
    const auto days = number != nullptr ? std::optional(*number) : DayCountFromText(PlainText(value));
    const auto time = days ? SplitDayCount(*days) : std::nullopt;
    if (!time)
        return PlainText(value);
    if (time->IsMidnight())
        return DayCountToDate(*days);
    return DayCountToDateTime(*days).replace(u' ', u'T') + QStringLiteral(".000Z");
}

QString FormatText(const FieldValue &value) {
    return PlainText(value).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

bool IsEmptyValue(const FieldValue &value) {
    const auto *text = std::get_if<QString>(&value);
    return std::holds_alternative<std::monostate>(value) || (text != nullptr && text->isEmpty());
}

QString PlainText(const FieldValue &value) {
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    const auto *number = std::get_if<double>(&value);
    return number == nullptr ? QString() : QString::number(*number, 'g', kDigits);
}

QString FormatFloat(double number) {
    if (!std::isfinite(number))
        return QString::number(number);
    // Rounded in decimal, half away from zero, so that 2.675 gives what a person expects. Numbers beyond the digits
    // that a number holds have no decimals to round.
    if (std::abs(number) >= 1e15)
        return QString::number(number, 'f', kMinDecimals);
    const QByteArray scientific = QByteArray::number(std::abs(number), 'e', kDigits - 1); // d.dddde+xx
    const qsizetype exponent_at = scientific.indexOf('e');
    const int exponent = scientific.mid(exponent_at + 1).toInt();
    QByteArray digits = scientific.left(1) + scientific.mid(2, exponent_at - 2);
    const int kept = exponent + 1 + kMaxDecimals;
    if (kept < 0)
        digits = "0";
    else if (kept < digits.size()) {
        const bool up = digits[kept] >= '5';
        digits.truncate(kept);
        if (up)
            RoundUp(digits);
    } else {
        digits.append(kept - digits.size(), '0');
    }
    digits = digits.rightJustified(kMaxDecimals + 1, '0');
    const bool zero = digits.count('0') == digits.size();
    QByteArray text = digits.left(digits.size() - kMaxDecimals) + '.' + digits.right(kMaxDecimals);
    while (text.endsWith('0') && text.size() - text.indexOf('.') - 1 > kMinDecimals)
        text.chop(1);
    return QString::fromLatin1(number < 0 && !zero ? '-' + text : text);
}

QString XmlFormatValue(const FieldValue &value, FieldType type, bool show_false) {
    switch (type) {
    case FieldType::Boolean:
        if (IsTrue(value))
            return QStringLiteral("True");
        return show_false ? QStringLiteral("False") : QString();
    case FieldType::Integer:
    case FieldType::Long:
        return IsEmptyValue(value) ? QStringLiteral("0") : PlainText(value);
    case FieldType::Float: {
        const auto number = IsEmptyValue(value) ? std::nullopt : AsNumber(value);
        return number ? FormatFloat(*number) : PlainText(value);
    }
    case FieldType::Date:
        return FormatDate(value);
    case FieldType::Text: {
        const QString text = FormatText(value);
        return text == QStringLiteral("?") ? QString(kEuro) : text;
    }
    case FieldType::Memo:
        return FormatText(value);
    case FieldType::Other:
        break;
    }
    return PlainText(value);
}

QString XmlParseDate(const QString &text) {
    if (!text.contains(u'T'))
        return text;
    return QString(text).replace(u'T', u' ').left(19);
}

QString ParsePrice(const QString &text, QChar locale_mark) {
    QString number;
    QString symbol;
    bool has_mark = false;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const QChar c = text[i];
        if (c == u'.' || c == locale_mark) {
            if (!has_mark)
                number.prepend(locale_mark);
            has_mark = true;
        } else if (c >= u'0' && c <= u'9') {
            number.prepend(c);
        } else {
            symbol.prepend(c);
        }
    }
    if (symbol.startsWith(u'?'))
        symbol = kEuro;
    return number + u'|' + symbol;
}

} // namespace ostrand
