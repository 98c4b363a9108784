#include "browser/CrewTree.h"

#include "people/HeadshotViewer.h"

namespace ostrand {

namespace {

bool IsEmpty(const CrewTeam &team) {
    return team.unassigned.empty() &&
           std::all_of(team.members.begin(), team.members.end(), [](const auto &category) { return category.empty(); });
}

/// Those of one category stand by position, whatever was added to them later.
void SortCrewTree(std::vector<CrewMember> &members) {
    std::stable_sort(members.begin(), members.end(),
                     [](const CrewMember &a, const CrewMember &b) { return a.position < b.position; });
}

} // namespace

QModelIndex CrewTree::index(int row, int column, const QModelIndex &parent) const {
    const Node &node = nodes_[parent.isValid() ? size_t(parent.internalId()) : 0];
    if (column != 0 || row < 0 || row >= int(node.children.size())) {
        return {};
    }
    return createIndex(row, 0, quintptr(node.children[size_t(row)]));
}

QModelIndex CrewTree::parent(const QModelIndex &index) const {
    if (!index.isValid()) {
        return {};
    }
    const int above = nodes_[size_t(index.internalId())].parent;
    return above == 0 ? QModelIndex() : createIndex(nodes_[size_t(above)].row, 0, quintptr(above));
}

int CrewTree::rowCount(const QModelIndex &parent) const {
    return int(nodes_[parent.isValid() ? size_t(parent.internalId()) : 0].children.size());
}

int CrewTree::columnCount(const QModelIndex &) const {
    return 1;
}

QVariant CrewTree::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const Node &node = nodes_[size_t(index.internalId())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return node.text;
    case KeyRole:
        return node.key;
    case TagRole:
        return node.tag;
    case CaptionRole:
        return node.caption;
    case HeadshotRole:
        return node.has_headshot;
    case NameRole:
        return PersonOfTag(node.tag).name;
    case PositionRole:
        return node.position;
    default:
        return {};
    }
}

int CrewTree::Add(int parent, const QString &text, const QString &tag) {
    const int number = int(nodes_.size());
    Node node;
    node.key = u'N' + QString::number(number);
    node.text = text;
    node.tag = tag;
    node.parent = parent;
    node.row = int(nodes_[size_t(parent)].children.size());
    nodes_.push_back(std::move(node));
    nodes_[size_t(parent)].children.push_back(number);
    return number;
}

void CrewTree::AddCategory(int parent, const QString &text, std::vector<CrewMember> members) {
    if (members.empty()) {
        return;
    }
    SortCrewTree(members);
    const int category = Add(parent, text);
    for (const CrewMember &member : members) {
        Node &node = nodes_[size_t(Add(category, member.text, member.tag))];
        node.has_headshot = member.has_headshot;
        node.position = member.position;
    }
}

void CrewTree::Assign(const QStringList &categories, const QString &unassigned, const std::vector<CrewTeam> &teams) {
    beginResetModel();
    nodes_.assign(1, {});
    for (const CrewTeam &team : teams) {
        if (IsEmpty(team)) {
            continue;
        }
        int above = 0;
        if (!team.caption.isEmpty()) {
            above = Add(0, team.caption);
            nodes_[size_t(above)].caption = true;
        }
        for (size_t i = 0; i < team.members.size(); ++i) {
            AddCategory(above, categories.value(qsizetype(i)), team.members[i]);
        }
        AddCategory(above, unassigned, team.unassigned);
    }
    endResetModel();
}

} // namespace ostrand
