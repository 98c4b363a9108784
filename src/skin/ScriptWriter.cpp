#include "skin/ScriptWriter.h"

#include "base/Dates.h"
#include "skin/TextConversion.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Nothing for the date that stands for a missing one.
std::optional<CalendarTime> PresentDate(const sql::Value &days) {
    if (days.IsNull()) {
        return std::nullopt;
    }
    const std::optional<CalendarTime> time = SplitDayCount(days.Real());
    return time && *time != CalendarTime() ? time : std::nullopt;
}

/// The month is the calendar's, not reduced by one as a Date of the script wants it: skins count on that.
QString DateOf(const CalendarTime &time) {
    return u"%1,%2,%3"_s.arg(time.year).arg(time.month).arg(time.day);
}

QString NewDate(const QString &parts) {
    return u"new Date("_s + parts + u')';
}

} // namespace

QString ScriptString(const QString &text) {
    // A carriage return alone would end the line inside the quotes, and with it the script.
    return u'"' + EscapeScriptString(text).replace(u'\r', u"\\r"_s) + u'"';
}

QString ScriptFlag(bool value) {
    return value ? u"true"_s : u"false"_s;
}

QString ScriptDate(const sql::Value &days) {
    return NewDate(DateOf(PresentDate(days).value_or(CalendarTime())));
}

QString ScriptDateTime(const sql::Value &days) {
    const std::optional<CalendarTime> time = PresentDate(days);
    if (!time) {
        return NewDate(DateOf(CalendarTime()));
    }
    return NewDate(DateOf(*time) + u",%1,%2,%3"_s.arg(time->hour).arg(time->minute).arg(time->second));
}

QString ScriptLoanDate(const sql::Value &days) {
    return PresentDate(days) ? ScriptDate(days) : NewDate(u"1899,11,30"_s);
}

QString ScriptNew(const QString &type, const QStringList &values) {
    return u"new "_s + type + u'(' + values.join(u", "_s) + u')';
}

void ScriptWriter::Section(const QString &caption) {
    text_ += u"\r\n"_s;
    if (comments_) {
        Line(u"// "_s + caption);
    }
}

void ScriptWriter::Type(const QString &signature) {
    const qsizetype open = signature.indexOf(u'(');
    Line(u"function "_s + signature);
    Line(u"{"_s);
    for (const QString &member : signature.mid(open + 1).chopped(1).split(u", "_s)) {
        Line(u"\tthis."_s + member + u" = "_s + member + u';');
    }
    Line(u"}"_s);
}

void ScriptWriter::Value(const QString &name, const QString &value) {
    Line(u"var "_s + name + u" = "_s + value + u';');
}

void ScriptWriter::List(const QString &name, const QStringList &values) {
    Value(name, ScriptNew(u"Array"_s, {QString::number(values.size())}));
    Elements(name, values);
}

void ScriptWriter::Texts(const QString &name, const QStringList &texts) {
    QStringList values;
    for (const QString &text : texts) {
        values.append(ScriptString(text));
    }
    List(name, values);
}

void ScriptWriter::Line(const QString &line) {
    text_ += u'\t' + line + u"\r\n"_s;
}

void ScriptWriter::Elements(const QString &name, const QStringList &values) {
    for (qsizetype i = 0; i < values.size(); ++i) {
        Line(name + u'[' + QString::number(i) + u"] = "_s + values.at(i) + u';');
    }
}

} // namespace ostrand
