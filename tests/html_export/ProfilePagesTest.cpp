// Pages of profiles and episodes, as a run of the export writes them.
#include "SiteFixture.h"

#include <QDateTime>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QDateTime kOld = QDateTime::fromSecsSinceEpoch(1'000'000'000);

class ProfilePagesTest : public SiteTest {
protected:
    void SetUp() override {
        SiteTest::SetUp();
        AddOwned(u"Key_1"_s, u"Amber"_s);
        options.GenerateCrosslinks = false;
    }
    void AddEpisode(const QString &id, const QString &title, const QString &profile) {
        Run(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES ('%1', 'S', '1', '1', '%2')"_s
                .arg(EscapeSql(id), EscapeSql(title)));
        Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('%1', '%2')"_s.arg(profile, EscapeSql(id)));
    }
    void WithEpisodes() {
        options.GenerateEpisodeHTML = true;
        options.SkinEpisode = u"Part"_s;
        Skin(u"Blue"_s, "<head></head><DP NAME=\"TITLE\">[<OSV NAME=\"EPISODES\">]");
        Skin(u"Part"_s, "<HEAD></HEAD>part <DP NAME=\"TITLE\">");
    }
    void SetDates(const QString &folder, const QDateTime &date) {
        for (const QString &name : FilesIn(folder)) {
            QFile file(site + u'/' + folder + u'/' + name);
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            file.setFileTime(date, QFileDevice::FileModificationTime);
        }
    }
    QDateTime DateOf(const QString &name) { return QFileInfo(site + u'/' + name).lastModified(); }
    QString Page(const QString &name) { return Read(u"Profiles/"_s + name + u".html"_s); }
};

TEST_F(ProfilePagesTest, APageIsTheSkinOfTheProfile) {
    EXPECT_TRUE(Export());
    EXPECT_EQ(Page(u"1"_s), u"<html><head></head>\r\nAmber\r\n</html>"_s);
}

TEST_F(ProfilePagesTest, ASecondRunWritesNoPage) {
    AddOwned(u"Key_2"_s, u"Birch"_s);
    Log(kTraceInfo);
    EXPECT_TRUE(Export());
    EXPECT_EQ(LogLines().filter(u"Update HTML Profile"_s).size(), 2);
    SetDates(u"Profiles"_s, kOld);
    QFile::remove(session.trace.path);
    EXPECT_TRUE(Export());
    EXPECT_EQ(LogLines().filter(u"Update HTML Profile"_s), QStringList());
    EXPECT_EQ(DateOf(u"Profiles/1.html"_s), kOld);
    Run(u"UPDATE Profiles SET Title = 'Beech' WHERE ProfileID = 'Key_2'");
    EXPECT_TRUE(Export());
    EXPECT_EQ(LogLines().filter(u"Update HTML Profile"_s).size(), 1);
    EXPECT_TRUE(LogLines().filter(u"Update HTML Profile"_s).first().endsWith(u"Update HTML Profile 2"_s));
    EXPECT_EQ(DateOf(u"Profiles/1.html"_s), kOld);
    EXPECT_TRUE(Page(u"2"_s).contains(u"Beech"_s));
}

TEST_F(ProfilePagesTest, MediaMayHaveSkinsOfTheirOwn) {
    AddProfile(u"Key_2"_s, u"Birch"_s, u", ColType, Medium"_s, u", 'Owned', 'blu-RAY'"_s);
    AddProfile(u"Key_3"_s, u"Cedar"_s, u", ColType"_s, u", 'Owned'"_s);
    Skin(u"Ray"_s, "ray <DP NAME=\"TITLE\">");
    options.MediaSkins = {{u"Blu-ray"_s, u"Ray"_s}};
    EXPECT_TRUE(Export());
    EXPECT_EQ(Page(u"2"_s), u"ray Birch"_s);
    EXPECT_TRUE(Page(u"1"_s).startsWith(u"<html>"_s));
    EXPECT_TRUE(Page(u"3"_s).startsWith(u"<html>"_s));
}

