// Asking the user for one value.
#pragma once

#include <QString>
#include <QStringList>

namespace ostrand {

struct Session;

/// Asks for a value with values to choose from. `list` holds the values, separated by "|", or a statement (when it
/// holds "select" in lower case) whose first field gives them. Empty, with `cancelled` set, when the user closed
/// without OK. A faulty statement shows a message, and the dialog opens with an empty list. Without a list it is that
/// of InputText.
QString InputCombo(Session &session, const QString &prompt, const QString &title, bool &cancelled, const QString &list,
                   const QString &preset);
/// The values that such a list offers.
QStringList ListedValues(Session &session, const QString &list);
/// The same without values.
QString InputText(Session &session, const QString &prompt, const QString &title, bool &cancelled,
                  const QString &preset);

} // namespace ostrand
