// The rows of listSeries: the titles of a collection tab, or the series.
#pragma once

#include <QAbstractTableModel>

#include <string_view>

namespace ostrand {

inline constexpr int kTitleColumns = 6;

/// One row of the list. `header` rows stand above a group of titles and are no titles themselves.
struct TitleRow {
    QString key; ///< a ProfileID, behind which "|" and a number may stand
    QString tag;
    QString tool_tip;
    std::array<QString, kTitleColumns> texts;
    bool header = false;
};

/// The item model of listSeries. Keys are unique without regard to case.
class TitleList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Title, Number, SortTitle, Year, PurchaseDate, ReleaseDate };
    enum Role { KeyRole = Qt::UserRole, TagRole, ColourRole, HeaderRole };
    /// What a delegate paints a row's text in.
    enum class Colour { Text, Alternate, Header };
    enum class Striping {
        None,     ///< as the rows were added: headers in their colour, all else in the text colour
        Plain,    ///< every row in the text colour
        Rows,     ///< every second row in the alternate colour
        KeepBold, ///< the same, headers left as they are
    };
    enum class Order { Ascending = 0, Descending = 1 };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void SetHeaders(const QStringList &headers);
    /// All rows at once, in their order; the automatic sort, if any, applies to them. A row whose key was there before
    /// is left out; returns how many were.
    int Assign(std::vector<TitleRow> rows);
    void Clear();
    /// Takes all rows of these titles away, and the headers that stand above no title then.
    void RemoveTitles(const QStringList &ids);
    /// Gives a row other texts; it stays in its place and keeps its key.
    void SetTexts(int row, const TitleRow &texts);
    const std::vector<TitleRow> &Rows() const { return rows_; }

    /// Turns the automatic sort on and sorts: a text comparison of the column in the database's collation, stable.
    void SortBy(int column, Order order);
    /// Turns it off; the rows stay where they are.
    void Unsort();
    bool IsSorted() const { return sorted_; }
    int SortColumn() const { return sort_column_; }
    Order SortOrder() const { return sort_order_; }

    void SetStriping(Striping striping);
    Striping GetStriping() const { return striping_; }

    /// Widths of the columns as fractions of the list's width; 0 hides a column.
    void SetWidth(int column, double fraction);
    double Width(int column) const { return widths_[size_t(column)]; }

    /// The row with this whole key, whatever its case; -1 when there is none.
    int RowOfKey(const QString &key) const;
    /// The first row of a profile or series, whatever stands behind "|" in its key; -1 when there is none.
    int RowOfTitle(const QString &id) const;
    const TitleRow &At(int row) const { return rows_[size_t(row)]; }

Q_SIGNALS:
    void WidthsChanged();

private:
    Colour ColourOf(int row) const;
    /// Where the sort key of a row stands among those of all rows.
    struct KeyPlace {
        quint32 start;
        quint32 size;
    };

    /// Makes the sort keys of the column that sorts, unless they are there.
    void MakeSortKeys();
    std::string_view KeyOf(int row) const;
    /// Orders the rows; returns where each one went.
    std::vector<int> SortRows();

    std::vector<TitleRow> rows_;
    // The keys of `keyed_column_` one behind the other, kept since a list is often sorted again the other way.
    QByteArray sort_keys_;
    std::vector<KeyPlace> key_places_; ///< in the order of the rows
    int keyed_column_ = -1;
    QStringList headers_;
    std::array<double, kTitleColumns> widths_ = {0.78, 0, 0, 0, 0, 0};
    bool sorted_ = false;
    int sort_column_ = SortTitle;
    Order sort_order_ = Order::Ascending;
    Striping striping_ = Striping::None;
};

/// A row's key without what tells apart several rows of one profile.
QString ProfileOfKey(const QString &key);

} // namespace ostrand
