#include "shell/CommandFile.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/StartUp.h"
#include "support/Scripted.h"

#include <QFile>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::TestServices;

TEST(CommandKeywords, StandInTheirOrder) {
    QStringList keywords;
    for (const FileCommand &command : FileCommands()) {
        keywords += QString::fromUtf16(command.keyword);
    }
    EXPECT_EQ(keywords, (QStringList{u"exportprofiler2database"_s,
                                     u"importawardfile"_s,
                                     u"exportviewercollectionfiles"_s,
                                     u"exportviewercollection"_s,
                                     u"importprofilerdatabase"_s,
                                     u"exportaliastofile"_s,
                                     u"importaliasfromfile"_s,
                                     u"exportsqltofile"_s,
                                     u"importsqlfromfile"_s,
                                     u"importtranslationfromfile"_s,
                                     u"exporttranslationtofile"_s,
                                     u"opendatabase"_s,
                                     u"close"_s,
                                     u"runcommandfile"_s,
                                     u"shellcommand"_s,
                                     u"exporttvasprofiler3data"_s,
                                     u"exporttvasprofiler3dataseparated"_s,
                                     u"createdatabase"_s,
                                     u"exportprofiler3database"_s,
                                     u"createhtmlcollection"_s,
                                     u"compactdatabase"_s,
                                     u"exportawardsfile"_s,
                                     u"setskin"_s,
                                     u"exportadditionalinfos"_s,
                                     u"importadditionalinfos"_s,
                                     u"exportallawards"_s,
                                     u"exportstoreit"_s}));
}

TEST(CommandKeywords, MatchTheStartOfALine) {
    const struct {
        const char *name;
        QString line, keyword, argument;
    } cases[] = {
        {"plain", u"opendatabase /a/b.mdb"_s, u"opendatabase"_s, u"/a/b.mdb"_s},
        {"capitals and blanks", u"  OPENDATABASE    /A/b.mdb  "_s, u"opendatabase"_s, u"/A/b.mdb"_s},
        {"no blank needed", u"setskinBlue"_s, u"setskin"_s, u"Blue"_s},
        {"no argument", u"setskin"_s, u"setskin"_s, {}},
        {"argument with blanks", u"setskin My Skin"_s, u"setskin"_s, u"My Skin"_s},
        {"more behind", u"closed"_s, u"close"_s, u"d"_s},
        {"the longer keyword first", u"exportviewercollectionfiles x"_s, u"exportviewercollectionfiles"_s, u"x"_s},
        {"the shorter of two", u"exportviewercollection x"_s, u"exportviewercollection"_s, u"x"_s},
        {"the shorter takes the longer", u"exporttvasprofiler3dataseparated f.xml"_s, u"exporttvasprofiler3data"_s,
         u"separated f.xml"_s},
        {"unknown", u"makecoffee"_s, {}, {}},
        {"keyword not at the start", u"please close"_s, {}, {}},
        {"blank", u"   "_s, {}, {}},
        {"empty", u""_s, {}, {}},
    };
    for (const auto &c : cases) {
        const CommandCall call = MatchCommand(c.line);
        EXPECT_EQ(call.command ? QString::fromUtf16(call.command->keyword) : QString(), c.keyword) << c.name;
        EXPECT_EQ(call.argument, c.argument) << c.name;
    }
}

TEST(CommandKeywords, LinesEndInAnyWay) {
    EXPECT_EQ(CommandLines(u"a\r\nb\nc\rd"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    EXPECT_EQ(CommandLines(u"a\r\n"_s), (QStringList{u"a"_s, u""_s}));
}

class CommandFileTest : public ::testing::Test {
protected:
    void SetUp() override { PrepareStartUp(session, {}); }
    QString In(const QString &name) { return services.folders.dir / name; }
    void Run(const QString &text) { RunCommandFile(session, services.folders.dir.Write(u"c.txt"_s, text.toUtf8())); }

    TestServices services;
    Session session{services.services};
};

TEST_F(CommandFileTest, AMissingFileIsNoMatter) {
    RunCommandFile(session, In(u"none.txt"_s));
    EXPECT_TRUE(services.dialogs.messages.empty());
}

TEST_F(CommandFileTest, UnknownAndBlankLinesAreIgnored) {
    Run(u"\r\n  \r\n# a remark\r\nmakecoffee\r\nsetskin Blue\r\n"_s);
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s);
    EXPECT_TRUE(services.dialogs.messages.empty());
}

TEST_F(CommandFileTest, CreatesAndOpensDatabases) {
    Run(u"createdatabase "_s + In(u"a.mdb"_s) + u"\ncreatedatabase "_s + In(u"b.mdb"_s) + u"\nOPENDATABASE    "_s +
        In(u"a.mdb"_s));
    ASSERT_TRUE(session.Database);
    EXPECT_EQ(session.DatabaseName, u"a"_s);
    EXPECT_TRUE(QFile::exists(In(u"b.mdb"_s)));
}

TEST_F(CommandFileTest, AnExistingDatabaseIsNotCreatedAgain) {
    services.folders.dir.Write(u"a.mdb"_s, "something");
    services.dialogs.ExpectMessage(u"Database with this name already exists!"_s);
    Run(u"createdatabase "_s + In(u"a.mdb"_s));
    EXPECT_FALSE(session.Database);
    EXPECT_EQ(services.folders.dir.Read(u"a.mdb"_s), "something");
}

TEST_F(CommandFileTest, TheNextLineRunsAfterAMissingDatabase) {
    services.dialogs.ExpectMessage(u"Databasefile does not exist!"_s);
    Run(u"opendatabase "_s + In(u"none.mdb"_s) + u"\nsetskin Blue"_s);
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s);
}

