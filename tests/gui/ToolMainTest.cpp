#include "browser/ui/ToolMain.h"

#include "browser/Browser.h"
#include "database/DatabaseFunctions.h"
#include "platform_qt/ThemedIcon.h"
#include "shell/Session.h"
#include "support/Scripted.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ToolMainTest : public testing::Test {
protected:
    ToolMainTest() {
        session.view.ShowToolbar = true;
        CreateCollectionDatabase(session, services.folders.dir / u"Tools.mdb"_s);
        bar = new ToolMain(browser, window);
        window.addToolBar(bar);
    }
    ~ToolMainTest() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QToolButton *Button(const QString &name) const { return window.findChild<QToolButton *>(name); }
    void Visit(const QStringList &titles) {
        for (const QString &title : titles) {
            browser.history.AddHistoryBack(u"Key_"_s + title, title, false);
        }
        Q_EMIT browser.HistoryChanged();
    }
    QStringList Listed(const QString &name) const {
        QStringList texts;
        for (const QAction *action : Button(name)->menu()->actions()) {
            texts << action->text() + u'=' + action->data().toString();
        }
        return texts;
    }
    void Show() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    test::TestServices services;
    Session session{services.services};
    Browser browser{session};
    QMainWindow window;
    ToolMain *bar = nullptr;
    QStringList ran;
};

TEST_F(ToolMainTest, ItsButtonsCarryTheirNames) {
    EXPECT_EQ(bar->objectName(), u"toolMain");
    QStringList names;
    for (const QAction *action : bar->actions()) {
        names << action->objectName();
        const QToolButton *button = Button(action->objectName());
        ASSERT_NE(button, nullptr);
        EXPECT_FALSE(button->icon().isNull());
        EXPECT_EQ(button->accessibleName(), action->text());
        EXPECT_FALSE(action->toolTip().isEmpty());
        EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
    }
    EXPECT_EQ(names, (QStringList{u"MoveBack"_s, u"MoveForward"_s, u"SQL"_s, u"ProfileInfo"_s, u"ChangeMode"_s}));
    EXPECT_EQ(Button(u"MoveBack"_s)->toolTip(), u"Shows the title that was shown before (Alt+Left)");
    EXPECT_EQ(Button(u"SQL"_s)->toolTip(), u"Asks the database in its own language, and makes filters (F9)");
}

TEST_F(ToolMainTest, ButtonsRunTheCommandsOfTheMenus) {
    for (const QString &name : {u"mSQLQuery"_s, u"mProfileInformation"_s, u"mTVShows"_s, u"mMovies"_s}) {
        browser.commands.Handle(name, [this, name] { ran << name; });
    }
    QTest::mouseClick(Button(u"SQL"_s), Qt::LeftButton);
    QTest::mouseClick(Button(u"ProfileInfo"_s), Qt::LeftButton);
    QTest::mouseClick(Button(u"ChangeMode"_s), Qt::LeftButton);
    session.view.mTVShows = true;
    QTest::mouseClick(Button(u"ChangeMode"_s), Qt::LeftButton);
    EXPECT_EQ(ran, (QStringList{u"mSQLQuery"_s, u"mProfileInformation"_s, u"mTVShows"_s, u"mMovies"_s}));
}

TEST_F(ToolMainTest, ButtonsAreEnabledAsTheirCommands) {
    EXPECT_FALSE(Button(u"SQL"_s)->isEnabled());
    browser.commands.Handle(u"mSQLQuery"_s, [] {});
    browser.commands.Handle(u"mProfileInformation"_s, [] {});
    EXPECT_TRUE(Button(u"SQL"_s)->isEnabled());
    EXPECT_TRUE(Button(u"ProfileInfo"_s)->isEnabled());
    EnableDBMenues(browser.commands, false);
    EXPECT_FALSE(Button(u"SQL"_s)->isEnabled());
    EXPECT_FALSE(Button(u"ProfileInfo"_s)->isEnabled());
}

TEST_F(ToolMainTest, ChangeModeIsCaptionedWithTheOtherView) {
    EXPECT_EQ(Button(u"ChangeMode"_s)->text(), u"TV Shows");
    EXPECT_EQ(Button(u"ChangeMode"_s)->toolTip(), u"Shows the series (Ctrl+T)");
    session.view.mTVShows = true;
    Q_EMIT browser.ModeChanged();
    EXPECT_EQ(Button(u"ChangeMode"_s)->text(), u"Movies");
    EXPECT_EQ(Button(u"ChangeMode"_s)->accessibleName(), u"Movies");
    EXPECT_EQ(Button(u"ChangeMode"_s)->toolTip(), u"Shows the profiles (Ctrl+M)");
}

