#include "browser/ui/ProfileMainTab.h"

#include "browser/Browser.h"
#include "browser/ProfileSheet.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QTreeView>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr const char *kPriceTexts[] = {"textSRP", "textPurchasePlace", "textPurchaseDate", "textPurchasePrice"};
constexpr int kLeastRows = 4;
constexpr int kDiscsRow = 3;
constexpr int kDiscsStretch = 2;

} // namespace

ProfileMainTab::ProfileMainTab(Browser &browser, ProfileSheet &sheet, QWidget *parent) :
    SheetPage(browser, sheet, u"ProfileMain"_s, parent), treeTags_(new QTreeView),
    listDiscs_(MakeList(sheet.listDiscs)) {
    auto *layout = new QGridLayout(this);
    AddTags(*layout);
    AddLocks(*layout);
    AddDiscs(*layout);
    AddPrices(*layout);
    layout->setRowStretch(1, 5);
    layout->setRowStretch(kDiscsRow, kDiscsStretch);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    ShowTitle();
}

void ProfileMainTab::AddTags(QGridLayout &layout) {
    treeTags_->setModel(&sheet_.tags);
    treeTags_->setHeaderHidden(true);
    treeTags_->setUniformRowHeights(true);
    treeTags_->setToolTip(Text(u"A tick gives the title this tag"_s));
    layout.addWidget(LabelFor(*treeTags_, "treeTags", Text(u"Tags"_s)), 0, 0);
    layout.addWidget(treeTags_, 1, 0);
    treeTags_->expandAll();
    connect(&sheet_.tags, &QAbstractItemModel::modelReset, treeTags_, &QTreeView::expandAll);
    connect(&sheet_.tags, &QAbstractItemModel::rowsInserted, treeTags_, &QTreeView::expandAll, Qt::QueuedConnection);
    connect(&sheet_.tags, &ProfileTags::Ticked, this, [this](const QString &name, bool on) {
        Do([&] { sheet_.SetTag(name, on); });
        Q_EMIT browser_.TagsChanged(false);
    });
}

void ProfileMainTab::AddLocks(QGridLayout &layout) {
    auto *locks = new QListView;
    locks->setModel(&sheet_.listLocks);
    locks->setUniformItemSizes(true);
    locks->setToolTip(Text(u"What is ticked stays as it is in imports and updates"_s));
    LetCopy(*locks);
    layout.addWidget(LabelFor(*locks, "listLocks", Text(u"Locks"_s)), 0, 1);
    layout.addWidget(locks, 1, 1);
    connect(&sheet_.listLocks, &CheckList::Ticked, this,
            [this](const QString &name, bool on) { Do([&] { sheet_.SetLock(name, on); }); });
}

void ProfileMainTab::AddDiscs(QGridLayout &layout) {
    discs_label_ = LabelFor(*listDiscs_, "listDiscs", Text(u"Discs"_s));
    layout.addWidget(discs_label_, 2, 0, 1, 2);
    layout.addWidget(listDiscs_, kDiscsRow, 0, 1, 2);
    listDiscs_->setMinimumHeight(fontMetrics().lineSpacing() * 3 / 2 * kLeastRows);
}

void ProfileMainTab::AddPrices(QGridLayout &layout) {
    auto *prices = new QGridLayout;
    int place = 0;
    for (const char *name : kPriceTexts) {
        auto *label = new QLabel;
        auto *text = new QLabel;
        text->setObjectName(QLatin1String(name));
        text->setTextFormat(Qt::PlainText);
        text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        text->setWordWrap(true);
        prices->addWidget(label, place / 2, place % 2 * 2);
        prices->addWidget(text, place / 2, place % 2 * 2 + 1);
        price_labels_ += label;
        price_texts_ += text;
        ++place;
    }
    prices->setColumnStretch(1, 1);
    prices->setColumnStretch(3, 1);
    prices->setHorizontalSpacing(fontMetrics().averageCharWidth() * 2);
    layout.addLayout(prices, 4, 0, 1, 2);
}

void ProfileMainTab::ShowTitle() {
    setEnabled(!sheet_.Title().id.isEmpty());
    const bool of_profile = !sheet_.Title().is_episode;
    const auto &discs = sheet_.listDiscs.Rows();
    const bool has_second_side =
        std::any_of(discs.begin(), discs.end(), [](const ListTableRow &disc) { return !disc.texts[1].isEmpty(); });
    listDiscs_->Stretch(has_second_side ? QList<int>{0, 1} : QList<int>{0});
    // An episode has none: its tags and locks take the room.
    static_cast<QGridLayout *>(layout())->setRowStretch(kDiscsRow, of_profile ? kDiscsStretch : 0);
    discs_label_->setVisible(of_profile);
    listDiscs_->setVisible(of_profile);
    for (qsizetype i = 0; i < price_texts_.size() && i < sheet_.prices.size(); ++i) {
        const PriceLine &line = sheet_.prices[i];
        price_labels_[i]->setText(line.label);
        price_texts_[i]->setText(line.value);
        price_texts_[i]->setAccessibleName(QString(line.label).remove(u':'));
        price_labels_[i]->setVisible(of_profile);
        price_texts_[i]->setVisible(of_profile);
    }
}

} // namespace ostrand
