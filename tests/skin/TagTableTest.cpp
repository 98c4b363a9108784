#include "skin/TagTable.h"

#include "SkinFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr bool kProfilesOnly = true;

struct Told {
    QString name;
    QString argument = {};
    QString log_name = {};
    QString box_title = {};
    bool profiles_only = false;
};

/// In the order in which names are compared.
const std::vector<Told> &ToldTags() {
    static const std::vector<Told> tags = {
        {u"HEADER_VARS"_s},
        {u"16X9"_s},
        {u"AUDIOTRACKS"_s, {}, u"GetDPAudioFormats"_s, u"AUDIOTRACKS"_s},
        {u"BOXSETCONTENTS"_s, {}, u"GetDPBoxsetContent"_s, u"BOXSETCONTENTS"_s},
        {u"CASETYPE"_s, u"CaseType"_s, {}, {}, kProfilesOnly},
        {u"CAST"_s, {}, u"GetDPCast"_s, u"CAST"_s},
        {u"ACTORS"_s, {}, u"GetDPCast"_s, u"CAST"_s},
        {u"CREW_ART"_s, u"Art"_s},
        {u"CREDITS_ART"_s, u"Art"_s},
        {u"CREW_CINEMATOGRAPHY"_s, u"Cinematography"_s},
        {u"CREDITS_CINEMATOGRAPHY"_s, u"Cinematography"_s},
        {u"CREW_DIRECTION"_s, u"Direction"_s},
        {u"CREDITS_DIRECTION"_s, u"Direction"_s},
        {u"DIRECTORS"_s, u"Direction"_s},
        {u"CREW_FILMEDITING"_s, u"Film Editing"_s},
        {u"CREDITS_FILMEDITING"_s, u"Film Editing"_s},
        {u"CREW_MUSIC"_s, u"Music"_s},
        {u"CREDITS_MUSIC"_s, u"Music"_s},
        {u"CREW_OTHER"_s, u"Other"_s},
        {u"CREW_PRODUCTION"_s, u"Production"_s},
        {u"CREDITS_PRODUCTION"_s, u"Production"_s},
        {u"CREW_SOUND"_s, u"Sound"_s},
        {u"CREDITS_SOUND"_s, u"Sound"_s},
        {u"CREW_WRITING"_s, u"Writing"_s},
        {u"CREDITS_WRITING"_s, u"Writing"_s},
        {u"COLLNUM"_s, u"ColNo"_s, {}, {}, kProfilesOnly},
        {u"CUSTOM_TITLE"_s, {}, u"GetOSVCustomTitle"_s, u"CUSTOM_TITLE"_s},
        {u"DISCS"_s, {}, u"GetDPDiscs"_s, u"DISCS"_s, kProfilesOnly},
        {u"DISTRIBUTOR"_s},
        {u"MEDIA_PUBLISHER"_s},
        {u"EASTEREGGS"_s, u"EasterEggs"_s, {}, {}, kProfilesOnly},
        {u"FEATURES"_s, u"Features"_s},
        {u"GENRES"_s, u"Genres"_s},
        {u"IMAGE"_s, {}, u"GetDPImage"_s, u"IMAGE"_s},
        {u"LAST_WATCHED_BY"_s, u"UserID"_s, u"GetDPLastWatched"_s, u"LASTWATCHED"_s},
        {u"LAST_WATCHED_ON"_s, u"EventTimestamp"_s, u"GetDPLastWatched"_s, u"LASTWATCHED"_s},
        {u"LAYERS"_s, {}, u"GetDPSidesLayers"_s, u"SIDES_LAYERS"_s},
        {u"LOANDUE"_s, {}, u"GetDPLoanedDue"_s, u"LOANEDDUE"_s},
        {u"LOANEDTO"_s},
        {u"LOCALITY"_s, u"Locality"_s, {}, {}, kProfilesOnly},
        {u"LOCK_AUDIOTRACKS"_s, u"AudioTracks"_s},
        {u"LOCK_CASETYPE"_s, u"CaseType"_s},
        {u"LOCK_CAST"_s, u"Cast"_s},
        {u"LOCK_COVERIMAGES"_s, u"Covers"_s},
        {u"LOCK_CREW"_s, u"Crew"_s},
        {u"LOCK_DISCINFO"_s, u"Discs"_s, {}, {}, kProfilesOnly},
        {u"LOCK_EASTEREGGS"_s, u"EasterEggs"_s},
        {u"LOCK_ENTIRE"_s, u"Entire"_s},
        {u"LOCK_FEATURES"_s, u"Features"_s},
        {u"LOCK_GENRES"_s, u"Genres"_s},
        {u"LOCK_OVERVIEW"_s, u"Overview"_s},
        {u"LOCK_PRODUCTIONYEAR"_s, u"ProductionYear"_s},
        {u"LOCK_RATING"_s, u"Rating"_s},
        {u"LOCK_REGIONS"_s, u"Regions"_s, {}, {}, kProfilesOnly},
        {u"LOCK_RELEASEDATE"_s, u"ReleaseDate"_s, {}, {}, kProfilesOnly},
        {u"LOCK_RUNNINGTIME"_s, u"RunningTime"_s},
        {u"LOCK_SRP"_s, u"SRPInfo"_s},
        {u"LOCK_STUDIOS"_s, u"Studios"_s},
        {u"LOCK_SUBTITLES"_s, u"Subtitles"_s},
        {u"LOCK_TITLE"_s, u"Title"_s},
        {u"LOCK_VIDEOFORMATS"_s, u"VideoFormats"_s},
        {u"MEDIA_COMPANIES"_s, u"Media Company"_s},
        {u"MEDIA_TYPE"_s, u"Medium"_s, {}, {}, kProfilesOnly},
        {u"MEDIUM"_s, u"Medium"_s, {}, {}, kProfilesOnly},
        {u"NOTES"_s, u"Notes"_s},
        {u"ORIGINAL_TITLE"_s, {}, u"GetDPOriginalTitle"_s, u"ORIGINAL_TITLE"_s},
        {u"OVERVIEW"_s, u"Overview"_s},
        {u"OWNERSHIP"_s},
        {u"STATUS"_s},
        {u"PRODYEAR"_s, u"ProdYear"_s, {}, {}, kProfilesOnly},
        {u"PROGRAM_BUILD"_s},
        {u"PROGRAM_LANGUAGE"_s},
        {u"PROGRAM_LOCATION"_s},
        {u"PROGRAM_VERSION"_s},
        {u"PURCHDATE"_s, {}, {}, {}, kProfilesOnly},
        {u"PURCHPLACE"_s, {}, {}, {}, kProfilesOnly},
        {u"PURCHPRICE"_s, {}, {}, {}, kProfilesOnly},
        {u"RATING"_s, {}, u"GetDPRating"_s, u"RATING"_s},
        {u"REGION"_s, {}, u"GetDPRegions"_s, u"REGIONS"_s, kProfilesOnly},
        {u"REGIONS"_s, {}, u"GetDPRegions"_s, u"REGIONS"_s, kProfilesOnly},
        {u"RELDATE"_s, {}, u"GetDPReleaseDate"_s, u"RELEASEDATE"_s},
        {u"REVIEW"_s, {}, u"GetDPReview"_s, u"REVIEW"_s},
        {u"RUNTIME"_s, {}, u"GetDPRuntime"_s, u"RUNTIME"_s},
        {u"SIDES"_s, {}, u"GetDPSidesLayers"_s, u"SIDES_LAYERS"_s},
        {u"SORTTITLE"_s, u"SortTitle"_s, {}, {}, kProfilesOnly},
        {u"SRP"_s, {}, u"GetDPSRP"_s, u"SRP"_s, kProfilesOnly},
        {u"STUDIOS"_s},
        {u"SUBTITLES"_s, u"Subtitles"_s},
        {u"TITLE"_s, {}, u"GetDPTitle"_s, u"TITLE"_s},
        {u"UPC"_s, {}, u"GetDPUPC"_s, u"UPC"_s},
        {u"VIDFORMATS"_s, {}, u"GetDPVidFormats"_s, u"VIDFORMATS"_s},
        {u"VIDSTANDARD"_s},
        {u"ADDITIONAL_INFO"_s},
        {u"AWARDS"_s, {}, u"GetOSVAwards"_s, u"AWARDS"_s},
        {u"BARCODE"_s, {}, {}, {}, kProfilesOnly},
        {u"OSV_HEADER_VARS"_s, {}, u"GetOSVHeaderVars"_s, u"OSV_HEADER_VARS"_s},
        {u"COUNTRY_OF_ORIGIN"_s, u"CountryOfOrigin"_s, {}, {}, kProfilesOnly},
        {u"COUNTRY_ORIGIN"_s, u"CountryOfOrigin"_s, {}, {}, kProfilesOnly},
        {u"COVER_PATH"_s},
        {u"CREW"_s},
        {u"CREW_CATEGORIES"_s},
        {u"DB_NAME"_s},
        {u"DB_OWNER"_s, u"Owner"_s},
        {u"DB_SCHEMA"_s, u"Schema"_s},
        {u"EPISODES"_s, {}, u"GetOSVEpisodes"_s, u"EPISODES"_s},
        {u"EVENTS"_s, {}, u"GetOSVEvents"_s, u"EVENTS"_s},
        {u"HEADSHOT_DISPLAY"_s},
        {u"HEADSHOT_PATH"_s},
        {u"ORIGINAL_SORTTITLE"_s, {}, u"GetOSVOriginalSortTitle"_s, u"ORIGINALTITLE"_s},
        {u"PARENT"_s, {}, u"GetOSVParent"_s, u"PARENT"_s},
        {u"SKIN_NAME"_s},
        {u"TRANSLATION"_s},
        {u"TAGS"_s},
    };
    return tags;
}

