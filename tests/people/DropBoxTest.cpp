// What becomes of a picture that is dropped on the program.
#include "people/DropBox.h"

#include "base/Files.h"
#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <QFile>
#include <QUrl>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// The head of a picture of two by three points.
const QByteArray kPicture("\xFF\xD8\xFF\xC0\x00\x11\x08\x00\x03\x00\x02\x03\x01\x22\x00\x02\x11\x01\x03\x11\x01", 21);

class DropBoxTest : public testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        QDir().mkpath(folder / u"heads"_s);
        session.HeadshotPath = WithSeparator(folder / u"heads"_s);
    }

    QStringList Headshots() const {
        return QDir(session.HeadshotPath).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    void ExpectPerson(const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Please enter name of person"_s, answer, u"CreditName"_s);
    }
    void ExpectFault() {
        services.dialogs.ExpectMessage(u"An error occurred"_s, MessageIcon::Critical, MessageAnswer::Ok);
    }

    test::TempDir folder;
    test::TestServices services;
    Session session{services.services};
};

} // namespace

TEST(NameOfDrop, IsCutFromTheText) {
    static constexpr struct {
        const char16_t *dropped;
        const char16_t *name;
    } kDrops[] = {
        {u"/home/user/Ann Lee.jpg", u"Ann Lee"},
        {u"C:\\pictures\\Ann Lee.JPG", u"Ann Lee"},
        {u"http://host.example/a/Ann.Jpg", u"Ann"},
        {u"Ann.jpg", u"Ann"},
        {u" Ann.jpg\n", u"Ann"},
        {u"/x.jpg/Ann_1.jpg", u"Ann_1"},
        {u"a\\b/c.jpg", u"c"},
        {u"a/b\\c.jpg", u"c"},
        {u".jpg", u""},
    };
    for (const auto &row : kDrops) {
        EXPECT_EQ(NameOfDrop(QString::fromUtf16(row.dropped)), QString::fromUtf16(row.name));
    }
}

TEST_F(DropBoxTest, AFileIsCopiedUnderItsOwnName) {
    const QString file = folder.Write(u"Bo.JPG"_s, kPicture);
    EXPECT_EQ(StoreDrop(session, file, DropType::File), session.HeadshotPath + u"Bo.jpg"_s);
    EXPECT_EQ(folder.Read(u"heads/Bo.jpg"_s), kPicture);
    EXPECT_EQ(folder.Read(u"Bo.JPG"_s), kPicture) << "it is never moved";
}

TEST_F(DropBoxTest, ATakenNameGivesAnAlternate) {
    const QString file = folder.Write(u"Bo.jpg"_s, kPicture);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(StoreDrop(session, file, DropType::File).isEmpty());
    }
    EXPECT_EQ(Headshots(), (QStringList{u"Bo.jpg"_s, u"Bo_1.jpg"_s, u"Bo_2.jpg"_s}));
}

TEST_F(DropBoxTest, AFileUrlNamesAFile) {
    const QString file = folder.Write(u"Ä b#c.jpg"_s, kPicture);
    StoreDrop(session, QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded) + u"\r\n"_s, DropType::File);
    EXPECT_EQ(Headshots(), QStringList(u"Ä b#c.jpg"_s));
}

TEST_F(DropBoxTest, APersonIsAskedForWithTheNameOfTheFileProposed) {
    const QString file = folder.Write(u"Ann Lee.jpg"_s, kPicture);
    services.dialogs.ExpectInputPreset(u"Please enter name of person"_s, u"CreditName"_s);
    StoreDrop(session, file, DropType::Person);
    EXPECT_EQ(services.dialogs.last_preset, u"Ann Lee"_s);
    ExpectPerson(u" Cy \"Doc: Fox\" "_s);
    StoreDrop(session, file, DropType::Person);
    EXPECT_EQ(Headshots(), (QStringList{u"Ann Lee.jpg"_s, u"Cy 'Doc - Fox'.jpg"_s}));
}

TEST_F(DropBoxTest, APersonIsFiledUnderTheCommonName) {
    CreateCollectionDatabase(session, folder / u"films.mdb"_s);
    LinkAlias(session, u"Ann Lee"_s, u"Anny Lee"_s, 1950, true, {});
    const QString file = folder.Write(u"x.jpg"_s, kPicture);
    ExpectPerson(u"Anny Lee"_s);
    StoreDrop(session, file, DropType::Person);
    EXPECT_EQ(Headshots(), QStringList(u"Ann Lee.jpg"_s));
}

