#include "MainWindowFixture.h"

#include "browser/ui/PictureView.h"
#include "shell/StartUp.h"
#include "shell/ui/SplitPanel.h"
#include "shell/ui/frmListView.h"
#include "support/FailingStatements.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class MainWindow : public test::MainWindowTest {
protected:
    QStringList Tabs() {
        QStringList captions;
        const auto *tabs = Control<QTabBar>("tabColList");
        for (int i = 0; i < tabs->count(); ++i) {
            captions.append(tabs->tabText(i));
        }
        return captions;
    }
    void Drop(const QString &path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(main.get(), &enter);
        accepted = enter.isAccepted();
        if (accepted) {
            QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(main.get(), &drop);
            QCoreApplication::processEvents();
        }
    }

    bool accepted = false;
};

TEST_F(MainWindow, HoldsItsControlsUnderTheirNames) {
    Start();
    for (const char *name :
         {"Split1",   "Split2",          "Split3",           "Split4",   "Split5",      "Split6",
          "Frame1_1", "Frame4_1",        "Frame4_2",         "tabMain",  "tabColList",  "comboFilter",
          "textFind", "listSeries",      "labelFilterCount", "ListCast", "FrameCrew",   "Details",
          "AV",       "listAppearences", "FrameAwards",      "picCover", "listSeasons", "listEpisodes",
          "WebSkin",  "toolMain"}) {
        EXPECT_EQ(main->findChildren<QWidget *>(QLatin1String(name)).size(), 1) << name;
    }
    const struct {
        const char *split, *first, *second;
        bool horizontal;
    } panes[] = {
        {"Split1", "Split2", "Split3", false},     {"Split2", "Frame1_1", "Split6", false},
        {"Split4", "ListCast", "FrameCrew", true}, {"Split5", "listAppearences", "FrameAwards", true},
        {"Split6", "Frame4_1", "Frame4_2", true},
    };
    for (const auto &pane : panes) {
        const auto *split = Control<SplitPanel>(pane.split);
        EXPECT_EQ(split->Control1()->objectName(), QLatin1String(pane.first)) << pane.split;
        EXPECT_EQ(split->Control2()->objectName(), QLatin1String(pane.second)) << pane.split;
        EXPECT_EQ(split->Horizontal(), pane.horizontal) << pane.split;
        EXPECT_EQ(split->MinPanelSize(), 0) << pane.split;
        EXPECT_EQ(split->SnapToEdge(), QByteArray(pane.split) == "Split2") << pane.split;
    }
}

TEST_F(MainWindow, EveryControlThatTakesTheFocusHasAName) {
    Start();
    for (const QWidget *widget : main->findChildren<QWidget *>()) {
        const bool inner = widget->objectName().startsWith(u"qt_"_s) || !widget->isVisibleTo(main.get());
        const bool takes_focus = (widget->focusPolicy() & Qt::TabFocus) && !inner;
        if (takes_focus && !qobject_cast<const QAbstractScrollArea *>(widget->parentWidget())) {
            EXPECT_FALSE(widget->accessibleName().isEmpty())
                << widget->metaObject()->className() << ' ' << qPrintable(widget->objectName());
        }
    }
}

TEST_F(MainWindow, ShowsTheCollectionWithTheFirstTitleSelected) {
    Start();
    EXPECT_EQ(Titles().size(), 60);
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->text(), u"Filtered: 60"_s);
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->toolTip(), database);
    EXPECT_EQ(List()->currentIndex().row(), 0);
    EXPECT_EQ(session.CurrentProfileID, browser.listSeries.At(0).key);
    EXPECT_TRUE(main->windowTitle().startsWith(Titles().first())) << qPrintable(main->windowTitle());
    EXPECT_TRUE(Control<PictureView>("picCover")->HasPicture());
    EXPECT_EQ(Tabs().mid(0, 4), (QStringList{u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s}));
}

TEST_F(MainWindow, AClickShowsATitleAndRemembersTheOneLeft) {
    Start();
    const QString first = Selected();
    ClickRow(2);
    const QString second = Selected();
    EXPECT_NE(first, second);
    EXPECT_TRUE(main->windowTitle().startsWith(second));
    ASSERT_TRUE(Control<QToolButton>("MoveBack")->isEnabled());
    Control<QToolButton>("MoveBack")->click();
    EXPECT_EQ(Selected(), first);
    ASSERT_TRUE(Control<QToolButton>("MoveForward")->isEnabled());
    Control<QToolButton>("MoveForward")->click();
    EXPECT_EQ(Selected(), second);
}

