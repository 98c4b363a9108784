// Which file shows a person, and under which name one more picture is kept.
#include "people/HeadshotFiles.h"

#include "base/Files.h"
#include "base/FolderIndex.h"
#include "database/DatabaseFunctions.h"
#include "people/CrossLinks.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QDir>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class HeadshotFilesTest : public testing::Test {
protected:
    void SetUp() override {
        CreateCollectionDatabase(session, folder / u"films.mdb"_s);
        session.HeadshotPath = WithSeparator(folder / u"heads"_s);
        folder.Write(u"heads/other.jpg"_s, "x");
    }

    void Have(const QStringList &names) {
        for (const QString &name : names) {
            folder.Write(u"heads/"_s + name, "x");
        }
    }
    /// The name of the file found and the alternate it was found at, joined by "|".
    QString Find(const QString &name, const QString &year, int alternate = 0) {
        const QString path = FindHeadshot(session, index, name, year, alternate);
        return (path.isEmpty() ? u"none"_s : path.mid(session.HeadshotPath.size())) + u'|' + QString::number(alternate);
    }

    test::TempDir folder;
    test::TestServices services;
    Session session{services.services};
    FolderIndex index;
};

} // namespace

TEST(HeadshotFileNames, FollowTheGrammar) {
    static constexpr struct {
        const char16_t *name;
        const char16_t *year;
        int alternate;
        const char16_t *file;
    } kNames[] = {
        {u"Ann Lee", u"", 0, u"Ann Lee.jpg"},
        {u"Ann Lee", u"0", 0, u"Ann Lee.jpg"},
        {u"Ann Lee", u"1950", 0, u"Ann Lee(1950).jpg"},
        {u"Ann Lee", u"1950", 12, u"Ann Lee(1950)_12.jpg"},
        {u"Ann Lee", u"", 1, u"Ann Lee_1.jpg"},
        {u"A:n:n", u"", 0, u"A -n -n.jpg"},
        {u"../\"Ann\"|?*<>\\", u"", 0, u"..'Ann'|.jpg"},
    };
    for (const auto &row : kNames) {
        EXPECT_EQ(
            HeadshotFileName(HeadshotStem(QString::fromUtf16(row.name), QString::fromUtf16(row.year)), row.alternate),
            QString::fromUtf16(row.file));
    }
}

TEST_F(HeadshotFilesTest, TheFreePlaceIsTheFirstThatIsNotTaken) {
    EXPECT_EQ(FreeHeadshotPlace(session.HeadshotPath, u"Ann"_s).path, session.HeadshotPath + u"Ann.jpg"_s);
    EXPECT_EQ(FreeHeadshotPlace(session.HeadshotPath, u"Ann"_s).alternate, 0);
    Have({u"ANN.JPG"_s, u"Ann_1.jpg"_s, u"Ann_3.jpg"_s});
    const HeadshotPlace place = FreeHeadshotPlace(folder / u"heads"_s, u"Ann"_s);
    EXPECT_EQ(place.path, session.HeadshotPath + u"Ann_2.jpg"_s);
    EXPECT_EQ(place.alternate, 2);
}

TEST_F(HeadshotFilesTest, TheCommonNameComesFirstThenTheName) {
    LinkAlias(session, u"Ann Lee"_s, u"Anny Lee"_s, 0, true, {});
    EXPECT_EQ(Find(u"Anny Lee"_s, {}), u"none|0"_s);
    Have({u"Anny Lee.jpg"_s});
    EXPECT_EQ(Find(u"Anny Lee"_s, u"0"_s), u"Anny Lee.jpg|0"_s);
    Have({u"Ann Lee.jpg"_s});
    EXPECT_EQ(Find(u"Anny Lee"_s, {}), u"Ann Lee.jpg|0"_s);
}

TEST_F(HeadshotFilesTest, AYearIsPartOfTheNameButAFileWithoutItIsFoundUnderTheCommonName) {
    LinkAlias(session, u"Ann Lee"_s, u"Anny Lee"_s, 1950, true, {});
    Have({u"Anny Lee.jpg"_s});
    EXPECT_EQ(Find(u"Anny Lee"_s, u"1950"_s), u"none|0"_s) << "only the common name is tried without its year";
    Have({u"Ann Lee.jpg"_s});
    EXPECT_EQ(Find(u"Anny Lee"_s, u"1950"_s), u"Ann Lee.jpg|0"_s);
    Have({u"Anny Lee(1950).jpg"_s});
    EXPECT_EQ(Find(u"Anny Lee"_s, u"1950"_s), u"Anny Lee(1950).jpg|0"_s);
    Have({u"Ann Lee(1950).jpg"_s});
    EXPECT_EQ(Find(u"Anny Lee"_s, u"1950"_s), u"Ann Lee(1950).jpg|0"_s);
}

TEST_F(HeadshotFilesTest, PastTheLastAlternateComesThePrimaryAgain) {
    Have({u"Ann.jpg"_s, u"Ann_1.jpg"_s, u"Ann_2.jpg"_s});
    EXPECT_EQ(Find(u"Ann"_s, {}, 1), u"Ann_1.jpg|1"_s);
    EXPECT_EQ(Find(u"Ann"_s, {}, 2), u"Ann_2.jpg|2"_s);
    EXPECT_EQ(Find(u"Ann"_s, {}, 3), u"Ann.jpg|0"_s);
}

TEST_F(HeadshotFilesTest, AnAlternateWithoutAPrimaryIsFoundAndTheNextIsNothing) {
    Have({u"Ann_1.jpg"_s});
    EXPECT_EQ(Find(u"Ann"_s, {}, 0), u"none|0"_s);
    EXPECT_EQ(Find(u"Ann"_s, {}, 1), u"Ann_1.jpg|1"_s);
    EXPECT_EQ(Find(u"Ann"_s, {}, 2), u"none|0"_s);
}

TEST_F(HeadshotFilesTest, AFaultOfTheDatabaseIsLoggedAndTheNameStandsForItself) {
    Have({u"Ann Lee.jpg"_s});
    QDir().mkpath(session.DataFolder); // where the log lies
    session.Database->Execute(u"DROP TABLE Alias");
    EXPECT_EQ(Find(u"Ann Lee"_s, {}), u"Ann Lee.jpg|0"_s);
    EXPECT_TRUE(test::ReadTestFile(session.trace.path).contains("Error:    LoadHeadShot: "));
}

TEST_F(HeadshotFilesTest, WithoutADatabaseOrAFolderTheNameStandsForItself) {
    session.Database.reset();
    Have({u"Ann.jpg"_s});
    EXPECT_EQ(Find(u"Ann"_s, {}), u"Ann.jpg|0"_s);
    session.HeadshotPath.clear();
    EXPECT_EQ(Find(u"Ann"_s, u"1950"_s, 3), u"none|0"_s);
}

} // namespace ostrand
