// The program's name and version as its windows tell them.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

inline constexpr const char16_t *kProgramTitle = u"Ostrand";
inline constexpr const char16_t *kHomePage = u"https://ostrand.example";
inline constexpr const char16_t *kMailAddress = u"mailto:team@ostrand.example";

/// Major and minor number, joined by ".".
QString ShortVersion(const Session &session);
QString Revision(const Session &session);

/// lblVersion and lblBuild of frmSplash.
QString SplashVersionText(Session &session);
QString SplashBuildText(Session &session);
/// lblVersion of frmAbout, two lines.
QString AboutVersionText(Session &session);

/// A link as it is shown: a mail address without its scheme.
QString ShownLink(const QString &link);

} // namespace ostrand
