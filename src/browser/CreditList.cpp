#include "browser/CreditList.h"

#include "sql/Collation.h"

namespace ostrand {

int CreditList::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int CreditList::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : Position + 1;
}

QVariant CreditList::Text(const CreditRow &row, int column) const {
    switch (column) {
    case Name:
        return row.text;
    case Role:
        return row.role;
    case Position:
        return row.position_text;
    default:
        return {};
    }
}

QVariant CreditList::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const CreditRow &row = rows_[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return Text(row, index.column());
    case Qt::ToolTipRole:
        return row.caption ? row.text : index.column() == Role ? row.role : row.name;
    case Qt::TextAlignmentRole:
        return int((index.column() == Position ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case NameRole:
        return row.name;
    case BirthYearRole:
        return row.birth_year;
    case FlagsRole:
        return row.flags;
    case CaptionRole:
        return row.caption;
    case HeadshotRole:
        return row.has_headshot;
    case PositionRole:
        return row.position;
    default:
        return {};
    }
}

QVariant CreditList::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool text = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return orientation == Qt::Horizontal && text ? headers_.value(section) : QVariant();
}

void CreditList::sort(int column, Qt::SortOrder order) {
    if (column < Name || column > Position) {
        return;
    }
    sort_column_ = column;
    sort_order_ = order;
    const auto compare = [column](const CreditRow &a, const CreditRow &b) {
        switch (column) {
        case Name:
            return sql::Compare(a.text, b.text);
        case Role:
            return sql::Compare(a.role, b.role);
        default:
            return a.position - b.position;
        }
    };
    std::vector<int> places(rows_.size());
    std::iota(places.begin(), places.end(), 0);
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) {
        const int compared = compare(rows_[size_t(a)], rows_[size_t(b)]);
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<CreditRow> sorted;
    std::vector<int> row_now(rows_.size());
    sorted.reserve(rows_.size());
    for (const int place : places) {
        row_now[size_t(place)] = int(sorted.size());
        sorted.push_back(std::move(rows_[size_t(place)]));
    }
    rows_ = std::move(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &old : before) {
        after.append(index(row_now[size_t(old.row())], old.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void CreditList::SetHeaders(const QStringList &headers) {
    headers_ = headers;
    Q_EMIT headerDataChanged(Qt::Horizontal, Name, Position);
}

void CreditList::Assign(std::vector<CreditRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    sort_column_ = Position;
    sort_order_ = Qt::AscendingOrder;
    endResetModel();
}

void CreditList::SortByHeader(int column) {
    sort(column, sort_order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder);
}

} // namespace ostrand
