#include "base/Files.h"

#include "support/TempDir.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include "sql/ForkedChild.h"

#include <sys/resource.h>
#endif

namespace ostrand {
namespace {

TEST(ReplaceFileTest, WritesANewFileAndReplacesAnOldOne) {
    test::TempDir dir;
    const QString path = dir / QStringLiteral("a.txt");
    EXPECT_TRUE(ReplaceFile(path, "one"));
    EXPECT_TRUE(ReplaceFile(path, "2"));
    EXPECT_EQ(dir.Read(QStringLiteral("a.txt")), QByteArray("2"));
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(ReplaceFileTest, WhereAPieceIsMissingTheOldFileStays) {
    const test::TempDir dir;
    const QString path = dir / QStringLiteral("a.txt");
    ASSERT_TRUE(ReplaceFile(path, "old"));
    int pieces = 0;
    QString error = QStringLiteral("before");
    EXPECT_FALSE(ReplaceFile(
        path,
        [&]() -> std::optional<QByteArray> {
            return ++pieces < 3 ? std::optional<QByteArray>(QByteArray(1000, 'x')) : std::nullopt;
        },
        &error));
    EXPECT_EQ(error, QString());
    EXPECT_EQ(ReadFile(path), QByteArray("old"));
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files).size(), 1);
}

TEST(ReplaceFileTest, SaysWhyItCannot) {
    test::TempDir dir;
    QString error;
    EXPECT_FALSE(ReplaceFile(dir / QStringLiteral("none/a.txt"), "x", &error));
    EXPECT_FALSE(error.isEmpty());
}

#ifdef Q_OS_UNIX
TEST(ReplaceFileTest, AFullDiskLeavesTheOldFile) {
    test::TempDir dir;
    const QString path = dir.Write(QStringLiteral("a.txt"), "old");
    EXPECT_EQ(sql::testing::InChild([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit = {10, RLIM_INFINITY}; // no file takes a byte beyond it
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  QString error;
                  return ReplaceFile(path, "much too long", &error) || error.isEmpty() ? 1 : 0;
              }),
              0);
    EXPECT_EQ(dir.Read(QStringLiteral("a.txt")), QByteArray("old"));
    EXPECT_EQ(QDir(dir.Path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}
#endif

TEST(ReadFileTest, TellsAMissingFileFromAnEmptyOne) {
    test::TempDir dir;
    EXPECT_EQ(ReadFile(dir.Write(QStringLiteral("e"), "")), QByteArray());
    EXPECT_EQ(ReadFile(dir / QStringLiteral("none")), std::nullopt);
    EXPECT_EQ(ReadFile(dir.Path()), std::nullopt);
}

#ifdef Q_OS_UNIX
TEST(ReadFileTest, TouchesNeitherPipesNorDevices) {
    EXPECT_TRUE(IsEndless(QStringLiteral("/dev/null")));
    EXPECT_EQ(ReadFile(QStringLiteral("/dev/null")), std::nullopt);
    test::TempDir dir;
    EXPECT_FALSE(IsEndless(dir.Path()));
    EXPECT_FALSE(IsEndless(dir / QStringLiteral("none")));
    EXPECT_FALSE(IsEndless(dir.Write(QStringLiteral("a.txt"), "a")));
}
#endif

TEST(MakeFolderPathTest, MakesEveryMissingFolder) {
    test::TempDir dir;
    EXPECT_TRUE(MakeFolderPath(dir / QStringLiteral("a/b/c")));
    EXPECT_TRUE(QDir(dir / QStringLiteral("a/b/c")).exists());
    EXPECT_TRUE(MakeFolderPath(dir / QStringLiteral("a/b/c"))) << "it exists by now";
}

TEST(MakeFolderPathTest, FailsBelowAFile) {
    test::TempDir dir;
    dir.Write(QStringLiteral("file"), "x");
    EXPECT_FALSE(MakeFolderPath(dir / QStringLiteral("file/a")));
    EXPECT_FALSE(MakeFolderPath({}));
}

TEST(FindIgnoringCaseTest, FindsTheExactSpellingFirst) {
    test::TempDir dir;
    dir.Write(QStringLiteral("ABC.jpg"), "1");
    dir.Write(QStringLiteral("abc.JPG"), "2");
    dir.Write(QStringLiteral("Größe.txt"), "3");
    const auto find = [&](const char *name) {
        return QDir(dir.Path()).relativeFilePath(FindIgnoringCase(dir.Path(), QString::fromUtf8(name)));
    };
    EXPECT_EQ(find("abc.JPG"), QStringLiteral("abc.JPG"));
    EXPECT_EQ(find("ABC.jpg"), QStringLiteral("ABC.jpg"));
    EXPECT_EQ(find("aBc.jpg"), QStringLiteral("ABC.jpg")) << "the first in order among equals";
    EXPECT_EQ(find("GRÖßE.TXT"), QStringLiteral("Größe.txt"));
}

TEST(FindIgnoringCaseTest, LooksForEntriesOnly) {
    test::TempDir dir;
    dir.Write(QStringLiteral("sub/x.txt"), "1");
    EXPECT_FALSE(FindIgnoringCase(dir.Path(), QStringLiteral("SUB")).isEmpty());
    for (const char *name : {"", ".", "..", "sub/x.txt", "../x", "none", "s*"})
        EXPECT_EQ(FindIgnoringCase(dir.Path(), QString::fromUtf8(name)), QString()) << name;
    EXPECT_EQ(FindIgnoringCase(dir / QStringLiteral("none"), QStringLiteral("x")), QString());
    EXPECT_EQ(FindIgnoringCase({}, QStringLiteral("x")), QString());
}

TEST(WithSeparatorTest, AddsItOnce) {
    EXPECT_EQ(WithSeparator({}), QString());
    EXPECT_EQ(WithSeparator(QStringLiteral("a")), QStringLiteral("a") + QDir::separator());
    EXPECT_EQ(WithSeparator(QStringLiteral("a/")), QStringLiteral("a/"));
}

} // namespace
} // namespace ostrand
