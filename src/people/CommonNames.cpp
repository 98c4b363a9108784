#include "people/CommonNames.h"

#include "sql/Collation.h"

namespace ostrand {

int CommonNames::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int CommonNames::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : Columns;
}

QVariant CommonNames::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    const Row &row = At(index.row());
    return index.column() == CommonName ? row.name : QString::number(row.birth_year);
}

QVariant CommonNames::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool text = role == Qt::DisplayRole || role == Qt::ToolTipRole; // the column may be narrower
    return orientation == Qt::Horizontal && text ? headers_.value(section) : QVariant();
}

void CommonNames::sort(int column, Qt::SortOrder order) {
    Q_EMIT layoutAboutToBeChanged();
    struct Keyed {
        QByteArray key;
        size_t from;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(rows_.size());
    for (size_t i = 0; i < rows_.size(); ++i) {
        keyed.push_back({column == CommonName ? sql::SortKey(rows_[i].name) : QByteArray(), i});
    }
    std::stable_sort(keyed.begin(), keyed.end(), [&](const Keyed &a, const Keyed &b) {
        const Keyed &first = order == Qt::AscendingOrder ? a : b;
        const Keyed &second = order == Qt::AscendingOrder ? b : a;
        return column == CommonName ? first.key < second.key
                                    : rows_[first.from].birth_year < rows_[second.from].birth_year;
    });
    std::vector<Row> sorted;
    std::vector<int> to(rows_.size());
    for (const Keyed &entry : keyed) {
        to[entry.from] = int(sorted.size());
        sorted.push_back(rows_[entry.from]);
    }
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &place : before) {
        after += index(to[size_t(place.row())], place.column());
    }
    rows_ = std::move(sorted);
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void CommonNames::Assign(std::vector<Row> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int CommonNames::Find(const QString &name, int birth_year) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row &row) {
        return row.birth_year == birth_year && sql::Compare(row.name, name) == 0;
    });
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

int CommonNames::Append(Row row) {
    const int place = rowCount();
    beginInsertRows({}, place, place);
    rows_.push_back(std::move(row));
    endInsertRows();
    return place;
}

void CommonNames::Remove(int row) {
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

} // namespace ostrand
