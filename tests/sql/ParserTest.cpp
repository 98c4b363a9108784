#include "sql/Parser.h"

#include "sql/AstDump.h"
#include "sql/SqlError.h"

#include <gtest/gtest.h>

#include <string>

namespace ostrand::sql {

namespace {

std::string Parsed(const char *text) {
    try {
        return Dump(Parse(QString::fromUtf8(text)));
    } catch (const SqlError &error) {
        return "error " + std::to_string(error.Number()) + " at " + std::to_string(error.Position());
    }
}

std::string ParsedExpr(const std::string &text) {
    const std::string whole = Parsed(("SELECT " + text).c_str());
    const std::string head = "{select ";
    return whole.starts_with(head) ? whole.substr(head.size(), whole.size() - head.size() - 1) : whole;
}

struct Case {
    const char *text;
    const char *expected;
};

class ExprTest : public testing::TestWithParam<Case> {};
class StatementTest : public testing::TestWithParam<Case> {};
class FaultTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(ExprTest, BindsAsTheDialectDoes) {
    EXPECT_EQ(ParsedExpr(GetParam().text), GetParam().expected) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Operators, ExprTest,
    testing::Values(Case{"a Imp b Eqv c Xor d Or e And f", "(a Imp (b Eqv (c Xor (d Or (e And f)))))"},
                    Case{"a And b Or c And d", "((a And b) Or (c And d))"}, Case{"a Xor b Xor c", "((a Xor b) Xor c)"},
                    Case{"Not a And b", "((not a) And b)"}, Case{"Not a = b", "(not (a = b))"},
                    Case{"Not Not a", "(not (not a))"}, Case{"a = Not b", "(a = (not b))"},
                    Case{"NOT Title LIKE 'x'", "(not (Title like 'x'#0))"}, Case{"a = b = c", "((a = b) = c)"},
                    Case{"a & b = c & d", "((a & b) = (c & d))"}, Case{"1+2 & 'x'", "((1#0 + 2#1) & 'x'#2)"},
                    Case{"8 MOD 3+4", "((8#0 Mod 3#1) + 4#2)"}, Case{"10 MOD 2*3", "(10#0 Mod (2#1 * 3#2))"},
                    Case{"a Mod b \\ c", "(a Mod (b \\ c))"}, Case{"a \\ b * c", "(a \\ (b * c))"},
                    Case{"a - b - c", "((a - b) - c)"}, Case{"a / b * c", "((a / b) * c)"},
                    Case{"2^3^2", "((2#0 ^ 3#1) ^ 2#2)"}, Case{"-2^2", "(neg (2#0 ^ 2#1))"},
                    Case{"2^-1", "(2#0 ^ (neg 1#1))"}, Case{"-7\\2", "((neg 7#0) \\ 2#1)"},
                    Case{"-a*b", "((neg a) * b)"}, Case{"5--3", "(5#0 - (neg 3#1))"}, Case{"+a", "(pos a)"},
                    Case{"(a Or b) And c", "((a Or b) And c)"},
                    Case{"a<>b And a<b And a<=b", "(((a <> b) And (a < b)) And (a <= b))"},
                    Case{"a>b Or a>=b", "((a > b) Or (a >= b))"}, Case{"a Or b Or c Or d", "((a Or b) Or (c Or d))"}));

INSTANTIATE_TEST_SUITE_P(
    Predicates, ExprTest,
    testing::Values(Case{"x BETWEEN 1 AND 2 AND y", "((x between 1#0 : 2#1) And y)"},
                    Case{"x NOT BETWEEN a+1 AND b Or c", "((x not between (a + 1#0) : b) Or c)"},
                    Case{"x LIKE 'a' & 'b' AND y", "((x like ('a'#0 & 'b'#1)) And y)"},
                    Case{"x NOT LIKE '?Div*'", "(x not like '?Div*'#0)"}, Case{"x Is Null", "(x is null)"},
                    Case{"x IS NOT NULL Or y", "((x is not null) Or y)"}, Case{"(ColNo Is Null)", "(ColNo is null)"},
                    Case{"x IN (1, 'a', b)", "(x in [1#0, 'a'#1, b])"},
                    Case{"x NOT IN (SELECT a FROM t) AND y", "((x not in {select a from t}) And y)"},
                    Case{"x IN ((SELECT a FROM t) UNION (SELECT b FROM u))",
                         "(x in {{select a from t} union {select b from u}})"},
                    Case{"x IN ((SELECT a FROM t))", "(x in {select a from t})"},
                    Case{"x > ALL (SELECT a FROM t)", "(x > all {select a from t})"},
                    Case{"x = SOME (SELECT a FROM t)", "(x = any {select a from t})"}, Case{"x = Any", "(x = Any)"},
                    Case{"EXISTS (SELECT * FROM t)", "exists {select * from t}"},
                    Case{"Not Exists (SELECT 1)", "(not exists {select 1#0})"}, Case{"Exists", "Exists"},
                    Case{"(SELECT a FROM t) + 1", "(value {select a from t} + 1#0)"},
                    Case{"((SELECT a FROM t) + 1) * 2", "((value {select a from t} + 1#0) * 2#1)"},
                    Case{"((SELECT a FROM t) UNION (SELECT 1))", "value {{select a from t} union {select 1#0}}"}));

INSTANTIATE_TEST_SUITE_P(
    Operands, ExprTest,
    testing::Values(Case{"'Ann''s', \"say \"\"so\"\"\"", "'Ann's'#0, 'say \"so\"'#1"}, Case{"'a\"\"b'", "'a\"\"b'#0"},
                    Case{"1, 1.5, .5, #11/23/2009#, &H1F", "1#0, 1.5r#1, 0.5r#2, 40140d#3, 31#4"},
                    Case{"True, no, YES, False, On, Off, Null", "true, false, true, false, true, false, null"},
                    Case{"[No], p.No, p![On], No.x", "No, p.No, p.On, No.x"},
                    Case{"Year, Left, Right, Name", "Year, Left, Right, Name"},
                    Case{"Type, Language, Position, Comment, Date, Count, Value, Text, Index, Key, Top, Percent, Asc",
                         "Type, Language, Position, Comment, Date, Count, Value, Text, Index, Key, Top, Percent, Asc"},
                    Case{"Year(d), Left('x', 1), Right(s,2), Asc('A'), Date()",
                         "Year(d), Left('x'#0, 1#1), Right(s, 2#2), Asc('A'#3), Date()"},
                    Case{"Left$(a, 1)", "Left$(a, 1#0)"}, Case{"Count(*), COUNT(x)", "Count(*), COUNT(x)"},
                    Case{"[Profiles]![Title], [a b].c, p.[x y]", "Profiles.Title, a b.c, p.x y"},
                    Case{"p.Order", "p.Order"},
                    Case{"IIf(a Is Null, 'x', Switch(b<>'', b, true, c))",
                         "IIf((a is null), 'x'#0, Switch((b <> ''#1), b, true, c))"}));

TEST_P(StatementTest, Parses) {
    EXPECT_EQ(Parsed(GetParam().text), GetParam().expected) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Select, StatementTest,
    testing::Values(
        Case{"SELECT * FROM Profiles", "{select * from Profiles}"},
        Case{"select title from t;", "{select title from t}"}, Case{"Profiles", "{select * from Profiles}"},
        Case{"[My Table] ;", "{select * from My Table}"}, Case{"Year", "{select * from Year}"},
        Case{"SELECT 1", "{select 1#0}"}, Case{"SELECT ALL a FROM t", "{select a from t}"},
        Case{"SELECT DISTINCT TOP 2 a FROM t", "{select distinct top 2 a from t}"},
        Case{"SELECT TOP 10 PERCENT * FROM t", "{select top 10% * from t}"},
        Case{"SELECT TOP 3 Percent FROM t", "{select top 3 Percent from t}"},
        Case{"SELECT TOP 3 a FROM t WHERE b = 'x'", "{select top 3 a from t where (b = 'x'#1)}"},
        Case{"SELECT Top FROM t", "{select Top from t}"},
        Case{"SELECT DISTINCTROW p.Title FROM p", "{select distinctrow p.Title from p}"},
        Case{"SELECT *, p.a as [b c] , [p].*, p!* FROM p", "{select *, p.a as <b c>, p.*, p.* from p}"},
        Case{"SELECT a AS `Bar Code`, f(x)AS [y], b AS 'z', c AS No, d AS Count FROM p",
             "{select a as <Bar Code>, f(x) as <y>, b as <z>, c as <No>, d as <Count> from p}"},
        Case{"SELECT a INTO b FROM c", "{select a into b from c}"},
        Case{"SELECT Year FROM Awards WHERE Year = 0 GROUP BY Year, a+1 HAVING Count(*) > 1 ORDER BY Year DESC, 1 ASC",
             "{select Year from Awards where (Year = 0#0) group Year, (a + 1#1) having (Count(*) > 1#2) "
             "order Year desc, 1#3}"},
        Case{"SELECT a FROM t WITH OWNERACCESS OPTION;", "{select a from t}"},
        Case{"SELECT a FROM t With", "{select a from t as <With>}"}));

INSTANTIATE_TEST_SUITE_P(
    From, StatementTest,
    testing::Values(Case{"SELECT * FROM Profiles p WHERE a", "{select * from Profiles as <p> where a}"},
                    Case{"SELECT * FROM Profiles WHERE a", "{select * from Profiles where a}"},
                    Case{"SELECT * FROM a AS b, c d, e", "{select * from a as <b>, c as <d>, e}"},
                    Case{"SELECT * FROM a LEFT JOIN b ON x = y", "{select * from (a left b on (x = y))}"},
                    Case{"SELECT * FROM a RIGHT OUTER JOIN b ON x = y", "{select * from (a right b on (x = y))}"},
                    Case{"SELECT * FROM a Left", "{select * from a as <Left>}"},
                    Case{"SELECT * FROM Left Left LEFT JOIN Right ON x = y",
                         "{select * from (Left as <Left> left Right on (x = y))}"},
                    Case{"SELECT * FROM (a p LEFT JOIN b ON x = y) INNER JOIN c ON (z = 1)",
                         "{select * from ((a as <p> left b on (x = y)) inner c on (z = 1#0))}"},
                    Case{"SELECT * FROM a INNER JOIN b ON x = y INNER JOIN c ON z",
                         "{select * from ((a inner b on (x = y)) inner c on z)}"},
                    Case{"SELECT * FROM a, b INNER JOIN c ON x = y", "{select * from a, (b inner c on (x = y))}"},
                    Case{"SELECT * FROM a INNER JOIN (b LEFT JOIN c ON x) ON y",
                         "{select * from (a inner (b left c on x) on y)}"},
                    Case{"SELECT * FROM (SELECT a FROM b) AS c", "{select * from {select a from b} as <c>}"},
                    Case{"SELECT * FROM (SELECT a FROM b) c", "{select * from {select a from b} as <c>}"},
                    Case{"SELECT * FROM (SELECT a FROM b)", "{select * from {select a from b}}"},
                    Case{"SELECT * FROM ((SELECT a FROM b) AS c INNER JOIN d ON x)",
                         "{select * from ({select a from b} as <c> inner d on x)}"},
                    Case{"SELECT * FROM ((SELECT 1) UNION (SELECT 2)) AS c",
                         "{select * from {{select 1#0} union {select 2#1}} as <c>}"},
                    Case{"SELECT * FROM ((a INNER JOIN b ON x))", "{select * from (a inner b on x)}"}));

INSTANTIATE_TEST_SUITE_P(
    Union, StatementTest,
    testing::Values(Case{"SELECT 1 UNION SELECT 2 UNION ALL SELECT 3 ORDER BY 1",
                         "{select 1#0 union select 2#1 union all select 3#2 order 1#3}"},
                    Case{"(SELECT a FROM t) UNION (SELECT b FROM u) ORDER BY a DESC",
                         "{{select a from t} union {select b from u} order a desc}"},
                    Case{"((SELECT 1) UNION (SELECT 2)) UNION SELECT 3",
                         "{{{select 1#0} union {select 2#1}} union select 3#2}"},
                    Case{"(SELECT 1 ORDER BY 1) UNION SELECT 2", "{{select 1#0 order 1#1} union select 2#2}"},
                    Case{"((SELECT 1))", "{select 1#0}"},
                    Case{"TABLE a UNION TABLE [b c]", "{select * from a union select * from b c}"}));

INSTANTIATE_TEST_SUITE_P(
    Other, StatementTest,
    testing::Values(
        Case{"TRANSFORM COUNT(a) SELECT b FROM c GROUP BY b ORDER BY b PIVOT d IN ('x', 2, -3, Yes)",
             "transform COUNT(a) {select b from c group b order b} pivot d ['x'#0, 2#1, -3, true]"},
        Case{"TRANSFORM a SELECT b FROM c GROUP BY b PIVOT Year(d) & 'x'",
             "transform a {select b from c group b} pivot (Year(d) & 'x'#0)"},
        Case{"PARAMETERS [Which one] Text, n Long, t Text (255), d Double Precision; SELECT a FROM t WHERE b = 'x'",
             "parameter Which one Text; parameter n Long; parameter t Text; parameter d Double Precision; "
             "{select a from t where (b = 'x'#1)}"},
        Case{"Parameters", "{select * from Parameters}"},
        Case{"INSERT INTO t (a, [b c], Year) VALUES ('x', 1, Null)", "insert t (a, b c, Year) values 'x'#0, 1#1, null"},
        Case{"INSERT INTO AudioFormats(a) Values (-1)", "insert AudioFormats (a) values (neg 1#0)"},
        Case{"INSERT INTO t VALUES (1)", "insert t values 1#0"},
        Case{"INSERT INTO t (a) SELECT b, 9 FROM c", "insert t (a) {select b, 9#0 from c}"},
        Case{"INSERT INTO t SELECT * FROM c UNION SELECT * FROM d", "insert t {select * from c union select * from d}"},
        Case{"INSERT INTO t (SELECT * FROM c)", "insert t {select * from c}"},
        Case{"UPDATE t SET a = 1, t.Year = Year + 1, [No] = x = y WHERE b",
             "update t set a := 1#0, t.Year := (Year + 1#1), No := (x = y) where b"},
        Case{"Update a INNER JOIN b ON x = y SET a.c = b.d", "update (a inner b on (x = y)) set a.c := b.d"},
        Case{"UPDATE DISTINCTROW a, b SET c = 1", "update a, b set c := 1#0"}, Case{"DELETE FROM t", "delete from t"},
        Case{"DELETE * FROM t WHERE a = 'x'", "delete from t where (a = 'x'#0)"},
        Case{"DELETE t.* FROM t", "delete t.* from t"}, Case{"DELETE t.a, t.b FROM t", "delete t.* from t"},
        Case{"DELETE a FROM t", "delete from t"},
        Case{"DELETE DISTINCTROW r.* FROM r INNER JOIN p ON x WHERE y",
             "delete distinctrow r.* from (r inner p on x) where y"}));

INSTANTIATE_TEST_SUITE_P(
    Definitions, StatementTest,
    testing::Values(
        Case{"CREATE TABLE t (a varchar NOT NULL UNIQUE PRIMARY KEY, b varchar(5) REFERENCES c(d), e yesno)",
             "create t [a varchar not_null unique primary, b varchar/5 -> c.d, e yesno]"},
        Case{"CREATE TABLE t (a long PRIMARY KEY NOT NULL,b date, Year integer, PRIMARY KEY (a, b))",
             "create t [a long not_null primary, b date, Year integer] primary (a, b)"},
        Case{"CREATE TABLE t (a DOUBLE PRECISION NULL, b NUMERIC(10,2) DEFAULT -1 NOT NULL, c COUNTER)",
             "create t [a DOUBLE PRECISION, b NUMERIC/10 not_null, c COUNTER]"},
        Case{"CREATE TABLE t (a text CONSTRAINT k PRIMARY KEY, b text WITH COMPRESSION NOT NULL, c long REFERENCES u "
             "ON UPDATE CASCADE ON DELETE SET NULL)",
             "create t [a text primary, b text not_null, c long -> u.]"},
        Case{"CREATE TABLE t (a long, CONSTRAINT k UNIQUE (a), CONSTRAINT f FOREIGN KEY (a, b) REFERENCES u (c, d) ON "
             "DELETE NO ACTION, FOREIGN KEY (a) REFERENCES v)",
             "create t [a long] unique <k> (a) foreign <f> (a, b) -> u(c, d) foreign (a) -> v()"},
        Case{"CREATE TABLE t (Primary text, Unique text, Key text, Index long, Constraint text)",
             "create t [Primary text, Unique text, Key text, Index long, Constraint text]"},
        Case{"CREATE INDEX i ON t (a, b DESC, c ASC)", "index i on t (a, b, c)"},
        Case{"CREATE UNIQUE INDEX [i 1] ON [t 1] ([a b]);", "unique index i 1 on t 1 (a b)"},
        Case{"CREATE INDEX i ON t (a) WITH PRIMARY", "primary index i on t (a)"},
        Case{"CREATE INDEX i ON t (a) WITH DISALLOW NULL", "index i on t (a)"},
        Case{"CREATE INDEX i ON t (a) WITH IGNORE NULL", "index i on t (a)"},
        Case{"ALTER Table T1 ADD PRIMARY KEY (A, B)", "alter T1 add primary (A, B)"},
        Case{"ALTER TABLE t ADD COLUMN a varchar(5)", "alter t add a varchar/5"},
        Case{"ALTER TABLE t ADD a memo NOT NULL", "alter t add a memo not_null"},
        Case{"ALTER TABLE t ADD CONSTRAINT k UNIQUE (a)", "alter t add unique <k> (a)"},
        Case{"ALTER TABLE t ADD FOREIGN KEY (a) REFERENCES u(b)", "alter t add foreign (a) -> u(b)"},
        Case{"ALTER TABLE DbInfo ALTER COLUMN InfoValue memo", "alter DbInfo change InfoValue memo"},
        Case{"ALTER TABLE t ALTER a long", "alter t change a long"},
        Case{"ALTER TABLE t DROP COLUMN Comment", "alter t drop Comment"},
        Case{"ALTER TABLE t DROP a", "alter t drop a"},
        Case{"ALTER TABLE t DROP CONSTRAINT k", "alter t drop constraint k"}, Case{"DROP TABLE t;", "drop t"},
        Case{"DROP INDEX i ON t", "drop index i on t"}));

TEST_P(FaultTest, NamesTheFaultAndItsPlace) {
    EXPECT_EQ(Parsed(GetParam().text), std::string("error ") + GetParam().expected) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Verbs, FaultTest,
                         testing::Values(Case{"", "3129 at 0"}, Case{"  ", "3129 at 2"}, Case{";", "3129 at 0"},
                                         Case{"SELEC * FROM t", "3129 at 0"}, Case{"'x'", "3129 at 0"},
                                         Case{"FROM", "3129 at 0"}, Case{"-- all", "3129 at 0"},
                                         Case{"DELETE", "3141 at 6"}, Case{"SELECT", "3141 at 6"}));

INSTANTIATE_TEST_SUITE_P(
    Queries, FaultTest,
    testing::Values(
        Case{"SELECT * Profiles", "3141 at 9"}, Case{"SELECT a b FROM t", "3075 at 9"},
        Case{"SELECT a [b] FROM t", "3075 at 9"}, Case{"SELECT a, FROM t", "3141 at 10"},
        Case{"SELECT FROM t", "3141 at 7"}, Case{"SELECT a AS FROM t", "3141 at 12"},
        Case{"SELECT TOP 1.5 a FROM t", "3141 at 11"}, Case{"SELECT TOP 'x' a FROM t", "3141 at 11"},
        Case{"SELECT * FROM", "3131 at 13"}, Case{"SELECT * FROM WHERE a", "3131 at 14"},
        Case{"SELECT * FROM t LIMIT 3", "3131 at 22"}, Case{"SELECT * FROM t JOIN u ON a = b", "3131 at 16"},
        Case{"SELECT * FROM t p JOIN u ON a = b", "3131 at 18"}, Case{"SELECT * FROM t, ", "3131 at 17"},
        Case{"SELECT * FROM t IN 'file'", "3131 at 16"}, Case{"SELECT * FROM t -- all of them", "3131 at 16"},
        Case{"SELECT * FROM t /* all */", "3131 at 16"}, Case{"SELECT * FROM (t", "3131 at 16"},
        Case{"SELECT * FROM t INNER u", "3135 at 22"}, Case{"SELECT * FROM t INNER JOIN u", "3135 at 28"},
        Case{"SELECT * FROM t LEFT JOIN u ON", "3135 at 30"}, Case{"SELECT * FROM t WHERE", "3145 at 21"},
        Case{"SELECT * FROM t WHERE ORDER BY a", "3145 at 22"}, Case{"SELECT * FROM t GROUP a", "3132 at 22"},
        Case{"SELECT * FROM t GROUP BY", "3132 at 24"}, Case{"SELECT * FROM t GROUP BY a b", "3132 at 27"},
        Case{"SELECT * FROM t ORDER a", "3138 at 22"}, Case{"SELECT * FROM t ORDER BY", "3138 at 24"},
        Case{"SELECT * FROM t ORDER BY a b", "3138 at 27"}, Case{"SELECT 1 ORDER BY 1 UNION SELECT 2", "3138 at 20"},
        Case{"SELECT 1 UNION", "3141 at 14"}, Case{"SELECT 1; SELECT 2", "3142 at 10"}, Case{"SELECT 1;;", "3142 at 9"},
        Case{"SELECT a FROM t WITH OWNERACCESS", "3131 at 32"}, Case{"(SELECT 1", "3075 at 9"},
        Case{"TRANSFORM a SELECT b FROM c GROUP BY b", "3132 at 38"},
        Case{"TRANSFORM a SELECT b FROM c UNION SELECT d FROM e PIVOT f", "3075 at 50"},
        Case{"TRANSFORM a SELECT b FROM c GROUP BY b PIVOT d IN (x)", "3075 at 51"},
        Case{"PARAMETERS a Text SELECT 1", "3075 at 25"}));

INSTANTIATE_TEST_SUITE_P(
    Expressions, FaultTest,
    testing::Values(Case{"SELECT a || 'x' FROM t", "3075 at 9"}, Case{"SELECT a FROM t WHERE a != b", "3075 at 25"},
                    Case{"SELECT a FROM t WHERE b = 19x0", "3075 at 26"},
                    Case{"SELECT a FROM t WHERE b = 'x' c = OR 'y'", "3075 at 30"},
                    Case{"SELECT a FROM t WHERE b = 'O'Brien'", "3075 at 29"},
                    Case{"SELECT a FROM t WHERE b = 'x", "3075 at 26"},
                    Case{"SELECT a FROM t WHERE b = OR c", "3075 at 26"},
                    Case{"SELECT COUNT(DISTINCT a) FROM t", "3075 at 13"}, Case{"SELECT Sum(*) FROM t", "3075 at 11"},
                    Case{"SELECT f(a,) FROM t", "3075 at 11"}, Case{"SELECT f(,a) FROM t", "3075 at 9"},
                    Case{"SELECT (a FROM t", "3075 at 10"}, Case{"SELECT a) FROM t", "3075 at 8"},
                    Case{"SELECT a.b.c FROM t", "3075 at 10"}, Case{"SELECT a. FROM t WHERE", "3075 at 15"},
                    Case{"SELECT a IN () FROM t", "3075 at 13"}, Case{"SELECT a IN 'x' FROM t", "3075 at 12"},
                    Case{"SELECT a BETWEEN 1 FROM t", "3075 at 19"}, Case{"SELECT a IS 5 FROM t", "3075 at 12"},
                    Case{"SELECT a NOT b FROM t", "3075 at 9"}, Case{"SELECT a < = b FROM t", "3075 at 11"},
                    Case{"SELECT a + FROM t", "3075 at 11"}, Case{"SELECT #soon#", "3075 at 7"},
                    Case{"SELECT 1 + #soon#", "3075 at 11"}));

INSTANTIATE_TEST_SUITE_P(
    Changes, FaultTest,
    testing::Values(Case{"UPDATE Users UserID = 'a'", "3144 at 20"}, Case{"UPDATE t SET a =  WHERE b", "3144 at 18"},
                    Case{"UPDATE t SET", "3144 at 12"}, Case{"UPDATE SET a = 1", "3144 at 7"},
                    Case{"UPDATE t SET a = 1 b = 2", "3075 at 19"}, Case{"INSERT t VALUES (1)", "3134 at 7"},
                    Case{"INSERT INTO t (a) (1)", "3134 at 18"}, Case{"INSERT INTO t (a)", "3134 at 17"},
                    Case{"INSERT INTO t () VALUES (1)", "3134 at 15"}, Case{"INSERT INTO t VALUES ()", "3134 at 22"},
                    Case{"INSERT INTO t VALUES (1), (2)", "3134 at 24"},
                    Case{"INSERT INTO t VALUES ('a' 'b')", "3075 at 26"}, Case{"INSERT INTO t VALUES (1", "3134 at 23"},
                    Case{"DELETE t WHERE a", "3131 at 9"}, Case{"DELETE a.*, b.* FROM a, b", "3075 at 16"},
                    Case{"DELETE a+1 FROM t", "3075 at 11"}, Case{"CREATE VIEW v", "3290 at 7"},
                    Case{"CREATE TABLE t", "3290 at 14"}, Case{"CREATE TABLE t ()", "3290 at 16"},
                    Case{"CREATE TABLE t (a)", "3290 at 17"}, Case{"CREATE TABLE t (a long NOT)", "3290 at 26"},
                    Case{"CREATE TABLE t (a text('x'))", "3290 at 23"}, Case{"CREATE TABLE t (a long) x", "3290 at 24"},
                    Case{"CREATE INDEX i ON t", "3290 at 19"}, Case{"CREATE INDEX i ON t (a) WITH x", "3290 at 29"},
                    Case{"ALTER TABLE t", "3290 at 13"}, Case{"ALTER TABLE t RENAME a", "3290 at 14"},
                    Case{"DROP i", "3290 at 5"}, Case{"DROP INDEX i", "3290 at 12"},
                    Case{"DROP TABLE t u", "3290 at 13"}));

namespace {

QString Repeat(const QString &head, const QString &body, int count, const QString &tail = {}) {
    return head + body.repeated(count) + tail;
}

int ErrorNumber(const QString &text) {
    try {
        Parse(text);
        return 0;
    } catch (const SqlError &error) {
        return error.Number();
    }
}

} // namespace

TEST(ParserTest, LongFlatChainsParse) {
    constexpr int kMany = 20000;
    for (const char *body : {" OR a = 1", " AND a = 1", " UNION SELECT 1", ", 1"}) {
        EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT 1"), QString::fromLatin1(body), kMany)), 0) << body;
    }
    EXPECT_EQ(
        ErrorNumber(Repeat(QStringLiteral("SELECT 1 IN (1"), QStringLiteral(", 'x'"), kMany, QStringLiteral(")"))), 0);
    EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT * FROM t"), QStringLiteral(", t"), kMany)), 0);
}

TEST(ParserTest, TreesOfAnyShapeAreKeptLow) {
    constexpr int kMany = 10000;
    const int too_complex = int(ErrorCode::TooComplex);
    for (const char *body : {"(", "-", "NOT ", "f(", "(SELECT ", "1 IN (", "1^", "1^-", "1 Imp (", "EXISTS(SELECT ",
                             "1 Imp 1 Eqv 1 Xor 1 Or 1 And Not 1 = 1 & 1 + 1 Mod 1 \\ 1 * -1 ^ (SELECT * FROM (t INNER "
                             "JOIN t ON f(1 In ("}) {
        EXPECT_NE(ErrorNumber(Repeat(QStringLiteral("SELECT "), QString::fromLatin1(body), kMany)), 0) << body;
    }
    for (const char *body :
         {" + 1", " = 1", " Xor 1", " & 1", " Is Null", " Like 'x'", "^2", " In (1)", " Between 1 And 2"}) {
        EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT 1"), QString::fromLatin1(body), kMany)), too_complex)
            << body;
    }
    EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT * FROM t"), QStringLiteral(" INNER JOIN t ON a"), kMany)),
              too_complex);
    EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT * FROM "), QStringLiteral("(SELECT * FROM "), kMany)),
              too_complex);
    EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT * FROM "), QStringLiteral("("), kMany)), too_complex);
    EXPECT_EQ(ErrorNumber(Repeat({}, QStringLiteral("("), kMany)), too_complex);
}

TEST(ParserTest, NestedChainsAddUp) {
    QString text = QStringLiteral("1");
    for (int i = 0; i < 100; ++i) {
        text = u'(' + text + QStringLiteral("+1").repeated(100) + u')';
    }
    EXPECT_EQ(ErrorNumber(QStringLiteral("SELECT ") + text), int(ErrorCode::TooComplex));
    text = QStringLiteral("t");
    for (int i = 0; i < 60; ++i) {
        text = QStringLiteral("(SELECT * FROM ") + text + QStringLiteral(" INNER JOIN t ON a").repeated(20) + u')';
    }
    EXPECT_EQ(ErrorNumber(QStringLiteral("SELECT * FROM ") + text), int(ErrorCode::TooComplex));
}

TEST(ParserTest, ReasonableNestingParses) {
    EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT "), QStringLiteral("("), 140,
                                 QStringLiteral("1") + QStringLiteral(")").repeated(140))),
              0);
    EXPECT_EQ(ErrorNumber(Repeat(QStringLiteral("SELECT 1"), QStringLiteral("+1"), 400)), 0);
}

