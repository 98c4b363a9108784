// The window that tidies the headshot folder.
#include "FindControl.h"
#include "HeadshotFolders.h"

#include "people/ui/HeadshotView.h"
#include "people/ui/frmManageHeadshots.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

class ManageHeadshots : public test::HeadshotWindowTest {
protected:
    void Open() {
        window.reset();
        window = std::make_unique<frmManageHeadshots>(session);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        files = FindControl<QListView>(*window, "FileListImages");
        picture = FindControl<HeadshotView>(*window, "picExisting");
    }
    QString Label(const char *name) { return FindControl<QLabel>(*window, name)->text(); }
    QPushButton *Button(const char *name) { return FindControl<QPushButton>(*window, name); }
    QStringList Listed() {
        QStringList names;
        for (int row = 0; row < files->model()->rowCount(); ++row) {
            names += files->model()->index(row, 0).data().toString();
        }
        return names;
    }
    QString Current() { return files->currentIndex().data().toString(); }

    std::unique_ptr<frmManageHeadshots> window;
    QListView *files = nullptr;
    HeadshotView *picture = nullptr;
};

TEST_F(ManageHeadshots, HasItsControls) {
    Open();
    EXPECT_EQ(window->windowTitle(), u"Manage Headshots"_s);
    const std::pair<const char *, const char16_t *> buttons[] = {
        {"cbRemoveDuplicates", u"Remove Duplicates"},
        {"cbRemoveTrailingSpaces", u"Remove Trailing Spaces"},
        {"cbRenameAlternatives", u"Rename Alternatives (name1->name_1)"},
        {"cbRenameAliase", u"Rename Aliases to Common Names"},
        {"cbMakePrimary", u"Make Primary"},
        {"cbExit", u"Exit"}};
    for (const auto &[name, text] : buttons) {
        EXPECT_EQ(Button(name)->text().remove(u'&'), QString::fromUtf16(text));
        EXPECT_FALSE(Button(name)->toolTip().isEmpty());
    }
    EXPECT_EQ(FindControl<QCheckBox>(*window, "checkFilterSubstring")->accessibleName(), u"Substring"_s);
    EXPECT_EQ(FindControl<QCheckBox>(*window, "checkNoResizeLeft")->accessibleName(), u"Do not resize"_s);
    EXPECT_EQ(FindControl<QListWidget>(*window, "listAlphabeth")->count(), 26);
    EXPECT_EQ(Label("labelImageCount"), u"0 Images"_s);
    EXPECT_EQ(Label("labelImageSizeExisting"), QString());
}

TEST_F(ManageHeadshots, ShowsTheSelectedPictureAndItsSize) {
    const QString path = Picture(u"heads/Ann.jpg"_s, {30, 20});
    folder.Write(u"heads/Bo.jpg"_s, QByteArray(100, 'x'));
    Open();
    EXPECT_EQ(Current(), u"Ann.jpg"_s);
    EXPECT_EQ(Label("labelImageCount"), u"2 Images"_s);
    const QString kilobytes = QString::number(std::round(double(QFileInfo(path).size()) / 102.4) / 10.0);
    EXPECT_EQ(Label("labelImageSizeExisting"), u"30 x 20 / "_s + kilobytes + u" kBytes"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture->HasPicture(); }));
    QTest::keyClick(files, Qt::Key_Down);
    EXPECT_EQ(Label("labelImageSizeExisting"), u"0 x 0 / 0.1 kBytes"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picture->IsReading(); }));
    EXPECT_FALSE(picture->HasPicture());
}

