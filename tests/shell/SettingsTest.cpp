#include "shell/Settings.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "shell/StartUp.h"
#include "support/Scripted.h"

#include <QDir>
#include <QSet>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::TestServices;

class SettingsTest : public ::testing::Test {
protected:
    void SetUp() override {
        PrepareStartUp(session, {});
        ASSERT_TRUE(NewCollectionDatabase(session, services.folders.dir / u"films.mdb"_s));
    }

    QString Stored(const QString &key) { return ReadDbInfo(session, key, u"(missing)"_s); }
    void Store(const QString &key, const QString &value) { WriteDbInfo(session, key, value); }

    TestServices services;
    Session session{services.services};
};

TEST(SettingsTable, HoldsEachKeyOnce) {
    QSet<QString> keys;
    for (const DbSetting &setting : DbSettings()) {
        EXPECT_FALSE(keys.contains(setting.Key())) << qPrintable(setting.Key());
        keys.insert(setting.Key());
        EXPECT_EQ(setting.load == nullptr, setting.step == SettingStep::PointOfUse) << qPrintable(setting.Key());
    }
    EXPECT_GE(keys.size(), 80 - 7) << "the keys of the schema's list";
    EXPECT_EQ(FindDbSetting(u"NoSuchKey"), nullptr);
    EXPECT_EQ(FindDbSetting(u"LoanDue")->Preset(), u"7"_s);
}

TEST(SettingsTable, HasEveryKeyWithItsDefault) {
    static constexpr struct {
        QStringView key, preset;
    } kKeys[] = {
        {u"Schema", u""},
        {u"Owner", u""},
        {u"Profiler3", u"False"},
        {u"CrewMapping", u""},
        {u"CoverPath", u"Images/"},
        {u"HeadshotPath", u"Images/Headshots"},
        {u"LastSelectedItem", u""},
        {u"LastTVUpdate", u"0"},
        {u"LastDataUpdate", u"0"},
        {u"TVTimeStamp", u""},
        {u"LoanDue", u"7"},
        {u"ShowLoanDueOnStartUp", u"1"},
        {u"FontName", u"Arial"},
        {u"FontSize", u"8.25"},
        {u"LocalLanguage", u""},
        {u"AlternateLocalLanguage", u"en-US"},
        {u"UseUserDefinedStrings", u"0"},
        {u"TraceStrings", u"0"},
        {u"SelectedUsers", u""},
        {u"EventTypes", u""},
        {u"IncludeInOwned", u""},
        {u"UseProfilerColTypes", u"1"},
        {u"UseCustomTitle", u"False"},
        {u"UseOriginalTitle", u"False"},
        {u"ViewTVShows", u"False"},
        {u"IncludeMovies", u"True"},
        {u"IncludeTV", u"True"},
        {u"IncludeAssignedEpisodesOnly", u"False"},
        {u"ExportTV_AllInfos", u"0"},
        {u"AdditionalInfosInProfilerExport", u"False"},
        {u"AwardsInProfilerExport", u"False"},
        {u"AutoLock", u"False"},
        {u"AutoLockEvents", u"False"},
        {u"RemoveBirthYears", u"False"},
        {u"ProfilesSortKey", u"2"},
        {u"ProfilesSortOrder", u"0"},
        {u"LastTab", u"1"},
        {u"TabColList", u"1"},
        {u"ProfileInfoLastTab", u"1"},
        {u"BoxsetView", u"True"},
        {u"ColorCollectionList", u"True"},
        {u"CrewTreeView", u"True"},
        {u"HideUnassignedCrew", u"False"},
        {u"ReverseCreditName", u"False"},
        {u"ShowFullBoxsetCredits", u"False"},
        {u"ShowFilter", u"True"},
        {u"ShowDescription", u"False"},
        {u"ShowToolbar", u"False"},
        {u"ShowMediaIcon", u"True"},
        {u"ShowProgressDetails", u"True"},
        {u"ShowMoreProgressDetails", u"False"},
        {u"ProgressWindowAutoClose", u"0"},
        {u"HighlightHeadshots", u"True"},
        {u"DoNotResizeHeadshots", u"True"},
        {u"EnableSkin", u"0"},
        {u"CurrentSkin", u""},
        {u"DescFormat", u"1"},
        {u"AppearancesOrderColumns", u"1,2,3,4"},
        {u"CastOrderColumns", u"1,2,3"},
        {u"CrewOrderColumns", u"1,2,3"},
        {u"EncryptedText", u""},
        {u"HTML_AppendEdition", u""},
        {u"HTML_ColTypesOrder", u"Owned"},
        {u"HTML_CoverSource", u"1"},
        {u"HTML_ExcludedColTypes", u""},
        {u"HTML_ExportPath", u""},
        {u"HTML_Filter", u""},
        {u"HTML_GenerateCrosslinks", u"1"},
        {u"HTML_GenerateEpisodeHTML", u"1"},
        {u"HTML_MediaSkins", u""},
        {u"HTML_Skin", u""},
        {u"HTML_SkinEpisode", u""},
        {u"HTML_SortByTitle", u"1"},
        {u"HTML_UseCollectionType", u"1"},
        {u"HTML_UseCustomTitle", u"0"},
        {u"HTML_UseTitle", u""},
    };
    for (const auto &row : kKeys) {
        const DbSetting *setting = FindDbSetting(row.key);
        ASSERT_TRUE(setting) << row.key.toString().toStdString();
        EXPECT_EQ(setting->Preset(), row.preset) << row.key.toString().toStdString();
    }
    EXPECT_EQ(DbSettings().size(), std::size(kKeys));
}

