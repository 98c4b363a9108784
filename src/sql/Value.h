// What one cell of a row holds.
#pragma once

#include <QString>

#include <cstdint>

namespace ostrand::sql {

/// A value without its column's kind: dates are day counts since 1899-12-30 in a Real, truth values are -1 and 0 in
/// an Integer.
class Value {
public:
    enum class Type : std::uint8_t { Null, Integer, Real, Text };

    Value() = default;
    Value(qint64 integer) : type_(Type::Integer), integer_(integer) {} // NOLINT(google-explicit-constructor)
    Value(int integer) : Value(qint64(integer)) {}                     // NOLINT(google-explicit-constructor)
    Value(double real) : type_(Type::Real), real_(real) {}             // NOLINT(google-explicit-constructor)
    Value(bool truth) : Value(qint64(truth ? -1 : 0)) {}               // NOLINT(google-explicit-constructor)
    Value(QString text) : type_(Type::Text), text_(std::move(text)) {} // NOLINT(google-explicit-constructor)
    Value(const char *) = delete;

    Type GetType() const { return type_; }
    bool IsNull() const { return type_ == Type::Null; }
    /// The number, 0 for NULL and text; a Real is cut towards zero.
    qint64 Integer() const { return type_ == Type::Integer ? integer_ : type_ == Type::Real ? qint64(real_) : 0; }
    /// The number, 0 for NULL and text.
    double Real() const { return type_ == Type::Real ? real_ : type_ == Type::Integer ? double(integer_) : 0.0; }
    /// The text of a Text, empty for all others.
    const QString &Text() const { return text_; }

    bool operator==(const Value &other) const {
        if (type_ != other.type_) {
            return false;
        }
        switch (type_) {
        case Type::Null:
            return true;
        case Type::Integer:
            return integer_ == other.integer_;
        case Type::Real:
            return real_ == other.real_;
        case Type::Text:
            return text_ == other.text_;
        }
        return false;
    }

private:
    Type type_ = Type::Null;
    union {
        qint64 integer_ = 0;
        double real_;
    };
    QString text_;
};

} // namespace ostrand::sql
