#include "collection_files/ImportFixture.h"

namespace ostrand {

namespace {

class Sections : public ImportTest {
protected:
    /// Rows of a table without the key, after an import of one profile.
    QStringList After(const QByteArray &children, const QString &statement) {
        EXPECT_TRUE(ImportOne(children));
        return Rows(statement);
    }
    QStringList AfterOld(const QByteArray &children, const QString &statement) {
        EXPECT_TRUE(ImportOld(children));
        return Rows(statement);
    }
};

TEST_F(Sections, BoxSetsAreKeptFromTheParentsSide) {
    const QString all = u"SELECT ChildID, BoxSetID FROM BoxSet ORDER BY ChildID"_s;
    EXPECT_EQ(
        After("<BoxSet><Parent>9</Parent><Contents><Content>2</Content><Content>3</Content></Contents></BoxSet>", all),
        (QStringList{u"Key_2|Key_1"_s, u"Key_3|Key_1"_s}));
    Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_4', 'Key_other')");
    EXPECT_EQ(After("<BoxSet><Contents><Content>4</Content></Contents></BoxSet>", all),
              QStringList{u"Key_4|Key_other"_s})
        << "a child has one parent";
    EXPECT_EQ(AfterOld("<BoxSet><BoxSetChild>5</BoxSetChild></BoxSet>", all),
              (QStringList{u"Key_4|Key_other"_s, u"Key_5|Key_1"_s}));
}

TEST_F(Sections, Discs) {
    const QString all = u"SELECT DiscNo, Description, DescriptionSideB, DiscIDSideA, LabelSideA, DiscIDSideB, "
                        "LabelSideB, DualSided, DualLayered, DualLayeredSideB, Flipper, Location, Slot FROM Discs "
                        "ORDER BY DiscNo"_s;
    const QByteArray discs =
        "<Discs><Disc><Description>old</Description><DescriptionSideA>A</DescriptionSideA><DescriptionSideB>B"
        "</DescriptionSideB><DiscIDSideA>1A</DiscIDSideA><DiscIDSideB>1B</DiscIDSideB><LabelSideA>LA</LabelSideA>"
        "<LabelSideB>LB</LabelSideB><DualLayeredSideA>True</DualLayeredSideA><DualLayeredSideB>true</DualLayeredSideB>"
        "<DualLayered>true</DualLayered><DualSided>True</DualSided><Flipper>True</Flipper><Location>Shelf</Location>"
        "<Slot>7</Slot></Disc><Disc><DualSided>perhaps</DualSided></Disc></Discs>";
    EXPECT_EQ(After(discs, all), (QStringList{u"1|A|B|1A|LA|1B|LB|True|True|True|False|Shelf|7"_s,
                                              u"2|||||||False|False|False|False||"_s}));
    EXPECT_EQ(AfterOld(discs, all).first(), u"1|old||1A|LA|1B|LB|True|True|False|True|Shelf|7"_s);
}

TEST_F(Sections, Regions) {
    const QString all = u"SELECT Region FROM Regions ORDER BY Region"_s;
    EXPECT_EQ(After("", all), QStringList{u"0"_s});
    EXPECT_EQ(After("<Regions/>", all), QStringList{u"0"_s});
    EXPECT_EQ(After("<Regions><Region>All</Region></Regions>", all), QStringList{u"0"_s});
    EXPECT_EQ(After("<Regions><Region>C</Region><Region>A</Region><Region>B</Region><Region>5</Region></Regions>", all),
              (QStringList{u"1"_s, u"2"_s, u"3"_s, u"5"_s}));
    EXPECT_EQ(After("<Regions><Region>2</Region><Region>2</Region><Region>none</Region></Regions>", all),
              QStringList{u"2"_s});
}

TEST_F(Sections, VideoFormat) {
    const QString all =
        u"SELECT AspectRatio, VideoStandard, LetterBox, PanAndScan, FullFrame, F16X9 FROM VideoFormat"_s;
    const QByteArray format = "<Format><FormatAspectRatio>2.35:1</FormatAspectRatio><FormatVideoStandard>PAL"
                              "</FormatVideoStandard><FormatLetterBox>True</FormatLetterBox><FormatPanAndScan>False"
                              "</FormatPanAndScan><FormatFullFrame>true</FormatFullFrame><Format16X9>True</Format16X9>"
                              "</Format>";
    EXPECT_EQ(After(format, all), QStringList{u"2.35|PAL|True|False|True|True"_s});
    EXPECT_EQ(After("", all), QStringList{u"||False|False|False|False"_s});
    EXPECT_TRUE(Import("<DVD><ID>1</ID><MediaTypes><BluRay>true</BluRay></MediaTypes>" + format + "</DVD>"));
    EXPECT_EQ(Rows(all), QStringList{u"2.35||True|False|True|True"_s}) << "the standard is one of DVDs";
}

TEST_F(Sections, EachFeatureHasItsElement) {
    const std::pair<const char *, const char *> features[] = {
        {"FeatureSceneAccess", "Scene Access"},
        {"FeatureCommentary", "Commentary"},
        {"FeatureTrailer", "Trailers"},
        {"FeaturePhotoGallery", "Photo Gallery"},
        {"FeatureDeletedScenes", "Deleted Scenes"},
        {"FeatureMakingOf", "Featurettes"},
        {"FeatureProductionNotes", "Production Notes"},
        {"FeatureGame", "Interactive Game"},
        {"FeatureDVDROMContent", "DVD-ROM Content"},
        {"FeatureMultiAngle", "Multi Angle"},
        {"FeatureMusicVideos", "Music Videos"},
        {"FeatureClosedCaptioned", "Closed Captioned"},
        {"FeatureTHXCertified", "THX certified"},
        {"FeatureInterviews", "Interviews"},
        {"FeatureOuttakes", "Outtakes"},
        {"FeatureStoryboardComparisons", "Storyboard Comparisons"},
        {"FeaturePIP", "Picture-in-picture"},
        {"FeatureBDLive", "BD-Live"},
        {"FeatureBonusTrailers", "Bonus Trailers"},
        {"FeatureDigitalCopy", "Digital Copy"},
    };
    const QString all = u"SELECT Feature FROM Features ORDER BY Feature"_s;
    for (const auto &[element, feature] : features) {
        const QByteArray name(element);
        EXPECT_EQ(After("<Features><" + name + ">TRUE</" + name + "></Features>", all),
                  QStringList{QString::fromLatin1(feature)});
        EXPECT_EQ(After("<Features><" + name + ">false</" + name + "></Features>", all), QStringList());
    }
    EXPECT_EQ(
        After("<Features><Unknown>true</Unknown><FeatureOther>One\nTwo, Three ,,\r\n Four</FeatureOther></Features>",
              all),
        (QStringList{u"Four"_s, u"One"_s, u"Three"_s, u"Two"_s}));
    EXPECT_EQ(After("<Features><OtherFeatures>Five</OtherFeatures></Features>", all), QStringList{u"Five"_s});
}

TEST_F(Sections, Studios) {
    EXPECT_EQ(After("<Studios><Studio>A Films</Studio><Studio>B Films</Studio></Studios><MediaPublisher>C Discs"
                    "</MediaPublisher><MediaCompanies><MediaCompany>D Discs</MediaCompany><MediaCompany/>"
                    "</MediaCompanies>",
                    u"SELECT Studio, Type FROM Studios ORDER BY Studio"_s),
              (QStringList{u"A Films|"_s, u"B Films|"_s, u"C Discs|Media Company"_s, u"D Discs|Media Company"_s}));
}

TEST_F(Sections, GenresAndSubtitles) {
    EXPECT_EQ(After("<Genres><Genre>Drama</Genre><Genre>drama</Genre><Genre/></Genres>", u"SELECT Genre FROM Genres"_s),
              QStringList{u"Drama"_s});
    EXPECT_EQ(After("<Subtitles><Subtitle>English</Subtitle><Subtitle/></Subtitles>",
                    u"SELECT Subtitle FROM Subtitles ORDER BY Subtitle"_s),
              (QStringList{QString(), u"English"_s}));
}

TEST_F(Sections, AudioFormats) {
    const QString all = u"SELECT OrderPos, Language, Compression, Channels FROM AudioFormats ORDER BY OrderPos"_s;
    EXPECT_EQ(After("<Audio><AudioTrack><AudioContent>English</AudioContent><AudioFormat>PCM</AudioFormat>"
                    "<AudioChannels>Dolby Surround</AudioChannels></AudioTrack><AudioTrack><AudioContent>Commentary"
                    "</AudioContent><AudioChannels>2-Channel Stereo</AudioChannels></AudioTrack><AudioTrack>"
                    "<AudioChannels>5.1</AudioChannels></AudioTrack></Audio>",
                    all),
              (QStringList{u"1|English|PCM|2.0 Surround"_s, u"2|Commentary||2.0 Stereo"_s, u"3|||5.1"_s}));
    EXPECT_EQ(AfterOld("<Audio><AudioFormat><AudioLanguage>English</AudioLanguage><AudioCompression>PCM"
                       "</AudioCompression><AudioChannels>Dolby Surround</AudioChannels></AudioFormat></Audio>",
                       all),
              QStringList{u"1|English|PCM|Dolby Surround"_s});
}

TEST_F(Sections, SuggestedPrices) {
    const QString all = u"SELECT SRPValue, CurrencyID FROM SRPInfo"_s;
    EXPECT_EQ(After("<SRP DenominationType='USD' DenominationDesc='US Dollar' FormattedValue='$1021.99'>x</SRP>", all),
              QStringList{u"1021.99|USD"_s});
    EXPECT_EQ(Rows(u"SELECT CurrencyID, CurrencyName, CurrencySymbol FROM Currencies"),
              QStringList{u"USD|US Dollar|$"_s});
    EXPECT_EQ(After("<SRP DenominationType='usd' DenominationDesc='Other' FormattedValue='D 0.00'/>", all),
              QStringList{u"0|usd"_s});
    EXPECT_EQ(Rows(u"SELECT CurrencyName FROM Currencies"), QStringList{u"US Dollar"_s}) << "an existing row stays";
    EXPECT_EQ(After("<SRP DenominationType='EUR' FormattedValue=''/>", all), QStringList());
    EXPECT_EQ(After("<SRP FormattedValue='$5'/>", all), QStringList{u"5|"_s}) << "no price is lost for its currency";
    EXPECT_EQ(After("<SRP DenominationType='THALER' FormattedValue='6'/>", all), QStringList{u"6|THALE"_s})
        << "nor for an identifier that its column cuts";
    EXPECT_EQ(After("", all), QStringList());
    EXPECT_EQ(AfterOld("<SRPInfo><SRP>€12,90</SRP><SRPCurrencyID>EUR</SRPCurrencyID><SRPCurrencyName>Euro"
                       "</SRPCurrencyName></SRPInfo>",
                       all)
                  .size(),
              1);
}

TEST_F(Sections, Reviews) {
    const QString all = u"SELECT Film, Video, Audio, Extras FROM Reviews"_s;
    EXPECT_EQ(After("<Review Film='1' Video='2' Audio='3' Extras='4'/>", all), QStringList{u"1|2|3|4"_s});
    EXPECT_EQ(After("", all), QStringList{u"0|0|0|0"_s}) << "one row is always written";
    EXPECT_EQ(AfterOld("<Review><ReviewFilm>5</ReviewFilm><ReviewVideo>6</ReviewVideo><ReviewAudio>7</ReviewAudio>"
                       "<ReviewExtras>8</ReviewExtras></Review>",
                       all),
              QStringList{u"5|6|7|8"_s});
}

TEST_F(Sections, MetaInfos) {
    const QString all = u"SELECT InfoName, InfoValue FROM MetaInfo ORDER BY InfoName"_s;
    EXPECT_EQ(
        After("<Exclusions><Moviepick/><Mobile>true</Mobile></Exclusions><MediaBanners Front='Blue' Back='Red'/>", all),
        (QStringList{u"Exclusions|Moviepick, Mobile"_s, u"MediaBannerBack|Red"_s, u"MediaBannerFront|Blue"_s}));
    EXPECT_EQ(After("", all), (QStringList{u"MediaBannerBack|Red"_s, u"MediaBannerFront|Blue"_s}));
    EXPECT_EQ(After("<MediaBanners Front='Off' Back='Automatic'/>", all),
              (QStringList{u"MediaBannerBack|Automatic"_s, u"MediaBannerFront|Off"_s}))
        << "the neutral words differ";
    EXPECT_EQ(After("<MediaBanners Front='Automatic' Back='Off'/>", all), QStringList());
}

TEST_F(Sections, Purchases) {
    const QString all = u"SELECT Price, CurrencyID, PurchaseDate, PurchasePlace FROM PurchaseInfo"_s;
    const QString shops = u"SELECT Name, Type, Website FROM Retailers WHERE Name <> '' ORDER BY Name"_s;
    EXPECT_EQ(After("<PurchaseInfo><PurchasePrice DenominationType='USD' DenominationDesc='Dollar' "
                    "FormattedValue='$9.99'/><PurchasePlace>Shop</PurchasePlace><PurchasePlaceType>O"
                    "</PurchasePlaceType><PurchasePlaceWebsite>shop.example</PurchasePlaceWebsite><PurchaseDate>"
                    "2012-05-09</PurchaseDate></PurchaseInfo>",
                    all),
              QStringList{u"9.99|USD|2012-05-09|Shop"_s});
    EXPECT_EQ(Rows(shops), QStringList{u"Shop|Online|shop.example"_s});
    EXPECT_EQ(After("<PurchaseInfo><PurchasePlace>Corner</PurchasePlace><PurchasePlaceType>L</PurchasePlaceType>"
                    "</PurchaseInfo><PurchasePrice DenominationType='USD' FormattedValue='$2'/>",
                    all),
              QStringList{u"2|USD||Corner"_s})
        << "the price may stand outside";
    EXPECT_EQ(Rows(shops), (QStringList{u"Corner|Local|"_s, u"Shop|Online|shop.example"_s}));
    EXPECT_EQ(After("<PurchaseInfo><PurchaseDate>2012-05-09</PurchaseDate><PurchasePrice DenominationType='SEK' "
                    "FormattedValue=''/></PurchaseInfo>",
                    all),
              QStringList{u"||2012-05-09|"_s})
        << "no purchase is lost for a currency without a price";
    EXPECT_EQ(After("<PurchaseInfo><PurchaseDate/><PurchasePlace/><PurchasePrice DenominationType='USD' "
                    "FormattedValue='$1'/></PurchaseInfo>",
                    all),
              QStringList());
    EXPECT_EQ(AfterOld("<PurchaseInfo><PurchasePlace>Old</PurchasePlace><PurchPlaceType>X</PurchPlaceType>"
                       "<PurchPlaceWebsite>old.example</PurchPlaceWebsite><PurchasePriceInfo><PurchasePrice>$3"
                       "</PurchasePrice><PurchasePriceCurrencyID>USD</PurchasePriceCurrencyID>"
                       "<PurchasePriceCurrencyName>Dollar</PurchasePriceCurrencyName></PurchasePriceInfo>"
                       "</PurchaseInfo>",
                       all),
              QStringList{u"3|USD||Old"_s});
    EXPECT_EQ(Rows(u"SELECT Type, Website FROM Retailers WHERE Name = 'Old'"), QStringList{u"X|old.example"_s});
}

TEST_F(Sections, Events) {
    services.random.numbers = {0.0, 0.5, 0.5, 0.25};
    const QString all = u"SELECT EventID, UserID, EventType, EventTimeStamp FROM Events ORDER BY EventTimeStamp"_s;
    EXPECT_EQ(
        After("<Events><Event><EventType>Watched</EventType><Timestamp>2012-05-09T20:15:00.000Z</Timestamp><User "
              "FirstName='Ann' LastName='Smith' PhoneNumber='1' EmailAddress='a@example.org'/></Event><Event>"
              "<EventType>Borrowed</EventType><Timestamp>2012-05-10</Timestamp><User FirstName='' "
              "LastName='Lone'/></Event></Events>",
              all),
        (QStringList{u"1073741824|Ann Smith|Watched|2012-05-09 20:15:00"_s, u"536870912|Lone|Borrowed|2012-05-10"_s}));
    EXPECT_EQ(Rows(u"SELECT UserID, PhoneNumber, EmailAddress, IsActive FROM Users ORDER BY UserID"),
              (QStringList{u"Ann Smith|1|a@example.org|True"_s, u"Lone|||True"_s}));
    EXPECT_EQ(AfterOld("<Events><Event><EventType>Watched</EventType><Timestamp>2001-01-01</Timestamp><User>"
                       "<FirstName>Old</FirstName></User></Event></Events>",
                       u"SELECT UserID, EventTimeStamp FROM Events"_s),
              QStringList{u"Old|2001-01-01"_s});
}

TEST_F(Sections, AnEventFindsANumberWhenChanceFails) {
    services.random.numbers = {0.5};
    EXPECT_EQ(After("<Events><Event><User FirstName='A'/></Event><Event><User FirstName='B'/></Event></Events>",
                    u"SELECT EventID FROM Events ORDER BY EventID"_s),
              (QStringList{u"1073741824"_s, u"1073741825"_s}));
}

TEST_F(Sections, EventTypesAreTranslatedBack) {
    session.UseUserDefinedStrings = true;
    Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Watched', 'Gesehen')");
    EXPECT_EQ(After("<Events><Event><EventType>Gesehen</EventType><User FirstName='A'/></Event></Events>",
                    u"SELECT EventType FROM Events"_s),
              QStringList{u"Watched"_s});
}

TEST_F(Sections, Loans) {
    const QString all = u"SELECT UserID, LoanedDue FROM LoanInfo"_s;
    EXPECT_EQ(After("<LoanInfo><Loaned>True</Loaned><Due>2012-05-09</Due><User FirstName='Ann' LastName='Smith' "
                    "PhoneNumber='12'/></LoanInfo>",
                    all),
              QStringList{u"Ann Smith|2012-05-09"_s});
    EXPECT_EQ(Rows(u"SELECT UserID, PhoneNumber, IsActive FROM Users"), QStringList{u"Ann Smith|12|True"_s})
        << "the borrower becomes known";
    EXPECT_EQ(After("<LoanInfo><Loaned>false</Loaned><User FirstName='Ann' LastName='Smith'/></LoanInfo>", all),
              QStringList());
    EXPECT_EQ(After("<LoanInfo><Loaned>true</Loaned></LoanInfo>", all), QStringList());
    EXPECT_EQ(After("<LoanInfo><Loaned>true</Loaned><User LastName='Smith'/></LoanInfo>", all),
              QStringList{u"Smith|"_s});
    EXPECT_EQ(AfterOld("<LoanInfo><LoanedTo>Bob</LoanedTo><LoanedToLast>Jones</LoanedToLast><LoanedDue>2001-02-03"
                       "</LoanedDue></LoanInfo>",
                       all),
              QStringList{u"Bob Jones|2001-02-03"_s});
}

TEST_F(Sections, Tags) {
    const QString all = u"SELECT TagName, FullyQualifiedName FROM Tags ORDER BY TagName"_s;
    EXPECT_EQ(After("<Tags><Tag Name='B' FullName='A/B'/><Tag Name='b' FullName='C/B'/></Tags>", all),
              QStringList{u"B|A/B"_s});
    EXPECT_EQ(AfterOld("<Tags><Tag><Name>O</Name><FullyQualifiedName>P/O</FullyQualifiedName></Tag></Tags>", all),
              QStringList{u"O|P/O"_s});
}

TEST_F(Sections, AdditionalInfosReplaceTheNamesOfTheFile) {
    const QString all = u"SELECT InfoName, InfoValue, InfoType FROM AdditionalInfo ORDER BY InfoName"_s;
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_1', 'Mine', 'kept')");
    Run(u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('Key_1', 'site', 'old')");
    EXPECT_EQ(After("<AdditionalInfos><Info Name='Site' Type='Link'>new</Info></AdditionalInfos>", all),
              (QStringList{u"Mine|kept|"_s, u"Site|new|Link"_s}));
    Lock(u"AdditionalInfos"_s);
    EXPECT_EQ(After("<AdditionalInfos><Info Name='Site'>newer</Info></AdditionalInfos>", all),
              (QStringList{u"Mine|kept|"_s, u"Site|new|Link"_s}));
}

TEST_F(Sections, EachLockKeepsItsSection) {
    const QByteArray first =
        "<Actors><Actor FirstName='A'/></Actors><Credits><Credit FirstName='A' CreditSubtype='Writer'/></Credits>"
        "<BoxSet><Contents><Content>A</Content></Contents></BoxSet><Discs><Disc><Slot>A</Slot></Disc></Discs><Regions>"
        "<Region>1</Region></Regions><Format><FormatAspectRatio>1.11</FormatAspectRatio></Format><Features>"
        "<OtherFeatures>A</OtherFeatures></Features><Studios><Studio>A</Studio></Studios><Genres><Genre>A</Genre>"
        "</Genres><Subtitles><Subtitle>A</Subtitle></Subtitles><Audio><AudioTrack><AudioContent>A</AudioContent>"
        "</AudioTrack></Audio><SRP FormattedValue='$1'/><Review Film='1'/><PurchaseInfo><PurchasePlace>A"
        "</PurchasePlace></PurchaseInfo><Events><Event><User FirstName='A'/></Event></Events><LoanInfo><Loaned>true"
        "</Loaned><User FirstName='A'/></LoanInfo><Tags><Tag Name='A'/></Tags><AdditionalInfos><Info Name='I'>A</Info>"
        "</AdditionalInfos>";
    QByteArray second = first;
    second.replace(">A<", ">B<")
        .replace("'A'", "'B'")
        .replace(">1<", ">2<")
        .replace("1.11", "2.22")
        .replace("$1", "$2");
    second.replace("Film='1'", "Film='2'");
    struct Case {
        const char *lock;
        const char *query;
    };
    const Case cases[] = {
        {"Cast", "SELECT Name FROM CastCrew WHERE IsCast = true"},
        {"Crew", "SELECT Name FROM CastCrew WHERE IsCast = false"},
        {"BoxSet", "SELECT ChildID FROM BoxSet"},
        {"Discs", "SELECT Slot FROM Discs"},
        {"Regions", "SELECT Region FROM Regions"},
        {"VideoFormats", "SELECT AspectRatio FROM VideoFormat"},
        {"Features", "SELECT Feature FROM Features"},
        {"Studios", "SELECT Studio FROM Studios"},
        {"Genres", "SELECT Genre FROM Genres"},
        {"Subtitles", "SELECT Subtitle FROM Subtitles"},
        {"AudioFormats", "SELECT Language FROM AudioFormats"},
        {"AudioTracks", "SELECT Language FROM AudioFormats"},
        {"SRPInfo", "SELECT SRPValue FROM SRPInfo"},
        {"Reviews", "SELECT Film FROM Reviews"},
        {"PurchaseInfo", "SELECT PurchasePlace FROM PurchaseInfo"},
        {"Events", "SELECT UserID FROM Events"},
        {"LoanInfo", "SELECT UserID FROM LoanInfo"},
        {"Tags", "SELECT TagName FROM Tags"},
        {"AdditionalInfos", "SELECT InfoValue FROM AdditionalInfo"},
        {"AdditionalInfo", "SELECT InfoValue FROM AdditionalInfo"},
    };
    for (const Case &locked : cases) {
        SCOPED_TRACE(locked.lock);
        const QString query = QString::fromLatin1(locked.query);
        ForgetDigests();
        EXPECT_TRUE(ImportOne(first));
        const QStringList before = Rows(query);
        EXPECT_EQ(before.size(), 1);
        Lock(QString::fromLatin1(locked.lock).toLower());
        EXPECT_TRUE(ImportOne(second));
        EXPECT_EQ(Rows(query), before);
        Run(u"DELETE FROM Locks");
        ForgetDigests();
        EXPECT_TRUE(ImportOne(second));
        EXPECT_NE(Rows(query), before);
    }
}

TEST_F(Sections, WhatTheFileDoesNotKnowStays) {
    EXPECT_TRUE(ImportOne("<Title>One</Title>"));
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_1', 'S01')");
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('A', 'B', 0)");
    Lock(u"Overview"_s);
    EXPECT_TRUE(ImportOne("<Title>Two</Title>"));
    EXPECT_EQ(Rows(u"SELECT EpisodeID FROM Profile2Episodes"), QStringList{u"S01"_s});
    EXPECT_EQ(Rows(u"SELECT AliasName FROM Alias"), QStringList{u"A"_s});
    EXPECT_EQ(Rows(u"SELECT LockName FROM Locks"), QStringList{u"Overview"_s});
}

} // namespace

} // namespace ostrand
