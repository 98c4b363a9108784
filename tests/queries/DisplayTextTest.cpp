#include "queries/DisplayText.h"

#include <gtest/gtest.h>

namespace ostrand {
using namespace Qt::StringLiterals;
namespace {

TEST(DisplayText, ShowsControlCharactersHarmlessly) {
    EXPECT_EQ(HarmlessText(u"plain äß 漢"_s), u"plain äß 漢"_s);
    EXPECT_EQ(HarmlessText(QStringLiteral("a\nb\tc")), u"a\u240Ab\u2409c"_s);
    EXPECT_EQ(HarmlessText(QStringLiteral("\x1B[31m")), u"\u241B[31m"_s);
    EXPECT_EQ(HarmlessText(QString(QChar(0x7F))), u"\u2421"_s);
    EXPECT_EQ(HarmlessText(QString(QChar(0x9B))), u"\uFFFD"_s);
    EXPECT_EQ(HarmlessText(QString(QChar(0x202E))), u"\uFFFD"_s);
    EXPECT_EQ(HarmlessText(QString(QChar(0x2028))), u"\uFFFD"_s);
    EXPECT_EQ(HarmlessText(QString(QChar(0))), u"\u2400"_s);
}

TEST(DisplayText, CountsTheColumnsOfATerminal) {
    EXPECT_EQ(DisplayWidth(u""), 0);
    EXPECT_EQ(DisplayWidth(u"abc"), 3);
    EXPECT_EQ(DisplayWidth(u"ä"), 1);
    EXPECT_EQ(DisplayWidth(u"a\u0308"), 1);
    EXPECT_EQ(DisplayWidth(u"漢字"), 4);
    EXPECT_EQ(DisplayWidth(u"\U0001F600"), 2);
    EXPECT_EQ(DisplayWidth(u"\u200B"), 0);
}

} // namespace
} // namespace ostrand
