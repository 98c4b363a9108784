// What the window of the export shows, stores and starts.
#pragma once

#include "html_export/CreateOfflineHtml.h"
#include "html_export/MediaSkinList.h"
#include "html_export/SiteColTypeList.h"

namespace ostrand {

/// The rules behind frmHTMLExport. All messages go to the user.
class SiteForm {
public:
    /// Takes the stored options. Throws SqlError.
    SiteForm(Session &session, SiteHost host);

    /// The values of the controls. Those of the two lists are in the models.
    SiteOptions options;
    SiteColTypeList col_types;
    MediaSkinList media_skins;

    /// All skins, and `chosen` where it is none of them, so that nothing else is shown in its place.
    QStringList Skins(const QString &chosen) const;
    /// The empty name and those of the saved queries, and the chosen one where it is gone.
    QStringList Filters() const;
    /// Whether a skin lists the episodes of a title, which then have pages.
    bool ListsEpisodes(const QString &skin) const;
    /// Lets the user pick the folder of the site.
    void BrowseExportPath();

    /// False where the database takes no settings of this program.
    bool CanSave() const;
    /// Writes all options, or none when there is a fault.
    bool Save();
    /// Writes the site with the values as they are, stored or not; true when it is complete. Nothing while one is being
    /// written.
    bool Start();
    bool IsRunning() const { return running_; }
    /// Ends the run as soon as it can.
    void CancelRun();

private:
    SiteOptions AllOptions() const;

    Session &session_;
    SiteHost host_;
    QStringList filters_; ///< read with all else that may fail, before a window makes its controls
    bool running_ = false;
};

} // namespace ostrand
