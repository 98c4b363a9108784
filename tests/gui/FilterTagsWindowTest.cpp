#include "MainWindowFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/ui/frmFilterTags.h"
#include "browser/ui/frmProfile.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <QTreeView>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

const auto kEntry = u"Filter Profiles by Tags"_s;

class FilterTagsWindow : public MainWindowTest {
protected:
    /// Starts on the sample collection with no tags but these: two of the first title, one of them of the second too.
    void SetUp() override {
        MainWindowTest::SetUp();
        Start({u"DELETE FROM Tags"_s});
        const QStringList ids = Ids();
        for (const auto &[title, tag] :
             {std::pair(0, u"Mood/Dark"_s), std::pair(0, u"Shelf"_s), std::pair(1, u"Mood/Dark"_s)}) {
            AddTag(ids[title], tag);
        }
        first = TitleOf(ids[0]);
        second = TitleOf(ids[1]);
    }
    QStringList Ids() {
        QStringList ids;
        sql::Recordset rows = session.Database->OpenRecordset(
            u"SELECT ProfileID FROM Profiles WHERE ColType = 'Owned' ORDER BY SortTitle");
        for (; !rows.Eof(); rows.MoveNext()) {
            ids << rows.Text(0);
        }
        return ids;
    }
    QString TitleOf(const QString &id) {
        return session.Database
            ->OpenRecordset(u"SELECT Title FROM Profiles WHERE ProfileID = '"_s + EscapeSql(id) + u'\'')
            .Text(u"Title");
    }
    void AddTag(const QString &id, const QString &tag) {
        session.Database->Execute(u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('"_s +
                                  EscapeSql(id) + u"', '"_s + tag + u"', '"_s + tag + u"')"_s);
    }
    /// Chooses the entry of comboFilter.
    void Open() {
        auto *filter = Control<QComboBox>("comboFilter");
        filter->setCurrentText(kEntry);
        Q_EMIT filter->textActivated(kEntry);
        window = main->findChild<frmFilterTags *>();
        ASSERT_TRUE(window);
        tree = window->findChild<QTreeView *>(u"treeTags"_s);
        ASSERT_TRUE(tree);
    }
    template <typename T = QAbstractButton>
    T *Button(const char *name) {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    QModelIndex Node(const QString &tag) {
        const auto found = tree->model()->match(tree->model()->index(0, 0), TagTree::TagRole, tag, 1,
                                                Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.front();
    }
    /// As a user does it, by the keyboard.
    void ToggleCheck(const QString &tag) {
        ASSERT_TRUE(Node(tag).isValid()) << qPrintable(tag);
        tree->setCurrentIndex(Node(tag));
        QTest::keyClick(tree, Qt::Key_Space);
    }
    QStringList Checked() {
        QStringList tags;
        for (const QModelIndex &node :
             tree->model()->match(tree->model()->index(0, 0), Qt::CheckStateRole, int(Qt::Checked), -1,
                                  Qt::MatchExactly | Qt::MatchRecursive)) {
            tags << node.data(TagTree::TagRole).toString();
        }
        return tags;
    }
    static void DeleteClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    frmFilterTags *window = nullptr;
    QTreeView *tree = nullptr;
    QString first;
    QString second;
};

TEST_F(FilterTagsWindow, OpensBesideTheMainWindowAndOnce) {
    Open();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->windowTitle(), kEntry);
    EXPECT_EQ(Titles().size(), 60) << "it filters nothing yet";
    EXPECT_TRUE(Button("opOR")->isChecked());
    EXPECT_FALSE(Button("opAND")->isChecked());
    EXPECT_FALSE(Button("checkNOT")->isChecked());
    EXPECT_TRUE(tree->isExpanded(Node(u"Mood"_s)));
    EXPECT_FALSE(Button<QLabel>("labelNoTags")->isVisible());
    const QAbstractItemModelTester tester(tree->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    ToggleCheck(u"Shelf"_s);
    Open();
    EXPECT_EQ(main->findChildren<frmFilterTags *>().size(), 1);
    EXPECT_EQ(Checked(), QStringList{u"Shelf"_s}) << "the open one comes to the front as it is";
}

TEST_F(FilterTagsWindow, ChecksAndOperatorsListTheTitlesAnew) {
    Open();
    ToggleCheck(u"Mood/Dark"_s);
    EXPECT_EQ(Titles(), (QStringList{first, second}));
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->text(), u"Filtered: 2"_s);
    EXPECT_EQ(Selected(), first);
    ToggleCheck(u"Shelf"_s);
    EXPECT_EQ(Titles(), (QStringList{first, second}));
    QTest::mouseClick(Button("opAND"), Qt::LeftButton, {}, QPoint(8, Button("opAND")->height() / 2));
    EXPECT_EQ(Titles(), QStringList{first});
    QTest::mouseClick(Button("checkNOT"), Qt::LeftButton, {}, QPoint(8, Button("checkNOT")->height() / 2));
    EXPECT_EQ(Titles().size(), 58) << "neither of the tags";
    EXPECT_FALSE(Titles().contains(first));
    EXPECT_FALSE(Titles().contains(second));
    Button("checkNOT")->click();
    EXPECT_EQ(Titles(), QStringList{first});
    Button("opOR")->click();
    EXPECT_EQ(Titles().size(), 2);
    ToggleCheck(u"Mood/Dark"_s);
    ToggleCheck(u"Shelf"_s);
    EXPECT_EQ(Titles().size(), 60) << "no tag is checked any more";
}

TEST_F(FilterTagsWindow, AMouseClickOnABoxChecksIt) {
    Open();
    const QRect row = tree->visualRect(Node(u"Shelf"_s));
    QStyleOptionViewItem option;
    option.initFrom(tree);
    option.rect = row;
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.viewItemPosition = QStyleOptionViewItem::OnlyOne;
    const QPoint box = tree->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, tree).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, box);
    EXPECT_EQ(Checked(), QStringList{u"Shelf"_s});
    EXPECT_EQ(Titles(), QStringList{first});
}

