// Trees of nodes that lie one behind the other.
#pragma once

#include <QAbstractItemModel>

#include <vector>

namespace ostrand {

/// What a node of a NodeTree needs to find its way.
struct TreeNode {
    int parent = 0;
    int row = 0; ///< among those below the same node
    std::vector<int> children;
};

/// The shape of a model with one column whose nodes, derived from TreeNode, are told by their numbers. A model adds the
/// data of its nodes, and fills it within a reset.
template <typename Node>
class NodeTree : public QAbstractItemModel {
public:
    using QAbstractItemModel::QAbstractItemModel;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override {
        const std::vector<int> &siblings = At(parent).children;
        if (column != 0 || row < 0 || row >= int(siblings.size())) {
            return {};
        }
        return createIndex(row, 0, quintptr(siblings[size_t(row)]));
    }
    QModelIndex parent(const QModelIndex &index) const override {
        const int above = index.isValid() ? At(index).parent : 0;
        return above == 0 ? QModelIndex() : createIndex(nodes_[size_t(above)].row, 0, quintptr(above));
    }
    int rowCount(const QModelIndex &parent = {}) const override { return int(At(parent).children.size()); }
    int columnCount(const QModelIndex & = {}) const override { return 1; }

protected:
    /// The root, number 0, which is not shown, for an invalid index.
    const Node &At(const QModelIndex &index) const { return nodes_[index.isValid() ? size_t(index.internalId()) : 0]; }
    Node &At(const QModelIndex &index) { return nodes_[index.isValid() ? size_t(index.internalId()) : 0]; }
    Node &At(int number) { return nodes_[size_t(number)]; }
    const Node &At(int number) const { return nodes_[size_t(number)]; }
    int NextNumber() const { return int(nodes_.size()); }
    /// Appends a node behind the children of another one and returns its number. Ends references to nodes.
    int AddNode(int parent, Node node) {
        const int number = NextNumber();
        node.parent = parent;
        node.row = int(At(parent).children.size());
        At(parent).children.push_back(number);
        nodes_.push_back(std::move(node));
        return number;
    }
    /// Leaves the root alone.
    void RemoveNodes() { nodes_.assign(1, {}); }

private:
    std::vector<Node> nodes_ = std::vector<Node>(1);
};

} // namespace ostrand
