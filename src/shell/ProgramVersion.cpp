#include "shell/ProgramVersion.h"

#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

QString ShortVersion(const Session &session) {
    return session.AppVersion.section(u'.', 0, 1);
}

QString Revision(const Session &session) {
    return session.AppVersion.section(u'.', 2, 2);
}

QString SplashVersionText(Session &session) {
    return ShortVersion(session) + u' ' + Translate(session, u"Version"_s);
}

QString SplashBuildText(Session &session) {
    return Translate(session, u"Build"_s) + u' ' + Revision(session);
}

QString AboutVersionText(Session &session) {
    return Translate(session, u"Version"_s) + u' ' + ShortVersion(session) + u'\n' + Translate(session, u"Build:"_s) +
           u' ' + Revision(session);
}

QString ShownLink(const QString &link) {
    const QString scheme = u"mailto:"_s;
    return link.startsWith(scheme) ? link.mid(scheme.size()) : link;
}

} // namespace ostrand
