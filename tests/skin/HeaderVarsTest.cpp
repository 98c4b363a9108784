// The variables that mirror those of the collection program, section by section.
#include "HeaderVarsFixture.h"

#include "skin/Template.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class HeaderVars : public test::HeaderVarsFixture {};

const QStringList kSections{u"Object Types"_s,
                            u"System Information"_s,
                            u"General Information"_s,
                            u"Formats"_s,
                            u"Features"_s,
                            u"Personal Information"_s,
                            u"Review"_s,
                            u"Locks"_s,
                            u"Temporary Data"_s,
                            u"Genres"_s,
                            u"Studios"_s,
                            u"MediaCompanies"_s,
                            u"Subtitles"_s,
                            u"Audio Tracks"_s,
                            u"Discs"_s,
                            u"Tags"_s,
                            u"Cast - NOTE: Dividers are cast entries with no name; creditedAs is the caption"_s,
                            u"Crew - NOTE: Dividers are crew entries with no name; creditedAs is the caption"_s};

QStringList Captions(const QString &text) {
    QStringList captions;
    for (const QString &line : text.split(u"\r\n"_s)) {
        if (line.startsWith(u"\t// "_s)) {
            captions.append(line.mid(4));
        }
    }
    return captions;
}

TEST_F(HeaderVars, StandInTheOrderOfTheirSections) {
    AddProfile();
    const QString text = DPVars(u"IncludeCast=\"yes\" IncludeCrew=\"yes\""_s);
    EXPECT_EQ(Captions(text), kSections);
    EXPECT_EQ(Captions(DPVars()), kSections.mid(0, 16));
    EXPECT_TRUE(text.startsWith(u"\r\n\t// Object Types\r\n\tfunction DP_CastEntry("_s));
    for (const QString &caption : kSections) {
        EXPECT_TRUE(text.contains(u"\r\n\t// "_s + caption + u"\r\n\t"_s)) << caption.toStdString();
    }
    EXPECT_FALSE(text.contains(QString(u"\r\n\r\n\r\n"_s)));
}

TEST_F(HeaderVars, WithoutCommentsKeepTheBlankLines) {
    AddProfile();
    QString with = DPVars(u"IncludeCast=\"yes\" IncludeCrew=\"yes\""_s);
    const QString without = DPVars(u"IncludeCast=\"yes\" IncludeCrew=\"yes\" Comments=\"False\""_s);
    for (const QString &caption : kSections) {
        with.remove(u"\t// "_s + caption + u"\r\n"_s);
    }
    EXPECT_EQ(without, with);
    EXPECT_EQ(without.count(u"\r\n\r\n"_s), kSections.size() - 1);
    EXPECT_TRUE(without.startsWith(u"\r\n\tfunction"_s));
}

TEST_F(HeaderVars, LeaveTheRestOutOnDemand) {
    AddProfile();
    EXPECT_EQ(DPVars(u"IncludeRest=\"No\""_s), u"\r\n\t// Object Types\r\n"_s);
    const QString text = DPVars(u"IncludeRest=\"No\" IncludeCast=\"True\" IncludeCrew=\"True\""_s);
    EXPECT_EQ(Captions(text), (QStringList{kSections[0], kSections[16], kSections[17]}));
    EXPECT_FALSE(text.contains(u"DP_Disc"_s));
    EXPECT_EQ(ValueOf(text, u"DP_CastEntries"_s), u"new Array(0)"_s);
    EXPECT_EQ(ValueOf(text, u"DP_CrewEntries"_s), u"new Array(0)"_s);
}

TEST_F(HeaderVars, OfTheDefaultSkinHaveNoCredits) {
    AddProfile();
    const QString text =
        DPVars(u"Language=\"JavaScript\" Comments=\"True\" IncludeCast=\"False\" IncludeCrew=\"False\""_s);
    EXPECT_FALSE(text.contains(u"DP_CastEntr"_s));
    EXPECT_FALSE(text.contains(u"DP_CrewEntr"_s));
    EXPECT_EQ(text, DPVars());
}

TEST_F(HeaderVars, FailOnAWordThatIsNoTruthValue) {
    AddProfile();
    for (const QString &name : {u"Comments"_s, u"IncludeCast"_s, u"IncludeCrew"_s, u"IncludeRest"_s}) {
        EXPECT_THROW(DPVars(name + u"=\"maybe\""_s), SkinFailure) << name.toStdString();
    }
}

/// A type's lines, from its parameters.
QStringList TypeLines(const QString &name, const QString &parameters) {
    QStringList lines{u"\tfunction "_s + name + u'(' + parameters + u')', u"\t{"_s};
    for (const QString &parameter : parameters.split(u", "_s)) {
        lines.append(u"\t\tthis."_s + parameter + u" = "_s + parameter + u';');
    }
    return lines << u"\t}"_s;
}

