// The page of one title, written to a file.
#pragma once

#include "Arguments.h"

namespace ostrand::batch {

/// The exit status.
int RunRenderMode(const Arguments &arguments);

} // namespace ostrand::batch
