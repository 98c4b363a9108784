// The program's state: one object, made in main and handed to every routine that needs it.
#pragma once

#include "base/TraceLog.h"
#include "database/CrewRoleMaps.h"
#include "platform/Services.h"
#include "shell/Progress.h"
#include "shell/ViewState.h"
#include "sql/Database.h"

#include <QMap>
#include <QString>

#include <functional>
#include <memory>

namespace ostrand {

class InstanceMarker;
class ListTable;

/// What Settings.ini tells of the audit trail.
struct AuditSettings {
    QString SVNExePath; ///< in double quotes when there is one
    bool SVNAuditEnabled = false;
    QString SVNAuditPath;
    QString SVNTortProcExePath; ///< empty while the trail is off
    /// mShowAuditTrail and mSVNAuditTrailDatabase are shown.
    bool menus_shown = false;
};

/// How far the running command files are.
struct CommandFileState {
    /// The files nest too deep: all of them end.
    bool abandoned = false;
    int depth = 0;
};

/// The members keep the names by which the whole program knows its state. Paths carry no trailing separator except
/// the cover and headshot folders, which always do.
struct Session {
    explicit Session(Services &services);
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Services &services;
    TraceLog trace;
    frmProgress progress;
    ViewState view;

    /// Null until a database is open.
    std::unique_ptr<sql::Database> Database;
    /// The open database comes from a newer program, and this one keeps its settings out of it.
    bool DatabaseTooNew = false;
    QString DatabaseFile;
    QString DatabaseName;

    QString TempFolder;
    QString DataFolder;
    QString ProgramFolder;
    QString SettingsPath;
    QString CoverPath;
    QString HeadshotPath;

    QString AppVersion;
    bool StartingUp = false;
    bool ShowFrontCover = true;
    QString CurrentProfileID;
    bool CurrentIsEpisode = false;
    QString CurrentSeriesID;
    QString LocalLanguage;
    QString AlternateLocalLanguage;
    bool UseUserDefinedStrings = false;
    bool TraceStrings = false;
    QString DecimalSeparator;
    QString LongDateFormat;
    QString CurrentSkin;
    bool Profiler3 = false;
    QMap<int, QString> CountryNames;
    CrewRoleMaps CrewRoles;
    /// The user chose to end the program inside a routine. Whoever called it ends the program, without asking or
    /// showing anything more.
    bool EndProgram = false;

    /// Folder offered for databases.
    QString DatabasePath;
    QString URLHeadshots;
    QString URLIMDb;
    QString TraceTranslateableStringsToFile;
    AuditSettings audit;
    CommandFileState commands;
    /// Keeps the temp folder while this program runs.
    std::shared_ptr<InstanceMarker> instance;

    /// What the main window does when data changed under it; set by the window, empty without one.
    struct WindowHooks {
        std::function<void(bool)> EnableDBMenues;
        std::function<void()> MenuStrings;
        std::function<void()> LoadDatabaseSettings;
        std::function<void()> SaveDatabaseSettings;
        std::function<void()> GetLastSelectedItem;
        std::function<void()> ReloadTitles;
        std::function<void()> ShowTitlesDue;
        /// Steps of the start and the end that only a window can do.
        std::function<void()> ShowAuditMenus;
        std::function<void()> ShowSplash;
        std::function<void()> UnloadSplash;
        std::function<void()> ShowBlankPage;
        std::function<void()> ShowBaseCaption;
        /// Places the window; `reset` puts it to its first place and forgets the splitters.
        std::function<void(bool reset)> Layout;
        std::function<void()> ApplyGridLines;
        std::function<void()> TranslatePanels;
        /// Lets the user choose a database; one is open afterwards, or the program ends.
        std::function<void()> ChooseDatabase;
        std::function<void()> WriteGeometry;
        /// The settings window stored its entries: tool bar, fonts and tabs follow.
        std::function<void()> SettingsStored;
        /// Shows a table in a list window of its own.
        std::function<void(std::unique_ptr<ListTable>)> ShowListView;
    };
    WindowHooks window;
};

/// Writes a line of the trace log; levels 1 error, 2 entry, 4 exit, 16 information.
void Trace(const Session &session, const QString &message, int level);

/// A settings key of Settings.ini.
QString GetINIString(const Session &session, const QString &section, const QString &key, const QString &preset);
void WriteINIString(const Session &session, const QString &section, const QString &key, const QString &value);

/// The text to show for an English text, and back.
QString Translate(Session &session, const QString &text, bool reverse = false);
QString ReverseTranslate(Session &session, const QString &text, bool force = false);

/// A message box; the caller has translated its texts.
MessageAnswer ShowMessage(Session &session, const Message &message);

} // namespace ostrand
