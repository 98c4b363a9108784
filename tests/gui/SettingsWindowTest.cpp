// The settings window: each control is there, shows its value and gives it back.
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/StartUp.h"
#include "shell/ui/frmSettings.h"
#include "support/Scripted.h"

#include <QCheckBox>
#include <QFontComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SettingsWindow : public testing::Test {
protected:
    void SetUp() override {
        PrepareStartUp(session, {});
        ASSERT_TRUE(NewCollectionDatabase(session, services.folders.dir / u"films.mdb"_s));
        ASSERT_TRUE(OpenCollectionDatabase(session, services.folders.dir / u"films.mdb"_s));
        for (const QString &type : {u"Ordered"_s, u"Wish List"_s}) {
            session.Database->Execute(
                u"INSERT INTO Profiles (ProfileID, Title, ColType) VALUES ('Key_%1', 'T', '%1')"_s.arg(type));
        }
        session.window.SettingsStored = [this] { ++stored; };
    }

    void Show() {
        window = std::make_unique<frmSettings>(session);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    template <typename T>
    T *Find(const QString &name) const {
        return window->findChild<T *>(name);
    }
    void Press(const QString &button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }

    static QString WithoutKey(QString text) { return text.remove(QRegularExpression(u"&(?!&)"_s)); }

    test::TestServices services;
    Session session{services.services};
    std::unique_ptr<frmSettings> window;
    int stored = 0;
};

} // namespace

TEST_F(SettingsWindow, HasEachControlOnceWithItsNameAndCaption) {
    Show();
    for (const SettingsEntry &entry : SettingsEntries()) {
        const auto controls = window->findChildren<QWidget *>(entry.Control());
        ASSERT_EQ(controls.size(), 1) << qPrintable(entry.Control());
        EXPECT_EQ(controls.first()->accessibleName(), entry.Caption());
        if (const auto *box = qobject_cast<QCheckBox *>(controls.first())) {
            EXPECT_EQ(WithoutKey(box->text()), entry.Caption());
        }
        if (entry.button) {
            const auto *button = Find<QPushButton>(QString::fromUtf16(entry.button));
            ASSERT_TRUE(button);
            EXPECT_FALSE(button->accessibleName().isEmpty());
        }
    }
    EXPECT_TRUE(Find<QFontComboBox>(u"comboFont"_s));
    EXPECT_EQ(Find<QTabWidget>(u"tabSettings"_s)->count(), 4);
}

