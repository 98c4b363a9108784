// Between texts and the numbers, dates and truth values of the dialect.
#pragma once

#include "sql/Types.h"
#include "sql/Value.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace ostrand::sql {

/// 0 to 9, and no digit of another script.
constexpr bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// A number in a text, with blanks around it, a sign, the decimal mark of the locale, grouping marks, an exponent, or
/// &H hexadecimal. Nothing else may stand beside it.
std::optional<double> TextToNumber(QStringView text, QChar decimal_mark);
/// A date in a text: yyyy-mm-dd, m/d/yyyy, d.m.yyyy, names of months, each with an optional time, or a time alone; a
/// number reads as a day count.
std::optional<double> TextToDate(QStringView text, QChar decimal_mark);
/// True, Yes, On, -1 .. and their opposites; a number is true unless it is 0.
std::optional<bool> TextToBoolean(QStringView text, QChar decimal_mark);

/// The content of a #..# literal: month first.
std::optional<double> DateLiteral(QStringView text);

/// "yyyy-mm-dd hh:nn:ss"
QString DateToIso(double date);
/// "yyyy-mm-dd", with " hh:nn:ss" behind it where the time is not midnight. The text form in which a date reads.
QString DateToText(double date);
/// The shortest text that reads back as the same number, at most 15 digits, with the given decimal mark.
QString NumberToText(double number, QChar decimal_mark = u'.');

struct DateParts {
    int year, month, day, hour, minute, second;
};
/// Rounded to the second. Day counts below 0 carry their time as a fraction away from zero.
DateParts SplitDate(double date);
double JoinDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

/// A value as a column of that kind stores it: the rules of INSERT. What cannot be converted becomes NULL; a truth
/// value column gets 0 for NULL; a text is cut to `length` UTF-16 units when `length` is above 0.
Value ConvertForColumn(const Value &value, Kind from, Kind to, int length, const Environment &environment);

} // namespace ostrand::sql
