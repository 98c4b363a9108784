#include "sql/Call.h"

#include "sql/Calendar.h"
#include "sql/Conversion.h"

#include <sqlite3.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace ostrand::sql {

void RaiseTypeMismatch() {
    throw SqlError(ErrorCode::CriteriaTypeMismatch, u"Data type mismatch in expression."_s);
}

void RaiseInvalidCall() {
    throw SqlError(ErrorCode::InvalidProcedureCall, u"Invalid procedure call or argument."_s);
}

void RaiseOverflow() {
    throw SqlError(ErrorCode::Overflow, u"Overflow."_s);
}

void RaiseDivisionByZero() {
    throw SqlError(ErrorCode::DivisionByZero, u"Division by zero."_s);
}

qint64 RoundToLong(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) {
        RaiseOverflow();
    }
    return qint64(rounded);
}

double Finite(double number) {
    if (!std::isfinite(number)) {
        RaiseOverflow();
    }
    return number;
}

bool Call::IsNull(int index) const {
    return sqlite3_value_type(values_[index]) == SQLITE_NULL;
}

bool Call::IsText(int index) const {
    const int type = sqlite3_value_type(values_[index]);
    return type == SQLITE_TEXT || type == SQLITE_BLOB;
}

bool Call::IsInteger(int index) const {
    return sqlite3_value_type(values_[index]) == SQLITE_INTEGER;
}

std::string_view Call::Utf8(int index) const {
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(values_[index]));
    return text == nullptr ? std::string_view() : std::string_view(text, size_t(sqlite3_value_bytes(values_[index])));
}

QString Call::Text(int index) const {
    if (sqlite3_value_type(values_[index]) == SQLITE_FLOAT) {
        return NumberToText(sqlite3_value_double(values_[index]), DecimalMark());
    }
    const std::string_view text = Utf8(index);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

double Call::Number(int index) const {
    if (!IsText(index)) {
        return sqlite3_value_double(values_[index]);
    }
    const std::optional<double> number = TextToNumber(Text(index), DecimalMark());
    if (!number) {
        RaiseTypeMismatch();
    }
    return *number;
}

qint64 Call::Long(int index) const {
    return RoundToLong(Number(index));
}

double Call::Date(int index) const {
    if (IsText(index)) {
        const std::optional<double> date = TextToDate(Text(index), DecimalMark());
        if (!date) {
            RaiseTypeMismatch();
        }
        return *date;
    }
    const double date = sqlite3_value_double(values_[index]);
    if (!IsDateInRange(date)) {
        RaiseOverflow();
    }
    return date;
}

bool Call::Boolean(int index) const {
    if (!IsText(index)) {
        return sqlite3_value_double(values_[index]) != 0;
    }
    const std::optional<bool> truth = TextToBoolean(Text(index), DecimalMark());
    if (!truth) {
        RaiseTypeMismatch();
    }
    return *truth;
}

Value Call::Get(int index) const {
    switch (sqlite3_value_type(values_[index])) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qint64(sqlite3_value_int64(values_[index]));
    case SQLITE_FLOAT:
        return sqlite3_value_double(values_[index]);
    default:
        return Text(index);
    }
}

void Call::ReturnNull() {
    sqlite3_result_null(context_);
}

void Call::Return(QStringView text) {
    QString whole;
    if (!text.isValidUtf16()) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool is_pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
            if (is_pair) {
                whole.append(text.sliced(i++, 2));
            } else if (!text[i].isSurrogate()) {
                whole.append(text[i]);
            }
        }
        text = whole;
    }
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text64(context_, utf8.constData(), sqlite3_uint64(utf8.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void Call::Return(double number) {
    sqlite3_result_double(context_, number);
}

void Call::Return(qint64 number) {
    sqlite3_result_int64(context_, number);
}

void Call::ReturnValue(const Value &value) {
    switch (value.GetType()) {
    case Value::Type::Null:
        return ReturnNull();
    case Value::Type::Integer:
        return Return(value.Integer());
    case Value::Type::Real:
        return Return(value.Real());
    case Value::Type::Text:
        return Return(QStringView(value.Text()));
    }
}

void Call::ReturnArgument(int index) {
    sqlite3_result_value(context_, values_[index]);
}

} // namespace ostrand::sql
