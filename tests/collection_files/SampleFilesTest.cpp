// The sample collection: that it is sound, and that it shows what a collection can hold.
#include "collection_files/AdditionalInfos.h"
#include "collection_files/ProfilerImport.h"
#include "database/CollectionFixture.h"
#include "sql/Parser.h"
#include "xml/XmlLoader.h"

#include <QDirIterator>

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFewestProfiles = 55;
constexpr int kMostProfiles = 65;
constexpr qint64 kLargestPicture = 40 * 1024;
constexpr qint64 kAllPictures = 1536 * 1024;
constexpr qint64 kLargestText = 1024 * 1024;

QString SampleFile(const QString &name) {
    return QStringLiteral(OSTRAND_SOURCE_DIR) + u"/resources/samples/"_s + name;
}

QStringList SampleStatements() {
    return QString::fromUtf8(test::ReadTestFile(SampleFile(u"additions.sql"_s))).split(u'\n', Qt::SkipEmptyParts);
}

struct SampleDocument {
    explicit SampleDocument(const QString &name) { result = XmlLoadFile(SampleFile(name), document); }

    pugi::xml_node Collection() const { return document.child("Collection"); }
    qsizetype Count(const char *path) const { return static_cast<qsizetype>(Collection().select_nodes(path).size()); }

    pugi::xml_document document;
    XmlResult result;
};

QSet<QString> TextsOf(const SampleDocument &sample, const char *path) {
    QSet<QString> texts;
    for (const pugi::xpath_node &node : sample.Collection().select_nodes(path)) {
        texts << QString::fromUtf8(node.node().text().get());
    }
    return texts;
}

QFileInfoList Pictures(const QString &folder) {
    return QDir(SampleFile(u"images/"_s + folder)).entryInfoList({u"*.jpg"_s}, QDir::Files);
}

// An XPath below the root that must find something.
struct Wanted {
    const char *what;
    const char *path;
};

void PrintTo(const Wanted &wanted, std::ostream *out) {
    *out << wanted.what;
}

class SampleShows : public testing::TestWithParam<Wanted> {};
class OldSampleShows : public testing::TestWithParam<Wanted> {};

} // namespace

TEST(SampleFiles, AreWellFormed) {
    for (const char16_t *name : {u"collection.xml", u"collection-2x.xml", u"additional-infos.xml"}) {
        const SampleDocument sample(QString::fromUtf16(name));
        EXPECT_TRUE(sample.result.ok) << qPrintable(sample.result.reason) << " in line " << sample.result.line;
    }
}

TEST(SampleFiles, HoldTheSameProfilesInBothForms) {
    const SampleDocument present(u"collection.xml"_s);
    const SampleDocument old(u"collection-2x.xml"_s);
    EXPECT_GE(present.Count("DVD"), kFewestProfiles);
    EXPECT_LE(present.Count("DVD"), kMostProfiles);
    EXPECT_EQ(TextsOf(present, "DVD/ID").size(), present.Count("DVD")) << "an identifier stands twice";
    EXPECT_EQ(TextsOf(old, "DVD/ID").size(), present.Count("DVD"));
    EXPECT_EQ(TextsOf(old, "DVD/Title"), TextsOf(present, "DVD/Title"));
}

TEST(SampleFiles, AreWrittenLikeAnExport) {
    for (const char16_t *name : {u"collection.xml", u"collection-2x.xml"}) {
        const QByteArray bytes = test::ReadTestFile(SampleFile(QString::fromUtf16(name)));
        EXPECT_TRUE(bytes.startsWith("<?xml version=\"1.0\" encoding=\"windows-1252\"?>\r\n"));
        EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
        EXPECT_LE(bytes.size(), kLargestText);
        for (const char letter : {'\x80', '\x9C', '\x9E', '\xDF', '\xE5', '\xE9', '\xF1', '\xF6', '\xF8'}) {
            EXPECT_TRUE(bytes.contains(letter)) << "no letter " << int(static_cast<unsigned char>(letter));
        }
    }
}

TEST_P(SampleShows, InTheCollection) {
    EXPECT_GT(SampleDocument(u"collection.xml"_s).Count(GetParam().path), 0) << GetParam().path;
}

