#include "FunctionRows.h"

namespace ostrand::sql::test {
namespace {

TEST(TextFunctions, CutTexts) {
    Check({{"fn_left('Green Lamp', 5)", "'Green'"},
           {"fn_left('Green Lamp', 30)", "'Green Lamp'"},
           {"fn_left('abc', 0)", "''"},
           {"fn_left('abc', 1.5)", "'ab'"},
           {"fn_left('abc', '2')", "'ab'"},
           {"fn_left(1999, 3)", "'199'"},
           {"fn_left('abc', -1)", "error 5"},
           {"fn_left('abc', 'x')", "error 3464"},
           {"fn_left('abc', 1e300)", "error 6"},
           {"fn_right('abc', 2)", "'bc'"},
           {"fn_right('abc', 10)", "'abc'"},
           {"fn_right('abc', 0)", "''"},
           {"fn_right('abc', -1)", "error 5"},
           {"fn_mid('Ocean Road Trip', 7, 4)", "'Road'"},
           {"fn_mid('abc', 2)", "'bc'"},
           {"fn_mid('abc', 4)", "''"},
           {"fn_mid('abc', 9, 2)", "''"},
           {"fn_mid('abc', 2, 99)", "'bc'"},
           {"fn_mid('abc', 2, 0)", "''"},
           {"fn_mid('abc', 0)", "error 5"},
           {"fn_mid('abc', 1, -1)", "error 5"},
           {"fn_trim('  a b  ')", "'a b'"},
           {"fn_ltrim('  a ')", "'a '"},
           {"fn_rtrim(' a  ')", "' a'"},
           {"fn_trim('   ')", "''"},
           {"fn_trim(char(9) || 'a')", "'\ta'"}});
}

TEST(TextFunctions, CountUtf16Units) {
    Check({{"fn_len('Ocean')", "5"},
           {"fn_len('')", "0"},
           {"fn_len(123)", "3"},
           {"fn_len('Zo\xC3\xAB')", "3"},
           {"fn_len('\xF0\x9F\x8E\xAC')", "2"},
           {"fn_left('\xF0\x9F\x8E\xAC!', 1)", "''"},
           {"fn_left('\xF0\x9F\x8E\xAC!', 2)", "'\xF0\x9F\x8E\xAC'"},
           {"fn_mid('\xF0\x9F\x8E\xAC!', 2)", "'!'"},
           {"fn_strreverse('a\xF0\x9F\x8E\xAC!')", "'!\xF0\x9F\x8E\xAC"
                                                   "a'"}});
}

TEST(TextFunctions, FindTexts) {
    Check({{"fn_instr('abc', 'b')", "2"},
           {"fn_instr('abc', 'B')", "2"},
           {"fn_instr('abc', '')", "1"},
           {"fn_instr('', 'a')", "0"},
           {"fn_instr('', '')", "0"},
           {"fn_instr('abc', 'z')", "0"},
           {"fn_instr(3, 'abcabc', 'b')", "5"},
           {"fn_instr(3, 'abc', '')", "3"},
           {"fn_instr(9, 'abc', 'a')", "0"},
           {"fn_instr(1, 'abc', 'B', 0)", "0"},
           {"fn_instr(1, 'abc', 'B', 1)", "2"},
           {"fn_instr('Zoe', '\xC3\xAB')", "0"},
           {"fn_instr(0, 'abc', 'a')", "error 5"},
           {"fn_instr(1, 'abc', 'a', 7)", "error 5"},
           {"fn_instrrev('abcabc', 'b')", "5"},
           {"fn_instrrev('abcabc', 'B')", "5"},
           {"fn_instrrev('abcabc', 'b', 4)", "2"},
           {"fn_instrrev('abcabc', 'b', 5)", "5"},
           {"fn_instrrev('abc', 'bc', 2)", "0"},
           {"fn_instrrev('abc', 'abcd')", "0"},
           {"fn_instrrev('abc', 'z')", "0"},
           {"fn_instrrev('abc', '')", "3"},
           {"fn_instrrev('', 'a')", "0"},
           {"fn_instrrev('abc', 'a', 9)", "0"},
           {"fn_instrrev('abcABC', 'b', -1, 0)", "2"},
           {"fn_instrrev('abc', 'a', 0)", "error 5"},
           {"fn_strcomp('abc', 'ABC', 1)", "0"},
           {"fn_strcomp('abc', 'ABC')", "0"},
           {"fn_strcomp('abc', 'ABC', 0)", "1"},
           {"fn_strcomp('ABC', 'abc', 0)", "-1"},
           {"fn_strcomp('a', 'b')", "-1"},
           {"fn_strcomp('b', 'a')", "1"}});
}

TEST(TextFunctions, ReplaceTexts) {
    Check({{"fn_replace('aXbX', 'X', '-')", "'a-b-'"},
           {"fn_replace('aXbx', 'x', '-')", "'a-b-'"},
           {"fn_replace('aXbx', 'x', '-', 1, -1, 0)", "'aXb-'"},
           {"fn_replace('aXbX', 'X', '-', 3)", "'b-'"},
           {"fn_replace('aXbX', 'X', '-', 1, 1)", "'a-bX'"},
           {"fn_replace('aXbX', 'X', '-', 1, 0)", "'aXbX'"},
           {"fn_replace('abc', '', '-')", "'abc'"},
           {"fn_replace('abc', 'b', '')", "'ac'"},
           {"fn_replace('', 'b', 'c')", "''"},
           {"fn_replace('abc', 'b', 'c', 9)", "''"},
           {"fn_replace('aaa', 'aa', 'b')", "'ba'"},
           {"fn_replace('abc', 'b', 'c', 0)", "error 5"},
           {"fn_replace(fn_space(1000000), ' ', fn_space(1000))", "error 6"}});
}

TEST(TextFunctions, ChangeCase) {
    Check({{"fn_ucase('aBc')", "'ABC'"},
           {"fn_lcase('aBc')", "'abc'"},
           {"fn_ucase('zo\xC3\xAB stra\xC3\x9F"
            "e')",
            "'ZO\xC3\x8B STRA\xC3\x9F"
            "E'"},
           {"fn_lcase('\xC3\x89T\xC3\x89 \xD0\x9C')", "'\xC3\xA9t\xC3\xA9 \xD0\xBC'"},
           {"fn_strconv('the green LAMP', 1)", "'THE GREEN LAMP'"},
           {"fn_strconv('the green LAMP', 2)", "'the green lamp'"},
           {"fn_strconv('the green LAMP', 3)", "'The Green Lamp'"},
           {"fn_strconv('o''neil', 3)", "'O'neil'"},
           {"fn_strconv('a', 64)", "error 5"},
           {"fn_strreverse('abc')", "'cba'"}});
}

TEST(TextFunctions, KnowTheCodePage) {
    Check({{"fn_chr(65)", "'A'"},
           {"fn_chr(128)", "'\xE2\x82\xAC'"},
           {"fn_chr(146)", "'\xE2\x80\x99'"},
           {"fn_chr(159)", "'\xC5\xB8'"},
           {"fn_chr(129)", "'\xC2\x81'"},
           {"fn_chr(228)", "'\xC3\xA4'"},
           {"fn_len(fn_chr(0))", "1"},
           {"fn_chr(256)", "error 5"},
           {"fn_chr(-1)", "error 5"},
           {"fn_chrw(8364)", "'\xE2\x82\xAC'"},
           {"fn_chrw(-3)", "'\xEF\xBF\xBD'"},
           {"fn_chrw(55296)", "''"},
           {"fn_chrw(70000)", "error 5"},
           {"fn_asc('A')", "65"},
           {"fn_asc('Amber')", "65"},
           {"fn_asc('\xE2\x82\xAC')", "128"},
           {"fn_asc('\xD0\x9C')", "63"},
           {"fn_asc('')", "error 5"},
           {"fn_ascw('\xE2\x82\xAC')", "8364"},
           {"fn_ascw('\xEF\xBF\xBD')", "-3"},
           {"fn_ascw('')", "error 5"}});
}

TEST(TextFunctions, RepeatCharactersUpToALimit) {
    Check({{"fn_space(3)", "'   '"},
           {"fn_space(0)", "''"},
           {"fn_space(-1)", "error 5"},
           {"fn_space(100000000)", "error 6"},
           {"fn_string(3, 'ab')", "'aaa'"},
           {"fn_string(3, 65)", "'AAA'"},
           {"fn_string(2, 321)", "'AA'"},
           {"fn_string(0, 'a')", "''"},
           {"fn_string(3, '')", "error 5"},
           {"fn_string(-1, 'a')", "error 5"},
           {"fn_string(100000000, 'a')", "error 6"}});
}

TEST(TextFunctions, WriteAndReadNumbers) {
    Check({{"fn_str(812)", "' 812'"},    {"fn_str(-7.25)", "'-7.25'"},
           {"fn_str(0.5)", "' .5'"},     {"fn_str(-0.5)", "'-.5'"},
           {"fn_str('12')", "' 12'"},    {"fn_str('x')", "error 3464"},
           {"fn_cstr(812)", "'812'"},    {"fn_cstr(1.5)", "'1.5'"},
           {"fn_cstr('a')", "'a'"},      {"fn_hex(255)", "'FF'"},
           {"fn_hex(-1)", "'FFFFFFFF'"}, {"fn_hex(9.5)", "'A'"},
           {"fn_hex(1e12)", "error 6"},  {"fn_oct(8)", "'10'"},
           {"fn_oct(0)", "'0'"},         {"fn_val('36 rolls of 12')", "36"},
           {"fn_val(' 1 7 3')", "173"},  {"fn_val('&H1F')", "31"},
           {"fn_val('&HFFFF')", "-1"},   {"fn_val('&HFFFF&')", "65535"},
           {"fn_val('&O17')", "15"},     {"fn_val('-2.5x')", "-2.5"},
           {"fn_val('+3')", "3"},        {"fn_val('.5')", "0.5"},
           {"fn_val('1e3')", "1000"},    {"fn_val('1e')", "1"},
           {"fn_val('1,5')", "1"},       {"fn_val('abc')", "0"},
           {"fn_val('')", "0"},          {"fn_val('-')", "0"},
           {"fn_val('&')", "0"},         {"fn_val(12.5)", "12.5"}});
    Check({{"fn_str(1.5)", "' 1.5'"},
           {"fn_cstr(1.5)", "'1,5'"},
           {"fn_val('1.5')", "1.5"},
           {"fn_val(1.5)", "1.5"},
           {"fn_left(1.5, 3)", "'1,5'"}},
          u',');
}

} // namespace
} // namespace ostrand::sql::test
