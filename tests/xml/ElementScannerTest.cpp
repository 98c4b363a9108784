#include "xml/ElementScanner.h"

#include "base/Md5.h"
#include "support/Scripted.h"
#include "support/TempDir.h"
#include "xml/XmlNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

ScanQuery Query() {
    return {.root = "Collection", .element = "DVD", .text_child = "ID", .marked_child = "MediaTypes"};
}

class Scanner : public testing::Test {
protected:
    QString Write(const QByteArray &content) { return dir_.Write(u"a.xml"_s, content); }
    static QByteArray Wrapped(const QByteArray &children) {
        return "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<Collection>" + children + "</Collection>";
    }
    test::TempDir dir_;
};

TEST_F(Scanner, FindsTheElementsOfTheRootOnly) {
    const QByteArray first = "<DVD a='>'><ID>1</ID><MediaTypes><DVD>true</DVD></MediaTypes></DVD>";
    const QByteArray second = "<DVD >\n<!--</DVD>--><![CDATA[</DVD>]]><?x </DVD>?><ID>2</ID><ID>3</ID></DVD >";
    const QByteArray content = Wrapped("\n" + first + "<Other><DVD/></Other>" + second + "<DVD/>");
    ElementScanner scanner(Write(content), Query());
    ASSERT_TRUE(scanner.Scan().ok);
    ASSERT_EQ(scanner.Elements().size(), 3u);
    const ScannedElement &one = scanner.Elements()[0];
    const ScannedElement &two = scanner.Elements()[1];
    EXPECT_EQ(content.mid(one.offset, one.length), first);
    EXPECT_EQ(content.mid(two.offset, two.length), second);
    EXPECT_EQ(scanner.Elements()[2].length, 6);
    EXPECT_EQ(one.text, "1");
    EXPECT_TRUE(one.marked);
    EXPECT_EQ(one.line, 3);
    EXPECT_EQ(two.text, "2");
    EXPECT_FALSE(two.marked);
    EXPECT_EQ(one.DigestText(), MD5(QString::fromLatin1(first)));
    EXPECT_EQ(two.DigestText(), MD5(QString::fromLatin1(second)));

    auto document = scanner.Read(two);
    ASSERT_TRUE(document);
    EXPECT_EQ(XmlChildText(document->document_element(), "ID"), u"2"_s);
    EXPECT_EQ(XmlNodeText(document->document_element()), u"\n</DVD>23"_s);
    document = scanner.Read(one);
    ASSERT_TRUE(document);
    EXPECT_EQ(XmlAttribute(document->document_element(), "a"), u">"_s);
}

// The same characters, so the same digest, in every encoding; a high byte does not count.
TEST_F(Scanner, DigestIsOfUtf16UnitsWhateverTheEncoding) {
    const QString element = QStringLiteral("<DVD><ID>1</ID>\r\n<T>\u20ac\u2019\u00e9\U0001F600</T></DVD>");
    const QString narrow = QStringLiteral("<DVD><ID>1</ID>\r\n<T>\u20ac\u2019\u00e9</T></DVD>");
    const auto utf16 = [](const QString &text, bool little) {
        QByteArray bytes = little ? "\xFF\xFE" : "\xFE\xFF";
        for (const QChar c : text) {
            const char low = char(c.unicode() & 0xFF);
            const char high = char(c.unicode() >> 8);
            bytes += little ? low : high;
            bytes += little ? high : low;
        }
        return bytes;
    };
    const QString utf8_head = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>"_s;
    const QString utf16_head = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>"_s;
    const auto root = [](const QString &head, const QString &text) {
        return head + u"<Collection>"_s + text + u"</Collection>"_s;
    };
    QByteArray cp1252 = narrow.toLatin1();
    cp1252.replace("<T>??", "<T>\x80\x92");
    const std::pair<QByteArray, QString> cases[] = {
        {root(utf8_head, element).toUtf8(), element},
        {root({}, element).toUtf8(), element},
        {"\xEF\xBB\xBF" + root(utf8_head, element).toUtf8(), element},
        {utf16(root(utf16_head, element), true), element},
        {utf16(root(utf16_head, element), false), element},
        {Wrapped(cp1252), narrow},
    };
    for (const auto &[content, text] : cases) {
        SCOPED_TRACE(content.left(60).toStdString());
        ElementScanner scanner(Write(content), Query());
        const XmlResult result = scanner.Scan();
        ASSERT_TRUE(result.ok) << qPrintable(result.reason);
        ASSERT_EQ(scanner.Elements().size(), 1u);
        EXPECT_EQ(scanner.Elements()[0].DigestText(), MD5(text));
        const auto document = scanner.Read(scanner.Elements()[0]);
        ASSERT_TRUE(document);
        EXPECT_EQ(XmlChildText(document->document_element(), "T"), text.mid(20, text.size() - 30));
    }
}

