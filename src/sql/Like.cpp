#include "sql/Like.h"

#include "sql/CaseFold.h"
#include "sql/Collation.h"
#include "sql/SqlError.h"

#include <QVarLengthArray>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

[[noreturn]] void RaiseInvalidPattern() {
    throw SqlError(ErrorCode::InvalidPattern, u"Invalid pattern string."_s);
}

int CompareUnits(QChar left, QChar right) {
    return Compare(QStringView(&left, 1), QStringView(&right, 1));
}

} // namespace

LikePattern::LikePattern(QStringView pattern) {
    const QString folded = ToLower(pattern);
    for (qsizetype i = 0; i < folded.size(); ++i) {
        const QChar unit = folded[i];
        if (unit == u'*') {
            if (elements_.empty() || elements_.back().kind != Kind::AnyText) {
                elements_.push_back({Kind::AnyText, unit});
            }
        } else if (unit == u'?') {
            elements_.push_back({Kind::AnyUnit, unit});
        } else if (unit == u'#') {
            elements_.push_back({Kind::Digit, unit});
        } else if (unit == u'[') {
            const qsizetype end = folded.indexOf(u']', i + 1);
            if (end < 0) {
                RaiseInvalidPattern();
            }
            AddGroup(QStringView(folded).sliced(i + 1, end - i - 1));
            i = end;
        } else {
            elements_.push_back({Kind::Literal, unit});
        }
    }
}

void LikePattern::AddGroup(QStringView content) {
    if (content.isEmpty()) {
        return;
    }
    Group group;
    if (content.size() > 1 && content[0] == u'!') {
        group.negated = true;
        content = content.sliced(1);
    }
    for (qsizetype i = 0; i < content.size(); ++i) {
        if (i + 2 < content.size() && content[i + 1] == u'-') {
            const Range range{content[i], content[i + 2]};
            if (CompareUnits(range.low, range.high) > 0) {
                RaiseInvalidPattern();
            }
            group.ranges.push_back(range);
            i += 2;
        } else {
            group.singles.append(content[i]);
        }
    }
    elements_.push_back({Kind::Group, QChar(), groups_.size()});
    groups_.push_back(std::move(group));
}

bool LikePattern::Group::Contains(QChar unit) const {
    if (singles.contains(unit)) {
        return true;
    }
    return std::any_of(ranges.begin(), ranges.end(), [unit](const Range &range) {
        return CompareUnits(range.low, unit) <= 0 && CompareUnits(unit, range.high) <= 0;
    });
}

bool LikePattern::MatchesUnit(const Element &element, QChar unit) const {
    switch (element.kind) {
    case Kind::Literal:
        return element.unit == unit;
    case Kind::AnyUnit:
        return true;
    case Kind::Digit:
        return unit >= u'0' && unit <= u'9';
    case Kind::Group: {
        const Group &group = groups_[element.group];
        return group.Contains(unit) != group.negated;
    }
    case Kind::AnyText:
        break;
    }
    return false;
}

bool LikePattern::MatchesFolded(QStringView text) const {
    // Only the last star needs to be tried again: what an earlier one could take differently changes nothing.
    size_t element = 0;
    qsizetype unit = 0;
    bool has_star = false;
    size_t after_star = 0;
    qsizetype star_end = 0;
    while (unit < text.size()) {
        if (element < elements_.size() && elements_[element].kind == Kind::AnyText) {
            has_star = true;
            after_star = ++element;
            star_end = unit;
            if (after_star == elements_.size()) {
                return true;
            }
        } else if (element < elements_.size() && MatchesUnit(elements_[element], text[unit])) {
            ++element;
            ++unit;
        } else if (has_star) {
            element = after_star;
            unit = ++star_end;
        } else {
            return false;
        }
    }
    while (element < elements_.size() && elements_[element].kind == Kind::AnyText) {
        ++element;
    }
    return element == elements_.size();
}

bool LikePattern::Matches(QStringView text) const {
    return MatchesFolded(ToLower(text));
}

bool LikePattern::MatchesUtf8(std::string_view text) const {
    QVarLengthArray<char16_t, 256> folded;
    folded.resize(qsizetype(text.size()));
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte >= 0x80) {
            return Matches(QString::fromUtf8(text.data(), qsizetype(text.size())));
        }
        folded[qsizetype(i)] = char16_t(FoldCharacter(byte));
    }
    return MatchesFolded(QStringView(folded.data(), folded.size()));
}

} // namespace ostrand::sql
