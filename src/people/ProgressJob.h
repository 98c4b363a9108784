// The progress window of a job that walks over items.
#pragma once

#include "shell/Session.h"

namespace ostrand {

/// Shows the progress window for as long as it lives, whichever way the job ends.
class ProgressJob {
public:
    /// `title` is English.
    ProgressJob(Session &session, const QString &title, qsizetype total) : session_(session), total_(total) {
        session_.progress.Load(Translate(session_, title));
        ShowCounter();
    }
    ~ProgressJob() { session_.progress.UnloadForm(false); }
    ProgressJob(const ProgressJob &) = delete;
    ProgressJob &operator=(const ProgressJob &) = delete;

    bool Cancelled() const { return session_.progress.ProgressCancelled(); }
    /// One item more is done.
    void Step() {
        ++done_;
        ShowCounter();
        session_.services.pump.Turn();
    }

private:
    void ShowCounter() { session_.progress.SetCounter(QString::number(done_) + u'/' + QString::number(total_)); }

    Session &session_;
    qsizetype total_;
    qsizetype done_ = 0;
};

} // namespace ostrand
