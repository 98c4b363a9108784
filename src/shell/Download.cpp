#include "shell/Download.h"

#include "shell/Session.h"

using namespace Qt::StringLiterals;

namespace ostrand {

bool DownloadFile(Session &session, const QString &url, const QString &path) {
    Trace(session, u"DownloadFile("_s + url + u", "_s + path + u')', kTraceEntry);
    QString error;
    const bool fetched = session.services.downloader.Fetch(url, path, session.services.pump, &error);
    if (!fetched) {
        Trace(session, u"DownloadFile: "_s + error, kTraceError);
    }
    Trace(session, u"DownloadFile: "_s + (fetched ? u"True"_s : u"False"_s), kTraceExit);
    return fetched;
}

} // namespace ostrand
