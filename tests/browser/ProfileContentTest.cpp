// What the panels tell of a title, and which statements that takes.
#include "browser/ProfileContent.h"

#include "BrowserFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/ProfileInfos.h"
#include "browser/Views.h"

#include <QRegularExpression>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

constexpr int kCredits = 1;
constexpr int kDetails = 2;
constexpr int kAV = 3;

class ProfileContentTest : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        browser.tabMain = QStringList{u"Cast/Crew"_s, u"Details"_s, u"Audio/Video"_s};
        session.URLIMDb = u"http://titles.example/title/"_s;
        TranslateContent(browser);
        ClearProfileInfos(browser);
    }
    void Show(int tab, const QString &id, bool is_episode = false) {
        browser.tabMain_selected = tab;
        GetProfileInfos(browser, id, is_episode, false);
    }
    void AddEpisode(const QString &columns = {}) {
        Run(u"INSERT INTO TVSeries (SeriesID, Title, OriginalTitle) VALUES ('S', 'Harbour', 'Hafen')");
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle, EpisodeOriginalTitle) VALUES "
            u"('E', 'S', '1', '1', 'Storm', 'Sturm')");
        if (!columns.isEmpty()) {
            ASSERT_EQ(Run(u"UPDATE Episodes SET "_s + columns), 1);
        }
    }
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')"_s.arg(english, shown));
    }
    /// The rows of a list, the texts of each joined by "|".
    static QStringList Lines(const ListTable &list) {
        QStringList lines;
        for (const ListTableRow &row : list.Rows()) {
            lines << row.texts.join(u'|');
        }
        return lines;
    }
    static QStringList Headers(const ListTable &list) {
        QStringList headers;
        for (int column = 0; column < list.columnCount(); ++column) {
            headers << list.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        return headers;
    }
    /// The statements that an action sends.
    template <typename Action>
    QStringList Statements(Action action) {
        QStringList statements;
        session.Database->SetObserver([&](QStringView sql) { statements << sql.toString(); });
        action();
        session.Database->SetObserver({});
        return statements;
    }

    DetailsContent &details = browser.Details;
    AVContent &av = browser.AV;
};

const QString kEpisodesOf =
    u"SELECT e.EpisodeTitle, e.EpisodeOriginalTitle, e.SeriesID, e.Season, s.OriginalTitle, e.EpisodeNo, s.Title, "
    "e.EpisodeID FROM Episodes e, Profile2Episodes p, TVSeries s WHERE p.ProfileID = 'A''1' AND e.EpisodeID = "
    "p.EpisodeID AND s.SeriesID = e.SeriesID ORDER BY SortTitle, Season, EpisodeNo"_s;

TEST_F(ProfileContentTest, OnlyTheSelectedTabIsRead) {
    AddProfile(u"A''1"_s);
    const QString boxset =
        u"SELECT SWITCH(m.SortTitle<>'', m.SortTitle, m.Title<>'', m.Title) AS [RealSort], b.ChildID, m.Title, "
        "m.OriginalTitle, m.CustomTitle FROM Boxset b, Profiles m WHERE b.BoxSetID = 'A''1' AND b.ChildID = "
        "m.ProfileID ORDER BY 1"_s;
    const QString credits = u"SELECT * FROM CastCrew WHERE ProfileID = 'A''1' ORDER BY Position"_s;
    const QString profile = u"SELECT * FROM Profiles WHERE ProfileID = 'A''1'"_s;
    const struct {
        const char *name;
        int tab;
        QStringList statements;
    } cases[] = {
        {"credits", kCredits, {profile, credits, kEpisodesOf, boxset}},
        {"details",
         kDetails,
         {profile, u"SELECT InfoValue FROM AdditionalInfo WHERE ProfileID = 'A''1' AND InfoName = 'IMDb'"_s,
          u"SELECT Genre FROM Genres WHERE ProfileID = 'A''1'"_s,
          u"SELECT Studio, Type FROM Studios WHERE ProfileID = 'A''1' ORDER BY Type, Studio"_s, kEpisodesOf, boxset,
          u"SELECT * FROM Features WHERE ProfileID = 'A''1' ORDER BY Feature"_s,
          u"SELECT Region FROM Regions WHERE ProfileID = 'A''1' ORDER BY Region"_s}},
        {"sound and picture",
         kAV,
         {profile, kEpisodesOf, boxset, u"SELECT Subtitle FROM Subtitles WHERE ProfileID = 'A''1'"_s,
          u"SELECT * FROM AudioFormats WHERE ProfileID = 'A''1' ORDER BY OrderPos ASC"_s,
          u"SELECT * FROM VideoFormat WHERE ProfileID = 'A''1'"_s}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Statements([&] { Show(c.tab, u"A'1"_s); }), c.statements) << c.name;
    }
    // Another tab asks for what it shows, and not for the credits' side again.
    const QStringList again = Statements([&] { SelectMainTab(browser, kDetails); });
    EXPECT_TRUE(again.contains(cases[1].statements[2]));
    EXPECT_FALSE(again.contains(kEpisodesOf));
    EXPECT_FALSE(again.contains(cases[2].statements[2]));
}

