// The variables as a script engine reads them back.
#include "HeaderVarsFixture.h"

#include "people/Name.h"
#include "skin/ScriptWriter.h"

#include <QJSEngine>
#include <QJSValueIterator>
#include <QRegularExpression>

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
    /// The variables in their order.
    QStringList Declared() {
        QStringList names;
        for (const QString &text : {DPVars(kEverything), OSVVars(kEverything)}) {
            for (const QString &line : text.split(u"\r\n"_s)) {
                if (line.startsWith(u"\tvar "_s)) {
                    names.append(line.section(u' ', 1, 1));
                }
            }
        }
        return names;
    }
    /// The texts among them, also those in the last object or place of an array.
    QStringList DeclaredTexts() {
        QStringList texts;
        for (const QString &name : Declared()) {
            AddTexts(name, texts);
        }
        return texts;
    }
    void AddTexts(const QString &expression, QStringList &texts) {
        const QJSValue value = Read(expression);
        if (value.isString()) {
            texts.append(expression);
        } else if (value.isArray()) {
            const int count = value.property(u"length"_s).toInt();
            EXPECT_GT(count, 0) << expression.toStdString();
            AddTexts(u"%1[%2]"_s.arg(expression).arg(count - 1), texts);
        } else if (value.isObject() && !value.isDate()) {
            for (QJSValueIterator member(value); member.hasNext();) {
                member.next();
                AddTexts(expression + u'.' + member.name(), texts);
            }
        }
    }
    /// A profile that has this text everywhere.
    void AddEverywhere(const QString &text) {
        const QString t = u'\'' + EscapeSql(text) + u'\'';
        const QString number = QString::number(++profiles_);
        profile_id = u"Key_"_s + text;
        const QString id = u'\'' + EscapeSql(profile_id) + u'\'';
        const auto all = [&](int count) { return QStringList(count, t).join(u", "_s); };
        Run(u"INSERT INTO Profiles (ProfileID, UPC, Locality, Title, OriginalTitle, RatingSystem, Rating, "
            "RatingDetails, Description, Medium, CountryOfOrigin, CaseType, Overview, EasterEggs, ColType, ColNo, "
            "SortTitle, Notes, OriginalSortTitle, CustomTitle, CustomSortTitle, WishListPriority) VALUES ("_s +
            id + u", "_s + all(20) + u", 5)"_s);
        Run(u"INSERT INTO Users (UserID) VALUES ("_s + t + u')');
        Run(u"INSERT INTO Retailers (Name) VALUES ("_s + t + u')');
        Run(u"INSERT INTO Currencies VALUES ('C"_s + number + u"', 'x', "_s + t + u')');
        Run(u"INSERT INTO SRPInfo VALUES ("_s + id + u", 20, 'C"_s + number + u"')"_s);
        Run(u"INSERT INTO PurchaseInfo VALUES ("_s + id + u", 9.5, 'C"_s + number + u"', NULL, "_s + t + u')');
        Run(u"INSERT INTO LoanInfo (ProfileID, UserID) VALUES ("_s + id + u", "_s + t + u')');
        Run(u"INSERT INTO MetaInfo VALUES ("_s + id + u", 'RatingAge', "_s + t + u')');
        Run(u"INSERT INTO Genres VALUES ("_s + id + u", "_s + t + u')');
        Run(u"INSERT INTO Subtitles VALUES ("_s + id + u", "_s + t + u')');
        Run(u"INSERT INTO Studios VALUES ("_s + id + u", "_s + t + u", '')"_s);
        Run(u"INSERT INTO Studios VALUES ("_s + id + u", "_s + t + u", 'Media Company')"_s);
        Run(u"INSERT INTO Tags VALUES ("_s + id + u", "_s + t + u", 'x')"_s);
        Run(u"INSERT INTO Features VALUES ("_s + id + u", "_s + t + u')');
        Run(u"INSERT INTO AudioFormats VALUES ("_s + id + u", 1, "_s + all(3) + u')');
        Run(u"INSERT INTO Discs VALUES ("_s + id + u", 1, "_s + all(6) + u", true, true, true, true, "_s + all(2) +
            u')');
        Run(u"INSERT INTO AdditionalInfo VALUES ("_s + id + u", "_s + all(3) + u')');
        Run(u"INSERT INTO AdditionalInfo VALUES ("_s + id + u", '"_s + EscapeSql(text + u'2') + u"', "_s + t +
            u", 'Link')"_s);
        Run(u"INSERT INTO Events VALUES ("_s + number + u", "_s + id + u", "_s + all(2) + u", #3/4/2013#, "_s + t +
            u')');
        Run(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ("_s + t + u", 2000, "_s +
            all(2) + u", true, "_s + t + u')');
        AddCredits(id, t, t);
    }
    /// In the cast and in the crew: a divider, and a person behind it.
    void AddCredits(const QString &id, const QString &name, const QString &role) {
        const QString credit = u"INSERT INTO CastCrew (ProfileID, BirthYear, Name, Role, Position, IsCast) VALUES ("_s +
                               id + u", 1950, "_s + name;
        for (const QString &is_cast : {u"true"_s, u"false"_s}) {
            Run(credit + u", '[DivGroup]', 1, "_s + is_cast + u')');
            Run(credit + u", "_s + role + u", 2, "_s + is_cast + u')');
        }
    }
    /// A profile with one plain row of each kind.
    void AddRows() { AddEverywhere(u"x"_s); }

    QJSEngine engine;

private:
    int profiles_ = 0;
};

