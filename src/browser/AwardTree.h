// Awards below what they are called.
#pragma once

#include "browser/NodeTree.h"

namespace ostrand {

struct Session;
namespace sql {
class Recordset;
}

struct AwardNode : TreeNode {
    QString text;
    QString key;
    QString icon;
    QString movie_title; ///< empty for an award without a film
    int movie_year = 0;
    int award_year = 0;
};

/// The item model of treeAwards: each award, what was won and what was not, the nominations.
class AwardTree : public NodeTree<AwardNode> {
    Q_OBJECT
public:
    /// `KeyRole` begins "Movie|" for a nomination. `IconRole` is "X" for what was won and "NX" for what was not.
    enum DataRole { KeyRole = Qt::UserRole, IconRole, MovieTitleRole, MovieYearRole, AwardYearRole };

    using NodeTree::NodeTree;

    QVariant data(const QModelIndex &index, int role) const override;

    /// Takes the rows of `Awards`, which come sorted by award.
    void ShowAwards(Session &session, sql::Recordset &awards);
    void Clear();
};

} // namespace ostrand
