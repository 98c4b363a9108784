#include "shell/Session.h"
#include "skin/CreditStyle.h"
#include "skin/SkinTags.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

using CategoryOfRole = std::function<QString(const QString &role)>;

QString OrOther(const QString &category) {
    return category.isEmpty() ? u"Other"_s : category;
}

QString CrewEntry(const TagCall &call, const CreditStyle &style, const sql::Recordset &credit, const QString &role) {
    const QString person = PersonText(call, style, CreditName(call, style, credit), credit);
    const QString item = style.show_roles ? WithRole(style, person, Wrapped(role, style.role_class)) : person;
    return u"<NOBREAK>"_s + item + u"</NOBREAK>"_s + style.divider;
}

/// The crew of a category, of all of them with an empty one. Captions belong to none and always show.
void GetDPCrew(const TagCall &call, const QString &category, const CategoryOfRole &category_of, QString &text) {
    sql::Recordset credits = CreditRows(call, false);
    const CreditStyle style = ReadCreditStyle(call, u"..."_s);
    const QString prefix = call.Text(u"Prefix");
    const QString suffix = call.Text(u"Suffix");
    const QString wanted = category.toLower();
    int count = 0;
    for (bool go_on = true; go_on && !credits.Eof(); credits.MoveNext()) {
        const QString role = credits.Text(u"Role");
        if (IsDividerRole(role)) {
            if (!style.show_no_dividers) {
                text += u"<NOBREAK>"_s + Wrapped(credits.Text(u"Name"), style.divider_class) + u"</NOBREAK>"_s +
                        style.divider;
            }
        } else if (wanted.isEmpty() || category_of(role).toLower() == wanted) {
            text += CrewEntry(call, style, credits, role);
            go_on = style.HasRoomBehind(count);
        }
    }
    if (!text.isEmpty()) {
        text.chop(style.divider.size());
        text = prefix + text + suffix;
    }
}

void GuardedCrew(const TagCall &call, const QString &category, const CategoryOfRole &category_of, QString &text) {
    Guard(call, u"GetDPCrew"_s, u"CREW_"_s + category, [&] { GetDPCrew(call, category, category_of, text); });
}

} // namespace

void GetDPStandardCrew(const TagCall &call, QString &text) {
    GuardedCrew(
        call, call.argument, [](const QString &role) { return OrOther(CrewRoleMaps::CreditType(role)); }, text);
}

void GetDPMappedCrew(const TagCall &call, QString &text) {
    const CrewRoleMaps &roles = call.session.CrewRoles;
    GuardedCrew(
        call, call.Text(u"Category"), [&](const QString &role) { return OrOther(roles.Category(role)); }, text);
}

} // namespace ostrand