TEST_F(ManageHeadshots, LettersAndTextsFilter) {
    for (const char *name : {"Ann", "Anny_1", "Bo Ann", "Cy"}) {
        Picture(u"heads/"_s + QString::fromLatin1(name) + u".jpg"_s, {4, 4});
    }
    Open();
    auto *letters = FindControl<QListWidget>(*window, "listAlphabeth");
    auto *filter = FindControl<QLineEdit>(*window, "textFilter");
    auto *substring = FindControl<QCheckBox>(*window, "checkFilterSubstring");
    letters->setCurrentRow(1);
    EXPECT_EQ(Listed(), QStringList{u"Bo Ann.jpg"_s});
    EXPECT_EQ(Current(), u"Bo Ann.jpg"_s);
    QTest::keyClick(letters, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(letters->selectedItems().isEmpty());
    EXPECT_EQ(Listed().size(), 4) << "no letter, no filter";
    letters->setCurrentRow(2);
    letters->setCurrentRow(1);
    QTest::keyClicks(filter, u"ann"_s);
    EXPECT_EQ(Listed(), (QStringList{u"Ann.jpg"_s, u"Anny_1.jpg"_s}));
    EXPECT_TRUE(letters->selectedItems().isEmpty());
    substring->click();
    EXPECT_EQ(Listed().size(), 3);
    EXPECT_EQ(Label("labelImageCount"), u"3 Images"_s);
    QTest::keyClick(filter, Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Files().size(), 4);
    filter->clear();
    EXPECT_EQ(Listed().size(), 4);
    filter->setText(u"nobody"_s);
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(picture->File(), QString());
    letters->setCurrentRow(1);
    letters->setCurrentRow(2);
    EXPECT_EQ(filter->text(), QString());
    EXPECT_EQ(Listed(), QStringList{u"Cy.jpg"_s});
}

TEST_F(ManageHeadshots, DeleteAsksAndDeletesTheSelection) {
    for (const char *name : {"A", "B", "C", "D"}) {
        Picture(u"heads/"_s + QString::fromLatin1(name) + u".jpg"_s, {4, 4});
    }
    Open();
    files->setCurrentIndex(files->model()->index(1, 0));
    QTest::keyClick(files, Qt::Key_Down, Qt::ShiftModifier);
    services.dialogs.ExpectMessage(u"Delete all selected images?"_s, MessageAnswer::No, u"Delete Images"_s);
    QTest::keyClick(files, Qt::Key_Delete);
    EXPECT_EQ(Files().size(), 4);
    services.dialogs.ExpectMessage(u"Delete all selected images?"_s, MessageAnswer::Yes, u"Delete Images"_s);
    QTest::keyClick(files, Qt::Key_Delete);
    EXPECT_EQ(Files(), (QStringList{u"A.jpg"_s, u"D.jpg"_s}));
    EXPECT_EQ(Current(), u"D.jpg"_s);
    WriteINIString(session, u"HeadhotWizard"_s, u"AskOnDelete"_s, u"False"_s);
    QTest::keyClick(files, Qt::Key_Delete);
    QTest::keyClick(files, Qt::Key_Delete);
    EXPECT_EQ(Files(), QStringList());
    QTest::keyClick(files, Qt::Key_Delete);
    EXPECT_EQ(Label("labelImageCount"), u"0 Images"_s);
}

TEST_F(ManageHeadshots, AnAlternateBecomesThePrimary) {
    Picture(u"heads/Ann.jpg"_s, {4, 4});
    Picture(u"heads/Ann_1.jpg"_s, {8, 8});
    Open();
    EXPECT_FALSE(Button("cbMakePrimary")->isEnabled());
    QTest::keyClick(files, Qt::Key_Down);
    EXPECT_TRUE(Button("cbMakePrimary")->isEnabled());
    Button("cbMakePrimary")->click();
    EXPECT_EQ(QImage(session.HeadshotPath + u"Ann.jpg"_s).width(), 8);
    EXPECT_EQ(Current(), u"Ann_1.jpg"_s);
    EXPECT_TRUE(Label("labelImageSizeExisting").startsWith(u"4 x 4 / "_s));
}

TEST_F(ManageHeadshots, ToolsRunOverTheFolder) {
    const struct {
        const char *button;
        QStringList before, after;
    } rows[] = {
        {"cbRemoveTrailingSpaces", {u"Ann_Lee .jpg"_s}, {u"Ann Lee.jpg"_s}},
        {"cbRenameAlternatives", {u"Ann1.jpg"_s}, {u"Ann_1.jpg"_s}},
        {"cbRenameAliase", {u"Anny.jpg"_s}, {u"Ann.jpg"_s}},
        {"cbRemoveDuplicates", {u"Ann.jpg"_s, u"Ann_1.jpg"_s}, {u"Ann.jpg"_s}},
    };
    session.Database->Execute(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Anny', 'Ann', 0)");
    for (const auto &row : rows) {
        QDir(session.HeadshotPath).removeRecursively();
        for (const QString &name : row.before) {
            folder.Write(u"heads/"_s + name, "x");
        }
        Open();
        Button(row.button)->click();
        EXPECT_EQ(Files(), row.after) << row.button;
        EXPECT_EQ(Listed(), row.after) << row.button;
    }
}

TEST_F(ManageHeadshots, KeepsItsSettings) {
    Open();
    FindControl<QCheckBox>(*window, "checkNoResizeLeft")->click();
    window->resize(1000, 720);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(GetINIString(session, u"HeadhotWizard"_s, u"NoResizeImageLeft"_s, {}), u"True"_s);
    Open();
    EXPECT_TRUE(FindControl<QCheckBox>(*window, "checkNoResizeLeft")->isChecked());
    EXPECT_EQ(window->size(), QSize(1000, 720));
}

TEST_F(ManageHeadshots, AllIsReachedWithTheKeyboard) {
    Picture(u"heads/Ann_1.jpg"_s, {4, 6});
    Open();
    QStringList reached;
    for (int i = 0; i < 40 && !reached.contains(window->focusWidget()->objectName()); ++i) {
        reached += window->focusWidget()->objectName();
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached.join(u' ').toStdString(),
              "FileListImages checkNoResizeLeft cbRemoveDuplicates cbRemoveTrailingSpaces cbRenameAlternatives "
              "cbRenameAliase cbMakePrimary cbExit textFilter checkFilterSubstring listAlphabeth");
}

TEST_F(ManageHeadshots, APictureTooLargeForItsOwnSizeIsFitted) {
    QImage large(12'000, 9'000, QImage::Format_Grayscale8);
    large.fill(100);
    ASSERT_TRUE(large.save(folder / u"heads/Ann.jpg"_s));
    Open();
    FindControl<QCheckBox>(*window, "checkNoResizeLeft")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return picture->HasPicture(); }));
    EXPECT_TRUE(Label("labelImageSizeExisting").startsWith(u"12000 x 9000 / "_s));
}

