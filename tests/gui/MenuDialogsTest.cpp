// The windows that the menu opens, used on a collection.
#include "MainWindowFixture.h"

#include "people/ui/frmDropBox.h"

#include <QCheckBox>
#include <QDialog>
#include <QFontComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class MenuDialogs : public test::MainWindowTest {
protected:
    /// Opens a modal window by its command and acts in it; it is to be closed afterwards.
    void Use(const char *command, const QString &name, const std::function<void(QDialog &)> &act) {
        bool seen = false;
        QTimer::singleShot(0, main.get(), [&] {
            auto *window = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(window);
            EXPECT_EQ(window->objectName(), name);
            seen = true;
            act(*window);
            EXPECT_FALSE(window->isVisible());
        });
        Trigger(command);
        EXPECT_TRUE(seen) << command;
    }
    static void Press(QDialog &window, const QString &button) {
        auto *found = window.findChild<QPushButton *>(button);
        ASSERT_TRUE(found) << qPrintable(button);
        found->click();
    }
};

TEST_F(MenuDialogs, AboutComesAndGoes) {
    Start();
    Use("mAbout", u"frmAbout"_s, [this](QDialog &window) {
        EXPECT_EQ(window.parentWidget(), main.get());
        Press(window, u"cmdOK"_s);
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(MenuDialogs, SettingsTakeEffectAtOnce) {
    Start({u"INSERT INTO Translation (OriginalString, UserString) VALUES ('&File', '&Datei')"_s});
    auto *tools = Control<QToolBar>("toolMain");
    const QString file = Action(u"mFile"_s)->text();
    ASSERT_TRUE(tools->isVisible());
    Use("mSettings", u"frmSettings"_s, [](QDialog &window) {
        window.findChild<QCheckBox *>(u"chkShowToolbar"_s)->setChecked(false);
        window.findChild<QFontComboBox *>(u"comboFont"_s)->setEditText(u"DejaVu Sans"_s);
        window.findChild<QLineEdit *>(u"textFontSize"_s)->setText(u"13"_s);
        Press(window, u"cbCancel"_s);
    });
    EXPECT_TRUE(tools->isVisible());
    EXPECT_NE(List()->font().pointSizeF(), 13);
    Use("mSettings", u"frmSettings"_s, [](QDialog &window) {
        window.findChild<QCheckBox *>(u"chkShowToolbar"_s)->setChecked(false);
        window.findChild<QCheckBox *>(u"chkEnableTranslation"_s)->setChecked(true);
        window.findChild<QFontComboBox *>(u"comboFont"_s)->setEditText(u"DejaVu Sans"_s);
        window.findChild<QLineEdit *>(u"textFontSize"_s)->setText(u"13"_s);
        Press(window, u"cbOK"_s);
    });
    EXPECT_FALSE(tools->isVisible());
    EXPECT_EQ(List()->font().family(), u"DejaVu Sans"_s);
    EXPECT_EQ(List()->font().pointSizeF(), 13);
    EXPECT_EQ(ReadDbInfo(session, u"FontName"_s, {}), u"DejaVu Sans"_s);
    EXPECT_EQ(ReadDbInfo(session, u"FontSize"_s, {}), u"13"_s);
    EXPECT_EQ(ReadDbInfo(session, u"ShowToolbar"_s, {}), u"False"_s);
    EXPECT_EQ(ReadDbInfo(session, u"UseUserDefinedStrings"_s, {}), u"1"_s);
    EXPECT_NE(Action(u"mFile"_s)->text(), file) << "menu captions are applied again";
}

TEST_F(MenuDialogs, CancelledSwitchingShowsTheSameCollection) {
    Start();
    const QStringList titles = Titles();
    Use("mSwitchDatabase", u"frmSwitchDatabase"_s, [&](QDialog &window) {
        EXPECT_FALSE(session.Database);
        Press(window, u"cbCancel"_s);
    });
    EXPECT_EQ(session.DatabaseFile, database);
    EXPECT_EQ(Titles(), titles);
    EXPECT_TRUE(Action(u"mSettings"_s)->isEnabled());
}

TEST_F(MenuDialogs, ANewCollectionIsShown) {
    Start();
    session.DatabasePath = services.folders.dir.Path();
    services.dialogs.ExpectInput(u"Enter name of new database:"_s, u"music"_s, u"New database"_s);
    Use("mSwitchDatabase", u"frmSwitchDatabase"_s, [](QDialog &window) { Press(window, u"cbNew"_s); });
    EXPECT_EQ(session.DatabaseName, u"music"_s);
    EXPECT_EQ(Titles(), QStringList());
}

TEST_F(MenuDialogs, WithoutTheCollectionOfBeforeTheWindowIsEmpty) {
    Start();
    session.DatabasePath = services.folders.dir.Path();
    services.dialogs.ExpectMessage(u"Do you really want to delete database films?"_s, MessageAnswer::Yes,
                                   u"Delete database?"_s);
    services.dialogs.ExpectMessage(u"Previous database doesn't exist anymore!"_s, MessageIcon::Warning,
                                   MessageAnswer::Ok, u"Database missing"_s);
    Use("mSwitchDatabase", u"frmSwitchDatabase"_s, [](QDialog &window) {
        Press(window, u"cbDeleteDatabase"_s);
        window.close();
    });
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(Titles(), QStringList());
    EXPECT_FALSE(Action(u"mSettings"_s)->isEnabled());
    EXPECT_TRUE(Action(u"mSwitchDatabase"_s)->isEnabled());
    EXPECT_EQ(Control<QTabBar>("tabColList")->count(), 1);
    EXPECT_TRUE(browser.cover_stem.isEmpty());
    EXPECT_EQ(browser.caption, browser.base_caption);
    EXPECT_TRUE(QTest::qWaitForWindowActive(main.get()));
}

TEST_F(MenuDialogs, TheDropBoxTakesTheFocusAndIsOneWindow) {
    Start();
    Trigger("mDropBox");
    auto *window = main->findChild<frmDropBox *>();
    ASSERT_TRUE(window);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == window; }));
    EXPECT_FALSE(window->isModal());
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    Trigger("mDropBox");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(main->findChildren<frmDropBox *>().size(), 1);
    window->close();
}

