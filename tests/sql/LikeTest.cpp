#include "sql/Like.h"
#include "sql/SqlError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

struct Row {
    QString text;
    QString pattern;
    bool matches;
};

TEST(Like, FollowsItsWildcards) {
    const Row rows[] = {
        {u"ox"_s, u"o*x"_s, true},
        {u"oTx"_s, u"o*x"_s, true},
        {u"oTTTx"_s, u"o*x"_s, true},
        {u"oTTTy"_s, u"o*x"_s, false},
        {u"o*x"_s, u"o[*]x"_s, true},
        {u"oTx"_s, u"o[*]x"_s, false},
        {u"o7x"_s, u"o?x"_s, true},
        {u"o77x"_s, u"o?x"_s, false},
        {u"o7x"_s, u"o#x"_s, true},
        {u"o77x"_s, u"o#x"_s, false},
        {u"oTx"_s, u"o#x"_s, false},
        {u"o٣x"_s, u"o#x"_s, false},
        {u"K"_s, u"[h-m]"_s, true},
        {u"K"_s, u"[!h-m]"_s, false},
        {u"2"_s, u"[!0-5]"_s, false},
        {u"9"_s, u"[!0-5]"_s, true},
        {u"rd8"_s, u"r[!c-k]#"_s, false},
        {u"rz8"_s, u"r[!c-k]#"_s, true},
        {u"Lost Songs?"_s, u"*[?]*"_s, true},
        {u"Lost Songs"_s, u"*[?]*"_s, false},
        {u"Part #1"_s, u"*[#]1"_s, true},
        {u"Saga"_s, u"S_ga*"_s, false},
        {u"S_ga"_s, u"S_ga*"_s, true},
        {u"50%"_s, u"50%"_s, true},
        {u"500"_s, u"50%"_s, false},
        {u""_s, u""_s, true},
        {u"a"_s, u""_s, false},
        {u""_s, u"*"_s, true},
        {u""_s, u"?"_s, false},
        {u""_s, u"***"_s, true},
        {u"abc"_s, u"**c"_s, true},
        {u"Mia Stone (1970), actress"_s, u"*Mia Stone (1970)*"_s, true},
        {u"[DivGroup]"_s, u"?Div*"_s, true},
        {u"Diver"_s, u"?Div*"_s, false},
        {u"abab"_s, u"*ab"_s, true},
        {u"aXbXc"_s, u"a*b*c"_s, true},
        {u"aXcXb"_s, u"a*b*c"_s, false},
        {u"line one\nline two"_s, u"*one?line*"_s, true},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(LikePattern(row.pattern).Matches(row.text), row.matches)
            << row.text.toStdString() << " like " << row.pattern.toStdString();
        EXPECT_EQ(LikePattern(row.pattern).MatchesUtf8(row.text.toStdString()), row.matches)
            << row.text.toStdString() << " like " << row.pattern.toStdString();
    }
}

TEST(Like, ReadsGroups) {
    const Row rows[] = {
        {u"]"_s, u"]"_s, true},          {u"a]b"_s, u"a]b"_s, true},       {u"["_s, u"[[]"_s, true},
        {u""_s, u"[]"_s, true},          {u"ab"_s, u"a[]b"_s, true},       {u"-"_s, u"[-a]"_s, true},
        {u"a"_s, u"[-a]"_s, true},       {u"-"_s, u"[a-]"_s, true},        {u"b"_s, u"[a-]"_s, false},
        {u"-"_s, u"[!-a]"_s, false},     {u"!"_s, u"[a!]"_s, true},        {u"!"_s, u"[!]"_s, true},
        {u"a"_s, u"[!]"_s, false},       {u"!"_s, u"!"_s, true},           {u"b"_s, u"[a-cx-z]"_s, true},
        {u"y"_s, u"[a-cx-z]"_s, true},   {u"m"_s, u"[a-cx-z]"_s, false},   {u"-"_s, u"[a-c-e]"_s, true},
        {u"d"_s, u"[a-c-e]"_s, false},   {u"_x"_s, u"[0-9_b]*"_s, true},   {u"10"_s, u"[0-9_b]*"_s, true},
        {u"Bob"_s, u"[0-9_b]*"_s, true}, {u"cab"_s, u"[0-9_b]*"_s, false}, {u"?"_s, u"[?*#]"_s, true},
        {u"x"_s, u"[?*#]"_s, false},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(LikePattern(row.pattern).Matches(row.text), row.matches)
            << row.text.toStdString() << " like " << row.pattern.toStdString();
    }
}

TEST(Like, IgnoresCaseButNotAccents) {
    const Row rows[] = {
        {u"APPLE Garden"_s, u"apple*"_s, true},
        {u"ZOË"_s, u"zoë"_s, true},
        {u"Zoë"_s, u"zoe"_s, false},
        {u"Zoë"_s, u"zo?"_s, true},
        {u"é"_s, u"[a-z]"_s, true},
        {u"é"_s, u"[f-z]"_s, false},
        {u"É"_s, u"[e-f]"_s, true},
        {u"é"_s, u"[e]"_s, false},
        {u"МИР"_s, u"м*р"_s, true},
        {u"aeon"_s, u"æon"_s, false},
        {u"A"_s, u"[A-Z]"_s, true},
        {u"5"_s, u"[a-z]"_s, false},
        {u"abc "_s, u"abc"_s, false},
        {u"\U0001F3AC"_s, u"??"_s, true},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(LikePattern(row.pattern).Matches(row.text), row.matches)
            << row.text.toStdString() << " like " << row.pattern.toStdString();
    }
}

TEST(Like, RefusesFaultyPatterns) {
    for (const auto pattern : {u"[abc", u"[", u"abc[", u"[a]b[", u"[z-a]", u"[!9-0]"}) {
        try {
            LikePattern compiled{QStringView(pattern)};
            ADD_FAILURE() << QString::fromUtf16(pattern).toStdString();
        } catch (const SqlError &error) {
            EXPECT_EQ(error.Code(), ErrorCode::InvalidPattern);
            EXPECT_TRUE(error.Text().contains(u"nvalid pattern"_s));
        }
    }
}

TEST(Like, ManyStarsComeToAnEnd) {
    QString pattern;
    for (int i = 0; i < 50; ++i) {
        pattern += u"*a"_s;
    }
    const QString text(20000, u'a');
    EXPECT_FALSE(LikePattern(pattern + u'b').Matches(text));
    EXPECT_TRUE(LikePattern(pattern).Matches(text));
}

} // namespace
} // namespace ostrand::sql
