// The wizard that brings pictures in, and its tools.
#include "FindControl.h"
#include "HeadshotFolders.h"

#include "people/ui/HeadshotView.h"
#include "people/ui/frmCompare.h"
#include "people/ui/frmComparerTools.h"
#include "people/ui/frmDropBox.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::FindControl;

class CompareWindow : public test::HeadshotWindowTest {
protected:
    void Open() {
        window.reset();
        WriteINIString(session, u"HeadhotWizard"_s, u"LastFolder"_s, folder / u"source"_s);
        window = std::make_unique<frmCompare>(session);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        files = FindControl<QListView>(*window, "FileListImages");
    }
    QPushButton *Button(const char *name) { return FindControl<QPushButton>(*window, name); }
    void Click(const char *name) { Button(name)->click(); }
    QString Label(const char *name) { return FindControl<QLabel>(*window, name)->text(); }
    QString Shown(const char *name) {
        const QString path = FindControl<HeadshotView>(*window, name)->File();
        return path.mid(folder.Path().size() + 1);
    }
    /// Opens the tools, presses a button there and closes them.
    void UseTool(const char *name) {
        bool seen = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto *tools = qobject_cast<frmComparerTools *>(QApplication::activeModalWidget());
            ASSERT_TRUE(tools);
            seen = true;
            FindControl<QPushButton>(*tools, name)->click();
            FindControl<QPushButton>(*tools, "cbClose")->click();
        });
        Click("cbMore");
        EXPECT_TRUE(seen);
    }

    std::unique_ptr<frmCompare> window;
    QListView *files = nullptr;
};

TEST_F(CompareWindow, HasItsControls) {
    Open();
    EXPECT_EQ(window->windowTitle(), u"Headshot Import Wizard"_s);
    const std::pair<const char *, const char16_t *> buttons[] = {
        {"cbCopyImage", u"<< Copy Image"},
        {"cbCopyAlternative", u"<< Copy as Alternative"},
        {"cbMakePrimary", u"Make Primary"},
        {"cbEditImage", u"Edit Right Image"},
        {"cbOpenImage", u"Open Right Image"},
        {"cbReload", u"Reload Image"},
        {"cbSetSourcePath", u"Set Source Folder of new headshots"},
        {"cbMore", u"More"},
        {"cbDropBox", u"Image Drop Box"}};
    for (const auto &[name, text] : buttons) {
        EXPECT_EQ(Button(name)->text().remove(u'&'), QString::fromUtf16(text));
        EXPECT_EQ(Button(name)->accessibleName(), QString::fromUtf16(text));
        EXPECT_FALSE(Button(name)->toolTip().isEmpty()) << name;
    }
    EXPECT_GT(Button("cbMore")->y(), Button("cbDropBox")->y());
    EXPECT_GT(Button("cbExit")->y(), Button("cbMore")->y());
    EXPECT_TRUE(Button("cbMore")->text().contains(u'&'));
    EXPECT_TRUE(Label("labelClickHere").contains(u"Click here to change Editor"_s));
    EXPECT_EQ(FindControl<QCheckBox>(*window, "checkAlsoCopyTo")->accessibleName(), u"also copy to..."_s);
    EXPECT_EQ(FindControl<HeadshotView>(*window, "picExisting")->accessibleName(),
              u"Existing Headshot in Headshot Folder"_s);
    EXPECT_EQ(FindControl<HeadshotView>(*window, "picNew")->accessibleName(), u"New Headshot in Source Folder"_s);
    for (const char *name : {"cbCopyImage", "cbCopyAlternative", "cbMakePrimary", "cbEditImage", "cbOpenImage"}) {
        EXPECT_FALSE(Button(name)->isEnabled()) << name << ": nothing is selected";
    }
}

TEST_F(CompareWindow, ShowsBothPictures) {
    Picture(u"heads/Ann.jpg"_s, {4, 6});
    Picture(u"source/Ann_1.jpg"_s, {8, 8});
    Picture(u"source/Bo.jpg"_s, {9, 9});
    Open();
    EXPECT_EQ(Label("labelImageCount"), u"2 Images"_s);
    EXPECT_EQ(Shown("picExisting"), u"heads/Ann.jpg"_s);
    EXPECT_EQ(Shown("picNew"), u"source/Ann_1.jpg"_s);
    EXPECT_TRUE(Label("labelImageSizeExisting").startsWith(u"4 x 6 / "_s));
    EXPECT_TRUE(Label("labelImageSizeNew").startsWith(u"8 x 8 / "_s));
    EXPECT_EQ(Button("cbCopyImage")->text().remove(u'&'), u"<< Replace Image"_s);
    EXPECT_TRUE(Button("cbCopyAlternative")->isEnabled());
    QTest::keyClick(files, Qt::Key_Down);
    EXPECT_EQ(Shown("picExisting"), QString());
    EXPECT_EQ(Label("labelImageSizeExisting"), QString());
    EXPECT_EQ(Button("cbCopyImage")->text().remove(u'&'), u"<< Copy Image"_s);
    EXPECT_FALSE(Button("cbCopyAlternative")->isEnabled());
}

