#include "skin/InstallSkins.h"

#include "base/Files.h"
#include "shell/Session.h"

#include <QDir>
#include <QDirIterator>

#include <filesystem>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// The folder of the program's own skins; empty without one.
QString OwnSkins(const Session &session) {
    for (const QString &folder : session.services.folders.Resources()) {
        if (QFileInfo(folder + u"/skins"_s).isDir()) {
            return folder + u"/skins"_s;
        }
    }
    return {};
}

bool CopyFile(const Session &session, const QString &from, const QString &to) {
    if (!MakeFolderPath(QFileInfo(to).path()) || !QFile::copy(from, to)) {
        Trace(session, u"InstallSkins: "_s + to, kTraceError);
        return false;
    }
    // Installed files may be read-only, and skins are there to be changed.
    QFile::setPermissions(to, QFile::permissions(to) | QFile::ReadOwner | QFile::WriteOwner);
    return true;
}

bool CopyAll(const Session &session, const QString &from, const QString &to) {
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    bool copied = true;
    while (copied && files.hasNext()) {
        const QString file = files.next();
        copied = CopyFile(session, file, to + file.mid(from.size()));
    }
    return copied;
}

} // namespace

void InstallSkins(const Session &session) {
    const QString folder = session.DataFolder + u"/Skins"_s;
    // An empty folder comes from a version that had no skins of its own.
    if (!QDir(folder).isEmpty() || !MakeFolderPath(folder)) {
        return;
    }
    const QString own = OwnSkins(session);
    if (own.isEmpty()) {
        return;
    }
    // All or none, as a folder that holds one is never filled again: a disk may be full, a first start may be cut off.
    const QString part = folder + u"_new"_s;
    QDir(part).removeRecursively();
    std::error_code error;
    if (CopyAll(session, own, part)) {
        std::filesystem::rename(QFileInfo(part).filesystemFilePath(), QFileInfo(folder).filesystemFilePath(), error);
        if (error) {
            Trace(session, u"InstallSkins: "_s + QString::fromLocal8Bit(error.message().c_str()), kTraceError);
        }
    }
    QDir(part).removeRecursively();
}

} // namespace ostrand
