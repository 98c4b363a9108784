// Format and its sisters.

#include "sql/Call.h"
#include "sql/Conversion.h"
#include "sql/Format.h"

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

WeekRule WeekRuleArguments(const Call &call) {
    WeekRule rule;
    const qint64 first_day = call.Long(2, 1);
    const qint64 first_week = call.Long(3, 1);
    if (first_day < 0 || first_day > 7 || first_week < 0 || first_week > 3) {
        RaiseInvalidCall();
    }
    rule.first_day = first_day == 0 ? 1 : int(first_day);
    rule.first_week = first_week == 0 ? 1 : int(first_week);
    return rule;
}

QString FormatValue(const Call &call, const QString &pattern, PatternKind kind) {
    const WeekRule rule = WeekRuleArguments(call);
    if (!call.IsText(0)) {
        const double number = call.Number(0);
        return kind == PatternKind::Date ? FormatDate(call.Date(0), pattern, rule)
                                         : FormatNumber(number, pattern, call.DecimalMark());
    }
    const QString text = call.Text(0);
    if (kind == PatternKind::Plain) {
        return FormatText(text, pattern);
    }
    if (kind == PatternKind::Date) {
        const std::optional<double> date = TextToDate(text, call.DecimalMark());
        return date ? FormatDate(*date, pattern, rule) : text;
    }
    std::optional<double> number = TextToNumber(text, call.DecimalMark());
    if (!number) {
        number = TextToDate(text, call.DecimalMark());
    }
    return number ? FormatNumber(*number, pattern, call.DecimalMark()) : text;
}

/// The fourth section of a number pattern is for NULL, the second of a text pattern.
QString FormatNull(QStringView pattern, PatternKind kind) {
    if (kind == PatternKind::Text) {
        const qsizetype second = pattern.indexOf(u';');
        return second < 0 ? QString() : FormatText(QStringView(), pattern);
    }
    qsizetype place = -1;
    for (int section = 0; section < 3; ++section) {
        place = pattern.indexOf(u';', place + 1);
        if (place < 0) {
            return {};
        }
    }
    return FormatText(QStringView(), pattern.sliced(place + 1));
}

void Format(Call &call) {
    const QString pattern = call.Has(1) ? call.Text(1) : QString();
    if (pattern.size() > kLongestText / 16) {
        RaiseOverflow();
    }
    const PatternKind kind = KindOfPattern(pattern);
    if (call.IsNull(0)) {
        return call.Return(FormatNull(pattern, kind));
    }
    if (pattern.isEmpty()) {
        return call.Return(call.Text(0));
    }
    if (kind == PatternKind::Text) {
        return call.Return(FormatText(call.Text(0), pattern));
    }
    call.Return(FormatValue(call, pattern, kind));
}

void FormatDateTime(Call &call) {
    static constexpr QStringView kPatterns[] = {u"c", u"Long Date", u"Short Date", u"Long Time", u"Short Time"};
    const qint64 style = call.Long(1, 0);
    if (style < 0 || style >= qint64(std::size(kPatterns))) {
        RaiseInvalidCall();
    }
    call.Return(FormatDate(call.Date(0), kPatterns[style], WeekRule()));
}

/// -2 leaves a detail to the locale.
bool Detail(const Call &call, int index, bool fallback) {
    const qint64 choice = call.Long(index, -2);
    return choice == -2 ? fallback : choice != 0;
}

NumberStyle StyleArguments(const Call &call, bool has_brackets) {
    NumberStyle style;
    const qint64 places = call.Long(1, -1);
    if (places < -1 || places > 99) {
        RaiseInvalidCall();
    }
    style.places = places == -1 ? 2 : int(places);
    style.has_leading_zero = Detail(call, 2, true);
    style.has_brackets = Detail(call, 3, has_brackets);
    style.is_grouped = Detail(call, 4, true);
    return style;
}

void FormatNumberOf(Call &call) {
    call.Return(FormatStyled(call.Number(0), StyleArguments(call, false), call.DecimalMark()));
}

void FormatCurrency(Call &call) {
    NumberStyle style = StyleArguments(call, true);
    style.prefix = u"$"_s;
    call.Return(FormatStyled(call.Number(0), style, call.DecimalMark()));
}

void FormatPercent(Call &call) {
    NumberStyle style = StyleArguments(call, false);
    style.suffix = u"%"_s;
    call.Return(FormatStyled(call.Number(0) * 100, style, call.DecimalMark()));
}

constexpr Function kFormatFunctions[] = {
    {{"format", 1, 4, ResultRule::Text}, Format, OnNull::IsPassedOn},
    {{"formatdatetime", 1, 2, ResultRule::Text}, FormatDateTime},
    {{"formatnumber", 1, 5, ResultRule::Text}, FormatNumberOf},
    {{"formatcurrency", 1, 5, ResultRule::Text}, FormatCurrency},
    {{"formatpercent", 1, 5, ResultRule::Text}, FormatPercent},
};

} // namespace

std::span<const Function> FormatFunctions() {
    return kFormatFunctions;
}

} // namespace ostrand::sql