INSTANTIATE_TEST_SUITE_P(
    Collection, SampleShows,
    testing::Values(
        Wanted{"a box in a box", "DVD[BoxSet/Parent != '' and BoxSet/Contents/Content]"},
        Wanted{"a child that is not in the file", "DVD/BoxSet/Contents/Content[not(. = /Collection/DVD/ID)]"},
        Wanted{"Blu-ray", "DVD/MediaTypes[BluRay='true' and DVD='false']"},
        Wanted{"HD DVD", "DVD/MediaTypes[HDDVD='true' and DVD='false']"},
        Wanted{"a combined medium", "DVD/MediaTypes[HDDVD='true' and DVD='true']"},
        Wanted{"another combined medium", "DVD/MediaTypes[BluRay='true' and DVD='true']"},
        Wanted{"a custom medium", "DVD/MediaTypes[DVD='false' and CustomMediaType != '']"},
        Wanted{"a manual identifier", "DVD[starts-with(ID, 'M')]"},
        Wanted{"a disc identifier",
               "DVD[starts-with(ID, 'I') and string-length(substring-before(concat(ID, '.'), '.')) "
               "= 17]"},
        Wanted{"a disc identifier that its disc bears",
               "DVD[starts-with(ID, 'I') and Discs/Disc/DiscIDSideA = "
               "substring-after(substring-before(concat(ID, '.'), '.'), 'I')]"},
        Wanted{"no locality", "DVD[not(contains(ID, '.'))]"},
        Wanted{"New Zealand", "DVD[substring-after(ID, '.')='1']"}, Wanted{"Germany", "DVD[CountryOfOrigin='Germany']"},
        Wanted{"Japan", "DVD[substring-after(ID, '.')='17']"}, Wanted{"Ireland", "DVD[substring-after(ID, '.')='44']"},
        Wanted{"US dollars", "DVD/SRP[@DenominationType='USD']"}, Wanted{"euros", "DVD/SRP[@DenominationType='EUR']"},
        Wanted{"pounds", "DVD/SRP[@DenominationType='GBP']"},
        Wanted{"Canadian dollars", "DVD/SRP[@DenominationType='CAD']"},
        Wanted{"kronor", "DVD/PurchaseInfo/PurchasePrice[@DenominationType='SEK']"},
        Wanted{"yen", "DVD/PurchaseInfo/PurchasePrice[@DenominationType='JPY']"},
        Wanted{"owned", "DVD/CollectionType[.='Owned']"}, Wanted{"ordered", "DVD/CollectionType[.='Ordered']"},
        Wanted{"the wish list", "DVD/CollectionType[.='Wish List']"},
        Wanted{"a user's type", "DVD/CollectionType[.=\"Kids' Room\"]"},
        Wanted{"a wish with priority", "DVD[WishPriority='3']"}, Wanted{"counting nothing", "DVD[CountAs='0']"},
        Wanted{"counting as three", "DVD[CountAs='3']"}, Wanted{"a trait", "DVD[DistTrait != '']"},
        Wanted{"an original title", "DVD[OriginalTitle != '']"}, Wanted{"a slip cover", "DVD[CaseSlipCover='true']"},
        Wanted{"an age", "DVD[RatingAge='12']"}, Wanted{"a variant", "DVD[RatingVariant='1']"},
        Wanted{"rating details", "DVD[RatingDetails != '']"}, Wanted{"exclusions", "DVD/Exclusions/*"},
        Wanted{"media banners", "DVD/MediaBanners[@Front != 'Automatic' and @Back != 'Automatic']"},
        Wanted{"a missing release", "DVD[not(Released)]"}, Wanted{"a missing rating", "DVD[not(Rating)]"},
        Wanted{"missing features", "DVD[not(Features)]"}, Wanted{"a missing purchase", "DVD[not(PurchaseInfo)]"},
        Wanted{"no regions", "DVD[not(Regions/Region)]"}, Wanted{"a Blu-ray region", "DVD/Regions[Region='A']"},
        Wanted{"mono", "DVD/Audio/AudioTrack[AudioChannels='Mono']"},
        Wanted{"surround of two channels", "DVD/Audio/AudioTrack[AudioChannels='Dolby Surround']"},
        Wanted{"a commentary", "DVD/Audio/AudioTrack[AudioContent='Commentary']"},
        Wanted{"other features in lines", "DVD/Features/OtherFeatures[contains(., '\n')]"},
        Wanted{"an overview in paragraphs", "DVD/Overview[contains(., '\n')]"},
        Wanted{"markup in an overview", "DVD/Overview[contains(., '<b>')]"},
        Wanted{"a long overview", "DVD/Overview[string-length(.) > 300]"},
        Wanted{"a short overview", "DVD/Overview[string-length(.) < 60 and . != '']"},
        Wanted{"tags in the notes", "DVD/Notes[contains(., '<COUNTRY>') and contains(., '<IMDB>')]"},
        Wanted{"Easter eggs", "DVD[EasterEggs != '']"},
        Wanted{"black and white", "DVD/Format/ColorFormat[ClrBlackAndWhite='true']"},
        Wanted{"a disc with two sides", "DVD/Discs/Disc[DualSided='true' and DescriptionSideB != '']"},
        Wanted{"a slot", "DVD/Discs/Disc[Location != '' and Slot != '']"},
        Wanted{"two discs", "DVD[count(Discs/Disc)=2]"},
        Wanted{"episodes in the cast", "DVD/Actors/Divider[@Type='Episode']"},
        Wanted{"episodes in the crew", "DVD/Credits/Divider[@Type='Episode']"},
        Wanted{"a group", "DVD/Actors/Divider[@Type='Group']"}, Wanted{"a team", "DVD/Actors/Divider[@Type='Team']"},
        Wanted{"the end of a group", "DVD/Actors/Divider[@Type='EndDiv' and @Caption='']"},
        Wanted{"another spelling", "DVD/Actors/Actor[@CreditedAs='J.R. Whitlowe']"},
        Wanted{"a third spelling", "DVD/Actors/Actor[@CreditedAs='J. R. Whitlowe']"},
        Wanted{"a suffix with comma and point", "DVD/Actors/Actor[@LastName='Oakenshott, Jr.']"},
        Wanted{"a suffix without", "DVD/Actors/Actor[@LastName='Oakenshott Jr']"},
        Wanted{"one namesake", "DVD/Actors/Actor[@LastName='Fennimore' and @BirthYear='1938']"},
        Wanted{"the other namesake", "DVD/Actors/Actor[@LastName='Fennimore' and @BirthYear='1981']"},
        Wanted{"a single name", "DVD/Actors/Actor[@FirstName='Zephyrine' and @LastName='']"},
        Wanted{"joined initials", "DVD/Actors/Actor[@FirstName='K.T.']"},
        Wanted{"a voice by attribute", "DVD/Actors/Actor[@Voice='true']"},
        Wanted{"a voice by text", "DVD/Actors/Actor[contains(@Role, '(voice)')]"},
        Wanted{"uncredited by attribute", "DVD/Actors/Actor[@Uncredited='true']"},
        Wanted{"uncredited by text", "DVD/Actors/Actor[contains(@Role, '(uncredited)')]"},
        Wanted{"a role cut off",
               "DVD/Actors/Actor[contains(@Role, '(uncredited') and not(contains(@Role, '(uncredited)'))]"},
        Wanted{"a credit only", "DVD/Actors/Actor[contains(@Role, '(credit only)')]"},
        Wanted{"a custom job", "DVD/Credits/Credit[@CreditType='Other' and contains(@CustomRole, ': ')]"},
        Wanted{"watched", "DVD/Events/Event[EventType='Watched']"},
        Wanted{"a loan long due", "DVD/LoanInfo[Loaned='true' and substring(Due, 1, 4) < 2022]"},
        Wanted{"a loan not due", "DVD/LoanInfo[Loaned='true' and starts-with(Due, '2099')]"},
        Wanted{"a loan returned", "DVD[LoanInfo/Loaned='false' and Events/Event/EventType='Borrowed' and "
                                  "Events/Event/EventType='Returned']"},
        Wanted{"a review", "DVD/Review[@Film='10']"},
        Wanted{"a tag of a level below", "DVD/Tags/Tag[@Name != @FullName]"},
        Wanted{"a local shop", "DVD/PurchaseInfo[PurchasePlaceType='L']"},
        Wanted{"a shop on the net", "DVD/PurchaseInfo[PurchasePlaceType='O' and PurchasePlaceWebsite != '']"}));

