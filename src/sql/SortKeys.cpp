#include "sql/SortKeys.h"

#include "sql/Collation.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace ostrand::sql {

namespace {

/// A text while it is sorted, with the first bytes of its key, which tell most texts apart.
struct Entry {
    quint64 start;
    int number;
};

quint64 StartOf(std::string_view key) {
    quint64 start = 0;
    std::memcpy(&start, key.data(), std::min(key.size(), sizeof start));
    return qFromBigEndian(start);
}

} // namespace

void SortKeys::Reserve(size_t count) {
    constexpr int kUsualLength = 32;
    bytes_.reserve(qsizetype(count) * kUsualLength);
    places_.reserve(count);
}

void SortKeys::Clear() {
    bytes_.resize(0);
    places_.clear();
}

void SortKeys::Append(QStringView text) {
    const auto start = quint32(bytes_.size());
    AppendSortKey(text, bytes_);
    places_.push_back({start, quint32(bytes_.size()) - start});
}

void SortKeys::AppendNull() {
    places_.push_back({quint32(bytes_.size()), 0});
}

std::string_view SortKeys::At(int number) const {
    const Place &place = places_[size_t(number)];
    return {bytes_.constData() + place.start, place.size};
}

std::vector<int> SortKeys::Order(bool descending) const {
    std::vector<Entry> entries;
    entries.reserve(Size());
    for (int number = 0; number < int(Size()); ++number) {
        entries.push_back({StartOf(At(number)), number});
    }
    const auto is_less = [this](const Entry &a, const Entry &b) {
        return a.start != b.start ? a.start < b.start : At(a.number) < At(b.number);
    };
    if (descending) {
        std::stable_sort(entries.begin(), entries.end(),
                         [&is_less](const Entry &a, const Entry &b) { return is_less(b, a); });
    } else {
        std::stable_sort(entries.begin(), entries.end(), is_less);
    }
    std::vector<int> order;
    order.reserve(Size());
    for (const Entry &entry : entries) {
        order.push_back(entry.number);
    }
    return order;
}

void SortKeys::Rearrange(const std::vector<int> &order) {
    std::vector<Place> places;
    places.reserve(order.size());
    for (const int number : order) {
        places.push_back(places_[size_t(number)]);
    }
    places_ = std::move(places);
}

} // namespace ostrand::sql