TEST(SettingsTable, LoadsInItsOrder) {
    QStringList loaded;
    for (const DbSetting &setting : DbSettings().first(53)) {
        loaded += setting.Key();
    }
    EXPECT_EQ(loaded.join(u' '),
              u"LocalLanguage AlternateLocalLanguage FontSize FontName Profiler3 EnableSkin CurrentSkin "
              "DoNotResizeHeadshots ShowMediaIcon AdditionalInfosInProfilerExport AwardsInProfilerExport "
              "TraceStrings UseUserDefinedStrings UseProfilerColTypes ShowToolbar CrewTreeView "
              "ShowFullBoxsetCredits CastOrderColumns CrewOrderColumns AppearancesOrderColumns "
              "IncludeMovies IncludeTV IncludeAssignedEpisodesOnly AutoLockEvents RemoveBirthYears "
              "ShowProgressDetails ShowMoreProgressDetails ShowFilter HideUnassignedCrew AutoLock "
              "ReverseCreditName HighlightHeadshots BoxsetView ColorCollectionList UseCustomTitle "
              "UseOriginalTitle ShowDescription DescFormat CoverPath HeadshotPath LoanDue "
              "ShowLoanDueOnStartUp ViewTVShows LastTab TabColList LastSelectedItem ProfilesSortKey "
              "ProfilesSortOrder IncludeInOwned ProgressWindowAutoClose ProfileInfoLastTab SelectedUsers "
              "EventTypes"_s);
}

