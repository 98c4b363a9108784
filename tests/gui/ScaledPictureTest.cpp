#include "platform_qt/ScaledPicture.h"

#include "platform_qt/JpegMemory.h"
#include "support/HugePictures.h"
#include "support/TempDir.h"

#include <QImage>
#include <QLoggingCategory>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// A picture beyond the limit makes the toolkit say so.
struct QuietToolkit {
    QuietToolkit() { QLoggingCategory::setFilterRules(u"qt.gui.imageio.warning=false"_s); }
    ~QuietToolkit() { QLoggingCategory::setFilterRules({}); }
};

class ScaledPictureTest : public ::testing::Test {
protected:
    QString Picture(QSize size, const QString &name = u"a.jpg"_s) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(dir / name));
        return dir / name;
    }
    test::TempDir dir;
};

TEST_F(ScaledPictureTest, FitsItsPlaceAndKeepsItsRatio) {
    const struct {
        const char *name;
        QSize stored, place;
        qreal ratio;
        PictureGrowth growth;
        QSize pixels;
    } cases[] = {
        {"wide", {400, 200}, {100, 100}, 1, PictureGrowth::Fit, {100, 50}},
        {"tall", {200, 400}, {100, 100}, 1, PictureGrowth::Fit, {50, 100}},
        {"sharp", {400, 200}, {100, 100}, 2, PictureGrowth::Fit, {200, 100}},
        {"odd ratio", {400, 200}, {100, 100}, 1.5, PictureGrowth::Fit, {150, 75}},
        {"grows", {40, 20}, {100, 100}, 1, PictureGrowth::Fit, {100, 50}},
        {"stays small", {40, 20}, {100, 100}, 1, PictureGrowth::Never, {40, 20}},
        {"stays as large on a sharp screen", {40, 20}, {100, 100}, 2, PictureGrowth::Never, {80, 40}},
        {"does not leave its place there", {60, 30}, {50, 50}, 2, PictureGrowth::Never, {100, 50}},
        {"shrinks all the same", {400, 200}, {100, 100}, 1, PictureGrowth::Never, {100, 50}},
        {"a line", {1000, 1}, {10, 10}, 1, PictureGrowth::Fit, {10, 1}},
    };
    for (const auto &c : cases) {
        const QImage picture = ScaledImage(Picture(c.stored), c.place, c.ratio, c.growth);
        EXPECT_EQ(picture.size(), c.pixels) << c.name;
        EXPECT_EQ(picture.devicePixelRatio(), c.ratio) << c.name;
    }
}

TEST_F(ScaledPictureTest, TheSizeComesFromTheHead) {
    EXPECT_EQ(PictureSize(Picture({40, 20})), QSize(40, 20));
    EXPECT_TRUE(PictureSize(dir.Write(u"text.jpg"_s, "no picture")).isEmpty());
    EXPECT_TRUE(PictureSize(dir / u"missing.jpg"_s).isEmpty());
    EXPECT_TRUE(PictureSize({}).isEmpty());
}

TEST_F(ScaledPictureTest, AHugePictureIsRead) {
    const QImage picture = ScaledImage(Picture({9000, 6000}), {90, 90}, 1);
    EXPECT_EQ(picture.size(), QSize(90, 60));
    EXPECT_EQ(picture.pixelColor(45, 30).red(), 254); // as the format keeps red
}

TEST_F(ScaledPictureTest, AJpegOfAnySizeIsReadAsSmallAsItIsShown) {
    const QString path = dir.Write(u"a.jpg"_s, test::GreyJpeg({20000, 16000}, test::JpegCoding::Baseline));
    EXPECT_EQ(PictureSize(path), QSize(20000, 16000));
    EXPECT_EQ(JpegMemory(path), 0);
    const QImage picture = ScaledImage(path, {200, 200}, 1);
    ASSERT_EQ(picture.size(), QSize(200, 160));
    EXPECT_EQ(picture.pixelColor(100, 80), QColor(128, 128, 128));
    const QuietToolkit quiet;
    EXPECT_TRUE(ScaledImage(path, {1 << 20, 1 << 20}, 1, PictureGrowth::Never).isNull()) << "in its own size";
}

