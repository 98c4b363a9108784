// Dates as day counts since 1899-12-30 with the time as the fraction.
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace ostrand {

struct CalendarTime {
    int year = 1899, month = 12, day = 30;
    int hour = 0, minute = 0, second = 0;

    bool IsMidnight() const { return hour == 0 && minute == 0 && second == 0; }
    friend bool operator==(const CalendarTime &, const CalendarTime &) = default;
};

/// A day count taken apart, rounded to the second. A count below 0 carries its time as a fraction away from zero:
/// -1.25 is 1899-12-29 06:00. Nothing when the year is outside 100 to 9999.
std::optional<CalendarTime> SplitDayCount(double days);
/// Nothing for a day or a time that does not exist, or a year outside 100 to 9999.
std::optional<double> JoinDayCount(const CalendarTime &time);

/// "yyyy-mm-dd"; empty for a count without a date.
QString DayCountToDate(double days);
/// "yyyy-mm-dd hh:nn:ss"; empty for a count without a date.
QString DayCountToDateTime(double days);
/// Reads "yyyy-mm-dd", alone or with " hh:nn" or " hh:nn:ss" behind it, the blank or a "T" between; nothing for any
/// other text.
std::optional<double> DayCountFromText(QStringView text);

} // namespace ostrand