TEST_F(Scanner, ElementsAcrossBlocksAreRead) {
    QByteArray children;
    for (int i = 0; i < 60; ++i) {
        children +=
            "<DVD><ID>" + QByteArray::number(i) + "</ID><T>" + QByteArray(50000, char('a' + i % 26)) + "</T></DVD>";
    }
    children += "<DVD><ID>big</ID><T b='" + QByteArray(3000000, 'x') + "'>" + QByteArray(5000000, 'y') + "</T></DVD>";
    const QByteArray content = Wrapped(children);
    ElementScanner scanner(Write(content), Query());
    ASSERT_TRUE(scanner.Scan().ok);
    ASSERT_EQ(scanner.Elements().size(), 61u);
    for (const ScannedElement &element : scanner.Elements()) {
        const QByteArray markup = content.mid(element.offset, element.length);
        ASSERT_TRUE(markup.startsWith("<DVD>") && markup.endsWith("</DVD>"));
        ASSERT_EQ(element.DigestText(), MD5(QString::fromLatin1(markup)));
    }
    const auto big = scanner.Read(scanner.Elements().back());
    ASSERT_TRUE(big);
    EXPECT_EQ(XmlChildText(big->document_element(), "T").size(), 5000000);
}

TEST_F(Scanner, EntitiesOfTheDocumentAreRead) {
    ElementScanner scanner(Write("<!DOCTYPE Collection [<!ENTITY who 'Ann &amp; Bob'><!ENTITY two "
                                 "'<DVD><ID>a</ID></DVD><DVD><ID>b</ID></DVD>'><!ENTITY out SYSTEM "
                                 "'file:///etc/passwd'>]><Collection><DVD><ID>1</ID><T>&who;&out;</T></DVD>&two;"
                                 "</Collection>"),
                           Query());
    const XmlResult result = scanner.Scan();
    ASSERT_TRUE(result.ok) << qPrintable(result.reason);
    ASSERT_EQ(scanner.Elements().size(), 3u);
    EXPECT_EQ(XmlChildText(scanner.Read(scanner.Elements()[0])->document_element(), "T"), u"Ann & Bob"_s);
    EXPECT_EQ(XmlChildText(scanner.Read(scanner.Elements()[1])->document_element(), "ID"), u"a"_s);
    EXPECT_EQ(XmlChildText(scanner.Read(scanner.Elements()[2])->document_element(), "ID"), u"b"_s);
}

