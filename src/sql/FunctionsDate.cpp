// The functions of dates and times.

#include "sql/Calendar.h"
#include "sql/Call.h"
#include "sql/Conversion.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

Interval IntervalArgument(const Call &call, int index) {
    static constexpr std::pair<const char *, Interval> kIntervals[] = {
        {"yyyy", Interval::Year}, {"q", Interval::Quarter}, {"m", Interval::Month}, {"y", Interval::DayOfYear},
        {"d", Interval::Day},     {"w", Interval::Weekday}, {"ww", Interval::Week}, {"h", Interval::Hour},
        {"n", Interval::Minute},  {"s", Interval::Second},
    };
    const QString name = call.Text(index);
    for (const auto &[text, interval] : kIntervals) {
        if (name.compare(QLatin1String(text), Qt::CaseInsensitive) == 0) {
            return interval;
        }
    }
    RaiseInvalidCall();
}

int FirstDayArgument(const Call &call, int index, int fallback = 1) {
    const qint64 day = call.Long(index, fallback);
    if (day < 0 || day > 7) {
        RaiseInvalidCall();
    }
    return day == 0 ? 1 : int(day);
}

FirstWeek FirstWeekArgument(const Call &call, int index) {
    const qint64 week = call.Long(index, 1);
    if (week < 0 || week > 3) {
        RaiseInvalidCall();
    }
    return week == 0 ? FirstWeek::WithJanuaryFirst : FirstWeek(week);
}

double InRange(double date) {
    if (!IsDateInRange(date)) {
        RaiseInvalidCall();
    }
    return date;
}

/// A whole number within the years that a date can reach, however large it was.
qint64 Limited(double number) {
    constexpr double kLimit = 4e11; // seconds of more than ten thousand years
    if (std::isnan(number)) {
        RaiseInvalidCall();
    }
    return qint64(std::clamp(std::nearbyint(number), -kLimit, kLimit));
}

double AddMonths(double date, qint64 months) {
    const CalendarDay from = SplitDay(DayOfDate(date));
    const qint64 month = qint64(from.year) * 12 + from.month - 1 + months;
    const qint64 year = month >= 0 ? month / 12 : -1;
    if (year < 100 || year > 9999) {
        RaiseInvalidCall();
    }
    const int month_of_year = int(month % 12) + 1;
    const int day = std::min(from.day, DaysInMonth(int(year), month_of_year));
    const qint64 time = DateToSeconds(date) - DayOfDate(date) * kSecondsPerDay;
    return SecondsToDate(DayNumber(year, month_of_year, day) * kSecondsPerDay + time);
}

double AddSeconds(double date, qint64 seconds) {
    const double result = SecondsToDate(DateToSeconds(date) + seconds);
    return InRange(result);
}

double AddDays(double date, qint64 days) {
    // Above 0 the time is kept to the last bit.
    return date >= 0 && date + double(days) >= 0 ? InRange(date + double(days))
                                                 : AddSeconds(date, days * kSecondsPerDay);
}

void DateAdd(Call &call) {
    const qint64 count = Limited(call.Number(1));
    const double date = call.Date(2);
    switch (IntervalArgument(call, 0)) {
    case Interval::Year:
        return call.Return(AddMonths(date, count * 12));
    case Interval::Quarter:
        return call.Return(AddMonths(date, count * 3));
    case Interval::Month:
        return call.Return(AddMonths(date, count));
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday:
        return call.Return(AddDays(date, count));
    case Interval::Week:
        return call.Return(AddDays(date, count * 7));
    case Interval::Hour:
        return call.Return(AddSeconds(date, count * 3600));
    case Interval::Minute:
        return call.Return(AddSeconds(date, count * 60));
    case Interval::Second:
        return call.Return(AddSeconds(date, count));
    }
}

/// The number of the week in which a day lies, counted from some fixed week.
qint64 WeekNumber(qint64 day, int first_day) {
    return FloorDivide(day - (WeekdayOf(day, first_day) - 1), 7);
}

qint64 UnitsBetween(double from, double to, qint64 seconds) {
    return FloorDivide(DateToSeconds(to), seconds) - FloorDivide(DateToSeconds(from), seconds);
}

