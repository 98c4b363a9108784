// The crew below its categories.
#pragma once

#include "browser/NodeTree.h"

#include <QStringList>

namespace ostrand {

struct CrewMember {
    QString text;
    QString tag; ///< name and birth year, joined by "|"
    int position = 0;
    bool has_headshot = false;
};

/// The crew of a title, or of one team of it, by categories.
struct CrewTeam {
    QString caption; ///< empty for those who belong to no team
    /// Those of each category, in the order of the categories.
    std::vector<std::vector<CrewMember>> members;
    /// Those whose role belongs to no category.
    std::vector<CrewMember> unassigned;
};

struct CrewNode : TreeNode {
    QString key; ///< "N" and a running number
    QString text;
    QString tag;
    bool caption = false;
    bool has_headshot = false;
    int position = 0;
};

/// The item model of treeCrew: categories with their members, then the members without a category below a node of their
/// own, then each team with the same below its caption. Nodes without members are left out.
class CrewTree : public NodeTree<CrewNode> {
    Q_OBJECT
public:
    enum DataRole { KeyRole = Qt::UserRole, TagRole, CaptionRole, HeadshotRole, NameRole, PositionRole };

    using NodeTree::NodeTree;

    QVariant data(const QModelIndex &index, int role) const override;

    /// `categories` are the captions of `CrewTeam::members`, `unassigned` that of the members without one.
    void Assign(const QStringList &categories, const QString &unassigned, const std::vector<CrewTeam> &teams);
    void Clear() { Assign({}, {}, {}); }

private:
    int Add(int parent, const QString &text, const QString &tag = {});
    void AddCategory(int parent, const QString &text, std::vector<CrewMember> members);
};

} // namespace ostrand