TEST_F(MainWindow, TheKeysMoveAndRemember) {
    Start();
    for (const int key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home}) {
        const QString left = session.CurrentProfileID;
        QTest::keyClick(List(), Qt::Key(key));
        EXPECT_NE(session.CurrentProfileID, left) << key;
        EXPECT_EQ(browser.history.Back().value(0).key, left) << key;
    }
}

TEST_F(MainWindow, TypingFindsATitle) {
    Start();
    QTest::keyClicks(List(), u"birds"_s);
    EXPECT_EQ(Selected(), u"Birds of the Car Park"_s);
    EXPECT_TRUE(main->windowTitle().startsWith(u"Birds of the Car Park"_s));
}

TEST_F(MainWindow, TheClipboardTakesTheList) {
    Start();
    QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier);
    const QString visible = services.clipboard.Text();
    EXPECT_TRUE(visible.contains(Titles().at(3)));
    QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_GT(services.clipboard.Text().count(u'\t'), visible.count(u'\t'));
    QTest::keyClick(main.get(), Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(services.clipboard.Text().startsWith(u"[img]"_s));
}

TEST_F(MainWindow, ATabListsItsCollectionType) {
    Start();
    auto *tabs = Control<QTabBar>("tabColList");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(2).center());
    const sql::Recordset ordered =
        session.Database->OpenRecordset(u"SELECT Title FROM Profiles WHERE ColType = 'Ordered'");
    EXPECT_EQ(Titles().size(), ordered.RecordCount());
    QTest::keyClick(tabs, Qt::Key_Left);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(SelectedColType(browser), u"Owned"_s);
}

TEST_F(MainWindow, TheHeaderOfAGroupIsNoProfileToWorkOn) {
    Start();
    Trigger("mOrderByGenre");
    ASSERT_TRUE(browser.listSeries.At(browser.current_row).header);
    const QStringList entries = {u"mRemoveProfileInEdit"_s, u"mRemoveProfile"_s, u"mLockProfile"_s};
    for (const QString &name : entries) {
        EXPECT_FALSE(Action(name)->isEnabled()) << qPrintable(name);
    }
    ClickRow(1);
    for (const QString &name : entries) {
        EXPECT_TRUE(Action(name)->isEnabled()) << qPrintable(name);
    }
    Trigger("mTVShows");
    Trigger("mMovies");
    for (const QString &name : entries) {
        EXPECT_TRUE(Action(name)->isEnabled()) << qPrintable(name);
    }
}

TEST_F(MainWindow, TheTabsOfTypesStandClose) {
    Start();
    const auto *tabs = Control<QTabBar>("tabColList");
    QTabBar usual;
    usual.setFont(tabs->font());
    usual.setExpanding(false);
    usual.addTab(tabs->tabText(1));
    usual.addTab(tabs->tabText(2));
    EXPECT_LT(tabs->tabRect(2).right() - tabs->tabRect(1).left(), usual.tabRect(1).right());
    EXPECT_TRUE(tabs->usesScrollButtons()) << "there can be more of them than fit";
}

TEST_F(MainWindow, TheOtherViewBeginsInItsList) {
    Start();
    Control<QTabBar>("tabMain")->setCurrentIndex(1);
    for (const char *command : {"mTVShows", "mMovies"}) {
        auto *title = Control<QWidget>("textTitle");
        title->setFocus();
        ASSERT_TRUE(title->hasFocus());
        Trigger(command);
        EXPECT_TRUE(List()->hasFocus()) << command;
        EXPECT_TRUE(List()->selectionModel()->isSelected(List()->currentIndex()));
        Control<QTabBar>("tabMain")->setCurrentIndex(1);
    }
    auto *find = Control<QWidget>("textFind");
    find->setFocus();
    Trigger("mTVShows");
    EXPECT_TRUE(find->hasFocus()) << "it finds series as well";
}

