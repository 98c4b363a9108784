// Many short texts in one piece of memory, to be searched for parts of them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostrand {

/// Numbered from 0. The texts hold no line end.
class FoldedTexts {
public:
    /// Appends a text and returns its number.
    int Add(std::string_view text) {
        starts_.push_back(std::uint32_t(buffer_.size()));
        buffer_.append(text);
        buffer_.push_back('\n');
        return Size() - 1;
    }
    int Size() const { return int(starts_.size()); }
    std::string_view At(int number) const {
        const size_t start = starts_[size_t(number)];
        return std::string_view(buffer_).substr(start, EndOf(size_t(number)) - start - 1);
    }

    /// Calls `take` with the number of each text that holds `part`, in their order.
    template <typename Take>
    void ForEachWith(std::string_view part, Take take) const {
        size_t number = 0;
        for (size_t place = buffer_.find(part); place != std::string::npos; place = buffer_.find(part, place)) {
            while (EndOf(number) <= place) {
                ++number;
            }
            take(int(number));
            place = EndOf(number);
        }
    }

    /// Gives back what was reserved for further texts.
    void Trim() {
        buffer_.shrink_to_fit();
        starts_.shrink_to_fit();
    }
    size_t Bytes() const { return buffer_.capacity() + starts_.capacity() * sizeof starts_.front(); }

private:
    size_t EndOf(size_t number) const { return number + 1 < starts_.size() ? starts_[number + 1] : buffer_.size(); }

    std::string buffer_;
    std::vector<std::uint32_t> starts_;
};

} // namespace ostrand
