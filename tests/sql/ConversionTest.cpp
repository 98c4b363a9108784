#include "sql/Conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

TEST(TextToNumber, ReadsNumbers) {
    const std::pair<QString, double> rows[] = {
        {u"12"_s, 12},    {u" 12 "_s, 12},  {u"-1.5"_s, -1.5},      {u"+3"_s, 3},     {u"- 3"_s, -3},
        {u".5"_s, 0.5},   {u"5."_s, 5},     {u"1,234.5"_s, 1234.5}, {u"1e3"_s, 1000}, {u"1E-2"_s, 0.01},
        {u"1d2"_s, 100},  {u"&H1F"_s, 31},  {u"&hff"_s, 255},       {u"&O17"_s, 15},  {u"&HFFFFFFFF"_s, -1},
        {u"0123"_s, 123}, {u"1e-400"_s, 0},
    };
    for (const auto &[text, number] : rows) {
        EXPECT_EQ(TextToNumber(text, u'.'), number) << text.toStdString();
    }
    EXPECT_EQ(TextToNumber(u"29,95", u','), 29.95);
    EXPECT_EQ(TextToNumber(u"1.234,5", u','), 1234.5);
}

TEST(TextToNumber, RefusesAllElse) {
    for (const auto text :
         {u"",    u" ",           u"abc", u"12a", u"1 2",   u"--1",   u".",  u",5", u"1.2.3", u"1e",  u"e5",  u"&H",
          u"&HG", u"&H123456789", u"&",   u"&X1", u"1e400", u"1.5,5", u"$5", u"٣",  u"nan",   u"inf", u"0x10"}) {
        EXPECT_FALSE(TextToNumber(text, u'.')) << QString::fromUtf16(text).toStdString();
    }
    EXPECT_FALSE(TextToNumber(u"1,5.5", u','));
}

TEST(TextToBoolean, ReadsWordsAndNumbers) {
    for (const auto text : {u"True", u"TRUE", u"yes", u" On ", u"-1", u"1", u"0.5"}) {
        EXPECT_EQ(TextToBoolean(text, u'.'), true) << QString::fromUtf16(text).toStdString();
    }
    for (const auto text : {u"False", u"no", u"OFF", u"0", u"0.0"}) {
        EXPECT_EQ(TextToBoolean(text, u'.'), false) << QString::fromUtf16(text).toStdString();
    }
    for (const auto text : {u"", u"maybe", u"Truee"}) {
        EXPECT_FALSE(TextToBoolean(text, u'.').has_value()) << QString::fromUtf16(text).toStdString();
    }
}

TEST(TextToDate, ReadsDates) {
    const std::pair<QString, QString> rows[] = {
        {u"2009-11-23"_s, u"2009-11-23"_s},
        {u"2009-1-2"_s, u"2009-01-02"_s},
        {u"2009/11/23"_s, u"2009-11-23"_s},
        {u"2009-11-23 20:15:00"_s, u"2009-11-23 20:15:00"_s},
        {u"2009-11-23T20:15:30"_s, u"2009-11-23 20:15:30"_s},
        {u"2009-11-23 20:15:30.6"_s, u"2009-11-23 20:15:31"_s},
        {u"2009-11-23 20:15"_s, u"2009-11-23 20:15:00"_s},
        {u"11/23/2009"_s, u"2009-11-23"_s},
        {u"1/2/2009"_s, u"2009-01-02"_s},
        {u"23/11/2009"_s, u"2009-11-23"_s},
        {u"1-2-2009"_s, u"2009-01-02"_s},
        {u"2.1.2009"_s, u"2009-01-02"_s},
        {u"1.31.2009"_s, u"2009-01-31"_s},
        {u"1/2/29"_s, u"2029-01-02"_s},
        {u"1/2/30"_s, u"1930-01-02"_s},
        {u"99/12/31"_s, u"1999-12-31"_s},
        {u"11/2009"_s, u"2009-11-01"_s},
        {u"2009-11"_s, u"2009-11-01"_s},
        {u"23 November 2009"_s, u"2009-11-23"_s},
        {u"November 23, 2009"_s, u"2009-11-23"_s},
        {u"nov 23 2009"_s, u"2009-11-23"_s},
        {u"23-Nov-09"_s, u"2009-11-23"_s},
        {u"23. Nov 2009"_s, u"2009-11-23"_s},
        {u"2009 Nov 23"_s, u"2009-11-23"_s},
        {u"March 2009"_s, u"2009-03-01"_s},
        {u"Monday, November 23, 2009"_s, u"2009-11-23"_s},
        {u"11/23/2009 8:15:00 PM"_s, u"2009-11-23 20:15:00"_s},
        {u"11/23/2009 8:15 am"_s, u"2009-11-23 08:15:00"_s},
        {u"11/23/2009 12:00 AM"_s, u"2009-11-23"_s},
        {u"11/23/2009 12:30 PM"_s, u"2009-11-23 12:30:00"_s},
        {u"11/23/2009 8PM"_s, u"2009-11-23 20:00:00"_s},
        {u"8:15 PM 11/23/2009"_s, u"2009-11-23 20:15:00"_s},
        {u"20:15"_s, u"1899-12-30 20:15:00"_s},
        {u" 2009-11-23 "_s, u"2009-11-23"_s},
        {u"40140.5"_s, u"2009-11-23 12:00:00"_s},
        {u"0100-01-01"_s, u"0100-01-01"_s},
        {u"9999-12-31 23:59:59"_s, u"9999-12-31 23:59:59"_s},
        {u"2/29/2008"_s, u"2008-02-29"_s},
    };
    for (const auto &[text, expected] : rows) {
        const std::optional<double> date = TextToDate(text, u'.');
        ASSERT_TRUE(date) << text.toStdString();
        EXPECT_EQ(DateToText(*date), expected) << text.toStdString();
    }
}

