// What the steps of one run of the export share.
#pragma once

#include "html_export/SiteOptions.h"
#include "shell/ViewState.h"

namespace ostrand {

struct Session;

struct SiteRun {
    Session &session;
    const SiteOptions &options;
    /// The folder of the site, with a separator at its end.
    QString site;
    /// The switches by which the lists show titles.
    ViewState titles;
};

} // namespace ostrand
