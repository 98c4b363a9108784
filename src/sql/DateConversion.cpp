// Dates and times between texts and day counts.

#include "sql/Calendar.h"
#include "sql/Conversion.h"

#include <array>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace ostrand::sql {
namespace {

constexpr int kMaxTokens = 24;

struct Token {
    enum class Kind { Number, Word, Mark };
    Kind kind;
    QStringView text;
    int number = 0;
    bool is_spaced = false; ///< a blank stands in front of it

    bool Is(QChar mark) const { return kind == Kind::Mark && text[0] == mark; }
    bool IsWord(QLatin1String word) const { return kind == Kind::Word && text.compare(word, Qt::CaseInsensitive) == 0; }
};

/// Splits a text into numbers, words and marks; false where a part can belong to no date.
bool Split(QStringView text, std::vector<Token> &tokens) {
    bool is_spaced = false;
    for (qsizetype i = 0; i < text.size();) {
        if (text[i].isSpace()) {
            is_spaced = true;
            ++i;
            continue;
        }
        const qsizetype start = i;
        Token::Kind kind = Token::Kind::Mark;
        if (IsDigit(text[i])) {
            kind = Token::Kind::Number;
            while (i < text.size() && IsDigit(text[i])) {
                ++i;
            }
        } else if (text[i].isLetter()) {
            kind = Token::Kind::Word;
            while (i < text.size() && text[i].isLetter()) {
                ++i;
            }
        } else {
            ++i;
        }
        Token token{kind, text.sliced(start, i - start), 0, is_spaced};
        if (kind == Token::Kind::Number) {
            // Only fractions of a second have more digits, and of those the first few tell.
            token.number = token.text.left(9).toInt();
        }
        tokens.push_back(token);
        is_spaced = false;
        if (tokens.size() > kMaxTokens) {
            return false;
        }
    }
    return !tokens.empty();
}

/// Two digits mean 1930 to 2029.
int FullYear(const Token &token) {
    if (token.text.size() > 2) {
        return token.number;
    }
    return token.number + (token.number < 30 ? 2000 : 1900);
}

class DateReader {
public:
    DateReader(std::vector<Token> tokens, bool dots_are_day_first) :
        tokens_(std::move(tokens)), dots_are_day_first_(dots_are_day_first) {}

    std::optional<double> Read() {
        if (StartsTime()) {
            if (!ReadTime()) {
                return std::nullopt;
            }
            if (!AtEnd() && !ReadDate()) {
                return std::nullopt;
            }
        } else {
            if (!ReadDate()) {
                return std::nullopt;
            }
            const bool before_time =
                !AtEnd() && tokens_[next_].IsWord(QLatin1String("T")) && next_ + 1 < tokens_.size();
            if (before_time || (!AtEnd() && tokens_[next_].Is(u','))) {
                ++next_;
            }
            if (!AtEnd() && !(StartsTime() && ReadTime())) {
                return std::nullopt;
            }
        }
        if (!AtEnd()) {
            return std::nullopt;
        }
        return SecondsToDate(day_ * kSecondsPerDay + seconds_);
    }

private:
    bool AtEnd() const { return next_ == tokens_.size(); }
    bool IsNumber(size_t place) const { return place < tokens_.size() && tokens_[place].kind == Token::Kind::Number; }
    bool IsMark(size_t place, QChar mark) const { return place < tokens_.size() && tokens_[place].Is(mark); }
    bool IsWord(size_t place) const { return place < tokens_.size() && tokens_[place].kind == Token::Kind::Word; }
    bool IsHalfDay(size_t place) const {
        return place < tokens_.size() &&
               (tokens_[place].IsWord(QLatin1String("AM")) || tokens_[place].IsWord(QLatin1String("PM")) ||
                tokens_[place].IsWord(QLatin1String("A")) || tokens_[place].IsWord(QLatin1String("P")));
    }

    bool StartsTime() const { return IsNumber(next_) && (IsMark(next_ + 1, u':') || IsHalfDay(next_ + 1)); }

