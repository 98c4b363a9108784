#include "browser/ProfileTags.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"

namespace ostrand {

using namespace Qt::StringLiterals;

namespace {

QString Key(const QString &full_name) {
    return full_name.toCaseFolded();
}

bool IsTag(const QString &full_name) {
    return !full_name.isEmpty() && !full_name.startsWith(u' ');
}

/// The name under which a tag is stored: its last level. A title has each name once, so that a second tag of that name
/// is stored under its full name.
QString TagName(Session &session, const SheetTitle &title, const QString &full_name) {
    const QString name = full_name.section(u'/', -1);
    const bool taken =
        !session.Database->OpenRecordset(RowsOf(u"Tags", title) + u" AND TagName = '"_s + EscapeSql(name) + u'\'')
             .Eof();
    return taken || name.isEmpty() ? full_name : name;
}

} // namespace

struct ProfileTags::Node {
    QString name;
    QString path; ///< the full name
    Node *above = nullptr;
    int row = 0; ///< among those below the same node
    bool checked = false;
    std::vector<std::unique_ptr<Node>> below;
};

ProfileTags::ProfileTags(Session &session, QObject *parent) :
    QAbstractItemModel(parent), session_(session), root_(std::make_unique<Node>()) {}

ProfileTags::~ProfileTags() = default;

void ProfileTags::ReadTree() {
    sql::Recordset rows =
        session_.Database->OpenRecordset(u"SELECT DISTINCT FullyQualifiedName FROM Tags ORDER BY FullyQualifiedName"_s);
    beginResetModel();
    root_ = std::make_unique<Node>();
    nodes_.clear();
    for (; !rows.Eof(); rows.MoveNext()) {
        MakeNode(rows.Text(0), Telling::OfReset);
    }
    endResetModel();
}

void ProfileTags::ReadTags(const SheetTitle &title) {
    sql::Recordset rows = session_.Database->OpenRecordset(QString(
        u"SELECT FullyQualifiedName FROM Tags WHERE ProfileID = '"_s + EscapeSql(title.id) + u"' ORDER BY TagName"_s));
    ClearTags();
    for (; !rows.Eof(); rows.MoveNext()) {
        CheckTag(rows.Text(0));
    }
}

void ProfileTags::SetTag(const SheetTitle &title, const QString &full_name, bool on) {
    const QString of_tag = u" AND FullyQualifiedName = '"_s + EscapeSql(full_name) + u'\'';
    const bool has = !session_.Database->OpenRecordset(RowsOf(u"Tags", title) + of_tag).Eof();
    if (on && !has) {
        session_.Database->Execute(QString(
            u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('"_s + EscapeSql(title.id) + u"', '"_s +
            EscapeSql(TagName(session_, title, full_name)) + u"', '"_s + EscapeSql(full_name) + u"')"_s));
    } else if (!on && has) {
        session_.Database->Execute(
            QString(u"DELETE FROM Tags WHERE ProfileID = '"_s + EscapeSql(title.id) + u'\'' + of_tag));
    }
    if (on != has) {
        MarkEdited(session_, title, u"Tags");
    }
    ReadTags(title);
}

void ProfileTags::ClearTags() {
    ForEach([this](Node &node) { Tick(node, false); });
}

void ProfileTags::CheckTag(const QString &full_name) {
    if (Node *node = MakeNode(full_name, Telling::OfEachNode)) {
        Tick(*node, true);
    }
}

QStringList ProfileTags::Checked() const {
    QStringList names;
    ForEach([&](const Node &node) {
        if (node.checked) {
            names += node.path;
        }
    });
    return names;
}

QModelIndex ProfileTags::Find(const QString &full_name) const {
    const Node *node = nodes_.value(Key(full_name));
    return node ? IndexOf(*node) : QModelIndex();
}

ProfileTags::Node *ProfileTags::MakeNode(const QString &full_name, Telling telling) {
    if (!IsTag(full_name)) {
        return nullptr;
    }
    Node *node = root_.get();
    for (qsizetype end = 0; end >= 0 && end < full_name.size();) {
        const qsizetype begin = end == 0 && node == root_.get() ? 0 : end + 1;
        end = full_name.indexOf(u'/', begin);
        const QString path = full_name.left(end < 0 ? full_name.size() : end);
        Node *found = nodes_.value(Key(path));
        node = found ? found : AddBelow(*node, path.mid(begin), path, telling);
    }
    return node;
}

ProfileTags::Node *ProfileTags::AddBelow(Node &above, const QString &name, const QString &path, Telling telling) {
    const int row = int(above.below.size());
    if (telling == Telling::OfEachNode) {
        beginInsertRows(&above == root_.get() ? QModelIndex() : IndexOf(above), row, row);
    }
    auto node = std::make_unique<Node>();
    node->name = name;
    node->path = path;
    node->above = &above;
    node->row = row;
    Node *added = node.get();
    above.below.push_back(std::move(node));
    nodes_.insert(Key(path), added);
    if (telling == Telling::OfEachNode) {
        endInsertRows();
    }
    return added;
}

void ProfileTags::Tick(Node &node, bool on) {
    if (node.checked != on) {
        node.checked = on;
        Q_EMIT dataChanged(IndexOf(node), IndexOf(node), {Qt::CheckStateRole});
    }
}

void ProfileTags::ForEach(const std::function<void(Node &)> &visit) const {
    std::vector<Node *> open = {root_.get()};
    while (!open.empty()) {
        Node *node = open.back();
        open.pop_back();
        if (node != root_.get()) {
            visit(*node);
        }
        for (auto below = node->below.rbegin(); below != node->below.rend(); ++below) {
            open.push_back(below->get());
        }
    }
}

const ProfileTags::Node &ProfileTags::At(const QModelIndex &index) const {
    return index.isValid() ? *static_cast<const Node *>(index.constInternalPointer()) : *root_;
}

QModelIndex ProfileTags::IndexOf(const Node &node) const {
    return createIndex(node.row, 0, &node);
}

QModelIndex ProfileTags::index(int row, int column, const QModelIndex &parent) const {
    const Node &above = At(parent);
    const bool is_there = row >= 0 && row < int(above.below.size()) && column == 0;
    return is_there ? IndexOf(*above.below[size_t(row)]) : QModelIndex();
}

QModelIndex ProfileTags::parent(const QModelIndex &child) const {
    const Node *above = child.isValid() ? At(child).above : nullptr;
    return !above || above == root_.get() ? QModelIndex() : IndexOf(*above);
}

int ProfileTags::rowCount(const QModelIndex &parent) const {
    return int(At(parent).below.size());
}

QVariant ProfileTags::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return At(index).name;
    case Qt::CheckStateRole:
        return int(At(index).checked ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

bool ProfileTags::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) {
        return false;
    }
    Q_EMIT Ticked(QString(At(index).path), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags ProfileTags::flags(const QModelIndex &index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable : Qt::NoItemFlags;
}

} // namespace ostrand
