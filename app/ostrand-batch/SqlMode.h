// Statements of standard input, run on a database.
#pragma once

#include "Arguments.h"
#include "sql/Types.h"

namespace ostrand::batch {

/// The exit status.
int RunSqlMode(const Arguments &arguments, const sql::Environment &environment);

} // namespace ostrand::batch
