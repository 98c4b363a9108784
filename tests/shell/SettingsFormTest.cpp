// What the settings window shows and what OK stores.
#include "shell/SettingsForm.h"

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/Settings.h"
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

struct EntryRow {
    QStringView control, caption, key;
};

// The captions of the last three are ours.
constexpr EntryRow kRows[] = {
    {u"chkHighlightHeadshots", u"Highlight Persons with Headshots", u"HighlightHeadshots"},
    {u"chkDoNotResizeHeadshots", u"Do Not Resize Headshots", u"DoNotResizeHeadshots"},
    {u"chkShowLoanOnStartUp", u"Show Loaned Due on StartUp", u"ShowLoanDueOnStartUp"},
    {u"textLoanPeriod", u"Loan Period in Days", u"LoanDue"},
    {u"chkAutoLock", u"Auto-Lock Quick-Edits", u"AutoLock"},
    {u"chkSearchIncludeMovies", u"Include Movie Data in Search", u"IncludeMovies"},
    {u"chkSearchIncludeTV", u"Include TV Series Data in Search", u"IncludeTV"},
    {u"chkSearchIncludeAssignedEpisodes", u"Only Include Assigned Episodes in Search", u"IncludeAssignedEpisodesOnly"},
    {u"chkShowMediaIcon", u"Show Media Type Icon", u"ShowMediaIcon"},
    {u"chkAutoLockEvents", u"Auto-Lock Events", u"AutoLockEvents"},
    {u"chkRemoveBirthYears", u"Remove unneeded BirthYears on Profiler Import", u"RemoveBirthYears"},
    {u"chkShowProgressDetails", u"Show Progress Details", u"ShowProgressDetails"},
    {u"chkMoreProgressDetails", u"Extended Details", u"ShowMoreProgressDetails"},
    {u"chkShowToolbar", u"Show Toolbar", u"ShowToolbar"},
    {u"chkUseProfilerColTypes", u"Use Profiler Collection Types", u"UseProfilerColTypes"},
    {u"textHeadshotFolder", u"Headshot Folder", u"HeadshotPath"},
    {u"textCoverPath", u"Cover Path", u"CoverPath"},
    {u"chkTraceStrings", u"Add New Strings to Translation Table", u"TraceStrings"},
    {u"chkEnableTranslation", u"Enable String Translation", u"UseUserDefinedStrings"},
    {u"comboFont", u"Font", u"FontName"},
    {u"textFontSize", u"Size", u"FontSize"},
    {u"chkAdditionalInfosInProfilerExport", u"Include Additional Infos in Profiler Export",
     u"AdditionalInfosInProfilerExport"},
    {u"chkAwardsInProfilerExport", u"Include Awards in Profiler Export", u"AwardsInProfilerExport"},
    {u"listIncludeInOwned", u"Also Show in Tab \"Owned\"", u"IncludeInOwned"},
};

const SettingsEntry *FindEntry(QStringView control) {
    for (const SettingsEntry &entry : SettingsEntries()) {
        if (control == entry.control) {
            return &entry;
        }
    }
    return nullptr;
}

class SettingsFormTest : public ::testing::Test {
protected:
    void SetUp() override {
        PrepareStartUp(session, {});
        ASSERT_TRUE(NewCollectionDatabase(session, services.folders.dir / u"films.mdb"_s));
        ASSERT_TRUE(OpenCollectionDatabase(session, services.folders.dir / u"films.mdb"_s));
        session.window.MenuStrings = [this] { calls << u"MenuStrings"_s; };
        session.window.SettingsStored = [this] { calls << u"SettingsStored"_s; };
    }

    QString Stored(const QString &key) { return ReadDbInfo(session, key, u"(missing)"_s); }
    SettingsForm Loaded() {
        SettingsForm form;
        form.Load(session);
        return form;
    }
    /// Changes one value and stores.
    void StoreOne(const QString &control, const QString &value) {
        SettingsForm form = Loaded();
        form.SetValue(control, value);
        EXPECT_TRUE(form.Store(session));
    }
    void AddProfile(const QString &id, const QString &type) {
        session.Database->Execute(
            u"INSERT INTO Profiles (ProfileID, Title, ColType) VALUES ('%1', 'T', '%2')"_s.arg(id, EscapeSql(type)));
    }

    TestServices services;
    Session session{services.services};
    QStringList calls;
};

} // namespace

