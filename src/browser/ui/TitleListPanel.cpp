#include "browser/ui/TitleListPanel.h"

#include "browser/Browser.h"
#include "browser/CollectionTabs.h"
#include "browser/Navigation.h"
#include "browser/ui/FindEdit.h"
#include "browser/ui/PanelTabs.h"
#include "shell/ui/Guarded.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStandardItemModel>

namespace ostrand {

void FilterBox::showPopup() {
    Q_EMIT AboutToOpen();
    if (count() > 0) {
        QComboBox::showPopup();
    }
}

void FilterBox::keyPressEvent(QKeyEvent *event) {
    static constexpr Qt::Key kSteps[] = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                         Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    const bool steps = std::ranges::find(kSteps, event->key()) != std::end(kSteps);
    const bool letter = event->key() != Qt::Key_Space && !event->text().isEmpty() && event->text().front().isPrint() &&
                        !event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (!steps && !letter) {
        QComboBox::keyPressEvent(event);
        return;
    }
    showPopup();
    if (letter) {
        view()->keyboardSearch(event->text());
    }
}

void FilterBox::wheelEvent(QWheelEvent *event) {
    event->ignore();
}

void TypeTabs::contextMenuEvent(QContextMenuEvent *event) {
    // A key tells the middle of all tabs as its place, where another one may stand.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        Q_EMIT MenuWanted(mapToGlobal(tabRect(currentIndex()).center()));
        return;
    }
    const int index = tabAt(event->pos());
    if (index >= 0 && index != currentIndex()) {
        setCurrentIndex(index);
    }
    Q_EMIT MenuWanted(event->globalPos());
}

TitleListPanel::TitleListPanel(Browser &browser, QWidget *parent) :
    QWidget(parent), browser_(browser), tabColList_(new TypeTabs(this)), comboFilter_(new FilterBox(this)),
    textFind_(new FindEdit(browser, this)), listSeries_(new TitleListView(browser, this)),
    labelFilterCount_(new QLabel(this)) {
    setObjectName(QStringLiteral("Frame1_1"));
    MakeTabs();
    MakeFilterBox();
    MakeFindBox();
    labelFilterCount_->setObjectName(QStringLiteral("labelFilterCount"));
    labelFilterCount_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(&browser_, &Browser::FilterCountChanged, this,
            [this] { labelFilterCount_->setText(browser_.labelFilterCount); });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(tabColList_);
    layout->addWidget(comboFilter_);
    layout->addWidget(textFind_);
    layout->addWidget(listSeries_, 1);
    layout->addWidget(labelFilterCount_);
    TranslateNames();
}

void TitleListPanel::TranslateNames() {
    const auto shown = [this](const char16_t *text) { return Translate(browser_.session, QString::fromUtf16(text)); };
    tabColList_->setAccessibleName(shown(u"Collection types"));
    comboFilter_->setAccessibleName(shown(u"Filter"));
    comboFilter_->setPlaceholderText(shown(u"Filter"));
    comboFilter_->setToolTip(shown(u"Show only the titles that a saved filter finds"));
    textFind_->setAccessibleName(shown(u"Find"));
    textFind_->setPlaceholderText(shown(u"Find title or person"));
    const QString key = FindEdit::Shortcut().toString(QKeySequence::NativeText);
    textFind_->setToolTip(shown(u"Show only the titles that hold what is typed, or a person of that name") +
                          QStringLiteral(" (%1)").arg(key));
    listSeries_->setAccessibleName(shown(u"Titles"));
}

void TitleListPanel::MakeTabs() {
    tabColList_->setObjectName(QStringLiteral("tabColList"));
    PutTabsClose(*tabColList_);
    tabColList_->setExpanding(false);
    tabColList_->setUsesScrollButtons(true);
    tabColList_->setDrawBase(false);
    tabColList_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(&browser_, &Browser::TabsChanged, this, &TitleListPanel::ShowTabs);
    connect(tabColList_, &QTabBar::currentChanged, this, [this](int index) {
        if (!following_ && index >= 0) {
            SelectColTypeTab(browser_, index + 1);
        }
    });
    // A click on the tab that is selected already lists its titles anew, which ends a filter.
    connect(tabColList_, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0 && index == tabColList_->currentIndex() &&
            QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
            SelectColTypeTab(browser_, index + 1);
        }
    });
    connect(tabColList_, &TypeTabs::MenuWanted, this, &TitleListPanel::TabMenuWanted);
}

void TitleListPanel::MakeFilterBox() {
    comboFilter_->setObjectName(QStringLiteral("comboFilter"));
    comboFilter_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(comboFilter_, &FilterBox::AboutToOpen, this, [this] { OpenFilterList(browser_); });
    connect(comboFilter_, &QComboBox::textActivated, this,
            [this](const QString &text) { Guarded(browser_.session, [&] { ChooseFilter(browser_, text); }); });
    connect(&browser_, &Browser::FilterChanged, this, &TitleListPanel::ShowFilters);
}

void TitleListPanel::MakeFindBox() {
    auto *shortcut = new QShortcut(FindEdit::Shortcut(), this);
    connect(shortcut, &QShortcut::activated, textFind_, [this] {
        textFind_->setFocus(Qt::ShortcutFocusReason);
        textFind_->selectAll();
    });
    connect(textFind_, &FindEdit::IntoList, this, &TitleListPanel::GoIntoList);
    connect(textFind_, &FindEdit::BackToList, this, [this] { listSeries_->setFocus(); });
}

/// From the find box to the current title, or else to the first one.
void TitleListPanel::GoIntoList() {
    if (browser_.listSeries.rowCount() > 0) {
        listSeries_->setFocus();
        Guarded(browser_.session, [this] { MoveIntoList(browser_); });
    }
}

void TitleListPanel::ShowTabs() {
    const QScopedValueRollback<bool> follow(following_, true);
    while (tabColList_->count() > browser_.tabColList.size()) {
        tabColList_->removeTab(tabColList_->count() - 1);
    }
    for (int i = 0; i < browser_.tabColList.size(); ++i) {
        QString text = browser_.tabColList[i];
        text.replace(u'&', QStringLiteral("&&")); // not a mnemonic: it is the user's own word
        if (i < tabColList_->count()) {
            tabColList_->setTabText(i, text);
        } else {
            tabColList_->addTab(text);
        }
    }
    tabColList_->setCurrentIndex(browser_.tabColList_selected - 1);
}

void TitleListPanel::ShowFilters() {
    comboFilter_->setVisible(browser_.filter_shown);
    QStringList shown;
    for (int i = 0; i < comboFilter_->count(); ++i) {
        shown.append(comboFilter_->itemText(i));
    }
    if (shown != browser_.comboFilter) {
        comboFilter_->clear();
        comboFilter_->addItems(browser_.comboFilter);
    }
    if (const auto *items = qobject_cast<QStandardItemModel *>(comboFilter_->model())) {
        for (int i = 0; i < items->rowCount(); ++i) {
            items->item(i)->setEnabled(FilterEntryAvailable(browser_, i));
        }
    }
    comboFilter_->setCurrentIndex(int(browser_.comboFilter.indexOf(browser_.comboFilter_text)));
}

} // namespace ostrand
