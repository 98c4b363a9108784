// A session's surroundings without a person and without a screen: nothing is shown, questions get their neutral answer.
#pragma once

#include "platform/Services.h"
#include "services/NoDesktop.h"
#include "services/QtProcessRunner.h"
#include "services/SystemServices.h"

#include <QDir>

namespace ostrand::bench {

class SilentDialogs : public UserDialogs {
public:
    MessageAnswer Show(const Message &message) override { return message.neutral; }
    std::optional<QString> InputText(const QString &, const QString &, const QString &) override { return {}; }
    std::optional<QString> InputCombo(const QString &, const QString &, const QStringList &, const QString &) override {
        return {};
    }
    QString OpenFile(const FileRequest &) override { return {}; }
    QString SaveFile(const FileRequest &) override { return {}; }
    QString BrowseFolder(const QString &, const QString &) override { return {}; }
};

class SilentProgress : public ProgressView {
public:
    void Opened(const QString &) override {}
    void TitleChanged(const QString &) override {}
    void LineChanged(const QString &) override {}
    void DetailChanged(const QString &) override {}
    void CounterChanged(const QString &) override {}
    void BarChanged(int, int) override {}
    void NodeAdded(const QString &, const QString &, const QString &) override {}
    void NodeTicked(const QString &) override {}
    void Finished() override {}
    void Closed() override {}
};

/// All folders below one.
class FoldersBelow : public Folders {
public:
    explicit FoldersBelow(const QString &root) : root_(root) {
        QDir().mkpath(Documents());
        QDir().mkpath(Temp());
    }
    QString Documents() const override { return root_ + QStringLiteral("/documents"); }
    QString Temp() const override { return root_ + QStringLiteral("/temp"); }
    QString Program() const override { return root_; }
    QStringList Resources() const override { return {root_}; }
    QString UserName() const override { return QStringLiteral("bench"); }

private:
    QString root_;
};

struct SilentServices {
    explicit SilentServices(const QString &root) : folders(root) { QDir().mkpath(folders.Documents() + kDataFolder); }

    static inline const QString kDataFolder = QStringLiteral("/OstrandApp");
    SilentDialogs dialogs;
    SilentProgress progress;
    QtEventPump pump;
    SystemClock clock;
    SystemRandom random;
    QtProcessRunner processes;
    FoldersBelow folders;
    SystemLocaleInfo locale{QStringLiteral("en-US")};
    PrivateClipboard clipboard;
    NoKeyboard keyboard;
    NoOpener opener;
    ImageHeads images;
    NoDownloader downloader;
    Services services{dialogs, progress,  pump,     clock,  random, processes, folders,
                      locale,  clipboard, keyboard, opener, images, downloader};
};

} // namespace ostrand::bench
