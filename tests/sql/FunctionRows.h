// Evaluates expressions of SQLite with the functions of the dialect registered.
#pragma once

#include "sql/Functions.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace ostrand::sql::test {

/// An expression and its result: NULL, a number, a 'text', or "error" with the number of the fault.
struct FunctionRow {
    const char *expression;
    const char *expected;
};

class FunctionHandle {
public:
    explicit FunctionHandle(QChar decimal_mark = u'.') {
        environment_.decimal_mark = decimal_mark;
        environment_.now = [] { return 40140.84375; }; // 2009-11-23 20:15:00
        environment_.random = [] { return 0.25; };
        sqlite3_open(":memory:", &handle_);
        RegisterFunctions(handle_, environment_);
    }
    ~FunctionHandle() { sqlite3_close(handle_); }
    FunctionHandle(const FunctionHandle &) = delete;
    FunctionHandle &operator=(const FunctionHandle &) = delete;

    sqlite3 *Handle() const { return handle_; }

    std::string Evaluate(const std::string &expression) const { return Query("SELECT " + expression); }

    /// The first column of all rows, joined by blanks.
    std::string Query(const std::string &sql) const {
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            return std::string("cannot prepare: ") + sqlite3_errmsg(handle_);
        }
        std::string result;
        int code = sqlite3_step(statement);
        for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
            result += (result.empty() ? "" : " ") + Show(statement);
        }
        if (code != SQLITE_DONE) {
            result = Fault(sqlite3_errmsg(handle_));
        }
        sqlite3_finalize(statement);
        return result;
    }

private:
    static std::string Show(sqlite3_stmt *statement) {
        switch (sqlite3_column_type(statement, 0)) {
        case SQLITE_NULL:
            return "NULL";
        case SQLITE_INTEGER:
            return std::to_string(sqlite3_column_int64(statement, 0));
        case SQLITE_FLOAT: {
            char buffer[40];
            std::snprintf(buffer, sizeof buffer, "%.12g", sqlite3_column_double(statement, 0));
            return buffer;
        }
        default:
            return "'" +
                   std::string(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)),
                               size_t(sqlite3_column_bytes(statement, 0))) +
                   "'";
        }
    }

    /// The number that stands between two marks in front of the text.
    static std::string Fault(const std::string &message) {
        const size_t end = message.find('\x01', 1);
        if (message.empty() || message[0] != '\x01' || end == std::string::npos || end + 1 == message.size()) {
            return "fault without a number: " + message;
        }
        return "error " + message.substr(1, end - 1);
    }

    Environment environment_;
    sqlite3 *handle_ = nullptr;
};

template <size_t Size>
void Check(const FunctionRow (&rows)[Size], QChar decimal_mark = u'.') {
    const FunctionHandle handle(decimal_mark);
    for (const FunctionRow &row : rows) {
        EXPECT_EQ(handle.Evaluate(row.expression), row.expected) << row.expression;
    }
}

} // namespace ostrand::sql::test
