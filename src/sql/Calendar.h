// Day counts since 1899-12-30 and the calendar, extended backwards without a change of rules.
#pragma once

#include <QString>
#include <QStringView>
#include <QtGlobal>

#include <optional>

namespace ostrand::sql {

/// 0100-01-01 and 9999-12-31, the first and last day that a date can have.
inline constexpr qint64 kFirstDay = -657434;
inline constexpr qint64 kLastDay = 2958465;
inline constexpr qint64 kSecondsPerDay = 86400;

struct CalendarDay {
    int year, month, day;
};

/// The day count of a calendar day. Months and days beyond their limits run on into the neighbours.
qint64 DayNumber(qint64 year, qint64 month, qint64 day);
CalendarDay SplitDay(qint64 day_number);
int DaysInMonth(int year, int month);

/// True where the number is a date from the first to the last day; not for NaN.
bool IsDateInRange(double date);
/// Seconds since 1899-12-30 in the order of time, rounded. Numbers beyond the range of dates are brought to its ends,
/// NaN reads as 0.
qint64 DateToSeconds(double date);
/// The date of a number of seconds; in days before 1899-12-30 the time counts away from zero.
double SecondsToDate(qint64 seconds);
/// The whole days of a date, cut to the count of its day.
qint64 DayOfDate(double date);

/// The number of an English month or weekday (Sunday is 1), from its full name or its first three letters.
std::optional<int> FindMonth(QStringView name);
std::optional<int> FindWeekday(QStringView name);
/// English names; month from 1 to 12, weekday from 1 (Sunday) to 7.
QString MonthName(int month, bool abbreviated);
QString WeekdayName(int weekday, bool abbreviated);

/// 1 for Sunday to 7 for Saturday.
int WeekdayOf(qint64 day_number);
/// Counted from 1 on `first_day`, which is 1 for Sunday to 7.
int WeekdayOf(qint64 day_number, int first_day);

/// Which week is the first of a year.
enum class FirstWeek { WithJanuaryFirst = 1, FourDays = 2, FullWeek = 3 };
int WeekOfYear(qint64 day_number, int first_day, FirstWeek first_week);

/// The quotient rounded down, for a positive divisor.
constexpr qint64 FloorDivide(qint64 number, qint64 divisor) {
    const qint64 quotient = number / divisor;
    return number % divisor < 0 ? quotient - 1 : quotient;
}

} // namespace ostrand::sql
