// The settings of a database, the infos of a profile, quoting, and the idioms that the program leans on.
#include "CollectionFixture.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

class AccessTest : public CollectionTest {
protected:
    void SetUp() override { Create(); }
};

const QStringList kAwkwardTexts = {
    u"plain"_s,     u"O'Brien"_s,        u"''"_s, u"'"_s,       u"He said \"no\""_s,        u"a;b"_s,
    u"line\r\n2"_s, u"[brackets] #1#"_s, u"%1"_s, u"Größe €"_s, QString(5000, u'x') + u'\''};

} // namespace

TEST(EscapeSql, DoublesSingleQuotes) {
    static constexpr struct {
        QStringView text;
        QStringView escaped;
    } kTexts[] = {{u"", u""},    {u"plain", u"plain"}, {u"O'Brien", u"O''Brien"},
                  {u"'", u"''"}, {u"''", u"''''"},     {u"\"double\"", u"\"double\""}};
    for (const auto &row : kTexts) {
        EXPECT_EQ(EscapeSql(row.text.toString()), row.escaped);
    }
}

TEST_F(AccessTest, ASettingIsReadBackAsItWasWritten) {
    for (const QString &text : kAwkwardTexts) {
        EXPECT_TRUE(WriteDbInfo(session, u"Key"_s, text, text.left(200)));
        EXPECT_EQ(ReadDbInfo(session, u"Key"_s, u"preset"_s), text);
    }
}

TEST_F(AccessTest, ASettingWhoseNameHoldsAnApostropheIsOneRow) {
    WriteDbInfo(session, u"Ann's"_s, u"1"_s);
    WriteDbInfo(session, u"Ann's"_s, u"2"_s, u"Ann's comment"_s);
    EXPECT_EQ(Rows(u"SELECT InfoName, InfoValue, Comment FROM DbInfo WHERE InfoName LIKE 'Ann*'"),
              QStringList(u"Ann's|2|Ann's comment"_s));
}

TEST_F(AccessTest, AMissingSettingGivesThePreset) {
    EXPECT_EQ(ReadDbInfo(session, u"x"_s, u"d"_s), u"d"_s);
}

