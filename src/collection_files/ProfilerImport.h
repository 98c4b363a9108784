// The program's intake: the collection file of DVD Profiler.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Merges a collection file into the open database. An empty path asks the user for the file. True when the import
/// ran to its end. New profiles are added, changed ones are rewritten under the user's locks, unchanged ones cost one
/// comparison. Nothing is written before the whole file has proved well formed.
bool ImportProfilerData(Session &session, const QString &path);

} // namespace ostrand
