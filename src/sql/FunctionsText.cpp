// The functions that cut, search and build texts.

#include "sql/Call.h"
#include "sql/CaseFold.h"
#include "sql/CodePage.h"
#include "sql/Collation.h"
#include "sql/Conversion.h"

#include <QByteArray>

#include <cmath>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

enum CompareMethod { kBinary = 0, kText = 1, kDatabase = 2 };

bool IsBinary(const Call &call, int index) {
    const qint64 method = call.Long(index, kDatabase);
    if (method < -1 || method > kDatabase) {
        RaiseInvalidCall();
    }
    return method == kBinary;
}

qsizetype CountArgument(const Call &call, int index) {
    const qint64 count = call.Long(index);
    if (count < 0) {
        RaiseInvalidCall();
    }
    return qsizetype(count);
}

void Left(Call &call) {
    const QString text = call.Text(0);
    call.Return(QStringView(text).left(std::min(CountArgument(call, 1), text.size())));
}

void Right(Call &call) {
    const QString text = call.Text(0);
    call.Return(QStringView(text).right(std::min(CountArgument(call, 1), text.size())));
}

void Mid(Call &call) {
    const QString text = call.Text(0);
    const qint64 start = call.Long(1);
    const qsizetype count = call.Count() > 2 ? CountArgument(call, 2) : text.size();
    if (start < 1) {
        RaiseInvalidCall();
    }
    const QStringView rest = QStringView(text).sliced(std::min<qsizetype>(start - 1, text.size()));
    call.Return(rest.left(std::min(count, rest.size())));
}

void Len(Call &call) {
    call.Return(qint64(call.Text(0).size()));
}

void InStr(Call &call) {
    const int first = call.Count() > 2 ? 1 : 0;
    const qint64 start = first == 1 ? call.Long(0) : 1;
    if (start < 1) {
        RaiseInvalidCall();
    }
    QString text = call.Text(first);
    QString wanted = call.Text(first + 1);
    if (!IsBinary(call, 3)) {
        text = ToLower(text);
        wanted = ToLower(wanted);
    }
    const bool is_beyond = start > text.size();
    call.Return(is_beyond ? qint64(0) : qint64(text.indexOf(wanted, qsizetype(start - 1)) + 1));
}

void InStrRev(Call &call) {
    QString text = call.Text(0);
    QString wanted = call.Text(1);
    const qint64 start = call.Long(2, -1);
    if (start == 0 || start < -1) {
        RaiseInvalidCall();
    }
    if (!IsBinary(call, 3)) {
        text = ToLower(text);
        wanted = ToLower(wanted);
    }
    const qint64 end = start == -1 ? text.size() : start;
    if (text.isEmpty() || end > text.size()) {
        return call.Return(qint64(0));
    }
    if (wanted.isEmpty()) {
        return call.Return(end);
    }
    const qsizetype last = qsizetype(end) - wanted.size();
    call.Return(last < 0 ? qint64(0) : qint64(text.lastIndexOf(wanted, last) + 1));
}

void UCase(Call &call) {
    call.Return(ToUpper(call.Text(0)));
}

void LCase(Call &call) {
    call.Return(ToLower(call.Text(0)));
}

QStringView WithoutLeading(QStringView text) {
    while (text.startsWith(u' ')) {
        text = text.sliced(1);
    }
    return text;
}

