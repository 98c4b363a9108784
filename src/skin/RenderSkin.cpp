// From a template to the finished text of a page.

#include "shell/Session.h"
#include "skin/SkinPage.h"
#include "skin/TagTable.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// 256 MB of text. Texts of the database that hold tags of the page could otherwise make it grow without end.
constexpr qsizetype kLargestPage = (qsizetype(256) << 20) / qsizetype(sizeof(char16_t));

QString WithBackFrame(Session &session, const QString &page, const QString &back_profile_id) {
    return u"<HTML><BODY>\r\n<frameset rows='20,*' border='0'>\r\n<frame><INPUT TYPE='button' "
           "onClick=\"self.location.href='blank.html?profileid="_s +
           back_profile_id + u"'\" VALUE=' < "_s + Translate(session, u"Back"_s) + u" '><BR></frame>\r\n<frame>"_s +
           page + u"</frame> </frameset>"_s;
}

/// Every occurrence of `tag` replaced, in one walk.
void ReplaceAll(QString &page, const QString &tag, const QString &text) {
    const qsizetype count = page.count(tag);
    if (count == 0) {
        return;
    }
    const qsizetype size = page.size() - count * tag.size();
    if (size > kLargestPage || text.size() > (kLargestPage - size) / count) {
        throw SkinFailure(u"The page is too large."_s);
    }
    QString replaced;
    replaced.reserve(size + count * text.size());
    qsizetype from = 0;
    for (qsizetype at = page.indexOf(tag); at >= 0; at = page.indexOf(tag, from)) {
        replaced += QStringView(page).mid(from, at - from);
        replaced += text;
        from = at + tag.size();
    }
    replaced += QStringView(page).mid(from);
    page = std::move(replaced);
}

/// True when no text can hold a tag, or make one together with what stands beside it, so that all can be filled in one
/// walk over the page.
bool StandAlone(const QStringList &tags, const QStringList &texts, const QStringList &between) {
    const auto none = [](const QStringList &list, auto is_risky) {
        return std::none_of(list.begin(), list.end(), is_risky);
    };
    return none(tags, [](const QString &tag) { return HoldsTagOpening(tag, 1); }) &&
           none(texts, [](const QString &text) { return HoldsTagOpening(text) || EndsInTagOpening(text); }) &&
           none(between, EndsInTagOpening);
}

QString FillInOneWalk(const QString &page, const QStringList &tags, const QStringList &texts,
                      const QStringList &between) {
    QHash<QStringView, qsizetype> first; // the first evaluation fills every place of a tag
    qsizetype size = page.size();
    for (qsizetype i = 0; i < tags.size(); ++i) {
        const qsizetype text = first.value(tags[i], i);
        first.insert(tags[i], text);
        size += texts[text].size() - tags[i].size();
        if (size > kLargestPage) {
            throw SkinFailure(u"The page is too large."_s);
        }
    }
    QString filled;
    filled.reserve(size);
    for (qsizetype i = 0; i < tags.size(); ++i) {
        filled += between[i];
        filled += texts[first.value(tags[i])];
    }
    return filled += between.last();
}

/// What stands in front of each tag, and behind the last one.
QStringList TextsBetween(const QString &page, const QStringList &tags) {
    QStringList between;
    qsizetype from = 0;
    for (const QString &tag : tags) {
        const qsizetype at = page.indexOf(tag, from);
        between.append(page.mid(from, at - from));
        from = at + tag.size();
    }
    between.append(page.mid(from));
    return between;
}

QString KeyOf(const sql::Recordset &row, bool is_episode) {
    return row.Eof() ? QString() : row.Text(is_episode ? u"EpisodeID" : u"ProfileID");
}

} // namespace

QString RenderSkinText(Session &session, SkinState &skin, const QString &page, const sql::Recordset &row,
                       bool is_episode, const QString &back_profile_id, const RenderOptions &options) {
    QString text = back_profile_id.isEmpty() ? page : WithBackFrame(session, page, back_profile_id);
    // Listed once: a tag in a producer's text is none, unless the page holds the very same one further down.
    const QStringList tags = FindSkinTags(text);
    if (tags.isEmpty()) {
        throw SkinFailure(u"The skin has no tag."_s);
    }
    TagCall call{session, skin, options, row, KeyOf(row, is_episode), is_episode, {}};
    QStringList texts;
    for (const QString &tag : tags) {
        call.tag = tag;
        // A tag that stands twice is evaluated twice, though the first time fills both places: what it tells the user
        // it tells twice.
        texts.append(EvaluateSkinTag(GetTagAttribute(tag, u"NAME", {}).toUpper(), call));
    }
    if (const QStringList between = TextsBetween(text, tags); StandAlone(tags, texts, between)) {
        return FillInOneWalk(text, tags, texts, between);
    }
    for (qsizetype i = 0; i < tags.size(); ++i) {
        ReplaceAll(text, tags[i], texts[i]);
    }
    return text;
}

} // namespace ostrand
