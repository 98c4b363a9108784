#include "services/SystemFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ostrand {

namespace {

#ifdef Q_OS_UNIX

/// Whether the path is a folder, not a link to one, that this user alone owns and may use.
bool IsPrivate(const QByteArray &path) {
    struct stat info {};
    return lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
           (info.st_mode & 077) == 0;
}

/// A folder of ours in the system's one, which everybody may write to. A name that somebody else has taken is left to
/// them.
QString PrivateFolder(const QString &system_temp) {
    QString name = system_temp + QStringLiteral("/OstrandApp-%1").arg(geteuid());
    const QByteArray path = QFile::encodeName(name);
    if (mkdir(path.constData(), 0700) == 0 || (errno == EEXIST && IsPrivate(path)))
        return name;
    QByteArray unique = path + "-XXXXXX";
    const char *made = mkdtemp(unique.data());
    return made != nullptr ? QFile::decodeName(unique) : QString();
}

QString AccountName() {
    const struct passwd *account = getpwuid(geteuid());
    return account != nullptr ? QString::fromLocal8Bit(account->pw_name) : qEnvironmentVariable("USER");
}

#else

QString PrivateFolder(const QString &system_temp) {
    return system_temp; // private to the user on the other systems
}

QString AccountName() {
    return qEnvironmentVariable("USERNAME");
}

#endif

} // namespace

SystemFolders::SystemFolders(const QString &system_temp) {
    temp_ = PrivateFolder(system_temp.isEmpty() ? QDir::tempPath() : system_temp);
    if (temp_.isEmpty())
        temp_ = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
}

QString SystemFolders::Documents() const {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return !documents.isEmpty() && QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString SystemFolders::Program() const {
    return QCoreApplication::applicationDirPath();
}

QStringList SystemFolders::Resources() const {
    // The second one stands beside a program that is not installed.
    return {Program(), Program() + QStringLiteral("/resources"),
            QDir::cleanPath(Program() + QStringLiteral("/../share/ostrand"))};
}

QString SystemFolders::UserName() const {
    return AccountName();
}

} // namespace ostrand
