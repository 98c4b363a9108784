// The standard streams of a program that is part of a pipe.
#pragma once

#include <QByteArray>

#include <cstdio>

namespace ostrand {

class StandardInput {
public:
    enum class State { Data, Nothing, End };

    /// Waits up to `timeout` milliseconds for input and appends what there is. `Nothing` when the time is over or a
    /// signal came.
    State Read(QByteArray &bytes, int timeout);
};

/// Whether a stream is a terminal.
bool IsTerminal(std::FILE *stream);

/// Writes all and hands it on at once; false when nobody takes it.
bool WriteStream(std::FILE *stream, const QByteArray &bytes);

} // namespace ostrand
