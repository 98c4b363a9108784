#include "xml/XmlEventWriter.h"

#include "support/TempDir.h"
#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

#include <QDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include "sql/ForkedChild.h"

#include <sys/resource.h>
#endif

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

class XmlEventWriterTest : public ::testing::Test {
protected:
    std::string Written(const std::function<void(XmlEventWriter &)> &write) {
        XmlEventWriter writer(dir / Text("a.xml"));
        EXPECT_TRUE(writer.IsOpen());
        write(writer);
        EXPECT_TRUE(writer.Finish()) << qPrintable(writer.ErrorText());
        return dir.Read(Text("a.xml")).toStdString();
    }
    test::TempDir dir;
};

TEST_F(XmlEventWriterTest, IndentsElementsAndKeepsTextsOnTheirLine) {
    const auto bytes = Written([](XmlEventWriter &writer) {
        writer.StartDocument();
        writer.Comment(Text(" Ostrand Version 1.2.3 Collection Export "));
        writer.StartElement("R");
        writer.StartElement("A", {{Text("n"), Text("<\"\n")}});
        XmlWriteTextElement(writer, "B", Text("x & <y>"));
        XmlWriteTextElement(writer, "C", Text(""));
        XmlWriteTextElement(writer, "D", Text(""), FieldType::Text, true);
        writer.EndElement("A");
        writer.StartElement("E");
        writer.EndElement("E");
        writer.EndElement("R");
    });
    EXPECT_EQ(bytes, "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- Ostrand Version 1.2.3 Collection Export -->\n"
                     "<R>\r\n  <A n=\"&lt;&quot;&#10;\">\r\n    <B>x &amp; &lt;y&gt;</B>\r\n    <C/>\r\n  </A>\r\n"
                     "  <E/>\r\n</R>\r\n");
}

TEST_F(XmlEventWriterTest, WritesColumnsLikeTheDocumentModel) {
    const std::vector<XmlField> fields = {{FieldValue(), FieldType::Text},   {0.0, FieldType::Long},
                                          {0.0, FieldType::Integer},         {0.0, FieldType::Boolean},
                                          {-1.0, FieldType::Boolean},        {0.0, FieldType::Date},
                                          {40543.84375, FieldType::Date},    {1.5, FieldType::Float},
                                          {Text("a\r\nb"), FieldType::Memo}, {Text("\x02"), FieldType::Text}};
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("R");
    const auto bytes = Written([&](XmlEventWriter &writer) {
        writer.StartElement("R");
        for (const XmlField &field : fields)
            for (const bool skip : {false, true}) {
                XmlWriteFieldElement(writer, "E", field, skip);
                XmlAddFieldElement(root, "E", field, 1, skip);
            }
        writer.EndElement("R");
    });
    XmlAddIndent(root, 0);
    EXPECT_EQ(bytes, XmlDocumentBytes({}, root).toStdString());
}

TEST_F(XmlEventWriterTest, ClosesWithTheNameGiven) {
    EXPECT_EQ(Written([](XmlEventWriter &writer) {
                  writer.StartElement("R");
                  writer.StartElement("Genres");
                  XmlWriteTextElement(writer, "Genre", Text("x"));
                  writer.EndElement("Genre");
                  writer.EndElement("R");
              }),
              "<R>\r\n  <Genres>\r\n    <Genre>x</Genre>\r\n  </Genre>\r\n</R>\r\n");
}

TEST_F(XmlEventWriterTest, DropsWhatXmlCannotHold) {
    EXPECT_EQ(Written([](XmlEventWriter &writer) {
                  writer.Comment(Text("a--b\x01"));
                  writer.StartElement("R", {{Text("a"), Text("x\x01y")}});
                  writer.Characters(Text("1\x1F") + QChar(0xD800) + Text("2"));
                  writer.EndElement("R");
              }),
              "<!--a- -b-->\n<R a=\"xy\">12</R>\r\n");
}

TEST_F(XmlEventWriterTest, AnUnfinishedFileLeavesTheOldOne) {
    dir.Write(Text("a.xml"), "old");
    {
        XmlEventWriter writer(dir / Text("a.xml"));
        writer.StartElement("R");
        EXPECT_FALSE(writer.Finish()) << "the root is open";
    }
    EXPECT_EQ(dir.Read(Text("a.xml")), QByteArray("old"));
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

#ifdef Q_OS_UNIX
TEST_F(XmlEventWriterTest, AFullDiskLeavesTheOldOne) {
    dir.Write(Text("a.xml"), "old");
    EXPECT_EQ(sql::testing::InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit = {10, RLIM_INFINITY}; // no file takes a byte beyond it
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  XmlEventWriter writer(dir / Text("a.xml"));
                  writer.StartElement("Element");
                  writer.EndElement("Element");
                  return writer.Finish() ? 1 : 0;
              }),
              0);
    EXPECT_EQ(dir.Read(Text("a.xml")), QByteArray("old"));
}
#endif

TEST_F(XmlEventWriterTest, SaysThatAFileCannotBeMade) {
    XmlEventWriter writer(dir / Text("none/a.xml"));
    EXPECT_FALSE(writer.IsOpen());
    writer.StartElement("R");
    writer.EndElement("R");
    EXPECT_FALSE(writer.Finish());
    EXPECT_FALSE(writer.ErrorText().isEmpty());
}

TEST_F(XmlEventWriterTest, ALargeFileReadsBack) {
    const auto bytes = Written([](XmlEventWriter &writer) {
        writer.StartDocument();
        writer.StartElement("R");
        for (int i = 0; i < 20'000; ++i)
            XmlWriteTextElement(writer, "E", QStringLiteral("%1 <ä>").arg(i));
        writer.EndElement("R");
    });
    pugi::xml_document document;
    ASSERT_TRUE(XmlLoadBytes(QByteArray::fromStdString(bytes), document).ok);
    EXPECT_EQ(XmlNodeText(document.document_element().last_child()), Text("19999 <ä>"));
}

} // namespace
} // namespace ostrand
