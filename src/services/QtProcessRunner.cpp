#include "services/QtProcessRunner.h"

#include <QProcess>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

namespace ostrand {

namespace {

constexpr int kProcessPoll = 20; // milliseconds
constexpr int kGrace = 2000;     // milliseconds for a program that was asked to end
constexpr int kSignalled = 128;

#ifdef Q_OS_UNIX

/// The program gets a process group of its own, so that ending it ends what it started too.
void Isolate(QProcess &process) {
    process.setChildProcessModifier([] { setpgid(0, 0); });
}

void End(QProcess &process) {
    const auto group = pid_t(process.processId());
    if (group <= 0)
        return;
    ::kill(-group, SIGTERM);
    if (!process.waitForFinished(kGrace))
        ::kill(-group, SIGKILL);
}

#else

void Isolate(QProcess & /*process*/) {}

void End(QProcess &process) {
    process.kill();
}

#endif

void WaitForEnd(QProcess &process, EventPump *pump) {
    while (process.state() != QProcess::NotRunning) {
        if (pump != nullptr)
            pump->Turn();
        if (pump != nullptr && pump->Stopping())
            End(process);
        if (process.state() != QProcess::NotRunning)
            process.waitForFinished(pump != nullptr ? kProcessPoll : -1);
    }
}

} // namespace

std::optional<int> QtProcessRunner::Run(const QString &program, const QStringList &arguments, ProcessStyle /*style*/,
                                        EventPump *pump, QString *error) {
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    Isolate(process);
    process.start(program, arguments);
    if (!process.waitForStarted(-1)) {
        if (error != nullptr)
            *error = process.errorString();
        return std::nullopt;
    }
    WaitForEnd(process, pump);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : kSignalled;
}

std::optional<int> QtProcessRunner::RunCommandLine(const QString &command, ProcessStyle style, EventPump *pump,
                                                   QString *error) {
#ifdef Q_OS_WIN
    return Run(qEnvironmentVariable("ComSpec", QStringLiteral("cmd.exe")), {QStringLiteral("/c"), command}, style, pump,
               error);
#else
    return Run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command}, style, pump, error);
#endif
}

bool QtProcessRunner::Start(const QString &program, const QStringList &arguments, QString *error) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    const bool started = process.startDetached();
    if (!started && error != nullptr)
        *error = process.errorString();
    return started;
}

} // namespace ostrand
