#include "MainWindowFixture.h"

#include "browser/ui/FindEdit.h"

#include <QLabel>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FindBoxWindow : public test::MainWindowTest {
protected:
    void StartAndFind() {
        Start();
        box = Control<FindEdit>("textFind");
        all = Titles();
        box->setFocus();
    }
    /// Types, and lets the window do what it does while nothing else happens.
    void Type(const QString &text) {
        QTest::keyClicks(box, text);
        Settle();
    }
    void Settle() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !browser.find.IsPartial(); }));
        QCoreApplication::processEvents();
    }
    /// A title that stands alone in the list, and its row.
    QString SomeTitle() const { return all[all.size() / 2].trimmed(); }

    FindEdit *box = nullptr;
    QStringList all;
};

TEST_F(FindBoxWindow, NarrowsTheListAsOneTypes) {
    StartAndFind();
    EXPECT_EQ(box->accessibleName(), u"Find"_s);
    EXPECT_EQ(box->placeholderText(), u"Find title or person"_s);
    EXPECT_TRUE(box->toolTip().endsWith(u"(F3)"_s));
    EXPECT_TRUE(box->isClearButtonEnabled());
    const QString before = Selected();
    Type(SomeTitle().toUpper());
    EXPECT_LT(Titles().size(), all.size());
    EXPECT_GE(RowOf(SomeTitle()), 0);
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->text(), u"Filtered: %1"_s.arg(Titles().size()));
    box->findChild<QToolButton *>()->click(); // the button that clears
    Settle();
    EXPECT_EQ(Titles(), all);
    EXPECT_EQ(Selected(), before);
}

TEST_F(FindBoxWindow, DownAndEnterGoIntoTheList) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) {
        if (!main) {
            StartAndFind();
        }
        box->clear();
        ClickRow(0);
        box->setFocus();
        Type(SomeTitle());
        const int rows = int(Titles().size());
        ASSERT_GT(rows, 0);
        QTest::keyClick(box, key);
        EXPECT_TRUE(List()->hasFocus());
        EXPECT_GE(List()->currentIndex().row(), 0);
        EXPECT_EQ(int(Titles().size()), rows);
        EXPECT_EQ(browser.listSeries.At(List()->currentIndex().row()).key, session.CurrentProfileID);
        EXPECT_TRUE(List()->selectionModel()->isSelected(List()->currentIndex()));
    }
}

TEST_F(FindBoxWindow, NothingIsThereToGoInto) {
    StartAndFind();
    Type(u"no such thing at all"_s);
    EXPECT_TRUE(Titles().isEmpty());
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(FindBoxWindow, EscapeGoesBackToTheWholeList) {
    StartAndFind();
    const QString before = Selected();
    Type(u"zzz"_s);
    EXPECT_TRUE(Titles().isEmpty());
    QTest::keyClick(box, Qt::Key_Escape);
    Settle();
    EXPECT_EQ(box->text(), QString());
    EXPECT_EQ(Titles(), all);
    EXPECT_EQ(Selected(), before);
    EXPECT_TRUE(List()->hasFocus());
}

TEST_F(FindBoxWindow, TabLeadsToATitleThatIsSelected) {
    StartAndFind();
    ClickRow(0);
    box->setFocus();
    Type(SomeTitle());
    ASSERT_LT(browser.current_row, 0) << "the first title is hidden";
    QTest::keyClick(box, Qt::Key_Tab);
    ASSERT_TRUE(List()->hasFocus());
    EXPECT_EQ(List()->selectionModel()->selectedRows().value(0).row(), 0);
    EXPECT_EQ(browser.listSeries.At(0).key, session.CurrentProfileID);
}

TEST_F(FindBoxWindow, EscapeInTheListShowsItWholeAroundTheTitle) {
    StartAndFind();
    Type(SomeTitle());
    QTest::keyClick(box, Qt::Key_Down);
    const QString found = Selected();
    QTest::keyClick(List(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(box->text(), QString());
    EXPECT_EQ(Titles(), all);
    EXPECT_EQ(Selected(), found);
    EXPECT_TRUE(List()->hasFocus());
}

TEST_F(FindBoxWindow, TheKeyLeadsThereAndSelectsTheText) {
    StartAndFind();
    Type(u"the"_s);
    List()->setFocus();
    QTest::keyClick(main.get(), Qt::Key_F3);
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(box->selectedText(), u"the"_s);
    for (const QAction *action : main->findChildren<QAction *>()) {
        EXPECT_FALSE(action->shortcuts().contains(FindEdit::Shortcut())) << qPrintable(action->objectName());
    }
}

TEST_F(FindBoxWindow, TheTextStaysWithATabAndGoesForATitleElsewhere) {
    StartAndFind();
    Type(u"the"_s);
    const auto narrowed = Titles();
    auto *tabs = Control<QTabBar>("tabColList");
    const int tab = tabs->currentIndex();
    tabs->setCurrentIndex(tab == 0 ? 1 : 0);
    tabs->setCurrentIndex(tab);
    Settle();
    EXPECT_EQ(box->text(), u"the"_s);
    EXPECT_EQ(Titles(), narrowed);
    browser.find.Clear();
    EXPECT_EQ(box->text(), QString());
    EXPECT_EQ(Titles(), all);
}

TEST_F(FindBoxWindow, FollowsTheDatabaseByItself) {
    StartAndFind();
    Type(u"nora newcomer"_s);
    EXPECT_TRUE(Titles().isEmpty());
    const sql::Recordset first = session.Database->OpenRecordset(u"SELECT ProfileID FROM Profiles ORDER BY ProfileID");
    session.Database->Execute(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast) VALUES ('%1', 'Nora "
                              u"Newcomer', 'R', 900, True)"_s.arg(first.Text(0)));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Titles().isEmpty(); }));
}

} // namespace
} // namespace ostrand
