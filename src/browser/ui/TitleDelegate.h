// Paints the rows of listSeries.
#pragma once

#include <QStyledItemDelegate>

namespace ostrand {

/// Turns the colours and the bold headers of a TitleList into looks, and draws grid lines when asked.
class TitleDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void SetGridLines(bool shown) { grid_lines_ = shown; }
    bool GridLines() const { return grid_lines_; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    bool grid_lines_ = false;
};

} // namespace ostrand
