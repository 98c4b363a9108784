#include "browser/TitleList.h"

#include "browser/KeySet.h"

#include <QScopeGuard>

#include <numeric>

namespace ostrand {

namespace {

bool IsOfTitle(const TitleRow &row, const QString &id) {
    return !row.header && QStringView(row.key).left(row.key.indexOf(u'|')).compare(id, Qt::CaseInsensitive) == 0;
}

} // namespace

int TitleList::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(shown_.size());
}

int TitleList::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : kTitleColumns;
}

QVariant TitleList::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const TitleRow &row = At(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.texts[size_t(index.column())];
    case Qt::ToolTipRole:
        return row.tool_tip;
    case KeyRole:
        return row.key;
    case TagRole:
        return row.tag;
    case ColourRole:
        return int(ColourOf(index.row()));
    case HeaderRole:
        return row.header;
    default:
        return {};
    }
}

QVariant TitleList::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(headers_.value(section)) : QVariant();
}

TitleList::Colour TitleList::ColourOf(int row) const {
    const bool header = At(row).header;
    const Colour striped = row % 2 == 0 ? Colour::Text : Colour::Alternate;
    switch (striping_) {
    case Striping::None:
        return header ? Colour::Header : Colour::Text;
    case Striping::Plain:
        return Colour::Text;
    case Striping::Rows:
        return striped;
    case Striping::KeepBold:
        return header ? Colour::Header : striped;
    }
    return Colour::Text;
}

void TitleList::SetHeaders(const QStringList &headers) {
    headers_ = headers;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, kTitleColumns - 1);
}

int TitleList::Assign(std::vector<TitleRow> rows) {
    KeySet keys;
    keys.Reserve(qsizetype(rows.size()));
    const size_t clashes = std::erase_if(rows, [&keys](const TitleRow &row) { return !keys.Add(row.key); });
    beginResetModel();
    rows_.swap(rows);
    if (!rows.empty()) {
        // Many texts take their time to be freed: the turn after the one that fills the list has it.
        auto free = [before = std::move(rows)] {};
        QMetaObject::invokeMethod(this, std::move(free), Qt::QueuedConnection);
    }
    keyed_column_ = -1;
    ++order_;
    shown_.clear(); // should the filter fail
    const auto end = qScopeGuard([this] { endResetModel(); });
    if (sorted_) {
        SortRows();
    }
    shown_ = Passing();
    return int(clashes);
}

bool TitleList::Narrow() {
    std::vector<int> shown = Passing();
    if (shown == shown_) {
        return false;
    }
    beginResetModel();
    shown_ = std::move(shown);
    endResetModel();
    return true;
}

std::vector<TitleRow> TitleList::Rows() const {
    std::vector<TitleRow> rows;
    rows.reserve(shown_.size());
    for (const int row : shown_) {
        rows.push_back(rows_[size_t(row)]);
    }
    return rows;
}

const std::vector<int> &TitleList::Parents() {
    if (std::exchange(parents_order_, order_) == order_) {
        return parents_;
    }
    parents_.assign(rows_.size(), -1);
    if (std::all_of(rows_.begin(), rows_.end(), [](const TitleRow &row) { return row.parent_key.isEmpty(); })) {
        return parents_;
    }
    QHash<QStringView, int> places;
    places.reserve(qsizetype(rows_.size()));
    for (const TitleRow &row : rows_) {
        places.insert(row.key, int(places.size()));
    }
    for (size_t i = 0; i < rows_.size(); ++i) {
        if (!rows_[i].parent_key.isEmpty()) {
            parents_[i] = places.value(rows_[i].parent_key, -1);
        }
    }
    return parents_;
}

std::vector<int> TitleList::Passing() {
    std::vector<int> shown;
    std::vector<bool> passes = filter_ ? filter_(rows_, order_) : std::vector<bool>();
    if (passes.empty()) {
        shown.resize(rows_.size());
        std::iota(shown.begin(), shown.end(), 0);
        return shown;
    }
    for (size_t i = 0; i < rows_.size(); ++i) {
        passes[i] = passes[i] && !rows_[i].header;
    }
    const std::vector<int> &parents = Parents();
    for (size_t i = 0; i < rows_.size(); ++i) {
        for (int row = passes[i] ? parents[i] : -1; row >= 0 && !passes[size_t(row)]; row = parents[size_t(row)]) {
            passes[size_t(row)] = true;
        }
    }
    for (size_t i = 0; i < rows_.size(); ++i) {
        if (passes[i]) {
            shown.push_back(int(i));
        }
    }
    return shown;
}

int TitleList::RowOfNumber(int number) const {
    const auto row = std::lower_bound(shown_.begin(), shown_.end(), number);
    return row == shown_.end() || *row != number ? -1 : int(row - shown_.begin());
}

const TitleRow *TitleList::Held(const QString &key) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&key](const TitleRow &row) {
        return row.key.compare(key, Qt::CaseInsensitive) == 0;
    });
    return found == rows_.end() ? nullptr : &*found;
}

