#include "browser/ui/PanelTabs.h"

#include <QProxyStyle>

namespace ostrand {

namespace {

/// Puts a third of the usual room beside the texts of tabs.
class CloseTabs : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_TabBarTabHSpace ? usual / 3 : usual;
    }
};

} // namespace

void PutTabsClose(QTabBar &tabs) {
    auto *close = new CloseTabs;
    close->setParent(&tabs);
    tabs.setStyle(close);
}

PanelTabs::PanelTabs(QWidget *parent) : QTabBar(parent) {
    PutTabsClose(*this);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideRight);
    setDrawBase(false);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

} // namespace ostrand
