// Databases of every earlier version come to the present schema with the data that must survive.
#include "CollectionFixture.h"
#include "HistoricSchema.h"
#include "sql/ForkedChild.h"

#include "database/Schema.h"
#include "database/Upgrade.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAskedBelow = 69;
const char16_t *const kQuestion = u"Existing incompatible data will be deleted!\r\nPersonal data Episode Assignments "
                                  u"and SQL Queries will NOT be lost. Continue Now?";

struct Row {
    QString table;
    QList<std::pair<QString, QString>> values;
};

/// One row and more of every table, in the words of the oldest version that keeps them; a version leaves out the
/// columns that it lacks. Flags are texts before 76.
QList<Row> SampleRows(int version) {
    const bool texts = version < 76;
    const QString yes = texts ? u"'yes'"_s : u"true"_s;
    const QString no = texts ? u"'no'"_s : u"false"_s;
    const QString set = texts ? u"'true'"_s : u"true"_s;
    const QString clear = texts ? u"'False'"_s : u"false"_s;
    const QString id = u"'Key_1'"_s;
    return {
        {u"Users"_s, {{u"UserID"_s, u"'Ann Lee'"_s}, {u"PhoneNumber"_s, u"'555-1'"_s}}},
        {u"SQLQueries"_s, {{u"Name"_s, u"'By title'"_s}, {u"SQLStatement"_s, u"'SELECT Title FROM Profiles'"_s}}},
        {u"Profile2Episodes"_s, {{u"ID"_s, u"7"_s}, {u"ProfileID"_s, id}, {u"EpisodeID"_s, u"'Key_Harbour101'"_s}}},
        {u"Translation"_s, {{u"OriginalString"_s, u"'Owned'"_s}, {u"UserString"_s, u"'Besitz'"_s}}},
        {u"Alias"_s,
         {{u"AliasName"_s, u"'M. Stone'"_s},
          {u"CommonName"_s, u"'Mia Stone'"_s},
          {u"BirthYear"_s, version < 75 ? u"NULL"_s : u"0"_s}, // not part of the key before
          {u"Comment"_s, u"'short'"_s}}},
        {u"DbInfo"_s, {{u"InfoName"_s, u"'Owner'"_s}, {u"InfoValue"_s, u"'Ann Lee'"_s}}},
        {u"Profiles"_s,
         {{u"ProfileID"_s, id},
          {u"Title"_s, u"'The Green Lamp'"_s},
          {u"Medium"_s, u"'HDDVD/DVD'"_s},
          {u"MD5"_s, u"'0123'"_s}}},
        {u"TVSeries"_s,
         {{u"SeriesID"_s, u"'Key_Harbour'"_s}, {u"OriginalTitle"_s, u"'Hafen'"_s}, {u"Title"_s, u"'Harbour'"_s}}},
        {u"Episodes"_s, {{u"EpisodeID"_s, u"'Key_Harbour101'"_s}, {u"SeriesID"_s, u"'Key_Harbour'"_s}}},
        {u"CastCrew"_s,
         {{u"Name"_s, u"'Mia Stone'"_s},
          {u"Role"_s, u"'Lucy (Voice) (uncredited)'"_s},
          {u"ProfileID"_s, id},
          {u"Position"_s, u"1"_s},
          {u"BirthYear"_s, u"0"_s},
          {u"IsVoice"_s, set},
          {u"IsUncredited"_s, set},
          {u"IsCast"_s, yes}}},
        {u"CastCrew"_s,
         {{u"Name"_s, u"'Mia Stone'"_s},
          {u"Role"_s, u"'Director'"_s},
          {u"ProfileID"_s, id},
          {u"Position"_s, u"1"_s},
          {u"BirthYear"_s, u"0"_s},
          {u"IsVoice"_s, clear},
          {u"IsUncredited"_s, clear},
          {u"IsCast"_s, no}}},
        {u"TVCastCrew"_s,
         {{u"Name"_s, u"'Tom Vale'"_s},
          {u"Role"_s, u"'Diver'"_s},
          {u"EpisodeID"_s, u"'Key_Harbour101'"_s},
          {u"Position"_s, u"1"_s},
          {u"IsCast"_s, yes}}},
        {u"BoxSet"_s, {{u"ChildID"_s, u"'Key_6'"_s}, {u"BoxSetID"_s, u"'Key_5'"_s}}},
        {u"Discs"_s,
         {{u"ProfileID"_s, id},
          {u"DiscNo"_s, u"1"_s},
          {u"DualSided"_s, set},
          {u"DualLayered"_s, clear},
          {u"Flipper"_s, set}}},
        {u"VideoFormat"_s, {{u"ProfileID"_s, id}, {u"LetterBox"_s, set}, {u"F16X9"_s, clear}}},
        {u"Awards"_s,
         {{u"AwardID"_s, u"1"_s},
          {u"Award"_s, u"'Golden Leaf'"_s},
          {u"Year"_s, u"2000"_s},
          {u"MovieTitle"_s, u"'The Green Lamp'"_s},
          {u"Won"_s, texts ? u"'X'"_s : u"true"_s}}},
        {u"Awards"_s,
         {{u"AwardID"_s, u"2"_s},
          {u"Award"_s, u"'Sea Prize'"_s},
          {u"Year"_s, u"2005"_s},
          {u"MovieTitle"_s, u"'Ocean Road'"_s}}},
        {u"Events"_s,
         {{u"EventID"_s, u"'101'"_s},
          {u"ProfileID"_s, id},
          {u"UserID"_s, u"'Ann Lee'"_s},
          {u"EventType"_s, u"'Watched'"_s}}},
        {u"LoanInfo"_s, {{u"ProfileID"_s, id}, {u"UserID"_s, u"'Ann Lee'"_s}}},
        {u"Genres"_s, {{u"ProfileID"_s, id}, {u"Genre"_s, u"'Drama'"_s}}},
        {u"Reviews"_s, {{u"ProfileID"_s, id}, {u"Film"_s, u"8"_s}}},
        {u"Regions"_s, {{u"ProfileID"_s, id}, {u"Region"_s, u"2"_s}}},
        {u"Locks"_s, {{u"ProfileID"_s, id}, {u"LockName"_s, u"'Title'"_s}}},
        {u"Studios"_s, {{u"ProfileID"_s, id}, {u"Studio"_s, u"'Lamp Works'"_s}, {u"Type"_s, u"''"_s}}},
        {u"Currencies"_s, {{u"CurrencyID"_s, u"'EUR'"_s}}},
        {u"SRPInfo"_s, {{u"ProfileID"_s, id}, {u"SRPValue"_s, u"'19.5'"_s}, {u"CurrencyID"_s, u"'EUR'"_s}}},
        {u"AdditionalInfo"_s, {{u"ProfileID"_s, id}, {u"InfoName"_s, u"'IMDb'"_s}, {u"InfoValue"_s, u"'0123'"_s}}},
        {u"AdditionalInfo"_s, {{u"ProfileID"_s, id}, {u"InfoName"_s, u"'RatingAge'"_s}, {u"InfoValue"_s, u"'12'"_s}}},
    };
}

