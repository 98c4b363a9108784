// Values as texts by a pattern, as Format and its sisters write them.
#pragma once

#include <QString>
#include <QStringView>

namespace ostrand::sql {

/// Which kind of value a pattern is for; Plain where it holds nothing but characters that stand for themselves.
enum class PatternKind { Plain, Number, Date, Text };
PatternKind KindOfPattern(QStringView pattern);

/// How weeks are counted by "w" and "ww".
struct WeekRule {
    int first_day = 1;  ///< 1 for Sunday to 7
    int first_week = 1; ///< as FirstWeek in Calendar.h
};

/// Writes a number by a pattern of up to three sections (positive, negative, zero) or by a named format.
/// Halves are rounded away from zero, by the fifteen digits that a number shows.
QString FormatNumber(double number, QStringView pattern, QChar decimal_mark);
/// Writes a date by a pattern or a named format, with English names.
QString FormatDate(double date, QStringView pattern, const WeekRule &rule);
/// Writes a text by @ & < > !; a second section is for the empty text.
QString FormatText(QStringView text, QStringView pattern);

/// The pattern behind a named number or date format; empty for other names.
QString NamedNumberPattern(QStringView name);
bool IsNamedDateFormat(QStringView name);

/// The details of FormatNumber, FormatCurrency and FormatPercent.
struct NumberStyle {
    int places = 2;
    bool has_leading_zero = true;
    bool has_brackets = false; ///< round a negative number
    bool is_grouped = true;
    QString prefix; ///< in front of the digits
    QString suffix;
};
QString FormatStyled(double number, const NumberStyle &style, QChar decimal_mark);

} // namespace ostrand::sql
