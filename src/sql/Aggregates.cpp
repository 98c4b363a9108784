// The aggregates that SQLite lacks.

#include "sql/Call.h"

#include <sqlite3.h>

#include <cmath>
#include <exception>

namespace ostrand::sql {
namespace {

constexpr FunctionInfo kAggregates[] = {
    {"count", 1, 1, ResultRule::Special, true}, {"sum", 1, 1, ResultRule::Special, true},
    {"avg", 1, 1, ResultRule::Special, true},   {"min", 1, 1, ResultRule::Special, true},
    {"max", 1, 1, ResultRule::Special, true},   {"first", 1, 1, ResultRule::Special, true},
    {"last", 1, 1, ResultRule::Special, true},  {"stdev", 1, 1, ResultRule::Real, true},
    {"stdevp", 1, 1, ResultRule::Real, true},   {"var", 1, 1, ResultRule::Real, true},
    {"varp", 1, 1, ResultRule::Real, true},
};

/// SQLite hands out the memory filled with zeros and frees it itself.
template <class State>
State *StateOf(sqlite3_context *context) {
    return static_cast<State *>(sqlite3_aggregate_context(context, sizeof(State)));
}

struct KeptValue {
    sqlite3_value *value;
};

template <bool IsFirst>
void StepKept(sqlite3_context *context, int, sqlite3_value **values) {
    auto *state = StateOf<KeptValue>(context);
    if (state == nullptr || (IsFirst && state->value != nullptr)) {
        return;
    }
    sqlite3_value_free(state->value);
    state->value = sqlite3_value_dup(values[0]);
}

/// The one value of a sub-query that stands for a value; a second row is a fault.
void StepOnly(sqlite3_context *context, int, sqlite3_value **values) {
    auto *state = StateOf<KeptValue>(context);
    if (state == nullptr) {
        return;
    }
    if (state->value != nullptr) {
        return RaiseInFunction(context, ErrorCode::TooManyRows,
                               u"A sub-query in an expression must give one row at most.");
    }
    state->value = sqlite3_value_dup(values[0]);
}

void FinishKept(sqlite3_context *context) {
    auto *state = static_cast<KeptValue *>(sqlite3_aggregate_context(context, 0));
    if (state == nullptr || state->value == nullptr) {
        return sqlite3_result_null(context);
    }
    sqlite3_result_value(context, state->value);
    sqlite3_value_free(state->value);
}

/// Mean and sum of squared distances, carried on from value to value so that nothing cancels out.
struct Spread {
    double count;
    double mean;
    double squares;
};

void StepSpread(sqlite3_context *context, int count, sqlite3_value **values) {
    auto *state = StateOf<Spread>(context);
    const Call call(context, count, values, *static_cast<const Environment *>(sqlite3_user_data(context)));
    if (state == nullptr || call.IsNull(0)) {
        return;
    }
    try {
        const double number = call.Number(0);
        state->count += 1;
        const double distance = number - state->mean;
        state->mean += distance / state->count;
        state->squares += distance * (number - state->mean);
    } catch (const SqlError &error) {
        RaiseInFunction(context, error.Code(), error.Text());
    } catch (const std::exception &) {
        sqlite3_result_error_nomem(context);
    }
}

template <bool IsSample, bool IsRoot>
void FinishSpread(sqlite3_context *context) {
    const auto *state = static_cast<const Spread *>(sqlite3_aggregate_context(context, 0));
    const double divisor = state == nullptr ? 0 : state->count - (IsSample ? 1 : 0);
    if (divisor <= 0) {
        return sqlite3_result_null(context);
    }
    const double variance = state->squares / divisor;
    sqlite3_result_double(context, IsRoot ? std::sqrt(variance) : variance);
}

} // namespace

std::span<const FunctionInfo> Aggregates() {
    return kAggregates;
}

void RegisterAggregates(sqlite3 *handle, const Environment &environment) {
    using Step = void (*)(sqlite3_context *, int, sqlite3_value **);
    using Finish = void (*)(sqlite3_context *);
    const auto add = [&](const char *name, Step step, Finish finish) {
        sqlite3_create_function_v2(handle, name, 1, SQLITE_UTF8 | SQLITE_INNOCUOUS | SQLITE_DETERMINISTIC,
                                   const_cast<Environment *>(&environment), nullptr, step, finish, nullptr);
    };
    add("fn_first", StepKept<true>, FinishKept);
    add("fn_last", StepKept<false>, FinishKept);
    add("fn__only", StepOnly, FinishKept);
    add("fn_stdev", StepSpread, FinishSpread<true, true>);
    add("fn_stdevp", StepSpread, FinishSpread<false, true>);
    add("fn_var", StepSpread, FinishSpread<true, false>);
    add("fn_varp", StepSpread, FinishSpread<false, false>);
}

} // namespace ostrand::sql
