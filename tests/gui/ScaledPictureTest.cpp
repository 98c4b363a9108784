#include "platform_qt/ScaledPicture.h"

#include "support/TempDir.h"

#include <QImage>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

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
        const QPixmap picture = ScaledPicture(Picture(c.stored), c.place, c.ratio, c.growth);
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
    const QPixmap picture = ScaledPicture(Picture({9000, 6000}), {90, 90}, 1);
    EXPECT_EQ(picture.size(), QSize(90, 60));
    EXPECT_EQ(picture.toImage().pixelColor(45, 30).red(), 254); // as the format keeps red
}

TEST_F(ScaledPictureTest, TheContentDecidesTheFormat) {
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::blue);
    ASSERT_TRUE(image.save(dir / u"b.jpg"_s, "PNG"));
    EXPECT_EQ(ScaledPicture(dir / u"b.jpg"_s, {20, 20}, 1).size(), QSize(20, 20));
}

TEST_F(ScaledPictureTest, NothingForABrokenFileOrAnEmptyPlace) {
    EXPECT_TRUE(ScaledPicture(dir / u"missing.jpg"_s, {20, 20}, 1).isNull());
    EXPECT_TRUE(ScaledPicture(dir.Write(u"b.jpg"_s, "no image"), {20, 20}, 1).isNull());
    const QByteArray whole = test::ReadTestFile(Picture({400, 400}, u"c.png"_s));
    EXPECT_TRUE(ScaledPicture(dir.Write(u"cut.png"_s, whole.left(40)), {20, 20}, 1).isNull());
    EXPECT_TRUE(ScaledPicture(Picture({40, 40}), {0, 20}, 1).isNull());
    EXPECT_TRUE(ScaledPicture({}, {20, 20}, 1).isNull());
}

} // namespace
} // namespace ostrand
