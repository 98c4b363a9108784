#include "MainWindowFixture.h"

#include "browser/ui/ActorView.h"
#include "browser/ui/FractionColumns.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QStackedLayout>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// The sample collection with one title whose credits are known.
class CreditsWindow : public test::MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        headshots = services.folders.dir / u"headshots"_s + u'/';
        QDir().mkpath(headshots);
        session.services.clipboard.SetText({});
    }
    void StartWith(const QStringList &more = {}) {
        const auto credit = [](const QString &name, const QString &role, int position, bool cast, int year = 0) {
            return u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('T1', '%1', "
                   "'%2', %3, %4, %5)"_s.arg(name, role, QString::number(position), cast ? u"True"_s : u"False"_s,
                                             QString::number(year));
        };
        Start(QStringList{u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('T1', 'Aaa Test', "
                          "'Aaa Test', 'Owned')"_s,
                          u"INSERT INTO Profiles (ProfileID, Title, SortTitle, ColType) VALUES ('T2', 'Aab Other', "
                          "'Aab Other', 'Owned')"_s,
                          credit(u"Wanda Quill"_s, u"Keeper"_s, 1, true), credit(u"Crowd"_s, u"[DivGroup]"_s, 2, true),
                          credit(u"Tom Vesper"_s, u"Diver"_s, 3, true, 1950),
                          credit(u"Ida Loom"_s, u"Director"_s, 4, false), credit(u"Cy Barn"_s, u"Baker"_s, 5, false),
                          u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES ('T2', "
                          "'Wanda Quill', 'Cook', 1, True, 0)"_s,
                          u"INSERT INTO Awards (Award, Year, Category, MovieTitle, Nominee, Won) VALUES ('Golden "
                          "Gull', 2001, 'Actress', 'Aab Other', 'Wanda Quill & Co', True)"_s,
                          u"DELETE FROM DbInfo WHERE InfoName = 'HeadshotPath'"_s,
                          u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('HeadshotPath', '%1')"_s.arg(headshots)} +
              more);
        main->resize(1200, 800);
        ClickRow(RowOf(u"Aaa Test"_s));
        QCoreApplication::processEvents();
    }
    void Draw(const QString &name) {
        QImage image(40, 60, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        ASSERT_TRUE(image.save(headshots + name));
    }
    QTreeView *View(const char *name) { return Control<QTreeView>(name); }
    QStringList Column(const char *name, int column = 0) {
        QStringList texts;
        const QAbstractItemModel &model = *View(name)->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            texts += model.index(row, column).data().toString();
        }
        return texts;
    }
    void Click(const char *name, const QModelIndex &index, bool twice = false) {
        QTreeView *view = View(name);
        view->scrollTo(index);
        const QPoint place = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
        if (twice) {
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
        }
    }
    void Click(const char *name, int row, bool twice = false) {
        Click(name, View(name)->model()->index(row, 0), twice);
    }
    void ClickHeader(const char *name, int column) {
        QHeaderView *header = View(name)->header();
        const QPoint place(header->sectionViewportPosition(column) + 10, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }
    QString MenuOf(const char *name) {
        auto *widget = Control<QWidget>(name);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget->mapToGlobal(QPoint(5, 5)));
        auto *view = qobject_cast<QAbstractScrollArea *>(widget);
        QApplication::sendEvent(view ? view->viewport() : widget, &event);
        auto *popup = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        const QString found = popup ? popup->objectName() : QString();
        if (popup) {
            popup->close();
        }
        return found;
    }

    QString headshots;
};

TEST_F(CreditsWindow, ShowsCastAndCrewOfTheTitle) {
    StartWith();
    EXPECT_EQ(Column("ListCast"), (QStringList{u"Wanda Quill"_s, {}, u"Crowd"_s, u"  Tom Vesper"_s}));
    EXPECT_TRUE(View("treeCrew")->isVisible());
    EXPECT_FALSE(View("ListCrew")->isVisible());
    EXPECT_EQ(Column("treeCrew"), (QStringList{u"Direction"_s, u"Other"_s}));
    EXPECT_TRUE(View("treeCrew")->isExpanded(View("treeCrew")->model()->index(0, 0)));
    Trigger("mHideUnassignedCrew");
    EXPECT_EQ(Column("treeCrew"), QStringList{u"Direction"_s});
    Trigger("mCrewTreeView");
    EXPECT_FALSE(View("treeCrew")->isVisible());
    EXPECT_TRUE(View("ListCrew")->isVisible());
    EXPECT_EQ(Column("ListCrew"), (QStringList{u"Ida Loom"_s, u"Cy Barn"_s}));
    Trigger("mReverseCredit");
    EXPECT_EQ(Column("ListCast").first(), u"Quill, Wanda"_s);
}

TEST_F(CreditsWindow, ASelectedPersonFillsTheOtherPanels) {
    Draw(u"Wanda Quill.jpg"_s);
    Draw(u"Wanda Quill_1.jpg"_s);
    StartWith();
    auto *picture = Control<ActorView>("picActor");
    EXPECT_FALSE(picture->isVisible());
    Click("ListCast", 0);
    EXPECT_TRUE(picture->isVisible());
    EXPECT_TRUE(picture->File().endsWith(u"Wanda Quill.jpg"_s));
    EXPECT_TRUE(picture->HasPicture());
    EXPECT_EQ(Column("listAppearences"), (QStringList{u"Aaa Test"_s, u"Aab Other"_s}));
    EXPECT_TRUE(View("listAppearences")->isColumnHidden(4));
    EXPECT_EQ(Control<QLabel>("labelAwards")->text(), u"Awards for Wanda Quill"_s);
    EXPECT_EQ(Column("treeAwards"), QStringList{u"Golden Gull"_s});
    QTest::mouseClick(picture, Qt::LeftButton);
    EXPECT_TRUE(picture->File().endsWith(u"Wanda Quill_1.jpg"_s));
    QTest::keyClick(picture, Qt::Key_Space);
    EXPECT_TRUE(picture->File().endsWith(u"Wanda Quill.jpg"_s));
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_PageUp}) {
        QTest::keyClick(View("ListCast"), key);
        const bool end = key == Qt::Key_End || key == Qt::Key_PageDown;
        EXPECT_EQ(browser.credits.selected_name, end ? u"Tom Vesper"_s : u"Wanda Quill"_s);
        EXPECT_EQ(browser.credits.selected_birth_year, end ? u"1950"_s : u"0"_s);
        EXPECT_EQ(picture->isVisible(), !end);
    }
    const QModelIndex direction = View("treeCrew")->model()->index(0, 0);
    Click("treeCrew", direction.model()->index(0, 0, direction));
    EXPECT_EQ(browser.credits.selected_name, u"Ida Loom"_s);
    Click("treeCrew", 0);
    EXPECT_EQ(browser.credits.selected_name, u"Ida Loom"_s) << "a category is nobody";
    Click("ListCast", 0);
    EXPECT_EQ(browser.credits.selected_name, u"Wanda Quill"_s) << "the row that was selected all the time";
    ClickRow(RowOf(u"Aab Other"_s));
    EXPECT_FALSE(picture->isVisible());
    EXPECT_EQ(Column("listAppearences"), QStringList());
}

TEST_F(CreditsWindow, HeadersSortAndMove) {
    StartWith({u"DELETE FROM DbInfo WHERE InfoName = 'CastOrderColumns'"_s,
               u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CastOrderColumns', '3,1,2')"_s});
    QHeaderView *header = View("ListCast")->header();
    EXPECT_FALSE(header->isSortIndicatorShown()) << "the order they come in";
    EXPECT_EQ(header->visualIndex(0), 2) << "the stored places";
    EXPECT_EQ(header->visualIndex(2), 1);
    header->moveSection(2, 0);
    EXPECT_EQ(session.view.CastOrderColumns, (QList<int>{1, 2, 3}));
    ClickHeader("ListCast", 0);
    EXPECT_TRUE(header->isSortIndicatorShown());
    EXPECT_EQ(header->sortIndicatorSection(), 0);
    EXPECT_EQ(Column("ListCast").first(), u"Wanda Quill"_s);
    ClickHeader("ListCast", 0);
    EXPECT_EQ(Column("ListCast").last(), u"Wanda Quill"_s);
    Click("ListCast", 3);
    ClickHeader("listAppearences", 0);
    EXPECT_EQ(Column("listAppearences"), (QStringList{u"Aaa Test"_s, u"Aab Other"_s}));
    ClickHeader("listAppearences", 0);
    EXPECT_EQ(Column("listAppearences"), (QStringList{u"Aab Other"_s, u"Aaa Test"_s}));
    View("listAppearences")->header()->moveSection(3, 0);
    EXPECT_EQ(session.view.AppearancesOrderColumns, (QList<int>{2, 3, 4, 1}));
}

TEST_F(CreditsWindow, AllTabsAreInSight) {
    StartWith();
    auto *tabs = Control<QTabBar>("tabMain");
    main->resize(1280, 800);
    const struct {
        QStringList texts;
        bool whole;
    } cases[] = {{{u"Besetzung/Stab"_s, u"Details"_s, u"Ton/Bild"_s}, true},
                 {{u"Distribution et \u00e9quipe technique"_s, u"D\u00e9tails"_s, u"Audio/Vid\u00e9o"_s}, false}};
    for (const auto &c : cases) {
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setTabText(i, c.texts[i]);
        }
        QCoreApplication::processEvents();
        const QRect last = tabs->tabRect(2);
        EXPECT_EQ(tabs->tabRect(0).left(), 0);
        EXPECT_LE(last.right(), tabs->width()) << qPrintable(c.texts[0]);
        EXPECT_EQ(last.right() + 1 >= tabs->sizeHint().width(), c.whole) << qPrintable(c.texts[0]);
        for (const QToolButton *scroll : tabs->findChildren<QToolButton *>()) {
            EXPECT_FALSE(scroll->isVisible());
        }
    }
    EXPECT_EQ(tabs->tabToolTip(1), u"Details"_s);
}

TEST_F(CreditsWindow, AppearancesLeadToTheirTitles) {
    StartWith();
    Click("ListCast", 0);
    Click("listAppearences", 1);
    EXPECT_EQ(session.CurrentProfileID, u"T2"_s);
    EXPECT_EQ(Column("ListCast").size(), 4) << "the credits stay";
    EXPECT_EQ(Selected(), u"Aaa Test"_s);
    QTest::keyClick(View("listAppearences"), Qt::Key_Up);
    EXPECT_EQ(session.CurrentProfileID, u"T1"_s);
    Click("listAppearences", 1, true);
    EXPECT_EQ(Selected(), u"Aab Other"_s);
    EXPECT_EQ(Column("ListCast"), QStringList{u"Wanda Quill"_s});
    Click("ListCast", 0);
    View("listAppearences")->setCurrentIndex(View("listAppearences")->model()->index(0, 0));
    Trigger("mGotoAppearance");
    EXPECT_EQ(Selected(), u"Aaa Test"_s);
}

TEST_F(CreditsWindow, ChildrenOfABoxsetAreClicked) {
    StartWith({u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('T2', 'T1')"_s,
               u"INSERT INTO BoxSet (ChildID, BoxSetID) SELECT TOP 1 ProfileID, 'T2' FROM Profiles WHERE ProfileID NOT "
               "IN ('T1', 'T2') ORDER BY ProfileID"_s});
    EXPECT_EQ(Column("listAppearences"), QStringList{u"Aab Other"_s});
    EXPECT_EQ(View("listAppearences")->header()->count(), 1);
    Click("listAppearences", 0, true);
    EXPECT_EQ(session.CurrentProfileID, u"T2"_s) << "the second click of two does not meet the new list";
}

TEST_F(CreditsWindow, ADoubleClickAsksForAppearances) {
    StartWith();
    services.dialogs.ExpectInput(u"Find appearences for:"_s, std::nullopt);
    Click("ListCast", 0, true);
    EXPECT_EQ(services.dialogs.last_preset, u"Wanda Quill"_s);
    Click("ListCast", 2, true); // a caption
    const QModelIndex direction = View("treeCrew")->model()->index(0, 0);
    services.dialogs.ExpectInput({}, std::nullopt);
    Click("treeCrew", direction.model()->index(0, 0, direction), true);
    EXPECT_EQ(services.dialogs.last_preset, u"Ida Loom"_s);
    services.dialogs.ExpectInput({}, u"Wanda Quill"_s);
    Trigger("mFindApperances");
    EXPECT_EQ(Column("listAppearences").size(), 2);
}

TEST_F(CreditsWindow, ListsAreCopied) {
    StartWith();
    const struct {
        const char *list;
        QString text;
    } cases[] = {
        {"ListCast",
         u"Name\tRole\tPosition\r\nWanda Quill\tKeeper\t  1\r\n\t\t\r\nCrowd\t\t\r\n  Tom Vesper\tDiver\t  3\r\n"_s},
        {"treeCrew", u"Direction\r\n\tIda Loom: Director\r\nOther\r\n\tCy Barn: Baker\r\n"_s},
        {"listAppearences", u"Movie/Series\tRole\tEpisode Title\tCredited as\tSort\r\nAaa Test\tKeeper\t\t\tAaa "
                            "Test\r\nAab Other\tCook\t\t\tAab Other\r\n"_s},
        {"treeAwards", u"Golden Gull\r\n\tWon\r\n\t\tActress (2001) Aab Other\r\n"_s},
    };
    Click("ListCast", 0);
    for (const auto &c : cases) {
        QTest::keyClick(View(c.list), Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(services.clipboard.Text().toStdString(), c.text.toStdString()) << c.list;
    }
    Trigger("mCopyCastList");
    EXPECT_TRUE(services.clipboard.Text().contains(u"<Title>Aaa Test</Title>"_s));
}

TEST_F(CreditsWindow, ContextMenusOpen) {
    Draw(u"Wanda Quill.jpg"_s);
    StartWith();
    Click("ListCast", 0);
    const struct {
        const char *control;
        QString menu;
    } cases[] = {{"ListCast", u"mCastTools"_s},
                 {"treeCrew", u"mCrewTools"_s},
                 {"picActor", u"mHeadshotTools"_s},
                 {"listAppearences", u"mToolsAppearances"_s},
                 {"treeAwards", u"mAwardTools"_s}};
    for (const auto &c : cases) {
        EXPECT_EQ(MenuOf(c.control), c.menu) << c.control;
    }
    EXPECT_FALSE(Action(u"mLockCast"_s)->isChecked());
    Trigger("mLockCast");
    MenuOf("ListCast");
    EXPECT_TRUE(Action(u"mLockCast"_s)->isChecked());
    MenuOf("treeCrew");
    EXPECT_FALSE(Action(u"mLockCrew"_s)->isChecked());
    MenuOf("picActor");
    for (const char16_t *name : {u"mNextHeadshot", u"mDownloadHeadshotFromURL", u"mDownloadHeadshotCast",
                                 u"mDownloadHeadshotCrew", u"mAddAliasCast", u"mAddAliasCrew"}) {
        EXPECT_TRUE(Action(QString::fromUtf16(name))->isEnabled()) << QString::fromUtf16(name).toStdString();
    }
    EXPECT_FALSE(Action(u"mSetHeadshotAsPrimary"_s)->isEnabled());
    Draw(u"Wanda Quill_1.jpg"_s);
    Trigger("mNextHeadshot");
    MenuOf("picActor");
    Trigger("mSetHeadshotAsPrimary");
    EXPECT_TRUE(Control<ActorView>("picActor")->File().endsWith(u"Wanda Quill.jpg"_s));
    ClickRow(RowOf(u"Aab Other"_s));
    MenuOf("ListCast");
    EXPECT_FALSE(Action(u"mAddAliasCast"_s)->isEnabled()) << "nobody is selected";
}

TEST_F(CreditsWindow, RowsStaySelectedWhenTheyComeAnew) {
    Draw(u"Tom Vesper.jpg"_s);
    Draw(u"Ida Loom.jpg"_s);
    StartWith();
    Click("ListCast", 3);
    ASSERT_EQ(browser.credits.selected_name, u"Tom Vesper"_s);
    const auto *picture = Control<ActorView>("picActor");
    Trigger("mReverseCredit");
    const QModelIndex diver = View("ListCast")->currentIndex();
    EXPECT_EQ(diver.data().toString(), u"  Vesper, Tom"_s);
    EXPECT_TRUE(View("ListCast")->selectionModel()->isSelected(diver));
    EXPECT_TRUE(picture->File().endsWith(u"Tom Vesper.jpg"_s));
    const QModelIndex direction = View("treeCrew")->model()->index(0, 0);
    Click("treeCrew", direction.model()->index(0, 0, direction));
    ASSERT_EQ(browser.credits.selected_name, u"Ida Loom"_s);
    Trigger("mHideUnassignedCrew");
    EXPECT_EQ(View("treeCrew")->currentIndex().data().toString(), u"Loom, Ida: Director"_s);
    EXPECT_EQ(browser.credits.selected_name, u"Ida Loom"_s);
    EXPECT_TRUE(picture->File().endsWith(u"Ida Loom.jpg"_s));
    ClickRow(RowOf(u"Aab Other"_s));
    EXPECT_FALSE(View("ListCast")->currentIndex().isValid()) << "other credits";
}

TEST_F(CreditsWindow, FollowsTheWindowsThatChangePeople) {
    StartWith();
    Click("ListCast", 0);
    ClickHeader("listAppearences", 0);
    Click("listAppearences", 0);
    ASSERT_EQ(Column("listAppearences"), (QStringList{u"Aaa Test"_s, u"Aab Other"_s}));
    const auto run = [this](const char *command, const std::function<void()> &change) {
        QTimer::singleShot(0, main.get(), [change] {
            QWidget *window = QApplication::activeModalWidget();
            ASSERT_TRUE(window);
            change();
            window->close();
        });
        Trigger(command);
    };
    run("mEditCrossLinks", [this] {
        session.Database->Execute(u"INSERT INTO CastCrew (ProfileID, Name, Role, Position, IsCast, BirthYear) VALUES "
                                  u"('T2', 'W. Quill', 'Voice', 2, True, 0)");
        session.Database->Execute(
            u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('W. Quill', 'Wanda Quill', 0)");
    });
    EXPECT_EQ(Column("listAppearences"), (QStringList{u"Aaa Test"_s, u"Aab Other"_s, u"Aab Other"_s}));
    EXPECT_EQ(View("listAppearences")->currentIndex().data().toString(), u"Aaa Test"_s);
    EXPECT_EQ(browser.appearances.current_row, 0);
    EXPECT_EQ(View("ListCast")->currentIndex().row(), 0);
    for (const char *command : {"mManageHeadshots", "mHeadshotImport"}) {
        QFile::remove(headshots + u"Wanda Quill.jpg"_s);
        run(command, [this] { Draw(u"Wanda Quill.jpg"_s); });
        EXPECT_TRUE(Control<ActorView>("picActor")->isVisible()) << command;
        EXPECT_TRUE(View("ListCast")->currentIndex().data(CreditList::HeadshotRole).toBool()) << command;
    }
}

TEST_F(CreditsWindow, TheCoverAndThePersonFillTheWidth) {
    const QString covers = services.folders.dir / u"covers"_s + u'/';
    QDir().mkpath(covers);
    QImage cover(100, 140, QImage::Format_RGB32);
    cover.fill(Qt::darkRed);
    ASSERT_TRUE(cover.save(covers + u"T1f.jpg"_s));
    ASSERT_TRUE(QImage(600, 900, QImage::Format_RGB32).save(headshots + u"Wanda Quill.jpg"_s));
    Draw(u"Tom Vesper.jpg"_s); // smaller than the panel, and not to grow
    StartWith({u"DELETE FROM DbInfo WHERE InfoName = 'CoverPath'"_s,
               u"INSERT INTO DbInfo (InfoName, InfoValue) VALUES ('CoverPath', '%1')"_s.arg(covers),
               u"INSERT INTO Profile2Episodes (ProfileID, EpisodeID) VALUES ('T1', 'S11.1')"_s});
    main->resize(1000, 1400);
    QCoreApplication::processEvents();
    const auto ratio = [this](const char *name) {
        const auto *picture = Control<QWidget>("Frame4_1")->findChild<QWidget *>(QLatin1String(name));
        return double(picture->height()) / picture->width();
    };
    EXPECT_NEAR(ratio("picCover"), 1.4, 0.03);
    Click("ListCast", 0);
    QCoreApplication::processEvents();
    EXPECT_NEAR(ratio("picCover"), 1.4, 0.03);
    EXPECT_NEAR(ratio("picActor"), 1.5, 0.03);
    session.view.DoNotResizeHeadshots = true;
    Click("ListCast", 3);
    QCoreApplication::processEvents();
    EXPECT_NEAR(ratio("picCover"), 1.4, 0.03);
    EXPECT_NEAR(Control<ActorView>("picActor")->HeightAt(200), 60, 1);
    Click("ListCast", 0);
    session.Database->Execute(u"DELETE FROM Profile2Episodes");
    ClickRow(RowOf(u"Aab Other"_s));
    ClickRow(RowOf(u"Aaa Test"_s));
    Click("ListCast", 0);
    QCoreApplication::processEvents();
    EXPECT_NEAR(ratio("picCover"), 1.4, 0.03) << "nothing below, and the person comes at once";
    main->resize(1000, 600); // too low for both
    QCoreApplication::processEvents();
    EXPECT_NEAR(ratio("picCover") / ratio("picActor"), 1.4 / 1.5, 0.03) << "both shrink alike";
}

TEST_F(CreditsWindow, ABrokenHeadshotLeavesThePlaceEmpty) {
    QFile file(headshots + u"Wanda Quill.jpg"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("just words");
    file.close();
    StartWith();
    Click("ListCast", 0);
    QCoreApplication::processEvents();
    auto *picture = Control<ActorView>("picActor");
    EXPECT_FALSE(picture->HasPicture());
    EXPECT_LT(picture->HeightAt(300), 200) << "it takes no room for nothing";
    EXPECT_EQ(Column("listAppearences").size(), 2) << "all else is shown";
    EXPECT_EQ(services.dialogs.messages.size(), 0u);
}

TEST_F(CreditsWindow, ThePortraitComesBesideTheWorkOfTheWindow) {
    const auto draw = [this](const QString &name, const QColor &colour) {
        QImage image(600, 900, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(headshots + name));
    };
    draw(u"Wanda Quill.jpg"_s, Qt::black);
    draw(u"Wanda Quill_1.jpg"_s, Qt::white);
    StartWith();
    Click("ListCast", 0);
    QCoreApplication::processEvents();
    auto *picture = Control<ActorView>("picActor");
    const auto shown = [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !picture->IsLoading(); }));
        QCoreApplication::processEvents();
        const QImage image = picture->Picture().toImage();
        return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
    };
    EXPECT_EQ(picture->HeightAt(200), 300) << "known from the head of the file";
    EXPECT_EQ(shown(), QColor(Qt::black));
    browser.credits.picActor.AlternateHeadshot();
    EXPECT_EQ(picture->Picture().toImage().pixelColor(5, 5), QColor(Qt::black)) << "the window does not wait";
    EXPECT_EQ(shown(), QColor(Qt::white));
    for (int i = 0; i < 9; ++i) {
        QTest::mouseClick(picture, Qt::LeftButton);
    }
    EXPECT_EQ(shown(), QColor(Qt::black)) << "the last one asked for";
    QTest::mouseClick(picture, Qt::LeftButton);
    browser.credits.picActor.SetHeadshotAsPrimary();
    EXPECT_EQ(shown(), QColor(Qt::white)) << "the files changed places";
    Click("ListCast", 3);
    EXPECT_TRUE(picture->File().isEmpty());
    EXPECT_EQ(shown(), QColor());
}

TEST_F(CreditsWindow, AHeadshotThatBreaksOffLeavesThePlaceEmpty) {
    QFile file(headshots + u"Wanda Quill.jpg"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("P6\n400 600\n255\n");
    file.close();
    Draw(u"Wanda Quill_1.jpg"_s);
    StartWith();
    Click("ListCast", 0);
    auto *picture = Control<ActorView>("picActor");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picture->IsLoading() && !picture->HasPicture(); }));
    EXPECT_LT(picture->HeightAt(300), 200);
    EXPECT_TRUE(picture->isVisible());
    QTest::keyClick(picture, Qt::Key_Enter);
    EXPECT_TRUE(picture->File().endsWith(u"Wanda Quill_1.jpg"_s)) << "the other one can be reached";
    EXPECT_TRUE(picture->HasPicture());
}

