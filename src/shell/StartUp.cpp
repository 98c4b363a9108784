#include "shell/StartUp.h"

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "shell/CommandFile.h"
#include "shell/InstanceMarker.h"
#include "shell/Session.h"
#include "shell/Settings.h"
#include "shell/SettingsTable.h"
#include "skin/InstallSkins.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cmath>

namespace ostrand {

namespace {

QString Below(const QString &folder, const char16_t *name) {
    return folder + QDir::separator() + QString::fromUtf16(name);
}

bool ReadTruth(const Session &session, const char16_t *section, const char16_t *key, bool preset) {
    const QString text = ReadIniSetting(session, section, key).trimmed();
    const auto is = [&](const char *word) { return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0; };
    return is("True") || is("1") || is("-1") || (preset && !is("False") && !is("0"));
}

/// Does a step of the window, where there is one.
template <typename Hook, typename... Arguments>
void Call(const Hook &hook, Arguments... arguments) {
    if (hook) {
        hook(arguments...);
    }
}

void MakeFolders(Session &session) {
    MakeFolderPath(session.TempFolder);
    session.instance = std::make_shared<InstanceMarker>(session.TempFolder);
    MakeFolderPath(session.DataFolder);
}

void MigrateSettingsFile(Session &session) {
    const QString beside_program = Below(session.ProgramFolder, u"Settings.ini");
    if (!QFile::exists(session.SettingsPath) && QFile::exists(beside_program)) {
        // Older versions kept it beside the program file.
        QFile::copy(beside_program, session.SettingsPath);
        QFile::setPermissions(session.SettingsPath,
                              QFile::permissions(session.SettingsPath) | QFile::ReadOwner | QFile::WriteOwner);
    }
}

void StartTrace(Session &session) {
    session.trace.Mask = ParseTraceMask(ReadIniSetting(session, u"Main", u"Debug"));
    WriteIniSetting(session, u"Main", u"Debug", TraceMaskText(session.trace.Mask));
    if (session.trace.Mask & kTraceFresh) {
        QFile::remove(session.trace.path);
    }
}

/// Reads a setting and writes it back, so that a first run leaves a complete file to edit by hand.
QString ReadAndKeep(const Session &session, const char16_t *section, const char16_t *key) {
    const QString value = ReadIniSetting(session, section, key);
    WriteIniSetting(session, section, key, value);
    return value;
}

void ReadAuditSettings(Session &session) {
    AuditSettings &audit = session.audit;
    audit.SVNExePath = ReadAndKeep(session, u"SVNAudit", u"SVNExePath");
    if (!audit.SVNExePath.isEmpty()) {
        audit.SVNExePath = u'"' + audit.SVNExePath + u'"';
    }
    audit.SVNAuditEnabled = ReadTruth(session, u"SVNAudit", u"SVNAuditEnabled", false);
    WriteIniSetting(session, u"SVNAudit", u"SVNAuditEnabled", TruthText(audit.SVNAuditEnabled));
    audit.SVNAuditPath = ReadAndKeep(session, u"SVNAudit", u"SVNAuditPath");
    // Written back even while the trail is off: the user's viewer must not get lost by that.
    const QString viewer = ReadAndKeep(session, u"SVNAudit", u"SVNTortProcExePath");
    audit.SVNTortProcExePath = audit.SVNAuditEnabled ? viewer : QString();
    audit.menus_shown = audit.SVNAuditEnabled && QFileInfo(viewer).isFile();
}

constexpr struct {
    const char16_t *key;
    bool ViewState::GridLines::*shown;
} kGridLines[] = {
    {u"ListCollection", &ViewState::GridLines::ListCollection},
    {u"ListEpisodes", &ViewState::GridLines::ListEpisodes},
    {u"ListCast", &ViewState::GridLines::ListCast},
    {u"ListCrew", &ViewState::GridLines::ListCrew},
    {u"ListAppearances", &ViewState::GridLines::ListAppearances},
};

void ReadGridLines(Session &session) {
    for (const auto &row : kGridLines) {
        bool &shown = session.view.grid_lines.*row.shown;
        shown = ReadTruth(session, u"GridLines", row.key, shown);
    }
}

void WriteInstallationSettings(Session &session) {
    WriteIniSetting(session, u"Main", u"LastDatabase", session.DatabaseFile);
    WriteIniSetting(session, u"Main", u"URLHeadshots", session.URLHeadshots);
    WriteIniSetting(session, u"Settings", u"TraceTranslateableStringsToFile", session.TraceTranslateableStringsToFile);
    for (const auto &row : kGridLines) {
        WriteIniSetting(session, u"GridLines", row.key, TruthText(session.view.grid_lines.*row.shown));
    }
}

/// Closing a database tells no faults: what cannot be made durable is told here.
void SaveDatabase(Session &session) {
    if (!session.Database) {
        return;
    }
    try {
        SaveDatabaseSettings(session);
        session.Database->Flush();
    } catch (const sql::SqlError &error) {
        Trace(session, QStringLiteral("CloseViewer: ") + error.Text(), kTraceError);
        ShowMessage(session, {.text = error.Text(), .title = {}, .icon = MessageIcon::Critical});
    }
}

} // namespace

CommandLine ReadCommandLine(QString text) {
    CommandLine line;
    const bool database = text.contains(QStringLiteral(".mdb"));
    text.remove(u'"');
    (database ? line.database : line.command_file) = text.trimmed();
    return line;
}

std::uint32_t ParseTraceMask(const QString &text) {
    constexpr std::uint32_t kDefault = 1;
    bool ok = false;
    if (text.startsWith(QStringLiteral("0x"))) {
        const std::uint32_t mask = QStringView(text).mid(2).trimmed().toUInt(&ok, 16);
        return ok ? mask : kDefault;
    }
    const double number = text.trimmed().toDouble(&ok);
    if (!ok || !(number > -2147483649.0 && number < 4294967296.0)) {
        return kDefault;
    }
    return std::uint32_t(std::int64_t(std::nearbyint(number)));
}

QString TraceMaskText(std::uint32_t mask) {
    return QStringLiteral("0x") + QString::number(mask, 16).toUpper();
}

CommandLine PrepareStartUp(Session &session, const QString &command_line) {
    session.StartingUp = true;
    const bool layout_reset = session.services.keyboard.CtrlHeld();
    MakeFolders(session);
    MigrateSettingsFile(session);
    session.DatabasePath = ReadIniSetting(session, u"Main", u"DatabasePath");
    StartTrace(session);
    ReadAuditSettings(session);
    Call(session.window.ShowAuditMenus);
    Call(session.window.ShowSplash);
    Call(session.window.EnableDBMenues, false);
    session.DatabaseFile = ReadIniSetting(session, u"Main", u"LastDatabase");
    CommandLine line;
    if (!command_line.trimmed().isEmpty()) {
        line = ReadCommandLine(command_line);
        if (!line.database.isEmpty()) {
            session.DatabaseFile = line.database;
        }
    }
    Call(session.window.ShowBlankPage);
    InstallSkins(session);
    Call(session.window.ShowBaseCaption);
    session.URLHeadshots = ReadIniSetting(session, u"Main", u"URLHeadshots");
    session.TraceTranslateableStringsToFile = ReadIniSetting(session, u"Settings", u"TraceTranslateableStringsToFile");
    Call(session.window.Layout, layout_reset);
    session.ShowFrontCover = true;
    if (!layout_reset) {
        ReadGridLines(session);
    }
    Call(session.window.ApplyGridLines);
    MakeFolderPath(Below(session.DataFolder, u"Images"));
    Call(session.window.TranslatePanels);
    WriteIniSetting(session, u"Main", u"Version", session.AppVersion);
    return line;
}

bool OpenOrRun(Session &session, const CommandLine &command_line) {
    if (!command_line.command_file.isEmpty()) {
        RunCommandFile(session, command_line.command_file);
        return true;
    }
    if (!session.window.ChooseDatabase) {
        return OpenCollectionDatabase(session, session.DatabaseFile);
    }
    // A missing file is no fault here: a first start has none.
    if (!QFileInfo::exists(session.DatabaseFile) || !OpenCollectionDatabase(session, session.DatabaseFile)) {
        if (!session.EndProgram) {
            session.window.ChooseDatabase();
        }
    }
    return session.Database != nullptr;
}

void FinishStartUp(Session &session) {
    Call(session.window.UnloadSplash);
    // The second of two calls at a normal start: opening a database shows the titles due too. Deliberate.
    if (session.Database && session.view.ShowLoanDueOnStartUp && session.window.ShowTitlesDue) {
        session.window.ShowTitlesDue();
    }
    session.StartingUp = false;
    Trace(session, QStringLiteral("frmMain_Load()"), kTraceExit);
}

void CloseViewer(Session &session) {
    Trace(session, QStringLiteral("CloseViewer()"), kTraceEntry);
    session.progress.Close();
    if (!session.SettingsPath.isEmpty()) {
        WriteInstallationSettings(session);
        SaveDatabase(session);
        Call(session.window.WriteGeometry);
        session.Database.reset();
    }
    if (session.instance) {
        session.instance->LeaveAndClean();
        session.instance.reset();
    }
    Trace(session, QStringLiteral("CloseViewer()"), kTraceExit);
}

} // namespace ostrand
