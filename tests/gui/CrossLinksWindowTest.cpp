// The window of cross-links: filled, used with mouse and keys.
#include "FindControl.h"
#include "HeadshotFolders.h"

#include "people/CrossLinks.h"
#include "people/ui/frmCrossLinks.h"
#include "support/FailingStatements.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

class CrossLinksWindow : public test::HeadshotWindowTest {
protected:
    void SetUp() override {
        HeadshotWindowTest::SetUp();
        LinkAlias(session, u"Ann"_s, u"Anny"_s, 0, true, {});
        LinkAlias(session, u"Ann"_s, u"Annette"_s, 0, true, {});
        LinkAlias(session, u"Zoe"_s, u"Zo"_s, 1950, true, {});
        Open();
    }
    void Open() {
        window.reset();
        window = std::make_unique<frmCrossLinks>(session);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        names = FindControl<QTreeView>(*window, "listCommonNames");
        aliases = FindControl<QListView>(*window, "listAlias");
    }
    QPushButton *Button(const char *name) { return FindControl<QPushButton>(*window, name); }
    void Click(const char *name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    QString Label() { return FindControl<QLabel>(*window, "labelAliasNames")->text(); }
    QString Current() { return names->currentIndex().siblingAtColumn(0).data().toString(); }
    int Links() { return session.Database->RecordCount(u"Alias"); }

    std::unique_ptr<frmCrossLinks> window;
    QTreeView *names = nullptr;
    QListView *aliases = nullptr;
};

TEST_F(CrossLinksWindow, HasItsControls) {
    EXPECT_EQ(window->windowTitle(), u"Edit Cross-Links"_s);
    const std::pair<const char *, const char16_t *> buttons[] = {{"cbAddCommonName", u"Add 'Common Name'"},
                                                                 {"cbAddAlias", u"Add Alias"},
                                                                 {"cbRemoveAlias", u"Remove Alias"},
                                                                 {"cbSetAsCommon", u"Set Alias as Common Name"},
                                                                 {"cbChangeYear", u"Change BirthYear"},
                                                                 {"cbClearAlias", u"Delete All Entries"},
                                                                 {"cbAdjustAwardData", u"Adjust names in awards data"},
                                                                 {"cbExit", u"Exit"}};
    for (const auto &[name, text] : buttons) {
        EXPECT_EQ(Button(name)->text().remove(u'&'), QString::fromUtf16(text));
        EXPECT_EQ(Button(name)->accessibleName(), QString::fromUtf16(text));
        EXPECT_FALSE(Button(name)->toolTip().isEmpty());
        EXPECT_TRUE(Button(name)->text().contains(u'&')) << name;
    }
    EXPECT_FALSE(names->accessibleName().isEmpty());
    EXPECT_FALSE(aliases->accessibleName().isEmpty());
    EXPECT_NEAR(names->columnWidth(0), names->viewport()->width() * 0.7, 1.0);
    EXPECT_NEAR(names->columnWidth(1), names->viewport()->width() * 0.25, 1.0);
}

TEST_F(CrossLinksWindow, KeysAndClicksShowTheAliases) {
    EXPECT_EQ(Label(), u"Alias Names for Ann (0)"_s);
    EXPECT_EQ(aliases->model()->rowCount(), 2);
    QTest::keyClick(names, Qt::Key_Down);
    EXPECT_EQ(Label(), u"Alias Names for Zoe (1950)"_s);
    EXPECT_EQ(aliases->model()->rowCount(), 1);
    QTest::keyClick(names, Qt::Key_Home);
    EXPECT_EQ(Label(), u"Alias Names for Ann (0)"_s);
    QTest::mouseClick(names->viewport(), Qt::LeftButton, {}, names->visualRect(names->model()->index(1, 0)).center());
    EXPECT_EQ(Label(), u"Alias Names for Zoe (1950)"_s);
}

TEST_F(CrossLinksWindow, SortingKeepsTheSelection) {
    names->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(Current(), u"Ann"_s);
    EXPECT_EQ(names->currentIndex().row(), 1);
    EXPECT_EQ(Label(), u"Alias Names for Ann (0)"_s);
    services.dialogs.ExpectInput(u"Enter a new alias for Ann:"_s, std::nullopt);
    Click("cbAddAlias");
}

TEST_F(CrossLinksWindow, ButtonsFollowTheSelection) {
    EXPECT_TRUE(Button("cbAddAlias")->isEnabled());
    EXPECT_FALSE(Button("cbRemoveAlias")->isEnabled());
    aliases->setCurrentIndex(aliases->model()->index(0, 0));
    EXPECT_TRUE(Button("cbRemoveAlias")->isEnabled());
    EXPECT_TRUE(Button("cbSetAsCommon")->isEnabled());
    QTest::keyClick(names, Qt::Key_Down);
    EXPECT_FALSE(Button("cbSetAsCommon")->isEnabled());
    session.Database->Execute(u"DELETE FROM Alias");
    Open();
    EXPECT_EQ(Label(), u"Alias Names for"_s);
    EXPECT_FALSE(Button("cbAddAlias")->isEnabled());
    EXPECT_TRUE(Button("cbAddCommonName")->isEnabled());
}

TEST_F(CrossLinksWindow, NamesAndAliasesAreAdded) {
    services.dialogs.ExpectInput(u"Enter a new Common Name"_s, u"Bo"_s);
    services.dialogs.ExpectInput(u"Enter BirthYear or leave '0':"_s, u"1960"_s);
    Click("cbAddCommonName");
    EXPECT_EQ(Current(), u"Bo"_s);
    services.dialogs.ExpectInput(u"Enter a new alias for Bo:"_s, u"Bob"_s);
    Button("cbAddAlias")->setFocus();
    QTest::keyClick(Button("cbAddAlias"), Qt::Key_Return);
    EXPECT_EQ(aliases->model()->index(0, 0).data(), u"Bob"_s);
    EXPECT_EQ(GetCommonName(session, u"Bob"_s, 1960), u"Bo"_s);
}

TEST_F(CrossLinksWindow, DeleteRemovesWhatHasTheFocus) {
    aliases->setCurrentIndex(aliases->model()->index(0, 0));
    aliases->setFocus();
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes, u"Remove Alias?"_s);
    QTest::keyClick(aliases, Qt::Key_Delete);
    EXPECT_EQ(Links(), 2);
    names->setFocus();
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes, u"Remove Common Name"_s);
    QTest::keyClick(names, Qt::Key_Delete);
    EXPECT_EQ(Links(), 1);
    EXPECT_EQ(Current(), u"Zoe"_s);
    EXPECT_EQ(Label(), u"Alias Names for Zoe (1950)"_s);
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes, u"Remove Common Name"_s);
    QTest::keyClick(names, Qt::Key_Delete);
    EXPECT_EQ(Links(), 0);
    QTest::keyClick(names, Qt::Key_Delete);
    EXPECT_EQ(Label(), u"Alias Names for"_s);
}

