// Texts made fit for a terminal.
#pragma once

#include <QString>

namespace ostrand {

/// The text with its control characters, and those that turn the direction of writing, replaced by visible ones, so
/// that data cannot steer a terminal and a cell stays on its line.
QString HarmlessText(const QString &text);

/// Columns that a text takes on a terminal: 2 for wide characters, 0 for marks that stand on the one before.
int DisplayWidth(QStringView text);

} // namespace ostrand
