// The awards that belong to the title of a page.
#pragma once

#include "skin/TagCall.h"

#include <optional>

namespace ostrand {

/// Which of them are asked for, and as what.
struct AwardSelection {
    /// The one award that counts; empty for all.
    QString only_award = {};
    /// Each award's name once, in the column Award, in place of whole rows.
    bool names_only = false;
};

/// A film's awards are found by its title and the years around its own, an episode's are those of its series that name
/// it. Sorted by award, category and year. Nothing for a row without a title. Throws SqlError.
std::optional<sql::Recordset> FindAwards(const TagCall &call, const AwardSelection &selection = {});

} // namespace ostrand
