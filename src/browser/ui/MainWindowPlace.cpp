#include "browser/ui/MainWindowPlace.h"

#include "shell/Session.h"
#include "shell/ui/SplitPanel.h"
#include "shell/ui/Twips.h"
#include "shell/ui/WindowPlace.h"

#include <QMainWindow>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kNormal = 0;
constexpr int kMinimised = 1;
constexpr int kMaximised = 2;
constexpr WindowTwips kFirstPlace = {.height = 11000, .width = 17000, .top = 200, .left = 200};
constexpr std::array<double, 6> kShares = {0.45, 0.55, 0.4, 0.5, 0.5, 0.3};

QString SplitterKey(size_t index) {
    return u"Splitter%1"_s.arg(index + 1);
}

} // namespace

void PlaceMainWindow(QMainWindow &window, const Session &session, bool reset) {
    PlaceWindow(window, reset ? kFirstPlace : ReadWindowTwips(session, u"Window"_s, kFirstPlace));
    if (!reset && GetINIString(session, u"Window"_s, u"WindowState"_s, {}).toInt() == kMaximised) {
        window.setWindowState(Qt::WindowMaximized);
    }
}

void KeepMainWindow(const QMainWindow &window, const Session &session) {
    const int state = window.isMinimized() ? kMinimised : window.isMaximized() ? kMaximised : kNormal;
    WriteINIString(session, u"Window"_s, u"WindowState"_s, QString::number(state));
    if (state == kNormal) {
        WriteWindowTwips(session, u"Window"_s, TwipsOfWindow(window));
    }
}

void PlaceSplitters(const std::array<SplitPanel *, 6> &splits, const Session &session, bool reset) {
    for (size_t i = 0; i < splits.size(); ++i) {
        if (reset) {
            WriteINIString(session, u"Splitter"_s, SplitterKey(i), {});
        }
        bool stored = false;
        const int position = GetINIString(session, u"Splitter"_s, SplitterKey(i), {}).toInt(&stored);
        splits[i]->SetDefaultFraction(kShares[i]);
        if (stored) {
            splits[i]->SetPosition(position);
        }
    }
}

void KeepSplitters(const std::array<SplitPanel *, 6> &splits, const Session &session) {
    for (size_t i = 0; i < splits.size(); ++i) {
        if (splits[i]->HasPosition()) {
            WriteINIString(session, u"Splitter"_s, SplitterKey(i), QString::number(splits[i]->Position()));
        }
    }
}

} // namespace ostrand
