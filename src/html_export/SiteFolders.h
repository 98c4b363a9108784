// The folders of the site and the files that come with the program.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// The program's folder of the site's templates and images; empty where it is missing.
QString SiteSourceFolder(const Session &session);
/// Makes the folders of the site. `site` ends in a separator. Throws SiteFault.
void MakeSiteFolders(const QString &site, bool with_episodes);
/// Copies the files that are the same in every site. What cannot be copied is traced.
void CopyGeneralFiles(const Session &session, const QString &site);
/// Copies all that a folder holds; nothing happens when it does not exist.
void CopyFolderInto(const Session &session, const QString &from, const QString &to);
/// Copies one file; a failure is traced and false returned. Throws SiteFault on a full disk.
bool CopySiteFile(const Session &session, const QString &from, const QString &to);

} // namespace ostrand
