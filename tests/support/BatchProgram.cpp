#include "support/BatchProgram.h"

#include <QDir>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

namespace ostrand::test {

using namespace Qt::StringLiterals;

namespace {
constexpr int kPatience = 60'000; // milliseconds
}

BatchProgram::BatchProgram() {
    QDir().mkpath(folder / u"home"_s);
    QDir().mkpath(folder / u"tmp"_s);
}

std::unique_ptr<QProcess> BatchProgram::Start(const QStringList &arguments) {
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, folder / u"home"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, folder / u"home/.config"_s);
    environment.insert(u"TMPDIR"_s, folder / u"tmp"_s);
    environment.insert(u"LC_ALL"_s, u"C"_s);
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(folder.Path());
#ifdef Q_OS_UNIX
    if (file_limit > 0) {
        process->setChildProcessModifier([limit = rlim_t(file_limit)] {
            const rlimit both{limit, limit};
            setrlimit(RLIMIT_FSIZE, &both);
        });
    }
#endif
    process->start(QString::fromUtf8(OSTRAND_BATCH_PROGRAM), arguments);
    EXPECT_TRUE(process->waitForStarted(kPatience));
    return process;
}

BatchResult BatchProgram::Run(const QStringList &arguments, const QByteArray &input) {
    const std::unique_ptr<QProcess> process = Start(arguments);
    process->write(input);
    process->closeWriteChannel();
    EXPECT_TRUE(process->waitForFinished(kPatience));
    EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
    return {process->exitCode(), process->readAllStandardOutput(), process->readAllStandardError()};
}

} // namespace ostrand::test
