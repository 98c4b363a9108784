// Asks of the system that the program end.
#pragma once

namespace ostrand {

/// While one lives, an interrupt from the terminal or a request to terminate is noted instead of ending the process.
/// The second one of a kind ends it at once.
class StopSignals {
public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    /// The number of the signal that came, 0 before.
    static int Received();
};

/// Lets a write to a closed pipe, or beyond the size that a file may have, fail instead of ending the process.
void LetWritesFail();

} // namespace ostrand
