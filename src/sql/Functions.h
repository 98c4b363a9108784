// The functions of the dialect: what the binder must know of them, and their bodies for SQLite.
#pragma once

#include "sql/SqlError.h"
#include "sql/Types.h"

#include <QStringView>

struct sqlite3;
struct sqlite3_context;

namespace ostrand::sql {

/// How the type of a call follows from its arguments.
enum class ResultRule {
    Text,
    Integer,
    Real,
    Date,
    Boolean,
    FirstArgument, ///< the type of the first argument, Real where that is no number or date (Abs, Int, Fix, Sgn ..)
    Unknown,
    Special, ///< the binder knows the function itself (IIf, Switch, Choose, Nz, IsNull, aggregates by their argument)
};

struct FunctionInfo {
    const char *name; ///< lower case; the SQLite function is "fn_" + name
    int min_arguments;
    int max_arguments; ///< -1: any number
    ResultRule result;
    bool aggregate = false;
    bool deterministic = true; ///< false for Now, Date, Time, Rnd
};

/// The entry of a function, names compared without case; a trailing "$" (Left$) does not count. Null for an unknown
/// name.
const FunctionInfo *FindFunction(QStringView name);

/// Registers on a handle: every function above as "fn_<name>"; the collation "dialect" (Collation.h); and the helpers
/// that the emitter calls:
///   fn__like(text, pattern)        LIKE, -1/0/NULL
///   fn__text(x, kind)              a value as text as the dialect shows it, kind one of 'b' truth value, 'd' date, 'n'
///                                  number, '?' by its storage
///   fn__cut(text, n)               the first n UTF-16 units
///   fn__to_integer(x)              for storing into a column: NULL where it cannot be converted; half to even;
///                                  beyond 32 bits NULL
///   fn__to_real(x), fn__to_date(x) likewise
///   fn__to_boolean(x)              -1 or 0, NULL reads as 0
///   fn__only(x)                    aggregate: the value of the only row, raises TooManyRows on a second
///   fn__divide(a, b), fn__int_divide(a, b), fn__mod(a, b), fn__power(a, b)
///                                  raise DivisionByZero where they must
///   fn__add(a, b)                  + of two values whose kinds show only at run time: texts join, else addition
/// `environment` must outlive the handle.
void RegisterFunctions(sqlite3 *handle, const Environment &environment);

/// Ends the running function with a fault that RaiseSqliteError turns into SqlError{code, text}.
void RaiseInFunction(sqlite3_context *context, ErrorCode code, QStringView text);

} // namespace ostrand::sql
