// Sections that describe the discs and what is on them.

#include "collection_files/ElementValues.h"
#include "collection_files/ImportProfile.h"
#include "collection_files/Rows.h"
#include "collection_files/SectionReaders.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "xml/XmlNodes.h"

#include <QStringList>

#include <array>
#include <string_view>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

/// Feature elements and the features that they stand for.
constexpr auto kFeatures = std::to_array<std::pair<std::string_view, const char *>>({
    {"FeatureSceneAccess", "Scene Access"},
    {"FeatureCommentary", "Commentary"},
    {"FeatureTrailer", "Trailers"},
    {"FeaturePhotoGallery", "Photo Gallery"},
    {"FeatureDeletedScenes", "Deleted Scenes"},
    {"FeatureMakingOf", "Featurettes"},
    {"FeatureProductionNotes", "Production Notes"},
    {"FeatureGame", "Interactive Game"},
    {"FeatureDVDROMContent", "DVD-ROM Content"},
    {"FeatureMultiAngle", "Multi Angle"},
    {"FeatureMusicVideos", "Music Videos"},
    {"FeatureClosedCaptioned", "Closed Captioned"},
    {"FeatureTHXCertified", "THX certified"},
    {"FeatureInterviews", "Interviews"},
    {"FeatureOuttakes", "Outtakes"},
    {"FeatureStoryboardComparisons", "Storyboard Comparisons"},
    {"FeaturePIP", "Picture-in-picture"},
    {"FeatureBDLive", "BD-Live"},
    {"FeatureBonusTrailers", "Bonus Trailers"},
    {"FeatureDigitalCopy", "Digital Copy"},
});

void InsertFeature(const ImportProfile &profile, const QString &feature) {
    InsertRow(profile.GetSession(), QLatin1String("Features"),
              {{kProfileID, profile.key}, {QLatin1String("Feature"), feature}});
}

void InsertOtherFeatures(const ImportProfile &profile, QString text) {
    text.replace(u"\r\n"_s, u", "_s).replace(u'\n', u", "_s);
    for (const QString &piece : text.split(u',')) {
        if (const QString feature = piece.trimmed(); !feature.isEmpty()) {
            InsertFeature(profile, feature);
        }
    }
}

QString RegionNumber(const QString &region) {
    if (region == u"All"_s) {
        return u"0"_s;
    }
    if (region.size() == 1 && region[0] >= u'A' && region[0] <= u'C') {
        return QString::number(region[0].unicode() - u'A' + 1);
    }
    return region;
}

void InsertRegion(const ImportProfile &profile, const QString &region) {
    InsertRow(profile.GetSession(), QLatin1String("Regions"),
              {{kProfileID, profile.key}, {QLatin1String("Region"), region}});
}

void InsertStudio(const ImportProfile &profile, const QString &studio, const QString &type) {
    InsertRow(profile.GetSession(), QLatin1String("Studios"),
              {{kProfileID, profile.key}, {QLatin1String("Studio"), studio}, {QLatin1String("Type"), type}});
}

QString CurrentChannels(const QString &channels) {
    if (channels == u"Dolby Surround"_s) {
        return u"2.0 Surround"_s;
    }
    return channels == u"2-Channel Stereo"_s ? u"2.0 Stereo"_s : channels;
}

bool ReadSectionFlag(pugi::xml_node node, const char *child) {
    return ReadBoolean(XmlChildText(node, child, u"False"_s));
}

} // namespace

void ImportBoxSet(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("BoxSet"), QLatin1String("BoxSetID"));
    const pugi::xml_node box_set = profile.dvd.child("BoxSet");
    const bool is_new = profile.run.is_profiler3;
    const pugi::xml_node contents = is_new ? box_set.child("Contents") : box_set;
    for (const pugi::xml_node child : contents.children(is_new ? "Content" : "BoxSetChild")) {
        InsertRow(
            profile.GetSession(), QLatin1String("BoxSet"),
            {{QLatin1String("ChildID"), u"Key_"_s + XmlNodeText(child)}, {QLatin1String("BoxSetID"), profile.key}});
    }
}

