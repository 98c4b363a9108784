// The rows of listSeries: the titles of a collection tab, or the series.
#pragma once

#include "sql/SortKeys.h"

#include <QAbstractTableModel>

#include <functional>

namespace ostrand {

inline constexpr int kTitleColumns = 6;

/// One row of the list. `header` rows stand above a group of titles and are no titles themselves.
struct TitleRow {
    QString key; ///< a ProfileID, behind which "|" and a number may stand
    /// The key of the row that this one stands below: the header of its group, the boxset that it is a child of.
    QString parent_key;
    QString tag;
    QString tool_tip;
    std::array<QString, kTitleColumns> texts;
    bool header = false;
    QString group; ///< of a header: its text in English
};

/// The item model of listSeries. Keys are unique without regard to case.
///
/// The list may be narrowed to a part of its rows; all members but Assign and the sorts know those alone then.
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
    /// Gives all rows of a title, shown or not, the texts that are made for each; they stay in their places and keep
    /// their keys.
    void SetTexts(const QString &id, const std::function<TitleRow(const TitleRow &row)> &make_texts);

    /// Gives the headers of groups, shown or not, the texts that are made of their English ones.
    void SetHeaderTexts(const std::function<QString(const QString &group)> &make_text);

    /// By row of all that are there, whether it is to be shown; empty for all of them. Asked whenever there are other
    /// rows, and at Narrow. Rows above one that is shown are so too, and headers not by themselves. `order` is another
    /// number when these are other rows than at the call before, or in another order. What it throws leaves no row
    /// shown.
    using RowFilter = std::function<std::vector<bool>(const std::vector<TitleRow> &rows, int order)>;
    void SetRowFilter(RowFilter filter) { filter_ = std::move(filter); }
    /// Asks the filter again; false where the same rows are shown as before.
    bool Narrow();
    /// The number of a shown row among all that are there, which Narrow does not change; -1 for none. And back.
    int NumberOf(int row) const { return row < 0 || row >= rowCount() ? -1 : shown_[size_t(row)]; }
    int RowOfNumber(int number) const;
    /// The rows that are shown, as copies.
    std::vector<TitleRow> Rows() const;
    /// The row with this whole key, shown or not; null when there is none.
    const TitleRow *Held(const QString &key) const;
    /// A row of this profile or series is there and is not shown.
    bool HoldsHidden(const QString &id) const;
    /// The rows that are no headers.
    int TitleCount() const;

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
    /// The key of a row; empty outside the list.
    QString KeyAt(int row) const { return row < 0 || row >= rowCount() ? QString() : At(row).key; }
    const TitleRow &At(int row) const { return rows_[size_t(shown_[size_t(row)])]; }

Q_SIGNALS:
    void WidthsChanged();

private:
    Colour ColourOf(int row) const;
    /// Makes the sort keys of the column that sorts, unless they are there.
    void MakeSortKeys();
    /// Orders all rows; returns where each one went.
    std::vector<int> SortRows();
    /// By row, the one that it stands below; -1 for none.
    const std::vector<int> &Parents();
    /// The rows that the filter lets through, and those above them.
    std::vector<int> Passing();
    template <typename Test>
    int FirstShown(Test test) const;

    std::vector<TitleRow> rows_; ///< all of them
    std::vector<int> shown_;     ///< those that are shown, in their order
    RowFilter filter_;
    int order_ = 0;
    std::vector<int> parents_; ///< see Parents; made for `parents_order_`
    int parents_order_ = -1;
    sql::SortKeys sort_keys_; ///< of `keyed_column_`; kept since a list is often sorted again the other way
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
