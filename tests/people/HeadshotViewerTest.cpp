// The picture of the selected person: alternates, the primary one, and pictures from the net.
#include "people/HeadshotViewer.h"

#include "base/Files.h"
#include "people/CrossLinks.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

const QByteArray kPicture = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000030000000208060000009d74661a");

class HeadshotViewerTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.HeadshotPath = WithSeparator(Path(u"heads"_s));
        QDir().mkpath(session.HeadshotPath);
        QObject::connect(&viewer, &HeadshotViewer::PictureChanged, [this] { ++changes; });
        viewer.selected = [this] { return person; };
    }
    void Have(const QStringList &names) {
        for (const QString &name : names) {
            folder_.Write(u"heads/"_s + name, name.toUtf8());
        }
    }
    QStringList Files() { return QDir(session.HeadshotPath).entryList(QDir::Files, QDir::Name); }
    QString Shown() { return viewer.Picture().mid(session.HeadshotPath.size()); }
    QString Next() {
        viewer.AlternateHeadshot();
        return Shown() + u'|' + QString::number(viewer.Alternate());
    }

    HeadshotViewer viewer{session};
    std::optional<CreditPerson> person = CreditPerson{u"Ann"_s, u"0"_s};
    int changes = 0;
};

} // namespace

TEST(PersonTags, HoldNameAndYear) {
    EXPECT_EQ(PersonOfTag(u"Ann Lee|1950"_s).name, u"Ann Lee"_s);
    EXPECT_EQ(PersonOfTag(u"Ann Lee|1950"_s).birth_year, u"1950"_s);
    EXPECT_EQ(PersonOfTag(u"Ann|Lee|"_s).name, u"Ann|Lee"_s);
    EXPECT_EQ(PersonOfTag(u"Ann"_s).name, u"Ann"_s);
    EXPECT_EQ(PersonOfTag({}).birth_year, QString());
}

TEST_F(HeadshotViewerTest, AlternatesComeInTurn) {
    Have({u"Ann.jpg"_s, u"Ann_1.jpg"_s, u"Ann_2.jpg"_s});
    EXPECT_TRUE(viewer.LoadHeadShot(u"Ann"_s, true, u"0"_s));
    EXPECT_EQ(Shown(), u"Ann.jpg"_s);
    EXPECT_EQ(Next(), u"Ann_1.jpg|1"_s);
    EXPECT_EQ(Next(), u"Ann_2.jpg|2"_s);
    EXPECT_EQ(Next(), u"Ann.jpg|0"_s);
    Next();
    viewer.LoadHeadShot(u"Ann"_s, true, u"0"_s);
    EXPECT_EQ(viewer.Alternate(), 0);
    EXPECT_EQ(changes, 6);
}

TEST_F(HeadshotViewerTest, WithoutAPrimaryTheAlternateIsFoundAndThenNothing) {
    Have({u"Ann_1.jpg"_s});
    EXPECT_FALSE(viewer.LoadHeadShot(u"Ann"_s, true, {}));
    EXPECT_EQ(Shown(), QString());
    EXPECT_EQ(Next(), u"Ann_1.jpg|1"_s);
    EXPECT_EQ(Next(), u"|0"_s);
}

TEST_F(HeadshotViewerTest, APersonHasPicturesBeforeAnyIsShown) {
    Have({u"Ann_1.jpg"_s, u"Bo.jpg"_s, u".jpg"_s});
    for (const auto &[name, has] : std::initializer_list<std::pair<QString, bool>>{
             {u"Ann"_s, true}, {u"Cy"_s, false}, {u"Bo"_s, true}, {QString(), false}, {u"bo"_s, true}}) {
        viewer.LoadHeadShot(name, true, {});
        EXPECT_EQ(viewer.HasPictures(), has) << qPrintable(name);
    }
    viewer.Clear();
    EXPECT_FALSE(viewer.HasPictures());
}

