#include "browser/Titles.h"

#include "shell/ViewState.h"
#include "sql/Recordset.h"

namespace ostrand {

using namespace Qt::StringLiterals;

QString TitleReader::Text(Field field) const {
    static constexpr QStringView kNames[kFields] = {u"Title",      u"OriginalTitle",     u"CustomTitle",
                                                    u"SortTitle",  u"OriginalSortTitle", u"CustomSortTitle",
                                                    u"Description"};
    int &ordinal = ordinals_[field];
    if (ordinal == kNotLookedUp) {
        ordinal = record_.FindOrdinal(kNames[field]);
    }
    if (ordinal != kMissing) {
        return record_.Text(ordinal);
    }
    return field == CustomTitle || field == CustomSortTitle ? QString() : record_.Text(kNames[field]);
}

QString TitleReader::FirstNonEmpty(std::initializer_list<Field> fields) const {
    QString text;
    for (const Field field : fields) {
        text = Text(field);
        if (!text.isEmpty()) {
            break;
        }
    }
    return text;
}

QString TitleReader::WithDescription(const QString &title) const {
    if (!view_.mShowDescription) {
        return title;
    }
    const QString description = Text(Description);
    if (description.isEmpty()) {
        return title;
    }
    switch (view_.DescFormat) {
    case 1:
        return title + ": "_L1 + description;
    case 2:
        return title + " - "_L1 + description;
    case 3:
        return title + " ("_L1 + description + u')';
    default:
        return title;
    }
}

QString TitleReader::GetTitle(bool ignore_custom, bool with_description) const {
    QString title = view_.mUseCustomTitle && !ignore_custom ? Text(CustomTitle) : QString();
    if (title.isEmpty()) {
        title = view_.mUseOriginalTitle ? FirstNonEmpty({OriginalTitle, Title}) : FirstNonEmpty({Title, OriginalTitle});
    }
    return with_description ? WithDescription(title) : title;
}

QString TitleReader::GetSortTitle(bool ignore_custom) const {
    QString title = view_.mUseCustomTitle && !ignore_custom ? FirstNonEmpty({CustomSortTitle, CustomTitle}) : QString();
    if (title.isEmpty() && view_.mUseOriginalTitle) {
        title = FirstNonEmpty({OriginalSortTitle, OriginalTitle});
    }
    if (title.isEmpty()) {
        title = FirstNonEmpty({SortTitle, Title, OriginalSortTitle});
    }
    // The field is spelt so deliberately. No table has it: a record without any of these titles is a fault that the
    // caller deals with.
    return title.isEmpty() ? record_.Text(u"OriginalTitel") : title;
}

QString TitleReader::OriginalOrTitle() const {
    return FirstNonEmpty({OriginalTitle, Title});
}

QString GetTitle(const ViewState &view, const sql::Recordset &record, bool ignore_custom, bool with_description) {
    return TitleReader(view, record).GetTitle(ignore_custom, with_description);
}

QString GetSortTitle(const ViewState &view, const sql::Recordset &record, bool ignore_custom) {
    return TitleReader(view, record).GetSortTitle(ignore_custom);
}

QString GetEpisodeTitle(const ViewState &view, const sql::Recordset &record) {
    const QString title = record.Text(u"EpisodeTitle");
    const QString original = record.Text(u"EpisodeOriginalTitle");
    if (view.mUseOriginalTitle) {
        return original.isEmpty() ? title : original;
    }
    return title.isEmpty() ? "* "_L1 + original : title;
}

} // namespace ostrand