TEST_F(MainWindow, AHeaderSortsAndComesBackToBoxsets) {
    Start();
    const QStringList nested = Titles();
    QHeaderView *header = List()->header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(10, header->height() / 2));
    EXPECT_EQ(session.view.ProfilesSortOrder, 1);
    EXPECT_NE(Titles(), nested);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(10, header->height() / 2));
    EXPECT_EQ(session.view.ProfilesSortOrder, 0);
    EXPECT_EQ(Titles(), nested) << "ascending by title, the boxsets are nested again";
}

TEST_F(MainWindow, TheSortCommandsShowTheirColumn) {
    Start();
    const struct {
        const char *command;
        int column;
    } cases[] = {{"mOrderColNoAsc", TitleList::Number},
                 {"mOrderProdYearDesc", TitleList::Year},
                 {"mOrderPDateAsc", TitleList::PurchaseDate},
                 {"mOrderRDateDesc", TitleList::ReleaseDate}};
    for (const auto &c : cases) {
        Trigger(c.command);
        for (int column = 1; column < kTitleColumns; ++column) {
            EXPECT_EQ(List()->isColumnHidden(column), column != c.column) << c.command << ' ' << column;
        }
    }
    Trigger("mOrderTitleAsc");
    EXPECT_FALSE(List()->isColumnHidden(0));
}

TEST_F(MainWindow, GroupsHaveBoldHeaders) {
    Start();
    Trigger("mOrderByGenre");
    ASSERT_FALSE(Titles().isEmpty());
    EXPECT_TRUE(List()->model()->index(0, 0).data(TitleList::HeaderRole).toBool());
    EXPECT_GT(Titles().size(), 60) << "a title of two genres stands in both";
}

TEST_F(MainWindow, TheViewChangesToSeriesAndBack) {
    Start();
    ClickRow(3);
    Trigger("mTVShows");
    EXPECT_EQ(Titles(), QStringList(u"The Attic"_s));
    EXPECT_EQ(Tabs(), QStringList(u"TV"_s));
    EXPECT_TRUE(Action(u"mTVShows"_s)->isChecked());
    EXPECT_FALSE(Action(u"mMovies"_s)->isChecked());
    EXPECT_TRUE(browser.history.Back().isEmpty());
    auto *seasons = Control<QComboBox>("listSeasons");
    ASSERT_TRUE(seasons->isVisible());
    ASSERT_EQ(seasons->count(), 2);
    EXPECT_EQ(browser.listEpisodes.Rows().at(0).title, u"Dust"_s);
    QTest::keyClick(seasons, Qt::Key_Down);
    EXPECT_EQ(browser.listEpisodes.Rows().at(0).title, u"More Dust"_s);
    EXPECT_FALSE(Control<QComboBox>("comboFilter")->isVisible());
    Trigger("mMovies");
    EXPECT_EQ(Titles().size(), 60);
    EXPECT_FALSE(seasons->isVisible());
    EXPECT_FALSE(Control<QWidget>("Frame4_2")->isVisible());
}

TEST_F(MainWindow, AFilterListsWhatItsQueryFinds) {
    Start({u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Old ones', 'SELECT p.Title, p.ProfileID, p.ColNo, "
           "p.SortTitle, p.OriginalTitle, p.OriginalSortTitle, p.Description, p.CustomTitle, p.CustomSortTitle "
           "FROM Profiles p WHERE p.ProdYear < 1980')"_s});
    auto *filter = Control<QComboBox>("comboFilter");
    ASSERT_TRUE(filter->isVisible());
    const int entry = filter->findText(u"Old ones"_s);
    ASSERT_GE(entry, 0);
    filter->setCurrentIndex(entry);
    Q_EMIT filter->textActivated(u"Old ones"_s);
    const int found =
        session.Database->OpenRecordset(u"SELECT ProfileID FROM Profiles WHERE ProdYear < 1980").RecordCount();
    EXPECT_EQ(Titles().size(), found);
    Trigger("mShowFilter");
    EXPECT_FALSE(filter->isVisible());
    Trigger("mShowFilter");
    EXPECT_TRUE(filter->isVisible());
}

