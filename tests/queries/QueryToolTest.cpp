#include "queries/QueryTool.h"

#include "browser/CollectionTabs.h"
#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// A statement that takes far longer than anybody waits.
constexpr auto kEndless = "SELECT Count(*) FROM Alias a, Alias b, Alias c, Alias d, Alias e, Alias f"_L1;

class QueryToolTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Run(u"INSERT INTO Profiles (ProfileID, Title, ProdYear) VALUES ('Key_1', 'Ash', 1990)");
        Run(u"INSERT INTO Profiles (ProfileID, Title, ProdYear) VALUES ('Key_2', 'Birch', 2000)");
    }
    void Send(const QString &statement) { tool.SendQuery(statement, u"Owned"_s); }
    QString Cell(int row, int column) const { return tool.listQueryResult.Text(row, column); }
    QStringList Headings() const {
        QStringList texts;
        for (int column = 0; column < tool.listQueryResult.columnCount(); ++column) {
            texts += tool.listQueryResult.headerData(column, Qt::Horizontal).toString();
        }
        return texts;
    }
    void ExpectName(const std::optional<QString> &name) {
        services.dialogs.ExpectInput(u"Enter a name for the query:"_s, name, u"Query Name"_s);
    }
    void ExpectSaved() {
        services.dialogs.ExpectSaveFile(Path(u"r.txt"_s));
        services.dialogs.ExpectInput({}, u"|"_s);
    }
    void FillAliases() {
        for (int i = 0; i < 200; ++i) {
            Run(QString(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('a%1', 'c', 0)"_s.arg(i)));
        }
    }
    QueryTool tool{session};
};

TEST_F(QueryToolTest, AQueryFillsTheListAndTheTitleTellsTheCount) {
    EXPECT_EQ(tool.caption, u"SQL Query"_s);
    Send(u"SELECT Title, ProdYear FROM Profiles ORDER BY Title"_s);
    EXPECT_EQ(tool.caption, u"SQL Query (2 records)"_s);
    EXPECT_EQ(Headings(), (QStringList{u"Title"_s, u"ProdYear"_s}));
    EXPECT_EQ(Cell(1, 0), u"Birch"_s);
    EXPECT_EQ(tool.textError, QString());
    Send(u"SELECT Title FROM Profiles WHERE Title = 'none'"_s);
    EXPECT_EQ(tool.caption, u"SQL Query (0 records)"_s);
    EXPECT_EQ(tool.listQueryResult.rowCount(), 0);
    EXPECT_EQ(Headings(), QStringList(u"Title"_s));
}

TEST_F(QueryToolTest, WhateverGivesRowsIsListed) {
    const struct {
        QString statement;
        int rows;
    } table[] = {
        {u"select Title from Profiles"_s, 2},
        {u"SeLeCt Title from Profiles"_s, 2},
        {u"\n  SELECT Title FROM Profiles\n"_s, 2},
        {u"(SELECT Title FROM Profiles) UNION (SELECT ProfileID FROM Profiles)"_s, 4},
        {u"Profiles"_s, 2},
        {u"TRANSFORM Count(*) SELECT Title FROM Profiles GROUP BY Title PIVOT ProdYear"_s, 2},
    };
    for (const auto &row : table) {
        Send(row.statement);
        EXPECT_EQ(tool.textError, QString()) << qPrintable(row.statement);
        EXPECT_EQ(tool.caption, u"SQL Query (%1 records)"_s.arg(row.rows)) << qPrintable(row.statement);
    }
}

TEST_F(QueryToolTest, OtherStatementsAreExecutedWithoutAQuestion) {
    Send(u"SELECT Title FROM Profiles"_s);
    Send(u"DELETE FROM Profiles WHERE ProfileID = 'Key_1'"_s);
    EXPECT_EQ(tool.textError, QString());
    EXPECT_EQ(tool.labelInfo, u"Rows changed: 1"_s);
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles"), QStringList(u"Key_2"_s));
    EXPECT_EQ(tool.listQueryResult.rowCount(), 2) << "the list shows what was asked for last";
    Send(u"SELECT Title FROM Profiles"_s);
    EXPECT_EQ(tool.labelInfo, QString());
}

TEST_F(QueryToolTest, AStatementIsCutAtASemicolon) {
    Send(u"SELECT 'a;b' FROM Profiles"_s);
    EXPECT_NE(tool.textError, QString());
    Send(u"UPDATE Profiles SET Title = 'New' WHERE ProfileID = 'Key_1'; DELETE FROM Profiles"_s);
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles ORDER BY Title"), (QStringList{u"Birch"_s, u"New"_s}));
}

TEST_F(QueryToolTest, FaultsTellTheirPlace) {
    const struct {
        QString statement;
        QString place;
        int position;
    } table[] = {
        {u"SELECT Title FROM Profiles WHERE Title LIKE LIKE"_s, u"Line 1, column "_s, 0},
        {u"SELECT Title\nFROM Profiles\nWHERE )"_s, u"Line 3, column 7"_s, 33},
        {u"SELECT Title\r\nFROM Profiles\r\nWHERE )"_s, u"Line 3, column 7"_s, 35},
        {u"DELETE FORM Profiles"_s, u"Line 1, column "_s, 0},
    };
    for (const auto &row : table) {
        Send(row.statement);
        ASSERT_EQ(tool.textError.count(u"\r\n"_s), 1) << qPrintable(tool.textError);
        EXPECT_TRUE(tool.textError.section(u'\n', 1).startsWith(row.place)) << qPrintable(tool.textError);
        EXPECT_GE(tool.error_position, row.position) << qPrintable(row.statement);
        if (row.position > 0) {
            EXPECT_EQ(tool.error_position, row.position);
        }
    }
    Send(u"SELECT Title FROM Profiles"_s);
    EXPECT_EQ(tool.textError, QString()) << "cleared by the next statement";
    EXPECT_EQ(tool.error_position, -1);
}

TEST_F(QueryToolTest, APlaceIsFoundInTheTextThatWasSent) {
    const struct {
        QString statement;
        int position; ///< of the fault, which is the bracket; -1 where it cannot be told
    } table[] = {
        {u"SELECT Title FROM Profiles WHERE ) AND Title = '$T$'"_s, 33},
        {u"SELECT Title FROM Profiles WHERE Title = '$T$' AND )"_s, 51},
        {u"SELECT Title FROM Profiles WHERE Title = '$T$' AND ) ; $T$ \"a)|b)\""_s, 51},
        {u"SELECT Title FROM Profiles WHERE Title = '$T$' AND ) OR Title = '$T$'"_s, -1},
    };
    for (const auto &row : table) {
        services.dialogs.ExpectInput({}, u"a longer value"_s);
        Send(row.statement);
        EXPECT_TRUE(tool.textError.contains(u"Line 1, column "_s)) << qPrintable(tool.textError);
        EXPECT_EQ(tool.error_position, row.position) << qPrintable(row.statement);
    }
}

TEST_F(QueryToolTest, AnotherLanguageChangesWhatIsShown) {
    session.UseUserDefinedStrings = true;
    const auto put = [this](const char *english, const char *user) {
        Run(QString(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('"_s + QLatin1String(english) +
                    u"', '"_s + QLatin1String(user) + u"')"_s));
    };
    Send(u"SELECT Title FROM Profiles"_s);
    Send(u"UPDATE Profiles SET ProdYear = 1"_s);
    put("SQL Query", "Abfrage");
    put("records", "Zeilen");
    put("Rows changed:", "Anders:");
    put("Tables", "Tabellen");
    put("Usage:", "Hinweise:");
    put("Line", "Zeile");
    tool.TranslateTexts();
    EXPECT_EQ(tool.caption, u"Abfrage (2 Zeilen)"_s);
    EXPECT_EQ(tool.labelInfo, u"Anders: 2"_s);
    EXPECT_EQ(Cell(1, 0), u"Birch"_s) << "the result stays";
    session.UseUserDefinedStrings = false;
    tool.ListTables();
    session.UseUserDefinedStrings = true;
    tool.TranslateTexts();
    EXPECT_EQ(Headings().front(), u"Tabellen"_s);
    EXPECT_TRUE(tool.textError.startsWith(u"Hinweise:\r\n"_s)) << qPrintable(tool.textError);
    EXPECT_EQ(tool.caption, u"Abfrage"_s);
    session.UseUserDefinedStrings = false;
    Send(u"SELECT Title FROM Profiles WHERE )"_s);
    ASSERT_TRUE(tool.textError.contains(u"Line 1"_s)) << qPrintable(tool.textError);
    session.UseUserDefinedStrings = true;
    tool.TranslateTexts();
    EXPECT_TRUE(tool.textError.contains(u"Zeile 1"_s)) << qPrintable(tool.textError);
}

TEST_F(QueryToolTest, VariablesAreAskedForAndACancelEndsIt) {
    Send(u"SELECT Title FROM Profiles WHERE Nothing = 1"_s);
    const QString fault = tool.textError;
    ASSERT_FALSE(fault.isEmpty());
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'T'"_s, std::nullopt);
    Send(u"SELECT Title FROM Profiles WHERE Title = '$T$'"_s);
    EXPECT_EQ(tool.textError, fault) << "nothing was sent";
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'T'"_s, u"Ash"_s);
    Send(u"SELECT Title FROM Profiles WHERE Title = '$T$' OR Title = '$T$'"_s);
    EXPECT_EQ(tool.caption, u"SQL Query (1 records)"_s);
    session.CurrentProfileID = u"Key_2"_s;
    Send(u"SELECT Title, 'OSV_CurrentColType' FROM Profiles WHERE ProfileID = 'OSV_CurrentID'"_s);
    EXPECT_EQ(Cell(0, 0) + Cell(0, 1), u"BirchOwned"_s);
}

TEST_F(QueryToolTest, ABlankTextSendsNothing) {
    for (const QString &blank : {QString(), u" \n "_s, u";SELECT 1"_s}) {
        Send(blank);
        EXPECT_EQ(tool.textError + tool.labelInfo, QString());
    }
}

TEST_F(QueryToolTest, WithoutADatabaseThatIsSaid) {
    session.Database.reset();
    tool.SendQuery(u"SELECT '$x$'"_s, {});
    EXPECT_EQ(tool.textError, u"No open database!"_s);
    tool.ListTables();
    EXPECT_EQ(tool.SaveQuery(u"x"_s), QString());
    EXPECT_EQ(tool.SavedStatement(u"x"_s), QString());
    EXPECT_FALSE(tool.DeleteQuery(u"x"_s));
    tool.UpdateQueryList();
    EXPECT_EQ(tool.textError, u"No open database!"_s);
    EXPECT_TRUE(tool.listQueries.isEmpty());
}

TEST_F(QueryToolTest, TablesAreListedWithTheKindsOfTheirFields) {
    Run(u"CREATE TABLE MSysOwn (A integer)");
    Run(u"CREATE TABLE Kinds (T varchar, M memo, I integer, L long, B yesno, D date, N NUMERIC)");
    tool.ListTables();
    QStringList tables;
    qsizetype widest = 0;
    for (int row = 0; row < tool.listQueryResult.rowCount(); ++row) {
        QStringList fields;
        for (int column = 1; column < tool.listQueryResult.columnCount(); ++column) {
            fields += Cell(row, column);
        }
        fields.removeAll(QString());
        widest = std::max(widest, fields.size());
        tables += Cell(row, 0);
        if (tables.back() == u"Kinds"_s) {
            EXPECT_EQ(fields, (QStringList{u"T"_s, u"M"_s, u"I [int]"_s, u"L [int]"_s, u"B [bool]"_s, u"D [date]"_s,
                                           u"N [double]"_s}));
        }
    }
    EXPECT_TRUE(tables.contains(u"Kinds"_s));
    EXPECT_TRUE(tables.contains(u"Profiles"_s));
    EXPECT_FALSE(tables.contains(u"MSysOwn"_s));
    EXPECT_EQ(Headings().size(), widest + 1) << "as many as the widest table has";
    EXPECT_EQ(Headings().front(), u"Tables"_s);
    EXPECT_EQ(Headings().mid(1).removeAll(u"Field"_s), widest);
    EXPECT_EQ(tool.textError, u"Usage:\r\n"
                              "Single quotes inside of values must be replaced by two single quotes\r\n"
                              "Example: Role = 'T'Pol' has to be Role = 'T''Pol'\r\n"
                              "Wildcard is the asterisk:\r\n"
                              "Example: SELECT Name FROM Cast WHERE Name LIKE 'An*'\r\n"
                              "Using variables: $VariableName$"_s);
}

TEST_F(QueryToolTest, QueriesAreSavedUnderAName) {
    ExpectName(u"It's mine"_s);
    EXPECT_EQ(tool.SaveQuery(u"SELECT 'x'\nFROM Profiles"_s), u"It's mine"_s);
    EXPECT_EQ(tool.listQueries, QStringList(u"It's mine"_s));
    EXPECT_EQ(tool.SavedStatement(u"It's mine"_s), u"SELECT 'x'\r\nFROM Profiles"_s);
    EXPECT_EQ(tool.SavedStatement(u"other"_s), QString());
    ExpectName(std::nullopt);
    EXPECT_EQ(tool.SaveQuery(u"y"_s), QString());
    ExpectName(QString());
    EXPECT_EQ(tool.SaveQuery(u"y"_s), QString());
    EXPECT_EQ(Rows(u"SELECT Name FROM SQLQueries"), QStringList(u"It's mine"_s));
    EXPECT_EQ(tool.textError, QString());
}

TEST_F(QueryToolTest, ANameThatIsThereIsReplacedOnlyWhenWanted) {
    ExpectName(u"Old"_s);
    tool.SaveQuery(u"one"_s);
    const QString question = u"Query with name %1 does already exist! Replace existing?"_s;
    ExpectName(u"Old"_s);
    services.dialogs.ExpectMessage(question.arg(u"Old"_s), MessageAnswer::No, u"Name exists"_s);
    EXPECT_EQ(tool.SaveQuery(u"two"_s), QString());
    EXPECT_EQ(tool.SavedStatement(u"Old"_s), u"one"_s);
    ExpectName(u"OLD"_s);
    services.dialogs.ExpectMessage(question.arg(u"OLD"_s), MessageAnswer::Yes, u"Name exists"_s);
    EXPECT_EQ(tool.SaveQuery(u"it's three"_s), u"Old"_s) << "names are told apart as the key does";
    EXPECT_EQ(Rows(u"SELECT Name, SQLStatement FROM SQLQueries"), QStringList(u"Old|it's three"_s));
}

TEST_F(QueryToolTest, AFaultOfTheDatabaseKeepsNothing) {
    session.Database->SetObserver([](QStringView statement) {
        if (statement.startsWith(u"INSERT") || statement.startsWith(u"DELETE")) {
            throw sql::SqlError(sql::ErrorCode::DiskFull, u"The disk is full."_s);
        }
    });
    ExpectName(u"Mine"_s);
    EXPECT_EQ(tool.SaveQuery(u"one"_s), QString());
    EXPECT_EQ(tool.textError, u"The disk is full."_s);
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes);
    EXPECT_FALSE(tool.DeleteQuery(u"Mine"_s));
    EXPECT_EQ(tool.textError, u"The disk is full."_s);
}

TEST_F(QueryToolTest, AQueryIsDeletedOnlyWhenWanted) {
    ExpectName(u"It's"_s);
    tool.SaveQuery(u"one"_s);
    services.dialogs.ExpectMessage(u"Do you really want to delete 'It's'?"_s, MessageAnswer::No, u"Delete Query"_s);
    EXPECT_FALSE(tool.DeleteQuery(u"It's"_s));
    EXPECT_EQ(tool.listQueries, QStringList(u"It's"_s));
    services.dialogs.ExpectMessage(u"Do you really want to delete 'It's'?"_s, MessageAnswer::Yes, u"Delete Query"_s);
    EXPECT_TRUE(tool.DeleteQuery(u"It's"_s));
    EXPECT_EQ(tool.listQueries, QStringList());
    EXPECT_FALSE(tool.DeleteQuery({})) << "nothing is selected";
}

TEST_F(QueryToolTest, AStatementMayChangeTheSavedQueries) {
    Send(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Own', 'SELECT 1')"_s);
    EXPECT_EQ(tool.listQueries, QStringList(u"Own"_s));
}

TEST_F(QueryToolTest, TheTemplateIsAFilter) {
    const QString statement = QueryTool::FilterTemplate();
    EXPECT_EQ(statement, u"SELECT p.ProfileID, p.Title, p.ColNo, p.SortTitle, p.Originaltitle, p.OriginalSortTitle, "
                         u"p.CustomTitle, p.CustomSortTitle, p.Description FROM Profiles p WHERE p.Title LIKE "
                         u"'*$Substring$*'"_s);
    EXPECT_TRUE(QualifiesAsFilter(statement));
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'Substring'"_s, u"irc"_s);
    Send(statement);
    EXPECT_EQ(tool.caption, u"SQL Query (1 records)"_s);
    EXPECT_EQ(tool.listQueryResult.ProfileOf(0), u"Key_2"_s);
}

TEST_F(QueryToolTest, TheResultIsSavedWithTheDividerThatIsAskedFor) {
    Send(u"SELECT Title, ProdYear FROM Profiles ORDER BY Title"_s);
    const struct {
        QString answer;
        QByteArray expected;
    } table[] = {
        {u"|"_s, "Title|ProdYear\r\nAsh|1990\r\nBirch|2000\r\n"},
        {u"Tab"_s, "Title\tProdYear\r\nAsh\t1990\r\nBirch\t2000\r\n"},
        {u"TAB"_s, "Title\tProdYear\r\nAsh\t1990\r\nBirch\t2000\r\n"},
        {u"; "_s, "Title; ProdYear\r\nAsh; 1990\r\nBirch; 2000\r\n"},
    };
    for (const auto &row : table) {
        services.dialogs.ExpectSaveFile(Path(u"r.txt"_s), u"Save Result"_s);
        services.dialogs.ExpectInput(u"Which divider should be used for columns?\r\n(Enter 'tab' for tabulator)"_s,
                                     row.answer, u"Divider"_s);
        tool.SaveResult();
        EXPECT_EQ(folder_.Read(u"r.txt"_s), row.expected);
        EXPECT_EQ(services.dialogs.last_preset, u"|"_s);
    }
    EXPECT_EQ(services.dialogs.file_requests.back().filters, (QStringList{u"Text File|*.txt"_s, u"All Files|*.*"_s}));
    EXPECT_TRUE(services.dialogs.file_requests.back().initial.endsWith(u"/Result.txt"_s));
}

TEST_F(QueryToolTest, SavingTheResultCanBeCancelledTwice) {
    services.dialogs.ExpectSaveFile({});
    tool.SaveResult();
    services.dialogs.ExpectSaveFile(Path(u"r.txt"_s));
    services.dialogs.ExpectInput({}, std::nullopt);
    tool.SaveResult();
    EXPECT_FALSE(folder_.Has(u"r.txt"_s));
    services.dialogs.ExpectSaveFile(Path(u"missing/r.txt"_s));
    services.dialogs.ExpectInputPreset({});
    services.dialogs.ExpectMessage({}, MessageIcon::Critical, MessageAnswer::Ok, u"Save Result"_s);
    tool.SaveResult();
    EXPECT_TRUE(services.dialogs.messages.back().text.startsWith(u"The file cannot be written: "_s));
}

TEST_F(QueryToolTest, ALargeResultIsSavedWithProgress) {
    FillAliases();
    Send(u"SELECT a.AliasName, b.AliasName FROM Alias a, Alias b"_s);
    ASSERT_EQ(tool.listQueryResult.rowCount(), 40000);
    services.progress.calls.clear();
    ExpectSaved();
    tool.SaveResult();
    EXPECT_EQ(services.progress.calls.first(), u"opened Save Result"_s);
    EXPECT_TRUE(services.progress.Has(u"line Row 0 of 40000"_s));
    EXPECT_TRUE(services.progress.Has(u"bar 40000/40000"_s));
    EXPECT_GT(services.pump.Turns(), 5) << "events run in between";
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
    EXPECT_EQ(folder_.Read(u"r.txt"_s).count('\n'), 40001);
}

TEST_F(QueryToolTest, SavingALargeResultCanBeCancelledAndLeavesTheFile) {
    FillAliases();
    Send(u"SELECT a.AliasName, b.AliasName FROM Alias a, Alias b"_s);
    folder_.Write(u"r.txt"_s, "old");
    services.pump.At(services.pump.Turns() + 3, [this] { session.progress.Close(); });
    ExpectSaved();
    tool.SaveResult();
    EXPECT_EQ(folder_.Read(u"r.txt"_s), "old");
    EXPECT_FALSE(session.progress.IsShown());
    EXPECT_TRUE(services.dialogs.messages.empty()) << "the user knows";
}

TEST_F(QueryToolTest, AProgramThatEndsSavesNoMore) {
    FillAliases();
    Send(u"SELECT a.AliasName, b.AliasName FROM Alias a, Alias b"_s);
    services.pump.At(services.pump.Turns() + 3, [this] { session.EndProgram = true; });
    ExpectSaved();
    tool.SaveResult();
    EXPECT_FALSE(folder_.Has(u"r.txt"_s));
}

TEST_F(QueryToolTest, ASmallResultIsSavedWithoutProgress) {
    Send(u"SELECT Title FROM Profiles"_s);
    services.progress.calls.clear();
    ExpectSaved();
    tool.SaveResult();
    EXPECT_TRUE(folder_.Has(u"r.txt"_s));
    EXPECT_TRUE(services.progress.calls.isEmpty());
}

TEST_F(QueryToolTest, ALongStatementShowsProgressAndCanBeCancelled) {
    FillAliases();
    services.pump.At(2, [this] { session.progress.Close(); });
    Send(kEndless);
    EXPECT_EQ(services.progress.calls.first(), u"opened SQL Query"_s);
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
    EXPECT_TRUE(tool.textError.startsWith(u"The statement was interrupted."_s)) << qPrintable(tool.textError);
    Send(u"SELECT Title FROM Profiles"_s);
    EXPECT_EQ(tool.textError, QString()) << "the next statement runs";
    EXPECT_FALSE(session.progress.IsShown());
}

TEST_F(QueryToolTest, TheValuesOfAVariableCanTakeTooLongToo) {
    FillAliases();
    services.pump.At(2, [this] { session.progress.Close(); });
    services.dialogs.ExpectMessage(u"An Error occured"_s);
    services.dialogs.ExpectInput(u"Please enter the value for the variable 'n'"_s, std::nullopt);
    Send(u"SELECT $n$ ; $n$ \""_s + kEndless + u'"');
    EXPECT_TRUE(services.dialogs.last_values.isEmpty());
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
}

TEST_F(QueryToolTest, ACancelledChangeChangesNothing) {
    FillAliases();
    services.pump.At(1, [this] { session.Database->FlushIfDue(); });
    services.pump.At(3, [this] { session.progress.Close(); });
    Send(QString(u"UPDATE Profiles SET Title = 'New' WHERE ("_s + kEndless + u" WHERE a.CommonName <> Title) > 5"_s));
    EXPECT_TRUE(tool.textError.startsWith(u"The statement was interrupted."_s)) << qPrintable(tool.textError);
    EXPECT_EQ(Rows(u"SELECT Title FROM Profiles ORDER BY Title"), (QStringList{u"Ash"_s, u"Birch"_s}));
}

TEST_F(QueryToolTest, TheEndOfTheProgramEndsTheStatement) {
    FillAliases();
    services.pump.At(1, [this] { session.EndProgram = true; });
    Send(kEndless);
    EXPECT_TRUE(tool.textError.startsWith(u"The statement was interrupted."_s));
    EXPECT_FALSE(session.progress.IsShown());
}

TEST_F(QueryToolTest, AnotherDatabaseBeginsAnew) {
    ExpectName(u"Own"_s);
    tool.SaveQuery(u"one"_s);
    Send(u"SELECT Title FROM Profiles"_s);
    Create(u"Other.mdb"_s);
    tool.DatabaseChanged();
    EXPECT_EQ(tool.caption, u"SQL Query"_s);
    EXPECT_EQ(tool.listQueryResult.rowCount(), 0);
    EXPECT_EQ(tool.listQueries, QStringList());
}

} // namespace
} // namespace ostrand
