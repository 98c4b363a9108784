#include "sql/DatabaseFile.h"

#include "sql/Collation.h"
#include "sql/DatabaseHeader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace ostrand::sql {

namespace {

constexpr int kBusyMilliseconds = 5000;

SqlError FileError(ErrorCode code, const QString &text, const QString &path) {
    return {code, text.arg(QDir::toNativeSeparators(path))};
}

void RequireWritable(const QString &path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isWritable()) {
        throw FileError(ErrorCode::ReadOnly, QStringLiteral("The file %1 is read-only."), path);
    }
    // The log and the lock file are made beside it.
    if (!QFileInfo(info.absolutePath()).isWritable()) {
        throw FileError(ErrorCode::ReadOnly, QStringLiteral("The folder %1 is read-only."), info.absolutePath());
    }
}

/// All that can be told of a file without touching it.
void RequireDatabase(const QString &path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        throw FileError(ErrorCode::CannotOpenDatabase, QStringLiteral("The file %1 doesn't exist."), path);
    }
    if (!info.isFile()) {
        throw FileError(ErrorCode::CannotOpenDatabase, QStringLiteral("%1 is no file."), path);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw FileError(ErrorCode::CannotOpenDatabase, QStringLiteral("The file %1 can't be read."), path);
    }
    const std::optional<DatabaseHeader> header = ReadDatabaseHeader(file.read(DatabaseHeader::kSize));
    if (!header) {
        throw FileError(ErrorCode::NotADatabase, QStringLiteral("The file %1 is no database."), path);
    }
    // Ours has its mark from its first write on, before there is a log.
    if (header->application_id != kApplicationId) {
        throw FileError(ErrorCode::NotADatabase, QStringLiteral("The file %1 belongs to another program."), path);
    }
    // A file that was cut off. With a log beside it, the pages that it lacks may stand there.
    const bool has_log = QFileInfo(info.canonicalFilePath() + QStringLiteral("-wal")).size() > 0;
    if (!has_log && file.size() < header->page_size * header->page_count) {
        throw FileError(ErrorCode::Damaged, QStringLiteral("The file %1 is damaged: its end is missing."), path);
    }
}

/// Opens without reading or writing anything yet.
Connection OpenHandle(const QString &path, const Registration &registration) {
    sqlite3 *handle = nullptr;
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    // A connection belongs to one thread, and what another one may call takes no lock of SQLite.
    const int result = sqlite3_open_v2(name.constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Connection connection(handle);
    if (result != SQLITE_OK) {
        RaiseSqliteError(handle);
    }
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_timeout(handle, kBusyMilliseconds);
    // A name in double quotes that nothing has must be a fault and no text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    // What a foreign file's schema calls is none of our functions; our triggers need none.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    registration(handle);
    return connection;
}

void SetUp(const Connection &connection) {
    connection.Execute(u"PRAGMA synchronous = NORMAL; PRAGMA foreign_keys = OFF; PRAGMA recursive_triggers = OFF; "
                       "PRAGMA legacy_alter_table = OFF; PRAGMA secure_delete = OFF; PRAGMA cache_size = -49152; "
                       "PRAGMA wal_autocheckpoint = 16384; PRAGMA temp_store = MEMORY");
}

void StartLog(const Connection &connection) {
    if (connection.Single(u"PRAGMA journal_mode = WAL").Text() != u"wal") {
        throw SqlError(ErrorCode::CannotLock,
                       QStringLiteral("The database is open in another application or instance; its log can't be "
                                      "started."));
    }
}

/// Builds the indexes anew when the order of texts has changed since they were made.
void RenewIndexes(const Connection &connection) {
    if (connection.Single(u"PRAGMA user_version").Integer() == kCollationVersion) {
        return;
    }
    connection.Execute(u"BEGIN IMMEDIATE");
    try {
        connection.Execute(u"REINDEX");
        connection.Execute(QStringLiteral("PRAGMA user_version = %1").arg(kCollationVersion));
        connection.Execute(u"COMMIT");
    } catch (const SqlError &) {
        sqlite3_exec(connection.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

void RequireWritableHandle(const Connection &connection, const QString &path) {
    if (sqlite3_db_readonly(connection.Handle(), "main") == 1) {
        throw FileError(ErrorCode::ReadOnly, QStringLiteral("The file %1 is read-only."), path);
    }
}

/// An empty file of its own, so that two creators never meet in one.
void ReserveFile(const QString &path) {
    const QFileInfo info(path);
    if (info.exists() || info.isSymLink()) {
        throw FileError(ErrorCode::DatabaseExists, QStringLiteral("The file %1 exists already."), path);
    }
    if (!QFileInfo(info.absolutePath()).isDir()) {
        throw FileError(ErrorCode::CannotOpenDatabase, QStringLiteral("The folder %1 doesn't exist."),
                        info.absolutePath());
    }
    RequireWritable(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        throw FileError(ErrorCode::CannotOpenDatabase, QStringLiteral("The file %1 can't be made."), path);
    }
}

void SyncToDisk(const QString &path) {
#ifdef Q_OS_UNIX
    QFile file(path);
    if (file.open(QIODevice::ReadWrite)) {
        ::fsync(file.handle());
    }
#else
    Q_UNUSED(path)
#endif
}

Connection FillNewFile(const QString &path, const Registration &registration) {
    Connection connection = OpenHandle(path, registration);
    // There is nothing to lose yet, so nothing waits for the disk.
    connection.Execute(u"PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY; PRAGMA page_size = 4096");
    connection.Execute(QStringLiteral("BEGIN; PRAGMA application_id = %1; PRAGMA user_version = %2; COMMIT")
                           .arg(kApplicationId)
                           .arg(kCollationVersion));
    StartLog(connection);
    SetUp(connection);
    return connection;
}

} // namespace

void RemoveNewFile(const QString &path) {
    for (const char *end : {"", "-wal", "-shm", "-journal"}) {
        QFile::remove(path + QString::fromLatin1(end));
    }
}

Connection CreateFile(const QString &path, const Registration &registration) {
    ReserveFile(path);
    try {
        return FillNewFile(path, registration);
    } catch (...) {
        RemoveNewFile(path);
        throw;
    }
}

Connection OpenFile(const QString &path, const Registration &registration) {
    RequireDatabase(path);
    RequireWritable(path);
    Connection connection = OpenHandle(path, registration);
    // Reads the schema, which tells what the header could not, before the first write.
    connection.Single(u"SELECT COUNT(*) FROM sqlite_schema");
    RequireWritableHandle(connection, path);
    SetUp(connection);
    StartLog(connection);
    RenewIndexes(connection);
    return connection;
}

void CompactFile(const QString &source, const QString &target, const Registration &registration) {
    RequireDatabase(source);
    const Connection connection = OpenHandle(source, registration);
    ReserveFile(target);
    try {
        Statement copy = connection.Prepare(u"VACUUM INTO ?");
        copy.Bind(0, QFileInfo(target).absoluteFilePath());
        copy.Step();
    } catch (...) {
        RemoveNewFile(target);
        throw;
    }
    SyncToDisk(target);
}

void CloseFile(Connection connection) noexcept {
    sqlite3 *handle = connection.Handle();
    if (handle != nullptr) {
        sqlite3_wal_checkpoint_v2(handle, "main", SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    }
}

} // namespace ostrand::sql
