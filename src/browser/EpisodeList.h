// The rows of listEpisodes.
#pragma once

#include <QAbstractTableModel>

namespace ostrand {

struct EpisodeRow {
    QString key; ///< EpisodeID
    QString number;
    QString title;
    QString tag;
    QString season;
};

/// The item model of listEpisodes, in the order of the statement that gave the rows.
class EpisodeList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Number, Title };
    enum Role { KeyRole = Qt::UserRole, TagRole, SeasonRole };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Sorts the present rows as text; rows assigned later stand in their own order again.
    void sort(int column, Qt::SortOrder order) override;

    void SetHeaders(const QStringList &headers);
    void Assign(std::vector<EpisodeRow> rows);
    void Clear() { Assign({}); }
    /// Gives an episode another title; it stays in its place.
    void SetTitle(int row, const QString &title);
    const std::vector<EpisodeRow> &Rows() const { return rows_; }
    /// The key of a row; empty outside the list.
    QString KeyAt(int row) const { return row < 0 || row >= rowCount() ? QString() : rows_[size_t(row)].key; }
    /// -1 when there is none.
    int RowOfKey(const QString &key) const;

private:
    std::vector<EpisodeRow> rows_;
    QStringList headers_;
};

} // namespace ostrand