QStringView WithoutTrailing(QStringView text) {
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

void Trim(Call &call) {
    const QString text = call.Text(0);
    call.Return(WithoutLeading(WithoutTrailing(text)));
}

void LTrim(Call &call) {
    const QString text = call.Text(0);
    call.Return(WithoutLeading(text));
}

void RTrim(Call &call) {
    const QString text = call.Text(0);
    call.Return(WithoutTrailing(text));
}

void Chr(Call &call) {
    const qint64 code = call.Long(0);
    if (code < 0 || code > 255) {
        RaiseInvalidCall();
    }
    call.Return(QString(QChar(CodePageCharacter(int(code)))));
}

void ChrW(Call &call) {
    const qint64 code = call.Long(0);
    if (code < -32768 || code > 65535) {
        RaiseInvalidCall();
    }
    call.Return(QString(QChar(char16_t(code & 0xFFFF))));
}

QString NotEmpty(QString text) {
    if (text.isEmpty()) {
        RaiseInvalidCall();
    }
    return text;
}

void Asc(Call &call) {
    const QString text = NotEmpty(call.Text(0));
    call.Return(qint64(CodePageCode(text[0].unicode()).value_or('?')));
}

void AscW(Call &call) {
    const QString text = NotEmpty(call.Text(0));
    call.Return(qint64(qint16(text[0].unicode())));
}

qsizetype RepeatCount(const Call &call, int index) {
    const qsizetype count = CountArgument(call, index);
    if (count > kLongestText) {
        RaiseOverflow();
    }
    return count;
}

void Space(Call &call) {
    call.Return(QString(RepeatCount(call, 0), u' '));
}

void String(Call &call) {
    const qsizetype count = RepeatCount(call, 0);
    if (!call.IsText(1)) {
        const qint64 code = call.Long(1);
        return call.Return(QString(count, QChar(CodePageCharacter(int(code & 0xFF)))));
    }
    const QString text = NotEmpty(call.Text(1));
    const bool is_pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    call.Return(is_pair ? text.left(2).repeated(count / 2) : QString(count, text[0]));
}

void StrComp(Call &call) {
    const QString left = call.Text(0);
    const QString right = call.Text(1);
    const int order = IsBinary(call, 2) ? QStringView(left).compare(right) : Compare(left, right);
    call.Return(qint64(order < 0 ? -1 : order > 0 ? 1 : 0));
}

struct Replacement {
    QString text;
    QString wanted;
    QString by;
    qsizetype start; ///< from 0
    qint64 limit;    ///< -1: all
    bool is_binary;
};

QString ReplaceAll(const Replacement &task) {
    const QString &text = task.text;
    const QString searched = task.is_binary ? text : ToLower(text);
    const QString wanted = task.is_binary ? task.wanted : ToLower(task.wanted);
    QString result;
    qsizetype from = task.start;
    for (qint64 done = 0; task.limit < 0 || done < task.limit; ++done) {
        const qsizetype place = wanted.isEmpty() ? -1 : searched.indexOf(wanted, from);
        if (place < 0) {
            break;
        }
        result.append(QStringView(text).sliced(from, place - from));
        result.append(task.by);
        from = place + wanted.size();
        if (result.size() > kLongestText) {
            RaiseOverflow();
        }
    }
    result.append(QStringView(text).sliced(from));
    return result;
}

void Replace(Call &call) {
    const qint64 start = call.Long(3, 1);
    const qint64 limit = call.Long(4, -1);
    if (start < 1 || limit < -1) {
        RaiseInvalidCall();
    }
    const QString text = call.Text(0);
    if (start > text.size()) {
        return call.Return(QString());
    }
    call.Return(ReplaceAll({text, call.Text(1), call.Text(2), qsizetype(start - 1), limit, IsBinary(call, 5)}));
}

void StrReverse(Call &call) {
    QString text = call.Text(0);
    std::reverse(text.begin(), text.end());
    // A pair that was turned round is put right.
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i].isLowSurrogate() && text[i + 1].isHighSurrogate()) {
            const QChar low = text[i];
            text[i] = text[i + 1];
            text[i + 1] = low;
            ++i;
        }
    }
    call.Return(text);
}

QString ProperCase(const QString &text) {
    const QString capitals = ToUpper(text);
    QString result = ToLower(text);
    bool begins_word = true;
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (begins_word) {
            result[i] = capitals[i];
            if (result[i].isHighSurrogate() && i + 1 < result.size()) {
                result[i + 1] = capitals[i + 1];
            }
        }
        begins_word = result[i].isSpace() || result[i] == u'\0';
    }
    return result;
}

void StrConv(Call &call) {
    const QString text = call.Text(0);
    switch (call.Long(1)) {
    case 1:
        return call.Return(ToUpper(text));
    case 2:
        return call.Return(ToLower(text));
    case 3:
        return call.Return(ProperCase(text));
    default:
        RaiseInvalidCall();
    }
}

void Hex(Call &call) {
    call.Return(QString::number(quint32(call.Long(0)), 16).toUpper());
}

void Oct(Call &call) {
    call.Return(QString::number(quint32(call.Long(0)), 8));
}

/// A point whatever the locale, no zero in front of it, and a place for the sign.
void Str(Call &call) {
    QString text = NumberToText(call.Number(0));
    if (text.startsWith(u"0."_s)) {
        text.remove(0, 1);
    } else if (text.startsWith(u"-0."_s)) {
        text.remove(1, 1);
    }
    call.Return(text.startsWith(u'-') ? text : QString(u' ' + text));
}

void CStr(Call &call) {
    call.Return(call.Text(0));
}

