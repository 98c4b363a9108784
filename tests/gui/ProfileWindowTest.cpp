// The window that tells everything of a title, over the main window.
#include "browser/ui/frmProfile.h"

#include "MainWindowFixture.h"
#include "browser/Attach.h"
#include "browser/Views.h"
#include "browser/ui/ReviewBar.h"
#include "shell/ui/Twips.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTabBar>
#include <QTreeView>
#include <QWindow>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class NotingPages : public QWidget, public HtmlView {
public:
    NotingPages(QWidget *parent, QStringList &urls) : QWidget(parent), urls_(urls) {}
    void Navigate(const QString &url) override { urls_ += url; }
    void SetVisible(bool visible) override { setVisible(visible); }
    bool IsVisible() const override { return !isHidden(); }

private:
    QStringList &urls_;
};

class ProfileWindow : public MainWindowTest {
protected:
    void Load(const QStringList &statements = {}) {
        auto file = sql::Database::Open(database);
        file->Execute(u"INSERT INTO Users (UserID, IsActive) VALUES ('Ada Quill', true)");
        for (const QString &statement : statements) {
            file->Execute(statement);
        }
        file.reset();
        main = std::make_unique<frmMain>(browser, [this](QWidget *parent) -> HtmlEngine {
            auto *engine = new NotingPages(parent, urls);
            return {engine, engine};
        });
        ASSERT_TRUE(main->Load(database));
        QCoreApplication::processEvents();
    }
    void Open(const QStringList &statements = {}) {
        Load(statements);
        Trigger("mProfileInformation");
        window = main->findChild<frmProfile *>();
        ASSERT_TRUE(window);
        QCoreApplication::processEvents();
    }
    template <typename T>
    T *Find(const char *name) {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    QTabBar *Tabs() { return Find<QTabBar>("tabProfile"); }
    void SelectTab(SheetTab tab) { Tabs()->setCurrentIndex(int(tab) - 1); }
    QString Key(int row) { return browser.listSeries.At(row).key; }
    QString Caption() { return u"Profile Information: "_s + browser.caption; }
    QStringList Rows(const QString &query) {
        QStringList lines;
        for (sql::Recordset rows = session.Database->OpenRecordset(query); !rows.Eof(); rows.MoveNext()) {
            lines += rows.Text(0);
        }
        return lines;
    }
    QString ForCurrent(const QString &statement) { return statement.arg(EscapeSql(session.CurrentProfileID)); }
    QByteArray TextPage(const QString &name) {
        return ReadTestFile(session.TempFolder + u"/HTMLTemp"_s + name + u".html"_s);
    }
    static void Tick(QAbstractItemView *view, const QModelIndex &index) {
        view->setFocus();
        view->setCurrentIndex(index);
        QTest::keyClick(view, Qt::Key_Space);
    }

    frmProfile *window = nullptr;
    QStringList urls;
};

TEST_F(ProfileWindow, OpensForTheSelectedTitleAndFollowsIt) {
    Open();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->windowTitle(), Caption());
    ClickRow(3);
    EXPECT_EQ(window->windowTitle(), Caption());
    EXPECT_TRUE(window->windowTitle().contains(Selected().section(u" ("_s, 0, 0)));
    Trigger("mProfileInformation");
    EXPECT_EQ(main->findChildren<frmProfile *>().size(), 1);
}

TEST_F(ProfileWindow, OpensByADoubleClickAndByTheToolButton) {
    Load();
    EXPECT_TRUE(Action(u"ProfileInfo"_s)->isEnabled());
    Action(u"ProfileInfo"_s)->trigger();
    window = main->findChild<frmProfile *>();
    ASSERT_TRUE(window);
    window->close();
    const QRect row = List()->visualRect(List()->model()->index(2, 0));
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, row.center());
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), Caption());
    EXPECT_EQ(Action(u"mProfileInformation"_s)->shortcut(), QKeySequence(u"Alt+Return"_s));
}

