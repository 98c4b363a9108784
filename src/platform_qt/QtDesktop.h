// Clipboard, keyboard, applications and images of a desktop.
#pragma once

#include "platform/Services.h"

namespace ostrand {

class QtClipboard : public Clipboard {
public:
    void SetText(const QString &text) override;
    QString Text() const override;
};

class QtKeyboard : public Keyboard {
public:
    bool CtrlHeld() const override;
};

class QtOpener : public Opener {
public:
    bool OpenUrl(const QString &url) override;
    bool OpenFile(const QString &path) override;
    /// Where the system has no dialog for it, the file's folder opens: the file manager offers the choice.
    void ChooseApplication(const QString &path) override;
};

/// Knows every format that the toolkit reads.
class QtImages : public Images {
public:
    std::optional<std::pair<int, int>> Size(const QString &path) const override;
};

} // namespace ostrand
