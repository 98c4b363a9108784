#include "skin/InstallSkins.h"

#include "../database/CollectionFixture.h"
#include "shell/StartUp.h"

#ifdef Q_OS_UNIX
#include "sql/ForkedChild.h"

#include <sys/resource.h>
#endif

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class InstallSkinsTest : public CollectionTest {
protected:
    void SetUp() override {
        Write(Own(u"Plain/Skin.html"_s), "plain");
        Write(Own(u"Fine/Skin.html"_s), "fine");
        Write(Own(u"Fine/Images/star.png"_s), "star");
    }

    QString Own(const QString &name) const { return services.folders.Program() + u"/skins/"_s + name; }
    QString Skins() const { return session.DataFolder + u"/Skins"_s; }
    static void Write(const QString &path, const QByteArray &content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray Installed(const QString &name) const { return test::ReadTestFile(Skins() + u'/' + name); }
};

TEST_F(InstallSkinsTest, ANewDataFolderGetsThem) {
    InstallSkins(session);
    EXPECT_EQ(Installed(u"Plain/Skin.html"_s), "plain");
    EXPECT_EQ(Installed(u"Fine/Skin.html"_s), "fine");
    EXPECT_EQ(Installed(u"Fine/Images/star.png"_s), "star");
    EXPECT_EQ(QDir(Skins()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), (QStringList{u"Fine"_s, u"Plain"_s}));
}

TEST_F(InstallSkinsTest, AnEmptyFolderGetsThem) {
    QDir().mkpath(Skins());
    InstallSkins(session);
    EXPECT_EQ(Installed(u"Plain/Skin.html"_s), "plain");
}

TEST_F(InstallSkinsTest, AFolderThatHoldsASkinStaysAsItIs) {
    QDir().mkpath(Skins() + u"/Fine"_s);
    InstallSkins(session);
    EXPECT_EQ(QDir(Skins()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{u"Fine"_s});
    EXPECT_TRUE(QDir(Skins() + u"/Fine"_s).isEmpty());
}

TEST_F(InstallSkinsTest, NothingThatTheUserChangedIsOverwritten) {
    InstallSkins(session);
    Write(Skins() + u"/Plain/Skin.html"_s, "mine");
    QDir(Skins() + u"/Fine"_s).removeRecursively();
    InstallSkins(session);
    EXPECT_EQ(Installed(u"Plain/Skin.html"_s), "mine");
    EXPECT_FALSE(QFileInfo::exists(Skins() + u"/Fine"_s)) << "what was removed does not come back";
}

TEST_F(InstallSkinsTest, TheirFilesCanBeChanged) {
    QFile::setPermissions(Own(u"Plain/Skin.html"_s), QFile::ReadOwner | QFile::ReadGroup);
    InstallSkins(session);
    EXPECT_TRUE(QFile::permissions(Skins() + u"/Plain/Skin.html"_s).testFlag(QFile::WriteOwner));
}

TEST_F(InstallSkinsTest, WithoutAnyTheFolderIsMade) {
    QDir(services.folders.Program() + u"/skins"_s).removeRecursively();
    InstallSkins(session);
    EXPECT_TRUE(QDir(Skins()).exists());
    EXPECT_TRUE(QDir(Skins()).isEmpty());
}

#ifdef Q_OS_UNIX
TEST_F(InstallSkinsTest, WhatAFullDiskKeepsOutComesWithALaterStart) {
    Write(Own(u"Plain/Skin.html"_s), QByteArray(2'000, 'p'));
    EXPECT_EQ(sql::testing::InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit = {1'000, RLIM_INFINITY}; // no file takes a byte beyond it
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  InstallSkins(session);
                  return QDir(Skins()).isEmpty() ? 0 : 1;
              }),
              0);
    InstallSkins(session);
    EXPECT_EQ(Installed(u"Plain/Skin.html"_s).size(), 2'000);
    EXPECT_EQ(Installed(u"Fine/Images/star.png"_s), "star");
    EXPECT_EQ(QDir(session.DataFolder).entryList({u"Skins*"_s}, QDir::Dirs), QStringList{u"Skins"_s});
}

TEST_F(InstallSkinsTest, AFirstStartThatWasCutOffDoesNotCount) {
    Write(session.DataFolder + u"/Skins_new/Plain/Skin.html"_s, "pl");
    InstallSkins(session);
    EXPECT_EQ(Installed(u"Plain/Skin.html"_s), "plain");
    EXPECT_EQ(QDir(session.DataFolder).entryList({u"Skins*"_s}, QDir::Dirs), QStringList{u"Skins"_s});
}
#endif

TEST_F(InstallSkinsTest, TheFirstStartDoesIt) {
    PrepareStartUp(session, {});
    EXPECT_EQ(Installed(u"Plain/Skin.html"_s), "plain");
}

TEST_F(InstallSkinsTest, TheSkinsOfTheProgramHaveTemplates) {
    const QDir own(QString::fromUtf8(OSTRAND_SOURCE_DIR) + u"/resources/skins"_s);
    const QStringList names = own.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    EXPECT_EQ(names, (QStringList{u"Classic"_s, u"Episode"_s, u"Modern"_s, u"Script"_s}));
    for (const QString &name : names) {
        const QByteArray page = test::ReadTestFile(own.filePath(name) + u"/Skin.html"_s);
        EXPECT_TRUE(page.startsWith("\xEF\xBB\xBF")) << name.toStdString() << ": read as UTF-8";
        EXPECT_TRUE(page.contains("NAME=\"TITLE\"") || page.contains("HEADER_VARS")) << name.toStdString();
    }
}

} // namespace
} // namespace ostrand