void DateDiff(Call &call) {
    const Interval interval = IntervalArgument(call, 0);
    const double from = call.Date(1);
    const double to = call.Date(2);
    const int first_day = FirstDayArgument(call, 3);
    FirstWeekArgument(call, 4);
    const qint64 from_day = DayOfDate(from);
    const qint64 to_day = DayOfDate(to);
    const CalendarDay first = SplitDay(from_day);
    const CalendarDay last = SplitDay(to_day);
    switch (interval) {
    case Interval::Year:
        return call.Return(qint64(last.year - first.year));
    case Interval::Quarter:
        return call.Return(qint64((last.year - first.year) * 4 + (last.month - 1) / 3 - (first.month - 1) / 3));
    case Interval::Month:
        return call.Return(qint64((last.year - first.year) * 12 + last.month - first.month));
    case Interval::DayOfYear:
    case Interval::Day:
        return call.Return(to_day - from_day);
    case Interval::Weekday:
        return call.Return((to_day - from_day) / 7);
    case Interval::Week:
        return call.Return(WeekNumber(to_day, first_day) - WeekNumber(from_day, first_day));
    case Interval::Hour:
        return call.Return(UnitsBetween(from, to, 3600));
    case Interval::Minute:
        return call.Return(UnitsBetween(from, to, 60));
    case Interval::Second:
        return call.Return(UnitsBetween(from, to, 1));
    }
}

void DatePart(Call &call) {
    const Interval interval = IntervalArgument(call, 0);
    const double date = call.Date(1);
    const int first_day = FirstDayArgument(call, 2);
    const FirstWeek first_week = FirstWeekArgument(call, 3);
    const DateParts parts = SplitDate(date);
    const qint64 day = DayOfDate(date);
    switch (interval) {
    case Interval::Year:
        return call.Return(qint64(parts.year));
    case Interval::Quarter:
        return call.Return((qint64(parts.month) - 1) / 3 + 1);
    case Interval::Month:
        return call.Return(qint64(parts.month));
    case Interval::DayOfYear:
        return call.Return(day - DayNumber(parts.year, 1, 1) + 1);
    case Interval::Day:
        return call.Return(qint64(parts.day));
    case Interval::Weekday:
        return call.Return(qint64(WeekdayOf(day, first_day)));
    case Interval::Week:
        return call.Return(qint64(WeekOfYear(day, first_day, first_week)));
    case Interval::Hour:
        return call.Return(qint64(parts.hour));
    case Interval::Minute:
        return call.Return(qint64(parts.minute));
    case Interval::Second:
        return call.Return(qint64(parts.second));
    }
}

template <int DateParts::*Part>
void PartOfDate(Call &call) {
    call.Return(qint64(SplitDate(call.Date(0)).*Part));
}

void Weekday(Call &call) {
    call.Return(qint64(WeekdayOf(DayOfDate(call.Date(0)), FirstDayArgument(call, 1))));
}

void WeekdayNameOf(Call &call) {
    const qint64 day = call.Long(0);
    if (day < 1 || day > 7) {
        RaiseInvalidCall();
    }
    const bool is_abbreviated = call.Has(1) && call.Boolean(1);
    const int first_day = FirstDayArgument(call, 2);
    call.Return(WeekdayName((int(day) - 1 + first_day - 1) % 7 + 1, is_abbreviated));
}

void MonthNameOf(Call &call) {
    const qint64 month = call.Long(0);
    if (month < 1 || month > 12) {
        RaiseInvalidCall();
    }
    call.Return(MonthName(int(month), call.Has(1) && call.Boolean(1)));
}

/// A whole number of 16 bits, as the arguments of the serial functions are.
qint64 Short(const Call &call, int index) {
    const qint64 number = call.Long(index);
    if (number < -32768 || number > 32767) {
        RaiseOverflow();
    }
    return number;
}

void DateSerial(Call &call) {
    qint64 year = Short(call, 0);
    if (year >= 0 && year < 100) {
        year += year < 30 ? 2000 : 1900;
    }
    call.Return(InRange(double(DayNumber(year, Short(call, 1), Short(call, 2)))));
}