TEST_F(HeadshotViewerTest, ThePlaceInTheRowStaysFromPersonToPersonWithoutTheFlag) {
    Have({u"Ann.jpg"_s, u"Ann_1.jpg"_s, u"Bo.jpg"_s, u"Bo_1.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    Next();
    viewer.LoadHeadShot(u"Bo"_s, false, {});
    EXPECT_EQ(Shown(), u"Bo_1.jpg"_s);
}

TEST_F(HeadshotViewerTest, ALogLineTellsTheEntry) {
    Log(kTraceEntry);
    viewer.LoadHeadShot(u"Ann"_s, true, u"1950"_s);
    EXPECT_EQ(LogLines().last(), u"Enter:    LoadHeadShot(Ann, True, 1950)"_s);
}

TEST_F(HeadshotViewerTest, NoOneIsSelected) {
    person.reset();
    viewer.AlternateHeadshot();
    viewer.DownloadHeadshotFromURL();
    viewer.SetHeadshotAsPrimary();
    EXPECT_EQ(viewer.Alternate(), 0);
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(viewer.LoadHeadShot({}, true, {}));
    Have({u".jpg"_s});
    EXPECT_FALSE(viewer.LoadHeadShot({}, true, {})) << "no name is no person";
}

TEST_F(HeadshotViewerTest, ClearForgetsThePicture) {
    Have({u"Ann.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    viewer.Clear();
    EXPECT_EQ(Shown(), QString());
    EXPECT_EQ(changes, 2);
}

TEST_F(HeadshotViewerTest, AnAlternateBecomesThePrimary) {
    Have({u"Ann.jpg"_s, u"Ann_1.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    EXPECT_FALSE(viewer.CanSetAsPrimary());
    viewer.SetHeadshotAsPrimary();
    EXPECT_EQ(folder_.Read(u"heads/Ann.jpg"_s), "Ann.jpg");
    Next();
    EXPECT_TRUE(viewer.CanSetAsPrimary());
    viewer.SetHeadshotAsPrimary();
    EXPECT_EQ(folder_.Read(u"heads/Ann.jpg"_s), "Ann_1.jpg");
    EXPECT_EQ(folder_.Read(u"heads/Ann_1.jpg"_s), "Ann.jpg");
    EXPECT_EQ(Shown(), u"Ann.jpg"_s);
    EXPECT_EQ(viewer.Alternate(), 0);
    EXPECT_EQ(Files().size(), 2);
}

TEST_F(HeadshotViewerTest, AnAlternateWithoutAPrimaryBecomesIt) {
    Have({u"Ann_1.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    Next();
    viewer.SetHeadshotAsPrimary();
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg"_s});
    EXPECT_EQ(Shown(), u"Ann.jpg"_s);
}

TEST_F(HeadshotViewerTest, APrimaryInOtherLettersChangesPlaces) {
    Have({u"ANN.JPG"_s, u"Ann_1.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    Next();
    viewer.SetHeadshotAsPrimary();
    EXPECT_EQ(Files(), (QStringList{u"ANN.JPG"_s, u"Ann_1.jpg"_s}));
    EXPECT_EQ(folder_.Read(u"heads/ANN.JPG"_s), "Ann_1.jpg");
}

TEST_F(HeadshotViewerTest, APictureThatIsGoneChangesNothing) {
    Have({u"Ann.jpg"_s, u"Ann_1.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    Next();
    QFile::remove(session.HeadshotPath + u"Ann_1.jpg"_s);
    services.dialogs.ExpectMessage(u"The pictures cannot change places:\nSource file does not exist."_s,
                                   MessageIcon::Warning, MessageAnswer::Ok, u"Make Primary"_s);
    viewer.SetHeadshotAsPrimary();
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg"_s});
    EXPECT_EQ(Shown(), u"Ann.jpg"_s);
}

TEST_F(HeadshotViewerTest, APictureOfTheNetThatHasNoPlaceIsNotKept) {
    services.downloader.pages[u"http://host/a"_s] = kPicture;
    for (const auto &[name, folder] :
         {std::pair(u"Ann"_s, QString()), std::pair(QString(), session.HeadshotPath),
          std::pair(u"???"_s, session.HeadshotPath), std::pair(QString(300, u'x'), session.HeadshotPath)}) {
        EXPECT_FALSE(viewer.DownloadHeadshot(u"http://host/a"_s, name, folder)) << qPrintable(name);
    }
    EXPECT_EQ(Files(), QStringList());
    EXPECT_FALSE(QFileInfo::exists(u"Ann.jpg"_s));
}

TEST_F(HeadshotViewerTest, APictureOfTheNetIsKeptUnderTheCommonNameWithoutAYear) {
    LinkAlias(session, u"Ann: Lee"_s, u"Anny"_s, 1950, true, {});
    person = CreditPerson{u"Anny"_s, u"1950"_s};
    services.downloader.pages[u"http://host/a"_s] = kPicture;
    for (const QString &file : {u"Ann - Lee.jpg"_s, u"Ann - Lee_1.jpg"_s, u"Ann - Lee_2.jpg"_s}) {
        services.dialogs.ExpectInput(u"Enter URL of new headshot for Anny"_s, u" http://host/a "_s, u"Anny"_s);
        viewer.DownloadHeadshotFromURL();
        EXPECT_EQ(Shown(), file);
    }
    EXPECT_EQ(viewer.Alternate(), 2);
    EXPECT_EQ(Files().size(), 3);
    EXPECT_EQ(Next(), u"Ann - Lee.jpg|0"_s) << "the selected person finds them too";
}

TEST_F(HeadshotViewerTest, WhatIsNoPictureLeavesNoFile) {
    Have({u"Ann.jpg"_s});
    viewer.LoadHeadShot(u"Ann"_s, true, {});
    services.downloader.pages[u"http://host/a"_s] = "<html>not found</html>";
    services.downloader.pages[u"http://host/empty"_s] = "";
    for (const QString &url : {u"http://host/a"_s, u"http://host/empty"_s, u"http://host/missing"_s, u""_s, u"  "_s}) {
        EXPECT_FALSE(viewer.DownloadHeadshot(url, u"Ann"_s, session.HeadshotPath)) << qPrintable(url);
    }
    EXPECT_FALSE(viewer.DownloadHeadshot(u"http://host/a"_s, {}, session.HeadshotPath));
    EXPECT_FALSE(viewer.DownloadHeadshot(u"http://host/a"_s, u"???"_s, session.HeadshotPath));
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg"_s});
    EXPECT_EQ(Shown(), u"Ann.jpg"_s);
    EXPECT_EQ(viewer.Alternate(), 0);
    EXPECT_EQ(services.downloader.fetched.size(), 3);
    EXPECT_EQ(services.dialogs.messages.size(), 0u);
}

TEST_F(HeadshotViewerTest, AnotherFolderIsNotShown) {
    services.downloader.pages[u"http://host/a"_s] = kPicture;
    EXPECT_TRUE(viewer.DownloadHeadshot(u"http://host/a"_s, u"Ann"_s, Path(u"other"_s)));
    EXPECT_TRUE(viewer.DownloadHeadshot(u"http://host/a"_s, u"Ann"_s, Path(u"other"_s)));
    EXPECT_EQ(QDir(Path(u"other"_s)).entryList(QDir::Files, QDir::Name), (QStringList{u"Ann.jpg"_s, u"Ann_1.jpg"_s}));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(viewer.Alternate(), 0);
}

TEST_F(HeadshotViewerTest, AFolderThatIsGoneIsMade) {
    QDir(session.HeadshotPath).removeRecursively();
    services.downloader.pages[u"http://host/a"_s] = kPicture;
    EXPECT_TRUE(viewer.DownloadHeadshot(u"http://host/a"_s, u"Ann"_s, session.HeadshotPath));
    EXPECT_EQ(Shown(), u"Ann.jpg"_s);
}

TEST_F(HeadshotViewerTest, OneTransferAtATime) {
    services.downloader.pages[u"http://host/a"_s] = kPicture;
    services.pump.At(
        1, [this] { EXPECT_FALSE(viewer.DownloadHeadshot(u"http://host/a"_s, u"Ann"_s, session.HeadshotPath)); });
    EXPECT_TRUE(viewer.DownloadHeadshot(u"http://host/a"_s, u"Ann"_s, session.HeadshotPath));
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg"_s});
}

TEST_F(HeadshotViewerTest, WhoIsSelectedMeanwhileKeepsThePicture) {
    Have({u"Bo.jpg"_s});
    services.downloader.pages[u"http://host/a"_s] = kPicture;
    services.pump.At(1, [this] {
        person = CreditPerson{u"Bo"_s, u"0"_s};
        viewer.LoadHeadShot(u"Bo"_s, true, u"0"_s);
    });
    EXPECT_TRUE(viewer.DownloadHeadshot(u"http://host/a"_s, u"Ann"_s, session.HeadshotPath));
    EXPECT_EQ(Shown(), u"Bo.jpg"_s);
    EXPECT_EQ(Files(), (QStringList{u"Ann.jpg"_s, u"Bo.jpg"_s}));
}

} // namespace ostrand
