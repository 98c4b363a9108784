#include "sql/Calendar.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ostrand::sql {
namespace {

constexpr std::array<const char *, 12> kMonths = {"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};
constexpr std::array<const char *, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

// Years counted from March, so that the leap day ends a year; day 0 is 0000-03-01.
constexpr qint64 kDaysPerEra = 146097;
constexpr qint64 kMarchOfYearZero = -693899;

template <size_t Size>
std::optional<int> Find(const std::array<const char *, Size> &names, QStringView name) {
    for (size_t i = 0; i < Size; ++i) {
        const QLatin1String full(names[i]);
        const bool is_same = name.compare(full, Qt::CaseInsensitive) == 0;
        if (is_same || (name.size() == 3 && full.startsWith(name, Qt::CaseInsensitive))) {
            return int(i) + 1;
        }
    }
    return std::nullopt;
}

QString Name(const char *full, bool abbreviated) {
    const QLatin1String name(full);
    return abbreviated ? QString(name.left(3)) : QString(name);
}

} // namespace

qint64 DayNumber(qint64 year, qint64 month, qint64 day) {
    const qint64 months = month - 3;
    const qint64 march_year = year + FloorDivide(months, 12);
    const qint64 march_month = months - FloorDivide(months, 12) * 12;
    const qint64 era = FloorDivide(march_year, 400);
    const qint64 year_of_era = march_year - era * 400;
    const qint64 day_of_year = (153 * march_month + 2) / 5 + day - 1;
    return era * kDaysPerEra + year_of_era * 365 + year_of_era / 4 - year_of_era / 100 + day_of_year + kMarchOfYearZero;
}

CalendarDay SplitDay(qint64 day_number) {
    const qint64 days = day_number - kMarchOfYearZero;
    const qint64 era = FloorDivide(days, kDaysPerEra);
    const qint64 day_of_era = days - era * kDaysPerEra;
    const qint64 year_of_era = (day_of_era - day_of_era / 1460 + day_of_era / 36524 - day_of_era / 146096) / 365;
    const qint64 day_of_year = day_of_era - (365 * year_of_era + year_of_era / 4 - year_of_era / 100);
    const qint64 march_month = (5 * day_of_year + 2) / 153;
    const qint64 month = march_month < 10 ? march_month + 3 : march_month - 9;
    const qint64 year = era * 400 + year_of_era + (month <= 2 ? 1 : 0);
    return {int(year), int(month), int(day_of_year - (153 * march_month + 2) / 5 + 1)};
}

int DaysInMonth(int year, int month) {
    return int(DayNumber(year, month + 1, 1) - DayNumber(year, month, 1));
}

bool IsDateInRange(double date) {
    return date > double(kFirstDay - 1) && date < double(kLastDay + 1);
}

qint64 DateToSeconds(double date) {
    if (std::isnan(date)) {
        return 0;
    }
    // The time of the first day, too, counts away from zero.
    const double limited = std::clamp(date, std::nextafter(double(kFirstDay - 1), 0.0), double(kLastDay + 1));
    const double day = std::trunc(limited);
    const qint64 seconds = qint64(day) * kSecondsPerDay + std::llround(std::fabs(limited - day) * kSecondsPerDay);
    return std::min(seconds, (kLastDay + 1) * kSecondsPerDay - 1);
}

double SecondsToDate(qint64 seconds) {
    const qint64 day = FloorDivide(seconds, kSecondsPerDay);
    const double time = double(seconds - day * kSecondsPerDay) / double(kSecondsPerDay);
    return day < 0 ? double(day) - time : double(day) + time;
}

qint64 DayOfDate(double date) {
    return FloorDivide(DateToSeconds(date), kSecondsPerDay);
}

std::optional<int> FindMonth(QStringView name) {
    return Find(kMonths, name);
}

std::optional<int> FindWeekday(QStringView name) {
    return Find(kWeekdays, name);
}

QString MonthName(int month, bool abbreviated) {
    return Name(kMonths.at(size_t(month - 1)), abbreviated);
}

QString WeekdayName(int weekday, bool abbreviated) {
    return Name(kWeekdays.at(size_t(weekday - 1)), abbreviated);
}

int WeekdayOf(qint64 day_number) {
    const qint64 days = day_number + 6; // 1899-12-30 was a Saturday
    return int(days - FloorDivide(days, 7) * 7) + 1;
}

int WeekdayOf(qint64 day_number, int first_day) {
    return (WeekdayOf(day_number) - first_day + 7) % 7 + 1;
}

namespace {

/// The day on which week 1 of a year begins.
qint64 StartOfFirstWeek(qint64 year, int first_day, FirstWeek first_week) {
    const qint64 january_first = DayNumber(year, 1, 1);
    const int weekday = WeekdayOf(january_first, first_day);
    const qint64 week_start = january_first - (weekday - 1);
    const int days_in_year = 8 - weekday;
    const int needed = first_week == FirstWeek::WithJanuaryFirst ? 1 : first_week == FirstWeek::FourDays ? 4 : 7;
    return days_in_year >= needed ? week_start : week_start + 7;
}

} // namespace

int WeekOfYear(qint64 day_number, int first_day, FirstWeek first_week) {
    const int year = SplitDay(day_number).year;
    qint64 start = StartOfFirstWeek(year, first_day, first_week);
    if (day_number < start) {
        start = StartOfFirstWeek(year - 1, first_day, first_week);
    } else if (first_week != FirstWeek::WithJanuaryFirst) {
        const qint64 next = StartOfFirstWeek(year + 1, first_day, first_week);
        if (day_number >= next) {
            start = next;
        }
    }
    return int((day_number - start) / 7) + 1;
}

} // namespace ostrand::sql
