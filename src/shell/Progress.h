// The progress window's rules, without the window.
#pragma once

#include "platform/Services.h"

#include <QHash>
#include <QString>

#include <functional>

namespace ostrand {

/// What a long job tells of itself, and where it learns that the user cancelled. One per program; a job opens it, a
/// job that runs inside another goes on in the open one.
class frmProgress {
public:
    frmProgress(ProgressView &view, EventPump &pump);

    /// Set by whoever owns the settings: translates a text, reads and writes the state of chkCloseWhenFinished.
    std::function<QString(const QString &)> translate;
    std::function<bool()> read_auto_close;
    std::function<void(bool)> write_auto_close;

    /// Loads the window: resets `ProgressCancelled`, empties line, detail, counter, bar and tree. The title is shown
    /// as it comes, as all other texts are.
    void Load(const QString &title);
    /// True while a job has the window; a window that only stays open to be read is free for the next job.
    bool IsLoaded() const { return loaded_ && !finished_; }
    /// True while the window is open.
    bool IsShown() const { return loaded_; }
    void SetTitle(const QString &title);
    /// labelProgress
    void SetLine(const QString &line);
    void SetDetail(const QString &detail);
    void SetCounter(const QString &counter);
    void SetBar(int value, int maximum);

    void ShowDetails(bool on);
    bool Details() const { return details_; }
    void AddInfo(const QString &text, const QString &key = {});
    void ItemDone();
    void AddSubInfo(const QString &text, const QString &key = {});
    void SubItemDone();
    /// The end of a job. `done` false closes the window without a word.
    void UnloadForm(bool done);

    /// chkCloseWhenFinished, ticked by the user.
    void SetCloseWhenFinished(bool on) { close_when_finished_ = on; }
    bool CloseWhenFinished() const { return close_when_finished_; }
    /// cbClose, Esc and the window's close button: unloads, which cancels a job that still runs.
    void Close();

    /// False while the window is open, true from its unload on. Long jobs poll it between items.
    bool ProgressCancelled() const { return cancelled_; }
    /// True for a node key that opens a profile on a double click.
    static bool IsProfileKey(const QString &key);

private:
    QString AddNode(const QString &text, const QString &key, const QString &parent);
    void Tick(const QString &key);
    QString Translated(const QString &text) const;

    ProgressView &view_;
    EventPump &pump_;
    bool loaded_ = false;
    bool finished_ = false;
    bool cancelled_ = true;
    bool details_ = false;
    bool close_when_finished_ = false;
    int next_key_ = 1;
    QString item_;
    QString sub_item_;
    QHash<QString, bool> nodes_; // key to ticked
};

} // namespace ostrand
