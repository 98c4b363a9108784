#include "browser/ui/PictureView.h"

#include "support/TempDir.h"

#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class PictureViewTest : public ::testing::Test {
protected:
    QString Picture(const QString &name, QSize size, const QColor &colour) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        EXPECT_TRUE(image.save(dir / name));
        return dir / name;
    }
    void SetUp() override {
        view.resize(100, 100);
        view.show();
    }
    /// The colour in the middle of the picture on the screen.
    QColor Colour() const { return view.Picture().toImage().pixelColor(view.Picture().rect().center()); }
    void Wait() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !view.IsLoading(); }));
        QCoreApplication::processEvents();
    }

    test::TempDir dir;
    PictureView view;
};

TEST_F(PictureViewTest, ThePictureComesAfterItsFileIsKnown) {
    const QString red = Picture(u"a.png"_s, {400, 200}, Qt::red);
    view.ShowFile(red);
    EXPECT_TRUE(view.HasPicture());
    EXPECT_EQ(view.NaturalSize(), QSize(400, 200));
    EXPECT_TRUE(view.Picture().isNull()) << "the window did not wait";
    Wait();
    EXPECT_EQ(view.Picture().deviceIndependentSize(), QSizeF(100, 50));
    EXPECT_EQ(view.Picture().devicePixelRatio(), view.devicePixelRatioF()) << "as sharp as the screen";
    EXPECT_EQ(Colour(), QColor(Qt::red));
}

TEST_F(PictureViewTest, TheLastFileAskedForIsTheOneShown) {
    const QString red = Picture(u"a.png"_s, {400, 200}, Qt::red);
    const QString blue = Picture(u"b.png"_s, {400, 200}, Qt::blue);
    for (int i = 0; i < 20; ++i) {
        view.ShowFile(i % 2 == 0 ? red : blue);
    }
    Wait();
    EXPECT_EQ(Colour(), QColor(Qt::blue));
    view.ShowFile(red);
    EXPECT_EQ(Colour(), QColor(Qt::blue)) << "it stays until the other one is there";
    Wait();
    EXPECT_EQ(Colour(), QColor(Qt::red));
    view.ShowFile(blue);
    EXPECT_EQ(Colour(), QColor(Qt::blue)) << "known already";
    view.ShowFile({});
    EXPECT_TRUE(view.Picture().isNull());
    EXPECT_FALSE(view.HasPicture());
    view.ShowFile(red);
    view.ShowFile({});
    Wait();
    EXPECT_TRUE(view.Picture().isNull()) << "what was under way comes to nothing";
}

TEST_F(PictureViewTest, AChangedFileIsReadAgain) {
    const QString path = Picture(u"a.png"_s, {400, 200}, Qt::red);
    view.ShowFile(path);
    Wait();
    Picture(u"a.png"_s, {400, 200}, Qt::green);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000), QFileDevice::FileModificationTime));
    file.close();
    view.ShowFile(path);
    Wait();
    EXPECT_EQ(Colour(), QColor(Qt::green));
}

TEST_F(PictureViewTest, FilesThatChangePlacesAreReadAgain) {
    const QString red = Picture(u"a.bmp"_s, {400, 200}, Qt::red);
    const QString blue = Picture(u"b.bmp"_s, {400, 200}, Qt::blue);
    for (const QString &path : {red, blue}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::fromSecsSinceEpoch(1'000'000'000), QFileDevice::FileModificationTime));
    }
    view.ShowFile(red);
    Wait();
    ASSERT_EQ(Colour(), QColor(Qt::red));
    QTest::qWait(20); // files are told apart by times in steps of some milliseconds
    ASSERT_TRUE(QFile::rename(red, dir / u"c.bmp"_s));
    ASSERT_TRUE(QFile::rename(blue, red));
    view.ShowFile(red);
    Wait();
    EXPECT_EQ(Colour(), QColor(Qt::blue));
}

TEST_F(PictureViewTest, ASmallPictureGrowsOnlyWhereItMay) {
    view.ShowFile(Picture(u"a.png"_s, {40, 20}, Qt::red));
    const auto red = [this](QPoint place) { return view.grab().toImage().pixelColor(place) == QColor(Qt::red); };
    for (const PictureGrowth growth : {PictureGrowth::Fit, PictureGrowth::Never, PictureGrowth::Fit}) {
        const bool grows = growth == PictureGrowth::Fit;
        view.SetGrowth(growth);
        Wait();
        EXPECT_EQ(view.Picture().deviceIndependentSize(), grows ? QSizeF(100, 50) : QSizeF(40, 20));
        EXPECT_TRUE(red({50, 10}));
        EXPECT_EQ(red({10, 40}), grows);
    }
    view.SetGrowth(PictureGrowth::Never);
    view.ShowFile(Picture(u"b.png"_s, {400, 200}, Qt::red));
    Wait();
    EXPECT_EQ(view.Picture().deviceIndependentSize(), QSizeF(100, 50)) << "a large one shrinks all the same";
}

TEST_F(PictureViewTest, WhatIsNoPictureShowsNothing) {
    const QString whole = Picture(u"a.png"_s, {400, 200}, Qt::red);
    const struct {
        const char *name;
        QString path;
    } cases[] = {
        {"text", dir.Write(u"b.jpg"_s, "no picture")},
        {"empty", dir.Write(u"c.jpg"_s, "")},
        {"missing", dir / u"d.jpg"_s},
        {"only a head", dir.Write(u"e.ppm"_s, "P6\n40 20\n255\n")},
    };
    for (const auto &c : cases) {
        view.ShowFile(whole);
        Wait();
        view.ShowFile(c.path);
        Wait();
        EXPECT_TRUE(view.Picture().isNull()) << c.name;
        EXPECT_FALSE(view.HasPicture()) << c.name;
        view.ShowFile(c.path);
        EXPECT_FALSE(view.HasPicture()) << c.name << " once more";
    }
}

TEST_F(PictureViewTest, AViewMayGoWhileItsPictureComes) {
    const QString red = Picture(u"a.png"_s, {3000, 2000}, Qt::red);
    for (int i = 0; i < 5; ++i) {
        PictureView passing;
        passing.resize(500, 500);
        passing.ShowFile(red);
    }
    view.ShowFile(red);
    Wait();
    EXPECT_FALSE(view.Picture().isNull());
}

} // namespace
} // namespace ostrand