    /// A number of one or two digits up to a limit.
    bool ReadSmall(int limit, int &number) {
        if (!IsNumber(next_) || tokens_[next_].text.size() > 2 || tokens_[next_].number > limit) {
            return false;
        }
        number = tokens_[next_++].number;
        return true;
    }

    bool ReadTime() {
        int hour = 0;
        int minute = 0;
        int second = 0;
        if (!ReadSmall(23, hour)) {
            return false;
        }
        if (IsMark(next_, u':')) {
            ++next_;
            if (!ReadSmall(59, minute)) {
                return false;
            }
            if (IsMark(next_, u':')) {
                ++next_;
                if (!ReadSmall(59, second)) {
                    return false;
                }
                ReadFraction(second);
            }
        }
        if (IsHalfDay(next_)) {
            if (hour > 12) {
                return false;
            }
            const bool is_afternoon = tokens_[next_].text[0].toLower() == u'p';
            hour = hour % 12 + (is_afternoon ? 12 : 0);
            ++next_;
        }
        seconds_ = (hour * 60 + minute) * 60 + second;
        return true;
    }

    void ReadFraction(int &second) {
        if (IsMark(next_, u'.') && IsNumber(next_ + 1) && !tokens_[next_ + 1].is_spaced) {
            second += tokens_[next_ + 1].text[0] >= u'5' ? 1 : 0;
            next_ += 2;
        }
    }

    bool ReadDate() {
        if (IsWord(next_) && FindWeekday(tokens_[next_].text)) {
            next_ += IsMark(next_ + 1, u',') ? 2 : 1;
        }
        if (IsWord(next_)) {
            return ReadMonthFirst();
        }
        if (!IsNumber(next_)) {
            return false;
        }
        size_t after = next_ + 1;
        after += IsMark(after, u'-') || IsMark(after, u'/') || IsMark(after, u'.') ? 1 : 0;
        if (IsWord(after) && FindMonth(tokens_[after].text)) {
            return ReadNumberThenMonth(after);
        }
        return ReadNumbers();
    }

    void SkipSeparator() {
        if (IsMark(next_, u'-') || IsMark(next_, u'/') || IsMark(next_, u',') || IsMark(next_, u'.')) {
            ++next_;
        }
    }

    /// November 23, 2009; Nov 2009
    bool ReadMonthFirst() {
        const std::optional<int> month = FindMonth(tokens_[next_].text);
        if (!month) {
            return false;
        }
        ++next_;
        SkipSeparator();
        if (!IsNumber(next_)) {
            return false;
        }
        const Token first = tokens_[next_++];
        if (first.text.size() > 2) {
            return SetDay(first.number, *month, 1);
        }
        const size_t before_separator = next_;
        SkipSeparator();
        if (!IsNumber(next_) || StartsTime()) {
            next_ = before_separator;
            return false;
        }
        return SetDay(FullYear(tokens_[next_++]), *month, first.number);
    }

    /// 23-Nov-2009, 2009 Nov 23
    bool ReadNumberThenMonth(size_t month_place) {
        const Token first = tokens_[next_];
        const int month = *FindMonth(tokens_[month_place].text);
        next_ = month_place + 1;
        SkipSeparator();
        if (!IsNumber(next_) || StartsTime()) {
            return false;
        }
        const Token second = tokens_[next_++];
        if (first.text.size() > 2) {
            return second.text.size() <= 2 && SetDay(first.number, month, second.number);
        }
        return SetDay(FullYear(second), month, first.number);
    }

