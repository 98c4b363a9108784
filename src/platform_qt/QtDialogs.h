// Message boxes and file dialogs as windows.
#pragma once

#include "platform/Services.h"
#include "platform_qt/WindowInUse.h"

#include <functional>

namespace ostrand {

/// A filter "Text|*.a;*.b" as Qt's file dialogs take it, "Text (*.a *.b)". `all_files` names a filter without a text.
QString NameFilter(const QString &filter, const QString &all_files);

/// The dialogs that the toolkit has; all belong to the window in use.
class QtDialogs : public UserDialogs {
public:
    MessageAnswer Show(const Message &message) override;
    QString OpenFile(const FileRequest &request) override;
    QString SaveFile(const FileRequest &request) override;

    /// Translates the words on buttons and the like. Set once there is a session; until then they stay as they are.
    std::function<QString(const QString &)> translate;

protected:
    QWidget *Parent() const { return windows_.Get(); }
    QString Translated(const QString &text) const { return translate ? translate(text) : text; }

private:
    QString ChooseFile(const FileRequest &request, bool save) const;

    WindowInUse windows_;
};

} // namespace ostrand
