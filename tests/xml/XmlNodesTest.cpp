#include "xml/XmlNodes.h"

#include "support/TempDir.h"
#include "xml/XmlLoader.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

class XmlReadingTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(XmlLoadBytes("<r p:Name='v' Name='w' Empty=''><A>1</A><A>2</A><E/><W> x </W>"
                                 "<N>a<b>b<c>c</c></b>d</N><p:Q>q</p:Q></r>",
                                 document)
                        .ok);
        root = document.document_element();
    }
    pugi::xml_document document;
    pugi::xml_node root;
};

TEST_F(XmlReadingTest, ChildText) {
    EXPECT_EQ(XmlChildText(root, "A"), Text("1")) << "the first of two";
    EXPECT_EQ(XmlChildText(root, "A", Text("d")), Text("1"));
    EXPECT_EQ(XmlChildText(root, "X", Text("d")), Text("d")) << "missing";
    EXPECT_EQ(XmlChildText(root, "X"), QString());
    EXPECT_EQ(XmlChildText(root, "E", Text("d")), Text("d")) << "empty with a default";
    EXPECT_EQ(XmlChildText(root, "E"), QString());
    EXPECT_EQ(XmlChildText(root, "W"), Text(" x ")) << "not trimmed";
    EXPECT_EQ(XmlChildText(root, "N"), Text("abcd")) << "with all that is in it";
    EXPECT_EQ(XmlChildText(root, "a", Text("d")), Text("d")) << "names have a case";
    EXPECT_EQ(XmlChildText(pugi::xml_node(), "A", Text("d")), Text("d")) << "of no node";
}

TEST_F(XmlReadingTest, AttributeByBaseName) {
    EXPECT_EQ(XmlAttribute(root, "Name"), Text("v")) << "the prefix does not count";
    EXPECT_EQ(XmlAttribute(root, "Empty", Text("d")), QString()) << "an empty attribute is there";
    EXPECT_EQ(XmlAttribute(root, "None", Text("d")), Text("d"));
    EXPECT_EQ(XmlAttribute(root, "name", Text("d")), Text("d"));
    EXPECT_EQ(XmlAttribute(pugi::xml_node(), "Name", Text("d")), Text("d"));
}

TEST(XmlWritingTest, IndentsByTextAndClosesOnItsOwnLine) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("R");
    pugi::xml_node series = XmlAddElement(root, "S", 1);
    XmlAddTextElement(series, "T", Text("a & <b> \"c\" 'd'"), 2);
    XmlAddTextElement(series, "Empty", Text(""), 2);
    XmlAddTextElement(series, "Gone", Text(""), 2, FieldType::Text, true);
    XmlAddIndent(series, 1);
    XmlSetAttribute(root, "Name", Text("x<\"&>"));
    XmlAddIndent(root, 0);
    EXPECT_EQ(
        XmlDocumentBytes(Text("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- x -->\r\n"), root).toStdString(),
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- x -->\r\n<R Name=\"x&lt;&quot;&amp;>\">\r\n  <S>\r\n"
        "    <T>a &amp; &lt;b&gt; \"c\" 'd'</T>\r\n    <Empty/>\r\n  </S>\r\n</R>\r\n");
}

TEST(XmlWritingTest, AnEmptyRootClosesItself) {
    pugi::xml_document document;
    EXPECT_EQ(XmlDocumentBytes({}, document.append_child("R")), QByteArray("<R/>\r\n"));
}

TEST(XmlWritingTest, AddsAnExistingElementOfAnotherDocument) {
    pugi::xml_document source;
    ASSERT_TRUE(XmlLoadBytes("<a><b c='1'>x</b></a>", source).ok);
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("R");
    XmlAddExisting(root, source.document_element().child("b"), 2);
    EXPECT_EQ(XmlMarkup(root), Text("<R>\r\n    <b c=\"1\">x</b></R>"));
}

struct ElementCase {
    const char *name;
    XmlField field;
    bool skip;
    const char *markup;
};

class XmlFieldElementTest : public ::testing::TestWithParam<ElementCase> {};

TEST_P(XmlFieldElementTest, WritesTheColumn) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("R");
    const pugi::xml_node element = XmlAddFieldElement(root, "E", GetParam().field, 0, GetParam().skip);
    EXPECT_EQ(XmlMarkup(root).remove(Text("\r\n")).toStdString(), GetParam().markup);
    EXPECT_EQ(element.empty(), std::string(GetParam().markup) == "<R/>");
}

