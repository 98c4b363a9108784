// The functions of the dialect and one that always fails, on a bare handle.
#pragma once

#include "sql/Functions.h"

#include <sqlite3.h>

namespace ostrand::sql::testing {

inline void Fail(sqlite3_context *context, int, sqlite3_value **) {
    RaiseInFunction(context, ErrorCode::DivisionByZero, u"Nothing can be divided by 0.");
}

inline void RegisterTestFunctions(sqlite3 *handle) {
    static const Environment environment;
    RegisterFunctions(handle, environment);
    sqlite3_create_function_v2(handle, "fail", 0, SQLITE_UTF8, nullptr, Fail, nullptr, nullptr, nullptr);
}

} // namespace ostrand::sql::testing
