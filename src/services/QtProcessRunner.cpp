#include "services/QtProcessRunner.h"

#include <QProcess>

namespace ostrand {

namespace {

constexpr int kPoll = 20; // milliseconds
constexpr int kSignalled = 128;

void WaitForEnd(QProcess &process, EventPump *pump) {
    if (pump == nullptr) {
        process.waitForFinished(-1);
        return;
    }
    while (process.state() != QProcess::NotRunning) {
        pump->Turn();
        if (process.state() != QProcess::NotRunning)
            process.waitForFinished(kPoll);
    }
}

} // namespace

std::optional<int> QtProcessRunner::Run(const QString &program, const QStringList &arguments, ProcessStyle /*style*/,
                                        EventPump *pump, QString *error) {
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
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

} // namespace ostrand