TEST_F(SettingsTest, TheInstallationHasEveryKeyWithItsDefault) {
    const struct {
        const char16_t *section, *key;
        QString preset;
    } cases[] = {
        {u"Main", u"DatabasePath", session.DataFolder},
        {u"Main", u"Debug", u"1"_s},
        {u"Main", u"LastDatabase", u"Database"_s},
        {u"Main", u"Version", {}},
        {u"Main", u"URLHeadshots", u"/dvdprofiler/Data/Headshots/"_s},
        {u"Main", u"URLIMDb", u"/title/"_s},
        {u"Main", u"URLDataUpdate", u"/dvdprofiler/Data"_s},
        {u"Main", u"URLTVUpdate", u"/dvdprofiler/CastCrew"_s},
        {u"Main", u"LastHeadshotsUpdate", {}},
        {u"Main", u"CollectionFile", session.DataFolder + QDir::separator() + u"collection.xml"_s},
        {u"Main", u"EpisodeDivider", u". "_s},
        {u"Main", u"Scheme", u"n/a"_s},
        {u"SVNAudit", u"SVNExePath", {}},
        {u"SVNAudit", u"SVNAuditEnabled", u"False"_s},
        {u"SVNAudit", u"SVNAuditPath", {}},
        {u"SVNAudit", u"SVNTortProcExePath", {}},
        {u"Window", u"Height", u"11000"_s},
        {u"Window", u"Width", u"17000"_s},
        {u"Window", u"Top", u"200"_s},
        {u"Window", u"Left", u"200"_s},
        {u"Window", u"WindowState", u"0"_s},
        {u"Splitter", u"Splitter1", u"0.45"_s},
        {u"Splitter", u"Splitter2", u"0.55"_s},
        {u"Splitter", u"Splitter3", u"0.4"_s},
        {u"Splitter", u"Splitter4", u"0.5"_s},
        {u"Splitter", u"Splitter5", u"0.5"_s},
        {u"Splitter", u"Splitter6", u"0.3"_s},
        {u"GridLines", u"ListCollection", u"True"_s},
        {u"GridLines", u"ListCast", u"True"_s},
        {u"GridLines", u"ListCrew", u"True"_s},
        {u"GridLines", u"ListEpisodes", u"False"_s},
        {u"GridLines", u"ListAppearances", u"False"_s},
        {u"GridLines", u"MultiList", u"False"_s},
        {u"Settings", u"TraceTranslateableStringsToFile", {}},
        {u"Settings", u"IgnoreEpisodeError", {}},
        {u"Settings", u"ImportAllAdditionalInfos", {}},
    };
    QFile::remove(session.SettingsPath);
    for (const auto &c : cases) {
        const QString value = ReadIniSetting(session, c.section, c.key);
        // The hosts of the servers are the build's own; what is told is how the URL ends.
        EXPECT_TRUE(c.preset.startsWith(u"/dvd"_s) || c.preset == u"/title/" ? value.endsWith(c.preset)
                                                                             : value == c.preset)
            << qPrintable(QString::fromUtf16(c.key) + u": "_s + value);
    }
    EXPECT_EQ(IniSettings().size(), std::size(cases));
}

TEST(SettingsTable, WindowsHaveTheirSections) {
    QStringList sections;
    for (const char16_t *section : WindowSections()) {
        sections += QString::fromUtf16(section);
        EXPECT_TRUE(IsWindowSection(sections.last()));
    }
    EXPECT_EQ(sections.join(u' '),
              u"ProfileInfo Awards SQLQueries AssignEpisodes CoverWindow FilterTags EditMultiUse "
              "CrewMapping ListViewWindow EditSkin EncryptionPad CrossLinks ManageHeadshots HeadshotImport "
              "HeadshotTools DropBox HTMLExport"_s);
    EXPECT_FALSE(IsWindowSection(u"Window"_s));
}

TEST(SettingsTable, ValuesAreOfTheirKind) {
    for (const DbSetting &setting : DbSettings()) {
        const QString preset = setting.Preset();
        switch (setting.kind) {
        case SettingKind::TrueFalse:
            EXPECT_TRUE(preset == u"True" || preset == u"False") << qPrintable(setting.Key());
            break;
        case SettingKind::OneZero:
            EXPECT_TRUE(preset == u"1" || preset == u"0") << qPrintable(setting.Key());
            break;
        case SettingKind::Columns:
            EXPECT_EQ(ColumnsText(ParseColumns(preset, {})), preset) << qPrintable(setting.Key());
            break;
        default:
            break;
        }
    }
}

TEST(SettingsTable, ColumnsMustBeComplete) {
    const QList<int> preset = {1, 2, 3};
    EXPECT_EQ(ParseColumns(u"3,1,2", preset), (QList<int>{3, 1, 2}));
    EXPECT_EQ(ParseColumns(u" 2, 1 ,3", preset), (QList<int>{2, 1, 3}));
    for (const QString &bad :
         {u""_s, u"1,2"_s, u"1,2,2"_s, u"1,2,4"_s, u"0,1,2"_s, u"1,2,3,4"_s, u"a,b,c"_s, u"1;2;3"_s}) {
        EXPECT_EQ(ParseColumns(bad, preset), preset) << qPrintable(bad);
    }
}