bool TitleList::HoldsHidden(const QString &id) const {
    return shown_.size() < rows_.size() &&
           std::any_of(rows_.begin(), rows_.end(), [&id](const TitleRow &row) { return IsOfTitle(row, id); });
}

int TitleList::TitleCount() const {
    return int(std::count_if(shown_.begin(), shown_.end(), [this](int row) { return !rows_[size_t(row)].header; }));
}

void TitleList::Clear() {
    Assign({});
}

void TitleList::RemoveTitles(const QStringList &ids) {
    KeySet gone;
    for (const QString &id : ids) {
        gone.Add(id);
    }
    std::vector<TitleRow> rows;
    const auto drop_empty_group = [&rows] {
        if (!rows.empty() && rows.back().header) {
            rows.pop_back();
        }
    };
    for (TitleRow &row : rows_) {
        if (row.header) {
            drop_empty_group();
        } else if (gone.Contains(ProfileOfKey(row.key))) {
            continue;
        }
        rows.push_back(std::move(row));
    }
    drop_empty_group();
    Assign(std::move(rows));
}

void TitleList::SetTexts(const QString &id, const std::function<TitleRow(const TitleRow &row)> &make_texts) {
    for (TitleRow &row : rows_) {
        if (IsOfTitle(row, id)) {
            TitleRow texts = make_texts(row);
            row.texts = std::move(texts.texts);
            row.tool_tip = std::move(texts.tool_tip);
            row.tag = std::move(texts.tag);
        }
    }
    keyed_column_ = -1;
    if (!shown_.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, kTitleColumns - 1));
    }
}

void TitleList::SetHeaderTexts(const std::function<QString(const QString &group)> &make_text) {
    for (TitleRow &row : rows_) {
        if (row.header) {
            row.texts[Title] = row.tool_tip = make_text(row.group);
            keyed_column_ = -1;
        }
    }
    if (!shown_.empty()) {
        Q_EMIT dataChanged(index(0, Title), index(rowCount() - 1, Title));
    }
}

void TitleList::SortBy(int column, Order order) {
    sorted_ = true;
    sort_column_ = std::clamp(column, 0, kTitleColumns - 1);
    sort_order_ = order;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> new_places = SortRows();
    std::vector<int> shown;
    shown.reserve(shown_.size());
    for (const int row : shown_) {
        shown.push_back(new_places[size_t(row)]);
    }
    std::sort(shown.begin(), shown.end());
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before) {
        const int row = new_places[size_t(shown_[size_t(index.row())])];
        const auto place = std::lower_bound(shown.begin(), shown.end(), row);
        after.append(createIndex(int(place - shown.begin()), index.column()));
    }
    shown_ = std::move(shown);
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void TitleList::Unsort() {
    sorted_ = false;
}

void TitleList::MakeSortKeys() {
    if (keyed_column_ == sort_column_) {
        return;
    }
    keyed_column_ = sort_column_;
    sort_keys_.Clear();
    sort_keys_.Reserve(rows_.size());
    for (const TitleRow &row : rows_) {
        sort_keys_.Append(row.texts[size_t(sort_column_)]);
    }
}

std::vector<int> TitleList::SortRows() {
    MakeSortKeys();
    const std::vector<int> order = sort_keys_.Order(sort_order_ == Order::Descending);
    std::vector<int> new_places(rows_.size());
    if (std::is_sorted(order.begin(), order.end())) {
        std::iota(new_places.begin(), new_places.end(), 0); // a list that was read in its order stays as it is
        return new_places;
    }
    std::vector<TitleRow> sorted;
    sorted.reserve(rows_.size());
    for (const int row : order) {
        new_places[size_t(row)] = int(sorted.size());
        sorted.push_back(std::move(rows_[size_t(row)]));
    }
    ++order_;
    rows_ = std::move(sorted);
    sort_keys_.Rearrange(order);
    return new_places;
}

void TitleList::SetStriping(Striping striping) {
    // A view looks at every row for this.
    if (std::exchange(striping_, striping) != striping && !shown_.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, kTitleColumns - 1), {ColourRole});
    }
}

void TitleList::SetWidth(int column, double fraction) {
    if (widths_[size_t(column)] != fraction) {
        widths_[size_t(column)] = fraction;
        Q_EMIT WidthsChanged();
    }
}

template <typename Test>
int TitleList::FirstShown(Test test) const {
    const auto row =
        std::find_if(shown_.begin(), shown_.end(), [&](int candidate) { return test(rows_[size_t(candidate)]); });
    return row == shown_.end() ? -1 : int(row - shown_.begin());
}

int TitleList::RowOfKey(const QString &key) const {
    return FirstShown([&key](const TitleRow &row) {
        return row.key.size() == key.size() && row.key.compare(key, Qt::CaseInsensitive) == 0;
    });
}

int TitleList::RowOfTitle(const QString &id) const {
    return FirstShown([&id](const TitleRow &row) { return IsOfTitle(row, id); });
}

QString ProfileOfKey(const QString &key) {
    const qsizetype bar = key.indexOf(u'|');
    return bar < 0 ? key : key.left(bar);
}

} // namespace ostrand
