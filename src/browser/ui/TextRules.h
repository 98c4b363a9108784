// What the texts of titles may reach.
#pragma once

#include "platform_qt/WebEnginePlugin.h"

namespace ostrand {

struct Session;

/// A text comes from anywhere: its page loads itself and images of this computer, runs no scripts and stays where it
/// is. Its links lead out of the program, and only when somebody clicks them.
WebEngineRules TextRules(Session &session);

} // namespace ostrand
