#include "skin/Template.h"

#include "sql/Conversion.h"

#include <cmath>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kNone = -1;

bool IsWordCharacter(QChar c) {
    return c == u'_' || (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool IsWhite(QChar c) {
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

/// ASCII only: a letter of another alphabet that folds to one of these is not one of these.
bool MatchesAt(QStringView text, qsizetype at, QLatin1String word) {
    if (at + word.size() > text.size()) {
        return false;
    }
    for (qsizetype i = 0; i < word.size(); ++i) {
        const char16_t c = text[at + i].unicode();
        const char16_t lower = c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
        const char16_t wanted = word[i].unicode();
        if (lower != (wanted >= u'A' && wanted <= u'Z' ? char16_t(wanted + 32) : wanted)) {
            return false;
        }
    }
    return true;
}

constexpr std::array kOpenings = {"<OSV Name=\""_L1, "<DP Name=\""_L1};

/// Behind `<DP Name="`, where one begins at `at`; kNone elsewhere.
qsizetype BehindOpening(QStringView page, qsizetype at) {
    for (const QLatin1String opening : kOpenings) {
        if (MatchesAt(page, at, opening)) {
            return at + opening.size();
        }
    }
    return kNone;
}

/// The quotes that can end a tag, with the place behind their ">".
struct TagEnd {
    qsizetype quote;
    qsizetype behind;
};

std::vector<TagEnd> TagEnds(QStringView page) {
    // From the end to the front, so that the white space behind a quote is walked through once.
    std::vector<TagEnd> ends;
    qsizetype next_solid = page.size();
    for (qsizetype i = page.size() - 1; i >= 0; --i) {
        if (page[i] == u'"') {
            qsizetype at = next_solid;
            if (at < page.size() && page[at] == u'/') {
                ++at;
            }
            if (at < page.size() && page[at] == u'>') {
                ends.push_back({i, at + 1});
            }
        }
        if (!IsWhite(page[i])) {
            next_solid = i;
        }
    }
    std::reverse(ends.begin(), ends.end());
    return ends;
}

/// Most values are none of these words, which their lengths tell.
QString ByRules(const QString &value) {
    constexpr qsizetype kNo = 2;
    constexpr qsizetype kYes = 3;
    constexpr qsizetype kBreak = 5;
    if (value.size() == kNo && value.toLower() == "no"_L1) {
        return u"false"_s;
    }
    if (value.size() == kYes && value.toLower() == "yes"_L1) {
        return u"true"_s;
    }
    return value.size() == kBreak && value.toUpper() == "BREAK"_L1 ? u"<br/>"_s : value;
}

/// The attribute as it stands; empty without one. Looks at the few equals signs of a tag, since a tag with many
/// attributes is asked for each of them.
QStringView RawAttribute(QStringView tag, QStringView name) {
    for (qsizetype equals = tag.indexOf(u'='); equals >= 0; equals = tag.indexOf(u'=', equals + 1)) {
        const qsizetype at = equals - name.size();
        const qsizetype begin = equals + 2;
        if (at < 0 || begin > tag.size() || tag[begin - 1] != u'"' || (at > 0 && IsWordCharacter(tag[at - 1])) ||
            tag.mid(at, name.size()).compare(name, Qt::CaseInsensitive) != 0) {
            continue;
        }
        const qsizetype end = tag.indexOf(u'"', begin);
        if (end > begin) {
            return tag.mid(begin, end - begin);
        }
    }
    return {};
}

/// By one decimal mark on every computer, since a skin travels.
std::optional<double> NumberIn(QStringView text) {
    return sql::TextToNumber(text, u'.');
}

} // namespace

QStringList FindSkinTags(const QString &page) {
    QStringList tags;
    const std::vector<TagEnd> ends = TagEnds(page);
    auto end = ends.begin();
    qsizetype line_end = kNone; // the first one behind the last opening, looked for anew once it is passed
    for (qsizetype at = page.indexOf(u'<'); at >= 0;) {
        qsizetype next = at + 1;
        if (const qsizetype inside = BehindOpening(page, at); inside != kNone) {
            end = std::lower_bound(end, ends.end(), inside,
                                   [](const TagEnd &a, qsizetype place) { return a.quote < place; });
            if (line_end < inside) {
                line_end = page.indexOf(u'\n', inside);
                line_end = line_end < 0 ? page.size() : line_end;
            }
            if (end != ends.end() && end->quote < line_end) {
                tags.append(page.mid(at, end->behind - at));
                next = end->behind;
            }
        }
        at = page.indexOf(u'<', next);
    }
    return tags;
}

bool HoldsTagOpening(QStringView text, qsizetype from) {
    for (qsizetype at = text.indexOf(u'<', from); at >= 0; at = text.indexOf(u'<', at + 1)) {
        if (BehindOpening(text, at) != kNone) {
            return true;
        }
    }
    return false;
}

bool EndsInTagOpening(QStringView text) {
    const qsizetype at = text.lastIndexOf(u'<');
    const qsizetype rest = text.size() - at;
    return at >= 0 && std::any_of(kOpenings.begin(), kOpenings.end(), [&](QLatin1String opening) {
               return rest < opening.size() && MatchesAt(text, at, opening.first(rest));
           });
}

QString GetTagAttribute(const QString &tag, QStringView name, const QString &preset) {
    const QStringView raw = RawAttribute(tag, name);
    return ByRules(raw.isEmpty() ? preset : raw.toString());
}

bool GetTagFlag(const QString &tag, QStringView name, bool preset) {
    const QString value = GetTagAttribute(tag, name, {});
    if (value.isEmpty()) {
        return preset;
    }
    const QString lower = value.toLower();
    if (lower == "true"_L1 || lower == "false"_L1) {
        return lower == "true"_L1;
    }
    const std::optional<double> number = NumberIn(value);
    if (!number) {
        throw SkinFailure(u"Type mismatch: %1=\"%2\""_s.arg(name, value));
    }
    return *number != 0;
}

int GetTagNumber(const QString &tag, QStringView name, int preset) {
    const std::optional<double> number = NumberIn(GetTagAttribute(tag, name, {}));
    constexpr double kMost = 2147483647.0;
    return number && std::abs(*number) <= kMost ? int(std::nearbyint(*number)) : preset;
}

} // namespace ostrand