TEST(TextToDate, RefusesWhatIsNoDate) {
    for (const auto text : {u"",
                            u" ",
                            u"soon",
                            u"2/30/2009",
                            u"2009-02-29",
                            u"13/13/2009",
                            u"0/1/2009",
                            u"1/0/2009",
                            u"2009-13-01",
                            u"2009-11-23 25:00",
                            u"2009-11-23 20:60",
                            u"20:15:60",
                            u"24:00",
                            u"13:00 PM",
                            u"2009-11-23 x",
                            u"1/2",
                            u"November",
                            u"Nov 23",
                            u"0099-01-01",
                            u"10000-01-01",
                            u"2009-11-23T",
                            u"11/23-2009",
                            u"2958466",
                            u"1e308",
                            u"1/2/2009 3/4/2009",
                            u"2009-11-23 20:15 20:15",
                            u"/",
                            u":",
                            u"1:",
                            u"99999999999999999999/1/1",
                            u"1/2/3/4",
                            u"Monday",
                            u"32 Nov 2009"}) {
        EXPECT_FALSE(TextToDate(text, u'.')) << QString::fromUtf16(text).toStdString();
    }
}

TEST(DateLiteral, HasTheMonthFirst) {
    EXPECT_EQ(DateLiteral(u"11/23/2009"), 40140.0);
    EXPECT_EQ(DateLiteral(u"1/2/2009"), JoinDate(2009, 1, 2));
    EXPECT_EQ(DateLiteral(u"23/11/2009"), 40140.0);
    EXPECT_EQ(DateLiteral(u"2009-11-23"), 40140.0);
    EXPECT_EQ(DateLiteral(u"1/1/2009 10:59:00"), JoinDate(2009, 1, 1, 10, 59));
    EXPECT_EQ(DateLiteral(u" 11/23/2009 8:15:00 PM "), 40140.84375);
    EXPECT_EQ(DateLiteral(u"8:15:00 PM"), 0.84375);
    EXPECT_EQ(DateLiteral(u"23 Nov 2009"), 40140.0);
    EXPECT_FALSE(DateLiteral(u"40140"));
    EXPECT_FALSE(DateLiteral(u"2/30/2009"));
    EXPECT_FALSE(DateLiteral(u""));
}

TEST(Dates, AreDayCounts) {
    EXPECT_EQ(JoinDate(1899, 12, 30), 0.0);
    EXPECT_EQ(JoinDate(2009, 11, 23, 20, 15, 0), 40140.84375);
    EXPECT_EQ(JoinDate(1899, 12, 29, 6), -1.25);
    EXPECT_EQ(JoinDate(100, 1, 1), -657434.0);
    EXPECT_EQ(JoinDate(9999, 12, 31), 2958465.0);
    EXPECT_EQ(JoinDate(2009, 14, 1), JoinDate(2010, 2, 1));
    EXPECT_EQ(JoinDate(2009, 1, 1, 0, 0, -1), JoinDate(2008, 12, 31, 23, 59, 59));
    EXPECT_EQ(DateToIso(40140), u"2009-11-23 00:00:00"_s);
    EXPECT_EQ(DateToIso(-1.25), u"1899-12-29 06:00:00"_s);
    EXPECT_EQ(DateToIso(-0.25), u"1899-12-30 06:00:00"_s);
    EXPECT_EQ(DateToText(40140.9999999), u"2009-11-24"_s);
    EXPECT_EQ(DateToText(-657434.5), u"0100-01-01 12:00:00"_s);
}

