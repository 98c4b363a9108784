// The variables that the program adds of its own.
#include "HeaderVarsFixture.h"

#include "skin/ScriptWriter.h"
#include "skin/Template.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class OsvHeaderVars : public test::HeaderVarsFixture {};

const QString kNothing = u"IncludeAwards=\"no\""_s;
const QString kEverything =
    u"IncludeAwards=\"yes\" IncludeAudio=\"yes\" IncludeAdditionalInfo=\"yes\" IncludeLinks=\"yes\" "
    "IncludeEvents=\"yes\" IncludeCast=\"yes\" IncludeCrew=\"yes\" IncludeFeatures=\"yes\""_s;

/// The attribute that asks for one part, awards left out.
QString Only(const QString &part) {
    return (part == "Awards"_L1 ? QString() : kNothing) + u" Include"_s + part + u"=\"True\""_s;
}

TEST_F(OsvHeaderVars, AreFewWithoutParts) {
    AddProfile(u", Medium, OriginalSortTitle, CustomTitle, CustomSortTitle"_s, u", 'DVD', 'Kite O', 'My \"K\"', 'K'"_s);
    session.HeadshotPath = u"/heads/"_s;
    EXPECT_EQ(OSVVars(kNothing), u"\tvar OSV_MediaType = \"DVD\";\r\n\tvar OSV_OriginalSortTitle = \"Kite O\";\r\n"
                                 "\tvar OSV_CustomTitle = \"My \\\"K\\\"\";\r\n\tvar OSV_CustomSortTitle = \"K\";\r\n"
                                 "\tvar OSV_IsEpisode = false;\r\n\tvar OSV_ProgramPathHeadshots = \"/heads/\";\r\n"
                                 "\tvar OSV_ExportedHTML = false;\r\n\tvar OSV_UseOriginalTitle = false;\r\n"
                                 "\tvar OSV_UseCustomTitle = false;\r\n"_s);
}

TEST_F(OsvHeaderVars, IncludeAwardsByThemselves) {
    AddProfile();
    EXPECT_TRUE(OSVVars().startsWith(u"\tfunction OSV_AwardEntry("_s));
    EXPECT_EQ(OSVVars(), OSVVars(Only(u"Awards"_s)));
    EXPECT_EQ(ValueOf(OSVVars(), u"OSV_Awards"_s), u"new Array(0)"_s);
}

TEST_F(OsvHeaderVars, OfAnEpisodeHaveEmptyTitles) {
    AddEpisode();
    const QString text = OSVVars(kNothing, true);
    EXPECT_TRUE(text.startsWith(u"\tvar OSV_MediaType = \"\";\r\n\tvar OSV_OriginalSortTitle = \"\";\r\n"
                                "\tvar OSV_CustomTitle = \"\";\r\n\tvar OSV_CustomSortTitle = \"\";\r\n"
                                "\tvar OSV_IsEpisode = true;\r\n"_s));
}

TEST_F(OsvHeaderVars, TellTheTitlesThatShow) {
    AddProfile();
    session.view.mUseOriginalTitle = true;
    options.use_custom_title = true; // counts for the site only
    EXPECT_EQ(ValueOf(OSVVars(), u"OSV_UseOriginalTitle"_s), u"true"_s);
    EXPECT_EQ(ValueOf(OSVVars(), u"OSV_UseCustomTitle"_s), u"false"_s);
    session.view.mUseOriginalTitle = false;
    session.view.mUseCustomTitle = true;
    EXPECT_EQ(ValueOf(OSVVars(), u"OSV_UseOriginalTitle"_s), u"false"_s);
    EXPECT_EQ(ValueOf(OSVVars(), u"OSV_UseCustomTitle"_s), u"true"_s);
}

TEST_F(OsvHeaderVars, TellOfTheSite) {
    AddProfile();
    session.view.mUseOriginalTitle = true;
    options.offline = true;
    options.use_custom_title = true;
    EXPECT_TRUE(OSVVars().endsWith(u"\tvar OSV_ProgramPathHeadshots = \"../Headshots/\";\r\n"
                                   "\tvar OSV_ExportedHTML = true;\r\n\tvar OSV_UseOriginalTitle = false;\r\n"
                                   "\tvar OSV_UseCustomTitle = true;\r\n"_s));
}

