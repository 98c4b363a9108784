#include "shell/ui/SplitPanel.h"

#include "FindControl.h"

#include <QSignalSpy>
#include <QTest>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

constexpr int kBar = 5; // 75 twips

class SplitPanelTest : public ::testing::Test {
protected:
    void SetUp() override {
        panel.SetControl1(first);
        panel.SetControl2(second);
        panel.SetMinPanelSize(0);
        panel.resize(405, 205);
    }
    void Show() {
        panel.show();
        QApplication::processEvents();
    }
    QWidget *Bar() { return FindControl<QWidget>(panel, "SplitBar"); }
    /// From the middle of the bar by so many pixels.
    void Drag(int by) {
        const QPoint from = Bar()->rect().center();
        const QPoint step = panel.Horizontal() ? QPoint(0, by) : QPoint(by, 0);
        QTest::mousePress(Bar(), Qt::LeftButton, {}, from);
        QTest::mouseMove(Bar(), from + step);
        QTest::mouseRelease(Bar(), Qt::LeftButton, {}, from + step);
    }

    SplitPanel panel;
    QWidget *first = new QWidget;
    QWidget *second = new QWidget;
};

TEST(SplitPanelDefaults, AreAsTold) {
    const SplitPanel panel;
    EXPECT_EQ(panel.MinPanelSize(), 2000);
    EXPECT_FALSE(panel.Horizontal());
    EXPECT_FALSE(panel.SnapToEdge());
    EXPECT_EQ(panel.SplitterWidth(), 75);
    EXPECT_EQ(panel.Snapped(), 0);
    EXPECT_EQ(panel.Control1(), nullptr);
    EXPECT_EQ(panel.Control2(), nullptr);
    EXPECT_EQ(panel.Position(), SplitPanel::kUnset);
}

TEST_F(SplitPanelTest, PlacesPanesAndBar) {
    panel.SetPosition(1500);
    Show();
    EXPECT_EQ(first->geometry(), QRect(0, 0, 100, 205));
    EXPECT_EQ(Bar()->geometry(), QRect(100, 0, kBar, 205));
    EXPECT_EQ(second->geometry(), QRect(105, 0, 300, 205));
    panel.SetHorizontal(true);
    EXPECT_EQ(first->geometry(), QRect(0, 0, 405, 100));
    EXPECT_EQ(second->geometry(), QRect(0, 105, 405, 100));
    panel.SetSplitterWidth(150);
    EXPECT_EQ(second->geometry(), QRect(0, 110, 405, 95));
}

TEST_F(SplitPanelTest, APassingPositionLeavesTheOneThatIsKept) {
    panel.SetPosition(1500);
    Show();
    panel.SetPassingPosition(3000);
    EXPECT_EQ(first->width(), 200);
    EXPECT_EQ(panel.Position(), 1500);
    panel.SetPassingPosition(SplitPanel::kUnset);
    EXPECT_EQ(first->width(), 100);
    panel.SetPassingPosition(3000);
    Drag(50);
    EXPECT_EQ(first->width(), 250) << "the user decides";
    EXPECT_EQ(panel.Position(), 3750);
}

TEST_F(SplitPanelTest, APassingPositionLeavesTheSecondPaneItsLeastSize) {
    panel.SetPassingPosition(6000, 1500);
    Show();
    EXPECT_EQ(second->width(), 100);
    panel.resize(200, 205);
    EXPECT_EQ(second->width(), 100);
    panel.resize(50, 205);
    EXPECT_EQ(first->width(), 0);
    panel.resize(1000, 205);
    EXPECT_EQ(first->width(), 400);
}

TEST_F(SplitPanelTest, APassingPositionIsNoFirstOne) {
    panel.SetDefaultPosition(0.4);
    panel.SetPassingPosition(1500);
    panel.resize(500, 205);
    Show();
    EXPECT_EQ(first->width(), 100);
    EXPECT_EQ(panel.Position(), 200 * 15) << "the part of the extent";
}

