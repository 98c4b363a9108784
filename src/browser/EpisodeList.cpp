#include "browser/EpisodeList.h"

#include "sql/Collation.h"

namespace ostrand {

int EpisodeList::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int EpisodeList::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : 2;
}

QVariant EpisodeList::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const EpisodeRow &row = rows_[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Number ? row.number : row.title;
    case KeyRole:
        return row.key;
    case TagRole:
        return row.tag;
    case SeasonRole:
        return row.season;
    default:
        return {};
    }
}

QVariant EpisodeList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return headers_.value(section);
}

void EpisodeList::sort(int column, Qt::SortOrder order) {
    if (column != Number && column != Title) {
        return;
    }
    std::vector<EpisodeRow> rows = rows_;
    const QString EpisodeRow::*text = column == Number ? &EpisodeRow::number : &EpisodeRow::title;
    std::stable_sort(rows.begin(), rows.end(), [&](const EpisodeRow &a, const EpisodeRow &b) {
        const int compared = sql::Compare(a.*text, b.*text);
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &old : before) {
        const QString &key = rows_[size_t(old.row())].key;
        const auto found = std::find_if(rows.begin(), rows.end(), [&](const EpisodeRow &r) { return r.key == key; });
        after.append(index(int(found - rows.begin()), old.column()));
    }
    rows_ = std::move(rows);
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void EpisodeList::SetTitle(int row, const QString &title) {
    rows_[size_t(row)].title = title;
    Q_EMIT dataChanged(index(row, Title), index(row, Title));
}

int EpisodeList::RowOfKey(const QString &key) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const EpisodeRow &row) { return row.key == key; });
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

void EpisodeList::SetHeaders(const QStringList &headers) {
    headers_ = headers;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 1);
}

void EpisodeList::Assign(std::vector<EpisodeRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

} // namespace ostrand