TEST_F(ToolMainTest, TextsAreTranslated) {
    session.UseUserDefinedStrings = true;
    session.Database->Execute(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Back', 'Zurück')");
    browser.commands.RefreshTexts();
    EXPECT_EQ(Button(u"MoveBack"_s)->text(), u"Zurück");
    EXPECT_EQ(Button(u"MoveForward"_s)->text(), u"Forward");
}

TEST_F(ToolMainTest, TheHistoryDropsDownNewestFirst) {
    EXPECT_FALSE(Button(u"MoveBack"_s)->isEnabled());
    EXPECT_FALSE(Button(u"MoveForward"_s)->isEnabled());
    Visit({u"Amber"_s, u"Bread & Salt"_s, u"  Cinder"_s});
    EXPECT_TRUE(Button(u"MoveBack"_s)->isEnabled());
    EXPECT_FALSE(Button(u"MoveForward"_s)->isEnabled());
    EXPECT_EQ(Listed(u"MoveBack"_s),
              (QStringList{u"Cinder=Key_  Cinder"_s, u"Bread && Salt=Key_Bread & Salt"_s, u"Amber=Key_Amber"_s}));
    EXPECT_EQ(Listed(u"MoveForward"_s), QStringList());
    EXPECT_EQ(Button(u"MoveBack"_s)->popupMode(), QToolButton::MenuButtonPopup);
}

TEST_F(ToolMainTest, AClickGoesBackByOne) {
    Visit({u"Amber"_s, u"Bread"_s, u"Cinder"_s});
    QTest::mouseClick(Button(u"MoveBack"_s), Qt::LeftButton, {}, QPoint(4, 4));
    EXPECT_EQ(Listed(u"MoveBack"_s), (QStringList{u"Bread=Key_Bread"_s, u"Amber=Key_Amber"_s}));
}

TEST_F(ToolMainTest, AnEntryGoesBackByMany) {
    Visit({u"Amber"_s, u"Bread"_s, u"Cinder"_s});
    Button(u"MoveBack"_s)->menu()->actions().at(2)->trigger();
    EXPECT_EQ(Listed(u"MoveBack"_s), QStringList());
    EXPECT_FALSE(Button(u"MoveBack"_s)->isEnabled());
    EXPECT_EQ(Listed(u"MoveForward"_s), (QStringList{u"Bread=Key_Bread"_s, u"Cinder=Key_Cinder"_s}));
    EXPECT_TRUE(Button(u"MoveForward"_s)->isEnabled());
    Button(u"MoveForward"_s)->menu()->actions().at(0)->trigger();
    EXPECT_EQ(Listed(u"MoveForward"_s), QStringList{u"Cinder=Key_Cinder"_s});
}

TEST_F(ToolMainTest, ClearedHistoryLeavesTheButtonsVisible) {
    Visit({u"Amber"_s});
    Show();
    browser.history.Clear();
    Q_EMIT browser.HistoryChanged();
    EXPECT_FALSE(Button(u"MoveBack"_s)->isEnabled());
    EXPECT_TRUE(Button(u"MoveBack"_s)->isVisible());
    EXPECT_TRUE(Button(u"MoveForward"_s)->isVisible());
    EXPECT_EQ(Listed(u"MoveBack"_s), QStringList());
}

TEST_F(ToolMainTest, TheSettingShowsAndHidesIt) {
    EXPECT_FALSE(bar->isHidden());
    session.view.ShowToolbar = false;
    Q_EMIT browser.SettingsChanged();
    EXPECT_TRUE(bar->isHidden());
}

TEST_F(ToolMainTest, TheKeysMoveWithoutABarToo) {
    session.view.ShowToolbar = false;
    Q_EMIT browser.SettingsChanged();
    Visit({u"Amber"_s, u"Bread"_s});
    Show();
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Listed(u"MoveBack"_s), QStringList{u"Amber=Key_Amber"_s});
}

/// The colour of the strongest pixel.
QColor Ink(const QIcon &icon, QIcon::Mode mode) {
    const QImage image = icon.pixmap(QSize(24, 24), 1.0, mode).toImage();
    QColor strongest = Qt::transparent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            strongest = colour.alpha() > strongest.alpha() ? colour : strongest;
        }
    }
    return strongest;
}

TEST(ThemedIcon, TakesTheColourOfThePalette) {
    const QPalette before = QGuiApplication::palette();
    const QIcon icon = ThemedIcon(u"back"_s);
    for (const QColor &colour : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Active, QPalette::ButtonText, colour);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
        QGuiApplication::setPalette(palette);
        EXPECT_EQ(Ink(icon, QIcon::Normal).name(), colour.name());
        EXPECT_EQ(Ink(icon, QIcon::Disabled).name(), QColor(Qt::gray).name());
    }
    QGuiApplication::setPalette(before);
}

TEST(ThemedIcon, UnknownNamesGiveNone) {
    EXPECT_TRUE(ThemedIcon(u"nothing"_s).isNull());
    EXPECT_FALSE(ProgramIcon().isNull());
    EXPECT_GT(Ink(ProgramIcon(), QIcon::Normal).alpha(), 250);
}

TEST(ThemedIcon, FillsTheSizeThatIsAskedFor) {
    for (const int size : {16, 24, 48, 256}) {
        EXPECT_EQ(ProgramIcon().pixmap(QSize(size, size), 1.0).size(), QSize(size, size));
    }
    const QPixmap doubled = ThemedIcon(u"info"_s).pixmap(QSize(24, 24), 2.0);
    EXPECT_EQ(doubled.size(), QSize(48, 48));
    EXPECT_EQ(doubled.devicePixelRatio(), 2.0);
}

} // namespace
} // namespace ostrand
