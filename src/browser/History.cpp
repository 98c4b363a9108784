#include "browser/History.h"

namespace ostrand {

namespace {

void AddOnTop(QList<HistoryEntry> &list, const QString &key, const QString &text) {
    list.removeIf([&](const HistoryEntry &entry) { return entry.key.compare(key, Qt::CaseInsensitive) == 0; });
    list.prepend({key, text});
}

/// Moves the current title and what stands above `index` of `from` to `to`, and takes the entry itself out.
HistoryEntry Go(QList<HistoryEntry> &from, QList<HistoryEntry> &to, int index, const HistoryEntry &current) {
    if (index < 0 || index >= from.size()) {
        return {};
    }
    if (!current.key.isEmpty()) {
        AddOnTop(to, current.key, current.text);
    }
    for (int i = 0; i < index; ++i) {
        AddOnTop(to, from[i].key, from[i].text);
    }
    const HistoryEntry chosen = from[index];
    from.remove(0, index + 1);
    return chosen;
}

} // namespace

void History::AddHistoryBack(const QString &key, const QString &text, bool clear_forward) {
    AddOnTop(back_, key, text);
    if (clear_forward) {
        forward_.clear();
    }
}

void History::AddHistoryForward(const QString &key, const QString &text) {
    AddOnTop(forward_, key, text);
}

void History::Clear() {
    back_.clear();
    forward_.clear();
}

HistoryEntry History::GoBack(int index, const HistoryEntry &current) {
    return Go(back_, forward_, index, current);
}

HistoryEntry History::GoForward(int index, const HistoryEntry &current) {
    return Go(forward_, back_, index, current);
}

} // namespace ostrand
