// What an import asks for each profile and each row is looked up, never searched.

#include "ImportFixture.h"

#include "sql/Shape.h"

#include <QMap>

namespace ostrand {
namespace {

/// One statement of each shape that was sent, its plan at that time, and how often that shape was sent.
struct Sent {
    QString example;
    QStringList plan;
    int times = 0;
};

class QueryPlanTest : public ImportTest {
protected:
    void Observe() {
        session.Database->SetObserver([this](QStringView sql) {
            sql::Shape shape;
            EXPECT_TRUE(sql::ScanShape(sql, shape)) << qPrintable(sql.toString());
            Sent &sent = sent_[shape.key];
            if (sent.times++ == 0) {
                sent.example = sql.toString();
                sent.plan = session.Database->QueryPlan(sql);
            }
        });
    }
    void ExpectNoScan(const QStringList &once_per_import = {}) {
        session.Database->SetObserver({});
        EXPECT_GT(sent_.size(), 40);
        for (const Sent &sent : std::as_const(sent_)) {
            if (once_per_import.contains(sent.example)) {
                EXPECT_EQ(sent.times, 1) << qPrintable(sent.example);
                continue;
            }
            for (const QString &step : sent.plan) {
                EXPECT_FALSE(step.startsWith(u"SCAN"_s)) << qPrintable(sent.example) << "\n" << qPrintable(step);
            }
        }
    }
    /// The profiles repeat links of names that contradict each other.
    void ExpectRefusedLinks(int count) {
        for (int i = 0; i < count; ++i) {
            services.dialogs.ExpectMessage({}, MessageAnswer::Ok, u"Invalid Link Entry"_s);
        }
    }
    QStringList Examples() const {
        QStringList texts;
        for (const Sent &sent : sent_) {
            texts.append(sent.example);
        }
        return texts;
    }

    /// A profile with something for every table that an import fills.
    static QByteArray Rich(const QByteArray &id, const QByteArray &title) {
        return Dvd(
            id, "<UPC>012345-67890" + id + "</UPC><Title>" + title +
                    "</Title><RatingAge>12</RatingAge><RatingVariant>1</RatingVariant>"
                    "<Notes>&lt;TAGLINE&gt;Told&lt;/TAGLINE&gt;&lt;GENRES&gt;Quiz, Noir&lt;/GENRES&gt;"
                    "&lt;STUDIOS&gt;Own&lt;/STUDIOS&gt;</Notes>"
                    "<Actors><Actor FirstName=\"Dr. Ada\" LastName=\"Birk\" BirthYear=\"1950\" Role=\"A\"/>"
                    "<Actor FirstName=\"Ole\" LastName=\"Vang\" BirthYear=\"0\" Role=\"B\" CreditedAs=\"O. Vang " +
                    id +
                    "\"/>"
                    "<Actor FirstName=\"O.\" LastName=\"Vang " +
                    id +
                    "\" BirthYear=\"0\" Role=\"C\" CreditedAs=\"Olaf\"/>"
                    "<Actor FirstName=\"Ivo\" LastName=\"Kern\" BirthYear=\"0\" Role=\"D\" CreditedAs=\"Ole Vang\"/>"
                    "<Divider Caption=\"Part\" Type=\"Group\"/></Actors>"
                    "<Credits><Credit FirstName=\"Ida\" LastName=\"Holm\" BirthYear=\"0\" CreditType=\"Direction\" "
                    "CreditSubtype=\"Stage Master " +
                    id +
                    "\"/></Credits>"
                    "<BoxSet><Contents><Content>child" +
                    id +
                    "</Content></Contents></BoxSet>"
                    "<Discs><Disc><DescriptionSideA>One</DescriptionSideA><DiscIDSideA>AB" +
                    id +
                    "</DiscIDSideA></Disc></Discs>"
                    "<Regions><Region>2</Region></Regions><Format><FormatAspectRatio>2.35</FormatAspectRatio></Format>"
                    "<Features><FeatureGame>true</FeatureGame><OtherFeatures>X, Y</OtherFeatures></Features>"
                    "<Studios><Studio>Studio</Studio></Studios><MediaPublisher>Publisher</MediaPublisher>"
                    "<Genres><Genre>Drama</Genre></Genres><Subtitles><Subtitle>English</Subtitle></Subtitles>"
                    "<Audio><AudioTrack><AudioContent>English</AudioContent></AudioTrack></Audio>"
                    "<SRP DenominationType=\"USD\" DenominationDesc=\"Dollar\" FormattedValue=\"$1.50\"/>"
                    "<Review Film=\"1\" Video=\"2\" Audio=\"3\" Extras=\"4\"/>"
                    "<Exclusions><Movies/></Exclusions><MediaBanners Front=\"F\" Back=\"B\"/>"
                    "<PurchaseInfo><PurchasePrice DenominationType=\"EUR\"/><PurchasePlace>Shop</PurchasePlace>"
                    "<PurchaseDate>2001-02-03</PurchaseDate></PurchaseInfo>"
                    "<Events><Event><EventType>Watched</EventType><Timestamp>2001-02-03T04:05:06</Timestamp>"
                    "<User FirstName=\"U\" LastName=\"V\"/></Event></Events>"
                    "<LoanInfo><Loaned>true</Loaned><User FirstName=\"U\" LastName=\"W\"/></LoanInfo>"
                    "<Tags><Tag Name=\"T\" FullName=\"F/T\"/></Tags>"
                    "<AdditionalInfos><Info Name=\"I\" Type=\"text\">Value</Info></AdditionalInfos>");
    }