TEST_F(Scanner, FaultsAreTold) {
    QByteArray bomb = "<!DOCTYPE Collection [<!ENTITY a0 'aaaaaaaaaaaaaaaaaaaa'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray name = "&a" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + name.repeated(10) + "'>";
    }
    bomb += "]><Collection><DVD><ID>&a11;</ID></DVD></Collection>";
    QByteArray chain = "<!DOCTYPE Collection [<!ENTITY a0 'x'>";
    for (int i = 1; i < 100000; ++i) {
        chain += "<!ENTITY a" + QByteArray::number(i) + " '&a" + QByteArray::number(i - 1) + ";'>";
    }
    chain += "]><Collection>&a99999;</Collection>";
    const QByteArray deep = "<Collection>" + QByteArray("<a>").repeated(100000) + "</Collection>";
    struct Case {
        QByteArray content;
        const char *reason;
        qint64 line;
    };
    const Case cases[] = {
        {"", "no element found", 1},
        {"not XML\n", "syntax error", 1},
        {"<Collection>\n<DVD></Collection>", "mismatched tag", 2},
        {"<Collection>\n<DVD>", "no element found", 2},
        {"<Collection/>\n<x/>", "junk after document element", 2},
        {"<?xml version='1.0' encoding='UTF-8'?><Collection>\xE9</Collection>", "not well-formed", 1},
        {"<?xml version='1.0' encoding='UTF-16'?><Collection/>", "encoding specified in XML declaration", 1},
        {"<?xml version='1.0' encoding='martian'?><Collection/>", "unknown encoding", 1},
        {"<Other>\n</Other>", "the root element is \"Other\"", 1},
        {bomb, "amplification", 1},
        {chain, "too many entities", 1},
        {deep, "nested too deeply", 1},
        {"<Collection>&nothing;</Collection>", "undefined entity", 1},
    };
    for (const Case &fault : cases) {
        SCOPED_TRACE(fault.reason);
        ElementScanner scanner(Write(fault.content), Query());
        const XmlResult result = scanner.Scan();
        EXPECT_FALSE(result.ok);
        EXPECT_TRUE(result.reason.contains(QString::fromLatin1(fault.reason))) << qPrintable(result.reason);
        EXPECT_EQ(result.line, fault.line);
        EXPECT_LE(result.source.size(), 200);
    }
    ElementScanner missing(dir_ / u"none.xml"_s, Query());
    EXPECT_FALSE(missing.Scan().ok);
}

TEST_F(Scanner, TruncatedAnywhereIsAFault) {
    const QByteArray content = Wrapped("<DVD><ID>1</ID><T a=\"b\">&amp;\x80</T><!--c--></DVD>\n");
    for (qsizetype length = 0; length < content.size(); ++length) {
        ElementScanner scanner(Write(content.left(length)), Query());
        ASSERT_FALSE(scanner.Scan().ok) << length;
    }
}

TEST_F(Scanner, TheCallerCanStop) {
    const QByteArray content = Wrapped(QByteArray("<DVD>" + QByteArray(1000, 'x') + "</DVD>").repeated(50000));
    ElementScanner scanner(Write(content), Query());
    int calls = 0;
    const XmlResult result = scanner.Scan([&] { return ++calls < 2; });
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, QString());
    EXPECT_EQ(calls, 2);
}

TEST_F(Scanner, AFileThatChangedGivesNothing) {
    const QString path = Write(Wrapped("<DVD><ID>1</ID></DVD>"));
    ElementScanner scanner(path, Query());
    ASSERT_TRUE(scanner.Scan().ok);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.resize(70);
    file.close();
    EXPECT_FALSE(scanner.Read(scanner.Elements()[0]));
}

TEST_F(Scanner, AnElementThatNoLongerEndsWhereItDidGivesNothing) {
    const QByteArray before = Wrapped("<DVD><ID>1</ID></DVD><DVD><ID>2</ID></DVD>");
    const QString path = Write(before);
    ElementScanner scanner(path, Query());
    ASSERT_TRUE(scanner.Scan().ok);
    QByteArray after = before;
    after.replace("1</ID></DVD>", "1</ID><T/>  ");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_EQ(file.write(after), before.size());
    file.close();
    EXPECT_FALSE(scanner.Read(scanner.Elements()[0])) << "half a profile would take its other rows away";
    EXPECT_TRUE(scanner.Read(scanner.Elements()[1]));
}

} // namespace

} // namespace ostrand