TEST_F(ProfilePagesTest, ImagesAndTheScriptComeIntoTheSite) {
    const QByteArray head = "<HEAD><head>$DPIMAGES.a.png <DP NAME=\"TITLE\">";
    Skin(u"Blue"_s, head);
    WriteTestFile(session.DataFolder + u"/Skins/Blue/Images/a.png"_s, "a");
    WriteTestFile(session.DataFolder + u"/Skins/Blue/Images/deep/b.png"_s, "b");
    EXPECT_TRUE(Export());
    EXPECT_EQ(Page(u"1"_s), u"<HEAD><head>../Images/a.png Amber"_s);
    EXPECT_TRUE(Has(u"Images/a.png"_s));
    EXPECT_TRUE(Has(u"Images/deep/b.png"_s));
    options.GenerateCrosslinks = true;
    EXPECT_TRUE(Export());
    const QString script = u"\r\n<script type=\"text/javascript\" src=\"../common/0.js\"></script>"_s;
    EXPECT_EQ(Page(u"1"_s), u"<HEAD>"_s + script + u"<head>"_s + script + u"../Images/a.png Amber"_s);
}

TEST_F(ProfilePagesTest, PersonsAreLinkedWithCrossLinksOnly) {
    Skin(u"Blue"_s, "<head></head><DP NAME=\"ACTORS\">");
    Run(u"INSERT INTO CastCrew (Name, Role, ProfileID, Position, IsCast) VALUES ('Ann Lee', 'Eve', 'Key_1', 1, true)");
    EXPECT_TRUE(Export());
    EXPECT_FALSE(Page(u"1"_s).contains(u"displayCrossLink"_s));
    EXPECT_FALSE(Page(u"1"_s).contains(u"<script"_s));
    EXPECT_EQ(FilesIn(u"crosslink"_s), QStringList());
    options.GenerateCrosslinks = true;
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Page(u"1"_s).contains(u"displayCrossLink('person-ann_lee')"_s));
    EXPECT_TRUE(Has(u"crosslink/people-an.js"_s));
    options.GenerateCrosslinks = false;
    EXPECT_TRUE(Export());
    EXPECT_EQ(FilesIn(u"crosslink"_s), QStringList());
}

TEST_F(ProfilePagesTest, EpisodePagesAriseWithTheirProfile) {
    WithEpisodes();
    AddEpisode(u"Key_e 1"_s, u"Storm"_s, u"Key_1"_s);
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Page(u"1"_s).contains(u"<A HREF='../Episodes/e%201.html'>"_s));
    EXPECT_EQ(Read(u"Episodes/e 1.html"_s).right(10), u"part Storm"_s);
    EXPECT_TRUE(services.progress.Has(u"detail Episode Storm"_s));
    SetDates(u"Episodes"_s, kOld);
    EXPECT_TRUE(Export());
    EXPECT_EQ(DateOf(u"Episodes/e 1.html"_s), kOld);
    options.GenerateEpisodeHTML = false;
    QDir(site).removeRecursively();
    QDir().mkpath(site);
    EXPECT_TRUE(Export());
    EXPECT_FALSE(Has(u"Episodes"_s));
    EXPECT_TRUE(Page(u"1"_s).contains(u"<NOBR>1. Storm</NOBR>"_s));
}

