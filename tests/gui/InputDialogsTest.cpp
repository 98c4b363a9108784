#include "FindControl.h"
#include "queries/ui/frmSQLUserInput.h"
#include "shell/ui/WindowDialogs.h"
#include "shell/ui/frmBrowseFolder.h"
#include "support/Scripted.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

/// Acts on the modal window as soon as it is up.
template <typename T>
void WithModal(std::function<void(T &)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto *window = qobject_cast<T *>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        act(*window);
    });
}

TEST(InputDialogTest, TextIsTakenByOk) {
    WindowDialogs dialogs;
    WithModal<frmSQLUserInput>([](frmSQLUserInput &window) {
        EXPECT_EQ(window.windowTitle(), u"Query Name"_s);
        EXPECT_EQ(FindControl<QLabel>(window, "labelMessage")->text(), u"Enter a name:"_s);
        auto *text = FindControl<QLineEdit>(window, "textInput");
        EXPECT_TRUE(text->isVisible());
        EXPECT_FALSE(FindControl<QComboBox>(window, "comboVarValues")->isVisible());
        EXPECT_EQ(text->text(), u"old"_s);
        EXPECT_EQ(text->font().family(), u"Arial"_s);
        EXPECT_EQ(window.focusWidget(), text);
        QTest::keyClicks(text, u"new"_s); // the preset is selected
        FindControl<QPushButton>(window, "cbOK")->click();
    });
    EXPECT_EQ(dialogs.InputText(u"Enter a name:"_s, u"Query Name"_s, u"old"_s), u"new"_s);
}