const QStringList kTexts{
    u"A plain text"_s,
    u"It's \"quoted\""_s,
    u"back\\slash\\"_s,
    u"\\\"; alert(1); //"_s,
    u"two\r\nlines\r\n"_s,
    u"a carriage return\ralone\r"_s,
    u"tab\there"_s,
    u"\u0001\u0007\u000b\u001f\u007f"_s,
    u"line\u2028and\u2029paragraph"_s,
    u"emoji \U0001F3AC and \u00e6\u00f8\u00e5"_s,
    u"<b>&lt;</b></script><script>x</script>"_s,
    u"<DP NAME=\"TITLE\"/> $DPIMAGES. %1 %20"_s,
    u"<!-- //-->"_s,
    u"*/ /* // ${x} `"_s,
    u"\\u0041\\x41\\r\\n"_s,
};

/// Texts that consist of one value, and what stands around it.
struct Framed {
    QString variable, front, back;
};

TEST_F(HeaderVarsScript, GiveEveryTextBack) {
    const Framed expected[] = {
        {u"DP_ProgramLayoutName"_s, {}, {}},
        {u"DP_ProgramPathImages"_s, {}, {}},
        {u"DP_ProgramPathThumbnails"_s, {}, u"Thumbnails"_s},
        {u"DP_ProgramPathLayouts"_s, {}, u" of me/Skins/"_s},
        {u"DP_ProgramPathTemp"_s, {}, {}},
        {u"DP_ProgramPathProgram"_s, {}, {}},
        {u"DP_UPC"_s, {}, {}},
        {u"DP_Locality"_s, {}, {}},
        {u"DP_Title"_s, {}, {}},
        {u"DP_RatingSystem"_s, {}, {}},
        {u"DP_Rating"_s, {}, {}},
        {u"DP_RatingAge"_s, {}, {}},
        {u"DP_RatingDetails"_s, {}, {}},
        {u"DP_OriginalTitle"_s, {}, {}},
        {u"DP_Edition"_s, {}, {}},
        {u"DP_CustomMediaType"_s, {}, {}},
        {u"DP_CountryOfOrigin"_s, {}, {}},
        {u"DP_CaseType"_s, {}, {}},
        {u"DP_CaseType_Translated"_s, {}, {}},
        {u"DP_SRP"_s, {}, u"20"_s},
        {u"DP_FeatureOther"_s, {}, {}},
        {u"DP_Overview"_s, {}, {}},
        {u"DP_EasterEggs"_s, {}, {}},
        {u"DP_CustomCollectionTypeName"_s, {}, {}},
        {u"DP_CollectionNumber"_s, {}, {}},
        {u"DP_SortTitle"_s, {}, {}},
        {u"DP_PurchasePlace"_s, {}, {}},
        {u"DP_PurchasePrice"_s, {}, u"9.5"_s},
        {u"DP_LoanedTo"_s, {}, {}},
        {u"DP_Notes"_s, {}, {}},
        {u"DP_Genres[0]"_s, {}, {}},
        {u"DP_Genres_Translated[0]"_s, {}, {}},
        {u"DP_Studios[0]"_s, {}, {}},
        {u"DP_MediaCompanies[0]"_s, {}, {}},
        {u"DP_Subtitles[0]"_s, {}, {}},
        {u"DP_Subtitles_Translated[0]"_s, {}, {}},
        {u"DP_AudioTracks[0].audioContents"_s, {}, {}},
        {u"DP_AudioTracks[0].audioFormat"_s, {}, {}},
        {u"DP_AudioTracks[0].audioChannels"_s, {}, {}},
        {u"DP_AudioTracks[0].audioContents_Translated"_s, {}, {}},
        {u"DP_AudioTracks[0].audioFormat_Translated"_s, {}, {}},
        {u"DP_AudioTracks[0].audioChannels_Translated"_s, {}, {}},
        {u"DP_Discs[0].descriptionSideA"_s, {}, {}},
        {u"DP_Discs[0].descriptionSideB"_s, {}, {}},
        {u"DP_Discs[0].discIDSideA"_s, {}, {}},
        {u"DP_Discs[0].discIDSideB"_s, {}, {}},
        {u"DP_Discs[0].labelSideA"_s, {}, {}},
        {u"DP_Discs[0].labelSideB"_s, {}, {}},
        {u"DP_Discs[0].location"_s, {}, {}},
        {u"DP_Discs[0].slot"_s, {}, {}},
        {u"DP_Tags[0]"_s, {}, {}},
        {u"DP_CastEntries[1].role"_s, {}, {}},
        {u"DP_CrewEntries[1].customRole"_s, {}, {}},
        {u"OSV_CastEntries[1].name"_s, {}, {}},
        {u"OSV_CastEntries[1].role"_s, {}, {}},
        {u"OSV_CastEntries[1].creditedAs"_s, {}, {}},
        {u"OSV_CrewEntries[1].name"_s, {}, {}},
        {u"OSV_CrewEntries[1].creditSubtype"_s, {}, {}},
        {u"OSV_CrewEntries[1].creditedAs"_s, {}, {}},
        {u"OSV_Awards[0].awardName"_s, {}, {}},
        {u"OSV_Awards[0].awardCategory"_s, {}, {}},
        {u"OSV_Awards[0].movieTitle"_s, {}, {}},
        {u"OSV_Awards[0].nomineesEntry"_s, {}, {}},
        {u"OSV_AudioTracks[0].audioLanguage"_s, {}, {}},
        {u"OSV_AudioTracks[0].audioLanguage_Translated"_s, {}, {}},
        {u"OSV_AudioTracks[0].audioCompression"_s, {}, {}},
        {u"OSV_AudioTracks[0].audioChannels"_s, {}, {}},
        {u"OSV_AdditionalInfos[0].infoName"_s, {}, {}},
        {u"OSV_AdditionalInfos[0].infoValue"_s, {}, {}},
        {u"OSV_AdditionalInfos[0].infoType"_s, {}, {}},
        {u"OSV_AdditionalInfos[1].infoName"_s, {}, u"2"_s},
        {u"OSV_AdditionalInfos[1].infoValue"_s, {}, {}},
        {u"OSV_Links[0].linkName"_s, {}, u"2"_s},
        {u"OSV_Links[0].linkURL"_s, {}, {}},
        {u"OSV_Events[0].eventType"_s, {}, {}},
        {u"OSV_Events[0].eventDateTime"_s, {}, {}}, // where the user stands
        {u"OSV_Events[0].eventComment"_s, {}, {}},
        {u"OSV_Features[0]"_s, {}, {}},
        {u"OSV_MediaType"_s, {}, {}},
        {u"OSV_OriginalSortTitle"_s, {}, {}},
        {u"OSV_CustomTitle"_s, {}, {}},
        {u"OSV_CustomSortTitle"_s, {}, {}},
        {u"OSV_ProgramPathHeadshots"_s, {}, {}},
        // Captions of dividers, which stand in front of the persons.
        {u"DP_CastEntries[0].creditedAs"_s, {}, {}},
        {u"DP_CrewEntries[0].creditedAs"_s, {}, {}},
        {u"OSV_CastEntries[0].name"_s, {}, {}},
        {u"OSV_CastEntries[0].creditedAs"_s, {}, {}},
        {u"OSV_CrewEntries[0].name"_s, {}, {}},
        {u"OSV_CrewEntries[0].creditedAs"_s, {}, {}},
    };
    // Texts that are the program's own words here, or parts of a name.
    const QStringList others{u"DP_ImageFileFront"_s,
                             u"DP_ImageFileBack"_s,
                             u"DP_ProgramDatabaseName"_s,
                             u"DP_ProgramPathDatabase"_s,
                             u"DP_RegionBD"_s,
                             u"DP_Front_Banner_Setting"_s,
                             u"DP_Back_Banner_Setting"_s,
                             u"DP_WishPriority"_s,
                             u"DP_WishPriority_Translated"_s,
                             u"DP_CastEntries[1].firstName"_s,
                             u"DP_CastEntries[1].middleName"_s,
                             u"DP_CastEntries[1].lastName"_s,
                             u"DP_CastEntries[1].creditedAs"_s,
                             u"DP_CrewEntries[1].firstName"_s,
                             u"DP_CrewEntries[1].middleName"_s,
                             u"DP_CrewEntries[1].lastName"_s,
                             u"DP_CrewEntries[1].creditType"_s,
                             u"DP_CrewEntries[1].creditSubtype"_s,
                             u"DP_CrewEntries[1].creditedAs"_s,
                             u"DP_CrewEntries[1].creditType_Translated"_s,
                             u"DP_CrewEntries[1].creditSubtype_Translated"_s,
                             u"OSV_CrewEntries[1].creditType"_s,
                             u"OSV_AdditionalInfos[1].infoType"_s};
    for (const QString &text : kTexts) {
        SCOPED_TRACE(text.toStdString());
        AddEverywhere(text);
        skin.ActiveSkin = session.CoverPath = session.TempFolder = session.ProgramFolder = session.HeadshotPath = text;
        session.DataFolder = text + u" of me"_s;
        Evaluate();
        QStringList declared = DeclaredTexts();
        for (const Framed &row : expected) {
            // A line feed comes back as a whole line end, see EscapeScriptString; these texts have none alone.
            EXPECT_EQ(Read(row.variable).toString(), row.front + text + row.back) << row.variable.toStdString();
            declared.removeAll(row.variable);
        }
        for (const QString &variable : others) {
            EXPECT_TRUE(declared.removeOne(variable)) << variable.toStdString();
        }
        EXPECT_EQ(declared.join(u' '), QString()) << "not looked at";
    }
}