    bool ReadNumbers() {
        const Token first = tokens_[next_];
        const QChar separator = next_ + 1 < tokens_.size() ? tokens_[next_ + 1].text[0] : QChar();
        if (separator != u'-' && separator != u'/' && separator != u'.') {
            return false;
        }
        if (!IsNumber(next_ + 2)) {
            return false;
        }
        const Token second = tokens_[next_ + 2];
        if (!IsMark(next_ + 3, separator)) {
            next_ += 3;
            // m/yyyy, yyyy-m
            if (second.text.size() == 4 && first.text.size() <= 2 && separator != u'.') {
                return SetDay(second.number, first.number, 1);
            }
            return first.text.size() == 4 && second.text.size() <= 2 && SetDay(first.number, second.number, 1);
        }
        if (!IsNumber(next_ + 4)) {
            return false;
        }
        const Token third = tokens_[next_ + 4];
        next_ += 5;
        if (first.text.size() > 2 || first.number > 31) {
            return third.text.size() <= 2 && SetDay(FullYear(first), second.number, third.number);
        }
        const bool day_first = separator == u'.' && dots_are_day_first_;
        const int month = day_first ? second.number : first.number;
        const int day = day_first ? first.number : second.number;
        return month > 12 ? SetDay(FullYear(third), day, month) : SetDay(FullYear(third), month, day);
    }

    bool SetDay(int year, int month, int day) {
        if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month)) {
            return false;
        }
        day_ = DayNumber(year, month, day);
        return true;
    }

    std::vector<Token> tokens_;
    bool dots_are_day_first_;
    size_t next_ = 0;
    qint64 day_ = 0;
    qint64 seconds_ = 0;
};

std::optional<double> ReadDateText(QStringView text, bool dots_are_day_first) {
    std::vector<Token> tokens;
    if (!Split(text, tokens)) {
        return std::nullopt;
    }
    const std::optional<double> date = DateReader(std::move(tokens), dots_are_day_first).Read();
    return date && IsDateInRange(*date) ? date : std::nullopt;
}

/// The number has no more digits than the width.
void AppendPadded(QString &text, int number, int width) {
    std::array<char16_t, 4> digits;
    for (int place = width; place-- > 0; number /= 10) {
        digits[size_t(place)] = char16_t(u'0' + number % 10);
    }
    text.append(QStringView(digits.data(), width));
}

QString DayText(const DateParts &parts) {
    QString text;
    text.reserve(10);
    AppendPadded(text, parts.year, 4);
    text.append(u'-');
    AppendPadded(text, parts.month, 2);
    text.append(u'-');
    AppendPadded(text, parts.day, 2);
    return text;
}

QString TimeText(const DateParts &parts) {
    QString text;
    AppendPadded(text, parts.hour, 2);
    text.append(u':');
    AppendPadded(text, parts.minute, 2);
    text.append(u':');
    AppendPadded(text, parts.second, 2);
    return text;
}

} // namespace

std::optional<double> TextToDate(QStringView text, QChar decimal_mark) {
    if (const std::optional<double> number = TextToNumber(text, decimal_mark)) {
        return IsDateInRange(*number) ? number : std::nullopt;
    }
    return ReadDateText(text, true);
}

std::optional<double> DateLiteral(QStringView text) {
    return ReadDateText(text, false);
}

QString DateToIso(double date) {
    const DateParts parts = SplitDate(date);
    return DayText(parts) + u' ' + TimeText(parts);
}

QString DateToText(double date) {
    const DateParts parts = SplitDate(date);
    const bool has_time = parts.hour != 0 || parts.minute != 0 || parts.second != 0;
    return has_time ? DayText(parts) + u' ' + TimeText(parts) : DayText(parts);
}

DateParts SplitDate(double date) {
    const qint64 seconds = DateToSeconds(date);
    qint64 day = seconds / kSecondsPerDay;
    qint64 time = seconds % kSecondsPerDay;
    if (time < 0) {
        time += kSecondsPerDay;
        --day;
    }
    const CalendarDay calendar = SplitDay(day);
    return {calendar.year, calendar.month, calendar.day, int(time / 3600), int(time / 60 % 60), int(time % 60)};
}

double JoinDate(int year, int month, int day, int hour, int minute, int second) {
    const qint64 time = (qint64(hour) * 60 + minute) * 60 + second;
    return SecondsToDate(DayNumber(year, month, day) * kSecondsPerDay + time);
}

} // namespace ostrand::sql
