// The names of the files of a folder, found without regard to case.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>

namespace ostrand {

/// Keeps the names of one folder. A look-up reads the folder again only after it changed, which the folder's own time
/// of change tells.
class FolderIndex {
public:
    explicit FolderIndex(QString folder = {});
    /// Another folder; its names are read at the next look-up.
    void SetFolder(const QString &folder);
    const QString &Folder() const { return folder_; }
    /// The full path of the file with that name, spelt as on disk; empty when there is none. A name spelt exactly wins.
    QString Find(const QString &name);
    /// Reads the folder if it changed, for `Holds`.
    void Refresh() { ReadIfChanged(); }
    /// Whether a file of that name was there then; asks the disk nothing, so that many names can be asked for.
    bool Holds(const QString &name) const { return !names_.isEmpty() && names_.contains(name.toCaseFolded()); }
    /// Forgets what was read.
    void Invalidate();
    /// How often the folder was read, for tests.
    int Reads() const { return reads_; }

private:
    void ReadIfChanged();

    QString folder_;
    QDateTime changed_;
    QHash<QString, QString> names_; // folded to spelt
    bool read_ = false;
    int reads_ = 0;
};

} // namespace ostrand