void ImportDiscs(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Discs"), kProfileID);
    const bool is_new = profile.run.is_profiler3;
    int number = 0;
    for (const pugi::xml_node disc : profile.dvd.child("Discs").children("Disc")) {
        const auto text = [&](const char *child) { return XmlChildText(disc, child); };
        InsertRow(profile.GetSession(), QLatin1String("Discs"),
                  {{kProfileID, profile.key},
                   {QLatin1String("DiscNo"), ++number},
                   {QLatin1String("Description"), text(is_new ? "DescriptionSideA" : "Description")},
                   {QLatin1String("DescriptionSideB"), is_new ? text("DescriptionSideB") : QString()},
                   {QLatin1String("DiscIDSideA"), text("DiscIDSideA")},
                   {QLatin1String("LabelSideA"), text("LabelSideA")},
                   {QLatin1String("DiscIDSideB"), text("DiscIDSideB")},
                   {QLatin1String("LabelSideB"), text("LabelSideB")},
                   {QLatin1String("DualSided"), ReadSectionFlag(disc, "DualSided")},
                   {QLatin1String("DualLayered"), ReadSectionFlag(disc, is_new ? "DualLayeredSideA" : "DualLayered")},
                   {QLatin1String("DualLayeredSideB"), is_new && ReadSectionFlag(disc, "DualLayeredSideB")},
                   {QLatin1String("Flipper"), !is_new && ReadSectionFlag(disc, "Flipper")},
                   {QLatin1String("Location"), text("Location")},
                   {QLatin1String("Slot"), text("Slot")}});
    }
}

void ImportRegions(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Regions"), kProfileID);
    const auto regions = profile.dvd.child("Regions").children("Region");
    for (const pugi::xml_node region : regions) {
        InsertRegion(profile, RegionNumber(XmlNodeText(region)));
    }
    if (regions.begin() == regions.end()) {
        InsertRegion(profile, u"0"_s);
    }
}

void ImportVideoFormat(const ImportProfile &profile) {
    const pugi::xml_node format = profile.dvd.child("Format");
    sql::Recordset row = profile.GetSession().Database->OpenRecordset(
        QString(u"SELECT * FROM VideoFormat WHERE ProfileID = '"_s + EscapeSql(profile.key) + u'\''));
    if (row.Eof()) {
        row.AddNew();
        row.Set(u"ProfileID", profile.key);
    } else {
        row.Edit();
    }
    row.Set(u"AspectRatio", XmlChildText(format, "FormatAspectRatio"));
    if (profile.medium == u"DVD"_s) {
        row.Set(u"VideoStandard", XmlChildText(format, "FormatVideoStandard"));
    }
    row.Set(u"LetterBox", ReadSectionFlag(format, "FormatLetterBox"));
    row.Set(u"PanAndScan", ReadSectionFlag(format, "FormatPanAndScan"));
    row.Set(u"FullFrame", ReadSectionFlag(format, "FormatFullFrame"));
    row.Set(u"F16X9", ReadSectionFlag(format, "Format16X9"));
    row.Update();
}

void ImportFeatures(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Features"), kProfileID);
    for (const pugi::xml_node child : profile.dvd.child("Features").children()) {
        const std::string_view name = child.name();
        if (name == "FeatureOther" || name == "OtherFeatures") {
            InsertOtherFeatures(profile, XmlNodeText(child));
            continue;
        }
        const auto feature =
            std::find_if(kFeatures.begin(), kFeatures.end(), [&](const auto &entry) { return entry.first == name; });
        if (feature != kFeatures.end() && IsTrue(XmlNodeText(child))) {
            InsertFeature(profile, QString::fromLatin1(feature->second));
        }
    }
}

void ImportStudios(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Studios"), kProfileID);
    for (const pugi::xml_node studio : profile.dvd.child("Studios").children("Studio")) {
        InsertStudio(profile, XmlNodeText(studio), {});
    }
    if (const QString publisher = XmlChildText(profile.dvd, "MediaPublisher"); !publisher.isEmpty()) {
        InsertStudio(profile, publisher, u"Media Company"_s);
    }
    for (const pugi::xml_node company : profile.dvd.child("MediaCompanies").children("MediaCompany")) {
        if (const QString name = XmlNodeText(company); !name.isEmpty()) {
            InsertStudio(profile, name, u"Media Company"_s);
        }
    }
}

void ImportGenres(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Genres"), kProfileID);
    for (const pugi::xml_node genre : profile.dvd.child("Genres").children("Genre")) {
        if (const QString name = XmlNodeText(genre); !name.isEmpty()) {
            InsertRow(profile.GetSession(), QLatin1String("Genres"),
                      {{kProfileID, profile.key}, {QLatin1String("Genre"), name}});
        }
    }
}

