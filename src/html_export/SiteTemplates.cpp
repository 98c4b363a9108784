#include "html_export/SiteTemplates.h"

#include "base/Files.h"
#include "html_export/SiteFolders.h"
#include "shell/Session.h"
#include "skin/SkinPage.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

void InsertScript(QString &page) {
    for (const QLatin1String head : {"<head>"_L1, "<HEAD>"_L1}) {
        page.replace(head, head + "\r\n<script type=\"text/javascript\" src=\"../common/0.js\"></script>"_L1);
    }
}

} // namespace

bool SkinListsEpisodes(const Session &session, const QString &skin) {
    const QString file = SkinFile(session, skin);
    return !file.isEmpty() && ReadSkinFile(file).toLower().contains("name=\"episodes\""_L1);
}

bool SiteTemplates::Read(const QString &skin, const SiteOptions &options) {
    if (!AddSkinTemplate(profiles_, skin)) {
        TellMissing(session_, u"Skin"_s, skin);
        return false;
    }
    if (options.GenerateEpisodeHTML && !ReadEpisodeSkin(options.SkinEpisode)) {
        return false;
    }
    for (const MediaSkin &pair : options.MediaSkins) {
        if (!AddSkinTemplate(media_[sql::SortKey(pair.medium)], pair.skin)) {
            TellMissing(session_, u"Skin"_s, pair.skin);
            return false;
        }
    }
    return true;
}

bool SiteTemplates::ReadEpisodeSkin(const QString &skin) {
    if (skin.isEmpty()) {
        ShowMessage(session_, {.text = Translate(session_, u"No episode skin given!"_s),
                               .title = Translate(session_, u"No Episode Skin"_s),
                               .icon = MessageIcon::Warning});
        return false;
    }
    if (!AddSkinTemplate(episodes_, skin)) {
        TellMissing(session_, u"Episode Skin"_s, skin);
        return false;
    }
    return true;
}

bool SiteTemplates::AddSkinTemplate(QString &text, const QString &skin) {
    const QString file = SkinFile(session_, skin);
    if (file.isEmpty()) {
        return false;
    }
    text = ReadSkinFile(file).replace("$DPIMAGES."_L1, "../Images/"_L1);
    if (crosslinks_) {
        InsertScript(text);
    }
    CopyFolderInto(session_, FindIgnoringCase(SkinFolder(session_, skin), u"Images"_s), site_ + "Images"_L1);
    return true;
}

const QString &SiteTemplates::ForProfile(const QString &medium) const {
    const auto own = media_.constFind(sql::SortKey(medium));
    return own == media_.constEnd() ? profiles_ : *own;
}

void SiteTemplates::TellMissing(Session &session, const QString &kind, const QString &skin) {
    ShowMessage(session,
                {.text = Translate(session, kind) + u' ' + skin + u' ' + Translate(session, u"does not exist!"_s),
                 .title = Translate(session, u"Skin.html missing"_s),
                 .icon = MessageIcon::Warning});
}

} // namespace ostrand
