#include "xml/XmlLoader.h"

#include "support/TempDir.h"
#include "xml/XmlNodes.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

QByteArray Utf16(const QString &text, bool big, bool mark = true) {
    QByteArray bytes;
    for (const QChar c : mark ? QChar(0xFEFF) + text : text) {
        const char high = char(c.unicode() >> 8);
        const char low = char(c.unicode() & 0xFF);
        bytes += big ? high : low;
        bytes += big ? low : high;
    }
    return bytes;
}

struct EncodingCase {
    const char *name;
    QByteArray bytes;
    QString text;
};

class XmlEncodingTest : public ::testing::TestWithParam<EncodingCase> {};

TEST_P(XmlEncodingTest, ReadsTheText) {
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes(GetParam().bytes, document);
    ASSERT_TRUE(result.ok) << qPrintable(result.reason);
    EXPECT_EQ(XmlNodeText(document.document_element()), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Encodings, XmlEncodingTest,
    ::testing::Values(
        EncodingCase{"DefaultIsUtf8", "<a>\xC3\xA4</a>", Text("ä")},
        EncodingCase{"Utf8", "<?xml version='1.0' encoding='utf-8'?><a>\xE2\x82\xAC</a>", Text("€")},
        EncodingCase{"Utf8WithMark", "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><a>\xF0\x9F\x8E\xAC</a>",
                     Text("🎬")},
        EncodingCase{"Utf16Little", Utf16(Text("<?xml version='1.0' encoding='utf-16'?><a>ä€</a>"), false), Text("ä€")},
        EncodingCase{"Utf16Big", Utf16(Text("<?xml version='1.0' encoding='utf-16'?><a>ä€</a>"), true), Text("ä€")},
        EncodingCase{"Latin1", "<?xml version='1.0' encoding='iso-8859-1'?><a>\xE4</a>", Text("ä")},
        EncodingCase{"Ascii", "<?xml version='1.0' encoding='us-ascii'?><a>x&#228;</a>", Text("xä")},
        EncodingCase{"Windows1252", "<?xml version='1.0' encoding='windows-1252'?><a>\x80\x96\x92\xE4\x99</a>",
                     Text("€–’ä™")},
        EncodingCase{"Windows1252InCapitals", "<?xml version='1.0' encoding='Windows-1252'?><a>\x80</a>", Text("€")},
        EncodingCase{"Windows1250", "<?xml version='1.0' encoding='windows-1250'?><a>\xE8</a>", Text("č")},
        EncodingCase{"Latin2", "<?xml version='1.0' encoding='iso-8859-2'?><a>\xB1</a>", Text("ą")},
        EncodingCase{"Koi8", "<?xml version='1.0' encoding='koi8-r'?><a>\xC4</a>", Text("д")}),
    [](const auto &info) { return info.param.name; });

struct FaultCase {
    const char *name;
    QByteArray bytes;
    const char *reason;
    const char *source;
    qint64 line;
};

class XmlFaultTest : public ::testing::TestWithParam<FaultCase> {};

TEST_P(XmlFaultTest, TellsReasonSourceAndLine) {
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes(GetParam().bytes, document);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason.toStdString(), GetParam().reason);
    EXPECT_EQ(result.source.toStdString(), GetParam().source);
    EXPECT_EQ(result.line, GetParam().line);
    EXPECT_TRUE(document.first_child().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Faults, XmlFaultTest,
    ::testing::Values(
        FaultCase{"Empty", "", "no element found", "", 1}, FaultCase{"NoXml", "hello", "syntax error", "hello", 1},
        FaultCase{"WrongEnd", "<a>\r\n  <b></c>\r\n</a>", "mismatched tag", "  <b></c>", 2},
        FaultCase{"CutOff", "<a>\n<b>", "no element found", "<b>", 2},
        FaultCase{"UnknownEntity", "<a>\n&nbsp;</a>", "undefined entity", "&nbsp;</a>", 2},
        FaultCase{"TwoRoots", "<a/><b/>", "junk after document element", "<a/><b/>", 1},
        FaultCase{"Latin1ThatSaysUtf8", "<?xml version='1.0' encoding='utf-8'?>\n<a>M\xE4rz</a>",
                  "not well-formed (invalid token)", "<a>März</a>", 2},
        FaultCase{"UnknownEncoding", "<?xml version='1.0' encoding='klingon'?><a/>", "unknown encoding",
                  "<?xml version='1.0' encoding='klingon'?><a/>", 1},
        FaultCase{"MultiByteEncodingIsNotKnown", "<?xml version='1.0' encoding='shift_jis'?><a/>", "unknown encoding",
                  "<?xml version='1.0' encoding='shift_jis'?><a/>", 1},
        FaultCase{"ControlCharacter", QByteArray("<a>\x01</a>"), "not well-formed (invalid token)", "<a>\x01</a>", 1},
        FaultCase{"ByteWithoutCharacter", "<?xml version='1.0' encoding='iso-8859-3'?>\n<a>\xA5</a>",
                  "not well-formed (invalid token)", "<a>¥</a>", 2},
        FaultCase{"Utf16", Utf16(Text("<a>\n<b>ä</c></a>"), false), "mismatched tag", "<b>ä</c></a>", 2},
        FaultCase{"TwiceTheSameAttribute", "<a b='1' b='2'/>", "duplicate attribute", "<a b='1' b='2'/>", 1}),
    [](const auto &info) { return info.param.name; });

TEST(XmlLoaderTest, CutsALongSourceLine) {
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes("<a>" + QByteArray(5000, 'x') + "</b>" + QByteArray(5000, 'y'), document);
    EXPECT_EQ(result.reason, Text("mismatched tag"));
    EXPECT_EQ(result.source.size(), 200);
    EXPECT_TRUE(result.source.contains(Text("x</b>y")));
}

TEST(XmlLoaderTest, AMissingFileHasNoLine) {
    test::TempDir dir;
    pugi::xml_document document;
    const XmlResult result = XmlLoadFile(dir / Text("none.xml"), document);
    EXPECT_FALSE(result.ok);
    EXPECT_FALSE(result.reason.isEmpty());
    EXPECT_EQ(result.line, 0);
}

TEST(XmlLoaderTest, AFaultEmptiesADocumentThatWasFull) {
    pugi::xml_document document;
    ASSERT_TRUE(XmlLoadBytes("<a/>", document).ok);
    EXPECT_FALSE(XmlLoadBytes("<a", document).ok);
    EXPECT_TRUE(document.document_element().empty());
}

TEST(XmlLoaderTest, DropsWhiteSpaceBetweenElementsUnlessAsked) {
    const QByteArray bytes = "<a>\r\n  <b> </b>\r\n  <c> x </c></a>";
    pugi::xml_document document;
    ASSERT_TRUE(XmlLoadBytes(bytes, document).ok);
    EXPECT_EQ(XmlMarkup(document.document_element()), Text("<a><b/><c> x </c></a>"));
    ASSERT_TRUE(XmlLoadBytes(bytes, document, XmlWhitespace::Keep).ok);
    EXPECT_EQ(XmlMarkup(document.document_element()), Text("<a>\n  <b> </b>\n  <c> x </c></a>"));
}

TEST(XmlLoaderTest, SkipsCommentsAndInstructionsAndJoinsTexts) {
    pugi::xml_document document;
    ASSERT_TRUE(
        XmlLoadBytes("<!--x--><?p q?><a>one<!-- two --> <![CDATA[<three>]]>&amp;<b x='1'/>four</a>", document).ok);
    EXPECT_EQ(XmlMarkup(document.document_element()), Text("<a>one &lt;three&gt;&amp;<b x=\"1\"/>four</a>"));
    EXPECT_EQ(XmlNodeText(document.document_element()), Text("one <three>&four"));
}

TEST(XmlLoaderTest, ExpandsEntitiesOfTheDocument) {
    pugi::xml_document document;
    const QByteArray bytes = "<!DOCTYPE a [<!ENTITY b 'x&#38;#38;y'><!ENTITY c '&b;<d/>'>]><a e='&b;'>&c;</a>";
    ASSERT_TRUE(XmlLoadBytes(bytes, document).ok);
    EXPECT_EQ(XmlMarkup(document.document_element()), Text("<a e=\"x&amp;y\">x&amp;y<d/></a>"));
}

TEST(XmlLoaderTest, FetchesNothingFromOutside) {
    test::TempDir dir;
    dir.Write(Text("secret.txt"), "secret");
    const QByteArray url = "file://" + (dir / Text("secret.txt")).toUtf8();
    pugi::xml_document document;
    const QByteArray bytes = "<!DOCTYPE a SYSTEM '" + url + "' [<!ENTITY b SYSTEM '" + url + "'>]><a>1&b;2</a>";
    ASSERT_TRUE(XmlLoadFile(dir.Write(Text("a.xml"), bytes), document).ok);
    EXPECT_EQ(XmlNodeText(document.document_element()), Text("12"));
}

TEST(XmlLoaderTest, StopsEntitiesThatGrowOutOfBounds) {
    QByteArray bytes = "<!DOCTYPE a [<!ENTITY e0 '" + QByteArray(100, 'x') + "'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ';';
        bytes += "<!ENTITY e" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes(bytes + "]><a>&e11;</a>", document);
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.reason.contains(Text("amplification"))) << qPrintable(result.reason);
}

