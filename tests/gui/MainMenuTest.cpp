// The menus, context menus and keys of the main window itself, with a user who cancels everything.
#include "MainWindowFixture.h"

#include "browser/ToolBarTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

QString Text(const char16_t *text) {
    return text == nullptr ? QString() : QStringView(text).toString();
}

/// Answers every question with a way out.
class CancellingUser : public UserDialogs {
public:
    MessageAnswer Show(const Message &message) override {
        asked << message.text;
        return message.neutral;
    }
    std::optional<QString> InputText(const QString &prompt, const QString &, const QString &) override {
        asked << prompt;
        return std::nullopt;
    }
    std::optional<QString> InputCombo(const QString &prompt, const QString &, const QStringList &,
                                      const QString &) override {
        asked << prompt;
        return std::nullopt;
    }
    QString OpenFile(const FileRequest &request) override {
        asked << request.title;
        return {};
    }
    QString SaveFile(const FileRequest &request) override {
        asked << request.title;
        return {};
    }
    QString BrowseFolder(const QString &title, const QString &) override {
        asked << title;
        return {};
    }

    QStringList asked;
};

class MainMenu : public test::MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        QObject::connect(&closer, &QTimer::timeout, [this] { CloseModalWindow(); });
    }
    void TearDown() override {
        closer.stop();
        MainWindowTest::TearDown();
    }
    /// The window on the database, or, with a command file that opens none, without one.
    void StartAsked(bool with_database) {
        main = std::make_unique<frmMain>(seen);
        ASSERT_TRUE(main->Load(with_database ? database : services.folders.dir.Write(u"nothing.txt"_s, "\r\n")));
        ASSERT_EQ(asked.Database != nullptr, with_database);
        QCoreApplication::processEvents();
        user.asked.clear();
    }
    void CloseModalWindow() {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            ++dialogs_closed;
            dialog->reject();
        }
    }
    void CloseOtherWindows() {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window != main.get() && window->isWindow() && window->isVisible()) {
                window->close();
            }
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QSet<QString> EnabledEntries() {
        QSet<QString> enabled;
        for (const MenuEntry &entry : MenuEntries()) {
            if (!entry.IsSeparator() && !entry.is_menu && Action(Text(entry.name))->isEnabled()) {
                enabled << Text(entry.name);
            }
        }
        return enabled;
    }
    /// What the table lets be used in a view of an open database.
    QSet<QString> UsableEntries(bool movies) {
        QSet<QString> usable;
        for (const MenuEntry &entry : MenuEntries()) {
            if (!entry.IsSeparator() && !entry.is_menu && IsUsable(entry, movies)) {
                usable << Text(entry.name);
            }
        }
        return usable;
    }
    bool IsUsable(const MenuEntry &entry, bool movies) {
        for (const MenuEntry *at = &entry; at != nullptr;
             at = at->parent == nullptr ? nullptr : FindMenuEntry(at->parent)) {
            if (at->view != InView::Both && (at->view == InView::Movies) != movies) {
                return false;
            }
        }
        if (entry.same_as != nullptr) {
            return IsUsable(*FindMenuEntry(entry.same_as), movies);
        }
        const QString name = Text(entry.name);
        return seen.commands.HasHandler(name) && (name != u"mEditTVEpisode" || asked.CurrentIsEpisode);
    }
    /// Runs all that is enabled, but the end of the program, and looks whether anything is different afterwards.
    void RunAllEnabled(bool movies) {
        for (const QString &name : EnabledEntries()) {
            if (name == u"mExit"_s) {
                continue;
            }
            if (asked.Database) {
                seen.commands.Run(movies ? u"mMovies"_s : u"mTVShows"_s);
            }
            ASSERT_TRUE(Action(name)) << qPrintable(name);
            if (!Action(name)->isEnabled()) {
                continue; // it was that only while another command had changed what is shown
            }
            const QStringList before = Rows();
            closer.start(5);
            Action(name)->trigger();
            if (FindMenuEntry(name)->told_checked) {
                Action(name)->trigger(); // a lock comes and goes
            } else if (name == u"mLockSelectedProfiles") {
                Action(u"mUnlockSelectedProfiles"_s)->trigger();
            }
            closer.stop();
            QCoreApplication::processEvents();
            CloseOtherWindows();
            EXPECT_TRUE(main->isVisible()) << qPrintable(name);
            EXPECT_FALSE(asked.EndProgram) << qPrintable(name);
            EXPECT_EQ(Rows(), before) << qPrintable(name);
        }
    }
    /// Counts of what a user would miss.
    QStringList Rows() {
        QStringList counts;
        for (const QStringView table : {u"Profiles", u"Episodes", u"TVSeries", u"CastCrew", u"Locks", u"Users"}) {
            if (asked.Database) {
                counts << asked.Database->OpenRecordset(u"SELECT Count(*) FROM "_s + table.toString()).Text(0);
            }
        }
        return counts;
    }
    /// The popup that a right click, or the menu key, on a widget opens; empty for none.
    QString OpenedBy(QWidget *widget, QContextMenuEvent::Reason reason) {
        const QPoint place = widget->rect().center();
        QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &event);
        auto *popup = QApplication::activePopupWidget();
        const QString name = popup ? popup->objectName() : QString();
        if (popup) {
            popup->close();
        }
        return name;
    }

    CancellingUser user;
    Services with_user{user,
                       services.progress,
                       services.pump,
                       services.clock,
                       services.random,
                       services.processes,
                       services.folders,
                       services.locale,
                       services.clipboard,
                       services.keyboard,
                       services.opener,
                       services.images,
                       services.downloader};
    Session asked{with_user};
    Browser seen{asked};
    QTimer closer;
    int dialogs_closed = 0;
};

