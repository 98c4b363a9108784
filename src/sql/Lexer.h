// The tokens of the dialect.
#pragma once

#include <QStringView>

#include <cstdint>

namespace ostrand::sql {

enum class TokenType : std::uint8_t {
    End,
    Bad, ///< begins no token; see Token::fault
    Word,
    Name, ///< in [brackets] or `backquotes`
    Text,
    Integer, ///< a whole number within 32 bits
    Real,
    Date,
    LeftParen,
    RightParen,
    Comma,
    Dot,
    Bang,
    Semicolon,
    Star,
    Plus,
    Minus,
    Slash,
    Backslash,
    Caret,
    Ampersand,
    Equal,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    NotEqual,
};

inline bool IsLiteral(TokenType type) {
    return type >= TokenType::Text && type <= TokenType::Date;
}

enum class LexicalFault : std::uint8_t {
    None,
    StrangeCharacter,
    UnclosedText,
    UnclosedName,
    EmptyName,
    UnclosedDate,
    BadDate,
    BadNumber,
};

/// A token with its place in the text, in UTF-16 units. Delimiters belong to the token.
struct Token {
    qsizetype begin = 0;
    qsizetype end = 0;
    double number = 0; ///< of Integer, Real and Date (a day count)
    TokenType type = TokenType::End;
    LexicalFault fault = LexicalFault::None;
    bool doubled = false; ///< a Text whose content holds doubled quotes
};

/// Cuts a text into tokens. The text must outlive the lexer.
class Lexer {
public:
    explicit Lexer(QStringView text) : text_(text.utf16()), size_(text.size()) {}

    /// The next token. After End and Bad there is none.
    Token Next();

private:
    Token Make(TokenType type, qsizetype end);
    Token Fail(LexicalFault fault, qsizetype end);
    Token Word();
    Token Name(char16_t closing);
    Token Text(char16_t quote);
    Token Date();
    Token Number();
    Token Hexadecimal();
    Token OtherCharacter();
    bool AtWordCharacter(qsizetype place) const;
    qsizetype SkipDigits(qsizetype place) const;
    bool ExpectsOperand() const;

    const char16_t *text_;
    qsizetype size_;
    qsizetype at_ = 0; // start of the token that is being read
    Token previous_;
};

/// What stands between the delimiters of a Name, Text or Date, doubled quotes still doubled.
inline QStringView Content(QStringView text, const Token &token) {
    return text.mid(token.begin + 1, token.end - token.begin - 2);
}

} // namespace ostrand::sql