TEST_F(SettingsWindow, EachControlOfAPageHasItsKey) {
    Show();
    auto *tabs = Find<QTabWidget>(u"tabSettings"_s);
    for (int page = 0; page < tabs->count(); ++page) {
        QStringList keys;
        const auto take = [&](const QString &text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            EXPECT_FALSE(key.isEmpty()) << qPrintable(text);
            EXPECT_FALSE(keys.contains(key)) << qPrintable(text);
            keys << key;
        };
        for (int i = 0; i < tabs->count(); ++i) {
            take(tabs->tabText(i));
        }
        for (const auto *box : tabs->widget(page)->findChildren<QCheckBox *>()) {
            take(box->text());
        }
        for (const auto *label : tabs->widget(page)->findChildren<QLabel *>()) {
            take(label->text());
            EXPECT_TRUE(label->buddy()) << qPrintable(label->text());
        }
    }
    QTest::keyClick(window.get(), Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(tabs->currentIndex(), 3);
}

TEST_F(SettingsWindow, EnterOnAFolderButtonChoosesTheFolder) {
    Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Find<QTabWidget>(u"tabSettings"_s)->setCurrentIndex(1);
    services.dialogs.ExpectBrowseFolder(services.folders.dir / u"covers"_s, u"Cover Path"_s);
    Find<QPushButton>(u"cbSetCoverPath"_s)->setFocus();
    QTest::keyClick(Find<QPushButton>(u"cbSetCoverPath"_s), Qt::Key_Return);
    EXPECT_TRUE(Find<QLineEdit>(u"textCoverPath"_s)->text().startsWith(services.folders.dir / u"covers"_s));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SettingsWindow, OkStoresEachControl) {
    Show();
    for (auto *box : window->findChildren<QCheckBox *>()) {
        box->toggle();
    }
    Find<QLineEdit>(u"textLoanPeriod"_s)->setText(u"21"_s);
    Find<QLineEdit>(u"textFontSize"_s)->setText(u"10.5"_s);
    Find<QFontComboBox>(u"comboFont"_s)->setEditText(u"Invented Sans"_s);
    Find<QListWidget>(u"listIncludeInOwned"_s)->item(1)->setCheckState(Qt::Checked);
    SettingsForm before;
    before.Load(session);
    Press(u"cbOK"_s);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_EQ(stored, 1);
    SettingsForm after;
    after.Load(session);
    for (const SettingsEntry &entry : SettingsEntries()) {
        if (entry.kind == SettingsEntryKind::Check) {
            EXPECT_NE(after.IsChecked(entry.Control()), before.IsChecked(entry.Control()))
                << qPrintable(entry.Control());
        }
    }
    EXPECT_EQ(session.view.LoanDue, 21);
    EXPECT_EQ(session.view.FontSize, 10.5);
    EXPECT_EQ(session.view.FontName, u"Invented Sans"_s);
    EXPECT_EQ(session.view.IncludeInOwned, u"Wish List"_s);
}

TEST_F(SettingsWindow, OkWithoutAChangeKeepsEachValue) {
    session.view.FontName = u"A Font That Nobody Has"_s;
    session.view.IncludeInOwned = u"Ordered"_s;
    const QString covers = session.CoverPath;
    Show();
    EXPECT_EQ(Find<QFontComboBox>(u"comboFont"_s)->currentText(), u"A Font That Nobody Has"_s);
    Press(u"cbOK"_s);
    EXPECT_EQ(session.view.FontName, u"A Font That Nobody Has"_s);
    EXPECT_EQ(session.view.IncludeInOwned, u"Ordered"_s);
    EXPECT_EQ(session.view.LoanDue, 7);
    EXPECT_EQ(session.view.FontSize, 8.25);
    EXPECT_EQ(session.CoverPath, covers);
    EXPECT_TRUE(session.view.HighlightHeadshots);
    EXPECT_FALSE(session.view.ShowToolbar);
}

TEST_F(SettingsWindow, CancelAndEscLeaveEverything) {
    for (const bool escape : {false, true}) {
        Show();
        Find<QCheckBox>(u"chkShowToolbar"_s)->setChecked(true);
        Find<QLineEdit>(u"textLoanPeriod"_s)->setText(u"21"_s);
        if (escape) {
            QTest::keyClick(window.get(), Qt::Key_Escape);
        } else {
            Press(u"cbCancel"_s);
        }
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(window->result(), QDialog::Rejected);
        EXPECT_FALSE(session.view.ShowToolbar);
        EXPECT_EQ(session.view.LoanDue, 7);
        EXPECT_EQ(stored, 0);
    }
}

TEST_F(SettingsWindow, EnterIsOkAndExecTellsSo) {
    frmSettings dialog(session);
    QTimer::singleShot(0, &dialog, [&] {
        dialog.findChild<QLineEdit *>(u"textLoanPeriod"_s)->setText(u"9"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(session.view.LoanDue, 9);
}

TEST_F(SettingsWindow, TheFolderButtonsFillTheirFields) {
    Show();
    const QString folder = services.folders.dir / u"pictures"_s;
    services.dialogs.ExpectBrowseFolder(folder, u"Headshot Folder"_s);
    Press(u"cbSetHeadshotPath"_s);
    services.dialogs.ExpectBrowseFolder({}, u"Cover Path"_s);
    Find<QTabWidget>(u"tabSettings"_s)->setCurrentIndex(1);
    Find<QPushButton>(u"cbSetCoverPath"_s)->click();
    EXPECT_EQ(services.dialogs.Pending(), 0U);
    EXPECT_TRUE(Find<QLineEdit>(u"textHeadshotFolder"_s)->text().startsWith(folder));
    EXPECT_EQ(Find<QLineEdit>(u"textCoverPath"_s)->text(), session.CoverPath);
}

TEST_F(SettingsWindow, AFaultLeavesTheWindowOpen) {
    Show();
    session.Database->Execute(u"DROP TABLE DbInfo");
    services.dialogs.ExpectMessage({}, MessageIcon::Critical, MessageAnswer::Ok, u"Settings"_s);
    Press(u"cbOK"_s);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(SettingsWindow, TextsAreTranslated) {
    session.UseUserDefinedStrings = true;
    session.Database->Execute(
        u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Show Toolbar', 'Leiste & Knöpfe')");
    Show();
    EXPECT_EQ(Find<QCheckBox>(u"chkShowToolbar"_s)->text(), u"&Leiste && Knöpfe"_s);
    EXPECT_EQ(Find<QCheckBox>(u"chkShowToolbar"_s)->accessibleName(), u"Leiste & Knöpfe"_s);
}

TEST_F(SettingsWindow, NumbersRefuseWhatIsNoNumber) {
    Show();
    const struct {
        QString control, typed, shown;
    } cases[] = {
        {u"textLoanPeriod"_s, u"1x2-,4"_s, u"124"_s},
        {u"textFontSize"_s, u"a9x.2,5"_s, u"9.25"_s},
        {u"textFontSize"_s, u"10,5 pt"_s, u"10,5"_s},
    };
    for (const auto &c : cases) {
        auto *edit = Find<QLineEdit>(c.control);
        edit->clear();
        QTest::keyClicks(edit, c.typed);
        EXPECT_EQ(edit->text(), c.shown) << qPrintable(c.typed);
    }
}

TEST_F(SettingsWindow, CtrlTabTurnsThePages) {
    Show();
    auto *tabs = Find<QTabWidget>(u"tabSettings"_s);
    const int count = tabs->count();
    for (const auto &[from, widget] : {std::pair(0, static_cast<QWidget *>(Find<QPushButton>(u"cbOK"_s))),
                                       std::pair(count - 1, static_cast<QWidget *>(tabs->tabBar()))}) {
        tabs->setCurrentIndex(from);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), (from + 1) % count);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(tabs->currentIndex(), from);
    }
}

TEST_F(SettingsWindow, ComesUpWithEachPageWhole) {
    Show();
    auto *tabs = Find<QTabWidget>(u"tabSettings"_s);
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QCoreApplication::processEvents();
        const auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
        ASSERT_TRUE(area);
        EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << i;
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << i;
    }
}

TEST_F(SettingsWindow, FitsASmallScreenAtTwiceTheScale) {
    Show();
    EXPECT_LE(window->minimumSizeHint().width(), 683);
    EXPECT_LE(window->minimumSizeHint().height(), 384);
    EXPECT_LE(window->height(), 720);
    // Each control can be reached by scrolling down alone.
    auto *tabs = Find<QTabWidget>(u"tabSettings"_s);
    for (int i = 0; i < tabs->count(); ++i) {
        const auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
        ASSERT_TRUE(area);
        EXPECT_LE(area->widget()->minimumSizeHint().width(), 640) << i;
    }
}

} // namespace ostrand
