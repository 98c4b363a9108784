// A session on a terminal, for the modes that open a collection.
#pragma once

#include "Arguments.h"
#include "services/ConsoleDialogs.h"
#include "services/ConsoleProgress.h"
#include "services/NoDesktop.h"
#include "services/QtDownloader.h"
#include "services/QtProcessRunner.h"
#include "services/SystemFolders.h"
#include "services/SystemServices.h"

#include <QFile>

namespace ostrand {
struct Session;
}

namespace ostrand::batch {

/// Boxes start on a line of their own, below the progress that is drawn.
class Dialogs : public ConsoleDialogs {
public:
    Dialogs(QIODevice &output, AnswerPolicy answers, ConsoleProgress &progress) :
        ConsoleDialogs(output, answers), progress_(progress) {}

    MessageAnswer Show(const Message &message) override;
    std::optional<QString> InputText(const QString &prompt, const QString &title, const QString &preset) override;
    QString OpenFile(const FileRequest &request) override;
    QString SaveFile(const FileRequest &request) override;
    QString BrowseFolder(const QString &title, const QString &current) override;
    /// True when nothing happened that a nightly run should look at.
    bool Clean() const { return Warnings() + Criticals() + AnsweredByDefault() == 0; }

private:
    ConsoleProgress &progress_;
};

/// Brings a stop signal to the job that runs: its progress is cancelled and no further command starts.
class StoppingPump : public QtEventPump {
public:
    void Turn() override;
    bool Stopping() const override;

    Session *session = nullptr;
};

/// Everything that a session needs, on a terminal.
struct Console {
    explicit Console(const Arguments &arguments);
    Console(const Console &) = delete;
    Console &operator=(const Console &) = delete;

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
    QtDownloader downloader;
    Dialogs dialogs;
    Services services;
};

/// Lets a stop signal interrupt the statements of the open database.
void InterruptByStopSignals(Session &session);
/// The end of a session: its settings are saved even when a signal ended the run.
void EndSession(Session &session);

} // namespace ostrand::batch
