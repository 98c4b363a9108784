// The patterns of LIKE.
#pragma once

#include <QString>
#include <QStringView>

#include <string_view>
#include <vector>

namespace ostrand::sql {

/// A pattern with the wildcards * (any text), ? (one UTF-16 unit), # (one digit), [a-z], [!a-z]; all else stands for
/// itself, letters without case, accents count. Ranges follow the sort order.
class LikePattern {
public:
    /// Throws SqlError (InvalidPattern) for an unclosed bracket and for a range whose end sorts before its start.
    explicit LikePattern(QStringView pattern);

    bool Matches(QStringView text) const;
    bool MatchesUtf8(std::string_view text) const;

private:
    struct Range {
        QChar low;
        QChar high;
    };
    struct Group {
        bool negated = false;
        QString singles;
        std::vector<Range> ranges;

        bool Contains(QChar unit) const;
    };
    enum class Kind { Literal, AnyText, AnyUnit, Digit, Group };
    struct Element {
        Kind kind;
        QChar unit;
        size_t group = 0;
    };

    void AddGroup(QStringView content);
    bool MatchesUnit(const Element &element, QChar unit) const;
    /// The text has its letters small.
    bool MatchesFolded(QStringView text) const;

    std::vector<Element> elements_;
    std::vector<Group> groups_;
};

} // namespace ostrand::sql
