#include "queries/StatementWatch.h"

#include "shell/Session.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kPatience = 15; // looks, which come some 30 milliseconds apart, before the window is shown

} // namespace

StatementWatch::StatementWatch(Session &session) : session_(session), database_(*session.Database) {
    database_.SetProgress([this] { return Look(); });
}

StatementWatch::~StatementWatch() {
    database_.SetProgress({});
    if (shown_) {
        session_.progress.UnloadForm(false);
    }
}

bool StatementWatch::Look() {
    if (++looks_ < kPatience) {
        return false;
    }
    if (!shown_ && !session_.progress.IsLoaded()) {
        shown_ = true;
        session_.progress.Load(Translate(session_, u"SQL Query"_s));
        session_.progress.SetLine(Translate(session_, u"The database works on the statement..."_s));
    }
    session_.services.pump.Turn();
    return session_.progress.ProgressCancelled() || session_.EndProgram;
}

} // namespace ostrand
