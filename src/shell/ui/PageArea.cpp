#include "shell/ui/PageArea.h"

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

} // namespace ostrand
