// The tags of the collection, level below level.
#pragma once

#include "sql/TableWatch.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QStringList>

#include <vector>

namespace ostrand {

struct Session;

/// The item model of treeTags. Every level of a tag has a node that can be checked, whether a title has that tag or
/// not. Levels that differ in case alone are one, as they are in statements.
class TagTree : public QAbstractItemModel {
    Q_OBJECT
public:
    /// `KeyRole` is "t" and the full path of the tag, `TagRole` the path.
    enum DataRole { KeyRole = Qt::UserRole, TagRole };

    using QAbstractItemModel::QAbstractItemModel;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
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
    struct Node {
        QString text;
        QString tag;
        bool checked = false;
        int parent = 0;
        int row = 0;
        std::vector<int> children;
    };
    void Clear();
    void Fill(const QStringList &tags, const QStringList &checked);
    void AddTag(const QString &tag);
    int AddLevel(int parent, const QString &text, const QString &path);
    void CollectChecked(int node, QStringList &tags) const;

    std::vector<Node> nodes_ = std::vector<Node>(1); ///< the first is the root, which is not shown
    QHash<QByteArray, int> by_path_;
    QStringList read_; ///< what the nodes are made of
    sql::TableWatch watch_;
};

} // namespace ostrand