/// Two saved filters, the first of which asks a question.
QStringList TwoFilters() {
    const QString insertion = u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('%1', 'SELECT p.Title, "
                              u"p.ProfileID, p.ColNo, p.SortTitle, p.OriginalTitle, p.OriginalSortTitle, "
                              u"p.Description FROM Profiles p WHERE %2')"_s;
    return {insertion.arg(u"Asks"_s, u"p.ColNo = $Number$"_s), insertion.arg(u"Old ones"_s, u"p.ProdYear < 1980"_s)};
}

TEST_F(MainWindow, TheWheelOverTheClosedFilterBoxDoesNothing) {
    Start(TwoFilters());
    auto *filter = Control<QComboBox>("comboFilter");
    for (const bool focused : {false, true}) {
        focused ? filter->setFocus() : List()->setFocus();
        for (const int turn : {-120, 120}) {
            QWheelEvent event(QPointF(5, 5), filter->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, turn), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(filter, &event);
            EXPECT_EQ(filter->currentIndex(), -1);
        }
    }
    EXPECT_FALSE(main->findChild<QDialog *>(u"frmFilterTags"_s));
    EXPECT_EQ(Titles().size(), 60);
}

TEST_F(MainWindow, KeysOpenTheListOfFiltersAndEnterChooses) {
    Start(TwoFilters());
    auto *filter = Control<QComboBox>("comboFilter");
    filter->setFocus();
    const std::pair<Qt::Key, Qt::KeyboardModifier> keys[] = {
        {Qt::Key_Down, Qt::NoModifier}, {Qt::Key_Up, Qt::NoModifier},    {Qt::Key_PageDown, Qt::NoModifier},
        {Qt::Key_End, Qt::NoModifier},  {Qt::Key_Down, Qt::AltModifier}, {Qt::Key_Space, Qt::NoModifier},
        {Qt::Key_F4, Qt::NoModifier},
    };
    for (const auto &[key, modifier] : keys) {
        QTest::keyClick(filter, key, modifier);
        EXPECT_TRUE(filter->view()->isVisible()) << key;
        QTest::keyClick(filter->view(), Qt::Key_Down);
        QTest::keyClick(filter->view(), Qt::Key_Down);
        QTest::keyClick(filter->view(), Qt::Key_Escape);
        EXPECT_FALSE(filter->view()->isVisible()) << key;
        EXPECT_EQ(filter->currentIndex(), -1) << "nothing was chosen";
    }
    EXPECT_FALSE(main->findChild<QDialog *>(u"frmFilterTags"_s));
    ASSERT_EQ(Titles().size(), 60);
    QTest::keyClick(filter, Qt::Key_O);
    ASSERT_TRUE(filter->view()->isVisible());
    EXPECT_EQ(filter->view()->currentIndex().data().toString(), u"Old ones"_s) << "a letter finds its entry";
    QTest::keyClick(filter->view(), Qt::Key_Return);
    EXPECT_EQ(filter->currentText(), u"Old ones"_s);
    EXPECT_LT(Titles().size(), 60);
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(filter->view(), Qt::Key_Up); // the one that asks
    QTest::keyClick(filter->view(), Qt::Key_Up); // the one that opens a window
    EXPECT_LT(Titles().size(), 60);
    QTest::keyClick(filter->view(), Qt::Key_Up);
    QTest::keyClick(filter->view(), Qt::Key_Return);
    EXPECT_EQ(filter->currentText(), u"Clear Filter"_s);
    EXPECT_EQ(Titles().size(), 60);
    EXPECT_FALSE(main->findChild<QDialog *>(u"frmFilterTags"_s));
}

TEST_F(MainWindow, TheCoverTurnsAround) {
    Start();
    auto *cover = Control<PictureView>("picCover");
    const QString front = cover->File();
    ASSERT_TRUE(front.endsWith(u"f.jpg"_s, Qt::CaseInsensitive));
    QTest::mouseClick(cover, Qt::LeftButton);
    EXPECT_FALSE(session.ShowFrontCover);
    EXPECT_NE(cover->File(), front);
}

TEST_F(MainWindow, AFileDroppedOnItIsImported) {
    Start();
    const QString file = services.folders.dir.Write(
        u"one.xml"_s, "<?xml version=\"1.0\"?>\r\n<Collection><DVD><ID>new</ID><MediaTypes><DVD>true</DVD></MediaTypes>"
                      "<Title>Aardvark</Title><SortTitle>Aardvark</SortTitle></DVD></Collection>");
    Drop(file);
    EXPECT_TRUE(accepted);
    EXPECT_EQ(Titles().size(), 61);
    EXPECT_GE(RowOf(u"Aardvark"_s), 0);
}

TEST_F(MainWindow, OtherFilesAreNotTaken) {
    Start();
    Drop(services.folders.dir.Write(u"one.txt"_s, "text"));
    EXPECT_FALSE(accepted);
}

TEST_F(MainWindow, GoingToATitleSelectsItsRow) {
    Start();
    services.dialogs.ExpectInput(u"Please enter title:"_s, u"Mice Above: Below"_s, u"Search Title"_s);
    Trigger("mGotoProfile");
    EXPECT_EQ(Selected(), u"Mice Above: Below"_s);
}

TEST_F(MainWindow, ARandomTitleIsShown) {
    Start();
    services.random.numbers = {0.5};
    Trigger("mSelectRandom");
    EXPECT_EQ(List()->currentIndex().row(), 30);
}

TEST_F(MainWindow, LoansDueStandInAListWindowFromWhichTheTitleIsReached) {
    Start(
        {u"INSERT INTO Users (UserID) VALUES ('Borrower One')"_s, u"DELETE FROM LoanInfo"_s,
         u"INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) SELECT TOP 1 ProfileID, 'Borrower One', #5/1/2024# FROM "
         "Profiles WHERE Title = 'Birds of the Car Park'"_s});
    Trigger("mShowLoanDue");
    auto *window = main->findChild<frmListView *>();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->windowTitle(), u"Titles due to be returned"_s);
    Trigger("mShowLoanDue");
    EXPECT_EQ(main->findChildren<frmListView *>().size(), 1) << "one window for one list";
    window = main->findChild<frmListView *>();
    auto *list = window->findChild<QAbstractItemView *>(u"MultiList"_s);
    ASSERT_EQ(list->model()->rowCount(), 1);
    Q_EMIT list->activated(list->model()->index(0, 0));
    EXPECT_EQ(Selected(), u"Birds of the Car Park"_s);
}

