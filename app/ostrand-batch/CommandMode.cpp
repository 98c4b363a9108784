#include "CommandMode.h"

#include "Console.h"
#include "services/StandardStreams.h"
#include "services/StopSignals.h"
#include "shell/Session.h"
#include "shell/StartUp.h"

#include <QFileInfo>

namespace ostrand::batch {

namespace {

/// False when the database that was named did not open.
bool Run(Session &session, const QString &target) {
    InterruptByStopSignals(session);
    const bool opened = OpenOrRun(session, PrepareStartUp(session, target));
    if (!session.EndProgram) {
        FinishStartUp(session);
    }
    EndSession(session);
    return opened;
}

} // namespace

int RunCommandMode(const Arguments &arguments) {
    const QString command_file = ReadCommandLine(arguments.target).command_file;
    if (!command_file.isEmpty() && !QFileInfo(command_file).isFile()) {
        WriteStream(stderr, "ostrand-batch: There is no file \"" + command_file.toUtf8() + "\".\n");
        return kUsage;
    }
    const StopSignals signals_noted;
    LetWritesFail();
    Console console(arguments);
    Session session(console.services);
    console.pump.session = &session;
    const bool opened = Run(session, arguments.target);
    console.pump.session = nullptr;
    const int signal = StopSignals::Received();
    if (signal != 0) {
        return 128 + signal;
    }
    if (!opened) {
        return kUsage;
    }
    return console.dialogs.Clean() ? kDone : kNotClean;
}

} // namespace ostrand::batch
