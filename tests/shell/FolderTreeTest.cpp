#include "shell/FolderTree.h"

#include "support/Scripted.h"

#include <QDir>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FolderTreeTest : public ::testing::Test {
protected:
    void SetUp() override {
        for (const QString &name : {u"beta/inner"_s, u"Alpha"_s, u"recycled"_s, u"zeta"_s, u".hidden/deep"_s}) {
            ASSERT_TRUE(QDir(dir.Path()).mkpath(name));
        }
        dir.Write(u"a file.txt"_s, "x");
    }

    QStringList Texts(const QModelIndex &parent) {
        QStringList texts;
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            texts += tree.index(row, 0, parent).data().toString();
        }
        return texts;
    }
    QString Image(const QString &path) { return tree.Find(path).data(FolderTree::ImageRole).toString(); }

    test::TempDir dir;
    test::ScriptedDialogs dialogs;
    FolderTree tree{std::vector<FolderDrive>{{dir.Path(), DriveText(u"Films"_s, u"F:"_s)}, {u"/"_s, u"Root (/)"_s}}};
    QModelIndex drive = tree.index(0, 0);
};

TEST_F(FolderTreeTest, DrivesShowLabelAndLetter) {
    EXPECT_EQ(Texts({}), (QStringList{u"Films (F:)"_s, u"Root (/)"_s}));
    EXPECT_EQ(drive.data(FolderTree::ImageRole).toString(), u"Drive"_s);
    EXPECT_EQ(drive.data(FolderTree::OpenImageRole).toString(), u"Drive"_s);
    EXPECT_EQ(tree.Path(drive), dir.Path());
}

TEST_F(FolderTreeTest, FoldersAreReadWhenANodeOpens) {
    EXPECT_TRUE(tree.hasChildren(drive));
    EXPECT_TRUE(tree.canFetchMore(drive));
    EXPECT_EQ(tree.rowCount(drive), 0);
    tree.fetchMore(drive);
    EXPECT_FALSE(tree.canFetchMore(drive));
    EXPECT_EQ(Texts(drive), (QStringList{u"Alpha"_s, u"beta"_s, u"recycled"_s, u"zeta"_s}));
    const QModelIndex beta = tree.index(1, 0, drive);
    EXPECT_EQ(tree.rowCount(beta), 0);
    tree.GetFolders(beta);
    EXPECT_EQ(Texts(beta), (QStringList{u"inner"_s}));
    EXPECT_EQ(tree.index(0, 0, beta).parent(), beta);
    EXPECT_EQ(beta.parent(), drive);
}

TEST_F(FolderTreeTest, AFolderWithoutFoldersCannotBeOpenedOnceRead) {
    const QModelIndex alpha = tree.Find(dir / u"Alpha"_s);
    EXPECT_TRUE(tree.hasChildren(alpha));
    tree.GetFolders(alpha);
    EXPECT_FALSE(tree.hasChildren(alpha));
}

TEST_F(FolderTreeTest, FoldersHaveTheirImages) {
    EXPECT_EQ(Image(dir / u"beta"_s), u"FolderClosed"_s);
    EXPECT_EQ(tree.Find(dir / u"beta"_s).data(FolderTree::OpenImageRole).toString(), u"FolderOpen"_s);
    EXPECT_EQ(Image(dir / u"recycled"_s), u"FolderRecycler"_s);
#ifdef Q_OS_UNIX
    EXPECT_EQ(Image(u"/usr"_s), u"FolderSystem"_s);
#endif
}

TEST_F(FolderTreeTest, FindsAPathBelowTheBestDrive) {
    const QModelIndex inner = tree.Find(dir / u"beta/inner/"_s);
    EXPECT_EQ(tree.Path(inner), dir / u"beta/inner"_s);
    EXPECT_EQ(inner.parent().parent(), drive);
    EXPECT_EQ(tree.Find(dir.Path()), drive);
}

TEST_F(FolderTreeTest, FindsTheDeepestFolderThatExists) {
    EXPECT_EQ(tree.Path(tree.Find(dir / u"beta/gone/x"_s)), dir / u"beta"_s);
    EXPECT_FALSE(tree.Find({}).isValid());
    EXPECT_FALSE(tree.Find(u"relative"_s).isValid());
}

TEST_F(FolderTreeTest, AHiddenFolderIsThereWhenItIsTheCurrentOne) {
    EXPECT_EQ(tree.Path(tree.Find(dir / u".hidden/deep"_s)), dir / u".hidden/deep"_s);
    EXPECT_EQ(tree.rowCount(drive), 5);
}

