// One credit of the database.
#pragma once

#include <QString>

namespace ostrand {

/// A row of `CastCrew` or `TVCastCrew`.
struct CreditRecord {
    QString name; ///< the caption of a divider
    QString role;
    QString birth_year; ///< empty for NULL
    int position = 0;
    bool is_uncredited = false;
    bool is_voice = false;
    bool is_credit_only = false;
    bool is_regular = false;

    bool IsDivider() const { return role.startsWith(QLatin1String("[Div"), Qt::CaseInsensitive); }
};

} // namespace ostrand
