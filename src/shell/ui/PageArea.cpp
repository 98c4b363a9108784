#include "shell/ui/PageArea.h"

#include <QShortcut>
#include <QTabWidget>

namespace ostrand {

PageArea::PageArea(QWidget *page) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(page);
    setFocusPolicy(Qt::NoFocus);
}

QSize PageArea::sizeHint() const {
    return widget()->sizeHint(); // of which a scroll area would ask for no more than some lines
}

void LetTurnPages(QTabWidget &tabs, QWidget &window) {
    for (const auto &[key, by] :
         {std::pair(Qt::CTRL | Qt::Key_Tab, 1), std::pair(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1),
          std::pair(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1)}) {
        QObject::connect(new QShortcut(QKeySequence(key), &window), &QShortcut::activated, &tabs, [&tabs, by = by] {
            tabs.setCurrentIndex((tabs.currentIndex() + by + tabs.count()) % tabs.count());
        });
    }
}

} // namespace ostrand
