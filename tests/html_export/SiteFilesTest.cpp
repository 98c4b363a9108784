#include "html_export/SiteFiles.h"

#include "../database/CollectionFixture.h"

#include <QDateTime>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QDateTime kOld = QDateTime::fromSecsSinceEpoch(1'000'000'000);

class SiteFilesTest : public testing::Test {
protected:
    static void SetDate(const QString &path, const QDateTime &date) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(date, QFileDevice::FileModificationTime));
    }
    static QDateTime DateOf(const QString &path) { return QFileInfo(path).lastModified(); }

    test::TempDir dir;
};

TEST_F(SiteFilesTest, APageIsWrittenOnlyWhereItDiffers) {
    const QString path = dir / u"a.html"_s;
    EXPECT_TRUE(PutFile(path, "one"));
    SetDate(path, kOld);
    EXPECT_FALSE(PutFile(path, "one"));
    EXPECT_EQ(DateOf(path), kOld);
    EXPECT_TRUE(PutFile(path, "two")) << "the same size";
    EXPECT_EQ(dir.Read(u"a.html"_s), "two");
    EXPECT_TRUE(PutFile(path, ""));
    EXPECT_EQ(dir.Read(u"a.html"_s), "");
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"a.html"_s))
        << "nothing is left over";
}

TEST_F(SiteFilesTest, ALinkIsReplacedAndNotFollowed) {
    dir.Write(u"far/target.txt"_s, "kept");
    ASSERT_TRUE(QFile::link(dir / u"far/target.txt"_s, dir / u"a.html"_s));
    ASSERT_TRUE(QFile::link(dir / u"far/target.txt"_s, dir / u".ostrand-part"_s));
    EXPECT_TRUE(PutFile(dir / u"a.html"_s, "new"));
    EXPECT_EQ(dir.Read(u"far/target.txt"_s), "kept");
    EXPECT_EQ(dir.Read(u"a.html"_s), "new");
}

TEST_F(SiteFilesTest, AFileThatCannotBeWrittenIsAFault) {
    QDir().mkpath(dir / u"a.html/b"_s);
    try {
        PutFile(dir / u"a.html"_s, "x");
        ADD_FAILURE();
    } catch (const SiteFault &fault) {
        EXPECT_FALSE(fault.EndsRun()) << "others can be written";
        EXPECT_TRUE(fault.Text().contains(u"a.html"_s));
    }
    try {
        PutFile(dir / u"none/a.html"_s, "x");
        ADD_FAILURE();
    } catch (const SiteFault &fault) {
        EXPECT_TRUE(fault.EndsRun()) << "no file of the folder can";
    }
}

TEST_F(SiteFilesTest, AFullDiskEndsTheRun) {
    if (!QFileInfo::exists(u"/dev/full"_s)) {
        GTEST_SKIP();
    }
    // The device takes nothing; whoever writes there learns what a full disk says.
    QFile full(u"/dev/full"_s);
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_NE(full.write("x"), 1);
    EXPECT_EQ(full.error(), QFile::ResourceError) << "what PutFile takes for one";
}

TEST_F(SiteFilesTest, ACopyHasTheDateOfItsSource) {
    const QString from = dir.Write(u"a.jpg"_s, "image");
    const QString to = dir / u"copies/a.jpg"_s;
    SetDate(from, kOld);
    EXPECT_FALSE(CopyInto(from, to)) << "no such folder";
    QDir().mkpath(dir / u"copies"_s);
    EXPECT_TRUE(CopyInto(from, to));
    EXPECT_EQ(DateOf(to), kOld);
    dir.Write(u"copies/a.jpg"_s, "IMAGE");
    SetDate(to, kOld);
    EXPECT_TRUE(CopyInto(from, to));
    EXPECT_EQ(dir.Read(u"copies/a.jpg"_s), "IMAGE") << "same size and date: not copied";
    SetDate(to, kOld.addSecs(5));
    EXPECT_TRUE(CopyInto(from, to));
    EXPECT_EQ(dir.Read(u"copies/a.jpg"_s), "image");
    EXPECT_FALSE(CopyInto(dir / u"none.jpg"_s, to));
    EXPECT_EQ(dir.Read(u"copies/a.jpg"_s), "image");
    EXPECT_TRUE(CopyInto(from, from)) << "onto itself";
    EXPECT_EQ(dir.Read(u"a.jpg"_s), "image");
}

TEST_F(SiteFilesTest, AReadOnlySourceCanBeCopiedAgain) {
    const QString from = dir.Write(u"a.jpg"_s, "image");
    ASSERT_TRUE(QFile::setPermissions(from, QFile::ReadOwner));
    QDir().mkpath(dir / u"copies"_s);
    EXPECT_TRUE(CopyInto(from, dir / u"copies/a.jpg"_s));
    SetDate(dir / u"copies/a.jpg"_s, kOld);
    EXPECT_TRUE(CopyInto(from, dir / u"copies/a.jpg"_s));
    EXPECT_NE(DateOf(dir / u"copies/a.jpg"_s), kOld);
}

TEST_F(SiteFilesTest, AStreamedFileTakesItsPlaceAtTheEnd) {
    dir.Write(u"a.js"_s, "old");
    {
        StreamedFile file(dir / u"a.js"_s);
        file.Write(u"one \u00FC"_s);
        EXPECT_EQ(dir.Read(u"a.js"_s), "old");
    }
    EXPECT_EQ(dir.Read(u"a.js"_s), "old") << "never finished";
    {
        StreamedFile file(dir / u"a.js"_s);
        file.Write(u"one \u00FC"_s);
        file.Write(u" two"_s);
        file.Commit();
    }
    EXPECT_EQ(dir.Read(u"a.js"_s), "\xEF\xBB\xBFone \xC3\xBC two");
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"a.js"_s));
    EXPECT_THROW(StreamedFile(dir / u"none/a.js"_s), SiteFault);
}

} // namespace
} // namespace ostrand