/// What a query gives after the upgrade: `kept` from version `from` on, nothing for the older ones.
struct Survivor {
    const char *what;
    int from;
    QStringView query;
    QStringView kept;
};

constexpr Survivor kSurvivors[] = {
    {"users, all active", 0, u"SELECT UserID, PhoneNumber FROM Users", u"Ann Lee|555-1"},
    {"queries", 0, u"SELECT * FROM SQLQueries", u"By title|SELECT Title FROM Profiles"},
    {"episode assignments", 0, u"SELECT ProfileID, EpisodeID FROM Profile2Episodes", u"Key_1|Key_Harbour101"},
    {"translations", 0, u"SELECT * FROM Translation", u"Owned|Besitz"},
    {"aliases", 0, u"SELECT AliasName, CommonName FROM Alias", u"M. Stone|Mia Stone"},
    {"comments of aliases", 64, u"SELECT Comment FROM Alias WHERE Comment <> ''", u"short"},
    {"settings", 33, u"SELECT InfoValue FROM DbInfo WHERE InfoName = 'Owner'", u"Ann Lee"},
    {"titles", 53, u"SELECT Title FROM Profiles", u"The Green Lamp"},
    {"series", 55, u"SELECT Title, OriginalTitle FROM TVSeries", u"Harbour|Hafen"},
    {"episodes", 51, u"SELECT EpisodeID FROM Episodes", u"Key_Harbour101"},
    {"cast", 68, u"SELECT Name, BirthYear FROM CastCrew WHERE IsCast = true", u"Mia Stone|0"},
    {"marked roles", 68, u"SELECT IsVoice, IsUncredited FROM CastCrew WHERE IsCast = true", u"True|True"},
    {"crew", 68, u"SELECT Role, IsVoice, IsUncredited FROM CastCrew WHERE IsCast = false", u"Director|False|False"},
    {"cast of episodes", 68, u"SELECT Name, IsCast FROM TVCastCrew", u"Tom Vale|True"},
    {"box sets", 47, u"SELECT ChildID, BoxSetID FROM BoxSet", u"Key_6|Key_5"},
    {"discs", 60, u"SELECT DiscNo, DualSided, DualLayered, DualLayeredSideB, Flipper FROM Discs",
     u"1|True|False|False|True"},
    {"video formats", 60, u"SELECT LetterBox, PanAndScan, F16X9 FROM VideoFormat", u"True|False|False"},
    {"awards won", 46, u"SELECT Award FROM Awards WHERE Won = true", u"Golden Leaf"},
    {"awards not won", 46, u"SELECT Award FROM Awards WHERE Won = false", u"Sea Prize"},
    {"events", 46, u"SELECT EventID, UserID, EventType FROM Events", u"101|Ann Lee|Watched"},
    {"loans", 47, u"SELECT UserID FROM LoanInfo", u"Ann Lee"},
    {"genres", 60, u"SELECT Genre FROM Genres", u"Drama"},
    {"reviews", 47, u"SELECT Film FROM Reviews", u"8"},
    {"regions", 59, u"SELECT Region FROM Regions", u"2"},
    {"locks", 60, u"SELECT LockName FROM Locks", u"Title"},
    {"studios", 62, u"SELECT Studio FROM Studios", u"Lamp Works"},
    {"prices", 66, u"SELECT SRPValue, CurrencyID FROM SRPInfo", u"19.5|EUR"},
    {"infos", 68, u"SELECT InfoValue FROM AdditionalInfo WHERE InfoName = 'IMDb'", u"0123"},
};

