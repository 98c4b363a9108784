#include "browser/ui/ReviewBar.h"

#include "browser/ProfileReview.h"
#include "shell/ui/FocusFrame.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace ostrand {

namespace {

constexpr int kCells = 5;
constexpr int kLetters = 24;
constexpr int kFewestLetters = 10;

} // namespace

ReviewBar::ReviewBar(QWidget *parent) : QSlider(Qt::Horizontal, parent) {
    setRange(0, kBestMark);
    setSingleStep(1);
    setPageStep(2);
    setTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QSlider::valueChanged, this, &ReviewBar::MarkChosen);
}

void ReviewBar::SetBarColor(const QColor &colour) {
    colour_ = colour;
    update();
}

void ReviewBar::SetMark(int mark) {
    const QSignalBlocker silent(this);
    setValue(mark);
    update();
}

QSize ReviewBar::sizeHint() const {
    return {fontMetrics().averageCharWidth() * kLetters, fontMetrics().height() * 5 / 4};
}

QSize ReviewBar::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * kFewestLetters, fontMetrics().height() * 5 / 4};
}

void ReviewBar::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QRect field = rect().adjusted(2, 2, -3, -3);
    painter.fillRect(field, palette().base());
    const int filled = field.width() * FilledHalves(sliderPosition()) / kHalfCells;
    const bool enabled = isEnabled() && colour_.isValid();
    painter.fillRect(QRect(field.topLeft(), QSize(filled, field.height())),
                     enabled ? colour_ : palette().color(QPalette::Mid));
    QColor line = palette().color(QPalette::Text);
    line.setAlphaF(0.5);
    painter.setPen(line);
    painter.drawRect(field);
    for (int cell = 1; cell < kCells; ++cell) {
        const int x = field.left() + field.width() * cell / kCells;
        painter.drawLine(x, field.top(), x, field.bottom());
    }
    DrawFocusFrame(*this, painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(field);
    }
}

int ReviewBar::MarkAt(const QPoint &place) const {
    const int x = layoutDirection() == Qt::RightToLeft ? width() - place.x() : place.x();
    return MarkOfHalves((x * kHalfCells + width() - 1) / std::max(width(), 1));
}

void ReviewBar::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        setSliderDown(true);
        setSliderPosition(MarkAt(event->position().toPoint()));
        update();
    }
}

void ReviewBar::mouseMoveEvent(QMouseEvent *event) {
    if (isSliderDown()) {
        setSliderPosition(MarkAt(event->position().toPoint()));
        update();
    }
}

void ReviewBar::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && isSliderDown()) {
        setSliderDown(false); // which takes the position as the mark
    }
}

void ReviewBar::wheelEvent(QWheelEvent *event) {
    event->ignore(); // a page that is scrolled gives no marks
}

} // namespace ostrand
