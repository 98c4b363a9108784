// The tags of a title, as a tree of all tags with ticks.
#pragma once

#include "browser/SheetTitle.h"

#include <QAbstractItemModel>
#include <QHash>

#include <memory>
#include <vector>

namespace ostrand {

struct Session;

/// A tag's full name holds its levels with "/" between them; each level is a node. A tick is a wish: the model tells of
/// it, and `SetTag` writes it.
class ProfileTags : public QAbstractItemModel {
    Q_OBJECT
public:
    explicit ProfileTags(Session &session, QObject *parent = nullptr);
    ~ProfileTags() override;

    /// Reads the tags of the whole collection. Throws SqlError.
    void ReadTree();
    /// Ticks the tags of a title and no others. Throws SqlError.
    void ReadTags(const SheetTitle &title);
    /// Writes or removes a tag of a title, and reads the ticks anew. Throws SqlError.
    void SetTag(const SheetTitle &title, const QString &full_name, bool on);

    /// Takes all ticks away.
    void ClearTags();
    /// Ticks a tag, which gets its nodes when the tree does not have them. One that begins with a blank is none.
    void CheckTag(const QString &full_name);
    /// The full names of the ticked tags, in the order of the tree.
    QStringList Checked() const;
    /// The place of a tag; invalid for an unknown one.
    QModelIndex Find(const QString &full_name) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override;
    /// Tells of the tick and changes nothing.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void Ticked(const QString &full_name, bool on);

private:
    struct Node;
    const Node &At(const QModelIndex &index) const;
    QModelIndex IndexOf(const Node &node) const;
    /// What views learn of new nodes: that of the reset which they come with, or each for itself.
    enum class Telling { OfReset, OfEachNode };
    /// The node of a full name, made with those above it where it is missing; null for no tag.
    Node *MakeNode(const QString &full_name, Telling telling);
    Node *AddBelow(Node &above, const QString &name, const QString &path, Telling telling);
    void Tick(Node &node, bool on);
    void ForEach(const std::function<void(Node &)> &visit) const;

    Session &session_;
    std::unique_ptr<Node> root_;
    QHash<QString, Node *> nodes_; ///< by the full name without case
};

} // namespace ostrand