TEST_F(OsvHeaderVars, DeclareTheirTypesInOrder) {
    AddProfile();
    const struct {
        QString part;
        QString signature;
        QString array;
    } cases[] = {
        {u"Cast"_s, u"OSV_CastEntry(name, role, voice, uncredited, creditonly, creditedAs, hasImage, birthYear)"_s,
         u"OSV_CastEntries"_s},
        {u"Crew"_s, u"OSV_CrewEntry(name, creditType, creditSubtype, creditedAs, hasImage, birthYear)"_s,
         u"OSV_CrewEntries"_s},
        {u"Awards"_s, u"OSV_AwardEntry(awardName, awardYear, awardCategory, movieTitle, hasWon, nomineesEntry)"_s,
         u"OSV_Awards"_s},
        {u"Audio"_s, u"OSV_AudioTrack(audioLanguage, audioLanguage_Translated, audioCompression, audioChannels)"_s,
         u"OSV_AudioTracks"_s},
        {u"AdditionalInfo"_s, u"OSV_AdditionalInfo(infoName, infoValue, infoType)"_s, u"OSV_AdditionalInfos"_s},
        {u"Links"_s, u"OSV_Link(linkName, linkURL)"_s, u"OSV_Links"_s},
        {u"Events"_s, u"OSV_Event(eventType, eventDateTime, eventUser, eventComment)"_s, u"OSV_Events"_s},
        {u"Features"_s, QString(), u"OSV_Features"_s},
    };
    const QString tail = OSVVars(kNothing);
    QString types;
    QString arrays;
    for (const auto &row : cases) {
        QString type;
        if (!row.signature.isEmpty()) {
            ScriptWriter(type, false).Type(row.signature);
        }
        const QString array = u"\tvar "_s + row.array + u" = new Array(0);\r\n"_s;
        EXPECT_EQ(OSVVars(Only(row.part)), type + array + tail) << row.part.toStdString();
        types += type;
        arrays += array;
    }
    EXPECT_EQ(OSVVars(kEverything), types + arrays + tail);
}

TEST_F(OsvHeaderVars, FailBeforeTheFirstLine) {
    AddProfile();
    for (const QString &part :
         {u"Awards"_s, u"Audio"_s, u"AdditionalInfo"_s, u"Links"_s, u"Events"_s, u"Cast"_s, u"Crew"_s, u"Features"_s}) {
        EXPECT_THROW(OSVVars(u"Include"_s + part + u"=\"maybe\""_s), SkinFailure) << part.toStdString();
    }
}

TEST_F(OsvHeaderVars, TellTheCredits) {
    AddProfile();
    Run(u"INSERT INTO Alias VALUES ('A. Lee', 'Ann Lee', 0, '')"_s);
    const QString insert = u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, BirthYear, IsUncredited, IsVoice, "
                           "IsCreditOnly, IsCast) VALUES ('Key_100.4', "_s;
    Run(insert + u"'Old Friends', '[DivGroup]', 1, 0, true, true, true, true)"_s);
    Run(insert + u"'A. Lee', 'Herself', 2, NULL, true, false, true, true)"_s);
    Run(insert + u"'Zora', 'Kite', 3, 1950, false, true, false, true)"_s);
    Run(insert + u"'Team', '[DivTeam]', 1, 0, false, false, false, false)"_s);
    Run(insert + u"'A. Lee', 'Director', 2, 0, false, false, false, false)"_s);
    Run(insert + u"'Zora', 'Kite Wrangler', 3, 0, false, false, false, false)"_s);
    folder.Write(u"heads/Zora.jpg"_s, "x");
    const QString text = OSVVars(Only(u"Cast"_s) + u" IncludeCrew=\"yes\""_s);
    EXPECT_TRUE(text.contains(
        u"\tvar OSV_CastEntries = new Array(3);\r\n"
        "\tOSV_CastEntries[0] = new OSV_CastEntry(\"Old Friends\", \"\", false, false, false, \"Old Friends\", false, "
        "0);\r\n"
        "\tOSV_CastEntries[1] = new OSV_CastEntry(\"Ann Lee\", \"Herself\", false, true, true, \"A. Lee\", false, "
        "0);\r\n"
        "\tOSV_CastEntries[2] = new OSV_CastEntry(\"Zora\", \"Kite\", true, false, false, \"Zora\", true, 1950);\r\n"
        "\tvar OSV_CrewEntries = new Array(3);\r\n"
        "\tOSV_CrewEntries[0] = new OSV_CrewEntry(\"Team\", \"\", \"\", \"Team\", false, 0);\r\n"
        "\tOSV_CrewEntries[1] = new OSV_CrewEntry(\"Ann Lee\", \"Direction\", \"Director\", \"A. Lee\", false, 0);\r\n"
        "\tOSV_CrewEntries[2] = new OSV_CrewEntry(\"Zora\", \"Other\", \"Kite Wrangler\", \"Zora\", true, 0);\r\n"_s))
        << text.toStdString();
}

