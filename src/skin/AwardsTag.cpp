#include "skin/AwardRows.h"
#include "skin/PersonLinks.h"
#include "skin/SkinTags.h"
#include "skin/TextConversion.h"

#include <array>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

struct AwardStyle {
    explicit AwardStyle(const TagCall &call) :
        if_no_awards(call.Text(u"IfNoAwards")), list_awards(call.Flag(u"GetAwardList", false)),
        only_award(call.Text(u"ShowOnlyAward")), show_name(call.Flag(u"ShowAwardName", true)),
        show_category(call.Flag(u"ShowCategory", true)), show_year(call.Flag(u"ShowYear", true)),
        show_nominees(call.Flag(u"ShowNominees", true)), divider(call.Text(u"Divider", u"BREAK"_s)),
        name_once(call.Flag(u"NameAwardOnce", false)),
        award_divider(call.Text(u"NameOnlyOnceDivider")), sub_dividers{call.Text(u"SubDivider1", u" - "_s),
                                                                       call.Text(u"SubDivider2", u" - "_s),
                                                                       call.Text(u"SubDivider3", u" - "_s),
                                                                       call.Text(u"SubDivider4", u" - "_s)},
        nominees_divider(call.Text(u"NomineesDivider", u", "_s)), if_won(call.Text(u"IfWon", u"X"_s)),
        if_not_won(call.Text(u"IfNotWon")), person{.color_names = call.Flag(u"ColorNames", true),
                                                   .show_headshot = call.Flag(u"ShowHeadshot", false),
                                                   .headshot_width = call.Text(u"HeadshotWidth", u"30"_s),
                                                   .headshot_right = call.Flag(u"HeadshotRight", false)} {}

    QString if_no_awards;
    bool list_awards;
    QString only_award;
    bool show_name;
    bool show_category;
    bool show_year;
    bool show_nominees;
    QString divider;
    bool name_once;
    QString award_divider;
    std::array<QString, 4> sub_dividers;
    QString nominees_divider;
    QString if_won;
    QString if_not_won;
    PersonStyle person;
};

/// A nominee with a remark in brackets behind the name.
struct Nominee {
    explicit Nominee(const QString &text) : name(text) {
        const qsizetype open = text.indexOf(u'(');
        const qsizetype close = open < 0 ? open : text.indexOf(u')', open);
        if (close >= 0) {
            extra = text.mid(open + 1, close - open - 1);
            name = open > 0 ? text.left(open - 1) : QString();
        }
    }
    QString name;
    QString extra;
};

/// `text` is names alone, or `"Episode": names`; each name gets the episode in front then.
QString NomineesText(const TagCall &call, const AwardStyle &style, const QString &text) {
    const qsizetype mark = text.indexOf("\":"_L1);
    const QString prefix = mark < 0 ? QString() : text.left(mark + 1) + u": "_s;
    const QString names = mark < 0 ? text : text.mid(mark + 3);
    if (names.isEmpty()) {
        return {};
    }
    QString result;
    for (const QString &part : SplitNominees(names)) {
        const Nominee nominee(part);
        result += prefix + displayCrossLink(call, nominee.name, u"0"_s, style.person);
        if (!nominee.extra.isEmpty()) {
            result += u" ("_s + nominee.extra + u')';
        }
        result += style.nominees_divider;
    }
    result.chop(style.nominees_divider.size());
    return result;
}

QString AwardText(const TagCall &call, const AwardStyle &style, const sql::Recordset &award, bool with_name) {
    QString item;
    if (with_name) {
        item += award.Text(u"Award") + style.sub_dividers[0];
    }
    // The second divider follows the first part behind the name, whether or not the name was printed.
    size_t next = 1;
    if (style.show_year) {
        item += award.Text(u"Year") + style.sub_dividers[next++];
    }
    if (style.show_category) {
        item += award.Text(u"Category") + style.sub_dividers[next++];
    }
    item += u"<NOBR>"_s + (award.Boolean(u"Won") ? style.if_won : style.if_not_won) + u"</NOBR>"_s +
            style.sub_dividers[next];
    return style.show_nominees ? item + NomineesText(call, style, award.Text(u"Nominee")) : item;
}

} // namespace

void GetOSVAwards(const TagCall &call, QString &text) {
    const AwardStyle style(call);
    std::optional<sql::Recordset> awards =
        FindAwards(call, {.only_award = style.only_award, .names_only = style.list_awards});
    if (!awards) {
        return;
    }
    // An award of this very name counts as printed already, deliberately.
    QString last_award = u"None"_s;
    const QString no_award = last_award;
    for (; !awards->Eof(); awards->MoveNext()) {
        const QString award = awards->Text(u"Award");
        if (style.list_awards) {
            text += award + style.divider;
            continue;
        }
        const bool is_repeated = style.name_once && award == last_award;
        if (style.name_once && last_award != no_award && award != last_award) {
            text.chop(style.divider.size());
            text += style.award_divider;
        }
        text += AwardText(call, style, *awards, style.show_name && !is_repeated) + style.divider;
        last_award = award;
    }
    text.chop(style.divider.size());
    if (text.isEmpty()) {
        text = style.if_no_awards;
    }
}

} // namespace ostrand
