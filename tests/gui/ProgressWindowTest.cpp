#include "shell/ui/ProgressWindow.h"

#include "FindControl.h"
#include "services/SystemServices.h"
#include "shell/Progress.h"

#include <QCheckBox>
#include <QProgressBar>
#include <QScreen>
#include <QTest>
#include <QTreeWidget>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

class ProgressWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.Attach(job, [](const QString &text) { return text == u"Close" ? u"Zu"_s : text; });
        job.read_auto_close = [this] { return auto_close; };
        job.write_auto_close = [this](bool on) { auto_close = on; };
    }
    QTreeWidgetItem *Item(const QString &text) {
        return tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    ProgressWindow window;
    QtEventPump pump;
    frmProgress job{window, pump};
    bool auto_close = false;
    QTreeWidget *tree = FindControl<QTreeWidget>(window, "treeDetails");
    QProgressBar *bar = FindControl<QProgressBar>(window, "progress");
    QCheckBox *close_when_finished = FindControl<QCheckBox>(window, "chkCloseWhenFinished");
    QPushButton *close = FindControl<QPushButton>(window, "cbClose");
};

TEST_F(ProgressWindowTest, ComesUpEmptyAndBlocksTheOtherWindows) {
    job.Load(u"Importing"_s);
    EXPECT_EQ(window.objectName(), u"frmProgress"_s);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), u"Importing"_s);
    EXPECT_EQ(window.windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(FindControl<QLabel>(window, "labelProgress")->text(), QString());
    EXPECT_EQ(bar->value(), 0);
    EXPECT_GT(bar->maximum(), 0); // a bar without an end would seem to run
    EXPECT_FALSE(tree->isVisible());
    EXPECT_FALSE(close->isEnabled());
    EXPECT_EQ(close->text(), u"Zu"_s);
}

TEST_F(ProgressWindowTest, IsLowAgainBehindAJobWithDetails) {
    job.Load(u"Copying"_s);
    QApplication::processEvents();
    const int low = window.height();
    job.Close();
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"Ash"_s);
    EXPECT_GT(window.height(), low);
    job.Close();
    job.Load(u"Copying"_s);
    QApplication::processEvents();
    EXPECT_EQ(window.height(), low);
}

TEST_F(ProgressWindowTest, ShowsLinesAndBar) {
    job.Load(u"Importing"_s);
    job.SetTitle(u"Still importing"_s);
    job.SetLine(u"line"_s);
    job.SetDetail(u"detail"_s);
    job.SetCounter(u"3/10"_s);
    job.SetBar(3, 10);
    EXPECT_EQ(window.windowTitle(), u"Still importing"_s);
    EXPECT_EQ(FindControl<QLabel>(window, "labelProgress")->text(), u"line"_s);
    EXPECT_EQ(FindControl<QLabel>(window, "labelDetail")->text(), u"detail"_s);
    EXPECT_EQ(FindControl<QLabel>(window, "labelCounter")->text(), u"3/10"_s);
    EXPECT_EQ(bar->value(), 3);
    EXPECT_EQ(bar->maximum(), 10);
    job.SetBar(11, 10);
    EXPECT_EQ(bar->value(), 10);
}

TEST_F(ProgressWindowTest, ALongLineDoesNotWidenIt) {
    job.Load(u"Importing"_s);
    const int width = window.width();
    job.SetLine(QString(500, u'W'));
    job.SetDetail(QString(500, u'W'));
    pump.Turn();
    EXPECT_EQ(window.width(), width);
}

TEST_F(ProgressWindowTest, DetailsStandInTheTreeWithTicks) {
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"First film"_s, u"Key_1"_s);
    EXPECT_TRUE(tree->isVisible());
    job.AddSubInfo(u"Cast"_s);
    QTreeWidgetItem *first = Item(u"First film"_s);
    QTreeWidgetItem *cast = Item(u"Cast"_s);
    ASSERT_TRUE(first && cast);
    EXPECT_EQ(cast->parent(), first);
    EXPECT_TRUE(first->isExpanded());
    const qint64 open = first->icon(0).cacheKey();
    job.AddInfo(u"Second film"_s, u"Key_2"_s);
    EXPECT_NE(first->icon(0).cacheKey(), open);
    EXPECT_EQ(first->data(0, Qt::AccessibleDescriptionRole).toString(), u"Done"_s);
    EXPECT_EQ(cast->data(0, Qt::AccessibleDescriptionRole).toString(), u"Done"_s);
    EXPECT_EQ(Item(u"Second film"_s)->data(0, Qt::AccessibleDescriptionRole).toString(), QString());
    EXPECT_EQ(tree->topLevelItemCount(), 2);
}

TEST_F(ProgressWindowTest, TheLastNodeIsInSight) {
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    for (int i = 0; i < 200; ++i) {
        job.AddInfo(QString::number(i));
    }
    const QRect last = tree->visualItemRect(Item(u"199"_s));
    EXPECT_TRUE(tree->viewport()->rect().contains(last.center()));
}

