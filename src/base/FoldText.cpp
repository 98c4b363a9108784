#include "base/FoldText.h"

#include <QString>

#include <string_view>

namespace ostrand {

namespace {

struct Replacement {
    char16_t letter;
    std::string_view typed;
};

/// Small letters that no decomposition takes apart.
constexpr Replacement kLetters[] = {
    {u'ß', "ss"}, {u'æ', "ae"}, {u'œ', "oe"}, {u'ø', "o"}, {u'đ', "d"}, {u'ð', "d"}, {u'þ', "th"},
    {u'ł', "l"},  {u'ħ', "h"},  {u'ı', "i"},  {u'ŋ', "n"}, {u'ŧ', "t"}, {u'ĸ', "k"}, {u'ə', "e"},
};

constexpr bool IsLeftOut(char16_t unit) {
    constexpr std::u16string_view kLeftOut = u"'\",`´‘’‚‛“”„‟ʻʼ′″«»‹›";
    return kLeftOut.find(unit) != std::u16string_view::npos;
}

/// What an ASCII character becomes; 0 for nothing, a blank for all white space.
constexpr char FoldAscii(char16_t unit) {
    if (unit >= u'A' && unit <= u'Z') {
        return char(unit + 0x20);
    }
    if (unit <= u' ' || unit == 0x7F) {
        return ' ';
    }
    return IsLeftOut(unit) ? '\0' : char(unit);
}

constexpr auto kAscii = [] {
    std::array<char, 0x80> table{};
    for (size_t unit = 0; unit < table.size(); ++unit) {
        table[unit] = FoldAscii(char16_t(unit));
    }
    return table;
}();

/// Writes what is kept, with single blanks between.
class Writer {
public:
    explicit Writer(std::string &folded) : folded_(folded), begin_(folded.size()) {}

    void Add(char letter) {
        if (letter == ' ') {
            blank_ = folded_.size() > begin_;
            return;
        }
        if (letter != '\0') {
            EndBlank();
            folded_.push_back(letter);
        }
    }
    void Add(std::string_view letters) {
        EndBlank();
        folded_.append(letters);
    }

private:
    void EndBlank() {
        if (blank_) {
            folded_.push_back(' ');
            blank_ = false;
        }
    }

    std::string &folded_;
    size_t begin_;
    bool blank_ = false;
};

void AddUtf8(char32_t character, Writer &writer) {
    const QByteArray bytes = QString::fromUcs4(&character, 1).toUtf8();
    writer.Add(std::string_view(bytes.constData(), size_t(bytes.size())));
}

void AddCharacter(char32_t character, Writer &writer) {
    if (character < 0x80) {
        writer.Add(kAscii[character]);
    } else if (QChar::isSpace(character)) {
        writer.Add(' ');
    } else if (QChar::category(character) == QChar::Punctuation_Dash) {
        writer.Add('-');
    } else if (character < 0x10000 && IsLeftOut(char16_t(character))) {
        return;
    } else if (!QChar::isMark(character)) {
        const auto known = std::find_if(std::begin(kLetters), std::end(kLetters),
                                        [=](const Replacement &letter) { return letter.letter == character; });
        if (known != std::end(kLetters)) {
            writer.Add(known->typed);
        } else {
            AddUtf8(character, writer);
        }
    }
}

} // namespace

void AppendFolded(QStringView text, std::string &folded) {
    Writer writer(folded);
    if (std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; })) {
        for (const QChar unit : text) {
            writer.Add(kAscii[unit.unicode()]);
        }
        return;
    }
    // Folded first: the small forms of some capitals have accents of their own.
    const QString plain = text.toString().toCaseFolded().normalized(QString::NormalizationForm_KD);
    for (const char32_t character : plain.toUcs4()) {
        AddCharacter(char32_t(QChar::toCaseFolded(character)), writer);
    }
}

std::string FoldText(QStringView text) {
    std::string folded;
    AppendFolded(text, folded);
    return folded;
}

} // namespace ostrand