TEST_F(ScaledPictureTest, APngIsReadLineByLineOrWithinTheLimit) {
    const QSize size(6000, 6000); // more than the limit with four bytes a pixel
    const QString colour = dir.Write(u"a.png"_s, test::BlackPng(size, test::PngPixels::Colour));
    const QImage picture = ScaledImage(colour, {200, 200}, 1);
    ASSERT_EQ(picture.size(), QSize(200, 200));
    EXPECT_EQ(picture.pixelColor(100, 100), QColor(Qt::black));
    const QString grey = dir.Write(u"b.png"_s, test::BlackPng({4000, 4000}, test::PngPixels::Grey));
    EXPECT_EQ(ScaledImage(grey, {200, 200}, 1).size(), QSize(200, 200));
    const QuietToolkit quiet;
    const QString huge = dir.Write(u"c.png"_s, test::BlackPng(size, test::PngPixels::Grey));
    EXPECT_EQ(PictureSize(huge), size);
    EXPECT_TRUE(ScaledImage(huge, {200, 200}, 1).isNull());
}

TEST_F(ScaledPictureTest, AJpegThatIsDecodedAsAWholeHasALimit) {
    const QString huge = dir.Write(u"a.jpg"_s, test::GreyJpeg({20000, 16000}, test::JpegCoding::Progressive));
    EXPECT_EQ(PictureSize(huge), QSize(20000, 16000));
    EXPECT_EQ(JpegMemory(huge), 20000LL * 16000 * 2);
    EXPECT_TRUE(ScaledImage(huge, {200, 200}, 1).isNull());
    const QString large = dir.Write(u"b.jpg"_s, test::GreyJpeg({8000, 6000}, test::JpegCoding::Progressive));
    EXPECT_EQ(ScaledImage(large, {200, 200}, 1).size(), QSize(200, 150));
    EXPECT_EQ(JpegMemory(Picture({40, 40}, u"c.png"_s)), 0);
    EXPECT_EQ(JpegMemory(dir / u"missing.jpg"_s), 0);
    const QByteArray head = test::GreyJpeg({8000, 6000}, test::JpegCoding::Progressive).left(90);
    for (qsizetype length = 0; length < head.size(); ++length) {
        EXPECT_EQ(JpegMemory(dir.Write(u"d.jpg"_s, head.left(length))), 0) << length;
    }
    // Bytes between the segments, over which decoders go.
    QByteArray padded = test::GreyJpeg({20000, 16000}, test::JpegCoding::Progressive);
    EXPECT_EQ(JpegMemory(dir.Write(u"e.jpg"_s, padded.insert(2, "\x01\x02\xFF\xFF"))), 20000LL * 16000 * 2);
}

TEST_F(ScaledPictureTest, TheContentDecidesTheFormat) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::blue);
    ASSERT_TRUE(image.save(dir / u"b.jpg"_s, "PNG"));
    EXPECT_EQ(ScaledImage(dir / u"b.jpg"_s, {20, 20}, 1).size(), QSize(20, 20));
}

TEST_F(ScaledPictureTest, NothingForABrokenFileOrAnEmptyPlace) {
    EXPECT_TRUE(ScaledImage(dir / u"missing.jpg"_s, {20, 20}, 1).isNull());
    EXPECT_TRUE(ScaledImage(dir.Write(u"b.jpg"_s, "no image"), {20, 20}, 1).isNull());
    const QByteArray whole = test::ReadTestFile(Picture({400, 400}, u"c.png"_s));
    EXPECT_TRUE(ScaledImage(dir.Write(u"cut.png"_s, whole.left(40)), {20, 20}, 1).isNull());
    EXPECT_TRUE(ScaledImage(Picture({40, 40}), {0, 20}, 1).isNull());
    EXPECT_TRUE(ScaledImage({}, {20, 20}, 1).isNull());
}

} // namespace
} // namespace ostrand