TEST_F(MainWindow, TheEndKeepsWhatTheNextStartShows) {
    Start();
    ClickRow(RowOf(u"Birds of the Car Park"_s));
    auto *tabs = Control<QTabBar>("tabColList");
    tabs->setCurrentIndex(1);
    ClickRow(RowOf(u"Birds of the Car Park"_s));
    main->resize(900, 600);
    const int position = main->Split(1)->Position() + 300;
    main->Split(1)->SetPosition(position);
    main->close();
    main.reset();
    EXPECT_FALSE(session.Database);

    Session next(services.services);
    Browser next_browser(next);
    frmMain next_main(next_browser);
    ASSERT_TRUE(next_main.Load({}));
    EXPECT_EQ(next.DatabaseFile, database);
    EXPECT_EQ(next_main.size(), QSize(900, 600));
    EXPECT_EQ(next_main.Split(1)->Position(), position);
    EXPECT_EQ(next_browser.tabColList_selected, 2);
    EXPECT_TRUE(next_main.windowTitle().startsWith(u"Birds of the Car Park"_s));
    next_main.close();
}

TEST_F(MainWindow, CtrlAtTheStartBringsTheFirstLayoutBack) {
    services.folders.dir.Write(u"documents/OstrandApp/Settings.ini"_s,
                               "[Window]\r\nHeight=6000\r\nWidth=6000\r\nTop=3000\r\nLeft=3000\r\n"
                               "[Splitter]\r\nSplitter1=1500\r\n");
    services.keyboard.ctrl = true;
    Start();
    EXPECT_EQ(main->size(), QSize(17000 / 15, 11000 / 15));
    EXPECT_EQ(main->pos(), QPoint(13, 13));
    EXPECT_EQ(GetINIString(session, u"Splitter"_s, u"Splitter1"_s, u"(missing)"_s), QString());
    EXPECT_NEAR(double(main->Split(1)->Position()) / (main->Split(1)->width() * 15), 0.45, 0.01);
}