TEST(SettingsRules, LanguageFollowsThePrimaryLanguage) {
    const struct {
        QString system, language;
    } cases[] = {{u"de-DE"_s, u"de-DE"_s}, {u"de-AT"_s, u"de-DE"_s}, {u"es-MX"_s, u"es-ES"_s}, {u"fr_CA"_s, u"fr-FR"_s},
                 {u"nl-BE"_s, u"nl-NL"_s}, {u"pt-BR"_s, u"pt-PT"_s}, {u"en-GB"_s, u"en-US"_s}, {u"sv-SE"_s, u"en-US"_s},
                 {u"DE"_s, u"de-DE"_s},    {u""_s, u"en-US"_s},      {u"del-US"_s, u"en-US"_s}};
    for (const auto &c : cases) {
        EXPECT_EQ(LanguageOfSystem(c.system), c.language) << qPrintable(c.system);
    }
}

TEST(SettingsRules, TabsAreClamped) {
    EXPECT_EQ(ClampTab(1, 3), 1);
    EXPECT_EQ(ClampTab(3, 3), 3);
    EXPECT_EQ(ClampTab(4, 3), 1);
    EXPECT_EQ(ClampTab(0, 3), 1);
    EXPECT_EQ(ClampTab(-1, 3), 1);
}

TEST_F(SettingsTest, AFreshDatabaseGivesTheDefaults) {
    const ViewState fresh;
    LoadDatabaseSettings(session);
    for (const DbSetting &setting : DbSettings()) {
        if (setting.save && setting.Key() != u"Profiler3") {
            EXPECT_EQ(setting.save(session, setting), setting.Preset()) << qPrintable(setting.Key());
        }
    }
    EXPECT_TRUE(session.Profiler3) << "a new database is of version 3 from the start";
    EXPECT_EQ(session.view.FontName, fresh.FontName);
    EXPECT_EQ(session.view.FontSize, 8.25);
    EXPECT_EQ(session.view.LastTab, 1);
}

TEST_F(SettingsTest, TheLanguageIsStoredWhenMissing) {
    Store(u"LocalLanguage"_s, {});
    services.locale.default_language = u"fr-CA"_s;
    LoadDatabaseSettings(session);
    EXPECT_EQ(session.LocalLanguage, u"fr-FR"_s);
    EXPECT_EQ(Stored(u"LocalLanguage"_s), u"fr-FR"_s);
    EXPECT_EQ(Stored(u"AlternateLocalLanguage"_s), u"en-US"_s);

    services.locale.default_language = u"de-DE"_s;
    Store(u"AlternateLocalLanguage"_s, u"nl-NL"_s);
    LoadDatabaseSettings(session);
    EXPECT_EQ(session.LocalLanguage, u"fr-FR"_s) << "the stored one wins";
    EXPECT_EQ(session.AlternateLocalLanguage, u"nl-NL"_s);
}

TEST_F(SettingsTest, ReadsWhatIsStored) {
    Store(u"EnableSkin"_s, u"1"_s);
    Store(u"CrewTreeView"_s, u"False"_s);
    Store(u"ShowFilter"_s, u"nonsense"_s);
    Store(u"LoanDue"_s, u"14"_s);
    Store(u"ProfilesSortKey"_s, u"nonsense"_s);
    Store(u"CastOrderColumns"_s, u"3,1,2"_s);
    Store(u"CrewOrderColumns"_s, u"3,1"_s);
    Store(u"FontSize"_s, u"10.5"_s);
    Store(u"LastSelectedItem"_s, u"Key_1"_s);
    LoadDatabaseSettings(session);
    EXPECT_TRUE(session.view.mSkinEnable);
    EXPECT_FALSE(session.view.mCrewTreeView);
    EXPECT_TRUE(session.view.mShowFilter) << "the default wins";
    EXPECT_EQ(session.view.LoanDue, 14);
    EXPECT_EQ(session.view.ProfilesSortKey, 2);
    EXPECT_EQ(session.view.CastOrderColumns, (QList<int>{3, 1, 2}));
    EXPECT_EQ(session.view.CrewOrderColumns, (QList<int>{1, 2, 3}));
    EXPECT_EQ(session.view.FontSize, 10.5);
    EXPECT_EQ(session.view.LastSelectedItem, u"Key_1"_s);
}