TEST_F(HeaderVarsScript, GiveThePartsOfNamesBack) {
    for (const QString &text : kTexts) {
        SCOPED_TRACE(text.toStdString());
        AddEverywhere(text);
        Evaluate();
        Name name;
        name.SetFullName(text);
        for (const QString &entry : {u"DP_CastEntries[1]"_s, u"DP_CrewEntries[1]"_s}) {
            EXPECT_EQ(Read(entry + u".firstName"_s).toString(), name.FirstName());
            EXPECT_EQ(Read(entry + u".middleName"_s).toString(), name.MiddleName());
            EXPECT_EQ(Read(entry + u".lastName"_s).toString(), name.LastName());
            EXPECT_EQ(Read(entry + u".creditedAs"_s).toString(), QString());
        }
        Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('"_s + EscapeSql(text) +
            u"', 'Ann Mary Lee', 1950)"_s);
        Evaluate();
        for (const QString &entry : {u"DP_CastEntries[1]"_s, u"DP_CrewEntries[1]"_s}) {
            EXPECT_EQ(Read(entry + u".middleName"_s).toString(), u"Mary"_s);
            EXPECT_EQ(Read(entry + u".creditedAs"_s).toString(), text);
        }
    }
}

TEST_F(HeaderVarsScript, GiveTheDatabasesNameBack) {
    AddProfile();
    for (QString text : kTexts) {
        text.remove(u'/'); // which would be another folder
        session.DatabaseFile = u"/films of "_s + text + u"/my "_s + text + u".mdb"_s;
        Evaluate();
        EXPECT_EQ(Read(u"DP_ProgramDatabaseName"_s).toString(), u"my "_s + text);
        EXPECT_EQ(Read(u"DP_ProgramPathDatabase"_s).toString(), u"/films of "_s + text);
    }
}

