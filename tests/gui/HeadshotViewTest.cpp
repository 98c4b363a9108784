// The picture of a person: fitted, in its own size, broken, large, and changed quickly.
#include "HeadshotFolders.h"

#include "people/ui/HeadshotView.h"

#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class HeadshotViewTest : public test::HeadshotWindowTest {
protected:
    void SetUp() override {
        HeadshotWindowTest::SetUp();
        view.resize(200, 200);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    }
    bool Settled() {
        return QTest::qWaitFor([this] { return !view.IsReading(); });
    }
    QColor At(int x, int y) { return view.viewport()->grab().toImage().pixelColor(x, y); }

    HeadshotView view;
};

TEST_F(HeadshotViewTest, FitsThePictureIntoItsPlace) {
    view.ShowFile(Picture(u"a.jpg"_s, {20, 10}, Qt::white));
    EXPECT_TRUE(view.IsReading()) << "beside the event loop";
    ASSERT_TRUE(Settled());
    ASSERT_TRUE(view.HasPicture());
    view.SetFaultText(u"fault"_s);
    view.ShowFile(Picture(u"b.jpg"_s, {20, 10}, Qt::black));
    ASSERT_TRUE(Settled());
    EXPECT_LT(At(100, 100).lightness(), 20);
    EXPECT_LT(At(3, 100).lightness(), 20) << "it grows";
    EXPECT_GT(At(100, 10).lightness(), 100) << "and keeps its ratio";
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
}

TEST_F(HeadshotViewTest, InItsOwnSizeALargePictureScrolls) {
    view.SetNaturalSize(true);
    view.ShowFile(Picture(u"a.jpg"_s, {1000, 20}, Qt::black));
    ASSERT_TRUE(Settled());
    EXPECT_NEAR(view.horizontalScrollBar()->maximum(), 1000 / view.devicePixelRatioF() - 200, 20);
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
    view.SetNaturalSize(false);
    ASSERT_TRUE(Settled());
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

TEST_F(HeadshotViewTest, ABrokenFileSaysSo) {
    QSignalSpy read(&view, &HeadshotView::Read);
    view.SetFaultText(u"no picture"_s);
    folder.Write(u"b.jpg"_s, "<html>not found</html>");
    folder.Write(u"c.jpg"_s, QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000030000000208060000"));
    for (const QString &name : {u"b.jpg"_s, u"c.jpg"_s, u"gone.jpg"_s}) {
        view.ShowFile(folder / name);
        ASSERT_TRUE(Settled());
        EXPECT_FALSE(view.HasPicture());
        view.grab();
    }
    EXPECT_EQ(read.size(), 3);
    view.ShowFile({});
    EXPECT_FALSE(view.IsReading());
    EXPECT_FALSE(view.HasPicture());
}

TEST_F(HeadshotViewTest, OfManyPicturesOnlyTheLastIsShown) {
    const QString white = Picture(u"a.jpg"_s, {3000, 3000}, Qt::white);
    const QString black = Picture(u"b.jpg"_s, {30, 30}, Qt::black);
    QSignalSpy read(&view, &HeadshotView::Read);
    for (int i = 0; i < 50; ++i) {
        view.ShowFile(white);
    }
    view.ShowFile(black);
    ASSERT_TRUE(Settled());
    EXPECT_EQ(read.size(), 1);
    EXPECT_LT(At(100, 100).lightness(), 20);
}

TEST_F(HeadshotViewTest, NothingIsShownWhenItWasClearedMeanwhile) {
    view.ShowFile(Picture(u"a.jpg"_s, {2000, 2000}));
    view.ShowFile({});
    ASSERT_TRUE(Settled());
    EXPECT_FALSE(view.HasPicture());
    view.ShowFile(Picture(u"a.jpg"_s, {20, 20}));
    ASSERT_TRUE(Settled());
    EXPECT_TRUE(view.HasPicture());
}

TEST_F(HeadshotViewTest, APictureTooLargeForTheMemoryIsNone) {
    // The head of a picture of 60000 x 60000 pixels.
    folder.Write(u"big.jpg"_s,
                 QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ea600000ea6008020000004d8ee4c0"));
    view.SetNaturalSize(true);
    view.ShowFile(folder / u"big.jpg"_s);
    ASSERT_TRUE(Settled());
    EXPECT_FALSE(view.HasPicture());
}

TEST_F(HeadshotViewTest, MayGoWhileItReads) {
    const QString path = Picture(u"a.jpg"_s, {3000, 3000});
    QPointer<HeadshotView> other = new HeadshotView;
    other->resize(100, 100);
    other->ShowFile(path);
    ASSERT_FALSE(other->HasPicture()) << "it was read before it could go";
    delete other;
    EXPECT_TRUE(other.isNull());
    // What arrives late reaches nobody, and the next view reads as ever.
    view.ShowFile(path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.HasPicture(); }));
}

} // namespace
} // namespace ostrand
