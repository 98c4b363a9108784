// Sizes of windows in letters, so that they are right with any font and on any screen.
#pragma once

class QWidget;
class QPushButton;

namespace ostrand {

/// Gives a window the size of a text of that many letters and lines, or less where the screen is smaller.
void ResizeToText(QWidget &window, int letters, int lines);
/// Makes a button as narrow as its "..." allows.
void MakeNarrow(QPushButton &button);

} // namespace ostrand
