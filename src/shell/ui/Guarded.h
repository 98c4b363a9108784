// The last catch in front of the event loop.
#pragma once

#include "shell/Session.h"
#include "sql/SqlError.h"

namespace ostrand {

/// Tells a fault of the database and goes on.
void TellFault(Session &session, const QString &text);

/// Runs an action of the user; a fault of the engine that no routine has a message for is told and traced.
template <typename Action>
void Guarded(Session &session, Action action) {
    try {
        action();
    } catch (const sql::SqlError &error) {
        TellFault(session, error.Text());
    } catch (const std::exception &error) {
        TellFault(session, QString::fromLocal8Bit(error.what()));
    }
}

} // namespace ostrand
