#include "browser/ui/frmProfile.h"

#include "browser/Browser.h"
#include "browser/ui/ProfileEventsTab.h"
#include "browser/ui/ProfileMainTab.h"
#include "browser/ui/ProfileTextTab.h"
#include "shell/Settings.h"
#include "shell/ui/Guarded.h"
#include "shell/ui/WindowPlace.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr int kProfileLetters = 120;
constexpr int kProfileLines = 34;

} // namespace

frmProfile::frmProfile(Browser &browser, EngineFor engine_for,
                       std::function<void(const std::function<void()> &action)> perform, QWidget *parent) :
    QDialog(parent, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                        Qt::WindowCloseButtonHint),
    browser_(browser), engine_for_(std::move(engine_for)), perform_(std::move(perform)), sheet_(browser.session) {
    setObjectName(u"frmProfile"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(0);
    Compose();
    AddKeys();
    connect(&sheet_, &ProfileSheet::TitleChanged, this, [this] { setWindowTitle(sheet_.Caption()); });
    connect(&sheet_, &ProfileSheet::TabRead, this, &frmProfile::ShowTab);
    connect(&browser_.commands, &Commands::TextsChanged, this, &frmProfile::Recompose);
    connect(&browser_, &Browser::DatabaseOpened, this, &frmProfile::Recompose);
    setWindowTitle(sheet_.Caption());
    new WindowPlace(browser_.session, u"ProfileInfo"_s, this,
                    {fontMetrics().averageCharWidth() * kProfileLetters, fontMetrics().lineSpacing() * kProfileLines});
}

frmProfile::~frmProfile() {
    browser_.hooks.ShowProfile = nullptr;
    Discard(); // before the sheet that the controls show
}

void frmProfile::Compose() {
    tabProfile_ = new QTabBar(this);
    pages_ = new QStackedWidget(this);
    tabProfile_->setObjectName(u"tabProfile"_s);
    tabProfile_->setAccessibleName(Translate(browser_.session, u"Panels"_s));
    tabProfile_->setExpanding(false);
    tabProfile_->setUsesScrollButtons(true);
    tabProfile_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (int tab = 1; tab <= kSheetTabs; ++tab) {
        tabProfile_->addTab(Translate(browser_.session, SheetTabCaption(SheetTab(tab))));
    }
    main_ = new ProfileMainTab(browser_, sheet_);
    text_ = new ProfileTextTab(browser_, sheet_, engine_for_);
    events_ = new ProfileEventsTab(browser_, sheet_);
    infos_ = new ProfileInfosTab(browser_, sheet_, engine_for_);
    skin_ = new ProfileSkinTab(browser_, sheet_, engine_for_, perform_);
    for (QWidget *page : QWidgetList{main_, text_, events_, infos_, skin_}) {
        pages_->addWidget(page);
    }
    layout()->addWidget(tabProfile_);
    layout()->addWidget(pages_);
    tabProfile_->setCurrentIndex(ClampTab(browser_.session.view.ProfileInfoLastTab, kSheetTabs) - 1);
    connect(tabProfile_, &QTabBar::currentChanged, this, [this](int index) { EnableTab(index + 1); });
    EnableTab(tabProfile_->currentIndex() + 1);
}

void frmProfile::Discard() {
    delete tabProfile_;
    delete pages_;
    tabProfile_ = nullptr;
    pages_ = nullptr;
}

void frmProfile::Recompose() {
    stale_ = !isVisible();
    if (!stale_) {
        Discard();
        Guarded(browser_.session, [this] { sheet_.Restart(); });
        Compose();
    }
}

void frmProfile::AddKeys() {
    for (const auto &[key, by] :
         {std::pair(QKeySequence(u"Ctrl+Tab"_s), 1), std::pair(QKeySequence(u"Ctrl+PgDown"_s), 1),
          std::pair(QKeySequence(u"Ctrl+Shift+Tab"_s), -1), std::pair(QKeySequence(u"Ctrl+PgUp"_s), -1)}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step = by] { StepTab(step); });
    }
    // A page that has the focus takes the keys of the window.
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QDialog::reject);
}

void frmProfile::EnableTab(int tab) {
    const SheetTab shown = SheetTab(ClampTab(tab, kSheetTabs));
    tabProfile_->setCurrentIndex(int(shown) - 1);
    pages_->setCurrentWidget(PageOf(shown));
    Guarded(browser_.session, [&] {
        if (!sheet_.SelectTab(shown)) {
            ShowTab(shown); // the tabs with texts share their page
        }
    });
}

QWidget *frmProfile::PageOf(SheetTab tab) const {
    switch (tab) {
    case SheetTab::Main:
        return main_;
    case SheetTab::Events:
        return events_;
    case SheetTab::AdditionalInfos:
        return infos_;
    case SheetTab::Skins:
        return skin_;
    case SheetTab::Overview:
    case SheetTab::Notes:
    case SheetTab::EasterEggs:
        break;
    }
    return text_;
}

void frmProfile::ShowTab(SheetTab tab) {
    if (!pages_ || tab != sheet_.Tab()) {
        return;
    }
    switch (tab) {
    case SheetTab::Main:
        main_->ShowTitle();
        break;
    case SheetTab::Events:
        events_->ShowTitle();
        break;
    case SheetTab::AdditionalInfos:
        infos_->ShowTitle();
        break;
    case SheetTab::Skins:
        skin_->ShowTitle();
        break;
    case SheetTab::Overview:
    case SheetTab::Notes:
    case SheetTab::EasterEggs:
        text_->ShowTitle();
        break;
    }
}

void frmProfile::Show(const SheetTitle &title) {
    Guarded(browser_.session, [&] { sheet_.Show(title); });
}

void frmProfile::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    if (std::exchange(stale_, false)) {
        Recompose();
    } else {
        Guarded(browser_.session, [this] { sheet_.Restart(); });
    }
    browser_.hooks.ShowProfile = [this](const QString &key, bool is_episode) { Show({key, is_episode}); };
}

void frmProfile::hideEvent(QHideEvent *event) {
    if (!event->spontaneous()) {
        browser_.hooks.ShowProfile = nullptr;
    }
    QDialog::hideEvent(event);
}

void frmProfile::keyPressEvent(QKeyEvent *event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
    } else if (auto *button = qobject_cast<QPushButton *>(focusWidget())) {
        button->click();
    }
}

void frmProfile::StepTab(int by) {
    tabProfile_->setCurrentIndex((tabProfile_->currentIndex() + by + kSheetTabs) % kSheetTabs);
}

} // namespace ostrand