TEST_F(ManageHeadshots, TheMenuOfTheListCopiesAndDeletes) {
    for (const char *name : {"A", "B", "C"}) {
        Picture(u"heads/"_s + QString::fromLatin1(name) + u".jpg"_s, {4, 4});
    }
    Open();
    EXPECT_EQ(files->contextMenuPolicy(), Qt::ActionsContextMenu);
    files->selectAll();
    QTest::keyClick(files, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(services.clipboard.Text(), u"A.jpg\nB.jpg\nC.jpg\n"_s);
    files->selectionModel()->select(files->model()->index(1, 0), QItemSelectionModel::Deselect);
    FindControl<QAction>(*files, "mCopyToClipboard")->trigger();
    EXPECT_EQ(services.clipboard.Text(), u"A.jpg\nC.jpg\n"_s);
    EXPECT_EQ(FindControl<QAction>(*files, "mDelete")->text(), u"Delete Images"_s);
    services.dialogs.ExpectMessage(u"Delete all selected images?"_s, MessageAnswer::Yes, u"Delete Images"_s);
    FindControl<QAction>(*files, "mDelete")->trigger();
    EXPECT_EQ(Files(), QStringList{u"B.jpg"_s});
}

TEST_F(ManageHeadshots, AFolderThatIsGoneIsAnEmptyList) {
    QDir(session.HeadshotPath).removeRecursively();
    Open();
    EXPECT_EQ(Label("labelImageCount"), u"0 Images"_s);
    for (const char *tool :
         {"cbRemoveDuplicates", "cbRemoveTrailingSpaces", "cbRenameAlternatives", "cbRenameAliase"}) {
        Button(tool)->click();
    }
}

TEST_F(ManageHeadshots, TenThousandFilesAreListedAndFiltered) {
    for (int i = 0; i < 10'000; ++i) {
        QFile file(session.HeadshotPath + QChar(u'A' + i % 26) + u" Person %1.jpg"_s.arg(i));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    Open();
    EXPECT_EQ(Label("labelImageCount"), u"10000 Images"_s);
    auto *filter = FindControl<QLineEdit>(*window, "textFilter");
    FindControl<QCheckBox>(*window, "checkFilterSubstring")->click();
    QTest::keyClicks(filter, u"person 999"_s);
    EXPECT_EQ(Listed().size(), 11);
    filter->clear();
    EXPECT_EQ(Listed().size(), 10'000);
    const int before = files->currentIndex().row();
    for (int i = 0; i < 50; ++i) {
        QTest::keyClick(files, Qt::Key_Down);
    }
    EXPECT_EQ(files->currentIndex().row(), before + 50);
}

} // namespace
} // namespace ostrand
