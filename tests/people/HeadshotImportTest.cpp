// Bringing pictures in from a source folder.
#include "people/HeadshotImport.h"

#include "base/Files.h"
#include "people/CrossLinks.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class HeadshotImportTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        QDir().mkpath(session.DataFolder);
        session.HeadshotPath = WithSeparator(Path(u"heads"_s));
        QDir().mkpath(session.HeadshotPath);
        QDir().mkpath(Path(u"source"_s));
        wizard.emplace(session);
        QObject::connect(&*wizard, &HeadshotImport::PicturesChanged, [this] { ++changes; });
    }
    void Have(const QString &folder, const QStringList &names) {
        for (const QString &name : names) {
            folder_.Write(folder + u'/' + name, (folder + u'/' + name).toUtf8());
        }
        wizard->SetSourcePath(Path(u"source"_s));
    }
    QStringList Files(const QString &folder = u"heads"_s) {
        QStringList files;
        for (const QString &name : QDir(Path(folder)).entryList(QDir::Files, QDir::Name)) {
            files << name + u'=' + QString::fromUtf8(folder_.Read(folder + u'/' + name));
        }
        return files;
    }
    void Select(const QString &name) { wizard->LoadImage(wizard->FileListImages.RowOf(name)); }
    void Answer(MessageAnswer answer) { Expect({}, {}, MessageIcon::Question, answer); }

    std::optional<HeadshotImport> wizard;
    int changes = 0;
};

} // namespace

TEST_F(HeadshotImportTest, AlternatesOfTheSourceMeetThePrimary) {
    static constexpr std::pair<const char16_t *, const char16_t *> kNames[] = {
        {u"Ann.jpg", u"Ann.jpg"},
        {u"Ann_1.jpg", u"Ann.jpg"},
        {u"Ann_Lee_2.jpg", u"Ann.jpg"},
        {u"_1.jpg", u"_1.jpg"},
        {u"Ann.JPG", u"Ann.JPG"},
        {u"", u""},
        {u"Ann(1950)_1.jpg", u"Ann(1950).jpg"},
    };
    for (const auto &[source, target] : kNames) {
        EXPECT_EQ(HeadshotImport::TargetName(QString::fromUtf16(source)), QString::fromUtf16(target));
    }
}

TEST_F(HeadshotImportTest, TheButtonTellsWhetherAPictureExists) {
    Have(u"heads"_s, {u"ANN.jpg"_s});
    Have(u"source"_s, {u"Ann_1.jpg"_s, u"Bo.jpg"_s});
    Select(u"Ann_1.jpg"_s);
    EXPECT_EQ(wizard->CopyImageText(), u"<< Replace Image"_s);
    EXPECT_EQ(wizard->ExistingPath(), session.HeadshotPath + u"ANN.jpg"_s);
    Select(u"Bo.jpg"_s);
    EXPECT_EQ(wizard->CopyImageText(), u"<< Copy Image"_s);
    EXPECT_EQ(wizard->ExistingPath(), QString());
    wizard->LoadImage(-1);
    EXPECT_EQ(wizard->SourcePath(), QString());
    EXPECT_EQ(wizard->CopyImageText(), u"<< Copy Image"_s);
}

TEST_F(HeadshotImportTest, CopiesAndReplaces) {
    Have(u"heads"_s, {u"ANN.jpg"_s});
    Have(u"source"_s, {u"Ann_1.jpg"_s, u"Bo.jpg"_s});
    wizard->CopyImage(); // nothing is selected
    Select(u"Ann_1.jpg"_s);
    wizard->CopyImage();
    Select(u"Bo.jpg"_s);
    wizard->CopyImage();
    EXPECT_EQ(Files(), (QStringList{u"ANN.jpg=source/Ann_1.jpg"_s, u"Bo.jpg=source/Bo.jpg"_s}));
    EXPECT_EQ(wizard->CopyImageText(), u"<< Replace Image"_s);
    EXPECT_EQ(Files(u"source"_s).size(), 2) << "the source keeps its files";
}

