#include "FunctionRows.h"

namespace ostrand::sql::test {
namespace {

TEST(NumberFunctions, Calculate) {
    Check({{"fn_abs(-3)", "3"},
           {"fn_abs(-3.5)", "3.5"},
           {"fn_abs('-3')", "3"},
           {"fn_abs(-9223372036854775807 - 1)", "9.22337203685e+18"},
           {"fn_abs('x')", "error 3464"},
           {"fn_int(7.9)", "7"},
           {"fn_int(-7.9)", "-8"},
           {"fn_int(5)", "5"},
           {"fn_fix(7.9)", "7"},
           {"fn_fix(-7.9)", "-7"},
           {"fn_sgn(-3)", "-1"},
           {"fn_sgn(0)", "0"},
           {"fn_sgn(0.1)", "1"},
           {"fn_sqr(16)", "4"},
           {"fn_sqr(-1)", "error 5"},
           {"fn_exp(0)", "1"},
           {"fn_exp(1000)", "error 6"},
           {"fn_log(1)", "0"},
           {"fn_log(0)", "error 5"},
           {"fn_log(-1)", "error 5"},
           {"fn_sin(0)", "0"},
           {"fn_cos(0)", "1"},
           {"fn_tan(0)", "0"},
           {"fn_atn(1)", "0.785398163397"},
           {"fn_rnd()", "0.25"},
           {"fn_rnd(1)", "0.25"},
           {"fn_rnd(-5) = fn_rnd(-5)", "1"},
           {"fn_rnd(-5) = fn_rnd(-6)", "0"},
           {"fn_rnd(-5) >= 0 AND fn_rnd(-5) < 1", "1"}});
}

TEST(NumberFunctions, RoundHalfToEven) {
    Check({{"fn_round(2.5)", "2"},
           {"fn_round(3.5)", "4"},
           {"fn_round(-2.5)", "-2"},
           {"fn_round(0.125, 2)", "0.12"},
           {"fn_round(0.375, 2)", "0.38"},
           {"fn_round(7.25, 1)", "7.2"},
           {"fn_round(1e300, 22)", "1e+300"},
           {"fn_round(1.5, -1)", "error 5"},
           {"fn_cint(3.5)", "4"},
           {"fn_cint(2.5)", "2"},
           {"fn_cint('12')", "12"},
           {"fn_cint(32767.4)", "32767"},
           {"fn_cint(32767.5)", "error 6"},
           {"fn_cint(-32769)", "error 6"},
           {"fn_cint('x')", "error 3464"},
           {"fn_clng(-2.5)", "-2"},
           {"fn_clng(2147483647)", "2147483647"},
           {"fn_clng(2147483648)", "error 6"},
           {"fn_clng(1e300 * 1e300)", "error 6"},
           {"fn_cbyte(255)", "255"},
           {"fn_cbyte(256)", "error 6"},
           {"fn_cbyte(-1)", "error 6"}});
}

TEST(NumberFunctions, Convert) {
    Check({{"fn_cdbl('1.5')", "1.5"},      {"fn_cdbl(40140.5)", "40140.5"},
           {"fn_cdbl('')", "error 3464"},  {"fn_cdec('2.25')", "2.25"},
           {"fn_csng(1.1)", "1.1"},        {"fn_csng(1e300)", "error 6"},
           {"fn_ccur(1.23455)", "1.2346"}, {"fn_ccur('19.5')", "19.5"},
           {"fn_ccur(1e15)", "error 6"},   {"fn_cbool(5)", "-1"},
           {"fn_cbool(0)", "0"},           {"fn_cbool('True')", "-1"},
           {"fn_cbool('0')", "0"},         {"fn_cbool('maybe')", "error 3464"},
           {"fn_isnumeric('12')", "-1"},   {"fn_isnumeric('12a')", "0"},
           {"fn_isnumeric('')", "0"},      {"fn_isnumeric('1e5')", "-1"},
           {"fn_isnumeric(12)", "-1"},     {"fn_isnumeric('1,234.5')", "-1"}});
    Check({{"fn_cdbl('1,5')", "1.5"}, {"fn_isnumeric('1.234,5')", "-1"}}, u',');
}

} // namespace
} // namespace ostrand::sql::test