TEST(ParserTest, FaultsAreReadable) {
    const auto text = [](const char *sql) {
        try {
            Parse(QString::fromUtf8(sql));
            return std::string();
        } catch (const SqlError &error) {
            return error.Text().toStdString();
        }
    };
    EXPECT_EQ(text("SELECT * FROM t LIMIT 3"), "Syntax error in the FROM clause, near: 3");
    EXPECT_EQ(text("SELECT * FROM t WHERE"), "Syntax error in the WHERE clause: the statement ends too early.");
    EXPECT_EQ(text("SELECT 'abc"), "A text is not closed: 'abc");
    EXPECT_EQ(text("SELEC 1"), "The statement begins with no known verb, near: SELEC");
}

TEST(ParserTest, PositionsPointAtTheTokens) {
    const ast::Statement select = Parse(u"SELECT a, b + c FROM t, (SELECT 1) AS u");
    const auto &query = std::get<ast::QueryPtr>(select.node);
    const auto &first = *std::get<std::unique_ptr<ast::Select>>(query->terms[0].node);
    EXPECT_EQ(first.items[1].position, 10);
    EXPECT_EQ(first.items[1].expr->position, 10);
    EXPECT_EQ(first.from[0]->position, 21);
    EXPECT_EQ(first.from[1]->position, 24);
    EXPECT_EQ(Parse(u"INSERT INTO t (a) VALUES (1)").position, 12);
    EXPECT_EQ(std::get<ast::Insert>(Parse(u"INSERT INTO t (a) VALUES (1)").node).values_position, 18);
    EXPECT_EQ(Parse(u"ALTER TABLE t DROP a").position, 12);
    EXPECT_EQ(Parse(u"DROP INDEX i ON t").position, 11);
    EXPECT_EQ(Parse(u"UPDATE t SET a = 1").position, 7);
}

} // namespace ostrand::sql
