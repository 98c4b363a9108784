// The program without a screen.

#include "Arguments.h"
#include "CommandMode.h"
#include "RenderMode.h"
#include "SqlMode.h"
#include "services/StandardStreams.h"
#include "services/SystemServices.h"

#include <QCoreApplication>

namespace {

using namespace ostrand;
using namespace ostrand::batch;

QByteArray VersionText() {
    return QStringLiteral("ostrand-batch %1.%2.%3\n")
        .arg(OSTRAND_VERSION_MAJOR)
        .arg(OSTRAND_VERSION_MINOR)
        .arg(OSTRAND_VERSION_PATCH)
        .toUtf8();
}

int Sql(const Arguments &arguments) {
    const SystemClock clock;
    SystemRandom random;
    const SystemLocaleInfo locale(arguments.locale);
    sql::Environment environment;
    const QString mark = locale.DecimalSeparator();
    environment.decimal_mark = mark.isEmpty() ? u'.' : mark.front();
    environment.now = [&clock] { return clock.Now(); };
    environment.random = [&random] { return random.Next(); };
    return RunSqlMode(arguments, environment);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication app(argc, argv);
    const Arguments arguments = ParseArguments(QCoreApplication::arguments().mid(1));
    if (!arguments.fault.isEmpty()) {
        WriteStream(stderr, "ostrand-batch: " + arguments.fault.toUtf8() + "\nTry --help.\n");
        return kUsage;
    }
    if (arguments.help || arguments.version) {
        WriteStream(stdout, arguments.help ? HelpText().toUtf8() : VersionText());
        return kDone;
    }
    if (arguments.sql) {
        return Sql(arguments);
    }
    return arguments.render.isEmpty() ? RunCommandMode(arguments) : RunRenderMode(arguments);
}
