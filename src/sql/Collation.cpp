#include "sql/Collation.h"

#include "sql/CollationTable.h"

#include <bit>
#include <cstring>

namespace ostrand::sql {
namespace {

/// Code points of UTF-8. Encoded surrogates are read as such, other faulty bytes one by one.
class Utf8Reader {
public:
    explicit Utf8Reader(std::string_view text) : text_(text) {}

    bool AtEnd() const { return next_ == text_.size(); }

    std::uint32_t Next() {
        const auto lead = std::uint8_t(text_[next_++]);
        if (lead < 0x80) {
            return lead;
        }
        const size_t trail = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
        if (lead < 0xC2 || lead > 0xF4 || text_.size() - next_ < trail) {
            return kInvalidByte + lead;
        }
        std::uint32_t character = lead & (0x3Fu >> trail);
        for (size_t i = 0; i < trail; ++i) {
            const auto byte = std::uint8_t(text_[next_ + i]);
            if ((byte & 0xC0) != 0x80) {
                return kInvalidByte + lead;
            }
            character = character << 6 | (byte & 0x3F);
        }
        const std::uint32_t least = trail == 3 ? 0x10000 : trail == 2 ? 0x800 : 0x80;
        if (character < least || character > 0x10FFFF) {
            return kInvalidByte + lead;
        }
        next_ += trail;
        return character;
    }

private:
    std::string_view text_;
    size_t next_ = 0;
};

/// Code points of UTF-16; a lone surrogate stands for itself.
class Utf16Reader {
public:
    explicit Utf16Reader(QStringView text) : text_(text) {}

    bool AtEnd() const { return next_ == text_.size(); }

    std::uint32_t Next() {
        const char16_t unit = text_[next_++].unicode();
        if (QChar::isHighSurrogate(unit) && !AtEnd() && text_[next_].isLowSurrogate()) {
            return QChar::surrogateToUcs4(unit, text_[next_++].unicode());
        }
        return unit;
    }

private:
    QStringView text_;
    qsizetype next_ = 0;
};

/// The weights of a text, one letter at a time.
template <class Reader>
class Weigher {
public:
    explicit Weigher(Reader reader) : reader_(reader) { Advance(); }

    bool AtEnd() const { return at_end_; }
    bool IsIgnored() const { return !at_end_ && weight_.primary == 0; }
    std::uint32_t Primary() const { return weight_.primary; }
    std::uint32_t Secondary() const { return weight_.secondary; }

