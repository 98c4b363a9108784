// A page of a window with tabs.
#pragma once

#include <QScrollArea>

namespace ostrand {

/// Shows a page whole where there is room, and scrolls it on a screen that is too small.
class PageArea : public QScrollArea {
    Q_OBJECT
public:
    explicit PageArea(QWidget *page);

    QSize sizeHint() const override;
};

} // namespace ostrand
