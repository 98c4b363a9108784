// The titles visited before and after the one that is shown.
#pragma once

#include <QList>
#include <QString>

namespace ostrand {

struct HistoryEntry {
    QString key;
    QString text;
    bool operator==(const HistoryEntry &) const = default;
};

/// The back and the forward list; the newest entry is the first. A title stands in a list once.
class History {
public:
    void AddHistoryBack(const QString &key, const QString &text, bool clear_forward);
    void AddHistoryForward(const QString &key, const QString &text);
    void Clear();

    const QList<HistoryEntry> &Back() const { return back_; }
    const QList<HistoryEntry> &Forward() const { return forward_; }

    /// Leaves `current` for the entry at `index` of the back list: the current title and all entries above the chosen
    /// one pass to the forward list. Returns the chosen one. `current` may be empty.
    HistoryEntry GoBack(int index, const HistoryEntry &current);
    /// The mirror image.
    HistoryEntry GoForward(int index, const HistoryEntry &current);

private:
    QList<HistoryEntry> back_;
    QList<HistoryEntry> forward_;
};

} // namespace ostrand
