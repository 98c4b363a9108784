// Compressed files, through the external archiver 7za.
#pragma once

#include "platform/Services.h"

#include <functional>

namespace ostrand {

/// What the routines need. `pump` may be null: then the event loop gets no turns.
struct ArchiveTools {
    ProcessRunner &processes;
    const Folders &folders;
    EventPump *pump = nullptr;
    /// Takes a line of the trace log and its level.
    std::function<void(const QString &message, int level)> trace;
};

/// Packs `source` into `archive`. Faults are only logged: the caller notices a missing file.
void Archive7z(const ArchiveTools &tools, const QString &source, const QString &archive);
/// Unpacks all files into `folder`, without their folders. There is no overwriting: the folder should be empty.
void Extract7z(const ArchiveTools &tools, const QString &archive, const QString &folder);

/// Runs a line of the system's command interpreter to its end and returns its exit code; nothing when it could not be
/// started, and then `error` says why.
std::optional<int> RunAndWait(ProcessRunner &processes, const QString &command, ProcessStyle style, EventPump *pump,
                              QString *error = nullptr);

} // namespace ostrand