TEST_F(AccessTest, AnEmptyValueRemovesTheSetting) {
    WriteDbInfo(session, u"x"_s, u"value"_s);
    EXPECT_TRUE(WriteDbInfo(session, u"x"_s, {}, {}));
    EXPECT_EQ(ReadDbInfo(session, u"x"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM DbInfo WHERE InfoName = 'x'"), QStringList(u"0"_s));
}

TEST_F(AccessTest, ANullValueReadsAsTheEmptyText) {
    Run(u"INSERT INTO DbInfo (InfoName) VALUES ('x')");
    EXPECT_EQ(ReadDbInfo(session, u"x"_s, u"d"_s), QString());
}

TEST_F(AccessTest, NamesOfSettingsCompareWithoutCase) {
    WriteDbInfo(session, u"FontName"_s, u"Arial"_s);
    EXPECT_EQ(ReadDbInfo(session, u"FONTNAME"_s, {}), u"Arial"_s);
}

TEST_F(AccessTest, WithoutTheTableASettingIsEmptyAndRaisesNothing) {
    Run(u"DROP TABLE DbInfo");
    EXPECT_EQ(ReadDbInfo(session, u"Schema"_s, u"d"_s), QString());
}

TEST_F(AccessTest, WithoutADatabaseNothingIsWrittenOrRead) {
    session.Database.reset();
    EXPECT_FALSE(WriteDbInfo(session, u"x"_s, u"1"_s, {}));
    EXPECT_EQ(ReadDbInfo(session, u"x"_s, u"d"_s), QString());
    EXPECT_TRUE(ReadDbInfoFlag(session, u"x"_s, true));
    WriteAdditionalInfo(session, u"Key_1"_s, u"URL"_s, u"a"_s);
    WriteMetaInfo(session, u"Key_1"_s, u"URL"_s, u"a"_s);
    EXPECT_EQ(ReadAdditionalInfo(session, u"Key_1"_s, u"URL"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(ReadMetaInfo(session, u"Key_1"_s, u"URL"_s, u"d"_s), u"d"_s);
}

TEST_F(AccessTest, SettingsAreTraced) {
    Log(kTraceEntry | kTraceExit);
    WriteDbInfo(session, u"LoanDue"_s, u"9"_s, u"days"_s);
    ReadDbInfo(session, u"LoanDue"_s, u"7"_s);
    EXPECT_EQ(LogLines(), QStringList({u"Enter:    WriteDbInfo(LoanDue, 9, days)"_s, u"Exit:     WriteDbInfo: True"_s,
                                       u"Enter:    ReadDbInfo(LoanDue, 7)"_s, u"Exit:     ReadDbInfo: 9"_s}));
}

TEST_F(AccessTest, FlagsReadInBothSpellings) {
    static constexpr struct {
        QStringView text;
        bool with_false;
        bool with_true;
    } kFlags[] = {{u"True", true, true}, {u"true", true, true},    {u"1", true, true},
                  {u"-1", true, true},   {u"False", false, false}, {u"FALSE", false, false},
                  {u"0", false, false},  {u"maybe", false, true},  {u"", false, true}};
    for (const auto &row : kFlags) {
        SCOPED_TRACE(row.text.toString().toStdString());
        WriteDbInfo(session, u"Flag"_s, row.text.toString());
        EXPECT_EQ(ReadDbInfoFlag(session, u"Flag"_s, false), row.with_false);
        EXPECT_EQ(ReadDbInfoFlag(session, u"Flag"_s, true), row.with_true);
    }
}

TEST_F(AccessTest, AdditionalInfosAreWrittenReplacedAndRemoved) {
    const QString id = u"Key_O'1"_s;
    for (const QString &text : kAwkwardTexts) {
        WriteAdditionalInfo(session, id, u"Ann's"_s, text, u"Link"_s);
        EXPECT_EQ(ReadAdditionalInfo(session, id, u"ANN'S"_s, u"d"_s), text);
    }
    EXPECT_EQ(Rows(u"SELECT ProfileID, InfoName, InfoType FROM AdditionalInfo"), QStringList(u"Key_O'1|Ann's|Link"_s));
    WriteAdditionalInfo(session, id, u"Ann's"_s, {});
    EXPECT_EQ(session.Database->RecordCount(u"AdditionalInfo"), 0);
    EXPECT_EQ(ReadAdditionalInfo(session, id, u"Ann's"_s, u"d"_s), u"d"_s);
}

TEST_F(AccessTest, AnEmptyInfoGivesThePreset) {
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_1', 'a', '')");
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName) VALUES ('Key_1', 'b')");
    Run(u"INSERT INTO MetaInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_1', 'a', '')");
    EXPECT_EQ(ReadAdditionalInfo(session, u"Key_1"_s, u"a"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(ReadAdditionalInfo(session, u"Key_1"_s, u"b"_s, u"d"_s), u"d"_s);
    EXPECT_EQ(ReadMetaInfo(session, u"Key_1"_s, u"a"_s, u"d"_s), u"d"_s);
}

TEST_F(AccessTest, MetaInfosAreWrittenReplacedAndRemoved) {
    for (const QString &text : kAwkwardTexts) {
        WriteMetaInfo(session, u"Key_1"_s, u"RatingAge"_s, text);
        EXPECT_EQ(ReadMetaInfo(session, u"Key_1"_s, u"RatingAge"_s, {}), text);
        EXPECT_EQ(session.Database->RecordCount(u"MetaInfo"), 1);
    }
    WriteMetaInfo(session, u"Key_1"_s, u"RatingAge"_s, {});
    EXPECT_EQ(session.Database->RecordCount(u"MetaInfo"), 0);
}

TEST_F(AccessTest, AnInsertOfAnExistingRowLeavesItAsItWas) {
    Run(u"INSERT INTO Currencies (CurrencyID, CurrencyName, CurrencySymbol) VALUES ('USD', 'US Dollar', '$')");
    EXPECT_NO_THROW(Run(u"INSERT INTO Currencies (CurrencyID, CurrencyName, CurrencySymbol) VALUES ('USD', 'x', 'x')"));
    EXPECT_EQ(Rows(u"Currencies"), QStringList(u"USD|US Dollar|$"_s));
}

TEST_F(AccessTest, NamesThatDifferInCaseCollideInAKey) {
    Run(u"INSERT INTO CastCrew (Name, ProfileID, Position, IsCast) VALUES ('Mia Stone', 'Key_1', 1, true)");
    Run(u"INSERT INTO CastCrew (Name, ProfileID, Position, IsCast) VALUES ('MIA STONE', 'key_1', 1, true)");
    Run(u"INSERT INTO CastCrew (Name, ProfileID, Position, IsCast) VALUES ('Mia Stone', 'Key_1', 1, false)");
    EXPECT_EQ(Rows(u"SELECT Name, IsCast FROM CastCrew ORDER BY IsCast"),
              QStringList({u"Mia Stone|True"_s, u"Mia Stone|False"_s}));
}

TEST_F(AccessTest, ARowWithoutItsParentIsDropped) {
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('Key_1', 'Nobody')");
    EXPECT_EQ(session.Database->RecordCount(u"LoanInfo"), 0);
    Run(u"INSERT INTO Users (UserID, IsActive) VALUES ('Ann Lee', true)");
    Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ('Key_1', 'Ann Lee')");
    EXPECT_EQ(session.Database->RecordCount(u"LoanInfo"), 1);
}

TEST_F(AccessTest, ATruthValueRendersAndComparesAsOne) {
    Run(u"INSERT INTO Users (UserID, IsActive) VALUES ('Ann Lee', true)");
    Run(u"INSERT INTO Users (UserID) VALUES ('Bob Ray')");
    EXPECT_EQ(Rows(u"SELECT UserID, IsActive FROM Users ORDER BY UserID"),
              QStringList({u"Ann Lee|True"_s, u"Bob Ray|False"_s}));
    EXPECT_EQ(Rows(u"SELECT UserID FROM Users WHERE IsActive = true"), QStringList(u"Ann Lee"_s));
}

TEST_F(AccessTest, QuotedNumbersAndDatesTakeTheTypeOfTheirColumn) {
    Run(u"INSERT INTO Profiles (ProfileID, Title, ProdYear, Released) VALUES ('Key_1', 'A', '1999', '1899-12-30')");
    Run(u"INSERT INTO Profiles (ProfileID, Title, ProdYear, Released) VALUES ('Key_2', 'B', '900', '2001-05-14')");
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles ORDER BY ProdYear"), QStringList({u"Key_2"_s, u"Key_1"_s}));
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles WHERE YEAR(Released) <> 1899"), QStringList(u"Key_2"_s));
    EXPECT_EQ(Rows(u"SELECT Released FROM Profiles WHERE ProfileID = 'Key_1'"), QStringList(u"1899-12-30"_s));
}

TEST_F(AccessTest, ALockIsFoundWithoutRegardToCase) {
    Run(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('Key_1', 'Title')");
    EXPECT_EQ(Rows(u"SELECT * FROM Locks WHERE ProfileID = 'KEY_1' AND LockName = 'TITLE'").size(), 1);
}

} // namespace ostrand
