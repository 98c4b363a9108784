#include "browser/ui/ProfileTextTab.h"

#include "browser/Browser.h"
#include "browser/ProfileSheet.h"
#include "browser/TextPage.h"
#include "browser/ui/SkinRules.h"
#include "browser/ui/TextRules.h"
#include "shell/Session.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>

namespace ostrand {

using namespace Qt::StringLiterals;

ProfileTextTab::ProfileTextTab(Browser &browser, ProfileSheet &sheet, const EngineFor &engine_for, QWidget *parent) :
    SheetPage(browser, sheet, u"ProfileText"_s, parent),
    page_(new PageField(browser.session, engine_for, TextRules(browser.session), u"WebText"_s,
                        Translate(browser.session, u"Text"_s))) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(page_);
}

void ProfileTextTab::ShowTitle() {
    const SheetTab tab = sheet_.Tab();
    page_->View().setAccessibleName(Text(SheetTabCaption(tab)));
    ShowTextHTML(page_->View(), sheet_.TextOf(tab), ProfileSheet::PageName(tab));
}

void ProfileTextTab::ShowTextHTML(HtmlView &browser, const QString &html, const QString &name) {
    ostrand::ShowTextHTML(browser_.session, browser, html, name);
}

ProfileInfosTab::ProfileInfosTab(Browser &browser, ProfileSheet &sheet, const EngineFor &engine_for, QWidget *parent) :
    SheetPage(browser, sheet, u"ProfileInfos"_s, parent), listInfos_(MakeList(sheet.listInfos)),
    page_(new PageField(browser.session, engine_for, TextRules(browser.session), u"WebInfo"_s,
                        Translate(browser.session, u"Value"_s))) {
    listInfos_->setObjectName(u"listInfos"_s);
    listInfos_->setAccessibleName(Text(u"Additional Infos"_s));
    auto *split = new QSplitter;
    split->addWidget(listInfos_);
    split->addWidget(page_);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 2);
    split->setChildrenCollapsible(false);
    split->setSizes({1000, 2000}); // shares, whatever the two would like
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(split);
    connect(listInfos_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ProfileInfosTab::ShowValue);
}

void ProfileInfosTab::ShowTitle() {
    setEnabled(!sheet_.Title().id.isEmpty());
    const QModelIndex first = sheet_.listInfos.index(0, 0);
    if (first.isValid() && listInfos_->currentIndex() != first) {
        listInfos_->setCurrentIndex(first); // which shows its value
    } else {
        ShowValue();
    }
}

void ProfileInfosTab::ShowValue() {
    const QModelIndex index = listInfos_->currentIndex();
    const QString name = index.isValid() ? sheet_.listInfos.Rows()[size_t(index.row())].key : QString();
    ShowTextHTML(browser_.session, page_->View(), sheet_.InfoValue(name),
                 ProfileSheet::PageName(SheetTab::AdditionalInfos));
}

ProfileSkinTab::ProfileSkinTab(Browser &browser, ProfileSheet &sheet, const EngineFor &engine_for,
                               std::function<void(const std::function<void()> &action)> perform, QWidget *parent) :
    SheetPage(browser, sheet, u"ProfileSkin"_s, parent),
    ListSkins_(new QComboBox),
    page_(new PageField(browser.session, engine_for, SkinRules(browser.session), u"WebProfileSkin"_s,
                        Translate(browser.session, u"Title as a page"_s), this)),
    skin_(browser, page_->View()) {
    skin_.later = [window = QPointer<QWidget>(this), perform = std::move(perform)](const auto &action) {
        QTimer::singleShot(0, window, [perform, action] { perform(action); });
    };
    auto *choice = new QHBoxLayout;
    choice->addWidget(LabelFor(*ListSkins_, "ListSkins", Text(u"Skin"_s)));
    choice->addWidget(ListSkins_);
    choice->addStretch(1);
    ListSkins_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(page_, 1);
    connect(ListSkins_, &QComboBox::activated, this, [this] { Do([this] { ShowTitle(); }); });
}

void ProfileSkinTab::FillSkins() {
    const QStringList names = SkinsWithTemplate(browser_.session);
    const QSignalBlocker silent(ListSkins_);
    const QString chosen = ListSkins_->count() > 0 ? ListSkins_->currentText() : browser_.session.CurrentSkin;
    ListSkins_->clear();
    ListSkins_->addItems(names);
    ListSkins_->setCurrentIndex(std::max(ListSkins_->findText(chosen, Qt::MatchFixedString), 0));
    ListSkins_->setEnabled(!names.isEmpty());
}

void ProfileSkinTab::ShowTitle() {
    FillSkins();
    skin_.Show(ListSkins_->currentText(), sheet_.Title());
}

} // namespace ostrand