TEST(SettingsEntries, AreThoseOfTheTable) {
    EXPECT_EQ(SettingsEntries().size(), std::size(kRows));
    QSet<QString> keys;
    for (const EntryRow &row : kRows) {
        const SettingsEntry *entry = FindEntry(row.control);
        ASSERT_TRUE(entry) << qPrintable(row.control.toString());
        EXPECT_EQ(entry->Caption(), row.caption);
        EXPECT_EQ(entry->Key(), row.key);
        EXPECT_TRUE(FindDbSetting(row.key)) << qPrintable(row.key.toString());
        keys.insert(entry->Key());
    }
    EXPECT_EQ(keys.size(), qsizetype(std::size(kRows)));
    EXPECT_EQ(QStringView(FindEntry(u"textHeadshotFolder")->button), u"cbSetHeadshotPath");
    EXPECT_EQ(QStringView(FindEntry(u"textCoverPath")->button), u"cbSetCoverPath");
}

TEST(SettingsEntries, EachGroupHasEntriesAndEachPageStandsTogether) {
    QStringList pages;
    for (const SettingsGroupTexts &group : SettingsGroups()) {
        const auto entries = SettingsEntries();
        EXPECT_TRUE(std::any_of(entries.begin(), entries.end(), [&](const auto &e) { return e.group == group.group; }))
            << qPrintable(QString::fromUtf16(group.caption));
        const QString page = QString::fromUtf16(group.page);
        if (pages.isEmpty() || pages.last() != page) {
            EXPECT_FALSE(pages.contains(page));
            pages << page;
        }
    }
    EXPECT_EQ(pages.size(), 4);
}

TEST_F(SettingsFormTest, EachCheckBoxIsLoadedAndStoredInItsKeyAndTheSession) {
    for (const SettingsEntry &entry : SettingsEntries()) {
        if (entry.kind != SettingsEntryKind::Check) {
            continue;
        }
        SCOPED_TRACE(entry.Control().toStdString());
        const DbSetting &setting = *FindDbSetting(entry.key);
        const bool numbers = setting.kind == SettingKind::OneZero;
        for (const bool on : {true, false, true}) {
            StoreOne(entry.Control(), on ? u"True"_s : u"False"_s);
            const QString text = numbers ? (on ? u"1"_s : u"0"_s) : (on ? u"True"_s : u"False"_s);
            EXPECT_EQ(Stored(entry.Key()), text);
            EXPECT_EQ(setting.save(session, setting), text) << "the session follows at once";
            EXPECT_EQ(Loaded().IsChecked(entry.Control()), on);
        }
    }
}

TEST_F(SettingsFormTest, TheDefaultsAreShown) {
    const SettingsForm form = Loaded();
    EXPECT_TRUE(form.IsChecked(u"chkHighlightHeadshots"_s));
    EXPECT_TRUE(form.IsChecked(u"chkUseProfilerColTypes"_s));
    EXPECT_FALSE(form.IsChecked(u"chkShowToolbar"_s));
    EXPECT_EQ(form.Value(u"textLoanPeriod"_s), u"7"_s);
    EXPECT_EQ(form.Value(u"comboFont"_s), u"Arial"_s);
    EXPECT_EQ(form.Value(u"textFontSize"_s), u"8.25"_s);
    EXPECT_EQ(form.Value(u"textHeadshotFolder"_s), session.HeadshotPath);
    EXPECT_EQ(form.Value(u"textCoverPath"_s), session.CoverPath);
}