TEST_F(MainMenu, HoldsEachEntryOfTheTableOnceInItsPlace) {
    StartAsked(true);
    QMap<QString, QStringList> expected;
    QMap<QString, int> named;
    for (const MenuEntry &entry : MenuEntries()) {
        if (!entry.is_context_menu) {
            expected[Text(entry.parent)] << Text(entry.name);
        }
    }
    const auto names = [](const QWidget *holder) {
        QStringList found;
        for (const QAction *action : holder->actions()) {
            found << action->objectName();
            EXPECT_EQ(action->isSeparator(), action->objectName().isEmpty());
        }
        return found;
    };
    EXPECT_EQ(names(main->menuBar()), expected.take(QString()));
    for (const auto &[menu, entries] : expected.asKeyValueRange()) {
        const auto menus = main->findChildren<QMenu *>(menu);
        ASSERT_EQ(menus.size(), 1) << qPrintable(menu);
        EXPECT_EQ(names(menus.front()), entries) << qPrintable(menu);
    }
    for (const QAction *action : main->findChildren<QAction *>()) {
        ++named[action->objectName()];
    }
    for (const MenuEntry &entry : MenuEntries()) {
        if (!entry.IsSeparator()) {
            EXPECT_EQ(named[Text(entry.name)], 1) << qPrintable(Text(entry.name));
        }
    }
}

TEST_F(MainMenu, WithoutADatabaseOnlyTheWayToOneIsOffered) {
    StartAsked(false);
    EXPECT_EQ(EnabledEntries(), (QSet<QString>{u"mSwitchDatabase"_s, u"mCommandFile"_s, u"mExit"_s, u"mAbout"_s}));
    for (const MenuEntry &entry : MenuEntries()) {
        if (entry.is_menu) {
            const bool open = QStringList({u"mFile"_s, u"mInfo"_s}).contains(Text(entry.name));
            EXPECT_EQ(Control<QMenu>(Text(entry.name).toLatin1().constData())->isEnabled(), open)
                << qPrintable(Text(entry.name));
        }
    }
    for (const ToolButton &button : ToolButtons()) {
        EXPECT_FALSE(Control<QToolButton>(Text(button.name).toLatin1().constData())->isEnabled())
            << qPrintable(Text(button.name));
    }
    RunAllEnabled(true);
    EXPECT_FALSE(asked.Database);
}

TEST_F(MainMenu, WithoutADatabaseTheControlsDoNoHarm) {
    StartAsked(false);
    for (const char *name : {"listSeries", "listEpisodes", "listSeasons", "tabColList"}) {
        auto *widget = Control<QWidget>(name);
        auto *area = qobject_cast<QAbstractScrollArea *>(widget);
        EXPECT_EQ(OpenedBy(area ? area->viewport() : widget, QContextMenuEvent::Mouse), QString()) << name;
    }
    for (const int key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Return, Qt::Key_A}) {
        QTest::keyClick(List(), Qt::Key(key));
    }
    QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(main.get(), Qt::Key_1, Qt::ControlModifier);
    Q_EMIT List()->header()->sectionClicked(0);
    EXPECT_EQ(Titles(), QStringList());
    EXPECT_EQ(user.asked, QStringList());
}

