#include "browser/ui/MenuBuilder.h"

#include "browser/MenuStrings.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString Text(const char16_t *text) {
    return text == nullptr ? QString() : QStringView(text).toString();
}

class MenuBuilderTest : public testing::Test {
protected:
    void Note(const QString &name) {
        commands.Handle(name, [this, name] { ran << name; });
    }
    void Show() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    ViewState view;
    Commands commands{view};
    QMainWindow window;
    MenuBuilder *menus = new MenuBuilder(commands, *window.menuBar(), window);
    QStringList ran;
};

TEST_F(MenuBuilderTest, EveryEntryIsFoundByItsName) {
    for (const MenuEntry &entry : MenuEntries()) {
        const QString name = Text(entry.name);
        if (entry.IsSeparator()) {
            continue;
        }
        ASSERT_NE(menus->Action(name), nullptr) << qPrintable(name);
        EXPECT_EQ(menus->Action(name)->objectName(), name);
        EXPECT_EQ(menus->Action(name)->text(), Text(entry.text));
        EXPECT_EQ(window.findChild<QMenu *>(name) != nullptr, entry.is_menu) << qPrintable(name);
        EXPECT_EQ(window.findChild<QAction *>(name), menus->Action(name));
        if (entry.is_menu) {
            EXPECT_EQ(menus->ContextMenu(name), window.findChild<QMenu *>(name));
        }
    }
    EXPECT_EQ(menus->Action(u"mNothing"_s), nullptr);
    EXPECT_EQ(menus->ContextMenu(u"mNothing"_s), nullptr);
}

TEST_F(MenuBuilderTest, MenusHoldTheirEntriesInTheOrderOfTheTable) {
    QMap<QString, QStringList> expected;
    for (const MenuEntry &entry : MenuEntries()) {
        expected[Text(entry.parent)] << Text(entry.name);
    }
    const auto names = [](const QList<QAction *> &actions) {
        QStringList result;
        for (const QAction *action : actions) {
            EXPECT_EQ(action->isSeparator(), action->objectName().isEmpty());
            result << action->objectName();
        }
        return result;
    };
    EXPECT_EQ(names(window.menuBar()->actions()),
              (QStringList{u"mFile"_s, u"mView"_s, u"mEdit"_s, u"mTools"_s, u"mInfo"_s}));
    expected.remove(QString());
    for (const auto &[menu, entries] : expected.asKeyValueRange()) {
        EXPECT_EQ(names(menus->ContextMenu(menu)->actions()), entries) << qPrintable(menu);
    }
}

TEST_F(MenuBuilderTest, ATriggeredEntryRunsItsCommand) {
    EXPECT_FALSE(menus->Action(u"mAbout"_s)->isEnabled());
    Note(u"mAbout"_s);
    EXPECT_TRUE(menus->Action(u"mAbout"_s)->isEnabled());
    menus->Action(u"mAbout"_s)->trigger();
    EXPECT_EQ(ran, QStringList{u"mAbout"_s});
}

TEST_F(MenuBuilderTest, ShortcutsRunTheirCommand) {
    Note(u"mGotoProfile"_s);
    Note(u"mSettings"_s);
    Note(u"mExit"_s);
    Note(u"mAbout"_s);
    Note(u"mUpdateMovieData"_s);
    Show();
    QTest::keyClick(&window, Qt::Key_G, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Comma, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_F1);
    QTest::keyClick(&window, Qt::Key_I, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(ran, (QStringList{u"mGotoProfile"_s, u"mSettings"_s, u"mAbout"_s, u"mUpdateMovieData"_s, u"mExit"_s}));
    EnableDBMenues(commands, false);
    ran.clear();
    QTest::keyClick(&window, Qt::Key_G, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(ran, QStringList{u"mExit"_s});
}

TEST_F(MenuBuilderTest, EveryShortcutOfTheTableIsOneThatTheToolkitKnows) {
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.shortcut != nullptr) {
            const QKeySequence keys = menus->Action(Text(entry.name))->shortcut();
            EXPECT_EQ(keys.count(), 1);
            EXPECT_EQ(keys.toString(QKeySequence::PortableText), Text(entry.shortcut).replace(u"Delete"_s, u"Del"_s));
        }
    }
}

TEST_F(MenuBuilderTest, MenusFollowTheDatabaseAndTheView) {
    Note(u"mSQLQuery"_s);
    Note(u"mEditProfile"_s);
    EnableDBMenues(commands, false);
    EXPECT_FALSE(menus->ContextMenu(u"mTools"_s)->isEnabled());
    EXPECT_FALSE(menus->Action(u"mTools"_s)->isEnabled());
    EXPECT_FALSE(menus->Action(u"mSQLQuery"_s)->isEnabled());
    EXPECT_TRUE(menus->Action(u"mFile"_s)->isEnabled());
    EnableDBMenues(commands, true);
    EXPECT_TRUE(menus->Action(u"mSQLQuery"_s)->isEnabled());
    EXPECT_TRUE(menus->Action(u"mEditProfile"_s)->isEnabled());
    commands.FollowView(false);
    EXPECT_FALSE(menus->Action(u"mEditProfile"_s)->isEnabled());
    EXPECT_FALSE(menus->ContextMenu(u"mSpecialSorting"_s)->isEnabled());
}