TEST_F(HeaderVars, DeclareTheirTypes) {
    AddProfile();
    const QStringList cast =
        TypeLines(u"DP_CastEntry"_s,
                  u"firstName, middleName, lastName, role, voice, uncredited, creditedAs, hasImage, birthYear"_s);
    const QStringList crew = TypeLines(
        u"DP_CrewEntry"_s, u"firstName, middleName, lastName, creditType, creditSubtype, creditedAs, "
                           "creditType_Translated, creditSubtype_Translated, customRole, hasImage, birthYear"_s);
    const QStringList rest =
        TypeLines(u"DP_AudioTrack"_s, u"audioContents, audioFormat, audioChannels, audioContents_Translated, "
                                      "audioFormat_Translated, audioChannels_Translated"_s) +
        TypeLines(u"DP_Disc"_s, u"descriptionSideA, descriptionSideB, discIDSideA, discIDSideB, labelSideA, "
                                "labelSideB, dualLayeredSideA, dualLayeredSideB, location, slot"_s);
    EXPECT_EQ(SectionOf(DPVars(), kSections[0]), rest);
    EXPECT_EQ(SectionOf(DPVars(u"IncludeCast=\"yes\""_s), kSections[0]), cast + rest);
    EXPECT_EQ(SectionOf(DPVars(u"IncludeCrew=\"yes\""_s), kSections[0]), crew + rest);
    EXPECT_EQ(SectionOf(DPVars(u"IncludeCast=\"yes\" IncludeCrew=\"yes\" IncludeRest=\"no\""_s), kSections[0]),
              cast + crew);
}

TEST_F(HeaderVars, TellOfTheProgram) {
    AddProfile();
    session.AppVersion = u"4.7.1234"_s;
    session.DatabaseFile = u"/home/me/my films.mdb"_s;
    session.CoverPath = u"C:\\Covers\\"_s;
    session.DataFolder = u"/data"_s;
    session.TempFolder = u"/tmp/OstrandApp"_s;
    session.ProgramFolder = u"/opt/it's"_s;
    skin.ActiveSkin = u"Blue"_s;
    EXPECT_EQ(SectionOf(DPVars(), u"System Information"_s),
              (QStringList{u"\tvar DP_ProgramVersionMajor = 4;"_s, u"\tvar DP_ProgramVersionMinor = 7;"_s,
                           u"\tvar DP_ProgramVersionRelease = 1234;"_s, u"\tvar DP_ProgramVersionBuild = 1234;"_s,
                           u"\tvar DP_ProgramVersionIsBeta = false;"_s, u"\tvar DP_ProgramLayoutName = \"Blue\";"_s,
                           u"\tvar DP_ProgramDatabaseName = \"my films\";"_s,
                           u"\tvar DP_ProgramPathDatabase = \"/home/me\";"_s,
                           u"\tvar DP_ProgramPathImages = \"C:\\\\Covers\\\\\";"_s,
                           u"\tvar DP_ProgramPathThumbnails = \"C:\\\\Covers\\\\Thumbnails\";"_s,
                           u"\tvar DP_ProgramPathLayouts = \"/data/Skins/\";"_s,
                           u"\tvar DP_ProgramPathTemp = \"/tmp/OstrandApp\";"_s,
                           u"\tvar DP_ProgramPathProgram = \"/opt/it\\'s\";"_s, u"\tvar DP_IsComparing = false;"_s}));
    session.DatabaseFile = u"/home/me/films.MDB"_s;
    EXPECT_EQ(ValueOf(DPVars(), u"DP_ProgramDatabaseName"_s), u"\"films\""_s);
    session.DatabaseFile = u"/home/me/films.old"_s;
    EXPECT_EQ(ValueOf(DPVars(), u"DP_ProgramDatabaseName"_s), u"\"films.old\""_s);
}

TEST_F(HeaderVars, TellTheGeneralInformation) {
    AddProfile(u", UPC, Locality, RatingSystem, Rating, RatingDetails, OriginalTitle, Description, Medium, ProdYear, "
               "CountryOfOrigin, Runtime, CaseType, Released"_s,
               u", '1-2', 'Norway', 'MPAA', 'PG', 'Wind', 'Dragen', 'Long Cut', 'DVD', 2009, 'Sweden', 135, "
               "'Keep Case, Slip Cover', #5/3/2010#"_s);
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Keep Case', 'Hülle')"_s);
    Run(u"INSERT INTO Regions VALUES ('Key_100.4', 2)"_s);
    Run(u"INSERT INTO Regions VALUES ('Key_100.4', 4)"_s);
    Run(u"INSERT INTO MetaInfo VALUES ('Key_100.4', 'RatingAge', '12')"_s);
    Run(u"INSERT INTO MetaInfo VALUES ('Key_100.4', 'MediaBannerFront', 'Automatic')"_s);
    Run(u"INSERT INTO MetaInfo VALUES ('Key_100.4', 'MediaBannerBack', 'On')"_s);
    Run(u"INSERT INTO Currencies VALUES ('NOK', 'Krone', 'kr')"_s);
    Run(u"INSERT INTO SRPInfo VALUES ('Key_100.4', 149.5, 'NOK')"_s);
    const QString translated = Translate(session, u"Keep Case"_s);
    EXPECT_EQ(SectionOf(DPVars(), u"General Information"_s),
              (QStringList{u"\tvar DP_UPC = \"1-2\";"_s,
                           u"\tvar DP_Locality = \"Norway\";"_s,
                           u"\tvar DP_RegionAll = false;"_s,
                           u"\tvar DP_Region1 = false;"_s,
                           u"\tvar DP_Region2 = true;"_s,
                           u"\tvar DP_Region3 = false;"_s,
                           u"\tvar DP_Region4 = true;"_s,
                           u"\tvar DP_Region5 = false;"_s,
                           u"\tvar DP_Region6 = false;"_s,
                           u"\tvar DP_RegionBD = \"\";"_s,
                           u"\tvar DP_ImageFileFront = \"100.4f.jpg\";"_s,
                           u"\tvar DP_ImageFileBack = \"100.4b.jpg\";"_s,
                           u"\tvar DP_Title = \"The Kite\";"_s,
                           u"\tvar DP_RatingSystem = \"MPAA\";"_s,
                           u"\tvar DP_Rating = \"PG\";"_s,
                           u"\tvar DP_RatingAge = \"12\";"_s,
                           u"\tvar DP_RatingDetails = \"Wind\";"_s,
                           u"\tvar DP_OriginalTitle = \"Dragen\";"_s,
                           u"\tvar DP_Edition = \"Long Cut\";"_s,
                           u"\tvar DP_MediaTypeDVD = true;"_s,
                           u"\tvar DP_MediaTypeHDDVD = false;"_s,
                           u"\tvar DP_MediaTypeBluRay = false;"_s,
                           u"\tvar DP_CustomMediaType = \"\";"_s,
                           u"\tvar DP_ProductionYear = 2009;"_s,
                           u"\tvar DP_CountryOfOrigin = \"Sweden\";"_s,
                           u"\tvar DP_RunTime = 135;"_s,
                           u"\tvar DP_CaseType = \"Keep Case\";"_s,
                           u"\tvar DP_CaseSlipCover = true;"_s,
                           u"\tvar DP_CaseType_Translated = \""_s + translated + u"\";"_s,
                           u"\tvar DP_Front_Banner_Setting = \"auto\";"_s,
                           u"\tvar DP_Back_Banner_Setting = \"off\";"_s,
                           u"\tvar DP_ReleaseDate = new Date(2010,5,3);"_s,
                           u"\tvar DP_SRP = \"kr149.5\";"_s}));
}

