#include "browser/ui/AwardsFrame.h"

#include "browser/Browser.h"
#include "browser/CreditCommands.h"
#include "shell/ui/Guarded.h"

#include <QKeyEvent>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace ostrand {

namespace {

/// What was won is bold.
class AwardDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(AwardTree::IconRole).toString() == u"X") {
            option->font.setBold(true);
        }
    }
};

} // namespace

AwardsFrame::AwardsFrame(Browser &browser, QWidget *parent) :
    QWidget(parent), browser_(browser), labelAwards_(new QLabel(this)), treeAwards_(new QTreeView(this)) {
    setObjectName(QStringLiteral("FrameAwards"));
    labelAwards_->setObjectName(QStringLiteral("labelAwards"));
    labelAwards_->setBuddy(treeAwards_); // a label without one shows a doubled "&" as two
    labelAwards_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    treeAwards_->setObjectName(QStringLiteral("treeAwards"));
    treeAwards_->setModel(&browser_.appearances.treeAwards);
    treeAwards_->setItemDelegate(new AwardDelegate(treeAwards_));
    treeAwards_->setHeaderHidden(true);
    treeAwards_->setUniformRowHeights(true);
    treeAwards_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    treeAwards_->setContextMenuPolicy(Qt::CustomContextMenu);
    treeAwards_->installEventFilter(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(labelAwards_);
    layout->addWidget(treeAwards_, 1);

    connect(&browser_.appearances, &AppearancesPanel::AwardsChanged, this, [this] {
        labelAwards_->setText(browser_.appearances.labelAwards);
        labelAwards_->setToolTip(labelAwards_->text().replace(QStringLiteral("&&"), QStringLiteral("&")));
    });
    connect(&browser_.appearances.treeAwards, &QAbstractItemModel::modelReset, treeAwards_, &QTreeView::expandAll);
    connect(treeAwards_, &QTreeView::doubleClicked, this, &AwardsFrame::GoToMovie);
    connect(treeAwards_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &place) { Q_EMIT MenuWanted(treeAwards_->viewport()->mapToGlobal(place)); });
    TranslateNames();
}

void AwardsFrame::TranslateNames() {
    treeAwards_->setAccessibleName(Translate(browser_.session, QStringLiteral("Awards")));
}

void AwardsFrame::GoToMovie(const QModelIndex &index) {
    Guarded(browser_.session, [&] { GoToAwardedMovie(browser_, index); });
}

bool AwardsFrame::HandleKey(const QKeyEvent &event) {
    const QModelIndex current = treeAwards_->currentIndex();
    if (event.matches(QKeySequence::Copy)) {
        CopyTreeToClipboard(browser_, browser_.appearances.treeAwards);
        return true;
    }
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (enter && !current.data(AwardTree::KeyRole).toString().isEmpty()) {
        GoToMovie(current);
        return true;
    }
    return false;
}

bool AwardsFrame::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress && HandleKey(*static_cast<QKeyEvent *>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ostrand
