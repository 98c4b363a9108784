#include "queries/QueryResult.h"

#include "shell/Progress.h"
#include "sql/Collation.h"

#include <numeric>

namespace ostrand {

namespace {

/// What a cell is sorted by: NULL first, then numbers, then texts.
struct SortCell {
    sql::Value::Type type = sql::Value::Type::Null;
    double number = 0;
    QByteArray key;
};

SortCell CellOf(const sql::Value &value) {
    switch (value.GetType()) {
    case sql::Value::Type::Null:
        return {};
    case sql::Value::Type::Integer:
    case sql::Value::Type::Real:
        return {sql::Value::Type::Real, value.Real(), {}};
    case sql::Value::Type::Text:
        break;
    }
    return {sql::Value::Type::Text, 0, sql::SortKey(value.Text())};
}

bool Before(const SortCell &a, const SortCell &b) {
    return a.type != b.type ? a.type < b.type : a.type == sql::Value::Type::Text ? a.key < b.key : a.number < b.number;
}

} // namespace

int QueryResult::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(places_.size());
}

int QueryResult::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(columns_.size());
}

QVariant QueryResult::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return Text(index.row(), index.column());
    }
    const bool number = recordset_ && sql::IsNumber(recordset_->Fields()[size_t(index.column())].kind);
    if (role == Qt::TextAlignmentRole && number) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    return {};
}

QVariant QueryResult::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return columns_.value(section);
}

QString QueryResult::Text(int row, int column) const {
    const int place = places_.at(size_t(row));
    return recordset_ ? recordset_->TextAt(place, column) : texts_[size_t(place)].value(column);
}

QString QueryResult::ProfileOf(int row) const {
    if (row < 0 || row >= rowCount() || columns_.isEmpty()) {
        return {};
    }
    const QString text = Text(row, 0);
    return frmProgress::IsProfileKey(text) ? text : QString();
}

void QueryResult::Show(QStringList columns, int count) {
    columns_ = std::move(columns);
    places_.resize(size_t(count));
    std::iota(places_.begin(), places_.end(), 0);
}

void QueryResult::Assign(sql::Recordset rows) {
    QStringList columns;
    for (const sql::Field &field : rows.Fields()) {
        columns.append(field.label);
    }
    beginResetModel();
    texts_.clear();
    Show(std::move(columns), rows.RecordCount());
    recordset_.emplace(std::move(rows));
    endResetModel();
}

void QueryResult::Assign(QStringList columns, std::vector<QStringList> rows) {
    beginResetModel();
    recordset_.reset();
    texts_ = std::move(rows);
    Show(std::move(columns), int(texts_.size()));
    endResetModel();
}

void QueryResult::Clear() {
    Assign({}, {});
}

std::vector<int> QueryResult::SortedPlaces(int column, Qt::SortOrder order) const {
    std::vector<SortCell> cells(places_.size()); // by the row of the result
    for (size_t place = 0; place < cells.size(); ++place) {
        cells[place] = recordset_ ? CellOf(recordset_->GetAt(int(place), column))
                                  : CellOf(sql::Value(texts_[place].value(column)));
    }
    std::vector<int> places = places_;
    std::stable_sort(places.begin(), places.end(), [&](int a, int b) {
        return order == Qt::AscendingOrder ? Before(cells[size_t(a)], cells[size_t(b)])
                                           : Before(cells[size_t(b)], cells[size_t(a)]);
    });
    return places;
}

void QueryResult::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columns_.size()) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> before = places_;
    places_ = SortedPlaces(column, order);
    std::vector<int> new_row(places_.size());
    for (size_t row = 0; row < places_.size(); ++row) {
        new_row[size_t(places_[row])] = int(row);
    }
    const QModelIndexList old = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex &index : old) {
        moved.append(this->index(new_row[size_t(before[size_t(index.row())])], index.column()));
    }
    changePersistentIndexList(old, moved);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace ostrand
