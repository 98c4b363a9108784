// All dialogs of a program with windows.
#pragma once

#include "platform_qt/QtDialogs.h"

namespace ostrand {

/// Adds the windows of our own to those of the toolkit. Made before there is a session; `translate` is set by whoever
/// makes the session.
class WindowDialogs : public QtDialogs {
public:
    std::optional<QString> InputText(const QString &prompt, const QString &title, const QString &preset) override;
    std::optional<QString> InputCombo(const QString &prompt, const QString &title, const QStringList &values,
                                      const QString &preset) override;
    QString BrowseFolder(const QString &title, const QString &current) override;
};

} // namespace ostrand
