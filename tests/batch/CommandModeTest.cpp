#include "support/BatchProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

#include <csignal>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;
using test::BatchProgram;
using test::BatchResult;

class CommandModeTest : public ::testing::Test {
protected:
    BatchResult Run(const QByteArray &commands, QStringList options = {}) {
        program.folder.Write(u"c.txt"_s, commands);
        return program.Run(options << u"c.txt"_s);
    }
    QByteArray Owners() {
        return program
            .Run({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"csv"_s},
                 "SELECT COUNT(*) AS c FROM DbInfo WHERE InfoName = 'Owner';")
            .output;
    }

    BatchProgram program;
};

TEST_F(CommandModeTest, RunsToTheEndOfTheFile) {
    const BatchResult result = Run("createdatabase a.mdb\r\nsetskin Blue\r\n");
    EXPECT_EQ(result.status, 0) << result.output.constData() << result.errors.constData();
    EXPECT_EQ(Owners(), "c\r\n1\r\n");
    EXPECT_EQ(program
                  .Run({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"csv"_s},
                       "SELECT InfoValue FROM DbInfo WHERE InfoName = 'CurrentSkin';")
                  .output,
              "InfoValue\r\nBlue\r\n");
    const QByteArray settings = program.folder.Read(u"home/OstrandApp/Settings.ini"_s);
    EXPECT_TRUE(settings.contains("LastDatabase=" + program.In(u"a.mdb"_s).toUtf8())) << settings.constData();
    EXPECT_FALSE(QFile::exists(program.In(u"a.ldb"_s)));
}

TEST_F(CommandModeTest, CloseEndsIt) {
    EXPECT_EQ(Run("createdatabase a.mdb\nclose\ncreatedatabase b.mdb\n").status, 0);
    EXPECT_TRUE(QFile::exists(program.In(u"a.mdb"_s)));
    EXPECT_FALSE(QFile::exists(program.In(u"b.mdb"_s)));
}

