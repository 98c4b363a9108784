// The sort keys of many texts.
#pragma once

#include <QByteArray>
#include <QStringView>

#include <string_view>
#include <vector>

namespace ostrand::sql {

/// Orders texts as the database does, many at once. They are counted from 0 as they are appended.
class SortKeys {
public:
    void Reserve(size_t count);
    void Clear();
    void Append(QStringView text);
    /// Stands in front of all texts, as NULL does.
    void AppendNull();
    size_t Size() const { return places_.size(); }
    /// Keys stand to each other, byte by byte, as their texts do.
    std::string_view At(int number) const;

    /// The numbers in the order of the texts; equal ones stay as they were appended, whichever way it goes.
    std::vector<int> Order(bool descending = false) const;
    /// Gives the keys new numbers: 0 to the one whose number comes first here.
    void Rearrange(const std::vector<int> &order);

private:
    struct Place {
        quint32 start;
        quint32 size;
    };
    QByteArray bytes_; ///< the keys, one behind the other
    std::vector<Place> places_;
};

} // namespace ostrand::sql
