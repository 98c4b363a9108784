// Patterns of dates.

#include "sql/Calendar.h"
#include "sql/Conversion.h"
#include "sql/Format.h"

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

constexpr QStringView kShortDate = u"m/d/yyyy";
constexpr QStringView kLongDate = u"dddd, mmmm d, yyyy";
constexpr QStringView kLongTime = u"h:nn:ss AM/PM";

struct NamedFormat {
    const char *name;
    QStringView pattern;
};

constexpr NamedFormat kNamedFormats[] = {
    {"general date", u"c"},          {"short date", kShortDate}, {"long date", kLongDate},
    {"medium date", u"dd-mmm-yy"},   {"short time", u"hh:nn"},   {"long time", kLongTime},
    {"medium time", u"hh:nn AM/PM"},
};

const NamedFormat *FindNamed(QStringView name) {
    for (const NamedFormat &format : kNamedFormats) {
        if (name.compare(QLatin1String(format.name), Qt::CaseInsensitive) == 0) {
            return &format;
        }
    }
    return nullptr;
}

/// The ways in which a pattern asks for the half of the day.
constexpr QStringView kHalfDays[] = {u"am/pm", u"a/p", u"ampm"};

qsizetype LengthOfHalfDay(QStringView pattern) {
    for (const QStringView mark : kHalfDays) {
        if (pattern.startsWith(mark, Qt::CaseInsensitive)) {
            return mark.size();
        }
    }
    return 0;
}

/// Calls `literal` with what stands for itself and `symbol` with runs of one letter and with half-day marks.
template <class Literal, class Symbol>
void Scan(QStringView pattern, Literal literal, Symbol symbol) {
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar unit = pattern[i].toLower();
        if (unit == u'\\') {
            literal(pattern.sliced(i + 1).left(1));
            i += 2;
        } else if (unit == u'"') {
            const qsizetype end = pattern.indexOf(u'"', i + 1);
            const qsizetype stop = end < 0 ? pattern.size() : end;
            literal(pattern.sliced(i + 1, stop - i - 1));
            i = stop + 1;
        } else if (const qsizetype length = LengthOfHalfDay(pattern.sliced(i)); length > 0) {
            symbol(pattern.sliced(i, length));
            i += length;
        } else if (QStringView(u"dmyhnswqct").contains(unit)) {
            qsizetype end = i;
            while (end < pattern.size() && pattern[end].toLower() == unit) {
                ++end;
            }
            symbol(pattern.sliced(i, end - i));
            i = end;
        } else {
            literal(pattern.sliced(i, 1));
            ++i;
        }
    }
}

QString Padded(int number, qsizetype width) {
    return QString::number(number).rightJustified(width, u'0');
}

class DateWriter {
public:
    DateWriter(double date, const WeekRule &rule) :
        date_(date), rule_(rule), parts_(SplitDate(date)), day_(DayOfDate(date)) {}

    QString Write(QStringView pattern) {
        Scan(
            pattern, [](QStringView) {},
            [&](QStringView symbol) { is_half_day_ = is_half_day_ || LengthOfHalfDay(symbol) > 0; });
        Scan(
            pattern, [&](QStringView text) { result_.append(text); }, [&](QStringView symbol) { WriteSymbol(symbol); });
        return result_;
    }

private:
    void WriteSymbol(QStringView symbol) {
        if (LengthOfHalfDay(symbol) > 0) {
            return WriteHalfDay(symbol);
        }
        const bool is_behind_hour = is_behind_hour_;
        is_behind_hour_ = false;
        const qsizetype count = symbol.size();
        switch (symbol[0].toLower().unicode()) {
        case u'd':
            return WriteDay(count);
        case u'm':
            return is_behind_hour && count <= 2 ? Append(Padded(parts_.minute, count)) : WriteMonth(count);
        case u'y':
            return WriteYear(count);
        case u'h':
            is_behind_hour_ = true;
            return Append(Padded(Hour(), std::min<qsizetype>(count, 2)));
        case u'n':
            return Append(Padded(parts_.minute, std::min<qsizetype>(count, 2)));
        case u's':
            return Append(Padded(parts_.second, std::min<qsizetype>(count, 2)));
        case u'w':
            return Append(QString::number(count == 1 ? WeekdayOf(day_, rule_.first_day)
                                                     : WeekOfYear(day_, rule_.first_day, FirstWeek(rule_.first_week))));
        case u'q':
            return Append(QString::number((parts_.month - 1) / 3 + 1));
        case u'c':
            return WriteGeneral();
        case u't':
            return count == 5 ? Append(DateWriter(date_, rule_).Write(kLongTime)) : Append(symbol.toString());
        default:
            return;
        }
    }

