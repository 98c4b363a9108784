#include "xml/XmlText.h"

#include "base/Text.h"

#include <gtest/gtest.h>

#include <set>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

TEST(XmlTagTest, OpenAndClose) {
    EXPECT_EQ(XmlOpenTag(Text("A"), 0, false), Text("<A>"));
    EXPECT_EQ(XmlOpenTag(Text("A"), 2, true), Text("    <A>\r\n"));
    EXPECT_EQ(XmlCloseTag(Text("A"), 1, true), Text("  </A>\r\n"));
    EXPECT_EQ(XmlCloseTag(Text("A"), 1, false), Text("  </A>"));
}

TEST(XmlTagTest, TextTag) {
    EXPECT_EQ(XmlTextTag(Text("A"), Text("x<y"), 1, true), Text("  <A>x&lt;y</A>\r\n"));
    EXPECT_EQ(XmlTextTag(Text("A"), Text("x<y"), 1, false), Text("  <A>x<y</A>\r\n"));
    EXPECT_EQ(XmlTextTag(Text("A"), Text("x"), 0, true, Text("7"), false), Text("<A Type=\"7\">x</A>"));
    EXPECT_EQ(XmlTextTag(Text("A"), {}, 3), QString()) << "no tag at all";
    EXPECT_EQ(XmlTextTag(Text("A"), Text("\x01"), 3), QString());
}

TEST(EntitiesTest, EveryWindows1252CharacterByTheTable) {
    const std::set<int> gaps = {127, 129, 130, 141, 143, 144, 150, 151, 152, 157, 159, 160};
    for (int code = 123; code < 256; ++code) {
        const QString c(QChar(Windows1252ToUnicode(static_cast<unsigned char>(code))));
        const QString entity = QStringLiteral("&#%1;").arg(code);
        if (gaps.count(code) != 0) {
            EXPECT_EQ(DecodeEntities(entity), QString()) << code;
            EXPECT_EQ(EncodeEntities(c), code == 159 ? Text("&#376;") : c) << code;
        } else {
            EXPECT_EQ(EncodeEntities(c), entity) << code;
            EXPECT_EQ(DecodeEntities(entity), c) << code;
        }
    }
}

TEST(EntitiesTest, CharactersBelowAndBeyondTheTablePass) {
    for (int code = 0; code < 123; ++code) {
        const QChar c{char16_t(code)};
        if (!QStringView(u"&'\"<>").contains(c))
            EXPECT_EQ(EncodeEntities(QString(c)), QString(c)) << code;
        EXPECT_EQ(DecodeEntities(QStringLiteral("&#%1;").arg(code)), QString()) << code;
    }
    EXPECT_EQ(EncodeEntities(Text("ąд日🎬")), Text("ąд日🎬"));
}

struct EntityCase {
    const char *name;
    const char *text;
    const char *result;
};

class EncodeTest : public ::testing::TestWithParam<EntityCase> {};
TEST_P(EncodeTest, Encodes) {
    EXPECT_EQ(EncodeEntities(Text(GetParam().text)), Text(GetParam().result));
}
INSTANTIATE_TEST_SUITE_P(Rules, EncodeTest,
                         ::testing::Values(EntityCase{"Named", "& ' \" < >", "&amp; &apos; &quot; &lt; &gt;"},
                                           EntityCase{"LineBreak", "a\r\nb", "a&#13;&#10;b"},
                                           EntityCase{"LoneBreaksPass", "a\rb\nc", "a\rb\nc"},
                                           EntityCase{"Euro", "€", "&#128;"}, EntityCase{"YDiaeresis", "Ÿ", "&#376;"},
                                           EntityCase{"ByCodePageNumber", "ŒœŠšƒ", "&#140;&#156;&#138;&#154;&#131;"},
                                           EntityCase{"DashesPass", "–—˜‚", "–—˜‚"}),
                         [](const auto &info) { return info.param.name; });

