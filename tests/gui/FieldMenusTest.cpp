// Locks and values of single fields, changed from the panels, and what is done to several selected profiles.
#include "MainWindowFixture.h"
#include "browser/ui/FieldText.h"
#include "browser/ui/PanelList.h"
#include "browser/ui/PictureView.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFrame>
#include <QMenu>
#include <QTabBar>
#include <QTimer>

namespace ostrand::test {
namespace {

using namespace Qt::StringLiterals;

class FieldMenus : public MainWindowTest {
protected:
    void Open(int tab, const QStringList &more = {}) {
        QStringList statements = {
            u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType, ColNo, Medium, Runtime, Rating, CaseType, "
            "MD5) VALUES ('Key_77', 'Aardvark', 'Aardvark', 'Owned', '7', 'dvd', 95, 'PG', 'Digipak', 'abc')"_s,
            u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('Key_78', 'Abacus', 'Abacus', "
            "'Owned')"_s,
            u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('Key_79', 'Abbey', 'Abbey', "
            "'Owned')"_s,
            u"DELETE FROM DbInfo WHERE InfoName = 'LastTab'"_s,
            u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('LastTab', '%1')"_s.arg(tab)};
        Start(statements + more);
        ClickRow(RowOf(u"Aardvark"_s));
        ASSERT_EQ(session.CurrentProfileID, u"Key_77"_s);
    }
    QStringList Query(const QString &sql) {
        QStringList rows;
        sql::Recordset record = session.Database->OpenRecordset(sql);
        for (; !record.Eof(); record.MoveNext()) {
            rows << record.Text(0);
        }
        return rows;
    }
    QStringList Locks() {
        return Query(
            u"SELECT ProfileID & ':' & LockName FROM Locks WHERE ProfileID LIKE 'Key_7*' ORDER BY ProfileID"_s);
    }
    QString Value(const QString &column) {
        return Query(u"SELECT "_s + column + u" FROM Profiles WHERE ProfileID = 'Key_77'"_s).value(0);
    }
    /// What the right button on a control opens.
    QMenu *RightClick(QWidget *control, const QPoint &at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, control->mapToGlobal(at));
        QApplication::sendEvent(control, &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    /// The same, with what to do while the menu is open.
    void WithMenu(QWidget *control, const std::function<void(QMenu &menu)> &action) {
        QMenu *menu = RightClick(control, control->rect().center());
        ASSERT_TRUE(menu) << qPrintable(control->objectName());
        action(*menu);
        menu->close();
    }
    static QAction *Entry(const QMenu &menu, const QString &name) {
        for (QAction *action : menu.actions()) {
            if (action->objectName() == name) {
                return action;
            }
        }
        return nullptr;
    }
    void AnswerInput(const QString &label, const std::optional<QString> &answer) {
        services.dialogs.ExpectInput(u"Enter new value for "_s + label, answer);
    }
    void SelectRows(std::initializer_list<const char16_t *> titles) {
        bool first = true;
        for (const char16_t *title : titles) {
            const QModelIndex index = List()->model()->index(RowOf(QString::fromUtf16(title)), 0);
            List()->scrollTo(index);
            QTest::mouseClick(List()->viewport(), Qt::LeftButton, first ? Qt::NoModifier : Qt::ControlModifier,
                              List()->visualRect(index).center());
            first = false;
        }
    }
    QStringList SelectedTitles() {
        QStringList titles;
        for (const int row : browser.hooks.selected_rows()) {
            titles << Titles()[row].trimmed();
        }
        return titles;
    }
};

TEST_F(FieldMenus, TheRightButtonShowsTheStateOfTheLock) {
    Open(2);
    auto *text = Control<FieldText>("textCaseType");
    WithMenu(text, [](QMenu &menu) {
        EXPECT_EQ(menu.objectName(), u"mLockTools"_s);
        EXPECT_FALSE(Entry(menu, u"mLockField"_s)->isChecked());
        EXPECT_TRUE(Entry(menu, u"mChangeField"_s)->isEnabled());
        EXPECT_TRUE(Entry(menu, u"mCopyField"_s)->isEnabled());
        Entry(menu, u"mLockField"_s)->trigger();
    });
    EXPECT_EQ(Locks(), QStringList{u"Key_77:CaseType"_s});
    WithMenu(Control<FieldText>("textRating"),
             [](QMenu &menu) { EXPECT_FALSE(Entry(menu, u"mLockField"_s)->isChecked()); });
    WithMenu(text, [](QMenu &menu) {
        EXPECT_TRUE(Entry(menu, u"mLockField"_s)->isChecked());
        Entry(menu, u"mLockField"_s)->trigger();
    });
    EXPECT_EQ(Locks(), QStringList());
    WithMenu(Control<FieldText>("textRegions"), [](QMenu &menu) {
        EXPECT_TRUE(Entry(menu, u"mLockField"_s)->isEnabled());
        EXPECT_FALSE(Entry(menu, u"mChangeField"_s)->isEnabled());
    });
    WithMenu(text, [](QMenu &menu) { Entry(menu, u"mCopyField"_s)->trigger(); });
    EXPECT_EQ(services.clipboard.Text(), u"Case Type: Digipak"_s);
}

TEST_F(FieldMenus, AllThatHasALockOffersIt) {
    const struct {
        int tab;
        const char *control;
        const char *entry;
        QString lock;
    } cases[] = {
        {2, "textTitle", "mLockField", u"Title"_s},        {2, "listGenres", "mLockValues", u"Genres"_s},
        {2, "listStudios", "mLockValues", u"Studios"_s},   {2, "listFeatures", "mLockValues", u"Features"_s},
        {3, "listAudio", "mLockValues", u"AudioTracks"_s}, {3, "listSubtitles", "mLockValues", u"Subtitles"_s},
        {3, "textRatio", "mLockField", u"VideoFormats"_s}, {3, "frameVideo", "mLockField", u"VideoFormats"_s},
        {3, "picMedium", "mLockField", u"Medium"_s},       {3, "picCover", "mLockCovers", u"Covers"_s},
    };
    Open(2);
    for (const auto &c : cases) {
        Control<QTabBar>("tabMain")->setCurrentIndex(c.tab - 1);
        auto *control = Control<QWidget>(c.control);
        auto *list = qobject_cast<PanelList *>(control);
        const auto flip = [&](bool before) {
            bool opened = false;
            // The list runs its menu in a loop of its own.
            const auto look = [&] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                if (menu == nullptr) {
                    return;
                }
                opened = true;
                QAction *entry = Entry(*menu, QLatin1String(c.entry));
                EXPECT_TRUE(entry && entry->isEnabled()) << c.control;
                if (entry) {
                    EXPECT_EQ(entry->isChecked(), before) << c.control;
                    entry->trigger();
                }
                menu->close();
            };
            if (list) {
                QTimer::singleShot(0, list, look);
            }
            RightClick(list ? list->viewport() : control, control->rect().center());
            if (!list) {
                look();
            }
            EXPECT_TRUE(opened) << c.control;
        };
        flip(false);
        EXPECT_EQ(Locks(), QStringList{u"Key_77:"_s + c.lock}) << c.control;
        flip(true);
        EXPECT_EQ(Locks(), QStringList()) << c.control;
    }
}

TEST_F(FieldMenus, F2AndADoubleClickChangeAField) {
    Open(2);
    auto *rating = Control<FieldText>("textRating");
    rating->setFocus();
    ASSERT_TRUE(rating->hasFocus());
    AnswerInput(u"Rating"_s, u"Free"_s);
    QTest::keyClick(rating, Qt::Key_F2);
    EXPECT_EQ(rating->text(), u"Rating: Free"_s);
    EXPECT_EQ(Value(u"Rating"_s), u"Free"_s);
    EXPECT_EQ(Value(u"MD5"_s), QString());
    EXPECT_EQ(Locks(), QStringList());
    EXPECT_TRUE(rating->hasFocus()) << "for the next change";
    AnswerInput(u"Rating"_s, std::nullopt);
    QTest::keyClick(rating, Qt::Key_Return);
    EXPECT_EQ(Value(u"Rating"_s), u"Free"_s);
    auto *runtime = Control<FieldText>("textRuntime");
    AnswerInput(u"Running Time"_s, u"61"_s);
    QTest::mouseDClick(runtime, Qt::LeftButton);
    EXPECT_EQ(runtime->text(), u"Runtime: 61 min (01:01)"_s);
    AnswerInput(u"Running Time"_s, u"an hour"_s);
    services.dialogs.ExpectMessage(u"The data you have entered is invalid for Running Time"_s, MessageIcon::Warning,
                                   MessageAnswer::Ok, u"Invalid Input!"_s);
    WithMenu(runtime, [](QMenu &menu) { Entry(menu, u"mChangeField"_s)->trigger(); });
    EXPECT_EQ(Value(u"Runtime"_s), u"61"_s);
}

TEST_F(FieldMenus, AChangeLocksTheFieldWhereTheSettingsSaySo) {
    Open(2, {u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('AutoLock', 'True')"_s});
    AnswerInput(u"Title"_s, u"Zebra"_s);
    QTest::mouseDClick(Control<FieldText>("textTitle"), Qt::LeftButton);
    EXPECT_EQ(Locks(), QStringList{u"Key_77:Title"_s});
    EXPECT_EQ(Selected(), u"Zebra"_s) << "the row in the list follows";
    EXPECT_TRUE(main->windowTitle().startsWith(u"Zebra"_s));
}

TEST_F(FieldMenus, TheKeyboardReachesEachField) {
    Open(2);
    auto *last = Control<FieldText>("textLocality");
    Control<FieldText>("textTitle")->setFocus();
    QStringList reached;
    for (int i = 0; i < 12 && QApplication::focusWidget() != last; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(reached,
              (QStringList{u"textSortTitle"_s, u"textOriginalTitle"_s, u"textOriginalSortTitle"_s,
                           u"textCollectionNumber"_s, u"textCollectionType"_s, u"textReleaseDate"_s, u"textRuntime"_s,
                           u"textRating"_s, u"textCaseType"_s, u"textRegions"_s, u"textLocality"_s}));
}

TEST_F(FieldMenus, TheKeyboardReachesTheMedium) {
    Open(2);
    main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main.get()));
    auto *medium = Control<QWidget>("picMedium");
    List()->setFocus();
    QTest::keyClick(List(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), medium);
    QTest::keyClick(medium, Qt::Key_F10, Qt::ShiftModifier);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->objectName(), u"mLockTools"_s);
    Entry(*menu, u"mLockField"_s)->trigger();
    menu->close();
    EXPECT_EQ(Locks(), QStringList{u"Key_77:Medium"_s});
    AnswerInput(u"Medium"_s, u"Blu-ray"_s);
    QTest::keyClick(medium, Qt::Key_F2);
    EXPECT_EQ(Value(u"Medium"_s), u"Blu-ray"_s);
    AnswerInput(u"Medium"_s, u"VHS"_s);
    QTest::mouseDClick(medium, Qt::LeftButton);
    EXPECT_EQ(Value(u"Medium"_s), u"VHS"_s);
    const QImage focused = medium->grab().toImage();
    List()->setFocus();
    EXPECT_NE(focused, medium->grab().toImage()) << "the focus shows";
    Trigger("mTVShows");
    EXPECT_EQ(medium->focusPolicy(), Qt::NoFocus);
}

TEST_F(FieldMenus, ShiftF10OpensTheMenuOfTheControlWithTheFocus) {
    Open(2);
    main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main.get()));
    const struct {
        const char *control;
        QString menu;
    } cases[] = {{"textRating", u"mLockTools"_s}, {"listSeries", u"mProfileTools"_s}};
    for (const auto &c : cases) {
        auto *control = Control<QWidget>(c.control);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_F10, Qt::ShiftModifier);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << c.control;
        EXPECT_EQ(menu->objectName(), c.menu);
        menu->close();
    }
}

TEST_F(FieldMenus, TheMenusOfTheListsLockTheWholeTitle) {
    Open(1);
    WithMenu(List()->viewport(), [](QMenu &menu) {
        EXPECT_EQ(menu.objectName(), u"mProfileTools"_s);
        EXPECT_FALSE(Entry(menu, u"mLockProfile"_s)->isChecked());
        Entry(menu, u"mLockProfile"_s)->trigger();
    });
    EXPECT_EQ(Locks(), QStringList{u"Key_77:Entire"_s});
    WithMenu(List()->viewport(), [](QMenu &menu) { EXPECT_TRUE(Entry(menu, u"mLockProfile"_s)->isChecked()); });
    Trigger("mTVShows");
    auto *episodes = Control<QTreeView>("listEpisodes");
    WithMenu(episodes->viewport(), [](QMenu &menu) {
        EXPECT_FALSE(Entry(menu, u"mLockEpisode"_s)->isChecked());
        Entry(menu, u"mLockEpisode"_s)->trigger();
    });
    WithMenu(episodes->viewport(), [](QMenu &menu) { EXPECT_TRUE(Entry(menu, u"mLockEpisode"_s)->isChecked()); });
    EXPECT_EQ(Query(u"SELECT ProfileID FROM Locks WHERE LockName = 'Entire' AND ProfileID LIKE 'S1*'"_s),
              QStringList{u"S11.1"_s});
}

TEST_F(FieldMenus, RemovingAsksFirstAndGoesToTheNextTitle) {
    Open(1);
    const QString question = u"Remove this profile and all its data from the database?\n\nAardvark"_s;
    services.dialogs.ExpectMessage(question, MessageAnswer::No);
    Trigger("mRemoveProfileInEdit");
    EXPECT_EQ(Value(u"Title"_s), u"Aardvark"_s);
    services.dialogs.ExpectMessage(question, MessageIcon::Question, MessageAnswer::Yes, u"Remove Profile?"_s);
    QTest::keyClick(List(), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(Value(u"Title"_s), QString());
    EXPECT_EQ(Selected(), u"Abacus"_s);
    EXPECT_EQ(session.CurrentProfileID, u"Key_78"_s);
}

TEST_F(FieldMenus, SeveralRowsAreSelectedWithTheMouseAndTheKeyboard) {
    Open(1);
    SelectRows({u"Aardvark", u"Abbey"});
    EXPECT_EQ(SelectedTitles(), (QStringList{u"Aardvark"_s, u"Abbey"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"Key_79"_s) << "the last one is shown";
    SelectRows({u"Aardvark"});
    EXPECT_EQ(SelectedTitles(), QStringList{u"Aardvark"_s});
    QTest::keyClick(List(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(List(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(SelectedTitles(), (QStringList{u"Aardvark"_s, u"Abacus"_s, u"Abbey"_s}));
    EXPECT_EQ(session.CurrentProfileID, u"Key_79"_s);
    QTest::keyClick(List(), Qt::Key_Up);
    EXPECT_EQ(SelectedTitles(), QStringList{u"Abacus"_s});
    Trigger("mTVShows");
    EXPECT_EQ(List()->selectionMode(), QAbstractItemView::SingleSelection);
    Trigger("mMovies");
    EXPECT_EQ(List()->selectionMode(), QAbstractItemView::ExtendedSelection);
}

TEST_F(FieldMenus, TheSelectedProfilesAreLockedMovedAndRemoved) {
    Open(1);
    SelectRows({u"Aardvark", u"Abbey"});
    Trigger("mLockSelectedProfiles");
    EXPECT_EQ(Locks(), (QStringList{u"Key_77:Entire"_s, u"Key_79:Entire"_s}));
    Trigger("mUnlockSelectedProfiles");
    EXPECT_EQ(Locks(), QStringList());
    services.dialogs.ExpectInput(u"Move the selected profiles to:"_s, u"Ordered"_s, u"Collection Type"_s);
    Trigger("mMoveSelected");
    EXPECT_EQ(Query(u"SELECT ColType FROM Profiles WHERE ProfileID LIKE 'Key_7*' ORDER BY ProfileID"_s),
              (QStringList{u"Ordered"_s, u"Owned"_s, u"Ordered"_s}));
    SelectRows({u"Aardvark", u"Abacus"});
    services.dialogs.ExpectMessage(u"Remove all selected profiles and their data from the database?\n\nProfiles: 2"_s,
                                   MessageAnswer::Yes);
    Trigger("mRemoveSelected");
    EXPECT_EQ(Query(u"SELECT ProfileID FROM Profiles WHERE ProfileID LIKE 'Key_7*'"_s), QStringList{u"Key_79"_s});
    EXPECT_EQ(Selected(), u"Abbey"_s);
}

} // namespace
} // namespace ostrand::test