TEST_F(ProfilePagesTest, AnEpisodeOfTwoProfilesIsWrittenOnce) {
    WithEpisodes();
    AddOwned(u"Key_2"_s, u"Birch"_s);
    AddEpisode(u"E1"_s, u"Storm"_s, u"Key_1"_s);
    Run(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('Key_2', 'E1')");
    Log(kTraceInfo);
    EXPECT_TRUE(Export());
    EXPECT_EQ(LogLines().filter(u"Update HTML Profile E1"_s).size(), 1);
}

TEST_F(ProfilePagesTest, CoversFollowTheirSource) {
    Skin(u"Blue"_s, "<DP NAME=\"IMAGE\">");
    AddOwned(u"Key_OSV 1"_s, u"Own"_s);
    for (const QString &name : {u"1f.jpg"_s, u"1b.jpg"_s, u"1s.jpg"_s, u"OSV 1f.jpg"_s}) {
        WriteTestFile(session.CoverPath + name, name.toUtf8());
    }
    const QString url = u"file:///"_s + session.CoverPath.mid(1);
    const struct {
        CoverSource source;
        QString page, own, title, own_title;
        QStringList copies;
    } cases[] = {
        {CoverSource::Copied,
         u"../Covers/1f.jpg"_s,
         u"../Covers/OSV%201f.jpg"_s,
         u"Covers/1f.jpg"_s,
         u"Covers/OSV%201f.jpg"_s,
         {u"1b.jpg"_s, u"1f.jpg"_s, u"1s.jpg"_s, u"OSV 1f.jpg"_s}},
        {CoverSource::ImageServer,
         u"http://covers.ostrand.example/mpimages/1/1f.jpg"_s,
         u"../Covers/OSV%201f.jpg"_s,
         u"http://covers.ostrand.example/mpimages/1/1f.jpg"_s,
         u"Covers/OSV%201f.jpg"_s,
         {u"OSV 1f.jpg"_s}},
        {CoverSource::InPlace,
         url + u"1f.jpg"_s,
         url + u"OSV%201f.jpg"_s,
         url + u"1f.jpg"_s,
         url + u"OSV%201f.jpg"_s,
         {}},
    };
    for (const auto &c : cases) {
        QDir(site).removeRecursively();
        QDir().mkpath(site);
        options.Covers = c.source;
        EXPECT_TRUE(Export());
        const QString page = u"<A HREF=\"%1\"><IMG SRC=\"%1\" WIDTH=160></A>"_s;
        EXPECT_EQ(Page(u"1"_s), page.arg(c.page));
        EXPECT_EQ(Page(u"OSV 1"_s), page.arg(c.own));
        EXPECT_EQ(FilesIn(u"Covers"_s), c.copies);
        EXPECT_EQ(Read(u"common/2.js"_s),
                  u"siteTitles({\r\n\"1\":[\"%1\",0],\r\n\"OSV 1\":[\"%2\",0],\r\n});\r\n"_s.arg(c.title, c.own_title));
    }
}

TEST_F(ProfilePagesTest, ACoverIsFoundWhateverItsCase) {
    Skin(u"Blue"_s, "<DP NAME=\"IMAGE\">");
    WriteTestFile(session.CoverPath + u"1F.JPG"_s, "x");
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Page(u"1"_s).contains(u"../Covers/1F.JPG"_s));
    EXPECT_EQ(FilesIn(u"Covers"_s), (QStringList{u"1F.JPG"_s, u"1f.jpg"_s}));
}

TEST_F(ProfilePagesTest, TheListKnowsCoverAndYear) {
    Run(u"UPDATE Profiles SET ProdYear = 1999");
    AddOwned(u"Key_2"_s, u"Birch"_s);
    WriteTestFile(session.CoverPath + u"2s.jpg"_s, "x");
    EXPECT_TRUE(Export());
    EXPECT_EQ(Read(u"common/2.js"_s),
              u"siteTitles({\r\n\"1\":[\"\",1999],\r\n\"2\":[\"Covers/2s.jpg\",0],\r\n});\r\n"_s);
}

TEST_F(ProfilePagesTest, HeadshotsOfThePagesAreCopied) {
    Skin(u"Blue"_s, "<OSV NAME=\"HEADSHOT_DISPLAY\" CreditName=\"Ann Lee\"><DP NAME=\"TITLE\">");
    WriteTestFile(session.HeadshotPath + u"Ann Lee.jpg"_s, "x");
    WriteTestFile(session.HeadshotPath + u"Bo Ek.jpg"_s, "x");
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Page(u"1"_s).contains(u"../Headshots/Ann%20Lee.jpg"_s));
    EXPECT_EQ(FilesIn(u"Headshots"_s), QStringList(u"Ann Lee.jpg"_s));
    options.Covers = CoverSource::InPlace;
    QFile::remove(site + u"/Headshots/Ann Lee.jpg"_s);
    EXPECT_TRUE(Export());
    EXPECT_EQ(FilesIn(u"Headshots"_s), QStringList());
}

