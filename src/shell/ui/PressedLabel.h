// A text that can be pressed.
#pragma once

#include <QLabel>

namespace ostrand {

/// Looks like a link, takes the focus and answers a click, Enter or the space bar, while it is pressable.
class PressedLabel : public QLabel {
    Q_OBJECT
public:
    explicit PressedLabel(QWidget *parent = nullptr);
    void SetPressable(bool on);

Q_SIGNALS:
    void Pressed();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool pressable_ = false;
};

} // namespace ostrand
