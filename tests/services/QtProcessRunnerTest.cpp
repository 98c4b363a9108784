#include "services/QtProcessRunner.h"

#include "support/Scripted.h"

#include <QElapsedTimer>
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

#ifdef Q_OS_UNIX
/// Tells from its third turn on that the program is to end.
class StoppingPump : public EventPump {
public:
    void Turn() override { ++turns_; }
    bool Stopping() const override { return turns_ >= 3; }

private:
    int turns_ = 0;
};

TEST(QtProcessRunnerTest, EndsAProgramWhenThisOneIsToEnd) {
    QtProcessRunner runner;
    QElapsedTimer time;
    time.start();
    StoppingPump pump;
    EXPECT_EQ(runner.RunCommandLine(Text("sleep 60; true"), ProcessStyle::Hidden, &pump, nullptr), 128);
    StoppingPump again;
    EXPECT_EQ(runner.RunCommandLine(Text("trap '' TERM; sleep 60; true"), ProcessStyle::Hidden, &again, nullptr), 128)
        << "one that does not listen is killed";
    EXPECT_LT(time.elapsed(), 30'000);
}
#endif

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
