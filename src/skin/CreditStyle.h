// What the cast tag and the crew tags share.
#pragma once

#include "skin/PersonLinks.h"

namespace ostrand {

/// The attributes that both kinds of tags have.
struct CreditStyle {
    PersonStyle person;
    bool show_roles = false;
    bool roles_first = false;
    bool use_common_name = false;
    bool show_no_dividers = false;
    QString role_divider;
    QString divider;
    int max_list = 0; ///< 0 for no limit
    QString name_class;
    QString role_class;
    QString divider_class;

    /// Counts an entry; false when it was the last. One entry more than the limit is printed, which is deliberate.
    bool HasRoomBehind(int &count) const { return ++count <= max_list || max_list == 0; }
};

CreditStyle ReadCreditStyle(const TagCall &call, const QString &role_divider);
/// The credits of the row, cast or crew, in their order.
sql::Recordset CreditRows(const TagCall &call, bool is_cast);
/// A credit that is a caption and no person.
bool IsDividerRole(const QString &role);
/// A text in a span of a class; the text alone without a class.
QString Wrapped(const QString &text, const QString &css_class);
/// The name of a credit, the common one where the tag asks for it.
QString CreditName(const TagCall &call, const CreditStyle &style, const sql::Recordset &credit);
/// The linked person of a credit.
QString PersonText(const TagCall &call, const CreditStyle &style, const QString &name, const sql::Recordset &credit);
/// A person with the role before or behind.
QString WithRole(const CreditStyle &style, const QString &person, const QString &role);

} // namespace ostrand
