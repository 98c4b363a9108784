#include "browser/ui/SkinRules.h"

#include "shell/Session.h"

#include <QDir>
#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Not the whole data folder: scripts have nothing to look for in databases and settings.
QStringList PageFolders(const Session &session) {
    QStringList folders = {session.TempFolder, session.DataFolder + u"/Skins"_s, session.DataFolder + u"/Images"_s,
                           session.CoverPath, session.HeadshotPath};
    for (const QString &folder : session.services.folders.Resources()) {
        folders += folder + u"/html/images"_s;
    }
    folders.removeAll(QString());
    return folders;
}

/// The file behind all links, so that one inside a skin does not lead out of it.
QString RealFile(const QString &path) {
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(path) : real;
}

bool IsInside(const QString &file, const QString &folder) {
    const QString real = QFileInfo(folder).canonicalFilePath();
    return !real.isEmpty() && file.startsWith(real + u'/');
}

bool MayLoad(const Session &session, const QUrl &url) {
    const QString scheme = url.scheme();
    if (scheme == "data"_L1 || scheme == "about"_L1 || scheme == "blob"_L1) {
        return true;
    }
    // A host in a file URL is another computer.
    if (!url.isLocalFile() || !url.host().isEmpty()) {
        return false;
    }
    const QString file = RealFile(url.toLocalFile());
    const QStringList folders = PageFolders(session);
    return std::any_of(folders.begin(), folders.end(), [&](const QString &folder) { return IsInside(file, folder); });
}

PageLink Follow(const Session &session, const QUrl &url, bool by_click, bool is_main_frame) {
    if (LeadsOut(url)) {
        // What a frame loads of its own accord is a part of the page and no link.
        return by_click || is_main_frame ? PageLink::Open : PageLink::Nothing;
    }
    return url.scheme() == "javascript"_L1 || MayLoad(session, url) ? PageLink::Load : PageLink::Nothing;
}

} // namespace

bool LeadsOut(const QUrl &url) {
    const QString scheme = url.scheme();
    return scheme == "http"_L1 || scheme == "https"_L1 || scheme == "mailto"_L1;
}

WebEngineRules SkinRules(Session &session) {
    return {[&session](const QUrl &url) { return MayLoad(session, url); },
            [&session](const QUrl &url, bool by_click, bool is_main_frame) {
                return Follow(session, url, by_click, is_main_frame);
            },
            [&session](const QString &url) { session.services.opener.OpenUrl(url); }};
}

} // namespace ostrand