    void Append(const QString &text) { result_.append(text); }

    int Hour() const { return is_half_day_ ? (parts_.hour + 11) % 12 + 1 : parts_.hour; }

    void WriteDay(qsizetype count) {
        switch (count) {
        case 1:
        case 2:
            return Append(Padded(parts_.day, count));
        case 3:
        case 4:
            return Append(WeekdayName(WeekdayOf(day_), count == 3));
        case 5:
            return Append(DateWriter(date_, rule_).Write(kShortDate));
        default:
            return Append(DateWriter(date_, rule_).Write(kLongDate));
        }
    }

    void WriteMonth(qsizetype count) {
        Append(count <= 2 ? Padded(parts_.month, count) : MonthName(parts_.month, count == 3));
    }

    void WriteYear(qsizetype count) {
        switch (count) {
        case 1:
            return Append(QString::number(day_ - DayNumber(parts_.year, 1, 1) + 1));
        case 2:
            return Append(Padded(parts_.year % 100, 2));
        default:
            return Append(Padded(parts_.year, 4));
        }
    }

    /// The date without a time of midnight, the time without the date of day 0.
    void WriteGeneral() {
        const bool has_time = parts_.hour != 0 || parts_.minute != 0 || parts_.second != 0;
        const bool has_date = day_ != 0 || !has_time;
        if (has_date) {
            Append(DateWriter(date_, rule_).Write(kShortDate));
        }
        if (has_time) {
            Append(has_date ? u" "_s : QString());
            Append(DateWriter(date_, rule_).Write(kLongTime));
        }
    }

    void WriteHalfDay(QStringView symbol) {
        const bool is_afternoon = parts_.hour >= 12;
        const bool is_short = symbol.size() == 3;
        const QString text = is_short ? (is_afternoon ? u"P"_s : u"A"_s) : (is_afternoon ? u"PM"_s : u"AM"_s);
        Append(symbol[0].isLower() ? text.toLower() : text);
    }

    double date_;
    WeekRule rule_;
    DateParts parts_;
    qint64 day_;
    bool is_half_day_ = false;
    bool is_behind_hour_ = false;
    QString result_;
};

} // namespace

bool IsNamedDateFormat(QStringView name) {
    return FindNamed(name) != nullptr;
}

QString FormatDate(double date, QStringView pattern, const WeekRule &rule) {
    const NamedFormat *named = FindNamed(pattern);
    return DateWriter(date, rule).Write(named != nullptr ? named->pattern : pattern);
}

PatternKind KindOfPattern(QStringView pattern) {
    if (!NamedNumberPattern(pattern).isEmpty()) {
        return PatternKind::Number;
    }
    if (IsNamedDateFormat(pattern)) {
        return PatternKind::Date;
    }
    bool has_number = false;
    bool has_date = false;
    bool has_text = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar unit = pattern[i].toLower();
        if (unit == u'\\') {
            ++i;
        } else if (unit == u'"') {
            const qsizetype end = pattern.indexOf(u'"', i + 1);
            i = end < 0 ? pattern.size() : end;
        } else if (unit == u'0' || unit == u'#' || unit == u'%') {
            has_number = true;
        } else if (QStringView(u"@&<>!").contains(unit)) {
            has_text = true;
        } else if (QStringView(u"dmyhnswqc/:").contains(unit) || LengthOfHalfDay(pattern.sliced(i)) > 0 ||
                   pattern.sliced(i).startsWith(u"ttttt", Qt::CaseInsensitive)) {
            has_date = true;
        }
    }
    if (has_number) {
        return PatternKind::Number;
    }
    if (has_text) {
        return PatternKind::Text;
    }
    return has_date ? PatternKind::Date : PatternKind::Plain;
}

} // namespace ostrand::sql