TEST_F(DropBoxTest, WithoutANameNothingIsStored) {
    const QString file = folder.Write(u"x.jpg"_s, kPicture);
    for (const std::optional<QString> &answer :
         {std::optional<QString>(), std::optional(u""_s), std::optional(u"  "_s), std::optional(u"???"_s)}) {
        ExpectPerson(answer);
        EXPECT_EQ(StoreDrop(session, file, DropType::Person), QString());
    }
    EXPECT_EQ(StoreDrop(session, folder.Write(u".jpg"_s, kPicture), DropType::File), QString());
    EXPECT_EQ(Headshots(), QStringList());
}

TEST_F(DropBoxTest, ANameThatNoFileCanHaveIsAFault) {
    const QString picture = folder.Write(u"Ann.jpg"_s, kPicture);
    ExpectPerson(QString(300, u'x'));
    ExpectFault();
    EXPECT_EQ(StoreDrop(session, picture, DropType::Person), QString());
    ExpectPerson(u"?*<>"_s);
    EXPECT_EQ(StoreDrop(session, picture, DropType::Person), QString());
    EXPECT_EQ(Headshots(), QStringList());
    EXPECT_TRUE(folder.Has(u"Ann.jpg"_s));
}

TEST_F(DropBoxTest, ANameLeavesNotTheFolder) {
    const QString file = folder.Write(u"x.jpg"_s, kPicture);
    ExpectPerson(u"../../etc/..\\x"_s);
    StoreDrop(session, file, DropType::Person);
    EXPECT_EQ(Headshots(), QStringList(u"....etc..x.jpg"_s));
}

TEST_F(DropBoxTest, WhatHasNoSuchEndingIsIgnored) {
    for (const QString &text : {u""_s, u"Ann"_s, u"/home/user/ann.png"_s, u"http://host.example/"_s}) {
        EXPECT_EQ(StoreDrop(session, text, DropType::Person), QString());
    }
    EXPECT_TRUE(services.dialogs.messages.empty());
}

TEST_F(DropBoxTest, WithoutAFolderItIsTold) {
    session.HeadshotPath.clear();
    services.dialogs.ExpectMessage(u"Please set source path to download the headshot into"_s, MessageIcon::Warning);
    EXPECT_EQ(StoreDrop(session, folder.Write(u"x.jpg"_s, kPicture), DropType::Person), QString());
}

TEST_F(DropBoxTest, FaultsAreToldAndLogged) {
    const QString missing = folder / u"none.jpg"_s;
    const QString page = folder.Write(u"page.jpg"_s, "<html>not found</html>");
    const QString folder_name = folder / u"folder.jpg"_s;
    QDir().mkpath(folder_name);
    for (const QString &text :
         {missing, page, folder_name, folder.Write(u"empty.jpg"_s, {}), u"http://host.example/ann.jpg"_s,
          u"HTTPS://host.example/ann.jpg?width=5"_s, u"file:///none.jpg"_s, u"some words with .jpg in them"_s}) {
        QFile::remove(session.trace.path);
        ExpectFault();
        EXPECT_EQ(StoreDrop(session, text, DropType::Person), QString()) << qPrintable(text);
        EXPECT_TRUE(QString::fromUtf8(test::ReadTestFile(session.trace.path))
                        .startsWith(u"Error:    frmDropBox_OLEDragDrop: "_s))
            << qPrintable(text);
    }
    EXPECT_EQ(Headshots(), QStringList());
}

TEST_F(DropBoxTest, AFaultOfTheDatabaseIsToldAndNothingIsStored) {
    CreateCollectionDatabase(session, folder / u"films.mdb"_s);
    session.Database->Execute(u"DROP TABLE Alias");
    QFile::remove(session.trace.path);
    ExpectPerson(u"Ann Lee"_s);
    ExpectFault();
    EXPECT_EQ(StoreDrop(session, folder.Write(u"x.jpg"_s, kPicture), DropType::Person), QString());
    EXPECT_TRUE(test::ReadTestFile(session.trace.path).contains("Error:    frmDropBox_OLEDragDrop: "));
    EXPECT_EQ(Headshots(), QStringList());
}

TEST_F(DropBoxTest, AFolderThatIsGoneIsAFault) {
    session.HeadshotPath = WithSeparator(folder / u"gone"_s);
    ExpectFault();
    EXPECT_EQ(StoreDrop(session, folder.Write(u"x.jpg"_s, kPicture), DropType::File), QString());
}

TEST_F(DropBoxTest, TheCopyOfAFileThatMayOnlyBeReadCanBeReplaced) {
    const QString file = folder.Write(u"x.jpg"_s, kPicture);
    QFile::setPermissions(file, QFile::ReadOwner);
    const QString stored = StoreDrop(session, file, DropType::File);
    EXPECT_TRUE(QFile::permissions(stored) & QFile::WriteOwner);
}

} // namespace ostrand
