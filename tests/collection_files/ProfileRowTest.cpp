#include "base/Md5.h"
#include "collection_files/ImportFixture.h"

namespace ostrand {

namespace {

using ProfileRow = ImportTest;

const QByteArray kWhole =
    "<Title>One</Title><UPC>012345-678901</UPC><OriginalTitle>Uno</OriginalTitle><CollectionNumber>12</"
    "CollectionNumber>"
    "<DistTrait>Edition</DistTrait><Description>not this</Description><CollectionType>Wish List </CollectionType>"
    "<SortTitle>One S</SortTitle><ProfileTimestamp>2012-05-09T18:10:47.000Z</ProfileTimestamp><Rating>PG</Rating>"
    "<RatingSystem>Film</RatingSystem><RatingDetails>Mild</RatingDetails><RatingAge>6</RatingAge>"
    "<RatingVariant>1</RatingVariant><ProductionYear>1999</ProductionYear><Released>2001-02-03</Released>"
    "<RunningTime>95</RunningTime><CaseType>Keep Case</CaseType><CaseSlipCover>True</CaseSlipCover>"
    "<Overview>a\r\nb\nc</Overview><Notes>n\nm</Notes><EasterEggs>e\nf</EasterEggs>"
    "<LastEdited>2012-06-06T15:05:33.000Z</LastEdited><WishPriority>3</WishPriority><CountAs>2</CountAs>"
    "<CountryOfOrigin>Norway</CountryOfOrigin>";

constexpr auto kColumns =
    u"Title, Medium, OriginalTitle, ColNo, SortTitle, Description, ColType, UPC, Rating, RatingSystem, RatingDetails, "
    "ProdYear, Released, Runtime, CaseType, Eastereggs, WishListPriority, Locality, DataSource, CountryOfOrigin, "
    "CountAs";

TEST_F(ProfileRow, EachElementHasItsColumn) {
    EXPECT_TRUE(ImportOne(kWhole));
    EXPECT_EQ(Fields(QString::fromUtf16(kColumns)),
              u"One|DVD|Uno|12|One S|Edition|WishList|012345-678901|PG|Film|Mild|1999|"
              "2001-02-03|95|Keep Case, Slip Cover|e\r\nf|3|United States|DVDProfiler|"
              "Norway|2"_s);
    EXPECT_EQ(Fields(u"ProfileTimestamp, LastEdited"_s), u"2012-05-09 18:10:47|2012-06-06 15:05:33"_s);
    EXPECT_EQ(Fields(u"Overview"_s), u"a\r\nb\r\nc"_s);
    EXPECT_EQ(Fields(u"Notes"_s), u"n\r\nm"_s);
    EXPECT_EQ(Fields(u"OriginalSortTitle, CustomTitle, CustomSortTitle"_s), u"||"_s);
    EXPECT_EQ(Rows(u"SELECT InfoName, InfoValue FROM MetaInfo ORDER BY InfoName"),
              (QStringList{u"RatingAge|6"_s, u"RatingVariant|1"_s}));
}

TEST_F(ProfileRow, MissingElementsGiveTheirDefaults) {
    EXPECT_TRUE(ImportOne(""));
    EXPECT_EQ(Fields(QString::fromUtf16(kColumns)), u"|DVD||||||||||0|1899-12-30|0||||United States|DVDProfiler||1"_s);
    EXPECT_EQ(Fields(u"ProfileTimestamp, LastEdited"_s), u"1899-12-30|1899-12-30"_s);
    EXPECT_EQ(
        Rows(u"SELECT WishListPriority FROM Profiles WHERE ProfileID = 'Key_1' AND WishListPriority Is Null").size(),
        1);
    EXPECT_EQ(Rows(u"SELECT * FROM MetaInfo"), QStringList());
}

TEST_F(ProfileRow, DescriptionStandsInWhereThereIsNoTrait) {
    EXPECT_TRUE(ImportOne("<Description>Old</Description>"));
    EXPECT_EQ(Fields(u"Description"_s), u"Old"_s);
    EXPECT_TRUE(ImportOne("<DistTrait/><Description>Old</Description>"));
    EXPECT_EQ(Fields(u"Description"_s), QString()) << "an empty trait wins";
}

TEST_F(ProfileRow, SlipCoversJoinTheCaseType) {
    const std::pair<QByteArray, const char *> cases[] = {
        {"<CaseType>Box</CaseType><CaseSlipCover>true</CaseSlipCover>", "Box, Slip Cover"},
        {"<CaseSlipCover>TRUE</CaseSlipCover>", "Slip Cover"},
        {"<CaseType>Box</CaseType><CaseSlipCover>false</CaseSlipCover>", "Box"},
        {"<CaseType>Box</CaseType>", "Box"},
    };
    for (const auto &[children, text] : cases) {
        EXPECT_TRUE(ImportOne(children));
        EXPECT_EQ(Fields(u"CaseType"_s), QString::fromLatin1(text));
    }
}

TEST_F(ProfileRow, MediaAreJoinedInTheOrderOfTheFile) {
    const std::pair<QByteArray, const char *> cases[] = {
        {"<DVD>true</DVD><HDDVD>false</HDDVD><BluRay>false</BluRay>", "DVD"},
        {"<DVD>false</DVD><HDDVD>TRUE</HDDVD><BluRay>true</BluRay>", "HD DVD/Blu-ray Disc"},
        {"<HDDVD>true</HDDVD><DVD>true</DVD>", "HD DVD/DVD"},
        {"<DVD>true</DVD><CustomMediaType>Tape</CustomMediaType>", "DVD/Tape"},
        {"<DVD>false</DVD><CustomMediaType/>", ""},
        {"", ""},
    };
    for (const auto &[media, text] : cases) {
        EXPECT_TRUE(Import("<DVD><ID>1</ID><MediaTypes>" + media + "</MediaTypes></DVD>"));
        EXPECT_EQ(Fields(u"Medium"_s), QString::fromLatin1(text));
    }
}

TEST_F(ProfileRow, LocalityComesFromTheIdentifier) {
    const std::pair<QByteArray, const char *> cases[] = {
        {"100", "United States"}, {"100.1", "New Zealand"}, {"100.17", "Japan"}, {"I0.5.5", "Germany"},
        {"100.50", "Columbia"},   {"100.51", "Peru"},       {"100.99", ""},      {"100.x", ""},
    };
    for (const auto &[id, country] : cases) {
        EXPECT_TRUE(Import(Dvd(id, "")));
        EXPECT_EQ(
            Rows(QString(u"SELECT Locality FROM Profiles WHERE ProfileID = 'Key_%1'"_s.arg(QString::fromLatin1(id)))),
            QStringList{QString::fromLatin1(country)})
            << id.constData();
    }
}

TEST_F(ProfileRow, EachLockKeepsItsColumns) {
    EXPECT_TRUE(ImportOne(kWhole));
    EXPECT_TRUE(ImportOne(""));
    const QByteArray other =
        "<Title>Zwei</Title><UPC>2</UPC><OriginalTitle>Due</OriginalTitle><CollectionNumber>22</CollectionNumber>"
        "<DistTrait>Second</DistTrait><CollectionType>Owned</CollectionType><SortTitle>Two "
        "S</SortTitle><Rating>R</Rating>"
        "<RatingSystem>TV</RatingSystem><RatingDetails>Wild</RatingDetails><ProductionYear>2222</ProductionYear>"
        "<Released>2002-02-02</Released><RunningTime>22</RunningTime><CaseType>Tin</CaseType><Overview>o</Overview>"
        "<Notes>n</Notes><EasterEggs>e</EasterEggs><WishPriority>2</WishPriority><CountryOfOrigin>Peru</"
        "CountryOfOrigin>";
    struct Case {
        const char *lock;
        const char *columns;
    };
    const Case cases[] = {
        {"Title", "Title"},
        {"Medium", "Medium"},
        {"OriginalTitle", "OriginalTitle"},
        {"CollectionNumber", "ColNo"},
        {"SortTitle", "SortTitle"},
        {"Description", "Description"},
        {"CollectionType", "ColType"},
        {"UPC", "UPC"},
        {"Rating", "Rating, RatingSystem, RatingDetails"},
        {"ProductionYear", "ProdYear"},
        {"ReleaseDate", "Released"},
        {"RunningTime", "Runtime"},
        {"CaseType", "CaseType"},
        {"Overview", "Overview"},
        {"Notes", "Notes"},
        {"EasterEggs", "Eastereggs"},
        {"WishListPriority", "WishListPriority"},
        {"Locality", "Locality"},
        {"DataSource", "DataSource"},
        {"CountryOfOrigin", "CountryOfOrigin"},
    };
    for (const Case &locked : cases) {
        SCOPED_TRACE(locked.lock);
        const QString columns = QString::fromLatin1(locked.columns);
        ForgetDigests();
        EXPECT_TRUE(ImportOne(kWhole));
        Run(u"UPDATE Profiles SET Medium = 'Mine', Locality = 'Mine', DataSource = 'Mine' WHERE ProfileID = 'Key_1'");
        const QString before = Fields(columns);
        Lock(QString::fromLatin1(locked.lock).toUpper());
        EXPECT_TRUE(ImportOne(other));
        EXPECT_EQ(Fields(columns), before);
        EXPECT_NE(Fields(u"MD5"_s), QString());
        Run(u"DELETE FROM Locks");
        ForgetDigests();
        EXPECT_TRUE(ImportOne(other));
        EXPECT_NE(Fields(columns), before) << "without the lock it changes";
    }
}

TEST_F(ProfileRow, TimestampAndDigestChangeUnderALock) {
    EXPECT_TRUE(ImportOne(kWhole));
    Lock(u"Title"_s);
    const QByteArray changed = "<Title>New</Title><ProfileTimestamp>2015-01-01T00:00:00.000Z</ProfileTimestamp>";
    EXPECT_TRUE(ImportOne(changed));
    EXPECT_EQ(Fields(u"Title, ProfileTimestamp, MD5"_s),
              u"One|2015-01-01|"_s + MD5(QString::fromUtf8(Dvd("1", changed))));
}

TEST_F(ProfileRow, LastEditedNeverMovesBackwards) {
    const auto edited = [this](const QByteArray &date) {
        ForgetDigests();
        EXPECT_TRUE(ImportOne("<LastEdited>" + date + "</LastEdited>"));
        return Fields(u"LastEdited"_s);
    };
    EXPECT_EQ(edited("2012-06-06T15:05:33.000Z"), u"2012-06-06 15:05:33"_s);
    EXPECT_EQ(edited("2012-06-06T15:05:32.000Z"), u"2012-06-06 15:05:33"_s);
    EXPECT_EQ(edited(""), u"2012-06-06 15:05:33"_s);
    EXPECT_EQ(edited("nonsense"), u"2012-06-06 15:05:33"_s);
    EXPECT_EQ(edited("2012-06-06T15:05:34.000Z"), u"2012-06-06 15:05:34"_s);
    Run(u"UPDATE Profiles SET LastEdited = NULL");
    EXPECT_EQ(edited("2001-01-01"), u"2001-01-01"_s);
}

TEST_F(ProfileRow, CountAsIsWrittenOnceAndCustomTitlesNever) {
    EXPECT_TRUE(ImportOne("<CountAs>2</CountAs>"));
    Run(u"UPDATE Profiles SET CustomTitle = 'Mine', CustomSortTitle = 'Mine S', OriginalSortTitle = 'O' WHERE "
        "ProfileID = 'Key_1'");
    EXPECT_TRUE(ImportOne("<CountAs>3</CountAs>"));
    EXPECT_EQ(Fields(u"CountAs, CustomTitle, CustomSortTitle, OriginalSortTitle"_s), u"2|Mine|Mine S|O"_s);
}

TEST_F(ProfileRow, OlderFilesNeverWriteTheCountry) {
    EXPECT_TRUE(ImportOld("<CountryOfOrigin>Norway</CountryOfOrigin>"));
    EXPECT_EQ(Fields(u"CountryOfOrigin"_s), QString());
}

TEST_F(ProfileRow, AnEmptyPriorityKeepsTheStoredOne) {
    EXPECT_TRUE(ImportOne("<WishPriority>4</WishPriority>"));
    EXPECT_TRUE(ImportOne("<WishPriority/>"));
    EXPECT_EQ(Fields(u"WishListPriority"_s), u"4"_s);
}

TEST_F(ProfileRow, NumbersThatAreNoneBecomeNull) {
    EXPECT_TRUE(ImportOne("<Title>One</Title><ProductionYear>soon</ProductionYear><Released>never</Released>"));
    EXPECT_EQ(Fields(u"Title, ProdYear, Released"_s), u"One||"_s);
}

TEST_F(ProfileRow, TextsAreCutToTheirColumn) {
    EXPECT_TRUE(ImportOne("<Title>" + QByteArray(300, 'x') + "</Title>"));
    EXPECT_EQ(Fields(u"Title"_s).size(), 255);
}

const QByteArray kTagged =
    "<Notes>x &lt;country>Norway&lt;/COUNTRY> &lt;TAGLINE>t&lt;/TAGLINE>&lt;STORAGE>s&lt;/STORAGE>&lt;COMMENTS>c&lt;/"
    "COMMENTS>&lt;STUDIOS>A Films&lt;/STUDIOS>&lt;GENRES>Drama, Comedy,  War&lt;/GENRES>&lt;URL>u&lt;/URL>&lt;IMDB>i"
    "&lt;/IMDB>&lt;RATING>7&lt;/RATING>&lt;VOTES>12&lt;/VOTES>&lt;TRIVIA>r&lt;/TRIVIA>&lt;GOOFS>g&lt;/GOOFS>&lt;"
    "REVIEWS>w&lt;/REVIEWS></Notes>";

TEST_F(ProfileRow, PseudoTagsOfTheNotesAreStored) {
    Lock(u"Genres"_s);
    EXPECT_TRUE(ImportOne(kTagged));
    EXPECT_EQ(Rows(u"SELECT InfoName, InfoValue FROM AdditionalInfo ORDER BY InfoName"),
              (QStringList{u"Comments|c"_s, u"Goofs|g"_s, u"IMDb|i"_s, u"IMDbRating|7"_s, u"IMDbVotes|12"_s,
                           u"ProductionCountry|Norway"_s, u"Reviews|w"_s, u"Storage|s"_s, u"TagLine|t"_s, u"Trivia|r"_s,
                           u"URL|u"_s}));
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList()) << "kept by the lock";
    EXPECT_EQ(Rows(u"SELECT Studio FROM Studios"), QStringList()) << "always dropped";
}

TEST_F(ProfileRow, PseudoTagsHaveTheLineEndsOfTheNotes) {
    EXPECT_TRUE(ImportOne("<Notes>&lt;TRIVIA>a\nb&lt;/TRIVIA></Notes>"));
    EXPECT_EQ(Rows(u"SELECT InfoValue FROM AdditionalInfo"), QStringList{u"a\r\nb"_s});
}

TEST_F(ProfileRow, PseudoTagsObeyTheLockOfTheInfos) {
    Lock(u"AdditionalInfo"_s);
    EXPECT_TRUE(ImportOne(kTagged));
    EXPECT_EQ(Rows(u"SELECT InfoName FROM AdditionalInfo"), QStringList());
}

TEST_F(ProfileRow, TheGenresOfTheNotesGoToTheSectionOfGenres) {
    EXPECT_TRUE(ImportOne(kTagged));
    EXPECT_EQ(Rows(u"SELECT Genre FROM Genres"), QStringList()) << "the section replaces them";
}

} // namespace

} // namespace ostrand
