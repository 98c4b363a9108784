// Creating, opening and compacting database files.
#include "database/DatabaseFunctions.h"

#include "audit/Audit.h"
#include "database/Schema.h"
#include "database/Upgrade.h"
#include "shell/Session.h"
#include "shell/Settings.h"
#include "sql/LockFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kOldestVersion = 32;

void Say(Session &session, MessageIcon icon, const QString &text, const QString &title = {}) {
    ShowMessage(session, {.text = text, .title = title, .icon = icon});
}

void SayFault(Session &session, const sql::SqlError &fault) {
    Trace(session, fault.Text(), kTraceError);
    Say(session, MessageIcon::Critical, fault.Text(), Translate(session, u"Cannot open database"_s));
}

bool IsOpenHere(const Session &session, const QString &path) {
    return session.Database && QFileInfo(session.Database->Path()) == QFileInfo(path);
}

void CreateTables(Session &session) {
    const auto create = [&session](const auto &statements) {
        for (const auto &statement : statements) {
            session.Database->Execute(statement.CreateStatement());
        }
    };
    create(TablesBeforeVersion());
    session.Database->Execute(
        u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Schema', '%1')"_s.arg(kSchemaVersion));
    create(TablesAfterVersion());
    CreateProfileTables(session);
    CreateIndexes(session);
    MarkYesNoColumns(session);
}

/// What a file from before the settings table lacks to be told as the oldest version.
void CreateFirstSettings(Session &session) {
    session.Database->Execute(
        u"CREATE TABLE DbInfo (InfoName varchar PRIMARY KEY, InfoValue varchar, Comment varchar)");
    WriteINIString(session, u"Main"_s, u"Scheme"_s, u"n/a"_s);
    session.Database->Execute(
        u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Schema', '%1')"_s.arg(kOldestVersion));
    session.Database->Execute(
        u"CREATE TABLE AdditionalInfo (ProfileID varchar NOT NULL, InfoName varchar, InfoValue varchar)");
}

int ReadVersion(Session &session) {
    const QString version = ReadDbInfo(session, u"Schema"_s, {});
    if (version.isEmpty()) {
        CreateFirstSettings(session);
        return kOldestVersion;
    }
    return int(version.toDouble());
}

void WidenValues(Session &session) {
    const sql::TableInfo *settings = session.Database->FindTable(u"DbInfo");
    const sql::ColumnInfo *value = settings ? settings->FindColumn(u"InfoValue") : nullptr;
    if (value && value->kind == sql::Kind::Text) {
        session.Database->Execute(u"ALTER TABLE DbInfo ALTER COLUMN InfoValue memo");
    }
}

enum class Standing { Present, Newer, NotUpgraded };

Standing BringToPresentVersion(Session &session) {
    const int version = ReadVersion(session);
    if (version > kSchemaVersion) {
        return Standing::Newer;
    }
    if (version < kSchemaVersion && !UpgradeDatabase(session, version)) {
        return Standing::NotUpgraded;
    }
    WidenValues(session);
    return Standing::Present;
}

/// The same as one durable whole that is taken back where it does not come to its end.
Standing BringToPresentVersionOrLeave(Session &session) {
    session.Database->Flush();
    const Standing standing = [&session] {
        sql::Database::Bracket bracket(*session.Database);
        try {
            const Standing reached = BringToPresentVersion(session);
            if (reached == Standing::NotUpgraded) {
                bracket.Abandon();
            }
            return reached;
        } catch (const sql::SqlError &) {
            bracket.Abandon();
            throw;
        }
    }();
    session.Database->Flush(); // a disk that is full shows here
    return standing;
}

template <typename Hook, typename... Arguments>
void Call(const Hook &hook, Arguments... arguments) {
    if (hook) {
        hook(arguments...);
    }
}

/// True when the open database stands at the present version.
bool Prepare(Session &session) {
    switch (BringToPresentVersionOrLeave(session)) {
    case Standing::Present:
        return true;
    case Standing::Newer:
        session.DatabaseTooNew = true;
        Call(session.window.EnableDBMenues, false);
        Say(session, MessageIcon::Critical,
            Translate(session, u"Database version too high!"_s) + "\r\n"_L1 +
                Translate(session, u"Please update the program with the latest version."_s));
        return false; // the file stays open
    case Standing::NotUpgraded:
        session.Database.reset(); // so that nothing more is written to the old file
        return false;
    }
    return false;
}

void LoadCrewRoles(Session &session) {
    QString mapping = ReadDbInfo(session, u"CrewMapping"_s, {});
    if (mapping.isEmpty()) {
        mapping = CrewRoleMaps::DefaultMapping();
        WriteDbInfo(session, u"CrewMapping"_s, mapping, u"Crew role mapping table for crew tree"_s);
    }
    session.CrewRoles.Load(mapping);
}

void HandOver(Session &session, const QFileInfo &file) {
    LoadDatabaseSettings(session);
    Call(session.window.MenuStrings);
    Call(session.window.EnableDBMenues, true);
    session.DatabaseFile = QDir::toNativeSeparators(file.absoluteFilePath());
    session.DatabaseName = file.completeBaseName();
    Audit::AuditDatabaseOpened(session);
    Call(session.window.GetLastSelectedItem);
    if (ReadDbInfoFlag(session, u"ShowLoanDueOnStartUp"_s, true)) {
        Call(session.window.ShowTitlesDue);
    }
    session.Profiler3 = ReadDbInfoFlag(session, u"Profiler3"_s, false);
    session.DatabasePath = QDir::toNativeSeparators(file.absolutePath());
    WriteINIString(session, u"Main"_s, u"DatabasePath"_s, session.DatabasePath);
}

/// Before another database takes the place of the open one, whose closing tells no faults.
void FlushOpenDatabase(Session &session) {
    if (session.Database) {
        session.Database->Flush();
    }
}

void OpenFile(Session &session, const QString &path) {
    FlushOpenDatabase(session);
    if (IsOpenHere(session, path)) {
        session.Database.reset();
    }
    auto opened = sql::Database::Open(path, DatabaseEnvironment(session));
    session.Database = std::move(opened);
    session.DatabaseTooNew = false;
}

[[noreturn]] void RaiseCopyFault(const QString &path) {
    throw sql::SqlError(sql::ErrorCode::CannotOpenDatabase, u"The file '%1' cannot be written."_s.arg(path));
}

/// Puts a compact copy of `path` in its place.
void ReplaceByCompactCopy(Session &session, const QString &path) {
    const QString original = path + u"_bak"_s;
    const QString compact = path + u"_new"_s;
    // A crash may have left a log beside the file; opening and closing takes it in, so that the copy is whole.
    sql::Database::Open(path, DatabaseEnvironment(session)).reset();
    QFile::remove(original);
    QFile::remove(compact);
    if (!QFile::copy(path, original)) {
        QFile::remove(original);
        RaiseCopyFault(original);
    }
    try {
        sql::Database::Compact(original, compact);
    } catch (const sql::SqlError &) {
        QFile::remove(compact);
        QFile::remove(original);
        throw;
    }
    // Renaming over the old file deletes it and leaves no moment without one.
    std::error_code error;
    std::filesystem::rename(compact.toStdU16String(), path.toStdU16String(), error);
    QFile::remove(original);
    if (error) {
        QFile::remove(compact);
        RaiseCopyFault(path);
    }
}

bool TraceResult(Session &session, const QString &routine, bool result) {
    Trace(session, routine + (result ? u": True"_s : u": False"_s), kTraceExit);
    return result;
}

bool New(Session &session, const QString &path) {
    if (QFileInfo::exists(path)) {
        Say(session, MessageIcon::Warning, Translate(session, u"Database with this name already exists!"_s));
        return false;
    }
    try {
        CreateCollectionDatabase(session, path);
        if (!OpenCollectionDatabase(session, path)) {
            return false;
        }
        WriteDbInfo(session, u"Owner"_s, session.services.folders.UserName(), u"Collection owner"_s);
        session.CoverPath = QDir::toNativeSeparators(session.DataFolder + u"/Images/"_s);
        session.Profiler3 = true;
        WriteDbInfo(session, u"Profiler3"_s, u"True"_s);
    } catch (const sql::SqlError &fault) {
        SayFault(session, fault);
        return false;
    }
    return true;
}

bool Open(Session &session, const QString &path) {
    session.DatabaseName.clear();
    const QFileInfo file(path);
    if (!file.isFile()) {
        Say(session, MessageIcon::Critical, Translate(session, u"Databasefile does not exist!"_s));
        return false;
    }
    bool opened = false;
    try {
        OpenFile(session, path);
        opened = true;
        if (!Prepare(session)) {
            return false;
        }
        LoadCrewRoles(session);
        HandOver(session, file);
    } catch (const sql::SqlError &fault) {
        if (opened) {
            session.Database.reset(); // nobody works on a file that is not in order
            Call(session.window.EnableDBMenues, false);
        }
        SayFault(session, fault);
        return false;
    }
    return true;
}

bool Compact(Session &session, const QString &path) {
    if (IsDatabaseBusy(session, path) || !QFileInfo(path).isFile()) {
        return false;
    }
    try {
        ReplaceByCompactCopy(session, path);
        return true;
    } catch (const sql::SqlError &fault) {
        SayFault(session, fault);
        return false;
    }
}

} // namespace

sql::Environment DatabaseEnvironment(Session &session) {
    Services &services = session.services;
    sql::Environment environment;
    if (!session.DecimalSeparator.isEmpty()) {
        environment.decimal_mark = session.DecimalSeparator.front();
    }
    environment.now = [&services] { return services.clock.Now(); };
    environment.random = [&services] { return services.random.Next(); };
    return environment;
}

void CreateCollectionDatabase(Session &session, const QString &path) {
    Trace(session, u"CreateCollectionDatabase(%1)"_s.arg(path), kTraceEntry);
    FlushOpenDatabase(session);
    auto created = sql::Database::Create(path, DatabaseEnvironment(session));
    session.Database = std::move(created);
    session.DatabaseTooNew = false;
    try {
        {
            const sql::Database::Bracket bracket(*session.Database);
            CreateTables(session);
        }
        session.Database->Flush(); // a disk that is full shows here
    } catch (const sql::SqlError &) {
        session.Database.reset();
        for (const QLatin1StringView end : {""_L1, "-wal"_L1, "-shm"_L1}) {
            QFile::remove(path + end);
        }
        throw;
    }
}

bool NewCollectionDatabase(Session &session, const QString &path) {
    Trace(session, u"NewCollectionDatabase(%1)"_s.arg(path), kTraceEntry);
    return TraceResult(session, u"NewCollectionDatabase"_s, New(session, path));
}

bool OpenCollectionDatabase(Session &session, const QString &path) {
    Trace(session, u"OpenCollectionDatabase(%1)"_s.arg(path), kTraceEntry);
    return TraceResult(session, u"OpenCollectionDatabase"_s, Open(session, path));
}

bool CompactCollectionDatabase(Session &session, const QString &path) {
    Trace(session, u"CompactCollectionDatabase(%1)"_s.arg(path), kTraceEntry);
    return TraceResult(session, u"CompactCollectionDatabase"_s, Compact(session, path));
}

bool IsDatabaseBusy(Session &session, const QString &path) {
    Trace(session, u"IsDatabaseBusy(%1)"_s.arg(path), kTraceEntry);
    if (!IsOpenHere(session, path) && !sql::LockFile::IsHeldByOther(path)) {
        return TraceResult(session, u"IsDatabaseBusy"_s, false);
    }
    Say(session, MessageIcon::Warning,
        Translate(session, u"Database seems to be open in another application or instance"_s) + "\r\n"_L1 +
            Translate(session, u"Please close all open instances first"_s),
        Translate(session, u"Open database connection"_s));
    return TraceResult(session, u"IsDatabaseBusy"_s, true);
}

} // namespace ostrand
