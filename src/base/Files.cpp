#include "base/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <utility>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace ostrand {

namespace {

/// False where the disk does not take what was written; some tell so only now.
bool Sync([[maybe_unused]] const QSaveFile &file) {
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0 || (errno != EIO && errno != ENOSPC && errno != EDQUOT);
#else
    return true;
#endif
}

} // namespace

bool CommitFile(QSaveFile &file) {
    return file.flush() && Sync(file) && file.commit();
}

bool ReplaceFile(const QString &path, const QByteArray &content, QString *error) {
    bool given = false;
    return ReplaceFile(
        path, [&] { return std::exchange(given, true) ? QByteArray() : content; }, error);
}

bool ReplaceFile(const QString &path, const std::function<std::optional<QByteArray>()> &next_piece, QString *error) {
    QSaveFile file(path);
    bool written = file.open(QIODevice::WriteOnly);
    while (written) {
        const std::optional<QByteArray> piece = next_piece();
        if (!piece) {
            if (error != nullptr)
                error->clear();
            return false;
        }
        if (piece->isEmpty())
            break;
        written = file.write(*piece) == piece->size();
    }
    written = written && CommitFile(file);
    if (!written && error != nullptr)
        *error = file.errorString();
    return written;
}

bool IsEndless(const QString &path) {
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

std::optional<QByteArray> ReadFile(const QString &path) {
    QFile file(path);
    if (IsEndless(path) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return content;
}

bool MakeFolderPath(const QString &path) {
    return !path.isEmpty() && QDir().mkpath(path);
}

QString FindIgnoringCase(const QString &folder, const QString &name) {
    const bool is_path = name.contains(u'/') || name.contains(QDir::separator()) || name.contains(QChar(u'\0'));
    if (folder.isEmpty() || name.isEmpty() || is_path || name == QStringLiteral(".") || name == QStringLiteral(".."))
        return {};
    const QDir dir(folder);
    if (dir.exists(name))
        return dir.filePath(name);
    const QStringList entries =
        dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
    QStringList found;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(found),
                 [&](const QString &entry) { return entry.compare(name, Qt::CaseInsensitive) == 0; });
    if (found.isEmpty())
        return {};
    return dir.filePath(*std::min_element(found.begin(), found.end()));
}

QString WithSeparator(const QString &folder) {
    if (folder.isEmpty() || folder.endsWith(u'/') || folder.endsWith(QDir::separator()))
        return folder;
    return folder + QDir::separator();
}

} // namespace ostrand
