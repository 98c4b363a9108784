#include "collection_files/Archives.h"

#include "base/TraceLog.h"
#include "services/QtProcessRunner.h"
#include "support/Scripted.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

class ArchivesTest : public ::testing::Test {
protected:
    ArchiveTools Tools(ProcessRunner &processes) {
        return {processes, folders, &pump, [this](const QString &message, int level) {
                    lines += QStringLiteral("%1 %2").arg(level).arg(message);
                }};
    }
    test::TempFolders folders;
    test::ScriptedProcesses scripted;
    test::ScriptedPump pump;
    QStringList lines;
};

TEST_F(ArchivesTest, PacksWithTheProgramOfThePath) {
    Archive7z(Tools(scripted), Text("/x/a b.xml"), Text("/x/a b.7z"));
    EXPECT_EQ(scripted.runs.at(0), QStringList({Text("7za"), Text("a"), Text("/x/a b.7z"), Text("/x/a b.xml")}));
    EXPECT_EQ(lines, QStringList(Text("2 Archive7z(/x/a b.xml, /x/a b.7z)")));
    EXPECT_EQ(pump.Turns(), 1);
}

TEST_F(ArchivesTest, UnpacksWithTheProgramBesideOurs) {
    const QString program = folders.dir.Write(Text("program/7za"), "#!/bin/sh\n");
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    Extract7z(Tools(scripted), Text("/x/a.7z"), Text("/y"));
    EXPECT_EQ(scripted.runs.at(0), QStringList({program, Text("e"), Text("/x/a.7z"), Text("-o/y/")}));
    EXPECT_EQ(lines, QStringList(Text("2 Extract7z(/x/a.7z, /y)")));
}

TEST_F(ArchivesTest, NoFileNameIsASwitch) {
    Archive7z(Tools(scripted), Text("-sdel"), Text("@list"));
    EXPECT_EQ(scripted.runs.at(0), QStringList({Text("7za"), Text("a"), QDir::current().absoluteFilePath(Text("@list")),
                                                QDir::current().absoluteFilePath(Text("-sdel"))}));
}

TEST_F(ArchivesTest, LogsTheExitCodeOfBothUnderOneName) {
    scripted.behave = [](const QStringList &, QString *) { return std::optional(2); };
    Archive7z(Tools(scripted), Text("/a"), Text("/b"));
    Extract7z(Tools(scripted), Text("/b"), Text("/c/"));
    EXPECT_EQ(lines, QStringList({Text("2 Archive7z(/a, /b)"), Text("1 Archive7z: ret=2"), Text("2 Extract7z(/b, /c/)"),
                                  Text("1 Archive7z: ret=2")}));
}

TEST_F(ArchivesTest, LogsAProgramThatDoesNotStart) {
    scripted.behave = [](const QStringList &, QString *error) {
        *error = Text("No such file");
        return std::optional<int>();
    };
    Archive7z(Tools(scripted), Text("/a"), Text("/b"));
    Extract7z(Tools(scripted), Text("/b"), Text("/c/"));
    EXPECT_EQ(lines.filter(Text("1 ")),
              QStringList({Text("1 Archive7z: No such file"), Text("1 Extract7z: No such file")}));
}

TEST_F(ArchivesTest, PacksAndUnpacksForReal) {
    if (QStandardPaths::findExecutable(Text("7za")).isEmpty())
        GTEST_SKIP() << "no archiver on this machine";
    QtProcessRunner processes;
    test::TempDir dir;
    const QString source = dir.Write(Text("in/a ä.xml"), "<a/>");
    Archive7z(Tools(processes), source, dir / Text("a.7z"));
    ASSERT_TRUE(dir.Has(Text("a.7z")));
    Extract7z(Tools(processes), dir / Text("a.7z"), dir / Text("out/"));
    EXPECT_EQ(dir.Read(Text("out/a ä.xml")), QByteArray("<a/>"));
    EXPECT_EQ(lines.size(), 2) << lines.join(u'\n').toStdString();
    dir.Write(Text("out/a ä.xml"), "kept");
    Extract7z(Tools(processes), dir / Text("a.7z"), dir / Text("out/"));
    EXPECT_EQ(dir.Read(Text("out/a ä.xml")), QByteArray("kept")) << "no overwriting, and no waiting for an answer";
    Extract7z(Tools(processes), dir.Write(Text("b.7z"), "no archive"), dir / Text("none/"));
    EXPECT_EQ(lines.last(), Text("1 Archive7z: ret=2"));
}

TEST(RunAndWaitTest, ReturnsTheExitCode) {
    QtProcessRunner processes;
    test::ScriptedPump pump;
    EXPECT_EQ(RunAndWait(processes, Text("sleep 0.1; exit 7"), ProcessStyle::Hidden, &pump), 7);
    EXPECT_GE(pump.Turns(), 2);
    EXPECT_EQ(RunAndWait(processes, Text("exit 0"), ProcessStyle::Hidden, nullptr), 0);
}

} // namespace
} // namespace ostrand
