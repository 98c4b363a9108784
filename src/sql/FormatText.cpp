// Patterns of texts.

#include "sql/CaseFold.h"
#include "sql/Format.h"

#include <vector>

namespace ostrand::sql {
namespace {

struct TextPiece {
    bool is_place = false; ///< @ or &, else a literal
    bool is_blank_filled = false;
    QString literal;
};

struct TextPattern {
    std::vector<TextPiece> pieces;
    qsizetype places = 0;
    bool is_small = false;
    bool is_capital = false;
    bool fills_from_left = false;
};

TextPattern Read(QStringView pattern) {
    TextPattern result;
    const auto add_literal = [&](QStringView text) { result.pieces.push_back({false, false, text.toString()}); };
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar unit = pattern[i];
        if (unit == u'@' || unit == u'&') {
            result.pieces.push_back({true, unit == u'@', {}});
            ++result.places;
        } else if (unit == u'<') {
            result.is_small = true;
        } else if (unit == u'>') {
            result.is_capital = true;
        } else if (unit == u'!') {
            result.fills_from_left = true;
        } else if (unit == u'\\') {
            add_literal(pattern.sliced(i + 1).left(1));
            ++i;
        } else if (unit == u'"') {
            const qsizetype end = pattern.indexOf(u'"', i + 1);
            const qsizetype stop = end < 0 ? pattern.size() : end;
            add_literal(pattern.sliced(i + 1, stop - i - 1));
            i = stop;
        } else {
            add_literal(pattern.sliced(i, 1));
        }
    }
    return result;
}

/// Puts the characters into the places; those too many stand at the first place, or behind the last when the places
/// are filled from the left.
QString Fill(const TextPattern &pattern, const QString &text) {
    const qsizetype spare = pattern.places - text.size();
    const qsizetype empty_in_front = pattern.fills_from_left ? 0 : std::max<qsizetype>(spare, 0);
    QString result;
    qsizetype next = 0;
    qsizetype place = 0;
    for (const TextPiece &piece : pattern.pieces) {
        if (!piece.is_place) {
            result.append(piece.literal);
            continue;
        }
        if (place == 0 && spare < 0 && !pattern.fills_from_left) {
            result.append(QStringView(text).left(-spare));
            next = -spare;
        }
        if (place >= empty_in_front && next < text.size()) {
            result.append(text[next++]);
        } else if (piece.is_blank_filled) {
            result.append(u' ');
        }
        ++place;
    }
    result.append(QStringView(text).sliced(next));
    return result;
}

qsizetype SectionEnd(QStringView pattern) {
    bool is_quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == u'"') {
            is_quoted = !is_quoted;
        } else if (pattern[i] == u'\\') {
            ++i;
        } else if (pattern[i] == u';' && !is_quoted) {
            return i;
        }
    }
    return pattern.size();
}

} // namespace

QString FormatText(QStringView text, QStringView pattern) {
    const qsizetype end = SectionEnd(pattern);
    const bool has_second = end < pattern.size();
    const TextPattern read = Read(text.isEmpty() && has_second ? pattern.sliced(end + 1) : pattern.left(end));
    QString cased = text.toString();
    if (read.is_small) {
        cased = ToLower(cased);
    } else if (read.is_capital) {
        cased = ToUpper(cased);
    }
    return Fill(read, cased);
}

} // namespace ostrand::sql