TEST_F(ProfileWindow, ShowsTheEpisodeInTvView) {
    Open();
    Trigger("mTVShows");
    QCoreApplication::processEvents();
    EXPECT_EQ(window->windowTitle(), u"Profile Information: Dust"_s);
    window->close();
    Trigger("mEpisodeInfoContext");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), u"Profile Information: Dust"_s);
    EXPECT_TRUE(Find<QTreeView>("listDiscs")->isHidden()) << "an episode has none";
    QCoreApplication::processEvents();
    const auto *locks = Find<QListView>("listLocks");
    EXPECT_LT(locks->parentWidget()->height() - locks->geometry().bottom(), locks->fontMetrics().height() * 3)
        << "the room is not left empty";
    EXPECT_EQ(Find<QListView>("listLocks")->model()->rowCount(), 24);
    Trigger("mMovies");
    EXPECT_FALSE(Find<QTreeView>("listDiscs")->isHidden());
    EXPECT_EQ(Find<QListView>("listLocks")->model()->rowCount(), 46);
}

TEST_F(ProfileWindow, WithoutAnEpisodeTheEntryDoesNothing) {
    Load();
    browser.current_episode = -1;
    browser.commands.Run(u"mEpisodeInfoContext"_s);
    EXPECT_FALSE(main->findChild<frmProfile *>());
}

TEST_F(ProfileWindow, TheTabsAndTheOneThatIsRemembered) {
    Open();
    QStringList captions;
    for (int i = 0; i < Tabs()->count(); ++i) {
        captions += Tabs()->tabText(i);
    }
    EXPECT_EQ(captions, (QStringList{u"Main"_s, u"Overview"_s, u"Notes"_s, u"Easter Eggs"_s, u"Events/Review"_s,
                                     u"Additional Infos"_s, u"Skins"_s}));
    EXPECT_EQ(Tabs()->currentIndex(), 0);
    SelectTab(SheetTab::Events);
    EXPECT_EQ(session.view.ProfileInfoLastTab, 5);
    EXPECT_TRUE(Find<QTreeView>("listEvents")->isVisible());
    main->close();
    EXPECT_EQ(sql::Database::Open(database)
                  ->OpenRecordset(u"SELECT InfoValue FROM DbInfo WHERE InfoName = 'ProfileInfoLastTab'")
                  .Text(0),
              u"5"_s);
}

