// The bar of a SplitPanel.
#pragma once

#include <QPointer>
#include <QWidget>

namespace ostrand {

class SplitPanel;

/// Dragging shows where the bar would lie and takes effect on release; Esc takes it back. With the focus, the arrow
/// keys move it, Home and End take it to the edges.
class SplitBar : public QWidget {
    Q_OBJECT
public:
    explicit SplitBar(SplitPanel &panel);
    void Adapt();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int Along(const QPoint &point) const;
    int Start() const;
    void ShowGhost(int at);
    void EndDrag();

    SplitPanel &panel_;
    bool dragging_ = false;
    int grip_ = 0;   ///< where on the bar it was taken
    int target_ = 0; ///< where it would lie
    QPointer<QWidget> ghost_;
};

} // namespace ostrand