TEST_F(HeaderVars, NameTheCoversAsTheirFilesAreNamed) {
    for (const auto &[key, cover] : {std::pair{u"Key_osv-7"_s, u"osv-7"_s},
                                     {u"Key_Moss: Who?Key_1/2"_s, u"Moss - Who12"_s},
                                     {u"Key_own: 1/2 it's?"_s, u"own - 12 it\\'s"_s},
                                     {u"M_Moss*1"_s, u"M_Moss1"_s}}) {
        profile_id = key;
        Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('"_s + EscapeSql(key) + u"', 'x')"_s);
        const QString text = DPVars();
        EXPECT_EQ(ValueOf(text, u"DP_ImageFileFront"_s), u'"' + cover + u"f.jpg\""_s) << key.toStdString();
        EXPECT_EQ(ValueOf(text, u"DP_ImageFileBack"_s), u'"' + cover + u"b.jpg\""_s) << key.toStdString();
    }
}

TEST_F(HeaderVars, HaveTheirValuesForNothing) {
    AddProfile();
    const QString text = DPVars();
    const QStringList texts{u"UPC"_s,
                            u"Locality"_s,
                            u"RegionBD"_s,
                            u"RatingSystem"_s,
                            u"Rating"_s,
                            u"RatingAge"_s,
                            u"RatingDetails"_s,
                            u"OriginalTitle"_s,
                            u"Edition"_s,
                            u"CustomMediaType"_s,
                            u"CountryOfOrigin"_s,
                            u"CaseType"_s,
                            u"CaseType_Translated"_s,
                            u"FeatureOther"_s,
                            u"Overview"_s,
                            u"EasterEggs"_s,
                            u"CustomCollectionTypeName"_s,
                            u"CollectionNumber"_s,
                            u"SortTitle"_s,
                            u"WishPriority"_s,
                            u"WishPriority_Translated"_s,
                            u"PurchasePlace"_s,
                            u"LoanedTo"_s,
                            u"Notes"_s};
    for (const QString &name : texts) {
        EXPECT_EQ(ValueOf(text, u"DP_"_s + name), u"\"\""_s) << name.toStdString();
    }
    const QStringList falsehoods{u"RegionAll"_s,
                                 u"Region1"_s,
                                 u"Region6"_s,
                                 u"MediaTypeDVD"_s,
                                 u"MediaTypeHDDVD"_s,
                                 u"MediaTypeBluRay"_s,
                                 u"CaseSlipCover"_s,
                                 u"VideoStandardNTSC"_s,
                                 u"VideoStandardPAL"_s,
                                 u"VideoFormatWidescreen"_s,
                                 u"VideoFormatPanScan"_s,
                                 u"VideoFormatFullFrame"_s,
                                 u"VideoFormatAnamorphic"_s,
                                 u"CollectionTypeOwned"_s,
                                 u"CollectionTypeOrdered"_s,
                                 u"CollectionTypeWishList"_s,
                                 u"CollectionTypeCustom"_s,
                                 u"IsFlagged"_s};
    for (const QString &name : falsehoods) {
        EXPECT_EQ(ValueOf(text, u"DP_"_s + name), u"false"_s) << name.toStdString();
    }
    for (const QString &name :
         {u"ProductionYear"_s, u"RunTime"_s, u"ReviewFilm"_s, u"ReviewVideo"_s, u"ReviewAudio"_s, u"ReviewExtras"_s}) {
        EXPECT_EQ(ValueOf(text, u"DP_"_s + name), u"0"_s) << name.toStdString();
    }
    EXPECT_EQ(ValueOf(text, u"DP_AspectRatio"_s), u"1"_s);
    EXPECT_EQ(ValueOf(text, u"DP_SRP"_s), u"\"$0.00\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_PurchasePrice"_s), u"\"$0.00\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_Front_Banner_Setting"_s), u"\"off\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_Back_Banner_Setting"_s), u"\"off\""_s);
    for (const QString &name : {u"ReleaseDate"_s, u"PurchaseDate"_s, u"LastEdited"_s, u"LastWatched"_s}) {
        EXPECT_EQ(ValueOf(text, u"DP_"_s + name), u"new Date(1899,12,30)"_s) << name.toStdString();
    }
    EXPECT_EQ(ValueOf(text, u"DP_LoanDue"_s), u"new Date(1899,11,30)"_s);
    for (const QString &name : {u"Genres"_s, u"Genres_Translated"_s, u"Studios"_s, u"MediaCompanies"_s, u"Subtitles"_s,
                                u"Subtitles_Translated"_s, u"AudioTracks"_s, u"Tags"_s}) {
        EXPECT_EQ(ValueOf(text, u"DP_"_s + name), u"new Array(0)"_s) << name.toStdString();
    }
    EXPECT_TRUE(text.contains(u"\tvar DP_Discs =  new Array(0);\r\n"_s));
}

