#include "browser/TagTree.h"

#include "shell/Session.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kLevelDivider = u'/';

sql::TableWatch WatchTags(Session &session) {
    return session.Database ? session.Database->Watch({u"Tags"_s}) : sql::TableWatch();
}

QStringList ReadTags(Session &session) {
    QStringList tags;
    if (!session.Database) {
        return tags;
    }
    sql::Recordset rows =
        session.Database->OpenRecordset(u"SELECT DISTINCT FullyQualifiedName FROM Tags ORDER BY FullyQualifiedName");
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString tag = rows.Text(0);
        if (!tag.isEmpty() && !tag.startsWith(u' ')) {
            tags += tag;
        }
    }
    return tags;
}

} // namespace

Qt::ItemFlags TagTree::flags(const QModelIndex &index) const {
    return index.isValid() ? QAbstractItemModel::flags(index) | Qt::ItemIsUserCheckable : Qt::NoItemFlags;
}

QVariant TagTree::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const TagNode &node = At(index);
    switch (role) {
    case Qt::DisplayRole:
        return node.text;
    case Qt::ToolTipRole:
    case TagRole:
        return node.tag;
    case KeyRole:
        return QString(u't' + node.tag);
    case Qt::CheckStateRole:
        return int(node.checked ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

bool TagTree::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) {
        return false;
    }
    bool &checked = At(index).checked;
    const bool wanted = value.toInt() == Qt::Checked;
    if (checked != wanted) {
        checked = wanted;
        Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
        Q_EMIT CheckChanged(index);
    }
    return true;
}

void TagTree::Load(Session &session, bool keep_checks) {
    const QStringList checked = keep_checks ? CheckedTags() : QStringList();
    Clear();
    watch_ = WatchTags(session);
    Fill(ReadTags(session), checked);
}

bool TagTree::FollowChanges(Session &session) {
    if (session.Database && !watch_.Changed()) {
        return false;
    }
    watch_ = WatchTags(session); // before the tags are read, and a fault is met once
    QStringList tags;
    try {
        tags = ReadTags(session);
    } catch (const sql::SqlError &) {
        Clear();
        throw;
    }
    if (tags == read_) {
        return false;
    }
    const QStringList checked = CheckedTags();
    Clear();
    Fill(tags, checked);
    return true;
}

void TagTree::Fill(const QStringList &tags, const QStringList &checked) {
    beginResetModel();
    read_ = tags;
    for (const QString &tag : tags) {
        AddTag(tag);
    }
    for (const QString &tag : checked) {
        const auto found = by_path_.constFind(sql::SortKey(tag));
        if (found != by_path_.constEnd()) {
            At(*found).checked = true;
        }
    }
    endResetModel();
}

QStringList TagTree::CheckedTags() const {
    QStringList tags;
    CollectChecked(0, tags);
    return tags;
}

void TagTree::Clear() {
    beginResetModel();
    RemoveNodes();
    by_path_.clear();
    read_.clear();
    endResetModel();
}

void TagTree::AddTag(const QString &tag) {
    int parent = 0;
    for (qsizetype at = 0; at <= tag.size();) {
        qsizetype end = tag.indexOf(kLevelDivider, at);
        end = end < 0 ? tag.size() : end;
        parent = AddLevel(parent, tag.mid(at, end - at), tag.left(end));
        at = end + 1;
    }
}

int TagTree::AddLevel(int parent, const QString &text, const QString &path) {
    const QByteArray key = sql::SortKey(path);
    if (const auto found = by_path_.constFind(key); found != by_path_.constEnd()) {
        return *found;
    }
    TagNode node;
    node.text = text;
    node.tag = path;
    const int number = AddNode(parent, std::move(node));
    by_path_.insert(key, number);
    return number;
}

// As deep as a tag has levels, which its 255 characters limit.
void TagTree::CollectChecked(int node, QStringList &tags) const {
    for (const int child : At(node).children) {
        if (At(child).checked) {
            tags += At(child).tag;
        }
        CollectChecked(child, tags);
    }
}

} // namespace ostrand
