// The drives and folders of the system as a tree that loads as it opens.
#pragma once

#include "shell/Translator.h"

#include <QAbstractItemModel>

namespace ostrand {

class UserDialogs;

/// A root of the tree.
struct FolderDrive {
    QString path;
    QString text;
    QString image = QStringLiteral("Drive");
};

/// What a drive is called: its label and, in brackets, its letter (or where it is mounted).
QString DriveText(const QString &label, const QString &letter);
/// The drives of the system. Where there are no drives: the home folder, the root, and what is mounted for the user.
std::vector<FolderDrive> SystemDrives(const Translator &translator);

/// Whether a folder belongs to the system.
bool IsSystemFolder(const QString &path);
/// Why a folder must not be chosen, in English; empty for a good one.
QString FolderFault(const QString &path);

/// A folder's children are read when its node opens. Hidden folders stand in it only when the current folder lies in
/// them.
class FolderTree : public QAbstractItemModel {
public:
    /// Role of a node's path, and of the names of its image while closed and while open: "FolderClosed", "FolderOpen",
    /// "FolderRecycler", "FolderSystem", "Folder", "Drive".
    enum Role { PathRole = Qt::UserRole, ImageRole, OpenImageRole };

    explicit FolderTree(const std::vector<FolderDrive> &drives, QObject *parent = nullptr);
    ~FolderTree() override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// Reads the folders of a node that has not been read.
    void GetFolders(const QModelIndex &node);
    QString Path(const QModelIndex &node) const;
    /// The node of a path, below the drive that leads to it best, reading on the way; the deepest one that exists.
    QModelIndex Find(const QString &path);
    /// Asks for a name and makes a folder below a node. The new node, or that of a folder of that name that exists
    /// already, after a message; invalid when the user cancelled or the folder could not be made.
    QModelIndex NewFolder(const QModelIndex &parent, UserDialogs &dialogs, const Translator &translator);

private:
    struct Node;
    Node *NodeOf(const QModelIndex &index) const;
    QModelIndex IndexOf(const Node *node) const;
    /// The child of that name, added in its place when the folder exists and the node does not.
    QModelIndex Child(const QModelIndex &parent, const QString &name);

    std::unique_ptr<Node> root_;
};

} // namespace ostrand
