#include "xml/XmlValues.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

struct FormatCase {
    const char *name;
    FieldValue value;
    FieldType type;
    bool show_false;
    const char *text;
};

class XmlFormatValueTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(XmlFormatValueTest, Formats) {
    const FormatCase &c = GetParam();
    EXPECT_EQ(XmlFormatValue(c.value, c.type, c.show_false).toStdString(), c.text);
}

const FieldValue kNull;

INSTANTIATE_TEST_SUITE_P(
    Kinds, XmlFormatValueTest,
    ::testing::Values(FormatCase{"True", -1.0, FieldType::Boolean, false, "True"},
                      FormatCase{"TrueText", Text("true"), FieldType::Boolean, false, "True"},
                      FormatCase{"FalseIsEmpty", 0.0, FieldType::Boolean, false, ""},
                      FormatCase{"FalseShown", 0.0, FieldType::Boolean, true, "False"},
                      FormatCase{"FalseText", Text("False"), FieldType::Boolean, true, "False"},
                      FormatCase{"NullBooleanShown", kNull, FieldType::Boolean, true, "False"},
                      FormatCase{"Integer", 42.0, FieldType::Integer, false, "42"},
                      FormatCase{"EmptyInteger", kNull, FieldType::Integer, false, "0"},
                      FormatCase{"Long", -2147483648.0, FieldType::Long, false, "-2147483648"},
                      FormatCase{"EmptyLong", Text(""), FieldType::Long, false, "0"},
                      FormatCase{"FloatWhole", 12.0, FieldType::Float, false, "12.00"},
                      FormatCase{"FloatTwo", 12.9, FieldType::Float, false, "12.90"},
                      FormatCase{"FloatFive", 0.123456, FieldType::Float, false, "0.12346"},
                      FormatCase{"FloatThree", 1.125, FieldType::Float, false, "1.125"},
                      FormatCase{"FloatHalfUp", 1.000005, FieldType::Float, false, "1.00001"},
                      FormatCase{"FloatCarries", 9.999999, FieldType::Float, false, "10.00"},
                      FormatCase{"FloatSmall", 0.000004, FieldType::Float, false, "0.00"},
                      FormatCase{"FloatSmallRoundsUp", 0.000006, FieldType::Float, false, "0.00001"},
                      FormatCase{"FloatTiny", 1e-300, FieldType::Float, false, "0.00"},
                      FormatCase{"FloatNegative", -1.85, FieldType::Float, false, "-1.85"},
                      FormatCase{"FloatNoNegativeZero", -0.000001, FieldType::Float, false, "0.00"},
                      FormatCase{"FloatZero", 0.0, FieldType::Float, false, "0.00"},
                      FormatCase{"FloatLarge", 123456789012.25, FieldType::Float, false, "123456789012.25"},
                      FormatCase{"FloatHuge", 1e20, FieldType::Float, false, "100000000000000000000.00"},
                      FormatCase{"FloatNull", kNull, FieldType::Float, false, ""},
                      FormatCase{"FloatOfText", Text("7.5"), FieldType::Float, false, "7.50"},
                      FormatCase{"FloatOfOtherText", Text("n/a"), FieldType::Float, false, "n/a"},
                      FormatCase{"Midnight", 40543.0, FieldType::Date, false, "2010-12-31"},
                      FormatCase{"Evening", 40543.84375, FieldType::Date, false, "2010-12-31T20:15:00.000Z"},
                      FormatCase{"DateOfText", Text("2010-12-31 20:15:00"), FieldType::Date, false,
                                 "2010-12-31T20:15:00.000Z"},
                      FormatCase{"MidnightOfText", Text("2010-12-31 00:00:00"), FieldType::Date, false, "2010-12-31"},
                      FormatCase{"NoDate", 0.0, FieldType::Date, false, "1899-12-30"},
                      FormatCase{"DateNull", kNull, FieldType::Date, false, ""},
                      FormatCase{"DateOfOtherText", Text("soon"), FieldType::Date, false, "soon"},
                      FormatCase{"TextBreak", Text("a\r\nb\nc\rd"), FieldType::Text, false, "a\nb\nc\rd"},
                      FormatCase{"TextQuestionMark", Text("?"), FieldType::Text, false, "€"},
                      FormatCase{"TextTwoQuestionMarks", Text("??"), FieldType::Text, false, "??"},
                      FormatCase{"MemoBreak", Text("a\r\nb"), FieldType::Memo, false, "a\nb"},
                      FormatCase{"MemoQuestionMark", Text("?"), FieldType::Memo, false, "?"},
                      FormatCase{"OtherStands", Text("a\r\nb"), FieldType::Other, false, "a\r\nb"},
                      FormatCase{"OtherNumber", 1.5, FieldType::Other, false, "1.5"}),
    [](const auto &info) { return info.param.name; });