TEST_F(CreditsWindow, APortraitAsThinAsALineFitsIn) {
    ASSERT_TRUE(QImage(1, 60000, QImage::Format_RGB32).save(headshots + u"Wanda Quill.jpg"_s));
    StartWith();
    Click("ListCast", 0);
    QCoreApplication::processEvents();
    auto *picture = Control<ActorView>("picActor");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picture->Picture().isNull(); }));
    EXPECT_LE(picture->height(), main->height());
}

TEST_F(CreditsWindow, AnAwardLeadsToItsFilm) {
    StartWith();
    Click("ListCast", 0);
    const QAbstractItemModel &tree = *View("treeAwards")->model();
    const QModelIndex won = tree.index(0, 0, tree.index(0, 0));
    Click("treeAwards", tree.index(0, 0, won), true);
    EXPECT_EQ(Selected(), u"Aab Other"_s);
}

TEST_F(CreditsWindow, NamesOfControlsAreTold) {
    StartWith();
    for (const char *name : {"ListCast", "ListCrew", "treeCrew", "picActor", "listAppearences", "treeAwards"}) {
        EXPECT_FALSE(Control<QWidget>(name)->accessibleName().isEmpty()) << name;
    }
    EXPECT_TRUE(Control<QWidget>("FrameCrew"));
    EXPECT_TRUE(Control<QWidget>("FrameAwards"));
}

TEST_F(CreditsWindow, ColumnsKeepTheirParts) {
    StartWith();
    QTreeView *cast = View("ListCast");
    const auto share = [cast](int column) { return double(cast->columnWidth(column)) / cast->viewport()->width(); };
    main->resize(1280, 800);
    QCoreApplication::processEvents();
    EXPECT_NEAR(share(0), 0.46, 0.02);
    EXPECT_GE(cast->columnWidth(2), cast->header()->fontMetrics().horizontalAdvance(u"Position"_s)) << "a whole header";
    cast->header()->resizeSection(0, cast->viewport()->width() / 4);
    main->resize(main->width() + 300, main->height());
    QCoreApplication::processEvents();
    EXPECT_NEAR(share(0), 0.25, 0.02) << "as the user made it";
}

} // namespace
} // namespace ostrand
