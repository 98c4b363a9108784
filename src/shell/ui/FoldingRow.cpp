#include "shell/ui/FoldingRow.h"

#include <QBoxLayout>

namespace ostrand {

FoldingRow::FoldingRow() : layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    layout_->setContentsMargins({});
}

void FoldingRow::Add(QWidget *control) {
    layout_->addWidget(control);
}

QSize FoldingRow::minimumSizeHint() const {
    int widest = 0;
    for (int i = 0; i < layout_->count(); ++i) {
        widest = std::max(widest, layout_->itemAt(i)->minimumSize().width());
    }
    return {widest, layout_->minimumSize().height()};
}

int FoldingRow::RowWidth() const {
    int width = (layout_->count() - 1) * layout_->spacing();
    for (int i = 0; i < layout_->count(); ++i) {
        width += layout_->itemAt(i)->minimumSize().width();
    }
    return width;
}

void FoldingRow::resizeEvent(QResizeEvent *event) {
    const auto direction = width() < RowWidth() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (direction != layout_->direction()) {
        layout_->setDirection(direction);
        updateGeometry();
    }
    QWidget::resizeEvent(event);
}

} // namespace ostrand