TEST_P(OldSampleShows, InTheOlderCollection) {
    EXPECT_GT(SampleDocument(u"collection-2x.xml"_s).Count(GetParam().path), 0) << GetParam().path;
}

INSTANTIATE_TEST_SUITE_P(
    OldCollection, OldSampleShows,
    testing::Values(Wanted{"names as elements", "DVD/Actors/Actor[FirstName != '' and Role != '' and not(@*)]"},
                    Wanted{"a divider", "DVD/Actors/Actor[Role='[DivGroup]' and Name != '']"},
                    Wanted{"a job", "DVD/Credits/Credit[CreditSubtype='Director']"},
                    Wanted{"a trait", "DVD[Description != '']"}, Wanted{"a box", "DVD/BoxSet/BoxSetChild"},
                    Wanted{"a disc", "DVD/Discs/Disc[Description != '' and Flipper='true']"},
                    Wanted{"audio", "DVD/Audio/AudioFormat[AudioLanguage != '' and AudioCompression != '']"},
                    Wanted{"a list price", "DVD/SRPInfo[SRP != '' and SRPCurrencyID='EUR']"},
                    Wanted{"a purchase", "DVD/PurchaseInfo/PurchasePriceInfo[PurchasePrice != '']"},
                    Wanted{"a review", "DVD/Review[ReviewFilm='10']"},
                    Wanted{"a user", "DVD/Events/Event/User[FirstName='Nora']"},
                    Wanted{"a loan", "DVD/LoanInfo[LoanedTo='Nora']"},
                    Wanted{"a tag", "DVD/Tags/Tag[FullyQualifiedName='Comedy/British']"}));

