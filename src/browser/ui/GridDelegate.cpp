#include "browser/ui/GridDelegate.h"

#include <QPainter>

namespace ostrand {

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (grid_lines_) {
        painter->save();
        QColor line = option.palette.color(QPalette::Text);
        constexpr float kFaint = 0.15F;
        line.setAlphaF(kFaint);
        painter->setPen(line);
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
        painter->restore();
    }
}

} // namespace ostrand