TEST_F(FilterTagsWindow, OneNodeAloneFiltersOnDemand) {
    Open();
    ToggleCheck(u"Shelf"_s);
    ASSERT_EQ(Titles().size(), 1);
    window->UpdateCollectionList(Node(u"Mood/Dark"_s), true);
    EXPECT_EQ(Titles(), (QStringList{first, second}));
    window->UpdateCollectionList(Node(u"Mood/Dark"_s), false);
    EXPECT_EQ(Titles(), QStringList{first});
}

TEST_F(FilterTagsWindow, ATabEndsTheFilterUntilTheNextCheck) {
    Open();
    ToggleCheck(u"Shelf"_s);
    ASSERT_EQ(Titles().size(), 1);
    auto *tabs = Control<QTabBar>("tabColList");
    tabs->setCurrentIndex(int(browser.tabColList.indexOf(u"Ordered"_s)));
    const int ordered =
        session.Database->OpenRecordset(u"SELECT ProfileID FROM Profiles WHERE ColType = 'Ordered'").RecordCount();
    EXPECT_EQ(Titles().size(), ordered);
    EXPECT_EQ(Control<QComboBox>("comboFilter")->currentText(), kEntry) << "still displayed";
    EXPECT_EQ(Checked(), QStringList{u"Shelf"_s});
    Button("opAND")->click();
    EXPECT_EQ(Titles(), QStringList()) << "of this tab";
    tabs->setCurrentIndex(int(browser.tabColList.indexOf(u"Owned"_s)));
    Button("opOR")->click();
    EXPECT_EQ(Titles(), QStringList{first});
}

TEST_F(FilterTagsWindow, TVViewIsLeftFirst) {
    Trigger("mTVShows");
    Open();
    EXPECT_FALSE(session.view.mTVShows);
    EXPECT_EQ(Titles().size(), 60);
    EXPECT_TRUE(tree->isEnabled());
    ToggleCheck(u"Shelf"_s);
    EXPECT_EQ(Titles().size(), 1);
}