TEST(InputDialogTest, NothingComesOfCancelAndEsc) {
    WindowDialogs dialogs;
    WithModal<frmSQLUserInput>([](frmSQLUserInput &w) { FindControl<QPushButton>(w, "cbCancel")->click(); });
    EXPECT_EQ(dialogs.InputText(u"?"_s, {}, u"old"_s), std::nullopt);
    WithModal<frmSQLUserInput>([](frmSQLUserInput &w) { QTest::keyClick(&w, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.InputCombo(u"?"_s, {}, {u"a"_s}, u"old"_s), std::nullopt);
    WithModal<frmSQLUserInput>([](frmSQLUserInput &w) { w.close(); });
    EXPECT_EQ(dialogs.InputText(u"?"_s, {}, u"old"_s), std::nullopt);
}

TEST(InputDialogTest, AnEmptyAnswerIsAnAnswer) {
    WindowDialogs dialogs;
    WithModal<frmSQLUserInput>([](frmSQLUserInput &w) { FindControl<QPushButton>(w, "cbOK")->click(); });
    EXPECT_EQ(dialogs.InputText(u"?"_s, {}, {}), QString());
}

TEST(InputDialogTest, AListOffersItsValuesAndTakesFreeText) {
    WindowDialogs dialogs;
    const auto combo_of = [](frmSQLUserInput &window) { return FindControl<QComboBox>(window, "comboVarValues"); };
    WithModal<frmSQLUserInput>([&](frmSQLUserInput &window) {
        QComboBox *combo = combo_of(window);
        EXPECT_TRUE(combo->isVisible());
        EXPECT_FALSE(FindControl<QLineEdit>(window, "textInput")->isVisible());
        EXPECT_EQ(combo->count(), 2);
        EXPECT_EQ(combo->currentText(), u"preset"_s);
        combo->setCurrentIndex(1);
        QTest::keyClick(combo, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.InputCombo(u"?"_s, {}, {u"Ann"_s, u"Zoe"_s}, u"preset"_s), u"Zoe"_s);
    WithModal<frmSQLUserInput>([&](frmSQLUserInput &window) {
        combo_of(window)->lineEdit()->clear();
        QTest::keyClicks(combo_of(window), u"An"_s);
        FindControl<QPushButton>(window, "cbOK")->click();
    });
    EXPECT_EQ(dialogs.InputCombo(u"?"_s, {}, {u"Ann"_s, u"Zoe"_s}, {}), u"An"_s);
}

TEST(InputDialogTest, EnterTakesWhatIsWrittenThoughTheListIsOpen) {
    const struct {
        const char *name;
        QList<Qt::Key> keys;
        bool taken;
        QString text;
    } cases[] = {
        {"free text", {Qt::Key_Return}, true, u"As"_s},
        {"on the numbers' side of the keyboard", {Qt::Key_Enter}, true, u"As"_s},
        {"a value of the list is chosen first", {Qt::Key_Down, Qt::Key_Return}, false, u"Ash"_s},
        {"and taken then", {Qt::Key_Down, Qt::Key_Return, Qt::Key_Return}, true, u"Ash"_s},
    };
    for (const auto &c : cases) {
        frmSQLUserInput dialog({}, u"Value"_s, {});
        dialog.SetValues({u"Ash"_s, u"Birch"_s});
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        auto *combo = FindControl<QComboBox>(dialog, "comboVarValues");
        QTest::keyClicks(combo->lineEdit(), u"As"_s);
        QAbstractItemView *list = combo->completer()->popup();
        ASSERT_TRUE(list->isVisible()) << c.name;
        for (const Qt::Key key : c.keys) {
            QTest::keyClick(list->isVisible() ? static_cast<QWidget *>(list) : combo->lineEdit(), key);
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(!dialog.isVisible(), c.taken) << c.name;
        EXPECT_EQ(combo->currentText(), c.text) << c.name;
        EXPECT_EQ(dialog.OutputString(), c.taken ? std::optional(c.text) : std::nullopt) << c.name;
    }
}

TEST(InputDialogTest, AnEmptyListIsAListToo) {
    WindowDialogs dialogs;
    WithModal<frmSQLUserInput>([](frmSQLUserInput &window) {
        EXPECT_FALSE(FindControl<QLineEdit>(window, "textInput")->isVisible());
        auto *combo = FindControl<QComboBox>(window, "comboVarValues");
        EXPECT_TRUE(combo->isVisible());
        EXPECT_EQ(combo->count(), 0);
        EXPECT_TRUE(window.focusWidget() == combo || window.focusWidget() == combo->lineEdit());
        QTest::keyClick(&window, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.InputCombo(u"?"_s, {}, {}, u"p"_s), u"p"_s);
}

TEST(InputDialogTest, NumbersRefuseWhatIsNoDigit) {
    frmSQLUserInput window({}, u"Year"_s, {});
    window.SetNumeric(true);
    EXPECT_TRUE(window.property("IsNumeric").toBool());
    auto *text = FindControl<QLineEdit>(window, "textInput");
    QTest::keyClicks(text, u"1a9 -8.x4"_s);
    EXPECT_EQ(window.InputString(), u"19 84"_s);
    EXPECT_EQ(window.OutputString(), std::nullopt);
    window.accept();
    EXPECT_EQ(window.OutputString(), u"19 84"_s);
}

TEST(InputDialogTest, ItsButtonsAreTranslated) {
    frmSQLUserInput window([](const QString &text) { return text.toUpper(); }, u"?"_s, {});
    EXPECT_EQ(FindControl<QPushButton>(window, "cbCancel")->text(), u"CANCEL"_s);
}

class BrowseFolderTest : public ::testing::Test {
protected:
    void SetUp() override {
        QDir(dir.Path()).mkpath(u"films/covers"_s);
        window.setProperty("CurrentFolder", dir / u"films/covers"_s);
    }
    void Press(const char *button) { FindControl<QPushButton>(window, button)->click(); }

    test::TempDir dir;
    test::ScriptedDialogs dialogs;
    frmBrowseFolder window{dialogs, {}, u"Cover folder"_s, {{dir.Path(), u"Films (F:)"_s}, {u"/"_s, u"Root (/)"_s}}};
};

TEST_F(BrowseFolderTest, ShowsTheCurrentFolder) {
    window.show();
    EXPECT_EQ(window.windowTitle(), u"Cover folder"_s);
    EXPECT_EQ(window.CurrentFolder(), dir / u"films/covers"_s);
    auto *tree = FindControl<QTreeView>(window, "treeFolders");
    EXPECT_TRUE(tree->isExpanded(tree->currentIndex().parent()));
    Press("cbOK");
    EXPECT_EQ(window.result(), int(QDialog::Accepted));
}

TEST_F(BrowseFolderTest, ANewFolderBecomesTheCurrentOne) {
    dialogs.ExpectInput(u"Enter new folder name:"_s, u"big"_s, u"New Folder"_s);
    Press("cbNewFolder");
    EXPECT_EQ(window.CurrentFolder(), dir / u"films/covers/big"_s);
}

TEST_F(BrowseFolderTest, ABadFolderIsToldAndTheWindowStays) {
    window.show();
    QDir(dir.Path()).rmdir(u"films/covers"_s);
    dialogs.ExpectMessage(u"Selected folder is read-only. Please select another folder."_s, MessageIcon::Warning);
    Press("cbOK");
    EXPECT_TRUE(window.isVisible());
#ifdef Q_OS_UNIX
    window.SetCurrentFolder(u"/usr"_s);
    dialogs.ExpectMessage(u"Selected folder is a system folder. Please select another folder."_s);
    Press("cbOK");
    EXPECT_TRUE(window.isVisible());
#endif
}

TEST_F(BrowseFolderTest, EscClosesItWithoutAChoice) {
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.result(), int(QDialog::Rejected));
}

TEST(BrowseFolderDialog, GivesTheFolderOrNothing) {
    WindowDialogs dialogs;
    const test::TempDir dir;
    WithModal<frmBrowseFolder>([](frmBrowseFolder &window) { window.accept(); });
    EXPECT_EQ(dialogs.BrowseFolder(u"Any"_s, dir.Path() + u'/'), dir.Path());
    WithModal<frmBrowseFolder>([](frmBrowseFolder &window) { window.reject(); });
    EXPECT_EQ(dialogs.BrowseFolder(u"Any"_s, dir.Path()), QString());
}

TEST(BrowseFolderDialog, WithoutASelectionThereIsNoOk) {
    test::ScriptedDialogs dialogs;
    const frmBrowseFolder window(dialogs, {}, {}, {{u"/"_s, u"Root (/)"_s}});
    EXPECT_FALSE(FindControl<QPushButton>(window, "cbOK")->isEnabled());
    EXPECT_FALSE(FindControl<QPushButton>(window, "cbNewFolder")->isEnabled());
    EXPECT_EQ(window.CurrentFolder(), QString());
}

} // namespace
} // namespace ostrand
