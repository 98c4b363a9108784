// What a page becomes when the data or the attributes of a tag are not what they should be.

#include "SkinFixture.h"
#include "skin/TagTable.h"

#include <QDir>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TagFailures : public SkinTest {
protected:
    void SetUp() override {
        SkinTest::SetUp();
        for (const char16_t *statement : {
                 u"INSERT INTO Users (UserID) VALUES ('Ann')",
                 u"INSERT INTO CastCrew (ProfileID, Name, Role, IsCast, BirthYear, Position) VALUES ('Key_1', 'Mara "
                 u"Hale', 'Tree', True, 0, 1)",
                 u"INSERT INTO CastCrew (ProfileID, Name, Role, IsCast, BirthYear, Position) VALUES ('Key_1', 'Bo "
                 u"Mire', 'Art', False, 0, 2)",
                 u"INSERT INTO Events (EventID, ProfileID, UserID, EventType, EventTimeStamp) VALUES (1, 'Key_1', "
                 u"'Ann', 'Watched', #3/5/2020#)",
                 u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('Key_1', 1, 'Film')",
                 u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language) VALUES ('Key_1', 1, 'English')",
                 u"INSERT INTO VideoFormat (ProfileID, FullFrame) VALUES ('Key_1', True)",
                 u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_2', 'Key_1')",
                 u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_1', 'Key_2')",
                 u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Won) VALUES ('Leaf', 1999, 'Film', 'Ambre', "
                 u"True)",
                 u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_1', 'E1')",
                 u"INSERT INTO Genres (ProfileID, Genre) VALUES ('Key_1', 'Drama')",
                 u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('Key_1', 'Oak', 'Production')",
                 u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('Key_1', 'Shelf', 'Room/Shelf')",
                 u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_1', 'Box', 'A')",
             }) {
            ASSERT_EQ(Run(statement), 1) << qPrintable(QString::fromUtf16(statement));
        }
        SetColumn(u"Key_1"_s, u"ColType"_s, u"Lent"_s);
        Log(kTraceError);
    }
    void Drop(std::initializer_list<const char16_t *> tables) {
        for (const char16_t *table : tables) {
            Run(u"DROP TABLE "_s + QString::fromUtf16(table));
        }
    }
    /// The line that the failure wrote into the log, without what stands in front of the name.
    QString LastLog(const QString &log_name) const {
        const QString line = LogLines().value(LogLines().size() - 1);
        const qsizetype at = line.indexOf(log_name + u": "_s);
        return at < 0 ? line : line.mid(at);
    }

    RecordingView view;
};

/// A tag whose producer has a guard.
struct GuardedTag {
    QString tag;
    QString title;
    QString log_name;
};