TEST_F(SettingsFormTest, NothingIsStoredWithoutOk) {
    SettingsForm form = Loaded();
    form.SetChecked(u"chkShowToolbar"_s, true);
    form.SetValue(u"textLoanPeriod"_s, u"99"_s);
    EXPECT_EQ(Stored(u"ShowToolbar"_s), u"(missing)"_s);
    EXPECT_FALSE(session.view.ShowToolbar);
    EXPECT_EQ(session.view.LoanDue, 7);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(SettingsFormTest, TheWindowsAreToldAfterTheSessionHasTheValues) {
    bool seen = false;
    session.window.SettingsStored = [&] { seen = session.view.ShowToolbar && Stored(u"ShowToolbar"_s) == u"True"; };
    StoreOne(u"chkShowToolbar"_s, u"True"_s);
    EXPECT_TRUE(seen);
    EXPECT_EQ(calls, QStringList(u"MenuStrings"_s));
}

TEST_F(SettingsFormTest, MenuCaptionsAreAppliedWithTheNewTranslation) {
    bool on = false;
    session.window.MenuStrings = [&] { on = session.UseUserDefinedStrings; };
    StoreOne(u"chkEnableTranslation"_s, u"True"_s);
    EXPECT_TRUE(on);
    EXPECT_EQ(calls, QStringList(u"SettingsStored"_s));
}

TEST_F(SettingsFormTest, StoresTheLoanPeriodWhenItIsNumeric) {
    static constexpr struct {
        const char16_t *text;
        int period;
    } kPeriods[] = {
        {u"14", 14},          {u" 3 ", 3},  {u"abc", 3},  {u"", 3},     {u"5 days", 3}, {u"0", 0},    {u"-2", -2},
        {u"99999999999", -2}, {u"inf", -2}, {u"nan", -2}, {u"2,5", -2}, {u"10.6", 11},  {u"1e1", 10},
    };
    for (const auto &row : kPeriods) {
        StoreOne(u"textLoanPeriod"_s, QString::fromUtf16(row.text));
        EXPECT_EQ(session.view.LoanDue, row.period) << qPrintable(QString::fromUtf16(row.text));
        EXPECT_EQ(Stored(u"LoanDue"_s), QString::number(row.period));
    }
}

TEST_F(SettingsFormTest, TheFontSizeHasTheDecimalMarkOfTheUser) {
    session.DecimalSeparator = u","_s;
    EXPECT_EQ(Loaded().Value(u"textFontSize"_s), u"8,25"_s);
    static constexpr struct {
        const char16_t *text;
        const char16_t *stored;
    } kSizes[] = {{u"9,5", u"9.5"}, {u"10.5", u"10.5"}, {u"12", u"12"},  {u"abc", u"12"}, {u"", u"12"},
                  {u"0", u"12"},    {u"-3", u"12"},     {u"500", u"12"}, {u"nan", u"12"}};
    for (const auto &row : kSizes) {
        StoreOne(u"textFontSize"_s, QString::fromUtf16(row.text));
        EXPECT_EQ(Stored(u"FontSize"_s), QString::fromUtf16(row.stored)) << qPrintable(QString::fromUtf16(row.text));
        EXPECT_EQ(session.view.FontSize, QString::fromUtf16(row.stored).toDouble());
    }
}

TEST_F(SettingsFormTest, StoresTheFontName) {
    StoreOne(u"comboFont"_s, u"Some Font's Name"_s);
    EXPECT_EQ(Stored(u"FontName"_s), u"Some Font's Name"_s);
    EXPECT_EQ(session.view.FontName, u"Some Font's Name"_s);
    StoreOne(u"comboFont"_s, u" "_s);
    EXPECT_EQ(Stored(u"FontName"_s), u"(missing)"_s);
    EXPECT_EQ(session.view.FontName, u"Arial"_s);
}

TEST_F(SettingsFormTest, FoldersAreMadeAndEndInASeparator) {
    static constexpr struct {
        const char16_t *control;
        const char16_t *key;
        QString Session::*path;
    } kFolders[] = {{u"textHeadshotFolder", u"HeadshotPath", &Session::HeadshotPath},
                    {u"textCoverPath", u"CoverPath", &Session::CoverPath}};
    for (const auto &row : kFolders) {
        const QString control = QString::fromUtf16(row.control);
        const QString key = QString::fromUtf16(row.key);
        const QString wanted = services.folders.dir / (u"pictures/"_s + key);
        for (const QString &text : {wanted, QString(wanted + u'/'), QString(u"  "_s + wanted + u"//"_s)}) {
            StoreOne(control, text);
            EXPECT_EQ(session.*row.path, WithSeparator(wanted));
            EXPECT_EQ(Stored(key), WithSeparator(wanted));
            EXPECT_TRUE(QDir(wanted).exists());
        }
        StoreOne(control, u"mine"_s);
        EXPECT_EQ(session.*row.path, WithSeparator(session.DataFolder + u"/mine"_s)) << "not where the program runs";
        StoreOne(control, {});
        EXPECT_TRUE((session.*row.path).startsWith(session.DataFolder + u"/Images/"_s)) << "the default";
        EXPECT_TRUE(QDir(session.*row.path).exists());
        LoadDatabaseSettings(session);
        EXPECT_TRUE((session.*row.path).endsWith(QDir::separator()));
    }
}

TEST_F(SettingsFormTest, AFolderThatCannotBeMadeIsToldAndTheOldOneStays) {
    const QString before = session.CoverPath;
    const QString file = services.folders.dir.Write(u"file"_s, "x");
    services.dialogs.ExpectMessage(u"The folder cannot be made:\r\n"_s + file + u"/covers"_s, MessageIcon::Warning);
    StoreOne(u"textCoverPath"_s, file + u"/covers"_s);
    EXPECT_EQ(session.CoverPath, before);
    EXPECT_EQ(calls, (QStringList{u"MenuStrings"_s, u"SettingsStored"_s})) << "the other entries are stored";
}

TEST_F(SettingsFormTest, TheButtonsChooseAFolder) {
    SettingsForm form = Loaded();
    const QString before = form.Value(u"textCoverPath"_s);
    services.dialogs.ExpectBrowseFolder({}, u"Cover Path"_s);
    form.Browse(session, u"textCoverPath"_s);
    EXPECT_EQ(form.Value(u"textCoverPath"_s), before);
    services.dialogs.ExpectBrowseFolder(u"/some/where"_s, u"Headshot Folder"_s);
    form.Browse(session, u"textHeadshotFolder"_s);
    EXPECT_EQ(form.Value(u"textHeadshotFolder"_s), WithSeparator(u"/some/where"_s));
    form.Browse(session, u"chkAutoLock"_s);
    EXPECT_NE(session.HeadshotPath, form.Value(u"textHeadshotFolder"_s));
}

TEST_F(SettingsFormTest, ListsTheCollectionTypesButOwnedAndChecksTheStoredOnes) {
    AddProfile(u"Key_1"_s, u"Wish List"_s);
    AddProfile(u"Key_2"_s, u"Owned"_s);
    AddProfile(u"Key_3"_s, u"Ordered"_s);
    AddProfile(u"Key_4"_s, u"ORDERED"_s);
    AddProfile(u"Key_5"_s, u"Ann's"_s);
    AddProfile(u"Key_6"_s, {});
    session.view.IncludeInOwned = u"ordered|Gone"_s;
    const SettingsForm form = Loaded();
    QStringList types;
    for (const SettingsForm::IncludedType &type : form.IncludedTypes()) {
        types << type.name.toLower() + (type.checked ? u"+"_s : QString());
    }
    EXPECT_EQ(types, (QStringList{u"ann's"_s, u"ordered+"_s, u"wish list"_s}));
}

TEST_F(SettingsFormTest, TypesThatCannotBeReadAreLogged) {
    session.Database->Execute(u"DROP TABLE Profiles");
    EXPECT_TRUE(Loaded().IncludedTypes().empty());
    EXPECT_TRUE(test::ReadTestFile(session.trace.path).contains("Error:    frmSettings: "));
}

TEST_F(SettingsFormTest, StoresTheCheckedTypesJoined) {
    AddProfile(u"Key_1"_s, u"Wish List"_s);
    AddProfile(u"Key_3"_s, u"Ordered"_s);
    AddProfile(u"Key_5"_s, u"Ann's"_s);
    SettingsForm form = Loaded();
    form.SetIncluded(0, true);
    form.SetIncluded(2, true);
    EXPECT_TRUE(form.Store(session));
    EXPECT_EQ(Stored(u"IncludeInOwned"_s), u"Ann's|Wish List"_s);
    EXPECT_EQ(session.view.IncludeInOwned, u"Ann's|Wish List"_s);
    form = Loaded();
    EXPECT_TRUE(form.IncludedTypes()[2].checked);
    form.SetIncluded(0, false);
    form.SetIncluded(2, false);
    EXPECT_TRUE(form.Store(session));
    EXPECT_EQ(session.view.IncludeInOwned, QString());
    EXPECT_EQ(Stored(u"IncludeInOwned"_s), u"(missing)"_s);
}

TEST_F(SettingsFormTest, WithoutADatabaseNothingIsStored) {
    SettingsForm form = Loaded();
    form.SetChecked(u"chkShowToolbar"_s, true);
    session.Database.reset();
    EXPECT_FALSE(form.Store(session));
    EXPECT_FALSE(session.view.ShowToolbar);
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_TRUE(Loaded().IncludedTypes().empty());
}

TEST_F(SettingsFormTest, AFaultIsToldAndChangesNothing) {
    SettingsForm form = Loaded();
    form.SetChecked(u"chkShowToolbar"_s, true);
    session.Database->Execute(u"DROP TABLE DbInfo");
    services.dialogs.ExpectMessage({}, MessageIcon::Critical, MessageAnswer::Ok, u"Settings"_s);
    EXPECT_FALSE(form.Store(session));
    EXPECT_FALSE(session.view.ShowToolbar);
    EXPECT_TRUE(calls.isEmpty());
}

} // namespace ostrand