TEST_F(MainMenu, WhatIsEnabledFollowsTheView) {
    StartAsked(true);
    for (const bool movies : {true, false, true}) {
        Trigger(movies ? "mMovies" : "mTVShows");
        EXPECT_EQ(EnabledEntries(), UsableEntries(movies)) << movies;
        for (const MenuEntry &entry : MenuEntries()) {
            if (entry.is_menu) {
                EXPECT_EQ(Action(Text(entry.name))->isEnabled(), entry.view == InView::Both || movies)
                    << qPrintable(Text(entry.name));
            }
        }
        EXPECT_EQ(Control<QToolButton>("ChangeMode")->text(), movies ? u"TV Shows"_s : u"Movies"_s);
        EXPECT_TRUE(Control<QToolButton>("ChangeMode")->isEnabled());
        EXPECT_EQ(Action(u"mMovies"_s)->isChecked(), movies);
        EXPECT_EQ(Action(u"mTVShows"_s)->isChecked(), !movies);
    }
    Control<QToolButton>("ChangeMode")->click();
    EXPECT_TRUE(asked.view.mTVShows);
    Control<QToolButton>("ChangeMode")->click();
    EXPECT_FALSE(asked.view.mTVShows);
}

TEST_F(MainMenu, AllThatIsEnabledRunsWithoutHarm) {
    StartAsked(true);
    for (const bool movies : {true, false}) {
        Trigger(movies ? "mMovies" : "mTVShows");
        RunAllEnabled(movies);
    }
    EXPECT_GE(dialogs_closed, 3) << "the windows that wait for an answer: databases, settings, about";
    EXPECT_EQ(asked.Database->Path(), database);
    Trigger("mExit");
    EXPECT_FALSE(main->isVisible());
    EXPECT_FALSE(asked.Database);
}

TEST_F(MainMenu, KeysDoNotClash) {
    StartAsked(true);
    QMap<QString, QString> taken = {{u"Ctrl+C"_s, u"listSeries"_s}, {u"Ctrl+Shift+C"_s, u"listSeries"_s}};
    const auto take = [&](const QKeySequence &keys, const QString &name) {
        const QString text = keys.toString(QKeySequence::PortableText);
        EXPECT_FALSE(taken.contains(text)) << qPrintable(text + u": "_s + name + u", "_s + taken[text]);
        taken[text] = name;
        // Letters, digits and the keys that move are what lists and boxes take.
        const QKeyCombination first = keys[0];
        const bool function_key = first.key() >= Qt::Key_F1 && first.key() <= Qt::Key_F35;
        EXPECT_TRUE(function_key || (first.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            << qPrintable(text);
    };
    for (const QAction *action : main->findChildren<QAction *>()) {
        for (const QKeySequence &keys : action->shortcuts()) {
            take(keys, action->objectName());
        }
    }
    for (const QShortcut *shortcut : main->findChildren<QShortcut *>()) {
        if (shortcut->context() != Qt::WidgetShortcut) {
            take(shortcut->key(), u"frmMain"_s);
        }
    }
    EXPECT_EQ(taken.value(u"Ctrl+1"_s), u"frmMain"_s);
    EXPECT_EQ(taken.value(u"F10"_s), u"frmMain"_s);
    for (const QAction *menu : main->menuBar()->actions()) {
        const QString mnemonic = QKeySequence::mnemonic(menu->text()).toString(QKeySequence::PortableText);
        EXPECT_FALSE(mnemonic.isEmpty()) << qPrintable(menu->text());
        EXPECT_FALSE(taken.contains(mnemonic)) << qPrintable(mnemonic + taken[mnemonic]);
        taken[mnemonic] = menu->objectName();
    }
}

TEST_F(MainMenu, TheMenusOpenByTheirKey) {
    StartAsked(true);
    main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main.get()));
    QTest::keyClick(List(), Qt::Key_F10);
    auto *file = Control<QMenu>("mFile");
    ASSERT_TRUE(file->isVisible());
    QTest::keyClick(file, Qt::Key_Escape);
    EXPECT_FALSE(file->isVisible());
}

