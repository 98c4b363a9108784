// What a list window shows.
#pragma once

#include <QAbstractTableModel>

#include <functional>
#include <memory>

namespace ostrand {

/// What a row of a list window stands for.
enum class ListRowKind { None, Credit, Movie, Episode };

struct ListTableRow {
    QStringList texts;
    /// ProfileID or EpisodeID that a double click goes to, or the value of the database that the row shows; empty for
    /// none.
    QString key;
    ListRowKind kind = ListRowKind::None;
};

/// A table of texts with a caption. Sorting by a column compares texts in the database's collation.
class ListTable : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ListTable(QString table_caption = {}, QStringList columns = {}, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    void Assign(std::vector<ListTableRow> rows);
    /// Other headers for the same number of columns.
    void SetColumns(const QStringList &columns);
    /// Other columns, and no rows.
    void Rebuild(QStringList columns);
    const std::vector<ListTableRow> &Rows() const { return rows_; }

    QString caption;
    /// Makes the table anew in the present language, from what the database holds now; empty where it cannot.
    std::function<std::unique_ptr<ListTable>()> again;

private:
    QStringList columns_;
    std::vector<ListTableRow> rows_;
};

} // namespace ostrand
