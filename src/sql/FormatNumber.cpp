// Patterns of numbers.

#include "sql/Conversion.h"
#include "sql/Decimal.h"
#include "sql/Format.h"

#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

// More places than any number has digits.
constexpr int kMostPlaces = 400;

struct NumberPiece {
    enum class Kind { Literal, Digit, Point, Exponent };
    Kind kind;
    QString text;         ///< of a literal
    bool is_zero = false; ///< of a digit: 0, not #
    int width = 0;        ///< of an exponent: its least digits
    bool has_plus = false;
};

struct Section {
    std::vector<NumberPiece> pieces;
    int integer_places = 0;
    int fraction_places = 0;
    int first_zero = -1; ///< the place of the first 0 in front of the decimal mark
    int shift = 0;       ///< powers of ten, of percent signs and of commas behind the digits
    bool has_point = false;
    bool has_exponent = false;
    bool is_grouped = false;
};

class SectionReader {
public:
    explicit SectionReader(QStringView text) : text_(text) {}

    Section Read() {
        while (next_ < text_.size()) {
            ReadPiece();
        }
        EndCommas();
        return std::move(section_);
    }

private:
    void ReadPiece() {
        const QChar unit = text_[next_];
        if (unit == u'0' || unit == u'#') {
            AddDigit(unit == u'0');
        } else if (unit == u'.' && !section_.has_point) {
            EndCommas();
            section_.has_point = true;
            section_.pieces.push_back({NumberPiece::Kind::Point, {}});
        } else if (unit == u',') {
            ++commas_;
        } else if (unit == u'%') {
            section_.shift += 2;
            AddLiteral(u"%");
        } else if (IsExponent()) {
            return ReadExponent();
        } else if (unit == u'\\') {
            AddLiteral(text_.sliced(next_ + 1).left(1));
            ++next_;
        } else if (unit == u'"') {
            const qsizetype end = text_.indexOf(u'"', next_ + 1);
            const qsizetype stop = end < 0 ? text_.size() : end;
            AddLiteral(text_.sliced(next_ + 1, stop - next_ - 1));
            next_ = stop;
        } else {
            AddLiteral(text_.sliced(next_, 1));
        }
        ++next_;
    }

    void AddDigit(bool is_zero) {
        if (!section_.has_exponent) {
            int &places = section_.has_point ? section_.fraction_places : section_.integer_places;
            if (places >= kMostPlaces) {
                return;
            }
            if (!section_.has_point) {
                section_.is_grouped = section_.is_grouped || (commas_ > 0 && places > 0);
                section_.first_zero = section_.first_zero < 0 && is_zero ? places : section_.first_zero;
            }
            commas_ = 0;
            ++places;
            section_.pieces.push_back({NumberPiece::Kind::Digit, {}, is_zero});
        }
    }

    /// Commas behind the last digit in front of the decimal mark divide by a thousand each.
    void EndCommas() {
        if (!section_.has_point && section_.integer_places > 0) {
            section_.shift -= 3 * std::min(commas_, 100);
        }
        commas_ = 0;
    }

    bool IsExponent() const {
        const bool is_mark = text_[next_].toLower() == u'e' && next_ + 1 < text_.size() &&
                             (text_[next_ + 1] == u'+' || text_[next_ + 1] == u'-');
        return is_mark && !section_.has_exponent && section_.integer_places + section_.fraction_places > 0;
    }

    void ReadExponent() {
        EndCommas();
        NumberPiece piece{NumberPiece::Kind::Exponent, text_.sliced(next_, 1).toString()};
        piece.has_plus = text_[next_ + 1] == u'+';
        next_ += 2;
        for (; next_ < text_.size() && (text_[next_] == u'0' || text_[next_] == u'#'); ++next_) {
            piece.width = std::min(piece.width + 1, kMostPlaces);
        }
        section_.has_exponent = true;
        section_.pieces.push_back(piece);
    }

    void AddLiteral(QStringView text) { section_.pieces.push_back({NumberPiece::Kind::Literal, text.toString()}); }

    QStringView text_;
    qsizetype next_ = 0;
    int commas_ = 0;
    Section section_;
};

class SectionWriter {
public:
    SectionWriter(const Section &section, Decimal number, QChar decimal_mark) :
        section_(section), number_(std::move(number)), decimal_mark_(decimal_mark) {}

    QString Write() {
        Scale();
        integer_ = number_.IntegerDigits();
        fraction_ = number_.FractionDigits(section_.fraction_places);
        bool is_fraction = false;
        int place = 0;
        for (const NumberPiece &piece : section_.pieces) {
            switch (piece.kind) {
            case NumberPiece::Kind::Literal:
                result_.append(piece.text);
                break;
            case NumberPiece::Kind::Point:
                WriteLeadingDigits();
                result_.append(decimal_mark_);
                is_fraction = true;
                place = 0;
                break;
            case NumberPiece::Kind::Digit:
                if (is_fraction) {
                    WriteFractionDigit(place++, piece.is_zero);
                } else {
                    WriteIntegerDigit(place++);
                }
                break;
            case NumberPiece::Kind::Exponent:
                WriteExponent(piece);
                break;
            }
        }
        return result_;
    }

    bool IsZero() const { return number_.IsZero(); }

private:
    void Scale() {
        if (number_.IsZero()) {
            return;
        }
        number_.point += section_.shift;
        if (section_.has_exponent) {
            const int places = std::max(section_.integer_places, 1);
            exponent_ = number_.point - places;
            number_.point = places;
            number_.RoundTo(section_.fraction_places);
            exponent_ += number_.point - places;
            number_.point = places;
        }
        number_.RoundTo(section_.fraction_places);
    }