TEST_F(SplitPanelTest, TheFirstShowTakesAPartOfTheExtent) {
    panel.SetDefaultPosition(0.4);
    panel.resize(500, 205);
    Show();
    EXPECT_EQ(first->width(), 200);
    EXPECT_EQ(panel.Position(), 3000);
    panel.resize(900, 205); // from then on the position stands
    EXPECT_EQ(first->width(), 200);
}

TEST_F(SplitPanelTest, ASmallPaneIsClamped) {
    Show();
    const struct {
        const char *name;
        int minimum, position, width;
    } cases[] = {
        {"within", 1500, 3000, 200},           {"first too small", 1500, 300, 100},
        {"second too small", 1500, 5850, 300}, {"no minimum, at the edge", 0, 0, 0},
        {"no minimum, beyond", 0, 99999, 400}, {"no room for both", 4500, 3000, 300},
        {"no room at all", 15000, 3000, 400},
    };
    for (const auto &c : cases) {
        panel.SetMinPanelSize(c.minimum);
        panel.SetPosition(c.position);
        EXPECT_EQ(first->width(), c.width) << c.name;
        EXPECT_EQ(panel.Snapped(), 0) << c.name;
        EXPECT_TRUE(first->isVisible() && second->isVisible()) << c.name;
    }
}

TEST_F(SplitPanelTest, APaneWithAWishOfItsOwnCanVanishToo) {
    first->setMinimumSize(0, 0);
    auto *layout = new QVBoxLayout(first);
    layout->addWidget(new QPushButton(u"A button with a long text"_s));
    Show();
    panel.SetPosition(0);
    EXPECT_EQ(first->width(), 0);
}

TEST_F(SplitPanelTest, AtTheEdgeAPaneSnapsAway) {
    panel.SetSnapToEdge(true);
    panel.SetMinPanelSize(1500);
    Show();
    panel.SetPosition(1350);
    EXPECT_EQ(panel.Snapped(), 1);
    EXPECT_FALSE(first->isVisible());
    EXPECT_EQ(Bar()->x(), 0);
    EXPECT_EQ(second->geometry(), QRect(kBar, 0, 400, 205));
    panel.SetPosition(1500);
    EXPECT_EQ(panel.Snapped(), 0);
    EXPECT_TRUE(first->isVisible());
    panel.SetPosition(5000);
    EXPECT_EQ(panel.Snapped(), 2);
    EXPECT_FALSE(second->isVisible());
    EXPECT_EQ(first->width(), 400);
}

TEST_F(SplitPanelTest, TheWantedPositionOutlivesASmallPanel) {
    panel.SetPosition(4500);
    Show();
    panel.resize(100, 205);
    EXPECT_EQ(first->width(), 95);
    panel.resize(405, 205);
    EXPECT_EQ(first->width(), 300);
    EXPECT_EQ(panel.Position(), 4500);
}

TEST_F(SplitPanelTest, APaneThatItsOwnerHidesGivesItsRoom) {
    panel.SetPosition(1500);
    Show();
    second->hide();
    EXPECT_EQ(first->geometry(), panel.rect());
    EXPECT_FALSE(Bar()->isVisible());
    second->show();
    EXPECT_EQ(first->width(), 100);
    EXPECT_EQ(second->width(), 300);
    EXPECT_TRUE(Bar()->isVisible());
    panel.hide();
    panel.show();
    EXPECT_EQ(first->width(), 100);
}

TEST_F(SplitPanelTest, ASnappedPaneComesBackWhenTheOtherIsHidden) {
    panel.SetSnapToEdge(true);
    panel.SetPosition(0);
    Show();
    EXPECT_FALSE(first->isVisible());
    second->hide();
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->geometry(), panel.rect());
    second->show();
    EXPECT_FALSE(first->isVisible());
}

