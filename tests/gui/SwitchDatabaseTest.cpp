// The database manager's window, used with mouse and keys.
#include "database/DatabaseFunctions.h"
#include "database/ui/frmSwitchDatabase.h"
#include "shell/Session.h"
#include "shell/ui/Mnemonics.h"
#include "support/Scripted.h"

#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SwitchDatabaseWindow : public testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        session.DatabasePath = folder.Path();
        for (const QString &name : {u"films"_s, u"series"_s}) {
            CreateCollectionDatabase(session, folder / (name + u".mdb"_s));
            WriteDbInfo(session, u"Owner"_s, u"Ann Lee"_s);
            session.Database.reset();
        }
    }

    void Show() {
        window = std::make_unique<frmSwitchDatabase>(session);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        window->activateWindow();
        List()->setFocus();
    }

    QTreeView *List() const { return window->findChild<QTreeView *>(u"listdb"_s); }
    QPushButton *Button(const QString &name) const { return window->findChild<QPushButton *>(name); }
    QString Current() const { return List()->currentIndex().siblingAtColumn(0).data().toString(); }
    void Click(const QString &name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(List(), key, modifiers); }
    QPoint Centre(int row) const { return List()->visualRect(List()->model()->index(row, 0)).center(); }

    test::TempDir folder;
    test::TestServices services;
    Session session{services.services};
    std::unique_ptr<frmSwitchDatabase> window;
};

} // namespace

TEST_F(SwitchDatabaseWindow, HasItsControlsWithNames) {
    Show();
    EXPECT_EQ(window->windowTitle(), u"Select Database"_s);
    for (const QString &name : {u"textDatabasePath"_s, u"cbSelectPath"_s, u"listdb"_s, u"cbOK"_s, u"cbCancel"_s,
                                u"cbNew"_s, u"cbDeleteDatabase"_s, u"cbCompactDb"_s, u"cbExit"_s}) {
        const auto *control = window->findChild<QWidget *>(name);
        ASSERT_TRUE(control) << qPrintable(name);
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(name);
    }
    const auto *menu = window->findChild<QMenu *>(u"mListContext"_s);
    ASSERT_TRUE(menu);
    QStringList entries;
    for (const QAction *action : menu->actions()) {
        entries << action->objectName();
    }
    EXPECT_EQ(entries, (QStringList{u"mRenameDatabase"_s, u"mChangeDBOwner"_s}));
    EXPECT_EQ(window->findChild<QLineEdit *>(u"textDatabasePath"_s)->text(), folder.Path());
    EXPECT_EQ(Button(u"cbSelectPath"_s)->text(), u"..."_s);
}

TEST_F(SwitchDatabaseWindow, SelectsTheDatabaseThatWasOpen) {
    ASSERT_TRUE(OpenCollectionDatabase(session, folder / u"series.mdb"_s));
    Show();
    EXPECT_EQ(Current(), u"series"_s);
}

TEST_F(SwitchDatabaseWindow, EnterOpensTheSelectedRow) {
    Show();
    EXPECT_EQ(Current(), u"films"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_EQ(session.DatabaseName, u"series"_s);
}

TEST_F(SwitchDatabaseWindow, TabGoesFromTheListDownTheButtonsAndUpToThePath) {
    Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    for (const QString &name : {u"cbOK"_s, u"cbCancel"_s, u"cbNew"_s, u"cbCompactDb"_s, u"cbDeleteDatabase"_s,
                                u"cbExit"_s, u"textDatabasePath"_s, u"cbSelectPath"_s, u"listdb"_s}) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(window->focusWidget());
        EXPECT_EQ(window->focusWidget()->objectName(), name);
    }
}

TEST_F(SwitchDatabaseWindow, EnterPressesTheButtonThatHasTheFocus) {
    Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const auto enter_on = [this](const QString &button) {
        Button(button)->setFocus();
        QTest::keyClick(Button(button), Qt::Key_Return);
    };
    services.dialogs.ExpectMessage(u"Do you really want to delete database films?"_s, MessageAnswer::No);
    enter_on(u"cbDeleteDatabase"_s);
    services.dialogs.ExpectBrowseFolder({}, u"Database Path"_s);
    enter_on(u"cbSelectPath"_s);
    EXPECT_EQ(services.dialogs.Pending(), 0U);
    EXPECT_TRUE(window->isVisible());
    enter_on(u"cbCancel"_s);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(session.Database);
}

TEST_F(SwitchDatabaseWindow, ADoubleClickOpensItsRow) {
    Show();
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Centre(1));
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, Centre(1));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(session.DatabaseName, u"series"_s);
}

TEST_F(SwitchDatabaseWindow, ExecTellsThatADatabaseIsOpen) {
    frmSwitchDatabase dialog(session);
    QTimer::singleShot(0, &dialog, [&] { dialog.findChild<QPushButton *>(u"cbOK"_s)->click(); });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_TRUE(session.Database);
}

TEST_F(SwitchDatabaseWindow, EscCancelsWithoutADatabaseAtTheStart) {
    Show();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_FALSE(session.Database);
}

