#include "sql/Shape.h"

#include "sql/Parser.h"
#include "sql/SqlError.h"
#include "support/SqlLiterals.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace ostrand::sql {

namespace {

Shape Scan(QStringView text) {
    Shape shape;
    EXPECT_TRUE(ScanShape(text, shape)) << text.toString().toStdString();
    return shape;
}

struct Pair {
    const char *first;
    const char *second;
};

class SameShapeTest : public testing::TestWithParam<Pair> {};
class OtherShapeTest : public testing::TestWithParam<Pair> {};

QString KeyOf(const char *text) {
    return Scan(QString::fromUtf8(text)).key;
}

/// The literals of the tree against those of the scan.
void ExpectAgreement(const QString &text, const ast::Statement &statement) {
    const Shape shape = Scan(text);
    LiteralWalk([&](const ast::Literal &literal) {
        if (literal.index < 0) {
            return;
        }
        ASSERT_LT(std::size_t(literal.index), shape.literals.size()) << text.toStdString();
        const LiteralToken &token = shape.literals[std::size_t(literal.index)];
        EXPECT_EQ(literal.kind, token.kind) << text.toStdString();
        EXPECT_EQ(literal.number, token.number) << text.toStdString();
        if (literal.kind == Kind::Text) {
            EXPECT_EQ(literal.text, token.text) << text.toStdString();
        }
    }).Walk(statement);
}

} // namespace

TEST_P(SameShapeTest, SharesOneKey) {
    EXPECT_EQ(KeyOf(GetParam().first), KeyOf(GetParam().second)) << GetParam().first << " / " << GetParam().second;
}

INSTANTIATE_TEST_SUITE_P(Key, SameShapeTest,
                         testing::Values(Pair{"SELECT a FROM t WHERE b = 'x'", "select A from  T\r\nwhere B='Ann''s'"},
                                         Pair{"SELECT a FROM t;", "SELECT a FROM t"}, Pair{"SELECT 1", "SELECT 2"},
                                         Pair{"SELECT 1.5", "SELECT 3000000000"},
                                         Pair{"SELECT #1/1/2009#", "SELECT #11/23/2009 8:15:00#"},
                                         Pair{"SELECT 'a'", "SELECT \"b\""}, Pair{"SELECT -1", "SELECT - 5"},
                                         Pair{"SELECT a.b", "SELECT a . b"}, Pair{"SELECT 'x'AND", "SELECT 'x' AND"},
                                         Pair{"SELECT größe", "SELECT GRÖßE"}, Pair{"SELECT &H1F", "SELECT 31"}));

TEST_P(OtherShapeTest, HasAnotherKey) {
    EXPECT_NE(KeyOf(GetParam().first), KeyOf(GetParam().second)) << GetParam().first << " / " << GetParam().second;
}

INSTANTIATE_TEST_SUITE_P(Key, OtherShapeTest,
                         testing::Values(Pair{"SELECT 1", "SELECT '1'"}, Pair{"a LIKE b", "a LI\u212aE b"},
                                         Pair{"SELECT 1", "SELECT 1.0"}, Pair{"SELECT 1", "SELECT -1"},
                                         Pair{"SELECT 1.5", "SELECT #1/1/2009#"}, Pair{"SELECT No", "SELECT [No]"},
                                         Pair{"SELECT True", "SELECT False"}, Pair{"SELECT a b", "SELECT ab"},
                                         Pair{"a < = b", "a <= b"}, Pair{"a > = b", "a >= b"},
                                         Pair{"a < > b", "a <> b"}, Pair{"SELECT [a]", "SELECT `a`"},
                                         Pair{"SELECT a;;", "SELECT a"}, Pair{"SELECT 'a' 'b'", "SELECT 'a''b'"},
                                         Pair{"SELECT a &H1", "SELECT a, &H1"},
                                         Pair{"SELECT [a b]", "SELECT [a] [b]"}));

TEST(ShapeTest, LiteralsComeInTheOrderOfTheText) {
    const Shape shape = Scan(u"SELECT 'a', 12 FROM t WHERE b = \"say \"\"so\"\"\" AND c > -1.5 AND d < #11/23/2009#");
    ASSERT_EQ(shape.literals.size(), 5u);
    EXPECT_EQ(shape.literals[0].kind, Kind::Text);
    EXPECT_EQ(shape.literals[0].text, QStringLiteral("a"));
    EXPECT_EQ(shape.literals[1].kind, Kind::Integer);
    EXPECT_EQ(shape.literals[1].number, 12);
    EXPECT_EQ(shape.literals[1].text, QStringLiteral("12"));
    EXPECT_EQ(shape.literals[2].text, QStringLiteral("say \"so\""));
    EXPECT_EQ(shape.literals[3].kind, Kind::Real);
    EXPECT_EQ(shape.literals[3].number, 1.5);
    EXPECT_EQ(shape.literals[3].text, QStringLiteral("1.5"));
    EXPECT_EQ(shape.literals[4].kind, Kind::Date);
    EXPECT_EQ(shape.literals[4].number, 40140);
    EXPECT_EQ(shape.literals[4].text, QStringLiteral("#11/23/2009#"));
}

