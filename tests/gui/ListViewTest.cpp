#include "FindControl.h"
#include "shell/Session.h"
#include "shell/ui/frmListView.h"
#include "support/Scripted.h"

#include <QAction>
#include <QDir>
#include <QHeaderView>
#include <QPointer>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

class ListViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        auto model = std::make_unique<QStandardItemModel>(0, 2);
        model->setHorizontalHeaderLabels({u"Title"_s, u"Year"_s});
        for (const auto &[title, year] :
             {std::pair(u"Beach"_s, u"1999"_s), {u"Arrow"_s, u"2004"_s}, {u"Cup\t\n1"_s, u"1980"_s}}) {
            model->appendRow({new QStandardItem(title), new QStandardItem(year)});
        }
        window = new frmListView(session, {std::move(model), u"Ann Sample (3 entries)"_s, [](int row) {
                                               return row == 2 ? std::pair(QString(), ListRowKind::None)
                                                               : std::pair(u"Key_%1"_s.arg(row), ListRowKind::Movie);
                                           }});
        window->title_chosen = [this](const QString &key, ListRowKind kind) {
            chosen += key + u' ' + QString::number(int(kind));
        };
        window->show();
        list = FindControl<QTableView>(*window, "MultiList");
    }
    void TearDown() override { delete window; }

    QStringList Titles() {
        QStringList titles;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            titles += list->model()->index(row, 0).data().toString().left(3);
        }
        return titles;
    }
    QPoint Cell(int row) { return list->visualRect(list->model()->index(row, 0)).center(); }
    QString Ini(const QString &section, const QString &key) { return GetINIString(session, section, key, u"-"_s); }

    test::TestServices services;
    Session session{services.services};
    QPointer<frmListView> window;
    QTableView *list = nullptr;
    QStringList chosen;
};

TEST_F(ListViewTest, ShowsTheRowsAsTheyCame) {
    EXPECT_EQ(window->objectName(), u"frmListView"_s);
    EXPECT_EQ(window->windowTitle(), u"Ann Sample (3 entries)"_s);
    EXPECT_EQ(window->windowModality(), Qt::NonModal);
    EXPECT_EQ(Titles(), (QStringList{u"Bea"_s, u"Arr"_s, u"Cup"_s}));
    EXPECT_EQ(list->currentIndex().row(), 0);
}

TEST_F(ListViewTest, AHeaderSorts) {
    QHeaderView *header = list->horizontalHeader();
    const QPoint year(header->sectionViewportPosition(1) + 5, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
    EXPECT_EQ(Titles(), (QStringList{u"Cup"_s, u"Bea"_s, u"Arr"_s}));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, year);
    EXPECT_EQ(Titles(), (QStringList{u"Arr"_s, u"Bea"_s, u"Cup"_s}));
}

TEST_F(ListViewTest, ADoubleClickAndEnterGoToTheTitle) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Cell(1));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, Cell(1));
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Return);
    list->setCurrentIndex(list->model()->index(2, 0));
    QTest::keyClick(list, Qt::Key_Return); // leads nowhere
    EXPECT_EQ(chosen, (QStringList{u"Key_1 2"_s, u"Key_0 2"_s}));
}

TEST_F(ListViewTest, CopiesTheListOrTheSelectedRows) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"Title\tYear\nBeach\t1999\nArrow\t2004\nCup 1\t1980\n"_s);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Cell(0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, Cell(2));
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"Title\tYear\nBeach\t1999\nCup 1\t1980\n"_s)
        << qPrintable(services.clipboard.Text());
}

TEST_F(ListViewTest, EscClosesItAndItsPlaceIsKept) {
    window->resize(400, 300);
    window->move(30, 20);
    QTest::keyClick(list, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window);
    EXPECT_EQ(Ini(u"ListViewWindow"_s, u"Width"_s), u"6000"_s);
    EXPECT_EQ(Ini(u"ListViewWindow"_s, u"Height"_s), u"4500"_s);
    EXPECT_EQ(Ini(u"ListViewWindow"_s, u"Left"_s), u"450"_s);
    EXPECT_EQ(Ini(u"ListViewWindow"_s, u"Top"_s), u"300"_s);
}

TEST_F(ListViewTest, GridLinesAreToggledAndKept) {
    EXPECT_FALSE(list->showGrid());
    FindControl<QAction>(*window, "mToogleGridlinesMultiList")->trigger();
    EXPECT_TRUE(list->showGrid());
    EXPECT_EQ(Ini(u"GridLines"_s, u"MultiList"_s), u"True"_s);
    const frmListView second(session, {std::make_unique<QStandardItemModel>(), u"Empty"_s, {}});
    EXPECT_TRUE(FindControl<QTableView>(second, "MultiList")->showGrid());
}

} // namespace
} // namespace ostrand
