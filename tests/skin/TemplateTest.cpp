#include "skin/Template.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <random>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QStringList ByExpression(const QString &page) {
    static const QRegularExpression expression(u"<(OSV|DP) Name=\".*?\"\\s*/?>"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    QStringList tags;
    for (auto match = expression.globalMatch(page); match.hasNext();) {
        tags.append(match.next().captured());
    }
    return tags;
}

TEST(SkinTags, AreFoundByTheirGrammar) {
    const struct {
        const char *name;
        QString page;
        QStringList tags;
    } cases[] = {
        {"closed", u"a<DP Name=\"TITLE\"/>b"_s, {u"<DP Name=\"TITLE\"/>"_s}},
        {"small, with a blank at the end", u"<dp name=\"TITLE\" >"_s, {u"<dp name=\"TITLE\" >"_s}},
        {"the other prefix", u"<OSV NAME=\"TITLE\">"_s, {u"<OSV NAME=\"TITLE\">"_s}},
        {"two blanks", u"<DP  NAME=\"TITLE\">"_s, {}},
        {"single quotes", u"<DP NAME='TITLE'>"_s, {}},
        {"another attribute first", u"<DP Divider=\",\" NAME=\"CAST\">"_s, {}},
        {"another prefix", u"<DPX NAME=\"CAST\">"_s, {}},
        {"attributes",
         u"<DP NAME=\"CAST\" Divider=\", \" ShowRoles=\"yes\">"_s,
         {u"<DP NAME=\"CAST\" Divider=\", \" ShowRoles=\"yes\">"_s}},
        {"a bracket in a value", u"<DP NAME=\"A\" X=\"<b>\">c"_s, {u"<DP NAME=\"A\" X=\"<b>\">"_s}},
        {"ends at the first quote before a bracket", u"<DP NAME=\"A\">\">"_s, {u"<DP NAME=\"A\">"_s}},
        {"an attribute without quotes runs on",
         u"<DP NAME=\"A\" X=1> and <DP NAME=\"B\">"_s,
         {u"<DP NAME=\"A\" X=1> and <DP NAME=\"B\">"_s}},
        {"over a line end", u"<DP NAME=\"A\n\">"_s, {}},
        {"a line end behind the last quote", u"<DP NAME=\"A\"\r\n/>"_s, {u"<DP NAME=\"A\"\r\n/>"_s}},
        {"two, and the same twice",
         u"<DP NAME=\"A\"><DP NAME=\"B\"><DP NAME=\"A\">"_s,
         {u"<DP NAME=\"A\">"_s, u"<DP NAME=\"B\">"_s, u"<DP NAME=\"A\">"_s}},
        {"in a comment", u"<!-- <DP NAME=\"A\"> -->"_s, {u"<DP NAME=\"A\">"_s}},
        {"never ended", u"<DP NAME=\"A"_s, {}},
        {"empty page", {}, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(FindSkinTags(c.page), c.tags) << c.name;
        EXPECT_EQ(ByExpression(c.page), c.tags) << c.name;
    }
}

TEST(SkinTags, AgreeWithTheExpressionOnRandomPages) {
    const QStringList pieces = {u"<DP Name=\""_s, u"<osv nAME=\""_s, u"\""_s, u">"_s, u"/"_s,
                                u" "_s,           u"\n"_s,           u"\t"_s, u"<"_s, u"x"_s,
                                u"="_s,           u"\r"_s,           u"DP"_s};
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        QString page;
        for (int i = 0, count = int(random() % 14); i < count; ++i) {
            page += pieces[qsizetype(random() % size_t(pieces.size()))];
        }
        ASSERT_EQ(FindSkinTags(page), ByExpression(page)) << qPrintable(page);
    }
}

TEST(SkinTags, OfAHostilePageTakeNoTimeToSpeakOf) {
    const QString openings = u"<DP Name=\""_s.repeated(200000);
    EXPECT_EQ(FindSkinTags(openings), QStringList());
    EXPECT_EQ(FindSkinTags(openings + u"\n\">"_s), QStringList());
    EXPECT_EQ(FindSkinTags(u"\""_s.repeated(1000000) + u" "_s.repeated(1000000)), QStringList());
    EXPECT_EQ(FindSkinTags(u"<DP Name=\"A\">"_s.repeated(50000)).size(), 50000);
}

