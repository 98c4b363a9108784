// The rows of ListCast and ListCrew.
#pragma once

#include <QAbstractTableModel>

#include <vector>

namespace ostrand {

struct CreditRow {
    QString text;
    QString name; ///< the name that was stored; empty in rows of dividers, which are no persons
    QString role;
    QString birth_year;
    QString position_text;
    QString flags; ///< "c" uncredited, "v" voice, "o" credit only, "r" regular
    int position = 0;
    bool caption = false;
    bool has_headshot = false;
};

/// The item model of ListCast and of ListCrew. Rows come in credit order.
class CreditList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Name, Role, Position };
    enum DataRole { NameRole = Qt::UserRole, BirthYearRole, FlagsRole, CaptionRole, HeadshotRole, PositionRole };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Sorts the present rows, stable: by position as numbers, else as texts. Rows assigned later stand in their own
    /// order again.
    void sort(int column, Qt::SortOrder order) override;

    void SetHeaders(const QStringList &headers);
    void Assign(std::vector<CreditRow> rows);
    const std::vector<CreditRow> &Rows() const { return rows_; }
    /// A click on a header: its column sorts, and the order toggles.
    void SortByHeader(int column);
    int SortColumn() const { return sort_column_; }
    Qt::SortOrder SortOrder() const { return sort_order_; }

private:
    QVariant Text(const CreditRow &row, int column) const;

    std::vector<CreditRow> rows_;
    QStringList headers_;
    int sort_column_ = Position;
    Qt::SortOrder sort_order_ = Qt::AscendingOrder;
};

} // namespace ostrand