TEST_F(TagFailures, OfAStatementAreToldInABoxAndThePageGoesOn) {
    Drop({u"CastCrew", u"Regions", u"SRPInfo", u"Discs", u"VideoFormat", u"AudioFormats", u"BoxSet", u"Events",
          u"LoanInfo", u"Reviews", u"Awards", u"Profile2Episodes"});
    const GuardedTag cases[] = {
        {u"<DP NAME=\"CAST\">"_s, u"CAST"_s, u"GetDPCast"_s},
        {u"<DP NAME=\"ACTORS\">"_s, u"CAST"_s, u"GetDPCast"_s},
        {u"<DP NAME=\"CREW_ART\">"_s, u"CREW_Art"_s, u"GetDPCrew"_s},
        {u"<DP NAME=\"CREDITS_FILMEDITING\">"_s, u"CREW_Film Editing"_s, u"GetDPCrew"_s},
        {u"<OSV NAME=\"CREW\">"_s, u"CREW_"_s, u"GetDPCrew"_s},
        {u"<OSV NAME=\"CREW\" Category=\"Sets\">"_s, u"CREW_Sets"_s, u"GetDPCrew"_s},
        {u"<DP NAME=\"REGIONS\">"_s, u"REGIONS"_s, u"GetDPRegions"_s},
        {u"<DP NAME=\"REGION\">"_s, u"REGIONS"_s, u"GetDPRegions"_s},
        {u"<DP NAME=\"SRP\">"_s, u"SRP"_s, u"GetDPSRP"_s},
        {u"<DP NAME=\"SIDES\">"_s, u"SIDES_LAYERS"_s, u"GetDPSidesLayers"_s},
        {u"<DP NAME=\"LAYERS\">"_s, u"SIDES_LAYERS"_s, u"GetDPSidesLayers"_s},
        {u"<DP NAME=\"VIDFORMATS\">"_s, u"VIDFORMATS"_s, u"GetDPVidFormats"_s},
        {u"<DP NAME=\"AUDIOTRACKS\">"_s, u"AUDIOTRACKS"_s, u"GetDPAudioFormats"_s},
        {u"<DP NAME=\"BOXSETCONTENTS\">"_s, u"BOXSETCONTENTS"_s, u"GetDPBoxsetContent"_s},
        {u"<OSV NAME=\"PARENT\">"_s, u"PARENT"_s, u"GetOSVParent"_s},
        {u"<DP NAME=\"LAST_WATCHED_BY\">"_s, u"LASTWATCHED"_s, u"GetDPLastWatched"_s},
        {u"<DP NAME=\"LAST_WATCHED_ON\">"_s, u"LASTWATCHED"_s, u"GetDPLastWatched"_s},
        {u"<DP NAME=\"LOANDUE\">"_s, u"LOANEDDUE"_s, u"GetDPLoanedDue"_s},
        {u"<DP NAME=\"DISCS\">"_s, u"DISCS"_s, u"GetDPDiscs"_s},
        {u"<DP NAME=\"REVIEW\">"_s, u"REVIEW"_s, u"GetDPReview"_s},
        {u"<OSV NAME=\"AWARDS\" IfNoAwards=\"none\">"_s, u"AWARDS"_s, u"GetOSVAwards"_s},
        {u"<OSV NAME=\"EPISODES\">"_s, u"EPISODES"_s, u"GetOSVEpisodes"_s},
        {u"<OSV NAME=\"EVENTS\">"_s, u"EVENTS"_s, u"GetOSVEvents"_s},
    };
    for (const GuardedTag &c : cases) {
        const size_t boxes = services.dialogs.messages.size();
        Expect({}, c.title, MessageIcon::Warning);
        EXPECT_EQ(Page(u"a"_s + c.tag + u"b<DP NAME=\"MEDIUM\">"_s), u"abDVD"_s) << qPrintable(c.tag);
        ASSERT_EQ(services.dialogs.messages.size(), boxes + 1) << qPrintable(c.tag);
        const QString told = services.dialogs.messages.back().text;
        EXPECT_FALSE(told.isEmpty()) << qPrintable(c.tag);
        EXPECT_EQ(LastLog(c.log_name), c.log_name + u": "_s + told) << qPrintable(c.tag);
    }
}

TEST_F(TagFailures, OfTheRowAreToldInABoxAndThePageGoesOn) {
    const GuardedTag cases[] = {
        {u"<DP NAME=\"TITLE\">"_s, u"TITLE"_s, u"GetDPTitle"_s},
        {u"<DP NAME=\"ORIGINAL_TITLE\">"_s, u"ORIGINAL_TITLE"_s, u"GetDPOriginalTitle"_s},
        {u"<OSV NAME=\"ORIGINAL_SORTTITLE\">"_s, u"ORIGINALTITLE"_s, u"GetOSVOriginalSortTitle"_s},
        {u"<DP NAME=\"CUSTOM_TITLE\">"_s, u"CUSTOM_TITLE"_s, u"GetOSVCustomTitle"_s},
        {u"<DP NAME=\"RATING\">"_s, u"RATING"_s, u"GetDPRating"_s},
        {u"<DP NAME=\"UPC\">"_s, u"UPC"_s, u"GetDPUPC"_s},
        {u"<DP NAME=\"RUNTIME\">"_s, u"RUNTIME"_s, u"GetDPRuntime"_s},
        {u"<DP NAME=\"RELDATE\">"_s, u"RELEASEDATE"_s, u"GetDPReleaseDate"_s},
    };
    for (const GuardedTag &c : cases) {
        Expect({}, c.title, MessageIcon::Warning);
        EXPECT_EQ(Page(u"a"_s + c.tag + u"b<OSV NAME=\"DB_SCHEMA\">"_s, u"Key_none"_s), u"ab90"_s) << qPrintable(c.tag);
        EXPECT_TRUE(LastLog(c.log_name).startsWith(c.log_name + u": "_s)) << qPrintable(c.tag);
    }
}

