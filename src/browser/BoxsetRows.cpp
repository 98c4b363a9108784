#include "browser/BoxsetRows.h"

#include "sql/Collation.h"

#include <limits>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kBlanksOfLevel = 5;
constexpr int kDeepestLevel = std::numeric_limits<qint16>::max();

/// The children of one boxset on the way down, the next one to add, and what they take over from their parent.
struct Siblings {
    const std::vector<int> *rows;
    size_t next;
    int level;
    QString parent_key;
    QString parent_sort_title;
};

} // namespace

void RowsByKey::Add(const QString &key, int row) {
    rows_[sql::SortKey(key)].push_back(row);
}

const std::vector<int> &RowsByKey::Find(const QString &key) const {
    static const std::vector<int> kNone;
    if (rows_.isEmpty()) {
        return kNone;
    }
    wanted_.resize(0);
    sql::AppendSortKey(key, wanted_);
    const auto found = rows_.constFind(wanted_);
    return found == rows_.constEnd() ? kNone : *found;
}

void BoxsetRows::Add(const QString &boxset_id, TitleRow child) {
    by_boxset_.Add(boxset_id, int(children_.size()));
    children_.push_back(std::move(child));
}

void BoxsetRows::GetBoxsetChilds(const QString &boxset_id, int level, const QString &parent_sort_title,
                                 std::vector<TitleRow> &rows) {
    const std::vector<int> &first = by_boxset_.Find(boxset_id);
    if (first.empty()) {
        return;
    }
    std::vector<Siblings> path = {{&first, 0, level, boxset_id, parent_sort_title}};
    while (!path.empty()) {
        Siblings &siblings = path.back();
        if (siblings.next == siblings.rows->size() || siblings.level > kDeepestLevel) {
            path.pop_back();
            continue;
        }
        TitleRow row = children_[size_t((*siblings.rows)[siblings.next++])];
        if (!added_.Add(row.key)) {
            continue;
        }
        QString &title = row.texts[TitleList::Title];
        title = title.rightJustified(title.size() + qsizetype(siblings.level) * kBlanksOfLevel, u' ');
        QString &sort_title = row.texts[TitleList::SortTitle];
        sort_title = siblings.parent_sort_title + " - "_L1 + sort_title;
        row.parent_key = siblings.parent_key;
        const std::vector<int> &below = by_boxset_.Find(row.key);
        if (!below.empty()) {
            // Ends the reference to `siblings`.
            path.push_back({&below, 0, siblings.level + 1, row.key, row.texts[TitleList::SortTitle]});
        }
        rows.push_back(std::move(row));
    }
}

} // namespace ostrand
