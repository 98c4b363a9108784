#include "browser/TypedSearch.h"

#include "browser/TitleList.h"

namespace ostrand {

namespace {

/// Without case and accents, and without blanks in front.
QString Plain(const QString &text) {
    QString plain;
    bool begun = false;
    for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
        begun = begun || !c.isSpace();
        if (begun && c.category() != QChar::Mark_NonSpacing) {
            plain.append(c.toCaseFolded());
        }
    }
    return plain;
}

} // namespace

int FindTypedTitle(const TitleList &list, int from, const QString &typed) {
    const QString wanted = Plain(typed);
    const int count = list.rowCount();
    if (wanted.isEmpty() || count == 0) {
        return -1;
    }
    for (int i = 0; i < count; ++i) {
        const int row = (from + i) % count;
        const TitleRow &title = list.At(row);
        if (!title.header && Plain(title.texts[TitleList::Title]).startsWith(wanted)) {
            return row;
        }
    }
    return -1;
}

} // namespace ostrand
