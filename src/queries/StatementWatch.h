// Long statements of the user.
#pragma once

#include "sql/Database.h"

namespace ostrand {

struct Session;

/// While one lives, a statement that takes its time shows the progress window, and ends when that is closed: it then
/// throws Interrupted, and a change has changed nothing.
class StatementWatch {
public:
    explicit StatementWatch(Session &session);
    ~StatementWatch();
    StatementWatch(const StatementWatch &) = delete;
    StatementWatch &operator=(const StatementWatch &) = delete;

private:
    bool Look();

    Session &session_;
    sql::Database &database_;
    int looks_ = 0;
    bool shown_ = false;
};

} // namespace ostrand
