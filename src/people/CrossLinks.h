// One person under several spellings: the rules of the Alias table.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// The name under which a person is linked; the name itself without a link. Year 0 finds a link of any year.
QString GetCommonName(Session &session, const QString &name, int birth_year);
/// The one checked way to add a link. Messages appear unless `silent`; refused and turned links are traced always.
void LinkAlias(Session &session, const QString &common_name, const QString &alias_name, int birth_year, bool silent,
               const QString &comment);
/// Links a name to its normalised spelling, where that differs.
void LinkNormalizedName(Session &session, const QString &name, int birth_year);
/// The normalised spelling of a name.
QString NormalizedName(const QString &name);
/// Sets birth years to 0 where no other person has that name.
void RemoveUnneededBirthYears(Session &session);

} // namespace ostrand
