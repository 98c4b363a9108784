#include "support/BatchProgram.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::BatchProgram;
using test::BatchResult;

TEST(BatchUsage, WrongUsageIsTold) {
    BatchProgram program;
    program.folder.Write(u"c.txt"_s, "");
    const struct {
        const char *name;
        QStringList arguments;
        const char *message;
    } cases[] = {
        {"nothing", {}, "No command file is named."},
        {"only an option", {u"--quiet"_s}, "No command file is named."},
        {"unknown option", {u"--what"_s, u"c.txt"_s}, "There is no option --what."},
        {"two files", {u"c.txt"_s, u"d.txt"_s}, "More than one file is named."},
        {"sql without file", {u"--sql"_s}, "--sql needs a value."},
        {"sql and a file", {u"--sql"_s, u"a.mdb"_s, u"c.txt"_s}, "--sql takes no further file."},
        {"unknown format", {u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"xml"_s}, "There is no format \"xml\"."},
        {"create without sql", {u"--create"_s, u"c.txt"_s}, "--create and --format need --sql."},
        {"format without sql", {u"--format"_s, u"csv"_s, u"c.txt"_s}, "--create and --format need --sql."},
        {"render without a title",
         {u"--render"_s, u"Plain"_s, u"--database"_s, u"a.mdb"_s, u"-o"_s, u"o.html"_s},
         "--render needs the key of a profile or an episode."},
        {"render without a database",
         {u"--render"_s, u"Plain"_s, u"Key_1"_s, u"-o"_s, u"o.html"_s},
         "--render needs --database and -o."},
        {"render without a file",
         {u"--render"_s, u"Plain"_s, u"Key_1"_s, u"--database"_s, u"a.mdb"_s},
         "--render needs --database and -o."},
        {"render and sql",
         {u"--render"_s, u"Plain"_s, u"Key_1"_s, u"--sql"_s, u"a.mdb"_s},
         "--sql and --render exclude each other."},
        {"render without a skin", {u"Key_1"_s, u"--render"_s}, "--render needs a value."},
        {"two titles",
         {u"--render"_s, u"Plain"_s, u"Key_1"_s, u"Key_2"_s, u"--database"_s, u"a.mdb"_s, u"-o"_s, u"o.html"_s},
         "More than one file is named."},
        {"database without render",
         {u"--database"_s, u"a.mdb"_s, u"c.txt"_s},
         "--database, --offline and -o need --render."},
        {"offline without render", {u"--offline"_s, u"c.txt"_s}, "--database, --offline and -o need --render."},
        {"a page without render", {u"c.txt"_s, u"-o"_s, u"o.html"_s}, "--database, --offline and -o need --render."},
        {"a page without a name", {u"c.txt"_s, u"-o"_s}, "-o needs a value."},
        {"yes and no", {u"--yes"_s, u"--no"_s, u"c.txt"_s}, "--yes and --no exclude each other."},
        {"value for a switch", {u"--quiet=yes"_s, u"c.txt"_s}, "--quiet takes no value."},
        {"unknown locale", {u"--locale"_s, u"nowhere"_s, u"c.txt"_s}, "There is no locale \"nowhere\"."},
        {"missing command file", {u"none.txt"_s}, "There is no file \"none.txt\"."},
        {"folder as command file", {u"."_s}, "There is no file \".\"."},
    };
    for (const auto &c : cases) {
        const BatchResult result = program.Run(c.arguments);
        EXPECT_EQ(result.status, 2) << c.name;
        EXPECT_TRUE(result.errors.contains(c.message)) << c.name << ": " << result.errors.constData();
        EXPECT_EQ(result.output, "") << c.name;
    }
}

TEST(BatchUsage, HelpAndVersion) {
    BatchProgram program;
    const BatchResult help = program.Run({u"--help"_s});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.output.startsWith("Usage: ostrand-batch "));
    for (const char *option : {"--help", "--version", "--sql", "--create", "--format", "--render", "--database",
                               "--offline", "-o", "--yes", "--no", "--locale", "--quiet"}) {
        EXPECT_TRUE(help.output.contains(QByteArray("  ") + option + ' ')) << option;
    }
    const BatchResult version = program.Run({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, QStringLiteral("ostrand-batch %1.%2.%3\n")
                                  .arg(OSTRAND_VERSION_MAJOR)
                                  .arg(OSTRAND_VERSION_MINOR)
                                  .arg(OSTRAND_VERSION_PATCH)
                                  .toUtf8());
}

} // namespace
} // namespace ostrand
