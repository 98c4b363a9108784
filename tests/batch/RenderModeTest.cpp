#include "support/BatchProgram.h"

#include <QFile>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::BatchProgram;
using test::BatchResult;

const QByteArray kMark = "\xEF\xBB\xBF";

class RenderModeTest : public ::testing::Test {
protected:
    void SetUp() override {
        program.folder.Write(u"c.txt"_s, "createdatabase a.mdb\n");
        ASSERT_EQ(program.Run({u"c.txt"_s}).status, 0);
        ASSERT_EQ(program
                      .Run({u"--sql"_s, u"a.mdb"_s},
                           "INSERT INTO Profiles (ProfileID, Title, Medium) VALUES ('Key_1', 'Amber', 'DVD');\n"
                           "INSERT INTO Profiles (ProfileID, Title, Overview) VALUES ('Both', 'Birch', 'Film');\n"
                           "INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle, Overview) VALUES ('E1', 'S1', "
                           "'Storm', 'Rain');\n"
                           "INSERT INTO Episodes (EpisodeID, SeriesID, EpisodeTitle, Overview) VALUES ('Both', 'S1', "
                           "'Storm', 'Episode');\n")
                      .status,
                  0);
        Skin("<DP NAME=\"MEDIUM\">|<DP NAME=\"OVERVIEW\">|<DP NAME=\"SKIN_NAME\">");
    }

    void Skin(const QByteArray &page) const { program.folder.Write(u"home/OstrandApp/Skins/Plain/Skin.html"_s, page); }
    BatchResult Render(const QString &skin, const QString &key, const QStringList &more = {}) {
        QFile::remove(program.In(u"out.html"_s));
        return program.Run(QStringList{u"--render"_s, skin, key, u"--database"_s, u"a.mdb"_s, u"-o"_s, u"out.html"_s} +
                           more);
    }

    BatchProgram program;
};

TEST_F(RenderModeTest, WritesThePageOfATitle) {
    const struct {
        const char *name;
        QString key;
        QByteArray page;
    } cases[] = {
        {"a profile", u"Key_1"_s, "DVD||Plain"},
        {"an episode", u"E1"_s, "|Rain|Plain"},
        {"a profile comes before an episode", u"Both"_s, "|Film|Plain"},
    };
    for (const auto &c : cases) {
        const BatchResult result = Render(u"Plain"_s, c.key);
        EXPECT_EQ(result.status, 0) << c.name << result.output.constData() << result.errors.constData();
        EXPECT_EQ(result.output, "") << c.name;
        EXPECT_EQ(program.folder.Read(u"out.html"_s), kMark + c.page) << c.name;
    }
    EXPECT_FALSE(QFile::exists(program.In(u"a.ldb"_s)));
}

TEST_F(RenderModeTest, TakesASkinByItsFolder) {
    program.folder.Write(u"other skin/skin.html"_s, "<DP NAME=\"SKIN_NAME\"> $DPIMAGES.a.png");
    EXPECT_EQ(Render(u"other skin"_s, u"Key_1"_s).status, 0);
    const QByteArray images = "file://" + program.In(u"other skin/Images/a.png"_s).replace(u' ', u"%20"_s).toUtf8();
    EXPECT_EQ(program.folder.Read(u"out.html"_s), kMark + "other skin " + images);
    EXPECT_EQ(Render(program.In(u"other skin"_s), u"Key_1"_s).status, 0);
    EXPECT_EQ(program.folder.Read(u"out.html"_s), kMark + "other skin " + images);
}

TEST_F(RenderModeTest, TakesTheOptionForTheSite) {
    EXPECT_EQ(Render(u"Plain"_s, u"Key_1"_s, {u"--offline"_s}).status, 0);
    EXPECT_EQ(program.folder.Read(u"out.html"_s), kMark + "DVD||Plain");
}

TEST_F(RenderModeTest, LeavesTheLastDatabaseAsItWas) {
    program.folder.Write(u"c.txt"_s, "createdatabase b.mdb\n");
    ASSERT_EQ(program.Run({u"c.txt"_s}).status, 0);
    EXPECT_EQ(Render(u"Plain"_s, u"Key_1"_s).status, 0);
    EXPECT_TRUE(program.folder.Read(u"home/OstrandApp/Settings.ini"_s)
                    .contains("LastDatabase=" + program.In(u"b.mdb"_s).toUtf8()));
}

TEST_F(RenderModeTest, TellsWhatCannotBeFound) {
    const struct {
        const char *name;
        QStringList arguments;
        QByteArray message;
    } cases[] = {
        {"skin",
         {u"--render"_s, u"None"_s, u"Key_1"_s, u"--database"_s, u"a.mdb"_s, u"-o"_s, u"out.html"_s},
         "There is no skin \"None\"."},
        {"key",
         {u"--render"_s, u"Plain"_s, u"Key_none"_s, u"--database"_s, u"a.mdb"_s, u"-o"_s, u"out.html"_s},
         "There is no profile or episode \"Key_none\"."},
        {"database",
         {u"--render"_s, u"Plain"_s, u"Key_1"_s, u"--database"_s, u"none.mdb"_s, u"-o"_s, u"out.html"_s},
         "Databasefile does not exist!"},
        {"folder of the page",
         {u"--render"_s, u"Plain"_s, u"Key_1"_s, u"--database"_s, u"a.mdb"_s, u"-o"_s, u"none/out.html"_s},
         "\"none/out.html\" cannot be written."},
    };
    for (const auto &c : cases) {
        const BatchResult result = program.Run(c.arguments);
        EXPECT_EQ(result.status, 2) << c.name;
        EXPECT_TRUE((result.output + result.errors).contains(c.message))
            << c.name << result.output.constData() << result.errors.constData();
        EXPECT_FALSE(QFile::exists(program.In(u"out.html"_s))) << c.name;
        EXPECT_FALSE(QFile::exists(program.In(u"none.mdb"_s))) << c.name;
    }
}

TEST_F(RenderModeTest, TellsOfATagThatFailsAndGoesOn) {
    Skin("[<OSV NAME=\"EPISODES\" ShowTitle=\"maybe\">]<DP NAME=\"MEDIUM\">");
    const BatchResult result = Render(u"Plain"_s, u"Key_1"_s);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "[Warning] EPISODES: Type mismatch: ShowTitle=\"maybe\"\n");
    EXPECT_EQ(program.folder.Read(u"out.html"_s), kMark + "[]DVD");
}

TEST_F(RenderModeTest, WhatCannotBeRenderedIsWrittenAsItWasRead) {
    for (const QByteArray page : {"plain", "<DP NAME=\"MEDIUM\"><DP NAME=\"CASETYPE\" Translate=\"maybe\">"}) {
        Skin(page);
        const BatchResult result = Render(u"Plain"_s, u"Key_1"_s);
        EXPECT_EQ(result.status, 1) << page.constData();
        EXPECT_TRUE(result.errors.startsWith("Error: ")) << result.errors.constData();
        EXPECT_EQ(program.folder.Read(u"out.html"_s), kMark + page);
    }
}

} // namespace
} // namespace ostrand
