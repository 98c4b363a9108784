// The numbers of events.
#pragma once

namespace ostrand {

struct Session;

/// A number that no event has. Drawn by chance; should chance fail for long, counted on from the last draw. Throws
/// SqlError.
int NewEventId(Session &session);

} // namespace ostrand
