// Where the main window stood, and its splitters.
#pragma once

#include <array>

class QMainWindow;

namespace ostrand {

struct Session;
class SplitPanel;

/// Places the window as Settings.ini tells, or, with `reset`, where a first start has it.
void PlaceMainWindow(QMainWindow &window, const Session &session, bool reset);
/// Writes the state of the window, and its place when it is neither minimised nor maximised.
void KeepMainWindow(const QMainWindow &window, const Session &session);

/// Sets Split1 to Split6; with `reset` their stored places are forgotten first. A splitter without a stored place takes
/// its share of the room when it is first shown.
void PlaceSplitters(const std::array<SplitPanel *, 6> &splits, const Session &session, bool reset);
void KeepSplitters(const std::array<SplitPanel *, 6> &splits, const Session &session);

} // namespace ostrand