TEST_F(ProgressWindowTest, WithoutDetailsTheTreeIsHiddenAndTheEndCloses) {
    job.Load(u"Importing"_s);
    job.ShowDetails(false);
    job.AddInfo(u"First film"_s, u"Key_1"_s);
    EXPECT_FALSE(tree->isVisible());
    job.UnloadForm(true);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ProgressWindowTest, AFinishedJobStaysForReading) {
    QWidget other;
    other.show();
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"First film"_s);
    window.move(40, 50);
    const QPoint place = window.pos();
    job.UnloadForm(true);
    EXPECT_TRUE(Item(u"Finished!"_s));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowModality(), Qt::NonModal);
    EXPECT_EQ(window.pos(), place);
    EXPECT_TRUE(close->isEnabled());
    EXPECT_EQ(window.focusWidget(), close);
    close->click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(job.IsShown());
    EXPECT_FALSE(auto_close);
}

TEST_F(ProgressWindowTest, OtherWindowsTakeNoClicksWhileAJobRuns) {
    QPushButton other(u"Other"_s);
    int clicks = 0;
    QObject::connect(&other, &QPushButton::clicked, [&] { ++clicks; });
    other.show();
    const auto click = [&] { QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, other.rect().center()); };
    click();
    EXPECT_EQ(clicks, 1);
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"First film"_s);
    click();
    EXPECT_EQ(clicks, 1);
    job.UnloadForm(true);
    click();
    EXPECT_EQ(clicks, 2);
    job.Close();
}

TEST_F(ProgressWindowTest, TickedItClosesItselfAndTheNextJobStartsTicked) {
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"First film"_s);
    EXPECT_FALSE(close_when_finished->isChecked());
    close_when_finished->click();
    job.UnloadForm(true);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(auto_close);
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"First film"_s);
    EXPECT_TRUE(close_when_finished->isChecked());
    job.UnloadForm(false);
}

TEST_F(ProgressWindowTest, EscAndTheCloseButtonOfTheWindowCancel) {
    for (const bool esc : {true, false}) {
        job.Load(u"Importing"_s);
        EXPECT_FALSE(job.ProgressCancelled());
        if (esc) {
            QTest::keyClick(&window, Qt::Key_Escape);
        } else {
            window.close();
        }
        EXPECT_TRUE(job.ProgressCancelled());
        EXPECT_FALSE(window.isVisible());
    }
}

TEST_F(ProgressWindowTest, TheNextJobTakesTheWindowThatIsStillOpen) {
    job.Load(u"One"_s);
    job.ShowDetails(true);
    job.AddInfo(u"First film"_s);
    job.UnloadForm(true);
    job.Load(u"Two"_s);
    EXPECT_EQ(window.windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_FALSE(close->isEnabled());
    job.UnloadForm(false);
}

TEST_F(ProgressWindowTest, EnterClosesOnlyFromItsButton) {
    QStringList chosen;
    window.title_chosen = [&](const QString &key) { chosen += key; };
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"Film"_s, u"Key_1"_s);
    for (int i = 0; i < 100; ++i) {
        job.AddInfo(QString::number(i));
    }
    job.UnloadForm(true);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Home);
    EXPECT_TRUE(tree->viewport()->rect().contains(tree->visualItemRect(Item(u"Film"_s)).center()));
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(chosen, QStringList(u"Key_1"_s));
    EXPECT_TRUE(window.isVisible());
    close->setFocus();
    QTest::keyClick(close, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ProgressWindowTest, ItGrowsOnTheScreen) {
    const QRect screen = window.screen()->availableGeometry();
    job.Load(u"Importing"_s);
    for (const int bottom : {screen.center().y(), screen.bottom()}) {
        window.resize(window.width(), 100);
        window.move(screen.left(), bottom - 99);
        job.ShowDetails(true);
        job.AddInfo(u"First film"_s);
        EXPECT_GT(window.height(), 100);
        EXPECT_LE(window.frameGeometry().bottom(), screen.bottom());
        EXPECT_GE(window.frameGeometry().top(), screen.top());
        job.Load(u"Importing"_s);
    }
    job.UnloadForm(false);
}

TEST_F(ProgressWindowTest, ADoubleClickOpensAProfile) {
    QStringList chosen;
    window.title_chosen = [&](const QString &key) { chosen += key; };
    job.Load(u"Importing"_s);
    job.ShowDetails(true);
    job.AddInfo(u"Film"_s, u"Key_1"_s);
    job.AddInfo(u"Series"_s, u"OSV7"_s);
    job.AddInfo(u"Other"_s);
    job.UnloadForm(true);
    for (const QString &text : {u"Film"_s, u"Series"_s, u"Other"_s}) {
        const QPoint at = tree->visualItemRect(Item(text)).center();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, at);
    }
    EXPECT_EQ(chosen, (QStringList{u"Key_1"_s, u"OSV7"_s}));
    job.Close();
}

} // namespace
} // namespace ostrand
