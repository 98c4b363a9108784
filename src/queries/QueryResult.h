// What a query of the user gave, as a list.
#pragma once

#include "sql/Recordset.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <optional>
#include <vector>

namespace ostrand {

/// The rows of a result set, or a table of texts. Cells become text only when they are shown, so that a result may
/// have any size. Sorting by a column takes numbers and dates by their value and texts by the database's collation;
/// what is NULL comes first.
class QueryResult : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order) override;

    void Assign(sql::Recordset rows);
    /// Rows shorter than the columns end in empty cells.
    void Assign(QStringList columns, std::vector<QStringList> rows);
    void Clear();

    QString Text(int row, int column) const;
    /// The ProfileID that a row begins with; empty where it begins with anything else.
    QString ProfileOf(int row) const;

private:
    void Show(QStringList columns, int count);
    std::vector<int> SortedPlaces(int column, Qt::SortOrder order) const;

    QStringList columns_;
    std::optional<sql::Recordset> recordset_;
    std::vector<QStringList> texts_;
    std::vector<int> places_; ///< the row of the result that stands at each row of the list
};

} // namespace ostrand
