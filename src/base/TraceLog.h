// The program's diagnostic log.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace ostrand {

/// Levels of a line, and bits of the mask beside them.
enum TraceLevel : std::uint32_t {
    kTraceError = 1,
    kTraceEntry = 2,
    kTraceExit = 4,
    kTraceTime = 8, ///< not a level: lines carry the time
    kTraceInfo = 16,
    kTraceFresh = 0x80000000u, ///< not a level: the log is deleted at the start
};

/// Appends lines to one file; the file is opened for each line, and faults are ignored.
class TraceLog {
public:
    std::uint32_t Mask = 1;
    QString path;
    /// Seconds since midnight, for the time prefix.
    std::function<double()> seconds;

    /// Writes the line if all bits of `level` are set in the mask.
    void Write(const QString &message, int level) const;
    bool Wants(int level) const { return (Mask & std::uint32_t(level)) == std::uint32_t(level); }
};

} // namespace ostrand
