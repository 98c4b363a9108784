// One call of a function from within SQLite: its arguments and its result.
#pragma once

#include "sql/Functions.h"
#include "sql/SqlError.h"
#include "sql/Value.h"

#include <QString>
#include <QStringView>

#include <span>
#include <string_view>

struct sqlite3_value;

namespace ostrand::sql {

/// The longest text that a function makes, so that no statement can fill the memory.
inline constexpr qsizetype kLongestText = 16'000'000;

[[noreturn]] void RaiseTypeMismatch();
[[noreturn]] void RaiseInvalidCall();
[[noreturn]] void RaiseOverflow();
[[noreturn]] void RaiseDivisionByZero();

/// Half to even, within 32 bits; raises Overflow.
qint64 RoundToLong(double number);
/// The same number; raises Overflow where it is not finite.
double Finite(double number);

/// Arguments count from 0. Reading one as something that it cannot be raises CriteriaTypeMismatch.
class Call {
public:
    Call(sqlite3_context *context, int count, sqlite3_value **values, const Environment &environment) :
        context_(context), count_(count), values_(values), environment_(environment) {}

    sqlite3_context *Context() const { return context_; }
    const Environment &GetEnvironment() const { return environment_; }
    QChar DecimalMark() const { return environment_.decimal_mark; }
    int Count() const { return count_; }
    /// True where the argument is given and not NULL.
    bool Has(int index) const { return index < count_ && !IsNull(index); }
    bool IsNull(int index) const;
    bool IsText(int index) const;
    bool IsInteger(int index) const;

    QString Text(int index) const;
    /// The bytes of a text; for others those of its text form.
    std::string_view Utf8(int index) const;
    double Number(int index) const;
    /// A number of 32 bits, rounded half to even; raises Overflow.
    qint64 Long(int index) const;
    qint64 Long(int index, qint64 fallback) const { return Has(index) ? Long(index) : fallback; }
    /// A date within the range of dates; raises Overflow beyond it.
    double Date(int index) const;
    bool Boolean(int index) const;
    Value Get(int index) const;

    void ReturnNull();
    /// Halves of surrogate pairs are left out.
    void Return(QStringView text);
    void Return(double number);
    void Return(qint64 number);
    void ReturnTruth(bool truth) { Return(qint64(truth ? -1 : 0)); }
    void ReturnValue(const Value &value);
    /// Hands back an argument as it is.
    void ReturnArgument(int index);

private:
    sqlite3_context *context_;
    int count_;
    sqlite3_value **values_;
    const Environment &environment_;
};

enum class OnNull {
    GivesNull,  ///< a NULL argument makes the result NULL
    IsPassedOn, ///< the body looks for NULL itself
};

/// A function of the dialect with its body; no body where the emitter makes SQL of it.
struct Function {
    FunctionInfo info;
    void (*body)(Call &call);
    OnNull on_null = OnNull::GivesNull;
};

std::span<const Function> TextFunctions();
std::span<const Function> NumberFunctions();
std::span<const Function> DateFunctions();
std::span<const Function> FormatFunctions();
std::span<const Function> OtherFunctions();
/// What the emitter calls: "_like" and so on, registered as "fn__like".
std::span<const Function> EmitterFunctions();
std::span<const FunctionInfo> Aggregates();

void RegisterAggregates(sqlite3 *handle, const Environment &environment);

} // namespace ostrand::sql