TEST_F(ProfileContentTest, NoStatementOfATitleReadsAWholeTable) {
    AddProfile(u"A"_s);
    AddEpisode();
    QStringList statements;
    for (const int tab : {kCredits, kDetails, kAV}) {
        statements += Statements([&] { Show(tab, u"A"_s); });
        statements += Statements([&] { Show(tab, u"E"_s, true); });
    }
    for (const QString &statement : statements) {
        const QStringList plan = session.Database->QueryPlan(statement);
        EXPECT_TRUE(plan.filter(QRegularExpression(u"^SCAN (?!CONSTANT)"_s)).isEmpty()) << qPrintable(statement) << '\n'
                                                                                        << qPrintable(plan.join(u'\n'));
    }
}

TEST_F(ProfileContentTest, AnEpisodeAsksForItsSeries) {
    AddEpisode();
    const QStringList statements = Statements([&] { Show(kDetails, u"E"_s, true); });
    EXPECT_EQ(statements.front(), u"SELECT * FROM Episodes WHERE EpisodeID = 'E'"_s);
    EXPECT_EQ(statements.back(), u"SELECT * FROM TVSeries WHERE SeriesID = 'S'"_s);
}

TEST_F(ProfileContentTest, TheTextsOfAProfile) {
    const struct {
        const char *name;
        QString columns;
        QString DetailsContent::*text;
        QString shown;
    } cases[] = {
        {"runtime", u"Runtime = 95"_s, &DetailsContent::textRuntime, u"Runtime: 95 min (01:35)"_s},
        {"short runtime", u"Runtime = 9"_s, &DetailsContent::textRuntime, u"Runtime: 9 min (00:09)"_s},
        {"runtime nought", u"Runtime = 0"_s, &DetailsContent::textRuntime, u"Runtime: 0 min (00:00)"_s},
        {"more than a day", u"Runtime = 1505"_s, &DetailsContent::textRuntime, u"Runtime: 1505 min (25:05)"_s},
        {"no runtime", u"Runtime = NULL"_s, &DetailsContent::textRuntime, u"Runtime:"_s},
        {"case", u"CaseType = 'Digipak'"_s, &DetailsContent::textCaseType, u"Case Type: Digipak"_s},
        {"no case", u"CaseType = NULL"_s, &DetailsContent::textCaseType, u"Case Type: "_s},
        {"rating", u"Rating = 'PG', RatingDetails = 'loud'"_s, &DetailsContent::textRating, u"Rating: PG"_s},
        {"rating details", u"Rating = 'PG', RatingDetails = 'loud'"_s, &DetailsContent::textRating_tool_tip, u"loud"_s},
        {"number", u"ColNo = '17'"_s, &DetailsContent::textCollectionNumber, u"Collection Number: 17"_s},
        {"type", u"ColType = 'Owned'"_s, &DetailsContent::textCollectionType, u"Collection Type: Owned"_s},
        {"wish", u"ColType = 'WishList', WishListPriority = 1"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: Vague interest"_s},
        {"wish 2", u"ColType = 'WishList', WishListPriority = 2"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: Like to have it"_s},
        {"wish 3", u"ColType = 'WishList', WishListPriority = 3"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: Want it"_s},
        {"wish 4", u"ColType = 'WishList', WishListPriority = 4"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: Really want it"_s},
        {"wish 5", u"ColType = 'wishlist', WishListPriority = 5"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: Need it"_s},
        {"wish nought", u"ColType = 'WishList', WishListPriority = 0"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: "_s},
        {"wish beyond", u"ColType = 'WishList', WishListPriority = 6"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: "_s},
        {"wish null", u"ColType = 'WishList', WishListPriority = NULL"_s, &DetailsContent::textCollectionNumber,
         u"Wishlist Priority: "_s},
        {"wish list's type", u"ColType = 'WishList'"_s, &DetailsContent::textCollectionType,
         u"Collection Type: WishList"_s},
        {"title", u"Title = 'T'"_s, &DetailsContent::textTitle, u"Title: T"_s},
        {"sort title", u"SortTitle = 'S'"_s, &DetailsContent::textSortTitle, u"STitle: S"_s},
        {"original title", u"OriginalTitle = 'O'"_s, &DetailsContent::textOriginalTitle, u"Original Title: O"_s},
        {"original sort title", u"OriginalSortTitle = 'P'"_s, &DetailsContent::textOriginalSortTitle, u"OSTitle: P"_s},
        {"release", u"Released = #2/28/2004#"_s, &DetailsContent::textReleaseDate, u"Release Date: 2004-02-28"_s},
        {"no release", u"Released = NULL"_s, &DetailsContent::textReleaseDate, u"Release Date: "_s},
        {"release left open", u"Released = #12/30/1899#"_s, &DetailsContent::textReleaseDate, u"Release Date: "_s},
        {"locality", u"Locality = 'Norway'"_s, &DetailsContent::textLocality, u"Locality: Norway"_s},
        {"no regions", u"Medium = 'DVD'"_s, &DetailsContent::textRegions, u"Regions: n/a"_s},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Profiles");
        AddProfile(u"A"_s, c.columns);
        Show(kDetails, u"A"_s);
        EXPECT_EQ(details.*c.text, c.shown) << c.name;
    }
}

TEST_F(ProfileContentTest, TheTextsOfAnEpisode) {
    AddEpisode(u"Runtime = 42, Rating = '12', RatingDetails = 'wet', AirDate = #3/4/2001#"_s);
    Show(kDetails, u"E"_s, true);
    const struct {
        const char *name;
        QString DetailsContent::*text;
        QString shown;
    } cases[] = {
        {"title", &DetailsContent::textTitle, u"Title: Sturm"_s},
        {"series", &DetailsContent::textOriginalTitle, u"Series: Harbour"_s},
        {"air date", &DetailsContent::textReleaseDate, u"Original Airdate: 2001-03-04"_s},
        {"runtime", &DetailsContent::textRuntime, u"Runtime: 42 min (00:42)"_s},
        {"rating", &DetailsContent::textRating, u"Rating: 12"_s},
        {"rating details", &DetailsContent::textRating_tool_tip, u"wet"_s},
        {"regions", &DetailsContent::textRegions, u"Regions: n/a"_s},
        {"case", &DetailsContent::textCaseType, {}},
        {"number", &DetailsContent::textCollectionNumber, {}},
        {"type", &DetailsContent::textCollectionType, {}},
        {"locality", &DetailsContent::textLocality, {}},
        {"sort title", &DetailsContent::textSortTitle, {}},
        {"original sort title", &DetailsContent::textOriginalSortTitle, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(details.*c.text, c.shown) << c.name;
    }
    Run(u"UPDATE Episodes SET EpisodeOriginalTitle = '', AirDate = #12/30/1899#, Runtime = NULL");
    session.view.mUseOriginalTitle = true;
    Show(kDetails, u"E"_s, true);
    EXPECT_EQ(details.textTitle, u"Title: Storm"_s) << "for want of an original title";
    EXPECT_EQ(details.textOriginalTitle, u"Series: Hafen"_s);
    EXPECT_EQ(details.textReleaseDate, u"Original Airdate: "_s);
    EXPECT_EQ(details.textRuntime, u"Runtime:"_s);
}

TEST_F(ProfileContentTest, RegionsOfABluRayAreLetters) {
    const struct {
        const char *name;
        QString medium;
        QList<int> regions;
        QString shown;
    } cases[] = {
        {"disc", u"DVD"_s, {2, 1}, u"Regions: 1, 2"_s},
        {"all", u"DVD"_s, {0}, u"Regions: 0"_s},
        {"blu-ray", u"Blu-ray Disc"_s, {3, 1, 2}, u"Regions: A, B, C"_s},
        {"others stay", u"Blu-ray Disc"_s, {0, 1, 4}, u"Regions: 0, A, 4"_s},
        {"compared exactly", u"Blu-ray disc"_s, {1}, u"Regions: 1"_s},
        {"one of two media", u"DVD/Blu-ray Disc"_s, {1}, u"Regions: 1"_s},
        {"none", u"Blu-ray Disc"_s, {}, u"Regions: n/a"_s},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Profiles");
        Run(u"DELETE FROM Regions");
        AddProfile(u"A"_s, u"Medium = '%1'"_s.arg(c.medium));
        for (const int region : c.regions) {
            Run(u"INSERT INTO Regions (ProfileID, Region) VALUES ('A', %1)"_s.arg(region));
        }
        Show(kDetails, u"A"_s);
        EXPECT_EQ(details.textRegions, c.shown) << c.name;
    }
}

TEST_F(ProfileContentTest, TheUpcLeadsToTheNotesOnAProfile) {
    const QString old_page = u"http://profiles.ostrand.example/index.php?task=contributionnotes&type=DVD&ProfileUPC="_s;
    const QString page3 = u"http://profiles3.ostrand.example/index.php?task=contributionnotes&type=DVD&ProfileUPC="_s;
    const struct {
        const char *name;
        QString id, upc;
        bool profiler3;
        QString text, target;
    } cases[] = {
        {"twelve digits", u"Key_012345678901.4"_s, u"012345678901"_s, true, u"0-12345-67890-1"_s,
         page3 + u"012345678901.4"_s},
        {"thirteen digits", u"Key_1"_s, u"4-012345678901"_s, false, u"4-012345-678901"_s, old_page + u'1'},
        {"no number", u"Key_1"_s, u"A12"_s, true, u"A12"_s, page3 + u'1'},
        {"disc", u"Key_Disc ID: 0011-2233"_s, u"0011"_s, true, u"0011"_s, page3 + u"%2000112233"_s},
        {"own key", u"a&b-c"_s, u"1"_s, true, u"1"_s, page3 + u"a%26bc"_s},
        {"none", u"Key_1"_s, {}, true, {}, {}},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Profiles");
        AddProfile(c.id, u"UPC = '%1'"_s.arg(c.upc));
        session.Profiler3 = c.profiler3;
        Show(kCredits, c.id);
        EXPECT_EQ(details.UPC.text, c.text) << c.name;
        EXPECT_EQ(details.UPC.target, c.target) << c.name;
    }
    AddEpisode();
    AddProfile(u"U"_s, u"UPC = '1'"_s);
    Show(kCredits, u"U"_s);
    Show(kCredits, u"E"_s, true);
    EXPECT_EQ(details.UPC.text, QString());
    EXPECT_EQ(details.UPC.target, QString());
}

TEST_F(ProfileContentTest, TheLinkToImdb) {
    const struct {
        const char *name, *value;
        QString text, target;
    } cases[] = {
        {"known", "'tt0012345'", u"IMDb"_s, u"http://titles.example/title/tt0012345"_s},
        {"not there", "'n/a'", {}, {}},
        {"empty", "''", {}, {}},
        {"null", "NULL", {}, {}},
        {"no row", nullptr, {}, {}},
    };
    AddProfile(u"A"_s);
    for (const auto &c : cases) {
        Run(u"DELETE FROM AdditionalInfo");
        Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('A', 'Other', 'x')");
        if (c.value) {
            Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('A', 'IMDb', %1)"_s.arg(
                QLatin1String(c.value)));
        }
        Show(kDetails, u"A"_s);
        EXPECT_EQ(details.urlIMDB.text, c.text) << c.name;
        EXPECT_EQ(details.urlIMDB.target, c.target) << c.name;
    }
}

TEST_F(ProfileContentTest, TheListsOfDetailsAreTranslated) {
    AddProfile(u"A"_s);
    AddProfile(u"B"_s);
    for (const char16_t *statement : {
             u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A', 'War')",
             u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A', 'Comedy')",
             u"INSERT INTO Genres (ProfileID, Genre) VALUES ('B', 'Music')",
             u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('A', 'Alder Media', 'Media Company')",
             u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('A', 'Willow Works', '')",
             u"INSERT INTO Studios (ProfileID, Studio, Type) VALUES ('A', 'Birch Films', '')",
             u"INSERT INTO Features (ProfileID, Feature) VALUES ('A', 'Trailers')",
             u"INSERT INTO Features (ProfileID, Feature) VALUES ('A', 'Commentary')",
         }) {
        Run(statement);
    }
    TranslateAs(u"War"_s, u"Krieg"_s);
    TranslateAs(u"Media Company"_s, u"Verlag"_s);
    TranslateAs(u"Trailers"_s, u"Vorschau"_s);
    TranslateAs(u"Birch Films"_s, u"Birkenfilm"_s);
    TranslateAs(u"Studio"_s, u"Atelier"_s);
    TranslateContent(browser);
    Show(kDetails, u"A"_s);
    QStringList genres = Lines(details.listGenres);
    genres.sort();
    EXPECT_EQ(genres, (QStringList{u"Comedy"_s, u"Krieg"_s}));
    EXPECT_EQ(Lines(details.listStudios), (QStringList{u"Birkenfilm|"_s, u"Willow Works|"_s, u"Alder Media|Verlag"_s}));
    EXPECT_EQ(details.listStudios.Rows().front().key, u"Birch Films"_s) << "as it stands in the database";
    EXPECT_EQ(Lines(details.listFeatures), (QStringList{u"Commentary"_s, u"Vorschau"_s}));
    EXPECT_EQ(Headers(details.listGenres), (QStringList{u"Genre"_s}));
    EXPECT_EQ(Headers(details.listStudios), (QStringList{u"Atelier"_s, u"Type"_s}));
    EXPECT_EQ(Headers(details.listFeatures), (QStringList{u"Feature"_s}));
}

TEST_F(ProfileContentTest, SoundAndSubtitles) {
    AddProfile(u"A"_s);
    for (int place = 18; place >= 1; --place) {
        Run(u"INSERT INTO AudioFormats (ProfileID, OrderPos, Language, Compression, Channels) VALUES ('A', %1, 'L%1', "
            u"'Dolby', '5.1')"_s.arg(place));
    }
    Run(u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('A', 'French')");
    TranslateAs(u"L1"_s, u"Deutsch"_s);
    TranslateAs(u"Dolby"_s, u"Dolby Digital"_s);
    TranslateAs(u"French"_s, u"Französisch"_s);
    Show(kAV, u"A"_s);
    const QStringList audio = Lines(av.listAudio);
    ASSERT_EQ(audio.size(), 16) << "no profile has more";
    EXPECT_EQ(audio.front(), u"Deutsch|Dolby Digital|5.1"_s);
    EXPECT_EQ(audio.back(), u"L16|Dolby Digital|5.1"_s);
    EXPECT_EQ(Lines(av.listSubtitles), QStringList{u"Französisch"_s});
    EXPECT_EQ(Headers(av.listAudio), (QStringList{u"Language"_s, u"Compression"_s, u"Channels"_s}));
    EXPECT_EQ(Headers(av.listSubtitles), (QStringList{u"Subtitle"_s}));
}

TEST_F(ProfileContentTest, ThePicture) {
    const struct {
        const char *name, *values;
        QString ratio, format;
        bool widescreen, pan_scan, full_frame, anamorph;
    } cases[] = {
        {"wide", "'2.35', 'PAL', true, false, false, true", u"Ratio: 2.35:1"_s, u"Format: PAL"_s, true, false, false,
         true},
        {"panned", "'1.33', 'NTSC', false, true, false, false", u"Ratio: 1.33:1"_s, u"Format: NTSC"_s, false, true,
         false, false},
        {"full", "'', NULL, false, false, true, false", u"Ratio: n/a"_s, u"Format: "_s, false, false, true, false},
        {"unknown", "NULL, '', false, false, false, false", u"Ratio: n/a"_s, u"Format: "_s, false, false, false, false},
    };
    AddProfile(u"A"_s);
    for (const auto &c : cases) {
        Run(u"DELETE FROM VideoFormat");
        Run(u"INSERT INTO VideoFormat (ProfileID, AspectRatio, VideoStandard, LetterBox, PanAndScan, FullFrame, F16X9) "
            "VALUES ('A', %1)"_s.arg(QLatin1String(c.values)));
        Show(kAV, u"A"_s);
        EXPECT_EQ(av.textRatio, c.ratio) << c.name;
        EXPECT_EQ(av.textVideoFormat, c.format) << c.name;
        EXPECT_EQ(av.cWidescreen, c.widescreen) << c.name;
        EXPECT_EQ(av.cPanScan, c.pan_scan) << c.name;
        EXPECT_EQ(av.cFullFrame, c.full_frame) << c.name;
        EXPECT_EQ(av.cAnamorph, c.anamorph) << c.name;
    }
    Run(u"UPDATE VideoFormat SET LetterBox = true, F16X9 = true");
    Show(kAV, u"A"_s);
    Run(u"DELETE FROM VideoFormat");
    Show(kAV, u"A"_s);
    EXPECT_EQ(av.textRatio, u"Ratio:"_s) << "nothing is known";
    EXPECT_EQ(av.textVideoFormat, u"Format:"_s);
    EXPECT_FALSE(av.cWidescreen || av.cAnamorph);
}

TEST_F(ProfileContentTest, LabelsAndValuesAreTranslated) {
    AddProfile(u"A"_s, u"CaseType = 'Keep Case', Runtime = 5, ColType = 'WishList', WishListPriority = 3"_s);
    for (const auto &[english, shown] : std::initializer_list<std::pair<QString, QString>>{
             {u"Case Type:"_s, u"Hülle:"_s},
             {u"Keep Case"_s, u"Klapphülle"_s},
             {u"Runtime:"_s, u"Laufzeit:"_s},
             {u"min"_s, u"Min."_s},
             {u"Wishlist Priority:"_s, u"Wunsch:"_s},
             {u"Want it"_s, u"Will ich"_s},
             {u"Collection Type:"_s, u"Art:"_s},
             {u"WishList"_s, u"Wunschliste"_s},
             {u"n/a"_s, u"k. A."_s},
         }) {
        TranslateAs(english, shown);
    }
    Show(kDetails, u"A"_s);
    EXPECT_EQ(details.textCaseType, u"Hülle: Klapphülle"_s);
    EXPECT_EQ(details.textRuntime, u"Laufzeit: 5 Min. (00:05)"_s);
    EXPECT_EQ(details.textCollectionNumber, u"Wunsch: Will ich"_s);
    EXPECT_EQ(details.textCollectionType, u"Art: Wunschliste"_s);
    EXPECT_EQ(details.textRegions, u"Regions: k. A."_s);
    // Another language reads the panels anew.
    session.UseUserDefinedStrings = false;
    RefreshProfileInfos(browser);
    EXPECT_EQ(details.textCaseType, u"Case Type: Keep Case"_s);
    session.UseUserDefinedStrings = true;
    Show(kDetails, {});
    EXPECT_EQ(details.textCaseType, u"Hülle:"_s);
    session.UseUserDefinedStrings = false;
    RefreshProfileInfos(browser);
    EXPECT_EQ(details.textCaseType, u"Case Type:"_s) << "and without a title";
}

TEST_F(ProfileContentTest, WithoutATitleTheLabelsStandAlone) {
    AddProfile(u"A"_s, u"Medium = 'DVD', UPC = '1', Rating = 'PG', RatingDetails = 'loud', Runtime = 5"_s);
    Run(u"INSERT INTO Genres (ProfileID, Genre) VALUES ('A', 'War')");
    Run(u"INSERT INTO Subtitles (ProfileID, Subtitle) VALUES ('A', 'French')");
    Run(u"INSERT INTO VideoFormat (ProfileID, AspectRatio, FullFrame) VALUES ('A', '1.33', true)");
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('A', 'IMDb', 'tt1')");
    for (const QString &id : {QString(), u"gone"_s}) {
        Show(kAV, u"A"_s);
        Show(kDetails, u"A"_s);
        ASSERT_EQ(browser.picMedium, u"DVDVideo"_s);
        ASSERT_FALSE(details.urlIMDB.text.isEmpty());
        Show(kDetails, id);
        EXPECT_EQ(browser.picMedium, QString());
        EXPECT_EQ(details.UPC.text, QString());
        EXPECT_EQ(details.urlIMDB.text, QString());
        EXPECT_EQ(details.textRating, u"Rating:"_s);
        EXPECT_EQ(details.textRating_tool_tip, QString());
        EXPECT_EQ(details.textRuntime, u"Runtime:"_s);
        EXPECT_EQ(details.textSortTitle, u"STitle:"_s);
        EXPECT_EQ(av.textRatio, u"Ratio:"_s);
        EXPECT_FALSE(av.cFullFrame);
        EXPECT_EQ(Lines(details.listGenres) + Lines(av.listSubtitles), QStringList());
    }
}

TEST_F(ProfileContentTest, TheMediumOfATitleHasItsIcon) {
    AddProfile(u"A"_s, u"Medium = 'blu-RAY'"_s);
    AddProfile(u"B"_s, u"Medium = 'Film reel'"_s);
    AddEpisode();
    for (const auto &[id, key] : std::initializer_list<std::pair<QString, QString>>{
             {u"A"_s, u"BluRay"_s}, {u"B"_s, {}}, {u"A"_s, u"BluRay"_s}}) {
        Show(kCredits, id);
        EXPECT_EQ(browser.picMedium, key);
        EXPECT_EQ(browser.picMedium_tool_tip, key.isEmpty() ? u"Film reel"_s : u"blu-RAY"_s);
    }
    Show(kCredits, u"E"_s, true);
    EXPECT_EQ(browser.picMedium, QString());
    EXPECT_EQ(browser.picMedium_tool_tip, QString());
    TranslateAs(u"Film reel"_s, u"Filmrolle"_s);
    session.UseUserDefinedStrings = true;
    Show(kCredits, u"B"_s);
    EXPECT_EQ(browser.picMedium_tool_tip, u"Filmrolle"_s);
    Show(kCredits, {});
    EXPECT_EQ(browser.picMedium_tool_tip, QString());
}

TEST_F(ProfileContentTest, TvViewBeginsWithEmptyPanelsAndRemembersTheTab) {
    AddProfile(u"A"_s, u"Runtime = 5"_s);
    GetMovieNames(browser);
    SelectMainTab(browser, kDetails);
    ASSERT_EQ(details.textRuntime, u"Runtime: 5 min (00:05)"_s);
    ChangeMode(browser, false);
    EXPECT_EQ(browser.tabMain_selected, kCredits);
    EXPECT_EQ(session.view.LastTab, kDetails);
    EXPECT_EQ(details.textRuntime, u"Runtime:"_s);
    ChangeMode(browser, true);
    EXPECT_EQ(browser.tabMain_selected, kDetails);
    EXPECT_EQ(details.textRuntime, u"Runtime: 5 min (00:05)"_s);
}

} // namespace
} // namespace ostrand
