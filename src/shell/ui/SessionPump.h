// The event loop's turns, for a program that can be told to end while it waits.
#pragma once

#include "services/SystemServices.h"
#include "shell/Session.h"

namespace ostrand {

/// Who waits for another program learns here that the user closed the main window meanwhile.
class SessionPump : public QtEventPump {
public:
    /// Null while there is none yet.
    const Session *session = nullptr;

    bool Stopping() const override { return session && session->EndProgram; }
};

} // namespace ostrand
