// What the user chose for the offline site, kept in the collection.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace ostrand {

struct Session;

/// Where the pages take covers from.
enum class CoverSource {
    Copied = 1,      ///< copied into the site
    ImageServer = 2, ///< the server of the collection program's covers
    InPlace = 3,     ///< where they lie on this machine
};

/// The skin for the pages of one medium.
struct MediaSkin {
    QString medium;
    QString skin;
    friend bool operator==(const MediaSkin &, const MediaSkin &) = default;
};

/// The entry of listMediaTypes for a medium without a skin of its own.
inline constexpr char16_t kUseDefaultSkin[] = u"<use default>";

/// The members stand in the order of the window. Names of types and media are English ones; the empty name is that of
/// profiles without one.
struct SiteOptions {
    QString ExportPath;
    bool SortByTitle = true; ///< else by the collection number
    QString Skin;
    bool UseCollectionType = true; ///< what the tabs of the list are; else media
    CoverSource Covers = CoverSource::Copied;
    QString SkinEpisode;
    bool GenerateEpisodeHTML = true;
    bool UseTitle = true; ///< else the original title
    bool UseCustomTitle = false;
    bool AppendEdition = false;
    bool GenerateCrosslinks = true;
    QStringList ExcludedColTypes;
    QStringList ColTypesOrder;
    QString Filter; ///< the name of a saved query; empty for none
    std::vector<MediaSkin> MediaSkins;
};

SiteOptions LoadSiteOptions(Session &session);
/// Writes all of them. Names are those of the collection; translating back what the user sees would mistake a type
/// for another one that is shown under its name.
void SaveSiteOptions(Session &session, const SiteOptions &options);

/// A row of listColTypes.
struct SiteColType {
    QString name;
    bool checked = true;
};
/// The collection types of the profiles, in the order that was chosen, new ones behind.
std::vector<SiteColType> SiteColTypes(Session &session, const SiteOptions &options);
/// The checked ones.
QStringList CheckedColTypes(Session &session, const SiteOptions &options);

} // namespace ostrand
