#include "sql/Lexer.h"

#include <gtest/gtest.h>

#include <string>

namespace ostrand::sql {

namespace {

/// Every token as a letter for its type and its text in <>; faults as "!n".
std::string Tokens(const QString &text) {
    std::string result;
    Lexer lexer(text);
    while (true) {
        const Token token = lexer.Next();
        const std::string content = text.mid(token.begin, token.end - token.begin).toStdString();
        switch (token.type) {
        case TokenType::End:
            return result;
        case TokenType::Bad:
            return result + "!" + std::to_string(int(token.fault));
        case TokenType::Word:
            result += "w<" + content + ">";
            break;
        case TokenType::Name:
            result += "n<" + content + ">";
            break;
        case TokenType::Text:
            result += (token.doubled ? "T<" : "t<") + content + ">";
            break;
        case TokenType::Integer:
            result += "i<" + std::to_string(qint64(token.number)) + ">";
            break;
        case TokenType::Real:
            result += "r<" + QString::number(token.number).toStdString() + ">";
            break;
        case TokenType::Date:
            result += "d<" + QString::number(token.number).toStdString() + ">";
            break;
        default:
            result += content;
            break;
        }
    }
}

std::string Fault(LexicalFault fault) {
    return "!" + std::to_string(int(fault));
}

struct Case {
    const char *text;
    std::string tokens;
};

class LexerTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(LexerTest, CutsTheText) {
    EXPECT_EQ(Tokens(QString::fromUtf8(GetParam().text)), GetParam().tokens) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Words, LexerTest,
    testing::Values(Case{"", ""}, Case{" \t\r\n\v\f", ""}, Case{"Title", "w<Title>"}, Case{"_a1 B", "w<_a1>w<B>"},
                    Case{"Left$('x',1)", "w<Left$>(t<'x'>,i<1>)"}, Case{"Größe Naïve", "w<Größe>w<Naïve>"},
                    Case{"a$b", Fault(LexicalFault::StrangeCharacter)}, Case{"a\u00a0b", "w<a>w<b>"},
                    Case{"[A name] `b c`", "n<[A name]>n<`b c`>"}, Case{"[a]![b]", "n<[a]>!n<[b]>"},
                    Case{"[]", Fault(LexicalFault::EmptyName)}, Case{"``", Fault(LexicalFault::EmptyName)},
                    Case{"[a", Fault(LexicalFault::UnclosedName)}, Case{"`a", Fault(LexicalFault::UnclosedName)}));

INSTANTIATE_TEST_SUITE_P(Texts, LexerTest,
                         testing::Values(Case{"'a'", "t<'a'>"}, Case{"''", "t<''>"}, Case{"'Ann''s'", "T<'Ann''s'>"},
                                         Case{"''''", "T<''''>"}, Case{"\"a\"\"b\"", "T<\"a\"\"b\">"},
                                         Case{"'a\"b'", "t<'a\"b'>"}, Case{"'Key_1'AND", "t<'Key_1'>w<AND>"},
                                         Case{"'a\nb'", "t<'a\nb'>"}, Case{"'a", Fault(LexicalFault::UnclosedText)},
                                         Case{"'a''", Fault(LexicalFault::UnclosedText)},
                                         Case{"\"a'", Fault(LexicalFault::UnclosedText)},
                                         Case{"'", Fault(LexicalFault::UnclosedText)}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, LexerTest,
    testing::Values(Case{"0", "i<0>"}, Case{"007", "i<7>"}, Case{"2147483647", "i<2147483647>"},
                    Case{"2147483648", "r<2.14748e+09>"}, Case{"12345678901234567890", "r<1.23457e+19>"},
                    Case{"1.5", "r<1.5>"}, Case{".5", "r<0.5>"}, Case{"1.", "r<1>"}, Case{"1e3", "r<1000>"},
                    Case{"2E-4", "r<0.0002>"}, Case{"1.5e+2", "r<150>"}, Case{"-7", "-i<7>"},
                    Case{"5--3", "i<5>--i<3>"}, Case{".5+.25", "r<0.5>+r<0.25>"}, Case{"1..2", "r<1>r<0.2>"},
                    Case{"1,2", "i<1>,i<2>"}, Case{"p.5", "w<p>r<0.5>"}, Case{"19x0", Fault(LexicalFault::BadNumber)},
                    Case{"1e", Fault(LexicalFault::BadNumber)}, Case{"1e+", Fault(LexicalFault::BadNumber)},
                    Case{"1.a", Fault(LexicalFault::BadNumber)}, Case{"1e999", Fault(LexicalFault::BadNumber)}));

INSTANTIATE_TEST_SUITE_P(Hexadecimal, LexerTest,
                         testing::Values(Case{"&H1F", "i<31>"}, Case{"=&hff", "=i<255>"},
                                         Case{"(&H7FFFFFFF)", "(i<2147483647>)"}, Case{"&HFFFFFFFF", "r<4.29497e+09>"},
                                         Case{"AND &H10", "w<AND>i<16>"}, Case{"a &H10", "w<a>&w<H10>"},
                                         Case{"'a'&Habc", "t<'a'>&w<Habc>"}, Case{")&H1", ")&w<H1>"},
                                         Case{"& H1F", "&w<H1F>"}, Case{"=&Hx", "=&w<Hx>"},
                                         Case{"=&H1G", "=" + Fault(LexicalFault::BadNumber)},
                                         Case{"=&H123456789", "=" + Fault(LexicalFault::BadNumber)}));

INSTANTIATE_TEST_SUITE_P(Dates, LexerTest,
                         testing::Values(Case{"#11/23/2009#", "d<40140>"},
                                         Case{"#11/23/2009 12:00:00#+1", "d<40140.5>+i<1>"},
                                         Case{"#soon#", Fault(LexicalFault::BadDate)},
                                         Case{"##", Fault(LexicalFault::BadDate)},
                                         Case{"#1/1/2009", Fault(LexicalFault::UnclosedDate)}));

INSTANTIATE_TEST_SUITE_P(Signs, LexerTest,
                         testing::Values(Case{"<= >= <> < > =", "<=>=<><>="}, Case{"a<>''", "w<a><>t<''>"},
                                         Case{"+-*/\\^&.,;()!", "+-*/\\^&.,;()!"}, Case{"a!=b", "w<a>!=w<b>"},
                                         Case{"a||b", "w<a>" + Fault(LexicalFault::StrangeCharacter)},
                                         Case{"?", Fault(LexicalFault::StrangeCharacter)},
                                         Case{"\x01", Fault(LexicalFault::StrangeCharacter)},
                                         Case{"a \u2264 b", "w<a>" + Fault(LexicalFault::StrangeCharacter)}));

TEST(LexerTest, NothingComesAfterAFault) {
    Lexer lexer(u"? a");
    EXPECT_EQ(lexer.Next().type, TokenType::Bad);
    EXPECT_EQ(lexer.Next().type, TokenType::End);
}

} // namespace ostrand::sql