    /// ".00" has no place in front of the decimal mark, yet the digits are there.
    void WriteLeadingDigits() {
        if (section_.integer_places == 0) {
            result_.append(QString::fromLatin1(integer_));
        }
    }

    void WriteDigitFromRight(qsizetype from_right) {
        result_.append(QLatin1Char(integer_[integer_.size() - 1 - from_right]));
        WriteGroupMark(from_right);
    }

    void WriteGroupMark(qsizetype from_right) {
        if (section_.is_grouped && from_right > 0 && from_right % 3 == 0) {
            result_.append(decimal_mark_ == u',' ? u'.' : u',');
        }
    }

    void WriteIntegerDigit(int place) {
        const int from_right = section_.integer_places - 1 - place;
        if (place == 0) {
            for (qsizetype i = integer_.size() - 1; i > from_right; --i) {
                WriteDigitFromRight(i);
            }
        }
        if (from_right < integer_.size()) {
            WriteDigitFromRight(from_right);
        } else if (section_.first_zero >= 0 && place >= section_.first_zero) {
            result_.append(u'0');
            WriteGroupMark(from_right);
        }
    }

    void WriteFractionDigit(int place, bool is_zero) {
        const bool has_more = std::any_of(fraction_.begin() + place, fraction_.end(), [](char c) { return c != '0'; });
        if (is_zero || has_more) {
            result_.append(QLatin1Char(fraction_[place]));
        }
    }

    void WriteExponent(const NumberPiece &piece) {
        result_.append(piece.text);
        if (exponent_ < 0) {
            result_.append(u'-');
        } else if (piece.has_plus) {
            result_.append(u'+');
        }
        result_.append(QString::number(std::abs(exponent_)).rightJustified(std::max(piece.width, 1), u'0'));
    }

    const Section &section_;
    Decimal number_;
    QChar decimal_mark_;
    QByteArray integer_;
    QByteArray fraction_;
    QString result_;
    int exponent_ = 0;
};

/// Cuts a pattern at its semicolons, but not within quotes or behind a backslash.
std::vector<QStringView> SplitSections(QStringView pattern) {
    std::vector<QStringView> sections;
    qsizetype start = 0;
    bool is_quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == u'"') {
            is_quoted = !is_quoted;
        } else if (pattern[i] == u'\\') {
            ++i;
        } else if (pattern[i] == u';' && !is_quoted) {
            sections.push_back(pattern.sliced(start, i - start));
            start = i + 1;
        }
    }
    sections.push_back(pattern.sliced(start));
    return sections;
}

QString FormatBySections(double number, const std::vector<QStringView> &sections, QChar decimal_mark) {
    const auto has = [&](size_t index) { return index < sections.size() && !sections[index].isEmpty(); };
    const bool is_own_negative = number < 0 && has(1);
    const size_t index = number == 0 && has(2) ? 2 : is_own_negative ? 1 : 0;
    const Section section = SectionReader(sections[index]).Read();
    SectionWriter writer(section, Decimal::From(number), decimal_mark);
    const QString text = writer.Write();
    const bool needs_sign = number < 0 && !is_own_negative && !writer.IsZero();
    return needs_sign ? QString(u'-' + text) : text;
}

bool IsName(QStringView text, const char *name) {
    return text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

} // namespace

QString NamedNumberPattern(QStringView name) {
    static constexpr std::pair<const char *, const char *> kNames[] = {
        {"general number", "General Number"},
        {"currency", "$#,##0.00;($#,##0.00)"},
        {"fixed", "0.00"},
        {"standard", "#,##0.00"},
        {"percent", "0.00%"},
        {"scientific", "0.00E+00"},
        {"yes/no", "\"Yes\";\"Yes\";\"No\""},
        {"true/false", "\"True\";\"True\";\"False\""},
        {"on/off", "\"On\";\"On\";\"Off\""},
    };
    for (const auto &[known, pattern] : kNames) {
        if (IsName(name, known)) {
            return QString::fromLatin1(pattern);
        }
    }
    return {};
}

QString FormatNumber(double number, QStringView pattern, QChar decimal_mark) {
    const QString named = NamedNumberPattern(pattern);
    if (!std::isfinite(number) || pattern.isEmpty() || named == u"General Number"_s) {
        return NumberToText(number, decimal_mark);
    }
    return FormatBySections(number, SplitSections(named.isEmpty() ? pattern : QStringView(named)), decimal_mark);
}

QString FormatStyled(double number, const NumberStyle &style, QChar decimal_mark) {
    if (!std::isfinite(number)) {
        return NumberToText(number, decimal_mark);
    }
    QString pattern = style.is_grouped ? u"#,##"_s : QString();
    pattern.append(style.has_leading_zero ? u'0' : u'#');
    if (style.places > 0) {
        pattern.append(u'.').append(QString(style.places, u'0'));
    }
    Decimal rounded = Decimal::From(number);
    rounded.RoundTo(style.places);
    const bool is_negative = number < 0 && !rounded.IsZero();
    const QString digits = style.prefix + FormatNumber(std::fabs(number), pattern, decimal_mark) + style.suffix;
    if (!is_negative) {
        return digits;
    }
    return style.has_brackets ? QString(u'(' + digits + u')') : QString(u'-' + digits);
}

} // namespace ostrand::sql