TEST_F(FolderTreeTest, MakesANewFolderInItsPlace) {
    dialogs.ExpectInput(u"Enter new folder name:"_s, u"Covers"_s, u"New Folder"_s);
    const QModelIndex made = tree.NewFolder(drive, dialogs, {});
    EXPECT_TRUE(dir.Has(u"Covers"_s));
    EXPECT_EQ(tree.Path(made), dir / u"Covers"_s);
    EXPECT_EQ(Texts(drive), (QStringList{u"Alpha"_s, u"beta"_s, u"Covers"_s, u"recycled"_s, u"zeta"_s}));
}

TEST_F(FolderTreeTest, AnExistingFolderIsToldAndTaken) {
    dialogs.ExpectInput(u"Enter new folder name:"_s, u"Alpha"_s, u"New Folder"_s);
    dialogs.ExpectMessage(u"Folder already exists!"_s, MessageIcon::Warning);
    EXPECT_EQ(tree.Path(tree.NewFolder(drive, dialogs, {})), dir / u"Alpha"_s);
}

TEST_F(FolderTreeTest, ANewFolderStaysBelowItsParent) {
    dialogs.ExpectInput(u"Enter new folder name:"_s, u"../a/b"_s);
    EXPECT_EQ(tree.Path(tree.NewFolder(drive, dialogs, {})), dir / u"..ab"_s);
}

TEST_F(FolderTreeTest, NothingIsMadeWithoutANameOrAPlace) {
    dialogs.ExpectInput(u"Enter new folder name:"_s, std::nullopt);
    EXPECT_FALSE(tree.NewFolder(drive, dialogs, {}).isValid());
    dialogs.ExpectInput(u"Enter new folder name:"_s, u"  "_s);
    EXPECT_FALSE(tree.NewFolder(drive, dialogs, {}).isValid());
    EXPECT_FALSE(tree.NewFolder({}, dialogs, {}).isValid());
}

TEST_F(FolderTreeTest, AFolderThatCannotBeMadeIsTold) {
    const QModelIndex zeta = tree.Find(dir / u"zeta"_s);
    QDir(dir.Path()).rmdir(u"zeta"_s);
    dialogs.ExpectInput(u"Enter new folder name:"_s, u"x"_s);
    dialogs.ExpectMessage(u"Selected folder is read-only. Please select another folder."_s, MessageIcon::Warning);
    EXPECT_FALSE(tree.NewFolder(zeta, dialogs, {}).isValid());
}

TEST_F(FolderTreeTest, TextsAreTranslated) {
    const Translator upper = [](const QString &text) { return text.toUpper(); };
    dialogs.ExpectInput(u"ENTER NEW FOLDER NAME:"_s, u"Alpha"_s, u"NEW FOLDER"_s);
    dialogs.ExpectMessage(u"FOLDER ALREADY EXISTS!"_s);
    tree.NewFolder(drive, dialogs, upper);
}

TEST_F(FolderTreeTest, ABadChoiceHasItsFault) {
    EXPECT_EQ(FolderFault(dir.Path()), QString());
    EXPECT_EQ(FolderFault(dir / u"gone"_s), u"Selected folder is read-only. Please select another folder."_s);
#ifdef Q_OS_UNIX
    const QString system = u"Selected folder is a system folder. Please select another folder."_s;
    for (const QString &path : {u"/proc"_s, u"/usr/share"_s, u"/etc/"_s, u"/home/../dev"_s}) {
        EXPECT_EQ(FolderFault(path), system) << qPrintable(path);
    }
    EXPECT_FALSE(IsSystemFolder(u"/usrlocal"_s));
    EXPECT_FALSE(IsSystemFolder(u"/"_s));
#endif
}

TEST(SystemDrivesTest, TheSystemHasSome) {
    const std::vector<FolderDrive> drives = SystemDrives({});
    ASSERT_FALSE(drives.empty());
    for (const FolderDrive &drive : drives) {
        EXPECT_TRUE(QDir(drive.path).exists()) << qPrintable(drive.path);
        EXPECT_TRUE(drive.text.endsWith(u')')) << qPrintable(drive.text);
    }
#ifdef Q_OS_UNIX
    EXPECT_EQ(drives[0].text, u"Home ("_s + QDir::homePath() + u')');
    EXPECT_EQ(drives[1].path, u"/"_s);
#endif
}

} // namespace
} // namespace ostrand
