#include "sql/Shape.h"

#include "sql/Lexer.h"

#include <cstring>

namespace ostrand::sql {

namespace {

// Characters that begin no token stand for the literals and for the operators of two characters: "< =" is not "<=".
constexpr char16_t kTextMark = u'\x01';
constexpr char16_t kIntegerMark = u'\x02';
constexpr char16_t kRealMark = u'\x03';
constexpr char16_t kDateMark = u'\x04';
constexpr char16_t kLessEqualMark = u'\x05';
constexpr char16_t kGreaterEqualMark = u'\x06';
constexpr char16_t kNotEqualMark = u'\x07';

/// A letter that folds to one of ASCII (the Kelvin sign) stays: no keyword is spelled with it.
char16_t Fold(char16_t c) {
    const char16_t folded = QChar(c).toCaseFolded().unicode();
    return folded < 128 ? c : folded;
}

/// Writes a key. No token takes more room in the key than in the text: a blank is written only between two words,
/// and there stands one in the text.
class KeyWriter {
public:
    KeyWriter(QString &key, qsizetype room) : key_(key) {
        key_.resize(room);
        start_ = at_ = reinterpret_cast<char16_t *>(key_.data());
    }

    void Put(char16_t c) {
        *at_++ = c;
        after_word_ = false;
    }
    void PutVerbatim(const char16_t *begin, qsizetype size) {
        std::memcpy(at_, begin, std::size_t(size) * sizeof(char16_t));
        at_ += size;
        after_word_ = false;
    }
    void PutWord(const char16_t *begin, const char16_t *end) {
        if (after_word_) {
            *at_++ = u' ';
        }
        for (; begin < end; ++begin) {
            const char16_t c = *begin;
            if (c >= u'A' && c <= u'Z') {
                *at_++ = c | 0x20;
            } else {
                *at_++ = c < 128 ? c : Fold(c);
            }
        }
        after_word_ = true;
    }
    void DropLast() { --at_; }
    void Finish() { key_.resize(at_ - start_); }

private:
    QString &key_;
    char16_t *start_;
    char16_t *at_;
    bool after_word_ = false;
};

void Assign(QString &target, QStringView source) {
    target.resize(source.size());
    std::memcpy(target.data(), source.utf16(), std::size_t(source.size()) * sizeof(char16_t));
}

void AssignUndoubled(QString &target, QStringView source, QChar quote) {
    target.resize(source.size());
    QChar *out = target.data();
    for (qsizetype i = 0; i < source.size(); ++i) {
        *out++ = source[i];
        if (source[i] == quote) {
            ++i;
        }
    }
    target.resize(out - target.constData());
}

Kind KindOf(TokenType type) {
    switch (type) {
    case TokenType::Text:
        return Kind::Text;
    case TokenType::Integer:
        return Kind::Integer;
    case TokenType::Real:
        return Kind::Real;
    default:
        return Kind::Date;
    }
}

char16_t MarkOf(TokenType type) {
    switch (type) {
    case TokenType::Text:
        return kTextMark;
    case TokenType::Integer:
        return kIntegerMark;
    case TokenType::Real:
        return kRealMark;
    default:
        return kDateMark;
    }
}

void ReadLiteral(LiteralToken &literal, QStringView text, const Token &token) {
    literal.kind = KindOf(token.type);
    literal.number = token.number;
    if (token.type != TokenType::Text) {
        Assign(literal.text, text.mid(token.begin, token.end - token.begin));
    } else if (token.doubled) {
        AssignUndoubled(literal.text, Content(text, token), text[token.begin]);
    } else {
        Assign(literal.text, Content(text, token));
    }
}

} // namespace

bool ScanShape(QStringView text, Shape &shape) {
    KeyWriter key(shape.key, text.size());
    std::size_t count = 0;
    bool after_semicolon = false;
    bool good = true;
    Lexer lexer(text);
    for (Token token = lexer.Next(); token.type != TokenType::End; token = lexer.Next()) {
        after_semicolon = token.type == TokenType::Semicolon;
        switch (token.type) {
        case TokenType::Bad:
            good = false;
            break;
        case TokenType::Word:
            key.PutWord(text.utf16() + token.begin, text.utf16() + token.end);
            break;
        case TokenType::Name:
            key.PutVerbatim(text.utf16() + token.begin, token.end - token.begin);
            break;
        case TokenType::Text:
        case TokenType::Integer:
        case TokenType::Real:
        case TokenType::Date:
            key.Put(MarkOf(token.type));
            if (count == shape.literals.size()) {
                shape.literals.emplace_back();
            }
            ReadLiteral(shape.literals[count++], text, token);
            break;
        case TokenType::LessEqual:
            key.Put(kLessEqualMark);
            break;
        case TokenType::GreaterEqual:
            key.Put(kGreaterEqualMark);
            break;
        case TokenType::NotEqual:
            key.Put(kNotEqualMark);
            break;
        default:
            key.Put(text.utf16()[token.begin]);
            break;
        }
    }
    if (after_semicolon) {
        key.DropLast();
    }
    key.Finish();
    shape.literals.resize(count);
    return good;
}

} // namespace ostrand::sql