TEST_F(SplitPanelTest, DraggingTakesEffectOnRelease) {
    panel.SetPosition(1500);
    panel.SetDragColor(Qt::red);
    Show();
    const QPoint from = Bar()->rect().center();
    QTest::mousePress(Bar(), Qt::LeftButton, {}, from);
    QTest::mouseMove(Bar(), from + QPoint(60, 0));
    EXPECT_EQ(first->width(), 100);
    auto *ghost = FindControl<QWidget>(panel, "SplitGhost");
    ASSERT_TRUE(ghost);
    EXPECT_EQ(ghost->geometry(), QRect(160, 0, kBar, 205));
    EXPECT_EQ(ghost->grab().toImage().pixelColor(2, 2), QColor(Qt::red));
    QTest::mouseRelease(Bar(), Qt::LeftButton, {}, from + QPoint(60, 0));
    EXPECT_EQ(first->width(), 160);
    EXPECT_EQ(panel.Position(), 2400);
    EXPECT_EQ(panel.findChild<QWidget *>(u"SplitGhost"_s), nullptr);
}

TEST_F(SplitPanelTest, DraggingTellsThePositionOnce) {
    panel.SetPosition(1500);
    Show();
    const QSignalSpy told(&panel, &SplitPanel::PositionChanged);
    Drag(30);
    Drag(0);
    EXPECT_EQ(told.count(), 1);
    panel.SetHorizontal(true);
    Drag(-20);
    EXPECT_EQ(panel.Position(), 1650);
}

TEST_F(SplitPanelTest, DraggingToTheEdgeSnapsAndBack) {
    panel.SetSnapToEdge(true);
    panel.SetPosition(1500);
    Show();
    Drag(-200);
    EXPECT_EQ(panel.Snapped(), 1);
    EXPECT_FALSE(first->isVisible());
    Drag(80);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->width(), 80);
}

TEST_F(SplitPanelTest, EscEndsADrag) {
    panel.SetPosition(1500);
    Show();
    const QPoint from = Bar()->rect().center();
    QTest::mousePress(Bar(), Qt::LeftButton, {}, from);
    QTest::mouseMove(Bar(), from + QPoint(60, 0));
    QTest::keyClick(Bar(), Qt::Key_Escape);
    QTest::mouseRelease(Bar(), Qt::LeftButton, {}, from + QPoint(60, 0));
    EXPECT_EQ(first->width(), 100);
}

TEST_F(SplitPanelTest, KeysMoveTheBar) {
    panel.SetPosition(1500);
    Show();
    EXPECT_EQ(Bar()->focusPolicy(), Qt::TabFocus);
    EXPECT_FALSE(Bar()->accessibleName().isEmpty());
    const struct {
        Qt::Key key;
        int width;
    } cases[] = {
        {Qt::Key_Right, 110}, {Qt::Key_Left, 100}, {Qt::Key_Down, 110},
        {Qt::Key_Up, 100},    {Qt::Key_Home, 0},   {Qt::Key_End, 400},
    };
    for (const auto &c : cases) {
        QTest::keyClick(Bar(), c.key);
        EXPECT_EQ(first->width(), c.width) << int(c.key);
    }
}

TEST_F(SplitPanelTest, AKeyTakesTheBarOffTheEdge) {
    panel.SetSnapToEdge(true);
    panel.SetMinPanelSize(1500);
    panel.SetPosition(0);
    Show();
    QTest::keyClick(Bar(), Qt::Key_Right);
    EXPECT_EQ(first->width(), 100);
    QTest::keyClick(Bar(), Qt::Key_Left);
    EXPECT_EQ(panel.Snapped(), 1);
    QTest::keyClick(Bar(), Qt::Key_End);
    EXPECT_EQ(panel.Snapped(), 2);
    QTest::keyClick(Bar(), Qt::Key_Left);
    EXPECT_EQ(second->width(), 100);
}

TEST_F(SplitPanelTest, PanelsNest) {
    auto *inner = new SplitPanel;
    inner->SetMinPanelSize(0);
    auto *a = new QWidget;
    auto *b = new QWidget;
    inner->SetControl1(a);
    inner->SetControl2(b);
    inner->SetHorizontal(true);
    inner->SetDefaultPosition(0.5);
    panel.SetControl2(inner);
    delete second;
    panel.SetPosition(1500);
    Show();
    EXPECT_EQ(inner->geometry(), QRect(105, 0, 300, 205));
    EXPECT_EQ(a->geometry(), QRect(0, 0, 300, 102));
    EXPECT_EQ(b->geometry(), QRect(0, 107, 300, 98));
}

} // namespace
} // namespace ostrand