TEST_F(TagFailures, OfTheLargeCoverAreToldInABox) {
    session.CoverPath = folder_.Path() + u"/covers/"_s;
    folder_.Write(u"covers/1f.jpg"_s, "x");
    folder_.Write(u"file"_s, "x");
    session.TempFolder = Path(u"file"_s) + u"/Temp"_s;
    Expect({}, u"IMAGE"_s, MessageIcon::Warning);
    EXPECT_EQ(Page(u"a<DP NAME=\"IMAGE\">b"_s), u"ab"_s);
    EXPECT_TRUE(LastLog(u"GetDPImage"_s).startsWith(u"GetDPImage: "_s));
}

TEST_F(TagFailures, LeaveWhatWasWrittenUntilThen) {
    Drop({u"Awards", u"Alias"});
    Expect({}, u"OSV_HEADER_VARS"_s, MessageIcon::Warning);
    const QString script = Page(u"<OSV NAME=\"OSV_HEADER_VARS\">|<DP NAME=\"MEDIUM\">"_s);
    EXPECT_TRUE(script.contains(u"function OSV_AwardEntry("_s)) << qPrintable(script);
    EXPECT_FALSE(script.contains(u"OSV_IsEpisode"_s)) << qPrintable(script);
    EXPECT_TRUE(script.endsWith(u"|DVD"_s)) << qPrintable(script);
    EXPECT_TRUE(LastLog(u"GetOSVHeaderVars"_s).startsWith(u"GetOSVHeaderVars: "_s));
    Expect({}, u"CAST"_s, MessageIcon::Warning);
    EXPECT_EQ(Page(u"<DP NAME=\"CAST\" UseCommonName=\"yes\">|<DP NAME=\"MEDIUM\">"_s), u"<NOBREAK>|DVD"_s);
}

TEST_F(TagFailures, AreToldByTheEvaluationOfATag) {
    Drop({u"Events"});
    const sql::Recordset row = Row();
    for (const QString &tag : {u"<OSV NAME=\"EVENTS\">"_s, u"<dp name=\"events\" />"_s}) {
        Expect({}, u"EVENTS"_s, MessageIcon::Warning);
        EXPECT_EQ(EvaluateSkinTag(u"EVENTS"_s, {session, skin, options, row, u"Key_1"_s, false, tag}), QString());
        EXPECT_TRUE(services.dialogs.messages.back().text.contains(u"Events"_s))
            << qPrintable(services.dialogs.messages.back().text);
    }
}

TEST_F(TagFailures, AreToldForEachPlaceOfTheTag) {
    Drop({u"Events"});
    Expect({}, u"EVENTS"_s, MessageIcon::Warning);
    Expect({}, u"EVENTS"_s, MessageIcon::Warning);
    EXPECT_EQ(Page(u"[<OSV NAME=\"EVENTS\">][<OSV NAME=\"EVENTS\">]"_s), u"[][]"_s);
}

