#include "queries/QueryVariables.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class QueryVariablesTest : public CollectionTest {
protected:
    QString Resolve(const QString &statement) {
        return ResolveQueryVariables(session, u"Kid's"_s, statement, cancelled_);
    }
    void ExpectQuestion(const QString &name, const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Please enter the value for the variable '%1'"_s.arg(name), answer,
                                     u"Enter Value For Variable"_s);
    }
    bool cancelled_ = false;
};

TEST_F(QueryVariablesTest, TruthValuesInQuotesBecomeBare) {
    const std::pair<QString, QString> rows[] = {
        {u"a = 'true'"_s, u"a = True"_s},   {u"a = 'True'"_s, u"a = True"_s},
        {u"a = 'yes'"_s, u"a = True"_s},    {u"a = 'X'"_s, u"a = True"_s},
        {u"a = 'x'"_s, u"a = True"_s},      {u"a = 'false'"_s, u"a = False"_s},
        {u"a = 'False'"_s, u"a = False"_s}, {u"a = 'no'"_s, u"a = False"_s},
        {u"a = 'TRUE'"_s, u"a = 'TRUE'"_s}, {u"a = 'Yes'"_s, u"a = 'Yes'"_s},
        {u"a = 'yes '"_s, u"a = 'yes '"_s}, {u"a='x',b='no'"_s, u"a=True,b=False"_s},
    };
    for (const auto &[statement, expected] : rows) {
        EXPECT_EQ(NormalizeSqlBooleans(statement), expected);
        EXPECT_EQ(Resolve(statement), expected);
    }
}

TEST_F(QueryVariablesTest, BuiltInNames) {
    session.CurrentProfileID = u"O'1"_s;
    session.CurrentSeriesID = u"s'2"_s;
    const std::pair<QString, QString> rows[] = {
        {u"x = 'OSV_CurrentID'"_s, u"x = 'O''1'"_s},
        {u"x = 'osv_currentid'"_s, u"x = 'O''1'"_s},
        {u"x = OSV_CurrentIDIsEpisode"_s, u"x = False"_s},
        {u"x = 'OSV_CURRENTIDISEPISODE'"_s, u"x = False"_s},
        {u"x = 'OSV_CurrentSeriesID'"_s, u"x = 's''2'"_s},
        {u"x = 'OSV_CurrentColType'"_s, u"x = 'Kid''s'"_s},
        {u"OSV_CurrentID-OSV_CurrentIDs-OSV_Current"_s, u"O''1-O''1s-OSV_Current"_s},
    };
    for (const auto &[statement, expected] : rows) {
        EXPECT_EQ(Resolve(statement), expected);
        EXPECT_FALSE(cancelled_);
    }
    session.CurrentIsEpisode = true;
    EXPECT_EQ(Resolve(u"x = OSV_CurrentIDIsEpisode"_s), u"x = True"_s);
}

TEST_F(QueryVariablesTest, StatementIsCutAtASemicolon) {
    EXPECT_EQ(Resolve(u"SELECT 1; DELETE FROM Profiles"_s), u"SELECT 1"_s);
    EXPECT_EQ(Resolve(u"SELECT 'a;b'"_s), u"SELECT 'a"_s) << "inside a text too";
}

TEST_F(QueryVariablesTest, VariablesAreAskedOnceInTheirOrder) {
    ExpectQuestion(u"b"_s, u"1"_s);
    ExpectQuestion(u"a"_s, u"2"_s);
    EXPECT_EQ(Resolve(u"x = '$b$' AND y = '$a$' AND z = '$b$'"_s), u"x = '1' AND y = '2' AND z = '1'"_s);
}

TEST_F(QueryVariablesTest, AnswersAreEscapedAndStayAsTheyAre) {
    ExpectQuestion(u"a"_s, u"T'Pol"_s);
    EXPECT_EQ(Resolve(u"x = '$a$'"_s), u"x = 'T''Pol'"_s);
    ExpectQuestion(u"a"_s, u"$b$"_s);
    ExpectQuestion(u"b"_s, u"2"_s);
    EXPECT_EQ(Resolve(u"'$a$' '$b$'"_s), u"'$b$' '2'"_s);
    ExpectQuestion(u"a"_s, QString());
    EXPECT_EQ(Resolve(u"x = '$a$'"_s), u"x = ''"_s) << "empty is an answer";
    EXPECT_FALSE(cancelled_);
    ExpectQuestion(u"a"_s, u"yes"_s);
    EXPECT_EQ(Resolve(u"x = '$a$'"_s), u"x = True"_s);
}