TEST_F(MainWindow, ColumnsOfTheListFollowItsWidth) {
    Start();
    const QHeaderView *header = List()->header();
    for (const int width : {900, 1400, 700}) {
        main->resize(width, 600);
        QCoreApplication::processEvents();
        EXPECT_EQ(header->sectionSize(TitleList::Title), qRound(0.78 * List()->width())) << width;
        EXPECT_EQ(header->hiddenSectionCount(), kTitleColumns - 1) << width;
    }
    Trigger("mOrderProdYearAsc");
    for (const int width : {900, 1400, 700}) {
        main->resize(width, 600);
        QCoreApplication::processEvents();
        EXPECT_EQ(header->sectionSize(TitleList::Year), qRound(0.25 * List()->width())) << width;
        EXPECT_EQ(header->length(), List()->viewport()->width()) << "the title gives way to the column that sorts";
    }
    Trigger("mOrderColNoDesc");
    EXPECT_EQ(header->sectionSize(TitleList::Number), qRound(0.25 * List()->width()));
    EXPECT_TRUE(header->isSectionHidden(TitleList::Year));
    Trigger("mOrderTitleAsc");
    EXPECT_EQ(header->sectionSize(TitleList::Title), qRound(0.78 * List()->width()));
    EXPECT_EQ(header->hiddenSectionCount(), kTitleColumns - 1);
}

TEST_F(MainWindow, TheListIsHiddenAndTheCursorWaitsWhileItIsFilled) {
    Start();
    List()->setFocus();
    int looks = 0;
    QObject::connect(&browser, &Browser::CurrentRowChanged, List(), [&] {
        ++looks;
        EXPECT_FALSE(List()->viewport()->isVisible());
        EXPECT_TRUE(QApplication::overrideCursor());
        EXPECT_EQ(main->focusWidget(), List());
    });
    Trigger("mBoxsetView");
    EXPECT_GT(looks, 0);
    EXPECT_TRUE(List()->viewport()->isVisible());
    EXPECT_FALSE(QApplication::overrideCursor());
    EXPECT_EQ(main->focusWidget(), List());
}

TEST_F(MainWindow, AColumnDrawnToAnotherWidthKeepsIt) {
    Start();
    main->resize(1400, 600);
    List()->header()->resizeSection(TitleList::Title, List()->width() / 2);
    Trigger("mBoxsetView"); // fills the list anew
    EXPECT_EQ(List()->columnWidth(TitleList::Title), List()->width() / 2);
    main->resize(900, 600);
    QCoreApplication::processEvents();
    EXPECT_NEAR(List()->columnWidth(TitleList::Title), List()->width() / 2, 1);
    ASSERT_TRUE(OpenCollectionDatabase(session, database));
    EXPECT_EQ(List()->columnWidth(TitleList::Title), qRound(0.78 * List()->width()));
}

