// Controls beside each other where there is room.
#pragma once

#include <QWidget>

class QBoxLayout;

namespace ostrand {

/// A row that becomes a column where it is too narrow for its controls.
class FoldingRow : public QWidget {
    Q_OBJECT
public:
    FoldingRow();

    void Add(QWidget *control);
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int RowWidth() const;

    QBoxLayout *layout_;
};

} // namespace ostrand
