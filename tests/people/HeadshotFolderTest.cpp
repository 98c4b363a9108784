// Names of pictures, places changed, and the list of a folder.
#include "people/HeadshotFolder.h"

#include "services/NoDesktop.h"
#include "support/TempDir.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QByteArray kPng = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000030000000208060000009d74661a");

} // namespace

TEST(HeadshotNames, AreTakenApart) {
    static constexpr struct {
        const char16_t *name, *stem, *tail;
    } kNames[] = {
        {u"Ann.jpg", u"Ann", u""},
        {u"Ann_1.jpg", u"Ann", u"1"},
        {u"Ann_12.JPG", u"Ann", u"12"},
        {u"A_nn.jpg", u"A_nn", u""},
        {u"A_nn_3.jpg", u"A_nn", u"3"},
        {u"Ann_.jpg", u"Ann_", u""},
        {u"Ann_1a.jpg", u"Ann_1a", u""},
        {u"_1.jpg", u"", u"1"},
        {u".jpg", u"", u""},
        {u"Ann(1950)_2.jpg", u"Ann(1950)", u"2"},
        {u"Ann_\u0661.jpg", u"Ann_\u0661", u""},
    };
    for (const auto &row : kNames) {
        const HeadshotName name = SplitHeadshotName(QString::fromUtf16(row.name));
        EXPECT_EQ(name.stem, QString::fromUtf16(row.stem));
        EXPECT_EQ(name.tail, QString::fromUtf16(row.tail));
        EXPECT_EQ(name.Joined() + QString::fromUtf16(row.name).right(4), QString::fromUtf16(row.name));
    }
    EXPECT_TRUE(IsHeadshotName(u"x.JPG"_s));
    EXPECT_FALSE(IsHeadshotName(u"x.jpeg"_s));
}

TEST(HeadshotNames, EqualLengthsAreIdentical) {
    const test::TempDir folder;
    const QString a = folder.Write(u"a"_s, "12");
    const QString b = folder.Write(u"b"_s, "34");
    const QString c = folder.Write(u"c"_s, "5");
    EXPECT_TRUE(IsIdenticalFile(a, b)) << "the content does not count: deliberate";
    EXPECT_FALSE(IsIdenticalFile(a, c));
    EXPECT_FALSE(IsIdenticalFile(a, folder / u"gone"_s));
    EXPECT_FALSE(IsIdenticalFile(folder / u"gone"_s, folder / u"gone"_s));
}

TEST(HeadshotSwap, ExchangesTwoPictures) {
    const test::TempDir folder;
    const QString a = folder.Write(u"a.jpg"_s, "1");
    const QString b = folder.Write(u"b.jpg"_s, "2");
    EXPECT_TRUE(SwapPictures(a, b, nullptr));
    EXPECT_EQ(folder.Read(u"a.jpg"_s), "2");
    EXPECT_EQ(folder.Read(u"b.jpg"_s), "1");
    EXPECT_FALSE(folder.Has(u"TemporaryImage.tmp"_s));
}

TEST(HeadshotSwap, TakesAPlaceThatIsFree) {
    const test::TempDir folder;
    EXPECT_TRUE(SwapPictures(folder.Write(u"a.jpg"_s, "1"), folder / u"b.jpg"_s, nullptr));
    EXPECT_EQ(folder.Read(u"b.jpg"_s), "1");
    EXPECT_FALSE(folder.Has(u"a.jpg"_s));
}

TEST(HeadshotSwap, LosesNoPictureThatAnEarlierOneLeft) {
    const test::TempDir folder;
    folder.Write(u"TemporaryImage.tmp"_s, "left");
    folder.Write(u"TemporaryImage_1.tmp"_s, "left before");
    EXPECT_TRUE(SwapPictures(folder.Write(u"a.jpg"_s, "1"), folder.Write(u"b.jpg"_s, "2"), nullptr));
    EXPECT_EQ(folder.Read(u"a.jpg"_s), "2");
    EXPECT_EQ(folder.Read(u"TemporaryImage_1.tmp"_s), "left before");
    EXPECT_EQ(folder.Read(u"TemporaryImage_2.tmp"_s), "left");
}

