// The statements that list what the site shows, and in which order.
#pragma once

#include "html_export/SiteOptions.h"

namespace ostrand {

/// Which profiles are shown.
struct SiteCondition {
    QString filter;    ///< of the saved query; empty for none
    QString col_types; ///< in brackets

    /// Both together. Profiles may be called `p` in it.
    QString Text() const;
    /// The number of the profiles, as `Count`.
    QString Count() const;
    /// The media of those that are in no box set.
    QString Media() const;
    /// The rows of a tab; the empty name finds those without a type or medium. `RealSort` is the first column.
    QString TabRows(const SiteOptions &options, const QString &tab) const;
};

/// The ids of all box sets that hold a profile.
QString BoxsetIds();
/// The rows of the profiles in a box set.
QString BoxsetChildren(const SiteOptions &options, const QString &id);

} // namespace ostrand
