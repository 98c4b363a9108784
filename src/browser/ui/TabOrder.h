// The way of the Tab key through the main window.
#pragma once

class QWidget;

namespace ostrand {

/// Orders the controls of the main window for the Tab key. All of them must be there; to be called once.
void OrderTabs(QWidget &window);

} // namespace ostrand