void TimeSerial(Call &call) {
    call.Return(SecondsToDate((Short(call, 0) * 60 + Short(call, 1)) * 60 + Short(call, 2)));
}

void DateValue(Call &call) {
    call.Return(double(DayOfDate(call.Date(0))));
}

void TimeValue(Call &call) {
    const qint64 seconds = DateToSeconds(call.Date(0));
    call.Return(SecondsToDate(seconds - FloorDivide(seconds, kSecondsPerDay) * kSecondsPerDay));
}

void CDate(Call &call) {
    call.Return(call.Date(0));
}

/// A text that reads as a date without being a plain number, or a day count with its fraction part.
void IsDate(Call &call) {
    if (call.IsNull(0)) {
        return call.ReturnTruth(false);
    }
    if (call.IsText(0)) {
        const QString text = call.Text(0);
        const bool is_number = TextToNumber(text, call.DecimalMark()).has_value();
        return call.ReturnTruth(!is_number && TextToDate(text, call.DecimalMark()));
    }
    call.ReturnTruth(!call.IsInteger(0) && IsDateInRange(call.Number(0)));
}

/// The present second, begun.
qint64 PresentSecond(const Call &call) {
    const double now = call.GetEnvironment().now();
    constexpr double kRoundingError = 1e-4;
    return qint64(std::floor(InRange(now) * double(kSecondsPerDay) + kRoundingError));
}

void Now(Call &call) {
    call.Return(SecondsToDate(PresentSecond(call)));
}

void Today(Call &call) {
    call.Return(double(FloorDivide(PresentSecond(call), kSecondsPerDay)));
}

void TimeOfDay(Call &call) {
    call.Return(SecondsToDate(PresentSecond(call) % kSecondsPerDay));
}

void Timer(Call &call) {
    const double now = InRange(call.GetEnvironment().now());
    call.Return((now - std::floor(now)) * double(kSecondsPerDay));
}

constexpr Function kDateFunctions[] = {
    {{"now", 0, 0, ResultRule::Date, false, false}, Now},
    {{"date", 0, 0, ResultRule::Date, false, false}, Today},
    {{"time", 0, 0, ResultRule::Date, false, false}, TimeOfDay},
    {{"timer", 0, 0, ResultRule::Real, false, false}, Timer},
    {{"year", 1, 1, ResultRule::Integer}, PartOfDate<&DateParts::year>},
    {{"month", 1, 1, ResultRule::Integer}, PartOfDate<&DateParts::month>},
    {{"day", 1, 1, ResultRule::Integer}, PartOfDate<&DateParts::day>},
    {{"hour", 1, 1, ResultRule::Integer}, PartOfDate<&DateParts::hour>},
    {{"minute", 1, 1, ResultRule::Integer}, PartOfDate<&DateParts::minute>},
    {{"second", 1, 1, ResultRule::Integer}, PartOfDate<&DateParts::second>},
    {{"weekday", 1, 2, ResultRule::Integer}, Weekday},
    {{"weekdayname", 1, 3, ResultRule::Text}, WeekdayNameOf},
    {{"monthname", 1, 2, ResultRule::Text}, MonthNameOf},
    {{"dateadd", 3, 3, ResultRule::Date}, DateAdd},
    {{"datediff", 3, 5, ResultRule::Integer}, DateDiff},
    {{"datepart", 2, 4, ResultRule::Integer}, DatePart},
    {{"dateserial", 3, 3, ResultRule::Date}, DateSerial},
    {{"timeserial", 3, 3, ResultRule::Date}, TimeSerial},
    {{"datevalue", 1, 1, ResultRule::Date}, DateValue},
    {{"timevalue", 1, 1, ResultRule::Date}, TimeValue},
    {{"cdate", 1, 1, ResultRule::Date}, CDate},
    {{"cvdate", 1, 1, ResultRule::Date}, CDate},
    {{"isdate", 1, 1, ResultRule::Boolean}, IsDate, OnNull::IsPassedOn},
};

} // namespace

std::span<const Function> DateFunctions() {
    return kDateFunctions;
}

} // namespace ostrand::sql
