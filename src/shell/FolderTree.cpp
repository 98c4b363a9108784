#include "shell/FolderTree.h"

#include "base/Text.h"
#include "platform/Services.h"
#include "sql/Collation.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

bool SortsBefore(const QString &left, const QString &right) {
    const int order = sql::Compare(left, right);
    return order != 0 ? order < 0 : left < right;
}

QString PathOf(const QString &folder, const QString &name) {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

bool IsAtOrBelow(const QString &path, const QString &folder) {
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

bool IsRecycler(const QString &name) {
    const QStringList names = {u"Recycled"_s, u"Recycler"_s, u"$Recycle.Bin"_s, u"Trash"_s};
    return names.contains(name, Qt::CaseInsensitive);
}

#ifdef Q_OS_WIN

bool HasSystemMark(const QString &path) {
    const QString native = QDir::toNativeSeparators(path);
    const DWORD marks = GetFileAttributesW(reinterpret_cast<const wchar_t *>(native.utf16()));
    return marks != INVALID_FILE_ATTRIBUTES && (marks & FILE_ATTRIBUTE_SYSTEM) != 0;
}

#else

/// The folders that a system of this family keeps for itself.
bool HasSystemMark(const QString &path) {
    constexpr const char16_t *kSystemFolders[] = {u"/bin",   u"/boot",  u"/dev",    u"/etc",  u"/lib",
                                                  u"/lib32", u"/lib64", u"/libx32", u"/proc", u"/sbin",
                                                  u"/sys",   u"/usr",   u"/System"};
    return std::any_of(std::begin(kSystemFolders), std::end(kSystemFolders),
                       [&](const char16_t *folder) { return IsAtOrBelow(path, QString::fromUtf16(folder)); });
}

/// Whether a volume is one that a user knows, and not a part of the system.
bool IsMountedForUsers(const QString &path) {
    const QStringList places = {u"/media"_s, u"/mnt"_s, u"/run/media"_s, u"/Volumes"_s};
    return std::any_of(places.begin(), places.end(), [&](const QString &place) { return IsAtOrBelow(path, place); });
}

#endif

} // namespace

QString DriveText(const QString &label, const QString &letter) {
    return label + u" ("_s + letter + u')';
}

bool IsSystemFolder(const QString &path) {
    return HasSystemMark(QDir::cleanPath(path));
}

QString FolderFault(const QString &path) {
    if (IsSystemFolder(path)) {
        return u"Selected folder is a system folder. Please select another folder."_s;
    }
    if (!QFileInfo(path).isWritable()) {
        return u"Selected folder is read-only. Please select another folder."_s;
    }
    return {};
}

std::vector<FolderDrive> SystemDrives(const Translator &translator) {
    std::vector<FolderDrive> drives;
#ifdef Q_OS_WIN
    for (const QFileInfo &drive : QDir::drives()) {
        const QString label = QStorageInfo(drive.filePath()).name();
        const QString letter = drive.filePath().left(2);
        drives.push_back(
            {drive.filePath(), DriveText(label.isEmpty() ? Translate(translator, u"Drive"_s) : label, letter)});
    }
#else
    drives.push_back({QDir::homePath(), DriveText(Translate(translator, u"Home"_s), QDir::homePath()), u"Folder"_s});
    drives.push_back({u"/"_s, DriveText(Translate(translator, u"Computer"_s), u"/"_s)});
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (volume.isReady() && IsMountedForUsers(volume.rootPath())) {
            const QString label = volume.name().isEmpty() ? QDir(volume.rootPath()).dirName() : volume.name();
            drives.push_back({volume.rootPath(), DriveText(label, volume.rootPath())});
        }
    }
#endif
    return drives;
}

struct FolderTree::Node {
    QString path;
    QString text;
    QString image;
    Node *parent = nullptr;
    bool loaded = false;
    std::vector<std::unique_ptr<Node>> children;

    static std::unique_ptr<Node> OfFolder(const QString &folder, const QString &name, Node *above) {
        auto node = std::make_unique<Node>();
        node->path = PathOf(folder, name);
        node->text = name;
        node->parent = above;
        node->image = IsRecycler(name)             ? u"FolderRecycler"_s
                      : IsSystemFolder(node->path) ? u"FolderSystem"_s
                                                   : u"FolderClosed"_s;
        return node;
    }
};

FolderTree::FolderTree(const std::vector<FolderDrive> &drives, QObject *parent) :
    QAbstractItemModel(parent), root_(std::make_unique<Node>()) {
    root_->loaded = true;
    for (const FolderDrive &drive : drives) {
        auto node = std::make_unique<Node>();
        node->path = QDir::cleanPath(drive.path);
        node->text = drive.text;
        node->image = drive.image;
        node->parent = root_.get();
        root_->children.push_back(std::move(node));
    }
}

FolderTree::~FolderTree() = default;

FolderTree::Node *FolderTree::NodeOf(const QModelIndex &index) const {
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : root_.get();
}

