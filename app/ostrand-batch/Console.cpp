#include "Console.h"

#include "services/StandardStreams.h"
#include "services/StopSignals.h"
#include "shell/Session.h"
#include "shell/StartUp.h"

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

} // namespace

MessageAnswer Dialogs::Show(const Message &message) {
    progress_.EndLine();
    return ConsoleDialogs::Show(message);
}

std::optional<QString> Dialogs::InputText(const QString &prompt, const QString &title, const QString &preset) {
    progress_.EndLine();
    return ConsoleDialogs::InputText(prompt, title, preset);
}

QString Dialogs::OpenFile(const FileRequest &request) {
    progress_.EndLine();
    return ConsoleDialogs::OpenFile(request);
}

QString Dialogs::SaveFile(const FileRequest &request) {
    progress_.EndLine();
    return ConsoleDialogs::SaveFile(request);
}

QString Dialogs::BrowseFolder(const QString &title, const QString &current) {
    progress_.EndLine();
    return ConsoleDialogs::BrowseFolder(title, current);
}

void StoppingPump::Turn() {
    QtEventPump::Turn();
    if (session && StopSignals::Received() != 0) {
        session->EndProgram = true;
        session->progress.Close();
    }
}

bool StoppingPump::Stopping() const {
    return StopSignals::Received() != 0;
}

Console::Console(const Arguments &arguments) :
    progress(errors, clock, Style(arguments)), locale(arguments.locale),
    dialogs(output, Answers(arguments), progress), services{dialogs,   progress, pump,      clock,     random,
                                                            processes, folders,  locale,    clipboard, keyboard,
                                                            opener,    images,   downloader} {
    output.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
    errors.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void InterruptByStopSignals(Session &session) {
    session.window.LoadDatabaseSettings = [&session] {
        session.Database->SetProgress([] { return StopSignals::Received() != 0; });
    };
}

void EndSession(Session &session) {
    if (session.Database) {
        session.Database->SetProgress({});
    }
    CloseViewer(session);
}

} // namespace ostrand::batch
