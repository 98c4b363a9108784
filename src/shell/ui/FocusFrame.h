// The mark of the focus on controls that draw themselves.
#pragma once

class QPainter;
class QWidget;

namespace ostrand {

/// Draws the style's frame around a control while it has the focus.
void DrawFocusFrame(QWidget &control, QPainter &painter);

} // namespace ostrand