TEST_F(HeaderVarsScript, GiveATextBackThatHoldsTheZeroCharacter) {
    const QString text = u"one"_s + QChar(0) + u"two\\"_s + QChar(0);
    EXPECT_EQ(Read(ScriptString(text)).toString(), text);
    EXPECT_EQ(Read(ScriptString(text) + u".length"_s).toInt(), 9);
}

TEST_F(HeaderVarsScript, GiveALineFeedBackAsAWholeLineEnd) {
    AddProfile(u", Overview"_s, u", 'one\ntwo'"_s);
    Evaluate();
    EXPECT_EQ(Read(u"DP_Overview"_s).toString(), u"one\r\ntwo"_s);
}

TEST_F(HeaderVarsScript, HaveTheirKinds) {
    AddRows();
    Run(u"UPDATE Profiles SET ProdYear = 2009, Runtime = 90, Released = #5/3/2010#, LastEdited = #5/3/2010 04:05:06#"_s);
    Run(u"INSERT INTO VideoFormat VALUES ('Key_x', '01.8', 'PAL', true, false, false, true)"_s);
    Evaluate();
    const struct {
        QString expression;
        QString value;
    } cases[] = {
        {u"typeof DP_ProductionYear"_s, u"number"_s},
        {u"DP_ProductionYear + DP_RunTime"_s, u"2099"_s},
        {u"DP_AspectRatio * 2"_s, u"3.6"_s},
        {u"DP_VideoFormatWidescreen && !DP_VideoFormatPanScan"_s, u"true"_s},
        {u"DP_Discs[0].dualLayeredSideA && DP_Discs[0].dualLayeredSideB"_s, u"true"_s},
        {u"DP_CastEntries[0] instanceof DP_CastEntry"_s, u"true"_s},
        {u"DP_CrewEntries.length + DP_CastEntries.length"_s, u"4"_s},
        {u"DP_CastEntries[0].birthYear"_s, u"0"_s},
        {u"DP_CastEntries[1].birthYear"_s, u"1950"_s},
        {u"OSV_CastEntries[0].hasImage"_s, u"false"_s},
        {u"OSV_Awards.length"_s, u"0"_s}, // of another year
        {u"OSV_IsEpisode"_s, u"false"_s},
        // One month too far: the fifth month's number is that of June.
        {u"DP_ReleaseDate.getFullYear() + ' ' + DP_ReleaseDate.getMonth() + ' ' + DP_ReleaseDate.getDate()"_s,
         u"2010 5 3"_s},
        {u"DP_LastEdited.getHours() + ' ' + DP_LastEdited.getMinutes() + ' ' + DP_LastEdited.getSeconds()"_s,
         u"4 5 6"_s},
        // The user stands in the place of the time.
        {u"OSV_Events[0].eventDateTime"_s, u"x"_s},
        {u"OSV_Events[0].eventUser.getFullYear()"_s, u"2013"_s},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(Read(row.expression).toString(), row.value) << row.expression.toStdString();
    }
}

