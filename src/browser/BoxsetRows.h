// The children of boxsets, below their parents in the list.
#pragma once

#include "browser/KeySet.h"
#include "browser/TitleList.h"

namespace ostrand {

/// Row numbers by a key that the database compares, such as the children of a boxset by its ProfileID.
class RowsByKey {
public:
    void Add(const QString &key, int row);
    /// Empty for a key without rows.
    const std::vector<int> &Find(const QString &key) const;

private:
    QHash<QByteArray, std::vector<int>> rows_;
    mutable QByteArray wanted_; ///< the key that is looked for, whose room serves the next one
};

/// The children of all boxsets.
class BoxsetRows {
public:
    /// A child behind the other children of its boxset.
    void Add(const QString &boxset_id, TitleRow child);
    /// Adds the children of a boxset behind `rows`, each followed by its own children. A title that was added before,
    /// be it under another parent or because a boxset contains itself, is left out with all below it: it stands in the
    /// list already.
    void GetBoxsetChilds(const QString &boxset_id, int level, const QString &parent_sort_title,
                         std::vector<TitleRow> &rows);

private:
    std::vector<TitleRow> children_;
    RowsByKey by_boxset_;
    KeySet added_;
};

} // namespace ostrand
