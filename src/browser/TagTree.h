// The tags of the collection, level below level.
#pragma once

#include "browser/NodeTree.h"
#include "sql/TableWatch.h"

#include <QHash>
#include <QStringList>

namespace ostrand {

struct Session;

struct TagNode : TreeNode {
    QString text;
    QString tag;
    bool checked = false;
};

/// The item model of treeTags. Every level of a tag has a node that can be checked, whether a title has that tag or
/// not. Levels that differ in case alone are one, as they are in statements.
class TagTree : public NodeTree<TagNode> {
    Q_OBJECT
public:
    /// `KeyRole` is "t" and the full path of the tag, `TagRole` the path.
    enum DataRole { KeyRole = Qt::UserRole, TagRole };

    using NodeTree::NodeTree;

    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Changes the check of a node; that of the nodes below and above stays.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    /// Reads the tags of the open database; none without one. With `keep_checks` the tags that are still there stay
    /// checked. Throws SqlError, with no tag left.
    void Load(Session &session, bool keep_checks);
    /// Reads the tags again, with their checks, where they are others than those read the last time; true when they
    /// are. Costs next to nothing while the table of tags is as it was. Throws SqlError, with no tag left.
    bool FollowChanges(Session &session);
    /// The paths of the checked nodes, in the order of the tree.
    QStringList CheckedTags() const;

Q_SIGNALS:
    /// The user checked a node, or took the check away.
    void CheckChanged(const QModelIndex &node);

private:
    void Clear();
    void Fill(const QStringList &tags, const QStringList &checked);
    void AddTag(const QString &tag);
    int AddLevel(int parent, const QString &text, const QString &path);
    void CollectChecked(int node, QStringList &tags) const;

    QHash<QByteArray, int> by_path_;
    QStringList read_; ///< what the nodes are made of
    sql::TableWatch watch_;
};

} // namespace ostrand
