#include "sql/Connection.h"

#include <array>
#include <cerrno>

#include <sqlite3.h>

namespace ostrand::sql {

namespace {

/// UTF-8 of a text; half a surrogate pair, which UTF-8 cannot hold, becomes the replacement character.
QByteArray ToUtf8(QStringView text) {
    if (text.isValidUtf16()) {
        return text.toUtf8();
    }
    QString copy = text.toString();
    for (qsizetype i = 0; i < copy.size(); ++i) {
        const bool pair = copy.at(i).isHighSurrogate() && i + 1 < copy.size() && copy.at(i + 1).isLowSurrogate();
        if (pair) {
            ++i;
        } else if (copy.at(i).isSurrogate()) {
            copy[i] = QChar(QChar::ReplacementCharacter);
        }
    }
    return copy.toUtf8();
}

/// What stands behind the last colon of SQLite's text, the `Table.Column` of a broken constraint.
QString Culprit(const QString &text) {
    return text.mid(text.lastIndexOf(u':') + 1).trimmed();
}

/// True for SQLite's words about a statement that goes beyond its limits.
bool IsTooMuch(const QString &text) {
    for (const char *words : {"parser stack overflow", "too many ", "Expression tree is too large", "at most 64 tables",
                              "Recursion limit", "string or blob too big"}) {
        if (text.contains(QLatin1String(words))) {
            return true;
        }
    }
    return false;
}

/// The fault of a function of ours: "\1<number>\1<text>".
std::optional<SqlError> FunctionFault(const QString &text) {
    if (!text.startsWith(QChar(1))) {
        return std::nullopt;
    }
    const qsizetype end = text.indexOf(QChar(1), 1);
    bool ok = false;
    const int number = end < 0 ? 0 : QStringView(text).mid(1, end - 1).toInt(&ok);
    if (!ok) {
        return std::nullopt;
    }
    return SqlError(ErrorCode(number), text.mid(end + 1));
}

SqlError MakeConstraintError(int extended, const QString &text) {
    switch (extended) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return {ErrorCode::DuplicateKey, QStringLiteral("The key is taken already: %1.").arg(Culprit(text))};
    case SQLITE_CONSTRAINT_NOTNULL:
        return {ErrorCode::NullNotAllowed, QStringLiteral("The field takes no Null: %1.").arg(Culprit(text))};
    default:
        return {ErrorCode::Internal, text};
    }
}

/// Some full disks show as faults of another kind; the index of the log fails only for want of room.
bool IsFull(sqlite3 *handle, int extended) {
    const bool system_fault = (extended & 0xff) == SQLITE_IOERR || (extended & 0xff) == SQLITE_CANTOPEN;
    return extended == SQLITE_IOERR_SHMSIZE || (system_fault && sqlite3_system_errno(handle) == ENOSPC);
}

SqlError MakeSqliteError(sqlite3 *handle) {
    if (handle == nullptr) {
        return {ErrorCode::Internal, QStringLiteral("No database is open.")};
    }
    const int extended = sqlite3_extended_errcode(handle);
    const QString text = QString::fromUtf8(sqlite3_errmsg(handle));
    switch (IsFull(handle, extended) ? SQLITE_FULL : extended & 0xff) {
    case SQLITE_FULL:
        return {ErrorCode::DiskFull, QStringLiteral("The disk is full; the database can't be written.")};
    case SQLITE_READONLY:
        return {ErrorCode::ReadOnly, QStringLiteral("The database is read-only; it can't be written.")};
    case SQLITE_CORRUPT:
        return {ErrorCode::Damaged, QStringLiteral("The database file is damaged.")};
    case SQLITE_NOTADB:
        return {ErrorCode::NotADatabase, QStringLiteral("The file is no database.")};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {ErrorCode::CannotLock, QStringLiteral("The database is being written by another application or "
                                                      "instance; it can't be locked.")};
    case SQLITE_INTERRUPT:
        return {ErrorCode::Interrupted, QStringLiteral("The statement was interrupted.")};
    case SQLITE_CANTOPEN:
        return {ErrorCode::CannotOpenDatabase, QStringLiteral("The database file can't be opened.")};
    case SQLITE_IOERR:
        return {ErrorCode::DiskError, QStringLiteral("The disk could not be read or written.")};
    case SQLITE_CONSTRAINT:
        return MakeConstraintError(extended, text);
    default:
        break;
    }
    if (auto fault = FunctionFault(text)) {
        return *fault;
    }
    if (IsTooMuch(text)) {
        return {ErrorCode::TooComplex, QStringLiteral("The statement is too complex.")};
    }
    return {ErrorCode::Internal, text};
}

/// Nearly every text is short and of ASCII, and needs no memory of its own on its way.
bool BindShortAscii(sqlite3_stmt *handle, int parameter, const QString &text) {
    constexpr qsizetype kShort = 256;
    if (text.size() > kShort) {
        return false;
    }
    std::array<char, kShort> bytes;
    char16_t all = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text.utf16()[i];
        all |= unit;
        bytes[size_t(i)] = char(unit);
    }
    if (all >= 0x80) {
        return false;
    }
    sqlite3_bind_text64(handle, parameter, bytes.data(), sqlite3_uint64(text.size()), SQLITE_TRANSIENT, SQLITE_UTF8);
    return true;
}