TEST_F(FilterTagsWindow, ItWaitsInTVView) {
    Open();
    ToggleCheck(u"Shelf"_s);
    Trigger("mTVShows");
    EXPECT_TRUE(window->isVisible());
    for (const char *name : {"treeTags", "opOR", "opAND", "checkNOT"}) {
        EXPECT_FALSE(Button<QWidget>(name)->isEnabled()) << name;
    }
    const QStringList series = Titles();
    window->UpdateCollectionList({}, false);
    EXPECT_EQ(Titles(), series);
    Trigger("mMovies");
    EXPECT_TRUE(tree->isEnabled());
    EXPECT_EQ(Titles().size(), 60);
    EXPECT_EQ(Checked(), QStringList{u"Shelf"_s});
}

TEST_F(FilterTagsWindow, EscClosesItAndItsPlaceIsKept) {
    Open();
    ToggleCheck(u"Shelf"_s);
    window->resize(420, 510);
    QTest::keyClick(tree, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    DeleteClosed();
    EXPECT_FALSE(main->findChild<frmFilterTags *>());
    EXPECT_EQ(GetINIString(session, u"FilterTags"_s, u"Width"_s, {}), QString::number(420 * 15));
    EXPECT_EQ(GetINIString(session, u"FilterTags"_s, u"Height"_s, {}), QString::number(510 * 15));
    EXPECT_FALSE(GetINIString(session, u"FilterTags"_s, u"Top"_s, {}).isEmpty());
    EXPECT_FALSE(GetINIString(session, u"FilterTags"_s, u"Left"_s, {}).isEmpty());
    EXPECT_EQ(Titles(), QStringList{first}) << "the list stays";
    Open();
    EXPECT_EQ(window->size(), QSize(420, 510));
    EXPECT_EQ(Checked(), QStringList()) << "it opens as new";
}

TEST_F(FilterTagsWindow, ItsPlaceIsKeptWhenTheProgramEnds) {
    Open();
    window->resize(430, 520);
    main->close();
    main.reset();
    EXPECT_EQ(GetINIString(session, u"FilterTags"_s, u"Width"_s, {}), QString::number(430 * 15));
    EXPECT_FALSE(browser.hooks.ShowFilterTags) << "nothing shows it without a main window";
}

TEST_F(FilterTagsWindow, AnImportReadsTheTagsAgain) {
    Open();
    ToggleCheck(u"Mood/Dark"_s);
    AddTag(u"Any"_s, u"Mood/Calm"_s);
    session.window.ReloadTitles();
    EXPECT_TRUE(Node(u"Mood/Calm"_s).isValid());
    EXPECT_TRUE(tree->isExpanded(Node(u"Mood"_s)));
    EXPECT_EQ(Checked(), QStringList{u"Mood/Dark"_s});
    EXPECT_EQ(Titles().size(), 60) << "the import lists all titles";
}

TEST_F(FilterTagsWindow, AnotherDatabaseHasItsOwnTags) {
    Open();
    ToggleCheck(u"Mood/Dark"_s);
    const QString other = services.folders.dir / u"other.mdb"_s;
    {
        TestServices other_services;
        Session other_session(other_services.services);
        CreateCollectionDatabase(other_session, other);
        WriteDbInfo(other_session, u"ShowLoanDueOnStartUp"_s, u"0"_s);
    }
    ASSERT_TRUE(OpenCollectionDatabase(session, other));
    EXPECT_EQ(tree->model()->rowCount(), 0);
    EXPECT_TRUE(Button<QLabel>("labelNoTags")->isVisible());
    EXPECT_EQ(Button<QLabel>("labelNoTags")->text(), u"No title of this collection has a tag."_s);
    AddTag(u"Any"_s, u"Mood/Dark"_s);
    session.window.ReloadTitles();
    EXPECT_EQ(tree->model()->rowCount(), 1);
    EXPECT_FALSE(Button<QLabel>("labelNoTags")->isVisible());
    EXPECT_EQ(Checked(), QStringList()) << "another collection's checks say nothing";
}

TEST_F(FilterTagsWindow, EveryControlCanBeReachedAndNamesItself) {
    Open();
    EXPECT_EQ(window->focusWidget(), tree);
    QStringList names;
    QSet<QChar> keys;
    for (QWidget *control = tree; names.size() < 4; control = control->nextInFocusChain()) {
        if (control->objectName() == u"treeTags" || qobject_cast<QAbstractButton *>(control)) {
            names << control->objectName();
            EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
            EXPECT_FALSE(control->toolTip().isEmpty()) << qPrintable(control->objectName());
        }
    }
    EXPECT_EQ(names, (QStringList{u"treeTags"_s, u"opOR"_s, u"opAND"_s, u"checkNOT"_s}));
    for (const char *name : {"opOR", "opAND", "checkNOT"}) {
        const QString text = Button(name)->text();
        const qsizetype mark = text.indexOf(u'&');
        ASSERT_GE(mark, 0) << name;
        keys.insert(text[mark + 1].toLower());
    }
    EXPECT_EQ(keys.size(), 3) << "each has a key of its own";
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == tree; })) << "it came to the front";
    QTest::keyClick(tree, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"Mood\r\n\tDark\r\nShelf\r\n"_s);
}

