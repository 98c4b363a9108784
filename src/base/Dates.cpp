#include "base/Dates.h"

#include <QDate>
#include <QTime>

#include <cmath>

namespace ostrand {

namespace {

constexpr qint64 kSecondsPerDay = 86400;
constexpr double kLimit = 3'000'000; // beyond the year 9999 on either side

QDate DayZero() {
    return {1899, 12, 30};
}

QString Padded(int number, int width) {
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

QString DateText(const CalendarTime &time) {
    return Padded(time.year, 4) + u'-' + Padded(time.month, 2) + u'-' + Padded(time.day, 2);
}

/// A number of exactly `digits` digits at `at`, -1 for anything else.
int DigitsAt(QStringView text, qsizetype at, int digits) {
    if (at + digits > text.size())
        return -1;
    int number = 0;
    for (const QChar c : text.mid(at, digits)) {
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

/// Reads "hh:nn" or "hh:nn:ss".
bool ReadTime(QStringView text, CalendarTime &time) {
    if ((text.size() != 5 && text.size() != 8) || text[2] != u':' || (text.size() == 8 && text[5] != u':'))
        return false;
    time.hour = DigitsAt(text, 0, 2);
    time.minute = DigitsAt(text, 3, 2);
    time.second = text.size() == 8 ? DigitsAt(text, 6, 2) : 0;
    return true;
}

} // namespace

std::optional<CalendarTime> SplitDayCount(double days) {
    if (!std::isfinite(days) || std::abs(days) > kLimit)
        return std::nullopt;
    const double whole = std::trunc(days);
    qint64 day = qint64(whole);
    qint64 seconds = std::llround(std::abs(days - whole) * double(kSecondsPerDay));
    if (seconds == kSecondsPerDay) {
        seconds = 0;
        ++day;
    }
    const QDate date = DayZero().addDays(day);
    if (date.year() < 100 || date.year() > 9999)
        return std::nullopt;
    return CalendarTime{date.year(),         date.month(),           date.day(),
                        int(seconds / 3600), int(seconds / 60 % 60), int(seconds % 60)};
}

std::optional<double> JoinDayCount(const CalendarTime &time) {
    const QDate date(time.year, time.month, time.day);
    if (!date.isValid() || time.year < 100 || time.year > 9999 || !QTime::isValid(time.hour, time.minute, time.second))
        return std::nullopt;
    const double day = double(DayZero().daysTo(date));
    const double fraction = double(time.hour * 3600 + time.minute * 60 + time.second) / double(kSecondsPerDay);
    return day < 0 ? day - fraction : day + fraction;
}

QString DayCountToDate(double days) {
    const auto time = SplitDayCount(days);
    return time ? DateText(*time) : QString();
}

QString DayCountToDateTime(double days) {
    const auto time = SplitDayCount(days);
    if (!time)
        return {};
    return DateText(*time) + u' ' + Padded(time->hour, 2) + u':' + Padded(time->minute, 2) + u':' +
           Padded(time->second, 2);
}

std::optional<double> DayCountFromText(QStringView text) {
    if (text.size() < 10 || text[4] != u'-' || text[7] != u'-')
        return std::nullopt;
    CalendarTime time{DigitsAt(text, 0, 4), DigitsAt(text, 5, 2), DigitsAt(text, 8, 2)};
    if (text.size() > 10) {
        if ((text[10] != u' ' && text[10] != u'T') || !ReadTime(text.mid(11), time))
            return std::nullopt;
    }
    return JoinDayCount(time);
}

} // namespace ostrand