TEST_F(CrossLinksWindow, AnAliasBecomesTheCommonName) {
    aliases->setCurrentIndex(aliases->model()->index(0, 0));
    const QString alias = aliases->currentIndex().data().toString();
    Click("cbSetAsCommon");
    EXPECT_EQ(Current(), alias);
    EXPECT_EQ(GetCommonName(session, u"Ann"_s, 0), alias);
}

TEST_F(CrossLinksWindow, AYearChangesAndAllEntriesGo) {
    services.dialogs.ExpectInput(u"Enter new BirthYear:"_s, u"1970"_s);
    Click("cbChangeYear");
    EXPECT_EQ(Label(), u"Alias Names for Ann (1970)"_s);
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes, u"Delete all entries"_s);
    Click("cbClearAlias");
    EXPECT_EQ(names->model()->rowCount(), 0);
    EXPECT_EQ(Links(), 0);
}

TEST_F(CrossLinksWindow, AFaultIsToldWhereverTheUserActs) {
    const auto expect_fault = [this] { services.dialogs.ExpectMessage(u"The disk is full."_s, MessageIcon::Critical); };
    test::FailFrom(*session.Database, u"SELECT"_s);
    expect_fault();
    QTest::keyClick(names, Qt::Key_Down);
    expect_fault();
    Click("cbAdjustAwardData");
    test::FailFrom(*session.Database, u"DELETE"_s);
    names->setFocus();
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes, u"Remove Common Name"_s);
    expect_fault();
    QTest::keyClick(names, Qt::Key_Delete);
    session.Database->SetObserver({});
    EXPECT_EQ(Links(), 3);
}

TEST_F(CrossLinksWindow, AwardDataIsAdjusted) {
    session.Database->Execute(
        u"INSERT INTO Awards (Award, Year, MovieTitle, Nominee) VALUES ('Prize', 2001, 'Dust', 'Anny')");
    services.dialogs.ExpectMessage(u"Adjusted 1 Nominee entries"_s);
    Click("cbAdjustAwardData");
}

TEST_F(CrossLinksWindow, CtrlCCopiesRows) {
    QTest::keyClick(names, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"Ann\t0\n"_s);
    aliases->setFocus();
    QTest::keyClick(aliases, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text().split(u'\n').size(), 3) << "all, since none is selected";
}

TEST_F(CrossLinksWindow, AllIsReachedWithTheKeyboard) {
    aliases->setCurrentIndex(aliases->model()->index(0, 0));
    QStringList reached;
    for (int i = 0; i < 40 && !reached.contains(window->focusWidget()->objectName()); ++i) {
        reached += window->focusWidget()->objectName();
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached.join(u' ').toStdString(),
              "listCommonNames listAlias cbAddCommonName cbAddAlias cbRemoveAlias cbSetAsCommon cbChangeYear "
              "cbAdjustAwardData cbClearAlias cbExit");
}

TEST_F(CrossLinksWindow, TheMenusOfTheListsCopyAndRemove) {
    const auto entry = [](QWidget *list, const char *name) {
        EXPECT_EQ(list->contextMenuPolicy(), Qt::ActionsContextMenu);
        return FindControl<QAction>(*list, name);
    };
    EXPECT_EQ(entry(names, "mDelete")->text(), u"Remove Common Name"_s);
    EXPECT_EQ(entry(aliases, "mDelete")->text(), u"Remove Alias"_s);
    entry(names, "mCopyToClipboard")->trigger();
    EXPECT_EQ(services.clipboard.Text(), u"Ann\t0\n"_s);
    services.dialogs.ExpectMessage({}, MessageAnswer::No, u"Remove Common Name"_s);
    entry(names, "mDelete")->trigger();
    EXPECT_EQ(Links(), 3);
}

TEST_F(CrossLinksWindow, KeepsItsPlaceAndCloses) {
    window->resize(900, 700);
    Click("cbExit");
    EXPECT_FALSE(window->isVisible());
    Open();
    EXPECT_EQ(window->size(), QSize(900, 700));
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(CrossLinksWindow, EnterInAListPressesNoButton) {
    QTest::keyClick(names, Qt::Key_Return);
    QTest::keyClick(aliases, Qt::Key_Enter);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Links(), 3);
}

} // namespace
} // namespace ostrand