QModelIndex FolderTree::IndexOf(const Node *node) const {
    if (node == root_.get()) {
        return {};
    }
    const auto &siblings = node->parent->children;
    const auto place =
        std::find_if(siblings.begin(), siblings.end(), [&](const auto &sibling) { return sibling.get() == node; });
    return createIndex(int(place - siblings.begin()), 0, const_cast<Node *>(node));
}

QModelIndex FolderTree::index(int row, int column, const QModelIndex &parent) const {
    return hasIndex(row, column, parent) ? createIndex(row, column, NodeOf(parent)->children[size_t(row)].get())
                                         : QModelIndex();
}

QModelIndex FolderTree::parent(const QModelIndex &index) const {
    return index.isValid() ? IndexOf(NodeOf(index)->parent) : QModelIndex();
}

int FolderTree::rowCount(const QModelIndex &parent) const {
    return int(NodeOf(parent)->children.size());
}

int FolderTree::columnCount(const QModelIndex &) const {
    return 1;
}

bool FolderTree::hasChildren(const QModelIndex &parent) const {
    const Node *node = NodeOf(parent);
    return !node->loaded || !node->children.empty();
}

bool FolderTree::canFetchMore(const QModelIndex &parent) const {
    return !NodeOf(parent)->loaded;
}

void FolderTree::fetchMore(const QModelIndex &parent) {
    GetFolders(parent);
}

QVariant FolderTree::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const Node *node = NodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return node->text;
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(node->path);
    case PathRole:
        return node->path;
    case ImageRole:
        return node->image;
    case OpenImageRole:
        return node->image == "FolderClosed"_L1 ? u"FolderOpen"_s : node->image;
    default:
        return {};
    }
}

QString FolderTree::Path(const QModelIndex &node) const {
    return NodeOf(node)->path;
}

void FolderTree::GetFolders(const QModelIndex &index) {
    Node *node = NodeOf(index);
    if (node->loaded) {
        return;
    }
    node->loaded = true;
    QStringList names = QDir(node->path).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    if (names.isEmpty()) {
        Q_EMIT dataChanged(index, index); // the sign that it can be opened goes away
        return;
    }
    std::sort(names.begin(), names.end(), SortsBefore);
    beginInsertRows(index, 0, int(names.size()) - 1);
    for (const QString &name : names) {
        node->children.push_back(Node::OfFolder(node->path, name, node));
    }
    endInsertRows();
}

QModelIndex FolderTree::Child(const QModelIndex &index, const QString &name) {
    GetFolders(index);
    Node *node = NodeOf(index);
    for (const auto &child : node->children) {
        if (QFileInfo(child->path).fileName() == name) {
            return IndexOf(child.get());
        }
    }
    if (!QFileInfo(PathOf(node->path, name)).isDir()) {
        return {};
    }
    const auto place = std::find_if(node->children.begin(), node->children.end(),
                                    [&](const auto &child) { return SortsBefore(name, child->text); });
    const int row = int(place - node->children.begin());
    beginInsertRows(index, row, row);
    node->children.insert(place, Node::OfFolder(node->path, name, node));
    endInsertRows();
    return this->index(row, 0, index);
}

QModelIndex FolderTree::Find(const QString &path) {
    const QString wanted = QDir::cleanPath(QDir::fromNativeSeparators(path));
    const Node *best = nullptr;
    for (const auto &drive : root_->children) {
        if (IsAtOrBelow(wanted, drive->path) && (!best || drive->path.size() > best->path.size())) {
            best = drive.get();
        }
    }
    if (!best || path.isEmpty()) {
        return {};
    }
    QModelIndex found = IndexOf(best);
    for (const QString &name : wanted.mid(best->path.size()).split(u'/', Qt::SkipEmptyParts)) {
        const QModelIndex child = Child(found, name);
        if (!child.isValid()) {
            break;
        }
        found = child;
    }
    return found;
}

QModelIndex FolderTree::NewFolder(const QModelIndex &parent, UserDialogs &dialogs, const Translator &translator) {
    if (!parent.isValid()) {
        return {};
    }
    const std::optional<QString> answer = dialogs.InputText(Translate(translator, u"Enter new folder name:"_s),
                                                            Translate(translator, u"New Folder"_s), {});
    const QString name = SafeFileName(answer.value_or(QString()).trimmed());
    if (name.isEmpty()) {
        return {};
    }
    const QString path = PathOf(Path(parent), name);
    const auto say = [&](const QString &text) {
        dialogs.Show({.text = Translate(translator, text), .title = {}, .icon = MessageIcon::Warning});
    };
    if (QFileInfo::exists(path)) {
        say(u"Folder already exists!"_s);
    } else if (!QDir().mkdir(path)) {
        say(u"Selected folder is read-only. Please select another folder."_s);
        return {};
    }
    return Child(parent, name);
}

} // namespace ostrand
