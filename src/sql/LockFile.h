// The file beside an open database that names the processes that hold it.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand::sql {

/// Stands in the lock file of a database from its making to its end. Each object is a holder of its own, also two in
/// one process. Holders that are gone without a word do not count and are cleaned away; the last one removes the file.
///
/// A line of the file is one holder: process id, start time of the process (which tells a process from a later one
/// with the same id), number of the holder within the process, number of the database's file, name of the program.
class LockFile {
public:
    /// Throws SqlError (CannotLock) when the file can't be written.
    explicit LockFile(const QString &database_path);
    ~LockFile();
    LockFile(const LockFile &) = delete;
    LockFile &operator=(const LockFile &) = delete;

    /// The path up to and including its last "." and "ldb".
    static QString PathFor(const QString &database_path);
    /// The living holders, each as "<program> (<process id>)".
    static QStringList Holders(const QString &database_path);
    /// True while a process other than this one holds the database.
    static bool IsHeldByOther(const QString &database_path);
    /// Throws CannotLock when a holder opened another file under that name, which was moved or removed since: the log
    /// beside it belongs to that one and would be taken for this one's.
    static void RequireSameFile(const QString &database_path);

private:
    QString path_;
    QByteArray line_;
};

} // namespace ostrand::sql