TEST_F(HeaderVarsScript, AreTruthValuesWhereTheyAreNothingElse) {
    AddRows();
    Evaluate();
    QStringList numbers;
    QStringList dates;
    QStringList truths;
    QStringList others;
    for (const QString &name : Declared()) {
        const QJSValue value = Read(name);
        (value.isNumber() ? numbers : value.isDate() ? dates : value.isBool() ? truths : others).append(name);
    }
    EXPECT_EQ(numbers,
              (QStringList{u"DP_ProgramVersionMajor"_s, u"DP_ProgramVersionMinor"_s, u"DP_ProgramVersionRelease"_s,
                           u"DP_ProgramVersionBuild"_s, u"DP_ProductionYear"_s, u"DP_RunTime"_s, u"DP_AspectRatio"_s,
                           u"DP_ReviewFilm"_s, u"DP_ReviewVideo"_s, u"DP_ReviewAudio"_s, u"DP_ReviewExtras"_s}));
    EXPECT_EQ(dates, (QStringList{u"DP_ReleaseDate"_s, u"DP_PurchaseDate"_s, u"DP_LastEdited"_s, u"DP_LastWatched"_s,
                                  u"DP_LoanDue"_s}));
    const QRegularExpression truth(u"^(DP_(Is|Region|MediaType|CaseSlipCover|Video|Feature|CollectionType|Lock)|"
                                   "DP_ProgramVersionIsBeta|OSV_(Is|Exported|Use))"_s);
    EXPECT_EQ(truths.filter(truth), truths);
    EXPECT_EQ(truths.size(), 69);
    for (const QString &name : std::as_const(others)) {
        EXPECT_TRUE(Read(name).isString() || Read(name).isArray()) << name.toStdString();
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
