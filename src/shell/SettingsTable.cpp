#include "shell/SettingsTable.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

#include <QDir>

namespace ostrand {

namespace {

using enum SettingKind;
using enum SettingStep;

// Host names of this build; the whole URLs are settings.
constexpr const char16_t *kDataServer = u"http://data.ostrand.example";
constexpr const char16_t *kImdbServer = u"http://www.imdb.com";
constexpr const char16_t *kCoverHost = u"http://covers.ostrand.example";
constexpr const char16_t *kNotesPage = u"http://profiles.ostrand.example/index.php";
constexpr const char16_t *kNotesPage3 = u"http://profiles3.ostrand.example/index.php";

template <typename T>
T &Member(Session &session, T ViewState::*member) {
    return session.view.*member;
}
template <typename T>
T &Member(Session &session, T Session::*member) {
    return session.*member;
}

void Take(Session &session, const DbSetting &setting, bool &target) {
    target = ReadDbInfoFlag(session, setting.Key(), setting.Preset() == u"True" || setting.Preset() == u"1");
}

void Take(Session &session, const DbSetting &setting, int &target) {
    bool ok = false;
    const int number = ReadDbInfo(session, setting.Key(), setting.Preset()).trimmed().toInt(&ok);
    target = ok ? number : setting.Preset().toInt();
}

void Take(Session &session, const DbSetting &setting, double &target) {
    QString text = ReadDbInfo(session, setting.Key(), setting.Preset()).trimmed();
    if (!session.DecimalSeparator.isEmpty()) {
        text.replace(session.DecimalSeparator, QStringLiteral("."));
    }
    bool ok = false;
    const double number = text.toDouble(&ok);
    target = ok && number > 0 ? number : setting.Preset().toDouble();
}

void Take(Session &session, const DbSetting &setting, QString &target) {
    target = ReadDbInfo(session, setting.Key(), setting.Preset());
}

void Take(Session &session, const DbSetting &setting, QList<int> &target) {
    target = ParseColumns(ReadDbInfo(session, setting.Key(), setting.Preset()), ParseColumns(setting.Preset(), {}));
}

QString Give(SettingKind kind, bool value) {
    return kind == OneZero ? QString(value ? u'1' : u'0') : (value ? QStringLiteral("True") : QStringLiteral("False"));
}
QString Give(SettingKind, int value) {
    return QString::number(value);
}
QString Give(SettingKind, double value) {
    return QString::number(value);
}
QString Give(SettingKind, const QString &value) {
    return value;
}
QString Give(SettingKind, const QList<int> &value) {
    return ColumnsText(value);
}

template <auto kMember>
constexpr DbSetting Kept(const char16_t *key, const char16_t *preset, SettingKind kind, SettingStep step,
                         int save_order = 0, const char16_t *comment = u"") {
    return {key,
            preset,
            kind,
            step,
            save_order,
            comment,
            [](Session &session, const DbSetting &setting) { Take(session, setting, Member(session, kMember)); },
            [](const Session &session, const DbSetting &setting) {
                return Give(setting.kind, Member(const_cast<Session &>(session), kMember));
            }};
}

/// What is kept is the present state, and the wish begins with it.
constexpr DbSetting BoxsetSetting() {
    DbSetting kept = Kept<&ViewState::BoxsetView>(u"BoxsetView", u"True", TrueFalse, Rest, 10);
    kept.load = [](Session &session, const DbSetting &setting) {
        Take(session, setting, session.view.BoxsetView);
        session.view.mBoxsetView = session.view.BoxsetView;
    };
    return kept;
}

constexpr DbSetting Bare(const char16_t *key, const char16_t *preset, SettingKind kind = Text,
                         const char16_t *comment = u"") {
    return {key, preset, kind, PointOfUse, 0, comment};
}

using S = Session;
using V = ViewState;

constexpr DbSetting kDbSettings[] = {
    Bare(u"LocalLanguage", u""),
    Bare(u"AlternateLocalLanguage", u"en-US"),
    Kept<&V::FontSize>(u"FontSize", u"8.25", Number, First),
    Kept<&V::FontName>(u"FontName", u"Arial", Text, First),
    Kept<&S::Profiler3>(u"Profiler3", u"False", TrueFalse, First),
    Kept<&V::mSkinEnable>(u"EnableSkin", u"0", OneZero, First, 5),
    Kept<&S::CurrentSkin>(u"CurrentSkin", u"", Text, First, 6),
    Kept<&V::DoNotResizeHeadshots>(u"DoNotResizeHeadshots", u"True", TrueFalse, First),
    Kept<&V::ShowMediaIcon>(u"ShowMediaIcon", u"True", TrueFalse, First),
    Kept<&V::AdditionalInfosInProfilerExport>(u"AdditionalInfosInProfilerExport", u"False", TrueFalse, First),
    Kept<&V::AwardsInProfilerExport>(u"AwardsInProfilerExport", u"False", TrueFalse, First),
    Kept<&S::TraceStrings>(u"TraceStrings", u"0", OneZero, First),
    Kept<&S::UseUserDefinedStrings>(u"UseUserDefinedStrings", u"0", OneZero, First),
    Kept<&V::UseProfilerColTypes>(u"UseProfilerColTypes", u"1", OneZero, First),
    Kept<&V::ShowToolbar>(u"ShowToolbar", u"False", TrueFalse, First),
    Kept<&V::mCrewTreeView>(u"CrewTreeView", u"True", TrueFalse, First, 2),
    Kept<&V::mShowFullBoxsetCredits>(u"ShowFullBoxsetCredits", u"False", TrueFalse, First, 3),
    Kept<&V::CastOrderColumns>(u"CastOrderColumns", u"1,2,3", Columns, First, 17),
    Kept<&V::CrewOrderColumns>(u"CrewOrderColumns", u"1,2,3", Columns, First, 18),
    Kept<&V::AppearancesOrderColumns>(u"AppearancesOrderColumns", u"1,2,3,4", Columns, First, 16),
    Kept<&V::IncludeMovies>(u"IncludeMovies", u"True", TrueFalse, Rest),
    Kept<&V::IncludeTV>(u"IncludeTV", u"True", TrueFalse, Rest),
    Kept<&V::IncludeAssignedEpisodesOnly>(u"IncludeAssignedEpisodesOnly", u"False", TrueFalse, Rest),
    Kept<&V::AutoLockEvents>(u"AutoLockEvents", u"False", TrueFalse, Rest),
    Kept<&V::RemoveBirthYears>(u"RemoveBirthYears", u"False", TrueFalse, Rest),
    Kept<&V::ShowProgressDetails>(u"ShowProgressDetails", u"True", TrueFalse, Rest),
    Kept<&V::ShowMoreProgressDetails>(u"ShowMoreProgressDetails", u"False", TrueFalse, Rest),
    Kept<&V::mShowFilter>(u"ShowFilter", u"True", TrueFalse, Rest, 7),
    Kept<&V::mHideUnassignedCrew>(u"HideUnassignedCrew", u"False", TrueFalse, Rest, 4),
    Kept<&V::AutoLock>(u"AutoLock", u"False", TrueFalse, Rest),
    Kept<&V::mReverseCredit>(u"ReverseCreditName", u"False", TrueFalse, Rest, 15),
    Kept<&V::HighlightHeadshots>(u"HighlightHeadshots", u"True", TrueFalse, Rest),
    BoxsetSetting(),
    Kept<&V::mcolorlist>(u"ColorCollectionList", u"True", TrueFalse, Rest, 11),
    Kept<&V::mUseCustomTitle>(u"UseCustomTitle", u"False", TrueFalse, Rest, 12),
    Kept<&V::mUseOriginalTitle>(u"UseOriginalTitle", u"False", TrueFalse, Rest, 13),
    Kept<&V::mShowDescription>(u"ShowDescription", u"False", TrueFalse, Rest, 14),
    Kept<&V::DescFormat>(u"DescFormat", u"1", Number, Rest),
    Bare(u"CoverPath", u"Images/", Folder),
    Bare(u"HeadshotPath", u"Images/Headshots", Folder),
    Kept<&V::LoanDue>(u"LoanDue", u"7", Number, Rest),
    Kept<&V::ShowLoanDueOnStartUp>(u"ShowLoanDueOnStartUp", u"1", OneZero, Rest),
    Kept<&V::mTVShows>(u"ViewTVShows", u"False", TrueFalse, Rest, 1),
    Kept<&V::LastTab>(u"LastTab", u"1", Number, Rest, 8),
    Kept<&V::TabColList>(u"TabColList", u"1", Number, Rest, 9),
    Kept<&V::LastSelectedItem>(u"LastSelectedItem", u"", Text, Rest, 19, u"Last selected profile on last close"),
    Kept<&V::ProfilesSortKey>(u"ProfilesSortKey", u"2", Number, Rest),
    Kept<&V::ProfilesSortOrder>(u"ProfilesSortOrder", u"0", Number, Rest),
    Kept<&V::IncludeInOwned>(u"IncludeInOwned", u"", Text, Rest),
    Kept<&V::ProgressWindowAutoClose>(u"ProgressWindowAutoClose", u"0", OneZero, Rest),
    Kept<&V::ProfileInfoLastTab>(u"ProfileInfoLastTab", u"1", Number, Rest),
    Kept<&V::SelectedUsers>(u"SelectedUsers", u"", Text, Rest),
    Kept<&V::EventTypes>(u"EventTypes", u"", Text, Rest),
    Bare(u"Schema", u""),
    Bare(u"Owner", u"", Text, u"Collection owner"),
    Bare(u"CrewMapping", u"", Text, u"Crew role mapping table for crew tree"),
    Bare(u"LastTVUpdate", u"0"),
    Bare(u"LastDataUpdate", u"0"),
    Bare(u"TVTimeStamp", u""),
    Bare(u"ExportTV_AllInfos", u"0", OneZero),
    Bare(u"EncryptedText", u""),
    Bare(u"HTML_AppendEdition", u""),
    Bare(u"HTML_ColTypesOrder", u"Owned"),
    Bare(u"HTML_CoverSource", u"1"),
    Bare(u"HTML_ExcludedColTypes", u""),
    Bare(u"HTML_ExportPath", u""),
    Bare(u"HTML_Filter", u""),
    Bare(u"HTML_GenerateCrosslinks", u"1", OneZero),
    Bare(u"HTML_GenerateEpisodeHTML", u"1", OneZero),
    Bare(u"HTML_MediaSkins", u""),
    Bare(u"HTML_Skin", u""),
    Bare(u"HTML_SkinEpisode", u""),
    Bare(u"HTML_SortByTitle", u"1", OneZero),
    Bare(u"HTML_UseCollectionType", u"1", OneZero),
    Bare(u"HTML_UseCustomTitle", u"0", OneZero),
    Bare(u"HTML_UseTitle", u""),
};

using Base = IniSetting::Base;

constexpr IniSetting kIniSettings[] = {
    {u"Main", u"DatabasePath", u"", Base::DataFolder},
    {u"Main", u"Debug", u"1"},
    {u"Main", u"LastDatabase", u"Database"},
    {u"Main", u"Version", u""},
    {u"Main", u"URLHeadshots", u"/dvdprofiler/Data/Headshots/", Base::DataServer},
    {u"Main", u"URLIMDb", u"/title/", Base::ImdbServer},
    {u"Main", u"URLDataUpdate", u"/dvdprofiler/Data", Base::DataServer},
    {u"Main", u"URLTVUpdate", u"/dvdprofiler/CastCrew", Base::DataServer},
    {u"Main", u"LastHeadshotsUpdate", u""},
    {u"Main", u"CollectionFile", u"/collection.xml", Base::DataFolder},
    {u"Main", u"EpisodeDivider", u". "},
    {u"Main", u"Scheme", u"n/a"},
    {u"SVNAudit", u"SVNExePath", u""},
    {u"SVNAudit", u"SVNAuditEnabled", u"False"},
    {u"SVNAudit", u"SVNAuditPath", u""},
    {u"SVNAudit", u"SVNTortProcExePath", u""},
    {u"Window", u"Height", u"11000"},
    {u"Window", u"Width", u"17000"},
    {u"Window", u"Top", u"200"},
    {u"Window", u"Left", u"200"},
    {u"Window", u"WindowState", u"0"},
    {u"Splitter", u"Splitter1", u"0.45"},
    {u"Splitter", u"Splitter2", u"0.55"},
    {u"Splitter", u"Splitter3", u"0.4"},
    {u"Splitter", u"Splitter4", u"0.5"},
    {u"Splitter", u"Splitter5", u"0.5"},
    {u"Splitter", u"Splitter6", u"0.3"},
    {u"GridLines", u"ListCollection", u"True"},
    {u"GridLines", u"ListCast", u"True"},
    {u"GridLines", u"ListCrew", u"True"},
    {u"GridLines", u"ListEpisodes", u"False"},
    {u"GridLines", u"ListAppearances", u"False"},
    {u"GridLines", u"MultiList", u"False"},
    {u"Settings", u"TraceTranslateableStringsToFile", u""},
    {u"Settings", u"IgnoreEpisodeError", u""},
    {u"Settings", u"ImportAllAdditionalInfos", u""},
};

constexpr const char16_t *kWindowSections[] = {
    u"ProfileInfo",
    u"Awards",
    u"SQLQueries",
    u"AssignEpisodes",
    u"CoverWindow",
    u"FilterTags",
    u"EditMultiUse",
    u"CrewMapping",
    u"ListViewWindow",
    u"EditSkin",
    u"EncryptionPad",
    // Those that an older program kept no place for.
    u"CrossLinks",
    u"ManageHeadshots",
    u"HeadshotImport",
    u"HeadshotTools",
    u"DropBox",
    u"HTMLExport",
};

} // namespace

std::span<const DbSetting> DbSettings() {
    return kDbSettings;
}

const DbSetting *FindDbSetting(QStringView key) {
    const auto *found =
        std::find_if(std::begin(kDbSettings), std::end(kDbSettings), [&](const DbSetting &s) { return key == s.key; });
    return found == std::end(kDbSettings) ? nullptr : found;
}

std::span<const IniSetting> IniSettings() {
    return kIniSettings;
}

QString ReadIniSetting(const Session &session, const char16_t *section, const char16_t *key) {
    const auto *setting = std::find_if(std::begin(kIniSettings), std::end(kIniSettings), [&](const IniSetting &s) {
        return QStringView(s.section) == section && QStringView(s.key) == key;
    });
    Q_ASSERT(setting != std::end(kIniSettings));
    QString preset = QString::fromUtf16(setting->preset);
    switch (setting->base) {
    case Base::None:
        break;
    case Base::DataFolder:
        preset = QDir::toNativeSeparators(session.DataFolder + preset);
        break;
    case Base::DataServer:
        preset.prepend(QStringView(kDataServer));
        break;
    case Base::ImdbServer:
        preset.prepend(QStringView(kImdbServer));
        break;
    }
    return GetINIString(session, QString::fromUtf16(section), QString::fromUtf16(key), preset);
}

void WriteIniSetting(const Session &session, const char16_t *section, const char16_t *key, const QString &value) {
    WriteINIString(session, QString::fromUtf16(section), QString::fromUtf16(key), value);
}

QString CoverHost() {
    return QString::fromUtf16(kCoverHost);
}

QString ContributionNotesPage(bool profiler3) {
    return QString::fromUtf16(profiler3 ? kNotesPage3 : kNotesPage);
}

std::span<const char16_t *const> WindowSections() {
    return kWindowSections;
}

bool IsWindowSection(QStringView section) {
    return std::any_of(std::begin(kWindowSections), std::end(kWindowSections),
                       [&](const char16_t *known) { return section == known; });
}

QList<int> ParseColumns(QStringView text, const QList<int> &preset) {
    QList<int> columns;
    for (const QStringView part : text.split(u',')) {
        const int column = part.trimmed().toInt();
        if (column < 1 || columns.contains(column)) {
            return preset;
        }
        columns.append(column);
    }
    const bool complete = std::all_of(columns.begin(), columns.end(), [&](int c) { return c <= columns.size(); });
    return complete && (preset.isEmpty() || preset.size() == columns.size()) ? columns : preset;
}

QString ColumnsText(const QList<int> &columns) {
    QStringList parts;
    for (const int column : columns) {
        parts.append(QString::number(column));
    }
    return parts.join(u',');
}

} // namespace ostrand