QString Text(const char16_t *text) {
    return text ? QString::fromUtf16(text) : QString();
}

TEST(TagTable, HoldsWhatIsTold) {
    const std::span<const SkinTag> tags = SkinTags();
    ASSERT_EQ(tags.size(), ToldTags().size());
    for (size_t i = 0; i < tags.size(); ++i) {
        const Told &told = ToldTags()[i];
        const std::string name = told.name.toStdString();
        EXPECT_EQ(Text(tags[i].name), told.name);
        EXPECT_EQ(Text(tags[i].argument), told.argument) << name;
        EXPECT_EQ(Text(tags[i].log_name), told.log_name) << name;
        EXPECT_EQ(Text(tags[i].box_title), told.box_title) << name;
        EXPECT_EQ(tags[i].profiles_only, told.profiles_only) << name;
        EXPECT_NE(tags[i].producer, nullptr) << name;
    }
}

TEST(TagTable, NamesAreFoundOnceAndExactly) {
    QStringList names;
    for (const SkinTag &tag : SkinTags()) {
        names += Text(tag.name);
        EXPECT_EQ(FindSkinTag(names.last()), &tag) << qPrintable(names.last());
    }
    EXPECT_EQ(names.removeDuplicates(), 0);
    for (const QString &name : {u"title"_s, u"TITLE "_s, u"TITL"_s, QString(), u"CREDITS_OTHER"_s, u"AWARDS_LIST"_s}) {
        EXPECT_EQ(FindSkinTag(name), nullptr) << qPrintable(name);
    }
}

