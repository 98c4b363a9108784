// A mark of a review as a bar.
#pragma once

#include <QSlider>

namespace ostrand {

/// Five cells that fill by halves. A click sets the mark; so do the arrow keys, Home and End. `MarkChosen` tells of
/// what the user did, and only of that.
class ReviewBar : public QSlider {
    Q_OBJECT
public:
    explicit ReviewBar(QWidget *parent = nullptr);
    void SetBarColor(const QColor &colour);
    void SetMark(int mark);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void MarkChosen(int mark);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int MarkAt(const QPoint &place) const;

    QColor colour_;
};

} // namespace ostrand