const FieldValue kNull;

INSTANTIATE_TEST_SUITE_P(
    Rules, XmlFieldElementTest,
    ::testing::Values(
        ElementCase{"Text", {Text("x"), FieldType::Text}, true, "<R><E>x</E></R>"},
        ElementCase{"Null", {kNull, FieldType::Long}, false, "<R><E/></R>"},
        ElementCase{"NullSkipped", {kNull, FieldType::Text}, true, "<R/>"},
        ElementCase{"EmptyText", {Text(""), FieldType::Text}, false, "<R><E/></R>"},
        ElementCase{"EmptyTextSkipped", {Text(""), FieldType::Text}, true, "<R/>"},
        ElementCase{"ZeroLong", {0.0, FieldType::Long}, false, "<R><E>0</E></R>"},
        ElementCase{"ZeroLongSkipped", {0.0, FieldType::Long}, true, "<R/>"},
        ElementCase{"ZeroIntegerStays", {0.0, FieldType::Integer}, true, "<R><E>0</E></R>"},
        ElementCase{"ZeroFloatStays", {0.0, FieldType::Float}, true, "<R><E>0.00</E></R>"},
        ElementCase{"NoDate", {0.0, FieldType::Date}, false, "<R><E>1899-12-30</E></R>"},
        ElementCase{"NoDateSkipped", {0.0, FieldType::Date}, true, "<R/>"},
        ElementCase{"TimeWithoutDateStays", {0.5, FieldType::Date}, true, "<R><E>1899-12-30T12:00:00.000Z</E></R>"},
        ElementCase{"False", {0.0, FieldType::Boolean}, false, "<R><E>False</E></R>"},
        ElementCase{"FalseSkipped", {0.0, FieldType::Boolean}, true, "<R/>"},
        ElementCase{"True", {-1.0, FieldType::Boolean}, true, "<R><E>True</E></R>"},
        ElementCase{"TextZeroStays", {Text("0"), FieldType::Text}, true, "<R><E>0</E></R>"},
        ElementCase{"ForbiddenCharactersAlone", {Text("\x01\x02"), FieldType::Text}, true, "<R/>"}),
    [](const auto &info) { return info.param.name; });

TEST(XmlAllowedTest, DropsWhatXmlCannotHold) {
    const QString text = QStringLiteral("a\u0000b\u0008c\td\ne\rf\uFFFEg\uFFFFh\u0080i\u007Fj") + Text("🎬") +
                         QChar(0xD83C) + u'k' + QChar(0xDFAC);
    EXPECT_EQ(XmlAllowed(text), QStringLiteral("abc\td\ne\rfgh\u0080i\u007Fj") + Text("🎬k"));
    EXPECT_EQ(XmlUtf8(text), (QStringLiteral("abc\td\ne\rfgh\u0080i\u007Fj") + Text("🎬k")).toUtf8());
}

TEST(XmlSaveTest, ReplacesTheFile) {
    test::TempDir dir;
    const QString path = dir.Write(Text("a.xml"), "old and longer than the new one");
    pugi::xml_document document;
    EXPECT_TRUE(XmlSaveDocument(path, Text("<!-- ä -->\r\n"), document.append_child("R")));
    EXPECT_EQ(dir.Read(Text("a.xml")), QByteArray("<!-- \xC3\xA4 -->\r\n<R/>\r\n"));
    EXPECT_FALSE(XmlSaveDocument(dir / Text("none/a.xml"), {}, document.first_child()));
}

TEST(XmlSaveTest, WhatIsWrittenReadsBack) {
    const QString value = Text("<&>\"' \t\n ä€ 🎬 ]]> &amp; ");
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("R");
    XmlSetAttribute(root, "A", value);
    XmlAddTextElement(root, "T", value, 1);
    pugi::xml_document again;
    ASSERT_TRUE(XmlLoadBytes(XmlDocumentBytes({}, root), again).ok);
    EXPECT_EQ(XmlChildText(again.document_element(), "T"), value);
    EXPECT_EQ(XmlAttribute(again.document_element(), "A").simplified(), value.simplified());
}

} // namespace
} // namespace ostrand
