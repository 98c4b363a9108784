#include "platform_qt/WindowInUse.h"

#include "shell/ui/BringUp.h"

#include <QApplication>
#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

namespace ostrand {
namespace {

/// A window that is shown and has the focus.
template <typename T = QWidget>
std::unique_ptr<T> Shown() {
    auto window = std::make_unique<T>();
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    return window;
}

/// What happens between the end of one window and the desktop's turning to another, or when another program is used.
void LeaveAll() {
    QApplication::setActiveWindow(nullptr);
}

TEST(WindowInUseTest, WithoutWindowsThereIsNone) {
    const WindowInUse windows;
    EXPECT_EQ(windows.Get(), nullptr);
    EXPECT_FALSE(windows.InForeground());
}

TEST(WindowInUseTest, IsTheActiveOne) {
    const WindowInUse windows;
    const auto first = Shown();
    const auto second = Shown();
    EXPECT_EQ(windows.Get(), second.get());
    first->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(first.get()));
    EXPECT_EQ(windows.Get(), first.get());
    EXPECT_TRUE(windows.InForeground());
}

TEST(WindowInUseTest, BehindAClosedWindowItIsTheOneBefore) {
    const WindowInUse windows;
    const auto other = Shown();
    const auto owner = Shown();
    auto dialog = Shown<QDialog>();
    dialog.reset();
    LeaveAll();
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    EXPECT_EQ(windows.Get(), owner.get());
    EXPECT_TRUE(windows.InForeground()) << "the desktop is about to give it the focus";
}

TEST(WindowInUseTest, AWindowThatWasLeftStaysTheOneButTheProgramIsInTheBackground) {
    const WindowInUse windows;
    const auto owner = Shown();
    LeaveAll();
    EXPECT_EQ(windows.Get(), owner.get());
    EXPECT_FALSE(windows.InForeground());
}

TEST(WindowInUseTest, AModalWindowComesBeforeThoseThatWaitForIt) {
    const WindowInUse windows;
    const auto owner = Shown();
    QDialog modal;
    modal.setModal(true);
    modal.setAttribute(Qt::WA_ShowWithoutActivating);
    modal.show();
    LeaveAll();
    EXPECT_EQ(windows.Get(), &modal);
}

TEST(BringUpTest, AWindowIsSeenAfterwards) {
    QWidget window;
    window.resize(200, 100);
    const struct {
        const char *name;
        Qt::WindowStates before, after;
    } cases[] = {
        {"closed", Qt::WindowNoState, Qt::WindowNoState},
        {"minimised", Qt::WindowMinimized, Qt::WindowNoState},
        {"minimised from its full size", Qt::WindowMinimized | Qt::WindowMaximized, Qt::WindowMaximized},
    };
    for (const auto &c : cases) {
        window.hide();
        window.setWindowState(c.before);
        if (c.before != Qt::WindowNoState) {
            window.show();
        }
        BringUp(window);
        EXPECT_TRUE(window.isVisible()) << c.name;
        EXPECT_EQ(window.windowState() & ~Qt::WindowActive, c.after) << c.name;
    }
}

} // namespace
} // namespace ostrand
