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

QVariant CrewTree::data(const QModelIndex &index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const CrewNode &node = At(index);
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
    CrewNode node;
    node.key = u'N' + QString::number(NextNumber());
    node.text = text;
    node.tag = tag;
    return AddNode(parent, std::move(node));
}

void CrewTree::AddCategory(int parent, const QString &text, std::vector<CrewMember> members) {
    if (members.empty()) {
        return;
    }
    SortCrewTree(members);
    const int category = Add(parent, text);
    for (const CrewMember &member : members) {
        CrewNode &node = At(Add(category, member.text, member.tag));
        node.has_headshot = member.has_headshot;
        node.position = member.position;
    }
}

void CrewTree::Assign(const QStringList &categories, const QString &unassigned, const std::vector<CrewTeam> &teams) {
    beginResetModel();
    RemoveNodes();
    for (const CrewTeam &team : teams) {
        if (IsEmpty(team)) {
            continue;
        }
        int above = 0;
        if (!team.caption.isEmpty()) {
            above = Add(0, team.caption);
            At(above).caption = true;
        }
        for (size_t i = 0; i < team.members.size(); ++i) {
            AddCategory(above, categories.value(qsizetype(i)), team.members[i]);
        }
        AddCategory(above, unassigned, team.unassigned);
    }
    endResetModel();
}

} // namespace ostrand
