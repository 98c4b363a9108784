// The start and the end of the program, as far as they need no window.
#pragma once

#include <QString>

#include <cstdint>

namespace ostrand {

struct Session;

/// What the text behind the program's name asks for. At most one of the two is set.
struct CommandLine {
    QString database;
    QString command_file;
};
/// A text that holds ".mdb" (case-sensitive) names a database, any other a command file. Double quotes are removed.
CommandLine ReadCommandLine(QString text);

/// The trace mask that a text of Settings.ini tells: a number, or hexadecimal behind "0x"; 1 for any other text.
std::uint32_t ParseTraceMask(const QString &text);
/// The mask as it is written back.
QString TraceMaskText(std::uint32_t mask);

/// Everything before a database is opened: folders, Settings.ini, the trace log, the installation's settings. Returns
/// what the command line asks for; a database is in `DatabaseFile` already.
CommandLine PrepareStartUp(Session &session, const QString &command_line);
/// Opens `DatabaseFile`, or runs the command file. False when no database could be opened.
bool OpenOrRun(Session &session, const CommandLine &command_line);
/// The end of the start.
void FinishStartUp(Session &session);

/// The whole of shutdown except for the end of the process.
void CloseViewer(Session &session);

} // namespace ostrand
