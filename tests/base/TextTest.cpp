#include "base/Text.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

struct DecodeCase {
    const char *name;
    QByteArray bytes;
    QString text;
};

class DecodeUserTextTest : public ::testing::TestWithParam<DecodeCase> {};

TEST_P(DecodeUserTextTest, Decodes) {
    EXPECT_EQ(DecodeUserText(GetParam().bytes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Encodings, DecodeUserTextTest,
                         ::testing::Values(DecodeCase{"Empty", "", {}}, DecodeCase{"Ascii", "abc", Text("abc")},
                                           DecodeCase{"Utf8", "\xC3\xA4\xE2\x82\xAC", Text("ä€")},
                                           DecodeCase{"Utf8BeyondTheFirstPlane", "\xF0\x9F\x8E\xAC", Text("🎬")},
                                           DecodeCase{"ByteOrderMarkGoes", "\xEF\xBB\xBFx", Text("x")},
                                           DecodeCase{"CodePage", "\xE4\x80", Text("ä€")},
                                           DecodeCase{"CutOffUtf8IsCodePage", "x\xC3", Text("xÃ")},
                                           DecodeCase{"CutOffThreeBytesAreCodePage", "\xE2\x82", Text("â‚")},
                                           DecodeCase{"OverlongIsCodePage", "\xC0\xAF", Text("À¯")},
                                           DecodeCase{"SurrogateIsCodePage", "\xED\xA0\x80",
                                                      QString::fromUtf8("í €").replace(u' ', QChar(0xA0))}),
                         [](const auto &info) { return info.param.name; });

TEST(Windows1252Test, EveryByteHasItsOwnCharacterAndComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const char16_t c = Windows1252ToUnicode(static_cast<unsigned char>(byte));
        EXPECT_EQ(UnicodeToWindows1252(c), byte);
    }
}

TEST(Windows1252Test, TheFiveBytesWithoutCharacterKeepTheirNumber) {
    for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(int(Windows1252ToUnicode(static_cast<unsigned char>(byte))), byte);
}

TEST(Windows1252Test, CharactersBeyondItHaveNoByte) {
    for (const char16_t c : {u'\u0080', u'\u0100', u'\u20AD', u'\uFFFF', u'\u009F'})
        EXPECT_EQ(UnicodeToWindows1252(c), -1);
}

TEST(Windows1252Test, DecodesTheUpperControls) {
    EXPECT_EQ(DecodeWindows1252("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), Text("€‚ƒ„…†‡ˆ‰Š‹ŒŽ"));
    EXPECT_EQ(DecodeWindows1252("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"), Text("‘’“”•–—˜™š›œžŸ"));
}

TEST(EncodeUserTextTest, IsUtf8WithoutAMark) {
    EXPECT_EQ(EncodeUserText(Text("ä")), QByteArray("\xC3\xA4"));
}

struct NameCase {
    const char *name;
    QString text;
    QString file;
};

class SafeFileNameTest : public ::testing::TestWithParam<NameCase> {};

TEST_P(SafeFileNameTest, MakesAFileName) {
    EXPECT_EQ(SafeFileName(GetParam().text), GetParam().file);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, SafeFileNameTest,
    ::testing::Values(NameCase{"Colon", Text("Alpha: Beta"), Text("Alpha - Beta")},
                      NameCase{"CharactersThatGo", Text("a?b\\c/d*e<f>g"), Text("abcdefg")},
                      NameCase{"DoubleQuote", Text("the \"x\""), Text("the 'x'")},
                      NameCase{"OthersStay", Text("Ä | é; 100%"), Text("Ä | é; 100%")},
                      NameCase{"ControlsGo", QStringLiteral("a\tb\nc\u0000d\u007Fe\u0085f"), Text("abcdef")},
                      NameCase{"TrailingDotStays", Text("Jo Doe Jr."), Text("Jo Doe Jr.")},
                      NameCase{"Dot", Text("."), Text("_")}, NameCase{"DotDot", Text(".."), Text("__")},
                      NameCase{"DotDotBySlashes", Text("./."), Text("__")},
                      NameCase{"DotDotInBlanks", Text(" .. "), Text(" __ ")},
                      NameCase{"PathUpwards", Text("../../etc/passwd"), Text("....etcpasswd")},
                      NameCase{"Empty", {}, {}}),
    [](const auto &info) { return info.param.name; });

TEST(IgnoringCaseTest, ComparesBeyondAscii) {
    EXPECT_TRUE(EqualsIgnoringCase(Text("ÄRGER"), Text("ärger")));
    EXPECT_FALSE(EqualsIgnoringCase(Text("a"), Text("b")));
    EXPECT_TRUE(StartsWithIgnoringCase(Text("Key_1"), Text("KEY_")));
    EXPECT_FALSE(StartsWithIgnoringCase(Text("Key"), Text("Key_")));
    EXPECT_EQ(IndexOfIgnoringCase(Text("xxABab"), Text("ab")), 2);
    EXPECT_EQ(IndexOfIgnoringCase(Text("xxABab"), Text("ab"), 3), 4);
    EXPECT_EQ(IndexOfIgnoringCase(Text("xx"), Text("ab")), -1);
}

} // namespace
} // namespace ostrand
