#include "shell/ListTable.h"

#include "sql/Collation.h"

namespace ostrand {

ListTable::ListTable(QString table_caption, QStringList columns, QObject *parent) :
    QAbstractTableModel(parent), caption(std::move(table_caption)), columns_(std::move(columns)) {}

int ListTable::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int ListTable::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(columns_.size());
}

QVariant ListTable::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    return rows_[size_t(index.row())].texts.value(index.column());
}

QVariant ListTable::headerData(int section, Qt::Orientation orientation, int role) const {
    // The tool tip tells a header that is cut off.
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    return columns_.value(section);
}

void ListTable::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columns_.size()) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<int> places(rows_.size()); // the former row at each place
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) {
        const int compared = sql::Compare(rows_[size_t(a)].texts.value(column), rows_[size_t(b)].texts.value(column));
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    std::vector<ListTableRow> sorted(rows_.size());
    std::vector<int> new_row(rows_.size());
    for (size_t i = 0; i < places.size(); ++i) {
        sorted[i] = std::move(rows_[size_t(places[i])]);
        new_row[size_t(places[i])] = int(i);
    }
    rows_ = std::move(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &index : before) {
        after.append(this->index(new_row[size_t(index.row())], index.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void ListTable::SetColumns(const QStringList &columns) {
    Q_ASSERT(columns.size() == columns_.size());
    columns_ = columns;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, int(columns_.size()) - 1);
}

void ListTable::Assign(std::vector<ListTableRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void ListTable::Rebuild(QStringList columns) {
    beginResetModel();
    columns_ = std::move(columns);
    rows_.clear();
    endResetModel();
}

} // namespace ostrand
