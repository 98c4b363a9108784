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
constexpr QRect kFirstPlace(FromTwips(200), FromTwips(200), FromTwips(17000), FromTwips(11000));
constexpr std::array<double, 6> kShares = {0.45, 0.55, 0.4, 0.5, 0.5, 0.3};

QString SplitterKey(size_t index) {
    return u"Splitter%1"_s.arg(index + 1);
}

} // namespace

void PlaceMainWindow(QMainWindow &window, const Session &session, bool reset) {
    window.resize(kFirstPlace.size());
    if (HasWindowPositions()) {
        window.move(kFirstPlace.topLeft());
    }
    if (!reset) {
        ReadWindowPlace(session, u"Window"_s, window, kFirstPlace.size());
        const int state = GetINIString(session, u"Window"_s, u"WindowState"_s, {}).toInt();
        window.setWindowState(state == kMaximised   ? Qt::WindowMaximized
                              : state == kMinimised ? Qt::WindowMinimized
                                                    : Qt::WindowNoState);
    }
}

void KeepMainWindow(const QMainWindow &window, const Session &session) {
    const int state = window.isMinimized() ? kMinimised : window.isMaximized() ? kMaximised : kNormal;
    WriteINIString(session, u"Window"_s, u"WindowState"_s, QString::number(state));
    if (state == kNormal) {
        WriteWindowPlace(session, u"Window"_s, window);
    }
}

void PlaceSplitters(const std::array<SplitPanel *, 6> &splits, const Session &session, bool reset) {
    for (size_t i = 0; i < splits.size(); ++i) {
        if (reset) {
            WriteINIString(session, u"Splitter"_s, SplitterKey(i), {});
        }
        bool stored = false;
        const int position = GetINIString(session, u"Splitter"_s, SplitterKey(i), {}).toInt(&stored);
        splits[i]->SetDefaultPosition(kShares[i]);
        if (stored) {
            splits[i]->SetPosition(position);
        }
    }
}

void KeepSplitters(const std::array<SplitPanel *, 6> &splits, const Session &session) {
    for (size_t i = 0; i < splits.size(); ++i) {
        if (splits[i]->Position() != SplitPanel::kUnset) {
            WriteINIString(session, u"Splitter"_s, SplitterKey(i), QString::number(splits[i]->Position()));
        }
    }
}

} // namespace ostrand
