// A job in a process that dies.
#pragma once

#include <chrono>
#include <functional>

namespace ostrand::test {

/// Runs a job in a child process, which is killed when the time is over. True when it was killed, by this or by itself
/// with `Die`, before it was done. No thread runs and no database is open meanwhile in this process. On Unix only.
bool DiesWithin(std::chrono::microseconds time, const std::function<void()> &job);
/// Ends this process at once, as a crash does.
[[noreturn]] void Die();

} // namespace ostrand::test
