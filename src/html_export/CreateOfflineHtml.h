// The offline HTML export: the collection as a folder of pages.
#pragma once

#include "html_export/SiteOptions.h"

namespace ostrand {

/// What the export takes from the main window.
struct SiteHost {
    /// The selected collection type, for a saved query that asks for it.
    QString CurrentColType;
};

/// Writes the site into a folder that exists; pages that did not change stay as they are. All faults are shown. True
/// when the site is complete. After a cancel the pages so far stay; the lists of a site that was there before stay too,
/// and a new site gets lists of what was written.
bool CreateOfflineHTML(Session &session, const QString &exportPath, const QString &skin, const SiteOptions &options,
                       const SiteHost &host);
/// cbStart: the same for a folder and a skin that the user gave. Without a skin nothing happens.
bool StartOfflineHTML(Session &session, const QString &exportPath, const QString &skin, const SiteOptions &options,
                      const SiteHost &host);
/// The command of command files: into `folder`, with the current skin and the stored options. Episode
/// pages are made only for a skin that lists episodes.
void CreateHTMLCollection(Session &session, const QString &folder);

} // namespace ostrand
