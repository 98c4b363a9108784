// A line of text that never widens its window.
#pragma once

#include <QLabel>

namespace ostrand {

/// Shows as much of its text as there is room for; the tool tip of a text cut off holds it whole.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget *parent = nullptr, Qt::TextElideMode mode = Qt::ElideMiddle);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool IsCutOff() const;

    Qt::TextElideMode mode_;
};

} // namespace ostrand
