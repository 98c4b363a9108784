#include "shell/StartUp.h"

#include "database/DatabaseFunctions.h"
#include "shell/InstanceMarker.h"
#include "shell/Session.h"
#include "sql/ForkedChild.h"
#include "support/Scripted.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::TestServices;

class StartUpTest : public ::testing::Test {
protected:
    QString Data(const QString &name) { return u"documents/OstrandApp/"_s + name; }
    void WriteIni(const QByteArray &content) { services.folders.dir.Write(Data(u"Settings.ini"_s), content); }
    QString Ini(const QString &section, const QString &key) {
        return GetINIString(session, section, key, u"(missing)"_s);
    }
    QByteArray Log() { return services.folders.dir.Read(Data(u"Debug.log"_s)); }

    TestServices services;
    Session session{services.services};
};

TEST(CommandLineText, NamesADatabaseOrACommandFile) {
    const struct {
        const char *name;
        QString text, database, command_file;
    } cases[] = {
        {"path", u"/a/films.mdb"_s, u"/a/films.mdb"_s, {}},
        {"quoted path", u"\"/a b/films.mdb\""_s, u"/a b/films.mdb"_s, {}},
        {"quotes anywhere", u"/a/\"my films\".mdb"_s, u"/a/my films.mdb"_s, {}},
        {"text somewhere", u"/a.mdb/batch"_s, u"/a.mdb/batch"_s, {}},
        {"capitals", u"/a/FILMS.MDB"_s, {}, u"/a/FILMS.MDB"_s},
        {"command file", u"\"/a b/command.txt\""_s, {}, u"/a b/command.txt"_s},
        {"blanks around", u" /a/films.mdb "_s, u"/a/films.mdb"_s, {}},
    };
    for (const auto &c : cases) {
        const CommandLine line = ReadCommandLine(c.text);
        EXPECT_EQ(line.database, c.database) << c.name;
        EXPECT_EQ(line.command_file, c.command_file) << c.name;
    }
}

TEST(TraceMaskText, IsReadAndWritten) {
    const struct {
        QString text;
        std::uint32_t mask;
        QString written;
    } cases[] = {
        {u"1"_s, 1, u"0x1"_s},
        {u"23"_s, 23, u"0x17"_s},
        {u" 23 "_s, 23, u"0x17"_s},
        {u"0x1F"_s, 31, u"0x1F"_s},
        {u"0xff"_s, 255, u"0xFF"_s},
        {u"0x80000000"_s, 0x80000000u, u"0x80000000"_s},
        {u"-2147483648"_s, 0x80000000u, u"0x80000000"_s},
        {u"4294967295"_s, 0xFFFFFFFFu, u"0xFFFFFFFF"_s},
        {u"0"_s, 0, u"0x0"_s},
        {u"abc"_s, 1, u"0x1"_s},
        {u""_s, 1, u"0x1"_s},
        {u"0x"_s, 1, u"0x1"_s},
        {u"0xyz"_s, 1, u"0x1"_s},
        {u"0x100000000"_s, 1, u"0x1"_s},
        {u"99999999999"_s, 1, u"0x1"_s},
        {u"12 34"_s, 1, u"0x1"_s},
    };
    for (const auto &c : cases) {
        const std::uint32_t mask = ParseTraceMask(c.text);
        EXPECT_EQ(mask, c.mask) << qPrintable(c.text);
        EXPECT_EQ(TraceMaskText(mask), c.written) << qPrintable(c.text);
    }
}

TEST_F(StartUpTest, MakesTheFolders) {
    PrepareStartUp(session, {});
    for (const QString &folder : {u"temp/OstrandApp"_s, u"documents/OstrandApp"_s, u"documents/OstrandApp/Skins"_s,
                                  u"documents/OstrandApp/Images"_s}) {
        EXPECT_TRUE(QDir(services.folders.dir / folder).exists()) << qPrintable(folder);
    }
}