    QMap<QString, Sent> sent_;
};

TEST_F(QueryPlanTest, FirstAndChangedImport) {
    ExpectRefusedLinks(8);
    Observe();
    ASSERT_TRUE(Import(Rich("1", "A") + Rich("2", "B") + Rich("3", "C")));
    ASSERT_TRUE(Import(Rich("1", "A2") + Rich("2", "B2") + Rich("3", "C")));
    sent_[u"select profileid,md5 from profiles"_s].times /= 2;
    ExpectNoScan({u"SELECT ProfileID, MD5 FROM Profiles"_s});
    for (const auto &table : {u"CastCrew"_s, u"Alias"_s, u"Discs"_s, u"BoxSet"_s, u"LoanInfo"_s, u"AdditionalInfo"_s}) {
        EXPECT_FALSE(Examples().filter(u' ' + table + u' ').isEmpty()) << qPrintable(table);
    }
}

TEST_F(QueryPlanTest, ProfilesOfTheOlderKindThatGetTheirNewKeys) {
    ASSERT_TRUE(ImportOld("<UPC>234567890123</UPC><Title>Old</Title><Discs><Disc><DiscIDSideA>AB12</DiscIDSideA></Disc>"
                          "</Discs>"));
    session.Profiler3 = false;
    services.dialogs.ExpectMessage({}, MessageAnswer::Ok, u"Import Profiler 3.x data"_s);
    ExpectRefusedLinks(2);
    Observe();
    ASSERT_TRUE(Import(Rich("IAB12.1", "A") + Rich("2", "B") + Dvd("3.1", "<UPC>1234567890123</UPC><Title>C</Title>") +
                       Dvd("M4", "<Title>D</Title>")));
    ExpectNoScan({});
}

TEST_F(QueryPlanTest, RemovingBirthYears) {
    Run(u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('RemoveBirthYears', 'True')");
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('A. Birk', 'Ada Birk', 0)");
    Run(u"INSERT INTO TVCastCrew (Name, Position, EpisodeID, BirthYear) VALUES ('Ada Birk', 1, 'E1', 1951)");
    ExpectRefusedLinks(2);
    Observe();
    ASSERT_TRUE(Import(Rich("1", "A") + Rich("2", "B")));
    ExpectNoScan({u"SELECT ProfileID, MD5 FROM Profiles"_s,
                  u"SELECT Name, BirthYear FROM CastCrew WHERE BirthYear <> 0 UNION SELECT Name, BirthYear FROM "
                  "TVCastCrew WHERE BirthYear <> 0"_s});
    EXPECT_FALSE(Examples().filter(u"INNER JOIN CastCrew c"_s).isEmpty());
}

} // namespace
} // namespace ostrand
