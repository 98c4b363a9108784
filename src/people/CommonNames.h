// The common names of the cross-links, as a list shows them.
#pragma once

#include <QAbstractTableModel>

#include <vector>

namespace ostrand {

/// A common name exists through its aliases; the list may hold one more that has none yet.
class CommonNames : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { CommonName, BirthYear, Columns };
    struct Row {
        QString name;
        int birth_year = 0;
    };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    void SetHeaders(const QStringList &headers) { headers_ = headers; }
    void Assign(std::vector<Row> rows);
    const Row &At(int row) const { return rows_[size_t(row)]; }
    /// The row of a name and year; -1 without one. Names compare as in the table.
    int Find(const QString &name, int birth_year) const;
    /// Appends a row and returns its number.
    int Append(Row row);
    void Remove(int row);

private:
    QStringList headers_;
    std::vector<Row> rows_;
};

} // namespace ostrand