TEST_F(MainMenu, TheTabKeyWalksFromLeftToRight) {
    StartAsked(true);
    for (const bool movies : {true, false}) {
        Trigger(movies ? "mMovies" : "mTVShows");
        ClickRow(0);
        QStringList stops;
        QWidget *at = List();
        do {
            const bool takes = (at->focusPolicy() & Qt::TabFocus) && at->isEnabled() && at->isVisible();
            if (takes && !at->focusProxy()) {
                stops << (at->objectName().isEmpty() ? QString::fromLatin1(at->metaObject()->className())
                                                     : at->objectName());
            }
            at = at->nextInFocusChain();
        } while (at != List());
        const qsizetype first_bar = stops.indexOf(u"SplitBar"_s);
        const QStringList lists = movies
                                      ? QStringList{u"listSeries"_s, u"picMedium"_s, u"picCover"_s, u"tabMain"_s}
                                      : QStringList{u"listSeries"_s, u"listSeasons"_s, u"listEpisodes"_s, u"tabMain"_s};
        EXPECT_EQ(stops.first(lists.size()).join(u' ').toStdString(), lists.join(u' ').toStdString())
            << qPrintable(stops.join(u' '));
        ASSERT_GE(first_bar, lists.size());
        EXPECT_EQ(stops.sliced(stops.lastIndexOf(u"SplitBar"_s) + 1),
                  QStringList({u"SQL"_s, u"ProfileInfo"_s, u"ChangeMode"_s, u"tabColList"_s}) +
                      (movies ? QStringList{u"comboFilter"_s} : QStringList()) + QStringList{u"textFind"_s});
        EXPECT_FALSE(stops.contains(u"ScrollRightButton"_s));
    }
}

TEST_F(MainMenu, TheMenuOfTheTabsIsThatOfTheTabMeant) {
    StartAsked(true);
    auto *tabs = Control<QTabBar>("tabColList");
    ASSERT_GE(tabs->count(), 4);
    tabs->resize(tabs->sizeHint());
    tabs->setCurrentIndex(0);
    ASSERT_GT(tabs->tabAt(tabs->rect().center()), 0);
    EXPECT_EQ(OpenedBy(tabs, QContextMenuEvent::Keyboard), u"mColTabTools"_s);
    EXPECT_EQ(tabs->currentIndex(), 0) << "a key means the tab that is selected";
    const int below = tabs->tabAt(tabs->rect().center());
    EXPECT_EQ(OpenedBy(tabs, QContextMenuEvent::Mouse), u"mColTabTools"_s);
    EXPECT_EQ(tabs->currentIndex(), below) << "the mouse means the one below it";
}

TEST_F(MainMenu, EachListOpensItsContextMenu) {
    StartAsked(true);
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        Trigger("mMovies");
        EXPECT_EQ(OpenedBy(List()->viewport(), reason), u"mProfileTools"_s);
        EXPECT_EQ(OpenedBy(Control<QTabBar>("tabColList"), reason), u"mColTabTools"_s);
        Trigger("mTVShows");
        EXPECT_EQ(OpenedBy(List()->viewport(), reason), u"mSeriesTools"_s);
        EXPECT_EQ(OpenedBy(Control<QTabBar>("tabColList"), reason), QString()) << "TV view has no types";
        EXPECT_EQ(OpenedBy(Control<QComboBox>("listSeasons"), reason), u"mSeasonTools"_s);
        EXPECT_EQ(OpenedBy(Control<QTreeView>("listEpisodes")->viewport(), reason), u"mEpisodeTools"_s);
        EXPECT_FALSE(Action(u"mLockEpisode"_s)->isChecked());
        asked.Database->Execute(u"INSERT INTO Locks (ProfileID, LockName) VALUES ('S11.1', 'Entire')");
        OpenedBy(Control<QTreeView>("listEpisodes")->viewport(), reason);
        EXPECT_TRUE(Action(u"mLockEpisode"_s)->isChecked());
        asked.Database->Execute(u"DELETE FROM Locks WHERE ProfileID = 'S11.1'");
    }
}

TEST_F(MainMenu, AHeaderSortsTheEpisodes) {
    StartAsked(true);
    asked.Database->Execute(u"INSERT INTO Episodes (EpisodeID, SeriesID, Season, EpisodeNo, EpisodeTitle) VALUES "
                            u"('S11.2', 'S1', '1', '2', 'Cobwebs')");
    Trigger("mTVShows");
    auto *list = Control<QTreeView>("listEpisodes");
    const auto titles = [list] {
        QStringList found;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            found << list->model()->index(row, 1).data().toString();
        }
        return found;
    };
    EXPECT_EQ(titles(), (QStringList{u"Dust"_s, u"Cobwebs"_s}));
    const auto click = [list] {
        QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {},
                          QPoint(list->header()->sectionPosition(1) + 20, list->header()->height() / 2));
    };
    click();
    EXPECT_EQ(titles(), (QStringList{u"Cobwebs"_s, u"Dust"_s}));
    EXPECT_EQ(list->currentIndex().row(), 1) << "the episode that is shown";
    EXPECT_EQ(seen.current_episode, 1);
    EXPECT_TRUE(list->header()->isSortIndicatorShown());
    click();
    EXPECT_EQ(titles(), (QStringList{u"Dust"_s, u"Cobwebs"_s}));
    EXPECT_EQ(asked.CurrentProfileID, u"S11.1"_s);
}

