#include "browser/ui/SkinRules.h"

#include "shell/Session.h"

namespace ostrand {

WebEngineRules SkinRules(Session &session) {
    using namespace Qt::StringLiterals;
    const auto folders = [&session] {
        // Not the whole data folder: scripts have nothing to look for in databases and settings.
        QStringList allowed = {session.TempFolder, session.DataFolder + u"/Skins"_s, session.DataFolder + u"/Images"_s,
                               session.CoverPath, session.HeadshotPath};
        for (const QString &folder : session.services.folders.Resources()) {
            allowed += folder + u"/html/images"_s;
        }
        allowed.removeAll(QString());
        return allowed;
    };
    return {folders, [&session](const QString &url) { session.services.opener.OpenUrl(url); }};
}

} // namespace ostrand
