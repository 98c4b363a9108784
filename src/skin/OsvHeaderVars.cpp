#include "skin/OsvHeaderVars.h"
#include "skin/HeaderVars.h"
#include "skin/SkinTags.h"

#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct OsvParts {
    bool awards, audio, infos, links, events, cast, crew, features;
};

OsvParts ReadParts(const TagCall &call) {
    return {.awards = call.Flag(u"IncludeAwards", true),
            .audio = call.Flag(u"IncludeAudio", false),
            .infos = call.Flag(u"IncludeAdditionalInfo", false),
            .links = call.Flag(u"IncludeLinks", false),
            .events = call.Flag(u"IncludeEvents", false),
            .cast = call.Flag(u"IncludeCast", false),
            .crew = call.Flag(u"IncludeCrew", false),
            .features = call.Flag(u"IncludeFeatures", false)};
}

void WriteTypes(const OsvParts &parts, ScriptWriter &script) {
    const struct {
        bool wanted;
        QString signature;
    } types[] = {
        {parts.cast, u"OSV_CastEntry(name, role, voice, uncredited, creditonly, creditedAs, hasImage, birthYear)"_s},
        {parts.crew, u"OSV_CrewEntry(name, creditType, creditSubtype, creditedAs, hasImage, birthYear)"_s},
        {parts.awards, u"OSV_AwardEntry(awardName, awardYear, awardCategory, movieTitle, hasWon, nomineesEntry)"_s},
        {parts.audio, u"OSV_AudioTrack(audioLanguage, audioLanguage_Translated, audioCompression, audioChannels)"_s},
        {parts.infos, u"OSV_AdditionalInfo(infoName, infoValue, infoType)"_s},
        {parts.links, u"OSV_Link(linkName, linkURL)"_s},
        {parts.events, u"OSV_Event(eventType, eventDateTime, eventUser, eventComment)"_s},
    };
    for (const auto &type : types) {
        if (type.wanted) {
            script.Type(type.signature);
        }
    }
}

void WriteArrays(const TagCall &call, const OsvParts &parts, ScriptWriter &script) {
    if (parts.cast) {
        script.List(u"OSV_CastEntries"_s, OsvCast(call));
    }
    if (parts.crew) {
        script.List(u"OSV_CrewEntries"_s, OsvCrew(call));
    }
    if (parts.awards) {
        script.List(u"OSV_Awards"_s, OsvAwards(call));
    }
    if (parts.audio) {
        script.List(u"OSV_AudioTracks"_s, OsvAudioTracks(call));
    }
    if (parts.infos) {
        script.List(u"OSV_AdditionalInfos"_s, OsvAdditionalInfos(call));
    }
    if (parts.links) {
        script.List(u"OSV_Links"_s, OsvLinks(call));
    }
    if (parts.events) {
        script.List(u"OSV_Events"_s, OsvEvents(call));
    }
    if (parts.features) {
        script.Texts(u"OSV_Features"_s, KeyTexts(call, u"Features"_s, u"Feature"_s));
    }
}

void WriteTitles(const TagCall &call, ScriptWriter &script) {
    const auto text = [&](QStringView column) { return call.is_episode ? QString() : RowText(call, column); };
    script.Text(u"OSV_MediaType"_s, text(u"Medium"));
    script.Text(u"OSV_OriginalSortTitle"_s, text(u"OriginalSortTitle"));
    script.Text(u"OSV_CustomTitle"_s, text(u"CustomTitle"));
    script.Text(u"OSV_CustomSortTitle"_s, text(u"CustomSortTitle"));
    script.Flag(u"OSV_IsEpisode"_s, call.is_episode);
}

void WriteSurroundings(const TagCall &call, ScriptWriter &script) {
    const Session &session = call.session;
    const bool offline = call.options.offline;
    script.Text(u"OSV_ProgramPathHeadshots"_s, offline ? u"../Headshots/"_s : session.HeadshotPath);
    script.Flag(u"OSV_ExportedHTML"_s, offline);
    script.Flag(u"OSV_UseOriginalTitle"_s, offline ? call.options.use_original_title : session.view.mUseOriginalTitle);
    script.Flag(u"OSV_UseCustomTitle"_s, offline ? call.options.use_custom_title : session.view.mUseCustomTitle);
}

} // namespace

void GetOSVHeaderVars(const TagCall &call, QString &text) {
    const OsvParts parts = ReadParts(call);
    ScriptWriter script(text, false);
    WriteTypes(parts, script);
    WriteArrays(call, parts, script);
    WriteTitles(call, script);
    WriteSurroundings(call, script);
}

} // namespace ostrand