TEST_F(MenuBuilderTest, ChecksShowTheStateAndNotTheClick) {
    QAction *boxsets = menus->Action(u"mBoxsetView"_s);
    EXPECT_TRUE(boxsets->isCheckable());
    EXPECT_TRUE(boxsets->isChecked());
    Note(u"mBoxsetView"_s);
    boxsets->trigger(); // a command that changes nothing
    EXPECT_EQ(ran, QStringList{u"mBoxsetView"_s});
    EXPECT_TRUE(boxsets->isChecked());
    commands.Handle(u"mBoxsetView"_s, [this] { view.mBoxsetView = !view.mBoxsetView; });
    boxsets->trigger();
    EXPECT_FALSE(boxsets->isChecked());
    view.mBoxsetView = true;
    commands.Refresh();
    EXPECT_TRUE(boxsets->isChecked());
    EXPECT_FALSE(menus->Action(u"mExit"_s)->isCheckable());
}

TEST_F(MenuBuilderTest, OneOfTheTwoViewsIsChecked) {
    QAction *tv = menus->Action(u"mTVShows"_s);
    QAction *movies = menus->Action(u"mMovies"_s);
    EXPECT_TRUE(movies->isChecked() && !tv->isChecked());
    commands.Handle(u"mTVShows"_s, [this] { view.mTVShows = true; });
    commands.Handle(u"mMovies"_s, [] {}); // stays where it is
    tv->trigger();
    EXPECT_TRUE(tv->isChecked() && !movies->isChecked());
    movies->trigger();
    EXPECT_TRUE(tv->isChecked() && !movies->isChecked());
    view.mTVShows = false;
    commands.Refresh();
    EXPECT_TRUE(movies->isChecked() && !tv->isChecked());
}

TEST_F(MenuBuilderTest, LocksAndGridLinesShowTheirState) {
    commands.SetChecked(u"mLockEpisode"_s, true);
    EXPECT_TRUE(menus->Action(u"mLockEpisode"_s)->isChecked());
    EXPECT_FALSE(menus->Action(u"mToggleGridLinesAp"_s)->isChecked());
    view.grid_lines.ListAppearances = true;
    commands.Refresh();
    EXPECT_TRUE(menus->Action(u"mToggleGridLinesAp"_s)->isChecked());
}

TEST_F(MenuBuilderTest, TheAuditTrailIsHiddenUntilItIsShown) {
    EXPECT_FALSE(menus->Action(u"mSVNAuditTrailDatabase"_s)->isVisible());
    EXPECT_FALSE(menus->Action(u"mShowAuditTrail"_s)->isVisible());
    ShowAuditMenus(commands, true);
    EXPECT_TRUE(menus->Action(u"mSVNAuditTrailDatabase"_s)->isVisible());
    EXPECT_TRUE(menus->Action(u"mShowAuditTrail"_s)->isVisible());
}

TEST_F(MenuBuilderTest, TextsAndToolTipsFollowTheLanguage) {
    QAction *go = menus->Action(u"mGotoProfile"_s);
    EXPECT_EQ(go->statusTip(), u"Shows a title by its name");
    commands.SetText(u"mGotoProfile"_s, u"&Gehe zu..."_s);
    commands.SetToolTip(u"mGotoProfile"_s, u"Zeigt einen Titel"_s);
    commands.SetText(u"mFile"_s, u"&Datei"_s);
    EXPECT_EQ(go->text(), u"&Gehe zu...");
    EXPECT_EQ(go->toolTip(), u"Zeigt einen Titel");
    EXPECT_EQ(go->statusTip(), u"Zeigt einen Titel");
    EXPECT_EQ(menus->ContextMenu(u"mFile"_s)->title(), u"&Datei");
}

TEST_F(MenuBuilderTest, ACommandMayCloseTheWindow) {
    auto *other = new QMainWindow;
    const auto *builder = new MenuBuilder(commands, *other->menuBar(), *other);
    QPointer<QMainWindow> alive = other;
    commands.Handle(u"mExit"_s, [other] { other->deleteLater(); });
    builder->Action(u"mExit"_s)->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(alive.isNull());
    commands.SetEnabled(u"mExit"_s, false);
    EXPECT_FALSE(menus->Action(u"mExit"_s)->isEnabled());
}

TEST_F(MenuBuilderTest, AMenuOpensAndItsMnemonicChooses) {
    Note(u"mExit"_s);
    Show();
    QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
    QMenu *file = menus->ContextMenu(u"mFile"_s);
    ASSERT_TRUE(file->isVisible());
    QTest::keyClick(file, Qt::Key_X);
    EXPECT_EQ(ran, QStringList{u"mExit"_s});
    EXPECT_FALSE(file->isVisible());
}

} // namespace
} // namespace ostrand