TEST_F(ProfilePagesTest, AnImageThatCannotBeCopiedIsTraced) {
    WriteTestFile(session.CoverPath + u"1f.jpg"_s, "x");
    QDir().mkpath(site + u"/Covers/1f.jpg/x"_s);
    Log(kTraceError);
    EXPECT_TRUE(Export());
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"Error copying folder "_s + session.CoverPath + u"1f.jpg"_s));
    EXPECT_TRUE(Read(u"common/2.js"_s).contains(u"\"1\":[\"\",0]"_s));
}

TEST_F(ProfilePagesTest, AFailedPageIsToldAndTheRunGoesOn) {
    AddOwned(u"Key_2"_s, u"Birch"_s);
    QDir().mkpath(site + u"/Profiles/1.html/x"_s);
    Expect(u"There has been a problem generating the HTML file for profile Amber"_s, u"CreateOfflineHTML"_s,
           MessageIcon::Warning);
    EXPECT_TRUE(Export());
    EXPECT_TRUE(Has(u"Profiles/2.html"_s));
}

TEST_F(ProfilePagesTest, WhereAllFailTheBoxesEnd) {
    Skin(u"Blue"_s, "a page without a tag");
    for (int i = 2; i <= 14; ++i) {
        AddOwned(u"Key_"_s + QString::number(i), u"Z%1"_s.arg(i));
    }
    for (int i = 0; i < 10; ++i) {
        Expect({}, u"CreateOfflineHTML"_s, MessageIcon::Warning);
    }
    Expect(u"More profiles whose HTML file could not be generated: 4\r\nZ6\r\nZ7\r\nZ8\r\nZ9"_s, u"CreateOfflineHTML"_s,
           MessageIcon::Warning);
    EXPECT_TRUE(Export());
    EXPECT_EQ(services.dialogs.messages[0].text,
              u"There has been a problem generating the HTML file for profile Amber"_s);
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList());
    EXPECT_FALSE(Listing().contains(u"<a "_s)) << "no link leads nowhere";
}

TEST_F(ProfilePagesTest, NamesThatCollideAreTold) {
    Run(u"DELETE FROM Profiles");
    AddOwned(u"Key_a?b"_s, u"First"_s);
    AddOwned(u"Key_ab"_s, u"Second"_s);
    AddOwned(u"Key_a*b"_s, u"Third"_s);
    Log(kTraceError);
    Expect(u"Profiles left out, as another one has the same file name: 2\r\nSecond\r\nThird"_s, u"CreateOfflineHTML"_s,
           MessageIcon::Warning);
    EXPECT_TRUE(Export());
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList(u"ab.html"_s));
    EXPECT_TRUE(Page(u"ab"_s).contains(u"First"_s));
    EXPECT_FALSE(Listing().contains(u"Second"_s));
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"CreateHTMLProfile: ab has the file name of a?b"_s));
}

TEST_F(ProfilePagesTest, HostileKeysStayInTheSite) {
    Run(u"DELETE FROM Profiles");
    AddOwned(u"Key_../../x"_s, u"A"_s);
    AddOwned(u"Key_<b>'\"&#%"_s, u"B <i>'\"&"_s);
    AddOwned(u"Key_.."_s, u"C"_s);
    EXPECT_TRUE(Export());
    EXPECT_EQ(FilesIn(u"Profiles"_s), (QStringList{u"....x.html"_s, u"__.html"_s, u"b''&#%.html"_s}));
    EXPECT_FALSE(QFileInfo::exists(Path(u"x.html"_s)));
    EXPECT_TRUE(Listing().contains(u"<a href='./Profiles/b%27%27%26%23%25.html' "_s)) << qPrintable(Listing());
    EXPECT_TRUE(Listing().contains(u">B &lt;i&gt;'\"&amp;</a>"_s));
}

} // namespace
} // namespace ostrand
