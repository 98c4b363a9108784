#include "browser/ui/MiddlePanel.h"

#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/ui/CreditListView.h"
#include "browser/ui/CrewFrame.h"
#include "browser/ui/PanelTabs.h"
#include "browser/ui/ProfileAV.h"
#include "browser/ui/ProfileDetails.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/SplitPanel.h"

#include <QScopedValueRollback>
#include <QStackedWidget>

namespace ostrand {

MiddlePanel::MiddlePanel(Browser &browser, QWidget *parent) :
    QWidget(parent), browser_(browser), tabMain_(new PanelTabs(this)), pages_(new QStackedWidget(this)),
    Split4_(new SplitPanel), ListCast_(new CreditListView(browser, browser.credits.ListCast, QStringLiteral("ListCast"),
                                                          browser.session.view.CastOrderColumns)),
    FrameCrew_(new CrewFrame(browser)), Details_(new ProfileDetails(browser)), AV_(new ProfileAV(browser)) {
    tabMain_->setObjectName(QStringLiteral("tabMain"));

    Split4_->setObjectName(QStringLiteral("Split4"));
    Split4_->SetHorizontal(true);
    Split4_->SetMinPanelSize(0);
    Split4_->SetControl1(ListCast_);
    Split4_->SetControl2(FrameCrew_);
    pages_->addWidget(Split4_);
    pages_->addWidget(Details_);
    pages_->addWidget(AV_);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabMain_);
    layout->addWidget(pages_, 1);

    connect(tabMain_, &QTabBar::currentChanged, this, [this](int index) {
        if (!following_ && index >= 0) {
            Guarded(browser_.session, [&] { SelectMainTab(browser_, index + 1); });
        }
    });
    for (const TextPanel *panel : {static_cast<TextPanel *>(Details_), static_cast<TextPanel *>(AV_)}) {
        connect(panel, &TextPanel::FieldMenuWanted, this, &MiddlePanel::FieldMenuWanted);
        connect(panel, &TextPanel::ChangeWanted, this, &MiddlePanel::FieldChangeWanted);
    }
    connect(&browser_, &Browser::TabsChanged, this, &MiddlePanel::ShowTabs);
    connect(&browser_, &Browser::MainTabChanged, this, &MiddlePanel::ShowTabs);
    TranslateNames();
}

void MiddlePanel::TranslateNames() {
    tabMain_->setAccessibleName(Translate(browser_.session, QStringLiteral("Panels")));
    Details_->TranslateNames();
    AV_->TranslateNames();
    ListCast_->setAccessibleName(Translate(browser_.session, QStringLiteral("Cast")));
    FrameCrew_->TranslateNames();
}

void MiddlePanel::ShowTabs() {
    const QScopedValueRollback<bool> follow(following_, true);
    while (tabMain_->count() > browser_.tabMain.size()) {
        tabMain_->removeTab(tabMain_->count() - 1);
    }
    for (int i = 0; i < browser_.tabMain.size(); ++i) {
        if (i < tabMain_->count()) {
            tabMain_->setTabText(i, browser_.tabMain[i]);
        } else {
            tabMain_->addTab(browser_.tabMain[i]);
        }
        tabMain_->setTabToolTip(i, browser_.tabMain[i]); // the text may be cut
    }
    tabMain_->setCurrentIndex(browser_.tabMain_selected - 1);
    pages_->setCurrentIndex(browser_.tabMain_selected - 1);
}

} // namespace ostrand
