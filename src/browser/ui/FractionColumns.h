// Columns whose widths are parts of the width of their list.
#pragma once

#include <QList>
#include <QObject>

class QTreeView;

namespace ostrand {

/// Keeps the widths as the list grows and shrinks; the user may change them. A part of 0 hides a column.
class FractionColumns : public QObject {
    Q_OBJECT
public:
    explicit FractionColumns(QTreeView *list);

    /// One for each column of the list.
    void Set(const QList<double> &fractions);
    /// The column takes from the one before what its header needs, until the user draws it to another width.
    void ShowWhole(int column) { whole_ = column; }
    const QList<double> &Fractions() const { return fractions_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Apply();

    QTreeView *list_;
    QList<double> fractions_;
    int whole_ = -1; ///< see ShowWhole
    bool applying_ = false;
};

/// Moves the columns to positions counted from 1; columns that have none stay behind the others.
void PlaceColumns(QTreeView &list, const QList<int> &positions);
/// The positions of the first `count` columns.
QList<int> ColumnPlaces(const QTreeView &list, qsizetype count);

} // namespace ostrand
