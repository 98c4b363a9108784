#include "base/FolderIndex.h"

#include "base/FileNames.h"

#include <QDir>
#include <QFileInfo>

namespace ostrand {

FolderIndex::FolderIndex(QString folder) : folder_(std::move(folder)) {}

void FolderIndex::SetFolder(const QString &folder) {
    if (folder != folder_) {
        folder_ = folder;
        Invalidate();
    }
}

void FolderIndex::Invalidate() {
    read_ = false;
    names_.clear();
}

QString FolderIndex::Find(const QString &name) {
    if (folder_.isEmpty() || name.isEmpty()) {
        return {};
    }
    const QString exact = QDir(folder_).filePath(name);
    if (QFileInfo(exact).isFile()) {
        return exact;
    }
    ReadIfChanged();
    const auto found = names_.constFind(name.toCaseFolded());
    return found == names_.constEnd() ? QString() : QDir(folder_).filePath(*found);
}

void FolderIndex::ReadIfChanged() {
    const QDateTime changed = QFileInfo(folder_).lastModified();
    if (read_ && changed == changed_) {
        return;
    }
    read_ = true;
    changed_ = changed;
    names_.clear();
    ++reads_;
    for (const QString &name : FileNamesOf(folder_)) {
        // Of two files that differ in case only it is always the same that is found.
        QString &spelt = names_[name.toCaseFolded()];
        spelt = std::max(spelt, name);
    }
}

} // namespace ostrand
