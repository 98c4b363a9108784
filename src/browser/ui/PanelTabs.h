// tabMain.
#pragma once

#include <QTabBar>

namespace ostrand {

/// Lets the tabs stand close, so that more of them are in sight.
void PutTabsClose(QTabBar &tabs);

/// A few tabs that are all in sight, however little room there is: they stand close, and texts are cut where that does
/// not do.
class PanelTabs : public QTabBar {
    Q_OBJECT
public:
    explicit PanelTabs(QWidget *parent = nullptr);
};

} // namespace ostrand