TEST_F(HeadshotImportTest, CopiesGoToTheFurtherFolderToo) {
    Have(u"heads"_s, {u"Ann.jpg"_s});
    Have(u"source"_s, {u"Ann.jpg"_s});
    Have(u"more"_s, {u"Ann.jpg"_s});
    Select(u"Ann.jpg"_s);
    wizard->additional_folder = Path(u"more"_s);
    wizard->CopyImage();
    EXPECT_EQ(Files(u"more"_s), QStringList{u"Ann.jpg=more/Ann.jpg"_s}) << "not ticked";
    wizard->also_copy = true;
    EXPECT_EQ(wizard->CopyAlternative(), 1);
    wizard->CopyImage();
    EXPECT_EQ(Files(u"more"_s), (QStringList{u"Ann.jpg=source/Ann.jpg"_s, u"Ann_1.jpg=source/Ann.jpg"_s}));
    EXPECT_EQ(Files(u"heads"_s), Files(u"more"_s));
    wizard->additional_folder = Path(u"gone"_s);
    EXPECT_EQ(wizard->CopyAlternative(), 2);
    EXPECT_FALSE(QFileInfo::exists(Path(u"gone"_s)));
}

TEST_F(HeadshotImportTest, AnAlternateTakesTheFirstFreeNumber) {
    Have(u"heads"_s, {u"Ann_1.jpg"_s, u"Ann_3.jpg"_s});
    Have(u"source"_s, {u"Ann.jpg"_s});
    EXPECT_EQ(wizard->CopyAlternative(), -1) << "nothing is selected";
    Select(u"Ann.jpg"_s);
    EXPECT_EQ(wizard->CopyAlternative(), 0);
    EXPECT_FALSE(wizard->CanMakePrimary());
    EXPECT_EQ(wizard->CopyAlternative(), 2);
    EXPECT_TRUE(wizard->CanMakePrimary());
    EXPECT_EQ(wizard->CopyAlternative(), 4);
}

TEST_F(HeadshotImportTest, TheNewestAlternateBecomesThePrimary) {
    Have(u"heads"_s, {u"Ann.jpg"_s, u"Ann_1.jpg"_s});
    Have(u"source"_s, {u"Ann_1.jpg"_s, u"Bo.jpg"_s});
    Select(u"Ann_1.jpg"_s);
    wizard->MakePrimary(); // nothing was copied
    wizard->CopyAlternative();
    wizard->MakePrimary();
    EXPECT_EQ(Files(), (QStringList{u"Ann.jpg=source/Ann_1.jpg"_s, u"Ann_1.jpg=heads/Ann_1.jpg"_s,
                                    u"Ann_2.jpg=heads/Ann.jpg"_s}));
    EXPECT_FALSE(wizard->CanMakePrimary());
    wizard->CopyAlternative();
    Select(u"Bo.jpg"_s);
    EXPECT_FALSE(wizard->CanMakePrimary()) << "another person";
}

TEST_F(HeadshotImportTest, AFaultIsTold) {
    Have(u"source"_s, {u"Ann.jpg"_s});
    Log(kTraceError);
    Select(u"Ann.jpg"_s);
    QFile::remove(Path(u"source/Ann.jpg"_s));
    for (int i = 0; i < 2; ++i) {
        Expect(u"Error copying image"_s, {}, MessageIcon::Critical);
    }
    wizard->CopyImage();
    EXPECT_EQ(wizard->CopyAlternative(), -1);
    EXPECT_EQ(Files(), QStringList());
    EXPECT_EQ(LogLines().filter(u"Error:    CopyAll: cannot read "_s).size(), 2);
    folder_.Write(u"source/Ann.jpg"_s, "x");
    QDir(session.HeadshotPath).removeRecursively();
    folder_.Write(u"heads"_s, "a file in the folder's place");
    Expect(u"Error copying image"_s, {}, MessageIcon::Critical);
    wizard->CopyImage();
}

TEST_F(HeadshotImportTest, WithoutAHeadshotFolderNothingIsCopied) {
    Have(u"source"_s, {u"Ann.jpg"_s});
    session.HeadshotPath.clear();
    Select(u"Ann.jpg"_s);
    const QString present = QDir::currentPath();
    QDir::setCurrent(folder_.Path());
    Expect(u"Error copying image"_s, {}, MessageIcon::Critical);
    wizard->CopyImage();
    Expect(u"Error copying image"_s, {}, MessageIcon::Critical);
    EXPECT_EQ(wizard->CopyAlternative(), -1);
    QDir::setCurrent(present);
    EXPECT_FALSE(folder_.Has(u"Ann.jpg"_s));
}

