// A command file, run without a screen.
#pragma once

#include "Arguments.h"

namespace ostrand::batch {

/// The exit status.
int RunCommandMode(const Arguments &arguments);

} // namespace ostrand::batch