TEST_F(MainMenu, AClickOnTheSelectedTitleComesBackFromItsEpisode) {
    {
        const auto file = sql::Database::Open(database);
        file->Execute(u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) SELECT ProfileID, 'S11.1' FROM Profiles");
    }
    StartAsked(true);
    ClickRow(2);
    const QString title = main->windowTitle();
    auto *episodes = Control<QTreeView>("listEpisodes");
    ASSERT_TRUE(episodes->isVisible());
    ASSERT_EQ(episodes->model()->rowCount(), 1);
    QTest::mouseClick(episodes->viewport(), Qt::LeftButton, {},
                      episodes->visualRect(episodes->model()->index(0, 0)).center());
    EXPECT_EQ(main->windowTitle(), u"Dust"_s);
    ClickRow(2);
    EXPECT_EQ(main->windowTitle(), title);
    EXPECT_FALSE(asked.CurrentIsEpisode);
}

TEST_F(MainMenu, TheLanguageIsSwitchedOnAndOffAgain) {
    {
        const auto file = sql::Database::Open(database);
        const char *const words[][2] = {{"&File", "&Datei"},
                                        {"Shows the series", "Zeigt die Serien"},
                                        {"All", "Alle"},
                                        {"Owned", "Eigene"},
                                        {"Details", "Einzelheiten"},
                                        {"Title", "Titel"},
                                        {"Filtered:", "Gefiltert:"},
                                        {"Clear Filter", "Ohne Filter"},
                                        {"TV Shows", "Serien"},
                                        {"Back", "Zurück"},
                                        {"Season", "Staffel"}};
        for (const auto &[english, other] : words) {
            file->Execute(u"DELETE FROM Translation WHERE OriginalString = '%1'"_s.arg(QString::fromUtf8(english)));
            file->Execute(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')"_s.arg(
                QString::fromUtf8(english), QString::fromUtf8(other)));
        }
    }
    StartAsked(true);
    Control<QTabBar>("tabColList")->setCurrentIndex(1);
    const QStringList owned = Titles();
    ASSERT_FALSE(owned.isEmpty());
    for (const bool translated : {true, false}) {
        QTimer::singleShot(0, main.get(), [translated] {
            QWidget *settings = QApplication::activeModalWidget();
            ASSERT_TRUE(settings);
            settings->findChild<QCheckBox *>(u"chkEnableTranslation"_s)->setChecked(translated);
            settings->findChild<QPushButton *>(u"cbOK"_s)->click();
        });
        Trigger("mSettings");
        const auto shown = [translated](const QString &english, const QString &other) {
            return translated ? other : english;
        };
        EXPECT_EQ(Control<QMenu>("mFile")->title(), shown(u"&File"_s, u"&Datei"_s));
        EXPECT_EQ(Action(u"mTVShows"_s)->toolTip(), shown(u"Shows the series"_s, u"Zeigt die Serien"_s));
        EXPECT_EQ(Control<QToolButton>("ChangeMode")->text(), shown(u"TV Shows"_s, u"Serien"_s));
        EXPECT_EQ(Control<QToolButton>("MoveBack")->text(), shown(u"Back"_s, u"Zurück"_s));
        const auto *tabs = Control<QTabBar>("tabColList");
        EXPECT_EQ(tabs->tabText(0), shown(u"All"_s, u"Alle"_s));
        EXPECT_EQ(tabs->tabText(1), shown(u"Owned"_s, u"Eigene"_s));
        EXPECT_EQ(tabs->currentIndex(), 1);
        EXPECT_EQ(Titles(), owned);
        EXPECT_EQ(Control<QTabBar>("tabMain")->tabText(1), shown(u"Details"_s, u"Einzelheiten"_s));
        EXPECT_EQ(List()->model()->headerData(0, Qt::Horizontal).toString(), shown(u"Title"_s, u"Titel"_s));
        EXPECT_TRUE(Control<QLabel>("labelFilterCount")->text().startsWith(shown(u"Filtered:"_s, u"Gefiltert:"_s)));
        EXPECT_EQ(Control<QComboBox>("comboFilter")->itemText(0), shown(u"Clear Filter"_s, u"Ohne Filter"_s));
        EXPECT_EQ(Control<QComboBox>("listSeasons")->accessibleName(), shown(u"Season"_s, u"Staffel"_s));
    }
}

} // namespace
} // namespace ostrand
