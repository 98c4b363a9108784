// One credit of a collection file, read from its element.
#pragma once

#include <QString>

#include <pugixml.hpp>

#include <optional>

namespace ostrand {

struct Credit {
    QString full_name; ///< or the caption of a divider
    QString credited_as;
    QString role;
    QString credit_type; ///< of the crew
    int birth_year = 0;
    bool is_divider = false;
    bool is_voice = false;
    bool is_uncredited = false;
    bool is_regular = false;
    bool is_credit_only = false;

    /// The name under which it is stored.
    const QString &StoredName() const { return credited_as.isEmpty() ? full_name : credited_as; }
};

/// Nothing for an element that is no credit.
std::optional<Credit> ReadCastCredit(pugi::xml_node element);
std::optional<Credit> ReadCrewCredit(pugi::xml_node element);

} // namespace ostrand