TEST_F(MainWindow, FontsOfTheSettingsReachTheLists) {
    Start({u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('FontSize', '14')"_s,
           u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('FontName', 'DejaVu Sans')"_s});
    EXPECT_EQ(List()->font().pointSizeF(), 14);
    EXPECT_EQ(List()->font().family(), u"DejaVu Sans"_s);
}

TEST_F(MainWindow, GridLinesAreToggledAndKept) {
    Start();
    ASSERT_TRUE(Action(u"mToogleGridlinesCollection"_s)->isChecked());
    Trigger("mToogleGridlinesCollection");
    EXPECT_FALSE(Action(u"mToogleGridlinesCollection"_s)->isChecked());
    main->close();
    EXPECT_EQ(GetINIString(session, u"GridLines"_s, u"ListCollection"_s, {}), u"False"_s);
}

TEST_F(MainWindow, AFaultOfTheDatabaseIsToldAndTheProgramGoesOn) {
    Start();
    session.Database->Execute(u"DROP TABLE Genres");
    services.dialogs.ExpectMessage({}, MessageIcon::Critical);
    Trigger("mOrderByGenre");
    Trigger("mOrderTitleAsc");
    EXPECT_EQ(Titles().size(), 60);
}

TEST_F(MainWindow, AFaultIsToldWhereverTheUserActs) {
    Start();
    ClickRow(2);
    ClickRow(3);
    const struct {
        const char *name;
        std::function<void()> act;
    } actions[] = {
        {"a row", [&] { ClickRow(5); }},
        {"a key", [&] { QTest::keyClick(List(), Qt::Key_Down); }},
        {"back", [&] { Control<QToolButton>("MoveBack")->click(); }},
        {"a tab", [&] { Control<QTabBar>("tabMain")->setCurrentIndex(1); }},
    };
    for (const auto &action : actions) {
        test::FailFrom(*session.Database, u"SELECT"_s);
        services.dialogs.messages.clear();
        services.dialogs.ExpectMessage(u"The disk is full."_s, MessageIcon::Critical);
        action.act();
        session.Database->SetObserver({});
        EXPECT_EQ(services.dialogs.messages.size(), 1u) << action.name;
    }
}

TEST_F(MainWindow, ADatabaseWithoutProfilesIsAnEmptyList) {
    database = services.folders.dir / u"empty.mdb"_s;
    {
        Session other(services.services);
        CreateCollectionDatabase(other, database);
    }
    Start();
    EXPECT_EQ(Titles(), QStringList());
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->text(), u"Filtered: 0"_s);
    EXPECT_EQ(Tabs(), (QStringList{u"All"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s}));
    Trigger("mSelectRandom");
    QTest::keyClick(List(), Qt::Key_Down);
    QTest::keyClicks(List(), u"a"_s);
    EXPECT_EQ(main->windowTitle(), browser.base_caption);
}

TEST_F(MainWindow, ACommandFileThatClosesEndsTheProgram) {
    const QString file =
        services.folders.dir.Write(u"go.txt"_s, (u"opendatabase "_s + database + u"\r\nclose\r\n"_s).toUtf8());
    main = std::make_unique<frmMain>(browser);
    EXPECT_FALSE(main->Load(file));
    EXPECT_FALSE(session.Database);
}

TEST_F(MainWindow, ACommandFileThatOpensNothingLeavesAnEmptyWindow) {
    main = std::make_unique<frmMain>(browser);
    ASSERT_TRUE(main->Load(services.folders.dir.Write(u"go.txt"_s, "setskin Blue\r\n")));
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(main->windowTitle(), browser.base_caption);
    EXPECT_FALSE(Control<QWidget>("Frame4_2")->isVisible()) << "no episodes";
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->toolTip(), QString());
    EXPECT_FALSE(browser.commands.IsEnabled(u"mView"_s));
    main->close();
    EXPECT_EQ(GetINIString(session, u"Main"_s, u"LastDatabase"_s, {}), u"Database"_s);
}

TEST_F(MainWindow, ACommandFileWithoutCloseLeavesTheLastDatabaseOpen) {
    const QString file = services.folders.dir.Write(u"go.txt"_s, (u"opendatabase "_s + database + u"\r\n"_s).toUtf8());
    main = std::make_unique<frmMain>(browser);
    ASSERT_TRUE(main->Load(file));
    EXPECT_EQ(Titles().size(), 60);
    EXPECT_TRUE(main->isVisible());
}

/// A title that should have been back long ago, told at the start.
const QStringList kOverdue = {
    u"UPDATE DbInfo SET InfoValue = '1' WHERE InfoName = 'ShowLoanDueOnStartUp'"_s, u"DELETE FROM LoanInfo"_s,
    u"INSERT INTO Users (UserID) VALUES ('Borrower One')"_s,
    u"INSERT INTO LoanInfo (ProfileID, UserID, LoanedDue) SELECT TOP 1 ProfileID, 'Borrower One', #5/1/2024# FROM "
    "Profiles"_s};

TEST_F(MainWindow, NothingOfTheStartFollowsACommandFileThatCloses) {
    {
        const auto file = sql::Database::Open(database);
        for (const QString &statement : kOverdue) {
            file->Execute(statement);
        }
    }
    services.folders.dir.Write(u"documents/OstrandApp/Settings.ini"_s, "[Main]\r\nDebug=0x6\r\n");
    const QString file =
        services.folders.dir.Write(u"go.txt"_s, (u"opendatabase "_s + database + u"\r\nclose\r\n"_s).toUtf8());
    main = std::make_unique<frmMain>(browser);
    EXPECT_FALSE(main->Load(file));
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(main->isVisible());
    const QString log = QString::fromUtf8(services.folders.dir.Read(u"documents/OstrandApp/Debug.log"_s));
    EXPECT_FALSE(log.contains(u"frmMain_Load()"_s));
    EXPECT_TRUE(log.endsWith(u"Exit:     CloseViewer()\r\n"_s)) << qPrintable(log.right(200));
}

TEST_F(MainWindow, TheTitlesDueAtTheStartLieAboveIt) {
    Start(kOverdue);
    const QList<frmListView *> windows = main->findChildren<frmListView *>();
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows.first()->isVisible());
    EXPECT_EQ(windows.first()->windowHandle()->transientParent(), main->windowHandle());
}