void ImportSubtitles(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Subtitles"), kProfileID);
    for (const pugi::xml_node subtitle : profile.dvd.child("Subtitles").children("Subtitle")) {
        InsertRow(profile.GetSession(), QLatin1String("Subtitles"),
                  {{kProfileID, profile.key}, {QLatin1String("Subtitle"), XmlNodeText(subtitle)}});
    }
}

void ImportAudioFormats(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("AudioFormats"), kProfileID);
    const bool is_new = profile.run.is_profiler3;
    int order = 0;
    for (const pugi::xml_node track : profile.dvd.child("Audio").children(is_new ? "AudioTrack" : "AudioFormat")) {
        const QString channels = XmlChildText(track, "AudioChannels");
        InsertRow(profile.GetSession(), QLatin1String("AudioFormats"),
                  {{kProfileID, profile.key},
                   {QLatin1String("OrderPos"), ++order},
                   {QLatin1String("Language"), XmlChildText(track, is_new ? "AudioContent" : "AudioLanguage")},
                   {QLatin1String("Compression"), XmlChildText(track, is_new ? "AudioFormat" : "AudioCompression")},
                   {QLatin1String("Channels"), is_new ? CurrentChannels(channels) : channels}});
    }
}

void ImportReviews(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Reviews"), kProfileID);
    const pugi::xml_node review = profile.dvd.child("Review");
    const bool is_new = profile.run.is_profiler3;
    const auto mark = [&](const char *attribute, const char *child) {
        return is_new ? XmlAttribute(review, attribute, u"0"_s) : XmlChildText(review, child, u"0"_s);
    };
    InsertRow(profile.GetSession(), QLatin1String("Reviews"),
              {{kProfileID, profile.key},
               {QLatin1String("Film"), mark("Film", "ReviewFilm")},
               {QLatin1String("Video"), mark("Video", "ReviewVideo")},
               {QLatin1String("Audio"), mark("Audio", "ReviewAudio")},
               {QLatin1String("Extras"), mark("Extras", "ReviewExtras")}});
}

void ImportMetaInfo(const ImportProfile &profile) {
    QStringList exclusions;
    for (const pugi::xml_node exclusion : profile.dvd.child("Exclusions").children()) {
        if (exclusion.type() == pugi::node_element) {
            exclusions.append(QString::fromUtf8(exclusion.name()));
        }
    }
    StoreMetaInfo(profile, u"Exclusions"_s, exclusions.join(u", "_s));
    const pugi::xml_node banners = profile.dvd.child("MediaBanners");
    if (!banners) {
        return;
    }
    // The neutral words of the two sides differ.
    const QString front = XmlAttribute(banners, "Front");
    const QString back = XmlAttribute(banners, "Back");
    StoreMetaInfo(profile, u"MediaBannerFront"_s, front == u"Automatic"_s ? QString() : front);
    StoreMetaInfo(profile, u"MediaBannerBack"_s, back == u"Off"_s ? QString() : back);
}

void ImportTags(const ImportProfile &profile) {
    DeleteRows(profile, QLatin1String("Tags"), kProfileID);
    const bool is_new = profile.run.is_profiler3;
    for (const pugi::xml_node tag : profile.dvd.child("Tags").children("Tag")) {
        InsertRow(profile.GetSession(), QLatin1String("Tags"),
                  {{kProfileID, profile.key},
                   {QLatin1String("TagName"), is_new ? XmlAttribute(tag, "Name") : XmlChildText(tag, "Name")},
                   {QLatin1String("FullyQualifiedName"),
                    is_new ? XmlAttribute(tag, "FullName") : XmlChildText(tag, "FullyQualifiedName")}});
    }
}

void ImportAdditionalInfoElements(const ImportProfile &profile) {
    Session &session = profile.GetSession();
    for (const pugi::xml_node info : profile.dvd.child("AdditionalInfos").children("Info")) {
        const QString name = XmlAttribute(info, "Name");
        session.Database->Execute(QString(u"DELETE * FROM AdditionalInfo WHERE ProfileID = '"_s +
                                          EscapeSql(profile.key) + u"' AND InfoName = '"_s + EscapeSql(name) + u'\''));
        InsertRow(session, QLatin1String("AdditionalInfo"),
                  {{kProfileID, profile.key},
                   {QLatin1String("InfoName"), name},
                   {QLatin1String("InfoValue"), XmlNodeText(info)},
                   {QLatin1String("InfoType"), XmlAttribute(info, "Type")}});
    }
}

} // namespace ostrand