TEST_F(HeadshotImportTest, AnAlternateThatIsGoneDoesNotBecomeThePrimary) {
    Have(u"heads"_s, {u"Ann.jpg"_s});
    Have(u"source"_s, {u"Ann.jpg"_s});
    Select(u"Ann.jpg"_s);
    EXPECT_EQ(wizard->CopyAlternative(), 1);
    QFile::remove(session.HeadshotPath + u"Ann_1.jpg"_s);
    Expect(u"The pictures cannot change places:\nSource file does not exist."_s, u"Make Primary"_s,
           MessageIcon::Warning);
    wizard->MakePrimary();
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg=heads/Ann.jpg"_s});
}

TEST_F(HeadshotImportTest, AFileThatMayOnlyBeReadIsReplacedLater) {
    Have(u"source"_s, {u"Ann.jpg"_s});
    const QString source = Path(u"source/Ann.jpg"_s);
    QFile::setPermissions(source, QFile::ReadOwner);
    Select(u"Ann.jpg"_s);
    wizard->CopyImage();
    EXPECT_TRUE(QFile::permissions(session.HeadshotPath + u"Ann.jpg"_s).testFlag(QFile::WriteOwner));
    QFile::remove(source);
    folder_.Write(u"source/Ann.jpg"_s, "new");
    wizard->CopyImage();
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg=new"_s});
    QFile::remove(source);
    Log(kTraceError);
    Expect(u"Error copying image"_s, {}, MessageIcon::Critical);
    wizard->CopyImage();
    EXPECT_EQ(Files(), QStringList{u"Ann.jpg=new"_s});
    EXPECT_EQ(LogLines().filter(u"Error:    CopyAll: cannot read "_s).size(), 1);
}