TEST_F(SwitchDatabaseWindow, CancelAndClosingOpenTheDatabaseOfBefore) {
    for (const bool close : {false, true}) {
        ASSERT_TRUE(OpenCollectionDatabase(session, folder / u"series.mdb"_s));
        Show();
        EXPECT_FALSE(session.Database);
        if (close) {
            window->close();
        } else {
            Click(u"cbCancel"_s);
        }
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(window->result(), QDialog::Accepted);
        EXPECT_EQ(session.DatabaseName, u"series"_s);
    }
}

TEST_F(SwitchDatabaseWindow, DelAsksAndTheNextRowIsSelected) {
    Show();
    services.dialogs.ExpectMessage(u"Do you really want to delete database films?"_s, MessageAnswer::Yes);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Current(), u"series"_s);
    EXPECT_FALSE(folder.Has(u"films.mdb"_s));
    services.dialogs.ExpectMessage(u"Do you really want to delete database series?"_s, MessageAnswer::Yes);
    Click(u"cbDeleteDatabase"_s);
    for (const QString &name : {u"cbOK"_s, u"cbDeleteDatabase"_s, u"cbCompactDb"_s}) {
        EXPECT_FALSE(Button(name)->isEnabled()) << "nothing is selected";
    }
    EXPECT_TRUE(Button(u"cbNew"_s)->isEnabled());
    EXPECT_EQ(window->focusWidget(), List());
    Press(Qt::Key_Return);
    Press(Qt::Key_Delete);
    Press(Qt::Key_F2);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SwitchDatabaseWindow, F2RenamesAndTheRowStaysSelected) {
    Show();
    services.dialogs.ExpectInput(u"Enter new name"_s, u"zebra"_s);
    Press(Qt::Key_F2);
    EXPECT_EQ(Current(), u"zebra"_s);
    EXPECT_TRUE(folder.Has(u"zebra.mdb"_s));
}

TEST_F(SwitchDatabaseWindow, TheContextMenuChangesTheOwner) {
    Show();
    services.dialogs.ExpectInput(u"Enter name of collection owner"_s, u"Bo"_s);
    window->findChild<QAction *>(u"mChangeDBOwner"_s)->trigger();
    EXPECT_EQ(List()->model()->index(0, DatabaseManager::Owner).data().toString(), u"Bo"_s);
    EXPECT_EQ(List()->model()->index(1, DatabaseManager::Owner).data().toString(), u"Ann Lee"_s);
}

TEST_F(SwitchDatabaseWindow, CompactsTheSelectedDatabase) {
    Show();
    Click(u"cbCompactDb"_s);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(List()->model()->index(0, DatabaseManager::Owner).data().toString(), u"Ann Lee"_s);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SwitchDatabaseWindow, NewOpensWhatItMade) {
    Show();
    services.dialogs.ExpectInput(u"Enter name of new database:"_s, std::nullopt);
    Click(u"cbNew"_s);
    EXPECT_TRUE(window->isVisible());
    services.dialogs.ExpectInput(u"Enter name of new database:"_s, u"music"_s);
    Click(u"cbNew"_s);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(session.DatabaseName, u"music"_s);
}

TEST_F(SwitchDatabaseWindow, AnotherFolderIsShown) {
    Show();
    services.dialogs.ExpectBrowseFolder(session.DataFolder, u"Database Path"_s);
    Click(u"cbSelectPath"_s);
    EXPECT_EQ(window->findChild<QLineEdit *>(u"textDatabasePath"_s)->text(), session.DataFolder);
    EXPECT_EQ(List()->model()->rowCount(), 0);
    EXPECT_FALSE(Button(u"cbOK"_s)->isEnabled());
}

TEST_F(SwitchDatabaseWindow, ExitEndsTheProgram) {
    ASSERT_TRUE(OpenCollectionDatabase(session, folder / u"series.mdb"_s));
    Show();
    Click(u"cbExit"_s);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_TRUE(session.EndProgram);
    EXPECT_FALSE(session.Database);
}

TEST_F(SwitchDatabaseWindow, AFaultyDatabaseLeavesTheWindowOpen) {
    folder.Write(u"a.mdb"_s, "no database");
    Show();
    services.dialogs.ExpectMessage({}, MessageIcon::Critical, MessageAnswer::Ok, u"Cannot open database"_s);
    Click(u"cbOK"_s);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SwitchDatabaseWindow, AClickOnAHeaderSorts) {
    Show();
    QHeaderView *header = List()->header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      {header->sectionViewportPosition(0) + 5, header->height() / 2});
    EXPECT_EQ(List()->model()->index(0, 0).data().toString(), u"series"_s);
    EXPECT_EQ(Current(), u"films"_s);
}

TEST(Mnemonics, AreDifferentLettersOfTheCaptions) {
    static constexpr struct {
        const char16_t *caption;
        const char16_t *marked;
    } kCaptions[] = {
        {u"New", u"&New"},          {u"Next page", u"Next &page"},    {u"No", u"N&o"},       {u"no pno", u"no pno"},
        {u"R&D now", u"&R&&D now"}, {u"R & Daring", u"R && &Daring"}, {u"Äpfel", u"&Äpfel"}, {u"...", u"..."},
        {u"R & x&d", u"R && &x&&d"}};
    Mnemonics keys;
    for (const auto &row : kCaptions) {
        EXPECT_EQ(keys.Mark(QString::fromUtf16(row.caption)), QString::fromUtf16(row.marked));
    }
}

} // namespace ostrand