struct TextCase {
    const char *name;
    const char *text;
    const char *result;
};

class XmlParseDateTest : public ::testing::TestWithParam<TextCase> {};

TEST_P(XmlParseDateTest, Parses) {
    EXPECT_EQ(XmlParseDate(Text(GetParam().text)), Text(GetParam().result));
}

INSTANTIATE_TEST_SUITE_P(
    Forms, XmlParseDateTest,
    ::testing::Values(TextCase{"TimeStamp", "2010-12-31T20:15:00.000Z", "2010-12-31 20:15:00"},
                      TextCase{"Milliseconds", "2012-05-09T18:10:47.123Z", "2012-05-09 18:10:47"},
                      TextCase{"DateAlone", "2010-12-31", "2010-12-31"},
                      TextCase{"WithoutTStaysWhole", "2010-12-31 20:15:00.000Z", "2010-12-31 20:15:00.000Z"},
                      TextCase{"SmallTIsNone", "2010-12-31t20:15:00.000Z", "2010-12-31t20:15:00.000Z"},
                      TextCase{"Empty", "", ""}),
    [](const auto &info) { return info.param.name; });

struct PriceCase {
    const char *name;
    const char *text;
    char mark;
    const char *result;
};

class ParsePriceTest : public ::testing::TestWithParam<PriceCase> {};

TEST_P(ParsePriceTest, SplitsNumberAndSymbol) {
    EXPECT_EQ(ParsePrice(Text(GetParam().text), QLatin1Char(GetParam().mark)), Text(GetParam().result));
}

INSTANTIATE_TEST_SUITE_P(
    Forms, ParsePriceTest,
    ::testing::Values(
        PriceCase{"SymbolBefore", "$21.99", '.', "21.99|$"}, PriceCase{"SymbolBehind", "21.99€", '.', "21.99|€"},
        PriceCase{"CommaLocale", "€12,90", ',', "12,90|€"}, PriceCase{"PointInCommaLocale", "$21.99", ',', "21,99|$"},
        PriceCase{"GroupingIsDropped", "€1.234,56", ',', "1234,56|€"},
        PriceCase{"ManyGroups", "1.234.567,89 kr", ',', "1234567,89| kr"},
        PriceCase{"CommaIsNoMarkInAPointLocale", "€12,90", '.', "1290|€,"},
        PriceCase{"GroupingCommaInAPointLocale", "$1,234.56", '.', "1234.56|$,"},
        PriceCase{"QuestionMarkIsTheEuro", "?12.90", '.', "12.90|€"},
        PriceCase{"QuestionMarkBehind", "12.90?", '.', "12.90|€"},
        PriceCase{"QuestionMarkFirstOfMore", "?x12.90", '.', "12.90|€"},
        PriceCase{"QuestionMarkLaterStays", "x?12.90", '.', "12.90|x?"}, PriceCase{"NoNumber", "USD", '.', "|USD"},
        PriceCase{"NoSymbol", "5", '.', "5|"}, PriceCase{"MarkAlone", ".", ',', ",|"},
        PriceCase{"Zero", "$0.00", '.', "0.00|$"}, PriceCase{"MinusIsSymbol", "-$5", '.', "5|-$"},
        PriceCase{"Empty", "", '.', "|"}, PriceCase{"SymbolOnBothSides", "AU$ 5.00 inc", '.', "5.00|AU$  inc"}),
    [](const auto &info) { return info.param.name; });

} // namespace
} // namespace ostrand
