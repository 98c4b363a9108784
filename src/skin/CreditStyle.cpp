#include "skin/CreditStyle.h"

#include "people/CrossLinks.h"

namespace ostrand {

using namespace Qt::StringLiterals;

CreditStyle ReadCreditStyle(const TagCall &call, const QString &role_divider) {
    CreditStyle style;
    style.person.color_names = call.Flag(u"ColorNames", false);
    style.person.show_headshot = call.Flag(u"ShowHeadshot", false);
    style.person.headshot_width = call.Text(u"HeadshotWidth", u"30"_s);
    style.person.headshot_right = call.Flag(u"HeadshotRight", false);
    style.person.show_birth_years = call.Flag(u"ShowBirthYears", false);
    style.show_roles = call.Flag(u"ShowRoles", false);
    style.roles_first = call.Flag(u"RolesFirst", false);
    const bool use_common_name = call.Flag(u"UseCommonName", false);
    const bool as_credited = call.Flag(u"AsCredited", true);
    style.use_common_name = use_common_name || !as_credited;
    style.show_no_dividers = call.Flag(u"ShowNoDividers", false);
    style.role_divider = call.Text(u"RoleDivider", role_divider);
    style.divider = call.Text(u"Divider", u", "_s);
    style.max_list = call.Number(u"MaxList", 0);
    style.name_class = call.Text(u"NameClass");
    style.role_class = call.Text(u"RoleClass");
    style.divider_class = call.Text(u"DividerClass");
    return style;
}

sql::Recordset CreditRows(const TagCall &call, bool is_cast) {
    const QString source = call.is_episode ? u"TVCastCrew WHERE EpisodeID = "_s : u"CastCrew WHERE ProfileID = "_s;
    return call.Rows(u"SELECT * FROM "_s + source + call.QuotedKey() + u" AND IsCast = "_s +
                     (is_cast ? u"true"_s : u"false"_s) + u" ORDER BY Position"_s);
}

bool IsDividerRole(const QString &role) {
    return role.startsWith("[Div"_L1);
}

QString Wrapped(const QString &text, const QString &css_class) {
    return css_class.isEmpty() ? text : u"<SPAN CLASS=\""_s + css_class + u"\">"_s + text + u"</SPAN>"_s;
}

QString CreditName(const TagCall &call, const CreditStyle &style, const sql::Recordset &credit) {
    const QString name = credit.Text(u"Name");
    return style.use_common_name ? GetCommonName(call.session, name, int(credit.Integer(u"BirthYear"))) : name;
}

QString PersonText(const TagCall &call, const CreditStyle &style, const QString &name, const sql::Recordset &credit) {
    return Wrapped(displayCrossLink(call, name, credit.Text(u"BirthYear"), style.person), style.name_class);
}

QString WithRole(const CreditStyle &style, const QString &person, const QString &role) {
    return style.roles_first ? role + style.role_divider + person : person + style.role_divider + role;
}

} // namespace ostrand
