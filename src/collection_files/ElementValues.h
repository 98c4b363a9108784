// Truth values and numbers in the texts of a collection file.
#pragma once

#include <QString>

namespace ostrand {

/// "true" in any case.
bool IsTrue(const QString &text);
/// A truth value as the dialect reads it; what cannot be read is false.
bool ReadBoolean(const QString &text);
/// A number without its fraction, 0 for a text that is none or that is out of range.
int ReadNumber(const QString &text);

} // namespace ostrand