TEST_F(TagFailures, OfTagsWithoutAGuardEndTheRenderSilently) {
    Drop({u"Genres", u"Features", u"Subtitles", u"Studios", u"Tags", u"Locks", u"PurchaseInfo", u"VideoFormat",
          u"LoanInfo", u"AdditionalInfo", u"Alias"});
    for (const QString &tag :
         {u"<DP NAME=\"GENRES\">"_s, u"<DP NAME=\"FEATURES\">"_s, u"<DP NAME=\"SUBTITLES\">"_s,
          u"<DP NAME=\"STUDIOS\">"_s, u"<DP NAME=\"MEDIA_COMPANIES\">"_s, u"<DP NAME=\"DISTRIBUTOR\">"_s,
          u"<OSV NAME=\"TAGS\">"_s, u"<DP NAME=\"LOCK_CAST\">"_s, u"<DP NAME=\"PURCHDATE\">"_s,
          u"<DP NAME=\"PURCHPLACE\">"_s, u"<DP NAME=\"PURCHPRICE\">"_s, u"<DP NAME=\"16X9\">"_s,
          u"<DP NAME=\"VIDSTANDARD\">"_s, u"<DP NAME=\"LOANEDTO\">"_s, u"<OSV NAME=\"ADDITIONAL_INFO\">"_s,
          u"<DP NAME=\"HEADER_VARS\">"_s, u"<OSV NAME=\"HEADSHOT_DISPLAY\" CreditName=\"Bo Mire\">"_s}) {
        const QString page = u"<DP NAME=\"MEDIUM\">"_s + tag;
        EXPECT_THROW(Page(page), sql::SqlError) << qPrintable(tag);
        EXPECT_TRUE(ShowSkinPage(session, skin, view, {}, u"Plain"_s, u"Key_1"_s, false, u"Key_2"_s, page));
        EXPECT_EQ(test::ReadTestFile(session.TempFolder + u"/Temp.html"_s), "\xEF\xBB\xBF" + page.toUtf8());
    }
    EXPECT_TRUE(services.dialogs.messages.empty());
}

TEST_F(TagFailures, OfATruthValueShowOneBoxAndLeaveTheTagEmpty) {
    const struct {
        QString tag, title;
        QStringList attributes;
    } cases[] = {
        {u"TITLE"_s, u"TITLE"_s, {u"ShowTitle"_s, u"ShowDesc"_s, u"UseOriginalTitleIfBlank"_s}},
        {u"ORIGINAL_TITLE"_s, u"ORIGINAL_TITLE"_s, {u"UseTitleIfBlank"_s, u"ShowDesc"_s}},
        {u"CUSTOM_TITLE"_s, u"CUSTOM_TITLE"_s, {u"UseTitleIfBlank"_s, u"UseOriginalTitleIfBlank"_s, u"ShowDesc"_s}},
        {u"ORIGINAL_SORTTITLE"_s, u"ORIGINALTITLE"_s, {u"UseSortTitleIfBlank"_s}},
        {u"RATING"_s, u"RATING"_s, {u"ShowDetails"_s}},
        {u"UPC"_s, u"UPC"_s, {u"Formatted"_s, u"BarcodeEncoding"_s}},
        {u"RUNTIME"_s, u"RUNTIME"_s, {u"TotalInMins"_s, u"MinsOnly"_s, u"HoursOnly"_s}},
        {u"RELDATE"_s, u"RELEASEDATE"_s, {u"YearOnly"_s}},
        {u"VIDFORMATS"_s, u"VIDFORMATS"_s, {u"Ratios"_s}},
        {u"AUDIOTRACKS"_s, u"AUDIOTRACKS"_s, {u"Translate"_s}},
        {u"DISCS"_s,
         u"DISCS"_s,
         {u"ShowDiscIDs"_s, u"ShowSides"_s, u"ShowLabels"_s, u"ShowSlots"_s, u"ShowLocations"_s, u"ShowDescriptions"_s,
          u"ShowDescriptions=\"yes\" ShowSides=\"yes\" Translate"_s}},
        {u"BOXSETCONTENTS"_s, u"BOXSETCONTENTS"_s, {u"ShowUPCs"_s, u"ShowCovers"_s}},
        {u"PARENT"_s, u"PARENT"_s, {u"ShowUPCs"_s, u"ShowCover"_s}},
        {u"CAST"_s,
         u"CAST"_s,
         {u"ShowRoles"_s, u"RolesFirst"_s, u"RoleDivIfBlank"_s, u"RoleTypes"_s, u"ColorNames"_s, u"ShowHeadshot"_s,
          u"HeadshotRight"_s, u"UseCommonName"_s, u"AsCredited"_s, u"ShowNoDividers"_s, u"ShowBirthYears"_s}},
        {u"CREW_ART"_s,
         u"CREW_Art"_s,
         {u"ShowRoles"_s, u"RolesFirst"_s, u"ColorNames"_s, u"ShowHeadshot"_s, u"HeadshotRight"_s, u"UseCommonName"_s,
          u"AsCredited"_s, u"ShowNoDividers"_s, u"ShowBirthYears"_s}},
        {u"AWARDS"_s,
         u"AWARDS"_s,
         {u"GetAwardList"_s, u"ShowAwardName"_s, u"ShowCategory"_s, u"ShowYear"_s, u"ShowNominees"_s,
          u"NameAwardOnce"_s, u"ColorNames"_s, u"ShowHeadshot"_s, u"HeadshotRight"_s}},
        {u"EVENTS"_s, u"EVENTS"_s, {u"ShowType"_s, u"GroupNames"_s, u"Translate"_s}},
        {u"EPISODES"_s, u"EPISODES"_s, {u"ShowEpNumber"_s, u"ShowTitle"_s, u"UseOriginalTitle"_s, u"ShowAirDate"_s}},
        {u"OSV_HEADER_VARS"_s,
         u"OSV_HEADER_VARS"_s,
         {u"IncludeAwards"_s, u"IncludeAudio"_s, u"IncludeAdditionalInfo"_s, u"IncludeLinks"_s, u"IncludeEvents"_s,
          u"IncludeCast"_s, u"IncludeCrew"_s, u"IncludeFeatures"_s}},
    };
    for (const auto &c : cases) {
        for (const QString &attribute : c.attributes) {
            const QString page = u"[<DP NAME=\"%1\" %2=\"perhaps\">]<DP NAME=\"MEDIUM\">"_s.arg(c.tag, attribute);
            Expect(u"Type mismatch: %1=\"perhaps\""_s.arg(attribute.section(u' ', -1)), c.title, MessageIcon::Warning);
            EXPECT_EQ(Page(page), u"[]DVD"_s) << qPrintable(page);
        }
    }
    EXPECT_EQ(services.dialogs.Pending(), 0U);
}

