// The variables as a script engine reads them back.
#include "HeaderVarsFixture.h"

#include <QJSEngine>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QString kEverything = u"IncludeCast=\"yes\" IncludeCrew=\"yes\" IncludeAwards=\"yes\" IncludeAudio=\"yes\" "
                            "IncludeAdditionalInfo=\"yes\" IncludeLinks=\"yes\" IncludeEvents=\"yes\" "
                            "IncludeFeatures=\"yes\""_s;

/// The line and paragraph separators may stand in texts since 2019, as they do in what is written. This engine does not
/// know that yet.
QString ForThisEngine(QString script) {
    return script.replace(u'\u2028', u"\\u2028"_s).replace(u'\u2029', u"\\u2029"_s);
}

class HeaderVarsScript : public test::HeaderVarsFixture {
protected:
    /// Runs all variables of the profile; the test fails where that is no script.
    void Evaluate() {
        for (const QString &text : {DPVars(kEverything), OSVVars(kEverything)}) {
            const QJSValue result = engine.evaluate(ForThisEngine(text));
            ASSERT_FALSE(result.isError())
                << result.toString().toStdString() << " in line " << result.property(u"lineNumber"_s).toInt() << "\n"
                << text.toStdString();
        }
    }
    QJSValue Read(const QString &expression) {
        const QJSValue value = engine.evaluate(expression);
        EXPECT_FALSE(value.isError()) << expression.toStdString() << ": " << value.toString().toStdString();
        return value;
    }
    /// A value for a statement that comes from outside.
    void Set(const QString &table, const QStringList &columns, const QString &text) {
        for (const QString &column : columns) {
            Run(u"UPDATE "_s + table + u" SET "_s + column + u" = '"_s + EscapeSql(text) + u'\'');
        }
    }
    void AddRows() {
        AddProfile();
        Run(u"INSERT INTO Genres VALUES ('Key_100.4', 'x')"_s);
        Run(u"INSERT INTO Subtitles VALUES ('Key_100.4', 'x')"_s);
        Run(u"INSERT INTO Studios VALUES ('Key_100.4', 'x', '')"_s);
        Run(u"INSERT INTO Tags VALUES ('Key_100.4', 'x', 'x')"_s);
        Run(u"INSERT INTO Features VALUES ('Key_100.4', 'x')"_s);
        Run(u"INSERT INTO AudioFormats VALUES ('Key_100.4', 1, 'x', 'x', 'x')"_s);
        Run(u"INSERT INTO Discs VALUES ('Key_100.4', 1, 'x', 'x', 'x', 'x', 'x', 'x', true, true, true, true, 'x', 'x')"_s);
        Run(u"INSERT INTO AdditionalInfo VALUES ('Key_100.4', 'x', 'x', 'Link')"_s);
        Run(u"INSERT INTO Users (UserID) VALUES ('Ada Lind')"_s);
        Run(u"INSERT INTO Events VALUES (1, 'Key_100.4', 'Ada Lind', 'x', #3/4/2013 20:01:02#, 'x')"_s);
        Run(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('x', 2000, 'x', 'x', true, 'x')"_s);
        const QString credit =
            u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, BirthYear, IsCast) VALUES ('Key_100.4', 'x', 'x', "_s;
        Run(credit + u"1, 1950, true)"_s);
        Run(credit + u"1, 1950, false)"_s);
    }

    QJSEngine engine;
};

const QStringList kTexts{
    u"A plain text"_s,
    u"It's \"quoted\""_s,
    u"back\\slash\\"_s,
    u"\\\"; alert(1); //"_s,
    u"two\r\nlines"_s,
    u"a carriage return\ralone\r"_s,
    u"tab\there"_s,
    u"\u0001\u0007\u000b\u001f\u007f"_s,
    u"line\u2028and\u2029paragraph"_s,
    u"emoji \U0001F3AC and \u00e6\u00f8\u00e5"_s,
    u"<b>&lt;</b></script><script>x</script>"_s,
    u"<!-- //-->"_s,
    u"*/ /* // ${x} `"_s,
};

TEST_F(HeaderVarsScript, GiveEveryTextBack) {
    AddRows();
    const QStringList variables{u"DP_UPC"_s,
                                u"DP_Locality"_s,
                                u"DP_Title"_s,
                                u"DP_RatingSystem"_s,
                                u"DP_Rating"_s,
                                u"DP_RatingDetails"_s,
                                u"DP_Edition"_s,
                                u"DP_CustomMediaType"_s,
                                u"DP_CountryOfOrigin"_s,
                                u"DP_CaseType"_s,
                                u"DP_CaseType_Translated"_s,
                                u"DP_FeatureOther"_s,
                                u"DP_Overview"_s,
                                u"DP_EasterEggs"_s,
                                u"DP_CustomCollectionTypeName"_s,
                                u"DP_CollectionNumber"_s,
                                u"DP_SortTitle"_s,
                                u"DP_Notes"_s,
                                u"DP_Genres[0]"_s,
                                u"DP_Genres_Translated[0]"_s,
                                u"DP_Subtitles[0]"_s,
                                u"DP_Subtitles_Translated[0]"_s,
                                u"DP_Studios[0]"_s,
                                u"DP_Tags[0]"_s,
                                u"DP_AudioTracks[0].audioContents"_s,
                                u"DP_AudioTracks[0].audioFormat"_s,
                                u"DP_AudioTracks[0].audioChannels"_s,
                                u"DP_Discs[0].descriptionSideA"_s,
                                u"DP_Discs[0].discIDSideB"_s,
                                u"DP_Discs[0].labelSideB"_s,
                                u"DP_Discs[0].location"_s,
                                u"DP_Discs[0].slot"_s,
                                u"DP_CastEntries[0].role"_s,
                                u"DP_CrewEntries[0].customRole"_s,
                                u"OSV_MediaType"_s,
                                u"OSV_OriginalSortTitle"_s,
                                u"OSV_CustomTitle"_s,
                                u"OSV_CustomSortTitle"_s,
                                u"OSV_CastEntries[0].name"_s,
                                u"OSV_CastEntries[0].creditedAs"_s,
                                u"OSV_CrewEntries[0].creditSubtype"_s,
                                u"OSV_Awards[0].awardName"_s,
                                u"OSV_Awards[0].nomineesEntry"_s,
                                u"OSV_AudioTracks[0].audioLanguage"_s,
                                u"OSV_AdditionalInfos[0].infoName"_s,
                                u"OSV_AdditionalInfos[0].infoValue"_s,
                                u"OSV_Links[0].linkURL"_s,
                                u"OSV_Events[0].eventType"_s,
                                u"OSV_Events[0].eventComment"_s,
                                u"OSV_Features[0]"_s};
    for (const QString &text : kTexts) {
        SCOPED_TRACE(text.toStdString());
        Set(u"Profiles"_s,
            {u"UPC"_s, u"Locality"_s, u"Title"_s, u"RatingSystem"_s, u"Rating"_s, u"RatingDetails"_s, u"Description"_s,
             u"Medium"_s, u"CountryOfOrigin"_s, u"CaseType"_s, u"Overview"_s, u"EasterEggs"_s, u"ColType"_s, u"ColNo"_s,
             u"SortTitle"_s, u"Notes"_s, u"OriginalSortTitle"_s, u"CustomTitle"_s, u"CustomSortTitle"_s},
            text);
        Set(u"Genres"_s, {u"Genre"_s}, text);
        Set(u"Subtitles"_s, {u"Subtitle"_s}, text);
        Set(u"Studios"_s, {u"Studio"_s}, text);
        Set(u"Tags"_s, {u"TagName"_s}, text);
        Set(u"Features"_s, {u"Feature"_s}, text);
        Set(u"AudioFormats"_s, {u"Language"_s, u"Compression"_s, u"Channels"_s}, text);
        Set(u"Discs"_s, {u"Description"_s, u"DiscIDSideB"_s, u"LabelSideB"_s, u"Location"_s, u"Slot"_s}, text);
        Set(u"AdditionalInfo"_s, {u"InfoName"_s, u"InfoValue"_s}, text);
        Set(u"Events"_s, {u"EventType"_s, u"Comment"_s}, text);
        Set(u"Awards"_s, {u"Award"_s, u"MovieTitle"_s, u"Nominee"_s}, text);
        Set(u"CastCrew"_s, {u"Name"_s, u"Role"_s}, text);
        Evaluate();
        // A line feed comes back as a whole line end, see EscapeScriptString; these texts have none alone.
        for (const QString &variable : variables) {
            EXPECT_EQ(Read(variable).toString(), text) << variable.toStdString();
        }
    }
}

TEST_F(HeaderVarsScript, GiveALineFeedBackAsAWholeLineEnd) {
    AddProfile(u", Overview"_s, u", 'one\ntwo'"_s);
    Evaluate();
    EXPECT_EQ(Read(u"DP_Overview"_s).toString(), u"one\r\ntwo"_s);
}

TEST_F(HeaderVarsScript, HaveTheirKinds) {
    AddRows();
    Run(u"UPDATE Profiles SET ProdYear = 2009, Runtime = 90, Released = #5/3/2010#, LastEdited = #5/3/2010 04:05:06#"_s);
    Run(u"INSERT INTO VideoFormat VALUES ('Key_100.4', '1.78', 'PAL', true, false, false, true)"_s);
    Evaluate();
    const struct {
        QString expression;
        QString value;
    } cases[] = {
        {u"typeof DP_ProductionYear"_s, u"number"_s},
        {u"DP_ProductionYear + DP_RunTime"_s, u"2099"_s},
        {u"DP_AspectRatio * 2"_s, u"3.56"_s},
        {u"DP_VideoFormatWidescreen && !DP_VideoFormatPanScan"_s, u"true"_s},
        {u"DP_Discs[0].dualLayeredSideA && DP_Discs[0].dualLayeredSideB"_s, u"true"_s},
        {u"DP_CastEntries[0] instanceof DP_CastEntry"_s, u"true"_s},
        {u"DP_CrewEntries.length + DP_CastEntries.length"_s, u"2"_s},
        {u"DP_CastEntries[0].birthYear"_s, u"1950"_s},
        {u"OSV_CastEntries[0].hasImage"_s, u"false"_s},
        {u"OSV_Awards.length"_s, u"0"_s},
        {u"OSV_IsEpisode"_s, u"false"_s},
        // One month too far: the fifth month's number is that of June.
        {u"DP_ReleaseDate.getFullYear() + ' ' + DP_ReleaseDate.getMonth() + ' ' + DP_ReleaseDate.getDate()"_s,
         u"2010 5 3"_s},
        {u"DP_LastEdited.getHours() + ' ' + DP_LastEdited.getMinutes() + ' ' + DP_LastEdited.getSeconds()"_s,
         u"4 5 6"_s},
        // The user stands in the place of the time.
        {u"OSV_Events[0].eventDateTime"_s, u"Ada Lind"_s},
        {u"OSV_Events[0].eventUser.getFullYear()"_s, u"2013"_s},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(Read(row.expression).toString(), row.value) << row.expression.toStdString();
    }
}

TEST_F(HeaderVarsScript, OfAnEmptyProfileAndAnEpisodeRun) {
    AddProfile();
    AddEpisode();
    Evaluate();
    for (const QString &text : {DPVars(kEverything, true), OSVVars(kEverything, true)}) {
        const QJSValue result = engine.evaluate(text);
        EXPECT_FALSE(result.isError()) << result.toString().toStdString();
    }
    EXPECT_EQ(Read(u"DP_Title"_s).toString(), u"Spores"_s);
    EXPECT_TRUE(Read(u"OSV_IsEpisode"_s).toBool());
}

} // namespace
} // namespace ostrand