TEST_F(SettingsTest, TheFontSizeReadsInAnyDecimalMark) {
    session.DecimalSeparator = u","_s;
    for (const QString &text : {u"9.75"_s, u"9,75"_s}) {
        Store(u"FontSize"_s, text);
        LoadDatabaseSettings(session);
        EXPECT_EQ(session.view.FontSize, 9.75) << qPrintable(text);
    }
}

TEST_F(SettingsTest, TheImdbUrlIsRewritten) {
    EXPECT_TRUE(session.URLIMDb.endsWith(u"/title/"_s));
    EXPECT_EQ(GetINIString(session, u"Main"_s, u"URLIMDb"_s, {}), session.URLIMDb);
}

TEST_F(SettingsTest, ImageFoldersHaveTheirDefaults) {
    LoadDatabaseSettings(session);
    const QString images = QDir::toNativeSeparators(session.DataFolder + u"/Images/"_s);
    EXPECT_EQ(session.CoverPath, images);
    EXPECT_EQ(session.HeadshotPath, QDir::toNativeSeparators(session.DataFolder + u"/Images/Headshots/"_s));
    EXPECT_TRUE(QDir(session.HeadshotPath).exists());
    EXPECT_EQ(Stored(u"HeadshotPath"_s), QDir::toNativeSeparators(session.DataFolder + u"/Images/Headshots"_s));
    EXPECT_EQ(Stored(u"CoverPath"_s), u"(missing)"_s) << "only written when its folder is missing";
}

TEST_F(SettingsTest, StoredImageFoldersGetTheirSeparator) {
    const QString covers = services.folders.dir / u"covers"_s;
    const QString heads = services.folders.dir / u"deep/heads"_s;
    QDir().mkpath(covers);
    Store(u"CoverPath"_s, covers);
    Store(u"HeadshotPath"_s, heads);
    LoadDatabaseSettings(session);
    EXPECT_EQ(session.CoverPath, covers + u'/');
    EXPECT_EQ(session.HeadshotPath, heads + u'/');
    EXPECT_TRUE(QDir(heads).exists());
    EXPECT_EQ(Stored(u"HeadshotPath"_s), heads);
}

TEST_F(SettingsTest, AMissingCoverFolderIsReplaced) {
    Store(u"CoverPath"_s, services.folders.dir / u"gone"_s);
    LoadDatabaseSettings(session);
    const QString covers = QDir::toNativeSeparators(session.DataFolder + u"/Images/Covers/"_s);
    EXPECT_EQ(session.CoverPath, covers);
    EXPECT_EQ(Stored(u"CoverPath"_s), covers);
    EXPECT_TRUE(QDir(covers).exists());
}

TEST_F(SettingsTest, SavesInItsOrder) {
    session.trace.Mask = kTraceEntry;
    session.view.panel_mode = PanelMode::Appearances;
    SaveDatabaseSettings(session);
    const QByteArray log = test::ReadTestFile(session.trace.path);
    QStringList written;
    for (const QByteArray &line : log.split('\n')) {
        const QString text = QString::fromUtf8(line).trimmed();
        if (text.contains(u"WriteDbInfo("_s)) {
            written += text.section(u'(', 1).section(u',', 0, 0);
        }
    }
    EXPECT_EQ(written,
              (QStringList{u"ViewTVShows"_s, u"CrewTreeView"_s, u"ShowFullBoxsetCredits"_s, u"HideUnassignedCrew"_s,
                           u"EnableSkin"_s, u"CurrentSkin"_s, u"ShowFilter"_s, u"LastTab"_s, u"TabColList"_s,
                           u"BoxsetView"_s, u"ColorCollectionList"_s, u"UseCustomTitle"_s, u"UseOriginalTitle"_s,
                           u"ShowDescription"_s, u"ReverseCreditName"_s, u"AppearancesOrderColumns"_s,
                           u"CastOrderColumns"_s, u"CrewOrderColumns"_s, u"LastSelectedItem"_s}));
}

