// Windows that are called for again.
#pragma once

class QWidget;

namespace ostrand {

/// Shows a window before the others and gives it the focus, whether it is closed, minimised or behind them.
void BringUp(QWidget &window);

} // namespace ostrand
