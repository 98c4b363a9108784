#include "shell/ui/Mnemonics.h"

namespace ostrand {

QString Mnemonics::Mark(const QString &caption) {
    const auto is_free = [&](qsizetype at) {
        return caption.at(at).isLetterOrNumber() && !taken_.contains(caption.at(at).toUpper());
    };
    const auto begins_word = [&](qsizetype at) { return at == 0 || caption.at(at - 1).isSpace(); };
    qsizetype place = -1;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (is_free(i) && (place < 0 || (begins_word(i) && !begins_word(place)))) {
            place = i;
        }
    }
    QString marked = caption;
    marked.replace(QStringLiteral("&"), QStringLiteral("&&"));
    if (place >= 0) {
        taken_.insert(caption.at(place).toUpper());
        marked.insert(place + caption.left(place).count(u'&'), u'&');
    }
    return marked;
}

} // namespace ostrand
