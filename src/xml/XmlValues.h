// Values as texts, by the one rule of all formats.
#pragma once

#include <QString>

#include <variant>

namespace ostrand {

/// The kind of a database column. The numbers are those that table files tell a column's type with.
enum class FieldType { Other = 0, Boolean = 1, Integer = 3, Long = 4, Float = 7, Date = 8, Text = 10, Memo = 12 };

/// A value of the database: nothing for NULL. Dates are day counts, and false is 0.
using FieldValue = std::variant<std::monostate, double, QString>;

/// A value with the kind of its column.
struct XmlField {
    FieldValue value;
    FieldType type = FieldType::Text;
};

bool IsEmptyValue(const FieldValue &value);
/// The value as it stands; whole numbers without a decimal mark.
QString PlainText(const FieldValue &value);

/// The text of a value. A text in place of a number or date is read as one first; what cannot be read stands as it is.
QString XmlFormatValue(const FieldValue &value, FieldType type, bool show_false = false);
/// `#0.00###` with "." as decimal mark.
QString FormatFloat(double number);

/// The date of a collection file, "2010-12-31T20:15:00.000Z", as the database takes it: "2010-12-31 20:15:00". A text
/// without "T" stays as it is.
QString XmlParseDate(const QString &text);

/// Splits a price text with its currency symbol before or behind the number: number, "|", symbol. Both "." and
/// `locale_mark` count as marks; the last one is the decimal mark, written as `locale_mark`.
QString ParsePrice(const QString &text, QChar locale_mark);

} // namespace ostrand