TEST_F(StartUpTest, FillsTheState) {
    services.locale.decimal_separator = u","_s;
    Session german(services.services);
    PrepareStartUp(german, {});
    EXPECT_TRUE(german.StartingUp);
    EXPECT_TRUE(german.ShowFrontCover);
    EXPECT_EQ(german.DecimalSeparator, u","_s);
    EXPECT_EQ(german.LongDateFormat, u"MMMM d, yyyy"_s);
    EXPECT_EQ(german.CountryNames.size(), 51);
    EXPECT_EQ(german.DatabaseFile, u"Database"_s);
    EXPECT_EQ(german.DatabasePath, german.DataFolder);
    EXPECT_TRUE(german.URLHeadshots.endsWith(u"/dvdprofiler/Data/Headshots/"_s));
    EXPECT_EQ(german.AppVersion.count(u'.'), 2);
    FinishStartUp(german);
    EXPECT_FALSE(german.StartingUp);
}

TEST_F(StartUpTest, WritesBackWhatAUserMayEdit) {
    PrepareStartUp(session, {});
    EXPECT_EQ(Ini(u"Main"_s, u"Debug"_s), u"0x1"_s);
    EXPECT_EQ(Ini(u"Main"_s, u"Version"_s), session.AppVersion);
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNExePath"_s), u""_s);
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNAuditEnabled"_s), u"False"_s);
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNAuditPath"_s), u""_s);
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNTortProcExePath"_s), u""_s);
    EXPECT_EQ(Ini(u"Main"_s, u"LastDatabase"_s), u"(missing)"_s) << "written at shutdown";
}

TEST_F(StartUpTest, TakesTheSettingsFileOfOlderVersions) {
    services.folders.dir.Write(u"program/Settings.ini"_s, "[Main]\r\nLastDatabase=old.mdb\r\n");
    PrepareStartUp(session, {});
    EXPECT_EQ(session.DatabaseFile, u"old.mdb"_s);
}

TEST_F(StartUpTest, KeepsItsOwnSettingsFile) {
    services.folders.dir.Write(u"program/Settings.ini"_s, "[Main]\r\nLastDatabase=old.mdb\r\n");
    WriteIni("[Main]\r\nLastDatabase=new.mdb\r\n");
    PrepareStartUp(session, {});
    EXPECT_EQ(session.DatabaseFile, u"new.mdb"_s);
}

TEST_F(StartUpTest, ABadMaskIsWrittenBackAsOne) {
    WriteIni("[Main]\r\nDebug=abc\r\n");
    PrepareStartUp(session, {});
    EXPECT_EQ(session.trace.Mask, 1u);
    EXPECT_EQ(Ini(u"Main"_s, u"Debug"_s), u"0x1"_s);
}

TEST_F(StartUpTest, TheHighestBitGivesAFreshLogAndNothingInIt) {
    WriteIni("[Main]\r\nDebug=0x80000000\r\n");
    services.folders.dir.Write(Data(u"Debug.log"_s), "old\r\n");
    PrepareStartUp(session, {});
    FinishStartUp(session);
    Trace(session, u"something"_s, kTraceError);
    EXPECT_FALSE(services.folders.dir.Has(Data(u"Debug.log"_s)));
}

TEST_F(StartUpTest, OtherMasksKeepTheLog) {
    WriteIni("[Main]\r\nDebug=0x4\r\n");
    services.folders.dir.Write(Data(u"Debug.log"_s), "old\r\n");
    PrepareStartUp(session, {});
    FinishStartUp(session);
    EXPECT_EQ(Log(), "old\r\nExit:     frmMain_Load()\r\n");
}

TEST_F(StartUpTest, ReadsTheAuditTrailsSettings) {
    const QString viewer = services.folders.dir.Write(u"viewer"_s, "x");
    WriteIni("[SVNAudit]\r\nSVNExePath=/opt/my svn\r\nSVNAuditEnabled=true\r\nSVNAuditPath=/w\r\nSVNTortProcExePath=" +
             viewer.toUtf8() + "\r\n");
    PrepareStartUp(session, {});
    EXPECT_EQ(session.audit.SVNExePath, u"\"/opt/my svn\""_s);
    EXPECT_TRUE(session.audit.SVNAuditEnabled);
    EXPECT_EQ(session.audit.SVNAuditPath, u"/w"_s);
    EXPECT_EQ(session.audit.SVNTortProcExePath, viewer);
    EXPECT_TRUE(session.audit.menus_shown);
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNExePath"_s), u"/opt/my svn"_s) << "the quotes stay in memory";
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNAuditEnabled"_s), u"True"_s);
}