/// A statement by which a step is known. It runs for versions from `from` to below `below`.
struct Mark {
    QStringView statement;
    int below;
    int from = 0;
};

// In the order of the steps.
constexpr Mark kMarks[] = {
    {u"DROP TABLE Currencies", 66},
    {u"DROP TABLE Cast", 33},
    {u"DROP TABLE TVCrew", 33},
    {u"DROP TABLE BoxSet", 47},
    {u"DROP TABLE Events", 46},
    {u"DROP TABLE Awards", 46},
    {u"CREATE UNIQUE INDEX idx_Awards_AwardID ON Awards (AwardID)", 69, 48},
    {u"CREATE INDEX idx_Awards_MovieTitle_Year ON Awards (MovieTitle, Year)", 69},
    {u"DELETE FROM TVSeries", 51},
    {u"DROP TABLE Locks", 60},
    {u"DROP TABLE Profiles", 53},
    {u"DROP TABLE TVSeries", 55},
    {u"DROP TABLE Regions", 59},
    {u"ALTER Table AdditionalInfo ADD PRIMARY KEY (ProfileID, InfoName)", 60},
    {u"DELETE FROM CastCrew", 60, 47},
    {u"ALTER Table CastCrew ADD PRIMARY KEY (ProfileID, Name, Position)", 60, 47},
    {u"ALTER Table TVCastCrew ADD PRIMARY KEY (EpisodeID, Name, Position)", 60, 47},
    {u"ALTER Table Features ADD PRIMARY KEY (ProfileID, Feature)", 60, 47},
    {u"ALTER Table Genres ADD PRIMARY KEY (ProfileID, Genre)", 60, 47},
    {u"ALTER Table Subtitles ADD PRIMARY KEY (ProfileID, Subtitle)", 60, 47},
    {u"ALTER Table AudioFormats ADD PRIMARY KEY (ProfileID, OrderPos)", 60, 47},
    {u"DELETE FROM Reviews", 0},
    {u"ALTER Table Reviews ADD PRIMARY KEY (ProfileID)", 60, 47},
    {u"ALTER Table Tags ADD PRIMARY KEY (ProfileID, TagName)", 60, 47},
    {u"DROP TABLE Studios", 62},
    {u"ALTER TABLE Alias DROP COLUMN Comment", 64},
    {u"DROP TABLE AdditionalInfo", 68},
    {u"ALTER TABLE Profile2Episodes DROP COLUMN ID", 71},
    {u"ALTER TABLE Profile2Episodes ADD PRIMARY KEY (ProfileID, EpisodeID)", 71},
    {u"ALTER TABLE Events ADD COLUMN Comment varchar", 72},
    {u"ALTER TABLE Alias ADD COLUMN BirthYear integer", 73},
    {u"ALTER TABLE CastCrew ADD COLUMN IsUncredited varchar", 73},
    {u"ALTER TABLE TVCastCrew ADD COLUMN IsVoice varchar", 73},
    {u"ALTER TABLE Profiles ADD COLUMN CountryOfOrigin varchar", 73},
    {u"ALTER TABLE Discs ADD COLUMN DualLayeredSideB varchar(5)", 74, 47},
    {u"ALTER TABLE Alias ADD PRIMARY KEY (AliasName, BirthYear)", 75},
    {u"ALTER TABLE Discs ADD COLUMN DescriptionSideB varchar", 75, 47},
    {u"ALTER Table CastCrew ADD PRIMARY KEY (ProfileID, Name, Position, IsCast)", 76},
    {u"ALTER Table TVCastCrew ADD PRIMARY KEY (EpisodeID, Name, Position, IsCast)", 76},
    {u"DROP INDEX idx_Awards_AwardID ON Awards", 77, 48},
    {u"ALTER TABLE Profiles ADD COLUMN MD5 varchar", 78},
    {u"ALTER TABLE TVCastCrew ADD COLUMN IsRegular yesno", 79},
    {u"ALTER TABLE Awards ADD COLUMN MovieYear integer", 80},
    {u"ALTER TABLE Profiles ADD COLUMN RatingDetails varchar", 81},
    {u"ALTER TABLE Episodes ADD COLUMN RatingDetails varchar", 82},
    {u"ALTER TABLE VideoFormat DROP COLUMN VideoStandard", 83},
    {u"Update Profiles SET Medium = 'Blu-ray Disc' WHERE Medium = 'BluRay'", 84},
    {u"Update Profiles SET Medium = 'HD DVD' WHERE Medium = 'HDDVD'", 84},
    {u"Update Profiles SET Medium = 'HD DVD/DVD' WHERE Medium = 'HDDVD/DVD'", 84},
    {u"ALTER TABLE Profiles ADD COLUMN CountAs integer", 85},
    {u"UPDATE Profiles SET CountAs = 1 WHERE CountAs Is NULL", 85},
    {u"DELETE FROM AdditionalInfo WHERE InfoName = 'RatingAge' OR InfoName = 'RatingVariant'", 86},
    {u"ALTER TABLE CastCrew ADD COLUMN IsCreditOnly yesno", 87},
    {u"ALTER TABLE TVCastCrew ADD COLUMN IsCreditOnly yesno", 87},
    {u"ALTER TABLE Users ADD COLUMN IsActive yesno", 88},
    {u"Update Users SET IsActive = true", 88},
    {u"Update Profiles SET MD5 = ''", 89},
    {u"ALTER TABLE Profiles ADD COLUMN CustomSortTitle varchar", 90},
};

