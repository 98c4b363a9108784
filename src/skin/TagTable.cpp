#include "skin/TagTable.h"

#include "skin/SkinTags.h"

namespace ostrand {

namespace {

constexpr SkinTag Plain(const char16_t *name, TagProducer producer, const char16_t *argument = u"") {
    return {name, producer, argument};
}

constexpr SkinTag Guarded(const char16_t *name, TagProducer producer, const char16_t *log_name,
                          const char16_t *box_title, const char16_t *argument = u"") {
    return {name, producer, argument, false, log_name, box_title};
}

constexpr SkinTag Profiles(SkinTag tag) {
    tag.profiles_only = true;
    return tag;
}

constexpr SkinTag kTags[] = {
    Plain(u"HEADER_VARS", GetDPHeaderVars),
    Plain(u"16X9", GetDPWidescreen),
    Guarded(u"AUDIOTRACKS", GetDPAudioFormats, u"GetDPAudioFormats", u"AUDIOTRACKS"),
    Guarded(u"BOXSETCONTENTS", GetDPBoxsetContent, u"GetDPBoxsetContent", u"BOXSETCONTENTS"),
    Profiles(Plain(u"CASETYPE", GetTranslatedField, u"CaseType")),
    Guarded(u"CAST", GetDPCast, u"GetDPCast", u"CAST"),
    Guarded(u"ACTORS", GetDPCast, u"GetDPCast", u"CAST"),
    Plain(u"CREW_ART", GetDPStandardCrew, u"Art"),
    Plain(u"CREDITS_ART", GetDPStandardCrew, u"Art"),
    Plain(u"CREW_CINEMATOGRAPHY", GetDPStandardCrew, u"Cinematography"),
    Plain(u"CREDITS_CINEMATOGRAPHY", GetDPStandardCrew, u"Cinematography"),
    Plain(u"CREW_DIRECTION", GetDPStandardCrew, u"Direction"),
    Plain(u"CREDITS_DIRECTION", GetDPStandardCrew, u"Direction"),
    Plain(u"DIRECTORS", GetDPStandardCrew, u"Direction"),
    Plain(u"CREW_FILMEDITING", GetDPStandardCrew, u"Film Editing"),
    Plain(u"CREDITS_FILMEDITING", GetDPStandardCrew, u"Film Editing"),
    Plain(u"CREW_MUSIC", GetDPStandardCrew, u"Music"),
    Plain(u"CREDITS_MUSIC", GetDPStandardCrew, u"Music"),
    Plain(u"CREW_OTHER", GetDPStandardCrew, u"Other"),
    Plain(u"CREW_PRODUCTION", GetDPStandardCrew, u"Production"),
    Plain(u"CREDITS_PRODUCTION", GetDPStandardCrew, u"Production"),
    Plain(u"CREW_SOUND", GetDPStandardCrew, u"Sound"),
    Plain(u"CREDITS_SOUND", GetDPStandardCrew, u"Sound"),
    Plain(u"CREW_WRITING", GetDPStandardCrew, u"Writing"),
    Plain(u"CREDITS_WRITING", GetDPStandardCrew, u"Writing"),
    Profiles(Plain(u"COLLNUM", GetField, u"ColNo")),
    Guarded(u"CUSTOM_TITLE", GetOSVCustomTitle, u"GetOSVCustomTitle", u"CUSTOM_TITLE"),
    Profiles(Guarded(u"DISCS", GetDPDiscs, u"GetDPDiscs", u"DISCS")),
    Plain(u"DISTRIBUTOR", GetDPMediaPublisher),
    Plain(u"MEDIA_PUBLISHER", GetDPMediaPublisher),
    Profiles(Plain(u"EASTEREGGS", GetFieldWithBreaks, u"EasterEggs")),
    Plain(u"FEATURES", GetDPList, u"Features"),
    Plain(u"GENRES", GetDPList, u"Genres"),
    Guarded(u"IMAGE", GetDPImage, u"GetDPImage", u"IMAGE"),
    Guarded(u"LAST_WATCHED_BY", GetDPLastWatched, u"GetDPLastWatched", u"LASTWATCHED", u"UserID"),
    Guarded(u"LAST_WATCHED_ON", GetDPLastWatched, u"GetDPLastWatched", u"LASTWATCHED", u"EventTimestamp"),
    Guarded(u"LAYERS", GetDPLayers, u"GetDPSidesLayers", u"SIDES_LAYERS"),
    Guarded(u"LOANDUE", GetDPLoanedDue, u"GetDPLoanedDue", u"LOANEDDUE"),
    Plain(u"LOANEDTO", GetDPLoanedTo),
    Profiles(Plain(u"LOCALITY", GetTranslatedField, u"Locality")),
    Plain(u"LOCK_AUDIOTRACKS", GetDPLock, u"AudioTracks"),
    Plain(u"LOCK_CASETYPE", GetDPLock, u"CaseType"),
    Plain(u"LOCK_CAST", GetDPLock, u"Cast"),
    Plain(u"LOCK_COVERIMAGES", GetDPLock, u"Covers"),
    Plain(u"LOCK_CREW", GetDPLock, u"Crew"),
    Profiles(Plain(u"LOCK_DISCINFO", GetDPLock, u"Discs")),
    Plain(u"LOCK_EASTEREGGS", GetDPLock, u"EasterEggs"),
    Plain(u"LOCK_ENTIRE", GetDPLock, u"Entire"),
    Plain(u"LOCK_FEATURES", GetDPLock, u"Features"),
    Plain(u"LOCK_GENRES", GetDPLock, u"Genres"),
    Plain(u"LOCK_OVERVIEW", GetDPLock, u"Overview"),
    Plain(u"LOCK_PRODUCTIONYEAR", GetDPLock, u"ProductionYear"),
    Plain(u"LOCK_RATING", GetDPLock, u"Rating"),
    Profiles(Plain(u"LOCK_REGIONS", GetDPLock, u"Regions")),
    Profiles(Plain(u"LOCK_RELEASEDATE", GetDPLock, u"ReleaseDate")),
    Plain(u"LOCK_RUNNINGTIME", GetDPLock, u"RunningTime"),
    Plain(u"LOCK_SRP", GetDPLock, u"SRPInfo"),
    Plain(u"LOCK_STUDIOS", GetDPLock, u"Studios"),
    Plain(u"LOCK_SUBTITLES", GetDPLock, u"Subtitles"),
    Plain(u"LOCK_TITLE", GetDPLock, u"Title"),
    Plain(u"LOCK_VIDEOFORMATS", GetDPLock, u"VideoFormats"),
    Plain(u"MEDIA_COMPANIES", GetDPStudios, u"Media Company"),
    Profiles(Plain(u"MEDIA_TYPE", GetField, u"Medium")),
    Profiles(Plain(u"MEDIUM", GetField, u"Medium")),
    Plain(u"NOTES", GetNotes, u"Notes"),
    Guarded(u"ORIGINAL_TITLE", GetDPOriginalTitle, u"GetDPOriginalTitle", u"ORIGINAL_TITLE"),
    Plain(u"OVERVIEW", GetFieldWithBreaks, u"Overview"),
    Plain(u"OWNERSHIP", GetDPOwnership),
    Plain(u"STATUS", GetDPOwnership),
    Profiles(Plain(u"PRODYEAR", GetField, u"ProdYear")),
    Plain(u"PROGRAM_BUILD", GetProgramBuild),
    Plain(u"PROGRAM_LANGUAGE", GetOSVProgramLanguage),
    Plain(u"PROGRAM_LOCATION", GetProgramLocation),
    Plain(u"PROGRAM_VERSION", GetProgramVersion),
    Profiles(Plain(u"PURCHDATE", GetDPPurchDate)),
    Profiles(Plain(u"PURCHPLACE", GetDPPurchPlace)),
    Profiles(Plain(u"PURCHPRICE", GetDPPurchPrice)),
    Guarded(u"RATING", GetDPRating, u"GetDPRating", u"RATING"),
    Profiles(Guarded(u"REGION", GetDPRegion, u"GetDPRegions", u"REGIONS")),
    Profiles(Guarded(u"REGIONS", GetDPRegions, u"GetDPRegions", u"REGIONS")),
    Guarded(u"RELDATE", GetDPReleaseDate, u"GetDPReleaseDate", u"RELEASEDATE"),
    Guarded(u"REVIEW", GetDPReview, u"GetDPReview", u"REVIEW"),
    Guarded(u"RUNTIME", GetDPRuntime, u"GetDPRuntime", u"RUNTIME"),
    Guarded(u"SIDES", GetDPSides, u"GetDPSidesLayers", u"SIDES_LAYERS"),
    Profiles(Plain(u"SORTTITLE", GetField, u"SortTitle")),
    Profiles(Guarded(u"SRP", GetDPSRP, u"GetDPSRP", u"SRP")),
    Plain(u"STUDIOS", GetDPStudios),
    Plain(u"SUBTITLES", GetDPList, u"Subtitles"),
    Guarded(u"TITLE", GetDPTitle, u"GetDPTitle", u"TITLE"),
    Guarded(u"UPC", GetDPUPC, u"GetDPUPC", u"UPC"),
    Guarded(u"VIDFORMATS", GetDPVidFormats, u"GetDPVidFormats", u"VIDFORMATS"),
    Plain(u"VIDSTANDARD", GetDPVidStandard),
    Plain(u"ADDITIONAL_INFO", GetOSVAdditionalInfo),
    Guarded(u"AWARDS", GetOSVAwards, u"GetOSVAwards", u"AWARDS"),
    Profiles(Plain(u"BARCODE", GetBarcode)),
    Guarded(u"OSV_HEADER_VARS", GetOSVHeaderVars, u"GetOSVHeaderVars", u"OSV_HEADER_VARS"),
    Profiles(Plain(u"COUNTRY_OF_ORIGIN", GetTranslatedField, u"CountryOfOrigin")),
    Profiles(Plain(u"COUNTRY_ORIGIN", GetTranslatedField, u"CountryOfOrigin")),
    Plain(u"COVER_PATH", GetCoverPath),
    Plain(u"CREW", GetDPMappedCrew),
    Plain(u"CREW_CATEGORIES", GetOSVCrewCategories),
    Plain(u"DB_NAME", GetDbName),
    Plain(u"DB_OWNER", GetDbSetting, u"Owner"),
    Plain(u"DB_SCHEMA", GetDbSetting, u"Schema"),
    Guarded(u"EPISODES", GetOSVEpisodes, u"GetOSVEpisodes", u"EPISODES"),
    Guarded(u"EVENTS", GetOSVEvents, u"GetOSVEvents", u"EVENTS"),
    Plain(u"HEADSHOT_DISPLAY", GetHeadshotDisplay),
    Plain(u"HEADSHOT_PATH", GetHeadshotPath),
    Guarded(u"ORIGINAL_SORTTITLE", GetOSVOriginalSortTitle, u"GetOSVOriginalSortTitle", u"ORIGINALTITLE"),
    Guarded(u"PARENT", GetOSVParent, u"GetOSVParent", u"PARENT"),
    Plain(u"SKIN_NAME", GetSkinName),
    Plain(u"TRANSLATION", GetTranslation),
    Plain(u"TAGS", GetOSVTags),
};

} // namespace

std::span<const SkinTag> SkinTags() {
    return kTags;
}

const SkinTag *FindSkinTag(QStringView upper_name) {
    const auto *found = std::find_if(std::begin(kTags), std::end(kTags),
                                     [&](const SkinTag &tag) { return upper_name == QStringView(tag.name); });
    return found == std::end(kTags) ? nullptr : found;
}

QString EvaluateSkinTag(const QString &upper_name, TagCall call) {
    const SkinTag *tag = FindSkinTag(upper_name);
    QString text;
    if (!tag || (tag->profiles_only && call.is_episode)) {
        return text;
    }
    call.argument = QString::fromUtf16(tag->argument);
    if (!tag->log_name) {
        tag->producer(call, text);
        return text;
    }
    Guard(call, QString::fromUtf16(tag->log_name), QString::fromUtf16(tag->box_title),
          [&] { tag->producer(call, text); });
    return text;
}

} // namespace ostrand
