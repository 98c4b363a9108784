#include "xml/Utf8Files.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

TEST(CharToUtf8Test, OneTwoAndThreeBytes) {
    const std::vector<std::pair<char16_t, QByteArray>> cases = {
        {0, QByteArray(1, '\0')}, {0x7F, "\x7F"},           {0x80, "\xC2\x80"},
        {0x7FF, "\xDF\xBF"},      {0x800, "\xE0\xA0\x80"},  {0x20AC, "\xE2\x82\xAC"},
        {0xD83C, "\xED\xA0\xBC"}, {0xDFAC, "\xED\xBE\xAC"}, {0xFFFF, "\xEF\xBF\xBF"}};
    for (const auto &[code, bytes] : cases)
        EXPECT_EQ(CharToUtf8(code), bytes) << int(code);
}

TEST(StringToUtf8Test, SurrogatesAsTheyStand) {
    EXPECT_EQ(StringToUtf8(Text("aä")), QByteArray("a\xC3\xA4"));
    EXPECT_EQ(StringToUtf8(Text("🎬")), QByteArray("\xED\xA0\xBC\xED\xBE\xAC"));
}

TEST(Utf8FileTest, WritesTheMarkAndReadsBack) {
    test::TempDir dir;
    for (const QString &text : {Text(""), Text("aä€\r\n"), Text("x🎬y"), QString(QChar(0xD800)), Text("\uFEFFx")}) {
        const QString path = dir.Write(Text("a.txt"), "something longer that stood here before");
        ASSERT_TRUE(WriteUtf8File(path, text));
        EXPECT_EQ(dir.Read(Text("a.txt")), "\xEF\xBB\xBF" + StringToUtf8(text));
        EXPECT_EQ(ReadUtf8File(path), text) << qPrintable(text);
    }
    EXPECT_FALSE(WriteUtf8File(dir / Text("none/a.txt"), {}));
}

TEST(ReadUtf8FileTest, RemovesTheFirstCharacterUnseen) {
    test::TempDir dir;
    EXPECT_EQ(ReadUtf8File(dir.Write(Text("a"), "abc")), Text("bc"));
    EXPECT_EQ(ReadUtf8File(dir.Write(Text("b"), "\xC3\xA4x")), Text("x"));
    EXPECT_EQ(ReadUtf8File(dir.Write(Text("c"), "")), QString());
    EXPECT_EQ(ReadUtf8File({}), QString());
    EXPECT_EQ(ReadUtf8File(dir / Text("none")), QString());
}

TEST(ReadUtf8FileTest, FourByteFormsAndFaults) {
    test::TempDir dir;
    EXPECT_EQ(ReadUtf8File(dir.Write(Text("a"), "\xEF\xBB\xBF\xF0\x9F\x8E\xAC")), Text("🎬"));
    EXPECT_EQ(ReadUtf8File(dir.Write(Text("b"), "\xEF\xBB\xBF"
                                                "a\xE4"
                                                "b\xF0\x9F\x8E\xAC\xED\xA0\xBC\xED\xBE\xAC\xC3")),
              Text("a\uFFFDb🎬🎬\uFFFD"));
}

TEST(IsUnicodeFileTest, ByTheFirstByte) {
    test::TempDir dir;
    EXPECT_TRUE(IsUnicodeFile(dir.Write(Text("a"), "\xFF\xFEx")));
    EXPECT_TRUE(IsUnicodeFile(dir.Write(Text("b"), "\xEF\xBB\xBFx")));
    EXPECT_TRUE(IsUnicodeFile(dir.Write(Text("c"), "\xEF")));
    EXPECT_FALSE(IsUnicodeFile(dir.Write(Text("d"), "\xFE\xFFx")));
    EXPECT_FALSE(IsUnicodeFile(dir.Write(Text("e"), "plain")));
    EXPECT_FALSE(IsUnicodeFile(dir.Write(Text("f"), "")));
    EXPECT_FALSE(IsUnicodeFile(dir / Text("none")));
}

TEST(UnicodeTextTest, KeepsATextInAnXmlFile) {
    test::TempDir dir;
    const QString path = dir / Text("t.xml");
    for (const QString &text : {Text(""), Text(" "), Text("a & <b>\nä🎬")}) {
        ASSERT_TRUE(WriteUnicodeText(text, path));
        EXPECT_EQ(ReadUnicodeText(path), text);
    }
    EXPECT_EQ(dir.Read(Text("t.xml")), QByteArray("<Text>a &amp; &lt;b&gt;\n\xC3\xA4\xF0\x9F\x8E\xAC</Text>\r\n"));
    EXPECT_EQ(ReadUnicodeText(dir.Write(Text("u.xml"), "<Other>x</Other>")), QString());
    EXPECT_EQ(ReadUnicodeText(dir.Write(Text("v.xml"), "<Text>x")), QString());
    EXPECT_EQ(ReadUnicodeText(dir / Text("none.xml")), QString());
}

} // namespace
} // namespace ostrand