TEST_F(StartUpTest, TheViewerCountsOnlyWhenTheTrailIsOn) {
    const QString viewer = services.folders.dir.Write(u"viewer"_s, "x");
    WriteIni("[SVNAudit]\r\nSVNTortProcExePath=" + viewer.toUtf8() + "\r\n");
    PrepareStartUp(session, {});
    EXPECT_EQ(session.audit.SVNTortProcExePath, u""_s);
    EXPECT_FALSE(session.audit.menus_shown);
    EXPECT_EQ(Ini(u"SVNAudit"_s, u"SVNTortProcExePath"_s), viewer);
}

TEST_F(StartUpTest, ReadsGridLines) {
    WriteIni("[GridLines]\r\nListCollection=False\r\nListEpisodes=True\r\nListCast=nonsense\r\n");
    PrepareStartUp(session, {});
    const ViewState::GridLines &lines = session.view.grid_lines;
    EXPECT_FALSE(lines.ListCollection);
    EXPECT_TRUE(lines.ListEpisodes);
    EXPECT_TRUE(lines.ListCast);
    EXPECT_TRUE(lines.ListCrew);
    EXPECT_FALSE(lines.ListAppearances);
}

TEST_F(StartUpTest, TheCommandLineBeatsTheLastDatabase) {
    WriteIni("[Main]\r\nLastDatabase=last.mdb\r\n");
    EXPECT_TRUE(PrepareStartUp(session, u" "_s).command_file.isEmpty());
    EXPECT_EQ(session.DatabaseFile, u"last.mdb"_s);
    PrepareStartUp(session, u"\"other.mdb\""_s);
    EXPECT_EQ(session.DatabaseFile, u"other.mdb"_s);
    const CommandLine line = PrepareStartUp(session, u"\"c.txt\""_s);
    EXPECT_EQ(line.command_file, u"c.txt"_s);
    EXPECT_EQ(session.DatabaseFile, u"last.mdb"_s) << "a command file leaves the database alone";
}

TEST_F(StartUpTest, OpensTheDatabase) {
    const QString path = services.folders.dir / u"films.mdb"_s;
    ASSERT_TRUE(NewCollectionDatabase(session, path));
    session.Database.reset();
    const CommandLine line = PrepareStartUp(session, path);
    EXPECT_TRUE(OpenOrRun(session, line));
    EXPECT_TRUE(session.Database);
}

TEST_F(StartUpTest, AMissingDatabaseOpensNothing) {
    services.dialogs.ExpectMessage(u"Databasefile does not exist!"_s);
    EXPECT_FALSE(OpenOrRun(session, PrepareStartUp(session, services.folders.dir / u"none.mdb"_s)));
    EXPECT_FALSE(session.Database);
}

TEST_F(StartUpTest, ACommandFileRunsWithoutADatabase) {
    const QString file = services.folders.dir.Write(u"c.txt"_s, "setskin Blue\r\n");
    EXPECT_TRUE(OpenOrRun(session, PrepareStartUp(session, file)));
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s);
    EXPECT_FALSE(session.Database);
}

TEST_F(StartUpTest, TheTitlesDueShowTwiceAtANormalStart) {
    const QString path = services.folders.dir / u"films.mdb"_s;
    ASSERT_TRUE(NewCollectionDatabase(session, path));
    int shown = 0;
    session.window.ShowTitlesDue = [&shown] { ++shown; };
    OpenOrRun(session, PrepareStartUp(session, path));
    FinishStartUp(session);
    EXPECT_EQ(shown, 2);
}