TEST_F(CompareWindow, CopiesAndMakesPrimary) {
    Picture(u"source/Ann.jpg"_s, {8, 8});
    Open();
    Click("cbCopyImage");
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg"_s});
    EXPECT_EQ(Shown("picExisting"), u"heads/Ann.jpg"_s);
    Picture(u"source/Ann.jpg"_s, {9, 9});
    Click("cbReload");
    EXPECT_FALSE(Button("cbMakePrimary")->isEnabled());
    Click("cbCopyAlternative");
    EXPECT_TRUE(Button("cbMakePrimary")->isEnabled());
    Click("cbMakePrimary");
    EXPECT_FALSE(Button("cbMakePrimary")->isEnabled());
    EXPECT_EQ(QImage(session.HeadshotPath + u"Ann.jpg"_s).width(), 9);
    EXPECT_EQ(QImage(session.HeadshotPath + u"Ann_1.jpg"_s).width(), 8);
    EXPECT_TRUE(Label("labelImageSizeExisting").startsWith(u"9 x 9 / "_s));
}

TEST_F(CompareWindow, TheFurtherFolderIsAskedForWhenItIsTicked) {
    QDir().mkpath(folder / u"more"_s);
    Picture(u"source/Ann.jpg"_s, {8, 8});
    Open();
    auto *box = FindControl<QCheckBox>(*window, "checkAlsoCopyTo");
    services.dialogs.ExpectBrowseFolder({}, u"Also copy images to following folder"_s);
    box->click();
    EXPECT_FALSE(box->isChecked());
    services.dialogs.ExpectBrowseFolder(folder / u"more"_s, u"Also copy images to following folder"_s);
    box->click();
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(FindControl<QLineEdit>(*window, "textCopyFolder")->text(), folder / u"more"_s);
    Click("cbCopyImage");
    EXPECT_EQ(Files(u"more"_s), QStringList{u"Ann.jpg"_s});
    window->close();
    Open();
    EXPECT_TRUE(FindControl<QCheckBox>(*window, "checkAlsoCopyTo")->isChecked());
    EXPECT_EQ(FindControl<QLineEdit>(*window, "textCopyFolder")->text(), folder / u"more"_s);
}

TEST_F(CompareWindow, AnotherSourceIsListed) {
    Picture(u"source/Ann.jpg"_s, {8, 8});
    QDir().mkpath(folder / u"other"_s);
    Picture(u"other/Bo.jpg"_s, {8, 8});
    Open();
    services.dialogs.ExpectBrowseFolder(folder / u"other"_s, u"New Headshot Source"_s);
    Click("cbSetSourcePath");
    EXPECT_EQ(Shown("picNew"), u"other/Bo.jpg"_s);
    EXPECT_EQ(Label("labelSourceFolder"), folder / u"other"_s);
    services.dialogs.ExpectBrowseFolder({}, u"New Headshot Source"_s);
    Click("cbSetSourcePath");
    EXPECT_EQ(Label("labelImageCount"), u"1 Images"_s);
}

TEST_F(CompareWindow, OtherProgramsGetTheRightPicture) {
    const QString path = Picture(u"source/Ann.jpg"_s, {8, 8});
    Open();
    services.dialogs.ExpectOpenFile(u"/usr/bin/paint"_s, u"Select your image editing application:"_s);
    QTest::keyClick(FindControl<QLabel>(*window, "labelClickHere"), Qt::Key_Return);
    services.dialogs.ExpectOpenFile({}, u"Select your image editing application:"_s);
    QTest::mouseClick(FindControl<QLabel>(*window, "labelClickHere"), Qt::LeftButton);
    Click("cbEditImage");
    ASSERT_EQ(services.processes.runs.size(), 1u);
    EXPECT_EQ(services.processes.runs.front(), (QStringList{u"/usr/bin/paint"_s, path}));
    Click("cbOpenImage");
    EXPECT_EQ(services.opener.opened, QStringList{u"file "_s + path});
}

TEST_F(CompareWindow, TheDropBoxOpensBesideIt) {
    Open();
    Click("cbDropBox");
    auto *box = window->findChild<frmDropBox *>();
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->isVisible());
    Click("cbDropBox");
    EXPECT_EQ(window->findChildren<frmDropBox *>().size(), 1);
    Picture(u"source/Ann.jpg"_s, {8, 8});
    Q_EMIT box->PictureStored(folder / u"source/Ann.jpg"_s);
    EXPECT_EQ(Label("labelImageCount"), u"1 Images"_s);
}

