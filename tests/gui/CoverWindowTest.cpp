#include "MainWindowFixture.h"
#include "browser/ui/PictureView.h"
#include "browser/ui/frmCover.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class CoverWindow : public MainWindowTest {
protected:
    void Open() {
        Start();
        Trigger("mShowCover");
        window = main->findChild<frmCover *>();
        ASSERT_TRUE(window);
        picture = window->findChild<PictureView *>(u"picCover"_s);
        ASSERT_TRUE(picture);
    }
    PictureView *Cover() { return main->findChild<QWidget *>(u"Frame4_1"_s)->findChild<PictureView *>(u"picCover"_s); }

    frmCover *window = nullptr;
    PictureView *picture = nullptr;
};

TEST_F(CoverWindow, ShowsTheSideOfTheMainWindow) {
    Open();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isModal());
    EXPECT_TRUE(picture->HasPicture());
    EXPECT_EQ(picture->File(), Cover()->File());
    EXPECT_EQ(window->windowTitle(), u"Cover: "_s + browser.caption);
    ClickRow(1);
    EXPECT_EQ(picture->File(), Cover()->File()) << "of another title";
    EXPECT_EQ(window->windowTitle(), u"Cover: "_s + browser.caption);
    Trigger("mTVShows");
    EXPECT_FALSE(picture->HasPicture());
    EXPECT_EQ(window->windowTitle(), u"Cover"_s);
}

TEST_F(CoverWindow, AClickInEitherWindowTurnsTheCover) {
    Open();
    const QString front = picture->File();
    QTest::mouseClick(picture, Qt::LeftButton);
    EXPECT_FALSE(session.ShowFrontCover);
    EXPECT_NE(picture->File(), front);
    EXPECT_EQ(picture->File(), Cover()->File());
    QTest::mouseClick(Cover(), Qt::LeftButton);
    EXPECT_TRUE(session.ShowFrontCover);
    EXPECT_EQ(picture->File(), front);
    Trigger("mFlipCover");
    EXPECT_FALSE(session.ShowFrontCover);
}

TEST_F(CoverWindow, ThePictureFitsTheWindow) {
    Open();
    const auto fits = [this](int width, int height) {
        const QSizeF shown = picture->Picture().deviceIndependentSize();
        const QSizeF wanted = QSizeF(picture->NaturalSize()).scaled(QSizeF(width, height), Qt::KeepAspectRatio);
        return std::abs(shown.width() - wanted.width()) <= 1 && std::abs(shown.height() - wanted.height()) <= 1;
    };
    for (const QSize &size : {QSize(300, 500), QSize(600, 700), QSize(600, 200)}) {
        window->resize(size);
        EXPECT_TRUE(QTest::qWaitFor([&] { return fits(size.width(), size.height()); })) << size.width();
    }
}

TEST_F(CoverWindow, EscClosesItAndItsPlaceIsKept) {
    Open();
    window->resize(310, 420);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(GetINIString(session, u"CoverWindow"_s, u"Width"_s, {}), QString::number(310 * 15));
    EXPECT_EQ(GetINIString(session, u"CoverWindow"_s, u"Height"_s, {}), QString::number(420 * 15));
    ClickRow(2);
    Trigger("mShowCover");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(main->findChildren<frmCover *>().size(), 1);
    EXPECT_EQ(window->size(), QSize(310, 420));
    EXPECT_EQ(picture->File(), Cover()->File());
}

TEST_F(CoverWindow, ItsPlaceIsKeptWhenTheProgramEnds) {
    Open();
    window->resize(330, 440);
    main->close();
    main.reset();
    EXPECT_EQ(GetINIString(session, u"CoverWindow"_s, u"Width"_s, {}), QString::number(330 * 15));
}

TEST_F(CoverWindow, TheMenuOfTheCoverOpensIt) {
    Start();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), Cover()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Cover(), &event);
    auto *menu = main->findChild<QMenu *>(u"mCoverTools"_s);
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->isVisible());
    Action(u"mShowCoverContext"_s)->trigger();
    menu->close();
    EXPECT_TRUE(main->findChild<frmCover *>()->isVisible());
}

} // namespace
} // namespace ostrand::test