/// Notes the steps that the window is called for, in their order.
class WindowStepsTest : public StartUpTest {
protected:
    void SetUp() override {
        const auto note = [this](const QString &step) { return [this, step] { steps += step; }; };
        session.window.ShowAuditMenus = note(u"audit menus"_s);
        session.window.ShowSplash = note(u"splash"_s);
        session.window.EnableDBMenues = [this](bool on) { steps += on ? u"menus on"_s : u"menus off"_s; };
        session.window.ShowBlankPage = note(u"blank page"_s);
        session.window.ShowBaseCaption = note(u"caption"_s);
        session.window.Layout = [this](bool reset) { steps += reset ? u"first layout"_s : u"layout"_s; };
        session.window.ApplyGridLines = note(u"grid lines"_s);
        session.window.TranslatePanels = note(u"panels"_s);
        session.window.ChooseDatabase = note(u"choose"_s);
        session.window.UnloadSplash = note(u"no splash"_s);
        session.window.LoadDatabaseSettings = note(u"settings"_s);
        session.window.MenuStrings = note(u"captions"_s);
        session.window.GetLastSelectedItem = note(u"last title"_s);
        session.window.ShowTitlesDue = note(u"titles due"_s);
        session.window.SaveDatabaseSettings = note(u"keep settings"_s);
        session.window.WriteGeometry = [this] { steps += session.Database ? u"geometry"_s : u"too late"_s; };
    }

    QStringList steps;
};

TEST_F(WindowStepsTest, ANormalStartTakesThemInThisOrder) {
    const QString path = services.folders.dir / u"a.mdb"_s;
    CreateCollectionDatabase(session, path);
    session.Database.reset();
    EXPECT_TRUE(OpenOrRun(session, PrepareStartUp(session, path)));
    FinishStartUp(session);
    EXPECT_EQ(steps.join(u", "_s), u"audit menus, splash, menus off, blank page, caption, layout, grid lines, panels, "
                                   "settings, captions, menus on, last title, titles due, no splash, titles due"_s);
    EXPECT_FALSE(session.StartingUp);
}

TEST_F(WindowStepsTest, CtrlResetsTheLayoutAndLeavesTheGridLinesAsDesigned) {
    services.keyboard.ctrl = true;
    WriteIni("[GridLines]\r\nListCollection=False\r\n");
    PrepareStartUp(session, {});
    EXPECT_TRUE(steps.contains(u"first layout"_s));
    EXPECT_TRUE(session.view.grid_lines.ListCollection);
}

TEST_F(WindowStepsTest, WithoutADatabaseTheUserChoosesOne) {
    const QString none = services.folders.dir / u"none.mdb"_s;
    EXPECT_FALSE(OpenOrRun(session, PrepareStartUp(session, none)));
    EXPECT_EQ(steps.count(u"choose"_s), 1);
    EXPECT_TRUE(services.dialogs.messages.empty()) << "a first start has no database, which is no fault";
}

TEST_F(WindowStepsTest, ADatabaseThatDoesNotOpenLetsTheUserChooseAnother) {
    services.folders.dir.Write(u"bad.mdb"_s, "no database at all, but long enough to be looked at as one");
    services.dialogs.ExpectMessage({});
    session.window.ChooseDatabase = [this] { CreateCollectionDatabase(session, services.folders.dir / u"b.mdb"_s); };
    EXPECT_TRUE(OpenOrRun(session, PrepareStartUp(session, services.folders.dir / u"bad.mdb"_s)));
    EXPECT_TRUE(session.Database);
}

TEST_F(WindowStepsTest, ACommandFileOpensNoDatabaseFirst) {
    services.folders.dir.Write(u"go.txt"_s, "");
    EXPECT_TRUE(OpenOrRun(session, PrepareStartUp(session, services.folders.dir / u"go.txt"_s)));
    EXPECT_FALSE(steps.contains(u"choose"_s));
    EXPECT_FALSE(session.Database);
}

TEST_F(StartUpTest, TheEndIsTraced) {
    WriteIni("[Main]\r\nDebug=0x6\r\n");
    PrepareStartUp(session, {});
    CreateCollectionDatabase(session, services.folders.dir / u"a.mdb"_s);
    QFile::remove(services.folders.dir / Data(u"Debug.log"_s));
    CloseViewer(session);
    const QByteArray log = Log();
    EXPECT_TRUE(log.startsWith("Enter:    CloseViewer()\r\nEnter:    SaveDatabaseSettings()\r\n"))
        << log.left(200).constData();
    EXPECT_TRUE(log.endsWith("Exit:     SaveDatabaseSettings()\r\nExit:     CloseViewer()\r\n"))
        << log.right(200).constData();
}

