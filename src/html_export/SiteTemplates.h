// The skins of the site's pages.
#pragma once

#include "html_export/SiteOptions.h"

#include <QHash>

namespace ostrand {

/// True when a skin lists episodes, so that pages of them are of use.
bool SkinListsEpisodes(const Session &session, const QString &skin);

class SiteTemplates {
public:
    /// `site` ends in a separator.
    SiteTemplates(Session &session, const QString &site, bool crosslinks) :
        session_(session), site_(site), crosslinks_(crosslinks) {}

    /// Takes in the skins of all pages and copies their images. Says what is missing, and returns false then.
    bool Read(const QString &skin, const SiteOptions &options);
    /// The text for a profile of a medium.
    const QString &ForProfile(const QString &medium) const;
    /// The text for an episode.
    const QString &ForEpisode() const { return episodes_.isEmpty() ? profiles_ : episodes_; }

    /// Says that a skin has no template.
    static void TellMissing(Session &session, const QString &kind, const QString &skin);

private:
    /// The text of a skin for the site; false where it has none.
    bool AddSkinTemplate(QString &text, const QString &skin);
    bool ReadEpisodeSkin(const QString &skin);

    Session &session_;
    QString site_;
    bool crosslinks_;
    QString profiles_;
    QString episodes_;
    QHash<QByteArray, QString> media_; // by the key that the database compares media by
};

} // namespace ostrand
