// A page of a window with tabs.
#pragma once

#include <QScrollArea>

class QTabWidget;

namespace ostrand {

/// Shows a page whole where there is room, and scrolls it on a screen that is too small.
class PageArea : public QScrollArea {
    Q_OBJECT
public:
    explicit PageArea(QWidget *page);

    QSize sizeHint() const override;
};

/// Ctrl+Tab and Ctrl+Shift+Tab turn the pages from everywhere in the window, not only from within them.
void LetTurnPages(QTabWidget &tabs, QWidget &window);

} // namespace ostrand
