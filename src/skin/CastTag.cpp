#include "skin/CreditStyle.h"
#include "skin/SkinTags.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// A running group of the cast: its members have a mark in front, and a role that repeats its caption is left out.
struct CastGroup {
    bool is_open = false;
    QString name;
};

/// The cast's own attributes.
struct CastRoles {
    bool divider_if_blank = false;
    bool show_types = true;
};

QString RoleWithTypes(const TagCall &call, const sql::Recordset &credit, QString role) {
    const auto add = [&](const QString &marker) { role += u' ' + call.Translated(marker); };
    const bool is_voice = credit.Boolean(u"IsVoice");
    const bool is_uncredited = credit.Boolean(u"IsUncredited");
    if (is_voice && is_uncredited) {
        add(u"(voice, uncredited)"_s);
        return role;
    }
    if (is_voice) {
        add(u"(voice)"_s);
    }
    if (is_uncredited) {
        add(u"(uncredited)"_s);
    }
    if (credit.Boolean(u"IsCreditOnly")) {
        add(u"(credit only)"_s);
    }
    return role;
}

QString ActorText(const TagCall &call, const CreditStyle &style, const CastRoles &roles, const CastGroup &group,
                  const QString &name, const sql::Recordset &credit) {
    const QString person = PersonText(call, style, name, credit);
    if (!style.show_roles) {
        return person;
    }
    QString role = credit.Text(u"Role");
    if (role == group.name) {
        role.clear();
    }
    if (roles.show_types) {
        role = RoleWithTypes(call, credit, role);
    }
    role = Wrapped(role, style.role_class);
    return role.isEmpty() && !roles.divider_if_blank ? person : WithRole(style, person, role);
}

} // namespace

void GetDPCast(const TagCall &call, QString &text) {
    sql::Recordset credits = CreditRows(call, true);
    const CreditStyle style = ReadCreditStyle(call, u" as "_s);
    const CastRoles roles{.divider_if_blank = call.Flag(u"RoleDivIfBlank", false),
                          .show_types = call.Flag(u"RoleTypes", true)};
    CastGroup group;
    int count = 0;
    for (bool go_on = true; go_on && !credits.Eof(); credits.MoveNext()) {
        // Before dividers that are left out too, deliberately: style sheets of existing skins count on it.
        text += u"<NOBREAK>"_s;
        const QString name = CreditName(call, style, credits);
        const QString role = credits.Text(u"Role");
        if (!IsDividerRole(role)) {
            const QString item = ActorText(call, style, roles, group, name, credits);
            text += (group.is_open ? u"* "_s : QString()) + item + u"</NOBREAK>"_s + style.divider;
            go_on = style.HasRoomBehind(count);
        } else if (!style.show_no_dividers) {
            group.is_open = role == "[DivGroup]"_L1;
            group.name = group.is_open ? name : QString();
            text += Wrapped(name, style.divider_class) + u"</NOBREAK>"_s + style.divider;
        }
    }
    text.chop(style.divider.size());
}

} // namespace ostrand
