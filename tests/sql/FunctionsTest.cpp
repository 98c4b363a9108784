#include "FunctionRows.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace ostrand::sql::test {
namespace {

TEST(Functions, AreFoundByNameWithoutCase) {
    for (const auto name : {u"Left", u"LEFT", u"left$", u"Format", u"IIf", u"switch", u"Count", u"StDevP", u"Timer"}) {
        EXPECT_NE(FindFunction(name), nullptr) << QString::fromUtf16(name).toStdString();
    }
    for (const auto name : {u"", u"$", u"lefty", u"_like", u"fn_left", u"NoSuchFunction", u"like"}) {
        EXPECT_EQ(FindFunction(name), nullptr) << QString::fromUtf16(name).toStdString();
    }
}

TEST(Functions, TellTheirArgumentsAndTypes) {
    const FunctionInfo *left = FindFunction(u"Left");
    ASSERT_NE(left, nullptr);
    EXPECT_EQ(left->min_arguments, 2);
    EXPECT_EQ(left->max_arguments, 2);
    EXPECT_EQ(left->result, ResultRule::Text);
    EXPECT_FALSE(left->aggregate);
    EXPECT_TRUE(left->deterministic);
    EXPECT_EQ(FindFunction(u"Switch")->max_arguments, -1);
    EXPECT_EQ(FindFunction(u"Switch")->result, ResultRule::Special);
    EXPECT_EQ(FindFunction(u"Abs")->result, ResultRule::FirstArgument);
    EXPECT_EQ(FindFunction(u"DateAdd")->result, ResultRule::Date);
    for (const auto name : {u"Now", u"Date", u"Time", u"Rnd", u"Timer"}) {
        EXPECT_FALSE(FindFunction(name)->deterministic) << QString::fromUtf16(name).toStdString();
    }
    for (const auto name :
         {u"Count", u"Sum", u"Avg", u"Min", u"Max", u"First", u"Last", u"StDev", u"StDevP", u"Var", u"VarP"}) {
        EXPECT_TRUE(FindFunction(name)->aggregate) << QString::fromUtf16(name).toStdString();
    }
}

TEST(Functions, RefuseAWrongNumberOfArguments) {
    Check({{"fn_left('a')", "error 3075"}, {"fn_now(1)", "error 3075"}, {"fn_mid('a', 1, 2, 3)", "error 3075"}});
}

TEST(Functions, GiveNullForNull) {
    const FunctionHandle handle;
    const QStringList one =
        u"len ucase lcase trim ltrim rtrim chr asc space strreverse hex oct str cstr val abs int fix "
        "sgn round sqr exp log sin cos tan atn cint clng cdbl csng ccur cbyte cbool cdec year month "
        "day hour minute second weekday weekdayname monthname datevalue timevalue cdate cvdate "
        "formatdatetime formatnumber formatcurrency formatpercent"_s.split(u' ');
    for (const QString &name : one) {
        const std::string call = "fn_" + name.toStdString() + "(NULL)";
        EXPECT_EQ(handle.Evaluate(call), "NULL") << call;
    }
    Check({{"fn_left(NULL, 1)", "NULL"},
           {"fn_left('a', NULL)", "NULL"},
           {"fn_instr('abc', NULL)", "NULL"},
           {"fn_strcomp(NULL, 'a')", "NULL"},
           {"fn_replace('a', NULL, 'b')", "NULL"},
           {"fn_dateadd('d', 1, NULL)", "NULL"},
           {"fn_datediff('d', NULL, 1)", "NULL"},
           {"fn_datepart('d', NULL)", "NULL"},
           {"fn__like(NULL, '*')", "NULL"},
           {"fn__like('a', NULL)", "NULL"},
           {"fn__divide(NULL, 0)", "NULL"},
           {"fn__add(1, NULL)", "NULL"},
           {"fn__text(NULL, 'd')", "NULL"},
           {"fn__cut(NULL, 3)", "NULL"},
           {"fn__to_integer(NULL)", "NULL"},
           {"fn__to_boolean(NULL)", "0"},
           {"fn_isnumeric(NULL)", "0"},
           {"fn_isdate(NULL)", "0"},
           {"fn_format(NULL)", "''"},
           {"fn_format(NULL, '0.00')", "''"}});
}

TEST(Functions, TellTypesByStorage) {
    Check({{"fn_vartype(NULL)", "1"},
           {"fn_vartype(1)", "3"},
           {"fn_vartype(1.5)", "5"},
           {"fn_vartype('a')", "8"},
           {"fn_typename(NULL)", "'Null'"},
           {"fn_typename(1)", "'Long'"},
           {"fn_typename(1.5)", "'Double'"},
           {"fn_typename('a')", "'String'"},
           {"fn_isempty('')", "0"},
           {"fn_iserror(NULL)", "0"},
           {"fn_isobject(1)", "0"}});
}

TEST(Functions, PartitionNamesTheRangeOfANumber) {
    Check({{"fn_partition(5, 0, 99, 10)", "'  0:  9'"},
           {"fn_partition(20, 0, 99, 5)", "' 20: 24'"},
           {"fn_partition(98, 0, 99, 5)", "' 95: 99'"},
           {"fn_partition(267, 20, 199, 10)", "'200:   '"},
           {"fn_partition(-5, 0, 99, 10)", "'   : -1'"},
           {"fn_partition(1, 10, 99, 10)", "'   :  9'"},
           {"fn_partition(100, 1, 100, 99)", "'100:100'"},
           {"fn_partition(7, 0, 99, 1)", "'  7:  7'"},
           {"fn_partition(7, -1, 99, 1)", "error 5"},
           {"fn_partition(7, 5, 5, 1)", "error 5"},
           {"fn_partition(7, 0, 99, 0)", "error 5"}});
}

TEST(Functions, CalculateForTheEmitter) {
    Check({{"fn__divide(6, 2)", "3"},
           {"fn__divide(7, 2)", "3.5"},
           {"fn__divide('7', 2)", "3.5"},
           {"fn__divide(1, 0)", "error 11"},
           {"fn__divide(1, 0.0)", "error 11"},
           {"fn__divide('x', 2)", "error 3464"},
           {"fn__divide(1e308, 1e-10)", "error 6"},
           {"fn__int_divide(-7, 2)", "-3"},
           {"fn__int_divide(7.6, 2)", "4"},
           {"fn__int_divide(7, 0.4)", "error 11"},
           {"fn__int_divide(3e9, 2)", "error 6"},
           {"fn__int_divide(-2147483648, -1)", "2147483648"},
           {"fn__mod(14.7, 4)", "3"},
           {"fn__mod(-7, 2)", "-1"},
           {"fn__mod(7, -2)", "1"},
           {"fn__mod(2.5, 4)", "2"},
           {"fn__mod(1, 0)", "error 11"},
           {"fn__power(fn__power(2, 3), 2)", "64"},
           {"fn__power(-4, 3)", "-64"},
           {"fn__power(4, 0.5)", "2"},
           {"fn__power(0, 0)", "1"},
           {"fn__power(-4, 0.5)", "error 5"},
           {"fn__power(0, -1)", "error 11"},
           {"fn__power(10, 400)", "error 6"},
           {"fn__add(1, 2)", "3"},
           {"fn__add('3', '4')", "'34'"},
           {"fn__add('3', 4)", "7"},
           {"fn__add(1.5, 1)", "2.5"},
           {"fn__add('a', 4)", "error 3464"},
           {"fn__add(9223372036854775807, 1)", "9.22337203685e+18"}});
}

TEST(Functions, ConvertForTheEmitter) {
    Check({{"fn__text(40140.84375, 'd')", "'2009-11-23 20:15:00'"},
           {"fn__text(40140, 'd')", "'2009-11-23'"},
           {"fn__text(-1, 'b')", "'-1'"},
           {"fn__text(0, 'b')", "'0'"},
           {"fn__text(1.5, 'n')", "'1.5'"},
           {"fn__text(2.0, 'n')", "'2'"},
           {"fn__text(12, '?')", "'12'"},
           {"fn__text('abc', '?')", "'abc'"},
           {"fn__cut('abcdef', 3)", "'abc'"},
           {"fn__cut('abc', 3)", "'abc'"},
           {"fn__cut('abc', 0)", "'abc'"},
           {"fn__cut(12345, 3)", "'123'"},
           {"fn__cut('a\xF0\x9F\x8E\xAC', 2)", "'a'"},
           {"fn__to_integer('12')", "12"},
           {"fn__to_integer(' 2.5 ')", "2"},
           {"fn__to_integer(3.5)", "4"},
           {"fn__to_integer('')", "NULL"},
           {"fn__to_integer('abc')", "NULL"},
           {"fn__to_integer(2147483648)", "NULL"},
           {"fn__to_integer(-2147483648)", "-2147483648"},
           {"fn__to_real('29.95')", "29.95"},
           {"fn__to_real('12x')", "NULL"},
           {"fn__to_date('2011-02-03 04:05:06')", "40577.1702083"},
           {"fn__to_date('soon')", "NULL"},
           {"fn__to_date(40140.5)", "40140.5"},
           {"fn__to_date(1e10)", "NULL"},
           {"fn__to_boolean('True')", "-1"},
           {"fn__to_boolean('no')", "0"},
           {"fn__to_boolean('perhaps')", "0"},
           {"fn__to_boolean(5)", "-1"}});
    Check({{"fn__text(1.5, 'n')", "'1,5'"},
           {"fn__to_real('29,95')", "29.95"},
           {"fn__to_real('1.234,5')", "1234.5"},
           {"fn__add('1,5', 1)", "2.5"}},
          u',');
}

TEST(Functions, LikeIsAFunctionOfTextAndPattern) {
    Check({{"fn__like('ox', 'O*X')", "-1"},
           {"fn__like('oy', 'o*x')", "0"},
           {"fn__like(1999, '19##')", "-1"},
           {"fn__like(1.5, '1.?')", "-1"},
           {"fn__like('a', '[abc')", "error 3093"}});
}

TEST(Functions, LikeKeepsItsPatternFromRowToRow) {
    const FunctionHandle handle;
    EXPECT_EQ(
        handle.Query("WITH t(a) AS (VALUES ('Anna'), ('bea'), ('ALMA'), (NULL)) SELECT fn__like(a, 'a*a') FROM t"),
        "-1 0 -1 NULL");
    EXPECT_EQ(handle.Query("WITH t(a) AS (VALUES ('a'), ('b')) SELECT fn__like('b', a) FROM t"), "0 -1");
}

TEST(Functions, TheCollationIsRegistered) {
    const FunctionHandle handle;
    EXPECT_EQ(handle.Query("WITH t(a) AS (VALUES ('cooper'), ('co-op'), ('coop'), ('')) "
                           "SELECT a FROM t ORDER BY a COLLATE dialect"),
              "'' 'coop' 'co-op' 'cooper'");
    EXPECT_EQ(handle.Query("SELECT 'abc' = 'ABC  ' COLLATE dialect"), "1");
}

TEST(Aggregates, SpreadOfNumbers) {
    const FunctionHandle handle;
    const std::string data = "WITH t(a) AS (VALUES (1), (2), (NULL), ('4')) ";
    EXPECT_EQ(handle.Query(data + "SELECT fn_var(a) FROM t"), "2.33333333333");
    EXPECT_EQ(handle.Query(data + "SELECT fn_varp(a) FROM t"), "1.55555555556");
    EXPECT_EQ(handle.Query(data + "SELECT fn_stdev(a) FROM t"), "1.52752523165");
    EXPECT_EQ(handle.Query(data + "SELECT fn_stdevp(a) FROM t"), "1.24721912892");
    EXPECT_EQ(handle.Query(data + "SELECT fn_var(a) FROM t WHERE a = 1"), "NULL");
    EXPECT_EQ(handle.Query(data + "SELECT fn_varp(a) FROM t WHERE a = 1"), "0");
    EXPECT_EQ(handle.Query(data + "SELECT fn_stdevp(a) FROM t WHERE a = 7"), "NULL");
    EXPECT_EQ(handle.Query("SELECT fn_var(1e9 + a) FROM (SELECT 1 AS a UNION SELECT 2)"), "0.5");
    EXPECT_EQ(handle.Query("SELECT fn_var(a) FROM (SELECT 'x' AS a)"), "error 3464");
}

TEST(Aggregates, FirstAndLastTakeWhatStandsThere) {
    const FunctionHandle handle;
    const std::string data = "WITH t(g, a) AS (VALUES (1, 'x'), (1, 'y'), (2, NULL), (2, 3)) ";
    EXPECT_EQ(handle.Query(data + "SELECT fn_first(a) FROM t GROUP BY g"), "'x' NULL");
    EXPECT_EQ(handle.Query(data + "SELECT fn_last(a) FROM t GROUP BY g"), "'y' 3");
    EXPECT_EQ(handle.Query(data + "SELECT fn_first(a) FROM t WHERE g = 9"), "NULL");
}

} // namespace
} // namespace ostrand::sql::test