    void Advance() {
        if (weight_.second_primary != 0) {
            weight_ = {weight_.second_primary, 0, weight_.secondary};
            return;
        }
        at_end_ = reader_.AtEnd();
        weight_ = at_end_ ? CharacterWeight() : WeightOf(reader_.Next());
    }

private:
    Reader reader_;
    CharacterWeight weight_;
    bool at_end_ = false;
};

int Sign(std::uint32_t left, std::uint32_t right) {
    return left < right ? -1 : left > right ? 1 : 0;
}

/// Compares the lists of what does not count at first, as pairs of place and character; a list that ends is less.
class PlaceComparison {
public:
    void AddBoth(std::uint32_t left, std::uint32_t right) {
        if (ahead_ != 0) {
            Decide(-ahead_);
        } else if (left != right) {
            Decide(Sign(left, right));
        }
    }
    /// `side` is 1 for the left text and -1 for the right one.
    void AddOne(int side) {
        if (ahead_ == 0) {
            ahead_ = side;
        } else if (ahead_ != side) {
            Decide(-ahead_);
        }
    }
    int Result() const { return result_ != 0 ? result_ : ahead_; }

private:
    void Decide(int result) {
        if (result_ == 0) {
            result_ = result;
        }
    }
    int result_ = 0;
    int ahead_ = 0; ///< the side that has an element where the other has none yet
};

template <class Reader>
void SkipIgnored(Weigher<Reader> &left, Weigher<Reader> &right, PlaceComparison &places) {
    while (left.IsIgnored() && right.IsIgnored()) {
        places.AddBoth(left.Secondary(), right.Secondary());
        left.Advance();
        right.Advance();
    }
    for (; left.IsIgnored(); left.Advance()) {
        places.AddOne(1);
    }
    for (; right.IsIgnored(); right.Advance()) {
        places.AddOne(-1);
    }
}

template <class Reader>
int CompareWeights(Weigher<Reader> left, Weigher<Reader> right) {
    PlaceComparison places;
    int accents = 0;
    while (true) {
        SkipIgnored(left, right, places);
        if (left.AtEnd() || right.AtEnd()) {
            break;
        }
        if (left.Primary() != right.Primary()) {
            return Sign(left.Primary(), right.Primary());
        }
        if (accents == 0) {
            accents = Sign(left.Secondary(), right.Secondary());
        }
        left.Advance();
        right.Advance();
    }
    if (left.AtEnd() != right.AtEnd()) {
        return left.AtEnd() ? -1 : 1;
    }
    return accents != 0 ? accents : places.Result();
}

/// Writes numbers above 0 so that their bytes compare as they do; none begins with the byte 0.
void PutNumber(QByteArray &key, std::uint32_t number) {
    constexpr std::uint32_t kLong = 0xF0;
    if (number < kLong) {
        key.append(char(number));
        return;
    }
    const char bytes[] = {char(kLong), char(number >> 16), char(number >> 8), char(number)};
    key.append(bytes, sizeof bytes);
}

void PutPlace(QByteArray &key, std::uint32_t place, std::uint32_t character) {
    const char bytes[] = {char(place >> 24), char(place >> 16), char(place >> 8), char(place)};
    key.append(bytes, sizeof bytes);
    PutNumber(key, character + 1);
}

/// Appends the key of a text of ASCII, which has no accents; false, and nothing is appended, for any other text.
bool AppendAsciiSortKey(QStringView text, QByteArray &key) {
    const qsizetype before = key.size();
    key.resize(before + text.size() + 2);
    char *next = key.data() + before;
    std::uint32_t ignored = 0;
    for (const QChar unit : text) {
        if (unit.unicode() >= 0x80) {
            key.resize(before);
            return false;
        }
        const std::uint8_t weight = weights::kAscii[unit.unicode()];
        *next = char(weight);
        next += weight != 0 ? 1 : 0;
        ignored += weight != 0 ? 0 : 1;
    }
    *next++ = 0;
    *next++ = 0;
    key.resize(next - key.constData());
    if (ignored > 0) {
        std::uint32_t count = 0;
        for (const QChar unit : text) {
            if (weights::kAscii[unit.unicode()] != 0) {
                ++count;
            } else {
                PutPlace(key, count, WeightOf(unit.unicode()).secondary);
            }
        }
    }
    return true;
}

/// Runs over what weighs the same in both texts. True when `result` is known; else `place` is where the slow
/// comparison may begin.
template <class Unit>
bool CompareQuickly(const Unit *left, size_t left_size, const Unit *right, size_t right_size, size_t &place,
                    int &result) {
    const size_t common = left_size < right_size ? left_size : right_size;
    constexpr size_t kStep = sizeof(std::uint64_t) / sizeof(Unit);
    size_t i = 0;
    for (; i + kStep <= common; i += kStep) {
        std::uint64_t left_block;
        std::uint64_t right_block;
        std::memcpy(&left_block, left + i, sizeof left_block);
        std::memcpy(&right_block, right + i, sizeof right_block);
        if (left_block != right_block) {
            if constexpr (std::endian::native == std::endian::little) {
                i += size_t(std::countr_zero(left_block ^ right_block)) / (8 * sizeof(Unit)); // what is equal before
            }
            break;
        }
    }
    for (; i < common; ++i) {
        if (left[i] == right[i]) {
            continue;
        }
        if (left[i] >= 0x80 || right[i] >= 0x80) {
            break;
        }
        const int left_weight = weights::kAscii[left[i]];
        const int right_weight = weights::kAscii[right[i]];
        if (left_weight == 0 || right_weight == 0) {
            break;
        }
        if (left_weight != right_weight) {
            result = left_weight < right_weight ? -1 : 1;
            return true;
        }
    }
    place = i;
    if (i < common) {
        return false;
    }
    if (left_size == right_size) {
        result = 0;
        return true;
    }
    const Unit next = left_size > common ? left[common] : right[common];
    if (next >= 0x80 || weights::kAscii[next] == 0) {
        return false;
    }
    result = left_size < right_size ? -1 : 1;
    return true;
}

} // namespace

int Compare(QStringView left, QStringView right) {
    while (left.endsWith(u' ')) {
        left.chop(1);
    }
    while (right.endsWith(u' ')) {
        right.chop(1);
    }
    size_t place = 0;
    int result = 0;
    if (CompareQuickly(left.utf16(), size_t(left.size()), right.utf16(), size_t(right.size()), place, result)) {
        return result;
    }
    auto start = qsizetype(place);
    if (start > 0 && left[start - 1].isHighSurrogate()) {
        --start;
    }
    return CompareWeights(Weigher(Utf16Reader(left.sliced(start))), Weigher(Utf16Reader(right.sliced(start))));
}

void AppendSortKey(QStringView text, QByteArray &key) {
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    if (AppendAsciiSortKey(text, key)) {
        return;
    }
    QByteArray accents;
    QByteArray places;
    std::uint32_t count = 0;
    std::uint32_t unaccented = 0; // letters since the last accent; those behind the last one need no byte
    for (Weigher weigher{Utf16Reader(text)}; !weigher.AtEnd(); weigher.Advance()) {
        if (weigher.IsIgnored()) {
            PutPlace(places, count, weigher.Secondary());
            continue;
        }
        ++count;
        PutNumber(key, weigher.Primary());
        if (weigher.Secondary() == 0) {
            ++unaccented;
            continue;
        }
        accents.append(qsizetype(unaccented), char(1));
        PutNumber(accents, weigher.Secondary() + 1);
        unaccented = 0;
    }
    key.append(char(0));
    key.append(accents);
    key.append(char(0));
    key.append(places);
}

QByteArray SortKey(QStringView text) {
    QByteArray key;
    key.reserve(text.size() + 2);
    AppendSortKey(text, key);
    return key;
}

int CompareUtf8(std::string_view left, std::string_view right) {
    while (!left.empty() && left.back() == ' ') {
        left.remove_suffix(1);
    }
    while (!right.empty() && right.back() == ' ') {
        right.remove_suffix(1);
    }
    size_t place = 0;
    int result = 0;
    const auto *left_bytes = reinterpret_cast<const unsigned char *>(left.data());
    const auto *right_bytes = reinterpret_cast<const unsigned char *>(right.data());
    if (CompareQuickly(left_bytes, left.size(), right_bytes, right.size(), place, result)) {
        return result;
    }
    // The texts agree in front of the place, so that a sequence which it splits begins at the same byte in both.
    while (place > 0 && left_bytes[place - 1] >= 0x80 && (left_bytes[place - 1] & 0x40) == 0) {
        --place;
    }
    if (place > 0 && left_bytes[place - 1] >= 0xC0) {
        --place;
    }
    return CompareWeights(Weigher(Utf8Reader(left.substr(place))), Weigher(Utf8Reader(right.substr(place))));
}

} // namespace ostrand::sql
