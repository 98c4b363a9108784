#include "html_export/NameIndexFiles.h"

#include "html_export/CrossLinkFiles.h"
#include "html_export/SiteText.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kWaiting = 16384; // bytes of a script that wait to be written
constexpr qsizetype kLetters = 2;
/// Behind it come writings in which one character can be a word.
constexpr char16_t kLastAlphabet = 0x2E7F;

bool IsAccent(QChar c) {
    return c >= QChar(0x0300) && c <= QChar(0x036F);
}

} // namespace

QStringList WordBeginnings(const QString &name) {
    QStringList beginnings;
    QString word;
    const auto end_word = [&] {
        const bool is_long = word.size() == kLetters || (word.size() == 1 && word[0].unicode() > kLastAlphabet);
        if (is_long && !beginnings.contains(word)) {
            beginnings += word;
        }
        word.clear();
    };
    for (const QChar c : name.normalized(QString::NormalizationForm_D).toLower()) {
        if (IsAccent(c)) {
            continue;
        }
        if (!c.isLetterOrNumber() && !c.isSurrogate()) {
            end_word();
        } else if (word.size() < kLetters) {
            word += c;
        }
    }
    end_word();
    return beginnings;
}

void NameIndexFiles::Add(const QString &name, const QString &cross_link_id, qsizetype profiles) {
    const QString entry = u'[' + ScriptLiteral(name, u'"') + u',' + ScriptLiteral(cross_link_id, u'"') + u',' +
                          QString::number(profiles) + "],\r\n"_L1;
    for (const QString &beginning : WordBeginnings(name)) {
        const auto [file, is_new] =
            files_.try_emplace(beginning, folder_ + ScriptFileName("names-"_L1, beginning), kWaiting);
        if (is_new) {
            file->second.Write("crossLinkNames("_L1 + ScriptLiteral(beginning, u'"') + ",[\r\n"_L1);
        }
        file->second.Write(entry);
    }
}

void NameIndexFiles::Finish() {
    for (auto &[beginning, file] : files_) {
        file.Write(u"]);\r\n"_s);
        file.Commit();
    }
    files_.clear();
}

} // namespace ostrand
