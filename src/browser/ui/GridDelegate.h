// Rows with grid lines.
#pragma once

#include <QStyledItemDelegate>

namespace ostrand {

/// Draws grid lines around the cells of a list when asked.
class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void SetGridLines(bool shown) { grid_lines_ = shown; }
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    bool grid_lines_ = false;
};

} // namespace ostrand
