// The pages of profiles and episodes, with the images that they show.
#pragma once

#include "html_export/SiteRun.h"
#include "html_export/SiteTemplates.h"
#include "skin/TagCall.h"

#include <QHash>
#include <QSet>

namespace ostrand {

class ProfilePages {
public:
    enum class Outcome {
        Done,
        Again,     ///< the page stands already, from earlier in this run
        Failed,    ///< the user was told
        Collided,  ///< another key has a page of that name
        Cancelled, ///< by the user; nothing was written
    };

    /// `total` is the number of profiles that is told in the progress. Run and templates must outlive this.
    ProfilePages(const SiteRun &run, const SiteTemplates &templates, int total);
    ProfilePages(const ProfilePages &) = delete;
    ProfilePages &operator=(const ProfilePages &) = delete;

    /// Renders the page of a row, writes it where it changed, and copies its covers. `title` names it in messages.
    /// Throws SiteFault when nothing further can be written.
    Outcome CreateHTMLProfile(const sql::Recordset &row, bool is_episode, const QString &title);
    /// The cover of the page that was written last, as an address from the site's list; empty without one.
    const QString &LastCover() const { return last_cover_; }
    /// Says what could not be written, if anything: the boxes of failed pages beyond the first few, and the pages whose
    /// names were taken.
    void TellRest();

private:
    struct Page {
        QString key;
        QString name;
        bool is_episode;
        QString title;
    };
    RenderOptions MakeRenderOptions();
    Outcome Claim(const Page &page);
    Outcome Write(const Page &page, const sql::Recordset &row);
    QString Render(const Page &page, const sql::Recordset &row);
    QString WithCoverAddresses(QString html, const QString &key) const;
    void ShowProgress();
    void CopyCovers(const Page &page);
    QString CoverAddress(const Page &page, const QString &front, const QString &spine) const;
    bool CopiesCovers(const QString &key) const;
    void CopyHeadshot(const QString &file);
    void TellFailure(const QString &title, const QString &reason);
    bool Cancelled() const;

    const SiteRun &run_;
    const SiteTemplates &templates_;
    SkinState skin_;
    RenderOptions options_;
    QString cover_url_;
    int total_;
    int number_ = 0;
    QString profile_text_, of_total_;
    QString last_cover_;
    QHash<QString, QString> profiles_, episodes_; // names of pages, folded, to their keys
    QSet<QString> headshots_;
    int failures_ = 0;
    QStringList untold_;
    QStringList collided_;
};

} // namespace ostrand