TEST(ShapeTest, AUsedShapeIsOverwritten) {
    Shape shape;
    ASSERT_TRUE(ScanShape(u"SELECT 'a long text', 'b', 3 FROM some_table", shape));
    const LiteralToken kept = shape.literals[0];
    ASSERT_TRUE(ScanShape(u"SELECT 'x'", shape));
    EXPECT_EQ(shape.key, Scan(u"SELECT 'y'").key);
    ASSERT_EQ(shape.literals.size(), 1u);
    EXPECT_EQ(shape.literals[0].text, QStringLiteral("x"));
    EXPECT_EQ(kept.text, QStringLiteral("a long text"));
    ASSERT_TRUE(ScanShape(u"SELECT a", shape));
    EXPECT_TRUE(shape.literals.empty());
}

TEST(ShapeTest, TextWithoutTokensOfTheDialectIsRefused) {
    Shape shape;
    for (const char16_t *text :
         {u"SELECT 'a", u"SELECT [a", u"SELECT #soon#", u"SELECT 19x0", u"a || b", u"SELECT ?"}) {
        EXPECT_FALSE(ScanShape(text, shape)) << QString::fromUtf16(text).toStdString();
    }
    EXPECT_TRUE(ScanShape(u"", shape));
    EXPECT_TRUE(shape.key.isEmpty());
}

TEST(ShapeTest, IndexesAreThoseOfTheParser) {
    for (const char16_t *text :
         {u"SELECT TOP 3 a AS 'x', 'y' FROM t WHERE b = 5 AND c IN (1, 'z') ORDER BY 2",
          u"INSERT INTO t (a) VALUES ('Ann''s', -1, 2.5, #11/23/2009#, True, Null)",
          u"TRANSFORM Count(a) SELECT b FROM t WHERE c = 'x' GROUP BY b PIVOT d IN ('p', -2, 3)",
          u"PARAMETERS a Text(50); SELECT * FROM (SELECT 'u' AS v FROM t) AS w WHERE x LIKE 'y*' OR z = 1 OR q = &H10",
          u"UPDATE t SET a = 'x' & 1, b = \"\"\"\" WHERE c BETWEEN 1 AND 2 OR NOT EXISTS (SELECT 4 FROM u)"}) {
        const QString statement = QString::fromUtf16(text);
        ExpectAgreement(statement, Parse(statement));
    }
}

/// The collection of statements with known results, when it is at hand.
TEST(ShapeTest, EveryKnownStatementParsesOrFailsAsItMust) {
    const QString folder =
        qEnvironmentVariable("OSTRAND_SHARED", QStringLiteral(OSTRAND_SOURCE_DIR) + QStringLiteral("/../shared"));
    QFile file(folder + QStringLiteral("/sql/cases.jsonl"));
    if (!file.open(QIODevice::ReadOnly)) {
        GTEST_SKIP() << "no collection of statements";
    }
    // These are at fault as text; the other failures of the collection show only against the tables.
    const QStringList faulty =
        QStringLiteral("P089 P090 X009 X010 X012 X015 X017 X033 X035 X037 X038 X046 X054 X055").split(u' ');
    int statements = 0;
    while (!file.atEnd()) {
        const QJsonObject item = QJsonDocument::fromJson(file.readLine()).object();
        const QString id = item[u"id"].toString();
        QStringList texts;
        for (const QJsonValue setup : item[u"setup"].toArray()) {
            texts.append(setup.toString());
        }
        texts.append(item[u"sql"].toString());
        for (const QString &text : texts) {
            ++statements;
            const bool must_fail = faulty.contains(id) && text == texts.last();
            try {
                ExpectAgreement(text, Parse(text));
                EXPECT_FALSE(must_fail) << id.toStdString();
            } catch (const SqlError &error) {
                EXPECT_TRUE(must_fail) << id.toStdString() << ' ' << error.what();
            }
        }
    }
    EXPECT_GT(statements, 375);
}

} // namespace ostrand::sql