TEST(Dates, ComeBackFromTheirParts) {
    for (int day = -657434; day <= 2958465; day += 997) {
        const DateParts parts = SplitDate(day);
        ASSERT_EQ(JoinDate(parts.year, parts.month, parts.day), double(day));
    }
    for (int second = 0; second < 86400; second += 7) {
        const DateParts parts = SplitDate(JoinDate(2009, 11, 23, 0, 0, second));
        ASSERT_EQ((parts.hour * 60 + parts.minute) * 60 + parts.second, second);
        ASSERT_EQ(parts.day, 23);
    }
}

TEST(Dates, BeyondTheRangeAreBroughtToItsEnds) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double number : {1e308, kInfinity, 2958466.0, 2958465.9999999999}) {
        EXPECT_EQ(DateToIso(number), u"9999-12-31 23:59:59"_s) << number;
    }
    for (const double number : {-1e308, -kInfinity, -657435.0}) {
        EXPECT_EQ(DateToIso(number).left(4), u"0100"_s) << number;
    }
    EXPECT_EQ(DateToIso(std::numeric_limits<double>::quiet_NaN()), u"1899-12-30 00:00:00"_s);
}

TEST(NumberToText, IsShort) {
    const std::pair<double, QString> rows[] = {
        {0, u"0"_s},
        {-0.0, u"0"_s},
        {12, u"12"_s},
        {-7.25, u"-7.25"_s},
        {0.1 + 0.2, u"0.3"_s},
        {1e15, u"1E+15"_s},
        {0.0001, u"0.0001"_s},
        {0.00001, u"1E-05"_s},
        {1.0 / 3, u"0.333333333333333"_s},
        {123456789012345, u"123456789012345"_s},
        {1e308, u"1E+308"_s},
    };
    for (const auto &[number, text] : rows) {
        EXPECT_EQ(NumberToText(number), text);
    }
    EXPECT_EQ(NumberToText(1.5, u','), u"1,5"_s);
}

struct ColumnRow {
    Value value;
    Kind from;
    Kind to;
    Value expected;
};

TEST(ConvertForColumn, FollowsTheRulesOfInsert) {
    Environment environment;
    const ColumnRow rows[] = {
        {Value(), Kind::Null, Kind::Integer, Value()},
        {Value(), Kind::Null, Kind::Boolean, Value(0)},
        {u"2"_s, Kind::Text, Kind::Integer, 2},
        {u""_s, Kind::Text, Kind::Integer, Value()},
        {u"abc"_s, Kind::Text, Kind::Integer, Value()},
        {u"2147483648"_s, Kind::Text, Kind::Integer, Value()},
        {2.5, Kind::Real, Kind::Integer, 2},
        {u"29.95"_s, Kind::Text, Kind::Real, 29.95},
        {3, Kind::Integer, Kind::Real, 3.0},
        {u"2009-11-23"_s, Kind::Text, Kind::Date, 40140.0},
        {u"soon"_s, Kind::Text, Kind::Date, Value()},
        {u""_s, Kind::Text, Kind::Date, Value()},
        {40140.5, Kind::Real, Kind::Date, 40140.5},
        {1e10, Kind::Real, Kind::Date, Value()},
        {u"True"_s, Kind::Text, Kind::Boolean, -1},
        {u"False"_s, Kind::Text, Kind::Boolean, 0},
        {u"x"_s, Kind::Text, Kind::Boolean, 0},
        {5, Kind::Integer, Kind::Boolean, -1},
        {12345, Kind::Integer, Kind::Text, u"12345"_s},
        {1.5, Kind::Real, Kind::Memo, u"1.5"_s},
        {40140.5, Kind::Date, Kind::Text, u"2009-11-23 12:00:00"_s},
        {u"0123"_s, Kind::Text, Kind::Memo, u"0123"_s},
    };
    for (const ColumnRow &row : rows) {
        EXPECT_EQ(ConvertForColumn(row.value, row.from, row.to, 0, environment), row.expected)
            << row.value.Text().toStdString() << " " << int(row.to);
    }
    EXPECT_EQ(ConvertForColumn(u"abcdef"_s, Kind::Text, Kind::Text, 3, environment), Value(u"abc"_s));
    EXPECT_EQ(ConvertForColumn(u"ab\U0001F3AC"_s, Kind::Text, Kind::Text, 3, environment), Value(u"ab"_s));
    environment.decimal_mark = u',';
    EXPECT_EQ(ConvertForColumn(u"29,95"_s, Kind::Text, Kind::Real, 0, environment), Value(29.95));
    EXPECT_EQ(ConvertForColumn(1.5, Kind::Real, Kind::Text, 0, environment), Value(u"1,5"_s));
}

} // namespace
} // namespace ostrand::sql
