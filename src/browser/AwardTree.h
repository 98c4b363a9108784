// Awards below what they are called.
#pragma once

#include <QAbstractItemModel>

#include <vector>

namespace ostrand {

struct Session;
namespace sql {
class Recordset;
}

/// The item model of treeAwards: each award, what was won and what was not, the nominations.
class AwardTree : public QAbstractItemModel {
    Q_OBJECT
public:
    /// `KeyRole` begins "Movie|" for a nomination. `IconRole` is "X" for what was won and "NX" for what was not.
    enum DataRole { KeyRole = Qt::UserRole, IconRole, MovieTitleRole, MovieYearRole, AwardYearRole };

    using QAbstractItemModel::QAbstractItemModel;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// Takes the rows of `Awards`, which come sorted by award.
    void ShowAwards(Session &session, sql::Recordset &awards);
    void Clear();

private:
    struct Node {
        QString text;
        QString key;
        QString icon;
        QString movie_title; ///< empty for an award without a film
        int movie_year = 0;
        int award_year = 0;
        int parent = 0;
        int row = 0;
        std::vector<int> children;
    };
    int Add(int parent, Node node);

    std::vector<Node> nodes_ = std::vector<Node>(1); ///< the first is the root, which is not shown
};

} // namespace ostrand