TEST_F(HeaderVars, TellRegionsByMedium) {
    const struct {
        const char *name;
        QString medium;
        QList<int> regions;
        QString values; // all, 1 to 6, letters
    } cases[] = {
        {"none", u"DVD"_s, {}, u"000000 0 \"\""_s},
        {"two", u"DVD"_s, {6, 1}, u"100001 0 \"\""_s},
        {"all", u"DVD"_s, {0}, u"000000 1 \"\""_s},
        {"all with others", u"DVD"_s, {0, 2}, u"000000 1 \"\""_s},
        {"letters", u"Blu-ray Disc"_s, {1, 2, 3}, u"000000 0 \"ABC\""_s},
        {"one letter", u"Blu-ray Disc"_s, {3}, u"000000 0 \"C\""_s},
        {"all on this medium", u"Blu-ray Disc"_s, {0}, u"000000 1 \"\""_s},
        {"a pair of media", u"Blu-ray Disc/DVD"_s, {2}, u"010000 0 \"\""_s},
    };
    AddProfile();
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        Run(u"UPDATE Profiles SET Medium = '"_s + row.medium + u'\'');
        Run(u"DELETE FROM Regions"_s);
        for (const int region : row.regions) {
            Run(u"INSERT INTO Regions VALUES ('Key_100.4', %1)"_s.arg(region));
        }
        const QString text = DPVars();
        QString flags;
        for (int region = 1; region <= 6; ++region) {
            flags += ValueOf(text, u"DP_Region%1"_s.arg(region)) == "true"_L1 ? u'1' : u'0';
        }
        EXPECT_EQ(flags + (ValueOf(text, u"DP_RegionAll"_s) == "true"_L1 ? u" 1 "_s : u" 0 "_s) +
                      ValueOf(text, u"DP_RegionBD"_s),
                  row.values);
    }
}

TEST_F(HeaderVars, TellTheMedium) {
    const struct {
        QString medium;
        QStringList values;
    } cases[] = {
        {u"DVD"_s, {u"true"_s, u"false"_s, u"false"_s, u"\"\""_s}},
        {u"HD DVD"_s, {u"false"_s, u"true"_s, u"false"_s, u"\"\""_s}},
        {u"Blu-ray Disc"_s, {u"false"_s, u"false"_s, u"true"_s, u"\"\""_s}},
        {u"HD DVD/DVD"_s, {u"false"_s, u"false"_s, u"false"_s, u"\"HD DVD/DVD\""_s}},
        {u"Film roll"_s, {u"false"_s, u"false"_s, u"false"_s, u"\"Film roll\""_s}},
    };
    AddProfile();
    for (const auto &row : cases) {
        Run(u"UPDATE Profiles SET Medium = '"_s + row.medium + u'\'');
        const QString text = DPVars();
        EXPECT_EQ((QStringList{ValueOf(text, u"DP_MediaTypeDVD"_s), ValueOf(text, u"DP_MediaTypeHDDVD"_s),
                               ValueOf(text, u"DP_MediaTypeBluRay"_s), ValueOf(text, u"DP_CustomMediaType"_s)}),
                  row.values)
            << row.medium.toStdString();
    }
}

