#include "base/FolderIndex.h"
#include "base/FileNames.h"

#include "support/TempDir.h"

#include <QFile>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FolderIndexTest : public ::testing::Test {
protected:
    void SetUp() override {
        dir.Write(u"Ab.jpg"_s, "1");
        dir.Write(u"\u00c9mile.JPG"_s, "2");
        index.SetFolder(dir.Path());
    }
    /// The name of what is found, without the folder.
    QString Found(const QString &name) { return index.Find(name).section(u'/', -1); }

    test::TempDir dir;
    FolderIndex index;
};

TEST_F(FolderIndexTest, FindsANameInAnySpelling) {
    const struct {
        QString asked, found;
    } cases[] = {
        {u"Ab.jpg"_s, u"Ab.jpg"_s},
        {u"aB.JPG"_s, u"Ab.jpg"_s},
        {u"\u00e9MILE.jpg"_s, u"\u00c9mile.JPG"_s},
        {u"none.jpg"_s, {}},
        {{}, {}},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Found(c.asked), c.found) << qPrintable(c.asked);
    }
}

TEST(FileNames, AreThoseOfFilesAlone) {
    test::TempDir folder;
    for (const QString &name :
         {QStringLiteral("Ann.jpg"), QStringLiteral(".hidden"), QStringLiteral("\u00D3scar \u732B")}) {
        folder.Write(name, "x");
    }
    folder.Write(QStringLiteral("inner/Bo.jpg"), "x");
    ASSERT_TRUE(QFile::link(folder / QStringLiteral("Ann.jpg"), folder / QStringLiteral("link")));
    ASSERT_TRUE(QFile::link(folder / QStringLiteral("gone"), folder / QStringLiteral("broken")));
    QStringList names = FileNamesOf(folder.Path());
    names.sort();
    EXPECT_EQ(names, (QStringList{QStringLiteral(".hidden"), QStringLiteral("Ann.jpg"), QStringLiteral("link"),
                                  QStringLiteral("\u00D3scar \u732B")}));
    EXPECT_EQ(FileNamesOf(folder / QStringLiteral("gone")), QStringList());
    EXPECT_EQ(FileNamesOf(folder / QStringLiteral("Ann.jpg")), QStringList());
}

TEST_F(FolderIndexTest, ANameSpeltExactlyWins) {
    dir.Write(u"AB.jpg"_s, "3");
    EXPECT_EQ(Found(u"AB.jpg"_s), u"AB.jpg"_s);
    EXPECT_EQ(Found(u"Ab.jpg"_s), u"Ab.jpg"_s);
}

TEST_F(FolderIndexTest, ReadsTheFolderOnceForManyLookUps) {
    for (int i = 0; i < 100; ++i) {
        Found(u"missing%1.jpg"_s.arg(i));
    }
    EXPECT_EQ(index.Reads(), 1);
}

TEST_F(FolderIndexTest, FindsAFileThatCameLater) {
    EXPECT_EQ(Found(u"NEW.jpg"_s), QString());
    index.Invalidate();
    dir.Write(u"new.jpg"_s, "4");
    EXPECT_EQ(Found(u"NEW.jpg"_s), u"new.jpg"_s);
}

TEST_F(FolderIndexTest, TellsWhatWasThereAtTheLastLook) {
    EXPECT_FALSE(index.Holds(u"Ab.jpg"_s)) << "it was not looked at yet";
    index.Refresh();
    EXPECT_TRUE(index.Holds(u"Ab.jpg"_s));
    EXPECT_TRUE(index.Holds(u"aB.JPG"_s));
    EXPECT_FALSE(index.Holds(u"missing.jpg"_s));
    EXPECT_FALSE(index.Holds({}));
    dir.Write(u"new.jpg"_s, "4");
    EXPECT_FALSE(index.Holds(u"new.jpg"_s));
    index.Invalidate();
    index.Refresh();
    EXPECT_TRUE(index.Holds(u"NEW.jpg"_s));
}

TEST_F(FolderIndexTest, AFolderThatIsMissingHoldsNothing) {
    index.SetFolder(dir / u"gone"_s);
    EXPECT_EQ(Found(u"Ab.jpg"_s), QString());
    EXPECT_EQ(FolderIndex().Find(u"Ab.jpg"_s), QString());
}

} // namespace
} // namespace ostrand