TEST(SampleFiles, TheOlderFormHasNoMediaTypes) {
    EXPECT_EQ(SampleDocument(u"collection-2x.xml"_s).Count("DVD/MediaTypes"), 0);
}

TEST(SampleFiles, EachFeatureIsSetOnce) {
    const SampleDocument sample(u"collection.xml"_s);
    const pugi::xml_node features = sample.Collection().child("DVD").child("Features");
    int flags = 0;
    for (const pugi::xml_node &feature : features.children()) {
        const QByteArray path = QByteArray("DVD/Features[") + feature.name() + " = 'true']";
        if (QByteArray(feature.name()) != "OtherFeatures") {
            ++flags;
            EXPECT_GT(sample.Count(path.constData()), 0) << feature.name();
        }
    }
    EXPECT_EQ(flags, 20);
}

TEST(SampleFiles, EachCoverBelongsToAProfile) {
    const QSet<QString> ids = TextsOf(SampleDocument(u"collection.xml"_s), "DVD/ID");
    QSet<QString> fronts;
    int backs = 0;
    for (const QFileInfo &file : Pictures(u"covers"_s)) {
        const QString stem = file.completeBaseName();
        EXPECT_TRUE(ids.contains(stem.chopped(1))) << qPrintable(file.fileName());
        EXPECT_TRUE(stem.endsWith(u'f') || stem.endsWith(u'b')) << qPrintable(file.fileName());
        if (stem.endsWith(u'f')) {
            fronts << stem.chopped(1);
        }
        backs += stem.endsWith(u'b') ? 1 : 0;
    }
    EXPECT_EQ(fronts, ids);
    EXPECT_GE(backs, 10);
}

TEST(SampleFiles, PicturesAreSmallJpegs) {
    qint64 total = 0;
    for (const QString &folder : {u"covers"_s, u"headshots"_s}) {
        for (const QFileInfo &file : Pictures(folder)) {
            total += file.size();
            EXPECT_LE(file.size(), kLargestPicture) << qPrintable(file.fileName());
            EXPECT_TRUE(test::ReadTestFile(file.filePath()).startsWith("\xFF\xD8\xFF")) << qPrintable(file.fileName());
        }
    }
    EXPECT_GT(total, 0);
    EXPECT_LE(total, kAllPictures);
}

TEST(SampleFiles, EachAdditionParses) {
    const QStringList statements = SampleStatements();
    EXPECT_GT(statements.size(), 200);
    for (const QString &statement : statements) {
        EXPECT_TRUE(statement.endsWith(u';')) << qPrintable(statement);
        EXPECT_NO_THROW(sql::Parse(statement)) << qPrintable(statement);
    }
}

class SampleCollection : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        QDir().mkpath(session.DataFolder);
        for (int i = 1; i < 200; ++i) {
            services.random.numbers.push_back(i / 211.0);
        }
        session.Profiler3 = true;
    }

    void ExpectReminder() {
        Expect(u"Don't forget to point 'Tools->Settings...->Path Settings->Cover Path' to the image folder of your "
               u"Profiler database!"_s,
               {}, MessageIcon::Information);
    }

    void Import(const QString &name) { ASSERT_TRUE(ImportProfilerData(session, SampleFile(name))); }

    void ImportAndAdd() {
        ExpectReminder();
        Import(u"collection.xml"_s);
        for (const QString &statement : SampleStatements()) {
            EXPECT_EQ(Run(statement), 1) << qPrintable(statement);
        }
    }

    int Count(const QString &table) { return session.Database->RecordCount(table); }
};