TEST_F(SettingsTest, SavesTheViewState) {
    session.view.mTVShows = true;
    session.view.mSkinEnable = true;
    session.view.mShowFilter = false;
    session.CurrentSkin = u"It's Blue"_s;
    session.view.LastTab = 3;
    session.view.CastOrderColumns = {2, 1, 3};
    session.view.AppearancesOrderColumns = {4, 3, 2, 1};
    session.view.LastSelectedItem = u"Key_5|2"_s;
    SaveDatabaseSettings(session);
    EXPECT_EQ(Stored(u"ViewTVShows"_s), u"True"_s);
    EXPECT_EQ(Stored(u"EnableSkin"_s), u"1"_s);
    EXPECT_EQ(Stored(u"ShowFilter"_s), u"False"_s);
    EXPECT_EQ(Stored(u"CurrentSkin"_s), u"It's Blue"_s);
    EXPECT_EQ(Stored(u"LastTab"_s), u"3"_s);
    EXPECT_EQ(Stored(u"CastOrderColumns"_s), u"2,1,3"_s);
    EXPECT_EQ(Stored(u"AppearancesOrderColumns"_s), u"(missing)"_s) << "only while appearances are shown";
    EXPECT_EQ(Stored(u"LastSelectedItem"_s), u"Key_5"_s);
    const sql::Recordset row =
        session.Database->OpenRecordset(u"SELECT Comment FROM DbInfo WHERE InfoName = 'LastSelectedItem'");
    EXPECT_EQ(row.Text(0), u"Last selected profile on last close"_s);

    session.view.panel_mode = PanelMode::Appearances;
    SaveDatabaseSettings(session);
    EXPECT_EQ(Stored(u"AppearancesOrderColumns"_s), u"4,3,2,1"_s);
}

TEST_F(SettingsTest, SavedSettingsReadBack) {
    session.view.mReverseCredit = true;
    session.view.TabColList = 4;
    SaveDatabaseSettings(session);
    session.view = {};
    LoadDatabaseSettings(session);
    EXPECT_TRUE(session.view.mReverseCredit);
    EXPECT_EQ(session.view.TabColList, 4);
}

TEST_F(SettingsTest, TheStateOfTheBoxsetViewIsKeptAndNotItsWish) {
    for (const bool state : {false, true}) {
        session.view.mBoxsetView = !state;
        session.view.BoxsetView = state;
        SaveDatabaseSettings(session);
        EXPECT_EQ(Stored(u"BoxsetView"_s), state ? u"True"_s : u"False"_s);
        session.view = {};
        session.view.mBoxsetView = session.view.BoxsetView = !state;
        LoadDatabaseSettings(session);
        EXPECT_EQ(session.view.mBoxsetView, state);
        EXPECT_EQ(session.view.BoxsetView, state);
    }
}

TEST_F(SettingsTest, TheWindowTakesThemOverBeforeTheCoverFolderIsSettled) {
    const QString gone = services.folders.dir / u"gone"_s;
    Store(u"CoverPath"_s, gone);
    QStringList seen;
    session.window.LoadDatabaseSettings = [&] { seen << session.CoverPath; };
    LoadDatabaseSettings(session);
    EXPECT_EQ(seen, QStringList{gone + u'/'});
    EXPECT_NE(session.CoverPath, gone + u'/');
}

TEST_F(SettingsTest, TheWindowTellsWhatIsWritten) {
    session.window.SaveDatabaseSettings = [&] { session.view.LastSelectedItem = u"Key_7|12"_s; };
    SaveDatabaseSettings(session);
    EXPECT_EQ(Stored(u"LastSelectedItem"_s), u"Key_7"_s);
}

TEST(SettingsWithoutDatabase, SavesNothing) {
    TestServices services;
    Session session(services.services);
    SaveDatabaseSettings(session);
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(services.folders.dir.Has(u"documents/OstrandApp/Settings.ini"_s));
}

} // namespace
} // namespace ostrand