TEST_F(FilterTagsWindow, TheTagsOfARemovedProfileGo) {
    Open();
    ToggleCheck(u"Mood/Dark"_s);
    ASSERT_EQ(Selected(), first);
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes);
    Trigger("mRemoveProfile");
    EXPECT_FALSE(Node(u"Shelf"_s).isValid());
    EXPECT_EQ(Checked(), QStringList{u"Mood/Dark"_s});
    EXPECT_EQ(Titles(), QStringList{second});
}

TEST_F(FilterTagsWindow, ATagThatIsTickedInTheWindowOfATitleShows) {
    Open();
    ToggleCheck(u"Shelf"_s);
    Trigger("mProfileInformation");
    auto *ticks = main->findChild<frmProfile *>()->findChild<QTreeView *>(u"treeTags"_s);
    ASSERT_TRUE(ticks);
    const auto shelf =
        ticks->model()->match(ticks->model()->index(0, 0), Qt::DisplayRole, u"Shelf"_s, 1, Qt::MatchExactly);
    ASSERT_EQ(shelf.size(), 1);
    ticks->model()->setData(shelf.front(), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_FALSE(Node(u"Shelf"_s).isValid());
    EXPECT_EQ(Checked(), QStringList());
    ticks->model()->setData(shelf.front(), Qt::Checked, Qt::CheckStateRole);
    EXPECT_TRUE(Node(u"Shelf"_s).isValid());
}

TEST_F(FilterTagsWindow, WhatAStatementDidShowsSoonWithTheTreeAsItWasLeft) {
    AddTag(Ids()[2], u"Place/Attic"_s);
    Open();
    ToggleCheck(u"Mood/Dark"_s);
    tree->collapse(Node(u"Mood"_s));
    tree->setCurrentIndex(Node(u"Shelf"_s));
    AddTag(Ids()[2], u"Aged"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Node(u"Aged"_s).isValid(); }));
    EXPECT_FALSE(tree->isExpanded(Node(u"Mood"_s)));
    EXPECT_TRUE(tree->isExpanded(Node(u"Place"_s)));
    EXPECT_EQ(tree->currentIndex(), Node(u"Shelf"_s));
    EXPECT_EQ(Checked(), QStringList{u"Mood/Dark"_s});
    EXPECT_EQ(Titles(), (QStringList{first, second})) << "the list stays";
    session.Database->Execute(u"DELETE FROM Tags");
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->isActiveWindow(); }));
    QEvent activation(QEvent::ActivationChange);
    QCoreApplication::sendEvent(window, &activation);
    EXPECT_EQ(tree->model()->rowCount(), 0) << "at once where the user turns to the window";
    EXPECT_TRUE(Button<QLabel>("labelNoTags")->isVisible());
}

} // namespace
} // namespace ostrand::test