void BindText(sqlite3_stmt *handle, int parameter, const QString &text) {
    if (BindShortAscii(handle, parameter, text)) {
        return;
    }
    const QByteArray utf8 = ToUtf8(text);
    sqlite3_bind_text64(handle, parameter, utf8.constData(), sqlite3_uint64(utf8.size()), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

} // namespace

void RaiseSqliteError(sqlite3 *handle) {
    throw MakeSqliteError(handle);
}

void Statement::Finalizer::operator()(sqlite3_stmt *handle) const {
    sqlite3_finalize(handle);
}

void Statement::Bind(int parameter, const Value &value) {
    sqlite3_stmt *handle = handle_.get();
    switch (value.GetType()) {
    case Value::Type::Null:
        sqlite3_bind_null(handle, parameter + 1);
        break;
    case Value::Type::Integer:
        sqlite3_bind_int64(handle, parameter + 1, value.Integer());
        break;
    case Value::Type::Real:
        sqlite3_bind_double(handle, parameter + 1, value.Real());
        break;
    case Value::Type::Text:
        BindText(handle, parameter + 1, value.Text());
        break;
    }
}

bool Statement::Step() {
    const int result = sqlite3_step(handle_.get());
    if (result == SQLITE_ROW) {
        return true;
    }
    if (result == SQLITE_DONE) {
        return false;
    }
    const SqlError error = MakeSqliteError(sqlite3_db_handle(handle_.get()));
    Reset();
    throw error;
}

void Statement::Reset() {
    sqlite3_reset(handle_.get());
}

bool Statement::TakeRecompiled() {
    constexpr int kReset = 1;
    return sqlite3_stmt_status(handle_.get(), SQLITE_STMTSTATUS_REPREPARE, kReset) > 0;
}

int Statement::ColumnCount() const {
    return sqlite3_column_count(handle_.get());
}

Value Statement::Column(int column) const {
    // Each look at a column costs; the value may be read so because a connection stays in one thread.
    sqlite3_value *value = sqlite3_column_value(handle_.get(), column);
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return qint64(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_NULL:
        return {};
    default: {
        const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
        return QString::fromUtf8(text, sqlite3_value_bytes(value));
    }
    }
}

QString Statement::ColumnText(int column) const {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(handle_.get(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(handle_.get(), column));
}

qint64 Statement::ColumnInteger(int column) const {
    return sqlite3_column_int64(handle_.get(), column);
}

void Connection::Closer::operator()(sqlite3 *handle) const {
    // Lets statements that are still kept somewhere live until they are finalized.
    sqlite3_close_v2(handle);
}

Statement Connection::Prepare(QStringView sql) const {
    const QByteArray utf8 = ToUtf8(sql);
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(handle_.get(), utf8.constData(), int(utf8.size()) + 1, &statement, nullptr) != SQLITE_OK) {
        RaiseSqliteError(handle_.get());
    }
    return Statement(statement);
}

void Connection::Execute(QStringView sql) const {
    if (sqlite3_exec(handle_.get(), ToUtf8(sql).constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        RaiseSqliteError(handle_.get());
    }
}

Value Connection::Single(QStringView sql) const {
    Statement statement = Prepare(sql);
    return statement.Step() ? statement.Column(0) : Value();
}

int Connection::Changes() const {
    return sqlite3_changes(handle_.get());
}

bool Connection::HasMoved() const {
    int moved = 0;
    return sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

} // namespace ostrand::sql
