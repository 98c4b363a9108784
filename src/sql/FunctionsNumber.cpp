// Arithmetic and the conversions into numbers.

#include "sql/Call.h"
#include "sql/Conversion.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace ostrand::sql {
namespace {

void Abs(Call &call) {
    if (call.IsInteger(0)) {
        const qint64 number = call.Get(0).Integer();
        if (number != std::numeric_limits<qint64>::min()) {
            return call.Return(number < 0 ? -number : number);
        }
    }
    call.Return(std::fabs(call.Number(0)));
}

void Int(Call &call) {
    if (call.IsInteger(0)) {
        return call.ReturnArgument(0);
    }
    call.Return(std::floor(call.Number(0)));
}

void Fix(Call &call) {
    if (call.IsInteger(0)) {
        return call.ReturnArgument(0);
    }
    call.Return(std::trunc(call.Number(0)));
}

void Sgn(Call &call) {
    const double number = call.Number(0);
    call.Return(qint64(number > 0 ? 1 : number < 0 ? -1 : 0));
}

double RoundHalfToEven(double number, int places) {
    const double scale = std::pow(10.0, places);
    const double scaled = number * scale;
    // From 2^53 on a number has no fraction that could be rounded.
    return std::fabs(scaled) < 9007199254740992.0 ? std::nearbyint(scaled) / scale : number;
}

void Round(Call &call) {
    const qint64 places = call.Long(1, 0);
    if (places < 0 || places > 22) {
        RaiseInvalidCall();
    }
    call.Return(RoundHalfToEven(call.Number(0), int(places)));
}

void Sqr(Call &call) {
    const double number = call.Number(0);
    if (number < 0) {
        RaiseInvalidCall();
    }
    call.Return(std::sqrt(number));
}

void Exp(Call &call) {
    call.Return(Finite(std::exp(call.Number(0))));
}

void Log(Call &call) {
    const double number = call.Number(0);
    if (!(number > 0)) {
        RaiseInvalidCall();
    }
    call.Return(std::log(number));
}

void Sin(Call &call) {
    call.Return(std::sin(Finite(call.Number(0))));
}

void Cos(Call &call) {
    call.Return(std::cos(Finite(call.Number(0))));
}

void Tan(Call &call) {
    call.Return(std::tan(Finite(call.Number(0))));
}

void Atn(Call &call) {
    call.Return(std::atan(call.Number(0)));
}

/// The same fraction for the same number.
double FractionOf(double number) {
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    bits = (bits ^ (bits >> 31)) * 0x9E3779B97F4A7C15ULL;
    bits = (bits ^ (bits >> 29)) * 0xD1B54A32D192ED03ULL;
    return double(bits >> 11) / 9007199254740992.0;
}

void Rnd(Call &call) {
    const bool has_seed = call.Count() > 0 && call.Number(0) < 0;
    call.Return(has_seed ? FractionOf(call.Number(0)) : call.GetEnvironment().random());
}

qint64 RoundInto(double number, double low, double high) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= low && rounded <= high)) {
        RaiseOverflow();
    }
    return qint64(rounded);
}

void CInt(Call &call) {
    call.Return(RoundInto(call.Number(0), -32768, 32767));
}

void CLng(Call &call) {
    call.Return(call.Long(0));
}

void CByte(Call &call) {
    call.Return(RoundInto(call.Number(0), 0, 255));
}

void CDbl(Call &call) {
    call.Return(call.Number(0));
}

/// The number that the few digits of a single show, so that 1.1 stays 1.1.
void CSng(Call &call) {
    const double number = call.Number(0);
    if (!(std::fabs(number) <= double(std::numeric_limits<float>::max()))) {
        RaiseOverflow();
    }
    std::array<char, 40> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), float(number));
    double result = 0;
    std::from_chars(buffer.data(), written.ptr, result);
    call.Return(result);
}

void CCur(Call &call) {
    const double number = call.Number(0);
    if (!(std::fabs(number) <= 922337203685477.5807)) {
        RaiseOverflow();
    }
    call.Return(RoundHalfToEven(number, 4));
}

void CBool(Call &call) {
    call.ReturnTruth(call.Boolean(0));
}

void IsNumeric(Call &call) {
    const bool is_readable = call.IsText(0) && TextToNumber(call.Text(0), call.DecimalMark());
    call.ReturnTruth(is_readable || (!call.IsText(0) && !call.IsNull(0)));
}

constexpr Function kNumberFunctions[] = {
    {{"abs", 1, 1, ResultRule::FirstArgument}, Abs},
    {{"int", 1, 1, ResultRule::FirstArgument}, Int},
    {{"fix", 1, 1, ResultRule::FirstArgument}, Fix},
    {{"sgn", 1, 1, ResultRule::Integer}, Sgn},
    {{"round", 1, 2, ResultRule::Real}, Round},
    {{"sqr", 1, 1, ResultRule::Real}, Sqr},
    {{"exp", 1, 1, ResultRule::Real}, Exp},
    {{"log", 1, 1, ResultRule::Real}, Log},
    {{"sin", 1, 1, ResultRule::Real}, Sin},
    {{"cos", 1, 1, ResultRule::Real}, Cos},
    {{"tan", 1, 1, ResultRule::Real}, Tan},
    {{"atn", 1, 1, ResultRule::Real}, Atn},
    {{"rnd", 0, 1, ResultRule::Real, false, false}, Rnd},
    {{"cint", 1, 1, ResultRule::Integer}, CInt},
    {{"clng", 1, 1, ResultRule::Integer}, CLng},
    {{"cbyte", 1, 1, ResultRule::Integer}, CByte},
    {{"cdbl", 1, 1, ResultRule::Real}, CDbl},
    {{"csng", 1, 1, ResultRule::Real}, CSng},
    {{"ccur", 1, 1, ResultRule::Real}, CCur},
    {{"cdec", 1, 1, ResultRule::Real}, CDbl},
    {{"cbool", 1, 1, ResultRule::Boolean}, CBool},
    {{"isnumeric", 1, 1, ResultRule::Boolean}, IsNumeric, OnNull::IsPassedOn},
};

} // namespace

std::span<const Function> NumberFunctions() {
    return kNumberFunctions;
}

} // namespace ostrand::sql