TEST_F(TagFailures, OfATruthValueWithoutAGuardEndTheRender) {
    for (const QString &tag :
         {u"GENRES\" Translate"_s, u"STUDIOS\" ShowType"_s, u"STUDIOS\" Translate"_s, u"TAGS\" UseFullName"_s,
          u"TAGS\" RemoveParents"_s, u"OWNERSHIP\" Translate"_s, u"ADDITIONAL_INFO\" Translate"_s,
          u"CASETYPE\" Translate"_s, u"LOCALITY\" Translate"_s, u"COUNTRY_ORIGIN\" Translate"_s,
          u"HEADER_VARS\" Comments"_s, u"HEADER_VARS\" IncludeCast"_s}) {
        EXPECT_THROW(Page(u"<DP NAME=\""_s + tag + u"=\"perhaps\">"_s), SkinFailure) << qPrintable(tag);
    }
}

TEST_F(TagFailures, ANumberThatIsNoneIsTheDefault) {
    const struct {
        QString tag, as;
    } cases[] = {
        {u"CAST\" MaxList=\"many"_s, u"CAST"_s},
        {u"CREW_ART\" MaxList=\"x1"_s, u"CREW_ART"_s},
        {u"VIDFORMATS\" MaxList=\"-"_s, u"VIDFORMATS"_s},
        {u"RELDATE\" YearOnly=\"yes\" YearDigits=\"four"_s, u"RELDATE\" YearOnly=\"yes"_s},
        {u"REVIEW\" Width=\"wide"_s, u"REVIEW"_s},
        {u"HEADSHOT_DISPLAY\" CreditName=\"Bo Mire\" BirthYear=\"old"_s, u"HEADSHOT_DISPLAY\" CreditName=\"Bo Mire"_s},
    };
    Run(u"INSERT INTO Reviews (ProfileID, Film) VALUES ('Key_1', 3)");
    SetColumn(u"Key_1"_s, u"Released"_s, u"2001-03-04"_s);
    for (const auto &c : cases) {
        const auto page = [&](const QString &tag) { return Page(u"<DP NAME=\""_s + tag + u"\">"_s); };
        EXPECT_EQ(page(c.tag), page(c.as)) << qPrintable(c.tag);
    }
    EXPECT_EQ(Page(u"<DP NAME=\"RELDATE\" YearOnly=\"yes\" YearDigits=\"4\">"_s), u"2001"_s);
}

} // namespace
} // namespace ostrand
