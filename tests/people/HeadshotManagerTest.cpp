// Tidying the headshot folder: deleting and changing places.
#include "people/HeadshotManager.h"

#include "base/Files.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class HeadshotManagerTest : public CollectionTest {
protected:
    void SetUp() override {
        QDir().mkpath(session.DataFolder);
        session.HeadshotPath = WithSeparator(Path(u"heads"_s));
    }
    void Have(const QStringList &names) {
        for (const QString &name : names) {
            folder_.Write(u"heads/"_s + name, name.toUtf8());
        }
    }
    QStringList Many(int count) {
        QStringList names;
        for (int i = 0; i < count; ++i) {
            names += u"Person %1.jpg"_s.arg(i);
        }
        return names;
    }
    QStringList Files() { return QDir(session.HeadshotPath).entryList(QDir::Files, QDir::Name); }
    void ExpectQuestion(MessageAnswer answer) {
        Expect(u"Delete all selected images?"_s, u"Delete Images"_s, MessageIcon::Question, answer);
    }
};

} // namespace

TEST_F(HeadshotManagerTest, AFewFilesGoAtOnce) {
    Have(Many(3));
    HeadshotManager manager(session);
    ExpectQuestion(MessageAnswer::No);
    EXPECT_FALSE(manager.DeleteImages(Many(2)));
    ExpectQuestion(MessageAnswer::Yes);
    EXPECT_TRUE(manager.DeleteImages(Many(2)));
    EXPECT_FALSE(manager.DeleteImages({}));
    EXPECT_EQ(Files(), QStringList{u"Person 2.jpg"_s});
    EXPECT_EQ(manager.FileListImages.Names(), Files());
    EXPECT_TRUE(services.progress.calls.isEmpty());
}

TEST_F(HeadshotManagerTest, ManyFilesShowHowFarItIsAndCanBeStopped) {
    Have(Many(300));
    HeadshotManager manager(session);
    services.pump.At(200, [this] { session.progress.Close(); });
    ExpectQuestion(MessageAnswer::Yes);
    EXPECT_TRUE(manager.DeleteImages(Many(300)));
    EXPECT_EQ(Files().size(), 100);
    EXPECT_EQ(manager.FileListImages.rowCount(), 100);
    EXPECT_EQ(services.progress.calls.first(), u"opened Delete Images"_s);
    EXPECT_TRUE(services.progress.Has(u"counter 200/300"_s));
}

TEST_F(HeadshotManagerTest, AFolderInAPicturesPlaceIsTold) {
    Have({u"Ann.jpg"_s});
    HeadshotManager manager(session);
    QFile::remove(session.HeadshotPath + u"Ann.jpg"_s);
    folder_.Write(u"heads/Ann.jpg/Bo.jpg"_s, "x");
    ExpectQuestion(MessageAnswer::Yes);
    Expect({}, u"Delete Images"_s, MessageIcon::Warning);
    manager.DeleteImages({u"Ann.jpg"_s});
    EXPECT_TRUE(services.dialogs.messages.back().text.startsWith(u"A picture cannot be deleted:\nAnn.jpg: "_s));
    EXPECT_TRUE(folder_.Has(u"heads/Ann.jpg/Bo.jpg"_s));
}

TEST_F(HeadshotManagerTest, AnAlternateThatIsGoneChangesNothing) {
    Have({u"Ann.jpg"_s, u"Ann_1.jpg"_s});
    HeadshotManager manager(session);
    QFile::remove(session.HeadshotPath + u"Ann_1.jpg"_s);
    Expect(u"The pictures cannot change places:\nSource file does not exist."_s, u"Make Primary"_s,
           MessageIcon::Warning);
    manager.MakePrimary(u"Ann_1.jpg"_s);
    manager.MakePrimary(u"Ann.jpg"_s);
    EXPECT_EQ(folder_.Read(u"heads/Ann.jpg"_s), "Ann.jpg");
    EXPECT_EQ(manager.FileListImages.Names(), QStringList{u"Ann.jpg"_s});
}

} // namespace ostrand