TEST_F(WindowStepsTest, TheEndKeepsTheWindowsPlaceBeforeTheDatabaseCloses) {
    PrepareStartUp(session, {});
    CreateCollectionDatabase(session, services.folders.dir / u"a.mdb"_s);
    steps.clear();
    CloseViewer(session);
    EXPECT_EQ(steps.join(u", "_s), u"keep settings, geometry"_s);
}

TEST_F(StartUpTest, ShutdownWritesTheInstallationsSettings) {
    PrepareStartUp(session, u"/x/films.mdb"_s);
    session.view.grid_lines.ListCrew = false;
    CloseViewer(session);
    EXPECT_EQ(Ini(u"Main"_s, u"LastDatabase"_s), u"/x/films.mdb"_s);
    EXPECT_EQ(Ini(u"Main"_s, u"URLHeadshots"_s), session.URLHeadshots);
    EXPECT_EQ(Ini(u"Settings"_s, u"TraceTranslateableStringsToFile"_s), u""_s);
    EXPECT_EQ(Ini(u"GridLines"_s, u"ListCrew"_s), u"False"_s);
    EXPECT_EQ(Ini(u"GridLines"_s, u"ListCollection"_s), u"True"_s);
}

TEST_F(StartUpTest, ShutdownClosesTheDatabaseAndTakesTheTempFolderAway) {
    const QString path = services.folders.dir / u"films.mdb"_s;
    PrepareStartUp(session, {});
    ASSERT_TRUE(NewCollectionDatabase(session, path));
    services.folders.dir.Write(u"temp/OstrandApp/HTMLTempNotes.html"_s, "x");
    services.folders.dir.Write(u"temp/OstrandApp/deep/file"_s, "x");
    CloseViewer(session);
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(services.folders.dir.Has(u"temp/OstrandApp"_s));
    EXPECT_FALSE(services.folders.dir.Has(u"films.ldb"_s));
    EXPECT_TRUE(services.folders.dir.Has(u"films.mdb"_s));
}

#ifdef Q_OS_UNIX
TEST_F(StartUpTest, ShutdownTellsWhatAFullDiskKeepsOut) {
    ASSERT_TRUE(NewCollectionDatabase(session, services.folders.dir / u"films.mdb"_s));
    session.Database->Flush();
    EXPECT_EQ(sql::testing::InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit = {1000, RLIM_INFINITY}; // no file takes a byte beyond it
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  services.dialogs.ExpectMessage({}, MessageIcon::Critical, MessageAnswer::Ok);
                  CloseViewer(session);
                  return session.Database || services.dialogs.messages.size() != 1 ? 1 : 0;
              }),
              0);
}
#endif

TEST_F(StartUpTest, TheLastInstanceTakesTheTempFolderAway) {
    PrepareStartUp(session, {});
    Session second(services.services);
    PrepareStartUp(second, {});
    services.folders.dir.Write(u"temp/OstrandApp/page.html"_s, "x");
    CloseViewer(session);
    EXPECT_TRUE(services.folders.dir.Has(u"temp/OstrandApp/page.html"_s));
    CloseViewer(second);
    EXPECT_FALSE(services.folders.dir.Has(u"temp/OstrandApp"_s));
}

TEST_F(StartUpTest, AMarkThatACrashLeftDoesNotCount) {
    PrepareStartUp(session, {});
    // A lock file of a process that does not run: its number, name and host.
    services.folders.dir.Write(u"temp/OstrandApp/instance7.lock"_s, "999999999\nostrand\n");
    CloseViewer(session);
    EXPECT_FALSE(services.folders.dir.Has(u"temp/OstrandApp"_s));
}

TEST_F(StartUpTest, ShutdownTracesItsExit) {
    WriteIni("[Main]\r\nDebug=0x4\r\n");
    PrepareStartUp(session, {});
    CloseViewer(session);
    EXPECT_TRUE(Log().endsWith("Exit:     CloseViewer()\r\n")) << Log().constData();
}

} // namespace
} // namespace ostrand
