// What the window that tidies the headshot folder does, without the window.
#pragma once

#include "people/HeadshotFolder.h"

#include <QObject>

namespace ostrand {

struct Session;

/// The headshot folder's pictures by letter or by a part of their names, and what can be done with them.
class HeadshotManager : public QObject {
    Q_OBJECT
public:
    explicit HeadshotManager(Session &session);
    /// Writes to Settings.ini what the window keeps.
    void KeepSettings() const;

    HeadshotFolder FileListImages;
    bool no_resize_left = false;

    /// "12 Images"
    QString labelImageCount() const;
    /// Lists the names that begin with a letter; all for an empty text.
    void ShowLetter(const QString &letter);
    /// Lists the names that begin with a text, or hold it.
    void ShowFilter(const QString &text, bool substring);
    /// Deletes files, after a question where Settings.ini does not say otherwise. True when some are gone.
    bool DeleteImages(const QStringList &names);
    /// True for the name of an alternate.
    static bool CanMakePrimary(const QString &name);
    /// Lets an alternate and its primary picture change places.
    void MakePrimary(const QString &name);
    /// Runs a tool over the folder.
    void Run(void (*tool)(Session &session, const QString &folder));

private:
    QString Text(const char16_t *english) const;
    /// The last fault; empty when there was none.
    QString DeleteFiles(const QStringList &names);

    Session &session_;
};

} // namespace ostrand
