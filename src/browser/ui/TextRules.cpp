#include "browser/ui/TextRules.h"

#include "browser/ui/SkinRules.h"
#include "shell/Session.h"

#include <QFileInfo>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

bool IsLocal(const QUrl &url) {
    return url.isLocalFile() && url.host().isEmpty(); // a host in a file URL is another computer
}

/// One of the pages that texts are stored as.
bool IsTextPage(const Session &session, const QUrl &url) {
    const QFileInfo file(url.toLocalFile());
    const QString name = file.fileName();
    return IsLocal(url) && file.canonicalPath() == QFileInfo(session.TempFolder).canonicalFilePath() &&
           !file.isSymLink() && name.startsWith(u"HTMLTemp"_s) && name.endsWith(u".html"_s);
}

bool IsImage(const QUrl &url) {
    const QFileInfo file(QFileInfo(url.toLocalFile()).canonicalFilePath()); // behind all links
    const QString suffix = file.suffix().toLower();
    return IsLocal(url) && file.isFile() &&
           QStringList{u"jpg"_s, u"jpeg"_s, u"png"_s, u"gif"_s, u"bmp"_s, u"webp"_s}.contains(suffix);
}

bool TextMayLoad(const Session &session, const QUrl &url) {
    const QString scheme = url.scheme();
    return scheme == "data"_L1 || scheme == "about"_L1 || IsTextPage(session, url) || IsImage(url);
}

PageLink FollowText(const Session &session, const QUrl &url, bool by_click, bool is_main_frame) {
    if (LeadsOut(url)) {
        return by_click ? PageLink::Open : PageLink::Nothing;
    }
    const bool is_page = IsTextPage(session, url) || url == QUrl(u"about:blank"_s);
    return is_page && is_main_frame ? PageLink::Load : PageLink::Nothing;
}

} // namespace

WebEngineRules TextRules(Session &session) {
    return {.may_load = [&session](const QUrl &url) { return TextMayLoad(session, url); },
            .follow = [&session](const QUrl &url, bool by_click,
                                 bool is_main_frame) { return FollowText(session, url, by_click, is_main_frame); },
            .open_link = [&session](const QString &url) { session.services.opener.OpenUrl(url); },
            .scripts = false};
}

} // namespace ostrand