/// A schema as lines that do not tell the order of columns, nor the indexes that stand for keys.
QStringList SchemaLines(sql::Database &database) {
    QStringList lines;
    for (const sql::TableInfo &table : database.GetCatalogue().Tables()) {
        lines << u"table "_s + table.name;
        for (const sql::ColumnInfo &column : table.columns) {
            lines << u"%1.%2 kind %3 length %4 not null %5"_s.arg(table.name, column.name)
                         .arg(int(column.kind))
                         .arg(column.length)
                         .arg(int(table.TakesNoNull(column.name)));
        }
        for (const sql::IndexInfo &index : table.indexes) {
            const QString columns = index.columns.join(u'+');
            if (index.primary) {
                lines << u"%1 key %2"_s.arg(table.name, columns);
            } else if (index.name.startsWith("idx_"_L1)) {
                lines << u"%1 index %2 on %3 unique %4"_s.arg(table.name, index.name, columns).arg(int(index.unique));
            }
        }
        for (const sql::ReferenceInfo &reference : table.references) {
            lines << u"%1 reference %2 to %3"_s.arg(table.name, reference.columns.join(u'+'), reference.parent_table);
        }
    }
    lines.sort();
    return lines;
}

/// Ends the process where a job tells its first line.
class DeadlyProgress : public test::ScriptedProgress {
public:
    void LineChanged(const QString &line) override {
        if (!line.isEmpty()) {
            ::raise(SIGKILL);
        }
    }
};