TEST_F(CompareWindow, ToolsWorkOnTheSourceFolder) {
    Picture(u"source/Ann_Lee1.jpg"_s, {8, 8});
    session.Database->Execute(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('Ann Lee', 'Bo', 0)");
    Open();
    UseTool("cbRemoveTrailingSpaces");
    EXPECT_EQ(Files(u"source"_s), QStringList{u"Ann Lee1.jpg"_s});
    UseTool("cbRenameAlternatives");
    EXPECT_EQ(Files(u"source"_s), QStringList{u"Ann Lee_1.jpg"_s});
    UseTool("cbRenameAliase");
    EXPECT_EQ(Files(u"source"_s), QStringList{u"Bo_1.jpg"_s});
    EXPECT_EQ(Shown("picNew"), u"source/Bo_1.jpg"_s);
    for (const char *tool : {"cbCopyWhereNone", "cbCopyAllAlternative"}) {
        services.dialogs.ExpectMessage({}, MessageAnswer::Yes);
        services.dialogs.ExpectMessage(u"Finished copying images"_s);
        UseTool(tool);
    }
    EXPECT_EQ(Files(), (QStringList{u"Bo.jpg"_s, u"Bo_1.jpg"_s}));
    services.dialogs.ExpectMessage({}, MessageAnswer::Yes, u"Removal of images"_s);
    UseTool("cbRemoveIdenticals");
    EXPECT_EQ(Files(u"source"_s), QStringList());
    EXPECT_EQ(Shown("picNew"), QString());
}

TEST_F(CompareWindow, TheToolsHaveTheirTexts) {
    HeadshotImport import(session);
    const frmComparerTools tools(session, import);
    EXPECT_EQ(tools.windowTitle(), u"Tools"_s);
    const std::pair<const char *, const char16_t *> buttons[] = {
        {"cbCopyWhereNone", u"Copy Where None Exists"},
        {"cbCopyAllAlternative", u"Copy All as Alternatives"},
        {"cbRemoveTrailingSpaces", u"Remove Trailing Spaces"},
        {"cbRenameAlternatives", u"Rename Alternatives (name1->name_1)"},
        {"cbRenameAliase", u"Rename Aliases to Common Names"},
        {"cbRemoveIdenticals", u"Remove Identical Images"},
        {"cbClose", u"Close"}};
    for (const auto &[name, text] : buttons) {
        const auto *button = FindControl<QPushButton>(tools, name);
        EXPECT_EQ(button->text().remove(u'&'), QString::fromUtf16(text));
        EXPECT_FALSE(button->toolTip().isEmpty());
    }
}

TEST_F(CompareWindow, KeepsItsSettings) {
    Open();
    FindControl<QCheckBox>(*window, "checkNoResizeRight")->click();
    window->resize(1100, 760);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(GetINIString(session, u"HeadhotWizard"_s, u"NoResizeImageRight"_s, {}), u"True"_s);
    EXPECT_EQ(GetINIString(session, u"HeadhotWizard"_s, u"NoResizeImageLeft"_s, {}), u"False"_s);
    Open();
    EXPECT_TRUE(FindControl<QCheckBox>(*window, "checkNoResizeRight")->isChecked());
    EXPECT_EQ(window->size(), QSize(1100, 760));
}

TEST_F(CompareWindow, AllIsReachedWithTheKeyboard) {
    Picture(u"heads/Ann.jpg"_s, {4, 6});
    Picture(u"source/Ann.jpg"_s, {8, 8});
    Open();
    QStringList reached;
    for (int i = 0; i < 40 && !reached.contains(window->focusWidget()->objectName()); ++i) {
        reached += window->focusWidget()->objectName();
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(
        reached.join(u' ').toStdString(),
        "FileListImages checkAlsoCopyTo cbSetSourcePath checkNoResizeLeft cbCopyImage cbCopyAlternative cbEditImage "
        "cbOpenImage cbReload labelClickHere cbDropBox cbMore cbExit checkNoResizeRight");
}

TEST_F(CompareWindow, TheToolsKeepTheirPlace) {
    HeadshotImport import(session);
    QRect place;
    {
        frmComparerTools tools(session, import);
        tools.show();
        tools.setGeometry(50, 60, tools.width() + 70, tools.height() + 80);
        place = tools.geometry();
        QTest::keyClick(&tools, Qt::Key_Escape);
        EXPECT_FALSE(tools.isVisible());
    }
    frmComparerTools again(session, import);
    again.show();
    EXPECT_EQ(again.geometry(), place);
}

TEST_F(CompareWindow, ASourceThatIsGoneIsAnEmptyList) {
    Picture(u"source/Ann.jpg"_s, {8, 8});
    Open();
    QDir(folder / u"source"_s).removeRecursively();
    services.dialogs.ExpectMessage(u"Error copying image"_s);
    Click("cbCopyImage");
    UseTool("cbRenameAliase");
    EXPECT_EQ(Label("labelImageCount"), u"0 Images"_s);
    EXPECT_FALSE(Button("cbCopyImage")->isEnabled());
}

} // namespace
} // namespace ostrand