TEST_F(CommandFileTest, AKeywordWithoutArgumentGetsTheEmptyText) {
    services.dialogs.ExpectMessage(u"Databasefile does not exist!"_s);
    Run(u"opendatabase"_s);
    session.CurrentSkin = u"Blue"_s;
    Run(u"setskin"_s);
    EXPECT_EQ(session.CurrentSkin, u""_s);
}

TEST_F(CommandFileTest, CompactsADatabase) {
    ASSERT_TRUE(NewCollectionDatabase(session, In(u"a.mdb"_s)));
    services.dialogs.ExpectMessage(u"Database seems to be open in another application or instance\r\n"
                                   u"Please close all open instances first"_s);
    Run(u"compactdatabase "_s + In(u"a.mdb"_s));
    session.Database.reset();
    Run(u"compactdatabase "_s + In(u"a.mdb"_s) + u"\nopendatabase "_s + In(u"a.mdb"_s));
    EXPECT_TRUE(session.Database);
    EXPECT_FALSE(QFile::exists(In(u"a.mdb_bak"_s)));
}

TEST_F(CommandFileTest, CloseEndsAllFiles) {
    services.folders.dir.Write(u"inner.txt"_s, "close\nsetskin Red\n");
    Run(u"runcommandfile "_s + In(u"inner.txt"_s) + u"\nsetskin Blue\n"_s);
    EXPECT_TRUE(session.EndProgram);
    EXPECT_EQ(session.CurrentSkin, u""_s);
}

TEST_F(CommandFileTest, FilesNest) {
    services.folders.dir.Write(u"inner.txt"_s, "setskin Red\n");
    Run(u"runcommandfile "_s + In(u"inner.txt"_s) + u"\n"_s);
    EXPECT_EQ(session.CurrentSkin, u"Red"_s);
    EXPECT_EQ(session.commands.depth, 0);
}

TEST_F(CommandFileTest, AFileThatCallsItselfEnds) {
    services.dialogs.ExpectMessage(u"The command files call each other without end:\r\n"_s + In(u"c.txt"_s),
                                   MessageIcon::Warning);
    Run(u"runcommandfile "_s + In(u"c.txt"_s) + u"\nruncommandfile "_s + In(u"c.txt"_s) + u"\nsetskin Red"_s);
    EXPECT_EQ(session.CurrentSkin, u""_s) << "all files of the nest end";
    Run(u"setskin Blue"_s);
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s) << "the next run is a new one";
}

TEST_F(CommandFileTest, ShellCommandsRunMinimisedAndTheirResultDoesNotCount) {
    services.processes.behave = [](const QStringList &, QString *) { return std::optional<int>(3); };
    Run(u"ShellCommand  echo  A B \nsetskin Blue"_s);
    ASSERT_EQ(services.processes.runs.size(), 1u);
    EXPECT_EQ(services.processes.runs[0].join(u' '), u"echo  A B"_s);
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s);
}

TEST_F(CommandFileTest, AShellCommandThatCannotStartIsTraced) {
    services.processes.behave = [](const QStringList &, QString *error) {
        *error = u"no such thing"_s;
        return std::optional<int>();
    };
    Run(u"shellcommand x\nsetskin Blue"_s);
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s);
    EXPECT_TRUE(test::ReadTestFile(session.trace.path).contains("Error:    CallCommand: no such thing"));
}

TEST_F(CommandFileTest, WhatThisVersionLacksIsSaid) {
    QStringList lacking;
    for (const FileCommand &command : FileCommands()) {
        if (!command.run) {
            lacking += QString::fromUtf16(command.keyword) + u" x"_s;
            services.dialogs.ExpectMessage(u"This command is not available in this version:\r\n"_s + lacking.last(),
                                           MessageIcon::Warning);
        }
    }
    Run(lacking.join(u'\n') + u"\nsetskin Blue"_s);
    EXPECT_EQ(session.CurrentSkin, u"Blue"_s);
}

TEST_F(CommandFileTest, FilesAreReadInTheUsersCodePage) {
    RunCommandFile(session, services.folders.dir.Write(u"c.txt"_s, "setskin Gr\xFCn"));
    EXPECT_EQ(session.CurrentSkin, u"Grün"_s);
    RunCommandFile(session, services.folders.dir.Write(u"c.txt"_s, "setskin Gr\xC3\xBCn"));
    EXPECT_EQ(session.CurrentSkin, u"Grün"_s);
    RunCommandFile(session, services.folders.dir.Write(u"c.txt"_s, "\xEF\xBB\xBFsetskin Rot"));
    EXPECT_EQ(session.CurrentSkin, u"Rot"_s);
}

TEST_F(CommandFileTest, CallsAreTraced) {
    session.trace.Mask = kTraceEntry;
    Run(u" SetSkin Blue"_s);
    EXPECT_TRUE(test::ReadTestFile(session.trace.path).contains("Enter:    CallCommand:  SetSkin Blue\r\n"));
}

} // namespace
} // namespace ostrand