TEST_F(MenuDialogs, TheWindowsOfPeopleComeAndGo) {
    Start();
    session.HeadshotPath = services.folders.dir.Path() + u'/';
    Use("mEditCrossLinks", u"frmCrossLinks"_s, [](QDialog &window) { Press(window, u"cbExit"_s); });
    Use("mManageHeadshots", u"frmManageHeadshots"_s, [](QDialog &window) { Press(window, u"cbExit"_s); });
    Use("mHeadshotImport", u"frmCompare"_s, [](QDialog &window) { Press(window, u"cbExit"_s); });
}

TEST_F(MenuDialogs, CrossLinksGoToFilesAndBack) {
    Start(
        {u"DELETE FROM Alias"_s, u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Anny', 'Ann', 0)"_s});
    const QString file = services.folders.dir / u"links.xml"_s;
    services.dialogs.ExpectSaveFile(file);
    services.dialogs.ExpectMessage(u"Export to alias file completed"_s);
    Trigger("mExportAlias");
    session.Database->Execute(u"DELETE FROM Alias");
    services.dialogs.ExpectOpenFile(file);
    services.dialogs.ExpectMessage(u"Import finished."_s);
    Trigger("mImportAlias");
    EXPECT_EQ(session.Database->RecordCount(u"Alias"), 1);
}

TEST_F(MenuDialogs, UnneededBirthYearsGo) {
    Start({u"INSERT INTO CastCrew (Name, ProfileID, Position, BirthYear, IsCast) VALUES ('Nobody Else', 'K', 1, 1950, "
           "true)"_s});
    Trigger("mRemoveUnneededBirthYears");
    EXPECT_TRUE(
        session.Database->OpenRecordset(u"SELECT Name FROM CastCrew WHERE Name = 'Nobody Else' AND BirthYear <> 0")
            .Eof());
}

} // namespace
} // namespace ostrand
