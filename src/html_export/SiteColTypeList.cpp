#include "html_export/SiteColTypeList.h"

#include "shell/Session.h"

namespace ostrand {

SiteColTypeList::SiteColTypeList(Session &session, const std::vector<SiteColType> &types, QObject *parent) :
    QAbstractListModel(parent) {
    for (const SiteColType &type : types) {
        rows_.push_back({type, Translate(session, type.name.isEmpty() ? QStringLiteral("Unsorted") : type.name)});
    }
}

int SiteColTypeList::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

QVariant SiteColTypeList::data(const QModelIndex &index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Row &row = rows_[size_t(index.row())];
    if (role == Qt::DisplayRole) {
        return row.shown;
    }
    if (role == Qt::CheckStateRole) {
        return row.type.checked ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

bool SiteColTypeList::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    rows_[size_t(index.row())].type.checked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags SiteColTypeList::flags(const QModelIndex &index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable : Qt::NoItemFlags;
}

bool SiteColTypeList::CanMove(int row, int by) const {
    const int target = row + by;
    return row >= 0 && row < rowCount() && target >= 0 && target < rowCount();
}

void SiteColTypeList::Move(int row, int by) {
    if (!CanMove(row, by)) {
        return;
    }
    // The model's way to tell it: in front of which row, as they stood before.
    beginMoveRows({}, row, row, {}, by > 0 ? row + 2 : row - 1);
    std::swap(rows_[size_t(row)], rows_[size_t(by > 0 ? row + 1 : row - 1)]);
    endMoveRows();
}

QStringList SiteColTypeList::Order() const {
    QStringList names;
    for (const Row &row : rows_) {
        names += row.type.name;
    }
    return names;
}

QStringList SiteColTypeList::Excluded() const {
    QStringList names;
    for (const Row &row : rows_) {
        if (!row.type.checked) {
            names += row.type.name;
        }
    }
    return names;
}

} // namespace ostrand
