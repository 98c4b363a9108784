// Creating, opening, compacting: messages, order, and what stays of a file that cannot be opened.
#include "CollectionFixture.h"
#include "shell/Settings.h"
#include "sql/ForkedChild.h"

#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

class FilesTest : public CollectionTest {
protected:
    bool Open(const QString &name) { return OpenCollectionDatabase(session, Path(name)); }

    void Hooks(QStringList &calls) {
        session.window.LoadDatabaseSettings = [&] { calls << u"LoadDatabaseSettings"_s; };
        session.window.MenuStrings = [&] { calls << u"MenuStrings file="_s + session.DatabaseName; };
        session.window.EnableDBMenues = [&](bool on) { calls << u"EnableDBMenues %1"_s.arg(on); };
        session.window.GetLastSelectedItem = [&] { calls << u"GetLastSelectedItem file="_s + session.DatabaseName; };
        session.window.ShowTitlesDue = [&] { calls << u"ShowTitlesDue"_s; };
    }

    void ExpectBusy() {
        Expect(
            u"Database seems to be open in another application or instance\r\nPlease close all open instances first"_s,
            u"Open database connection"_s, MessageIcon::Warning);
    }
};

} // namespace

TEST_F(FilesTest, AMissingFileIsTold) {
    session.DatabaseName = u"Before"_s;
    Expect(u"Databasefile does not exist!"_s, {}, MessageIcon::Critical);
    EXPECT_FALSE(Open(u"None.mdb"_s));
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(session.DatabaseName, QString());
    EXPECT_FALSE(folder_.Has(u"None.mdb"_s));
}

TEST_F(FilesTest, AFolderIsNoDatabase) {
    Expect(u"Databasefile does not exist!"_s, {}, MessageIcon::Critical);
    EXPECT_FALSE(OpenCollectionDatabase(session, folder_.Path()));
}

TEST_F(FilesTest, ANewerVersionIsToldAndTheFileStaysOpenAndUnchanged) {
    for (const QString &version : {u"91"_s, u"100"_s, u"1000"_s}) {
        SCOPED_TRACE(version.toStdString());
        Create(version + u".mdb"_s);
        WriteDbInfo(session, u"Schema"_s, version);
        session.Database.reset();
        Expect(u"Database version too high!\r\nPlease update the program with the latest version."_s, {},
               MessageIcon::Critical);
        EXPECT_FALSE(Open(version + u".mdb"_s));
        ASSERT_TRUE(session.Database);
        EXPECT_EQ(session.DatabaseName, QString());
        EXPECT_EQ(Rows(u"SELECT InfoName, InfoValue FROM DbInfo"), QStringList(u"Schema|"_s + version));
    }
}

