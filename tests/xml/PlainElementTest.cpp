#include "xml/PlainElement.h"

#include "xml/ExpatEncoding.h"
#include "xml/TreeBuilder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ostrand {
namespace {

MarkupEncoding Windows1252() {
    MarkupEncoding encoding;
    encoding.form = MarkupEncoding::Form::Bytes;
    const auto map = EightBitEncoding("windows-1252");
    for (std::size_t i = 0; i < map->size(); ++i) {
        encoding.character[i] = char16_t((*map)[i]);
    }
    return encoding;
}

std::string Printed(const pugi::xml_document &document) {
    std::ostringstream text;
    document.print(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return text.str();
}

/// The tree as the parser's events make it.
std::string BuiltTree(const QByteArray &declaration, const QByteArray &markup) {
    TreeBuilder builder(1, 0);
    EXPECT_TRUE(builder.Feed(declaration) && builder.Feed(markup)) << markup.constData();
    return Printed(builder.Document());
}

TEST(PlainElement, GivesTheTreeThatTheParserGives) {
    const QByteArray plain[] = {
        "<a/>",
        "<a></a>",
        "<a>  \r\n </a>",
        "<a b='1' c=\"x &quot;y&apos; &lt;&gt;&amp;\"/>",
        "<a b='tab\there\r\nand\nthere'/>",
        "<a>one\r\ntwo\rthree\nfour</a>",
        "<a> leading and trailing </a>",
        "<a>\r\n  <b>1</b>\r\n  <b> 2</b>\r\n</a>",
        "<a>mixed <b>in</b> text <c/> end</a>",
        "<a>&amp;amp; &lt;b&gt; ]] &gt;</a>",
        "<a b = '1'\n  c='2' ><d  /></a >",
        "<a-b.c_1:d>\x41</a-b.c_1:d>",
        "<a>caf\xE9 \x80 \x93quoted\x94 \xFE\xFF</a>",
        "<\xE9l\xE9ment \xE0='\xDF'/>",
    };
    for (const QByteArray &markup : plain) {
        const auto bytes = ReadPlainElement(markup, Windows1252());
        ASSERT_TRUE(bytes) << markup.constData();
        EXPECT_EQ(Printed(*bytes), BuiltTree("<?xml version='1.0' encoding='windows-1252'?>", markup));
        const auto latin = ReadPlainElement(markup, MarkupEncoding::Latin1());
        ASSERT_TRUE(latin) << markup.constData();
        EXPECT_EQ(Printed(*latin), BuiltTree("<?xml version='1.0' encoding='ISO-8859-1'?>", markup));
        const QByteArray utf8 = QString::fromLatin1(markup).toUtf8();
        const auto wide = ReadPlainElement(utf8, MarkupEncoding());
        ASSERT_TRUE(wide) << markup.constData();
        EXPECT_EQ(Printed(*wide), BuiltTree("<?xml version='1.0' encoding='UTF-8'?>", utf8));
    }
}

TEST(PlainElement, LeavesToTheParserWhatItWouldReadOtherwise) {
    const QByteArray others[] = {
        "",
        "<a>x<!-- y -->z</a>",
        "<a><![CDATA[ ]]></a>",
        "<a>x<?y z?></a>",
        "<a>&#32;</a>",
        "<a b='&#10;'/>",
        "<a>",
        "<a></b>",
    };
    for (const QByteArray &markup : others) {
        EXPECT_FALSE(ReadPlainElement(markup, MarkupEncoding())) << markup.constData();
        EXPECT_FALSE(ReadPlainElement(markup, Windows1252())) << markup.constData();
    }
    MarkupEncoding wide;
    wide.form = MarkupEncoding::Form::Utf16LittleEndian;
    EXPECT_FALSE(ReadPlainElement("<a/>", wide));
}

} // namespace
} // namespace ostrand
