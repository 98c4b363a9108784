#include "shell/ui/FocusFrame.h"

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace ostrand {

void DrawFocusFrame(QWidget &control, QPainter &painter) {
    if (!control.hasFocus()) {
        return;
    }
    QStyleOptionFocusRect option;
    option.initFrom(&control);
    control.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &control);
}

} // namespace ostrand