TEST(HeadshotSwap, AFaultChangesNothing) {
    const test::TempDir folder;
    const QString b = folder.Write(u"b.jpg"_s, "2");
    QString error;
    EXPECT_FALSE(SwapPictures(folder / u"gone.jpg"_s, b, &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(folder.Read(u"b.jpg"_s), "2");
}

TEST(HeadshotList, ShowsWhatFitsThePattern) {
    const test::TempDir folder;
    for (const char *name : {"Ann.jpg", "anny_1.JPG", "Bo Ann.jpg", "Bo [x].jpg", "notes.txt", ".hidden.jpg"}) {
        folder.Write(QString::fromLatin1(name), "x");
    }
    QDir().mkpath(folder / u"folder.jpg"_s);
    HeadshotFolder list;
    EXPECT_EQ(list.rowCount(), 0);
    list.SetFolder(folder.Path());
    EXPECT_EQ(list.Names(),
              (QStringList{u".hidden.jpg"_s, u"Ann.jpg"_s, u"anny_1.JPG"_s, u"Bo [x].jpg"_s, u"Bo Ann.jpg"_s}));
    const std::pair<const char16_t *, QStringList> patterns[] = {
        {u"A*.jpg", {u"Ann.jpg"_s, u"anny_1.JPG"_s}},
        {u"*ann*.jpg", {u"Ann.jpg"_s, u"anny_1.JPG"_s, u"Bo Ann.jpg"_s}},
        {u"Ann?_1.jpg", {u"anny_1.JPG"_s}},
        {u"Bo [x]*.jpg", {u"Bo [x].jpg"_s}},
        {u"(*.jpg", {}},
        {u"\\*.jpg", {}},
        {u"*.jpg", list.Names()},
    };
    for (const auto &[pattern, names] : patterns) {
        list.SetPattern(QString::fromUtf16(pattern));
        EXPECT_EQ(list.Names(), names) << qPrintable(list.Pattern());
    }
}

TEST(HeadshotList, FollowsTheFolderWhenToldTo) {
    const test::TempDir folder;
    HeadshotFolder list;
    list.SetFolder(folder.Path());
    folder.Write(u"Ann.jpg"_s, "x");
    EXPECT_EQ(list.rowCount(), 0);
    list.Reload();
    EXPECT_EQ(list.index(0).data(), u"Ann.jpg"_s);
    EXPECT_EQ(list.PathAt(0), folder / u"Ann.jpg"_s);
    EXPECT_EQ(list.RowOf(u"Ann.jpg"_s), 0);
    EXPECT_EQ(list.RowOf(u"Bo.jpg"_s), -1);
    EXPECT_EQ(list.PathAt(1), QString());
    EXPECT_EQ(list.PathAt(-1), QString());
    list.SetFolder(folder / u"gone"_s);
    EXPECT_EQ(list.rowCount(), 0);
}

TEST(HeadshotSizes, AreToldInPixelsAndKilobytes) {
    const test::TempDir folder;
    const ImageHeads images;
    const QString picture = folder.Write(u"a.jpg"_s, kPng + QByteArray(1500, 'x'));
    EXPECT_EQ(PictureSizeText(images, picture, u"."_s), u"3 x 2 / 1.5 kBytes"_s);
    EXPECT_EQ(PictureSizeText(images, picture, u","_s), u"3 x 2 / 1,5 kBytes"_s);
    EXPECT_EQ(PictureSizeText(images, folder.Write(u"b.jpg"_s, QByteArray(2048, 'x')), u"."_s), u"0 x 0 / 2 kBytes"_s)
        << "no picture";
    EXPECT_EQ(PictureSizeText(images, folder / u"gone.jpg"_s, u"."_s), QString());
    EXPECT_EQ(PictureSizeText(images, {}, u"."_s), QString());
}

} // namespace ostrand
