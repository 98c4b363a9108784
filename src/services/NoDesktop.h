// What a program without a screen has for clipboard, keyboard, applications and images.
#pragma once

#include "platform/Services.h"

namespace ostrand {

/// Keeps the text within the program.
class PrivateClipboard : public Clipboard {
public:
    void SetText(const QString &text) override { text_ = text; }
    QString Text() const override { return text_; }

private:
    QString text_;
};

/// No key is held.
class NoKeyboard : public Keyboard {
public:
    bool CtrlHeld() const override { return false; }
};

/// There is no application to hand anything to.
class NoOpener : public Opener {
public:
    bool OpenUrl(const QString &) override { return false; }
    bool OpenFile(const QString &) override { return false; }
    void ChooseApplication(const QString &) override {}
};

/// There is no way to any server.
class NoDownloader : public Downloader {
public:
    bool Fetch(const QString &, const QString &, EventPump &, QString *error) override {
        if (error != nullptr) {
            *error = QStringLiteral("there is no network");
        }
        return false;
    }
};

/// Reads the heads of JPEG and PNG files, which is what collections hold.
class ImageHeads : public Images {
public:
    std::optional<std::pair<int, int>> Size(const QString &path) const override;
};

} // namespace ostrand
