#include "skin/InstallSkins.h"

#include "base/Files.h"
#include "shell/Session.h"

#include <QDir>
#include <QDirIterator>

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

void CopyFile(const Session &session, const QString &from, const QString &to) {
    if (!MakeFolderPath(QFileInfo(to).path()) || !QFile::copy(from, to)) {
        Trace(session, u"InstallSkins: "_s + to, kTraceError);
        return;
    }
    // Installed files may be read-only, and skins are there to be changed.
    QFile::setPermissions(to, QFile::permissions(to) | QFile::ReadOwner | QFile::WriteOwner);
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
    QDirIterator files(own, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString from = files.next();
        CopyFile(session, from, folder + from.mid(own.size()));
    }
}

} // namespace ostrand