class TagEvaluation : public SkinTest {
protected:
    QString Evaluate(const QString &name, const sql::Recordset &row, bool is_episode) {
        return EvaluateSkinTag(name, {session, skin, options, row, {}, is_episode, u"<DP NAME=\"%1\">"_s.arg(name)});
    }
};

TEST_F(TagEvaluation, TagsOfProfilesAreEmptyForAnEpisode) {
    const sql::Recordset row = Row(u"E1"_s, true);
    for (const Told &told : ToldTags()) {
        if (told.profiles_only) {
            EXPECT_EQ(Evaluate(told.name, row, true), QString()) << told.name.toStdString();
        }
    }
}

TEST_F(TagEvaluation, UnknownNamesAreEmpty) {
    for (const QString &name : {u"CREDITS_OTHER"_s, u"AWARDS_LIST"_s, u"NONE"_s, QString()}) {
        EXPECT_EQ(Evaluate(name, Row(), false), QString()) << qPrintable(name);
    }
}

TEST_F(TagEvaluation, FieldsShowTheirColumns) {
    const struct {
        QString name, text;
    } cases[] = {
        {u"CASETYPE"_s, u"Keep Case"_s},
        {u"COLLNUM"_s, u"7"_s},
        {u"MEDIA_TYPE"_s, u"DVD"_s},
        {u"MEDIUM"_s, u"DVD"_s},
        {u"PRODYEAR"_s, u"1999"_s},
        {u"SORTTITLE"_s, u"Amber, The"_s},
        {u"COUNTRY_ORIGIN"_s, u"Italy"_s},
        {u"COUNTRY_OF_ORIGIN"_s, u"Italy"_s},
        {u"EASTEREGGS"_s, {}},
        {u"LOCALITY"_s, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Evaluate(c.name, Row(), false), c.text) << qPrintable(c.name);
    }
    EXPECT_EQ(Evaluate(u"OVERVIEW"_s, Row(u"E1"_s, true), true), u"Rain"_s);
    EXPECT_EQ(Evaluate(u"NOTES"_s, Row(u"E1"_s, true), true), u"Wind"_s);
}

TEST_F(TagEvaluation, AGuardTellsTheFailureAndKeepsWhatWasWritten) {
    Log(kTraceError);
    const sql::Recordset row = Row();
    const TagCall call{session, skin, options, row, u"Key_1"_s, false, u"<DP NAME=\"X\" Flag=\"maybe\">"_s};
    QString text;
    Expect(u"Type mismatch: Flag=\"maybe\""_s, u"CAST"_s, MessageIcon::Warning);
    Guard(call, u"GetDPCast"_s, u"CAST"_s, [&] {
        text = u"until here"_s;
        text += call.Flag(u"Flag", false) ? u"1"_s : u"0"_s;
    });
    EXPECT_EQ(text, u"until here"_s);
    Expect({}, u"EVENTS"_s, MessageIcon::Warning);
    Guard(call, u"GetOSVEvents"_s, u"EVENTS"_s, [&] { call.Rows(u"SELECT FROM nowhere"_s); });
    const QStringList log = LogLines();
    ASSERT_EQ(log.size(), 2);
    EXPECT_TRUE(log[0].contains(u"GetDPCast: Type mismatch: Flag=\"maybe\""_s)) << qPrintable(log[0]);
    EXPECT_TRUE(log[1].contains(u"GetOSVEvents: "_s)) << qPrintable(log[1]);
}

} // namespace
} // namespace ostrand
