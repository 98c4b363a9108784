#include "shell/ui/SplitBar.h"

#include "shell/ui/SplitPanel.h"
#include "shell/ui/Twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

namespace ostrand {

namespace {

constexpr int kKeyStep = 10; ///< pixels

} // namespace

SplitBar::SplitBar(SplitPanel &panel) : QWidget(&panel), panel_(panel) {
    setObjectName(QStringLiteral("SplitBar"));
    setAccessibleName(QStringLiteral("Splitter"));
    setFocusPolicy(Qt::TabFocus);
    Adapt();
}

void SplitBar::Adapt() {
    setCursor(panel_.Horizontal() ? Qt::SplitVCursor : Qt::SplitHCursor);
    setAutoFillBackground(panel_.BackColor().isValid());
    QPalette colors = panel_.palette();
    if (panel_.BackColor().isValid()) {
        colors.setColor(QPalette::Window, panel_.BackColor());
    }
    setPalette(colors);
    update();
}

int SplitBar::Along(const QPoint &point) const {
    return panel_.Horizontal() ? point.y() : point.x();
}

int SplitBar::Start() const {
    return Along(pos());
}

void SplitBar::ShowGhost(int at) {
    if (!ghost_) {
        // A child of the window, so that it lies above the panes.
        ghost_ = new QWidget(window());
        ghost_->setObjectName(QStringLiteral("SplitGhost"));
        ghost_->setAttribute(Qt::WA_TransparentForMouseEvents);
        ghost_->setAutoFillBackground(true);
        QPalette colors = palette();
        colors.setColor(QPalette::Window,
                        panel_.DragColor().isValid() ? panel_.DragColor() : colors.color(QPalette::Dark));
        ghost_->setPalette(colors);
    }
    const QRect place = panel_.Slice(at, panel_.BarWidth());
    ghost_->setGeometry(QRect(panel_.mapTo(window(), place.topLeft()), place.size()));
    ghost_->raise();
    ghost_->show();
}

void SplitBar::EndDrag() {
    dragging_ = false;
    delete ghost_;
}

void SplitBar::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    dragging_ = true;
    grip_ = Along(event->position().toPoint());
    target_ = Start();
}

void SplitBar::mouseMoveEvent(QMouseEvent *event) {
    if (!dragging_) {
        return;
    }
    int snapped = 0;
    target_ = panel_.Placed(Start() + Along(event->position().toPoint()) - grip_, snapped);
    ShowGhost(target_);
}

void SplitBar::mouseReleaseEvent(QMouseEvent *event) {
    if (!dragging_ || event->button() != Qt::LeftButton) {
        return;
    }
    EndDrag();
    if (target_ != Start()) {
        panel_.SetPosition(ToTwips(target_));
    }
}

void SplitBar::keyPressEvent(QKeyEvent *event) {
    const int extent = panel_.Extent();
    int wanted = Start();
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        wanted -= kKeyStep;
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        wanted += kKeyStep;
        break;
    case Qt::Key_Home:
        wanted = 0;
        break;
    case Qt::Key_End:
        wanted = extent;
        break;
    case Qt::Key_Escape:
        if (!dragging_) {
            QWidget::keyPressEvent(event);
        }
        EndDrag();
        return;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    panel_.SetPosition(ToTwips(panel_.KeyTarget(Start(), wanted)));
}

void SplitBar::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    update();
}

void SplitBar::focusOutEvent(QFocusEvent *event) {
    QWidget::focusOutEvent(event);
    update();
}

void SplitBar::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_Horizontal, !panel_.Horizontal());
    style()->drawControl(QStyle::CE_Splitter, &option, &painter, this);
    if (hasFocus()) {
        painter.fillRect(rect(), palette().color(QPalette::Highlight));
    }
}

} // namespace ostrand