TEST_F(HeaderVars, CutTheSlipCoverOnlyFromTheEnd) {
    AddProfile(u", CaseType"_s, u", 'Slip Cover, Slip Cover Box'"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_CaseType"_s), u"\"Slip Cover, Slip Cover Box\""_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_CaseSlipCover"_s), u"false"_s);
}

TEST_F(HeaderVars, TellThePriceWithoutACurrency) {
    AddProfile();
    Run(u"INSERT INTO SRPInfo (ProfileID, SRPValue) VALUES ('Key_100.4', 20)"_s);
    Run(u"INSERT INTO PurchaseInfo (ProfileID, Price) VALUES ('Key_100.4', 9.99)"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_SRP"_s), u"\"20\""_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_PurchasePrice"_s), u"\"9.99\""_s);
}

TEST_F(HeaderVars, TellTheFormats) {
    AddProfile();
    Run(u"INSERT INTO VideoFormat VALUES ('Key_100.4', '2.35', 'PAL', true, false, true, true)"_s);
    EXPECT_EQ(SectionOf(DPVars(), u"Formats"_s),
              (QStringList{u"\tvar DP_VideoStandardNTSC = false;"_s, u"\tvar DP_VideoStandardPAL = true;"_s,
                           u"\tvar DP_VideoFormatWidescreen = true;"_s, u"\tvar DP_VideoFormatPanScan = false;"_s,
                           u"\tvar DP_VideoFormatFullFrame = true;"_s, u"\tvar DP_VideoFormatAnamorphic = true;"_s,
                           u"\tvar DP_AspectRatio = 2.35;"_s}));
    Run(u"UPDATE VideoFormat SET VideoStandard = 'NTSC', PanAndScan = true"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_VideoStandardNTSC"_s), u"true"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_VideoStandardPAL"_s), u"false"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_VideoFormatPanScan"_s), u"true"_s);
    Run(u"UPDATE VideoFormat SET VideoStandard = 'SECAM'"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_VideoStandardNTSC"_s), u"false"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_VideoStandardPAL"_s), u"false"_s);
    const struct {
        QString text, number;
    } ratios[] = {
        {u"2.35"_s, u"2.35"_s},
        {u"1"_s, u"1"_s},
        {u"16"_s, u"16"_s},
        {u".85"_s, u".85"_s},
        {u"0.85"_s, u"0.85"_s},
        {u"2."_s, u"2."_s},
        {u"0"_s, u"0"_s},
        {u" 1.9"_s, u"1.9"_s},
        // What is no number of a script, or another one than it looks, would end the script or mislead it.
        {u"01.8"_s, u"1.8"_s},
        {u"012"_s, u"12"_s},
        {u"000"_s, u"0"_s},
        {u"x();"_s, u"1"_s},
        {u"nan"_s, u"1"_s},
        {u"inf"_s, u"1"_s},
        {u"2,35"_s, u"1"_s},
        {u"1:1"_s, u"1"_s},
        {u"."_s, u"1"_s},
        {u"1.2."_s, u"1"_s},
        {u""_s, u"1"_s},
        {u"\u0662"_s, u"1"_s},
    };
    for (const auto &row : ratios) {
        Run(u"UPDATE VideoFormat SET AspectRatio = '"_s + row.text + u'\'');
        EXPECT_EQ(ValueOf(DPVars(), u"DP_AspectRatio"_s), row.number) << row.text.toStdString();
    }
    Run(u"UPDATE VideoFormat SET AspectRatio = NULL"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_AspectRatio"_s), u"1"_s);
}

struct FeatureName {
    const char *feature;
    const char *variable;
};
constexpr FeatureName kFeatures[] = {{"Outtakes", "Bloopers"},
                                     {"Closed Captioned", "ClosedCaptioned"},
                                     {"Commentary", "Commentary"},
                                     {"Deleted Scenes", "DeletedScenes"},
                                     {"DVD-ROM Content", "DVDROMContent"},
                                     {"Featurettes", "Featurette"},
                                     {"Photo Gallery", "Gallery"},
                                     {"Interactive Game", "InteractiveGame"},
                                     {"Interviews", "Interviews"},
                                     {"Multi Angle", "MultiAngle"},
                                     {"Music Videos", "MusicVideos"},
                                     {"Production Notes", "ProductionNotes"},
                                     {"Scene Access", "SceneAccess"},
                                     {"Storyboard Comparisons", "StoryboardComparisons"},
                                     {"THX certified", "THXCertified"},
                                     {"Trailers", "Trailers"},
                                     {"Picture-in-picture", "PIP"},
                                     {"BD-Live", "BDLive"}};

QStringList FalseFeatures() {
    QStringList lines;
    for (const FeatureName &name : kFeatures) {
        lines.append(u"\tvar DP_Feature"_s + QString::fromLatin1(name.variable) + u" = false;"_s);
    }
    return lines;
}

TEST_F(HeaderVars, TellNoFeaturesFirst) {
    AddProfile(u", Overview, EasterEggs"_s, u", 'A boy', 'Press up'"_s);
    EXPECT_EQ(SectionOf(DPVars(), u"Features"_s),
              FalseFeatures() + (QStringList{u"\tvar DP_FeatureOther = \"\";"_s, u"\tvar DP_Overview = \"A boy\";"_s,
                                             u"\tvar DP_EasterEggs = \"Press up\";"_s}));
}

TEST_F(HeaderVars, TellEveryFeature) {
    AddProfile();
    QStringList truths;
    for (const FeatureName &name : kFeatures) {
        const QString feature = QString::fromLatin1(name.feature);
        Run(u"DELETE FROM Features"_s);
        Run(u"INSERT INTO Features VALUES ('Key_100.4', '"_s + feature + u"')"_s);
        EXPECT_EQ(SectionOf(DPVars(), u"Features"_s).mid(0, 20),
                  FalseFeatures() +
                      (QStringList{u"\tvar DP_Feature"_s + QString::fromLatin1(name.variable) + u" = true;"_s,
                                   u"\tvar DP_FeatureOther = \"\";"_s}))
            << name.feature;
    }
}

TEST_F(HeaderVars, TellTwoFeaturesOnlyWhenTheyAreThere) {
    AddProfile();
    EXPECT_EQ(ValueOf(DPVars(), u"DP_FeatureBonusTrailers"_s), u"none"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_FeatureDigitalCopy"_s), u"none"_s);
    Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Bonus Trailers')"_s);
    Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Digital Copy')"_s);
    EXPECT_EQ(SectionOf(DPVars(), u"Features"_s).mid(0, 20),
              FalseFeatures() +
                  (QStringList{u"\tvar DP_FeatureBonusTrailers = true;"_s, u"\tvar DP_FeatureDigitalCopy = true;"_s}));
}

TEST_F(HeaderVars, JoinOtherFeatures) {
    AddProfile();
    Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Kite plans')"_s);
    Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Trailers')"_s);
    Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Wind map')"_s);
    EXPECT_EQ(ValueOf(DPVars(), u"DP_FeatureOther"_s), u"\"Kite plans, Wind map\""_s);
}

TEST_F(HeaderVars, TellThePersonalInformation) {
    AddProfile(u", ColType, ColNo, SortTitle, WishListPriority, LastEdited"_s,
               u", 'Owned', '007', 'Kite', 3, #6/7/2011 08:09:10#"_s);
    Run(u"INSERT INTO Currencies VALUES ('NOK', 'Krone', 'kr')"_s);
    Run(u"INSERT INTO Retailers VALUES ('Corner Shop', 'Local', '')"_s);
    Run(u"INSERT INTO PurchaseInfo VALUES ('Key_100.4', 99.5, 'NOK', #1/2/2012#, 'Corner Shop')"_s);
    Run(u"INSERT INTO Users (UserID) VALUES ('Ada Lind')"_s);
    Run(u"INSERT INTO Events VALUES (1, 'Key_100.4', 'Ada Lind', 'Watched', #3/4/2013 20:00:00#, '')"_s);
    Run(u"INSERT INTO Events VALUES (2, 'Key_100.4', 'Ada Lind', 'Watched', #4/5/2014 21:00:00#, '')"_s);
    Run(u"INSERT INTO Events VALUES (3, 'Key_100.4', 'Ada Lind', 'Returned', #4/5/2019 21:00:00#, '')"_s);
    Run(u"INSERT INTO LoanInfo VALUES ('Key_100.4', 'Ada Lind', #5/6/2015#)"_s);
    EXPECT_EQ(
        SectionOf(DPVars(), u"Personal Information"_s),
        (QStringList{u"\tvar DP_CollectionTypeOwned = true;"_s, u"\tvar DP_CollectionTypeOrdered = false;"_s,
                     u"\tvar DP_CollectionTypeWishList = false;"_s, u"\tvar DP_CollectionTypeCustom = false;"_s,
                     u"\tvar DP_CustomCollectionTypeName = \"\";"_s, u"\tvar DP_CollectionNumber = \"007\";"_s,
                     u"\tvar DP_SortTitle = \"Kite\";"_s, u"\tvar DP_WishPriority = \"Want It\";"_s,
                     u"\tvar DP_WishPriority_Translated = \"Want It\";"_s,
                     u"\tvar DP_PurchaseDate = new Date(2012,1,2);"_s, u"\tvar DP_PurchasePlace = \"Corner Shop\";"_s,
                     u"\tvar DP_PurchasePrice = \"kr99.5\";"_s, u"\tvar DP_LastEdited = new Date(2011,6,7,8,9,10);"_s,
                     u"\tvar DP_LastWatched = new Date(2014,4,5);"_s, u"\tvar DP_LoanedTo = \"Ada Lind\";"_s,
                     u"\tvar DP_LoanDue = new Date(2015,5,6);"_s}));
}

TEST_F(HeaderVars, TellTheCollectionType) {
    const struct {
        QString type;
        QString flags;
        QString name;
    } cases[] = {
        {u"Owned"_s, u"1000"_s, u"\"\""_s},    {u"Ordered"_s, u"0100"_s, u"\"\""_s},
        {u"WishList"_s, u"0010"_s, u"\"\""_s}, {u"Lent"_s, u"0001"_s, u"\"Lent\""_s},
        {u""_s, u"0000"_s, u"\"\""_s},
    };
    AddProfile();
    for (const auto &row : cases) {
        Run(u"UPDATE Profiles SET ColType = '"_s + row.type + u'\'');
        const QString text = DPVars();
        QString flags;
        for (const QString &name : {u"Owned"_s, u"Ordered"_s, u"WishList"_s, u"Custom"_s}) {
            flags += ValueOf(text, u"DP_CollectionType"_s + name) == "true"_L1 ? u'1' : u'0';
        }
        EXPECT_EQ(flags, row.flags) << row.type.toStdString();
        EXPECT_EQ(ValueOf(text, u"DP_CustomCollectionTypeName"_s), row.name) << row.type.toStdString();
    }
}

TEST_F(HeaderVars, TellTheWish) {
    const QStringList wishes{
        u""_s, u"Vague interest"_s, u"Like to Have It"_s, u"Want It"_s, u"Really Want"_s, u"Need It"_s, u""_s};
    AddProfile();
    for (int priority = 0; priority <= 6; ++priority) {
        Run(u"UPDATE Profiles SET WishListPriority = %1"_s.arg(priority));
        EXPECT_EQ(ValueOf(DPVars(), u"DP_WishPriority"_s), u'"' + wishes.at(priority) + u'"') << priority;
    }
}

TEST_F(HeaderVars, TellTheReview) {
    AddProfile(u", Notes"_s, u", 'Mine'"_s);
    Run(u"INSERT INTO Reviews (ProfileID, Film, Video, Audio) VALUES ('Key_100.4', 5, 4, 3)"_s);
    EXPECT_EQ(SectionOf(DPVars(), u"Review"_s),
              (QStringList{u"\tvar DP_ReviewFilm = 5;"_s, u"\tvar DP_ReviewVideo = 4;"_s,
                           u"\tvar DP_ReviewAudio = 3;"_s, u"\tvar DP_ReviewExtras = 0;"_s}));
}

struct LockName {
    const char *lock;
    const char *variable;
};
constexpr LockName kLocks[] = {{"Entire", "Entire"},
                               {"AudioTracks", "AudioTracks"},
                               {"BoxSet", "BoxSetContents"},
                               {"CaseType", "CaseType"},
                               {"Cast", "Cast"},
                               {"Crew", "Crew"},
                               {"Discs", "DiscInformation"},
                               {"EasterEggs", "EasterEggs"},
                               {"Features", "Features"},
                               {"Genres", "Genres"},
                               {"Overview", "Overview"},
                               {"ProductionYear", "ProductionYear"},
                               {"Rating", "Rating"},
                               {"Regions", "Regions"},
                               {"ReleaseDate", "ReleaseDate"},
                               {"RunningTime", "RunTime"},
                               {"Covers", "Scans"},
                               {"SRPInfo", "SRP"},
                               {"Subtitles", "Subtitles"},
                               {"Studios", "Studios"},
                               {"Title", "Title"},
                               {"VideoFormats", "VideoFormats"},
                               {"Medium", "MediaType"}};

TEST_F(HeaderVars, TellEveryLock) {
    AddProfile(u", Notes"_s, u", 'Mine'"_s);
    const auto lines = [](const char *locked) {
        QStringList all;
        for (const LockName &name : kLocks) {
            all.append(u"\tvar DP_Lock"_s + QString::fromLatin1(name.variable) +
                       (name.lock == locked ? u" = true;"_s : u" = false;"_s));
        }
        return all << u"\tvar DP_Notes = \"Mine\";"_s;
    };
    EXPECT_EQ(SectionOf(DPVars(), u"Locks"_s), lines(nullptr));
    for (const LockName &name : kLocks) {
        Run(u"DELETE FROM Locks"_s);
        Run(u"INSERT INTO Locks VALUES ('Key_100.4', '"_s + QString::fromLatin1(name.lock).toUpper() + u"')"_s);
        EXPECT_EQ(SectionOf(DPVars(), u"Locks"_s), lines(name.lock)) << name.lock;
    }
}

TEST_F(HeaderVars, TellNothingTemporary) {
    AddProfile();
    EXPECT_EQ(SectionOf(DPVars(), u"Temporary Data"_s), QStringList{u"\tvar DP_IsFlagged = false;"_s});
}

TEST_F(HeaderVars, TellTheLists) {
    AddProfile();
    Run(u"INSERT INTO Genres VALUES ('Key_100.4', 'Drama')"_s);
    Run(u"INSERT INTO Genres VALUES ('Key_200', 'Horror')"_s);
    Run(u"INSERT INTO Studios VALUES ('Key_100.4', 'Puddle Films', '')"_s);
    Run(u"INSERT INTO Studios VALUES ('Key_100.4', 'Disc House', 'Media Company')"_s);
    Run(u"INSERT INTO Subtitles VALUES ('Key_100.4', 'Norwegian')"_s);
    Run(u"INSERT INTO AudioFormats VALUES ('Key_100.4', 2, 'German', 'DTS', '')"_s);
    Run(u"INSERT INTO AudioFormats VALUES ('Key_100.4', 1, 'English', 'Dolby', 'Mono')"_s);
    Run(u"INSERT INTO Tags VALUES ('Key_100.4', 'Wind', 'Weather/Wind')"_s);
    Run(u"INSERT INTO Tags VALUES ('Key_100.4', 'Beach', 'Place/Beach')"_s);
    Run(u"INSERT INTO Tags VALUES ('Key_100.4', 'Air', 'Element/Air')"_s);
    const QString text = DPVars();
    EXPECT_EQ(
        SectionOf(text, u"Genres"_s),
        (QStringList{u"\tvar DP_Genres = new Array(1);"_s, u"\tDP_Genres[0] = \"Drama\";"_s,
                     u"\tvar DP_Genres_Translated = new Array(1);"_s, u"\tDP_Genres_Translated[0] = \"Drama\";"_s}));
    EXPECT_EQ(SectionOf(text, u"Studios"_s),
              (QStringList{u"\tvar DP_Studios = new Array(1);"_s, u"\tDP_Studios[0] = \"Puddle Films\";"_s}));
    EXPECT_EQ(SectionOf(text, u"MediaCompanies"_s), (QStringList{u"\tvar DP_MediaCompanies = new Array(1);"_s,
                                                                 u"\tDP_MediaCompanies[0] = \"Disc House\";"_s}));
    EXPECT_EQ(SectionOf(text, u"Subtitles"_s),
              (QStringList{u"\tvar DP_Subtitles = new Array(1);"_s, u"\tDP_Subtitles[0] = \"Norwegian\";"_s,
                           u"\tvar DP_Subtitles_Translated = new Array(1);"_s,
                           u"\tDP_Subtitles_Translated[0] = \"Norwegian\";"_s}));
    EXPECT_EQ(
        SectionOf(text, u"Audio Tracks"_s),
        (QStringList{
            u"\tvar DP_AudioTracks = new Array(2);"_s,
            u"\tDP_AudioTracks[0] = new DP_AudioTrack(\"English\", \"Dolby\", \"Mono\", \"English\", \"Dolby\", \"Mono\");"_s,
            u"\tDP_AudioTracks[1] = new DP_AudioTrack(\"German\", \"DTS\", \"\", \"German\", \"DTS\", \"\");"_s}));
    // By the full name, told by the short one; the last section has no blank line behind it.
    EXPECT_TRUE(text.endsWith(u"\r\n\r\n\t// Tags\r\n\tvar DP_Tags = new Array(3);\r\n\tDP_Tags[0] = \"Air\";\r\n"
                              "\tDP_Tags[1] = \"Beach\";\r\n\tDP_Tags[2] = \"Wind\";\r\n"_s));
}

TEST_F(HeaderVars, TranslateTheLists) {
    AddProfile(u", CaseType, WishListPriority"_s, u", 'Snap Case', 5"_s);
    Run(u"INSERT INTO Genres VALUES ('Key_100.4', 'Drama')"_s);
    Run(u"INSERT INTO Subtitles VALUES ('Key_100.4', 'Norwegian')"_s);
    Run(u"INSERT INTO AudioFormats VALUES ('Key_100.4', 1, 'English', 'Dolby', 'Mono')"_s);
    for (const QString &word :
         {u"Snap Case"_s, u"Need It"_s, u"Drama"_s, u"Norwegian"_s, u"English"_s, u"Dolby"_s, u"Mono"_s}) {
        Run(u"INSERT INTO Translation VALUES ('"_s + word + u"', 'local "_s + word + u"')"_s);
    }
    session.UseUserDefinedStrings = true;
    const QString text = DPVars();
    ASSERT_EQ(Translate(session, u"Drama"_s), u"local Drama"_s);
    EXPECT_EQ(ValueOf(text, u"DP_CaseType"_s), u"\"Snap Case\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_CaseType_Translated"_s), u"\"local Snap Case\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_WishPriority"_s), u"\"Need It\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_WishPriority_Translated"_s), u"\"local Need It\""_s);
    EXPECT_TRUE(text.contains(u"\tDP_Genres[0] = \"Drama\";"_s));
    EXPECT_TRUE(text.contains(u"\tDP_Genres_Translated[0] = \"local Drama\";"_s));
    EXPECT_TRUE(text.contains(u"\tDP_Subtitles_Translated[0] = \"local Norwegian\";"_s));
    EXPECT_TRUE(
        text.contains(u"new DP_AudioTrack(\"English\", \"Dolby\", \"Mono\", \"local English\", \"local Dolby\", "
                      "\"local Mono\");"_s));
}

