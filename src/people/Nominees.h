// Persons in the nominee texts of awards.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// A nominee text with its persons under their common names, the rest of it as it was.
QString SetCommonNameForNominees(Session &session, const QString &nominees);
/// Brings all nominees of the award data to their common names, and says how many changed.
void AdjustAwardData(Session &session);

} // namespace ostrand
