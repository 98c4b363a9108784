#include "services/QtProcessRunner.h"

#include "support/Scripted.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

QString Text(const char *text) {
    return QString::fromUtf8(text);
}

TEST(QtProcessRunnerTest, ReturnsTheExitCode) {
    QtProcessRunner runner;
    QString error;
    for (const int code : {0, 3, 255})
        EXPECT_EQ(runner.RunCommandLine(QStringLiteral("exit %1").arg(code), ProcessStyle::Hidden, nullptr, &error),
                  code);
    EXPECT_EQ(runner.Run(Text("/bin/sh"), {Text("-c"), Text("exit 4")}, ProcessStyle::Minimised, nullptr, nullptr), 4);
    EXPECT_EQ(error, QString());
}

TEST(QtProcessRunnerTest, AProgramThatIsNotThereGivesAnError) {
    QtProcessRunner runner;
    QString error;
    EXPECT_EQ(runner.Run(Text("/no/such/program"), {}, ProcessStyle::Hidden, nullptr, &error), std::nullopt);
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(runner.Run(Text("/no/such/program"), {}, ProcessStyle::Hidden, nullptr, nullptr), std::nullopt);
}

TEST(QtProcessRunnerTest, ACrashIsNoSuccess) {
    QtProcessRunner runner;
    EXPECT_EQ(runner.RunCommandLine(Text("kill -9 $$"), ProcessStyle::Hidden, nullptr, nullptr), 128);
}

TEST(QtProcessRunnerTest, GivesTurnsWhileTheProgramRuns) {
    QtProcessRunner runner;
    test::ScriptedPump pump;
    EXPECT_EQ(runner.RunCommandLine(Text("sleep 0.2"), ProcessStyle::Hidden, &pump, nullptr), 0);
    EXPECT_GE(pump.Turns(), 3);
}

TEST(QtProcessRunnerTest, ArgumentsReachTheProgramAsTheyAre) {
    test::TempDir dir;
    QtProcessRunner runner;
    const QString path = dir / Text("a \"b\" $c");
    EXPECT_EQ(runner.Run(Text("touch"), {path}, ProcessStyle::Hidden, nullptr, nullptr), 0);
    EXPECT_TRUE(dir.Has(Text("a \"b\" $c")));
}

TEST(QtProcessRunnerTest, AProgramThatAsksGetsNoAnswer) {
    QtProcessRunner runner;
    EXPECT_EQ(runner.RunCommandLine(Text("read answer"), ProcessStyle::Hidden, nullptr, nullptr), 1);
}

} // namespace
} // namespace ostrand