TEST_F(HeaderVars, TellTheDiscs) {
    AddProfile();
    Run(u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('Key_100.4', 2, 'Extras')"_s);
    Run(u"INSERT INTO Discs VALUES ('Key_100.4', 1, 'Film', 'A1', 'KITE', 'Film B', 'B1', 'KITE_B', true, true, false, "
        "true, 'Shelf', '3')"_s);
    EXPECT_EQ(SectionOf(DPVars(), u"Discs"_s),
              (QStringList{u"\tvar DP_Discs =  new Array(2);"_s,
                           u"\tDP_Discs[0] = new DP_Disc(\"Film\", \"Film B\", \"A1\", \"B1\", \"KITE\", \"KITE_B\", "
                           "true, true, \"Shelf\", \"3\");"_s,
                           u"\tDP_Discs[1] = new DP_Disc(\"Extras\", \"\", \"\", \"\", \"\", \"\", false, false, \"\", "
                           "\"\");"_s}));
}

TEST_F(HeaderVars, OfAnEpisodeLackWhatEpisodesDoNotHave) {
    AddEpisode(u", EpisodeNo, EpisodeOriginalTitle, AirDate, Runtime, Overview, Notes, Rating"_s,
               u", '3', 'Sporer', #2/1/2003#, 42, 'Green', 'Mine', 'PG'"_s);
    Run(u"INSERT INTO Genres VALUES ('E1', 'Horror')"_s);
    const QString text = DPVars({}, true);
    EXPECT_EQ(ValueOf(text, u"DP_Title"_s), u"\"Spores\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_OriginalTitle"_s), u"\"Sporer\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_ReleaseDate"_s), u"new Date(2003,2,1)"_s);
    EXPECT_EQ(ValueOf(text, u"DP_CollectionNumber"_s), u"\"3\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_RunTime"_s), u"42"_s);
    EXPECT_EQ(ValueOf(text, u"DP_Overview"_s), u"\"Green\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_Notes"_s), u"\"Mine\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_Rating"_s), u"\"PG\""_s);
    EXPECT_EQ(ValueOf(text, u"DP_ImageFileFront"_s), u"\"E1f.jpg\""_s);
    EXPECT_TRUE(text.contains(u"\tDP_Genres[0] = \"Horror\";\r\n"_s));
    for (const QString &name : {u"UPC"_s, u"Locality"_s, u"CaseType"_s, u"CustomMediaType"_s, u"SortTitle"_s,
                                u"EasterEggs"_s, u"Edition"_s, u"CustomCollectionTypeName"_s}) {
        EXPECT_EQ(ValueOf(text, u"DP_"_s + name), u"\"\""_s) << name.toStdString();
    }
    EXPECT_EQ(ValueOf(text, u"DP_ProductionYear"_s), u"0"_s);
    EXPECT_EQ(ValueOf(text, u"DP_LastEdited"_s), u"new Date(1899,12,30)"_s);
    EXPECT_EQ(ValueOf(text, u"DP_CollectionTypeOwned"_s), u"false"_s);
}

} // namespace
} // namespace ostrand