TEST_F(MainWindow, TheCountTellsThePathOfTheOpenDatabase) {
    Start();
    const QString other = services.folders.dir / u"other.mdb"_s;
    ASSERT_TRUE(QFile::copy(test::SampleDatabase(), other));
    ASSERT_TRUE(OpenCollectionDatabase(session, other));
    EXPECT_EQ(Control<QLabel>("labelFilterCount")->toolTip(), other);
}

TEST_F(MainWindow, ComesUpInTheStateItWasClosedIn) {
    const struct {
        const char *state;
        bool minimised, maximised;
    } cases[] = {{"0", false, false}, {"1", true, false}, {"2", false, true}, {"nonsense", false, false}};
    for (const auto &c : cases) {
        services.folders.dir.Write(u"documents/OstrandApp/Settings.ini"_s,
                                   QByteArray("[Window]\r\nWindowState=") + c.state + "\r\n");
        Session one_session(services.services);
        Browser one(one_session);
        frmMain window(one);
        ASSERT_TRUE(window.Load(database));
        EXPECT_EQ(window.isMinimized(), c.minimised) << c.state;
        EXPECT_EQ(window.isMaximized(), c.maximised) << c.state;
        window.close();
    }
}

TEST_F(MainWindow, ClosedInTheMiddleOfAnActionItEndsBehindIt) {
    Start();
    main->Perform([this] {
        main->Perform([this] { EXPECT_FALSE(main->close()); });
        EXPECT_TRUE(session.Database) << "the action still works on it";
        EXPECT_TRUE(main->isVisible());
    });
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(main->isVisible());
}

TEST_F(MainWindow, AskedToEndItClosesTheDialogThatWaitsFirst) {
    for (const char *command : {"mSettings", "mSwitchDatabase", "mAbout"}) {
        Start();
        QTimer::singleShot(0, main.get(), [this] {
            ASSERT_TRUE(QApplication::activeModalWidget());
            main->AskToEnd();
            EXPECT_TRUE(main->isVisible());
        });
        Trigger(command);
        EXPECT_FALSE(session.Database) << command;
        EXPECT_FALSE(main->isVisible()) << command;
        main.reset();
        session.EndProgram = false;
    }
}

TEST_F(MainWindow, AskedToEndWhileNothingWaitsItCloses) {
    Start();
    main->AskToEnd();
    EXPECT_FALSE(session.Database);
    EXPECT_FALSE(main->isVisible());
}

TEST_F(MainWindow, ADatabaseThatDoesNotOpenLeavesAWindowWithoutOne) {
    Start();
    const QString faulty = services.folders.dir / u"faulty.mdb"_s;
    {
        const auto file = sql::Database::Create(faulty);
        file->Execute(u"CREATE TABLE DbInfo (InfoName varchar PRIMARY KEY, InfoValue memo, Comment varchar)");
        file->Execute(u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('Schema', '90')");
    }
    services.dialogs.ExpectMessage({}, MessageIcon::Critical);
    EXPECT_FALSE(OpenCollectionDatabase(session, faulty));
    EXPECT_FALSE(session.Database);
    for (const char *menu : {"mEdit", "mTools", "mView", "mSettings"}) {
        EXPECT_FALSE(browser.commands.IsEnabled(QString::fromLatin1(menu))) << menu;
    }
    ClickRow(2);
    QTest::keyClick(List(), Qt::Key_Down);
    QTest::keyClicks(List(), u"birds"_s);
    auto *tabs = Control<QTabBar>("tabColList");
    tabs->setCurrentIndex(1);
    auto *filter = Control<QComboBox>("comboFilter");
    Q_EMIT filter->textActivated(filter->itemText(0));
    QTest::mouseClick(List()->header()->viewport(), Qt::LeftButton, {}, QPoint(10, 5));
    QTest::mouseClick(Control<PictureView>("picCover"), Qt::LeftButton);
    for (const char *button : {"MoveBack", "MoveForward"}) {
        Control<QToolButton>(button)->click();
    }
    EXPECT_TRUE(browser.commands.IsEnabled(u"mSwitchDatabase"_s)) << "the way out";
}

} // namespace
} // namespace ostrand