TEST(XmlLoaderTest, StopsAnEntityWithinItself) {
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes("<!DOCTYPE a [<!ENTITY b '&c;'><!ENTITY c '&b;'>]><a>&b;</a>", document);
    EXPECT_EQ(result.reason, Text("recursive entity reference"));
}

TEST(XmlLoaderTest, StopsALongChainOfEntities) {
    QByteArray bytes = "<!DOCTYPE a [<!ENTITY e0 'x'>";
    for (int i = 1; i < 200'000; ++i)
        bytes += "<!ENTITY e" + QByteArray::number(i) + " '&e" + QByteArray::number(i - 1) + ";'>";
    pugi::xml_document document;
    const XmlResult result = XmlLoadBytes(bytes + "]><a b='&e199999;'>&e199999;</a>", document);
    EXPECT_EQ(result.reason, Text("too many entities are declared"));
}

QByteArray Nested(int depth) {
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

TEST(XmlLoaderTest, StopsDeepNesting) {
    pugi::xml_document document;
    EXPECT_TRUE(XmlLoadBytes(Nested(kMaxXmlDepth), document).ok);
    EXPECT_FALSE(XmlMarkup(document.document_element()).isEmpty());
    for (const int depth : {kMaxXmlDepth + 1, 1'000'000})
        EXPECT_EQ(XmlLoadBytes(Nested(depth), document).reason, Text("elements are nested too deeply"));
}

TEST(XmlLoaderTest, TakesLongTokensInFairTime) {
    pugi::xml_document document;
    const QByteArray value(20'000'000, 'x');
    ASSERT_TRUE(XmlLoadBytes("<a b='" + value + "'><!--" + value + "-->" + value + "</a>", document).ok);
    EXPECT_EQ(XmlNodeText(document.document_element()).size(), value.size());
}

class Stopper : public XmlEventHandler {
public:
    void StartElement(const char *name, const std::vector<XmlEventAttribute> &attributes) override {
        events += Text(name) + u'+' + QString::number(attributes.size());
    }
    void EndElement(const char *name) override { events += Text(name) + u'-'; }
    void Characters(const char *text, int length) override { events += QString::fromUtf8(text, length); }
    bool Stopped(QString *reason) override {
        *reason = Text("enough");
        return events.last().startsWith(u'c');
    }
    QStringList events;
};

TEST(XmlEventReaderTest, TellsEventsUntilTheHandlerStops) {
    Stopper handler;
    const XmlResult result = XmlReadBytes("<a x='1' y='2'>t<b/>\n<c/><d/></a>", handler);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, Text("enough"));
    EXPECT_EQ(result.line, 2);
    EXPECT_EQ(handler.events.join(u' '), Text("a+2 t b+0 b- \n c+0"));
}

/// Collection files of the real world, when they are there.
TEST(XmlLoaderTest, LoadsCollectionFiles) {
    const QDir folder(test::SharedFolder() + Text("/collections"));
    const QStringList names = folder.entryList({Text("*.xml")}, QDir::Files);
    if (names.isEmpty())
        GTEST_SKIP() << "no collection files beside the project";
    for (const QString &name : names) {
        pugi::xml_document document;
        const XmlResult result = XmlLoadFile(folder.filePath(name), document);
        EXPECT_TRUE(result.ok) << qPrintable(name) << ": " << qPrintable(result.reason);
        EXPECT_FALSE(document.child("Collection").child("DVD").empty()) << qPrintable(name);
        pugi::xml_document again;
        const QString markup = XmlMarkup(document.document_element());
        ASSERT_TRUE(XmlLoadBytes(markup.toUtf8(), again).ok);
        EXPECT_EQ(XmlMarkup(again.document_element()), markup) << qPrintable(name);
    }
}

#ifdef Q_OS_UNIX
TEST(XmlLoaderTest, ADeviceIsNoFile) {
    pugi::xml_document document;
    const XmlResult result = XmlLoadFile(QStringLiteral("/dev/null"), document);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, QStringLiteral("/dev/null is no file"));
}
#endif

} // namespace
} // namespace ostrand