TEST_F(ProfileWindow, OpensOnTheRememberedTab) {
    Open({u"DELETE FROM DbInfo WHERE InfoName = 'ProfileInfoLastTab'"_s,
          u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('ProfileInfoLastTab', '5')"_s});
    EXPECT_EQ(Tabs()->currentIndex(), 4);
    EXPECT_TRUE(Find<QTreeView>("listEvents")->isVisible());
}

TEST_F(ProfileWindow, KeysStepThroughTheTabs) {
    Open();
    QTest::keyClick(window, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Tabs()->currentIndex(), 6);
    QTest::keyClick(window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Tabs()->currentIndex(), 0);
    QTest::keyClick(window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Tabs()->currentIndex(), 1);
}

TEST_F(ProfileWindow, EscClosesItAndItsPlaceIsKept) {
    Open();
    window->resize(700, 500);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(browser.hooks.ShowProfile) << "a closed window follows nothing";
    EXPECT_EQ(GetINIString(session, u"ProfileInfo"_s, u"Width"_s, {}), QString::number(ToTwips(700)));
    EXPECT_EQ(GetINIString(session, u"ProfileInfo"_s, u"Height"_s, {}), QString::number(ToTwips(500)));
    ClickRow(4);
    Trigger("mProfileInformation");
    EXPECT_EQ(window->size(), QSize(700, 500));
    EXPECT_EQ(window->windowTitle(), Caption());
}

TEST_F(ProfileWindow, StaysWhereItWasPut) {
    Open();
    const QPoint place(123, 87);
    window->windowHandle()->setPosition(place); // as a desktop moves it
    QCoreApplication::processEvents();
    ASSERT_EQ(window->geometry().topLeft(), place);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(window, Qt::Key_Escape);
        Trigger("mProfileInformation");
        QCoreApplication::processEvents();
        EXPECT_EQ(window->geometry().topLeft(), place) << i;
    }
}

TEST_F(ProfileWindow, OnlyTheTabThatIsShownLoadsAPage) {
    Open({u"UPDATE Profiles SET Overview = 'O ' + Title, Notes = 'N ' + Title, EasterEggs = 'E ' + Title"_s});
    EXPECT_EQ(urls, QStringList());
    ClickRow(2);
    EXPECT_EQ(urls, QStringList());
    const auto title = [this] { return Rows(ForCurrent(u"SELECT Title FROM Profiles WHERE ProfileID = '%1'"_s))[0]; };
    for (const auto &[tab, name, letter] :
         {std::tuple(SheetTab::Overview, u"Overview"_s, u"O "_s), std::tuple(SheetTab::Notes, u"Notes"_s, u"N "_s),
          std::tuple(SheetTab::EasterEggs, u"EasterEggs"_s, u"E "_s)}) {
        urls.clear();
        SelectTab(tab);
        ASSERT_EQ(urls.size(), 1) << qPrintable(name);
        EXPECT_TRUE(urls[0].endsWith(u"/HTMLTemp"_s + name + u".html"_s)) << qPrintable(urls[0]);
        EXPECT_TRUE(TextPage(name).contains("<body>" + (letter + title()).toUtf8() + "</body>"));
    }
    urls.clear();
    ClickRow(3);
    EXPECT_EQ(urls.size(), 1);
    EXPECT_TRUE(TextPage(u"EasterEggs"_s).contains(("E " + title().toUtf8())));
    EXPECT_FALSE(TextPage(u"Overview"_s).contains(title().toUtf8())) << "nobody looks at it";
    SelectTab(SheetTab::Main);
    urls.clear();
    ClickRow(4);
    EXPECT_EQ(urls, QStringList());
}

TEST_F(ProfileWindow, TextPagesGoWithTheProgram) {
    Open({u"UPDATE Profiles SET Overview = 'Text'"_s});
    SelectTab(SheetTab::Overview);
    const QString file = session.TempFolder + u"/HTMLTempOverview.html"_s;
    EXPECT_TRUE(QFile::exists(file));
    main->close();
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(ProfileWindow, TagsAndLocksAreTickedByTheKeyboard) {
    Open({u"DELETE FROM Tags"_s, u"DELETE FROM Locks"_s,
          u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('other', 'Top', 'Shelf/Top')"_s});
    auto *tree = Find<QTreeView>("treeTags");
    const QModelIndex top = tree->model()->index(0, 0, tree->model()->index(0, 0));
    ASSERT_EQ(top.data().toString(), u"Top"_s);
    EXPECT_TRUE(tree->isExpanded(top.parent()));
    Tick(tree, top);
    EXPECT_EQ(Rows(ForCurrent(u"SELECT FullyQualifiedName FROM Tags WHERE ProfileID = '%1'"_s)),
              QStringList{u"Shelf/Top"_s});
    EXPECT_EQ(top.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    Tick(tree, top);
    EXPECT_EQ(Rows(ForCurrent(u"SELECT FullyQualifiedName FROM Tags WHERE ProfileID = '%1'"_s)), QStringList());
    auto *locks = Find<QListView>("listLocks");
    Tick(locks, locks->model()->index(2, 0));
    EXPECT_EQ(Rows(ForCurrent(u"SELECT LockName FROM Locks WHERE ProfileID = '%1'"_s)), QStringList{u"Overview"_s});
    EXPECT_EQ(locks->currentIndex().row(), 2) << "it stays selected";
}

TEST_F(ProfileWindow, DiscsAndPrices) {
    Open();
    const QString id = session.CurrentProfileID;
    session.Database->Execute(ForCurrent(u"DELETE FROM Discs WHERE ProfileID = '%1'"_s));
    session.Database->Execute(
        ForCurrent(u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('%1', 1, 'B')"_s));
    session.Database->Execute(
        ForCurrent(u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('%1', 2, 'A')"_s));
    session.Database->Execute(ForCurrent(u"DELETE FROM SRPInfo WHERE ProfileID = '%1'"_s));
    session.Database->Execute(ForCurrent(u"INSERT INTO SRPInfo (ProfileID, SRPValue) VALUES ('%1', 12.5)"_s));
    window->GetProfileInfo(id);
    auto *list = Find<QTreeView>("listDiscs");
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), u"B"_s);
    EXPECT_EQ(Find<QLabel>("textSRP")->text(), u"12.5"_s);
    list->sortByColumn(0, Qt::AscendingOrder);
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), u"A"_s);
    window->GetProfileInfo(id);
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), u"B"_s) << "in the order of the discs again";
    list->setFocus();
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"Description A\tDescription B\tDS\tDLA\tDLB\tLocation\tSlot\r\n"
                                         "B\t\t\t\t\t\t\r\nA\t\t\t\t\t\t\r\n"_s);
}

TEST_F(ProfileWindow, AnEventIsAddedChangedAndDeleted) {
    Open({u"DELETE FROM Events"_s, u"DELETE FROM LoanInfo"_s});
    SelectTab(SheetTab::Events);
    auto *add = Find<QPushButton>("cbAddEvent");
    auto *change = Find<QPushButton>("cbChangeEvent");
    auto *remove = Find<QPushButton>("cbDeleteEvent");
    auto *type = Find<QComboBox>("comboEventType");
    auto *users = Find<QListView>("listUsers");
    EXPECT_FALSE(add->isEnabled()) << "nobody is ticked";
    EXPECT_FALSE(change->isEnabled());
    EXPECT_EQ(type->currentText(), u"Watched"_s);
    EXPECT_EQ(Find<QDateTimeEdit>("textEventTime")->text(), u"2024-05-17 10:20:30"_s);
    int ada = 0;
    while (users->model()->index(ada, 0).data().toString() != u"Ada Quill"_s) {
        ASSERT_LT(++ada, users->model()->rowCount());
    }
    Tick(users, users->model()->index(ada, 0));
    EXPECT_EQ(session.view.SelectedUsers, u"Ada Quill"_s);
    EXPECT_TRUE(add->isEnabled());
    type->setCurrentText(u"Borrowed"_s);
    Find<QLineEdit>("textEventComment")->setText(u"For the week"_s);
    QTest::mouseClick(add, Qt::LeftButton);
    auto *list = Find<QTreeView>("listEvents");
    ASSERT_EQ(list->model()->rowCount(), 1);
    EXPECT_EQ(list->model()->index(0, 1).data().toString(), u"Borrowed"_s);
    EXPECT_EQ(Rows(u"SELECT LoanedDue FROM LoanInfo"_s), QStringList{u"2024-05-24"_s});
    EXPECT_EQ(Find<QLineEdit>("textEventComment")->text(), QString());

    list->setCurrentIndex(list->model()->index(0, 0));
    EXPECT_EQ(Find<QLineEdit>("textEventComment")->text(), u"For the week"_s);
    EXPECT_TRUE(change->isEnabled());
    type->setCurrentText(u"Shown"_s);
    QTest::mouseClick(change, Qt::LeftButton);
    EXPECT_EQ(list->model()->index(0, 1).data().toString(), u"Shown"_s);
    EXPECT_GE(type->findText(u"Shown"_s), 3) << "offered from now on";

    list->setCurrentIndex(list->model()->index(0, 0));
    services.dialogs.ExpectMessage(u"Delete the selected event?"_s, MessageAnswer::Yes);
    QTest::mouseClick(remove, Qt::LeftButton);
    EXPECT_EQ(list->model()->rowCount(), 0);
    EXPECT_FALSE(remove->isEnabled());
}

TEST_F(ProfileWindow, ATimeThatNobodySetGoesOn) {
    Open({u"DELETE FROM Events"_s});
    SelectTab(SheetTab::Events);
    auto *users = Find<QListView>("listUsers");
    Tick(users, users->model()->index(0, 0));
    services.clock.now += 1.0 / 24;
    QTest::mouseClick(Find<QPushButton>("cbAddEvent"), Qt::LeftButton);
    services.clock.now += 1.0 / 24;
    Find<QDateTimeEdit>("textEventTime")->setDateTime({{2024, 1, 2}, {3, 4, 5}});
    QTest::mouseClick(Find<QPushButton>("cbAddEvent"), Qt::LeftButton);
    EXPECT_EQ(Rows(u"SELECT EventTimeStamp FROM Events ORDER BY EventTimeStamp"_s),
              (QStringList{u"2024-01-02 03:04:05"_s, u"2024-05-17 11:20:30"_s}));
}

TEST_F(ProfileWindow, WhatIsTypedStaysWhileTheTitleDoes) {
    Open();
    SelectTab(SheetTab::Events);
    auto *comment = Find<QLineEdit>("textEventComment");
    comment->setText(u"Half a sentence"_s);
    window->GetProfileInfo(session.CurrentProfileID);
    EXPECT_EQ(comment->text(), u"Half a sentence"_s);
    ClickRow(browser.current_row == 3 ? 4 : 3);
    EXPECT_EQ(comment->text(), QString());
}

TEST_F(ProfileWindow, MarksAreGivenByMouseAndKeyboard) {
    Open({u"DELETE FROM Reviews"_s});
    SelectTab(SheetTab::Events);
    auto *film = Find<ReviewBar>("ReviewFilm");
    EXPECT_EQ(film->value(), 0);
    EXPECT_EQ(Rows(u"SELECT Film FROM Reviews"_s), QStringList());
    QTest::mouseClick(film, Qt::LeftButton, {}, QPoint(film->width() - 2, film->height() / 2));
    EXPECT_EQ(Rows(u"SELECT Film FROM Reviews"_s), QStringList{u"9"_s});
    auto *audio = Find<ReviewBar>("ReviewAudio");
    audio->setFocus();
    QTest::keyClick(audio, Qt::Key_Right);
    QTest::keyClick(audio, Qt::Key_Right);
    EXPECT_EQ(Rows(u"SELECT Audio FROM Reviews"_s), QStringList{u"2"_s});
    EXPECT_EQ(Rows(u"SELECT Film FROM Reviews"_s), QStringList{u"9"_s});
    QTest::keyClick(film, Qt::Key_Home);
    EXPECT_EQ(Rows(u"SELECT Film FROM Reviews"_s), QStringList{u"0"_s});
    const QString id = session.CurrentProfileID;
    ClickRow(browser.current_row == 3 ? 4 : 3);
    EXPECT_EQ(audio->value(), 0) << "another title";
    EXPECT_EQ(Rows(u"SELECT ProfileID FROM Reviews"_s), QStringList{id}) << "to look at a title gives it no mark";
}

TEST_F(ProfileWindow, AdditionalInfosAreShownAsPages) {
    Load();
    session.Database->Execute(ForCurrent(u"DELETE FROM AdditionalInfo WHERE ProfileID = '%1'"_s));
    for (const char *name : {"Place", "Shop"}) {
        session.Database->Execute(
            ForCurrent(
                u"INSERT INTO AdditionalInfo (ProfileID, InfoName, InfoValue) VALUES ('%1', '%2', '<b>%2</b>')"_s)
                .arg(QLatin1String(name)));
    }
    Trigger("mProfileInformation");
    window = main->findChild<frmProfile *>();
    ASSERT_TRUE(window);
    SelectTab(SheetTab::AdditionalInfos);
    EXPECT_EQ(urls.size(), 1);
    EXPECT_TRUE(TextPage(u"InfoValue"_s).contains("<body><b>Place</b></body>"));
    auto *list = Find<QTreeView>("listInfos");
    list->setCurrentIndex(list->model()->index(1, 0));
    EXPECT_TRUE(urls.back().endsWith(u"/HTMLTempInfoValue.html"_s));
    EXPECT_TRUE(TextPage(u"InfoValue"_s).contains("<body><b>Shop</b></body>"));
}

TEST_F(ProfileWindow, ATitleIsShownThroughASkin) {
    for (const auto &[name, text] :
         {std::pair(u"Plain"_s, "[<DP NAME=\"TITLE\">]"), std::pair(u"Round"_s, "(<DP NAME=\"TITLE\">)")}) {
        const QString folder = session.DataFolder + u"/Skins/"_s + name;
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(folder + u"/Skin.html"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    Open({u"DELETE FROM DbInfo WHERE InfoName = 'CurrentSkin'"_s,
          u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CurrentSkin', 'Round')"_s});
    SelectTab(SheetTab::Skins);
    auto *skins = Find<QComboBox>("ListSkins");
    EXPECT_EQ(skins->currentText(), u"Round"_s) << "that of the main window at first";
    const auto page = [this] {
        return QString::fromUtf8(ReadTestFile(session.TempFolder + u"/TempProfile.html"_s).mid(3));
    };
    const auto title = [this] { return Rows(ForCurrent(u"SELECT Title FROM Profiles WHERE ProfileID = '%1'"_s))[0]; };
    EXPECT_EQ(page(), u'(' + title() + u')');
    skins->setFocus();
    QTest::keyClick(skins, Qt::Key_Home);
    EXPECT_EQ(page(), u'[' + title() + u']');
    ClickRow(4);
    EXPECT_EQ(page(), u'[' + title() + u']');
    EXPECT_EQ(session.CurrentSkin, u"Round"_s);
    EXPECT_FALSE(session.view.mSkinEnable);
}

TEST_F(ProfileWindow, ATitleThatIsGoneGivesTheEmptyView) {
    Open();
    SelectTab(SheetTab::Events);
    window->GetProfileInfo(u"gone"_s);
    EXPECT_EQ(window->windowTitle(), u"Profile Information"_s);
    EXPECT_FALSE(Find<QTreeView>("listEvents")->isEnabled());
    SelectTab(SheetTab::Main);
    EXPECT_FALSE(Find<QTreeView>("treeTags")->isEnabled());
    ClickRow(4);
    EXPECT_EQ(window->windowTitle(), Caption());
    EXPECT_TRUE(Find<QTreeView>("treeTags")->isEnabled());
    window->ClearProfileInfos();
    EXPECT_EQ(window->windowTitle(), u"Profile Information"_s);
}

TEST_F(ProfileWindow, AnotherLanguageShowsAtOnce) {
    Open();
    session.UseUserDefinedStrings = true;
    session.Database->Execute(u"DELETE FROM Translation WHERE OriginalString IN ('Overview', 'Add Event')");
    session.Database->Execute(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Overview', 'Inhalt')");
    session.Database->Execute(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Add Event', 'Neu')");
    browser.commands.RefreshTexts();
    EXPECT_EQ(Tabs()->tabText(1), u"Inhalt"_s);
    EXPECT_EQ(Find<QPushButton>("cbAddEvent")->accessibleName(), u"Neu"_s);
    EXPECT_EQ(window->windowTitle(), Caption());
    SelectTab(SheetTab::Events);
    EXPECT_TRUE(Find<QTreeView>("listEvents")->isEnabled());
}

TEST_F(ProfileWindow, AnotherDatabaseWhileItIsOpen) {
    Open();
    SelectTab(SheetTab::Events);
    const QString other = services.folders.dir / u"other.mdb"_s;
    ASSERT_TRUE(QFile::copy(SampleDatabase(), other));
    session.Database.reset();
    ASSERT_TRUE(OpenCollectionDatabase(session, other));
    EXPECT_EQ(window->windowTitle(), Caption());
    EXPECT_TRUE(Find<QTreeView>("listEvents") != nullptr);
}

TEST_F(ProfileWindow, WithoutADatabaseItsTabsAreEmpty) {
    Open();
    session.Database.reset();
    ShowNoCollection(browser);
    EXPECT_EQ(window->windowTitle(), u"Profile Information"_s);
    for (int tab = kSheetTabs; tab >= 1; --tab) {
        SelectTab(SheetTab(tab));
    }
    EXPECT_FALSE(Find<QListView>("listLocks")->isEnabled());
    EXPECT_FALSE(Find<QTreeView>("listEvents")->isEnabled());
}

TEST_F(ProfileWindow, EveryControlHasANameAndAKey) {
    Open();
    for (const char *name :
         {"tabProfile",     "treeTags",       "listLocks",        "listDiscs",    "listEvents",    "listUsers",
          "comboEventType", "textEventTime",  "textEventComment", "cbAddEvent",   "cbChangeEvent", "cbDeleteEvent",
          "ReviewFilm",     "ReviewVideo",    "ReviewAudio",      "ReviewExtras", "listInfos",     "WebText",
          "WebInfo",        "WebProfileSkin", "ListSkins"}) {
        EXPECT_FALSE(Find<QWidget>(name)->accessibleName().isEmpty()) << name;
    }
}

} // namespace
} // namespace ostrand::test
