#include "sql/Lexer.h"

#include "sql/Conversion.h"
#include "sql/Keywords.h"

#include <QVarLengthArray>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace ostrand::sql {

namespace {

enum class CharClass : std::uint8_t { Other, Blank, Letter, Digit, Symbol, Special };

struct CharTables {
    std::array<CharClass, 128> classes{};
    std::array<TokenType, 128> symbols{};

    constexpr CharTables() {
        for (const char c : {' ', '\t', '\n', '\v', '\f', '\r'}) {
            classes[static_cast<unsigned char>(c)] = CharClass::Blank;
        }
        for (std::size_t i = 0; i < 26; ++i) {
            classes['a' + i] = classes['A' + i] = CharClass::Letter;
        }
        classes['_'] = CharClass::Letter;
        for (std::size_t i = 0; i < 10; ++i) {
            classes['0' + i] = CharClass::Digit;
        }
        for (const char c : {'\'', '"', '[', '`', '#', '.', '&', '<', '>'}) {
            classes[static_cast<unsigned char>(c)] = CharClass::Special;
        }
        AddSymbol('(', TokenType::LeftParen);
        AddSymbol(')', TokenType::RightParen);
        AddSymbol(',', TokenType::Comma);
        AddSymbol('!', TokenType::Bang);
        AddSymbol(';', TokenType::Semicolon);
        AddSymbol('*', TokenType::Star);
        AddSymbol('+', TokenType::Plus);
        AddSymbol('-', TokenType::Minus);
        AddSymbol('/', TokenType::Slash);
        AddSymbol('\\', TokenType::Backslash);
        AddSymbol('^', TokenType::Caret);
        AddSymbol('=', TokenType::Equal);
    }

