// What the emitter calls beside the functions of the dialect: operators and conversions.

#include "sql/Call.h"
#include "sql/Conversion.h"
#include "sql/Like.h"

#include <sqlite3.h>

#include <cmath>
#include <limits>

namespace ostrand::sql {
namespace {

void DeletePattern(void *pattern) {
    delete static_cast<LikePattern *>(pattern);
}

bool Matches(const Call &call, const LikePattern &pattern) {
    return call.IsText(0) ? pattern.MatchesUtf8(call.Utf8(0)) : pattern.Matches(call.Text(0));
}

void Like(Call &call) {
    constexpr int kPatternArgument = 1;
    if (const void *kept = sqlite3_get_auxdata(call.Context(), kPatternArgument)) {
        return call.ReturnTruth(Matches(call, *static_cast<const LikePattern *>(kept)));
    }
    auto pattern = std::make_unique<LikePattern>(call.Text(kPatternArgument));
    call.ReturnTruth(Matches(call, *pattern));
    sqlite3_set_auxdata(call.Context(), kPatternArgument, pattern.release(), DeletePattern);
}

void AsText(Call &call) {
    if (call.IsText(0)) {
        return call.ReturnArgument(0);
    }
    const QString kind = call.Text(1);
    if (kind == u'd') {
        return call.Return(DateToText(call.Number(0)));
    }
    if (kind == u'b') {
        return call.Return(call.Number(0) != 0 ? QStringView(u"-1") : QStringView(u"0"));
    }
    call.Return(call.Text(0));
}

void Cut(Call &call) {
    const QString text = call.Text(0);
    const qint64 length = call.Long(1);
    call.Return(length > 0 && length < text.size() ? QStringView(text).left(length) : QStringView(text));
}

template <Kind To>
void Convert(Call &call) {
    call.ReturnValue(ConvertForColumn(call.Get(0), Kind::Unknown, To, 0, call.GetEnvironment()));
}

void Divide(Call &call) {
    const double divisor = call.Number(1);
    if (divisor == 0) {
        RaiseDivisionByZero();
    }
    call.Return(Finite(call.Number(0) / divisor));
}

void IntDivide(Call &call) {
    const qint64 divisor = call.Long(1);
    if (divisor == 0) {
        RaiseDivisionByZero();
    }
    call.Return(call.Long(0) / divisor);
}

void Mod(Call &call) {
    const qint64 divisor = call.Long(1);
    if (divisor == 0) {
        RaiseDivisionByZero();
    }
    call.Return(call.Long(0) % divisor);
}

void Power(Call &call) {
    const double base = call.Number(0);
    const double exponent = call.Number(1);
    if (base == 0 && exponent < 0) {
        RaiseDivisionByZero();
    }
    if (base < 0 && exponent != std::trunc(exponent)) {
        RaiseInvalidCall();
    }
    call.Return(Finite(std::pow(base, exponent)));
}

void Add(Call &call) {
    if (call.IsText(0) && call.IsText(1)) {
        return call.Return(call.Text(0) + call.Text(1));
    }
    if (call.IsInteger(0) && call.IsInteger(1)) {
        qint64 sum = 0;
        if (!qAddOverflow(call.Get(0).Integer(), call.Get(1).Integer(), &sum)) {
            return call.Return(sum);
        }
    }
    call.Return(Finite(call.Number(0) + call.Number(1)));
}

constexpr Function kEmittedFunctions[] = {
    {{"_like", 2, 2, ResultRule::Boolean}, Like},
    {{"_text", 2, 2, ResultRule::Text}, AsText},
    {{"_cut", 2, 2, ResultRule::Text}, Cut},
    {{"_to_integer", 1, 1, ResultRule::Integer}, Convert<Kind::Integer>, OnNull::IsPassedOn},
    {{"_to_real", 1, 1, ResultRule::Real}, Convert<Kind::Real>, OnNull::IsPassedOn},
    {{"_to_date", 1, 1, ResultRule::Date}, Convert<Kind::Date>, OnNull::IsPassedOn},
    {{"_to_boolean", 1, 1, ResultRule::Boolean}, Convert<Kind::Boolean>, OnNull::IsPassedOn},
    {{"_divide", 2, 2, ResultRule::Real}, Divide},
    {{"_int_divide", 2, 2, ResultRule::Integer}, IntDivide},
    {{"_mod", 2, 2, ResultRule::Integer}, Mod},
    {{"_power", 2, 2, ResultRule::Real}, Power},
    {{"_add", 2, 2, ResultRule::Unknown}, Add},
};

} // namespace

std::span<const Function> EmitterFunctions() {
    return kEmittedFunctions;
}

} // namespace ostrand::sql