QString WithoutBlanks(const QString &text) {
    QString result;
    for (const QChar unit : text) {
        if (unit != u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r') {
            result.append(unit);
        }
    }
    return result;
}

double ValueOfRadix(QStringView text) {
    const int base = text[1].toLower() == u'h' ? 16 : 8;
    qint64 value = 0;
    int count = 0;
    for (const QChar unit : text.sliced(2)) {
        const int digit = unit.digitValue() >= 0 ? unit.digitValue() : unit.toLower().unicode() - u'a' + 10;
        if (unit.unicode() > 0x7F || digit < 0 || digit >= base || value > 0xFFFFFFFFLL) {
            break;
        }
        value = value * base + digit;
        ++count;
    }
    // Up to sixteen bits the number is that of a short one with a sign, unless a "&" stands behind.
    const bool is_long = text.size() > count + 2 && text[count + 2] == u'&';
    if (value > 0x7FFF && value <= 0xFFFF && !is_long) {
        return double(qint16(quint16(value)));
    }
    return value <= 0xFFFFFFFFLL ? double(qint32(quint32(value))) : double(value);
}

qsizetype LengthOfDigits(QStringView text, qsizetype from) {
    qsizetype end = from;
    while (end < text.size() && text[end] >= u'0' && text[end] <= u'9') {
        ++end;
    }
    return end - from;
}

double ValueOfDecimal(QStringView text) {
    qsizetype end = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
    qsizetype digits = LengthOfDigits(text, end);
    end += digits;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = LengthOfDigits(text, end + 1);
        digits += fraction;
        end += 1 + fraction;
    }
    if (digits == 0) {
        return 0;
    }
    if (end < text.size() && QStringView(u"eEdD").contains(text[end])) {
        qsizetype exponent = end + 1;
        exponent += exponent < text.size() && (text[exponent] == u'-' || text[exponent] == u'+') ? 1 : 0;
        const qsizetype length = LengthOfDigits(text, exponent);
        end = length > 0 ? exponent + length : end;
    }
    const std::optional<double> number = TextToNumber(text.left(end), u'.');
    if (!number) {
        RaiseOverflow();
    }
    return *number;
}

void Val(Call &call) {
    const QString text = WithoutBlanks(call.IsText(0) ? call.Text(0) : NumberToText(call.Number(0)));
    const bool has_radix =
        text.size() > 1 && text[0] == u'&' && (text[1].toLower() == u'h' || text[1].toLower() == u'o');
    call.Return(has_radix ? ValueOfRadix(text) : ValueOfDecimal(text));
}

constexpr Function kTextFunctions[] = {
    {{"left", 2, 2, ResultRule::Text}, Left},       {{"right", 2, 2, ResultRule::Text}, Right},
    {{"mid", 2, 3, ResultRule::Text}, Mid},         {{"len", 1, 1, ResultRule::Integer}, Len},
    {{"instr", 2, 4, ResultRule::Integer}, InStr},  {{"instrrev", 2, 4, ResultRule::Integer}, InStrRev},
    {{"ucase", 1, 1, ResultRule::Text}, UCase},     {{"lcase", 1, 1, ResultRule::Text}, LCase},
    {{"trim", 1, 1, ResultRule::Text}, Trim},       {{"ltrim", 1, 1, ResultRule::Text}, LTrim},
    {{"rtrim", 1, 1, ResultRule::Text}, RTrim},     {{"chr", 1, 1, ResultRule::Text}, Chr},
    {{"chrw", 1, 1, ResultRule::Text}, ChrW},       {{"asc", 1, 1, ResultRule::Integer}, Asc},
    {{"ascw", 1, 1, ResultRule::Integer}, AscW},    {{"space", 1, 1, ResultRule::Text}, Space},
    {{"string", 2, 2, ResultRule::Text}, String},   {{"strcomp", 2, 3, ResultRule::Integer}, StrComp},
    {{"replace", 3, 6, ResultRule::Text}, Replace}, {{"strreverse", 1, 1, ResultRule::Text}, StrReverse},
    {{"strconv", 2, 3, ResultRule::Text}, StrConv}, {{"hex", 1, 1, ResultRule::Text}, Hex},
    {{"oct", 1, 1, ResultRule::Text}, Oct},         {{"str", 1, 1, ResultRule::Text}, Str},
    {{"cstr", 1, 1, ResultRule::Text}, CStr},       {{"val", 1, 1, ResultRule::Real}, Val},
};

} // namespace

std::span<const Function> TextFunctions() {
    return kTextFunctions;
}

} // namespace ostrand::sql