    constexpr void AddSymbol(char c, TokenType type) {
        classes[static_cast<unsigned char>(c)] = CharClass::Symbol;
        symbols[static_cast<unsigned char>(c)] = type;
    }
};

constexpr CharTables kTables;

CharClass ClassOf(char16_t c) {
    if (c < 128) {
        return kTables.classes[c];
    }
    const QChar wide(c);
    if (wide.isLetterOrNumber() || wide.isMark() || wide.isSurrogate()) {
        return CharClass::Letter;
    }
    return wide.isSpace() ? CharClass::Blank : CharClass::Other;
}

bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

int HexDigit(char16_t c) {
    if (IsDigit(c)) {
        return c - u'0';
    }
    const char16_t lower = c | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

bool FitsInteger(double number) {
    return number <= double(std::numeric_limits<std::int32_t>::max());
}

} // namespace

Token Lexer::Next() {
    while (at_ < size_ && ClassOf(text_[at_]) == CharClass::Blank) {
        ++at_;
    }
    if (at_ >= size_) {
        return Make(TokenType::End, size_);
    }
    const char16_t c = text_[at_];
    switch (ClassOf(c)) {
    case CharClass::Letter:
        return Word();
    case CharClass::Symbol:
        return Make(kTables.symbols[c], at_ + 1);
    case CharClass::Digit:
        return Number();
    default:
        return OtherCharacter();
    }
}

Token Lexer::OtherCharacter() {
    const char16_t c = text_[at_];
    const char16_t next = at_ + 1 < size_ ? text_[at_ + 1] : u'\0';
    switch (c) {
    case u'\'':
    case u'"':
        return Text(c);
    case u'[':
        return Name(u']');
    case u'`':
        return Name(u'`');
    case u'#':
        return Date();
    case u'.':
        return IsDigit(next) ? Number() : Make(TokenType::Dot, at_ + 1);
    case u'&':
        return (next | 0x20) == u'h' ? Hexadecimal() : Make(TokenType::Ampersand, at_ + 1);
    case u'<':
        return next == u'='   ? Make(TokenType::LessEqual, at_ + 2)
               : next == u'>' ? Make(TokenType::NotEqual, at_ + 2)
                              : Make(TokenType::Less, at_ + 1);
    case u'>':
        return next == u'=' ? Make(TokenType::GreaterEqual, at_ + 2) : Make(TokenType::Greater, at_ + 1);
    default:
        return Fail(LexicalFault::StrangeCharacter, at_ + 1);
    }
}

Token Lexer::Make(TokenType type, qsizetype end) {
    Token token;
    token.type = type;
    token.begin = at_;
    token.end = end;
    at_ = end;
    previous_ = token;
    return token;
}

Token Lexer::Fail(LexicalFault fault, qsizetype end) {
    Token token = Make(TokenType::Bad, end);
    token.fault = fault;
    at_ = size_;
    return token;
}

bool Lexer::AtWordCharacter(qsizetype place) const {
    if (place >= size_) {
        return false;
    }
    const CharClass kind = ClassOf(text_[place]);
    return kind == CharClass::Letter || kind == CharClass::Digit;
}

qsizetype Lexer::SkipDigits(qsizetype place) const {
    while (place < size_ && IsDigit(text_[place])) {
        ++place;
    }
    return place;
}

Token Lexer::Word() {
    qsizetype end = at_ + 1;
    while (AtWordCharacter(end)) {
        ++end;
    }
    if (end < size_ && text_[end] == u'$') {
        ++end;
        if (AtWordCharacter(end)) {
            return Fail(LexicalFault::StrangeCharacter, end);
        }
    }
    return Make(TokenType::Word, end);
}

Token Lexer::Name(char16_t closing) {
    const qsizetype end = QStringView(text_, size_).indexOf(QChar(closing), at_ + 1);
    if (end < 0) {
        return Fail(LexicalFault::UnclosedName, size_);
    }
    if (QStringView(text_ + at_, end - at_).contains(QChar(0))) {
        return Fail(LexicalFault::StrangeCharacter, end + 1);
    }
    return end == at_ + 1 ? Fail(LexicalFault::EmptyName, end + 1) : Make(TokenType::Name, end + 1);
}

Token Lexer::Text(char16_t quote) {
    const QStringView text(text_, size_);
    bool doubled = false;
    qsizetype end = text.indexOf(QChar(quote), at_ + 1);
    while (end >= 0 && end + 1 < size_ && text_[end + 1] == quote) {
        doubled = true;
        end = text.indexOf(QChar(quote), end + 2);
    }
    if (end < 0) {
        return Fail(LexicalFault::UnclosedText, size_);
    }
    Token token = Make(TokenType::Text, end + 1);
    token.doubled = doubled;
    return token;
}

Token Lexer::Date() {
    const QStringView text(text_, size_);
    const qsizetype end = text.indexOf(u'#', at_ + 1);
    if (end < 0) {
        return Fail(LexicalFault::UnclosedDate, size_);
    }
    const std::optional<double> date = DateLiteral(text.mid(at_ + 1, end - at_ - 1));
    if (!date) {
        return Fail(LexicalFault::BadDate, end + 1);
    }
    Token token = Make(TokenType::Date, end + 1);
    token.number = *date;
    return token;
}

Token Lexer::Number() {
    qsizetype end = SkipDigits(at_);
    const bool whole = end >= size_ || (text_[end] != u'.' && (text_[end] | 0x20) != u'e');
    if (!whole) {
        if (text_[end] == u'.') {
            end = SkipDigits(end + 1);
        }
        if (end < size_ && (text_[end] | 0x20) == u'e') {
            const bool sign = end + 1 < size_ && (text_[end + 1] == u'+' || text_[end + 1] == u'-');
            const qsizetype exponent = end + (sign ? 2 : 1);
            end = SkipDigits(exponent);
            if (end == exponent) {
                return Fail(LexicalFault::BadNumber, end);
            }
        }
    }
    if (AtWordCharacter(end)) {
        return Fail(LexicalFault::BadNumber, end + 1);
    }
    double number = 0;
    if (whole && end - at_ <= 15) { // exact in a double
        for (qsizetype i = at_; i < end; ++i) {
            number = number * 10 + (text_[i] - u'0');
        }
    } else {
        QVarLengthArray<char, 64> narrow(end - at_);
        std::copy(text_ + at_, text_ + end, narrow.begin());
        if (std::from_chars(narrow.begin(), narrow.end(), number).ec != std::errc()) {
            return Fail(LexicalFault::BadNumber, end);
        }
    }
    Token token = Make(whole && FitsInteger(number) ? TokenType::Integer : TokenType::Real, end);
    token.number = number;
    return token;
}

Token Lexer::Hexadecimal() {
    constexpr qsizetype kMostDigits = 8;
    const qsizetype digits = at_ + 2;
    qsizetype end = digits;
    double number = 0;
    while (end < size_ && HexDigit(text_[end]) >= 0) {
        number = number * 16 + HexDigit(text_[end]);
        ++end;
    }
    if (end == digits || !ExpectsOperand()) {
        return Make(TokenType::Ampersand, at_ + 1);
    }
    if (end - digits > kMostDigits || AtWordCharacter(end)) {
        return Fail(LexicalFault::BadNumber, end);
    }
    Token token = Make(FitsInteger(number) ? TokenType::Integer : TokenType::Real, end);
    token.number = number;
    return token;
}

bool Lexer::ExpectsOperand() const {
    switch (previous_.type) {
    case TokenType::Word:
        return IsReserved(FindKeyword(QStringView(text_ + previous_.begin, previous_.end - previous_.begin)));
    case TokenType::Name:
    case TokenType::Text:
    case TokenType::Integer:
    case TokenType::Real:
    case TokenType::Date:
    case TokenType::RightParen:
        return false;
    default:
        return true;
    }
}

} // namespace ostrand::sql
