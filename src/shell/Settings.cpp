#include "shell/Settings.h"

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"

#include <QDir>

namespace ostrand {

namespace {

void LoadLanguages(Session &session) {
    const QString local = QStringLiteral("LocalLanguage");
    session.LocalLanguage = ReadDbInfo(session, local, {});
    if (session.LocalLanguage.isEmpty()) {
        session.LocalLanguage = LanguageOfSystem(session.services.locale.DefaultLanguage());
        WriteDbInfo(session, local, session.LocalLanguage);
    }
    const DbSetting &alternate = *FindDbSetting(u"AlternateLocalLanguage");
    session.AlternateLocalLanguage = ReadDbInfo(session, alternate.Key(), alternate.Preset());
    WriteDbInfo(session, alternate.Key(), session.AlternateLocalLanguage);
}

void LoadStep(Session &session, SettingStep step) {
    for (const DbSetting &setting : DbSettings()) {
        if (setting.step == step && setting.load) {
            setting.load(session, setting);
        }
    }
}

void LoadImdbUrl(Session &session) {
    session.URLIMDb = ReadIniSetting(session, u"Main", u"URLIMDb");
    WriteIniSetting(session, u"Main", u"URLIMDb", session.URLIMDb);
}

/// A folder setting; its default lies in the data folder.
QString ReadFolder(Session &session, const DbSetting &setting) {
    const QString folder = ReadDbInfo(session, setting.Key(), {});
    return folder.isEmpty() ? QDir::toNativeSeparators(session.DataFolder + u'/' + setting.Preset()) : folder;
}

void LoadFolders(Session &session) {
    session.CoverPath = WithSeparator(ReadFolder(session, *FindDbSetting(u"CoverPath")));
    const DbSetting &headshot = *FindDbSetting(u"HeadshotPath");
    const QString folder = ReadFolder(session, headshot);
    WriteDbInfo(session, headshot.Key(), folder);
    session.HeadshotPath = WithSeparator(folder);
    MakeFolderPath(session.HeadshotPath);
}

void EnsureCoverFolder(Session &session) {
    if (QDir(session.CoverPath).exists()) {
        return;
    }
    session.CoverPath = WithSeparator(QDir::toNativeSeparators(session.DataFolder + QStringLiteral("/Images/Covers")));
    MakeFolderPath(session.CoverPath);
    WriteDbInfo(session, QStringLiteral("CoverPath"), session.CoverPath);
}

} // namespace

QString LanguageOfSystem(const QString &system_language) {
    static constexpr struct {
        const char16_t *primary;
        const char16_t *language;
    } kLanguages[] = {{u"de", u"de-DE"}, {u"es", u"es-ES"}, {u"fr", u"fr-FR"}, {u"nl", u"nl-NL"}, {u"pt", u"pt-PT"}};
    const qsizetype end = std::max<qsizetype>(system_language.indexOf(u'-'), system_language.indexOf(u'_'));
    const QStringView primary = QStringView(system_language).left(end < 0 ? system_language.size() : end);
    for (const auto &row : kLanguages) {
        if (primary.compare(QStringView(row.primary), Qt::CaseInsensitive) == 0) {
            return QString::fromUtf16(row.language);
        }
    }
    return QStringLiteral("en-US");
}

int ClampTab(int tab, int count) {
    return tab < 1 || tab > count ? 1 : tab;
}

void LoadImageFolders(Session &session) {
    LoadFolders(session);
    EnsureCoverFolder(session);
}

void LoadDatabaseSettings(Session &session) {
    Trace(session, QStringLiteral("LoadDatabaseSettings()"), kTraceEntry);
    LoadLanguages(session);
    LoadStep(session, SettingStep::First);
    LoadImdbUrl(session);
    LoadStep(session, SettingStep::Rest);
    LoadFolders(session);
    if (session.window.LoadDatabaseSettings) {
        session.window.LoadDatabaseSettings();
    }
    EnsureCoverFolder(session);
    Trace(session, QStringLiteral("LoadDatabaseSettings()"), kTraceExit);
}

void SaveDatabaseSettings(Session &session) {
    Trace(session, QStringLiteral("SaveDatabaseSettings()"), kTraceEntry);
    if (!session.Database || session.DatabaseTooNew) {
        return;
    }
    if (session.window.SaveDatabaseSettings) {
        session.window.SaveDatabaseSettings();
    }
    std::vector<const DbSetting *> saved;
    for (const DbSetting &setting : DbSettings()) {
        if (setting.save_order > 0) {
            saved.push_back(&setting);
        }
    }
    std::sort(saved.begin(), saved.end(),
              [](const DbSetting *a, const DbSetting *b) { return a->save_order < b->save_order; });
    for (const DbSetting *setting : saved) {
        if (setting->Key() == u"AppearancesOrderColumns" && session.view.panel_mode != PanelMode::Appearances) {
            continue;
        }
        QString value = setting->save(session, *setting);
        if (setting->Key() == u"LastSelectedItem") {
            value = value.section(u'|', 0, 0); // rows of one profile tell themselves apart behind the "|"
        }
        WriteDbInfo(session, setting->Key(), value, QString::fromUtf16(setting->comment));
    }
    Trace(session, QStringLiteral("SaveDatabaseSettings()"), kTraceExit);
}

QString TruthText(bool value) {
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

bool IsTrueText(const QString &text) {
    return text.compare(QStringLiteral("True"), Qt::CaseInsensitive) == 0;
}

} // namespace ostrand
