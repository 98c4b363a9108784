#include "CommandMode.h"

#include "services/ConsoleDialogs.h"
#include "services/ConsoleProgress.h"
#include "services/NoDesktop.h"
#include "services/QtProcessRunner.h"
#include "services/StandardStreams.h"
#include "services/StopSignals.h"
#include "services/SystemFolders.h"
#include "services/SystemServices.h"
#include "shell/Session.h"
#include "shell/StartUp.h"

#include <QFile>
#include <QFileInfo>

namespace ostrand::batch {

namespace {

AnswerPolicy Answers(const Arguments &arguments) {
    if (!arguments.answer) {
        return AnswerPolicy::Neutral;
    }
    return *arguments.answer ? AnswerPolicy::Yes : AnswerPolicy::No;
}

ProgressStyle Style(const Arguments &arguments) {
    if (arguments.quiet) {
        return ProgressStyle::Quiet;
    }
    return IsTerminal(stderr) ? ProgressStyle::Terminal : ProgressStyle::Plain;
}

/// Boxes start on a line of their own, below the progress that is drawn.
class Dialogs : public ConsoleDialogs {
public:
    Dialogs(QIODevice &output, AnswerPolicy answers, ConsoleProgress &progress) :
        ConsoleDialogs(output, answers), progress_(progress) {}

    MessageAnswer Show(const Message &message) override {
        progress_.EndLine();
        return ConsoleDialogs::Show(message);
    }
    std::optional<QString> InputText(const QString &prompt, const QString &title, const QString &preset) override {
        progress_.EndLine();
        return ConsoleDialogs::InputText(prompt, title, preset);
    }
    QString OpenFile(const FileRequest &request) override {
        progress_.EndLine();
        return ConsoleDialogs::OpenFile(request);
    }
    QString SaveFile(const FileRequest &request) override {
        progress_.EndLine();
        return ConsoleDialogs::SaveFile(request);
    }
    QString BrowseFolder(const QString &title, const QString &current) override {
        progress_.EndLine();
        return ConsoleDialogs::BrowseFolder(title, current);
    }
    /// True when nothing happened that a nightly run should look at.
    bool Clean() const { return Warnings() + Criticals() + AnsweredByDefault() == 0; }

private:
    ConsoleProgress &progress_;
};

/// Brings a stop signal to the job that runs: its progress is cancelled and no further command starts.
class StoppingPump : public QtEventPump {
public:
    void Turn() override {
        QtEventPump::Turn();
        if (session && StopSignals::Received() != 0) {
            session->EndProgram = true;
            session->progress.Close();
        }
    }
    bool Stopping() const override { return StopSignals::Received() != 0; }

    Session *session = nullptr;
};

/// Everything that a session needs, on a terminal.
struct Console {
    explicit Console(const Arguments &arguments) : progress(errors, clock, Style(arguments)), locale(arguments.locale) {
        output.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
        errors.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    QFile output;
    QFile errors;
    SystemClock clock;
    ConsoleProgress progress;
    StoppingPump pump;
    SystemRandom random;
    QtProcessRunner processes;
    SystemFolders folders;
    SystemLocaleInfo locale;
    PrivateClipboard clipboard;
    NoKeyboard keyboard;
    NoOpener opener;
    ImageHeads images;
};

/// False when the database that was named did not open.
bool Run(Session &session, const QString &target) {
    session.window.LoadDatabaseSettings = [&session] {
        session.Database->SetProgress([] { return StopSignals::Received() != 0; });
    };
    const bool opened = OpenOrRun(session, PrepareStartUp(session, target));
    if (!session.EndProgram) {
        FinishStartUp(session);
    }
    if (session.Database) {
        session.Database->SetProgress({}); // the settings are saved even when a signal ended the run
    }
    CloseViewer(session);
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
    Dialogs dialogs(console.output, Answers(arguments), console.progress);
    Services services{dialogs,           console.progress,  console.pump,    console.clock,
                      console.random,    console.processes, console.folders, console.locale,
                      console.clipboard, console.keyboard,  console.opener,  console.images};
    Session session(services);
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
    return dialogs.Clean() ? kDone : kNotClean;
}

} // namespace ostrand::batch