class UpgradeTest : public CollectionTest, public testing::WithParamInterface<int> {
protected:
    /// A filled file of that version.
    void BuildFile(int version) {
        const HistoricSchema schema(version);
        const auto database = sql::Database::Create(Path(u"Old.mdb"_s));
        schema.Build(*database);
        for (const Row &row : SampleRows(version)) {
            if (const QString insert = schema.Insert(row.table, row.values); !insert.isEmpty()) {
                database->Execute(insert);
            }
        }
    }

    void ExpectQuestion(MessageAnswer answer) {
        Expect(QString::fromUtf16(kQuestion), u"Delete old data"_s, MessageIcon::Question, answer);
    }

    bool OpenOld() { return OpenCollectionDatabase(session, Path(u"Old.mdb"_s)); }

    QStringList NewSchemaLines() {
        test::TestServices other_services;
        Session other(other_services.services);
        CreateCollectionDatabase(other, Path(u"Present.mdb"_s));
        return SchemaLines(*other.Database);
    }

    /// The steps of that version ran in their order, and no other.
    void CheckSteps(int version) {
        const QStringList log = LogLines();
        qsizetype last = -1;
        for (const Mark &mark : kMarks) {
            const qsizetype at = log.lastIndexOf(u"Info:     "_s + mark.statement.toString());
            EXPECT_EQ(at >= 0, version >= mark.from && version < mark.below) << mark.statement.toString().toStdString();
            EXPECT_TRUE(at < 0 || at > last) << mark.statement.toString().toStdString();
            last = std::max(last, at);
        }
    }

    void CheckUpgrade(int version) {
        BuildFile(version);
        if (version < kAskedBelow) {
            ExpectQuestion(MessageAnswer::Yes);
        }
        Log(kTraceInfo);
        ASSERT_TRUE(OpenOld());
        CheckSteps(version);
        EXPECT_EQ(Rows(u"SELECT InfoValue, Comment FROM DbInfo WHERE InfoName = 'Schema'"),
                  QStringList(u"90|Database Schema"_s));
        EXPECT_EQ(SchemaLines(*session.Database), NewSchemaLines());
        for (const Survivor &survivor : kSurvivors) {
            SCOPED_TRACE(survivor.what);
            const QStringList kept = version >= survivor.from ? QStringList(survivor.kept.toString()) : QStringList();
            EXPECT_EQ(Rows(survivor.query), kept);
        }
    }
};

} // namespace

TEST_P(UpgradeTest, ComesToThePresentSchemaWithTheDataThatSurvives) {
    CheckUpgrade(GetParam());
}

INSTANTIATE_TEST_SUITE_P(EveryVersion, UpgradeTest,
                         testing::Values(32, 33, 40, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61,
                                         62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81,
                                         82, 83, 84, 85, 86, 87, 88, 89),
                         [](const auto &test) { return "From" + std::to_string(test.param); });

TEST_F(UpgradeTest, Version89RunsTwoAltersAndTheWriteOfTheVersion) {
    BuildFile(89);
    session.Database = sql::Database::Open(Path(u"Old.mdb"_s));
    Log(kTraceEntry | kTraceExit | kTraceInfo);
    ASSERT_TRUE(UpgradeDatabase(session, 89));
    EXPECT_EQ(LogLines(), QStringList({
                              u"Enter:    UpgradeDatabase(89)"_s,
                              u"Info:     ALTER TABLE Profiles ADD COLUMN CustomTitle varchar"_s,
                              u"Info:     ALTER TABLE Profiles ADD COLUMN CustomSortTitle varchar"_s,
                              u"Enter:    WriteDbInfo(Schema, 90, Database Schema)"_s,
                              u"Exit:     WriteDbInfo: True"_s,
                              u"Exit:     UpgradeDatabase: True"_s,
                          }));
}