TEST_F(OsvHeaderVars, TellAnyNameWhole) {
    AddProfile();
    for (const auto &[name, script] : {std::pair{u""_s, u"\"\""_s},
                                       {u"\u00C9mile O'Brien"_s, u"\"\u00C9mile O\\'Brien\""_s},
                                       {u"Ann \"Bo\" Lee"_s, u"\"Ann \\\"Bo\\\" Lee\""_s},
                                       {u"</script>\\<b>"_s, u"\"</script>\\\\<b>\""_s}}) {
        Run(u"DELETE FROM CastCrew"_s);
        const QString insert =
            u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('Key_100.4', '"_s +
            EscapeSql(name) + u"', NULL, 1, "_s;
        Run(insert + u"true)"_s);
        Run(insert + u"false)"_s);
        const QString text = OSVVars(Only(u"Cast"_s) + u" IncludeCrew=\"yes\""_s);
        EXPECT_TRUE(text.contains(u"\tOSV_CastEntries[0] = new OSV_CastEntry("_s + script +
                                  u", \"\", false, false, false, "_s + script + u", false, 0);\r\n"_s))
            << text.toStdString();
        EXPECT_TRUE(text.contains(u"\tOSV_CrewEntries[0] = new OSV_CrewEntry("_s + script + u", \"Other\", \"\", "_s +
                                  script + u", false, 0);\r\n"_s))
            << text.toStdString();
    }
}

TEST_F(OsvHeaderVars, TellTheCreditsOfAnEpisode) {
    AddEpisode();
    Run(u"INSERT INTO TVCastCrew (EpisodeID, Name, Role, Position, BirthYear, IsCast) VALUES "
        "('E1', 'Zora', 'Moss', 1, 0, true)"_s);
    EXPECT_TRUE(OSVVars(Only(u"Cast"_s), true)
                    .contains(u"\tOSV_CastEntries[0] = new OSV_CastEntry(\"Zora\", \"Moss\", false, false, false, "
                              "\"Zora\", false, 0);\r\n"_s));
}

class OsvAwards : public OsvHeaderVars {
protected:
    void Award(const QString &title, int year, const QString &category, bool won, const QString &nominee) {
        Run(u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Won, Nominee) VALUES ('Golden Kite', %1, '%2', "
            "'%3', %4, '%5')"_s.arg(year)
                .arg(category, title, won ? u"true"_s : u"false"_s, nominee));
    }
    QStringList Awards(bool is_episode = false) {
        QStringList years;
        const QString text = OSVVars({}, is_episode);
        for (const QString &line : text.split(u"\r\n"_s)) {
            if (line.contains(u"] = new OSV_AwardEntry("_s)) {
                years.append(line.section(u", "_s, 1, 1));
            }
        }
        EXPECT_EQ(ValueOf(text, u"OSV_Awards"_s), u"new Array(%1)"_s.arg(years.size()));
        return years;
    }
};

TEST_F(OsvAwards, AreThoseOfTheYearsAroundAFilm) {
    AddProfile(u", ProdYear"_s, u", 1999"_s);
    for (int year = 1997; year <= 2002; ++year) {
        Award(u"The Kite"_s, year, u"Wind"_s, year == 2000, u"Ann Lee, Zora"_s);
    }
    EXPECT_EQ(Awards(), (QStringList{u"1998"_s, u"1999"_s, u"2000"_s, u"2001"_s}));
    EXPECT_TRUE(OSVVars().contains(u"\tOSV_Awards[2] = new OSV_AwardEntry(\"Golden Kite\", 2000, \"Wind\", "
                                   "\"The Kite\", true, \"Ann Lee, Zora\");\r\n"_s));
    Run(u"UPDATE Profiles SET ProdYear = 0"_s);
    EXPECT_EQ(Awards().size(), 6);
}

TEST_F(OsvAwards, AreSortedByCategoryAndYear) {
    AddProfile();
    Award(u"The Kite"_s, 2001, u"B"_s, false, u""_s);
    Award(u"The Kite"_s, 2003, u"A"_s, false, u""_s);
    Award(u"The Kite"_s, 2002, u"A"_s, false, u""_s);
    EXPECT_EQ(Awards(), (QStringList{u"2002"_s, u"2003"_s, u"2001"_s}));
}

TEST_F(OsvAwards, AreFoundByTheOriginalTitle) {
    AddProfile(u", OriginalTitle"_s, u", 'It''s Dragen'"_s);
    Award(u"The Kite"_s, 2001, u"A"_s, false, u""_s);
    Award(u"It''s Dragen"_s, 2002, u"A"_s, false, u""_s);
    EXPECT_EQ(Awards(), QStringList{u"2002"_s});
    Run(u"UPDATE Profiles SET Title = '', OriginalTitle = NULL"_s);
    EXPECT_EQ(Awards(), QStringList());
}

TEST_F(OsvAwards, OfAnEpisodeAreThoseOfItsSeriesThatNameIt) {
    AddEpisode();
    Award(u"Moss"_s, 2001, u"A"_s, false, u"\"Spores\": Ann Lee"_s);
    Award(u"Moss"_s, 2002, u"A"_s, false, u"\"Other\": Ann Lee"_s);
    Award(u"Spores"_s, 2003, u"A"_s, false, u"Ann Lee"_s);
    EXPECT_EQ(Awards(true), QStringList{u"2001"_s});
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = 'Other'"_s);
    EXPECT_EQ(Awards(true), QStringList{u"2002"_s});
    Run(u"UPDATE TVSeries SET OriginalTitle = '', Title = 'Spores'"_s);
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = 'Ann'"_s);
    EXPECT_EQ(Awards(true), QStringList{u"2003"_s});
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = '', EpisodeTitle = ''"_s);
    EXPECT_EQ(Awards(true), QStringList());
}

TEST_F(OsvHeaderVars, TellTheLists) {
    AddProfile();
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation VALUES ('English', 'Engelsk')"_s);
    Run(u"INSERT INTO AudioFormats VALUES ('Key_100.4', 1, 'English', 'Dolby', 'Mono')"_s);
    Run(u"INSERT INTO AdditionalInfo VALUES ('Key_100.4', 'Home', 'http://kite.example', 'Link')"_s);
    Run(u"INSERT INTO AdditionalInfo VALUES ('Key_100.4', 'Shelf', 'Top', NULL)"_s);
    Run(u"INSERT INTO Features VALUES ('Key_100.4', 'Trailers')"_s);
    Run(u"INSERT INTO Users (UserID) VALUES ('Ada Lind')"_s);
    Run(u"INSERT INTO Users (UserID) VALUES ('Bo Lind')"_s);
    Run(u"INSERT INTO Events VALUES (1, 'Key_100.4', 'Bo Lind', 'Watched', #3/4/2013 20:01:02#, 'it''s good')"_s);
    Run(u"INSERT INTO Events VALUES (2, 'Key_100.4', 'Ada Lind', 'Watched', #3/4/2013 20:01:02#, NULL)"_s);
    Run(u"INSERT INTO Events VALUES (3, 'Key_100.4', 'Bo Lind', 'Borrowed', NULL, '')"_s);
    const QString text = OSVVars(kEverything);
    EXPECT_TRUE(text.contains(
        u"\tvar OSV_AudioTracks = new Array(1);\r\n"
        "\tOSV_AudioTracks[0] = new OSV_AudioTrack(\"English\", \"Engelsk\", \"Dolby\", \"Mono\");\r\n"
        "\tvar OSV_AdditionalInfos = new Array(2);\r\n"
        "\tOSV_AdditionalInfos[0] = new OSV_AdditionalInfo(\"Home\", \"http://kite.example\", \"Link\");\r\n"
        "\tOSV_AdditionalInfos[1] = new OSV_AdditionalInfo(\"Shelf\", \"Top\", \"\");\r\n"
        "\tvar OSV_Links = new Array(1);\r\n"
        "\tOSV_Links[0] = new OSV_Link(\"Home\", \"http://kite.example\");\r\n"
        "\tvar OSV_Events = new Array(3);\r\n"
        "\tOSV_Events[0] = new OSV_Event(\"Borrowed\", \"Bo Lind\", new Date(1899,12,30), \"\");\r\n"
        "\tOSV_Events[1] = new OSV_Event(\"Watched\", \"Ada Lind\", new Date(2013,3,4,20,1,2), \"\");\r\n"
        "\tOSV_Events[2] = new OSV_Event(\"Watched\", \"Bo Lind\", new Date(2013,3,4,20,1,2), \"it\\'s good\");\r\n"
        "\tvar OSV_Features = new Array(1);\r\n"
        "\tOSV_Features[0] = \"Trailers\";\r\n"_s))
        << text.toStdString();
}

} // namespace
} // namespace ostrand
