// Other programs.
#pragma once

#include "platform/Services.h"

namespace ostrand {

/// Programs run without a console: nothing to read from, and what they print is dropped. One that a signal ended gives
/// 128 as its exit code. When the pump tells that this program is to end, the one that runs is ended first.
class QtProcessRunner : public ProcessRunner {
public:
    std::optional<int> Run(const QString &program, const QStringList &arguments, ProcessStyle style, EventPump *pump,
                           QString *error) override;
    std::optional<int> RunCommandLine(const QString &command, ProcessStyle style, EventPump *pump,
                                      QString *error) override;
    bool Start(const QString &program, const QStringList &arguments, QString *error) override;
};

} // namespace ostrand
