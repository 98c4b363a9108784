#include "queries/StatementSplitter.h"

#include <gtest/gtest.h>

namespace ostrand {
using namespace Qt::StringLiterals;
namespace {

QStringList Split(const QString &text, qsizetype piece) {
    StatementSplitter splitter;
    QStringList statements;
    const auto take = [&] {
        while (const std::optional<QString> statement = splitter.Next()) {
            statements.append(*statement);
        }
    };
    for (qsizetype i = 0; i < text.size(); i += piece) {
        splitter.Feed(QStringView(text).mid(i, piece));
        take();
    }
    splitter.Finish();
    take();
    return statements;
}

struct Case {
    const char *name;
    const char *text;
    QStringList expected;
};

QString Utf8(const char *text) {
    return QString::fromUtf8(text);
}

TEST(StatementSplitter, CutsAtSemicolonsThatEndALine) {
    const Case cases[] = {
        {"nothing", "", {}},
        {"blanks", " \n\n \n", {}},
        {"one", "SELECT 1;\n", {u"SELECT 1"_s}},
        {"last without semicolon", "SELECT 1;\nSELECT 2", {u"SELECT 1"_s, u"SELECT 2"_s}},
        {"last without line end", "SELECT 1;", {u"SELECT 1"_s}},
        {"last without semicolon but line end", "SELECT 1\n", {u"SELECT 1"_s}},
        {"line ends of Windows", "SELECT 1;\r\nSELECT 2;\r\n", {u"SELECT 1"_s, u"SELECT 2"_s}},
        {"blanks behind", "SELECT 1; \t\nSELECT 2 ;  \r\n", {u"SELECT 1"_s, u"SELECT 2"_s}},
        {"over lines", "SELECT\n 1\n;\nSELECT 2;\n", {u"SELECT\n 1"_s, u"SELECT 2"_s}},
        {"not at the end of its line", "SELECT 1; SELECT 2;\n", {u"SELECT 1; SELECT 2"_s}},
        {"alone", ";\nSELECT 1;\n", {QString(), u"SELECT 1"_s}},
        {"in a text", "SELECT 'a;\nb';\nSELECT 2;\n", {u"SELECT 'a;\nb'"_s, u"SELECT 2"_s}},
        {"in a text in double quotes", "SELECT \"a;\nb\";\n", {u"SELECT \"a;\nb\""_s}},
        {"doubled quote", "SELECT 'it''s;\n';\nSELECT 2;\n", {u"SELECT 'it''s;\n'"_s, u"SELECT 2"_s}},
        {"the other quote in a text", "SELECT 'a\"b';\nSELECT 2;\n", {u"SELECT 'a\"b'"_s, u"SELECT 2"_s}},
        {"quote in a name", "SELECT [it's];\nSELECT 2;\n", {u"SELECT [it's]"_s, u"SELECT 2"_s}},
        {"quote in a backquoted name", "SELECT `it's`;\nSELECT 2;\n", {u"SELECT `it's`"_s, u"SELECT 2"_s}},
        {"semicolon ends in a name", "SELECT [a;]\nFROM t;\n", {u"SELECT [a;]\nFROM t"_s}},
        {"date", "SELECT #1/2/2003#;\nSELECT 2;\n", {u"SELECT #1/2/2003#"_s, u"SELECT 2"_s}},
        {"marks that close nothing",
         "SELECT [a;\nSELECT `b;\nSELECT #;\n",
         {u"SELECT [a"_s, u"SELECT `b"_s, u"SELECT #"_s}},
        {"bracket in a text", "SELECT '[';\nSELECT 2;\n", {u"SELECT '['"_s, u"SELECT 2"_s}},
        {"a text left open takes the rest", "SELECT 'a;\nSELECT 2;\n", {u"SELECT 'a;\nSELECT 2;"_s}},
        {"text ending in semicolon at the line's end",
         "SELECT 'a;'\n;\nSELECT 2;\n",
         {u"SELECT 'a;'"_s, u"SELECT 2"_s}},
    };
    for (const Case &c : cases) {
        for (const qsizetype piece : {1, 2, 7, 1000}) {
            EXPECT_EQ(Split(Utf8(c.text), piece), c.expected) << c.name << ", in pieces of " << piece;
        }
    }
}

} // namespace
} // namespace ostrand
