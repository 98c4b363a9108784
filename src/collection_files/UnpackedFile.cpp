#include "collection_files/UnpackedFile.h"

#include "base/Files.h"
#include "shell/Session.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ostrand {

ArchiveTools ArchiveToolsOf(Session &session) {
    return {.processes = session.services.processes,
            .folders = session.services.folders,
            .pump = &session.services.pump,
            .trace = [&session](const QString &message, int level) { Trace(session, message, level); }};
}

bool IsArchivePath(const QString &path) {
    return QFileInfo(path).suffix().compare(u"7z"_s, Qt::CaseInsensitive) == 0;
}

UnpackedFile::UnpackedFile(Session &session, const QString &path, const QString &extension) : path_(path) {
    if (!IsArchivePath(path)) {
        return;
    }
    // A folder of its own: what an earlier run left would be taken for the content, and an archive may hold anything.
    folder_ = QDir(session.TempFolder).filePath(u"unpacked"_s);
    QDir(folder_).removeRecursively();
    QDir().mkpath(folder_);
    const QString name = QFileInfo(path).completeBaseName() + u'.' + extension;
    path_ = QDir(folder_).filePath(name);
    if (!QFileInfo(path).isFile()) {
        return;
    }
    Extract7z(ArchiveToolsOf(session), QFileInfo(path).absoluteFilePath(), folder_ + QDir::separator());
    if (const QString found = FindIgnoringCase(folder_, name); !found.isEmpty()) {
        path_ = found;
    }
}

UnpackedFile::~UnpackedFile() {
    if (!folder_.isEmpty()) {
        QDir(folder_).removeRecursively();
    }
}

} // namespace ostrand
