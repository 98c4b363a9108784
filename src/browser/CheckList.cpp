#include "browser/CheckList.h"

namespace ostrand {

int CheckList::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant CheckList::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const CheckRow &row = rows_[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::CheckStateRole:
        return int(row.checked ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

bool CheckList::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) {
        return false;
    }
    Q_EMIT Ticked(QString(rows_[size_t(index.row())].key), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags CheckList::flags(const QModelIndex &index) const {
    return index.isValid()
               ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren
               : Qt::NoItemFlags;
}

void CheckList::Assign(std::vector<CheckRow> rows) {
    const auto same = [](const CheckRow &a, const CheckRow &b) { return a.key == b.key && a.text == b.text; };
    if (std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(), same)) {
        // The same rows with other ticks: the row that is selected stays so.
        rows_ = std::move(rows);
        if (!rows_.empty()) {
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
        }
        return;
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void CheckList::SetChecked(const QString &key, bool checked) {
    for (size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].key == key) {
            rows_[i].checked = checked;
            Q_EMIT dataChanged(index(int(i)), index(int(i)), {Qt::CheckStateRole});
        }
    }
}

QStringList CheckList::Checked() const {
    QStringList keys;
    for (const CheckRow &row : rows_) {
        if (row.checked) {
            keys += row.key;
        }
    }
    return keys;
}

} // namespace ostrand