TEST_F(UpgradeTest, APresentDatabaseIsNotUpgraded) {
    Create();
    session.Database.reset();
    Log(kTraceEntry);
    ASSERT_TRUE(OpenCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_FALSE(LogLines().join(u'\n').contains("UpgradeDatabase"_L1));
}

TEST_F(UpgradeTest, ANewerVersionIsRefusedByTheGuard) {
    Create();
    Expect(u"Database version too high!\r\nUse the current version of the Ostrand."_s, u"Cannot open database"_s,
           MessageIcon::Critical);
    EXPECT_FALSE(UpgradeDatabase(session, 91));
}

TEST_F(UpgradeTest, NoLeavesTheDatabaseAndEndsTheProgram) {
    for (const int version : {33, 47, 68}) {
        SCOPED_TRACE(version);
        QFile::remove(Path(u"Old.mdb"_s));
        session.EndProgram = false;
        BuildFile(version);
        const QStringList before = SchemaLines(*sql::Database::Open(Path(u"Old.mdb"_s)));
        ExpectQuestion(MessageAnswer::No);
        EXPECT_FALSE(OpenOld());
        EXPECT_TRUE(session.EndProgram);
        EXPECT_FALSE(session.Database);
        session.Database = sql::Database::Open(Path(u"Old.mdb"_s));
        EXPECT_EQ(SchemaLines(*session.Database), before);
        EXPECT_EQ(ReadDbInfo(session, u"Schema"_s, {}), QString::number(version));
        EXPECT_EQ(Rows(u"SELECT Title FROM Profiles"), QStringList(u"The Green Lamp"_s));
        session.Database.reset();
    }
}

TEST_F(UpgradeTest, NoLeavesEvenAFileWithoutSettingsAsItWas) {
    BuildFile(32);
    const QStringList before = SchemaLines(*sql::Database::Open(Path(u"Old.mdb"_s)));
    ExpectQuestion(MessageAnswer::No);
    EXPECT_FALSE(OpenOld());
    EXPECT_TRUE(session.EndProgram);
    EXPECT_EQ(SchemaLines(*sql::Database::Open(Path(u"Old.mdb"_s))), before);
}

TEST_F(UpgradeTest, AFileWithoutSettingsIsMarkedInTheSettingsOfTheInstallation) {
    QDir().mkpath(session.DataFolder);
    BuildFile(32);
    ExpectQuestion(MessageAnswer::Yes);
    ASSERT_TRUE(OpenOld());
    EXPECT_EQ(GetINIString(session, u"Main"_s, u"Scheme"_s, {}), u"n/a"_s);
}

TEST_F(UpgradeTest, AFailingStatementLeavesTheOldVersionWhichUpgradesOnceRepaired) {
    BuildFile(72);
    {
        const auto database = sql::Database::Open(Path(u"Old.mdb"_s));
        database->Execute(u"DROP TABLE VideoFormat");
    }
    const QStringList before = SchemaLines(*sql::Database::Open(Path(u"Old.mdb"_s)));
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(OpenOld());
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(session.EndProgram);
    {
        const auto database = sql::Database::Open(Path(u"Old.mdb"_s));
        EXPECT_EQ(SchemaLines(*database), before);
        database->Execute(u"CREATE TABLE VideoFormat (ProfileID varchar NOT NULL PRIMARY KEY, AspectRatio varchar(4), "
                          u"VideoStandard varchar, LetterBox varchar(5), PanAndScan varchar(5), FullFrame varchar(5), "
                          u"F16X9 varchar(5))");
    }
    ASSERT_TRUE(OpenOld());
    EXPECT_EQ(SchemaLines(*session.Database), NewSchemaLines());
    EXPECT_EQ(Rows(u"SELECT Award FROM Awards WHERE Won = true"), QStringList(u"Golden Leaf"_s));
}

TEST_F(UpgradeTest, AProcessThatDiesInTheMiddleLeavesTheOldVersionWhichUpgradesAgain) {
    BuildFile(70);
    const QStringList before = SchemaLines(*sql::Database::Open(Path(u"Old.mdb"_s)));
    const int died = sql::testing::InChild([&] {
        DeadlyProgress deadly;
        Services &world = services.services;
        Services own{world.dialogs,   deadly,        world.pump,      world.clock,     world.random,
                     world.processes, world.folders, world.locale,    world.clipboard, world.keyboard,
                     world.opener,    world.images,  world.downloader};
        Session other(own);
        return OpenCollectionDatabase(other, Path(u"Old.mdb"_s)) ? 1 : 2;
    });
    ASSERT_EQ(died, -1);
    EXPECT_EQ(SchemaLines(*sql::Database::Open(Path(u"Old.mdb"_s))), before);
    ASSERT_TRUE(OpenOld());
    EXPECT_EQ(SchemaLines(*session.Database), NewSchemaLines());
    EXPECT_EQ(Rows(u"SELECT Name FROM CastCrew WHERE IsCast = true"), QStringList(u"Mia Stone"_s));
}

TEST_F(UpgradeTest, AFailingStatementRaisesToTheCallerOfTheChain) {
    BuildFile(89);
    session.Database = sql::Database::Open(Path(u"Old.mdb"_s));
    Run(u"DROP TABLE Profiles");
    EXPECT_THROW(UpgradeDatabase(session, 89), sql::SqlError);
    EXPECT_EQ(ReadDbInfo(session, u"Schema"_s, {}), u"89"_s);
}

TEST_F(UpgradeTest, RolesLoseTheirMarks) {
    static constexpr struct {
        QStringView role;
        QStringView cleaned;
        bool voice;
        bool uncredited;
    } kRoles[] = {
        {u"Guard", u"Guard", false, false},
        {u"Lucy (voice)", u"Lucy", true, false},
        {u"Lucy (Voice)", u"Lucy", true, false},
        {u"(voice)", u"", true, false},
        {u"Lucy (VOICE)", u"Lucy (VOICE)", true, false},
        {u"Guard (uncredited)", u"Guard", false, true},
        {u"Guard (Uncredited)", u"Guard", false, true},
        {u"Guard (uncr)", u"Guard", false, true},
        {u"Guard (uncr.)", u"Guard", false, true},
        {u"Guard (uncred.)", u"Guard", false, true},
        {u"(uncredited)", u"", false, true},
        {u"Bird (voice) (uncredited)", u"Bird", true, true},
    };
    const HistoricSchema schema(72);
    session.Database = sql::Database::Create(Path(u"Old.mdb"_s));
    schema.Build(*session.Database);
    for (const auto &[table, owner] :
         {std::pair(u"CastCrew"_s, u"ProfileID"_s), std::pair(u"TVCastCrew"_s, u"EpisodeID"_s)}) {
        int position = 0;
        for (const auto &row : kRoles) {
            Run(u"INSERT INTO %1 (Name, Role, %2, Position, IsCast) VALUES ('Mia Stone', '%3', 'Key_1', %4, 'yes')"_s
                    .arg(table, owner, row.role)
                    .arg(++position));
        }
    }
    ASSERT_TRUE(UpgradeDatabase(session, 72));
    for (const QString &table : {u"CastCrew"_s, u"TVCastCrew"_s}) {
        const QStringList found =
            Rows(u"SELECT Role, IsVoice, IsUncredited, BirthYear, IsCast FROM %1 ORDER BY Position"_s.arg(table));
        ASSERT_EQ(found.size(), qsizetype(std::size(kRoles)));
        for (size_t i = 0; i < std::size(kRoles); ++i) {
            const auto &row = kRoles[i];
            EXPECT_EQ(found[qsizetype(i)], u"%1|%2|%3|0|True"_s.arg(row.cleaned, row.voice ? u"True" : u"False",
                                                                    row.uncredited ? u"True" : u"False"));
        }
    }
    EXPECT_EQ(ReadDbInfo(session, u"LastTVUpdate"_s, {}), u"0"_s);
}

TEST_F(UpgradeTest, MediaAreRenamedBelow84) {
    const HistoricSchema schema(83);
    session.Database = sql::Database::Create(Path(u"Old.mdb"_s));
    schema.Build(*session.Database);
    static constexpr struct {
        QStringView before;
        QStringView now;
    } kMedia[] = {{u"BluRay", u"Blu-ray Disc"}, {u"HDDVD", u"HD DVD"}, {u"HDDVD/DVD", u"HD DVD/DVD"}, {u"DVD", u"DVD"}};
    for (const auto &row : kMedia) {
        Run(u"INSERT INTO Profiles (ProfileID, Title, Medium, MD5) VALUES ('%1', 'Lamp', '%1', '0123')"_s.arg(
            row.before));
    }
    ASSERT_TRUE(UpgradeDatabase(session, 83));
    for (const auto &row : kMedia) {
        EXPECT_EQ(Rows(u"SELECT Medium, MD5, CountAs FROM Profiles WHERE ProfileID = '%1'"_s.arg(row.before)),
                  QStringList(row.now.toString() + u"||1"_s));
    }
}

TEST_F(UpgradeTest, RatingsMoveToMetaInfoBelow86) {
    BuildFile(85);
    ASSERT_TRUE(OpenOld());
    EXPECT_EQ(Rows(u"SELECT * FROM MetaInfo"), QStringList(u"Key_1|RatingAge|12"_s));
    EXPECT_EQ(Rows(u"SELECT InfoName FROM AdditionalInfo"), QStringList(u"IMDb"_s));
}

TEST_F(UpgradeTest, UsersBecomeActiveBelow88) {
    BuildFile(87);
    ASSERT_TRUE(OpenOld());
    EXPECT_EQ(Rows(u"SELECT UserID, IsActive FROM Users"), QStringList(u"Ann Lee|True"_s));
}

TEST_F(UpgradeTest, HashesAreForgottenBelow89Only) {
    for (const int version : {88, 89}) {
        SCOPED_TRACE(version);
        QFile::remove(Path(u"Old.mdb"_s));
        BuildFile(version);
        ASSERT_TRUE(OpenOld());
        EXPECT_EQ(Rows(u"SELECT MD5 FROM Profiles"), QStringList(version < 89 ? QString() : u"0123"_s));
        session.Database.reset();
    }
}

TEST_F(UpgradeTest, FlagsAreComparedWithoutCase) {
    session.Database = sql::Database::Create(Path(u"Flags.mdb"_s));
    Run(u"CREATE TABLE Flags (ID integer, Flag varchar(5))");
    const QStringList texts = {u"'True'"_s, u"'TRUE'"_s, u"'true'"_s, u"'False'"_s, u"''"_s, u"NULL"_s, u"'yes'"_s};
    for (qsizetype i = 0; i < texts.size(); ++i) {
        Run(u"INSERT INTO Flags (ID, Flag) VALUES (%1, %2)"_s.arg(i).arg(texts[i]));
    }
    ChangeColumnToYesNo(session, u"Flags"_s, u"Flag"_s, u"True"_s);
    EXPECT_EQ(Rows(u"SELECT ID FROM Flags WHERE Flag = true ORDER BY ID"), QStringList({u"0"_s, u"1"_s, u"2"_s}));
    const sql::TableInfo *table = session.Database->FindTable(u"Flags");
    EXPECT_EQ(table->columns.size(), 2u);
    EXPECT_EQ(table->FindColumn(u"Flag")->kind, sql::Kind::Boolean);
}

TEST_F(UpgradeTest, OnlyTheIndexesOfKeysAreRemoved) {
    Create();
    RemoveAutoIndexes(session, u"Profiles"_s);
    const sql::TableInfo *table = session.Database->FindTable(u"Profiles");
    ASSERT_EQ(table->indexes.size(), 1u);
    EXPECT_EQ(table->indexes.front().name, u"idx_Profiles_ProfileID"_s);
}

TEST_F(UpgradeTest, ProgressTellsOfTheConversionOfFlags) {
    BuildFile(75);
    ASSERT_TRUE(OpenOld());
    EXPECT_TRUE(services.progress.Has(u"line Updating database..."_s));
    EXPECT_FALSE(session.progress.IsLoaded());
}

} // namespace ostrand