TEST_F(FilesTest, TheMenusWorkOnlyOnADatabaseThatOpened) {
    Create(u"Newer.mdb"_s);
    WriteDbInfo(session, u"Schema"_s, u"91"_s);
    Create(u"Faulty.mdb"_s);
    session.Database->Execute(u"DROP TABLE DbInfo");
    session.Database->Execute(u"CREATE TABLE DbInfo (InfoName varchar PRIMARY KEY, InfoValue memo)");
    session.Database->Execute(u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Schema', '90')");
    Create(u"Good.mdb"_s);
    session.Database.reset();
    std::optional<bool> enabled;
    session.window.EnableDBMenues = [&enabled](bool on) { enabled = on; };
    const struct {
        QString name;
        std::optional<bool> enabled;
        bool told;
    } cases[] = {
        {u"Missing.mdb"_s, std::nullopt, true}, {u"Good.mdb"_s, true, false},   {u"Newer.mdb"_s, false, true},
        {u"Good.mdb"_s, true, false},           {u"Faulty.mdb"_s, false, true},
    };
    for (const auto &c : cases) {
        if (c.told) {
            Expect({}, {}, MessageIcon::Critical);
        }
        Open(c.name);
        EXPECT_EQ(enabled, c.enabled) << qPrintable(c.name);
    }
}

TEST_F(FilesTest, ANewerFileGetsNoSettingsOfTheOneBefore) {
    Create(u"Newer.mdb"_s);
    WriteDbInfo(session, u"Schema"_s, u"91"_s);
    WriteDbInfo(session, u"LastSelectedItem"_s, u"Key_5"_s);
    Create();
    WriteDbInfo(session, u"UseUserDefinedStrings"_s, u"1"_s);
    WriteDbInfo(session, u"TraceStrings"_s, u"1"_s);
    ASSERT_TRUE(Open(u"New.mdb"_s));
    Expect(u"Database version too high!\r\nPlease update the program with the latest version."_s, {},
           MessageIcon::Critical);
    EXPECT_FALSE(Open(u"Newer.mdb"_s));
    SaveDatabaseSettings(session);
    EXPECT_EQ(Rows(u"SELECT InfoName, InfoValue FROM DbInfo ORDER BY 1"),
              (QStringList{u"LastSelectedItem|Key_5"_s, u"Schema|91"_s}));
    EXPECT_EQ(session.Database->RecordCount(u"Translation"), 0);

    ASSERT_TRUE(Open(u"New.mdb"_s));
    SaveDatabaseSettings(session);
    EXPECT_EQ(ReadDbInfo(session, u"ViewTVShows"_s, {}), u"False"_s) << "that of this program is written again";
}

#ifdef Q_OS_UNIX
/// Files take no byte beyond `size`, as on a disk that is full.
void FillDisk(qint64 size) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {rlim_t(size), RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(FilesTest, AFullDiskLeavesNoHalfDatabase) {
    // Without room for the file, for the index of its log, for the log, and for all tables.
    for (const qint64 size : {1'000, 10'000, 34'000, 40'000}) {
        const int status = sql::testing::InChild([&] {
            FillDisk(size);
            Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
            const bool made = NewCollectionDatabase(session, Path(u"New.mdb"_s));
            return made || session.Database || services.dialogs.messages.size() != 1 ? 1 : 0;
        });
        EXPECT_EQ(status, 0) << size;
        EXPECT_EQ(QDir(folder_.Path()).entryList(QDir::Files), QStringList()) << size;
    }
}

TEST_F(FilesTest, AFullDiskLeavesTheOldVersion) {
    Create();
    Run(u"INSERT INTO Profiles (ProfileID, Title, MD5) VALUES ('Key_1', 'T', 'abc')");
    WriteDbInfo(session, u"Schema"_s, u"88"_s);
    session.Database.reset();
    const QByteArray before = folder_.Read(u"New.mdb"_s);
    const int status = sql::testing::InChild([&] {
        FillDisk(10'000); // room for the log's beginning alone
        Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
        return Open(u"New.mdb"_s) || session.Database || services.dialogs.messages.size() != 1 ? 1 : 0;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(folder_.Read(u"New.mdb"_s), before);
}

TEST_F(FilesTest, WhatAFullDiskKeepsFromTheOldDatabaseIsToldBeforeASwitch) {
    Create(u"Other.mdb"_s);
    Create();
    session.Database->Flush();
    const int status = sql::testing::InChild([&] {
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('Key_1', 'T')");
        FillDisk(1000);
        Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
        return Open(u"Other.mdb"_s) || services.dialogs.messages.size() != 1 ? 1 : 0;
    });
    EXPECT_EQ(status, 0);
}
#endif

TEST_F(FilesTest, AFileThatIsNoDatabaseIsToldAndStaysAsItIs) {
    const QByteArray content = QByteArray("This is a shopping list, and no database.\n").repeated(100);
    folder_.Write(u"List.mdb"_s, content);
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(Open(u"List.mdb"_s));
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(services.dialogs.messages.back().text.isEmpty());
    EXPECT_EQ(folder_.Read(u"List.mdb"_s), content);
    EXPECT_FALSE(folder_.Has(u"List.ldb"_s));
}

TEST_F(FilesTest, ADamagedFileIsToldAndStaysAsItIs) {
    Create();
    session.Database.reset();
    QByteArray content = folder_.Read(u"New.mdb"_s);
    content.replace(20, content.size() - 20, QByteArray(content.size() - 20, '\x5a'));
    folder_.Write(u"New.mdb"_s, content);
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(Open(u"New.mdb"_s));
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(folder_.Read(u"New.mdb"_s), content);
}

TEST_F(FilesTest, AFaultyFileLeavesTheOpenDatabaseOpen) {
    Create();
    folder_.Write(u"List.mdb"_s, "no database, and long enough to be looked at");
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(Open(u"List.mdb"_s));
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(ReadDbInfo(session, u"Schema"_s, {}), u"90"_s);
}

TEST_F(FilesTest, OpeningHandsOverInOrder) {
    Create(u"My Films.v2.mdb"_s);
    session.Database.reset();
    QStringList calls;
    Hooks(calls);
    ASSERT_TRUE(Open(u"My Films.v2.mdb"_s));
    EXPECT_EQ(calls, QStringList({u"LoadDatabaseSettings"_s, u"MenuStrings file="_s, u"EnableDBMenues 1"_s,
                                  u"GetLastSelectedItem file=My Films.v2"_s, u"ShowTitlesDue"_s}));
    EXPECT_EQ(session.DatabaseName, u"My Films.v2"_s);
    EXPECT_EQ(session.DatabaseFile, QDir::toNativeSeparators(QFileInfo(Path(u"My Films.v2.mdb"_s)).absoluteFilePath()));
    EXPECT_EQ(GetINIString(session, u"Main"_s, u"DatabasePath"_s, {}),
              QDir::toNativeSeparators(QFileInfo(folder_.Path()).absoluteFilePath()));
    EXPECT_EQ(session.DatabasePath, GetINIString(session, u"Main"_s, u"DatabasePath"_s, {}))
        << "the folder that the database manager lists";
}

TEST_F(FilesTest, ARelativePathBecomesAbsolute) {
    Create();
    session.Database.reset();
    const QString relative = QDir::current().relativeFilePath(Path(u"New.mdb"_s));
    ASSERT_TRUE(OpenCollectionDatabase(session, relative));
    EXPECT_TRUE(QFileInfo(session.DatabaseFile).isAbsolute());
    EXPECT_EQ(QFileInfo(session.DatabaseFile), QFileInfo(Path(u"New.mdb"_s)));
}

TEST_F(FilesTest, TitlesDueAreShownUnlessSwitchedOff) {
    for (const auto &[setting, shown] : {std::pair(u""_s, true), std::pair(u"1"_s, true), std::pair(u"True"_s, true),
                                         std::pair(u"0"_s, false), std::pair(u"False"_s, false)}) {
        SCOPED_TRACE(setting.toStdString());
        if (!session.Database) {
            Create();
        }
        WriteDbInfo(session, u"ShowLoanDueOnStartUp"_s, setting);
        QStringList calls;
        Hooks(calls);
        ASSERT_TRUE(Open(u"New.mdb"_s));
        EXPECT_EQ(calls.contains(u"ShowTitlesDue"_s), shown);
    }
}

TEST_F(FilesTest, TheProfilerFlagFollowsTheDatabase) {
    Create();
    for (const auto &[setting, flag] :
         {std::pair(u""_s, false), std::pair(u"True"_s, true), std::pair(u"False"_s, false)}) {
        WriteDbInfo(session, u"Profiler3"_s, setting);
        session.Profiler3 = !flag;
        ASSERT_TRUE(Open(u"New.mdb"_s));
        EXPECT_EQ(session.Profiler3, flag) << setting.toStdString();
    }
}

TEST_F(FilesTest, AShortValueColumnBecomesLong) {
    Create();
    Run(u"DROP TABLE DbInfo");
    Run(u"CREATE TABLE DbInfo (InfoName varchar PRIMARY KEY, InfoValue varchar, Comment varchar)");
    WriteDbInfo(session, u"Schema"_s, u"90"_s);
    WriteDbInfo(session, u"Owner"_s, u"Ann Lee"_s);
    ASSERT_TRUE(Open(u"New.mdb"_s));
    EXPECT_EQ(session.Database->FindTable(u"DbInfo")->FindColumn(u"InfoValue")->kind, sql::Kind::Memo);
    EXPECT_EQ(ReadDbInfo(session, u"Owner"_s, {}), u"Ann Lee"_s);
}

TEST_F(FilesTest, OpeningIsTraced) {
    Create();
    Log(kTraceEntry | kTraceExit);
    ASSERT_TRUE(Open(u"New.mdb"_s));
    EXPECT_EQ(LogLines().first(), u"Enter:    OpenCollectionDatabase(%1)"_s.arg(Path(u"New.mdb"_s)));
    EXPECT_EQ(LogLines().last(), u"Exit:     OpenCollectionDatabase: True"_s);
}

TEST_F(FilesTest, MakingAndCompactingAreTraced) {
    const QString path = Path(u"New.mdb"_s);
    Log(kTraceEntry | kTraceExit);
    Create();
    ExpectBusy();
    EXPECT_FALSE(CompactCollectionDatabase(session, path));
    session.Database.reset();
    EXPECT_TRUE(CompactCollectionDatabase(session, path));
    EXPECT_EQ(LogLines(),
              QStringList(
                  {u"Enter:    CreateCollectionDatabase(%1)"_s.arg(path),
                   u"Enter:    CompactCollectionDatabase(%1)"_s.arg(path), u"Enter:    IsDatabaseBusy(%1)"_s.arg(path),
                   u"Exit:     IsDatabaseBusy: True"_s, u"Exit:     CompactCollectionDatabase: False"_s,
                   u"Enter:    CompactCollectionDatabase(%1)"_s.arg(path), u"Enter:    IsDatabaseBusy(%1)"_s.arg(path),
                   u"Exit:     IsDatabaseBusy: False"_s, u"Exit:     CompactCollectionDatabase: True"_s}));
}

TEST_F(FilesTest, ANewDatabaseIsOpenAndHasItsFirstSettings) {
    services.folders.user_name = u"Ann O'Lee"_s;
    ASSERT_TRUE(NewCollectionDatabase(session, Path(u"Fresh.mdb"_s)));
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(session.DatabaseName, u"Fresh"_s);
    EXPECT_EQ(Rows(u"SELECT InfoValue, Comment FROM DbInfo WHERE InfoName = 'Owner'"),
              QStringList(u"Ann O'Lee|Collection owner"_s));
    EXPECT_EQ(ReadDbInfo(session, u"Profiler3"_s, {}), u"True"_s);
    EXPECT_TRUE(session.Profiler3);
    EXPECT_EQ(session.CoverPath, QDir::toNativeSeparators(session.DataFolder + u"/Images/"_s));
}

TEST_F(FilesTest, ANewDatabaseReplacesNoFile) {
    folder_.Write(u"Taken.mdb"_s, "content");
    Expect(u"Database with this name already exists!"_s, {}, MessageIcon::Warning);
    EXPECT_FALSE(NewCollectionDatabase(session, Path(u"Taken.mdb"_s)));
    EXPECT_EQ(folder_.Read(u"Taken.mdb"_s), "content");
}

TEST_F(FilesTest, ANewDatabaseInAMissingFolderIsTold) {
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(NewCollectionDatabase(session, Path(u"none/Fresh.mdb"_s)));
    EXPECT_FALSE(session.Database);
}

TEST_F(FilesTest, ASwitchClosesTheOldFile) {
    ASSERT_TRUE(NewCollectionDatabase(session, Path(u"One.mdb"_s)));
    ASSERT_TRUE(NewCollectionDatabase(session, Path(u"Two.mdb"_s)));
    EXPECT_FALSE(folder_.Has(u"One.ldb"_s));
    EXPECT_TRUE(folder_.Has(u"Two.ldb"_s));
    EXPECT_EQ(session.DatabaseName, u"Two"_s);
}

TEST_F(FilesTest, AClosedDatabaseIsNotBusy) {
    Create();
    session.Database.reset();
    EXPECT_FALSE(IsDatabaseBusy(session, Path(u"New.mdb"_s)));
    EXPECT_FALSE(IsDatabaseBusy(session, Path(u"None.mdb"_s)));
}

TEST_F(FilesTest, TheOpenDatabaseIsBusy) {
    Create();
    ExpectBusy();
    EXPECT_TRUE(IsDatabaseBusy(session, Path(u"New.mdb"_s)));
    EXPECT_FALSE(IsDatabaseBusy(session, Path(u"Other.mdb"_s)));
}

TEST_F(FilesTest, ALockOfAProcessThatIsGoneDoesNotCount) {
    Create();
    session.Database.reset();
    folder_.Write(u"New.ldb"_s, "2147483000\t1\t1\tostrand\n");
    EXPECT_FALSE(IsDatabaseBusy(session, Path(u"New.mdb"_s)));
}

TEST_F(FilesTest, ADatabaseOpenInAnotherProcessIsBusyUntilThatIsGone) {
    Create();
    session.Database.reset();
    std::unique_ptr<sql::Database> held;
    const sql::testing::WaitingChild child([&] { held = sql::Database::Open(Path(u"New.mdb"_s)); });
    ASSERT_TRUE(child.IsStarted());
    ExpectBusy();
    EXPECT_TRUE(IsDatabaseBusy(session, Path(u"New.mdb"_s)));
    ExpectBusy();
    EXPECT_FALSE(CompactCollectionDatabase(session, Path(u"New.mdb"_s)));
    child.Kill();
    EXPECT_FALSE(IsDatabaseBusy(session, Path(u"New.mdb"_s)));
}

TEST_F(FilesTest, CompactingAFileThatACrashLeftTakesItsLogIn) {
    Create();
    session.Database.reset();
    std::unique_ptr<sql::Database> held;
    const sql::testing::WaitingChild child([&] {
        held = sql::Database::Open(Path(u"New.mdb"_s));
        held->Execute(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Kept', 'SELECT 1')");
        held->Flush();
    });
    ASSERT_TRUE(child.IsStarted());
    child.Kill();
    ASSERT_TRUE(folder_.Has(u"New.mdb-wal"_s));
    ASSERT_TRUE(CompactCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_EQ(QDir(folder_.Path()).entryList(QDir::Files), QStringList(u"New.mdb"_s));
    ASSERT_TRUE(Open(u"New.mdb"_s));
    EXPECT_EQ(Rows(u"SELECT Name FROM SQLQueries"), QStringList(u"Kept"_s));
}

TEST_F(FilesTest, CompactingKeepsTheRowsAndLeavesNoOtherFile) {
    Create();
    for (int i = 0; i < 500; ++i) {
        Run(u"INSERT INTO Profiles (ProfileID, Title, Notes) VALUES ('Key_%1', 'T', '%2')"_s.arg(i).arg(
            QString(2000, u'x')));
    }
    Run(u"DELETE FROM Profiles WHERE ProfileID <> 'Key_7'");
    session.Database.reset();
    const qint64 before = QFileInfo(Path(u"New.mdb"_s)).size();
    ASSERT_TRUE(CompactCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_LT(QFileInfo(Path(u"New.mdb"_s)).size(), before / 2);
    EXPECT_EQ(QDir(folder_.Path()).entryList(QDir::Files), QStringList(u"New.mdb"_s));
    ASSERT_TRUE(Open(u"New.mdb"_s));
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profiles"), QStringList(u"Key_7"_s));
}

TEST_F(FilesTest, CompactingReplacesACopyLeftBehind) {
    Create();
    session.Database.reset();
    folder_.Write(u"New.mdb_bak"_s, "left behind");
    ASSERT_TRUE(CompactCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_FALSE(folder_.Has(u"New.mdb_bak"_s));
}

TEST_F(FilesTest, CompactingAMissingFileDoesNothing) {
    EXPECT_FALSE(CompactCollectionDatabase(session, Path(u"None.mdb"_s)));
    EXPECT_TRUE(QDir(folder_.Path()).entryList(QDir::Files).isEmpty());
}

TEST_F(FilesTest, CompactingTheOpenDatabaseIsRefused) {
    Create();
    ExpectBusy();
    EXPECT_FALSE(CompactCollectionDatabase(session, Path(u"New.mdb"_s)));
    EXPECT_EQ(ReadDbInfo(session, u"Schema"_s, {}), u"90"_s);
}

TEST_F(FilesTest, CompactingAFaultyFileLosesNothing) {
    const QByteArray content = QByteArray("no database at all ").repeated(300);
    folder_.Write(u"List.mdb"_s, content);
    Expect({}, u"Cannot open database"_s, MessageIcon::Critical);
    EXPECT_FALSE(CompactCollectionDatabase(session, Path(u"List.mdb"_s)));
    EXPECT_EQ(folder_.Read(u"List.mdb"_s), content);
    EXPECT_EQ(QDir(folder_.Path()).entryList(QDir::Files), QStringList(u"List.mdb"_s));
}

} // namespace ostrand