TEST_F(QueryVariablesTest, CancelEndsTheQuestions) {
    ExpectQuestion(u"a"_s, u"1"_s);
    ExpectQuestion(u"b"_s, std::nullopt);
    EXPECT_EQ(Resolve(u"'$a$' '$b$' '$c$'"_s), QString());
    EXPECT_TRUE(cancelled_);
    EXPECT_EQ(Resolve(u"SELECT 1"_s), u"SELECT 1"_s);
    EXPECT_FALSE(cancelled_);
}

TEST_F(QueryVariablesTest, SingleDollarIsNoVariable) {
    EXPECT_EQ(Resolve(u"x = '5$'"_s), u"x = '5$'"_s);
    ExpectQuestion(u"a"_s, u"1"_s);
    EXPECT_EQ(Resolve(u"'$a$' '5$'"_s), u"'1' '5$'"_s);
}

TEST_F(QueryVariablesTest, AtMostAHundredVariables) {
    QString statement;
    QString expected;
    for (int i = 1; i <= 101; ++i) {
        statement += u"$v%1$ "_s.arg(i);
        expected += i <= 100 ? u"a%1 "_s.arg(i) : u"$v101$ "_s;
        if (i <= 100) {
            ExpectQuestion(u"v%1"_s.arg(i), u"a%1"_s.arg(i));
        }
    }
    EXPECT_EQ(Resolve(statement), expected);
}

TEST_F(QueryVariablesTest, ValuesAreOffered) {
    Create();
    Run(u"INSERT INTO Users (UserID) VALUES ('Ada')");
    Run(u"INSERT INTO Users (UserID) VALUES ('Ben')");
    struct {
        const char *name;
        QString declarations;
        QStringList values;
    } const rows[] = {
        {"none", {}, {}},
        {"values", u"; $v$ \"one|two\""_s, {u"one"_s, u"two"_s}},
        {"several declarations", u";$w$ \"x\"; $v$=\"one\""_s, {u"one"_s}},
        {"statement", u";$v$ \"select UserID FROM Users ORDER BY UserID\""_s, {u"Ada"_s, u"Ben"_s}},
        {"statement in capitals", u";$v$ \"SELECT UserID FROM Users ORDER BY UserID DESC\""_s, {u"Ben"_s, u"Ada"_s}},
        {"a value that holds the word", u";$v$ \"preselected|other\""_s, {u"preselected"_s, u"other"_s}},
        {"no second quote", u";$v$ \"one|two"_s, {}},
        {"quotes before the name", u";\"one\" $v$"_s, {}},
        {"built-in name", u";$v$ \"OSV_CurrentColType|b\""_s, {u"Kid''s"_s, u"b"_s}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        services.dialogs.last_values = {};
        ExpectQuestion(u"v"_s, u"free text"_s);
        EXPECT_EQ(Resolve(u"x = '$v$'"_s + row.declarations), u"x = 'free text'"_s);
        EXPECT_EQ(services.dialogs.last_values, row.values);
    }
}

TEST_F(QueryVariablesTest, FaultyListOfValuesIsTold) {
    Create();
    Log(kTraceError);
    services.dialogs.ExpectMessage(u"An Error occured"_s);
    ExpectQuestion(u"v"_s, u"1"_s);
    EXPECT_EQ(Resolve(u"$v$;$v$ \"select nothing from nowhere\""_s), u"1"_s);
    ASSERT_EQ(LogLines().size(), 1);
    EXPECT_TRUE(LogLines()[0].contains(u"InputCombo: "_s));
}

TEST_F(QueryVariablesTest, QuestionsAreTranslated) {
    Create();
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Please enter the value for the variable', "
        "'Wert')");
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Enter Value For Variable', 'Eingabe')");
    session.UseUserDefinedStrings = true;
    services.dialogs.ExpectInput(u"Wert 'v'"_s, u"1"_s, u"Eingabe"_s);
    EXPECT_EQ(Resolve(u"$v$"_s), u"1"_s);
}

} // namespace
} // namespace ostrand