TEST_F(HeadshotImportTest, AFolderThatIsGoneIsMade) {
    Have(u"source"_s, {u"Ann.jpg"_s});
    QDir(session.HeadshotPath).removeRecursively();
    Select(u"Ann.jpg"_s);
    wizard->CopyImage();
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(HeadshotImportTest, AllAreCopiedWhereNoneExists) {
    Have(u"heads"_s, {u"Ann.jpg"_s});
    Have(u"source"_s, {u"Ann.jpg"_s, u"Bo_1.jpg"_s, u"Bo_2.jpg"_s, u"Cy.jpg"_s});
    const QString question =
        u"Do you really want to copy copy all images where currently none exists in headshot folder?"_s;
    Expect(question, u"Copy all?"_s, MessageIcon::Question, MessageAnswer::No);
    wizard->CopyWhereNone();
    EXPECT_EQ(Files().size(), 1);
    Expect(question, u"Copy all?"_s, MessageIcon::Question, MessageAnswer::Yes);
    Expect(u"Finished copying images"_s, u"Done"_s, MessageIcon::None);
    wizard->CopyWhereNone();
    EXPECT_EQ(Files(),
              (QStringList{u"Ann.jpg=heads/Ann.jpg"_s, u"Bo.jpg=source/Bo_1.jpg"_s, u"Cy.jpg=source/Cy.jpg"_s}));
}

TEST_F(HeadshotImportTest, AllAreCopiedAsAlternatives) {
    Have(u"heads"_s, {u"Ann.jpg"_s});
    Have(u"source"_s, {u"Ann.jpg"_s, u"Bo_1.jpg"_s, u"Bo_2.jpg"_s});
    const QString question =
        u"Do you really want to copy copy all images as alternatives?\nIt is recommended, that you "
        "first call all other functions in this tool window!"_s;
    Expect(question, {}, MessageIcon::Question, MessageAnswer::No);
    wizard->CopyAllAlternative();
    Expect(question, {}, MessageIcon::Question, MessageAnswer::Yes);
    Expect(u"Finished copying images"_s, u"Done"_s, MessageIcon::None);
    wizard->CopyAllAlternative();
    EXPECT_EQ(Files(), (QStringList{u"Ann.jpg=heads/Ann.jpg"_s, u"Ann_1.jpg=source/Ann.jpg"_s,
                                    u"Bo.jpg=source/Bo_1.jpg"_s, u"Bo_1.jpg=source/Bo_2.jpg"_s}));
    EXPECT_FALSE(wizard->CanMakePrimary());
}

TEST_F(HeadshotImportTest, AFaultEndsTheCopyingOfAll) {
    Have(u"source"_s, {u"Ann.jpg"_s, u"Bo.jpg"_s});
    QFile::remove(Path(u"source/Ann.jpg"_s));
    Answer(MessageAnswer::Yes);
    Expect(u"Error copying image"_s, {}, MessageIcon::Critical);
    wizard->CopyWhereNone();
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(HeadshotImportTest, CopyingAllStopsWhenTheUserCancels) {
    Have(u"source"_s, {u"Ann.jpg"_s, u"Bo.jpg"_s});
    services.pump.At(1, [this] { session.progress.Close(); });
    Answer(MessageAnswer::Yes);
    Expect(u"Finished copying images"_s, {}, MessageIcon::None);
    wizard->CopyWhereNone();
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(HeadshotImportTest, IdenticalPicturesOfTheSourceGoAfterAYes) {
    Have(u"heads"_s, {u"Ann.jpg"_s});
    Have(u"source"_s, {u"Bo.jpg"_s});
    folder_.Write(u"source/Ann_4.jpg"_s, "12345/Ann.jpg");
    wizard->UpdateSourceImageList();
    const QString question =
        u"This will delete all files in the source path which have an identical file in Headshot folder!\nProceed?"_s;
    Expect(question, u"Removal of images"_s, MessageIcon::Question, MessageAnswer::No);
    wizard->RemoveIdenticalImages();
    EXPECT_EQ(Files(u"source"_s).size(), 2);
    Select(u"Bo.jpg"_s);
    Expect(question, u"Removal of images"_s, MessageIcon::Question, MessageAnswer::Yes);
    wizard->RemoveIdenticalImages();
    EXPECT_EQ(Files(u"source"_s), QStringList{u"Bo.jpg=source/Bo.jpg"_s});
    EXPECT_EQ(wizard->FileListImages.Names(), QStringList{u"Bo.jpg"_s});
    EXPECT_EQ(wizard->TargetName(), u"Bo.jpg"_s) << "the selection stays";
}

TEST_F(HeadshotImportTest, FoldersAreChosenAndKept) {
    services.dialogs.ExpectBrowseFolder({}, u"New Headshot Source"_s);
    wizard->ChooseSourcePath();
    EXPECT_EQ(wizard->FileListImages.Folder(), QString());
    services.dialogs.ExpectBrowseFolder(Path(u"source"_s), u"New Headshot Source"_s);
    wizard->ChooseSourcePath();
    services.dialogs.ExpectBrowseFolder({}, u"Also copy images to following folder"_s);
    EXPECT_FALSE(wizard->setAdditionalCopyFolder());
    services.dialogs.ExpectBrowseFolder(Path(u"more"_s), u"Also copy images to following folder"_s);
    EXPECT_TRUE(wizard->setAdditionalCopyFolder());
    wizard->also_copy = true;
    wizard->no_resize_right = true;
    wizard->KeepSettings();
    const HeadshotImport again(session);
    EXPECT_EQ(again.FileListImages.Folder(), Path(u"source"_s));
    EXPECT_EQ(again.additional_folder, Path(u"more"_s));
    EXPECT_TRUE(again.also_copy);
    EXPECT_TRUE(again.no_resize_right);
    EXPECT_FALSE(again.no_resize_left);
    EXPECT_EQ(GetINIString(session, u"HeadhotWizard"_s, u"CheckAlsoCopy"_s, {}), u"True"_s);
}

TEST_F(HeadshotImportTest, PicturesAreHandedToOtherPrograms) {
    Have(u"source"_s, {u"Ann Lee.jpg"_s});
    wizard->EditImage();
    wizard->OpenImage();
    Select(u"Ann Lee.jpg"_s);
    wizard->OpenImage();
    EXPECT_EQ(services.opener.opened, QStringList{u"file "_s + Path(u"source/Ann Lee.jpg"_s)});
    services.dialogs.ExpectOpenFile({}, u"Select your image editing application:"_s);
    wizard->EditImage();
    EXPECT_EQ(services.processes.runs.size(), 0u) << "no editor was chosen";
    services.dialogs.ExpectOpenFile(Path(u"paint"_s), u"Select your image editing application:"_s);
    wizard->EditImage();
    wizard->EditImage();
    ASSERT_EQ(services.processes.runs.size(), 2u);
    EXPECT_EQ(services.processes.runs.front(), (QStringList{Path(u"paint"_s), Path(u"source/Ann Lee.jpg"_s)}));
    EXPECT_EQ(GetINIString(session, u"HeadhotWizard"_s, u"ImageEditor"_s, {}), Path(u"paint"_s));
    services.processes.behave = [](const QStringList &, QString *error) -> std::optional<int> {
        *error = u"not found"_s;
        return std::nullopt;
    };
    Expect(u"The program cannot be started: "_s + Path(u"paint"_s) + u"\nnot found"_s, {}, MessageIcon::Warning);
    wizard->EditImage();
}

} // namespace ostrand
