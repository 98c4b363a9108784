// Command files: one keyword with its argument a line.
#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace ostrand {

struct Session;

/// A keyword of command files. Null for `run` where this version has no such routine.
struct FileCommand {
    const char16_t *keyword;
    void (*run)(Session &session, const QString &argument);
};

/// All keywords, in the order in which a line is compared with them.
std::span<const FileCommand> FileCommands();

/// A line taken apart. `command` is null for a line that begins with no keyword.
struct CommandCall {
    const FileCommand *command = nullptr;
    QString argument;
};
CommandCall MatchCommand(const QString &line);

/// The lines of a file's text; CR LF, LF and CR end a line.
QStringList CommandLines(const QString &text);

/// Runs the file line by line; nothing happens when it does not exist. Ends early when a line asks for the end of the
/// program (`Session::EndProgram`).
void RunCommandFile(Session &session, const QString &path);
/// Runs one line. An unknown one is ignored.
void CallCommand(Session &session, const QString &line);

} // namespace ostrand