TEST_F(CommandModeTest, AMessageInTheWayIsTold) {
    const BatchResult result = Run("opendatabase none.mdb\ncreatedatabase a.mdb\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.contains("Databasefile does not exist!")) << result.output.constData();
    EXPECT_TRUE(QFile::exists(program.In(u"a.mdb"_s))) << "the next line still ran";
}

TEST_F(CommandModeTest, WhatIsNotAvailableIsTold) {
    const BatchResult result = Run("exportstoreit out.txt\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.contains("This command is not available in this version:"));
    EXPECT_TRUE(result.output.contains("exportstoreit out.txt"));
}

TEST_F(CommandModeTest, OpensADatabase) {
    EXPECT_EQ(Run("createdatabase a.mdb\n").status, 0);
    EXPECT_EQ(program.Run({u"a.mdb"_s}).status, 0);
    const BatchResult missing = program.Run({u"none.mdb"_s});
    EXPECT_EQ(missing.status, 2);
    EXPECT_TRUE(missing.output.contains("Databasefile does not exist!"));
}

TEST_F(CommandModeTest, RunsShellCommands) {
    EXPECT_EQ(Run("shellcommand echo done > made.txt\nshellcommand exit 3\n").status, 0);
    EXPECT_EQ(program.folder.Read(u"made.txt"_s), "done\n");
}

TEST_F(CommandModeTest, AFileThatCallsItselfEnds) {
    const BatchResult result = Run("runcommandfile c.txt\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.contains("The command files call each other without end:"));
}

TEST_F(CommandModeTest, OptionsBehindTwoDashesAreFiles) {
    program.folder.Write(u"--c.txt"_s, "createdatabase a.mdb\n");
    EXPECT_EQ(program.Run({u"--"_s, u"--c.txt"_s}).status, 0);
    EXPECT_TRUE(QFile::exists(program.In(u"a.mdb"_s)));
}

TEST_F(CommandModeTest, LeavesNoScratchFolder) {
    Run("createdatabase a.mdb\n");
    const BatchResult found = program.Run({u"--version"_s});
    EXPECT_EQ(found.status, 0);
    QStringList left = QDir(program.In(u"tmp"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString &folder : left) {
        EXPECT_TRUE(QDir(program.In(u"tmp/"_s + folder)).isEmpty()) << qPrintable(folder);
    }
}

#ifdef Q_OS_UNIX
TEST_F(CommandModeTest, ASignalEndsItSoundly) {
    program.folder.Write(u"c.txt"_s, "createdatabase a.mdb\nshellcommand echo x > started; sleep 60\n"
                                     "createdatabase b.mdb\n");
    for (const int signal : {SIGINT, SIGTERM}) {
        QFile::remove(program.In(u"a.mdb"_s));
        QFile::remove(program.In(u"started"_s));
        const std::unique_ptr<QProcess> process = program.Start({u"c.txt"_s});
        for (int i = 0; i < 300 && !QFile::exists(program.In(u"started"_s)); ++i) {
            process->waitForFinished(100);
        }
        ASSERT_TRUE(QFile::exists(program.In(u"started"_s)));
        ::kill(pid_t(process->processId()), signal);
        ASSERT_TRUE(process->waitForFinished(30'000));
        EXPECT_EQ(process->exitCode(), 128 + signal);
        EXPECT_FALSE(QFile::exists(program.In(u"b.mdb"_s)));
        EXPECT_FALSE(QFile::exists(program.In(u"a.mdb-wal"_s)));
        EXPECT_EQ(Owners(), "c\r\n1\r\n");
    }
}
#endif

QByteArray ManyProfiles(int count) {
    QByteArray actors;
    for (int i = 0; i < 40; ++i) {
        actors += "<Actor FirstName='A" + QByteArray::number(i) + "' LastName='Smith' Role='Walker'/>";
    }
    QByteArray file = "<Collection>";
    for (int i = 0; i < count; ++i) {
        file += "<DVD><ID>" + QByteArray::number(i) + "</ID><MediaTypes><DVD>true</DVD></MediaTypes><Title>T</Title>" +
                "<Actors>" + actors + "</Actors></DVD>";
    }
    return file + "</Collection>";
}

#ifdef Q_OS_UNIX
TEST_F(CommandModeTest, AFullDiskIsToldAndLosesNothingStored) {
    const auto count = [this](const char *table) {
        const QByteArray output = program
                                      .Run({u"--sql"_s, u"a.mdb"_s, u"--format"_s, u"csv"_s},
                                           "SELECT COUNT(*) AS c FROM " + QByteArray(table) + ";")
                                      .output;
        return output.split('\n').value(1).trimmed().toInt();
    };
    program.folder.Write(u"few.xml"_s, ManyProfiles(3));
    program.folder.Write(u"many.xml"_s, ManyProfiles(120));
    ASSERT_EQ(Run("createdatabase a.mdb\nimportprofilerdatabase few.xml\n").status, 0);
    program.file_limit = QFileInfo(program.In(u"a.mdb"_s)).size() + 100'000;
    const BatchResult full = Run("opendatabase a.mdb\nimportprofilerdatabase many.xml\n");
    program.file_limit = 0;
    EXPECT_EQ(full.status, 1);
    EXPECT_TRUE(full.output.contains("[Error]")) << full.output.constData();
    EXPECT_GE(count("Profiles"), 3);
    EXPECT_LT(count("Profiles"), 120);
    EXPECT_EQ(count("CastCrew"), 40 * count("Profiles")) << "each profile is there wholly or not at all";
    EXPECT_EQ(Run("opendatabase a.mdb\nimportprofilerdatabase many.xml\n").status, 0);
    EXPECT_EQ(count("Profiles"), 120);
    EXPECT_EQ(count("CastCrew"), 4800);
}
#endif

} // namespace
} // namespace ostrand