TEST_F(SampleCollection, ImportsWithoutAComplaint) {
    ExpectReminder();
    Import(u"collection.xml"_s);
    EXPECT_EQ(Count(u"Profiles"_s), SampleDocument(u"collection.xml"_s).Count("DVD"));
    EXPECT_EQ(Rows(u"SELECT Medium FROM Profiles WHERE ProfileID = 'Key_0000000010141'"),
              QStringList{u"DVD/Blu-ray Disc"_s});
    EXPECT_EQ(Rows(u"SELECT CommonName FROM Alias WHERE AliasName = 'J.R. Whitlowe'"),
              QStringList{u"Jonas R. Whitlowe"_s});
    EXPECT_EQ(Rows(u"SELECT CurrencyID FROM Currencies ORDER BY CurrencyID"),
              (QStringList{u"CAD"_s, u"EUR"_s, u"GBP"_s, u"JPY"_s, u"SEK"_s, u"USD"_s}));
    EXPECT_EQ(Count(u"LoanInfo"_s), 2);
    EXPECT_GT(Count(u"CastCrew"_s), 1000);
}

TEST_F(SampleCollection, EachAdditionWritesOneRow) {
    ImportAndAdd();
    EXPECT_EQ(Count(u"TVSeries"_s), 3);
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Profile2Episodes WHERE ProfileID NOT IN (SELECT ProfileID FROM Profiles)"),
              QStringList());
    EXPECT_GE(Count(u"Translation"_s), 20);
    EXPECT_EQ(Rows(u"SELECT AliasName FROM Alias WHERE AliasName IN (SELECT CommonName FROM Alias a)"), QStringList());
}

TEST_F(SampleCollection, EachSavedQueryRuns) {
    ImportAndAdd();
    sql::Recordset queries = session.Database->OpenRecordset(u"SELECT Name, SQLStatement FROM SQLQueries");
    int count = 0;
    for (; !queries.Eof(); queries.MoveNext()) {
        for (const QString &piece : queries.Text(1).split(u';')) {
            const QString statement = piece.section(u'"', 1, 1).isEmpty() ? piece : piece.section(u'"', 1, 1);
            if (statement.startsWith("select"_L1, Qt::CaseInsensitive)) {
                ++count;
                EXPECT_NO_THROW(session.Database->OpenRecordset(statement)) << qPrintable(statement);
            }
        }
    }
    EXPECT_GT(count, Count(u"SQLQueries"_s)) << "some variables have a statement as their list";
}

TEST_F(SampleCollection, EachPortraitBelongsToACreditedPerson) {
    ImportAndAdd();
    const QStringList names = Rows(u"SELECT Name FROM CastCrew") + Rows(u"SELECT CommonName FROM Alias");
    QStringList years = Rows(u"SELECT DISTINCT Name, BirthYear FROM CastCrew WHERE BirthYear > 0");
    years.replaceInStrings(u"|"_s, u"("_s);
    for (const QFileInfo &file : Pictures(u"headshots"_s)) {
        const QString person = file.completeBaseName().section(u'_', 0, 0);
        EXPECT_TRUE(names.contains(person) || years.contains(person.chopped(1))) << qPrintable(person);
    }
    EXPECT_GE(Pictures(u"headshots"_s).size(), 25);
}

TEST_F(SampleCollection, TheInfoFileNamesProfilesOfTheCollection) {
    ExpectReminder();
    Import(u"collection.xml"_s);
    const int before = Count(u"AdditionalInfo"_s);
    ImportAdditionalInfos(session, SampleFile(u"additional-infos.xml"_s));
    const SampleDocument infos(u"additional-infos.xml"_s);
    EXPECT_EQ(Count(u"AdditionalInfo"_s) - before,
              int(infos.document.select_nodes("AdditionalInfos/AdditionalInfo/Info").size()));
    EXPECT_EQ(Rows(u"SELECT COUNT(*) FROM AdditionalInfo WHERE InfoType = 'Link'"), QStringList{u"3"_s});
}

TEST_F(SampleCollection, TheOlderFileIsCarriedOverByThePresentOne) {
    session.Profiler3 = false;
    Import(u"collection-2x.xml"_s);
    const int profiles = Count(u"Profiles"_s);
    EXPECT_EQ(profiles, SampleDocument(u"collection-2x.xml"_s).Count("DVD"));
    services.dialogs.ExpectMessage({});
    Import(u"collection.xml"_s);
    EXPECT_EQ(Count(u"Profiles"_s), profiles);
    EXPECT_TRUE(session.Profiler3);
    EXPECT_EQ(QSet<QString>(), [&] {
        QSet<QString> wanted = TextsOf(SampleDocument(u"collection.xml"_s), "DVD/ID");
        for (const QString &key : Rows(u"SELECT ProfileID FROM Profiles")) {
            wanted.remove(key.mid(4));
        }
        return wanted;
    }());
}

} // namespace ostrand