TEST(TagAttributes, AreRead) {
    const struct {
        const char *name;
        QString tag, attribute, preset, value;
    } cases[] = {
        {"plain", u"<DP NAME=\"A\" Divider=\"; \">"_s, u"Divider"_s, u", "_s, u"; "_s},
        {"any case", u"<DP NAME=\"A\" dIVIDER=\"; \">"_s, u"Divider"_s, u", "_s, u"; "_s},
        {"missing", u"<DP NAME=\"A\">"_s, u"Divider"_s, u", "_s, u", "_s},
        {"empty", u"<DP NAME=\"A\" Divider=\"\">"_s, u"Divider"_s, u", "_s, u", "_s},
        {"first of two", u"<DP NAME=\"A\" X=\"1\" X=\"2\">"_s, u"X"_s, {}, u"1"_s},
        {"empty one is passed over", u"<DP NAME=\"A\" X=\"\" X=\"2\">"_s, u"X"_s, {}, u"2"_s},
        {"not the end of another name", u"<DP NAME=\"A\" SubDivider=\"-\">"_s, u"Divider"_s, u", "_s, u", "_s},
        {"blanks around the equals sign", u"<DP NAME=\"A\" X = \"1\">"_s, u"X"_s, u"0"_s, u"0"_s},
        {"markup stays", u"<DP NAME=\"A\" X=\"<b>&amp;\">"_s, u"X"_s, {}, u"<b>&amp;"_s},
        {"yes", u"<DP NAME=\"A\" X=\"YeS\">"_s, u"X"_s, {}, u"true"_s},
        {"no, of a text too", u"<DP NAME=\"A\" Prefix=\"No\">"_s, u"Prefix"_s, {}, u"false"_s},
        {"break", u"<DP NAME=\"A\" Divider=\"break\">"_s, u"Divider"_s, {}, u"<br/>"_s},
        {"rules hold for defaults", u"<DP NAME=\"A\">"_s, u"Divider"_s, u"BREAK"_s, u"<br/>"_s},
        {"the name itself", u"<DP Name=\"A\">"_s, u"NAME"_s, {}, u"A"_s},
        {"inside a value", u"<DP NAME=\"A\" X=\"Y=\" Y=\"2\">"_s, u"Y"_s, {}, u" Y="_s},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(GetTagAttribute(c.tag, c.attribute, c.preset), c.value) << c.name;
        const QRegularExpression expression(u"\\b"_s + c.attribute + u"=\\\"([^\\\"]+)\""_s,
                                            QRegularExpression::CaseInsensitiveOption);
        const QString by_expression = expression.match(c.tag).captured(1);
        EXPECT_EQ(GetTagAttribute(c.tag, c.attribute, c.preset),
                  GetTagAttribute({}, u"x", by_expression.isEmpty() ? c.preset : by_expression))
            << c.name;
    }
}

TEST(TagAttributes, AsTruthValues) {
    const struct {
        QString text;
        bool preset, value;
    } cases[] = {
        {u"yes"_s, false, true}, {u"NO"_s, true, false},  {u"True"_s, false, true}, {u"FALSE"_s, true, false},
        {u"0"_s, true, false},   {u"0.0"_s, true, false}, {u"2"_s, false, true},    {u"-1"_s, false, true},
        {u"0.1"_s, false, true}, {u" 1 "_s, false, true}, {u"1e1"_s, false, true},  {u"&H0"_s, true, false},
        {{}, true, true},        {{}, false, false},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(GetTagFlag(u"<DP NAME=\"A\" X=\""_s + c.text + u"\">"_s, u"X", c.preset), c.value)
            << qPrintable(c.text);
    }
}

TEST(TagAttributes, OfAnotherKindAreNoTruthValues) {
    for (const QString &text :
         {u"maybe"_s, u" true"_s, u"yes "_s, u" "_s, u"on"_s, u"y"_s, u"1x"_s, u"break"_s, u"nan"_s, u"inf"_s,
          u"-Infinity"_s, u"&H"_s, u"truefalse"_s, u"1e999"_s, u"0x1"_s, u"1 0"_s}) {
        EXPECT_THROW(GetTagFlag(u"<DP NAME=\"A\" X=\""_s + text + u"\">"_s, u"X", true), SkinFailure)
            << qPrintable(text);
    }
}

TEST(TagAttributes, AsNumbers) {
    const struct {
        QString text;
        int value;
    } cases[] = {
        {u"3"_s, 3},   {u"-2"_s, -2}, {u" 3 "_s, 3},  {u"abc"_s, 7},  {{}, 7},
        {u"2.5"_s, 2}, {u"3.5"_s, 4}, {u"1e99"_s, 7}, {u"1e1"_s, 10}, {u"&H10"_s, 16},
        {u"3x"_s, 7},  {u"nan"_s, 7}, {u"inf"_s, 7},  {u"no"_s, 7},   {u"yes"_s, 7},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(GetTagNumber(u"<DP NAME=\"A\" X=\""_s + c.text + u"\">"_s, u"X", 7), c.value) << qPrintable(c.text);
    }
}

} // namespace
} // namespace ostrand