class DecodeTest : public ::testing::TestWithParam<EntityCase> {};
TEST_P(DecodeTest, Decodes) {
    EXPECT_EQ(DecodeEntities(Text(GetParam().text)), Text(GetParam().result));
}
INSTANTIATE_TEST_SUITE_P(Rules, DecodeTest,
                         ::testing::Values(EntityCase{"Named", "&amp;&apos;&quot;&lt;&gt;", "&'\"<>"},
                                           EntityCase{"DecodeOnly", "&#338;&#339;&#352;&#353;&#402;&#376;", "ŒœŠšƒŸ"},
                                           EntityCase{"UnknownIsDropped", "a&T;b", "ab"},
                                           EntityCase{"FiveApartIsLookedUp", "a&abcd;b", "ab"},
                                           EntityCase{"SixApartStands", "a&abcde;b", "a&abcde;b"},
                                           EntityCase{"NoSemicolon", "a & b", "a & b"},
                                           EntityCase{"NotTwice", "&amp;lt;", "&lt;"},
                                           EntityCase{"NamesHaveACase", "&AMP;", ""},
                                           EntityCase{"EmptyRun", "a&;b", "ab"},
                                           EntityCase{"FarOneDoesNotHideANearOne", "a & b c &lt;", "a & b c <"},
                                           EntityCase{"RunStartsAtTheFirstAmpersand", "&&lt;", ""},
                                           EntityCase{"LineBreakEntitiesAreNotInTheTable", "a&#13;&#10;b", "ab"},
                                           EntityCase{"LeadingZero", "&#065;", ""}, EntityCase{"Empty", "", ""},
                                           EntityCase{"AtTheEnd", "x&", "x&"}),
                         [](const auto &info) { return info.param.name; });

TEST(EntitiesTest, EncodedTextsDecode) {
    const QString text = Text("<Ärger> & \"Müll\" {x} €5 – ‚‘’ Ÿ ŒœŠšƒ ąд日");
    EXPECT_EQ(DecodeEntities(EncodeEntities(text)), text);
}

struct ExtractCase {
    const char *name;
    const char *text;
    bool decode;
    const char *result;
};

class ExtractTagTest : public ::testing::TestWithParam<ExtractCase> {};
TEST_P(ExtractTagTest, Extracts) {
    EXPECT_EQ(ExtractTag(Text(GetParam().text), u"COUNTRY", GetParam().decode), Text(GetParam().result));
}
INSTANTIATE_TEST_SUITE_P(Rules, ExtractTagTest,
                         ::testing::Values(ExtractCase{"Plain", "a<COUNTRY>France</COUNTRY>b", false, "France"},
                                           ExtractCase{"AnyCase", "<Country>France</counTRY>", false, "France"},
                                           ExtractCase{"WithAttributes", "<COUNTRY x='1'>France</COUNTRY>", false,
                                                       "France"},
                                           ExtractCase{"First", "<COUNTRY>A</COUNTRY><COUNTRY>B</COUNTRY>", false, "A"},
                                           ExtractCase{"LongerTagCounts", "<COUNTRYSIDE>A</COUNTRY>", false, "A"},
                                           ExtractCase{"Empty", "<COUNTRY></COUNTRY>", false, ""},
                                           ExtractCase{"Missing", "France", false, ""},
                                           ExtractCase{"NoEndOfTheStart", "<COUNTRY", false, ""},
                                           ExtractCase{"NoEndTag", "<COUNTRY>France", false, ""},
                                           ExtractCase{"EndBeforeStart", "</COUNTRY><COUNTRY>x", false, ""},
                                           ExtractCase{"NotDecoded", "<COUNTRY>A&amp;B</COUNTRY>", false, "A&amp;B"},
                                           ExtractCase{"Decoded", "<COUNTRY>A&amp;B&T;</COUNTRY>", true, "A&B"},
                                           ExtractCase{"Lines", "<COUNTRY>\r\nA\r\n</COUNTRY>", false, "\r\nA\r\n"}),
                         [](const auto &info) { return info.param.name; });

} // namespace
} // namespace ostrand
