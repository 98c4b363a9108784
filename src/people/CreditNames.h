// Names of credits as they are shown, exported, and found in plain-text lists.
#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace ostrand {

class Name;
struct Session;

/// The order in which a credit's name is shown: the family name first while that option is on.
QString FormatCreditName(const Session &session, const QString &text);

/// Attributes of a name and their values, in the order of writing.
using NameAttributes = std::vector<std::pair<QString, QString>>;
/// The attributes that an exported credit gets. The format allows 25 characters to each.
NameAttributes WriteProfilerName(const Name &name, bool separate_middle_name);

/// A name field of a plain-text list, which writes the family name first, brought into natural order.
QString ExtractName(const QString &text);
/// A line of a plain-text list of the given kind, as title, "|", year. A line without the brackets that its kind
/// prescribes is traced and gives an empty text.
QString IMDbExtractTitle(const Session &session, const QString &line, const QString &list_kind);

} // namespace ostrand
